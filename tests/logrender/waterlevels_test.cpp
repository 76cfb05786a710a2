// waterlevels_test.cpp -- the narrow column of water levels.
#include "wellpage.h"

TEST_CASE("the water level column has a line across at each depth, with its mark on the line")
{
    StartWell();
    LogBoring.GenWell[VLOG::StickUp] = "2";
    LogBoring.GenWell[VLOG::WaterDepth1] = "5";
    LogBoring.GenWell[VLOG::WaterDepth2] = "12";
    LogBoring.GenWell[VLOG::OtherDepth] = "22";
    LogBoring.RepParts[1] = {"water level", "-"};
    VLOG::processrepparts();
    CHECK(Drawn() == Drawing{"text 60,-90 8pt W28 upward", "line 120,-60 120,-780", "line 120,-60 0,-60",
                             "rectangle 0,0 120,3600", "line 120,180 0,180", "polygon 34,135 86,135 60,180 black",
                             "line 120,600 0,600", "line 34,555 86,555", "line 86,555 60,600", "line 60,600 34,555",
                             "line 120,1200 0,1200", "polygon 30,1170 60,1140 90,1170 60,1200 black"});
    CHECK(EndsAtBaseline(0.2f));
}

TEST_CASE("a water level that is empty or at an end of the page is not drawn")
{
    StartWell();
    LogBoring.GenWell[VLOG::WaterDepth2] = "0";
    LogBoring.GenWell[VLOG::OtherDepth] = "67";
    VLOG::drawwaterlevels();
    CHECK(Drawn().size() == 4);
    CHECK(EndsAtBaseline(0.2f));
}

TEST_CASE("a negative stick-up lowers the water marks")
{
    StartWell();
    LogBoring.GenWell[VLOG::StickUp] = "-1.5";
    LogBoring.GenWell[VLOG::WaterDepth2] = "0";
    VLOG::drawwaterlevels();
    CHECK(Drawn()[4] == "line 120,90 0,90");
}

TEST_CASE("a water level of blanks is one at depth 0, from which the stick-up is taken off")
{
    StartWell();
    LogBoring.GenWell[VLOG::WaterDepth2] = "  ";
    VLOG::drawwaterlevels();
    CHECK(Drawn().size() == 4); // at the page's start: not drawn
    StartWell();
    LogBoring.GenWell[VLOG::StickUp] = "-2";
    LogBoring.GenWell[VLOG::WaterDepth2] = "  ";
    VLOG::drawwaterlevels();
    CHECK(Drawn(4) == Drawing{"line 120,120 0,120", "line 34,75 86,75", "line 86,75 60,120", "line 60,120 34,75"});
    CHECK(EndsAtBaseline(0.2f));
    StartWell();
    LogBoring.GenWell[VLOG::StickUp] = "-2"; // three empty cells
    VLOG::drawwaterlevels();
    CHECK(Drawn().size() == 4);
}
