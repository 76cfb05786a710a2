// cuttings_test.cpp -- grain sizes of the cuttings as a table and as bars.
#include "canvas/metaugl.h"
#include "columnpage.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"
#include "report/heading.h"

static constexpr size_t TableFront = 18, BarsFront = 27; // objects of the heading and the body's lines

static void StartCuttings(std::initializer_list<LogCuttings> rows)
{
    StartColumn();
    SetPatterns({10, 11, 12, 21, 32});
    for (const LogCuttings& row : rows)
        LogBoring.Cuttings[++LogBoring.CuttingCount] = row;
}

TEST_CASE("the cuttings table has a heading over three words of its own")
{
    StartCuttings({});
    HeadingWords[20] = "SIEVE|GRAIN";
    HeadingWords[23] = "Fine|fine,F1";
    VLOG::drawcuttings();
    CHECK(Drawn() == Drawing{"text 270,-330 7pt  W22  centred", "text 270,-420 7pt  W21  centred",
                             "text 270,-510 7pt  SIEVE  centred", "line 0,-60 540,-60", "line 540,-60 540,-780",
                             "line 540,-240 0,-240", "text 90,-120 6pt  Fine  centred",
                             "text 270,-120 6pt  W24  centred", "text 450,-120 6pt  W25  centred",
                             "text 450,-180 6pt  %  centred", "text 270,-180 6pt  %  centred",
                             "text 90,-180 6pt  %  centred", "line 180,-60 180,-240", "line 360,-60 360,-240",
                             "rectangle 0,0 540,3600", "line 180,0 180,3600", "line 360,0 360,3600"});
    CHECK(EndsAtBaseline(0.9f));
    CHECK(Messages.empty());
}

TEST_CASE("the cuttings table shows every row whose depth is on the page, its ends included")
{
    StartCuttings({{5, 1, 2, 3}, {10, 20, 30.5f, 0}, {70, 4, 5, 6}, {67, 7, 8, 9}, {67.1f, 10, 11, 12}});
    LogPage.PageStartDepth = 10;
    VLOG::drawcuttings();
    CHECK(Drawn(TableFront - 1) == Drawing{"text 90,0 6pt 20 centred", "text 270,0 6pt 30.5 centred",
                                           "text 450,0 6pt 0 centred", "text 90,3420 6pt 7 centred",
                                           "text 270,3420 6pt 8 centred", "text 450,3420 6pt 9 centred"});
}

TEST_CASE("the cuttings bars have three keys and a scale of percents")
{
    StartCuttings({});
    HeadingWords[20] = "SIEVE|GRAIN";
    HeadingWords[24] = "Med.|medium,GW";
    VLOG::drawcuttingsgraph();
    const Drawing drawn = Drawn();
    REQUIRE(drawn.size() == BarsFront);
    CHECK(Drawing(drawn.begin(), drawn.begin() + 14) ==
          Drawing{
              "text 270,-510 8pt  W22  centred", "text 270,-600 8pt  W21  centred", "text 270,-690 8pt  GRAIN  centred",
              "line 0,-60 540,-60", "line 540,-60 540,-780", "polygon 90,-330 198,-330 198,-390 90,-390 F10",
              "rectangle 90,-330 198,-390", "text 240,-360 6pt W23", "polygon 90,-258 198,-258 198,-318 90,-318 F21",
              "rectangle 90,-258 198,-318", "text 240,-288 6pt medium", "polygon 90,-186 198,-186 198,-246 90,-246 F12",
              "rectangle 90,-186 198,-246", "text 240,-216 6pt W25"});
    CHECK(Drawing(drawn.begin() + 14, drawn.end()) ==
          Drawing{"line 108,-60 108,-90", "text 108,-120 6pt  20  centred", "line 216,-60 216,-90",
                  "text 216,-120 6pt  40  centred", "line 324,-60 324,-90", "text 324,-120 6pt  60  centred",
                  "line 432,-60 432,-90", "text 432,-120 6pt  80  centred", "rectangle 0,0 540,3600",
                  "line 108,0 108,3600 dotted", "line 216,0 216,3600 dotted", "line 324,0 324,3600 dotted",
                  "line 432,0 432,3600 dotted"});
    CHECK(EndsAtBaseline(0.9f));
    CHECK(Messages.empty());
}

TEST_CASE("a row of cuttings is three bars side by side, rising from its depth")
{
    StartCuttings({{10, 50, 30, 20}});
    VLOG::drawcuttingsgraph();
    CHECK(Drawn(BarsFront) ==
          Drawing{"polygon 0,600 270,600 270,540 0,540 white", "polygon 0,600 270,600 270,540 0,540 F10",
                  "polygon 270,600 432,600 432,540 270,540 white", "polygon 270,600 432,600 432,540 270,540 F11",
                  "polygon 432,600 540,600 540,540 432,540 white", "polygon 432,600 540,600 540,540 432,540 F12"});
}

TEST_CASE("a bar is capped at the column's width, and one too short to see still moves the next")
{
    StartCuttings({{10, 1, 250, 0}});
    VLOG::drawcuttingsgraph();
    CHECK(Drawn(BarsFront) ==
          Drawing{"polygon 5,600 545,600 545,540 5,540 white", "polygon 5,600 545,600 545,540 5,540 F11"});
}

TEST_CASE("the first bar word gives the pattern and the height of all bars")
{
    StartCuttings({{10, 50, 0, 0}, {5, 10, 0, 0}, {68, 50, 0, 0}});
    LogPage.PageStartDepth = 6;
    HeadingWords[23] = "Fine|fine,F12,2.5";
    VLOG::drawcuttingsgraph();
    CHECK(Drawn()[5] == "polygon 90,-330 198,-330 198,-390 90,-390 F32");
    CHECK(Drawn(BarsFront) ==
          Drawing{"polygon 0,240 270,240 270,90 0,90 white", "polygon 0,240 270,240 270,90 0,90 F32"});
}

TEST_CASE("a boring with a single row of cuttings shows it")
{
    StartCuttings({{5, 1, 2, 3}});
    VLOG::drawcuttings();
    CHECK(Drawn(TableFront - 1) ==
          Drawing{"text 90,300 6pt 1 centred", "text 270,300 6pt 2 centred", "text 450,300 6pt 3 centred"});
}
