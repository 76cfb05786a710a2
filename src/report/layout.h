// layout.h -- LayoutData: orientation of a page and what stands in its twelve title block positions (.LAY).
#pragma once

#include "session/slots.h"
#include "session/text.h"

struct LayoutRecord {
    int16_t Orientation = 0;   // 0 portrait, 1 landscape, 2 tabloid
    Slots<int16_t, 12> Blocks; // the code in each position, 0 for none
};
extern LayoutRecord LayoutData;

// Reads a layout, 13 lines, into LayoutData. Failures by number; what was read stays then, and nothing of a layout
// before.
void ReadLayoutFile(const Text& name);
void SaveLayoutFile(); // Writes LayoutData to the file DialogResult.
