// logrun_test.cpp -- whole runs from log.mas to the drawn pages.
#include "boringtext.h"
#include "canvas/batch.h"
#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "canvas/screenview.h"
#include "columnpage.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"

#include "session/platform.h"

// A boring of these report parts and contacts, with the files that a run of it needs.
static BoringText StartRun(BoringText::Rows parts, BoringText::Rows contacts = {{"60", "GW"}})
{
    WriteHeadings();
    WriteLayout("P.LAY", " 0 ", {});
    SetPatterns({20, 21, 26});
    BoringText boring;
    boring.RepParts = std::move(parts);
    boring.Lith = std::move(contacts);
    WriteBoring("B-1.BOR", boring);
    return boring;
}

static Text OnlyMessage()
{
    REQUIRE(Messages.size() == 1);
    return Messages[0].words;
}

// How often a piece of text stands in a page's listing.
static int Times(const std::string& listing, const std::string& piece)
{
    int times = 0;
    for (size_t at = listing.find(piece); at != std::string::npos; at = listing.find(piece, at + 1))
        ++times;
    return times;
}

TEST_CASE("a log whose first column is another has a depth scale of 0.4 inch at its left")
{
    StartRun({{"elevation scale", "-"}, {"lab number", "-"}});
    WriteMas({{"B-1.BOR", "", "0", "40"}});
    VLOG::vlogstart();
    REQUIRE(Listings.size() == 1);
    CHECK(Messages.empty());
    // The frame's corner is at 270, 270: the scale's top line is 240 long, the laboratory column starts at 0.8 inch.
    CHECK(Times(Listings[0], "\"text\": \" W3 \"") == 1);
    CHECK(Times(Listings[0], "\"x1\": 270, \"y1\": 1170, \"x2\": 270, \"y2\": 6030") == 1);
    CHECK(Times(Listings[0], "\"x1\": 510, \"y1\": 1890, \"x2\": 750, \"y2\": 1890") == 1);
    CHECK(Times(Listings[0], "\"x1\": 1110, \"y1\": 1890, \"x2\": 750, \"y2\": 1890") == 1);
}

TEST_CASE("a log whose first column is the depth scale has it as wide as told, and no other")
{
    StartRun({{"Depth scale", ".6"}, {"lab number", "-"}});
    WriteMas({{"B-1.BOR", "", "0", "40"}});
    VLOG::vlogstart();
    REQUIRE(Listings.size() == 1);
    CHECK(Times(Listings[0], "\"text\": \" W3 \"") == 1);
    CHECK(Times(Listings[0], "\"x1\": 630, \"y1\": 1890, \"x2\": 270, \"y2\": 1890") == 1);
    CHECK(Times(Listings[0], "\"x1\": 990, \"y1\": 1890, \"x2\": 630, \"y2\": 1890") == 1);
}

TEST_CASE("a unit is cut at the end of one page and whole on the next")
{
    StartRun({{"DEP", ".4"}, {"graphic", ".25"}}, {{"35", "GW"}, {"60", "SP"}});
    WriteMas({{"B-1.BOR", "(Page 2 of 3)", "20", "40"}, {"B-1.BOR", "(Page 3 of 3)", "40", "60"}});
    VLOG::vlogstart();
    REQUIRE(Listings.size() == 2);
    // The depth line is at 1950, 20 feet are 6.7 inches: the first page ends at 5970, and so does unit 2 on both.
    CHECK(Times(Listings[0], "\"points\": [[510,5970],[660,5970],[660,4965],[510,4965]]") == 1);
    CHECK(Times(Listings[1], "\"points\": [[510,5970],[660,5970],[660,1950],[510,1950]]") == 1);
    CHECK(Times(Listings[1], "\"kind\": \"polygon\"") == 1);
    CHECK(Messages.empty());
}

TEST_CASE("a refused file among three is told, and the other two are drawn")
{
    BoringText boring = StartRun({{"DEP", ".4"}});
    boring.Version = "4.6";
    WriteBoring("OLD.BOR", boring);
    WriteMas({{"B-1.BOR", "one", "0", "40"}, {"OLD.BOR", "two", "0", "40"}, {"B-1.BOR", "three", "40", "80"}});
    VLOG::vlogstart();
    CHECK(OnlyMessage() == "This boring file has the format of a previous version and will be skipped: OLD.BOR");
    REQUIRE(Listings.size() == 2);
    CHECK(Times(Listings[1], "\"text\": \"40\"") == 1);
    CHECK(RunPages.pageIndex == 3);
}

TEST_CASE("an unknown column is told, and the columns to its right close up")
{
    StartRun({{"DEP", ".4"}, {"colours", "2"}, {"lab number", "-"}});
    WriteMas({{"B-1.BOR", "", "0", "40"}});
    VLOG::vlogstart();
    CHECK(OnlyMessage() == "Report Part Unknown: colours");
    REQUIRE(Listings.size() == 1);
    CHECK(Times(Listings[0], "\"x1\": 870, \"y1\": 1890, \"x2\": 510, \"y2\": 1890") == 1);
}

TEST_CASE("a missing layout is told, and the page is drawn as portrait")
{
    BoringText boring = StartRun({{"DEP", ".4"}});
    boring.LayoutFile = "NONE.LAY";
    WriteBoring("B-1.BOR", boring);
    WriteMas({{"B-1.BOR", "", "0", "40"}});
    VLOG::vlogstart();
    CHECK(OnlyMessage() == "Layout File Not Found: " + Scratch("NONE.LAY"));
    REQUIRE(Listings.size() == 1);
    CHECK(Times(Listings[0], "\"mode\": \"P\"") == 1);
}

