// crosslayers_test.cpp -- the fill between the columns of a section by the codes of the layers.
#include "layerpage.h"

#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "run/batchrun.h"
#include "sections/layershapes.h"

#include <cmath>

using namespace VCROSS;

// ---- The polygons of the shapes

// Columns at 100 and 300, so polygons from 110 to 290 and tips at 210 and 190. The left contacts are at 0, -10, -20,
// -30, -40, the right ones at -4, -10, -16, -22, -28.
static void SetShapePair()
{
    SetSection({{100, 100, {{10, "SM"}, {20, "CL"}, {30, "SM"}, {40, "GW"}}},
                {300, 96, {{6, "SP"}, {12, "SC"}, {18, "ML"}, {24, "CH"}}}});
    startcrosspair(1);
}

static Text BuiltFrom(int leftLayer, int rightLayer, std::string_view shapes)
{
    SetShapePair();
    LayerFill.leftLayer = static_cast<int16_t>(leftLayer);
    LayerFill.rightLayer = static_cast<int16_t>(rightLayer);
    for (const char shape : shapes)
        setcrosspoints(shape);
    return Built();
}

TEST_CASE("shape A runs flat from the last column to the right edge of the frame, a layer at a time")
{
    SetShapePair();
    startcrosspair(2);
    setcrosspoints('A');
    CHECK(Built() == "310,-4 310,-10 800,-10 800,-4 310,-4 as 2.1 then 2,1");
    setcrosspoints('A');
    CHECK(Built() == "310,-10 310,-16 800,-16 800,-10 310,-10 as 2.2 then 3,1");
}

TEST_CASE("shape A counts the frame's edge from its start")
{
    SetShapePair();
    CrossRun.hStart = 1200;
    CrossRun.hEnd = 1900;
    startcrosspair(2);
    setcrosspoints('A');
    CHECK(Built() == "310,-4 310,-10 700,-10 700,-4 310,-4 as 2.1 then 2,1");
}

TEST_CASE("shape B joins two layers, and both sides go on")
{
    CHECK(BuiltFrom(1, 1, "B") == "110,0 110,-10 290,-10 290,-4 110,0 as 1.1 then 2,2");
    CHECK(BuiltFrom(2, 3, "B") == "110,-10 110,-20 290,-22 290,-16 110,-10 as 1.2 then 3,4");
}

TEST_CASE("shape C joins three layers of the left side to one of the right, and no side goes on")
{
    CHECK(BuiltFrom(1, 1, "C") == "110,0 110,-30 290,-10 290,-4 110,0 as 1.1 then 1,1");
    CHECK(BuiltFrom(2, 2, "C") == "110,-10 110,-40 290,-16 290,-10 110,-10 as 1.2 then 2,2");
}

TEST_CASE("shape D is the lens between the three: its tip half way, at the mean of its contacts and those of C")
{
    // (-10 - 20 - 10 - 4) / 4
    CHECK(BuiltFrom(1, 1, "CD") == "110,-10 110,-20 210,-11 110,-10 as 1.2 then 4,2");
    // (-20 - 30 - 22 - 16) / 4
    CHECK(BuiltFrom(2, 3, "CD") == "110,-20 110,-30 210,-22 110,-20 as 1.3 then 5,4");
}

TEST_CASE("shape D reads the two right corners of the polygon before it, whatever that was")
{
    // Behind B of layers 1: right corners -10 and -4. Lens between -20 and -30: (-20 - 30 - 10 - 4) / 4
    CHECK(BuiltFrom(1, 1, "BD") == "110,-20 110,-30 210,-16 110,-20 as 1.3 then 5,3");
}

TEST_CASE("shape G joins one layer of the left side to three of the right, and no side goes on")
{
    CHECK(BuiltFrom(1, 1, "G") == "110,0 110,-10 290,-22 290,-4 110,0 as 1.1 then 1,1");
    CHECK(BuiltFrom(3, 2, "G") == "110,-20 110,-30 290,-28 290,-10 110,-20 as 1.3 then 3,2");
}

TEST_CASE("shape H is the lens between the three of the right side, filled from there")
{
    // (-10 - 16 + 0 - 10) / 4
    CHECK(BuiltFrom(1, 1, "GH") == "290,-10 290,-16 190,-9 290,-10 as 2.2 then 2,4");
    // (-16 - 22 - 20 - 30) / 4
    CHECK(BuiltFrom(3, 2, "GH") == "290,-16 290,-22 190,-22 290,-16 as 2.3 then 4,5");
}

