// checkdepths.cpp -- the check list's view of depths: cells that are no number, contacts and samples out of order, what
// lies below the log.
#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "editors/checkparts.h"

#include <algorithm>

using namespace BoringChecks;

// ---- What a cell is read as

namespace
{
enum class Form {
    Empty,
    Number,
    Words,   // no number in front, and no digit: "dry"
    NoNumber // no number in front: "<5"
    ,
    Part // a number in front, and behind it what was meant to be part of it: "1O.5", "12,5", "2-4"
};
} // namespace

static bool Digit(char letter)
{
    return letter >= '0' && letter <= '9';
}

static bool Letter(char letter)
{
    return (letter >= 'A' && letter <= 'Z') || (letter >= 'a' && letter <= 'z');
}

static bool HasDigit(std::string_view text)
{
    return std::any_of(text.begin(), text.end(), Digit);
}

// What stands behind the number that TextNumber reads at the front; all of it where there is none.
static std::string_view BehindNumber(std::string_view text)
{
    size_t at = text.find_first_not_of(" \t");
    if (at == std::string_view::npos)
        return {};
    if (text[at] == '+' || text[at] == '-')
        ++at;
    const size_t start = at;
    while (at < text.size() && Digit(text[at]))
        ++at;
    size_t digits = at - start;
    if (at < text.size() && text[at] == '.')
        for (++at; at < text.size() && Digit(text[at]); ++at)
            ++digits;
    if (digits == 0)
        return text;
    if (at < text.size() && (text[at] == 'E' || text[at] == 'e')) {
        size_t exponent = at + 1;
        if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-'))
            ++exponent;
        if (exponent < text.size() && Digit(text[exponent])) {
            while (exponent < text.size() && Digit(text[exponent]))
                ++exponent;
            at = exponent;
        }
    }
    return text.substr(at);
}

// A unit of length right behind a number: "12m", "40ft", "3'".
static bool BeginsWithUnit(std::string_view rest)
{
    static constexpr std::string_view units[] = {"MBGL", "MBGS", "MTRS", "M", "FEET", "FT", "CM", "MM", "IN", "BGL"};
    std::string_view word = rest.substr(0, size_t(std::find_if_not(rest.begin(), rest.end(), Letter) - rest.begin()));
    return std::any_of(std::begin(units), std::end(units), [&](std::string_view unit) { return SameText(word, unit); });
}

// A remark may stand behind a depth, "26, after a day" or "26 (est.)": words do not change the number, as long as they
// stand apart from it. A date or a time does so too where it is no continuation of the number.
static Form FormOf(std::string_view text)
{
    if (IsBlank(text))
        return Form::Empty;
    const std::string_view rest = BehindNumber(text);
    if (rest.size() == text.size())
        return HasDigit(text) ? Form::NoNumber : Form::Words;
    if (rest.empty())
        return Form::Number;
    if (Letter(rest[0]))
        return BeginsWithUnit(rest) ? Form::Number : Form::Part;
    if (rest[0] == ' ' || rest[0] == '\t') {
        const std::string_view words = LTrim(rest);
        const bool continues =
            !words.empty() &&
            (Digit(words[0]) || ((words[0] == '-' || words[0] == '/') && HasDigit(words.substr(0, 3))));
        return continues ? Form::Part : Form::Number;
    }
    const bool continues = rest.size() > 1 && Digit(rest[1]); // "12,5", "12-14", "1.2.3"
    return continues || Digit(rest[0]) ? Form::Part : Form::Number;
}

// Which words may stand in a depth's place: what has no depth may say so where the page then shows none.
enum class WordsMean { AMistake, None };

static void CheckForm(int box, int row, int column, const Text& text, WordsMean words)
{
    const Text told = WhereIs(box, row) + ": " + Quoted(text);
    switch (FormOf(text)) {
    case Form::Empty:
    case Form::Number:
        return;
    case Form::Words:
        if (words == WordsMean::None)
            return;
        [[fallthrough]];
    case Form::NoNumber:
        return Flag("depth-number", told + " is no number, and is read as 0.", box, row, column);
    case Form::Part:
        return Flag("depth-form", told + " is read as " + PlainNumber(TextNumber(text)) + ".", box, row, column);
    }
}

static bool IsNumber(int box, int row, int column)
{
    const Form form = FormOf(Cell(box, row, column));
    return form == Form::Number || form == Form::Part;
}

// A row that begins the next pipe; its cells are no depths.
static bool PipeMarker(int box, int row)
{
    return box == InnerBox && (Cell(box, row, 3) == "@" || Cell(box, row, 1).starts_with("@"));
}

static void CheckRows(int box, int columns)
{
    for (int row = 1; row <= Rows(box); ++row)
        for (int column = 1; column <= columns && !PipeMarker(box, row); ++column)
            CheckForm(box, row, column, Cell(box, row, column), WordsMean::AMistake);
}

