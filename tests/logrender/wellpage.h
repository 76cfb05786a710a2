// wellpage.h -- a page with a well diagram under test. Without casings the annulus begins 120 right of the column's
// left edge and is 180 wide; depths are 60 units to the foot.
#pragma once

#include "columnpage.h"

#include "logrender/vlog.h"
#include "logrender/welldiagram.h"

constexpr bool Large = true, Small = false;

// The heading words of wells, the patterns of well materials, and an empty well that is the last report part.
void StartWell(bool large = Large);
// Rows of the annulus (start, end, text, label or offset, fill and colour) and of the pipes (... width and fill).
void AddLayer(const char* start, const char* end, const char* text, const char* label = "", const char* fill = "");
void AddRing(const char* start, const char* end, const char* text, const char* label = "", const char* width = "");
// Draws the diagram; what stands behind its two heading lines.
Drawing Diagram();
