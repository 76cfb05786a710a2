// generalvalues.h -- the values of a general parameter that lie on the page, from its data file or the boring's table.
#pragma once

#include "session/text.h"

#include <vector>

namespace VLOG
{
struct GeneralValue {
    float Depth;
    Text Value; // as it stands, never empty
};

struct GeneralValues {
    bool FromFile = false, FileMissing = false;
    std::vector<GeneralValue> Rows;
};

// Finds the values of general parameter n, in file or table order. A data file lies in the project folder: header lines
// to skip, then a depth and fields in each line, parted by commas if the first of these lines holds one, else by
// blanks. A file that is not there is told in a box. A file shorter than its header is failure 62.
void findgeneralvalues(int n, GeneralValues& values);
} // namespace VLOG
