// checktexts.cpp -- the check list's view of texts: markers and the layers that they name, text that is not printed or
// has no room, letters that no page can show.
#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "boring/boringfile.h"
#include "boring/textlines.h"
#include "editors/checkparts.h"
#include "logrender/textcolumns.h"

#include <algorithm>
#include <cmath>
#include <cstring>

using namespace BoringChecks;
using namespace frmBorinput;

// ---- The three forms of descriptions, by their first line

enum class DesForm { Markers, Manual, Dots };

static DesForm FormOf(const std::vector<StoredLine>& lines)
{
    if (!lines.empty() && lines[0].Words.starts_with("@"))
        return DesForm::Markers;
    return !lines.empty() && UpperCase(lines[0].Words).starts_with("MANUAL") ? DesForm::Manual : DesForm::Dots;
}

static double MarkerNumber(const Text& line)
{
    return std::nearbyint(TextNumber(line.substr(1)));
}

static void FlagLine(const char* kind, const StoredLine& line, const Text& words)
{
    FlagText(kind, "Descriptions: " + words, "MemoDes", line.Place);
}

// ---- Markers that belong to no layer

// The warnings of a save, and what they let pass: they look at a marker's first digit only.
void BoringChecks::CheckMarkers()
{
    static std::vector<StoredLine> lines;
    static std::vector<int> told;
    lines = StoredLines(1);
    told.clear();
    const int contacts = Rows(LithBox);
    ::CheckMarkers(contacts, [](const Text& words, int line) {
        const bool none = words.starts_with("Warning");
        FlagText(none ? "marker-none" : "save", words, "MemoDes", lines[size_t(line) - 1].Place);
        if (none)
            told.push_back(line);
    });
    const DesForm form = FormOf(lines);
    for (size_t i = 0; i < lines.size(); ++i) {
        const Text& words = lines[i].Words;
        if (!words.starts_with('@'))
            continue;
        const double number = MarkerNumber(words);
        const bool digits = words.size() > 1 && words[1] >= '0' && words[1] <= '9';
        if (form == DesForm::Dots && digits) {
            FlagLine("marker-none", lines[i],
                     "they do not begin with @1, so that " + words +
                         " is printed as a line of text and leads to no "
                         "layer.");
            return;
        }
        if (form != DesForm::Dots && (number < 1 || number > contacts) &&
            std::find(told.begin(), told.end(), int(i) + 1) == told.end())
            FlagLine("marker-none", lines[i], "there is no contact " + words + ", and its text is not printed.");
    }
}

// ---- Text that is not printed

static bool DigitAt(const Text& line, size_t at)
{
    return at < line.size() && ((line[at] >= '0' && line[at] <= '9') || line[at] == '.');
}

// What stands behind the number of a line that begins with a mark; such a line is not printed.
static Text BehindMark(const Text& line)
{
    size_t at = 1;
    while (at < line.size() && line[at] == ' ')
        ++at;
    while (DigitAt(line, at))
        ++at;
    return Text(Trim(line.substr(at)));
}

static void CheckMarkLine(const StoredLine& line, const char* title, const char* box)
{
    const Text told = Text(title) + ": " + Quoted(line.Words);
    if (line.Words[0] == '-' && !DigitAt(line.Words, 1))
        FlagText("text-lost",
                 told + " begins with \"-\", the mark of a depth, and has none: the line is not printed, and what "
                        "follows stands at 0.",
                 box, line.Place);
    else if (!BehindMark(line.Words).empty())
        FlagText("text-lost", told + ": what stands behind the number is not printed; text begins on the next line.",
                 box, line.Place);
}

// Lines before the first mark, of a text that is placed by marks alone.
static void CheckUnplaced(const std::vector<StoredLine>& lines, const char* title, const char* box, const char* marks)
{
    for (const StoredLine& line : lines) {
        if (!line.Words.empty() && std::strchr(marks, line.Words[0]))
            return;
        if (!IsBlank(line.Words))
            return FlagText("text-lost",
                            Text(title) + ": " + Quoted(line.Words) +
                                " stands before the first mark, and is not printed.",
                            box, line.Place);
    }
}

