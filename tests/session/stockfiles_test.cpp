// stockfiles_test.cpp -- the working folder of a portable and of an installed program, and the copies of the stock
// files.
#include "session/stockfiles.h"

#include "session/files.h"
#include "session/session.h"
#include "session/startup.h"
#include "testing.h"

// An installation: programs in bin, stock files in share/stratavue, and a user with a data folder that is not there
// yet.
static void Install()
{
    Platform.ExecutableFolder = [] { return Scratch("usr/bin"); };
    Platform.DataFolder = [] { return Scratch("home/.local/share"); };
    std::filesystem::create_directories(Scratch("usr/bin"));
    std::filesystem::create_directories(Scratch("usr/share/stratavue/fills"));
    std::filesystem::create_directories(Scratch("usr/share/stratavue/samples"));
    WriteScratch("usr/share/stratavue/us.hdg", "words");
    WriteScratch("usr/share/stratavue/PORTRAIT.LAY", "layout");
    WriteScratch("usr/share/stratavue/fills/F0.BMP", "tile");
    WriteScratch("usr/share/stratavue/samples/A.BOR", "boring");
}

static const char Home[] = "home/.local/share/Stratavue/";

static std::string ReadHome(const Text& name)
{
    return ReadScratch(Home + name);
}

static void Start()
{
    LoadTitleBox();
    CHECK(Messages.empty());
}

TEST_CASE("a folder with programs and stock files is portable: its own working folder, and nothing is copied")
{
    Install();
    WriteScratch("usr/bin/us.hdg", "words");
    Start();
    CHECK(WorkingFolder == Scratch("usr/bin"));
    CHECK(StockFolder() == Scratch("usr/bin"));
    CHECK_FALSE(Installed());
    CHECK_FALSE(std::filesystem::exists(Scratch("home")));
    CHECK_FALSE(FileExists("stock.lst"));
}

TEST_CASE("a program alone in a folder that can be written is portable too")
{
    Platform.ExecutableFolder = [] { return ScratchFolder(); };
    Start();
    CHECK(WorkingFolder == ScratchFolder());
    CHECK(StockFolder() == ScratchFolder());
    CHECK(FilesIn(ScratchFolder(), "").empty());
}

TEST_CASE("the first start of an installed program copies the stock files to Stratavue in the user's data folder")
{
    Install();
    Start();
    CHECK(WorkingFolder == Scratch("home/.local/share/Stratavue"));
    CHECK(RunFolder == WorkingFolder);
    CHECK(StockFolder() == Scratch("usr/share/stratavue"));
    CHECK(ReadHome("us.hdg") == "words");
    CHECK(ReadHome("PORTRAIT.LAY") == "layout");
    CHECK(ReadHome("fills/F0.BMP") == "tile");
    CHECK(ReadHome("samples/A.BOR") == "boring");
    CHECK(ReadHome("stock.lst") == Lines({"PORTRAIT.LAY", "fills/F0.BMP", "samples/A.BOR", "us.hdg"}));
    CHECK(FilesIn(Scratch("usr/bin"), "").empty());
}

TEST_CASE(
    "a program in a folder that cannot be written works in the user's folder, though its stock files are beside it")
{
    Platform.ExecutableFolder = [] { return Scratch("medium/nowhere"); };
    Platform.DataFolder = [] { return Scratch("home"); };
    CHECK(Installed());
    CHECK(StockFolder() == Scratch("medium/nowhere"));
    CHECK(HomeFolder() == Scratch("home/Stratavue"));
}

TEST_CASE("a later version brings its new stock files, and overwrites none of the user's")
{
    Install();
    Start();
    WriteScratch(Home + Text("us.hdg"), "the user's words");
    WriteScratch("usr/share/stratavue/us.hdg", "words of the later version");
    WriteScratch("usr/share/stratavue/TABLOID.LAY", "new layout");
    Start();
    CHECK(ReadHome("us.hdg") == "the user's words");
    CHECK(ReadHome("TABLOID.LAY") == "new layout");
}

TEST_CASE("a stock file that the user has deleted does not come back")
{
    Install();
    Start();
    std::filesystem::remove(Scratch(Home + Text("PORTRAIT.LAY")));
    std::filesystem::remove(Scratch(Home + Text("samples/A.BOR")));
    Start();
    CHECK_FALSE(FileExists("PORTRAIT.LAY"));
    CHECK_FALSE(FileExists("samples/A.BOR"));
}

TEST_CASE("a file of the user's with a stock file's name in other letters counts as that file")
{
    Install();
    std::filesystem::create_directories(Scratch(Home));
    WriteScratch(Home + Text("portrait.lay"), "mine");
    Start();
    CHECK(ReadHome("portrait.lay") == "mine");
    CHECK_FALSE(std::filesystem::exists(Scratch(Home + Text("PORTRAIT.LAY"))));
}

TEST_CASE("a first start that was cut short is made good at the next")
{
    Install();
    std::filesystem::create_directories(Scratch(Home));
    WriteScratch(Home + Text("us.hdg"), "words");
    Start();
    CHECK(ReadHome("PORTRAIT.LAY") == "layout");
    CHECK(ReadHome("fills/F0.BMP") == "tile");
}

TEST_CASE("a start that has nothing to copy writes nothing")
{
    Install();
    Start();
    std::filesystem::remove(Scratch("usr/share/stratavue/PORTRAIT.LAY"));
    const auto before = std::filesystem::last_write_time(Scratch(Home + Text("stock.lst")));
    Start();
    CHECK(std::filesystem::last_write_time(Scratch(Home + Text("stock.lst"))) == before);
    CHECK(ReadHome("PORTRAIT.LAY") == "layout");
}

TEST_CASE("stock files that cannot be copied are told as a failure, and the start goes on")
{
    Install();
    WriteScratch("home", "a file in the place of the folder");
    LoadTitleBox();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 76 in CopyStockFiles.  Please contact Norvane");
    CHECK(WorkingFolder == Scratch("home/.local/share/Stratavue"));
}
