// welldiagram_test.cpp -- the well diagram: heading, annulus, pipes, water marks and the room that it takes.
#include "wellpage.h"

#include "canvas/metaugl.h"
#include "report/heading.h"

TEST_CASE("a well diagram has the elevation, the well's name, and a line on its right when a column follows")
{
    StartWell();
    LogBoring.GenWell[1] = "MW-1";
    LogBoring.GenWell[VLOG::RefElevation] = "101.5";
    LogBoring.RepParts[1].Item = "GW";
    LogBoring.RepParts[2].Item = "REMARKS";
    VLOG::drawgw();
    CHECK(Drawn() == Drawing{"line 960,-60 960,-780", "text 90,-330 8pt Elev.: 101.5", "text 90,-420 8pt Well: MW-1"});
    CHECK(EndsAtBaseline(1.6f));
    StartWell();
    HeadingWords[5] = "";
    LogBoring.GenWell[VLOG::RefElevation] = "101.5";
    VLOG::drawgw();
    CHECK(Drawn() == Drawing{"text 90,-330 8pt 101.5", "text 90,-420 8pt Well: "});
    CHECK(EndsAtBaseline(1.6f));
}

TEST_CASE("the last of 30 report parts has no line on its right")
{
    StartWell();
    LogGeometry.ColumnNumber = 30;
    VLOG::drawgw();
    CHECK(Drawn().size() == 2);
    CHECK(Messages.empty());
}

TEST_CASE("several wells are named from the last to the first, with numbers where the word is one for a well")
{
    StartWell();
    LogBoring.GenWell[1] = "A";
    LogBoring.GenWell[3] = "C";
    VLOG::drawgw();
    CHECK(Drawn() == Drawing{"text 90,-330 8pt Elev.: ", "text 90,-420 8pt Well 3: C",
                             "text 90,-510 8pt Well 2: ", "text 90,-600 8pt Well 1: A"});
    StartWell();
    HeadingWords[13] = "Piezometer";
    LogBoring.GenWell[1] = "A";
    LogBoring.GenWell[2] = "B";
    VLOG::drawgw();
    CHECK(DrawnTexts() == Drawing{"Elev.: ", "Piezometer: B", "Piezometer: A"});
}

TEST_CASE("one well has an annulus of 0.3, three of 0.66, and the diagram grows by 0.18 for the third")
{
    StartWell(Small);
    LogBoring.GenWell[1] = "A";
    VLOG::drawgw();
    CHECK(LogGeometry.ColumnWidth == 0.3f);
    CHECK(EndsAtBaseline(1));
    StartWell(Small);
    LogBoring.GenWell[3] = "C";
    VLOG::drawgw();
    CHECK(LogGeometry.ColumnWidth == 0.66f);
    CHECK(EndsAtBaseline(1.18f));
    StartWell();
    LogBoring.GenWell[4] = "D";
    VLOG::drawgw();
    CHECK(LogGeometry.ColumnWidth == 0.84f);
    CHECK(EndsAtBaseline(1.96f));
}

TEST_CASE("a layer fills the annulus, with a leader line from its middle to its text")
{
    StartWell();
    AddLayer("10", "20", "Sand", "", "F3");
    CHECK(Diagram() ==
          Drawing{"polygon 120,600 300,600 300,1200 120,1200 F23", "line 300,900 360,900", "text 372,900 8pt Sand"});
    CHECK(EndsAtBaseline(1.6f));
}

TEST_CASE("the small form prints the depth of a layer's end")
{
    StartWell(Small);
    AddLayer("10", "20", "Sand", "", "F3,TAN1");
    CHECK(Diagram() == Drawing{"polygon 120,600 300,600 300,1200 120,1200 F23 in 210 180 150", "line 300,1200 330,1200",
                               "text 342,1200 7pt 20"});
    CHECK(EndsAtBaseline(1));
}

TEST_CASE("a layer is cut at the page's ends, and one that only touches the page is not drawn")
{
    StartWell();
    LogPage.PageStartDepth = 20;
    LogPage.PageEndDepth = 40;
    AddLayer("10", "20", "above", "", "F1");
    AddLayer("10", "30", "cut", "", "F1");
    AddLayer("30", "50", "cut too", "", "F2,");
    AddLayer("40", "50", "below", "", "F2");
    CHECK(Diagram() == Drawing{"polygon 120,0 300,0 300,600 120,600 F21", "line 300,300 360,300",
                               "text 372,300 8pt cut", "polygon 120,600 300,600 300,1200 120,1200 F22",
                               "line 300,900 360,900", "text 372,900 8pt cut too"});
}