static void CheckDots(const std::vector<StoredLine>& lines)
{
    for (const StoredLine& line : lines) {
        const Text command = UpperCase(line.Words);
        if (!command.starts_with('.') || command.starts_with(".."))
            continue;
        const char letter = command.size() > 1 ? command[1] : ' ';
        if (!std::strchr("LTDS", letter) && !command.starts_with(".NF"))
            FlagLine("text-lost", line, Quoted(line.Words) + " is no command, and is not printed.");
    }
}

void BoringChecks::CheckLostText()
{
    const std::vector<StoredLine> des = StoredLines(1), remarks = StoredLines(3);
    const DesForm form = FormOf(des);
    const bool drawn = Draws("DES");
    if (drawn && form == DesForm::Dots)
        CheckDots(des);
    for (size_t i = 0; drawn && i < des.size() && form != DesForm::Dots; ++i)
        if (des[i].Words.starts_with('@') || des[i].Words.starts_with('-'))
            CheckMarkLine(des[i], "Descriptions", "MemoDes");
    if (drawn && form == DesForm::Manual && !des.empty())
        CheckUnplaced({des.begin() + 1, des.end()}, "Descriptions", "MemoDes", "@-#");
    // A mark that opens the text at a depth as the very last line has the run end in an error.
    if (!des.empty() && UpperCase(des[0].Words) != "MANUAL" && des.back().Words.starts_with('-')) {
        bool open = false; // text at a depth, up to the next marker
        for (size_t i = 0; i + 1 < des.size(); ++i)
            open = des[i].Words.starts_with('-') || (open && !des[i].Words.starts_with('@'));
        if (!open)
            FlagLine("text-lost", des.back(),
                     "the last line begins with \"-\" and has no text below it, which ends the drawing in an error.");
    }
    const std::vector<DrawnPart> parts = DrawnParts();
    if (std::none_of(parts.begin(), parts.end(), [](const DrawnPart& part) { return part.Name == "REMARKS"; }))
        return;
    CheckUnplaced(remarks, "Remarks", "MemoRemarks", "-");
    for (const StoredLine& line : remarks)
        if (line.Words.starts_with('-'))
            CheckMarkLine(line, "Remarks", "MemoRemarks");
}

// ---- Text of more lines than its box holds

static void CheckBox(const Memo& memo, const char* box, const Text& words, int most)
{
    const int lines = int(memo.DisplayLines().size());
    if (lines > most)
        FlagText("lines",
                 "Your " + words + " exceed " + PlainNumber(most) + " lines, by " + PlainNumber(lines - most) + ".",
                 box, int(memo.text.size()));
}

// A save keeps the first lines of the client box; empty ones behind them are no loss.
static void CheckClient()
{
    int line = 0, last = 0;
    std::string_view rest = txtClient;
    while (!rest.empty()) {
        const size_t end = std::min(rest.find(CrLf), rest.size());
        ++line;
        if (!IsBlank(rest.substr(0, end)))
            last = line;
        rest.remove_prefix(std::min(end + CrLf.size(), rest.size()));
    }
    if (last > MaxClient)
        FlagText("lines",
                 "The client information exceeds " + PlainNumber(MaxClient) + " lines, by " +
                     PlainNumber(last - MaxClient) + ".",
                 "txtClient", int(txtClient.size()));
}

void BoringChecks::CheckLines()
{
    CheckBox(MemoDes, "MemoDes", "descriptions", MaxDes);
    CheckBox(MemoWcon, "MemoWcon", "notes", MaxWellNotes);
    CheckBox(MemoRemarks, "MemoRemarks", "remarks", MaxRemarks);
    CheckBox(MemoBottNotes, "MemoBottNotes", "general notes", MaxBottNotes);
    CheckClient();
}

// ---- Text and its room

