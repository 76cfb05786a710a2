// gisexport_test.cpp -- the exports of the GIS table, byte by byte.
#include "gis/gisfile.h"

#include "testing.h"

#include "places.h"
#include "session/files.h"
#include "session/session.h"

using namespace frmGIS;

// Two layers and three borings, one of them with a blank cell.
static void StartTable()
{
    WriteScratch("SITE.GIS", Lines({" 2 ", "SM",  "TAN1", "CL",   "",        " 3 ",        //
                                    "B-1", "100", "200",  "10.5", "B-1.BOR", "4",   "9",   //
                                    "B-2", "110", "210",  "11",   "B-2.BOR", "",    "X-7", //
                                    "B,3", "",    "220",  "12",   "",        "3-5", "8",   "trailer"}));
    ClearGISForm();
    OpenGISFile(Scratch("SITE.GIS"));
    FillGISForm();
}

static void ChooserGives(const Text& name)
{
    static Text chosen;
    chosen = name;
    Platform.ShowChooser = [] { DialogResult = chosen; };
}

TEST_CASE("the ArcView file has a line for each layer and boring, layer after layer")
{
    StartTable();
    CHECK(ExportGIS2ArcView(Scratch("a.txt")));
    CHECK(ReadScratch("a.txt") == Lines({"B-1,100,200,4,SM", "B-2,110,210,,SM", "B,3,,220,3-5,SM", "B-1,100,200,9,CL",
                                         "B-2,110,210,X-7,CL", "B,3,,220,8,CL"}));
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Done Creating ArcView Export File.");
    CHECK(Messages[0].icon == Announcement);
}

TEST_CASE("the EVS file has a heading, -1, the counts and a line for each boring; a blank cell leaves its six blanks")
{
    StartTable();
    CHECK(ExportGIS2EVS(Scratch("e.txt")));
    CHECK(ReadScratch("e.txt") ==
          Lines({"Easting/X   Northing/Y   Surf_Elev.   @@SM   @@CL   Boring", "-1", " 3   3",
                 "100   200   10.5   4   9   B-1", "110   210   11      X-7   B-2", "   220   12   3-5   8   B,3"}));
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Done Creating EVS Export File.");
}

TEST_CASE("the sample table is saved as it is, and exported as the kept files")
{
    const Text sample = Text(SOURCE_DIR) + "/samples/WIREWICK.GIS";
    ClearGISForm();
    OpenGISFile(sample);
    FillGISForm();
    REQUIRE(SaveGISFile(Scratch("OUT.GIS")));
    CHECK(ReadScratch("OUT.GIS") == ReadWholeFile(sample));
    CHECK(ExportGIS2ArcView(Scratch("a.txt")));
    CHECK(ReadScratch("a.txt") == ReadWholeFile(TestData("gis/wirewick-arcview.txt")));
    CHECK(ExportGIS2EVS(Scratch("e.txt")));
    CHECK(ReadScratch("e.txt") == ReadWholeFile(TestData("gis/wirewick-evs.txt")));
}

TEST_CASE("a table with no layers or no borings is exported as what is left")
{
    ClearGISForm();
    CHECK(ExportGIS2ArcView(Scratch("a.txt")));
    CHECK(ReadScratch("a.txt") == "");
    CHECK(ExportGIS2EVS(Scratch("e.txt")));
    CHECK(ReadScratch("e.txt") == Lines({"Easting/X   Northing/Y   Surf_Elev.   Boring", "-1", " 0   1"}));
    SSGISInfo.Cell(2, 1) = "B-2";
    CHECK(ExportGIS2EVS(Scratch("e.txt")));
    CHECK(ReadScratch("e.txt") ==
          Lines({"Easting/X   Northing/Y   Surf_Elev.   Boring", "-1", " 2   1", "         ", "         B-2"}));
}

TEST_CASE("the exports write the table as it stands in the grid, by the layers in force")
{
    StartTable();
    SSGISInfo.Cell(1, 6) = "4.5";
    SSGISInfo.Cell(4, 1) = "B-4";
    SSGISLayers.Cell(1, 1) = "typed, and not in force";
    CHECK(ExportGIS2ArcView(Scratch("a.txt")));
    CHECK(ReadScratch("a.txt").starts_with("B-1,100,200,4.5,SM\r\n"));
    CHECK(ReadScratch("a.txt").find("B-4,,,,SM\r\n") != Text::npos);
}

TEST_CASE("both exports report a failure in the words of the first")
{
    StartTable();
    CHECK_FALSE(ExportGIS2ArcView(Scratch("nowhere/a.txt")));
    CHECK_FALSE(ExportGIS2EVS(Scratch("nowhere/e.txt")));
    REQUIRE(Messages.size() == 2);
    for (const PlainMessage& message : Messages)
        CHECK(message.words == "Error 76 in ExportGIS2ArcView.  Please contact Norvane");
}

TEST_CASE("the export commands ask for a name, and before a file is replaced")
{
    StartTable();
    ChooserGives("");
    mnuExportArcView();
    CHECK(DialogMode == 16);
    CHECK(Messages.empty());
    ChooserGives(Scratch("a.txt"));
    mnuExportArcView();
    REQUIRE(Messages.size() == 1);
    WriteScratch("a.txt", "kept");
    Answers = {No};
    mnuExportArcView();
    REQUIRE(Messages.size() == 2);
    CHECK(Messages[1].words == "The file, " + Scratch("a.txt") + " already exists.  Do you wish to overwrite it?");
    CHECK(Messages[1].buttons == YesNo);
    CHECK(ReadScratch("a.txt") == "kept");
    Answers = {Yes};
    mnuExp2EVS();
    CHECK(ReadScratch("a.txt").starts_with("Easting/X"));
    CHECK(FileChanged == 0);
}
