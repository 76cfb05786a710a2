// welldiagram.h -- what the files of the well diagram share: the cells of the well, and its measures on the page.
//
// The diagram's origin is the left side of the annulus on the depth line. From there to the right, in inches:
//
//     casings 3 2 1 |<- ColumnWidth: annulus with the pipes in it ->| casings 1 2 3   leader lines and labels
//
// y scale is DepthPerInch, so that heights are depths; what is told in inches along y is drawn at y scale 1 or
// multiplied by DepthPerInch.
#pragma once

#include "session/text.h"

namespace VLOG
{
// Rows of GenWell.
enum WellCell {
    RefElevation = 5,
    StickUp = 6,
    CasingDepth = 6, // + the number of the surface casing, 1 to 3
    CasingFill = 10,
    WaterDepth1 = 11,
    WaterDepth2 = 12,
    WellCover = 13,
    OtherDepth = 14
};

const Text& wellcell(int row); // Returns the cell of the well in that row.
bool casingfilled(int casing); // Returns whether that surface casing is there.
int casingsfilled();           // Returns how many are.
double stickup();              // Returns how far the well stands above ground, in depth units.

// wellfills.cpp
// Returns the file number of the annulus's layer by its fill cell or its text, 0 after a failure; 500 and up are
// symbols.
int16_t selectfill(int layer);
// Returns the number of the first of the material words that a text holds, wherever; 0 for none.
int materialof(const Text& text);
// Cuts a text "CENT..., offset" at its comma and returns the offset; 0 for any other text.
double findcenttype(Text& layer);
// Returns the length that a leader line at a depth below the page's start needs to clear the casings; t is where it
// begins, in steps of 0.1 inch.
double findscwidth(double depth, double t = 0);
// wellcasings.cpp
void surfacecasings(bool large);
void wellcover(bool large);
// waterlevels.cpp
void diamond(float r); // Draws it black about the pen, r to each corner in true inches; the pen is put back exactly.
struct WaterMark {
    WellCell Cell;
    void (*Draw)(float);
};
extern const WaterMark waterMarks[3];
// Returns whether the mark's water level is on the page, and its depth below the page's start.
bool wateronpage(const WaterMark& mark, double& depth);
} // namespace VLOG