TEST_CASE("a layer with end 0 draws at its start only: no fill, and the label there")
{
    StartWell();
    AddLayer("10", "0", "Weep hole", "", "F1");
    AddLayer("12", "", "", "", "F1");
    CHECK(Diagram() == Drawing{"line 300,600 360,600", "text 372,600 8pt Weep hole"});
}

TEST_CASE("a label cell N leaves out leader and text, and a number lifts them by tenths of an inch")
{
    StartWell();
    AddLayer("10", "20", "Sand", " n ", "F3");
    AddLayer("20", "30", "Grout", "2", "F3");
    AddLayer("30", "40", "Seal", "-1.5", "F3");
    AddLayer("40", "50", "", "2", "F3");
    const Drawing drawn = Diagram();
    CHECK(drawn == Drawing{"polygon 120,600 300,600 300,1200 120,1200 F23",
                           "polygon 120,1200 300,1200 300,1800 120,1800 F23", "line 300,1380 360,1380",
                           "text 372,1380 8pt Grout", "polygon 120,1800 300,1800 300,2400 120,2400 F23",
                           "line 300,2190 360,2190", "text 372,2190 8pt Seal",
                           "polygon 120,2400 300,2400 300,3000 120,3000 F23"});
    StartWell(Small);
    AddLayer("20", "30", "Grout", "2", "F3");
    CHECK(Diagram()[1] == "line 300,1680 330,1680");
}

TEST_CASE("a packer is a black block with wings at its top and bottom on both sides")
{
    StartWell();
    AddLayer("10", "12", "Packer", "N");
    CHECK(Diagram() == Drawing{"polygon 120,600 300,600 300,720 120,720 black", "polygon 120,600 48,600 120,672 black",
                               "polygon 300,600 372,600 300,672 black", "polygon 120,720 48,720 120,648 black",
                               "polygon 300,720 372,720 300,648 black"});
}

TEST_CASE("a centralizer is a black triangle on each side at the layer's top, named without its offset")
{
    StartWell();
    AddLayer("10", "", "Centralizer", "");
    CHECK(Diagram() == Drawing{"polygon 120,600 60,540 60,660 black", "polygon 300,600 360,540 360,660 black",
                               "line 300,600 360,600", "text 372,600 8pt Centralizer"});
    StartWell();
    AddLayer("10", "", "Centralizer, 2", "");
    CHECK(Diagram() == Drawing{"polygon 120,720 60,660 60,780 black", "polygon 540,720 600,660 600,780 black",
                               "line 420,600 480,600", "text 492,600 8pt Centralizer"});
}

TEST_CASE("leader lines clear the casings at their depth, a centralizer's by its offset less")
{
    StartWell();
    LogBoring.GenWell[7] = "20";
    LogBoring.GenWell[8] = "10";
    AddLayer("8", "12", "a", "", "F3");            // at 10, above the second casing's end of 10.5
    AddLayer("20", "22", "b", "", "F3");           // at 21, below all
    AddLayer("20", "22", "c", "1", "F3");          // lifted to 20, above the first casing's end of 20.5
    AddLayer("5", "", "centralizer, 1", "", "F3"); // a fill of its own
    const Drawing drawn = Diagram();
    // the annulus begins at 240 and ends at 420
    CHECK(drawn[1] == "line 420,600 570,600");
    CHECK(drawn[4] == "line 420,1260 480,1260");
    CHECK(drawn[7] == "line 420,1200 510,1200");
    CHECK(drawn[9] == "line 480,300 570,300");
}

TEST_CASE("findscwidth is 0 at and above the page's start and below every casing")
{
    StartWell();
    LogBoring.GenWell[7] = "20";
    LogBoring.GenWell[9] = "10";
    CHECK(VLOG::findscwidth(0) == 0);
    CHECK(VLOG::findscwidth(10.4) == 0.25);
    CHECK(VLOG::findscwidth(10.5) == 0.05);
    CHECK(VLOG::findscwidth(20.5) == 0);
    CHECK(VLOG::findscwidth(5, 2) == doctest::Approx(0.05));
    LogPage.PageStartDepth = 15;
    CHECK(VLOG::findscwidth(5.4) == 0.05);
}

