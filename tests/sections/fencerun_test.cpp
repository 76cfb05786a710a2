// fencerun_test.cpp -- whole fence runs from log.mas to the drawn pages.
#include "fencepage.h"

#include "canvas/metaugl.h"
#include "gis/gisfile.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "sections/fencerun.h"
#include "session/files.h"
#include "session/platform.h"

#include <algorithm>

using namespace VCROSS;

// Three borings of two layers each with two panels between them, and the stock files of a run.
static FenceText StartRun()
{
    WriteHeadings();
    SetPatterns({0, 1, 21, 31});
    for (const char* name : {"A", "B", "C"})
        WriteBoring(Text(name) + ".BOR", FenceBoring(name, {{"10", "CL"}, {"20", "GW"}}));
    FenceText fence;
    fence.Borings = {"200,100,A,12,,", "400,100,B,12,,", "600,100,C,,,"};
    fence.Panels = {"1,2", "2,3"};
    fence.Layers = "Y";
    fence.Legend = {"CL;Clay"};
    return fence;
}

static void Run(std::initializer_list<Text> fences, int16_t printing = 1)
{
    WriteRunList(fences);
    RunPages.printing = printing;
    vfencestart();
}

static int Times(const std::string& listing, const std::string& piece)
{
    int times = 0;
    for (size_t at = listing.find(piece); at != std::string::npos; at = listing.find(piece, at + 1))
        ++times;
    return times;
}

static size_t LineOf(const std::string& listing, const std::string& piece)
{
    const size_t at = listing.find(piece);
    REQUIRE(at != std::string::npos);
    return size_t(std::count(listing.begin(), listing.begin() + long(at), '\n'));
}

// The lines behind the page's own, which names its number and its file.
static std::string Objects(const std::string& listing)
{
    return listing.substr(listing.find('\n'));
}

static bool Shows(const std::string& listing, const Text& fence)
{
    return Times(listing, fence + "\"") > 0;
}

static Text Told()
{
    Text words;
    for (const PlainMessage& message : Messages)
        words += message.words + "\n";
    return words;
}

TEST_CASE("a fence is drawn foot, frame, stakes, panels and marks in this order")
{
    WriteFence("A.FEN", StartRun());
    Run({"A.FEN"});
    CHECK(Told() == "");
    REQUIRE(Listings.size() == 1);
    const std::string& page = Listings[0];
    CHECK(LineOf(page, "\" Main \"") < LineOf(page, "\" Third \""));
    CHECK(LineOf(page, "\" Third \"") < LineOf(page, "\" W63 (Feet) \""));
    CHECK(LineOf(page, "\" W63 (Feet) \"") < LineOf(page, "\" W62 (Feet MSL) \""));
    CHECK(LineOf(page, "\" W62 (Feet MSL) \"") < LineOf(page, "\" MW-C \""));
    // Behind the last label the two panels of two layers, each hiding what is behind it; then the marks once more.
    const std::string panels = page.substr(page.find("\" MW-C \""));
    CHECK(Times(panels, "F31_sc.BMP") == 2);
    CHECK(Times(panels, "F21_sc.BMP") == 2);
    const std::string marks = panels.substr(panels.rfind("_sc.BMP"));
    CHECK(Times(marks, "\"kind\": \"polygon\"") == 2);
}

TEST_CASE("every fence of a run is a page of its own, and the same whatever was drawn before it")
{
    const FenceText fence = StartRun();
    WriteFence("A.FEN", fence);
    FenceText other;
    other.Borings = {"", "150,60,C,5,B,B", "250,60,A,5,B,B", "350,60,B,5,B,B"};
    other.Panels = {"3,2", "", "2,4", "4,3"};
    other.Direction = "E,270";
    other.Legend = {"SM;Sand", "GW;Gravel", "CL;Clay"};
    other.Tail = {"T", ""};
    WriteFence("B.FEN", other);
    Run({"A.FEN", "B.FEN", "A.FEN"});
    CHECK(Told() == "");
    REQUIRE(Listings.size() == 3);
    CHECK(Objects(Listings[0]) == Objects(Listings[2]));
    CHECK(Objects(Listings[0]) != Objects(Listings[1]));
    CHECK(PlainPrinted == 3);
}

