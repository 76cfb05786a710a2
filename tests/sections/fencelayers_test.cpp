// fencelayers_test.cpp -- the panels of a fence: where they stand, how their layers join, and what hides what.
#include "layerpage.h"

#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "gis/gisfile.h"
#include "run/batchrun.h"
#include "sections/fencerun.h"
#include "sections/layershapes.h"
#include "session/deviceconfig.h"

#include <cmath>

using namespace VCROSS;

// Borings at X 100 and 300, so panels from 1 to 3 inches; a foot of elevation is 0.02 inches high, and ground 100 is
// the level of vStart.
static Drawing Panel(const std::vector<Layer>& left, const std::vector<Layer>& right)
{
    SetFence({{100, 100, left}, {300, 100, right}}, {{1, 2}});
    fillfencelayers();
    CHECK(Messages.empty());
    return Polygons();
}

static bool Near(double value, double expected)
{
    return std::fabs(value - expected) < 0.000001;
}

// ---- The projection

TEST_CASE("a boring stands along X at true scale, and Y takes it up and to the right at 45 degrees, foreshortened")
{
    SetFence({{120, 100, {}}, {300, 80, {}}}, {});
    FenceRun.siteY[1] = 0;
    FenceRun.siteY[2] = 100;
    fillfencelayers();
    CHECK(Near(FenceRun.planX[1], 1.2));
    CHECK(Near(FenceRun.planY[1], 0));
    CHECK(Near(FenceRun.planX[2], 3.7071));       // (300 + 70.71) / 100
    CHECK(Near(FenceRun.planY[2], 0.7071 - 0.4)); // 20 feet below vStart, 2 inches for 100 feet
}

TEST_CASE("the ground is the reference level less the stick-up")
{
    SetFence({{0, 0, {}}}, {});
    CrossRun.refElevation[1] = 75;
    CrossRun.stickUp[1] = 2.5;
    fillfencelayers();
    CHECK(Near(FenceRun.planY[1], -0.55)); // 27.5 feet below vStart
}

TEST_CASE("site units an inch follow from the X range and the width of the base")
{
    SetFence({{120, 100, {}}}, {});
    FenceRun.xRange = 1200;
    FenceRun.baseWidth = 8; // 150 an inch
    fillfenceGIS();
    CHECK(Near(FenceRun.planX[1], 0.8));
}

TEST_CASE("panels stand at the stakes' origin, 2 inches above the base, a tenth further right on the larger page")
{
    SetFence({{0, 100, {{50, "SM"}}}, {300, 100, {{50, "SM"}}}}, {{1, 2}});
    setscalex(7);
    fillfencelayers();
    // (0.85 - 0.25) x 600; 8 inches less 2.7 - 0.25 and 2
    CHECK(PageList.Objects[0].Vertices[0] == PagePoint{360, 2130});
    CHECK(PageList.Objects[0].Vertices[1] == PagePoint{360, 2730});
    CHECK(PageCanvasScales() == "1 1");
    SetFence({{0, 100, {{50, "SM"}}}, {300, 100, {{50, "SM"}}}}, {{1, 2}});
    CrossRun.pageMode = "T";
    DeviceConfig.MarginX = 0.5;
    DeviceConfig.MarginY = -0.25;
    fillfencelayers();
    CHECK(PageList.Objects[0].Vertices[0] == PagePoint{720, 2280});
}

// ---- The shapes

TEST_CASE("every polygon hides what lies behind it, and panels end at their stakes")
{
    CHECK(Panel({{10, "SM"}, {20, "CL"}}, {{5, "SM"}, {30, "CL"}}) ==
          Drawing{"SM hiding 1,0 1,-.2 3,-.1 3,0 1,0", "CL hiding 1,-.2 1,-.4 3,-.6 3,-.1 1,-.2"});
}

static Text BuiltFrom(std::string_view shapes)
{
    SetFence({{100, 100, {{10, "SM"}, {20, "CL"}, {30, "SM"}}}, {300, 90, {{5, "SP"}, {15, "SC"}, {20, "ML"}}}}, {});
    fillfencelayers();
    startfencepair(1, 2);
    for (const char shape : shapes)
        setfencepoints(shape);
    return Built();
}

