// gischeck.h -- what a reviewer of the table would flag, as it stands in the grids. It warns and never blocks.
#pragma once

#include "editors/checklist.h"

// Plain depths under a blank cell or one with "X": such a cell tells no top, so the layer is drawn from the ground on
// and covers the layers above it. Each entry's Row and Column are those of SSGISInfo.
std::vector<CheckEntry> CheckGisTable();
