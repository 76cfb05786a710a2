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

const Text& wellcell(int row);
bool casingfilled(int casing);
int casingsfilled();
double stickup(); // above ground, in depth units

// wellfills.cpp
// The file number of the annulus's layer by its fill cell or its text, 0 after a failure; 500 and up: symbols.
int16_t selectfill(int layer);
int materialof(const Text& text); // the first of the material words that a text holds, wherever; 0 for none
double findcenttype(Text& layer); // "CENT..., offset": cuts the text at its comma and gives the number, else 0
double findscwidth(double depth, double t = 0); // see wellcasings.cpp
// wellcasings.cpp
void surfacecasings(bool large);
void wellcover(bool large);
// waterlevels.cpp
void diamond(float r); // black about the pen, r to each corner in true inches; the pen is put back exactly
struct WaterMark {
    WellCell Cell;
    void (*Draw)(float);
};
extern const WaterMark waterMarks[3];
bool wateronpage(const WaterMark& mark, double& depth); // depth below the page's start
} // namespace VLOG
