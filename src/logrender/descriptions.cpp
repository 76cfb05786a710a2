// descriptions.cpp -- the description column of borings whose text stands under "@" markers, one block for each
// contact: ArrangeDescs puts the lines in order, drawdes draws.
//
// A thin unit cannot hold its text. Its box is stretched downward between the column's edges, and at the edges, where
// the neighbours look, a short slanted line ties it back to the true depth:
//
//      |\______________________/|   true depth at the edges, the stretched box between them
//
#include "canvas/metaugl.h"
#include "logrender/logdata.h"
#include "logrender/textcolumns.h"
#include "logrender/vlog.h"
#include "run/batchrun.h"

#include <cmath>
#include <vector>

// Puts the blocks that stand at a depth, each from its "-" line to the next "@" line, behind all "@" blocks.
// Kept: a "-" line that opens a block as the very last line has the scan run off the table; the failure is shown and
// the lines stay as they are.
void VLOG::ArrangeDescs()
try {
    const int count = LogBoring.DesCount;
    std::vector<Text> blocks, placed;
    for (int i = 1; i <= count; ++i) {
        if (!LogBoring.Des[i].starts_with('-')) {
            blocks.push_back(LogBoring.Des[i]);
            continue;
        }
        placed.push_back(LogBoring.Des[i]);
        do {
            const Text& line = LogBoring.Des[++i];
            if (line.starts_with('@')) {
                blocks.push_back(line);
                break;
            }
            placed.push_back(line);
        } while (i != count);
    }
    int i = 0;
    for (const Text& line : blocks)
        LogBoring.Des[++i] = line;
    for (const Text& line : placed)
        LogBoring.Des[++i] = line;
} catch (...) {
    ReportFailure(__func__);
}