TEST_CASE("a pipe has its ground whitened, its fill and its outline, and a leader from its right side")
{
    StartWell();
    AddRing("5", "15", "Riser", "", "M,F2");
    CHECK(Diagram() == Drawing{"polygon 183,300 237,300 237,900 183,900 white",
                               "polygon 183,300 237,300 237,900 183,900 F0.bmp",
                               "polygon 183,300 237,300 237,900 183,900 F22", "rectangle 183,300 237,900",
                               "line 228,600 360,600", "text 372,600 8pt Riser"});
    CHECK(EndsAtBaseline(1.6f));
}

TEST_CASE("a screen and a pump have patterns of their own, a pipe without text or fill none")
{
    StartWell();
    AddRing("5", "15", "0.010 Slot Screen", "N", "S,F2");
    AddRing("15", "20", "pump", "N", "S");
    AddRing("20", "25", "", "", "S,F2");
    AddRing("25", "30", "Riser", "N", "S");
    const Drawing drawn = Diagram();
    CHECK(drawn[2] == "polygon 192,300 228,300 228,900 192,900 F06");
    CHECK(drawn[6] == "polygon 192,900 228,900 228,1200 192,1200 F19");
    CHECK(drawn[10] == "rectangle 192,1200 228,1500");
    CHECK(drawn[13] == "rectangle 192,1500 228,1800");
    CHECK(drawn.size() == 14);
}

TEST_CASE("the small form prints a pipe's end, and a screen's start too, whatever number the label cell has")
{
    StartWell(Small);
    AddRing("0", "5", "Riser", "3", "S");
    AddRing("5", "15", "Screen", "", "S");
    const Drawing drawn = Diagram();
    CHECK(Drawing(drawn.begin() + 3, drawn.begin() + 5) == Drawing{"line 228,300 330,300", "text 342,300 7pt 5"});
    CHECK(Drawing(drawn.begin() + 9, drawn.end()) ==
          Drawing{"line 228,900 330,900", "text 342,900 7pt 15", "line 228,300 330,300", "text 342,300 7pt 5"});
}

TEST_CASE("a pipe's width stays until another letter, and one that is none of the three is the smallest")
{
    StartWell();
    AddRing("0", "5", "");
    AddRing("5", "10", "", "", "L");
    AddRing("10", "15", "", "", ",F2");
    AddRing("15", "20", "", "", "m");
    AddRing("20", "25", "", "", "X");
    const Drawing drawn = Diagram();
    CHECK(drawn[2] == "rectangle 192,0 228,300");
    CHECK(drawn[5] == "rectangle 174,300 246,600");
    CHECK(drawn[8] == "rectangle 174,600 246,900");
    CHECK(drawn[11] == "rectangle 183,900 237,1200");
    CHECK(drawn[14] == "rectangle 192,1200 228,1500");
}

TEST_CASE("a row of a pipe that is not on the page does not change the width of those that are")
{
    StartWell();
    LogPage.PageStartDepth = 20;
    LogPage.PageEndDepth = 40;
    AddRing("0", "5", "", "", "L");
    AddRing("5", "10", "", "", "S");
    AddRing("10", "30", "");
    CHECK(Diagram()[2] == "rectangle 174,0 246,600");
}

TEST_CASE("a marker row moves the pipes behind it to the next well of the hole, and draws nothing")
{
    StartWell();
    LogBoring.GenWell[2] = "B"; // an annulus of 0.48
    AddRing("0", "5", "a");
    AddRing("", "", " @ ");
    AddRing("0", "10", "b");
    AddRing(" @2", "", "");
    AddRing("0", "15", "");
    VLOG::drawgw();
    CHECK(Drawn(3) == Drawing{"polygon 192,0 228,0 228,300 192,300 white", "polygon 192,0 228,0 228,300 192,300 F0.bmp",
                              "rectangle 192,0 228,300", "line 228,150 468,150", "text 480,150 8pt a",
                              "polygon 300,0 336,0 336,600 300,600 white", "polygon 300,0 336,0 336,600 300,600 F0.bmp",
                              "rectangle 300,0 336,600", "line 336,300 468,300", "text 480,300 8pt b",
                              "polygon 408,0 444,0 444,900 408,900 white", "polygon 408,0 444,0 444,900 408,900 F0.bmp",
                              "rectangle 408,0 444,900"});
}

TEST_CASE("the marker of the first row may tell the width of the pipes")
{
    StartWell();
    AddRing("@", "", "", "", "L");
    AddRing("0", "5", "");
    CHECK(Diagram()[2] == "rectangle 282,0 354,300");
}

