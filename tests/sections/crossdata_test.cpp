// crossdata_test.cpp -- the definition of a cross section as its drawing reads it from the .CRO file.
#include "crosspage.h"

#include "run/screenview.h"
#include "sections/crossrun.h"
#include "session/session.h"

using namespace VCROSS;

static SectionText Borings(std::vector<std::vector<Text>> borings)
{
    SectionText section;
    section.Borings = std::move(borings);
    return section;
}

// A file with these bytes in place of the count and the boring rows.
static bool ReadFront(const std::string& front, SectionText section = {})
{
    const std::string bytes = section.Bytes();
    WriteScratch("A.CRO", front + bytes.substr(bytes.find("\r\n") + 2));
    RunPages.pageFile = Scratch("A.CRO");
    return getcrossdata();
}

static Text OnlyMessage()
{
    REQUIRE(Messages.size() == 1);
    return Messages[0].words;
}

static void WithTail(const std::vector<Text>& tail, const Text& layers = "N")
{
    SectionText section;
    section.Layers = layers;
    section.Tail = tail;
    REQUIRE(ReadSection(section));
}

TEST_CASE("a section's definition is read line by line")
{
    SectionText section =
        Borings({{"100", "B-1", "5.5", "b", "B", ".1,-.05", "Inside"}, {"250.5", "C.BOR", "", "W", "T"}});
    section.HStart = "50";
    section.Legend = {"SM;Silty sand"};
    section.Tail = {"t", "SITE", "P5", ".3,12", "GT;Glacial till"};
    REQUIRE(ReadSection(section));
    const CrossRunRecord& run = CrossRun;
    CHECK(run.boringCount == 2);
    CHECK(run.distance[1] == 50);
    CHECK(run.distance[2] == 200.5f);
    CHECK(run.boringFile[1] == "B-1.bor");
    CHECK(run.boringFile[2] == "C.BOR");
    CHECK(run.waterDepth[1] == 5.5f);
    CHECK(run.labelBoringName[1] == 1);
    CHECK(run.labelBoringName[2] == 0);
    CHECK(run.labelAtBottom[1] == 1);
    CHECK(run.labelAtBottom[2] == 0);
    CHECK(run.labelOffsetX[1] == .1f);
    CHECK(run.labelOffsetY[1] == -.05f);
    CHECK(run.label2[1] == "Inside");
    CHECK(run.hStart == 50);
    CHECK(run.hEnd == 840);
    CHECK(run.hInc == 420);
    CHECK(run.hUnit == "Feet");
    CHECK(run.vStart == 100);
    CHECK(run.vEnd == 57);
    CHECK(run.vInc == -20);
    CHECK(run.vUnit == "Feet MSL");
    CHECK(run.mainTitle == "Main");
    CHECK(run.title1 == "First");
    CHECK(run.title2 == "Second");
    CHECK(run.leftCornerLabel == "A");
    CHECK(run.rightCornerLabel == "A'");
    CHECK(run.pageMode == "T");
    CHECK(run.pageWidth == 17);
    CHECK(run.pageHeight == 11);
    CHECK(run.useGIS == 1);
    CHECK(run.gisPath == Scratch("SITE"));
    CHECK(run.paramKind == 3);
    CHECK(run.paramNumber == 5);
    CHECK(run.columnWidth == .3f);
    CHECK(run.labelSize == 12);
    CHECK(run.legendRows[1] == "SM;Silty sand");
    CHECK(run.legendRows[8] == ";");
    CHECK(run.legendRows[9] == "GT;Glacial till");
    CHECK(Messages.empty());
}

TEST_CASE("a file whose first line is blank has fifteen rows with gaps, and counts to the last one used")
{
    std::string front = "\r\n100,B-1 ,5.5,b \r\n,,,\r\nno comma\r\n200,B.2\r\n300,B-3,2\r\n400,B-4,3, B\r\n";
    for (int row = 7; row <= 15; ++row)
        front += ",,,\r\n";
    CrossRun.boringFile[2] = "kept";
    CrossRun.distance[2] = 77;
    REQUIRE(ReadFront(front));
    CHECK(Messages.empty());
    CHECK(CrossRun.boringCount == 6);
    CHECK(CrossRun.distance[1] == 100);
    CHECK(CrossRun.boringFile[1] == "B-1.bor");
    CHECK(CrossRun.waterDepth[1] == 5.5f);
    CHECK(CrossRun.labelBoringName[1] == 1);
    CHECK(CrossRun.boringFile[2] == "kept");
    CHECK(CrossRun.distance[2] == 77);
    CHECK(CrossRun.boringFile[4] == "B.2");
    CHECK(CrossRun.waterDepth[4] == 0);
    CHECK(CrossRun.boringFile[5] == "B-3.bor");
    CHECK(CrossRun.waterDepth[5] == 2);
    CHECK(CrossRun.labelBoringName[6] == 0);
    CHECK(CrossRun.mainTitle == "Main");
}

