// wellcasings_test.cpp -- surface casings and the cover of a well.
#include "wellpage.h"

TEST_CASE("a casing is a wall on each side: fill, outline, a lip below the shoe, the wall at twice the width")
{
    StartWell();
    LogBoring.GenWell[7] = "20";
    CHECK(Diagram() == Drawing{"polygon 180,0 120,0 120,1230 180,1230 F02", "line 180,0 120,0", "line 120,0 120,1230",
                               "polygon 180,1230 174,1230 174,1200 180,1200 black", "line 180,1200 180,0 wide",
                               "polygon 360,0 420,0 420,1230 360,1230 F02", "line 360,0 420,0", "line 420,0 420,1230",
                               "polygon 360,1230 366,1230 366,1200 360,1200 black", "line 360,1200 360,0 wide",
                               "circle 360,60 12", "line 360,60 450,60", "text 462,60 8pt W29",
                               "text 462,127 8pt W30"});
    CHECK(EndsAtBaseline(1.6f));
}

TEST_CASE("a casing deeper than the page is drawn to its end, without a lip")
{
    StartWell(Small);
    LogBoring.GenWell[7] = "100";
    LogBoring.GenWell[10] = "F1";
    CHECK(Diagram() == Drawing{"polygon 180,0 120,0 120,4020 180,4020 F21", "line 180,0 120,0", "line 120,0 120,4020",
                               "line 180,4020 180,0 wide", "polygon 360,0 420,0 420,4020 360,4020 F21",
                               "line 360,0 420,0", "line 420,0 420,4020", "line 360,4020 360,0 wide"});
}

TEST_CASE("a casing that just reaches the page's end has its lip")
{
    StartWell(Small);
    LogBoring.GenWell[7] = "67";
    CHECK(Diagram()[3] == "polygon 180,4050 174,4050 174,4020 180,4020 black");
}

TEST_CASE("with a stick-up the casings close over the pipe on the first page")
{
    StartWell(Small);
    LogBoring.GenWell[VLOG::StickUp] = "2";
    LogBoring.GenWell[7] = "20";
    Drawing drawn = Diagram();
    CHECK(Drawing(drawn.begin() + 4, drawn.begin() + 9) ==
          Drawing{"line 180,1200 180,0 wide", "line 180,0 180,-180 wide", "line 180,-180 360,-180 wide",
                  "line 360,-180 360,0 wide", "polygon 360,0 420,0 420,1230 360,1230 F02"});
    StartWell(Small);
    LogPage.PageStartDepth = 10;
    LogBoring.GenWell[VLOG::StickUp] = "2";
    LogBoring.GenWell[7] = "20";
    drawn = Diagram();
    CHECK(drawn[4] == "line 180,600 180,0 wide");
    CHECK(drawn[5] == "polygon 360,0 420,0 420,630 360,630 F02");
}

TEST_CASE("three casings stand in each other, the label has a circle on each, and the diagram keeps its width")
{
    StartWell();
    LogBoring.GenWell[7] = "30";
    LogBoring.GenWell[8] = "20";
    LogBoring.GenWell[9] = "10";
    LogBoring.GenWell[10] = ",3";
    const Drawing drawn = Diagram();
    // the annulus runs from 240 to 420
    CHECK(drawn[1] == "line 240,0 180,0");
    CHECK(drawn[9] == "line 420,1800 420,0 wide");
    CHECK(Drawing(drawn.begin() + 10, drawn.begin() + 18) ==
          Drawing{"circle 420,-120 12", "line 420,-120 480,-120", "circle 480,-120 12", "line 480,-120 540,-120",
                  "circle 540,-120 12", "line 540,-120 630,-120", "text 642,-120 8pt W29", "text 642,-53 8pt W30"});
    CHECK(drawn[19] == "line 180,0 120,0");
    CHECK(drawn[22] == "line 180,1200 180,0 wide");
    CHECK(drawn[24] == "line 480,0 540,0");
    CHECK(drawn[29] == "line 120,0 60,0");
    CHECK(drawn[34] == "line 540,0 600,0");
    CHECK(drawn.size() == 38);
    CHECK(EndsAtBaseline(1.6f));
}

TEST_CASE("a casing that ends above the page is not drawn, but keeps its room")
{
    StartWell(Small);
    LogPage.PageStartDepth = 20;
    LogBoring.GenWell[7] = "20";
    CHECK(Diagram() == Drawing{});
    CHECK(EndsAtBaseline(1));
}

TEST_CASE("a cover spans pipe and casings on the first page, with its word in the large form")
{
    StartWell();
    LogBoring.GenWell[VLOG::WellCover] = "y";
    LogBoring.GenWell[VLOG::StickUp] = "2";
    CHECK(Diagram() == Drawing{"line 90,-180 90,-210", "line 90,-210 330,-210", "line 330,-210 330,-180",
                               "line 330,-180 420,-180", "line 420,-180 462,-222", "text 474,-222 8pt W27"});
    StartWell(Small);
    LogBoring.GenWell[VLOG::WellCover] = "Y";
    LogBoring.GenWell[7] = "20";
    const Drawing drawn = Diagram();
    CHECK(Drawing(drawn.end() - 3, drawn.end()) ==
          Drawing{"line 90,0 90,-30", "line 90,-30 450,-30", "line 450,-30 450,0"});
}

TEST_CASE("a cover is not drawn on a continuation page, nor for another word than Y")
{
    StartWell();
    LogBoring.GenWell[VLOG::WellCover] = "Y";
    LogPage.PageStartDepth = 20;
    CHECK(Diagram() == Drawing{});
    StartWell();
    LogBoring.GenWell[VLOG::WellCover] = "yes";
    CHECK(Diagram() == Drawing{});
}

TEST_CASE("a stick-up of half a foot is one too, and one below the ground is none")
{
    for (const char* up : {".5", "-2"}) {
        StartWell(Small);
        LogBoring.GenWell[VLOG::StickUp] = up;
        LogBoring.GenWell[7] = "20";
        const bool closed = Text(up) == ".5";
        CHECK((Diagram()[6] == "line 180,-180 360,-180 wide") == closed);
    }
}