namespace
{
// A marker and the text under it.
struct MarkedText {
    int Number = 0; // the contact that the marker names
    int Place = 0;
    int Lines = 0;
    bool Words = false; // any of them is not blank
    bool Printed = false;
};

// The blocks in their order; the k-th takes its room at contact k. The text at depths takes none.
std::vector<MarkedText> Blocks()
{
    std::vector<MarkedText> blocks;
    const std::vector<StoredLine> lines = StoredLines(1);
    if (FormOf(lines) != DesForm::Markers)
        return blocks;
    bool placed = false;
    for (const StoredLine& line : lines) {
        if (line.Words.starts_with('@')) {
            MarkedText block;
            block.Number = int(std::clamp(MarkerNumber(line.Words), 0.0, 1000.0));
            block.Place = line.Place;
            blocks.push_back(block);
            placed = false;
        } else if (line.Words.starts_with('-')) {
            placed = true;
        } else if (!placed) {
            ++blocks.back().Lines;
            blocks.back().Words = blocks.back().Words || !IsBlank(line.Words);
        }
    }
    return blocks;
}

// A page's contacts as a run cuts them, and where their boxes stand, in inches below the page's first depth.
struct PageBoxes {
    int First = 0, Last = 0;
    bool CutAtEnd = false;                    // the last one's unit runs on below the page
    std::vector<float> Natural, Bottom, Need; // from index 1
};

float NeedOf(const std::vector<MarkedText>& blocks, int contact)
{
    if (contact > int(blocks.size()))
        return 0;
    return static_cast<float>(blocks[size_t(contact) - 1].Lines * VLOG::LinePitch + 0.04);
}

PageBoxes BoxesOf(const PageDepths& page, double length, const std::vector<MarkedText>& blocks, bool carried)
{
    PageBoxes boxes;
    const int count = Rows(LithBox);
    std::vector<float> depth(size_t(count) + 1);
    int beyond = 0;
    for (int i = 1; i <= count; ++i) {
        depth[size_t(i)] = static_cast<float>(Number(LithBox, i, 1));
        if (depth[size_t(i)] >= page.Start && boxes.First == 0)
            boxes.First = i;
        if (depth[size_t(i)] >= page.End && beyond == 0)
            beyond = i;
    }
    if (boxes.First == 0)
        return boxes;
    boxes.Last = beyond == 0 ? count : beyond;
    if (beyond != 0)
        depth[size_t(beyond)] = page.End;
    boxes.CutAtEnd = depth[size_t(boxes.Last)] == page.End;
    const float perInch = static_cast<float>((double(page.End) - double(page.Start)) / length);
    boxes.Natural.resize(size_t(count) + 1);
    boxes.Bottom = boxes.Need = boxes.Natural;
    for (int i = boxes.First; i <= boxes.Last; ++i) {
        const auto k = size_t(i);
        const double top = i == boxes.First ? page.Start : depth[k - 1];
        const auto unit = static_cast<float>((depth[k] - top) / perInch);
        boxes.Need[k] = NeedOf(blocks, i);
        boxes.Natural[k] = static_cast<float>(double(i == boxes.First ? 0 : boxes.Natural[k - 1]) + unit);
        if (i == boxes.First) {
            boxes.Bottom[k] = unit >= boxes.Need[k] || carried ? boxes.Natural[k] : boxes.Need[k];
            continue;
        }
        const auto free = static_cast<float>(double(boxes.Natural[k]) - boxes.Bottom[k - 1]);
        const bool stays = free >= boxes.Need[k] || (i == boxes.Last && boxes.CutAtEnd);
        boxes.Bottom[k] =
            static_cast<float>(stays ? boxes.Natural[k] : double(boxes.Natural[k]) + boxes.Need[k] - free);
    }
    return boxes;
}

// Prints the page's blocks; carried tells, page by page, whether the text of the unit that runs on has been printed.
void PrintBlocks(const PageDepths& page, int number, double length, std::vector<MarkedText>& blocks, bool& carried)
{
    const bool before = carried;
    const PageBoxes boxes = BoxesOf(page, length, blocks, before);
    if (boxes.First == 0)
        return;
    bool told = false;
    for (MarkedText& block : blocks) {
        const int n = block.Number;
        if (n < boxes.First || n > boxes.Last)
            continue;
        bool print = !(page.Start > 0 && n == boxes.First && before);
        if (n == boxes.Last && boxes.CutAtEnd) {
            const auto free = static_cast<float>(double(boxes.Natural[size_t(n)]) - boxes.Bottom[size_t(n) - 1]);
            print = print && free >= boxes.Need[size_t(n)];
            carried = print;
        }
        block.Printed = block.Printed || print;
        const double top = n == boxes.First ? 0 : boxes.Bottom[size_t(n) - 1];
        if (print && block.Words && !told && top + boxes.Need[size_t(n)] > length + 0.001) {
            FlagText("text-room",
                     "The descriptions run past the foot of page " + PlainNumber(number) +
                         " with the text of contact " + PlainNumber(n) + ".",
                     "MemoDes", block.Place);
            told = true;
        }
    }
}
} // namespace

