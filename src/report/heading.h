// heading.h -- the words on the drawings: the heading file and logo.txt.
//
// HeadingTable is the heading editor's, as the file holds it. HeadingWords is what a renderer prints from; what a
// slot holds depends on the kind given to getclientlogo. It is loaded once at the start of a run and nothing clears
// it between runs, so a slot that a run does not load keeps what the run before left.
#pragma once

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
extern LogoRecord LogoData;

void OpenHeadingFile(); // DialogResult into HeadingTable; a file of the old form with a box
void SaveHeadingFile(); // HeadingTable to DialogResult, atomically

// The renderers' reader: kind 1 the log, 2 cross sections and fences, 3 soil tables. Box "Heading File Not Found:  "
// or the one for the old form; then logo.txt (not behind the old form).
void getclientlogo(int kind);