TEST_CASE("the shapes of a panel: corners at the stakes, depths in inches, the steps of a section")
{
    // Left contacts at 0, -0.2, -0.4, -0.6, right ones at -0.2, -0.3, -0.5, -0.6.
    CHECK(BuiltFrom("B") == "1,0 1,-.2 3,-.3 3,-.2 1,0 as 1.1 then 2,2");
    CHECK(BuiltFrom("C") == "1,0 1,-.6 3,-.3 3,-.2 1,0 as 1.1 then 1,1");
    CHECK(BuiltFrom("G") == "1,0 1,-.2 3,-.6 3,-.2 1,0 as 1.1 then 1,1");
    CHECK(BuiltFrom("I") == "1,0 1,-.2 3,-.2 1,0 as 1.1 then 2,1");
    CHECK(BuiltFrom("J") == "3,-.2 3,-.3 1,0 3,-.2 as 2.1 then 1,2");
    // The tips: (-0.2 - 0.4 - 0.3 - 0.2) / 4 and (-0.3 - 0.5 + 0 - 0.2) / 4, half way between the stakes.
    CHECK(BuiltFrom("CD").starts_with("1,-.2 1,-.4 2,-.2"));
    CHECK(Near(LayerFill.polyY[3], -0.275));
    CHECK(BuiltFrom("CD").ends_with(" as 1.2 then 4,2"));
    CHECK(BuiltFrom("GH") == "3,-.3 3,-.5 2,-.25 3,-.3 as 2.2 then 2,4");
}

TEST_CASE("there is no shape A in a fence")
{
    SetFence({{100, 100, {{10, "SM"}}}, {300, 100, {{10, "SM"}}}}, {});
    startfencepair(1, 2);
    CHECK(FailureOf([] { setfencepoints('A'); }) == InvalidCall);
}

TEST_CASE("a panel that runs to the left has its tips half way too")
{
    SetFence({{100, 100, {{5, "SM"}, {40, "SC"}}}, {300, 100, {{10, "SM"}, {20, "CL"}, {30, "SM"}}}}, {{2, 1}});
    fillfencelayers();
    // SM, CL, SM against SM, SC; the tip at (-0.2 - 0.4 - 0.1 + 0) / 4, in whole dots of the page.
    CHECK(Polygons() == Drawing{"SM hiding 3,0 3,-.6 1,-.1 1,0 3,0", "CL hiding 3,-.2 3,-.4 2,-.18 3,-.2"});
    CHECK(PageList.Objects[2].Vertices[2] == PagePoint{360 + 1200, 2130 + 105});
}

TEST_CASE("a layer of one boring alone wedges out in a panel as in a section")
{
    CHECK(Panel({{20, "CL"}}, {{5, "SM"}, {30, "CL"}}) ==
          Drawing{"SM hiding 3,0 3,-.1 1,0 3,0", "CL hiding 1,0 1,-.4 3,-.6 3,-.1 1,0"});
    CHECK(Panel({{10, "SC"}, {20, "CL"}}, {{5, "CL"}}) ==
          Drawing{"SC hiding 1,0 1,-.2 3,0 1,0", "CL hiding 1,-.2 1,-.4 3,-.1 3,0 1,-.2"});
}

TEST_CASE("the last layer of the left boring joins its like at once, whatever lies below it on the right")
{
    // A section would make the right ML a lens here.
    CHECK(Panel({{30, "SM"}}, {{5, "SM"}, {10, "ML"}, {20, "SM"}}) == Drawing{"SM hiding 1,0 1,-.6 3,-.1 3,0 1,0"});
    SetSection({{100, 100, {{30, "SM"}}}, {300, 100, {{5, "SM"}, {10, "ML"}, {20, "SM"}}}});
    fillcrosslayers();
    CHECK(BetweenColumns().size() == 2);
    CHECK(BetweenColumns()[1].starts_with("ML hiding"));
}

TEST_CASE("the last layer but one joins at once where the next codes match")
{
    CHECK(Panel({{40, "SM"}, {50, "CL"}}, {{5, "SM"}, {10, "CL"}, {60, "SM"}})[0] ==
          "SM hiding 1,0 1,-.8 3,-.1 3,0 1,0");
}

// ---- The tolerance

static size_t LensPolygons(float rightContact, float range)
{
    SetFence({{100, 100, {{10, "SM"}, {20, "CL"}, {50, "SM"}, {55, "GW"}}},
              {300, 100, {{rightContact, "SM"}, {40, "CL"}, {50, "SM"}, {55, "GW"}}}},
             {{1, 2}});
    CrossRun.vRange = range;
    fillfencelayers();
    return Polygons()[1].starts_with("CL hiding") && Polygons().size() == 5 ? 5 : Polygons().size();
}

TEST_CASE("the tolerance is 10 units of elevation, whatever the scale")
{
    // With the lens: SM, CL as lens, then CL and SM wedged out, GW joined; without it four plain joins.
    for (const float range : {64.f, 128.f, 1024.f}) {
        CHECK(LensPolygons(30, range) == 4);
        CHECK(LensPolygons(30.25, range) == 5);
    }
}

