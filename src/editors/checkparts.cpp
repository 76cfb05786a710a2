// checkparts.cpp -- what the parts of a boring's check list share: how they flag, and how they look at the boxes.
#include "editors/checkparts.h"

#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "boring/textlines.h"
#include "session/session.h"
#include "session/shared.h"

using namespace frmBorinput;

std::vector<CheckEntry>* BoringChecks::list = nullptr;

static const SharedRecord shared[] = {
    {"BoringChecks::list", Kind::Run, BoringChecks::list},
};

void BoringChecks::Flag(const char* kind, const Text& words, int box, int row, int column)
{
    CheckEntry entry;
    entry.Words = words;
    entry.Box = box;
    entry.Row = row;
    entry.Column = column;
    entry.Kind = kind;
    list->push_back(entry);
}

void BoringChecks::FlagText(const char* kind, const Text& words, const char* textBox, int place)
{
    Flag(kind, words, TextBoxes, 1);
    list->back().TextBox = textBox;
    list->back().Place = place;
}

// ---- The boxes

int BoringChecks::Rows(int box)
{
    return BoxGrid(box)->DataRowCount();
}

Text BoringChecks::Cell(int box, int row, int column)
{
    return Text(Trim(BoxGrid(box)->Cell(row, column)));
}

double BoringChecks::Number(int box, int row, int column)
{
    return TextNumber(BoxGrid(box)->Cell(row, column));
}

bool BoringChecks::Empty(int box, int row, int column)
{
    return IsBlank(BoxGrid(box)->Cell(row, column));
}

bool BoringChecks::EmptyRow(int box, int row)
{
    for (int column = 1; column <= BoxGrid(box)->columns; ++column)
        if (!Empty(box, row, column))
            return false;
    return true;
}

Text BoringChecks::WhereIs(int box, int row)
{
    const Grid& grid = *BoxGrid(box);
    const bool named = grid.rowHeadings.size() > size_t(row) && !grid.rowHeadings[size_t(row)].empty();
    return grid.title + ", " + (named ? grid.rowHeadings[size_t(row)] : "row " + PlainNumber(row));
}

Text BoringChecks::Quoted(const Text& words)
{
    return "\"" + words + "\"";
}

// The lines of the record into LineBuffer, where the file is what a page is drawn from: nothing has been changed since
// it was opened or saved. It may have been wrapped elsewhere.
template <int Count>
static bool TakeRecord(const Memo& memo, const Slots<Text, Count>& lines, int count)
{
    if (FileChanged != 0 || memo.text != FlowingText(lines, count))
        return false;
    LineBuffer = {};
    LineCount = int16_t(count);
    for (int i = 1; i <= count; ++i)
        LineBuffer[i] = lines[i];
    return true;
}

std::vector<BoringChecks::StoredLine> BoringChecks::StoredLines(int kind)
{
    const bool taken = kind == 1 ? TakeRecord(MemoDes, BoringData.Des, BoringData.DesCount)
                                 : TakeRecord(MemoRemarks, BoringData.Remarks, BoringData.RemarkCount);
    if (!taken)
        Text2Wrap32(kind);
    std::vector<StoredLine> lines;
    int place = 0;
    for (int i = 1; i <= LineCount; ++i) {
        lines.push_back({Text(Before(LineBuffer[i], ParagraphMark)), place});
        place += int(LineBuffer[i].size()); // a mark stands for the line end
    }
    return lines;
}
