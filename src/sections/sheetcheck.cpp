// sheetcheck.cpp -- what the check lists of sections, fences and soil tables have in common.
#include "sections/sheetcheck.h"

#include "canvas/colors.h"
#include "canvas/patterns.h"
#include "sections/sectionboring.h"
#include "session/deviceconfig.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/linebreaks.h"
#include "session/savename.h"
#include "session/session.h"

#include <algorithm>
#include <cmath>

using namespace VCROSS;

// ---- Numbers

bool VCROSS::ReadsAsNumber(const Text& cell)
{
    const Text text(Trim(cell));
    const auto digit = [&](size_t at) { return at < text.size() && text[at] >= '0' && text[at] <= '9'; };
    size_t at = !text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0;
    const size_t start = at;
    for (bool point = false; digit(at) || (!point && at < text.size() && text[at] == '.'); ++at)
        point = point || text[at] == '.';
    const bool any = std::any_of(text.begin() + long(start), text.begin() + long(at), [](char c) { return c != '.'; });
    if (any && at < text.size() && (text[at] == 'E' || text[at] == 'e')) {
        const size_t sign = at + 1 < text.size() && (text[at + 1] == '-' || text[at + 1] == '+') ? 1 : 0;
        if (digit(at + 1 + sign))
            for (at += 1 + sign; digit(at);)
                ++at;
    }
    // What is left may be a unit; a digit in it would be lost.
    return any && text.find_first_of("0123456789", at) == Text::npos;
}

SheetScale::SheetScale(const Text& cell, bool whole) : Replaced(!Holds(cell, ','))
{
    const Text text = Replaced ? "0,1000,100" : cell;
    const std::string_view behind = Behind(text, ',');
    StartText = Trim(Before(text, ','));
    EndText = Trim(Before(behind, ','));
    IncText = Trim(Holds(behind, ',') ? Behind(behind, ',') : behind);
    const auto number = [&](const Text& piece) {
        const double value = TextNumber(piece);
        const double rounded = std::nearbyint(value);
        Rounded = Rounded || (whole && rounded != value);
        return whole ? rounded : value;
    };
    Start = number(StartText);
    End = number(EndText);
    Inc = number(IncText);
}

// ---- Flags

void SheetCheck::Flag(const char* kind, const Grid& grid, int row, int column, const Text& words)
{
    CheckEntry entry;
    entry.Words = words;
    entry.InGrid = &grid;
    entry.Row = row;
    entry.Column = column;
    entry.Kind = kind;
    Found.push_back(entry);
}

Text VCROSS::RowInWords(int row, const Text& name)
{
    const Text bare(Trim(name));
    return "Row " + PlainNumber(row) + (bare.empty() ? "" : ", " + bare);
}

void SheetCheck::HeadingThere(const Grid& grid, int row)
{
    const Text& told = DeviceConfig.SystemFiles[HeadingFile];
    const Text name = told.empty() ? "us.hdg" : WithEnding(told, ".hdg");
    if (!FileExists(name))
        Flag("named-file", grid, row, 1,
             "The heading file " + name + " is not found: the words of the page are blank.");
}

void SheetCheck::Title(const Grid& grid, int row, double points, double inches)
{
    const Text& font = DeviceConfig.FontName;
    if (!font.empty() && !SameText(font, "Arial"))
        return;
    const double width = double(AdvanceWidth(Trim(grid.Cell(row, 1)))) / UnitsPerHeight * points / 72;
    if (width > inches)
        Flag("sheet-title", grid, row, 1,
             "The title is " + PlainNumber(std::nearbyint(width * 10) / 10) +
                 " inches wide, and its box at the foot of the page " + PlainNumber(inches) + ".");
}

void SheetCheck::OneOf(const Grid& grid, int row, int column, const char* letters, bool trimmed, const Text& taken)
{
    const Text& cell = grid.Cell(row, column);
    if (IsBlank(cell))
        return;
    const Text letter = UpperCase(trimmed ? Trim(cell) : std::string_view(cell));
    if (letter.size() != 1 || !Holds(letters, letter[0]))
        Flag("sheet-choice", grid, row, column,
             "\"" + cell + "\" is none of the letters told, and is taken as " + taken + ".");
}

