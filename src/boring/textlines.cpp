// textlines.cpp -- from the text boxes to stored lines.
#include "boring/textlines.h"

#include "boring/boringboxes.h"
#include "session/files.h"
#include "session/session.h"

#include <algorithm>

static const Memo& TextBox(int kind)
{
    switch (kind) {
    case 1:
        return frmBorinput::MemoDes;
    case 2:
        return frmBorinput::MemoWcon;
    case 3:
        return frmBorinput::MemoRemarks;
    case 4:
        return frmSoil::MemoSoil;
    default:
        return frmBorinput::MemoBottNotes;
    }
}

// Positions of the line ends of a text, the first character being 1.
static std::vector<size_t> LineEnds(const Text& text)
{
    constexpr size_t maxLineEnds = 600; // Kept: paragraphs behind it are stored without their mark
    std::vector<size_t> ends;
    for (size_t at = text.find(CrLf); at != Text::npos && ends.size() < maxLineEnds; at = text.find(CrLf, at + 2))
        ends.push_back(at + 1);
    return ends;
}

void Text2Wrap32(int kind)
try {
    LineBuffer = {};
    LineCount = 0;
    const Memo& box = TextBox(kind);
    const std::vector<Text> lines = box.DisplayLines();
    const std::vector<size_t> ends = LineEnds(box.text);
    // Kept: what stands beyond the last slot is dropped without a word.
    LineCount = int16_t(std::min<size_t>(lines.size(), MaxLineBuffer));
    size_t position = 0, nextEnd = 0;
    for (int i = 1; i <= LineCount; ++i) {
        LineBuffer[i] = lines[size_t(i) - 1];
        position += LineBuffer[i].size();
        if (nextEnd < ends.size() && position + 1 == ends[nextEnd]) {
            LineBuffer[i] += ParagraphMark;
            position += 2;
            ++nextEnd;
        }
    }
} catch (...) {
    ReportFailure(__func__);
}

void Text2Array(const Text& text)
try {
    constexpr int maxLines = 400;
    LineBuffer = {};
    LineCount = 0;
    const Text closed = text.ends_with(CrLf) ? text : text + CrLf;
    int lines = 0;
    for (size_t start = 0; start < closed.size();) {
        const size_t end = closed.find(CrLf, start);
        if (++lines <= maxLines)
            LineBuffer[lines] = closed.substr(start, end - start);
        start = end + CrLf.size();
    }
    LineCount = int16_t(std::min<int>(lines, INT16_MAX)); // the lines are there, whatever becomes of their number
    LineCount = RoundInt16(lines);
    if (LineCount <= maxLines)
        while (LineCount > 0 && IsBlank(LineBuffer[LineCount]))
            --LineCount;
} catch (...) {
    ReportFailure(__func__);
}

void ImportDesc()
try {
    Text imported;
    LineReader in(DialogResult);
    while (!in.AtEnd())
        imported += in.Line() + CrLf;
    frmBorinput::MemoDes.text += imported;
} catch (...) {
    ReportFailure(__func__);
}
