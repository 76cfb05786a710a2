// gischeck.cpp -- what a reviewer of the table would flag.
#include "gis/gischeck.h"

#include "canvas/colors.h"
#include "canvas/patterns.h"
#include "gis/gisfile.h"
#include "session/files.h"
#include "session/savename.h"
#include "session/session.h"
#include "session/shared.h"

#include <algorithm>
#include <optional>

using namespace frmGIS;

static std::vector<CheckEntry>* list;

static const SharedRecord shared[] = {
    {"list", Kind::Run, list},
};

static void Flag(const char* kind, const Grid& grid, int row, int column, const Text& words)
{
    CheckEntry entry;
    entry.Words = words;
    entry.InGrid = &grid;
    entry.Row = row;
    entry.Column = column;
    entry.Kind = kind;
    list->push_back(entry);
}

static Text RowWords(int row)
{
    const Text name(Trim(SSGISInfo.Cell(row, GisBoringName)));
    return "Row " + PlainNumber(row) + (name.empty() ? "" : ", " + name);
}

static Text LayerName(int k)
{
    return SSGISInfo.headings[size_t(GisColumns) + k];
}

// ---- The layer list

// A save and the exports write a column for each name of the list, in its order.
static void CheckColumns(int rows, int layers)
{
    const int listed = SSGISLayers.DataRowCount();
    bool same = listed == layers;
    for (int k = 1; k <= std::min(listed, layers); ++k)
        same = same && LayerName(k) == SSGISLayers.Cell(k, 1);
    if (!same && rows > 0)
        Flag("gis-columns", SSGISLayers, 1, 1,
             "The columns of the table are not those of the Layer List, by which it is saved.  Bring the list to the "
             "columns, or the columns to the list by Update Layers.");
}

static bool IsBlankCode(const Text& code)
{
    const Text front = UpperCase(Trim(Before(code, ',')));
    return front == "FB" || (front.size() > 1 && front.find_first_not_of("0.", 1) == Text::npos);
}

static void CheckLayerList()
{
    for (int k = 1; k <= SSGISLayers.DataRowCount(); ++k) {
        const Text &name = SSGISLayers.Cell(k, 1), &color = SSGISLayers.Cell(k, 2);
        const Text words = "Layer " + PlainNumber(k) + ", " + name;
        if (!IsBlank(color)) {
            if (!IsColorName(color))
                Flag("gis-color", SSGISLayers, k, 2, words + ": " + color + " is no color, and is drawn white.");
        } else if (name.size() < 2)
            Flag("sheet-code", SSGISLayers, k, 1,
                 "Layer " + PlainNumber(k) + ": \"" + name +
                     "\" is too short for a pattern and has no color: the drawing of layers stops there.");
        else if (!IsBlankCode(name) && getpatt(name) == 0)
            Flag("sheet-blank", SSGISLayers, k, 1, words + " has neither a pattern nor a color, and draws blank.");
    }
}

// ---- The cells of a boring

namespace
{
// What a cell says, as sections read it.
struct Cell {
    bool Blank = false, Ends = false; // Ends: an X, the layer does not reach the boring
    bool Range = false;
    std::optional<double> Top, Bottom;
    bool Wrong = false; // neither depth nor X
};
} // namespace

static bool IsDepth(std::string_view text)
{
    const Text bare(Trim(text));
    return !bare.empty() && bare.find_first_not_of("0123456789.") == Text::npos &&
           std::count(bare.begin(), bare.end(), '.') < 2 && bare != ".";
}

static Cell Read(const Text& typed)
{
    const Text text = UpperCase(Trim(typed));
    Cell cell;
    cell.Blank = text.empty();
    cell.Ends = text.starts_with('X');
    cell.Range = Holds(text, '-');
    if (cell.Ends)
        cell.Wrong = text != "X" && !(text.starts_with("X-") && IsDepth(text.substr(2)));
    else if (cell.Range) {
        cell.Wrong = !IsDepth(Before(text, '-')) || !IsDepth(Behind(text, '-'));
        cell.Top = TextNumber(Before(text, '-'));
        cell.Bottom = TextNumber(Behind(text, '-'));
    } else if (!cell.Blank) {
        cell.Wrong = !IsDepth(text);
        cell.Bottom = TextNumber(text);
    }
    return cell;
}

// With a layer above that has a thickness: a cell that tells its bottom alone begins at the first number of the cell
// above, which is no depth of this boring in a blank cell or one with X, and the top of the layer above in a range.
static void CheckTop(int row, int k, const Text& bottom, const Cell& above)
{
    const Text words =
        RowWords(row) + ": " + LayerName(k) + " ends at " + bottom + ", but " + LayerName(k - 1) + " above it ";
    const Text told(Trim(LayerCell(row, k - 1)));
    if (above.Blank || above.Ends)
        Flag("gis-no-top", SSGISInfo, row, GisColumns + k,
             words + "tells no depth, so it is drawn from the ground on.  Write its top before it: top-" + bottom +
                 ".");
    else if (above.Range && *above.Top != *above.Bottom)
        Flag("gis-no-top", SSGISInfo, row, GisColumns + k,
             words + "is " + told + ", so it begins where that layer begins and covers it.  Write its top before it: " +
                 PlainNumber(*above.Bottom) + "-" + bottom + ".");
}

