// gischeck_test.cpp -- what a reviewer of the GIS table would flag.
#include "gis/gischeck.h"

#include "gis/gisfile.h"
#include "sections/checked.h"
#include "session/session.h"
#include "testing.h"

using namespace frmGIS;

// A boring as it should be.
static void Boring(int row, const Text& name, const char* x)
{
    WriteScratch(name + ".BOR", "");
    SSGISInfo.Cell(row, GisBoringName) = SSGISInfo.Cell(row, GisFileName) = name;
    SSGISInfo.Cell(row, GisX) = x;
    SSGISInfo.Cell(row, GisY) = "-2.5";
    SSGISInfo.Cell(row, GisElevation) = "100";
}

// A table of the layers A to D, all of them colored, with one boring.
static void Table(std::initializer_list<const char*> cells)
{
    ProjectPath = ScratchFolder();
    ClearGISForm();
    const char* const names[] = {"A", "B", "C", "D"};
    for (int k = 1; k <= 4; ++k)
        SSGISLayers.Cell(k, 2) = "Tan1";
    for (int k = 1; k <= 4; ++k)
        SSGISLayers.Cell(k, 1) = names[k - 1];
    Command2();
    Boring(1, "B-1", "10");
    int column = GisColumns;
    for (const char* cell : cells)
        SSGISInfo.Cell(1, ++column) = cell;
}

TEST_CASE("columns that are not those of the layer list, by which a save writes them, are flagged")
{
    Table({"5", "10", "20", "30"});
    CHECK(CheckGisTable().empty());
    SSGISInfo.column = GisColumns + 2;
    mnuInsertColumn();
    REQUIRE(CheckGisTable().size() == 2); // and the depth under the new column's blank cell
    CHECK(CheckGisTable()[0].Words.starts_with("The columns of the table are not those of the Layer List"));
    CHECK(CheckGisTable()[0].InGrid == &SSGISLayers);
    mnuDeleteColumn();
    CHECK(CheckGisTable().empty());
    mnuDeleteColumn();
    CHECK(CheckGisTable().size() == 1);
    SSGISLayers.Cell(2, 1) = "C";
    SSGISLayers.Cell(3, 1) = "D";
    SSGISLayers.Cell(4, 1) = SSGISLayers.Cell(4, 2) = "";
    CHECK(CheckGisTable().empty());
    SSGISLayers.Cell(3, 1) = "E";
    CHECK(CheckGisTable().size() == 1);
}

TEST_CASE("a plain depth under a blank cell or one with X is flagged, since its layer is drawn from the ground on")
{
    Table({"5", "X", "20", "30"});
    std::vector<CheckEntry> entries = CheckGisTable();
    REQUIRE(entries.size() == 1);
    CHECK(entries[0].Words ==
          "Row 1, B-1: C ends at 20, but B above it tells no depth, so it is drawn from the ground on.  Write its top "
          "before it: top-20.");
    CHECK(entries[0].Row == 1);
    CHECK(entries[0].Column == GisColumns + 3);

    Table({"5", " x-12 ", "20", ""});
    CHECK(CheckGisTable().size() == 1);
    Table({"", "12", "", "30"});
    entries = CheckGisTable();
    REQUIRE(entries.size() == 1); // the first layer that is there begins at the ground, as it should
    CHECK(entries[0].Column == GisColumns + 4);
}

TEST_CASE("depths below one another, tops that are written, and cells without a depth are not flagged")
{
    Table({"5", "12", "20", "30"});
    CHECK(CheckGisTable().empty());
    Table({"X", "5-12", "X-20", "20-30"});
    CHECK(CheckGisTable().empty());
    Table({"5", "X", "", "X-30"});
    CHECK(CheckGisTable().empty());
    ClearGISForm();
    CHECK(CheckGisTable().empty());
}

TEST_CASE("a plain depth under a range is flagged, since its layer covers that of the range")
{
    Table({"5", "5-10", "20", "30"});
    CHECK(
        AllWords(CheckGisTable()) ==
        "gis-no-top: Row 1, B-1: C ends at 20, but B above it is 5-10, so it begins where that layer begins and covers "
        "it.  Write its top before it: 10-20.\n");
    Table({"5", "5-10", "10-20", "20-30"});
    CHECK(AllWords(CheckGisTable()) == "");
    Table({"5", "5-5", "20", "30"}); // a range of no thickness is covered by nothing
    CHECK(AllWords(CheckGisTable()) == "");
}

