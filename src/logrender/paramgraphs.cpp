// paramgraphs.cpp -- the graphs of sample parameters: one curve on a linear or logarithmic axis, two or four curves on
// one axis.
#include "canvas/metaugl.h"
#include "logrender/graph.h"
#include "logrender/vlog.h"
#include "session/failure.h"

#include <cmath>

// Splits 1 to 3 from the pen down, the heading of a graph of one curve.
static void SplitLines(const LogParamSetup& setup)
{
    for (int line = 1; line <= 3; ++line) {
        if (line > 1 || !setup.Split[1].empty())
            printtext(setup.Split[line]);
        movedown(0.125);
    }
}

// The largest value that a power of ten gives is the 32-bit float's, as for every number of a boring.
static float TenToThe(double power)
{
    const double value = std::pow(10.0, power);
    if (!(value <= 3.4028234663852886e38))
        throw RunTimeError{Overflow};
    return value;
}

VLOG::GraphAxis VLOG::GraphAxis::logarithmic(const LogParamSetup& setup, double inches)
{
    GraphAxis axis;
    axis.Logarithmic = true;
    axis.Power = setup.End;
    axis.Decades = double(setup.Increment) - double(setup.End);
    if (axis.Decades < 1)
        axis.Decades = 3;
    axis.Decade = Over(inches, axis.Decades);
    axis.Low = TenToThe(axis.Power);
    axis.High = TenToThe(double(axis.Power) + double(axis.Decades));
    return axis;
}

// Ticks at the powers of ten, each with "10", its power beside it and a grid line.
static void PowerTicks(const VLOG::GraphAxis& axis)
{
    const int last = RoundInt16(WholePart(double(axis.Decades)));
    for (int k = 0; k <= last; ++k) {
        const double aside = k == 0 ? 0.03 : 0.05;
        lineup(0.04);
        moveup(0.07);
        printtext("10");
        moveright(aside);
        moveup(0.05);
        printnum(double(axis.Power) + k);
        moveleft(aside);
        movedown(0.05);
        movedown(0.21);
        VLOG::gridline();
        moveup(0.1);
        moveright(axis.Decade);
    }
}

// The curve of sample parameter n over the samples of the page.
static void SampleCurve(VLOG::GraphCurve& curve, int n)
{
    for (int i = LogGeometry.SampleFirst; i > 0 && i <= LogGeometry.SampleLast; ++i) {
        const Text& value = LogBoring.Samples[i].Param[n];
        if (!value.empty())
            VLOG::curvevalue(curve, value, VLOG::samplemiddle(i));
    }
}

// Sample parameter ParamNumber 1. An axis that starts at -999 is logarithmic: its end and increment are then the
// lowest and the highest power of ten.
void VLOG::drawpargraph(float width)
try {
    const double w = width;
    const int n = LogGeometry.ParamNumber[1];
    const LogParamSetup& setup = LogBoring.SampleSetup[n];
    const bool logarithmic = setup.Start == -999;
    markorigin();
    setscalex(1);
    setscaley(1);
    setfontsize(8);
    textcenter();
    moveright(w / 2);
    moveup(0.5);
    SplitLines(setup);
    movedown(0.125);
    moveright(w / 2);
    lineup(1.2);
    movedown(1.2);
    lineleft(w);
    moveto(0.05, 0);
    setfontsize(6);
    textcenter();
    GraphCurve curve;
    if (logarithmic) {
        curve.Axis = GraphAxis::logarithmic(setup, w - 0.1);
        PowerTicks(curve.Axis);
    } else {
        curve.Axis = GraphAxis::linear(setup);
        graphaxis(setup, w - 0.1, true);
    }
    plotbody(w, 0.05);
    if (!logarithmic)
        setscalex(axisscale(setup, w - 0.1));
    curve.Plain = {circle, 0.03};
    curve.Clipped = curve.Triple = {blackcircle, 0.03};
    curve.NoLines = setup.NoLines;
    SampleCurve(curve, n);
    endgraph(w - 0.05);
} catch (...) {
    ReportFailure(__func__);
}

