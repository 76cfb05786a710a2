// pngpages.h -- the page in hand as a PNG picture, on white paper.
#pragma once

#include "session/text.h"

// Saves the whole paper, the printer's margin included. Failures by number; a picture or pattern that cannot be had is
// told when the file is there.
void SavePagePng(const Text& file, int dotsPerInch);
