// soiltable_test.cpp -- the soil analysis table: head, body and bars worked out by hand, and whole runs from log.mas.
#include "sections/soiltable.h"

#include "logrender/boringtext.h"
#include "logrender/columnpage.h"

#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "logrender/logdata.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "session/deviceconfig.h"
#include "session/files.h"
#include "session/session.h"

#include <algorithm>
#include <cstdio>
#include <sstream>

using VCROSS::SoilRun;

// ---- Files

// The definition of a table, with no notes.
struct SoilText {
    Text Boring = "B-1.BOR", Columns = "2", Label1 = "Limit 1", Label2 = "Limit 2", Graph = "N", Main = "Main",
         Title1 = "First", Title2 = "Second", Title3 = "Third";
    std::vector<Text> Notes;
};

static void WriteSoil(const Text& file, const SoilText& soil)
{
    std::string bytes = Lines({soil.Boring, soil.Columns, soil.Label1, soil.Label2, soil.Graph, soil.Main, soil.Title1,
                               soil.Title2, soil.Title3});
    for (size_t i = 0; i < 10; ++i)
        bytes += (i < soil.Notes.size() ? soil.Notes[i] : "") + "\r\n";
    WriteScratch(file, bytes);
}

// A parameter's set-up row by what the table takes of it.
static BoringText::Row Param(const Text& split1, const Text& split2 = "", const Text& split3 = "",
                             const Text& standard1 = "", const Text& standard2 = "", const Text& units = "")
{
    return {"name", "heading", "0,1,1", split1, split2, split3, standard1, standard2, units};
}

// A sample with the values of its first parameters.
static BoringText::Row Sample(const Text& start, const Text& end, const Text& lab, const std::vector<Text>& values)
{
    BoringText::Row row = {start, end, "cond", "blows", lab};
    row.insert(row.end(), values.begin(), values.end());
    return row;
}

// A boring to 40 by 5, two layers to 30, one sample, and set-ups for parameters 1 to 3.
static BoringText Boring()
{
    BoringText boring;
    boring.Increment = "5,2";
    boring.Unit = "feet,90";
    boring.RepParts = {{"DEPTH", ".4"}};
    boring.Lith = {{"10", "SM", "1", ""}, {"30", "F41,FILL", "1", ""}};
    boring.Des = {"a", "b"};
    boring.Params = {{"1"}};
    boring.Samples = {Sample("4", "8", "L-1", {"11", "22", "33"})};
    boring.SampleSetup = {Param("Water"), Param("100", "s2", "s3", "5.5", "6.5", "mg/l"), Param("50")};
    boring.Tail = {"c1", "c2", "c3", "c4", "c5", "3", " 0 "};
    return boring;
}

// ---- A page

// Runs the tables of the folder; what is left is the last page.
static void Run(std::initializer_list<Text> files)
{
    WriteHeadings();
    WriteRunList(files);
    VCROSS::vsoilstart();
}

static void DrawTable(const SoilText& soil, const BoringText& boring)
{
    SetPatterns({1, 27, 61});
    WriteSoil("A.SOI", soil);
    WriteBoring("B-1.BOR", boring);
    Run({"A.SOI"});
}

// Places of a drawing from another point: (x, y) of what Drawn tells.
static Drawing From(const Drawing& drawing, int x, int y)
{
    Drawing moved;
    for (const Text& object : drawing) {
        std::istringstream in(object + " "); // so that an empty text stays
        Text words;
        bool done = false; // behind the place of a text comes the text itself
        for (Text word; std::getline(in, word, ' ');) {
            int atX = 0, atY = 0, read = 0;
            if (!done && std::sscanf(word.c_str(), "%d,%d%n", &atX, &atY, &read) == 2 && size_t(read) == word.size()) {
                word = std::to_string(atX - x) + "," + std::to_string(atY - y);
                done = object.starts_with("text ");
            }
            words += (words.empty() ? "" : " ") + word;
        }
        moved.push_back(words);
    }
    return moved;
}

