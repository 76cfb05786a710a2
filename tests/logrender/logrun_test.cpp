// logrun_test.cpp -- whole runs from log.mas to the drawn pages.
#include "boringtext.h"
#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "columnpage.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "run/viewcommands.h"

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

// ---- The same page however it is asked for

// A boring in pages of 20 feet. Its second unit reaches over the first break: the text prints on page 1, and on page 2
// no more. Every unit is thin, so that the boxes show who wants room.
static BoringText CarryingBoring()
{
    BoringText boring = StartRun({{"DEP", ".4"}, {"descriptions", "4"}, {"uscs", ".4"}, {"graphic", ".4"}},
                                 {{"17", "GW"}, {"22", "SP"}, {"23", "CL"}, {"39", "GW"}, {"60", "SP"}});
    boring.EndDepth = "60";
    boring.PageBreak = "20";
    boring.Des = {"@1", "one", "@2", "two", "and", "more", "@3", "three", "@4", "four", "@5", "five"};
    WriteBoring("B-1.BOR", boring);
    return boring;
}

static void DrawAll(std::initializer_list<const char*> files, const char* page = "")
{
    JobTable[1] = VLOG::vlogstart;
    jobCode = 1;
    singleFile = 0;
    DrawPrintLoad();
    frmDrawPrint::Record& dialog = frmDrawPrint::Dialog;
    dialog.Dir1 = ScratchFolder();
    dialog.FileCount = 0;
    for (const char* file : files) {
        dialog.File1[++dialog.FileCount] = file;
        dialog.Selected[dialog.FileCount] = true;
    }
    dialog.AllPages = *page == 0;
    dialog.Text1 = page;
    Listings.clear();
    DrawPrintOk();
}

// Without the first line, whose number counts on.
static std::string Objects(const std::string& listing)
{
    return listing.substr(listing.find('\n'));
}

static std::vector<std::string> Pages()
{
    std::vector<std::string> pages;
    for (const std::string& listing : Listings)
        pages.push_back(Objects(listing));
    return pages;
}

TEST_CASE("a page drawn alone is the page of the whole log")
{
    CarryingBoring();
    DrawAll({"B-1.BOR"});
    const std::vector<std::string> pages = Pages();
    REQUIRE(pages.size() == 3);
    CHECK(Times(pages[0], "\"text\": \"two\"") == 1);
    CHECK(Times(pages[1], "\"text\": \"two\"") == 0);
    for (const char* page : {"1", "2", "3"}) {
        CAPTURE(page);
        DrawAll({"B-1.BOR"}, page);
        REQUIRE(Listings.size() == 1);
        CHECK(Pages()[0] == pages[size_t(page[0] - '1')]);
        CHECK(RunPages.pageCount == 1);
    }
    CHECK(Messages.empty());
}

// No text stands for the unit at the first break, so that page 1 tells nothing, and page 2 tells of its own.
static BoringText UnmarkedBoring()
{
    BoringText boring = CarryingBoring();
    boring.Des = {"@1", "one", "@3", "three", "and", "more", "of", "it", "all", "@4", "four", "@5", "five"};
    return boring;
}

TEST_CASE("a page that is paged back or gone to is the page of the whole log, also behind another boring")
{
    CarryingBoring();
    WriteBoring("B-2.BOR", UnmarkedBoring());
    DrawAll({"B-1.BOR", "B-2.BOR"});
    const std::vector<std::string> pages = Pages();
    REQUIRE(pages.size() == 6);
    static std::vector<int16_t> shown;
    shown.clear();
    PlainShowPage = [] {
        static constexpr int way[] = {1, 2, 1, 5, 4, 2, 0, 4, 4, 3, 5, 1, 7};
        const size_t step = shown.size();
        shown.push_back(RunPages.pageIndex);
        RunPages.pageIndex = static_cast<int16_t>(way[step]);
    };
    DrawAll({"B-1.BOR", "B-2.BOR"});
    REQUIRE(Listings.size() == shown.size());
    REQUIRE(shown.size() == 13);
    for (size_t i = 0; i < shown.size(); ++i) {
        CAPTURE(i);
        CHECK(Pages()[i] == pages[size_t(shown[i])]);
    }
    CHECK(Messages.empty());
}

TEST_CASE("a boring has the same pages alone and behind any other of the run")
{
    CarryingBoring();
    BoringText ends = CarryingBoring(); // its last page ends with a text, and a unit cut at the page's end
    ends.EndDepth = "20";
    WriteBoring("A.BOR", ends);
    BoringText thin = CarryingBoring(); // the first text wants more room than its unit has
    thin.Lith[0] = {"1", "GW"};
    thin.Des.insert(thin.Des.begin() + 1, {"a", "b", "c", "d"});
    WriteBoring("THIN.BOR", thin);
    WriteBoring("NONE.BOR", UnmarkedBoring());
    std::vector<std::string> alone;
    for (const char* file : {"THIN.BOR", "NONE.BOR"}) {
        DrawAll({file});
        for (const std::string& page : Pages())
            alone.push_back(page);
    }
    REQUIRE(alone.size() == 6);
    DrawAll({"A.BOR", "THIN.BOR", "A.BOR", "NONE.BOR"});
    std::vector<std::string> pages = Pages();
    REQUIRE(pages.size() == 8);
    for (size_t i = 0; i < 3; ++i) {
        CHECK(pages[1 + i] == alone[i]);
        CHECK(pages[5 + i] == alone[3 + i]);
    }
}

