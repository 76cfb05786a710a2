// graph.h -- what the graph columns of a log have in common: the axis in the heading band, the curve in the body.
//
// The body is drawn with depth down (y scale DepthPerInch) and, on a linear axis, with the x scale in units of the
// axis, so that the pen is told values and depths and never inches.
#pragma once

#include "logrender/logdata.h"

namespace VLOG
{
// Where a number stands on an axis, right of the plot's origin in the x scale that the column has set.
struct GraphAxis {
    bool Logarithmic = false;
    float Start = 0, Span = 0;    // linear: the value at the origin, and the axis end less it
    float Low = 0, High = 0;      // logarithmic: the values at the two ends
    float Power = 0, Decades = 0; // logarithmic: the power of ten at the origin, and how many more the axis holds
    double Decade = 0;            // logarithmic: inches for each of them
    bool Held = false;            // set by place when a number lies beyond an end
    float place(double number);   // held within the axis
    static GraphAxis linear(const LogParamSetup& setup);
    static GraphAxis logarithmic(const LogParamSetup& setup, double inches); // paramgraphs.cpp
};

struct GraphMark {
    void (*Draw)(float) = nullptr;
    double Radius = 0;
    void draw() const;
};

// One curve under way.
struct GraphCurve {
    GraphAxis Axis;
    GraphMark Plain, Clipped, Triple; // a single value, one beyond the axis, one with an error bar
    bool NoLines = false;
    int LineStyle = 1; // of lines, dots and bars; plain marks are solid
    int Count = 0;     // points since the curve began
};

// The axis of a linear graph, inches long: sets the x scale, and draws the ticks from the pen with their numbers and
// grid lines. inward: the first number left, the last right aligned, so that both stay in the column.
void graphaxis(const LogParamSetup& setup, double inches, bool inward);
float axisscale(const LogParamSetup& setup, double inches); // axis units in an inch
int16_t axisticks(const LogParamSetup& setup);              // a count beyond 16 bits is failure 6
void gridline(); // dotted, from the pen down the body and back; y scale 1 before and after
// The band's lines right of and below a graph's heading, width wide; the pen ends on the baseline at the left edge.
void headingband(double width);
// The body's box; then the plot's origin, margin right of the left edge on the depth line. Leaves y scale DepthPerInch.
void plotbody(double width, double margin);
void curvepoint(GraphCurve& curve, float x, float y); // the first point by a move, the others by a line
// A value as typed: one number, or value, low and high at commas, drawn as a dot with a bar, behind which the curve
// begins anew.
void curvevalue(GraphCurve& curve, const Text& value, float y);
float belowstart(double depth); // the y of a depth on the body
float samplemiddle(int sample); // the y of the middle of a sample, as cut at the page's ends
void endgraph(double right);    // scales 1, the pen to the column's right edge, so far right of the plot's origin
} // namespace VLOG