// From the border's upper left corner, 0.45 inch in from the sheet's, and from depth 0 at the body's left, 0.1 to the
// right and 1.1 down.
static Drawing FromBorder()
{
    return From(Drawn(), 270 - ColumnX, 270 - ColumnY - 60);
}
static Drawing FromBody()
{
    return From(Drawn(), 330 - ColumnX, 930 - ColumnY - 60);
}

static Drawing Part(const Drawing& drawing, const Text& first, size_t count)
{
    const auto at = std::find(drawing.begin(), drawing.end(), first);
    INFO(first);
    REQUIRE(at != drawing.end());
    REQUIRE(size_t(drawing.end() - at) >= count);
    return Drawing(at, at + long(count));
}

static bool Has(const Drawing& drawing, const Text& object)
{
    return std::find(drawing.begin(), drawing.end(), object) != drawing.end();
}

// ---- The head and the foot

TEST_CASE("the head of a soil table, line by line")
{
    DrawTable({}, Boring());
    CHECK(Messages.empty());
    CHECK(PageCanvas.mode == "L");
    const Drawing page = FromBorder();
    CHECK(Part(page, "rectangle 0,0 5730,4260", 22) ==
          Drawing{"rectangle 0,0 5730,4260", "line 0,300 5730,300", "text 60,150 10pt W69: B-1", "line 1170,0 1170,588",
                  // the column: its right line, three captions, two standards, the units
                  "line 1455,0 1455,588", "text 1312,84 7pt  100  centred", "text 1312,156 7pt  s2  centred",
                  "text 1312,228 7pt  s3  centred", "text 1312,348 7pt  5.5  centred",
                  "text 1312,444 7pt  6.5  centred", "text 1312,540 7pt  mg/l  centred",
                  // the rules, as long as the sample columns and the parameter
                  "line 570,300 570,588", "line 570,396 1455,396", "line 1455,396 1455,492", "line 1455,492 570,492",
                  "line 570,492 570,588", "line 570,588 1455,588", "line 870,588 870,492", "text 600,348 7pt Limit 1",
                  "text 600,444 7pt Limit 2", "text 720,540 7pt  W70  centred", "text 1020,540 7pt  W71  centred"});
}

TEST_CASE("the foot of a soil table: client, logo, titles, and the notes cut at their marks")
{
    SoilText soil;
    soil.Notes = {"one\xB6", "tw\xB6o", "", "four"};
    DrawTable(soil, Boring());
    const Drawing page = FromBorder();
    CHECK(Part(page, "line 0,3360 5730,3360", 2) == Drawing{"line 0,3360 5730,3360", "rectangle 0,3360 1440,3810"});
    const Drawing words = DrawnTexts();
    for (const char* client : {" c1 ", " c2 ", " c3 ", " c4 ", " c5 "})
        CHECK(Has(words, client));
    CHECK(Part(page, "line 1440,3660 2940,3660", 18) ==
          Drawing{"line 1440,3660 2940,3660", "text 2190,3510 10pt  Main  centred", "text 2190,3780 9pt  W67  centred",
                  "text 2190,3900 9pt  First  centred", "text 2190,3990 9pt  Second  centred",
                  "text 2190,4080 9pt  Third  centred", "line 2940,3360 2940,4260",
                  "text 3000,3420 8pt W16:", "text 3000,3507 8pt one", "text 3000,3585 8pt tw", "text 3000,3663 8pt ",
                  "text 3000,3741 8pt four", "text 3000,3819 8pt ", "text 3000,3897 8pt ", "text 3000,3975 8pt ",
                  "text 3000,4053 8pt ", "text 3000,4131 8pt ", "text 3000,4209 8pt "});
    CHECK(Has(page, "rectangle 0,3810 1440,4260"));
}