TEST_CASE("shape I pinches the left layer out at the top of the right one")
{
    CHECK(BuiltFrom(1, 1, "I") == "110,0 110,-10 290,-4 110,0 as 1.1 then 2,1");
    CHECK(BuiltFrom(2, 3, "I") == "110,-10 110,-20 290,-16 110,-10 as 1.2 then 3,3");
}

TEST_CASE("shape J pinches the right layer out at the top of the left one")
{
    CHECK(BuiltFrom(1, 1, "J") == "290,-4 290,-10 110,0 290,-4 as 2.1 then 1,2");
    CHECK(BuiltFrom(2, 3, "J") == "290,-16 290,-22 110,-10 290,-16 as 2.3 then 2,4");
}

TEST_CASE("tips stand half the distance of the borings away, however wide the columns are")
{
    SetShapePair();
    LayerFill.columnUnits = 100;
    CrossRun.columnRight[1] = 150;
    CrossRun.columnRight[2] = 350;
    startcrosspair(1);
    setcrosspoints('C');
    CHECK(Built().starts_with("150,0 150,-30 250,-10 250,-4 "));
    setcrosspoints('D');
    CHECK(Built().starts_with("150,-10 150,-20 250,-11 "));
}

// ---- Which shape comes next

static Drawing Filled(const std::vector<Layer>& left, const std::vector<Layer>& right)
{
    SetSection({{100, 100, left}, {300, 100, right}});
    fillcrosslayers();
    CHECK(Messages.empty());
    return BetweenColumns();
}

TEST_CASE("two borings with the same codes join layer by layer")
{
    CHECK(Filled({{10, "SM"}, {20, "CL"}, {30, "GW"}}, {{8, "SM"}, {16, "CL"}, {32, "GW"}}) ==
          Drawing{"SM 110,0 110,-10 290,-8 290,0 110,0", "CL 110,-10 110,-20 290,-16 290,-8 110,-10",
                  "GW 110,-20 110,-30 290,-32 290,-16 110,-20"});
}

TEST_CASE("the same codes with one material twice: the left layer between is a lens where the right contact lies far "
          "below it")
{
    // -31 is below -20 - 10; the lens CL ends at x 210, y (-10 - 20 - 31 + 0) / 4.
    CHECK(Filled({{10, "SM"}, {20, "CL"}, {50, "SM"}, {55, "GW"}}, {{31, "SM"}, {40, "CL"}, {50, "SM"}, {55, "GW"}}) ==
          Drawing{"SM 110,0 110,-50 290,-31 290,0 110,0", "CL hiding 110,-10 110,-20 210,-15.25 110,-10",
                  // GW against CL, SM, GW: both are wedged out, one at a time.
                  "CL 290,-31 290,-40 110,-50 290,-31", "SM 290,-40 290,-50 110,-50 290,-40",
                  "GW 110,-50 110,-55 290,-55 290,-50 110,-50"});
}

TEST_CASE("a contact just as far below as the tolerance allows is a plain join")
{
    CHECK(Filled({{10, "SM"}, {20, "CL"}, {50, "SM"}, {55, "GW"}}, {{30, "SM"}, {40, "CL"}, {50, "SM"}, {55, "GW"}}) ==
          Drawing{"SM 110,0 110,-10 290,-30 290,0 110,0", "CL 110,-10 110,-20 290,-40 290,-30 110,-10",
                  "SM 110,-20 110,-50 290,-50 290,-40 110,-20", "GW 110,-50 110,-55 290,-55 290,-50 110,-50"});
}

TEST_CASE("without the same material below it a left layer is no lens")
{
    CHECK(Filled({{10, "SM"}, {20, "CL"}, {50, "GW"}, {55, "SC"}}, {{31, "SM"}, {40, "CL"}, {50, "GW"}, {55, "SC"}}) ==
          Drawing{"SM 110,0 110,-10 290,-31 290,0 110,0", "CL 110,-10 110,-20 290,-40 290,-31 110,-10",
                  "GW 110,-20 110,-50 290,-50 290,-40 110,-20", "SC 110,-50 110,-55 290,-55 290,-50 110,-50"});
}

