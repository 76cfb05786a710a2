// heading.h -- the words on the drawings: the heading file and logo.txt.
//
// HeadingTable is the heading editor's, as the file holds it. HeadingWords is what a renderer prints from; what a
// slot holds depends on the kind given to getclientlogo. It is loaded once at the start of a run and nothing clears
// it between runs, so a slot that a run does not load keeps what the run before left.
#pragma once

#include "grid/controls.h"
#include "session/slots.h"
#include "session/text.h"

constexpr int MaxHeadings = 84;
extern Slots<Text, MaxHeadings> HeadingTable;
extern Slots<Text, MaxHeadings> HeadingWords; // slot n stands on file line n + 1 for the log
extern int16_t LegendInUse;                   // 1: one of the four log legends is on
extern Slots<int16_t, 4> LegendBoxFill;       // 0 to 4: file numbers of the sample boxes' patterns, by condition

struct LogoRecord {
    Slots<Text, 3> Line; // the logo text
    int16_t Flag = 0;    // 1: a picture logo
    Text File;
    Text Resolution;
};
extern LogoRecord LogoData; // read anew by getclientlogo; empty where logo.txt is missing

// The heading editor's grids: slots 1 to 39, 62 to 71 and 72 to 84, a row each. Column 1 shows the default text as
// guidance, column 2 is the word. What the editor does is in report/headingedit.h.
namespace frmHeading
{
extern Grid SSLog, SSSections, SSGraphics;
}

// Reads the file DialogResult into HeadingTable and the grids. A file of the old form, which had the legends inside, is
// told in a box, and the words that it knew come into their slots. A file that breaks off leaves what was read of it in
// the table and in the grids.
void OpenHeadingFile();
// Takes the grids into HeadingTable, keywords (slots 31 to 39) in upper case, and writes that to DialogResult. It is
// refused with a box while 6 or more of slots 1 to 20 are empty in the table as last read.
void SaveHeadingFile();

// Reads the words of a run into HeadingWords: kind 1 is the log, 2 cross sections and fences, 3 soil tables. A missing
// file is told in the box "Heading File Not Found:  ", one of the old form in a box of its own. Then it reads logo.txt
// into LogoData, but not behind the old form.
void getclientlogo(int kind);
