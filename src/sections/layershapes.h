// layershapes.h -- the fill between two neighbouring borings: how their layers join, and the polygon of each shape.
//
// Sections and fences fill by the same rules. What differs - where a polygon begins and ends, by which heights contacts
// are compared, how a polygon hides what lies behind it - stands in crosslayers.cpp and fencelayers.cpp.
#pragma once

#include "sections/crossrun.h"

#include <string_view>

namespace VCROSS
{
constexpr int MaxFillCorners = 12;

// The pair of borings in hand and the polygon built last, in the units of the canvas scales. Filled by the four
// fillers, pair by pair; the corners of a polygon stay until the next one is built, and shape "D" reads them.
struct LayerFillRecord {
    float columnUnits = 0;                 // width of a boring's column
    float pinchTolerance = 0;              // two contacts further apart than this are no plain join
    int leftBoring = 0, rightBoring = 0;   // slots
    float leftX = 0, rightX = 0;           // polygons stand between these edges
    float leftGround = 0, rightGround = 0; // heights
    double halfway = 0;                    // from an edge to the tip of a lens: half of what lies between the borings
    double rise = 1, riseDepth = 1;        // a depth of riseDepth is so high
    int16_t leftLayer = 0, rightLayer = 0; // the next layer of each side
    int16_t fillLayer = 0, fillBoring = 0; // whose code fills the polygon
    Slots<float, MaxFillCorners> polyX, polyY;
    int corners = 0; // in use; the last one repeats the first
};
extern LayerFillRecord LayerFill;

// Return the heights of the contacts above and below a layer of a boring whose ground is so high.
float contacttop(float ground, int boring, int layer);
float contactbottom(float ground, int boring, int layer);

// Returns what comes next in the pair: one shape, or two of which the second is a lens on the first. height tells where
// the bottom of a layer lies, for the comparison. A look ahead that leaves the tables is failure 9.
std::string_view chooseshapes(float (*height)(int boring, int layer));
// Builds the polygon of a shape, "B" to "J", and moves the two layers of the pair on.
void setlayerpoints(char shape);

void setcorner(int n, float x, float y);
void closecorners(int n); // Makes corner n the first once more, and the last.
void walkcorners();       // Goes round the polygon built last, on the page; a closing call has to follow.
// Draws the polygon built last in the pattern of the layer that it is built for, closed by polyfill or polyfillwhite.
void filllayer(void (*close)());

// Gives the window system a turn between two polygons. Returns true when the user has asked to stop, once for each
// request.
bool fillstopped();

// crosslayers.cpp, fencelayers.cpp: they start the pair of borings (i, i + 1) of a section, or (a, b) of a fence, from
// their first layers on, and build the polygon of a shape in it. Shape "A", for the last boring of a section, looks at
// no right boring.
void startcrosspair(int i);
void setcrosspoints(char shape);
void startfencepair(int a, int b);
void setfencepoints(char shape);
} // namespace VCROSS
