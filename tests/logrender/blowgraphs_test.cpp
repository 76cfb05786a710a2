// blowgraphs_test.cpp -- the blow counts as curves, on a logarithmic and on a linear axis.
#include "columnpage.h"

#include "logrender/vlog.h"

static void AddBlows(float top, float bottom, const char* blows)
{
    AddSample(top, bottom);
    LogBoring.Samples[LogBoring.SampleCount].Blows = blows;
}

TEST_CASE("the blow count graph has ticks at 10 and 50, and grid lines at 10, 30, 50, 70 and 90")
{
    StartColumn();
    VLOG::drawblowgraph();
    // x = 180 * log10 of the value: 180, 265.9, 305.8, 332.1, 351.8
    CHECK(Drawn() == Drawing{"text 180,-300 8pt  W7  centred", "text 180,-210 8pt  W8  centred",
                             "line 360,-60 360,-780", "line 360,-60 0,-60", "line 180,-60 180,-90",
                             "text 180,-120 6pt 10 centred", "line 306,-60 306,-90", "text 306,-120 6pt 50 centred",
                             "rectangle 0,0 360,3600", "line 180,0 180,3600 dotted", "line 266,0 266,3600 dotted",
                             "line 306,0 306,3600 dotted", "line 332,0 332,3600 dotted", "line 352,0 352,3600 dotted"});
    CHECK(EndsAtBaseline(0.6f));
}

TEST_CASE("each blow count is a point in the middle of its part, and one line joins all of the page")
{
    StartColumn();
    AddBlows(0, 3, "10,100,1");
    AddBlows(10, 12, "150");
    AddBlows(20, 22, "");
    LogBoring.Samples[3].Blows = "-1";
    AddBlows(30, 32, "0");
    VLOG::drawblowgraph();
    CHECK(Drawn(14) == Drawing{"circle 180,30 12", "line 180,30 360,90", "circle 360,90 12", "line 360,90 0,150",
                               "circle 0,150 12", "line 0,150 360,660", "circle 360,660 12", "line 360,660 0,1860",
                               "circle 0,1860 12"});
}

TEST_CASE("a sample across a page break shows the points that fall on the page, from its true depths")
{
    StartColumn();
    LogPage.PageStartDepth = 20;
    AddBlows(20, 24, "10,20,40,60"); // true 16 to 24
    LogGeometry.SampleTopHeld = 16;
    VLOG::drawblowgraph2();
    CHECK(Drawn(20) == Drawing{"circle 300,60 12", "line 300,60 435,180", "circle 435,180 12"});
}

TEST_CASE("the wide blow count graph ends at 80 whatever its greatest count, with five centred numbers")
{
    StartColumn();
    AddBlows(0, 2, "40");
    AddBlows(10, 12, "200");
    AddBlows(20, 22, "0");
    VLOG::drawblowgraph2();
    CHECK(Drawn() == Drawing{"text 300,-300 8pt  W7  centred",
                             "text 300,-210 8pt  W8  centred",
                             "line 600,-60 600,-780",
                             "line 600,-60 0,-60",
                             "line 30,-60 30,-90",
                             "text 30,-120 6pt 0 centred",
                             "line 30,0 30,3600 dotted",
                             "line 165,-60 165,-90",
                             "text 165,-120 6pt 20 centred",
                             "line 165,0 165,3600 dotted",
                             "line 300,-60 300,-90",
                             "text 300,-120 6pt 40 centred",
                             "line 300,0 300,3600 dotted",
                             "line 435,-60 435,-90",
                             "text 435,-120 6pt 60 centred",
                             "line 435,0 435,3600 dotted",
                             "line 570,-60 570,-90",
                             "text 570,-120 6pt 80 centred",
                             "line 570,0 570,3600 dotted",
                             "rectangle 0,0 600,3600",
                             "circle 300,60 12",
                             "line 300,60 570,660",
                             "circle 570,660 12",
                             "line 570,660 30,1260",
                             "circle 30,1260 12"});
    CHECK(EndsAtBaseline(1));
}

TEST_CASE("a sample without blow counts has no point in either graph")
{
    StartColumn();
    AddSample(0, 2);
    VLOG::drawblowgraph();
    CHECK(Drawn().size() == 14);
    StartColumn();
    AddSample(0, 2);
    VLOG::drawblowgraph2();
    CHECK(Drawn().size() == 20);
}
