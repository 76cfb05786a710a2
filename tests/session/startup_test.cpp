// startup_test.cpp -- the order of the start.
#include "session/startup.h"

#include "run/screenview.h"
#include "session/files.h"
#include "session/session.h"
#include "testing.h"

static std::vector<Text> shown;
static bool markedAtWelcome;

// Notes which windows come, in order.
static void Watch()
{
    shown.clear();
    Platform.ExecutableFolder = [] { return ScratchFolder(); };
    Platform.ShowAbout = [](bool blocking) { shown.push_back(blocking ? "title box, blocking" : "title box"); };
    Platform.ShowLogWindow = [] { shown.push_back("log window"); };
    Platform.ShowWelcome = [] {
        markedAtWelcome = FileExists("first.txt");
        shown.push_back("welcome");
    };
}

TEST_CASE("--help and --version are answered, and nothing else is")
{
    CHECK(ShellAnswer({}) == "");
    CHECK(ShellAnswer({"X.CRO"}) == "");
    CHECK(ShellAnswer({"-platform", "offscreen", "X.BOR"}) == "");
    for (const char* help : {"--help", "-h"}) {
        CHECK(ShellAnswer({help}).starts_with("Usage: stratavue [FILE]\n"));
        CHECK(ShellAnswer({"X.CRO", help}).find(".GCV") != std::string::npos);
    }
    const std::string version = ShellAnswer({"--version"});
    CHECK(version.starts_with("Stratavue "));
    CHECK(version.find_first_of("0123456789") == std::string("Stratavue ").size());
    CHECK(version.ends_with("\n"));
}

TEST_CASE("the title box comes first, then the log window, the title box again to be clicked, and the welcome")
{
    Watch();
    WorkingFolder = "elsewhere";
    Main();
    CHECK(shown == std::vector<Text>{"title box", "log window", "title box, blocking", "welcome"});
    CHECK(WorkingFolder == ScratchFolder());
    CHECK(HelpFile == "sv5.HLP");
}

TEST_CASE("a first start writes first.txt before the welcome")
{
    Watch();
    Main();
    CHECK(markedAtWelcome);
    CHECK(ReadScratch("first.txt") == "yes\r\n");
}

TEST_CASE("on a second start there is no welcome, whatever first.txt holds")
{
    Watch();
    WriteScratch("first.txt", "no");
    checkiffirst();
    CHECK(shown.empty());
    CHECK(ReadScratch("first.txt") == "no");
}

TEST_CASE("a first.txt that cannot be written is told as a failure of checkiffirst")
{
    Watch();
    WorkingFolder = Scratch("nowhere");
    checkiffirst();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 76 in checkiffirst.  Please contact Norvane");
    CHECK(shown.empty());
}

TEST_CASE("a failure between the windows of the start is told as one of Main")
{
    Watch();
    Platform.ShowLogWindow = [] { throw RunTimeError{13}; };
    Main();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 13 in Main.  Please contact Norvane");
}
