// fenceframe_test.cpp -- the base plane of a fence in its four rotations on both pages, worked out by hand in device
// units from the plane's origin, and the north arrow.
#include "fencepage.h"

#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "gis/gisfile.h"
#include "report/heading.h"
#include "sections/fencerun.h"
#include "session/deviceconfig.h"

using namespace VCROSS;

// The frame's objects behind the foot.
static Drawing Frame(const FenceText& fence)
{
    StartFence(fence);
    return FenceDrawn();
}

static FenceText Facing(const Text& direction, const Text& page)
{
    FenceText fence;
    fence.Direction = direction;
    fence.Tail = {page, ""};
    return fence;
}

// The plane alone: an arrow is 8 objects.
static Drawing Plane(const Text& direction, const Text& page)
{
    Drawing drawing = Frame(Facing(direction, page));
    REQUIRE(drawing.size() > 8);
    drawing.resize(drawing.size() - 8);
    CHECK(Messages.empty());
    return drawing;
}

TEST_CASE("a fence that is not turned has X along the near edge and Y up its right side, on the letter page")
{
    CHECK(Plane("N,0", "L") ==
          Drawing{"line 0,0 3600,0", "line 30,-30 1830,-1830 dotted", "line 30,-30 30,0",
                  "text 30,30 8pt  100  centred", "line 1230,-30 3030,-1830 dotted", "line 1230,-30 1230,0",
                  "text 1230,30 8pt  300  centred", "line 2430,-30 4230,-1830 dotted", "line 2430,-30 2430,0",
                  "text 2430,30 8pt  500  centred", "line 3630,-30 5430,-1830 dotted", "line 3630,-30 3630,0",
                  "text 3630,30 8pt  700  centred", "text 1800,180 8pt  W2 (Feet)  centred",
                  // A step is 200 x 0.7071 = 141.42 units, 848.52 device units each way.
                  "line 3600,0 0,0 dotted", "line 3600,0 3630,0", "text 3660,0 8pt 50",
                  "line 4449,-849 849,-849 dotted", "line 4449,-849 4479,-849", "text 4509,-849 8pt 250",
                  "line 5297,-1697 1697,-1697 dotted", "line 5297,-1697 5327,-1697", "text 5357,-1697 8pt 450"});
    CHECK(FenceRun.yRange == 446.25f);
}

TEST_CASE("a fence that is not turned, on the large page")
{
    CHECK(Plane("N,0", "T") ==
          Drawing{"line 0,0 4800,0", "line 30,-30 3630,-3630 dotted", "line 30,-30 30,0",
                  "text 30,30 8pt  100  centred", "line 1630,-30 5230,-3630 dotted", "line 1630,-30 1630,0",
                  "text 1630,30 8pt  300  centred", "line 3230,-30 6830,-3630 dotted", "line 3230,-30 3230,0",
                  "text 3230,30 8pt  500  centred", "line 4830,-30 8430,-3630 dotted", "line 4830,-30 4830,0",
                  "text 4830,30 8pt  700  centred", "text 2400,180 8pt  W2 (Feet)  centred",
                  // A step is 141.42 units, 1131.36 device units.
                  "line 4800,0 0,0 dotted", "line 4800,0 4830,0", "text 4860,0 8pt 50",
                  "line 5931,-1131 1131,-1131 dotted", "line 5931,-1131 5961,-1131", "text 5991,-1131 8pt 250",
                  "line 7063,-2263 2263,-2263 dotted", "line 7063,-2263 7093,-2263", "text 7123,-2263 8pt 450",
                  "line 8194,-3394 3394,-3394 dotted", "line 8194,-3394 8224,-3394", "text 8254,-3394 8pt 650"});
    CHECK(FenceRun.yRange == 637.5f);
}