TEST_CASE("a distance equal to the start lies on the frame's left edge")
{
    SectionText section = Borings({{"100.1", "B-1"}});
    section.HStart = "100.1";
    REQUIRE(ReadSection(section));
    CHECK(CrossRun.distance[1] == 0);
}

TEST_CASE("an unknown word for the layers acts as individual columns, and so do a blank one and one with a blank")
{
    for (const char* word : {"I", "x", "", "Y ", " n"}) {
        WithTail({"L"}, word);
        CHECK(CrossRun.drawLayers == 0);
        CHECK(CrossRun.individualColumns == 1);
    }
    WithTail({"L"}, "y");
    CHECK(CrossRun.drawLayers == 1);
    CHECK(CrossRun.individualColumns == 0);
    WithTail({"L"}, "n");
    CHECK(CrossRun.drawLayers == 0);
    CHECK(CrossRun.individualColumns == 0);
}

TEST_CASE("label cells are compared whole: a blank before the B is not B")
{
    REQUIRE(ReadSection(Borings({{"0", "B-1", "", " b", "B "}})));
    CHECK(CrossRun.labelBoringName[1] == 0);
    CHECK(CrossRun.labelAtBottom[1] == 0);
}

TEST_CASE("the parameter cell is told by its front, in any case, and its number by what stands behind it")
{
    struct {
        const char* cell;
        int kind, number;
    } const cells[] = {{"gpg3", 2, 3}, {"GP 3", 1, 3}, {"PG4", 4, 4}, {"p12", 3, 12}, {"P2.5", 3, 2},
                       {" P1", 0, 0},  {"G3", 0, 0},   {"GPG", 2, 0}, {"P-1", 3, -1}};
    for (const auto& [cell, kind, number] : cells) {
        WithTail({"L", "", cell, ""});
        CHECK(CrossRun.paramKind == kind);
        CHECK(CrossRun.paramNumber == number);
    }
}

TEST_CASE("the options are column width and label size, each with its usual value")
{
    struct {
        const char* line;
        float width, size;
    } const options[] = {{"", .1f, 10},     {".3", .3f, 10}, {".3,", .3f, 10}, {",12", .1f, 12},
                         {",5.9", .1f, 10}, {",6", .1f, 6},  {",20", .1f, 20}, {",21", .1f, 10},
                         {"-1,8", 0, 8},    {"x,8", 0, 8},   {"  ,8", .1f, 8}};
    for (const auto& [line, width, size] : options) {
        WithTail({"L", "", "", line});
        CHECK(CrossRun.columnWidth == width);
        CHECK(CrossRun.labelSize == size);
    }
}

TEST_CASE("individual columns are twice as wide, but for a width that is given")
{
    WithTail({"L", "", "", ",9"}, "I");
    CHECK(CrossRun.columnWidth == .2f);
    WithTail({"L", "", "", ".15,9"}, "I");
    CHECK(CrossRun.columnWidth == .15f);
    WithTail({"L", "", ""}, "I");
    CHECK(CrossRun.columnWidth == .2f);
    CHECK(CrossRun.labelSize == 10);
}

TEST_CASE("the second label holds azimuth and inclination behind bars")
{
    SectionText section = Borings({{"0", "B", "", "", "", "", "North|120|30"},
                                   {"0", "B", "", "", "", "", "|300|-95"},
                                   {"0", "B", "", "", "", "", "One|bar"},
                                   {"0", "B", "", "", "", "", "No bar"},
                                   {"0", "B", "", "", "", "", "|-90|45|60"}});
    CrossRun.azimuth.slot.fill(7);
    CrossRun.apparentAngle.slot.fill(7);
    CrossRun.depthFactor.slot.fill(7);
    REQUIRE(ReadSection(section));
    CHECK(CrossRun.label2[1] == "North");
    CHECK(CrossRun.azimuth[1] == 120);
    CHECK(CrossRun.inclination[1] == 30);
    CHECK(CrossRun.apparentAngle[1] == -10);
    CHECK(CrossRun.depthFactor[1] == doctest::Approx(0.8793852));
    CHECK(CrossRun.label2[2] == "");
    CHECK(CrossRun.inclination[2] == 90);
    CHECK(CrossRun.apparentAngle[2] == 30);
    CHECK(CrossRun.depthFactor[2] == doctest::Approx(0).epsilon(1e-6));
    CHECK(CrossRun.label2[3] == "One");
    CHECK(CrossRun.azimuth[3] == 0);
    CHECK(CrossRun.depthFactor[3] == 1);
    CHECK(CrossRun.label2[4] == "No bar");
    CHECK(CrossRun.azimuth[4] == 7);
    CHECK(CrossRun.apparentAngle[4] == 7);
    CHECK(CrossRun.depthFactor[4] == 7);
    CHECK(CrossRun.inclination[5] == 45);
    CHECK(CrossRun.apparentAngle[5] == -180);
}

