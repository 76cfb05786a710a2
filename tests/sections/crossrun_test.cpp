// crossrun_test.cpp -- whole runs from log.mas to the drawn pages of cross sections.
#include "crosspage.h"

#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "run/viewcommands.h"
#include "sections/crossrun.h"
#include "sections/sheetrun.h"
#include "session/platform.h"

using namespace VCROSS;

static const char* const Hint =
    ".  Possible solution: Use 'Project: Select Project' to select your project before opening files.";

// Two borings in a section of these words.
static SectionText TwoBorings(const Text& title, const Text& layers = "N")
{
    SectionText section;
    section.Borings = {{"100", "B-1.BOR", "3", "B"}, {"300", "B-2.BOR", "", "B"}};
    section.MainTitle = title;
    section.Layers = layers;
    section.Legend = {"GW;Gravel"};
    return section;
}

static void WriteBorings()
{
    WriteHeadings();
    SetPatterns({21, 31});
    WriteBoring("B-1.BOR", SectionBoring("B-1", {{"4", "GW"}, {"10", "CL"}}));
    WriteBoring("B-2.BOR", SectionBoring("B-2", {{"5", "GW"}, {"10", "CL"}}));
}

static bool Shows(size_t page, const Text& words)
{
    return page < Listings.size() && Listings[page].find("\"text\": \" " + words + " \"") != std::string::npos;
}

static int Times(const std::string& listing, const std::string& piece)
{
    int times = 0;
    for (size_t at = listing.find(piece); at != std::string::npos; at = listing.find(piece, at + 1))
        ++times;
    return times;
}

TEST_CASE("every file of the list is a page, on the sheet that it names")
{
    WriteBorings();
    SectionText wide = TwoBorings("Wide");
    wide.Tail = {"T", "", "", ""};
    WriteSection("A.CRO", TwoBorings("Letter"));
    WriteSection("W.CRO", wide);
    WriteRunList({"A.CRO", "W.CRO"});
    vcrossstart();
    REQUIRE(Listings.size() == 2);
    CHECK(Shows(0, "Letter"));
    CHECK(Listings[0].find("\"source\": \"A.CRO\", \"mode\": \"L\"") != std::string::npos);
    CHECK(Shows(1, "Wide"));
    CHECK(Listings[1].find("\"source\": \"W.CRO\", \"mode\": \"T\"") != std::string::npos);
    CHECK(Messages.empty());
}

TEST_CASE("the words of a section are those of the heading file for sections")
{
    WriteBorings();
    WriteSection("A.CRO", TwoBorings("Main"));
    WriteRunList({"A.CRO"});
    vcrossstart();
    CHECK(Shows(0, "W62 (Feet MSL)"));
    CHECK(Shows(0, "W63 (Feet)"));
    CHECK(Shows(0, "W64"));
    CHECK(Shows(0, "W65 A-A'"));
    CHECK(Shows(0, "W68"));
}

TEST_CASE("a list of one file leaves the run when the window is closed")
{
    WriteBorings();
    WriteSection("A.CRO", TwoBorings("Main"));
    WriteRunList({"A.CRO"});
    for (void (*close)() : {+[] { NextPage(); }, +[] { ExitRun(); }}) {
        PlainShowPage = close;
        Listings.clear();
        vcrossstart();
        CHECK(Listings.size() == 1);
        CHECK(RunPages.pageIndex == 2);
    }
}

TEST_CASE("layers by code are drawn over the columns and under the water marks")
{
    WriteBorings();
    WriteSection("A.CRO", TwoBorings("Main", "Y"));
    WriteRunList({"A.CRO"});
    vcrossstart();
    REQUIRE(Listings.size() == 1);
    const Text column = "\"picture\": \"F0.bmp\"", fill = "\"picture\": \"F21_sc.BMP\"", mark = "\"color\": \"0 0 0\"";
    // The legend's swatch comes first of all.
    CHECK(Times(Listings[0], fill) == 4);
    CHECK(Listings[0].find(fill) < Listings[0].find(column));
    CHECK(Listings[0].rfind(column) < Listings[0].find(fill, Listings[0].find(fill) + 1));
    CHECK(Listings[0].rfind(fill) < Listings[0].rfind(mark));
    CHECK(progressValue == progressTotal);
}

TEST_CASE("layers of a GIS file are drawn under the columns")
{
    WriteBorings();
    WriteScratch("SITE.GIS", Lines({"1", "GW", "", "2", "B-1", "0", "0", "90", "B-1.BOR", "5", "B-2", "0", "0", "90",
                                    "B-2.BOR", "6", ""}));
    SectionText section = TwoBorings("Main", "Y");
    section.Legend = {"CL;Clay"};
    section.Tail = {"L", "SITE", "", ""};
    WriteSection("A.CRO", section);
    WriteRunList({"A.CRO"});
    vcrossstart();
    REQUIRE(Listings.size() == 1);
    const Text column = "\"picture\": \"F0.bmp\"";
    const size_t fill = Listings[0].find("\"picture\": \"F21_sc.BMP\"");
    REQUIRE(fill != std::string::npos);
    CHECK(fill < Listings[0].find(column));
    CHECK(Messages.empty());
    CHECK(progressValue == progressTotal);
}

