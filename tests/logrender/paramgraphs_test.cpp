// paramgraphs_test.cpp -- the graphs of sample parameters. A column 1 inch wide has its axis from 30 to 570, so that
// 0 to 100 is 5.4 units for each 1; depths are 60 units to the foot.
#include "columnpage.h"

#include "canvas/pageobjects.h"
#include "logrender/vlog.h"

// A graph of parameter 1 on 0 to 100 by 20, with one sample of 2 feet for each value, at depths 1, 11, 21 ...
static void SetGraph(std::initializer_list<const char*> values, LogParamSetup setup = Setup(0, 100, 20))
{
    StartColumn();
    LogGeometry.ParamNumber[1] = 1;
    LogBoring.SampleSetup[1] = setup;
    float top = 0;
    for (const char* value : values) {
        AddSample(top, top + 2);
        LogBoring.Samples[LogBoring.SampleCount].Param[1] = value;
        top += 10;
    }
}

// What stands before the points on 0 to 100 by 20 with no heading.
static constexpr size_t AxisObjects = 2 + 2 + 6 * 3 + 1;

static Drawing Points()
{
    VLOG::drawpargraph(1);
    CHECK(EndsAtBaseline(1));
    return Drawn(AxisObjects);
}

TEST_CASE("a graph from 0 to 100 by 20 has six ticks, the first number left and the last right aligned")
{
    SetGraph({});
    LogBoring.SampleSetup[1].Split[1] = "Water";
    LogBoring.SampleSetup[1].Split[2] = "Content";
    LogBoring.SampleSetup[1].Split[3] = "%";
    VLOG::drawpargraph(1);
    CHECK(Drawn() == Drawing{"text 300,-360 8pt  Water  centred",
                             "text 300,-285 8pt  Content  centred",
                             "text 300,-210 8pt  %  centred",
                             "line 600,-60 600,-780",
                             "line 600,-60 0,-60",
                             "line 30,-60 30,-84",
                             "text 48,-126 6pt 0",
                             "line 30,0 30,3600 dotted",
                             "line 138,-60 138,-84",
                             "text 138,-126 6pt 20 centred",
                             "line 138,0 138,3600 dotted",
                             "line 246,-60 246,-84",
                             "text 246,-126 6pt 40 centred",
                             "line 246,0 246,3600 dotted",
                             "line 354,-60 354,-84",
                             "text 354,-126 6pt 60 centred",
                             "line 354,0 354,3600 dotted",
                             "line 462,-60 462,-84",
                             "text 462,-126 6pt 80 centred",
                             "line 462,0 462,3600 dotted",
                             "line 570,-60 570,-84",
                             "text 552,-126 6pt 100 right",
                             "line 570,0 570,3600 dotted",
                             "rectangle 0,0 600,3600"});
    CHECK(EndsAtBaseline(1));
}

TEST_CASE("an empty first heading line adds nothing, and the other two keep their places")
{
    SetGraph({});
    LogBoring.SampleSetup[1].Split[3] = "%";
    VLOG::drawpargraph(1);
    const Drawing drawn = Drawn();
    CHECK(drawn[0] == "text 300,-285 8pt    centred");
    CHECK(drawn[1] == "text 300,-210 8pt  %  centred");
    CHECK(drawn[2] == "line 600,-60 600,-780");
}

TEST_CASE("an axis whose increment does not reach its end stops at the last whole tick")
{
    SetGraph({}, Setup(10, 50, 15));
    VLOG::drawpargraph(1);
    CHECK(DrawnTexts() == Drawing{"  ", "  ", "10", "25", "40"});
    CHECK(Drawn()[10] == "line 435,-60 435,-84");
    CHECK(Drawn()[11] == "text 417,-126 6pt 40 right");
}

TEST_CASE("ticks of a tenth are counted in 32 bits, so that none is lost")
{
    SetGraph({}, Setup(0, 0.7f, 0.1f));
    VLOG::drawpargraph(1);
    CHECK(DrawnTexts() == Drawing{"  ", "  ", "0", ".1", ".2", ".3", ".4", ".5", ".6", ".7"});
}