TEST_CASE("the columns of a boring without report parts are a depth scale alone")
{
    StartRun({});
    WriteMas({{"B-1.BOR", "", "0", "40"}});
    VLOG::vlogstart();
    REQUIRE(Listings.size() == 1);
    CHECK(Times(Listings[0], "\"text\": \" W3 \"") == 1);
    CHECK(Messages.empty());
}

TEST_CASE("thirty report parts are all drawn")
{
    StartRun(BoringText::Rows(30, {"blow count", "-"}));
    WriteMas({{"B-1.BOR", "", "0", "40"}});
    VLOG::vlogstart();
    REQUIRE(Listings.size() == 1);
    CHECK(Times(Listings[0], "\"text\": \"W7\"") == 30);
    CHECK(Messages.empty());
}

TEST_CASE("a list of no pages draws nothing")
{
    StartRun({});
    WriteMas({});
    VLOG::vlogstart();
    CHECK(Listings.empty());
    CHECK(Messages.empty());
}

TEST_CASE("where nobody sits in front a file that fails to be read ends the run with one message")
{
    StartRun({{"DEP", ".4"}});
    Platform.Unattended = true;
    WriteMas({{"B-1.BOR", "", "0", "40"}, {"NONE.BOR", "", "0", "40"}, {"B-1.BOR", "", "40", "80"}});
    VLOG::vlogstart();
    CHECK(OnlyMessage() == "Error 53 in getvlogdata.  Please contact Norvane");
    CHECK(Listings.size() == 1);
}

TEST_CASE("a file that fails to be read comes back with its message until Escape ends the run")
{
    static int rounds;
    rounds = 0;
    StartRun({});
    Platform.Breathe = [] {
        if (++rounds == 3)
            stopRequested = -1;
    };
    WriteMas({{"NONE.BOR", "", "0", "40"}});
    VLOG::vlogstart();
    CHECK(rounds == 3);
    CHECK(Messages.size() == 3);
    CHECK(RunPages.pageIndex == 0);
}

TEST_CASE("Escape on a page that was drawn ends nothing, not even a failure later on")
{
    static int rounds;
    rounds = 0;
    StartRun({{"DEP", ".4"}});
    PlainShowPage = [] {
        stopRequested = -1;
        NextPage();
    };
    Platform.Breathe = [] {
        if (++rounds == 2)
            stopRequested = -1;
    };
    WriteMas({{"B-1.BOR", "", "0", "40"}, {"NONE.BOR", "", "0", "40"}});
    VLOG::vlogstart();
    CHECK(Listings.size() == 1);
    CHECK(Messages.size() == 2);
}

TEST_CASE("a refused file does not end the run though Escape was pressed")
{
    BoringText boring = StartRun({{"DEP", ".4"}});
    boring.Version = "4.6";
    WriteBoring("OLD.BOR", boring);
    Platform.Breathe = [] { stopRequested = -1; };
    WriteMas({{"OLD.BOR", "", "0", "40"}, {"B-1.BOR", "", "0", "40"}});
    VLOG::vlogstart();
    CHECK(Listings.size() == 1);
}

TEST_CASE("a print run prints each page and shows none")
{
    StartRun({{"DEP", ".4"}});
    PlainShowPage = [] { FAIL("shown"); };
    RunPages.printing = 1;
    WriteMas({{"B-1.BOR", "", "0", "40"}, {"B-1.BOR", "", "40", "80"}});
    VLOG::vlogstart();
    CHECK(PlainPrinted == 2);
    CHECK(RunPages.pageIndex == 2);
}

TEST_CASE("the progress window is shown for each page and hidden behind it, and at the end of the run")
{
    static Text steps;
    steps = "";
    StartRun({{"DEP", ".4"}});
    Platform.ShowProgress = [](bool shown) { steps += shown ? "show " : "hide "; };
    PlainShowPage = [] {
        steps += "page ";
        NextPage();
    };
    WriteMas({{"B-1.BOR", "", "0", "40"}});
    VLOG::vlogstart();
    CHECK(steps == "show hide page hide ");
}

TEST_CASE("a column that fails is told, and the later columns are drawn from where it left the pen")
{
    BoringText boring = StartRun({{"elevation scale", "-"}, {"lab number", "-"}});
    boring.Increment = "0";
    boring.SurfElev = "100";
    WriteBoring("B-1.BOR", boring);
    WriteMas({{"B-1.BOR", "", "0", "40"}});
    VLOG::vlogstart();
    REQUIRE(Messages.size() == 2);
    CHECK(Messages[0].words == "Error 11 in drawscale.  Please contact Norvane");
    CHECK(Messages[1].words == "Error 11 in drawelev.  Please contact Norvane");
    REQUIRE(Listings.size() == 1);
    CHECK(Times(Listings[0], "\"text\": \" W9 \"") == 1);
}

TEST_CASE("a run starts with no depth span of the run before")
{
    StartRun({{"DEP", ".4"}});
    WriteMas({{"B-1.BOR", "", "0", "40"}});
    VLOG::vlogstart();
    CHECK(LogGeometry.BottomSpan == 40);
    BoringText boring = StartRun({{"DEP", ".4"}});
    boring.Increment = "0";
    WriteBoring("B-1.BOR", boring);
    VLOG::vlogstart();
    CHECK(LogGeometry.BottomSpan == 0);
    CHECK(LogGeometry.BottomDepth == 0);
}
