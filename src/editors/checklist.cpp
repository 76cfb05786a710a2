// checklist.cpp -- what a reviewer of the boring would flag: the parts of the list in their order, and what they share.
#include "editors/checklist.h"

#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "boring/textlines.h"
#include "editors/checkparts.h"
#include "editors/hush.h"
#include "report/heading.h"
#include "session/shared.h"

#include <algorithm>

using namespace frmBorinput;

static std::vector<CheckEntry>* list;

static const SharedRecord shared[] = {
    {"list", Kind::Run, list},
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

// ---- The list

namespace
{
// The words and the logo that a run would draw with, as long as it lives.
struct WordsOfRun {
    WordsOfRun()
    {
        getclientlogo(1);
    }
    const Kept<Slots<Text, MaxHeadings>> words{HeadingWords};
    const Kept<int16_t> legend{LegendInUse};
    const Kept<Slots<int16_t, 4>> boxFill{LegendBoxFill};
    const Kept<LogoRecord> logo{LogoData};
    const Kept<int> failures{FailuresReported};
};
} // namespace

std::vector<CheckEntry> CheckBoring()
{
    using namespace BoringChecks;
    static constexpr void (*parts[])() = {
        LookForPatterns, CheckScale,     CheckPages,  CheckMarkers,     CheckDepthCells, CheckContacts,
        CheckSamples,    CheckDepths,    CheckWater,  CheckNouns,       CheckLostText,   CheckCodes,
        CheckSampleKeys, CheckWellFills, CheckLegend, CheckReportParts, CheckWidth,      CheckGraphs,
        CheckFiles,      CheckLines,     CheckRoom,   CheckLetters};
    std::vector<CheckEntry> found;
    const Hushed quiet;
    const WordsOfRun words;
    const Kept target(list);
    list = &found;
    for (void (*part)() : parts)
        try {
            part();
        } catch (...) { // a file that breaks off is told of by the page
        }
    std::stable_sort(found.begin(), found.end(), [](const CheckEntry& a, const CheckEntry& b) {
        return WeightOf(a) < WeightOf(b); // the gravest in front
    });
    return found;
}