TEST_CASE("an increment larger than the axis leaves one tick, whose number is the first one")
{
    SetGraph({}, Setup(5, 10, 20));
    VLOG::drawpargraph(1);
    CHECK(Drawn(4) ==
          Drawing{"line 30,-60 30,-84", "text 48,-126 6pt 5", "line 30,0 30,3600 dotted", "rectangle 0,0 600,3600"});
}

TEST_CASE("the curve joins the middles of the samples by a line, with a circle at each")
{
    SetGraph({"0", "50", "100"});
    CHECK(Points() == Drawing{"circle 30,60 18", "line 30,60 300,660", "circle 300,660 18", "line 300,660 570,1260",
                              "circle 570,1260 18"});
}

TEST_CASE("a sample that the page cuts has its point in the middle of what is left of it")
{
    SetGraph({"50"});
    LogPage.PageStartDepth = 20;
    LogBoring.Samples[1].Top = 20;
    LogBoring.Samples[1].Bottom = 22;
    LogGeometry.SampleTopHeld = 18;
    CHECK(Points() == Drawing{"circle 300,60 18"});
}

TEST_CASE("a value beyond an end of the axis stands at that end with a solid dot, and the next is open again")
{
    SetGraph({"150", "50", "-3"});
    CHECK(Points() == Drawing{"dot 570,60 18", "line 570,60 300,660", "circle 300,660 18", "line 300,660 30,1260",
                              "dot 30,1260 18"});
}

TEST_CASE("a value at the end of an axis of tenths is not beyond it")
{
    SetGraph({"0.7", ".1"}, Setup(0.1f, 0.7f, 0.7f));
    VLOG::drawpargraph(1);
    CHECK(Drawn(2 + 2 + 3 + 1) == Drawing{"circle 570,60 18", "line 570,60 30,660", "circle 30,660 18"});
}

TEST_CASE("three numbers draw a dot with a bar from low to high, and the curve starts anew at the next sample")
{
    SetGraph({"20", "12,8,15", "50", "60"});
    CHECK(Points() == Drawing{"circle 138,60 18", "dot 95,660 18", "line 73,630 73,690", "line 73,660 111,660",
                              "line 111,630 111,690", "circle 300,1260 18", "line 300,1260 354,1860",
                              "circle 354,1860 18"});
}

TEST_CASE("a bar is held within the axis, and that does not blacken the next point")
{
    SetGraph({"90,-5,150,7", "50"});
    CHECK(Points() ==
          Drawing{"dot 516,60 18", "line 30,30 30,90", "line 30,60 570,60", "line 570,30 570,90", "circle 300,660 18"});
}

TEST_CASE("with two numbers the first counts, as a plain point that starts a new line")
{
    SetGraph({"20", "50,60", "80"});
    CHECK(Points() == Drawing{"circle 138,60 18", "circle 300,660 18", "line 300,660 462,1260", "circle 462,1260 18"});
}

TEST_CASE("with the no-lines flag a graph has circles only")
{
    LogParamSetup setup = Setup(0, 100, 20);
    setup.NoLines = true;
    SetGraph({"0", "50", "100"}, setup);
    CHECK(Points() == Drawing{"circle 30,60 18", "circle 300,660 18", "circle 570,1260 18"});
}

TEST_CASE("an empty value breaks no line: the curve joins the points on both sides")
{
    SetGraph({"0", "", "100"});
    CHECK(Points() == Drawing{"circle 30,60 18", "line 30,60 570,1260", "circle 570,1260 18"});
}

TEST_CASE("a value text without a number counts as 0")
{
    SetGraph({"n.d."});
    CHECK(Points() == Drawing{"circle 30,60 18"});
}

TEST_CASE("a graph on a page without samples is an empty box")
{
    SetGraph({"50"});
    LogGeometry.SampleFirst = LogGeometry.SampleLast = 0;
    CHECK(Points() == Drawing{});
}

TEST_CASE("an axis that falls to the right places its values between its ends")
{
    SetGraph({"100", "75", "-1"}, Setup(100, 0, -50));
    VLOG::drawpargraph(1);
    CHECK(DrawnTexts() == Drawing{"  ", "  ", "100", "50", "0"});
    CHECK(Drawn(2 + 2 + 3 * 3 + 1) == Drawing{"circle 30,60 18", "line 30,60 165,660", "circle 165,660 18",
                                              "line 165,660 570,1260", "dot 570,1260 18"});
}