TEST_CASE("what a file does not set stays as the file before has set it, but the flags, second labels and legend")
{
    REQUIRE(ReadSection(Borings({{"0", "B", "", "B", "B", ".1,.2", "Inside|90|10"}})));
    REQUIRE(ReadSection(Borings({{"0", "C", "", "", "", ".3", ""}})));
    CHECK(CrossRun.labelOffsetX[1] == .3f);
    CHECK(CrossRun.labelOffsetY[1] == .2f);
    CHECK(CrossRun.inclination[1] == 10);
    CHECK(CrossRun.labelBoringName[1] == 0);
    CHECK(CrossRun.label2[1] == "");
    REQUIRE(ReadSection(Borings({})));
    CHECK(CrossRun.boringFile[1] == "C.bor");
    CHECK(CrossRun.boringCount == 0);
}

TEST_CASE("a file that ends behind its legend takes the last row for the GIS file, the parameter and later rows")
{
    SectionText section;
    section.Legend = {"1", "2", "3", "4", "5", "6", "7", "PG;Peat"};
    section.Tail = {};
    CrossRun.pageMode = "T";
    REQUIRE(ReadSection(section));
    CHECK(CrossRun.pageMode == "L");
    CHECK(CrossRun.pageWidth == 11);
    CHECK(CrossRun.pageHeight == 8.5f);
    CHECK(CrossRun.useGIS == 1);
    CHECK(CrossRun.gisPath == Scratch("PG;Peat"));
    CHECK(CrossRun.paramKind == 4);
    CHECK(CrossRun.columnWidth == .1f);
    CHECK(CrossRun.legendRows[9] == "PG;Peat");
    CHECK(CrossRun.legendRows[30] == "PG;Peat");
    WithTail({"T", "", "P1", ",9", "SM;Sand"});
    CHECK(CrossRun.useGIS == 0);
    CHECK(CrossRun.legendRows[9] == "SM;Sand");
    CHECK(CrossRun.legendRows[30] == "SM;Sand");
}

TEST_CASE("a missing file is told with its whole path and the way out")
{
    RunPages.pageFile = Scratch("NONE.CRO");
    CHECK(!getcrossdata());
    CHECK(OnlyMessage() == "File Not Found: " + Scratch("NONE.CRO") +
                               ".  Possible solution: Use 'Project: Select Project' to select your project before "
                               "opening files.");
    CHECK(Messages[0].icon == Exclamation);
}

TEST_CASE("a file that ends early is told as error 62, and the rest is of the file before")
{
    SectionText before;
    before.VUnit = "Fathoms";
    before.MainTitle = "Before";
    REQUIRE(ReadSection(before));
    WriteScratch("A.CRO", Lines({"0", "", "10", "20", "5", "Yards"}));
    CHECK(getcrossdata());
    CHECK(OnlyMessage() == "Error 62 in getcrossdata.  Please contact Norvane");
    CHECK(CrossRun.hStart == 10);
    CHECK(CrossRun.hUnit == "Yards");
    CHECK(CrossRun.vUnit == "Fathoms");
    CHECK(CrossRun.mainTitle == "Before");
}

TEST_CASE("the fifty-first boring is error 9, and the count stays as it was read")
{
    std::vector<std::vector<Text>> rows(51, {"1", "B"});
    CHECK(ReadSection(Borings(rows)));
    CHECK(OnlyMessage() == "Error 9 in getcrossdata.  Please contact Norvane");
    CHECK(CrossRun.boringCount == 51);
    CHECK(CrossRun.boringFile[50] == "B.bor");
}

TEST_CASE("a boring count that no 16-bit number holds is error 6, a negative one is none")
{
    CHECK(ReadFront("40000\r\n"));
    CHECK(OnlyMessage() == "Error 6 in getcrossdata.  Please contact Norvane");
    CHECK(ReadFront("-3\r\n"));
    CHECK(CrossRun.boringCount == 0);
}

TEST_CASE("elevations of the scale are whole numbers, halves to the even one")
{
    SectionText section;
    section.VStart = "620.5";
    section.VEnd = "bad";
    section.VInc = "-7.5";
    REQUIRE(ReadSection(section));
    CHECK(CrossRun.vStart == 620);
    CHECK(CrossRun.vEnd == 0);
    CHECK(CrossRun.vInc == -8);
}

TEST_CASE("an ending is looked for behind the folder of a boring's name")
{
    REQUIRE(ReadSection(Borings({{"0", "a.b\\B-1"}, {"0", "a/B.2"}, {"0", ""}})));
    CHECK(CrossRun.boringFile[1] == "a.b\\B-1.bor");
    CHECK(CrossRun.boringFile[2] == "a/B.2");
    CHECK(CrossRun.boringFile[3] == ".bor");
}

TEST_CASE("at the start of the program borings are vertical and the page is a letter page")
{
    CHECK(CrossRun.depthFactor[1] == 1);
    CHECK(CrossRun.depthFactor[50] == 1);
    CHECK(CrossRun.pageMode == "L");
    CHECK(CrossRun.columnWidth == .1f);
    CHECK(CrossRun.labelSize == 10);
    CHECK(CrossRun.pageWidth == 11);
    CHECK(CrossRun.pageHeight == 8.5f);
}