TEST_CASE("parameter numbers give a column each, in their order, and the rules reach as far")
{
    BoringText boring = Boring();
    boring.SampleSetup.resize(16);
    boring.SampleSetup[15] = Param("sixteen");
    SoilText soil;
    soil.Columns = "1, 3,16,,2.5, ,0";
    DrawTable(soil, boring);
    CHECK(Messages.empty());
    CHECK(SoilRun.columnParam == std::vector<int>{1, 3, 16, 2, 0});
    const Drawing page = FromBorder();
    CHECK(Has(page, "text 1312,84 7pt  Water  centred"));
    CHECK(Has(page, "text 1598,84 7pt  50  centred"));
    CHECK(Has(page, "text 1882,84 7pt  sixteen  centred"));
    CHECK(Has(page, "text 2168,84 7pt  100  centred"));
    CHECK(Has(page, "text 2452,84 7pt    centred"));
    CHECK(Has(page, "line 570,396 2595,396"));
}

TEST_CASE("a table without columns has its sample columns and 7 point words")
{
    SoilText soil;
    soil.Columns = "";
    DrawTable(soil, Boring());
    CHECK(Messages.empty());
    const Drawing page = FromBorder();
    CHECK(Has(page, "line 570,396 1170,396"));
    CHECK(Has(page, "text 720,540 7pt  W70  centred"));
}

TEST_CASE("a standard whose label is blank is hidden, the label is printed all the same")
{
    SoilText soil;
    soil.Label1 = " ";
    DrawTable(soil, Boring());
    Drawing words = DrawnTexts();
    CHECK_FALSE(Has(words, " 5.5 "));
    CHECK(Has(words, " 6.5 "));
    CHECK(Has(words, " "));
    soil.Label1 = "x";
    soil.Label2 = "";
    DrawTable(soil, Boring());
    words = DrawnTexts();
    CHECK(Has(words, " 5.5 "));
    CHECK_FALSE(Has(words, " 6.5 "));
}

TEST_CASE("a parameter number that no sample has is error 9 in both routines")
{
    for (const char* columns : {"17", "-1", "40000", "99999999999"}) {
        CAPTURE(columns);
        Messages.clear();
        SoilText soil;
        soil.Columns = columns;
        DrawTable(soil, Boring());
        REQUIRE(Messages.size() == 2);
        CHECK(Messages[0].words == "Error 9 in drawsoilframe.  Please contact Norvane");
        CHECK(Messages[1].words == "Error 9 in drawsoilmain.  Please contact Norvane");
    }
}

TEST_CASE("the font of the set-up is the page's, and the page moves with the margins")
{
    DeviceConfig.FontName = "Courier New";
    DeviceConfig.MarginX = 0.1f;
    DeviceConfig.MarginY = 0.2f;
    DrawTable({}, Boring());
    CHECK(PageList.Objects[2].FontName == "Courier New");
    CHECK(FromBorder()[0] == "rectangle 60,-120 5790,4140");
    CHECK(Has(FromBody(), "line 60,-120 84,-120"));
}

TEST_CASE("a set-up whose font is empty or blank draws the soil table in Arial")
{
    for (const char* name : {"", " ", "   "}) {
        CAPTURE(name);
        DeviceConfig.FontName = name;
        DrawTable({}, Boring());
        CHECK(Messages.empty());
        int texts = 0;
        for (const PageObject& object : PageList.Objects)
            if (object.Kind == ObjectKind::Text) {
                ++texts;
                CHECK(object.FontName == "Arial");
            }
        CHECK(texts > 10);
    }
}

// ---- The body

TEST_CASE("the turned words stand over scale, graphic and code")
{
    DrawTable({}, Boring());
    CHECK(Part(FromBody(), "text 0,-60 7pt W3 upward", 4) ==
          Drawing{"text 0,-60 7pt W3 upward", "text 90,-60 6pt (feet) upward", "text 285,-60 7pt W10 upward",
                  "text 435,-60 7pt W11 upward"});
}

TEST_CASE("the depth scale has a tick for each increment, 40 feet in 4.4 inches")
{
    DrawTable({}, Boring());
    const Drawing page = FromBody();
    CHECK(Part(page, "line 0,0 24,0", 5) ==
          Drawing{"line 0,0 24,0", "text 42,0 7pt 0", "line 0,0 0,330", "line 0,330 24,330", "text 42,330 7pt 5"});
    CHECK(Part(page, "line 0,2310 0,2640", 3) ==
          Drawing{"line 0,2310 0,2640", "line 0,2640 24,2640", "text 42,2640 7pt 40"});
}

