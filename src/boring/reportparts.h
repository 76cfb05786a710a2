// reportparts.h -- the columns of a log: their widths, and the lists of old files.
#pragma once

#include "session/text.h"

#include <vector>

// The items as they are offered to the user, in list order. The letters n, n2, n3 stand for numbers of parameters,
// which the user puts in.
extern const std::vector<Text> OfferedItems;
// The width of a report part in inches; 0 for an unknown item. Reads the general well grid's names.
float findpartwidth(const Text& item, const Text& width);
// The comma-separated list of old files into BoringData.RepParts, and perhaps MapFile.
void convertrepparts(const Text& list);