TEST_CASE("a fence turned by 180 has X along the far edge, told from its end downward, on the letter page")
{
    CHECK(Plane("N,180", "L") == Drawing{"line 1800,-1800 5400,-1800",
                                         "line 1830,-1830 30,-30 dotted",
                                         "line 1830,-1830 1830,-1800",
                                         "text 1830,-1770 8pt  700  centred",
                                         "line 3030,-1830 1230,-30 dotted",
                                         "line 3030,-1830 3030,-1800",
                                         "text 3030,-1770 8pt  500  centred",
                                         "line 4230,-1830 2430,-30 dotted",
                                         "line 4230,-1830 4230,-1800",
                                         "text 4230,-1770 8pt  300  centred",
                                         "line 5430,-1830 3630,-30 dotted",
                                         "line 5430,-1830 5430,-1800",
                                         "text 5430,-1770 8pt  100  centred",
                                         "text 1800,180 8pt  W2 (Feet)  centred",
                                         "line 5400,-1800 1800,-1800 dotted",
                                         "line 5400,-1800 5430,-1800",
                                         "text 5460,-1800 8pt 50",
                                         "line 4551,-951 951,-951 dotted",
                                         "line 4551,-951 4581,-951",
                                         "text 4611,-951 8pt 250",
                                         "line 3703,-103 103,-103 dotted",
                                         "line 3703,-103 3733,-103",
                                         "text 3763,-103 8pt 450"});
}

TEST_CASE("a fence turned by 180, on the large page")
{
    CHECK(Plane("N,180", "T") == Drawing{"line 3600,-3600 8400,-3600",
                                         "line 3630,-3630 30,-30 dotted",
                                         "line 3630,-3630 3630,-3600",
                                         "text 3630,-3570 8pt  700  centred",
                                         "line 5230,-3630 1630,-30 dotted",
                                         "line 5230,-3630 5230,-3600",
                                         "text 5230,-3570 8pt  500  centred",
                                         "line 6830,-3630 3230,-30 dotted",
                                         "line 6830,-3630 6830,-3600",
                                         "text 6830,-3570 8pt  300  centred",
                                         "line 8430,-3630 4830,-30 dotted",
                                         "line 8430,-3630 8430,-3600",
                                         "text 8430,-3570 8pt  100  centred",
                                         "text 2400,180 8pt  W2 (Feet)  centred",
                                         "line 8400,-3600 3600,-3600 dotted",
                                         "line 8400,-3600 8430,-3600",
                                         "text 8460,-3600 8pt 50",
                                         "line 7269,-2469 2469,-2469 dotted",
                                         "line 7269,-2469 7299,-2469",
                                         "text 7329,-2469 8pt 250",
                                         "line 6137,-1337 1337,-1337 dotted",
                                         "line 6137,-1337 6167,-1337",
                                         "text 6197,-1337 8pt 450",
                                         "line 5006,-206 206,-206 dotted",
                                         "line 5006,-206 5036,-206",
                                         "text 5066,-206 8pt 650"});
}

TEST_CASE("a fence turned by 90 has X up the right side from its end, and Y along the near edge, on the letter page")
{
    CHECK(Plane("N,90", "L") == Drawing{"line 2520,0 5040,-2520",
                                        "line 2520,0 0,0 dotted",
                                        "line 2520,0 2550,0",
                                        "text 2580,0 8pt 700",
                                        "line 3369,-849 849,-849 dotted",
                                        "line 3369,-849 3399,-849",
                                        "text 3429,-849 8pt 500",
                                        "line 4217,-1697 1697,-1697 dotted",
                                        "line 4217,-1697 4247,-1697",
                                        "text 4277,-1697 8pt 300",
                                        "line 5066,-2546 2546,-2546 dotted",
                                        "line 5066,-2546 5096,-2546",
                                        "text 5126,-2546 8pt 100",
                                        "text 1800,180 8pt  W2 (Feet)  centred",
                                        "line 30,-30 2550,-2550 dotted",
                                        "line 30,-30 30,0",
                                        "text 30,30 8pt  50  centred",
                                        "line 1230,-30 3750,-2550 dotted",
                                        "line 1230,-30 1230,0",
                                        "text 1230,30 8pt  250  centred",
                                        "line 2430,-30 4950,-2550 dotted",
                                        "line 2430,-30 2430,0",
                                        "text 2430,30 8pt  450  centred",
                                        "line 3630,-30 6150,-2550 dotted",
                                        "line 3630,-30 3630,0",
                                        "text 3630,30 8pt  650  centred"});
    CHECK(FenceRun.yRange == 637.5f);
}