TEST_CASE("contacts are compared by their elevations, not by their heights on the sheared page")
{
    // The right boring stands far back, and so high on the page; its contact is 12 feet deeper all the same.
    SetFence({{100, 100, {{10, "SM"}, {20, "CL"}, {50, "SM"}, {55, "GW"}}},
              {300, 90, {{22, "SM"}, {40, "CL"}, {50, "SM"}, {55, "GW"}}}},
             {{1, 2}});
    FenceRun.siteY[2] = 300;
    fillfencelayers();
    CHECK(Polygons().size() == 5);
}

TEST_CASE("the mirror lens of a panel has the tolerance where the codes below match, and none where they differ")
{
    const auto polygons = [](float contact, const char* below) {
        return Panel({{contact, "SM"}, {80, below}, {90, "GW"}},
                     {{10, "SM"}, {20, "CL"}, {60, "SM"}, {85, below}, {90, "GW"}});
    };
    CHECK(polygons(30, "CL")[1].starts_with("CL hiding 1,-.6 "));             // -30 is not below -30: a plain join
    CHECK(polygons(30.5, "CL")[1] == "CL hiding 3,-.2 3,-.4 2,-.3 3,-.2");    // (-0.2 - 0.4 + 0 - 0.61) / 4
    CHECK(polygons(20, "SC")[1].starts_with("CL hiding 3,-.2 3,-.4 1,-.4 ")); // a wedge
    CHECK(polygons(20.5, "SC")[1].starts_with("CL hiding 3,-.2 3,-.4 2,"));
}

// ---- The panels

TEST_CASE("panels are drawn in the order of the file, and rows without two borings are passed over")
{
    SetFence({{100, 100, {{10, "SM"}}}, {300, 100, {{10, "SM"}}}, {500, 100, {{10, "SM"}}}},
             {{3, 2}, {0, 1}, {1, 0}, {1, 3}, {1, 1}});
    static int steps;
    steps = 0;
    Platform.StepProgress = [](const Text&, float) { ++steps; };
    fillfencelayers();
    CHECK(Polygons() == Drawing{"SM hiding 5,0 5,-.2 3,-.2 3,0 5,0", "SM hiding 1,0 1,-.2 5,-.2 5,0 1,0",
                                "SM hiding 1,0 1,-.2 1,-.2 1,0 1,0"});
    CHECK(steps == 5);
    CHECK(progressTotal == 5);
    CHECK(progressValue == 5);
}

TEST_CASE("a panel starts with the pen at the ground of its left stake, where a first corner off the sheet stays")
{
    SetFence({{100, 100, {{20, "CL"}}}, {1100, 100, {{6, "SM"}, {30, "CL"}}}}, {{1, 2}});
    fillfencelayers();
    CHECK(Polygons() == Drawing{"SM hiding 1,0 11,-.12 1,0 11,0", "CL hiding 1,0 1,-.4 11,-.6 11,-.12 1,0"});
}

TEST_CASE("depths become inches, so that nothing reads them as depths afterwards")
{
    Panel({{10, "SM"}, {20, "CL"}}, {{5, "SM"}});
    CHECK(Near(CrossRun.layerDepth[1][1], 0.2));
    CHECK(Near(CrossRun.layerDepth[1][2], 0.4));
    CHECK(Near(CrossRun.layerDepth[2][1], 0.1));
}

TEST_CASE("a boring without layers leaves its panels empty where it is the left one, and has wedges where it is not")
{
    SetFence({{100, 100, {{10, "SM"}}}, {300, 90, {}}}, {{2, 1}, {1, 2}});
    fillfencelayers();
    CHECK(Polygons() == Drawing{"SM hiding 1,0 1,-.2 3,-.2 1,0"});
}

