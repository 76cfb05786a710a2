// colors.h -- the colour names of the cells.
#pragma once

#include "session/text.h"

// The colour of a cell as "r g b". quiet: what is no name is white, without a message. Otherwise three numbers from
// 0 to 255 are taken as typed, and anything else is told and white.
Text getcolor(const Text& text, bool quiet);

// Returns the colour of "r g b", cut at its blanks; white with fewer than two blanks.
int32_t ParseColor(const Text& color);

// A name that getcolor knows; white for what is none would look like one.
bool IsColorName(const Text& text);