TEST_CASE("a fence turned by 90, on the large page")
{
    CHECK(Plane("N,90", "T") == Drawing{"line 5100,0 8460,-3360",
                                        "line 5100,0 0,0 dotted",
                                        "line 5100,0 5130,0",
                                        "text 5160,0 8pt 700",
                                        "line 6231,-1131 1131,-1131 dotted",
                                        "line 6231,-1131 6261,-1131",
                                        "text 6291,-1131 8pt 500",
                                        "line 7363,-2263 2263,-2263 dotted",
                                        "line 7363,-2263 7393,-2263",
                                        "text 7423,-2263 8pt 300",
                                        "line 8494,-3394 3394,-3394 dotted",
                                        "line 8494,-3394 8524,-3394",
                                        "text 8554,-3394 8pt 100",
                                        "text 2400,180 8pt  W2 (Feet)  centred",
                                        "line 30,-30 3390,-3390 dotted",
                                        "line 30,-30 30,0",
                                        "text 30,30 8pt  50  centred",
                                        "line 1630,-30 4990,-3390 dotted",
                                        "line 1630,-30 1630,0",
                                        "text 1630,30 8pt  250  centred",
                                        "line 3230,-30 6590,-3390 dotted",
                                        "line 3230,-30 3230,0",
                                        "text 3230,30 8pt  450  centred",
                                        "line 4830,-30 8190,-3390 dotted",
                                        "line 4830,-30 4830,0",
                                        "text 4830,30 8pt  650  centred"});
}

TEST_CASE("a fence turned by 270 has X up the left side, and Y along the near edge leftward, on the letter page")
{
    // Y starts at its whole range of 637 units, 3822 device units, and 30 beside it.
    CHECK(Plane("N,270", "L") == Drawing{"line 0,0 2520,-2520",
                                         "line 0,0 2520,0 dotted",
                                         "line 0,0 -30,0",
                                         "text -60,0 8pt 100 right",
                                         "line 849,-849 3369,-849 dotted",
                                         "line 849,-849 819,-849",
                                         "text 789,-849 8pt 300 right",
                                         "line 1697,-1697 4217,-1697 dotted",
                                         "line 1697,-1697 1667,-1697",
                                         "text 1637,-1697 8pt 500 right",
                                         "line 2546,-2546 5066,-2546 dotted",
                                         "line 2546,-2546 2516,-2546",
                                         "text 2486,-2546 8pt 700 right",
                                         "text 1800,180 8pt  W2 (Feet)  centred",
                                         "line 3852,-30 6372,-2550 dotted",
                                         "line 3852,-30 3852,0",
                                         "text 3852,30 8pt  50  centred",
                                         "line 2652,-30 5172,-2550 dotted",
                                         "line 2652,-30 2652,0",
                                         "text 2652,30 8pt  250  centred",
                                         "line 1452,-30 3972,-2550 dotted",
                                         "line 1452,-30 1452,0",
                                         "text 1452,30 8pt  450  centred",
                                         "line 252,-30 2772,-2550 dotted",
                                         "line 252,-30 252,0",
                                         "text 252,30 8pt  650  centred"});
}

TEST_CASE("a fence turned by 270, on the large page")
{
    CHECK(Plane("N,270", "T") == Drawing{"line 0,0 3360,-3360",
                                         "line 0,0 5100,0 dotted",
                                         "line 0,0 -30,0",
                                         "text -60,0 8pt 100 right",
                                         "line 1131,-1131 6231,-1131 dotted",
                                         "line 1131,-1131 1101,-1131",
                                         "text 1071,-1131 8pt 300 right",
                                         "line 2263,-2263 7363,-2263 dotted",
                                         "line 2263,-2263 2233,-2263",
                                         "text 2203,-2263 8pt 500 right",
                                         "line 3394,-3394 8494,-3394 dotted",
                                         "line 3394,-3394 3364,-3394",
                                         "text 3334,-3394 8pt 700 right",
                                         "text 2400,180 8pt  W2 (Feet)  centred",
                                         "line 5126,-30 8486,-3390 dotted",
                                         "line 5126,-30 5126,0",
                                         "text 5126,30 8pt  50  centred",
                                         "line 3526,-30 6886,-3390 dotted",
                                         "line 3526,-30 3526,0",
                                         "text 3526,30 8pt  250  centred",
                                         "line 1926,-30 5286,-3390 dotted",
                                         "line 1926,-30 1926,0",
                                         "text 1926,30 8pt  450  centred",
                                         "line 326,-30 3686,-3390 dotted",
                                         "line 326,-30 326,0",
                                         "text 326,30 8pt  650  centred"});
}

