// soilfile.h -- SoilData: the definition of a soil analysis table, and the .SOI file.
//
// Filled by OpenSoilFile and, at a save, from the boxes. Stale while the user types: then the boxes hold the truth. The
// table is drawn from the saved file by a reader of its own. The notes box stands with the other text boxes
// (boring/boringboxes.h), since all text boxes are sized together.
#pragma once

#include "boring/boringboxes.h"
#include "boring/opensave.h"
#include "grid/controls.h"
#include "session/slots.h"
#include "session/text.h"

constexpr int MaxSoilCells = 9, MaxSoilNotes = 10;
enum SoilCell {
    SoilBoringFile = 1,
    SoilParameters, // numbers joined by commas
    SoilLabel1,
    SoilLabel2,
    SoilGraph, // "Y": bars
    SoilMainTitle,
    SoilTitle1,
    SoilTitle2,
    SoilTitle3
};

struct SoilRecord {
    Slots<Text, MaxSoilCells> cells;
    Slots<Text, MaxSoilNotes> notes; // stored lines, some with their mark
    int notesWidth = 0;              // of the box when they were shown, or cut by it
};
extern SoilRecord SoilData;

void OpenSoilFile(); // Reads frmSoil::FileName into SoilData, which is emptied first.
// Takes the boxes, then writes frmSoil::FileName. Returns false after too many notes or a failure; a box has told
// which, and nothing was written.
bool SaveSoilFile();
void ClearSoilArrays();
// Puts SoilData into the boxes, and sets the title by FileName. Leaves FileChanged as it is.
void FillSoilForm();

// The boxes of the soil tool; MemoSoil and Title stand elsewhere.
namespace frmSoil
{
extern Grid SS1;      // "Report Information": a row for each cell
extern Text FileName; // the open .SOI file; empty: it was never saved
void LabelBoxes();    // sets the grid's labels: those by design, or those that the prompts have set
void SizeMemo();      // sizes the notes box by its adjustment, as at the opening of the window
// Make the notes box narrower and wider by 50 twips, by its two buttons, without a limit.
void cmdAdj5();
void cmdAdj6();
} // namespace frmSoil
