// crossfile.h -- CrossData: the cross section as its form shows it, and the .CRO file.
//
// Filled by OpenCrossFile and, at a save, from the form's boxes. Stale while the user types: then the boxes hold the
// truth. No renderer reads it; they read the file. Cells are text as typed.
//
//     N, N x (distance, boring file, water depth, label W/B, label T/B, offset "x,y", second label), blank,
//     horizontal start, end, increment, unit, vertical start, end, increment, unit, blank, report cells 1 to 6,
//     8 legend rows "code;text", report cells 7 to 10, 22 legend rows                       one line each
//
// The older form has a blank line and 15 rows "distance,file,water,flag" in front instead.
#pragma once

#include "boring/opensave.h"
#include "grid/controls.h"
#include "session/slots.h"
#include "session/text.h"

struct CrossRecord {
    static constexpr int Borings = 50, Scales = 4, Reports = 10, LegendRows = 30;
    static constexpr int FormBorings = 15, FormReports = 9, FormLegendRows = 8; // what the form shows at first
    int16_t rowCount = 0;
    // Distance, boring file, water depth, label W/B, label T/B; then what no grid column shows: label offset, second
    // label, azimuth, inclination.
    Slots<Slots<Text, 9>, Borings> boringCells;
    Slots<Text, Scales> scaleCells;   // horizontal start,end,inc; unit; vertical start,end,inc; unit
    Slots<Text, Reports> reportCells; // main title, titles 1 and 2, left and right corner label, draw layers, page
                                      // size, GIS file, parameter; and "width,size", which no row shows
    Slots<Slots<Text, 2>, LegendRows> legendCells; // code and colour, text
};
extern CrossRecord CrossData;

// The form's boxes.
namespace frmCross
{
extern Text FileName; // path of the open cross section file; empty: it was never saved
extern Grid SS1;      // boring information, 15 rows of 5 or as many as the file has, at most 50
extern Grid SS2;      // scale information, 4 rows
extern Grid SS3;      // report information, 9 rows
extern Grid SS4;      // legend, 8 rows of 2
} // namespace frmCross

// All work on frmCross::FileName. None asks a question or touches the changed flag.
// Reads the file into CrossData, which is emptied first; a short file leaves what was read.
void OpenCrossFile();
// Takes the boxes into CrossData and writes that into the file. A distance beyond the end of the horizontal scale is
// told, once, and saved. Returns false where nothing was written; the report has told why.
bool SaveCrossFile();
// Empties all cells, also those that the form does not show: what one section had there is not saved with the next.
void ClearCrossArrays();
// Puts CrossData into the boxes, and sets the form's title by FileName.
void FillCrossForm();
