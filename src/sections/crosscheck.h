// crosscheck.h -- what a reviewer of a cross section would flag, as it stands in its boxes. It warns and never blocks:
// the boxes, the session and every record of a drawing stay as they are.
#pragma once

#include "tools/checkentry.h"

// Returns what it flags: borings and files that are not found, distances out of order, scales, borings beyond the
// frame, codes that draw blank, fills that the legend lacks, and cells that are not read as they look. A form with
// nothing in it has no entry.
std::vector<CheckEntry> CheckSection();
