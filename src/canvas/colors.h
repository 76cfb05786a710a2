// colors.h -- the colour names of the cells.
#pragma once

#include "session/text.h"

// Returns the colour of a cell as "r g b". With quiet, what is no name is white, without a message. Otherwise three
// numbers from 0 to 255 are taken as typed, and anything else is told and white.
Text getcolor(const Text& text, bool quiet);

// Returns the colour of "r g b", cut at its blanks; white with fewer than two blanks.
int32_t ParseColor(const Text& color);

// Returns whether the text is a name that getcolor knows: the white that it gives for any other looks like one.
bool IsColorName(const Text& text);