TEST_CASE("a GIS file that is missing is told in every kind of section, which has no layers then")
{
    WriteBorings();
    for (const char* layers : {"Y", "N", "I"}) {
        SectionText section = TwoBorings("Main", layers);
        section.Legend = {};
        section.Tail = {"L", "NONE", "", ""};
        WriteSection("A.CRO", section);
        WriteRunList({"A.CRO"});
        Messages.clear();
        vcrossstart();
        REQUIRE(Messages.size() == 1);
        CHECK(Messages[0].words == "GIS File Not Found: " + Scratch("NONE.gis"));
        if (*layers == 'Y')
            CHECK(Times(Listings.back(), "\"picture\": \"F21_sc.BMP\"") == 0);
    }
}

TEST_CASE("parameters are drawn when the file names one")
{
    WriteBorings();
    BoringText boring = SectionBoring("B-1");
    boring.Samples = {{"1", "3", "", "", "", "4711"}};
    WriteBoring("B-1.BOR", boring);
    SectionText section = TwoBorings("Main");
    section.Tail = {"L", "", "P1", ""};
    WriteSection("A.CRO", section);
    WriteRunList({"A.CRO"});
    vcrossstart();
    CHECK(Shows(0, "4711"));
    CHECK(progressValue == progressTotal);
    section.Tail[2] = "";
    WriteSection("A.CRO", section);
    vcrossstart();
    CHECK(!Shows(1, "4711"));
}

TEST_CASE("a missing definition file is told, has no page, and the run goes on")
{
    WriteBorings();
    WriteSection("A.CRO", TwoBorings("First"));
    WriteSection("C.CRO", TwoBorings("Last"));
    WriteRunList({"A.CRO", "B.CRO", "C.CRO"});
    vcrossstart();
    REQUIRE(Listings.size() == 2);
    CHECK(Shows(0, "First"));
    CHECK(Shows(1, "Last"));
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "File Not Found: " + Scratch("B.CRO") + Hint);
}

TEST_CASE("from a page in front of the first the message has no name, and the first page follows")
{
    WriteBorings();
    WriteSection("A.CRO", TwoBorings("First"));
    WriteRunList({"A.CRO"});
    PlainShowPage = [] {
        InputAnswers = {"1"};
        if (Listings.size() == 1)
            GoToPage();
        else
            NextPage();
    };
    vcrossstart();
    CHECK(Listings.size() == 2);
    REQUIRE(Messages.size() == 2); // the first is the question for the page
    CHECK(Messages[1].words == Text("File Not Found: ") + Hint);
}

TEST_CASE("on the screen a missing boring lets Next leave a file out")
{
    WriteBorings();
    SectionText broken = TwoBorings("Broken");
    broken.Borings[1][1] = "NONE";
    WriteSection("A.CRO", broken);
    WriteSection("B.CRO", TwoBorings("Second"));
    WriteSection("C.CRO", TwoBorings("Third"));
    WriteRunList({"A.CRO", "B.CRO", "C.CRO"});
    vcrossstart();
    REQUIRE(Listings.size() == 2);
    CHECK(Shows(0, "Broken"));
    CHECK(Shows(1, "Third"));
    // With parameters besides, it is told and counted twice.
    broken.Tail = {"L", "", "P1", ""};
    WriteSection("A.CRO", broken);
    Listings.clear();
    vcrossstart();
    CHECK(Listings.size() == 1);
}

TEST_CASE("in a print run, where nobody sits in front, and in an export each file is one page")
{
    WriteBorings();
    SectionText broken = TwoBorings("Broken");
    broken.Borings[1][1] = "NONE";
    broken.Tail = {"L", "", "P1", ""};
    WriteSection("A.CRO", broken);
    WriteSection("B.CRO", TwoBorings("Second"));
    WriteRunList({"A.CRO", "B.CRO"});
    RunPages.printing = 1;
    vcrossstart();
    CHECK(PlainPrinted == 2);
    CHECK(Listings.size() == 2);
    RunPages.printing = 0;
    Platform.Unattended = true;
    Listings.clear();
    vcrossstart();
    CHECK(Listings.size() == 2);
    Platform.Unattended = false;
    Listings.clear();
    PlainShowPage = [] {
        ExportPdf();
        ExitRun();
    };
    jobCode = 3;
    JobTable[3] = vcrossstart;
    vcrossstart();
    CHECK(Listings.size() == 3);
    CHECK(PlainPrinted == 4);
}

