// scale_test.cpp -- the depth scale, what it fixes for the other columns, and the elevation scale.
#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "columnpage.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"
#include "report/heading.h"

static constexpr size_t ScaleFront = 9; // objects of heading, lines, first tick and first number
static constexpr size_t ElevFront = 5;  // objects of heading and lines

// A scale 0.4 wide in feet with this increment.
static void StartScale(float increment, float end = 67)
{
    StartColumn();
    LogGeometry.ColumnWidth = 0.4f;
    LogGeometry.DepthPerInch = 0;
    HeadingWords[3] = "Depth, in";
    LogBoring.UnitWord = "feet";
    LogBoring.TickIncrement = increment;
    LogPage.PageEndDepth = end;
}

static void StartElevation(const Text& elevation)
{
    StartColumn();
    LogBoring.SurfElevText = elevation;
    LogBoring.SurfElev = static_cast<float>(TextNumber(elevation));
    LogBoring.StartElev = static_cast<int16_t>(LogBoring.SurfElev);
    LogBoring.TickIncrement = 10;
}

// The lines behind the first ones, which are the ticks.
static Drawing Ticks()
{
    Drawing ticks;
    for (const Text& object : Drawn(ScaleFront))
        if (object.starts_with("line"))
            ticks.push_back(object);
    return ticks;
}

TEST_CASE("the depth scale has three heading words, two long lines and ticks from its right edge")
{
    StartScale(10);
    VLOG::drawscale();
    const Drawing drawn = Drawn();
    const Drawing front(drawn.begin(), drawn.begin() + 11);
    CHECK(front == Drawing{"text 120,-321 7pt  Depth  centred", "text 120,-243 7pt  in  centred",
                           "text 120,-165 7pt  feet  centred", "line 0,-780 0,4080", "line 0,4080 240,4080",
                           "line 240,4080 240,-780", "line 240,-60 0,-60", "line 240,0 192,0", "text 180,0 8pt 0 right",
                           "text 180,600 8pt 10 right", "text 180,1200 8pt 20 right"});
    CHECK(EndsAtBaseline(0.4f));
    CHECK(LogGeometry.DepthPerInch == 10);
    CHECK(Messages.empty());
}

TEST_CASE("all labels come before the ticks, and a part of an increment at the end has neither")
{
    StartScale(10);
    VLOG::drawscale();
    const Drawing drawn = Drawn(ScaleFront);
    REQUIRE(drawn.size() == 6 + 60);
    CHECK(drawn[5] == "text 180,3600 8pt 60 right");
    CHECK(drawn[6] == "line 240,60 216,60");
    CHECK(drawn.back() == "line 240,3600 192,3600");
}

TEST_CASE("a page that starts at 40 has 40 as its first number, at the depth line")
{
    StartScale(5, 80);
    LogPage.PageStartDepth = 40;
    VLOG::drawscale();
    CHECK(Drawn()[7] == "line 240,0 192,0");
    CHECK(Drawn()[8] == "text 180,0 8pt 40 right");
    CHECK(Drawn()[9] == "text 180,502 8pt 45 right"); // 5 feet of 40 on 6.7 inches: 502.5, half to even
    CHECK(DrawnTexts().back() == "80");
}

TEST_CASE("a page start with a fraction prints it, and the labels count from it")
{
    StartScale(5, 27.5f);
    LogPage.PageStartDepth = 7.5f;
    VLOG::drawscale();
    const Drawing words = DrawnTexts();
    CHECK(Drawing(words.begin() + 3, words.end()) == Drawing{"7.5", "12.5", "17.5", "22.5", "27.5"});
}

TEST_CASE("0 to 100 by 10 has a tick at each foot, longer at the fives and at the tens")
{
    StartScale(10, 100);
    VLOG::drawscale();
    const Drawing ticks = Ticks();
    REQUIRE(ticks.size() == 100);
    CHECK(ticks[0] == "line 240,40 216,40");
    CHECK(ticks[4] == "line 240,201 204,201");
    CHECK(ticks[9] == "line 240,402 192,402");
    CHECK(ticks[14] == "line 240,603 204,603");
    CHECK(ticks[99] == "line 240,4020 192,4020");
}

TEST_CASE("0 to 100 by 2 has only long ticks")
{
    StartScale(2, 100);
    VLOG::drawscale();
    const Drawing ticks = Ticks();
    REQUIRE(ticks.size() == 50);
    CHECK(ticks[0] == "line 240,80 192,80");
    CHECK(ticks[49] == "line 240,4020 192,4020");
}

