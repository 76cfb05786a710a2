// checklist.h -- what a reviewer of the boring would flag, as it stands in the boxes. It warns and never blocks: the
// boxes, the session and the boring's file stay as they are, and no box is shown.
#pragma once

#include "tools/checkentry.h"

// Returns what it flags, the gravest lines in front: the warnings of a save, cells that are read otherwise than they
// were meant, what lies out of order or below the log, codes and colours that draw blank, markers and texts of other
// layers, text and columns without room, values beyond their axis, files that are not found, letters of no code page.
// What a page would be drawn from is looked for as a run looks for it. Each part of the list is a file of its own
// beside this one.
std::vector<CheckEntry> CheckBoring();