TEST_CASE("a look ahead past layer 100 in a fence is told as error 9; the last layer is safe by its first test")
{
    const std::vector<Layer> left = Varved(100);
    std::vector<Layer> right = left;
    CHECK(Panel(left, right).size() == 100);
    right[99].Code = "GW";
    SetFence({{100, 100, left}, {300, 100, right}}, {{1, 2}, {2, 1}});
    fillfencelayers();
    CHECK(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 9 in fillfencelayers.  Please contact Norvane");
    CHECK(Polygons().size() == 98); // at the last but one: the codes below differ
}

TEST_CASE("a code of one character ends the fill with error 5, and the panels before it stay")
{
    SetFence({{100, 100, {{10, "SM"}}}, {300, 100, {{10, "SM"}}}, {500, 100, {{10, "S"}}}}, {{1, 2}, {3, 1}, {2, 1}});
    fillfencelayers();
    CHECK(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 5 in fillfencelayers.  Please contact Norvane");
    CHECK(Polygons().size() == 1);
}

TEST_CASE("a fence without range of elevation or of X is told as error 11")
{
    SetFence({{100, 100, {{10, "SM"}}}, {300, 100, {{10, "SM"}}}}, {{1, 2}});
    CrossRun.vRange = 0;
    fillfencelayers();
    fillfenceGIS();
    CrossRun.vRange = 100;
    FenceRun.xRange = 0;
    fillfencelayers();
    CHECK(Messages.size() == 3);
    CHECK(Messages[0].words == "Error 11 in fillfencelayers.  Please contact Norvane");
    CHECK(Messages[1].words == "Error 11 in fillfenceGIS.  Please contact Norvane");
    CHECK(Polygons().empty());
}

TEST_CASE("Escape stops a fence at the next polygon, in the middle of a panel")
{
    static int breaths;
    breaths = 0;
    Platform.Breathe = [] {
        if (++breaths == 3)
            stopRequested = -1;
    };
    SetFence({{100, 100, {{10, "SM"}, {20, "CL"}}}, {300, 100, {{10, "SM"}, {20, "CL"}}}}, {{1, 2}, {2, 1}, {1, 2}});
    fillfencelayers();
    CHECK(Polygons().size() == 3);
    CHECK(stopRequested == 0);
    CHECK(breaths == 3);
    CHECK(progressValue == 2);
}

// ---- By a GIS table

static void SetGisFence()
{
    SetFence({{100, 100, {}}, {300, 90, {}}}, {{1, 2}});
    CrossRun.gisRow[1] = 2;
    CrossRun.gisRow[2] = 1;
}

TEST_CASE("a panel by the table: the rules of a section, depths in inches, the ground of the stakes")
{
    SetGisFence();
    SetGis({{"SM", ""}, {"CL", "RED"}, {"GW", ""}, {"ML", ""}},
           {{"900", "900", "555", "B", "5", "10-20", "X-25", ""}, {"", "", "", "A", "10", "X", "35", ""}});
    fillfenceGIS();
    CHECK(Messages.empty());
    CHECK(Polygons() == Drawing{"SM hiding 1,0 1,-.2 3,-.3 3,-.2 1,0",
                                // X between 10 under 100 and 5 under 90: the mean of -0.2 and -0.3
                                "255,0,0 2,-.25 2,-.25 3,-.6 3,-.4 2,-.25",
                                // Under the X from the ground; on the right X-25 at 25 under 90.
                                "GW hiding 1,0 1,-.7 2,-.7 2,-.7 1,0"});
}

TEST_CASE("a boring in no row: its layers narrow to its ground")
{
    SetGisFence();
    CrossRun.gisRow[1] = 0;
    SetGis({{"SM", ""}}, {{"", "", "", "B", "5"}});
    fillfenceGIS();
    CHECK(Polygons() == Drawing{"SM hiding 1,0 1,0 3,-.3 3,-.2 1,0"});
}

TEST_CASE("panels by the table go on step by step, and Escape stops at the next layer")
{
    SetGisFence();
    FenceRun.sectionCount = 3;
    FenceRun.sectionA[3] = 2;
    FenceRun.sectionB[3] = 1;
    SetGis({{"SM", ""}, {"CL", ""}}, {{"", "", "", "B", "5", "10"}, {"", "", "", "A", "10", "20"}});
    fillfenceGIS();
    CHECK(Polygons().size() == 4);
    CHECK(progressTotal == 3);
    CHECK(progressValue == 3);
    PageList.Objects.clear();
    static int breaths;
    breaths = 0;
    Platform.Breathe = [] {
        if (++breaths == 3)
            stopRequested = -1;
    };
    fillfenceGIS();
    CHECK(Polygons().size() == 3);
    CHECK(stopRequested == 0);
}

TEST_CASE("a section behind a fence measures the depths of its table in feet again")
{
    SetGisFence();
    SetGis({{"SM", ""}}, {{"", "", "100", "B", "5"}, {"", "", "100", "A", "10"}});
    fillfenceGIS();
    const GisRecord table = GisData;
    SetSection({{100, 0, {}}, {300, 0, {}}});
    GisData = table;
    LayerFill.rise = 2; // as the fence has left it
    LayerFill.riseDepth = 100;
    CrossRun.gisRow[1] = 2;
    CrossRun.gisRow[2] = 1;
    fillcrossGIS();
    CHECK(Polygons() == Drawing{"SM hiding 100,0 100,-10 300,-5 300,0 100,0"});
}