TEST_CASE("without a number of ticks an increment has 10, 5, 2 or 1, fewer the more increments there are")
{
    const auto ticks = [](float increment, float end) {
        StartScale(increment, end);
        VLOG::drawscale();
        return Ticks().size();
    };
    CHECK(ticks(10, 110) == 11 * 5);
    CHECK(ticks(5, 100) == 20 * 5);
    CHECK(ticks(5, 105) == 21 * 2);
    CHECK(ticks(2.5f, 100) == 40 * 2);
    CHECK(ticks(2.5f, 102.5f) == 41);
}

TEST_CASE("the boring's number of ticks stands, and the middle one is longer only of ten")
{
    StartScale(20, 60);
    LogBoring.TicksPerIncrement = 4;
    VLOG::drawscale();
    const Drawing ticks = Ticks();
    REQUIRE(ticks.size() == 12);
    CHECK(ticks[1] == "line 240,670 216,670");
    CHECK(ticks[3] == "line 240,1340 192,1340");
}

TEST_CASE("a negative number of ticks draws none")
{
    StartScale(20, 60);
    LogBoring.TicksPerIncrement = -4;
    VLOG::drawscale();
    CHECK(Ticks().empty());
    CHECK(Messages.empty());
}

TEST_CASE("0 to 40 by 0.1 is 400 increments, though 0.1 is no whole fraction")
{
    StartScale(0.1f, 40);
    VLOG::drawscale();
    CHECK(Ticks().size() == 400);
    CHECK(DrawnTexts().back() == "40");
}

TEST_CASE("a turned depth heading is one line of 8 point, and the numbers stay upright")
{
    StartScale(10);
    LogBoring.HeadingTurned = true;
    VLOG::drawscale();
    CHECK(Drawn()[0] == "text 120,-90 8pt Depth in feet upward");
    CHECK(Drawn()[1] == "line 0,-780 0,4080");
    CHECK(Drawn()[6] == "text 180,0 8pt 0 right");
}

TEST_CASE("a depth heading without a comma leaves its second line blank and the unit in the third")
{
    StartScale(10);
    HeadingWords[3] = "Depth";
    VLOG::drawscale();
    CHECK(Drawn()[0] == "text 120,-321 7pt  Depth  centred");
    CHECK(Drawn()[1] == "text 120,-243 7pt    centred");
    CHECK(Drawn()[2] == "text 120,-165 7pt  feet  centred");
}

TEST_CASE("the scale is as long as the page's drawing length")
{
    const auto lineAndScale = [] {
        VLOG::drawscale();
        return Drawn()[3] + " by " + PlainNumber(double(LogGeometry.DepthPerInch));
    };
    SUBCASE("a page length of 5 makes the lines 6.4 long")
    {
        StartScale(10, 50);
        LogBoring.PageLength = 5;
        CHECK(lineAndScale() == "line 0,-780 0,3060 by 10");
    }
    SUBCASE("a bottom row comes before a page length")
    {
        StartScale(10, 59.5f);
        LogGeometry.HasBottomRow = 1;
        LogBoring.PageLength = 5;
        CHECK(lineAndScale() == "line 0,-780 0,3630 by 10");
    }
    SUBCASE("landscape comes before both")
    {
        StartScale(10, 42);
        LogGeometry.FrameKind = 'L';
        LogBoring.PageLength = 5;
        CHECK(lineAndScale() == "line 0,-780 0,2580 by 10");
    }
    SUBCASE("tabloid is as long as portrait")
    {
        StartScale(10, 67);
        LogGeometry.FrameKind = 'T';
        CHECK(lineAndScale() == "line 0,-780 0,4080 by 10");
    }
}

TEST_CASE("a page end of 0 becomes 40 with an increment of 5, for the columns that follow too")
{
    StartScale(2, 0);
    VLOG::drawscale();
    CHECK(LogPage.PageEndDepth == 40);
    CHECK(LogBoring.TickIncrement == 5);
    CHECK(DrawnTexts().size() == 3 + 1 + 8);
    CHECK(DrawnTexts().back() == "40");
}

