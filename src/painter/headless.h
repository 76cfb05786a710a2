// headless.h -- the window system's library without a screen: what a page needs of it to be painted.
#pragma once

#include "session/text.h"

// Starts the library, once; before the first page is painted and never earlier, since a run that only lists pages has
// no use for it. It says nothing on standard error.
void StartWithoutScreen();

// Returns today's date, in the short form of the user's locale.
Text ShortDateOfLocale();

// Returns where the user's programs keep their data, after the desktop's convention; asked without starting the
// library.
Text UserDataFolder();