// A unit too thin for its text is stretched downward at the cost of those below; the end of a page cannot move, and
// text that has no room above it goes to the next page, or is not printed.
void BoringChecks::CheckRoom()
{
    std::vector<MarkedText> blocks = Blocks();
    const double length = PageLength();
    if (blocks.empty() || !Draws("DES") || LastContact() == 0 || length <= 0)
        return;
    int number = 0;
    bool carried = false;
    for (const PageDepths& page : LogPages())
        PrintBlocks(page, ++number, length, blocks, carried);
    const float end = EndOfLog();
    for (const MarkedText& block : blocks) {
        const bool there = block.Number >= 1 && block.Number <= Rows(LithBox);
        const double top = block.Number > 1 ? Number(LithBox, block.Number - 1, 1) : 0;
        if (!there || !block.Words || block.Printed || top >= end)
            continue;
        const bool last = Number(LithBox, block.Number, 1) >= end;
        FlagText("text-room",
                 "The text of contact " + PlainNumber(block.Number) +
                     (last ? " does not fit above the end of the log and is not printed."
                           : " does not fit above the foot of its page, and the next page begins below it: it is not "
                             "printed."),
                 "MemoDes", block.Place);
    }
}

// ---- Letters

// A code that the code page leaves free has no letter, and a control character breaks what it stands in: in a cell the
// lines of the file, at 26 the file itself.
static bool NoLetter(unsigned char code)
{
    return code < 32 || code == 0x7F || code == 0x81 || code == 0x8D || code == 0x8F || code == 0x90 || code == 0x9D;
}

// The place of the first, line ends not counted where the text has lines; -1 for none.
static int NoLetterAt(const Text& text, bool lines, int& code)
{
    for (size_t i = 0; i < text.size(); ++i) {
        code = static_cast<unsigned char>(text[i]);
        if (lines && (code == '\r' || code == '\n'))
            continue;
        if (NoLetter(static_cast<unsigned char>(code)))
            return int(i);
    }
    return -1;
}

static void CheckText(const Text& text, const char* box, const char* title, bool lines)
{
    int code = 0;
    const int at = NoLetterAt(text, lines, code);
    if (at < 0)
        return;
    int place = at; // a line end counts as one
    for (size_t end = text.find(CrLf); end != Text::npos && int(end) < at; end = text.find(CrLf, end + 2))
        --place;
    FlagText("letters",
             Text(title) + ": the character of code " + PlainNumber(code) + " is no letter of the code page.", box,
             place);
}

// The mark that ends a paragraph in the file, typed into a text: what stands behind it on its line is not printed.
static void CheckMark(const Memo& memo, const char* box, const char* title)
{
    const size_t at = memo.text.find(ParagraphMark);
    if (at == Text::npos)
        return;
    int place = int(at);
    for (size_t end = memo.text.find(CrLf); end != Text::npos && end < at; end = memo.text.find(CrLf, end + 2))
        --place;
    FlagText("text-lost",
             Text(title) + ": the character " + Text(1, ParagraphMark) +
                 " ends a line when it is printed, and what stands behind it is lost.",
             box, place);
}

void BoringChecks::CheckLetters()
{
    CheckText(Text1, "Text1", "Boring Name", false);
    CheckText(Text2, "Text2", "Map File", false);
    CheckText(cmbLayFile, "cmbLayFile", "Layout File", false);
    for (int number = 1; number <= 16; ++number) {
        const Grid* grid = BoxGrid(number);
        if (!grid)
            continue;
        int code = 0;
        for (int row = 1; row <= grid->rows; ++row)
            for (int column = 1; column <= grid->columns; ++column)
                if (NoLetterAt(grid->Cell(row, column), false, code) >= 0)
                    Flag("letters",
                         WhereIs(number, row) + ": the character of code " + PlainNumber(code) +
                             " is no letter of the code page.",
                         number, row, column);
    }
    static const struct {
        const Memo& memo;
        const char* box;
        const char* title;
    } memos[] = {{MemoDes, "MemoDes", "Descriptions"},
                 {MemoWcon, "MemoWcon", "Notes"},
                 {MemoRemarks, "MemoRemarks", "Remarks"},
                 {MemoBottNotes, "MemoBottNotes", "General notes"}};
    for (const auto& [memo, box, title] : memos) {
        CheckText(memo.text, box, title, true);
        CheckMark(memo, box, title);
    }
    CheckText(txtClient, "txtClient", "Client information", true);
}
