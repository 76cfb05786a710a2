// linebreaks.h -- the line breaker: where a text box wraps, and so where a printed line ends.
//
// No widget and no installed font measures text: stored lines are printed as they stand, one line each, so the same
// text must break alike on every machine. A fixed table of Arial's advance widths does it, without kerning. Lengths
// are whole units of 1/2048 of the font height; a text fits when the sum of its advances is not above the room.
#pragma once

#include "session/text.h"

#include <vector>

constexpr int UnitsPerHeight = 2048;

int AdvanceWidth(char letter);
int64_t AdvanceWidth(std::string_view text); // Returns the sum of its letters' widths: there is no kerning.

// Returns the room that a text box has for a line: it is widthTwips wide, of which the text has all but 255, and an
// inch of text of this size takes twipsPerInch. The room is rounded down, which changes no comparison with a sum of
// advances, and is below 0 for a narrow box.
int64_t BoxRoom(int widthTwips, int twipsPerInch, int points);

// Returns the lengths in characters of the lines of one paragraph (a text without a CR LF), in order; their sum is the
// length of the paragraph.
// A line is broken in front of a word, the blanks there staying at its end and not counting; a word wider than the
// room is cut at the last character that fits, or behind its first. An empty paragraph is one line.
std::vector<int> BreakParagraph(std::string_view paragraph, int64_t room);

// Returns a text with CR LF paragraph ends as display lines, which together hold every character but the line ends. An
// empty text has no line, and a line end at the end of the text adds none; a lone CR or LF is a character.
std::vector<Text> BreakLines(std::string_view text, int64_t room);
std::vector<Text> BreakLines(std::string_view text, double roomInches, double points);