TEST_CASE("of two panels that cross, the later one stands over the earlier one")
{
    FenceText fence = StartRun();
    fence.Borings.push_back("400,300,A,,,");
    fence.Panels = {"1,3", "2,4", "3,1"};
    WriteBoring("A.BOR", FenceBoring("A", {{"10", "CL"}}));
    WriteBoring("B.BOR", FenceBoring("B", {{"10", "GW"}}));
    WriteBoring("C.BOR", FenceBoring("C", {{"10", "CL"}}));
    WriteFence("A.FEN", fence);
    Run({"A.FEN"});
    REQUIRE(Listings.size() == 1);
    const std::string panels = Listings[0].substr(Listings[0].rfind("\" MW-A \""));
    const size_t first = panels.find("F31_sc.BMP"), crossing = panels.find("F21_sc.BMP");
    CHECK(first < crossing);
    CHECK(panels.find("F31_sc.BMP", crossing) != std::string::npos);
}

TEST_CASE("without Y the panels are left out, with a GIS file too")
{
    FenceText fence = StartRun();
    fence.Layers = "N";
    fence.Legend = {};
    WriteFence("A.FEN", fence);
    Run({"A.FEN"});
    REQUIRE(Listings.size() == 1);
    CHECK(Times(Listings[0], "_sc.BMP") == 0);
}

static void WriteGis(const Text& name)
{
    WriteScratch(name, Lines({" 2 ", "CL", "",  "GW",  "Red", " 2 ", "A",     "250", "120", "590", "a",
                              "5",   "12", "C", "550", "150", "595", "c.bor", "4",   "14",  ""}));
}

TEST_CASE("a GIS file gives the places of the stakes and the layers of the panels")
{
    FenceText fence = StartRun();
    fence.Panels = {"1,3"};
    fence.Legend = {};
    fence.Tail = {"L", "SITE"};
    WriteFence("A.FEN", fence);
    WriteGis("SITE.GIS");
    Run({"A.FEN"});
    CHECK(Told() == "");
    REQUIRE(Listings.size() == 1);
    CHECK(FenceRun.siteX[1] == 150);
    CHECK(FenceRun.siteX[2] == 300); // in no row
    CHECK(FenceRun.siteX[3] == 450);
    CHECK(CrossRun.refElevation[3] == 597);
    const std::string panels = Listings[0].substr(Listings[0].find("\" MW-C \""));
    CHECK(Times(panels, "F31_sc.BMP") == 1);
    CHECK(Times(panels, "F21_sc.BMP") == 0); // a colour
}

TEST_CASE("a GIS file that is not there is told, and the fence is drawn with the places of its own file")
{
    FenceText fence = StartRun();
    fence.Legend = {};
    fence.Tail = {"L", "SITE"};
    WriteFence("A.FEN", fence);
    fence.Tail = {"L", "GONE"};
    WriteFence("B.FEN", fence);
    WriteGis("SITE.GIS");
    Run({"A.FEN", "B.FEN"});
    CHECK(Told() == "GIS File Not Found: " + Scratch("GONE.gis") + "\n");
    REQUIRE(Listings.size() == 2);
    CHECK(FenceRun.siteX[1] == 100);
    CHECK(CrossRun.refElevation[3] == 600);
    CHECK(Times(Listings[1], "F31_sc.BMP") == 0); // no rows: no layers
}

TEST_CASE("a fence that is not there is told and has no page, and the run goes on")
{
    WriteFence("A.FEN", StartRun());
    const Text gone =
        "File Not Found: " + Scratch("GONE.FEN") +
        ".  Possible solution: Use 'Project: Select Project' to select your project before opening files.\n";
    for (const int16_t printing : {int16_t(0), int16_t(1)}) {
        Messages.clear();
        Listings.clear();
        Run({"GONE.FEN", "A.FEN", "GONE.FEN"}, printing);
        CHECK(Told() == gone + gone);
        REQUIRE(Listings.size() == 1);
        CHECK(Shows(Listings[0], "A.FEN"));
    }
}