TEST_CASE("an end depth of 0 gives the scale 0 to 40 by 5")
{
    BoringText boring = Boring();
    boring.EndDepth = "";
    boring.Increment = "7";
    DrawTable({}, boring);
    CHECK(Has(FromBody(), "text 42,330 7pt 5"));
    CHECK(Has(FromBody(), "text 42,2640 7pt 40"));
    CHECK_FALSE(Has(DrawnTexts(), "7"));
}

TEST_CASE("3 feet by .1 have 30 ticks, and their numbers do not drift")
{
    BoringText boring = Boring();
    boring.EndDepth = "3";
    boring.Increment = ".1";
    DrawTable({}, boring);
    const Drawing words = DrawnTexts();
    CHECK(Has(words, ".1"));
    CHECK(Has(words, ".7"));
    CHECK(Has(words, "2.9"));
    CHECK(Has(words, "3"));
    CHECK_FALSE(Has(words, "3.1"));
}

TEST_CASE("without an increment the scale has no ticks; below 0 the column is turned over")
{
    BoringText boring = Boring();
    boring.Increment = "0";
    DrawTable({}, boring);
    CHECK(Messages.empty());
    CHECK_FALSE(Has(DrawnTexts(), "40"));
    boring.Increment = "5";
    boring.EndDepth = "-40";
    boring.Lith = {{"10", "SM"}};
    DrawTable({}, boring);
    CHECK(Messages.empty());
    CHECK_FALSE(Has(DrawnTexts(), "5"));
    CHECK(Has(FromBody(), "rectangle 360,0 510,-660"));
}

TEST_CASE("each layer has its pattern under GRAPHIC, and its line and code under USCS")
{
    DrawTable({}, Boring());
    CHECK(Part(FromBody(), "rectangle 360,0 510,1980", 9) ==
          Drawing{"rectangle 360,0 510,1980", "line 360,660 510,660", "text 435,330 7pt  SM  centred",
                  "polygon 210,660 360,660 360,0 210,0 F27", "rectangle 210,660 360,0", "line 360,1980 510,1980",
                  "text 435,1320 7pt  FILL  centred", "polygon 210,1980 360,1980 360,660 210,660 F61",
                  "rectangle 210,1980 360,660"});
}

TEST_CASE("a boring without layers has an outline of no height, one with a blank code a blank pattern")
{
    BoringText boring = Boring();
    boring.Lith = {};
    DrawTable({}, boring);
    CHECK(Has(FromBody(), "rectangle 360,0 510,0"));
    boring.Lith = {{"10", " "}};
    DrawTable({}, boring);
    CHECK(Has(FromBody(), "text 435,330 7pt    centred"));
    CHECK(SoilRun.layerCode[1] == "F0,");
}

TEST_CASE("a layer code of one character is error 5, and the page ends there")
{
    BoringText boring = Boring();
    boring.Lith = {{"10", "X"}};
    DrawTable({}, boring);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 5 in drawsoilmain.  Please contact Norvane");
    CHECK(FromBody().back() == "text 435,330 7pt  X  centred");
}

TEST_CASE("a sample's number, laboratory number and values stand at its middle")
{
    BoringText boring = Boring();
    boring.Samples.push_back(Sample("10", "11", "", {"", " x ", ""}));
    SoilText soil;
    soil.Columns = "3,1,2";
    DrawTable(soil, boring);
    CHECK(Part(FromBody(), "text 660,396 7pt 1 centred", 10) ==
          Drawing{"text 660,396 7pt 1 centred", "text 960,396 7pt  L-1  centred", "text 1252,396 7pt  33  centred",
                  "text 1538,396 7pt  11  centred", "text 1822,396 7pt  22  centred", "text 660,693 7pt 2 centred",
                  "text 960,693 7pt    centred", "text 1252,693 7pt    centred", "text 1538,693 7pt    centred",
                  "text 1822,693 7pt   x   centred"});
}

