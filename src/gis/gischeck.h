// gischeck.h -- what a reviewer of the table would flag, as it stands in the grids. It warns and never blocks.
#pragma once

#include "tools/checkentry.h"

// Returns what it flags: columns that are not those of the layer list; plain depths under a cell that tells no depth or
// a top of its own, since such a layer covers those above it; depths out of order; cells that are neither depth nor X;
// borings without a place, at one place, twice or not found; layers that draw blank.
std::vector<CheckEntry> CheckGisTable();