TEST_CASE("the mirror case: the right layer between two of one material is a lens")
{
    // -31 is below -20 - 10; the tip at x 190, y (-10 - 20 + 0 - 31) / 4.
    CHECK(Filled({{31, "SM"}, {40, "CL"}, {55, "GW"}}, {{10, "SM"}, {20, "CL"}, {50, "SM"}, {55, "GW"}}) ==
          Drawing{"SM 110,0 110,-31 290,-50 290,0 110,0", "CL hiding 290,-10 290,-20 190,-15.25 290,-10",
                  "CL 110,-31 110,-40 290,-50 110,-31", "GW 110,-40 110,-55 290,-55 290,-50 110,-40"});
}

TEST_CASE("the mirror case at the tolerance, and without the same material below, is a plain join")
{
    CHECK(Filled({{30, "SM"}, {40, "CL"}, {55, "GW"}}, {{10, "SM"}, {20, "CL"}, {50, "SM"}, {55, "GW"}})[0] ==
          "SM 110,0 110,-30 290,-10 290,0 110,0");
    CHECK(Filled({{31, "SM"}, {40, "CL"}, {55, "GW"}}, {{10, "SM"}, {20, "CL"}, {50, "SC"}, {55, "GW"}})[0] ==
          "SM 110,0 110,-31 290,-10 290,0 110,0");
}

TEST_CASE(
    "the last layer but one of the left boring joins at once where the next codes match, without a look at heights")
{
    // By its heights the right CL would be a lens: -40 is below -10 - 10, and SM comes again.
    CHECK(Filled({{40, "SM"}, {50, "CL"}}, {{5, "SM"}, {10, "CL"}, {60, "SM"}}) ==
          Drawing{"SM 110,0 110,-40 290,-5 290,0 110,0", "CL 110,-40 110,-50 290,-10 290,-5 110,-40"});
}

TEST_CASE("different codes below and the same material again on the left: a lens, whatever the heights")
{
    // Left SM, CL, SM, right SM, SC: one wide SM with a lens of CL over it; tip at (-10 - 20 - 5 + 0) / 4.
    CHECK(Filled({{10, "SM"}, {20, "CL"}, {30, "SM"}}, {{5, "SM"}, {40, "SC"}}) ==
          Drawing{"SM 110,0 110,-30 290,-5 290,0 110,0", "CL hiding 110,-10 110,-20 210,-8.75 110,-10"});
}

TEST_CASE("different codes below and the same material again on the right: a lens where the left contact lies below it")
{
    // -11 is below -10, with no tolerance; tip at (-5 - 10 + 0 - 11) / 4.
    CHECK(Filled({{11, "SM"}, {40, "CL"}}, {{5, "SM"}, {10, "ML"}, {20, "SM"}}) ==
          Drawing{"SM 110,0 110,-11 290,-20 290,0 110,0", "ML hiding 290,-5 290,-10 190,-6.5 290,-5",
                  "CL 110,-11 110,-40 290,-20 110,-11"});
    // Kept: one foot higher and it is none.
    CHECK(Filled({{10, "SM"}, {40, "CL"}}, {{5, "SM"}, {10, "ML"}, {20, "SM"}}) ==
          Drawing{"SM 110,0 110,-10 290,-5 290,0 110,0", "CL 110,-10 110,-40 290,-5 110,-10"});
    CHECK(Filled({{11, "SM"}, {40, "CL"}}, {{5, "SM"}, {10, "ML"}, {20, "SC"}})[0] ==
          "SM 110,0 110,-11 290,-5 290,0 110,0");
}

TEST_CASE("a layer of the right boring alone wedges out towards the left, and then the like ones join")
{
    CHECK(Filled({{20, "CL"}}, {{6, "SM"}, {30, "CL"}}) ==
          Drawing{"SM 290,0 290,-6 110,0 290,0", "CL 110,0 110,-20 290,-30 290,-6 110,0"});
}

TEST_CASE("two layers of the right boring alone wedge out one after the other")
{
    CHECK(Filled({{20, "CL"}}, {{6, "SM"}, {9, "GW"}, {30, "CL"}}) == Drawing{"SM 290,0 290,-6 110,0 290,0",
                                                                              "GW 290,-6 290,-9 110,0 290,-6",
                                                                              "CL 110,0 110,-20 290,-30 290,-9 110,0"});
}