TEST_CASE("a list made by hand hands on from page to page of a boring as it stands there, and not to another boring")
{
    CarryingBoring();
    std::filesystem::copy_file(Scratch("B-1.BOR"), Scratch("B-2.BOR"));
    WriteMas({{"B-2.BOR", "", "21", "41"}});
    VLOG::vlogstart();
    WriteMas({{"B-1.BOR", "", "0", "20"},
              {"B-1.BOR", "", "21", "41"},
              {"B-1.BOR", "", "0", "20"},
              {"B-2.BOR", "", "21", "41"}});
    VLOG::vlogstart();
    REQUIRE(Listings.size() == 5);
    CHECK(Times(Listings[0], "\"text\": \"two\"") == 1);
    CHECK(Times(Listings[1], "\"text\": \"two\"") == 1);
    CHECK(Times(Listings[2], "\"text\": \"two\"") == 0);
    CHECK(Times(Listings[4], "\"text\": \"two\"") == 1);
}

TEST_CASE("a page drawn alone tells its own messages, and none of the pages drawn unseen before it")
{
    BoringText boring = CarryingBoring();
    boring.RepParts.push_back({"colours", "2"});
    WriteBoring("B-1.BOR", boring);
    DrawAll({"B-1.BOR"}, "3");
    CHECK(OnlyMessage() == "Report Part Unknown: colours");
    CHECK(Listings.size() == 1);
    Messages.clear();
    boring.Version = "4.6";
    WriteBoring("B-1.BOR", boring);
    DrawAll({"B-1.BOR"}, "3");
    CHECK(OnlyMessage() ==
          "This boring file has the format of a previous version and will be skipped: " + Scratch("B-1.BOR"));
    CHECK(Listings.empty());
    CHECK(RunPages.pageIndex == 1);
}

TEST_CASE("a page drawn alone steps the progress window for itself only")
{
    static Text steps;
    steps = "";
    CarryingBoring();
    Platform.ShowProgress = [](bool shown) { steps += shown ? "show " : "hide "; };
    Platform.StepProgress = [](const Text& words, float) { steps += words == "% Complete: 8" ? "first " : ""; };
    DrawAll({"B-1.BOR"}, "3");
    CHECK(steps == "show first hide hide ");
}

TEST_CASE("a column that fails leaves nothing behind for the next boring of the run")
{
    BoringText boring = CarryingBoring();
    DrawAll({"B-1.BOR"});
    const std::vector<std::string> good = Pages();
    BoringText bad = boring;
    bad.Increment = "0"; // no depth scale
    WriteBoring("BAD.BOR", bad);
    LogGeometry = LogGeometryRecord();
    DrawAll({"BAD.BOR"});
    const std::vector<std::string> alone = Pages();
    REQUIRE(alone.size() == 3);
    BoringText halfPolygon = boring;
    halfPolygon.EndDepth = "20";
    halfPolygon.RepParts = {{"DEP", ".4"}, {"graphic", ".4"}};
    halfPolygon.Lith = {{"10", "GW"}, {"-1E30", "CL"}, {"60", "SP"}}; // its fill fails behind the first side
    WriteBoring("HALF.BOR", halfPolygon);
    DrawAll({"HALF.BOR", "B-1.BOR", "BAD.BOR", "B-1.BOR"});
    const std::vector<std::string> pages = Pages();
    REQUIRE(pages.size() == 10);
    for (size_t i = 0; i < 3; ++i) {
        CHECK(pages[1 + i] == good[i]);
        CHECK(pages[4 + i] == alone[i]);
        CHECK(pages[7 + i] == good[i]);
    }
    CHECK(Messages[3].words == "Error 6 in drawuscs.  Please contact Norvane");
}

TEST_CASE("a page exported in the midst of a preview changes no later page on the screen")
{
    BoringText boring = CarryingBoring();
    WriteLayout("HEAD.LAY", " 0 ", {3, 2, 5, 0, 0, 0, 0, 6, 7});
    WriteLayout("WIDE.LAY", " 2 ", {12, 0, 2});
    boring.LayoutFile = "HEAD.LAY";
    WriteBoring("A.BOR", boring);
    boring.LayoutFile = "NONE.LAY"; // drawn with the title blocks of the boring before
    WriteBoring("B.BOR", boring);
    boring.LayoutFile = "WIDE.LAY";
    WriteBoring("C.BOR", boring);
    DrawAll({"A.BOR", "B.BOR", "C.BOR"});
    const std::vector<std::string> pages = Pages();
    REQUIRE(pages.size() == 9);
    LogGeometry = LogGeometryRecord();
    PlainShowPage = [] {
        const std::vector<std::string> shown = Listings;
        ExportPdf();
        Listings = shown;
        NextPage();
    };
    DrawAll({"A.BOR", "B.BOR", "C.BOR"});
    REQUIRE(Listings.size() == 9);
    for (size_t i = 0; i < 9; ++i) {
        CAPTURE(i);
        CHECK(Pages()[i] == pages[i]);
    }
}
