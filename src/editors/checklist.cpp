// checklist.cpp -- what a reviewer of the boring would flag.
#include "editors/checklist.h"

#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "boring/boringfile.h"
#include "boring/textlines.h"
#include "editors/fillform.h"
#include "editors/hush.h"
#include "logrender/logdata.h"
#include "logrender/textcolumns.h"
#include "report/layout.h"
#include "report/projectfiles.h"
#include "session/deviceconfig.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/shared.h"

#include <algorithm>

using namespace frmBorinput;

static constexpr int scaleBox = 2, partsBox = 3, paramBox = 6, sampleBox = 7, lithBox = 8, textBox = 9, wellBox = 10,
                     outerBox = 11, innerBox = 12, cuttingBox = 14, formationBox = 15;

static std::vector<CheckEntry>* list;

static const SharedRecord shared[] = {
    {"list", Kind::Run, list},
};

static void Flag(const Text& words, int box, int row, int column = 1)
{
    list->push_back({words, box, row, column});
}

// A cell as it is told of.
static Text Told(int box, int row, int column)
{
    return Text(Trim(BoxGrid(box)->Cell(row, column)));
}

static double Depth(int box, int row, int column)
{
    return TextNumber(BoxGrid(box)->Cell(row, column));
}

static bool Empty(int box, int row, int column)
{
    return IsBlank(BoxGrid(box)->Cell(row, column));
}

static bool EmptyRow(int box, int row)
{
    for (int column = 1; column <= BoxGrid(box)->columns; ++column)
        if (!Empty(box, row, column))
            return false;
    return true;
}

// ---- The warnings of a save

// Its row in the scale grid is the one that the warning begins with; the long one is about the last contact.
static int ScaleRow(const Text& words)
{
    static constexpr std::pair<std::string_view, int> rows[] = {
        {"Scale: Inc", 2}, {"Scale: Page", 3}, {"Scale: Start", 6}};
    for (const auto& [prompt, row] : rows)
        if (words.find(prompt) < 30)
            return row;
    return 1;
}

static void CheckScale()
{
    Platform.MsgBox = [](const Text& words, Buttons, Icon) {
        if (words.starts_with("The last contact depth"))
            Flag(words, lithBox, std::max(SSLith.DataRowCount(), 1));
        else
            Flag(words, scaleBox, ScaleRow(words));
        return int(Ok);
    };
    boringcheck();
    Platform.MsgBox = [](const Text&, Buttons, Icon) { return int(Ok); };
}

// ---- Contacts and samples

static void CheckContacts()
{
    int before = 0;
    for (int row = 1; row <= SSLith.DataRowCount(); ++row) {
        if (EmptyRow(lithBox, row))
            continue;
        if (Empty(lithBox, row, 1))
            Flag("Contact " + PlainNumber(row) + " has no depth.", lithBox, row);
        else if (before != 0 && Depth(lithBox, row, 1) <= Depth(lithBox, before, 1))
            Flag("Contact " + PlainNumber(row) + " at " + Told(lithBox, row, 1) + " does not lie below contact " +
                     PlainNumber(before) + " at " + Told(lithBox, before, 1) + ".",
                 lithBox, row);
        else
            before = row;
    }
}

static void CheckSamples()
{
    int before = 0; // the sample that reaches deepest so far
    for (int row = 1; row <= SSSamp.DataRowCount(); ++row) {
        if (EmptyRow(sampleBox, row))
            continue;
        const Text sample = "Sample row " + PlainNumber(row);
        if (Empty(sampleBox, row, 1)) {
            Flag(sample + " has no start.", sampleBox, row, 1);
            continue;
        }
        if (Empty(sampleBox, row, 2)) {
            Flag(sample + " has no end.", sampleBox, row, 2);
            continue;
        }
        const double start = Depth(sampleBox, row, 1), end = Depth(sampleBox, row, 2);
        if (end < start)
            Flag(sample + " ends at " + Told(sampleBox, row, 2) + ", above its start at " + Told(sampleBox, row, 1) +
                     ".",
                 sampleBox, row, 2);
        if (before != 0) {
            const double reached = Depth(sampleBox, before, 2);
            const Text rows = "Sample rows " + PlainNumber(before) + " and " + PlainNumber(row);
            if (start < reached)
                Flag(rows + " overlap: " + Told(sampleBox, row, 1) + " lies above " + Told(sampleBox, before, 2) + ".",
                     sampleBox, row, 1);
            else if (start > reached)
                Flag(rows + " leave a gap from " + Told(sampleBox, before, 2) + " to " + Told(sampleBox, row, 1) + ".",
                     sampleBox, row, 1);
        }
        if (before == 0 || end > Depth(sampleBox, before, 2))
            before = row;
    }
}

