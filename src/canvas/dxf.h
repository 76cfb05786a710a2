// dxf.h -- the page as a DXF drawing (AutoCAD 2004 form): one drawing unit is one device unit, y up.
#pragma once

#include "session/text.h"

std::string PageDxf(); // the current page's object list; patterns from their print forms