TEST_CASE("a fence without a scale goes from 0 to 500 by 100, and from elevation 500 to 100 by 50")
{
    FenceText fence;
    fence.XStart = fence.XEnd = fence.VStart = fence.VEnd = "";
    fence.XInc = "7";
    fence.VInc = "3";
    const Drawing drawing = Frame(fence);
    CHECK(Messages.empty());
    CHECK(FenceRun.xRange == 500);
    CHECK(FenceRun.xInc == 100);
    CHECK(CrossRun.vStart == 500);
    CHECK(CrossRun.vEnd == 100);
    CHECK(CrossRun.vInc == -50);
    CHECK(CrossRun.vRange == 400);
    REQUIRE(drawing.size() > 18);
    CHECK(drawing[3] == "text 30,30 8pt  0  centred");
    CHECK(drawing[18] == "text 3630,30 8pt  500  centred");
}

TEST_CASE("numbers along the edges are worked out from the start, not summed up")
{
    FenceText fence;
    fence.XStart = "0";
    fence.XEnd = "1";
    fence.XInc = "0.1";
    const Drawing drawing = Frame(fence);
    REQUIRE(drawing.size() > 33);
    CHECK(drawing[6].ends_with(" .1  centred"));
    CHECK(drawing[24].ends_with(" .7  centred"));
    CHECK(drawing[33].ends_with(" 1  centred")); // 1 / 0.1 is 10 whole increments
}

TEST_CASE("a negative increment draws no ticks, and the sides stand with the title")
{
    FenceText fence;
    fence.XInc = "-200";
    Drawing drawing = Frame(fence);
    CHECK(Messages.empty());
    REQUIRE(drawing.size() == 10);
    CHECK(drawing[0] == "line 0,0 3600,0");
    CHECK(drawing[1] == "text 1800,180 8pt  W2 (Feet)  centred");
}

TEST_CASE("an increment of 0 fails in the frame, which ends behind its first line, without an arrow")
{
    FenceText fence;
    fence.XInc = "";
    CHECK(Frame(fence) == Drawing{"line 0,0 3600,0"});
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 11 in drawfenceframe.  Please contact Norvane");
}

TEST_CASE("more ticks than 16 bits count are failure 6 in the frame")
{
    FenceText fence;
    fence.XInc = "0.01";
    CHECK(Frame(fence) == Drawing{"line 0,0 3600,0"});
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 6 in drawfenceframe.  Please contact Norvane");
}

TEST_CASE("X without a range fails at its first step, behind the first number")
{
    FenceText fence;
    fence.XEnd = "100";
    CHECK(Frame(fence) == Drawing{"line 0,0 3600,0", "line 30,-30 1830,-1830 dotted", "line 30,-30 30,0",
                                  "text 30,30 8pt  100  centred"});
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 11 in drawfenceframe.  Please contact Norvane");
}

TEST_CASE("the frame stands by the offsets of the printer")
{
    DeviceConfig.MarginX = 0.5f;
    DeviceConfig.MarginY = 0.25f;
    const Drawing drawing = Frame(Facing("N,0", "L"));
    REQUIRE(drawing.size() > 24);
    CHECK(drawing[0] == "line 300,-150 3900,-150");
    CHECK(drawing[23] == "line 5070,-750 5490,-1170"); // the arrow's shaft
}

// ---- The north arrow

static Drawing Arrow(const Text& direction, const Text& page)
{
    const Drawing drawing = Frame(Facing(direction, page));
    REQUIRE(drawing.size() > 8);
    return Drawing(drawing.end() - 8, drawing.end());
}

TEST_CASE("the arrow of a viewer to the north points up and to the right, from a disc with an N on its tip")
{
    CHECK(Arrow("N,0", "L") == Drawing{"line 4770,-600 5190,-1020", "line 5190,-1020 5040,-930",
                                       "polygon 5136,-966 5244,-966 5244,-1074 5136,-1074 white",
                                       "polygon 5136,-966 5244,-966 5244,-1074 5136,-1074 F0.bmp",
                                       "circle 5190,-1020 72", "line 5166,-990 5166,-1050", "line 5166,-1050 5214,-990",
                                       "line 5214,-990 5214,-1050"});
}

TEST_CASE("the arrow of a viewer to the south points the opposite way")
{
    CHECK(Arrow("S,0", "L") == Drawing{"line 5190,-1020 4770,-600", "line 4770,-600 4920,-690",
                                       "polygon 4716,-546 4824,-546 4824,-654 4716,-654 white",
                                       "polygon 4716,-546 4824,-546 4824,-654 4716,-654 F0.bmp", "circle 4770,-600 72",
                                       "line 4746,-570 4746,-630", "line 4746,-630 4794,-570",
                                       "line 4794,-570 4794,-630"});
}

