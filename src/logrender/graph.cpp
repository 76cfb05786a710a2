// graph.cpp -- what the graph columns of a log have in common: axis, grid, body, curve.
#include "logrender/graph.h"

#include "canvas/metaugl.h"
#include "logrender/vlog.h"

#include <algorithm>
#include <cmath>

VLOG::GraphAxis VLOG::GraphAxis::linear(const LogParamSetup& setup)
{
    GraphAxis axis;
    axis.Start = setup.Start;
    axis.Span = double(setup.End) - double(setup.Start);
    return axis;
}

// The number is a 32-bit value first, as the axis is: one that equals the end is not beyond it.
float VLOG::GraphAxis::place(double number)
{
    const float value = number;
    if (Logarithmic) {
        const float inside = std::clamp(value, Low, High);
        Held = Held || inside != value;
        return (std::log(double(inside)) / std::log(10.0) - Power) * Decade;
    }
    const float off = double(value) - double(Start);
    const float inside = std::clamp(off, std::min(0.0f, Span), std::max(0.0f, Span)); // an axis may fall to the right
    Held = Held || inside != off;
    return inside;
}

void VLOG::GraphMark::draw() const
{
    Draw(Radius);
}

float VLOG::axisscale(const LogParamSetup& setup, double inches)
{
    return Over(double(setup.End) - double(setup.Start), inches);
}

int16_t VLOG::axisticks(const LogParamSetup& setup)
{
    const float quotient = Over(double(setup.End) - double(setup.Start), double(setup.Increment));
    return RoundInt16(WholePart(double(quotient)) + 1);
}

void VLOG::gridline()
{
    setlinestyle(5);
    setscaley(LogGeometry.DepthPerInch);
    linedown(LogGeometry.BottomSpan);
    moveup(LogGeometry.BottomSpan);
    setlinestyle(1);
    setscaley(1);
}

// The number of an end tick, 0.03 inside: side 1 at the first tick, -1 at the last.
static void EndNumber(float value, float scale, int side)
{
    setscalex(1);
    moveright(side * 0.03);
    printnum(value);
    moveleft(side * 0.03);
    setscalex(scale);
}

void VLOG::graphaxis(const LogParamSetup& setup, double inches, bool inward)
{
    const float scale = axisscale(setup, inches);
    setscalex(scale);
    const int count = axisticks(setup);
    for (int k = 1; k <= count; ++k) {
        const float value = double(setup.Start) + (k - 1) * double(setup.Increment);
        lineup(0.04);
        moveup(0.07);
        if (inward && k == 1) {
            textleft();
            EndNumber(value, scale, 1);
        } else if (inward && k == count) {
            textright();
            EndNumber(value, scale, -1);
        } else {
            textcenter();
            printnum(value);
        }
        movedown(0.21);
        gridline();
        moveup(0.1);
        moveright(setup.Increment);
    }
}

void VLOG::headingband(double width)
{
    moveto(width, 0);
    lineup(1.2);
    movedown(1.2);
    lineleft(width);
}

void VLOG::plotbody(double width, double margin)
{
    moveto(0, -0.1);
    markorigin();
    setscaley(LogGeometry.DepthPerInch);
    setscalex(1);
    rectby(width, -LogGeometry.BottomSpan);
    moveright(margin);
    markorigin();
}

void VLOG::curvepoint(GraphCurve& curve, float x, float y)
{
    ++curve.Count;
    if (curve.Count == 1 || curve.NoLines)
        moveto(x, y);
    else
        lineto(x, y);
}

// The tick at an end of an error bar, upright, 0.1 tall whatever the depth scale. The pen ends at its foot.
static void BarEnd()
{
    setscaley(1);
    moveup(0.05);
    linedown(0.1);
}

static void ErrorBar(const VLOG::GraphCurve& curve, float value, float low, float high, float y)
{
    moveto(value, y);
    curve.Triple.draw();
    moveto(low, y);
    BarEnd();
    moveup(0.05);
    setscaley(LogGeometry.DepthPerInch);
    lineto(high, y);
    BarEnd();
    setscaley(LogGeometry.DepthPerInch);
}

void VLOG::curvevalue(GraphCurve& curve, const Text& value, float y)
{
    const std::string_view behindValue = Behind(value, ',');
    const float x = curve.Axis.place(TextNumber(value));
    if (Holds(behindValue, ',')) {
        const float low = curve.Axis.place(TextNumber(behindValue));
        const float high = curve.Axis.place(TextNumber(Behind(behindValue, ',')));
        ErrorBar(curve, x, low, high, y);
        curve.Count = 0;
    } else {
        if (Holds(value, ','))
            curve.Count = 0; // Kept: half a triple is a plain point, but begins a new line
        curvepoint(curve, x, y);
        setlinestyle(1);
        (curve.Axis.Held ? curve.Clipped : curve.Plain).draw();
        setlinestyle(int(curve.LineStyle));
    }
    curve.Axis.Held = false;
}

float VLOG::belowstart(double depth)
{
    return -(depth - double(LogPage.PageStartDepth));
}

float VLOG::samplemiddle(int sample)
{
    const LogSample& row = LogBoring.Samples[sample];
    return belowstart((double(row.Top) + double(row.Bottom)) / 2);
}

void VLOG::endgraph(double right)
{
    setscalex(1);
    setscaley(1);
    moveto(right, 0.1);
}
