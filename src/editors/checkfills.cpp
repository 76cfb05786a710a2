// checkfills.cpp -- the check list's view of patterns and colours: cells that a run would draw blank or white.
#include "boring/boringboxes.h"
#include "canvas/colors.h"
#include "canvas/patterns.h"
#include "editors/checkparts.h"
#include "logrender/welldiagram.h"
#include "report/heading.h"
#include "session/deviceconfig.h"
#include "session/files.h"
#include "session/platform.h"

#include <algorithm>
#include <cmath>
#include <set>

using namespace BoringChecks;

// ---- Patterns

static std::set<Text> patternFiles; // in upper case

void BoringChecks::LookForPatterns()
{
    static Text folder;
    static int64_t stamp = 0;
    const Text& told = DeviceConfig.SystemFiles[FillFolder];
    const int64_t now = FolderStamp(told);
    if (now != 0 && now == stamp && told == folder)
        return;
    patternFiles.clear();
    for (const Text& file : FilesIn(told, ".bmp"))
        patternFiles.insert(UpperCase(file));
    folder = told;
    stamp = now;
}

static bool PatternThere(int file)
{
    return patternFiles.contains(UpperCase(PatternName(file)));
}

// "F0", "FB" and nothing at all are blank on purpose.
static bool MeansBlank(const Text& code)
{
    const bool zero = code.find_first_not_of("F0") == Text::npos && code.find('0') != Text::npos;
    return code.empty() || code == "FB" || zero;
}

// Why a "Fill #" cell draws blank; "" where it does not, or is meant to.
static Text WhyBlank(const Text& cell)
{
    const Text code = UpperCase(Trim(cell));
    if (MeansBlank(code))
        return "";
    const int file = getpch(code);
    if (file == 0)
        return TextNumber(code.starts_with("F") ? code.substr(1) : code) != 0 ? "is out of range" : "is no code";
    return PatternThere(file) ? "" : "has no pattern";
}

// ---- Colours

static bool colorTold;

// Whether a run would tell of the colour, and draw it white.
static bool BadColor(const Text& color)
{
    const auto silent = Platform.MsgBox;
    Platform.MsgBox = [](const Text&, Buttons, Icon) {
        colorTold = true;
        return int(Ok);
    };
    colorTold = false;
    getcolor(color, false);
    Platform.MsgBox = silent;
    return colorTold;
}

// ---- The soil codes

// The codes of a contact: one, or two parted by "/" or "-", of which each fills half of the column. Behind a comma
// stands what is printed in their place.
static std::vector<Text> Codes(Text cell)
{
    if (TextNumber(cell) > 0)
        cell = "F" + cell;
    const char separator = Holds(cell, '/') ? '/' : '-';
    if (!Holds(cell, separator))
        return {Text(Before(cell, ','))};
    return {Text(Before(cell, separator)), Text(Before(Behind(cell, separator), ','))};
}

static void CheckCode(int row, const Text& cell, bool graphic)
{
    for (const Text& code : Codes(cell)) {
        const Text why = WhyBlank(code);
        if (why.empty())
            continue;
        Text words = "Contact " + PlainNumber(row) + ": " + Quoted(cell) + " draws blank, ";
        if (!graphic)
            words =
                "Contact " + PlainNumber(row) + ": " + Quoted(cell) + " is printed here, but draws blank in sections, ";
        Flag(graphic ? "fill" : "fill-letters", words + "since " + Quoted(code) + " " + why + ".", LithBox, row, 2);
        return;
    }
}

void BoringChecks::CheckCodes()
{
    const bool graphic = DrawsGraphic();
    if (!graphic && !Draws("USCS"))
        return;
    for (int row = 1; row <= Rows(LithBox); ++row) {
        const Text cell = UpperCase(Cell(LithBox, row, 2));
        if (cell.empty())
            continue;
        CheckCode(row, cell, graphic);
        const Text typed = UpperCase(Cell(LithBox, row, 4));
        const Text color(Trim(Holds(typed, ',') ? Behind(typed, ',') : typed));
        if (graphic && !color.empty() && BadColor(color))
            Flag("color", "Contact " + PlainNumber(row) + ": " + Quoted(color) + " is no color, and is drawn white.",
                 LithBox, row, 4);
    }
}

// ---- Samples

