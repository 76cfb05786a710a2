// hatchstrokes.h -- a hatch drawn out: the dashes of its definition lines that lie in an area.
//
// That is what a drawing program makes of a hatch. For one that looks patterns up by name and passes over the lines
// that a file brings along, the strokes themselves are written.
#pragma once

#include "dxf/hatchlines.h"

#include <vector>

// A point in drawing units, y up.
struct HatchPoint {
    double X, Y;
    bool operator==(const HatchPoint&) const = default;
};
struct HatchStroke {
    HatchPoint From, To;
};

// Where the tile's upper left corner lies, and how long its pixel is.
struct HatchPlace {
    HatchPoint Origin;
    double Pixel = 1;
};

// The part of the plane that may hold strokes at all.
struct HatchWindow {
    double Left, Bottom, Right, Top;
};

// Returns the strokes of the pattern within the corners of an area and within the window, definition line by definition
// line. What the border goes round twice is outside. What the border leaves of a dash is passed over where that is
// shorter than the pen is wide. The work ends early behind `most` strokes, and returns more than that then.
std::vector<HatchStroke> HatchStrokes(const HatchPattern& pattern, const HatchPlace& place,
                                      const std::vector<HatchPoint>& corners, const HatchWindow& window, size_t most);

// Returns the strokes as chains of two points or more, in no order: strokes whose ends lie no farther apart than that
// are one chain, through the middle between those ends. A chain that comes back to its start ends there.
std::vector<std::vector<HatchPoint>> JoinedStrokes(const std::vector<HatchStroke>& strokes, double apart);