TEST_CASE("a left layer that is not among the next three of the right boring wedges out, and the right side waits")
{
    CHECK(Filled({{10, "SC"}, {20, "CL"}}, {{6, "CL"}, {9, "GW"}, {30, "SM"}, {35, "SC"}}) ==
          Drawing{"SC 110,0 110,-10 290,0 110,0", "CL 110,-10 110,-20 290,-6 290,0 110,-10"});
}

TEST_CASE("layers that the right boring has left over are not drawn in that pair")
{
    CHECK(Filled({{10, "SM"}}, {{8, "SM"}, {20, "CL"}, {30, "GW"}}) == Drawing{"SM 110,0 110,-10 290,-8 290,0 110,0"});
    // They run on from there to the edge of the frame.
    CHECK(Polygons()[2] == "CL 310,-8 310,-20 800,-20 800,-8 310,-8");
}

TEST_CASE("a left boring with no layers gives nothing, whatever the right one holds")
{
    CHECK(Filled({}, {{8, "SM"}, {20, "CL"}}).empty());
}

TEST_CASE("a right boring with no layers: every left layer wedges out at its ground")
{
    SetSection({{100, 100, {{10, "SM"}, {20, "CL"}}}, {300, 96, {}}});
    fillcrosslayers();
    CHECK(BetweenColumns() == Drawing{"SM 110,0 110,-10 290,-4 110,0", "CL 110,-10 110,-20 290,-4 110,-10"});
}

TEST_CASE("two ends of borings match each other: the last layers join")
{
    // The empty code below both is the same; the right contact lies far below the left ground.
    CHECK(Filled({{10, "SM"}}, {{30, "SM"}}) == Drawing{"SM 110,0 110,-10 290,-30 290,0 110,0"});
}

TEST_CASE("codes are compared letter for letter, with all that stands behind a comma")
{
    CHECK(Filled({{10, "SM"}}, {{10, "sm"}}) == Drawing{"SM 110,0 110,-10 290,0 110,0"});
    CHECK(Filled({{10, "SM"}}, {{10, "SM,2"}}) == Drawing{"SM 110,0 110,-10 290,0 110,0"});
    CHECK(Filled({{10, "F2,a"}}, {{10, "F2,b"}}) == Drawing{"GP 110,0 110,-10 290,0 110,0"});
}

TEST_CASE("codes without a pattern are blank and join all the same")
{
    for (const char* code : {"sm", "SP-SM", "CL,BLUE", "SL/MS"})
        CHECK(Filled({{10, code}}, {{10, code}}) == Drawing{"blank 110,0 110,-10 290,-10 290,0 110,0"});
}

// ---- The whole page

TEST_CASE("the layers of the last and of the first boring run flat to the edges of the frame")
{
    SetSection({{100, 100, {{10, "SM"}, {20, "CL"}}}, {300, 96, {{6, "SM"}}}});
    fillcrosslayers();
    CHECK(Polygons() == Drawing{"SM 110,0 110,-10 290,-10 290,-4 110,0", "CL 110,-10 110,-20 290,-10 110,-10",
                                "SM 310,-4 310,-10 800,-10 800,-4 310,-4", "SM 90,0 90,-10 0,-10 0,0 90,0",
                                "CL 90,-10 90,-20 0,-20 0,-10 90,-10"});
    CHECK(CrossRun.columnRight[1] == 90);
    CHECK(CrossRun.columnRight[2] == 310);
    CHECK(PageCanvasScales() == "100 10");
}

TEST_CASE("each boring is the left one of the next pair, from its first layer on")
{
    SetSection({{100, 100, {{10, "SM"}}}, {300, 96, {{6, "SM"}, {16, "CL"}}}, {500, 90, {{10, "CL"}}}});
    fillcrosslayers();
    CHECK(Polygons() == Drawing{"SM 110,0 110,-10 290,-10 290,-4 110,0",
                                // The second pair: SM wedges out at the ground of the third boring.
                                "SM 310,-4 310,-10 490,-10 310,-4", "CL 310,-10 310,-20 490,-20 490,-10 310,-10",
                                "CL 510,-10 510,-20 800,-20 800,-10 510,-10", "SM 90,0 90,-10 0,-10 0,0 90,0"});
}

TEST_CASE("a section of one boring runs to both edges")
{
    SetSection({{100, 100, {{10, "SM"}}}});
    fillcrosslayers();
    CHECK(Polygons() == Drawing{"SM 110,0 110,-10 800,-10 800,0 110,0", "SM 90,0 90,-10 0,-10 0,0 90,0"});
}