// A row of values without a depth would stand at the ground.
static void CheckDepthThere(int box)
{
    for (int row = 1; row <= Rows(box); ++row)
        if (Empty(box, row, 1) && !EmptyRow(box, row))
            Flag("depth-number", WhereIs(box, row) + " has no depth, and stands at 0.", box, row);
}

void BoringChecks::CheckDepthCells()
{
    CheckForm(ScaleBox, 1, 1, Cell(ScaleBox, 1, 1), WordsMean::AMistake);
    CheckForm(ScaleBox, 2, 1, Text(Before(Cell(ScaleBox, 2, 1), ',')), WordsMean::AMistake);
    CheckForm(ScaleBox, 3, 1, Text(Before(Cell(ScaleBox, 3, 1), ',')), WordsMean::None);
    if (Draws("ELEV")) { // elsewhere an elevation is a text
        CheckForm(ScaleBox, 5, 1, Text(Before(Cell(ScaleBox, 5, 1), ',')), WordsMean::AMistake);
        CheckForm(ScaleBox, 6, 1, Cell(ScaleBox, 6, 1), WordsMean::AMistake);
    }
    static constexpr struct {
        int box, columns;
    } lists[] = {{LithBox, 1},  {SampleBox, 2},  {ParamBox, 1},    {OuterBox, 2},
                 {InnerBox, 2}, {CuttingBox, 1}, {FormationBox, 1}};
    for (const auto& [box, columns] : lists)
        CheckRows(box, columns);
    for (const int box : {ParamBox, CuttingBox, FormationBox})
        CheckDepthThere(box);
    for (const int row : {7, 8, 9}) // a casing that is named is there, whatever its depth
        CheckForm(WellBox, row, 1, Cell(WellBox, row, 1), WordsMean::AMistake);
    for (const int row : {6, 11, 12, 14}) // stick-up and water: "flush", "dry"
        CheckForm(WellBox, row, 1, Cell(WellBox, row, 1), WordsMean::None);
}

// ---- Contacts and samples

void BoringChecks::CheckContacts()
{
    int before = 0;
    for (int row = 1; row <= Rows(LithBox); ++row) {
        if (EmptyRow(LithBox, row))
            continue;
        if (Empty(LithBox, row, 1))
            Flag("contact-order", "Contact " + PlainNumber(row) + " has no depth.", LithBox, row);
        else if (before != 0 && Number(LithBox, row, 1) <= Number(LithBox, before, 1))
            Flag("contact-order",
                 "Contact " + PlainNumber(row) + " at " + Cell(LithBox, row, 1) + " does not lie below contact " +
                     PlainNumber(before) + " at " + Cell(LithBox, before, 1) + ".",
                 LithBox, row);
        else
            before = row;
    }
}

namespace
{
struct Sample {
    int Row;
    double Start, End;
};
} // namespace

// The samples that have both ends; of the others, and of those upside down, the list is told.
static std::vector<Sample> WholeSamples()
{
    std::vector<Sample> samples;
    for (int row = 1; row <= Rows(SampleBox); ++row) {
        if (EmptyRow(SampleBox, row))
            continue;
        const Text told = "Sample row " + PlainNumber(row);
        if (Empty(SampleBox, row, 1))
            Flag("sample-ends", told + " has no start.", SampleBox, row, 1);
        else if (Empty(SampleBox, row, 2))
            Flag("sample-ends", told + " has no end.", SampleBox, row, 2);
        else if (!IsNumber(SampleBox, row, 1) || !IsNumber(SampleBox, row, 2))
            continue;
        else if (Number(SampleBox, row, 2) < Number(SampleBox, row, 1))
            Flag("sample-ends",
                 told + " ends at " + Cell(SampleBox, row, 2) + ", above its start at " + Cell(SampleBox, row, 1) + ".",
                 SampleBox, row, 2);
        else
            samples.push_back({row, Number(SampleBox, row, 1), Number(SampleBox, row, 2)});
    }
    return samples;
}

// A sample against those above it in the list: the first of the same depth, else the deepest that it overlaps. The rows
// need not be in the order of their depths, and a gap between samples is nothing to tell of.
static void CompareSample(const std::vector<Sample>& samples, size_t i)
{
    const Sample& sample = samples[i];
    const Sample* overlapped = nullptr;
    for (size_t k = 0; k < i; ++k) {
        const Sample& other = samples[k];
        const Text rows = "Sample rows " + PlainNumber(other.Row) + " and " + PlainNumber(sample.Row);
        if (other.Start == sample.Start && other.End == sample.End) {
            Flag("sample-same",
                 rows + " have the same depth, " + Cell(SampleBox, sample.Row, 1) + " to " +
                     Cell(SampleBox, sample.Row, 2) + ", and are drawn over each other.",
                 SampleBox, sample.Row);
            return;
        }
        const bool overlap = sample.Start < other.End && sample.End > other.Start;
        if (overlap && (!overlapped || other.End > overlapped->End))
            overlapped = &other;
    }
    if (overlapped)
        Flag("sample-overlap",
             "Sample rows " + PlainNumber(overlapped->Row) + " and " + PlainNumber(sample.Row) + " overlap: " +
                 Cell(SampleBox, sample.Row, 1) + " lies above " + Cell(SampleBox, overlapped->Row, 2) + ".",
             SampleBox, sample.Row);
}

