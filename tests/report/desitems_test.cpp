// desitems_test.cpp -- the description item file and its editor.
#include "report/desitems.h"

#include "testing.h"

#include "boring/boringboxes.h"
#include "session/deviceconfig.h"
#include "session/session.h"

using Items = std::vector<Text>;

TEST_CASE("the four blocks of the item file are the four lists, in order")
{
    WriteScratch("desitem.txt", Lines({" 2 ", "Silty SAND, ", "CLAY", " 1 ", "brown", "0", " 1 ", "wet"}));
    frmBorinput::List[3] = {"old"};
    loaddeslists();
    CHECK(Messages.empty());
    CHECK(frmBorinput::List[1] == Items{"Silty SAND, ", "CLAY"});
    CHECK(frmBorinput::List[2] == Items{"brown"});
    CHECK(frmBorinput::List[4] == Items{"wet"});
}

TEST_CASE("a count of 0 gives an empty list, and the next line is the next count")
{
    WriteScratch("desitem.txt", Lines({"0", "0", "1", "x", "0"}));
    frmBorinput::List[1] = {"old"};
    loaddeslists();
    CHECK(frmBorinput::List[1].empty());
    CHECK(frmBorinput::List[3] == Items{"x"});
}

TEST_CASE("the item file of the set-up comes first; without it desitem.txt; with neither the lists stay, in silence")
{
    DeviceConfig.SystemFiles[DescItemFile] = "office.txt";
    WriteScratch("office.txt", Lines({"1", "office", "0", "0", "0"}));
    WriteScratch("desitem.txt", Lines({"1", "stock", "0", "0", "0"}));
    loaddeslists();
    CHECK(frmBorinput::List[1] == Items{"office"});
    std::filesystem::remove(Scratch("office.txt"));
    loaddeslists();
    CHECK(frmBorinput::List[1] == Items{"stock"});
    std::filesystem::remove(Scratch("desitem.txt"));
    loaddeslists();
    CHECK(frmBorinput::List[1] == Items{"stock"});
    CHECK(Messages.empty());
}

TEST_CASE("an item file that is too long or too short is told, and the lists stay as they are")
{
    frmBorinput::List[1] = {"old"};
    std::string file = "51\r\n";
    for (int i = 1; i <= 51; ++i)
        file += "x\r\n";
    WriteScratch("desitem.txt", file + "0\r\n0\r\n0\r\n");
    loaddeslists();
    WriteScratch("desitem.txt", Lines({"1", "x", "2", "y"}));
    loaddeslists();
    REQUIRE(Messages.size() == 2);
    CHECK(Messages[0].words == "Error 9 in loaddeslists.  Please contact Norvane");
    CHECK(Messages[1].words == "Error 62 in loaddeslists.  Please contact Norvane");
    CHECK(frmBorinput::List[1] == Items{"old"});
}

TEST_CASE("OK of the item editor writes the file of the set-up and fills the lists")
{
    DeviceConfig.SystemFiles[DescItemFile] = "office.txt";
    frmBorinput::List[1] = {"Silty SAND, ", "CLAY"};
    frmBorinput::List[4] = {"wet"};
    frmDesItems::Load();
    CHECK(frmDesItems::Box[1] == "Silty SAND, \r\nCLAY\r\n");
    CHECK(frmDesItems::Box[2] == "");
    frmDesItems::Box[2] = "brown\r\n\r\ngray";
    CHECK(frmDesItems::Command1());
    CHECK(Messages.empty());
    CHECK(ReadScratch("office.txt") ==
          Lines({" 2 ", "Silty SAND, ", "CLAY", " 3 ", "brown", "", "gray", " 0 ", " 1 ", "wet"}));
    CHECK(frmBorinput::List[2] == Items{"brown", "", "gray"});
    frmBorinput::List = {};
    loaddeslists();
    CHECK(frmBorinput::List[2] == Items{"brown", "", "gray"});
}

TEST_CASE("51 items typed: the warning, and then 50 are saved")
{
    for (int i = 1; i <= 51; ++i)
        frmDesItems::Box[3] += "item " + std::to_string(i) + "\r\n";
    CHECK(frmDesItems::Command1());
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "There is a limit of 50 items per box.");
    CHECK(Messages[0].buttons == OkOnly);
    CHECK(Messages[0].icon == NoIcon);
    CHECK(frmBorinput::List[3].size() == 50);
    CHECK(frmBorinput::List[3].back() == "item 50");
    loaddeslists();
    CHECK(Messages.size() == 1);
    CHECK(frmBorinput::List[3].size() == 50);
}

TEST_CASE("more items than can be counted: failure 6 and the warning, and the first 50 are kept and saved")
{
    for (int i = 1; i <= 40000; ++i)
        frmDesItems::Box[2] += "item " + std::to_string(i) + "\r\n";
    frmDesItems::Box[3] = "brown";
    CHECK(frmDesItems::Command1());
    REQUIRE(Messages.size() == 2);
    CHECK(Messages[0].words == "Error 6 in Text2Array.  Please contact Norvane");
    CHECK(Messages[1].words == "There is a limit of 50 items per box.");
    REQUIRE(frmBorinput::List[2].size() == 50);
    CHECK(frmBorinput::List[2].front() == "item 1");
    CHECK(frmBorinput::List[2].back() == "item 50");
    CHECK(frmBorinput::List[3] == Items{"brown"});
    frmBorinput::List = {};
    loaddeslists();
    CHECK(Messages.size() == 2);
    CHECK(frmBorinput::List[2].size() == 50);
    CHECK(frmBorinput::List[3] == Items{"brown"});
}

TEST_CASE("an item file that cannot be written is told in the words of the item editor, which stays open")
{
    DeviceConfig.SystemFiles[DescItemFile] = "nowhere/office.txt";
    frmDesItems::Box[1] = "x";
    CHECK_FALSE(frmDesItems::Command1());
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 76 in DesItems Command 1.  Please contact Norvane");
    CHECK(frmBorinput::List[1].empty());
}

TEST_CASE("50 items typed are all saved, with no warning")
{
    for (int i = 1; i <= 50; ++i)
        frmDesItems::Box[4] += "item " + std::to_string(i) + "\r\n";
    CHECK(frmDesItems::Command1());
    CHECK(Messages.empty());
    CHECK(frmBorinput::List[4].size() == 50);
}