void SheetCheck::Number(const Grid& grid, int row, int column, const Text& name)
{
    const Text& cell = grid.Cell(row, column);
    if (!IsBlank(cell) && !ReadsAsNumber(cell))
        Flag("sheet-number", grid, row, column,
             name + ": \"" + Text(Trim(cell)) + "\" is no number, and is taken as " + PlainNumber(TextNumber(cell)) +
                 ".");
}

bool SheetCheck::TooFar(const Grid& grid, int row, int column, const Text& name, const Text& cell, double inches)
{
    constexpr double most = 3e6; // 32 bits of device units
    if (!(std::fabs(inches) > most))
        return false;
    Flag("sheet-number", grid, row, column,
         name + ": \"" + Text(Trim(cell)) + "\" is so far beyond the sheet that the drawing stops.");
    return true;
}

BoringLookedAt SheetCheck::Boring(const Grid& grid, int row, int column, const Text& file, const Text& consequence)
{
    const Text path = SectionBoringPath(BoringFileOf(file));
    const BoringLookedAt boring = LookAtBoring(path);
    if (boring->Whole())
        return boring;
    const Text what = !boring->There         ? "is not found"
                      : boring->Failure != 0 ? "cannot be read whole (error" + NumberText(boring->Failure) + ")"
                                             : Text("has the format of a previous version");
    Flag("named-boring", grid, row, column,
         "The boring file " + BaseName(path) + " " + what + ": " + consequence + ".");
    return nullptr;
}

// ---- Scales

bool SheetCheck::Scale(const Grid& grid, int row, const SheetScale& scale, bool descending, double inches)
{
    const auto flag = [&](const char* kind, const Text& words) { Flag(kind, grid, row, 1, words); };
    const Text name(Trim(size_t(row) < grid.rowHeadings.size() ? grid.rowHeadings[size_t(row)] : Text("Scale")));
    bool numbers = true;
    for (const Text& piece : {scale.StartText, scale.EndText, scale.IncText})
        if (!piece.empty() && !ReadsAsNumber(piece)) {
            flag("sheet-number",
                 name + ": \"" + piece + "\" is no number, and is taken as " + PlainNumber(TextNumber(piece)) + ".");
            numbers = false;
        }
    if (!numbers)
        return false;
    if (scale.Rounded)
        flag("sheet-ticks", name + ": elevations of the scale are whole numbers, so it is drawn from " +
                                PlainNumber(scale.Start) + " to " + PlainNumber(scale.End) + " by " +
                                PlainNumber(std::fabs(scale.Inc)) + ".");
    const Text replaced = scale.Replaced ? "without a comma it is saved as 0,1000,100; " : "";
    if (scale.Start == 0 && scale.End == 0) // the drawing has a scale of its own then
        return true;
    const double range = descending ? scale.Start - scale.End : scale.End - scale.Start;
    if (range <= 0) {
        flag("sheet-scale", name + ": " + replaced + "the scale runs from " + PlainNumber(scale.Start) + " to " +
                                PlainNumber(scale.End) +
                                (range == 0   ? ", so nothing on it has a place."
                                 : descending ? ", upside down: the first number is the elevation of its top."
                                              : ", backward: the first number is that of its left end."));
        return false;
    }
    const double step = descending ? std::fabs(scale.Inc) : scale.Inc;
    constexpr double most = 32767;
    if (step == 0)
        flag("sheet-scale", name + ": the increment is 0, and the drawing of the scale stops.");
    else if (range / step > most)
        flag("sheet-scale", name + ": an increment of " + PlainNumber(step) + " is too small, and the drawing stops.");
    else if (step < 0)
        flag("sheet-scale", name + ": an increment below 0 gives no ticks.");
    else if (range / step < 1)
        flag("sheet-ticks",
             name + ": the increment " + PlainNumber(step) + " is larger than the scale, which has one tick.");
    else if (inches * step / range < 0.1)
        flag("sheet-ticks",
             name + ": the numbers of the ticks run into one another at an increment of " + PlainNumber(step) + ".");
    return step != 0 && range / step <= most;
}

// ---- Codes and fills

// A code that is there to draw nothing: "F0", "F0,text", "FB".
static bool ChosenBlank(const Text& code)
{
    const Text front = UpperCase(Trim(Before(code, ',')));
    return front == "FB" || (front.size() > 1 && front.find_first_not_of("0.", 1) == Text::npos);
}