TEST_CASE("a section without borings has no fill")
{
    SetSection({});
    fillcrosslayers();
    CHECK(Polygons().empty());
    CHECK(Messages.empty());
}

TEST_CASE("columns and ground come from the borings: half a column to the right, the stick-up off the reference level")
{
    SetSection({{100, 100, {{10, "SM"}}}, {300, 96, {{6, "SM"}}}});
    CrossRun.columnWidth = 0.4f;
    CrossRun.refElevation[2] = 98.5;
    CrossRun.stickUp[2] = 0.5;
    fillcrosslayers();
    CHECK(Polygons()[0] == "SM 120,0 120,-10 280,-8 280,-2 120,0");
    CHECK(CrossRun.groundY[2] == -2);
    CHECK(CrossRun.columnRight[2] == 320);
}

TEST_CASE("a column of no width fills up to the boring")
{
    SetSection({{100, 100, {{10, "SM"}}}, {300, 96, {{6, "SM"}}}});
    CrossRun.columnWidth = 0;
    fillcrosslayers();
    CHECK(Polygons() == Drawing{"SM 100,0 100,-10 300,-10 300,-4 100,0", "SM 300,-4 300,-10 800,-10 800,-4 300,-4",
                                "SM 100,0 100,-10 0,-10 0,0 100,0"});
}

TEST_CASE("the tolerance is a sixth of the scale's height")
{
    const auto fill = [](float range) {
        SetSection({{100, 100, {{10, "SM"}, {20, "CL"}, {50, "SM"}, {55, "GW"}}},
                    {300, 100, {{31, "SM"}, {40, "CL"}, {50, "SM"}, {55, "GW"}}}});
        CrossRun.vRange = range;
        fillcrosslayers();
        return BetweenColumns()[1];
    };
    CHECK(fill(60) == "CL hiding 110,-10 110,-20 210,-15.25 110,-10");
    CHECK(fill(66) == "CL 110,-10 110,-20 290,-40 290,-31 110,-10"); // -31 is not below -31
    CHECK(fill(65) == "CL hiding 110,-10 110,-20 210,-15.25 110,-10");
}

TEST_CASE("no edge is clipped: slivers beside a first boring on the frame's edge, and back from a last one beyond it")
{
    SetSection({{0, 100, {{10, "SM"}}}, {900, 100, {{10, "SM"}}}});
    fillcrosslayers();
    CHECK(Polygons() == Drawing{"SM 10,0 10,-10 890,-10 890,0 10,0", "SM 910,0 910,-10 800,-10 800,0 910,0",
                                "SM -10,0 -10,-10 0,-10 0,0 -10,0"});
}

TEST_CASE("a first corner off the sheet keeps the pen's old place on that axis, and the last corner is the true one")
{
    // The ground stands 20 feet, or 1200 units, above the origin, which is 600 below the sheet's edge.
    SetSection({{100, 120, {{30, "SM"}}}});
    float x = 2.25, y = 6.25; // the pen, and the origin, at (1200, 1200); the ground is level with the sheet's edge
    setorigin(x, y);
    fillcrosslayers();
    CHECK(Polygons()[0] == "SM 110,20 110,-10 800,-10 800,20 110,20");
    PageList.Objects.clear();
    x = 2.25;
    y = 6.3f; // 30 units further up, and so is the ground
    setorigin(x, y);
    CHECK(std::round(PageCanvas.penY) == 1170);
    fillcrosslayers();
    CHECK(Polygons()[0] == "SM 110,0 110,-10 800,-10 800,20 110,20");
}

TEST_CASE("a pair starts with the pen at the ground of its left column, where a first corner off the sheet stays")
{
    SetSection({{100, 98, {{20, "CL"}}}, {2000, 100, {{6, "SM"}, {30, "CL"}}}});
    fillcrosslayers();
    CHECK(Polygons()[0] == "SM 110,0 1990,-6 110,-2 1990,0");
    CHECK(Polygons()[1] == "CL 110,-2 110,-22 1990,-30 1990,-6 110,-2");
}

TEST_CASE("fifty borings run to the right edge without a boring behind them")
{
    std::vector<Hole> holes;
    for (int i = 1; i <= 50; ++i)
        holes.push_back({float(10 * i), 100, {{10, "SM"}}});
    SetSection(holes);
    fillcrosslayers();
    CHECK(Messages.empty());
    CHECK(Polygons().size() == 51);
}

