// hatchlines.h -- a fill pattern's bitmap as the definition lines of a drawing program's hatch.
//
// A hatch knows no pixels: it is families of parallel dashed lines, repeated for ever. The ink of the tile is covered
// by strokes of one pen width, and each stroke becomes a dash of the family that repeats it with the tile.
#pragma once

#include "canvas/bitmap.h"

#include <vector>

// A family of dashed lines. Lengths are pixels of the tile, y up, from the tile's upper left corner.
struct HatchLine {
    double Angle = 0;                // degrees, counter-clockwise
    double X = 0, Y = 0;             // start of the first dash
    double OffsetX = 0, OffsetY = 0; // from a line of the family to the next one, dashes and all
    std::vector<double> Dashes;      // pen down, gap (negative), pen down, gap; none: a line without gaps
};

struct HatchPattern {
    std::vector<HatchLine> Lines;
    double PenWidth = 1;
    bool Solid = false; // a tile of ink alone: no lines
};

// Returns the definition lines that cover the ink of a tile: its pixels darker than half. One without ink has no lines.
HatchPattern HatchLines(const Bitmap& tile);
