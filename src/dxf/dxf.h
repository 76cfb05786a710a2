// dxf.h -- the page as a DXF drawing (AutoCAD 2004 form): one drawing unit is one device unit, y up.
#pragma once

#include "session/text.h"

// Returns the current page's object list as a drawing; patterns from their print forms. mark: what the drawing says of
// itself (run/outputmark.h); "" for nothing.
std::string PageDxf(const Text& mark = "");
