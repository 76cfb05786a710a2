// fonts.h -- the fonts that a page can be printed in.
#pragma once

#include "session/text.h"

bool PrinterHasFont(const Text& name); // Returns whether there is a font of exactly that name.
Text ShowFontDialog(const Text& font); // Returns the family chosen, "" when cancelled.
