// textedits.h -- from one text to another by small changes, so that a box which shows it keeps caret and view.
#pragma once

#include "session/text.h"

#include <vector>

// One change: `removed` characters from a place on give way to others. A line end (CR LF) counts as one character, and
// places are counted from 0.
struct TextEdit {
    int from, removed;
    Text put;
};

// Returns the changes, the last place first, so that each place is that of the text before. Paragraphs that both texts
// have are not touched, and of one that has changed only the middle is.
std::vector<TextEdit> EditsBetween(const Text& before, const Text& after);