TEST_CASE("a start of -999 makes decades from 1 to 1000, each with its power beside the 10")
{
    SetGraph({}, Setup(-999, 0, 3));
    VLOG::drawpargraph(1);
    CHECK(Drawn(4) == Drawing{"line 30,-60 30,-84", "text 30,-126 6pt  10  centred", "text 48,-156 6pt 0 centred",
                              "line 30,0 30,3600 dotted", "line 210,-60 210,-84", "text 210,-126 6pt  10  centred",
                              "text 240,-156 6pt 1 centred", "line 210,0 210,3600 dotted", "line 390,-60 390,-84",
                              "text 390,-126 6pt  10  centred", "text 420,-156 6pt 2 centred",
                              "line 390,0 390,3600 dotted", "line 570,-60 570,-84", "text 570,-126 6pt  10  centred",
                              "text 600,-156 6pt 3 centred", "line 570,0 570,3600 dotted", "rectangle 0,0 600,3600"});
    CHECK(EndsAtBaseline(1));
}

TEST_CASE("on a logarithmic axis a value stands at its logarithm, and one beyond the ends is a solid dot")
{
    SetGraph({"10", "1000", "1001", "1", "0.5", "-20", "100,10,1000"}, Setup(-999, 0, 3));
    VLOG::drawpargraph(1);
    CHECK(Drawn(4 + 4 * 4 + 1) ==
          Drawing{"circle 210,60 18", "line 210,60 570,660", "circle 570,660 18", "line 570,660 570,1260",
                  "dot 570,1260 18", "line 570,1260 30,1860", "circle 30,1860 18", "line 30,1860 30,2460",
                  "dot 30,2460 18", "line 30,2460 30,3060", "dot 30,3060 18", "dot 390,3660 18",
                  "line 210,3630 210,3690", "line 210,3660 570,3660", "line 570,3630 570,3690"});
}

TEST_CASE("a logarithmic axis begins at any power, and its ends count as on it")
{
    SetGraph({"0.01", "0.1", "1"}, Setup(-999, -2, 0));
    VLOG::drawpargraph(1);
    CHECK(DrawnTexts() == Drawing{"  ", "  ", " 10 ", "-2", " 10 ", "-1", " 10 ", "0"});
    CHECK(Drawn(4 + 3 * 4 + 1) == Drawing{"circle 30,60 18", "line 30,60 300,660", "circle 300,660 18",
                                          "line 300,660 570,1260", "circle 570,1260 18"});
}

TEST_CASE("a logarithmic axis of less than one decade has three, and holds its values within them")
{
    SetGraph({"5000"}, Setup(-999, 2, 2));
    VLOG::drawpargraph(1);
    CHECK(DrawnTexts() == Drawing{"  ", "  ", " 10 ", "2", " 10 ", "3", " 10 ", "4", " 10 ", "5"});
    CHECK(Drawn(4 + 4 * 4 + 1) == Drawing{"circle 336,60 18"}); // 30 + 180 * (3.69897 - 2)
}

TEST_CASE("an axis of no length is told as a division by zero, and the columns behind it are misplaced but drawn")
{
    SetGraph({"5"}, Setup(5, 5, 1));
    VLOG::drawpargraph(1);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 11 in drawpargraph.  Please contact Norvane");
    Messages.clear();
    const size_t before = PageList.Objects.size();
    LogBoring.RepParts[1] = {"lab number", "-"};
    LogGeometry.ColumnNumber = 1;
    VLOG::processrepparts();
    CHECK(Messages.empty());
    CHECK(PageList.Objects.size() > before);
    CHECK(PageCanvasScales() == "1 1");
}

TEST_CASE("more ticks than 16 bits count are told as an overflow, and none is drawn")
{
    SetGraph({}, Setup(0, 40000, 1));
    VLOG::drawpargraph(1);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 6 in drawpargraph.  Please contact Norvane");
    CHECK(Drawn().size() == 4);
    SetGraph({}, Setup(-999, 0, 1e9f));
    VLOG::drawpargraph(1);
    CHECK(Messages[1].words == "Error 6 in drawpargraph.  Please contact Norvane");
    Messages.clear();
}

