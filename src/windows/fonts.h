// fonts.h -- the fonts that a page can be printed in.
#pragma once

#include "session/text.h"

bool PrinterHasFont(const Text& name); // exactly so
Text ShowFontDialog(const Text& font); // the family chosen, "" when cancelled