TEST_CASE("above ground a pipe takes a quarter inch at most, and keeps its lower end")
{
    StartWell();
    AddRing("-5", "10", "", "", "S");
    AddRing("-5", "-1", "", "", "S");
    AddRing("-2", "-1", "", "", "S");
    AddRing("-5", "0", "", "", "S");
    AddRing("-2", "100", "", "", "S");
    const Drawing drawn = Diagram();
    CHECK(drawn[2] == "rectangle 192,-150 228,600");
    CHECK(drawn[5] == "rectangle 192,-150 228,-30");
    CHECK(drawn[8] == "rectangle 192,-120 228,-60");
    CHECK(drawn[9] == "rectangle 192,-150 228,-150");
    CHECK(drawn[12] == "rectangle 192,-120 228,4020");
    CHECK(drawn.size() == 13);
}

TEST_CASE("on a later page pipes are cut at its ends, and the last row shows even where it does not belong")
{
    StartWell();
    LogPage.PageStartDepth = 20;
    LogPage.PageEndDepth = 40;
    AddRing("-2", "50", "", "", "S");
    AddRing("0", "10", "");
    AddRing("0", "10", "Screen");
    CHECK(Diagram() == Drawing{"polygon 192,0 228,0 228,1200 192,1200 white",
                               "polygon 192,0 228,0 228,1200 192,1200 F0.bmp", "rectangle 192,0 228,1200",
                               "rectangle 192,0 228,0", "line 228,0 360,0", "text 372,0 8pt Screen"});
}

TEST_CASE("water depths count from the top of the pipe, and each has its mark left of the annulus")
{
    StartWell();
    LogBoring.GenWell[VLOG::StickUp] = "2";
    LogBoring.GenWell[VLOG::WaterDepth1] = "5";
    LogBoring.GenWell[VLOG::WaterDepth2] = "12";
    LogBoring.GenWell[VLOG::OtherDepth] = "22";
    CHECK(Diagram() == Drawing{"line 90,180 -6,180", "polygon 21,144 63,144 42,180 black", "line 90,600 -6,600",
                               "line 21,564 63,564", "line 63,564 42,600", "line 42,600 21,564", "line 90,1200 -6,1200",
                               "polygon 18,1176 42,1152 66,1176 42,1200 black"});
    CHECK(EndsAtBaseline(1.6f));
}

TEST_CASE("water marks stand clear of the casings, and those off the page are not drawn")
{
    StartWell(Small);
    LogPage.PageStartDepth = 5;
    LogPage.PageEndDepth = 15;
    LogBoring.GenWell[7] = "7";
    LogBoring.GenWell[VLOG::WaterDepth1] = "5";
    LogBoring.GenWell[VLOG::WaterDepth2] = "7";
    LogBoring.GenWell[VLOG::OtherDepth] = "15";
    const Drawing drawn = Diagram();
    CHECK(Drawing(drawn.end() - 4, drawn.end()) ==
          Drawing{"line 120,120 24,120", "line 51,84 93,84", "line 93,84 72,120", "line 72,120 51,84"});
}

TEST_CASE("a water depth of blanks has its mark where the stick-up puts it, and an empty one has none")
{
    StartWell();
    LogBoring.GenWell[VLOG::StickUp] = "-2";
    CHECK(Diagram() == Drawing{});
    StartWell();
    LogBoring.GenWell[VLOG::StickUp] = "-2";
    LogBoring.GenWell[VLOG::WaterDepth1] = " ";
    CHECK(Diagram() == Drawing{"line 90,120 -6,120", "polygon 21,84 63,84 42,120 black"});
}

TEST_CASE("the names of report parts choose the form of the diagram")
{
    for (const char* item : {"GW", "well diagram"}) {
        StartWell(Small);
        LogBoring.RepParts[1] = {item, "9"};
        VLOG::processrepparts();
        CHECK(EndsAtBaseline(1.6f));
    }
    for (const char* item : {"sgw", "WELL DIAGRAM-SMALL"}) {
        StartWell(Large);
        LogBoring.GenWell[4] = "D";
        LogBoring.RepParts[1] = {item, "9"};
        VLOG::processrepparts();
        CHECK(EndsAtBaseline(1.36f));
    }
    CHECK(Messages.empty());
}

TEST_CASE("two wells are numbered, and one is not")
{
    StartWell();
    LogBoring.GenWell[1] = "A";
    LogBoring.GenWell[2] = "B";
    VLOG::drawgw();
    CHECK(DrawnTexts() == Drawing{"Elev.: ", "Well 2: B", "Well 1: A"});
    StartWell();
    LogBoring.GenWell[1] = "A";
    VLOG::drawgw();
    CHECK(DrawnTexts() == Drawing{"Elev.: ", "Well: A"});
}