TEST_CASE("a bar shows a value as a part of the first caption, and the value under it")
{
    SoilText soil;
    soil.Graph = " y";
    soil.Columns = "2,3";
    BoringText boring = Boring();
    boring.Samples = {Sample("4", "8", "L-1", {"", "25", "40"})};
    DrawTable(soil, boring);
    CHECK(Messages.empty());
    // 4 to 8 feet is 264 to 528; a whole bar is 255 wide.
    CHECK(Part(FromBody(), "polygon 1125,264 1189,264 1189,528 1125,528 F01", 8) ==
          Drawing{"polygon 1125,264 1189,264 1189,528 1125,528 F01", "rectangle 1125,264 1189,528",
                  "rectangle 1125,264 1380,528", "text 1252,558 7pt  25  centred",
                  "polygon 1410,264 1614,264 1614,528 1410,528 F01", "rectangle 1410,264 1614,528",
                  "rectangle 1410,264 1665,528", "text 1538,558 7pt  40  centred"});
}

TEST_CASE("a value above the first caption gives a full bar, and a blank value none")
{
    SoilText soil;
    soil.Graph = "Y";
    soil.Columns = "1,2";
    BoringText boring = Boring();
    boring.SampleSetup[0] = Param("0");
    boring.Samples = {Sample("4", "8", "", {" ", "101 mg", ""})};
    DrawTable(soil, boring);
    CHECK(Messages.empty());
    const Drawing page = FromBody();
    CHECK(Has(page, "rectangle 1410,264 1665,528"));
    CHECK(std::count(page.begin(), page.end(), "rectangle 1410,264 1665,528") == 2);
    CHECK(Has(page, "text 1538,558 7pt  101 mg  centred"));
    CHECK_FALSE(Has(page, "rectangle 1125,264 1380,528"));
}

TEST_CASE("a bar of hardly any width or height is outlines alone, a negative one points to the left")
{
    SoilText soil;
    soil.Graph = "Y";
    BoringText boring = Boring();
    boring.Samples = {Sample("4", "8", "", {"", "2", ""}), Sample("9", "9", "", {"", "50", ""}),
                      Sample("20", "24", "", {"", "-100", ""})};
    DrawTable(soil, boring);
    const Drawing page = FromBody();
    CHECK(Has(page, "rectangle 1125,264 1130,528"));
    CHECK(Has(page, "rectangle 1125,264 1380,528"));
    CHECK(Has(page, "rectangle 1125,594 1252,594"));
    CHECK(Has(page, "rectangle 1125,1320 870,1584"));
    CHECK(std::count_if(page.begin(), page.end(), [](const Text& object) { return object.ends_with(" F01"); }) == 1);
    CHECK(Has(page, "polygon 1125,1320 870,1320 870,1584 1125,1584 F01"));
}

TEST_CASE("a first caption of 0 is a division by zero: error 11, and nothing more of the page")
{
    SoilText soil;
    soil.Graph = "Y";
    BoringText boring = Boring();
    boring.SampleSetup[1] = Param("none");
    DrawTable(soil, boring);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 11 in drawsoilmain.  Please contact Norvane");
    CHECK(DrawnTexts().back() == " L-1 ");
    CHECK(Listings.size() == 1);
}

TEST_CASE("the date line has date, three blanks and the path of the definition")
{
    DrawTable({}, Boring());
    const PageObject& last = PageList.Objects.back();
    CHECK(last.String == Platform.ShortDate() + "   " + Scratch("A.SOI"));
    CHECK(FromBorder().back().starts_with("text 60,4290 6pt "));
    CHECK(last.TextAngle == 0);
    CHECK(last.HAlign == 0);
}

TEST_CASE("the progress counts layers and samples, of one more than there are")
{
    DrawTable({}, Boring());
    CHECK(progressTotal == 4);
    CHECK(progressValue == 3);
}

// ---- Reading

