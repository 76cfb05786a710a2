// gischeck_test.cpp -- what a reviewer of the GIS table would flag.
#include "gis/gischeck.h"

#include "gis/gisfile.h"
#include "testing.h"

using namespace frmGIS;

// A table of the layers A to D with one boring.
static void Table(std::initializer_list<const char*> cells)
{
    ClearGISForm();
    const char* const names[] = {"A", "B", "C", "D"};
    for (int k = 1; k <= 4; ++k)
        SSGISLayers.Cell(k, 1) = names[k - 1];
    Command2();
    SSGISInfo.Cell(1, GisBoringName) = "B-1";
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
    CHECK(Text(CheckGisTable()[0].GridName) == "SSGISLayers");
    mnuDeleteColumn();
    CHECK(CheckGisTable().empty());
    mnuDeleteColumn();
    CHECK(CheckGisTable().size() == 1);
    SSGISLayers.Cell(2, 1) = "C";
    SSGISLayers.Cell(3, 1) = "D";
    SSGISLayers.Cell(4, 1) = "";
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
    REQUIRE(entries.size() == 2);
    CHECK(entries[0].Column == GisColumns + 2);
    CHECK(entries[1].Column == GisColumns + 4);
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