TEST_CASE("the first layer that is there begins at the ground, whatever stands above it")
{
    Table({"X", "", "20", "30"});
    CHECK(AllWords(CheckGisTable()) == "");
}

TEST_CASE("depths of a layer table that are out of order are flagged")
{
    Table({"5", "4", "20-10", "20"});
    CHECK(AllWords(CheckGisTable()) ==
          "gis-order: Row 1, B-1: B ends at 4, above the end of a layer above it at 5.\n"
          "gis-order: Row 1, B-1: C begins at 20, below its end at 10.\n"
          "gis-no-top: Row 1, B-1: D ends at 20, but C above it is 20-10, so it begins where that layer begins and "
          "covers it.  Write its top before it: 10-20.\n");
    Table({"5", "8", "6-12", "12-20"});
    CHECK(AllWords(CheckGisTable()) ==
          "gis-order: Row 1, B-1: C begins at 6, above the end of a layer above it at 8.\n");
    Table({"5", "5", "12", "12"}); // no thickness
    CHECK(AllWords(CheckGisTable()) == "");
}

TEST_CASE("cells of a layer table that are neither depth nor X are errors")
{
    Table({"5 ft", "x-", "1-2-3", "Y"});
    const std::vector<Text> words = WordsOf(CheckGisTable(), "gis-number");
    REQUIRE(words.size() == 4);
    CHECK(words[0] == "Row 1, B-1: A \"5 ft\" is neither a depth, top-bottom, X nor X and a depth.");
    Table({" 5.5 ", "x-12", "X", "20 - 30"});
    CHECK(AllWords(CheckGisTable()) == "");
}

TEST_CASE("borings of a layer table without a place, at one place, twice or not found are flagged")
{
    Table({"5", "12", "20", "30"});
    Boring(2, "B-2", "11");
    CHECK(AllWords(CheckGisTable()) == "");
    SSGISInfo.Cell(2, GisX) = "10.0";
    CHECK(AllWords(CheckGisTable()) == "gis-same-place: Row 2, B-2 has the coordinates of row 1.\n");
    SSGISInfo.Cell(2, GisX) = "";
    SSGISInfo.Cell(2, GisY) = "1,200";
    SSGISInfo.Cell(2, GisElevation) = " ";
    CHECK(AllWords(CheckGisTable()) == "gis-place: Row 2, B-2 has no X, and counts as 0.\n"
                                       "gis-number: Row 2, B-2: \"1,200\" is no number, and counts as 1.\n"
                                       "gis-place: Row 2, B-2 has no surface elevation, and counts as 0.\n");
    Boring(2, "B-2", "11");
    SSGISInfo.Cell(2, GisFileName) = "b-1.bor";
    CHECK(AllWords(CheckGisTable()) ==
          "gis-twice: Row 2, B-2 names the boring file of row 1, which is the one that sections and fences take.\n");
    SSGISInfo.Cell(2, GisFileName) = "B-9";
    CHECK(AllWords(CheckGisTable()) ==
          "gis-boring: Row 2, B-2: the boring file B-9 is not found in the project folder.\n");
    SSGISInfo.Cell(2, GisFileName) = "";
    CHECK(AllWords(CheckGisTable()) ==
          "gis-boring: Row 2, B-2 names no boring file, so no section or fence finds it.\n");
}

TEST_CASE("layers that draw blank, codes too short for a pattern and colors that are none are flagged")
{
    Table({"5", "12", "20", "30"});
    SSGISLayers.Cell(1, 2) = "Pinkish";
    SSGISLayers.Cell(2, 2) = "";
    for (const auto& [layer, code] : {std::pair(3, "SM-CL"), {4, "F0,NR"}}) {
        SSGISLayers.Cell(layer, 1) = code;
        SSGISLayers.Cell(layer, 2) = "";
    }
    Command2();
    CHECK(AllWords(CheckGisTable()) ==
          "gis-color: Layer 1, A: Pinkish is no color, and is drawn white.\n"
          "sheet-code: Layer 2: \"B\" is too short for a pattern and has no color: the drawing of layers stops there.\n"
          "sheet-blank: Layer 3, SM-CL has neither a pattern nor a color, and draws blank.\n");
}
