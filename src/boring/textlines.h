// textlines.h -- stored lines of text, and texts cut at line ends.
//
// Stored lines are cut where the box on the screen wraps (session/linebreaks.h), and what is stored is what is
// printed, one line each.
#pragma once

#include "session/linebreaks.h"
#include "session/session.h"

// Puts the lines of a text box into LineBuffer, at most 1000, with the paragraph mark where a paragraph ends; LineCount
// is their number. kind 1 is the description, 2 well notes, 3 remarks, 4 soil notes, any other the general notes.
void Text2Wrap32(int kind);

// Puts the text, cut at CR LF, into LineBuffer, up to 400 lines; LineCount counts those beyond too. Blank lines at the
// end are not counted when there are 400 or fewer.
void Text2Array(const Text& text);

// Returns the flowing text of stored lines: what a text box shows of them. An empty line without a mark cannot hold
// text and is dropped.
template <int Rows>
Text FlowingText(const Slots<Text, Rows>& lines, int count)
{
    Text text;
    for (int row = 1; row <= count; ++row) {
        const Text& line = lines[row];
        if (line.ends_with(ParagraphMark))
            text.append(line, 0, line.size() - 1).append(CrLf);
        else
            text += line;
    }
    return text;
}

// Appends the text file named by DialogResult to the description box.
void ImportDesc();