// ---- Depths below the last contact

static void CheckDepth(int box, int row, int column, double last, const Text& where)
{
    if (Depth(box, row, column) > last)
        Flag(BoxGrid(box)->title + ", " + where + ": " + Told(box, row, column) + " lies below the last contact.", box,
             row, column);
}

// Lines that begin with "-" and a depth.
static void CheckPlacedText(int kind, const char* box, const char* title, double last)
{
    Text2Wrap32(kind);
    int place = 0;
    for (int i = 1; i <= LineCount; ++i) {
        const Text& line = LineBuffer[i];
        if (line.starts_with('-') && -TextNumber(line) > last)
            list->push_back({Text(title) + ", line " + PlainNumber(i) + ": " + PlainNumber(-TextNumber(line)) +
                                 " lies below the last contact.",
                             textBox, 1, 1, box, place});
        place += int(line.size()); // a mark stands for the line end
    }
}

static void CheckDepths()
{
    double last = 0;
    for (int row = 1; row <= SSLith.DataRowCount(); ++row)
        last = std::max(last, Depth(lithBox, row, 1));
    if (last == 0) // the scale's warnings tell of it
        return;
    static constexpr struct {
        int box, columns;
    } lists[] = {{sampleBox, 2}, {paramBox, 1}, {outerBox, 2}, {innerBox, 2}, {cuttingBox, 1}, {formationBox, 1}};
    for (const auto& [box, columns] : lists)
        for (int row = 1; row <= BoxGrid(box)->DataRowCount(); ++row)
            for (int column = 1; column <= columns; ++column)
                CheckDepth(box, row, column, last, "row " + PlainNumber(row));
    for (const int row : {7, 8, 9, 11, 12, 14}) // surface casings, water, other
        CheckDepth(wellBox, row, 1, last,
                   SSGenWellInfo.rowHeadings.size() > size_t(row) ? SSGenWellInfo.rowHeadings[size_t(row)]
                                                                  : "row " + PlainNumber(row));
    CheckPlacedText(1, "MemoDes", "Descriptions", last);
    CheckPlacedText(3, "MemoRemarks", "Remarks", last);
}

// ---- Text and its room

static void CheckLines(const Memo& memo, const char* box, const Text& words, int most)
{
    const int lines = int(memo.DisplayLines().size());
    if (lines > most)
        list->push_back(
            {"Your " + words + " exceed " + PlainNumber(most) + " lines, by " + PlainNumber(lines - most) + ".",
             textBox, 1, 1, box, int(memo.text.size())});
}

// The layout where a run looks for it, into LayoutData. False: it is not there.
static bool ReadLayout()
{
    const bool ending = UpperCase(cmbLayFile).ends_with(".LAY");
    const Text name = LayoutPath(ending ? cmbLayFile : cmbLayFile + ".lay", BoringFileName);
    if (!FileExists(name))
        return false;
    ReadLayoutFile(name);
    return true;
}

// The columns against the page. The label beneath them knows the layouts of the working folder only.
static void CheckWidth()
{
    const size_t bar = lblWidthtot.find('/');
    if (bar == Text::npos)
        return;
    const Kept layout(LayoutData);
    LayoutData.Orientation = 0;
    ReadLayout();
    const double room = LayoutData.Orientation == 0 ? 6.8 : LayoutData.Orientation == 1 ? 9.2 : 15.2;
    if (TextNumber(lblWidthtot) > room)
        Flag("The report parts are " + lblWidthtot.substr(0, bar) + " inches wide, and the page has room for " +
                 PlainNumber(room) + ".",
             partsBox, 1, 2);
}

// A save keeps the first lines of the client box.
static void CheckClient()
{
    int lines = txtClient.empty() ? 0 : 1;
    for (size_t at = txtClient.find(CrLf); at != Text::npos; at = txtClient.find(CrLf, at + CrLf.size()))
        ++lines;
    if (lines > MaxClient)
        list->push_back({"The client information exceeds " + PlainNumber(MaxClient) + " lines, by " +
                             PlainNumber(lines - MaxClient) + ".",
                         textBox, 1, 1, "txtClient", int(txtClient.size())});
}

// The inches that a page has for its depths, by the layout.
static double PageLength()
{
    const Kept layout(LayoutData);
    const Kept kind(LogGeometry.FrameKind);
    const Kept bottomRow(LogGeometry.HasBottomRow);
    const Kept length(LogBoring.PageLength);
    const Text pageBreak = SSScale.Cell(3, 1);
    const size_t comma = pageBreak.find(',');
    LogBoring.PageLength = comma == Text::npos ? 0 : TextNumber(pageBreak.substr(comma + 1));
    LogGeometry.FrameKind = 'P';
    if (ReadLayout()) {
        LogGeometry.FrameKind = LayoutData.Orientation == 0 ? 'P' : LayoutData.Orientation == 1 ? 'L' : 'T';
        const auto& blocks = LayoutData.Blocks;
        LogGeometry.HasBottomRow = LogGeometry.FrameKind == 'P' && (blocks[3] > 0 || blocks[6] > 0 || blocks[9] > 0);
    }
    return DrawingLength();
}