TEST_CASE("the arrow of a viewer to the east points to the left")
{
    CHECK(Arrow("E,0", "L") == Drawing{"line 5430,-1380 4830,-1380", "line 4830,-1380 4980,-1410",
                                       "polygon 4758,-1308 4902,-1308 4902,-1452 4758,-1452 white",
                                       "polygon 4758,-1308 4902,-1308 4902,-1452 4758,-1452 F0.bmp",
                                       "circle 4830,-1380 72", "line 4806,-1350 4806,-1410",
                                       "line 4806,-1410 4854,-1350", "line 4854,-1350 4854,-1410"});
}

TEST_CASE("the arrow of a viewer to the west points to the right, on the line of the one to the left")
{
    CHECK(Arrow("W,0", "L") == Drawing{"line 4830,-1380 5430,-1380", "line 5430,-1380 5280,-1410",
                                       "polygon 5358,-1308 5502,-1308 5502,-1452 5358,-1452 white",
                                       "polygon 5358,-1308 5502,-1308 5502,-1452 5358,-1452 F0.bmp",
                                       "circle 5430,-1380 72", "line 5406,-1350 5406,-1410",
                                       "line 5406,-1410 5454,-1350", "line 5454,-1350 5454,-1410"});
}

TEST_CASE("on the large page the arrow stands as many inches up as there are increments")
{
    // Over the base plane: Y has 637.5 / 200 = 3.1875 of them, X 3; the bases are 4.6 and 4.0 less the plane's 2.7.
    // 5.0875 inches are 3052.5 device units, half to even on the sheet.
    CHECK(Arrow("N,0", "T")[0] == "line 6570,-2632 6990,-3052");
    CHECK(Arrow("S,0", "T")[0] == "line 6990,-3052 6570,-2632");
    CHECK(Arrow("E,0", "T")[0] == "line 7230,-2580 6630,-2580");
    CHECK(Arrow("W,0", "T")[0] == "line 6630,-2580 7230,-2580");
}

TEST_CASE("on the large page the arrow of a fine scale leaves the sheet")
{
    FenceText fence = Facing("E,0", "T");
    fence.XInc = "60";
    const Drawing drawing = Frame(fence);
    REQUIRE(drawing.size() > 8);
    CHECK(drawing[drawing.size() - 8] == "line 7230,-6780 6630,-6780"); // the sheet ends at -4830
}

TEST_CASE("the rotation turns the arrow with the site")
{
    CHECK(Arrow("N,90", "L")[0] == "line 4830,-1380 5430,-1380");
    CHECK(FenceRun.facing == 4);
    CHECK(Arrow("N,180", "L")[0] == "line 5190,-1020 4770,-600");
    CHECK(Arrow("N,270", "L")[0] == "line 5430,-1380 4830,-1380");
}

TEST_CASE("a direction that is no letter of the compass has the arrow of the west")
{
    for (const char* direction : {"", "North", ",0", "X"}) {
        CHECK(Arrow(direction, "L")[0] == "line 4830,-1380 5430,-1380");
        CHECK(FenceRun.facing == 4);
    }
}

// ---- The places of the borings

static FenceText ThreeSites(const Text& rotation)
{
    FenceText fence;
    fence.Borings = {"300.5,150,A,,,", "", "401.5,49.25,B,,,", "9,9,,,,"};
    fence.Direction = "N," + rotation;
    return fence;
}

static Text Site(int i)
{
    return PlainNumber(double(FenceRun.siteX[i])) + "," + PlainNumber(double(FenceRun.siteY[i]));
}

TEST_CASE("the borings keep their places when the site is not turned")
{
    Frame(ThreeSites("0"));
    CHECK(Site(1) == "200.5,100");
    CHECK(Site(3) == "301.5,-.75");
}

TEST_CASE("turned by 90, Y becomes X, and X counts back from its end, rounded half to even")
{
    Frame(ThreeSites("90"));
    CHECK(Site(1) == "100,400");  // 600 - 200
    CHECK(Site(3) == "-.75,298"); // 600 - 302
}

TEST_CASE("turned by 180, both count back from the whole part of their ranges")
{
    FenceText fence = ThreeSites("180");
    fence.XEnd = "700.9";
    Frame(fence);
    // yRange is 600.9 / 6.0 x 4.2 / 8.0 x 8.5 = 446.92.
    CHECK(Site(1) == "399.5,346");
    CHECK(Site(3) == "298.5,446.75");
}

