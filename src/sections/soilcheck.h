// soilcheck.h -- what a reviewer of a soil analysis table would flag, as it stands in its boxes. It warns and never
// blocks: the boxes, the session and every record of a drawing stay as they are.
#pragma once

#include "tools/checkentry.h"

// Returns what it flags: a boring that is not found, numbers that are no parameter, columns without values or beyond
// the page, bars without a full scale, rows beyond the depth scale or on one another, codes that draw blank, too many
// notes. A form with nothing in it has no entry.
std::vector<CheckEntry> CheckSoilTable();