TEST_CASE("the boring's name gets its ending and the project folder; with a folder or a drive it is taken as it is")
{
    SoilText soil;
    soil.Boring = "  B-1 ";
    DrawTable(soil, Boring());
    CHECK(Messages.empty());
    CHECK(SoilRun.boringName == "B-1");
    soil.Boring = Scratch("B-1.BOR");
    ProjectPath = Scratch("elsewhere");
    DrawTable(soil, Boring());
    CHECK(Messages.empty());
    soil.Boring = "b.1";
    DrawTable(soil, Boring());
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Boring File Not Found: " + Scratch("elsewhere/b.1"));
}

TEST_CASE("a missing, an unnamed and an old boring are told, and the page is drawn with a scale of 0 to 40")
{
    const std::vector<std::pair<Text, Text>> borings = {
        {"NONE", "Boring File Not Found: " + Scratch("NONE.bor")},
        {" ", "Boring File Not Found: " + Scratch("")},
        {"OLD.BOR", "This boring file has the format of a previous version: " + Scratch("OLD.BOR")}};
    WriteScratch("OLD.BOR", "4.6\r\n");
    for (const auto& [name, words] : borings) {
        const Text asked = name;
        CAPTURE(asked);
        DrawTable({}, Boring());
        Messages.clear();
        SoilText soil;
        soil.Boring = name;
        DrawTable(soil, Boring());
        REQUIRE(Messages.size() == 1);
        CHECK(Messages[0].words == words);
        CHECK(Messages[0].icon == Exclamation);
        CHECK(Has(DrawnTexts(), "W69: "));
        CHECK(Has(FromBody(), "text 42,2640 7pt 40"));
        CHECK(Has(FromBody(), "rectangle 360,0 510,0"));
        CHECK_FALSE(Has(DrawnTexts(), " c1 "));
    }
}

TEST_CASE("a boring of form 5.0 has nine cells a row of parameters, and no client behind its end")
{
    BoringText boring = Boring();
    boring.Version = "5.0";
    boring.ParamCells = 9;
    boring.Tail = {"c1"};
    DrawTable({}, boring);
    CHECK(Messages.empty());
    CHECK(SoilRun.split1[2] == "100");
    CHECK(LogBoring.Client[1] == "c1");
    CHECK(LogBoring.Client[2] == "");
    CHECK(LogBoring.Style == 1);
}

TEST_CASE("sample 81 and layer 101 are error 9, and the page is drawn with what was read")
{
    BoringText boring = Boring();
    boring.Samples.assign(81, Sample("1", "2", "L", {}));
    DrawTable({}, boring);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 9 in getsoildata.  Please contact Norvane");
    CHECK(SoilRun.sampleCount == 80);
    CHECK(Has(DrawnTexts(), "80"));
    boring = Boring();
    boring.Lith.assign(101, {"1", "SM"});
    DrawTable({}, boring);
    REQUIRE(Messages.size() == 2);
    CHECK(Messages[1].words == "Error 9 in getsoildata.  Please contact Norvane");
    CHECK(SoilRun.layerCount == 100);
}

TEST_CASE("a definition that ends early is error 62, and its page has what was read")
{
    WriteBoring("B-1.BOR", Boring());
    SetPatterns({1});
    WriteScratch("A.SOI", Lines({"B-1.BOR", "2", "x", "y", "N", "Main"}));
    Run({"A.SOI"});
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 62 in getsoildata.  Please contact Norvane");
    CHECK(Has(DrawnTexts(), " Main "));
    CHECK(Has(DrawnTexts(), "W69: "));
    CHECK(Listings.size() == 1);
}

// ---- The run

TEST_CASE("nothing of a table is left in the next one")
{
    WriteBoring("B-1.BOR", Boring());
    SetPatterns({1});
    WriteSoil("A.SOI", {});
    WriteScratch("B.SOI", "");
    Run({"A.SOI", "B.SOI"});
    CHECK(Listings.size() == 2);
    CHECK(SoilRun.columnParam.empty());
    CHECK(SoilRun.sampleCount == 0);
    CHECK(SoilRun.split1[2] == "");
    CHECK(LogBoring.Client[1] == "");
    CHECK(SoilRun.mainTitle == "");
}