TEST_CASE("the columns span to the last contact or to the page's end, whichever comes first")
{
    StartScale(10);
    SUBCASE("the boring ends on the page")
    {
        SetContacts({10, 20});
        VLOG::drawscale();
        CHECK(LogGeometry.BottomDepth == 20);
        CHECK(LogGeometry.BottomSpan == 20);
    }
    SUBCASE("the boring goes on")
    {
        SetContacts({10, 90});
        VLOG::drawscale();
        CHECK(LogGeometry.BottomDepth == 90);
        CHECK(LogGeometry.BottomSpan == 67);
    }
    SUBCASE("no contacts")
    {
        LogPage.PageStartDepth = 40;
        VLOG::drawscale();
        CHECK(LogGeometry.BottomDepth == 0);
        CHECK(LogGeometry.BottomSpan == -40);
    }
}

TEST_CASE("an increment of 0 is told as error 11 once the first number stands, and the old span is kept")
{
    StartScale(0);
    SetContacts({20});
    VLOG::drawscale();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 11 in drawscale.  Please contact Norvane");
    CHECK(Drawn().size() == ScaleFront);
    CHECK(PageCanvas.scaleY == 10);
    CHECK(LogGeometry.BottomSpan == 60);
}

TEST_CASE("a negative increment draws no ticks")
{
    StartScale(-5);
    VLOG::drawscale();
    CHECK(Drawn().size() == ScaleFront);
    CHECK(Messages.empty());
}

TEST_CASE("an absurd number of ticks is told as error 7 and does not take the machine's memory")
{
    StartScale(0.01f);
    LogBoring.TicksPerIncrement = 32767;
    VLOG::drawscale();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 7 in drawscale.  Please contact Norvane");
    CHECK(PageList.Objects.size() == MaxPageObjects);
}

TEST_CASE("the elevation scale ticks downward from the surface on the depth scale's increment")
{
    StartElevation("105.5");
    VLOG::drawelev();
    const Drawing drawn = Drawn();
    REQUIRE(drawn.size() == ElevFront + 2 * 6);
    CHECK(Drawing(drawn.begin(), drawn.begin() + 9) ==
          Drawing{"text 120,-321 7pt  W4  centred", "text 120,-243 7pt  W5  centred",
                  "text 120,-165 7pt  105.5  centred", "line 0,-60 240,-60", "line 240,-780 240,4080",
                  "line 0,30 24,30", "text 48,30 7pt 105", "line 0,630 24,630", "text 48,630 7pt 95"});
    CHECK(drawn.back() == "text 48,3030 7pt 55");
    CHECK(PenPlace() == "0,-120"); // the dispatcher goes on from the baseline, which is the origin
    CHECK(PageCanvas.scaleY == 1);
}

TEST_CASE("a later page starts its elevations that much lower, from the same place on the page")
{
    StartElevation("105.5");
    LogPage.PageStartDepth = 67;
    LogPage.PageEndDepth = 134;
    VLOG::drawelev();
    CHECK(Drawn()[ElevFront + 1] == "text 48,30 7pt 38");
}

TEST_CASE("a blank surface elevation leaves the elevation column with its heading and no ticks")
{
    StartElevation("");
    VLOG::drawelev();
    CHECK(Drawn() == Drawing{"text 120,-321 7pt  W4  centred", "text 120,-243 7pt  W5  centred",
                             "text 120,-165 7pt    centred", "line 0,-60 240,-60", "line 240,-780 240,4080"});
    CHECK(PageCanvas.scaleY == 1);
    CHECK(Messages.empty());
}

TEST_CASE("the elevation column's line is as tall as the frame and does not heed a page length")
{
    const auto line = [](char kind, int16_t bottomRow) {
        StartElevation("");
        LogBoring.PageLength = 5;
        LogGeometry.FrameKind = kind;
        LogGeometry.HasBottomRow = bottomRow;
        VLOG::drawelev();
        return Drawn()[4];
    };
    CHECK(line('P', 0) == "line 240,-780 240,4080");
    CHECK(line('P', 1) == "line 240,-780 240,3630");
    CHECK(line('L', 0) == "line 240,-780 240,2580");
    CHECK(line('T', 0) == "line 240,-780 240,4080");
}

TEST_CASE("the first elevation is drawn even on a page shorter than an increment")
{
    StartElevation("100");
    LogPage.PageEndDepth = 5;
    VLOG::drawelev();
    CHECK(Drawn(ElevFront) == Drawing{"line 0,0 24,0", "text 48,0 7pt 100"});
}

TEST_CASE("an increment of 0 is told as error 11 once the first elevation stands")
{
    StartElevation("100");
    LogBoring.TickIncrement = 0;
    VLOG::drawelev();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 11 in drawelev.  Please contact Norvane");
    CHECK(Drawn().size() == ElevFront + 2);
}
