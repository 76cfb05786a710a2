// gislayers_test.cpp -- the fill between the borings of a section by the cells of a GIS table.
#include "layerpage.h"

#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "gis/gisfile.h"
#include "run/batchrun.h"
#include "sections/giscells.h"
#include "sections/layershapes.h"

#include <cmath>

using namespace VCROSS;

// A.BOR at 100 with its ground at 0, and B.BOR at 300 with its ground at -4; the elevations of their own files do not
// count.
static void SetGisPair()
{
    SetSection({{100, 50, {}}, {300, 60, {}}});
    CrossRun.boringFile[1] = "A.BOR";
    CrossRun.boringFile[2] = "B.BOR";
}

// The polygons of three layers SM, CL, GW with these cells of the left and the right boring.
static Drawing Layers(std::vector<const char*> left, std::vector<const char*> right)
{
    SetGisPair();
    left.insert(left.begin(), {"", "", "100", "A.BOR"});
    right.insert(right.begin(), {"", "", "96", "B.BOR"});
    SetGis({{"SM", ""}, {"CL", ""}, {"GW", ""}}, {left, right});
    fillcrossGIS();
    CHECK(Messages.empty());
    return Polygons();
}

// ---- The cells

TEST_CASE("a plain cell is the layer's bottom, and its top is the cell above")
{
    CHECK(Layers({"10", "30", "40"}, {"6", "16", "16.5"}) ==
          Drawing{"SM hiding 100,0 100,-10 300,-10 300,-4 100,0", "CL hiding 100,-10 100,-30 300,-20 300,-10 100,-10",
                  "GW hiding 100,-30 100,-40 300,-20.5 300,-20 100,-30"});
}

TEST_CASE("a cell of two numbers is top and bottom; the plain cell below it begins at the first of them")
{
    CHECK(Layers({"10-20", "30", ""}, {"6", "16-26", ""}) ==
          Drawing{"SM hiding 100,-10 100,-20 300,-10 300,-4 100,-10",
                  "CL hiding 100,-10 100,-30 300,-30 300,-20 100,-10"});
}

TEST_CASE("a blank cell has no thickness: the layer narrows to the first number of the cell above")
{
    CHECK(Layers({"10", "", ""}, {"6", "16", ""}) ==
          Drawing{"SM hiding 100,0 100,-10 300,-10 300,-4 100,0", "CL hiding 100,-10 100,-10 300,-20 300,-10 100,-10"});
    // In the first layer that is the ground.
    CHECK(Layers({"", "", ""}, {"6", "", ""}) == Drawing{"SM hiding 100,0 100,0 300,-10 300,-4 100,0"});
    CHECK(Layers({"6-10", "   ", ""}, {"6", "16", ""})[1] == "CL hiding 100,-6 100,-6 300,-20 300,-10 100,-6");
}

TEST_CASE("a layer with no thickness on both sides is not drawn, whatever its heights")
{
    CHECK(Layers({"10", "10", ""}, {"6", "6", ""}).size() == 1);
    CHECK(Layers({"10-10", "", ""}, {"", "", ""}).empty());
}

TEST_CASE("an exact X ends the layer half way, at the mean of the cells above on both sides")
{
    // Left: 10 under ground 0; right: 16 under ground -4.
    CHECK(Layers({"10", "20", ""}, {"16", "X", ""})[1] == "CL hiding 100,-10 100,-20 200,-15 200,-15 100,-10");
    CHECK(Layers({"10", "X", ""}, {"16", "26", ""})[1] == "CL hiding 200,-15 200,-15 300,-30 300,-20 200,-15");
    // Cells of two numbers count by their middles: 15 and 20.
    CHECK(Layers({"10-20", "30", ""}, {"16-24", "X", ""})[1] ==
          "CL hiding 100,-10 100,-30 200,-19.5 200,-19.5 100,-10");
    // In the first layer the grounds count.
    CHECK(Layers({"10", "", ""}, {"x", "", ""}) == Drawing{"SM hiding 100,0 100,-10 200,-2 200,-2 100,0"});
}

TEST_CASE("an X with a depth ends the layer half way at that depth of its own boring")
{
    CHECK(Layers({"10", "20", ""}, {"16", "X-25", ""})[1] == "CL hiding 100,-10 100,-20 200,-29 200,-29 100,-10");
    CHECK(Layers({"10", " x-25 ", ""}, {"16", "26", ""})[1] == "CL hiding 200,-25 200,-25 300,-30 300,-20 200,-25");
    CHECK(Layers({"10", "20", ""}, {"16", "X near-25", ""})[1] == "CL hiding 100,-10 100,-20 200,-29 200,-29 100,-10");
}

