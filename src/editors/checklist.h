// checklist.h -- what a reviewer of the boring would flag, as it stands in the boxes. It warns and never blocks: the
// boxes, the session and the boring's file stay as they are, and no box is shown.
#pragma once

#include "session/text.h"

#include <vector>

struct CheckEntry {
    Text Words;
    int Box = 0;              // where to look: its number, as ActiveBox; the text boxes share 9
    int Row = 1, Column = 1;  // of a grid
    const char* TextBox = ""; // the name of a text box, with the place in its text, line ends as one character
    int Place = 0;
    const char* GridName = ""; // of a tool beside the log tool: the grid's name, in place of its number
};

// The warnings of a save, and besides: gaps and overlaps of samples, contacts out of order, depths below the last
// contact, columns wider than the page, text of more lines than its box holds, or than have room on the page.
std::vector<CheckEntry> CheckBoring();