// The marks of curves 1 to 4 of a column that holds several: circles and triangles, open and solid.
static const VLOG::GraphMark openMarks[] = {{circle, 0.04}, {triangleup, 0.05}};
static const VLOG::GraphMark solidMarks[] = {{blackcircle, 0.04}, {triangleupsolid, 0.05}};

// Two marks with their headings beside them, one below the other: the key of a column of several curves.
static void CurveKey(const VLOG::GraphMark marks[2], int first, int second)
{
    marks[0].draw();
    moveright(0.07);
    moveup(0.02);
    setfontsize(8);
    textleft();
    printtext(LogBoring.SampleSetup[first].Heading);
    movedown(0.15);
    printtext(LogBoring.SampleSetup[second].Heading);
    moveleft(0.07);
    movedown(0.02);
    marks[1].draw();
}

// The band's lines of a column of several curves, and the pen at its axis.
static void AxisPlace(double width, double margin)
{
    VLOG::headingband(width);
    moveto(margin, 0);
    setfontsize(6);
    textcenter();
}

// Sample parameters ParamNumber 1 and 2 on the axis of the one that reaches further; 1 inch wide.
void VLOG::draw2pargraph()
try {
    const Slots<int16_t, 4>& n = LogGeometry.ParamNumber;
    const LogParamSetup& a = LogBoring.SampleSetup[n[1]];
    const LogParamSetup& b = LogBoring.SampleSetup[n[2]];
    const LogParamSetup& setup = a.End > b.End ? a : b;
    markorigin();
    moveright(0.15);
    moveup(0.43);
    CurveKey(openMarks, n[1], n[2]);
    AxisPlace(1, 0.05);
    graphaxis(setup, 0.9, true);
    plotbody(1, 0.05);
    setscalex(axisscale(setup, 0.9));
    for (int k = 1; k <= 2; ++k) {
        GraphCurve curve;
        curve.Axis = GraphAxis::linear(setup);
        curve.Plain = curve.Clipped = openMarks[k - 1]; // a value beyond the axis shows no mark of its own here
        curve.Triple = solidMarks[k - 1];
        SampleCurve(curve, n[k]);
    }
    endgraph(0.95);
} catch (...) {
    ReportFailure(__func__);
}

// Sample parameters 1 to 4, as ParamNumber holds them, on the axis of the one that reaches furthest; 2 inches wide.
// Kept: no error bars here, a value text counts by the number at its front.
void VLOG::draw4pargraph()
try {
    const Slots<int16_t, 4>& n = LogGeometry.ParamNumber;
    int furthest = n[1];
    for (int k = 2; k <= 4; ++k)
        if (LogBoring.SampleSetup[n[k]].End > LogBoring.SampleSetup[furthest].End)
            furthest = n[k];
    const LogParamSetup& setup = LogBoring.SampleSetup[furthest];
    markorigin();
    moveright(0.15);
    moveup(0.43);
    CurveKey(openMarks, n[1], n[2]);
    moveright(0.9);
    moveup(0.15);
    CurveKey(solidMarks, n[3], n[4]);
    AxisPlace(2, 0.1);
    graphaxis(setup, 1.8, false);
    plotbody(2, 0.1);
    setscalex(axisscale(setup, 1.8));
    for (int k = 1; k <= 4; ++k) {
        GraphCurve curve;
        curve.Axis = GraphAxis::linear(setup);
        const GraphMark& mark = k <= 2 ? openMarks[k - 1] : solidMarks[k - 3];
        for (int i = LogGeometry.SampleFirst; i > 0 && i <= LogGeometry.SampleLast; ++i) {
            const Text& value = LogBoring.Samples[i].Param[n[k]];
            if (value.empty())
                continue;
            curvepoint(curve, curve.Axis.place(TextNumber(value)), samplemiddle(i));
            mark.draw();
        }
    }
    endgraph(1.9);
} catch (...) {
    ReportFailure(__func__);
}