TEST_CASE("any other text behind the X is an X alone")
{
    CHECK(Layers({"10", "20", ""}, {"16", "X25", ""})[1] == "CL hiding 100,-10 100,-20 200,-15 200,-15 100,-10");
}

TEST_CASE("with X on both sides the right one would stand at three quarters, but nothing is drawn")
{
    CHECK(Layers({"10", "X-20", ""}, {"16", "X-30", ""}).size() == 1);
    CHECK(Layers({"10", "X", ""}, {"16", "X", ""}).size() == 1);
    // The polygon is built all the same.
    LayerFill.leftBoring = 1;
    LayerFill.rightBoring = 2;
    CHECK(!setgispoints(2));
    CHECK(LayerFill.polyX[1] == 200);
    CHECK(LayerFill.polyX[3] == 250);
}

TEST_CASE("a plain cell under an X, an X with a depth or a blank reaches up to the ground")
{
    for (const char* above : {"X", "X-25", ""}) {
        const Drawing drawing = Layers({"10", "20", "35"}, {"16", above, "40"});
        CHECK(drawing.back() == "GW hiding 100,-20 100,-35 300,-44 300,-4 100,-20");
    }
}

TEST_CASE("an X under an X with a depth counts that by its two numbers, 0 and the depth")
{
    // Left 20; right between 0 and 24 under ground -4.
    CHECK(Layers({"10", "20", "30"}, {"16", "X-24", "X"})[2] == "GW hiding 100,-20 100,-30 200,-18 200,-18 100,-20");
    CHECK(Layers({"10", "20", "30"}, {"16", "X", "X"})[2] == "GW hiding 100,-20 100,-30 200,-12 200,-12 100,-20");
}

TEST_CASE("a cell is cut at its first minus, and words are the depth 0")
{
    CHECK(Layers({"-5", "", ""}, {"-5", "", ""}) == Drawing{"SM hiding 100,0 100,-5 300,-9 300,-4 100,0"});
    CHECK(Layers({"10", "none", ""}, {"6", "16", ""})[1] == "CL hiding 100,-10 100,0 300,-20 300,-10 100,-10");
}

TEST_CASE("the table has its own ground")
{
    SetGisPair();
    SetGis({{"SM", ""}}, {{"", "", "95.5", "A.BOR", "10"}, {"", "", "102.25", "B.BOR", "4"}});
    fillcrossGIS();
    CHECK(Polygons() == Drawing{"SM hiding 100,-4.5 100,-14.5 300,-1.75 300,2.25 100,-4.5"});
    CHECK(CrossRun.refElevation[1] == 51); // the columns keep their own
}

// ---- Colours and patterns

TEST_CASE("a layer with a colour is filled with it, one object; any other word is white, without a message")
{
    SetGisPair();
    SetGis({{"Till", "red"}, {"Clay", " Blue "}, {"Sand", "0 255 0"}, {"GW", "  "}},
           {{"", "", "100", "A.BOR", "10", "20", "30", "40"}, {"", "", "100", "B.BOR", "10", "20", "30", "40"}});
    fillcrossGIS();
    CHECK(Polygons() == Drawing{"255,0,0 100,0 100,-10 300,-10 300,0 100,0",
                                "0,0,255 100,-10 100,-20 300,-20 300,-10 100,-10",
                                "255,255,255 100,-20 100,-30 300,-30 300,-20 100,-20",
                                "GW hiding 100,-30 100,-40 300,-40 300,-30 100,-30"});
    CHECK(Messages.empty());
}

TEST_CASE("a layer without colour is named by its fill code, blank where there is no such pattern")
{
    SetGisPair();
    SetGis({{"sand", ""}, {"F5", ""}}, {{"", "", "100", "A.BOR", "10", "20"}, {"", "", "100", "B.BOR", "10", "20"}});
    fillcrossGIS();
    CHECK(Polygons() == Drawing{"blank hiding 100,0 100,-10 300,-10 300,0 100,0",
                                "SW hiding 100,-10 100,-20 300,-20 300,-10 100,-10"});
}

