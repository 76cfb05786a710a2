// generalgraphs.cpp -- the graphs of general parameters: one curve in a narrow column, or up to three with an axis
// each.
#include "canvas/metaugl.h"
#include "logrender/generalvalues.h"
#include "logrender/graph.h"
#include "logrender/vlog.h"
#include "session/failure.h"

static VLOG::GraphCurve GeneralCurve(const LogParamSetup& setup)
{
    VLOG::GraphCurve curve;
    curve.Axis = VLOG::GraphAxis::linear(setup);
    curve.Plain = curve.Clipped = {circle, 0.02};
    curve.Triple = {blackcircle, 0.03};
    return curve;
}

// General parameter ParamNumber 1; 0.6 inch wide. Kept: the values of a data file are drawn like those of the table
// here, and as a bare curve of single numbers in drawmpgraph.
void VLOG::drawgpargraph()
try {
    const int n = LogGeometry.ParamNumber[1];
    const LogParamSetup& setup = LogBoring.GenSetup[n];
    markorigin();
    setfontsize(7);
    textcenter();
    moveright(0.3);
    moveup(0.5);
    for (int line = 1; line <= 3; ++line) {
        printtext(setup.Split[line]);
        movedown(0.125);
    }
    moveright(0.3);
    movedown(0.125);
    lineup(1.2);
    movedown(1.2);
    lineleft(0.6);
    moveto(0.05, 0);
    setfontsize(6);
    graphaxis(setup, 0.5, true);
    plotbody(0.6, 0.05);
    setscalex(axisscale(setup, 0.5));
    GeneralValues values;
    findgeneralvalues(n, values);
    GraphCurve curve = GeneralCurve(setup);
    for (const GeneralValue& row : values.Rows)
        curvevalue(curve, row.Value, belowstart(row.Depth));
    endgraph(0.55);
} catch (...) {
    ReportFailure(__func__);
}

// GraphList, "3-2-1", as up to three parameter numbers; 0 for one that is missing.
static Slots<int16_t, 3> GraphNumbers()
{
    Slots<int16_t, 3> numbers;
    std::string_view rest = LogGeometry.GraphList;
    for (int i = 1; i <= 3; ++i) {
        numbers[i] = RoundInt16(TextNumber(Before(rest, '-')));
        rest = Behind(rest, '-');
    }
    return numbers;
}

// The line style that tells the curves apart: solid, dash-dot-dot, dash.
static int StyleOf(int i)
{
    return i == 1 ? 1 : i == 2 ? 4 : 2;
}

// One band of the heading, 0.4 tall, the i-th from below: top line, name, a sample of the curve's line, its axis.
static void CurveBand(const LogParamSetup& setup, int i, double w)
{
    setlinestyle(1);
    setscalex(1);
    moveto(0, 0.4 * i);
    lineright(w);
    moveleft(w / 2);
    movedown(0.1);
    printtext(setup.Heading);
    movedown(0.1);
    moveleft(w / 4);
    setlinestyle(StyleOf(i));
    lineright(w / 2);
    setlinestyle(1);
    movedown(0.2);
    moveleft(0.75 * w);
    moveright(0.1);
    setscalex(VLOG::axisscale(setup, w - 0.2));
    const int count = VLOG::axisticks(setup);
    for (int k = 1; k <= count; ++k) {
        lineup(0.04);
        moveup(0.07);
        if (count != 5 || k % 2 == 1) // five numbers would run into each other
            printnum(double(setup.Start) + (k - 1) * double(setup.Increment));
        movedown(0.11);
        moveright(setup.Increment);
    }
}

// What stands behind a comma in a field of a data file is no error bar here.
static void PlotFileValue(VLOG::GraphCurve& curve, const VLOG::GeneralValue& row)
{
    VLOG::curvepoint(curve, curve.Axis.place(TextNumber(row.Value)), VLOG::belowstart(row.Depth));
}

// The curve of general parameter n, the i-th of the column; false when its data file is missing.
static bool PlotCurve(int n, int i, double w)
{
    const LogParamSetup& setup = LogBoring.GenSetup[n];
    setscalex(VLOG::axisscale(setup, w - 0.2));
    setlinestyle(StyleOf(i));
    VLOG::GeneralValues values;
    VLOG::findgeneralvalues(n, values);
    VLOG::GraphCurve curve = GeneralCurve(setup);
    curve.LineStyle = StyleOf(i);
    for (const VLOG::GeneralValue& row : values.Rows) {
        if (values.FromFile)
            PlotFileValue(curve, row);
        else
            VLOG::curvevalue(curve, row.Value, VLOG::belowstart(row.Depth));
    }
    return !values.FileMissing;
}

// The general parameters of GraphList, each with its axis in a band of the heading; ColumnWidth wide. A missing data
// file ends the column: the curves behind it are not drawn.
void VLOG::drawmpgraph()
try {
    const double w = LogGeometry.ColumnWidth;
    const Slots<int16_t, 3> numbers = GraphNumbers();
    markorigin();
    setfontsize(6);
    textcenter();
    for (int i = 1; i <= 3; ++i)
        if (numbers[i] != 0)
            CurveBand(LogBoring.GenSetup[numbers[i]], i, w);
    moveto(0, 0);
    setscalex(1);
    lineright(w);
    lineup(1.2);
    movedown(1.2);
    moveto(0, -0.1);
    markorigin();
    setscaley(LogGeometry.DepthPerInch);
    rectby(w, -LogGeometry.BottomSpan);
    moveright(w / 2);
    setlinestyle(5);
    linedown(LogGeometry.BottomSpan);
    setlinestyle(1);
    moveto(0, 0);
    moveright(0.1);
    markorigin();
    for (int i = 1; i <= 3; ++i)
        if (numbers[i] != 0 && !PlotCurve(numbers[i], i, w))
            break;
    setlinestyle(1);
    endgraph(w - 0.1);
} catch (...) {
    ReportFailure(__func__);
}