void BoringChecks::CheckSamples()
{
    const std::vector<Sample> samples = WholeSamples();
    for (size_t i = 1; i < samples.size(); ++i)
        CompareSample(samples, i);
}

// ---- Depths below the log

namespace
{
struct Bottom {
    float Log, Contact; // where the last page ends, and the deepest contact
};
} // namespace

static Text Below(double depth, const Bottom& bottom, const char*& kind)
{
    kind = nullptr;
    if (float(depth) > bottom.Log) {
        kind = "below-log";
        return " lies below the end of the log.";
    }
    if (float(depth) > bottom.Contact)
        kind = "below-contact";
    return " lies below the last contact.";
}

static bool CheckDepth(int box, int row, int column, const Bottom& bottom)
{
    const char* kind = nullptr;
    const Text words = Below(Number(box, row, column), bottom, kind);
    if (kind)
        Flag(kind, WhereIs(box, row) + ": " + PlainNumber(Number(box, row, column)) + words, box, row, column);
    return kind != nullptr;
}

// Lines that place the text behind them: "-" and a depth, and in descriptions with dot commands ".L" and its like.
static void CheckPlacedText(int kind, const char* box, const char* title, const Bottom& bottom)
{
    const std::vector<StoredLine> lines = StoredLines(kind);
    const bool dots = kind == 1 && !lines.empty() && !lines[0].Words.starts_with("@") &&
                      !UpperCase(lines[0].Words).starts_with("MANUAL");
    for (size_t i = 0; i < lines.size(); ++i) {
        const Text& line = lines[i].Words;
        double depth = 0;
        if (dots && line.size() > 2 && line[0] == '.' && Text("LDSlds").find(line[1]) != Text::npos)
            depth = TextNumber(std::string_view(line).substr(line[2] == '=' ? 3 : 2));
        else if (!dots && line.starts_with('-'))
            depth = -TextNumber(line);
        const char* weight = nullptr;
        const Text words = Below(depth, bottom, weight);
        if (weight)
            FlagText(weight, Text(title) + ", line " + PlainNumber(int(i) + 1) + ": " + PlainNumber(depth) + words, box,
                     lines[i].Place);
    }
}

void BoringChecks::CheckDepths()
{
    const Bottom bottom{EndOfLog(), LastContact()};
    if (bottom.Contact == 0 || bottom.Log == 0) // the scale's warnings tell of it
        return;
    static constexpr struct {
        int box, columns;
    } lists[] = {{SampleBox, 2}, {ParamBox, 1}, {OuterBox, 2}, {InnerBox, 2}, {CuttingBox, 1}, {FormationBox, 1}};
    for (const auto& [box, columns] : lists)
        for (int row = 1; row <= Rows(box); ++row)
            for (int column = 1; column <= columns && !PipeMarker(box, row); ++column)
                if (CheckDepth(box, row, column, bottom))
                    break; // with its top the whole row
    for (const int row : {7, 8, 9})
        CheckDepth(WellBox, row, 1, bottom);
    // The first contact that no page reaches, where the scale's own warning does not tell of it.
    if (Number(ScaleBox, 1, 1) >= bottom.Contact)
        for (int row = 1; row <= Rows(LithBox); ++row)
            if (float(Number(LithBox, row, 1)) > bottom.Log) {
                CheckDepth(LithBox, row, 1, bottom);
                break;
            }
    CheckPlacedText(1, "MemoDes", "Descriptions", bottom);
    CheckPlacedText(3, "MemoRemarks", "Remarks", bottom);
}

// The hole is at least as deep as anything in it. Water is measured from the top of the pipe.
void BoringChecks::CheckWater()
{
    double hole = LastContact();
    for (const int box : {SampleBox, OuterBox, InnerBox})
        for (int row = 1; row <= Rows(box); ++row)
            if (!PipeMarker(box, row))
                hole = std::max({hole, Number(box, row, 1), Number(box, row, 2)});
    if (hole == 0)
        return;
    for (const int row : {11, 12, 14}) {
        const double below = float(Number(WellBox, row, 1) - Number(WellBox, 6, 1));
        if (below > float(hole))
            Flag("water",
                 WhereIs(WellBox, row) + ": " + PlainNumber(Number(WellBox, row, 1)) +
                     " is deeper than the hole, which ends at " + PlainNumber(hole) + ".",
                 WellBox, row);
    }
}