// The condition of a sample is the number of one of five patterns, which the heading file may choose.
void BoringChecks::CheckSampleKeys()
{
    const std::vector<DrawnPart> parts = DrawnParts();
    if (std::none_of(parts.begin(), parts.end(),
                     [](const DrawnPart& part) { return part.Name == "SAMPLE BOX-GRAPHIC"; }))
        return;
    for (int row = 1; row <= Rows(SampleBox); ++row) {
        const Text cell = Cell(SampleBox, row, 3);
        if (cell.empty())
            continue;
        const Text told = "Sample row " + PlainNumber(row) + ": condition " + Quoted(cell);
        const double condition = std::nearbyint(TextNumber(cell));
        const bool number = Holds(cell, '0') || condition != 0;
        if (!number || condition < 0 || condition > 4)
            Flag("fill", told + " is none of 0 to 4, and its box is drawn as 0.", SampleBox, row, 3);
        else if (const int file = LegendBoxFill[int(condition)]; file > 1 && !PatternThere(file))
            Flag("fill", told + " has no pattern, and its box is drawn blank.", SampleBox, row, 3);
    }
}

// ---- The well

static void CheckWellColor(const Text& cell, int box, int row)
{
    const Text color(Trim(Behind(cell, ',')));
    if (!color.empty() && BadColor(color))
        Flag("color", WhereIs(box, row) + ": " + Quoted(color) + " is no color, and is drawn white.", box, row, 5);
}

static void CheckOuterLayer(int row)
{
    const Text cell = Cell(OuterBox, row, 5), text = Cell(OuterBox, row, 3);
    const Text fill(Trim(Before(cell, ',')));
    const Text why = WhyBlank(fill);
    if (!why.empty())
        Flag("well-fill", WhereIs(OuterBox, row) + ": " + Quoted(fill) + " " + why + ", and draws blank.", OuterBox,
             row, 5);
    else if (fill.empty() && !text.empty() && VLOG::materialof(text) == 0)
        Flag("well-fill",
             WhereIs(OuterBox, row) + ": no fill is given, and " + Quoted(text) +
                 " holds no word of the heading file that has one, so it draws blank.",
             OuterBox, row, 5);
    CheckWellColor(cell, OuterBox, row);
}

// "M,F20": a width, a fill; without a fill a pipe is empty. Screens and pumps have theirs by their words.
static void CheckRing(int row)
{
    const Text fill(Trim(Before(Behind(Cell(InnerBox, row, 5), ','), ',')));
    const Text text = UpperCase(Cell(InnerBox, row, 3));
    const auto holds = [&](int slot) {
        return !HeadingWords[slot].empty() && text.find(HeadingWords[slot]) != Text::npos;
    };
    if (MeansBlank(UpperCase(fill)) || holds(38) || holds(39))
        return;
    const Text why = text.empty() ? "needs a text beside it" : WhyBlank(fill);
    if (!why.empty())
        Flag("well-fill", WhereIs(InnerBox, row) + ": " + Quoted(fill) + " " + why + ", and draws blank.", InnerBox,
             row, 5);
}

void BoringChecks::CheckWellFills()
{
    if (!DrawsWell())
        return;
    for (int row = 1; row <= Rows(OuterBox); ++row)
        if (!EmptyRow(OuterBox, row))
            CheckOuterLayer(row);
    for (int row = 1; row <= Rows(InnerBox); ++row)
        CheckRing(row);
    const Text casing(Trim(Before(Cell(WellBox, 10, 1), ',')));
    const Text why = WhyBlank(casing);
    const bool cased = !Empty(WellBox, 7, 1) || !Empty(WellBox, 8, 1) || !Empty(WellBox, 9, 1);
    if (cased && !why.empty())
        Flag("well-fill", WhereIs(WellBox, 10) + ": " + Quoted(casing) + " " + why + ", and draws blank.", WellBox, 10);
}

// ---- The legend of the intro page

// Its codes have a reading of their own: a number needs its "F", and ends at 280.
static Text WhyLegendBlank(const Text& code)
{
    if (MeansBlank(code))
        return "";
    if (!code.starts_with("F"))
        return std::find(uscsCodes.slot.begin(), uscsCodes.slot.end(), code) == uscsCodes.slot.end() ? "is no code"
                                                                                                     : WhyBlank(code);
    const double file = std::nearbyint(TextNumber(code.substr(1)) + 20);
    if (file > 300)
        return "is out of range";
    return PatternThere(int(std::max(file, 0.0))) ? "" : "has no pattern";
}

void BoringChecks::CheckLegend()
{
    for (int row = 1; row <= Rows(LegendBox); ++row) {
        const Text code = UpperCase(Cell(LegendBox, row, 1));
        const Text why = WhyLegendBlank(code);
        if (!why.empty())
            Flag("legend-fill", WhereIs(LegendBox, row) + ": " + Quoted(code) + " " + why + ", and draws blank.",
                 LegendBox, row);
    }
}