namespace
{
// Where the boxes of one page stand, in inches below the depth line.
struct Boxes {
    int TextEnd = 0;               // the last line that stands under a marker
    Slots<float, MaxDes> Need;     // height that the k-th block wants
    Slots<float, MaxLith> Unit;    // height of a contact's unit on the scale
    Slots<float, MaxLith> Natural; // true position of a contact: the running sum of Unit
    Slots<float, MaxLith> Bottom;  // its position on the text side
};

// The unit of the page's last contact runs on below the page.
bool CutAtPageEnd()
{
    return LogGeometry.ContactFirst > 0 && LogBoring.Contacts[LogGeometry.ContactLast].Depth == LogPage.PageEndDepth;
}

// The k-th block belongs to contact k. Its height is that of the lines between its marker and the next.
void MeasureBlocks(Boxes& boxes)
{
    boxes.TextEnd = LogBoring.DesCount;
    int block = 1, marker = 1;
    const auto close = [&](int behind) { boxes.Need[block] = (behind - marker - 1) * VLOG::LinePitch + 0.04; };
    for (int i = 2; i <= LogBoring.DesCount; ++i) {
        if (LogBoring.Des[i].starts_with('-')) {
            boxes.TextEnd = i - 1;
            break;
        }
        if (LogBoring.Des[i].starts_with('@')) {
            close(i);
            ++block;
            marker = i;
        }
    }
    close(boxes.TextEnd + 1);
}

void MeasureUnits(Boxes& boxes)
{
    const int first = LogGeometry.ContactFirst;
    if (first == 0)
        return;
    for (int i = first; i <= LogGeometry.ContactLast; ++i) {
        const double top = i == first ? LogPage.PageStartDepth : LogBoring.Contacts[i - 1].Depth;
        boxes.Unit[i] = Over(LogBoring.Contacts[i].Depth - top, LogGeometry.DepthPerInch);
        boxes.Natural[i] = double(boxes.Natural[i - 1]) + boxes.Unit[i];
    }
}

// The text of the page's first contact was printed on the page before: it wants no room here and is not repeated. A
// boring's first page has none before it, whatever the flag says.
bool PrintedBefore(const Text& breakFlag)
{
    return LogPage.PageStartDepth > 0 && breakFlag == "Y";
}

// Bottoms only ever move down, and what one box moved pushes the next until a unit is thick enough to take it up.
void PlaceBoxes(Boxes& boxes, const Text& breakFlag)
{
    const int first = LogGeometry.ContactFirst, last = LogGeometry.ContactLast;
    if (first == 0)
        return;
    const bool room = boxes.Unit[first] >= boxes.Need[first] || PrintedBefore(breakFlag);
    boxes.Bottom[first] = room ? boxes.Natural[first] : boxes.Need[first];
    for (int i = first + 1; i <= last; ++i) {
        const float free = double(boxes.Natural[i]) - boxes.Bottom[i - 1];
        // The page's last line cannot move.
        if (free >= boxes.Need[i] || (i == last && CutAtPageEnd()))
            boxes.Bottom[i] = boxes.Natural[i];
        else
            boxes.Bottom[i] = double(boxes.Natural[i]) + boxes.Need[i] - free;
    }
}

// The line of contact i from edge to edge, with its leaders when the box was moved.
void DrawContact(int i, const Boxes& boxes)
{
    const float h = LogGeometry.ColumnWidth;
    moveto(0, -boxes.Natural[i]);
    const Text type = UpperCase(LogBoring.Contacts[i].LineType);
    if (type == "N")
        return;
    const float moved = double(boxes.Bottom[i]) - boxes.Natural[i];
    if (moved != 0)
        lineby(0.05, -moved);
    if (type == "D")
        setlinestyle(2);
    if (i == LogGeometry.ContactLast && CutAtPageEnd())
        setlinestyle(5);
    lineright(moved != 0 ? 2 * h - 0.1 : 2 * h);
    setlinestyle(1);
    if (moved != 0)
        lineby(0.05, moved);
}

// An "@" line: whether the text of its contact prints on this page; the pen goes to its first line.
bool StartBlock(const Text& line, const Boxes& boxes, const Text& breakFlag)
{
    const double number = TextNumber(line.substr(1));
    if (!VLOG::contactonpage(number))
        return false;
    const int n = RoundInt16(number);
    const bool firstOnPage = n == LogGeometry.ContactFirst;
    bool print = !(firstOnPage && PrintedBefore(breakFlag));
    if (n == LogGeometry.ContactLast && CutAtPageEnd()) {
        // Text that does not fit moves as a whole to the next page.
        // Kept: of text carried here the flag says "N" too, so under a unit that fills this page as well it prints
        // once more on the page after.
        const float free = double(boxes.Natural[n]) - boxes.Bottom[n - 1];
        print = print && free >= boxes.Need[n];
        WriteBreak(print ? "Y" : "N");
    }
    moveto(VLOG::TextIndent, firstOnPage ? -0.08 : -(boxes.Bottom[n - 1] + 0.08));
    return print;
}

// "<<Clay>>" and "<<Clay" both print Clay in bold.
void PrintLine(const Text& line)
{
    if (!line.starts_with("<<")) {
        printtext(line);
    } else {
        Text words = line.substr(2);
        if (words.ends_with(">>"))
            words.resize(words.size() - 2);
        textboldon();
        printtext(words);
        textboldoff();
    }
    movedown(VLOG::LinePitch);
}
} // namespace

// The description column of "@" blocks; ColumnWidth is half its width. Reads break.mas, which says whether the text of
// the page's first contact was printed on the page before, and writes there whether that of a last contact cut at the
// page's end prints here. Kept: text of a marker beyond the contacts vanishes without a word, and text at a depth
// takes no part in the placing, so it may overprint.
void VLOG::drawdes()
try {
    descriptionbox(true);
    // Where the boxes stand.
    Boxes boxes;
    MeasureBlocks(boxes);
    MeasureUnits(boxes);
    const Text breakFlag = ReadBreak();
    PlaceBoxes(boxes, breakFlag);
    // The contact lines.
    setscaley(1);
    if (LogGeometry.ContactFirst > 0)
        for (int i = LogGeometry.ContactFirst; i <= LogGeometry.ContactLast; ++i)
            DrawContact(i, boxes);
    // The text under markers.
    bool print = false;
    for (int i = 1; i <= boxes.TextEnd; ++i) {
        const Text& line = LogBoring.Des[i];
        if (line.starts_with('@'))
            print = StartBlock(line, boxes, breakFlag);
        else if (print)
            PrintLine(line);
    }
    // The text at a depth.
    print = false;
    for (int i = boxes.TextEnd + 1; i <= LogBoring.DesCount; ++i) {
        const Text& line = LogBoring.Des[i];
        if (line.starts_with('-'))
            print = depthplaced(line);
        else if (print)
            PrintLine(line);
    }
    enddescriptions();
} catch (...) {
    ReportFailure(__func__);
}
