// checklist.h -- what a reviewer of the boring would flag, as it stands in the boxes. It warns and never blocks: the
// boxes, the session and the boring's file stay as they are, and no box is shown.
#pragma once

#include "editors/checkentry.h"

// The warnings of a save, and besides: gaps and overlaps of samples, contacts out of order, depths below the last
// contact, columns wider than the page, text of more lines than its box holds, or than have room on the page.
std::vector<CheckEntry> CheckBoring();
