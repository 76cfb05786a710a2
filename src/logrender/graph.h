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
    float place(double number);   // returns the number's place, held within the axis
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

// Draws the axis of a linear graph, inches long: sets the x scale, and draws the ticks from the pen with their numbers
// and grid lines. With inward the first number is left and the last right aligned, so that both stay in the column.
void graphaxis(const LogParamSetup& setup, double inches, bool inward);
// Returns how many units of the axis lie on an inch.
float axisscale(const LogParamSetup& setup, double inches);
// Returns the number of ticks; one beyond 16 bits is failure 6.
int16_t axisticks(const LogParamSetup& setup);
// Draws a dotted line from the pen down the body and goes back; the y scale is 1 before and after.
void gridline();
// Draws the band's lines right of and below a graph's heading, width wide; the pen ends on the baseline at the left
// edge.
void headingband(double width);
// Draws the body's box and sets the plot's origin, margin right of the left edge on the depth line. Leaves y scale
// DepthPerInch.
void plotbody(double width, double margin);
// Goes on with a curve: to its first point by a move, to the others by a line.
void curvepoint(GraphCurve& curve, float x, float y);
// Draws a value as typed: one number, or value, low and high at commas as a dot with a bar, behind which the curve
// begins anew.
void curvevalue(GraphCurve& curve, const Text& value, float y);
// Returns the y of a depth on the body.
float belowstart(double depth);
// Returns the y of the middle of a sample, as it is cut at the page's ends.
float samplemiddle(int sample);
// Sets both scales to 1 and moves the pen to the column's right edge, so far right of the plot's origin.
void endgraph(double right);
} // namespace VLOG