namespace
{
// The text under a marker.
struct TextUnder {
    int place;     // of the marker in the box
    double height; // inches
};
} // namespace

// The blocks of a description under "@" markers, in order; the k-th belongs to contact k. None of any other form.
static std::vector<TextUnder> Blocks()
{
    std::vector<TextUnder> blocks;
    Text2Wrap32(1);
    if (!LineBuffer[1].starts_with('@'))
        return blocks;
    bool placed = false; // text at a depth takes no room
    int place = 0;
    for (int i = 1; i <= LineCount; ++i) {
        if (LineBuffer[i].starts_with('@')) {
            blocks.push_back({place, 0.04});
            placed = false;
        } else if (LineBuffer[i].starts_with('-')) {
            placed = true;
        } else if (!placed) {
            blocks.back().height += VLOG::LinePitch;
        }
        place += int(LineBuffer[i].size());
    }
    return blocks;
}

// A unit too thin for its text is stretched downward at the cost of those below; the end of the log cannot move, and
// the text of a last contact with too little room is not printed.
static void CheckDescriptionRoom()
{
    const std::vector<TextUnder> blocks = Blocks();
    if (blocks.empty() || SSLith.DataRowCount() == 0)
        return;
    const double end = TextNumber(SSScale.Cell(1, 1));
    const int pages = PagesOfLog();
    const double length = PageLength();
    if (!(end > 0) || pages < 1 || length <= 0)
        return;
    const double page = pages == 1 && !(TextNumber(SSScale.Cell(3, 1)) > 0) ? end : TextNumber(SSScale.Cell(3, 1));
    double bottom = 0; // of the text, in inches below the page's first depth
    int on = 1;
    for (int contact = 1; contact <= std::min(int(blocks.size()), SSLith.DataRowCount()); ++contact) {
        const double depth = Depth(lithBox, contact, 1);
        while (on < pages && depth > on * page) { // a unit that goes on has its text on the page where there is room
            ++on;
            bottom = 0;
        }
        const double natural = (depth - (on - 1) * page) / page * length;
        const TextUnder& block = blocks[size_t(contact) - 1];
        const bool last = depth >= pages * page;
        const double need = block.height > 0.05 ? block.height : 0; // a marker without text wants no room
        if (last && natural - bottom < need) {
            list->push_back({"The text of contact " + PlainNumber(contact) +
                                 " does not fit above the end of the log and is not printed.",
                             textBox, 1, 1, "MemoDes", block.place});
            return;
        }
        bottom = std::max(natural, bottom + need);
        if (bottom > length + 0.001) {
            list->push_back({"The descriptions run past the foot of page " + PlainNumber(on) +
                                 " with the text of contact " + PlainNumber(contact) + ".",
                             textBox, 1, 1, "MemoDes", block.place});
            return;
        }
    }
}

static void CheckMarkerText()
{
    Text2Wrap32(1);
    CheckMarkers(SSLith.DataRowCount(), [](const Text& words, int line) {
        int place = 0;
        for (int i = 1; i < line; ++i)
            place += int(LineBuffer[i].size());
        list->push_back({words, textBox, 1, 1, "MemoDes", place});
    });
}

std::vector<CheckEntry> CheckBoring()
{
    std::vector<CheckEntry> found;
    const Hushed quiet;
    const Kept target(list);
    list = &found;
    try {
        CheckScale();
        CheckMarkerText();
        CheckContacts();
        CheckSamples();
        CheckDepths();
        CheckWidth();
        CheckLines(MemoDes, "MemoDes", "descriptions", MaxDes);
        CheckLines(MemoWcon, "MemoWcon", "notes", MaxWellNotes);
        CheckLines(MemoRemarks, "MemoRemarks", "remarks", MaxRemarks);
        CheckLines(MemoBottNotes, "MemoBottNotes", "general notes", MaxBottNotes);
        CheckClient();
        CheckDescriptionRoom();
    } catch (...) { // a layout that cannot be read is told of by the page
    }
    // Samples are often taken with gaps on purpose, so those stand behind the rest.
    std::stable_partition(found.begin(), found.end(),
                          [](const CheckEntry& entry) { return entry.Words.find(" leave a gap from ") == Text::npos; });
    return found;
}
