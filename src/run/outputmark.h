// outputmark.h -- what a file that goes out beside its source says of itself, so that the next one of the name knows
// whether it may take its place.
//
// It is made from the run in hand: RunPages, the job and its files. A mark tells no time and no folder, so the same
// pages give the same bytes, and a project may move.
#pragma once

#include "session/text.h"

// Returns the word of the job in hand: "log", "intro", "section", "fence", "soil" or "guide".
Text JobWord();

// Returns the mark of a drawing of the page: "B-1.BOR (log)".
Text DrawingMark();

// Returns the mark of a PDF: "Export to PDF of B-1.BOR (log)", "Print run of B-1.BOR and 3 more (log)", or for the page
// on the screen "Print of page 2 of B-1.BOR (log)".
Text PdfMark(bool exporting);
