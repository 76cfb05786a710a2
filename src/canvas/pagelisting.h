// pagelisting.h -- a page as text lines, one JSON object a line: what tests compare and people read as a diff.
#pragma once

#include "session/text.h"

// Returns the lines of the current page, each closed by a line feed: first the page, then each object in drawing order
// with only the keys that its kind has. number counts the drawn pages of a run from 1.
std::string PageListing(int number, const Text& source);