TEST_CASE("a table that is not there has no page, and the run goes on with the next one")
{
    for (const int printing : {0, 1}) {
        CAPTURE(printing);
        Messages.clear();
        Listings.clear();
        RunPages.printing = int16_t(printing);
        WriteBoring("B-1.BOR", Boring());
        SetPatterns({1});
        WriteSoil("B.SOI", {});
        Run({"A.SOI", "B.SOI"});
        REQUIRE(Messages.size() == 1);
        CHECK(Messages[0].words == "File Not Found: " + Scratch("A.SOI") +
                                       ".  Possible solution: Use 'Project: Select Project' to select your project "
                                       "before opening files.");
        CHECK(Listings.size() == 1);
        CHECK(RunPages.pageFile == Scratch("B.SOI"));
    }
}

TEST_CASE("every table of a print run is one page, also one whose boring is missing")
{
    SetPatterns({1});
    WriteSoil("A.SOI", {});
    WriteSoil("B.SOI", {});
    RunPages.printing = 1;
    Run({"A.SOI", "B.SOI"});
    CHECK(PlainPrinted == 2);
    CHECK(Messages.size() == 2);
}

TEST_CASE("the screen view steers a run of soil tables: before the first one stands an empty name")
{
    WriteBoring("B-1.BOR", Boring());
    SetPatterns({1});
    WriteSoil("A.SOI", {});
    WriteSoil("B.SOI", {});
    static int shown;
    shown = 0;
    PlainShowPage = [] {
        if (++shown == 1)
            RunPages.pageIndex = 0;
        else
            ExitRun();
    };
    Run({"A.SOI", "B.SOI"});
    CHECK(shown == 2);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words.starts_with("File Not Found: .  Possible solution: "));
    CHECK(RunPages.pageFile == Scratch("A.SOI"));
}

TEST_CASE("a list of tables that cannot be read is told, and draws nothing")
{
    VCROSS::vsoilstart();
    CHECK(Listings.empty());
    CHECK(!Messages.empty());
    CHECK(Messages[0].words.starts_with("Error 53 in getsvfiles"));
}

TEST_CASE("a boring with something in every list is read through to its client")
{
    BoringText boring = Boring();
    boring.WellInfo = {{"Driller", "X"}, {"Rig", "Y"}, {"Bit", "Z"}};
    boring.WellNotes = {"n1", "n2"};
    boring.OuterLayers = {{"0", "8", "Grout"}, {"8", "12", "Seal"}};
    boring.InnerLayers = {{"0", "8", "Pipe"}, {"8", "12", "Screen"}};
    boring.Remarks = {"r1", "r2"};
    boring.Cuttings = {{"1", "2", "3", "4"}};
    boring.Legend = {{"SM", "Sand"}};
    boring.Formations = {{"5", "Fill"}, {"9", "Till"}};
    WriteBoring("B-1.BOR", boring);
    WriteSoil("A.SOI", SoilText());
    RunPages.pageFile = Scratch("A.SOI");
    CHECK(VCROSS::getsoildata());
    CHECK(Messages.empty());
    CHECK(SoilRun.layerCount == 2);
    CHECK(SoilRun.sampleCount == 1);
    CHECK(SoilRun.split1[2] == "100");
    for (int line = 1; line <= 5; ++line)
        CHECK(LogBoring.Client[line] == "c" + std::to_string(line));
    CHECK(LogBoring.Style == 3);
}

TEST_CASE("the tenth note of a table is read as the first is, each up to its mark")
{
    WriteBoring("B-1.BOR", Boring());
    SoilText soil;
    soil.Notes = {"1\xB6", "2", "3", "4", "5", "6", "7", "8", "9", "10\xB6"};
    WriteSoil("A.SOI", soil);
    RunPages.pageFile = Scratch("A.SOI");
    CHECK(VCROSS::getsoildata());
    CHECK(SoilRun.notes[1] == "1");
    CHECK(SoilRun.notes[10] == "10");
}