TEST_CASE("a layer without name and colour is told as error 5 when it is to be drawn, and no polygon is left under way")
{
    SetGisPair();
    SetGis({{"SM", ""}, {"", ""}, {"", ""}},
           {{"", "", "100", "A.BOR", "10", "", "30"}, {"", "", "100", "B.BOR", "10", "", "30"}});
    fillcrossGIS();
    CHECK(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 5 in fillcrossGIS.  Please contact Norvane");
    CHECK(Polygons().size() == 1);
    CHECK(PageCanvas.polyCount == 0);
}

// ---- Matching

TEST_CASE("borings are found by their whole file names in any case, the first row of equals")
{
    SetSection({{100, 0, {}}, {300, 0, {}}, {500, 0, {}}});
    CrossRun.boringFile[1] = "b-1.bor";
    CrossRun.boringFile[2] = "C:\\Site.2\\b-2.bor";
    CrossRun.boringFile[3] = "B-3.BOR ";
    SetGis({{"SM", ""}}, {{"", "", "1", "b-3"},
                          {"", "", "2", "B-1"},
                          {"", "", "3", "b-1.BOR"},
                          {"", "", "4", "c:\\site.2\\B-2"},
                          {"", "", "5", ""}});
    fillcrossGIS();
    CHECK(CrossRun.gisRow[1] == 2);
    CHECK(CrossRun.gisRow[2] == 4);
    CHECK(CrossRun.gisRow[3] == 0); // the blank behind the name is part of it
    CHECK(CrossRun.boringFile[1] == "B-1.BOR");
    CHECK(CrossRun.boringFile[2] == "C:\\SITE.2\\B-2.BOR");
    CHECK(GisData.boringCells[4][GisFileName] == "C:\\SITE.2\\B-2.BOR");
    CHECK(GisData.boringCells[5][GisFileName] == ".BOR");
}

TEST_CASE("a boring in no row keeps the row of the section before")
{
    SetGisPair();
    SetGis({{"SM", ""}}, {{"", "", "100", "A", "10"}, {"", "", "96", "B", "6"}});
    fillcrossGIS();
    CHECK(CrossRun.gisRow[2] == 2);
    CrossRun.boringFile[2] = "OTHER.BOR";
    PageList.Objects.clear();
    fillcrossGIS();
    CHECK(CrossRun.gisRow[2] == 2);
    CHECK(Polygons() == Drawing{"SM hiding 100,0 100,-10 300,-10 300,-4 100,0"});
}

TEST_CASE("in a first section it has an empty row: elevation 0, no layers")
{
    SetGisPair();
    CrossRun.vStart = 20;
    CrossRun.boringFile[2] = "OTHER.BOR";
    SetGis({{"SM", ""}}, {{"", "", "20", "A", "10"}, {"", "", "96", "B", "6"}});
    fillcrossGIS();
    CHECK(Polygons() == Drawing{"SM hiding 100,0 100,-10 300,-20 300,-20 100,0"});
    CHECK(CrossRun.groundY[2] == -20);
}

TEST_CASE("a section whose table is not there has no layers")
{
    SetGisPair();
    GisData = GisRecord();
    fillcrossGIS();
    CHECK(Polygons().empty());
    CHECK(Messages.empty());
}

// ---- Positions

TEST_CASE("distances that are not told come from the coordinates, from boring to boring")
{
    SetSection({{0, 0, {}}, {0, 0, {}}, {0, 0, {}}});
    for (int i = 1; i <= 3; ++i)
        CrossRun.boringFile[i] = Text(1, char('A' + i - 1)) + ".BOR";
    SetGis({{"SM", ""}}, {{"1000", "2000", "100", "A", "10"},
                          {"1030", "2040", "100", "B", "10"},   // 50 from A
                          {"1150", "1990", "100", "C", "10"}}); // 130 from B
    fillcrossGIS();
    CHECK(CrossRun.distance[2] == 50);
    CHECK(CrossRun.distance[3] == 180);
    CHECK(CrossRun.columnRight[3] == 180); // no half column
    CHECK(Polygons() == Drawing{"SM hiding 0,0 0,-10 50,-10 50,0 0,0", "SM hiding 50,0 50,-10 180,-10 180,0 50,0"});
}

TEST_CASE("a boring with a distance of its own keeps it, and the next is measured from the place before it")
{
    SetSection({{0, 0, {}}, {75, 0, {}}, {0, 0, {}}});
    for (int i = 1; i <= 3; ++i)
        CrossRun.boringFile[i] = Text(1, char('A' + i - 1)) + ".BOR";
    SetGis({}, {{"0", "0", "", "A"}, {"500", "500", "", "B"}, {"30", "40", "", "C"}});
    fillcrossGIS();
    CHECK(CrossRun.distance[2] == 75);
    CHECK(CrossRun.distance[3] == 125);
}

TEST_CASE("what was not told stands at minus the frame's start; the first boring keeps that")
{
    SetSection({{0, 0, {}}, {0, 0, {}}, {0, 0, {}}});
    for (int i = 1; i <= 3; ++i)
        CrossRun.boringFile[i] = Text(1, char('A' + i - 1)) + ".BOR";
    CrossRun.hStart = 0.1f;
    CrossRun.distance[1] = CrossRun.distance[2] = -0.1f;
    CrossRun.distance[3] = 0; // 0.1 in the file
    SetGis({}, {{"0", "0", "", "A"}, {"3", "4", "", "B"}, {"6", "8", "", "C"}});
    fillcrossGIS();
    CHECK(CrossRun.distance[1] == -0.1f);
    CHECK(CrossRun.distance[2] == 4.9f);
    CHECK(CrossRun.distance[3] == 0);
}

TEST_CASE("coordinates of a state grid keep their decimals")
{
    SetSection({{0, 0, {}}, {0, 0, {}}});
    CrossRun.boringFile[1] = "A.BOR";
    CrossRun.boringFile[2] = "B.BOR";
    SetGis({}, {{"1234567.25", "7654321", "", "A"}, {"1234567.55", "7654321.4", "", "B"}});
    fillcrossGIS();
    CHECK(std::fabs(CrossRun.distance[2] - 0.5) < 0.0001);
}

TEST_CASE("a boring without coordinates is at the origin of the map")
{
    SetSection({{0, 0, {}}, {0, 0, {}}});
    CrossRun.boringFile[1] = "A.BOR";
    CrossRun.boringFile[2] = "B.BOR";
    SetGis({}, {{"30", "40", "", "A"}, {"", "", "", "B"}});
    fillcrossGIS();
    CHECK(CrossRun.distance[2] == 50);
}

// ---- The page, progress and Escape

TEST_CASE("the fill stands in the data area, 1.3 inches from the left and 1.2 from the top of the page")
{
    SetGisPair();
    setscalex(1);
    setscaley(1);
    SetGis({{"SM", ""}}, {{"", "", "100", "A", "10"}, {"", "", "96", "B", "6"}});
    fillcrossGIS();
    CHECK(PageList.Objects[0].Vertices[0] == PagePoint{630 + 600, 570});
    CHECK(PageList.Objects[0].Vertices[1] == PagePoint{630 + 600, 570 + 600});
    CHECK(PageList.Objects[0].Vertices.size() == 5);
    CHECK(PageCanvasScales() == "100 10");
}

TEST_CASE("layers are drawn from the first to the last, pair by pair, with a step of the progress for each pair")
{
    SetSection({{100, 0, {}}, {300, 0, {}}, {500, 0, {}}});
    for (int i = 1; i <= 3; ++i)
        CrossRun.boringFile[i] = Text(1, char('A' + i - 1)) + ".BOR";
    SetGis({{"SM", ""}, {"CL", "RED"}},
           {{"", "", "100", "A", "10", "20"}, {"", "", "100", "B", "10", "20"}, {"", "", "100", "C", "10", "20"}});
    static int breaths;
    breaths = 0;
    Platform.Breathe = [] { ++breaths; };
    fillcrossGIS();
    CHECK(Polygons() ==
          Drawing{"SM hiding 100,0 100,-10 300,-10 300,0 100,0", "255,0,0 100,-10 100,-20 300,-20 300,-10 100,-10",
                  "SM hiding 300,0 300,-10 500,-10 500,0 300,0", "255,0,0 300,-10 300,-20 500,-20 500,-10 300,-10"});
    CHECK(breaths == 4);
    CHECK(progressValue == 2);
    CHECK(stopRequested == 0);
}

TEST_CASE("Escape stops a fill by the table at the next layer, and is taken note of")
{
    Platform.Breathe = [] { stopRequested = -1; };
    Layers({"10", "30", "40"}, {"6", "16", "16.5"});
    CHECK(Polygons().size() == 1);
    CHECK(stopRequested == 0);
    CHECK(progressValue == 0);
}