TEST_CASE("a fence that ends early is told, and drawn with what was read")
{
    const std::string bytes = StartRun().Bytes();
    WriteScratch("A.FEN", bytes.substr(0, bytes.find("Third")));
    Run({"A.FEN"});
    CHECK(Told() == "Error 62 in getfencedata.  Please contact Norvane\n");
    REQUIRE(Listings.size() == 1);
    CHECK(Times(Listings[0], "\" Second \"") == 1);
    CHECK(Times(Listings[0], "\" MW-C \"") == 1);
}

TEST_CASE("in a print run every fence is a page, also behind one whose boring is not there")
{
    FenceText fence = StartRun();
    WriteFence("A.FEN", fence);
    fence.Borings[1] = "400,100,GONE,12,,";
    WriteFence("B.FEN", fence);
    Run({"B.FEN", "A.FEN", "B.FEN", "A.FEN"});
    CHECK(Told() ==
          "Boring File Not Found: " + Scratch("GONE.bor") + "\nBoring File Not Found: " + Scratch("GONE.bor") + "\n");
    REQUIRE(Listings.size() == 4);
    CHECK(Shows(Listings[0], "B.FEN"));
    CHECK(Shows(Listings[1], "A.FEN"));
}

TEST_CASE("on the screen a fence with a boring that is not there is shown, and Next steps past the one behind it")
{
    FenceText fence = StartRun();
    WriteFence("A.FEN", fence);
    WriteFence("C.FEN", fence);
    fence.Borings[0] = "400,100,GONE,12,,";
    WriteFence("B.FEN", fence);
    Run({"B.FEN", "A.FEN", "C.FEN"}, 0);
    REQUIRE(Listings.size() == 2);
    CHECK(Shows(Listings[0], "B.FEN"));
    CHECK(Shows(Listings[1], "C.FEN"));
}

TEST_CASE("the screen view steers the run: Exit ends it, and page 0 is told and followed by page 1")
{
    const FenceText fence = StartRun();
    WriteFence("A.FEN", fence);
    WriteFence("B.FEN", fence);
    PlainShowPage = [] { ExitRun(); };
    Run({"A.FEN", "B.FEN"}, 0);
    CHECK(Listings.size() == 1);
    PlainShowPage = [] {
        if (Listings.size() == 3)
            RunPages.pageIndex = 0; // what GoTo 1 answers
        else
            NextPage();
    };
    Run({"A.FEN", "B.FEN"}, 0);
    CHECK(Told().starts_with("File Not Found: .  Possible solution: "));
    REQUIRE(Listings.size() == 5);
    CHECK(Shows(Listings[2], "B.FEN"));
    CHECK(Shows(Listings[3], "A.FEN"));
    CHECK(Shows(Listings[4], "B.FEN"));
}

TEST_CASE("a Cancel from before the run does not stop its panels, an Escape in it ends those of its page")
{
    FenceText fence = StartRun();
    fence.Legend = {};
    WriteFence("A.FEN", fence);
    stopRequested = -1;
    Run({"A.FEN"});
    Platform.Breathe = [] { stopRequested = -1; };
    Run({"A.FEN"});
    CHECK(Told() == "");
    REQUIRE(Listings.size() == 2);
    CHECK(Times(Listings[0], "_sc.BMP\"") > Times(Listings[1], "_sc.BMP\""));
    CHECK(Times(Listings[1], "_sc.BMP\"") > 0);
    CHECK(stopRequested == 0);
}

TEST_CASE("a list that cannot be read draws no fence")
{
    StartRun();
    RunPages.pageCount = 3;
    vfencestart();
    CHECK(Told() == "Error 53 in getsvfiles.  Please contact Norvane\n");
    CHECK(Listings.empty());
}

TEST_CASE("jobs 5 and 6 draw and print fences")
{
    WriteFence("A.FEN", StartRun());
    JobTable[5] = JobTable[6] = vfencestart;
    singleFile = 1;
    singleFileName = Scratch("A.FEN");
    for (const int16_t job : {int16_t(5), int16_t(6)}) {
        jobCode = job;
        DrawPrintLoad();
        DrawPrintOk();
    }
    CHECK(Told() == "");
    CHECK(Listings.size() == 2);
    CHECK(PlainPrinted == 1);
    CHECK(PlainRunsEnded == 1);
}