TEST_CASE("a column of no width is drawn about its left edge without a failure")
{
    SetGraph({"5"}, Setup(-999, 0, 3));
    VLOG::drawpargraph(0);
    CHECK(EndsAtBaseline(0));
    SetGraph({"5"});
    VLOG::drawpargraph(0);
    CHECK(EndsAtBaseline(0));
    CHECK(Messages.empty());
}

TEST_CASE("an increment against the direction of the axis draws no ticks")
{
    SetGraph({"50"}, Setup(0, 100, -20));
    VLOG::drawpargraph(1);
    CHECK(Drawn(4) == Drawing{"rectangle 0,0 600,3600", "circle 300,60 18"});
    CHECK(EndsAtBaseline(1));
}

// Parameters 1 to 4 with their headings A to D; axis 0 to 100 by 50 for all.
static void SetCurves(int first = 1)
{
    StartColumn();
    for (int n = 1; n <= 4; ++n) {
        LogBoring.SampleSetup[n] = Setup(0, 100, 50);
        LogBoring.SampleSetup[n].Heading = Text(1, static_cast<char>('A' + n - 1));
        LogGeometry.ParamNumber[n] = static_cast<int16_t>(first + n - 1 <= 16 ? first + n - 1 : 0);
    }
}

TEST_CASE("two curves have their marks as a key beside their headings, and one axis")
{
    SetCurves();
    VLOG::draw2pargraph();
    CHECK(Drawn() == Drawing{"circle 90,-318 24", "text 132,-330 8pt A", "text 132,-240 8pt B", "line 64,-213 116,-213",
                             "line 116,-213 90,-258", "line 90,-258 64,-213", "line 600,-60 600,-780",
                             "line 600,-60 0,-60", "line 30,-60 30,-84", "text 48,-126 6pt 0",
                             "line 30,0 30,3600 dotted", "line 300,-60 300,-84", "text 300,-126 6pt 50 centred",
                             "line 300,0 300,3600 dotted", "line 570,-60 570,-84", "text 552,-126 6pt 100 right",
                             "line 570,0 570,3600 dotted", "rectangle 0,0 600,3600"});
    CHECK(EndsAtBaseline(1));
}

TEST_CASE("the axis of two curves is the first one's only when that reaches further")
{
    SetCurves();
    LogBoring.SampleSetup[1] = Setup(0, 200, 100);
    VLOG::draw2pargraph();
    CHECK(DrawnTexts() == Drawing{"", "B", "0", "100", "200"});
    SetCurves();
    LogBoring.SampleSetup[1] = Setup(50, 100, 50);
    VLOG::draw2pargraph();
    CHECK(DrawnTexts() == Drawing{"", "B", "0", "50", "100"});
}

TEST_CASE("two curves: circles for the first, triangles for the second, no mark for a value beyond the axis")
{
    SetCurves();
    AddSample(0, 2);
    AddSample(10, 12);
    LogBoring.Samples[1].Param[1] = "50";
    LogBoring.Samples[2].Param[1] = "150";
    LogBoring.Samples[1].Param[2] = "0";
    LogBoring.Samples[2].Param[2] = "100";
    VLOG::draw2pargraph();
    CHECK(Drawn(18) == Drawing{"circle 300,60 24", "line 300,60 570,660", "circle 570,660 24",
                               // 0.866 * 0.05 and half of 0.05 inch about the point
                               "line 4,75 56,75", "line 56,75 30,30", "line 30,30 4,75", "line 30,60 570,660",
                               "line 544,675 596,675", "line 596,675 570,630", "line 570,630 544,675"});
}

TEST_CASE("two curves: a bar has a solid mark, and half a triple begins a new line")
{
    SetCurves();
    for (float top : {0.0f, 10.0f, 20.0f, 30.0f})
        AddSample(top, top + 2);
    const char* const values[] = {"10", "50,20,80", "20", "30,1"};
    for (int i = 1; i <= 4; ++i)
        LogBoring.Samples[i].Param[1] = values[i - 1];
    LogBoring.Samples[2].Param[2] = "50,0,100";
    VLOG::draw2pargraph();
    CHECK(Drawn(18) == Drawing{"circle 84,60 24", "dot 300,660 24", "line 138,630 138,690", "line 138,660 462,660",
                               "line 462,630 462,690", "circle 138,1260 24", "circle 192,1860 24",
                               "polygon 274,675 326,675 300,630 black", "line 30,630 30,690", "line 30,660 570,660",
                               "line 570,630 570,690"});
}