// The file of a pattern. A folder without any tells nothing about a code.
static bool PatternFileThere(int pattern)
{
    const Text& fills = DeviceConfig.SystemFiles[FillFolder];
    const Text name = Text(pattern <= 9 ? "F0" : "F") + PlainNumber(pattern) + ".BMP";
    return FileExists(JoinPath(fills, name)) || FilesIn(fills, ".bmp").empty();
}

static Text WhyBlank(const Text& code, int pattern)
{
    if (pattern != 0)
        return " draws blank, since its pattern has no file.";
    if (getpatt(UpperCase(code)) != 0)
        return " draws blank, since codes are in capital letters.";
    return " draws blank, since it is neither F and a number nor a code that has a pattern.";
}

bool SheetCheck::Code(const Grid& grid, int row, int column, const Text& code, const Text& whose)
{
    const auto [judged, fresh] = codes.insert({code, true});
    if (!fresh || ChosenBlank(code))
        return judged->second;
    if (code.size() < 2) {
        Flag("sheet-code", grid, row, column,
             whose + ": \"" + code + "\" is too short for a pattern, and the drawing stops there.");
        return judged->second = false;
    }
    const int pattern = getpatt(code);
    if (pattern != 0 && PatternFileThere(pattern))
        return true;
    Flag("sheet-blank", grid, row, column, whose + ": " + code + WhyBlank(code, pattern));
    return judged->second = false;
}

void SheetCheck::Use(const Text& code)
{
    if (code.size() < 2 || ChosenBlank(code))
        return;
    if (const int pattern = getpatt(code); pattern != 0)
        Used.insert({code, pattern, ""});
}

void SheetCheck::UseColor(const Text& color, const Text& layer)
{
    if (IsColorName(color))
        Used.insert({Text(Trim(color)) + " of layer " + layer, 0, getcolor(color, true)});
}

int VCROSS::LegendRoom(bool wide)
{
    return wide ? 24 : 12; // columns of six rows, 2.4 inches wide
}

// The fill in front of a legend's text; no pattern and no colour for a row that draws none.
static SheetFill FillOfRow(const Text& code, bool colors)
{
    SheetFill fill{code, 0, ""};
    if (colors && IsColorName(code))
        fill.Color = getcolor(code, true);
    else if (code.size() > 1)
        fill.Pattern = getpatt(code);
    return fill;
}

void SheetCheck::Legend(const Grid& grid, const std::vector<Text>& legendRows, int rows, bool colors)
{
    std::set<SheetFill> shown, cut; // on the page, and beyond its room
    int free = 0, row = 0;
    for (const Text& cell : legendRows) {
        ++row;
        const Text code(Before(cell, ','));
        if (code.empty()) {
            if (free == 0 && IsBlank(cell) && row <= grid.rows)
                free = row;
            continue;
        }
        if (code.size() < 2 && row <= rows && !(colors && FillOfRow(code, true).Color != ""))
            Code(grid, std::min(row, grid.rows), 1, code, "Legend");
        (row <= rows ? shown : cut).insert(FillOfRow(code, colors));
    }
    if (shown.empty() && !Used.empty()) {
        Flag("sheet-legend", grid, 1, 1,
             "The legend is empty, and the page has " + PlainNumber(int(Used.size())) +
                 (Used.size() == 1 ? " fill." : " fills."));
        return;
    }
    Text lacking, roomless;
    for (const SheetFill& fill : Used)
        if (!shown.contains(fill)) {
            Text& words = cut.contains(fill) ? roomless : lacking;
            words += (words.empty() ? "" : "; ") + fill.Shown;
        }
    const int where = free != 0 ? free : grid.rows;
    if (!lacking.empty())
        Flag("sheet-legend", grid, where, 1, "The legend has no row for what is drawn: " + lacking + ".");
    if (!roomless.empty())
        Flag("sheet-legend", grid, where, 1,
             "The page shows the first " + PlainNumber(rows) + " rows of the legend, and none of those for " +
                 roomless + ".");
}

// ---- Layer tables

TableLookedAt SheetCheck::Table(const Grid& grid, int row)
{
    const Text path = JoinPath(ProjectPath, grid.Cell(row, 1));
    const TableLookedAt table = LookAtTable(path);
    if (!table)
        Flag("named-file", grid, row, 1,
             "The GIS file " + BaseName(WithEnding(path, ".gis")) + " is not found or cannot be read whole.");
    return table;
}