TEST_CASE("turned by 270, X becomes Y, rounded, and Y counts back from the whole part of its range")
{
    Frame(ThreeSites("270"));
    CHECK(Site(1) == "537,200"); // 637 - 100
    CHECK(Site(3) == "637.75,302");
}

TEST_CASE("slots without a boring are not turned, so that a national grid does not fail in them")
{
    FenceText fence = ThreeSites("90");
    fence.XStart = "300000";
    fence.XEnd = "300600";
    fence.Borings = {"300200,150,A,,,", "", "", "1,2,,,,"};
    Frame(fence);
    CHECK(Messages.empty());
    CHECK(Site(1) == "100,400");
    CHECK(Site(2) == "-300000,-50");
    CHECK(Site(4) == "-299999,-48");
}

TEST_CASE("the first boring beyond 16 bits ends the turning: it and those behind it stay, and no arrow is drawn")
{
    FenceText fence;
    fence.XStart = "0";
    fence.XEnd = "600";
    fence.Direction = "N,90";
    fence.Borings = {"200,150,A,,,", "40000,150,B,,,", "300,150,C,,,"};
    const Drawing drawing = Frame(fence);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 6 in drawfenceframe.  Please contact Norvane");
    CHECK(Site(1) == "100,400");
    CHECK(Site(2) == "40000,100");
    CHECK(Site(3) == "300,100");
    CHECK(drawing.back() == "text 3630,30 8pt  650  centred");
}

TEST_CASE("coordinates are rounded to 32 bits before the start is taken off, which decides a rounding to whole units")
{
    FenceText fence;
    fence.XStart = "300900";
    fence.XEnd = "301300";
    fence.Direction = "N,90";
    fence.Borings = {"300996.51,60,A,,,"}; // held as 300996.5
    Frame(fence);
    CHECK(Site(1) == "10,304"); // 400 - 96
}

// ---- Places from a GIS file

static void SetGisRow(int row, const Text& x, const Text& y, const Text& elevation, const Text& file)
{
    GisData.boringCount = row;
    GisData.boringCells[row][GisX] = x;
    GisData.boringCells[row][GisY] = y;
    GisData.boringCells[row][GisElevation] = elevation;
    GisData.boringCells[row][GisFileName] = file;
}

TEST_CASE("a GIS file replaces the coordinates of the borings that it names, by its first row of a name")
{
    SetGisRow(1, "150", "75", "610", "other.bor");
    SetGisRow(2, "160", "85", "611", "b");
    SetGisRow(3, "170", "95", "612", "b.bor");
    FenceText fence;
    fence.Borings = {"300,150,A,,,", "310,160,B.Bor,,,"};
    fence.Tail = {"L", "SITE"};
    Frame(fence);
    CHECK(Site(1) == "200,100");
    CHECK(Site(2) == "60,35");
    CHECK(CrossRun.gisRow[1] == 0);
    CHECK(CrossRun.gisRow[2] == 2);
    CHECK(CrossRun.refElevation[2] == 611);
    CHECK(GisData.boringCells[2][GisFileName] == "B.BOR");
}

TEST_CASE("coordinates of a GIS file are turned like others")
{
    SetGisRow(1, "160", "85", "611", "A");
    FenceText fence;
    fence.Borings = {"300,150,A,,,"};
    fence.Direction = "N,270";
    fence.Tail = {"L", "SITE"};
    Frame(fence);
    CHECK(Site(1) == "602,60");
}

TEST_CASE("coordinates of a GIS file are rounded to 32 bits too before the start is taken off")
{
    SetGisRow(1, "300996.51", "354349.63", "611", "A"); // held as 300996.5 and 354349.625
    FenceText fence;
    fence.XStart = "300900";
    fence.XEnd = "301300";
    fence.YStart = "354300";
    fence.Direction = "N,90";
    fence.Borings = {"1,1,A,,,"};
    fence.Tail = {"L", "SITE"};
    Frame(fence);
    CHECK(Site(1) == "49.625,304"); // 400 - 96
}

TEST_CASE("without a GIS file in the definition its table, left by another tool, is not looked at")
{
    SetGisRow(1, "160", "85", "611", "a");
    FenceText fence;
    fence.Borings = {"300,150,A,,,"};
    Frame(fence);
    CHECK(Site(1) == "200,100");
    CHECK(GisData.boringCells[1][GisFileName] == "a");
}