TEST_CASE("a file that fails to be read has its page of what was read and of the file before")
{
    WriteBorings();
    WriteSection("A.CRO", TwoBorings("Before"));
    WriteScratch("B.CRO", Lines({"0", "", "0"}));
    WriteRunList({"A.CRO", "B.CRO"});
    vcrossstart();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 62 in getcrossdata.  Please contact Norvane");
    REQUIRE(Listings.size() == 2);
    CHECK(Shows(1, "Before"));
    CHECK(!Shows(1, "B-1"));
}

TEST_CASE("a Cancel before the run stops no fill")
{
    WriteBorings();
    WriteSection("A.CRO", TwoBorings("Main", "Y"));
    WriteRunList({"A.CRO"});
    stopRequested = -1;
    vcrossstart();
    CHECK(stopRequested == 0);
    CHECK(progressValue == progressTotal);
}

TEST_CASE("a list that is not there is told and draws nothing")
{
    WriteHeadings();
    vcrossstart();
    CHECK(Listings.empty());
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 53 in getsvfiles.  Please contact Norvane");
}

TEST_CASE("water marks are the last on a page of layers, one for each boring with a water depth")
{
    WriteBorings();
    WriteSection("A.CRO", TwoBorings("Main", "Y"));
    WriteRunList({"A.CRO"});
    vcrossstart();
    REQUIRE(Listings.size() == 1);
    const size_t last = Listings[0].rfind("{\"kind\"");
    const Text mark = Listings[0].substr(last);
    CHECK(mark.starts_with("{\"kind\": \"polygon\""));
    CHECK(mark.find("\"color\": \"0 0 0\"") != Text::npos);
    CHECK(Times(Listings[0], mark) == 1);
}

TEST_CASE("a first file of a run that breaks off is drawn on a letter sheet, whatever the run before has drawn")
{
    WriteBorings();
    SectionText wide = TwoBorings("Wide");
    wide.Tail = {"T", "", "", ""};
    WriteSection("W.CRO", wide);
    WriteScratch("S.CRO", TwoBorings("Short").Bytes().substr(0, 60));
    WriteRunList({"S.CRO"});
    vcrossstart();
    REQUIRE(Listings.size() == 1);
    CHECK(Listings[0].find("\"mode\": \"L\"") != std::string::npos);
    // The outer frame of the sheet: 9.6 by 7.1 inches.
    CHECK(Times(Listings[0], "\"x1\": 270, \"y1\": 270, \"x2\": 6030, \"y2\": 4530") == 1);
    WriteRunList({"W.CRO"});
    vcrossstart();
    WriteRunList({"S.CRO"});
    vcrossstart();
    REQUIRE(Listings.size() == 3);
    CHECK(Listings[2].find("\"mode\": \"L\"") != std::string::npos);
    CHECK(Times(Listings[2], "\"x1\": 270, \"y1\": 270, \"x2\": 6030, \"y2\": 4530") == 1);
}

TEST_CASE("a section exported in the midst of a preview changes no later section of the run")
{
    WriteBorings();
    SectionText slanted = TwoBorings("Third");
    slanted.Borings[0] = {"100", "B-1.BOR", "3", "B", "", "", "x|90|30"};
    slanted.Tail = {"T", "", "P1", ".4,12"};
    WriteSection("A.CRO", TwoBorings("First"));
    WriteScratch("B.CRO", TwoBorings("Second").Bytes().substr(0, 60)); // the rest of it is of the section before
    WriteSection("C.CRO", slanted);
    JobTable[3] = vcrossstart;
    jobCode = 3;
    WriteRunList({"A.CRO", "B.CRO", "C.CRO"});
    vcrossstart();
    const std::vector<std::string> pages = Listings;
    REQUIRE(pages.size() == 3);
    ResetCrossRun();
    Listings.clear();
    PlainShowPage = [] {
        const std::vector<std::string> shown = Listings;
        ExportPdf();
        Listings = shown;
        NextPage();
    };
    vcrossstart();
    REQUIRE(Listings.size() == 3);
    for (size_t i = 0; i < 3; ++i)
        CHECK(Listings[i] == pages[i]);
}

TEST_CASE("a polygon that failed half-way is no part of the next page of a run")
{
    static std::vector<int> vertices;
    vertices.clear();
    WriteBorings();
    WriteSection("A.CRO", TwoBorings("A"));
    WriteRunList({"A.CRO", "A.CRO"});
    RunSheets(2, getcrossdata, [] {
        vertices.push_back(PageCanvas.polyCount / 2);
        canvasstart("L");
        setscalex(1);
        polyright(1);
    });
    CHECK(vertices == std::vector<int>{0, 0});
}
