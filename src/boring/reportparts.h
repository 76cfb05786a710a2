// reportparts.h -- the columns of a log: their widths, and the lists of old files.
#pragma once

#include "session/text.h"

#include <vector>

// The items as they are offered to the user, in list order. The letters n, n2, n3 stand for numbers of parameters,
// which the user puts in.
extern const std::vector<Text> OfferedItems;
// Returns the width of a report part in inches; 0 for an unknown item. It reads the well names of the general well
// grid.
float findpartwidth(const Text& item, const Text& width);
// Takes the comma-separated list of old files into BoringData.RepParts, and perhaps into MapFile.
void convertrepparts(const Text& list);
