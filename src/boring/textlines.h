// textlines.h -- stored lines of text: the line breaker, and texts cut at line ends.
//
// Stored lines are cut where the box on the screen wraps, and what is stored is what is printed, one line each. So
// the breaker measures by a fixed table of Arial's widths and not by whatever font the machine has.
#pragma once

#include "session/text.h"

#include <vector>

// Advance of a character in 1/2048 of the font height.
int AdvanceWidth(char letter);

// A text with CR LF paragraph ends as display lines no wider than room, in inches at so many points. Together they
// hold every character but the line ends; blanks at a break stay at the end of the line.
std::vector<Text> BreakLines(const Text& text, double roomInches, double points);

// The lines of a text box in LineBuffer, at most 1000, with the paragraph mark where a paragraph ends; LineCount is
// their number. kind 1 description, 2 well notes, 3 remarks, 4 soil notes, any other the general notes.
void Text2Wrap32(int kind);

// The text cut at CR LF into LineBuffer, up to 400 lines; LineCount counts those beyond too. Blank lines at the end
// are not counted when there are 400 or fewer.
void Text2Array(const Text& text);

// Appends the text file named by DialogResult to the description box.
void ImportDesc();
