// blowgraphs.cpp -- the blow counts of the samples as a curve, on a logarithmic axis or, wide, on a linear one.
#include "canvas/metaugl.h"
#include "logrender/graph.h"
#include "logrender/vlog.h"
#include "report/heading.h"
#include "session/failure.h"

#include <algorithm>
#include <cmath>

static void BlowHeading(double width)
{
    markorigin();
    setfontsize(8);
    textcenter();
    moveto(width / 2, 0.4);
    printtext(HeadingWords[7]);
    movedown(0.15);
    printtext(HeadingWords[8]);
    VLOG::headingband(width);
}

// Each count is held within the axis; one line joins all of the page.
static void BlowCurve(double least, double most, double (*place)(double))
{
    VLOG::GraphCurve curve;
    for (const VLOG::Blow& blow : VLOG::blowsonpage()) {
        const double value = std::clamp(TextNumber(blow.Value), least, most);
        VLOG::curvepoint(curve, place(value), VLOG::belowstart(blow.Depth));
        circle(0.02);
    }
}

// Inches right of the column's left edge, on an axis of two decades from 1 to 100.
static double LogarithmicPlace(double value)
{
    return 0.3 * (std::log(value) / std::log(10.0));
}

// 0.6 inch wide. Kept: the grid is not one of decades but of 10, 30, 50, 70 and 90 blows.
void VLOG::drawblowgraph()
try {
    BlowHeading(0.6);
    setfontsize(6);
    for (const double value : {10.0, 50.0}) {
        moveto(LogarithmicPlace(value), 0);
        lineup(0.05);
        moveup(0.05);
        printnum(value);
    }
    plotbody(0.6, 0);
    setlinestyle(5);
    for (const double value : {10.0, 30.0, 50.0, 70.0, 90.0}) {
        moveto(LogarithmicPlace(value), 0);
        linedown(LogGeometry.BottomSpan);
    }
    setlinestyle(1);
    BlowCurve(1, 100, LogarithmicPlace);
    endgraph(0.6);
} catch (...) {
    ReportFailure(__func__);
}

// 1 inch wide. Kept: the axis ends at 80 whatever the greatest count is.
void VLOG::drawblowgraph2()
try {
    BlowHeading(1);
    moveto(0.05, 0);
    setfontsize(6);
    for (int value = 0; value <= 80; value += 20) {
        lineup(0.05);
        moveup(0.05);
        printnum(static_cast<float>(value));
        movedown(0.2);
        gridline();
        moveup(0.1);
        moveright(0.225);
    }
    plotbody(1, 0.05);
    setscalex(80 / 0.9);
    BlowCurve(0, 80, [](double value) { return value; });
    endgraph(0.95);
} catch (...) {
    ReportFailure(__func__);
}