static void CheckCells(int row, int layers)
{
    double deepest = 0; // the bottom of what is above
    Cell above;
    for (int k = 1; k <= layers; ++k) {
        const Cell cell = Read(LayerCell(row, k));
        const Text typed(Trim(LayerCell(row, k)));
        const auto flag = [&](const char* kind, const Text& words) {
            Flag(kind, SSGISInfo, row, GisColumns + k, RowWords(row) + ": " + LayerName(k) + words);
        };
        if (cell.Wrong)
            flag("gis-number", " \"" + typed + "\" is neither a depth, top-bottom, X nor X and a depth.");
        else if (cell.Range && !cell.Ends && *cell.Top > *cell.Bottom)
            flag("gis-order",
                 " begins at " + PlainNumber(*cell.Top) + ", below its end at " + PlainNumber(*cell.Bottom) + ".");
        else if (cell.Range && !cell.Ends && *cell.Top < deepest)
            flag("gis-order", " begins at " + PlainNumber(*cell.Top) + ", above the end of a layer above it at " +
                                  PlainNumber(deepest) + ".");
        else if (cell.Bottom && *cell.Bottom < deepest)
            flag("gis-order", " ends at " + PlainNumber(*cell.Bottom) + ", above the end of a layer above it at " +
                                  PlainNumber(deepest) + ".");
        else if (deepest > 0 && cell.Bottom && !cell.Range)
            CheckTop(row, k, typed, above);
        if (cell.Bottom && !cell.Wrong)
            deepest = std::max(deepest, *cell.Bottom);
        above = cell;
    }
}

// ---- The borings

static void CheckPlace(int row)
{
    const std::pair<int, const char*> cells[] = {
        {GisX, "no X"}, {GisY, "no Y"}, {GisElevation, "no surface elevation"}};
    for (const auto& [column, what] : cells)
        if (IsBlank(SSGISInfo.Cell(row, column)))
            Flag("gis-place", SSGISInfo, row, column, RowWords(row) + " has " + what + ", and counts as 0.");
        else if (const Text text(Trim(SSGISInfo.Cell(row, column)));
                 !IsDepth(text.substr(text[0] == '-' || text[0] == '+')))
            Flag("gis-number", SSGISInfo, row, column,
                 RowWords(row) + ": \"" + text + "\" is no number, and counts as " + PlainNumber(TextNumber(text)) +
                     ".");
}

static Text FileOf(int row)
{
    const Text name(Trim(SSGISInfo.Cell(row, GisFileName)));
    return name.empty() ? name : UpperCase(WithEnding(name, ".BOR"));
}

static void CheckFile(int row)
{
    const Text file = FileOf(row);
    if (file.empty())
        Flag("gis-boring", SSGISInfo, row, GisFileName,
             RowWords(row) + " names no boring file, so no section or fence finds it.");
    else if (!FileExists(JoinPath(ProjectPath, file)))
        Flag("gis-boring", SSGISInfo, row, GisFileName,
             RowWords(row) + ": the boring file " + Text(Trim(SSGISInfo.Cell(row, GisFileName))) +
                 " is not found in the project folder.");
    for (int other = 1; other < row && !file.empty(); ++other)
        if (FileOf(other) == file) {
            Flag("gis-twice", SSGISInfo, row, GisFileName,
                 RowWords(row) + " names the boring file of row " + PlainNumber(other) +
                     ", which is the one that sections and fences take.");
            return;
        }
}

static void CheckSamePlace(int row)
{
    const auto number = [](int r, int column) { return TextNumber(SSGISInfo.Cell(r, column)); };
    if (IsBlank(SSGISInfo.Cell(row, GisX)) || IsBlank(SSGISInfo.Cell(row, GisY)))
        return;
    for (int other = 1; other < row; ++other)
        if (!IsBlank(SSGISInfo.Cell(other, GisX)) && number(other, GisX) == number(row, GisX) &&
            number(other, GisY) == number(row, GisY) && FileOf(other) != FileOf(row)) {
            Flag("gis-same-place", SSGISInfo, row, GisX,
                 RowWords(row) + " has the coordinates of row " + PlainNumber(other) + ".");
            return;
        }
}

static bool EmptyRow(int row)
{
    for (int column = 1; column <= SSGISInfo.columns; ++column)
        if (!IsBlank(SSGISInfo.Cell(row, column)))
            return false;
    return true;
}

std::vector<CheckEntry> CheckGisTable()
{
    std::vector<CheckEntry> entries;
    list = &entries;
    const int layers = SSGISInfo.columns - GisColumns;
    const int rows = SSGISInfo.DataRowCount();
    CheckColumns(rows, layers);
    CheckLayerList();
    for (int row = 1; row <= rows; ++row) {
        if (EmptyRow(row))
            continue;
        CheckPlace(row);
        CheckFile(row);
        CheckSamePlace(row);
        CheckCells(row, layers);
    }
    list = nullptr;
    return entries;
}
