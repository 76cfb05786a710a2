// loading_test.cpp -- what the log window loads at the start, and in which order.
#include "boring/boringboxes.h"
#include "boring/projectlist.h"
#include "editors/borinput.h"
#include "places.h"
#include "session/deviceconfig.h"
#include "session/files.h"
#include "session/session.h"
#include "testing.h"

// The start of the log tool's window, in an installation that has its prompts.
static void LoadTool()
{
    std::filesystem::copy_file(SOURCE_DIR "/data/prompt.txt", Scratch("prompt.txt"),
                               std::filesystem::copy_options::overwrite_existing);
    frmBorinput::Load();
}

TEST_CASE("the start reads the project list and the layouts that the set-up names")
{
    std::filesystem::create_directories(Scratch("layouts"));
    WriteScratch("layouts/well.lay", "");
    WriteScratch("office.lst", Lines({" 1 ", "Harbour", "/srv"}));
    WriteScratch("device.cfg", Lines({ScratchFolder(), "0,0", "Arial", "0", "0", "0", "0", "0", "us.hdg", "office.lst",
                                      "desitem.txt", Scratch("layouts")}));
    LoadTool();
    CHECK(ProjectCount == 1);
    CHECK(ProjectList[1].ProjectId == "Harbour");
    CHECK(frmBorinput::LayFiles == std::vector<Text>{"well.lay"});
    CHECK(frmBorinput::Text1Font == ""); // Arial is the font that the boxes have by design
    CHECK(FileChanged == 0);
    CHECK(Messages.empty());
}

TEST_CASE("a start without a project list has no projects")
{
    ProjectCount = 5;
    LoadTool();
    CHECK(ProjectCount == 0);
}

TEST_CASE("another font than Arial goes to the boxes at the start; a blank one is Arial, and stays blank in device.cfg")
{
    WriteScratch("device.cfg", Lines({ScratchFolder(), "0,0", "Courier"}));
    LoadTool();
    CHECK(frmBorinput::MemoDes.fontName == "Courier");
    WriteScratch("device.cfg", Lines({ScratchFolder(), "0,0"}));
    LoadTool();
    CHECK(frmBorinput::MemoDes.fontName == "Arial");
    CHECK(DeviceConfig.FontName == "Arial");
    LineReader device("device.cfg");
    device.Skip(2);
    CHECK(device.Line() == "");
}

TEST_CASE("a project list that ends early fails the loading of the log window")
{
    WriteScratch("svproj.lst", Lines({" 2 ", "Harbour"}));
    CHECK(FailureOf(frmBorinput::Load) == 62);
}

TEST_CASE("New gives the boxes the font of the set-up again, unless it is Arial")
{
    LoadTool();
    DeviceConfig.FontName = "Courier";
    frmBorinput::mnuNew();
    CHECK(frmBorinput::SSLith.fontName == "Courier");
    DeviceConfig.FontName = "Arial";
    frmBorinput::mnuNew();
    CHECK(frmBorinput::SSLith.fontName == "Courier");
}

TEST_CASE("feet become meters only at Yes, and no step before can be taken back then")
{
    LoadTool();
    frmBorinput::SSLith.Cell(1, 1) = "10";
    frmBorinput::SSLith.done.emplace_back();
    Answers = {No};
    frmBorinput::mnuConvertFeetMeters();
    REQUIRE(Messages.size() == 2); // the first told of the new device.cfg
    CHECK(Messages[1].words == "This utility converts all depths from feet to meters.  Afterward, you may want to save "
                               "the file under a different name.  Do you wish to proceed?");
    CHECK(Messages[1].buttons == YesNo);
    CHECK(Messages[1].icon == Question);
    CHECK(frmBorinput::SSLith.Cell(1, 1) == "10");
    CHECK(frmBorinput::SSLith.done.size() == 1);
    Answers = {Yes};
    frmBorinput::mnuConvertFeetMeters();
    CHECK(frmBorinput::SSLith.Cell(1, 1) == "3.05");
    CHECK(frmBorinput::SSLith.done.empty());
}