// ---- The bound of the tables

TEST_CASE("a look ahead past layer 100 is told as error 9, and what was drawn stays")
{
    SetSection({{100, 100, Varved(100)}, {300, 100, Varved(100)}});
    fillcrosslayers();
    CHECK(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 9 in fillcrosslayers.  Please contact Norvane");
    CHECK(Polygons().size() == 99);
    CHECK(BetweenColumns().size() == 99);
    CHECK(progressValue == 1);
}

TEST_CASE("a left boring of 99 layers can end in that message too, one of 98 cannot")
{
    // The last layer: the empty codes below match, and the right contact lies far below the left ground.
    SetSection({{100, 100, Varved(99)}, {300, 100, Varved(99)}});
    fillcrosslayers();
    CHECK(Messages.size() == 1);
    SetSection({{100, 100, Varved(98)}, {300, 100, Varved(98)}});
    fillcrosslayers();
    CHECK(Messages.size() == 1);
}

TEST_CASE("a hundred layers beside a short boring need no look beyond the tables")
{
    SetSection({{100, 100, Varved(100)}, {300, 100, {{10, "GW"}}}});
    fillcrosslayers();
    CHECK(Messages.empty());
    CHECK(BetweenColumns().size() == 100);
}

TEST_CASE("a code of one character is told as error 5, and the fill ends there")
{
    SetSection({{100, 100, {{10, "SM"}, {20, "S"}, {30, "CL"}}}, {300, 100, {{10, "SM"}}}});
    fillcrosslayers();
    CHECK(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 5 in fillcrosslayers.  Please contact Norvane");
    CHECK(Polygons() == Drawing{"SM 110,0 110,-10 290,-10 290,0 110,0"});
    CHECK(PageCanvas.polyCount == 0);
}

TEST_CASE("a frame of no width is told as error 11")
{
    SetSection({{100, 100, {{10, "SM"}}}});
    CrossRun.scaleX = 0;
    fillcrosslayers();
    CHECK(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 11 in fillcrosslayers.  Please contact Norvane");
}

// ---- Progress and Escape

TEST_CASE("the progress goes a step for each pair and one for each edge of the frame")
{
    SetSection({{100, 100, {{10, "SM"}}}, {300, 96, {{6, "SM"}, {16, "CL"}}}, {500, 90, {{10, "CL"}}}});
    static int steps;
    steps = 0;
    Platform.StepProgress = [](const Text&, float) { ++steps; };
    fillcrosslayers();
    CHECK(steps == 4);
    CHECK(progressValue == 4);
}

static int breaths;

TEST_CASE("the window system has a turn after every polygon and after every lens with its ground")
{
    breaths = 0;
    Platform.Breathe = [] { ++breaths; };
    SetSection({{100, 100, {{10, "SM"}, {20, "CL"}, {30, "SM"}, {40, "GW"}}}, {300, 100, {{5, "SM"}, {40, "SC"}}}});
    fillcrosslayers();
    CHECK(BetweenColumns().size() == 3);
    CHECK(breaths == 2);
}

TEST_CASE("Escape stops the fill at the next polygon, and is taken note of")
{
    breaths = 0;
    Platform.Breathe = [] {
        if (++breaths == 2)
            stopRequested = -1;
    };
    SetSection({{100, 100, {{10, "SM"}, {20, "CL"}, {30, "GW"}}}, {300, 100, {{10, "SM"}, {20, "CL"}, {30, "GW"}}}});
    fillcrosslayers();
    CHECK(Polygons().size() == 2); // and no run to the edges
    CHECK(stopRequested == 0);
    CHECK(breaths == 2);
    CHECK(CrossRun.columnRight[1] == 110);
    CHECK(Messages.empty());
    // The next section is filled whole.
    PageList.Objects.clear();
    fillcrosslayers();
    CHECK(Polygons().size() == 9);
}

TEST_CASE("a lens that was begun is finished before Escape counts")
{
    Platform.Breathe = [] { stopRequested = -1; };
    SetSection({{100, 100, {{10, "SM"}, {20, "CL"}, {30, "SM"}}}, {300, 100, {{5, "SM"}, {40, "SC"}}}});
    fillcrosslayers();
    CHECK(Polygons().size() == 2);
}
