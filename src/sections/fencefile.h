// fencefile.h -- FenceData: the fence diagram as its form shows it, and the .FEN file.
//
// Filled by OpenFenceFile and, at a save, from the form's boxes. Stale while the user types: then the boxes hold the
// truth. No renderer reads it; they read the file. Cells are text as typed.
//
//     blank, 15 borings "X,Y,file,water,place,label", blank, 20 panels "a,b", blank, X start, end, increment, X unit,
//     Y start, elevation start, end, increment, elevation unit, blank, report cells 1 to 6, 8 legend rows "code;text",
//     page size, GIS file                                              (the last two only while the file lasts)
#pragma once

#include "grid/controls.h"
#include "session/slots.h"
#include "session/text.h"

struct FenceRecord {
    static constexpr int Borings = 15, Panels = 20, Scales = 5, Reports = 8, LegendRows = 8;
    Slots<Slots<Text, 6>, Borings> boringCells; // X, Y, boring file, water depth, place T/B, label W/B
    Slots<Text, Panels> sectionCells;           // "a,b": two borings by file or row number
    Slots<Text, Scales> scaleCells;   // X start,end,inc; X unit; Y start; elevation start,end,inc; elevation unit
    Slots<Text, Reports> reportCells; // main title, titles 1 to 3, draw layers, direction/rotation, page size, GIS file
    Slots<Slots<Text, 2>, LegendRows> legendCells; // code or colour, text
};
extern FenceRecord FenceData;

// The window's boxes.
namespace frmFence
{
extern Text FileName; // path of the open fence file; empty: it was never saved
extern Grid SS1;      // boring information, 15 rows of 6
extern Grid SS2;      // scale information, 5 rows
extern Grid SS3;      // report information, 8 rows
extern Grid SS4;      // legend, 8 rows of 2
extern Grid SS5;      // sections, 20 rows
} // namespace frmFence

// All four work on frmFence::FileName, and none asks a question or touches the changed flag.
// Reads the file into FenceData, whose cells are emptied first; a short file leaves what was read.
void OpenFenceFile();
// Takes the boxes into FenceData and writes that into the file; no value is checked.
void SaveFenceFile();
// Empties all cells.
void ClearFenceArrays();
// Puts FenceData into the boxes, and sets the window's title.
void FillFenceForm();