TEST_CASE("parameters 3 and 4 have the marks of 1 and 2 in their own column")
{
    SetCurves(3);
    AddSample(0, 2);
    LogBoring.Samples[1].Param[3] = "50";
    LogBoring.Samples[1].Param[4] = "50";
    VLOG::draw2pargraph();
    CHECK(DrawnTexts() == Drawing{"C", "D", "0", "50", "100"});
    CHECK(Drawn(18) == Drawing{"circle 300,60 24", "line 274,75 326,75", "line 326,75 300,30", "line 300,30 274,75"});
}

TEST_CASE("four curves have two pairs of marks in the key, centred numbers, and a margin of a tenth")
{
    SetCurves();
    VLOG::draw4pargraph();
    CHECK(Drawn() == Drawing{"circle 90,-318 24",
                             "text 132,-330 8pt A",
                             "text 132,-240 8pt B",
                             "line 64,-213 116,-213",
                             "line 116,-213 90,-258",
                             "line 90,-258 64,-213",
                             "dot 630,-318 24",
                             "text 672,-330 8pt C",
                             "text 672,-240 8pt D",
                             "polygon 604,-213 656,-213 630,-258 black",
                             "line 1200,-60 1200,-780",
                             "line 1200,-60 0,-60",
                             "line 60,-60 60,-84",
                             "text 60,-126 6pt 0 centred",
                             "line 60,0 60,3600 dotted",
                             "line 600,-60 600,-84",
                             "text 600,-126 6pt 50 centred",
                             "line 600,0 600,3600 dotted",
                             "line 1140,-60 1140,-84",
                             "text 1140,-126 6pt 100 centred",
                             "line 1140,0 1140,3600 dotted",
                             "rectangle 0,0 1200,3600"});
    CHECK(EndsAtBaseline(2));
}

TEST_CASE("four curves: the axis that reaches furthest serves all, and of equals the lowest number keeps it")
{
    SetCurves();
    LogBoring.SampleSetup[2] = Setup(0, 300, 150);
    LogBoring.SampleSetup[4] = Setup(0, 300, 100);
    VLOG::draw4pargraph();
    CHECK(DrawnTexts() == Drawing{"A", "", "C", "", "0", "150", "300"});
}

TEST_CASE("four curves: each has its own mark, and a value text counts by the number at its front")
{
    SetCurves();
    AddSample(0, 2);
    AddSample(10, 12);
    AddSample(20, 22);
    LogBoring.Samples[1].Param[1] = "0";
    LogBoring.Samples[3].Param[1] = "50,0,100";
    LogBoring.Samples[1].Param[2] = "50";
    LogBoring.Samples[1].Param[3] = "100";
    LogBoring.Samples[2].Param[3] = "200";
    LogBoring.Samples[2].Param[4] = "0";
    VLOG::draw4pargraph();
    CHECK(Drawn(22) == Drawing{"circle 60,60 24", "line 60,60 600,1260", "circle 600,1260 24", "line 574,75 626,75",
                               "line 626,75 600,30", "line 600,30 574,75", "dot 1140,60 24", "line 1140,60 1140,660",
                               "dot 1140,660 24", "polygon 34,675 86,675 60,630 black"});
}

TEST_CASE("a logarithmic axis of one decade has just that")
{
    SetGraph({"500", "5000"}, Setup(-999, 2, 3));
    VLOG::drawpargraph(1);
    CHECK(DrawnTexts() == Drawing{"  ", "  ", " 10 ", "2", " 10 ", "3"});
    CHECK(Drawn().back() == "dot 570,660 18"); // beyond 1000
}

TEST_CASE("four curves: the last one's axis serves all when it reaches furthest")
{
    SetCurves();
    LogBoring.SampleSetup[4] = Setup(0, 400, 200);
    VLOG::draw4pargraph();
    CHECK(DrawnTexts() == Drawing{"A", "B", "C", "", "0", "200", "400"});
}
