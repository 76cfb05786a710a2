// fencecheck.cpp -- what a reviewer of a fence diagram would flag.
//
// It goes by what a save writes and the drawing then does with it. Where stakes stand is worked out as the frame does
// it; which layers become fills is asked of the rules that the panels are drawn by.
#include "sections/fencecheck.h"

#include "sections/fencefile.h"
#include "sections/fencerun.h"
#include "sections/layershapes.h"
#include "sections/sectionboring.h"
#include "sections/sheetcheck.h"
#include "session/session.h"
#include "session/shared.h"

#include <algorithm>
#include <cmath>

using namespace VCROSS;
using namespace frmFence;

namespace
{
enum ReportRow { DrawLayersRow = 5, DirectionRow, PageRow, GisRow };
enum BoringColumn { XColumn = 1, YColumn, FileColumn, WaterColumn, PlaceColumn, NameColumn };
enum ScaleRow { XRow = 1, XUnitRow, YStartRow, ElevationRow };

// A row of the form as it is drawn.
struct Stake {
    Text Name;           // as typed, without blanks around it; empty: no stake
    double X = 0, Y = 0; // from the starts of the scales
    double Ground = 0;   // elevation
    BoringLookedAt Is;   // null: it cannot be drawn
    int TableRow = 0;    // of the layer table; 0 for none
};

// The base plane on the page, in inches.
struct Plane {
    double Width = 0, Rise = 0; // the edge along the page, and both legs of the diagonal one
    double PerInch = 0;         // units
};

struct FenceCheck : SheetCheck {
    bool Layers = false, Wide = false;
    int Rotation = 0; // quarter turns
    SheetScale X{SS2.Cell(XRow, 1)}, Elevation{SS2.Cell(ElevationRow, 1), true};
    bool XHolds = false, ElevationHolds = false; // places can be told by it
    TableLookedAt TheTable;
    std::array<Stake, FenceRecord::Borings + 1> Stakes;                // from index 1
    std::array<std::pair<int, int>, FenceRecord::Panels + 1> Panels{}; // the rows of their borings; 0: not drawn

    void Words();
    void Scales();
    void ReadRow(int row);
    void ReadRows();
    void Places();
    void StakeItself(int row);
    int PanelEnd(int panel, const Text& half);
    void ReadPanels();
    void Fills();
    void CodeFills();
    void TableFills();
};
} // namespace

static bool Empty()
{
    for (const Grid* grid : {&SS1, &SS2, &SS3, &SS4, &SS5})
        if (grid->DataRowCount() != 0)
            return false;
    return true;
}

// ---- The cells

void FenceCheck::Words()
{
    Layers = SameText(Trim(SS3.Cell(DrawLayersRow, 1)), "Y");
    const Text page(Trim(SS3.Cell(PageRow, 1)));
    Wide = !page.empty() && !SameText(page, "L");
    OneOf(SS3, DrawLayersRow, 1, "YN", true, "N");
    OneOf(SS3, PageRow, 1, "LT", true, "T");
    HeadingThere(SS3, 1);
    for (int row = 1; row <= 4; ++row)
        Title(SS3, row, row == 1 ? 10 : 9, 2.4);
    const Text direction = SS3.Cell(DirectionRow, 1);
    const Text letter = UpperCase(Trim(Before(direction, ',')));
    const Text turn(Trim(Behind(direction, ',')));
    Rotation = turn == "90" ? 1 : turn == "180" ? 2 : turn == "270" ? 3 : 0;
    if (!IsBlank(direction) && (letter.size() != 1 || !Holds("NESW", letter[0])))
        Flag("sheet-choice", SS3, DirectionRow, 1,
             "\"" + direction + "\" does not begin with N, E, S or W, so the north arrow points anywhere.");
    if (Rotation == 0 && !turn.empty() && TextNumber(turn) != 0)
        Flag("sheet-choice", SS3, DirectionRow, 1,
             "\"" + direction + "\" is no rotation by 90, 180 or 270, and is taken as none.");
    if (!IsBlank(SS3.Cell(GisRow, 1)))
        TheTable = Table(SS3, GisRow);
}

void FenceCheck::Scales()
{
    const double width = Wide ? 8.0 : 6.0;
    XHolds = Scale(SS2, XRow, X, false, width);
    ElevationHolds = Scale(SS2, ElevationRow, Elevation, true, 2);
    Number(SS2, YStartRow, 1, "Y Start");
    if (X.Start == 0 && X.End == 0)
        X.End = 500;
    if (Elevation.Start == 0 && Elevation.End == 0) {
        Elevation.Start = 500;
        Elevation.End = 100;
    }
}

// The cells of a row become one line parted by commas, so one more comma moves what stands behind it.
static int CellWithComma(int row)
{
    for (int column = XColumn; column < NameColumn; ++column)
        if (Holds(SS1.Cell(row, column), ','))
            return column;
    return 0;
}

void FenceCheck::ReadRow(int row)
{
    Stake& stake = Stakes[size_t(row)];
    stake.Name = Trim(SS1.Cell(row, FileColumn));
    bool any = false;
    for (int column = XColumn; column <= NameColumn; ++column)
        any = any || !IsBlank(SS1.Cell(row, column));
    if (!any)
        return;
    const Text words = RowInWords(row, stake.Name);
    if (const int column = CellWithComma(row); column != 0) {
        Flag("sheet-number", SS1, row, column,
             words + ": the comma in \"" + SS1.Cell(row, column) + "\" parts the cell, and moves those behind it.");
        stake.Name = "";
        return;
    }
    if (stake.Name.empty()) {
        Flag("fence-row", SS1, row, FileColumn, words + " names no boring, and is left out.");
        return;
    }
    for (const int column : {XColumn, YColumn, WaterColumn})
        Number(SS1, row, column, words);
    OneOf(SS1, row, PlaceColumn, "TB", true, "T");
    OneOf(SS1, row, NameColumn, "WB", true, "W");
    stake.Is = Boring(SS1, row, FileColumn, stake.Name, "no stake is drawn from this row on");
    if (stake.Is)
        stake.Ground = stake.Is->Ground();
    const auto coordinate = [&](int column) {
        return IsBlank(SS1.Cell(row, column)) ? -1.0 : TextNumber(SS1.Cell(row, column));
    };
    stake.X = coordinate(XColumn);
    stake.Y = coordinate(YColumn);
    if (TheTable)
        stake.TableRow = RowInTable(*TheTable, BoringFileOf(stake.Name));
    if (stake.TableRow != 0) {
        const auto& cells = TheTable->boringCells[stake.TableRow].slot;
        stake.X = TextNumber(cells[GisX]);
        stake.Y = TextNumber(cells[GisY]);
        stake.Ground = TextNumber(cells[GisElevation]);
        return;
    }
    if (TheTable)
        Flag("table-row", SS1, row, FileColumn,
             words + " has no row in the GIS file: its layers there have no thickness.");
    for (const int column : {XColumn, YColumn})
        if (IsBlank(SS1.Cell(row, column)))
            Flag("fence-place", SS1, row, column,
                 words + " has no " + (column == XColumn ? "X" : "Y") + ", and stands at -1.");
}

void FenceCheck::ReadRows()
{
    const double yStart = TextNumber(SS2.Cell(YStartRow, 1));
    bool any = false;
    for (int row = 1; row <= FenceRecord::Borings; ++row) {
        ReadRow(row);
        Stakes[size_t(row)].X -= X.Start;
        Stakes[size_t(row)].Y -= yStart;
        any = any || !Stakes[size_t(row)].Name.empty();
    }
    if (!any)
        Flag("named-boring", SS1, 1, FileColumn, "The fence has no boring.");
}

// ---- Stakes in their places

static Plane PlaneOf(bool wide, int rotation, double range)
{
    Plane plane;
    plane.PerInch = range / (wide ? 8.0 : 6.0);
    const bool quarter = rotation == 1 || rotation == 3;
    plane.Width = quarter ? (wide ? 8.5 : 4.2) : (wide ? 8.0 : 6.0);
    plane.Rise = quarter ? (wide ? 5.6 : 4.2) : (wide ? 6.0 : 3.0);
    return plane;
}

// The range of Y, which follows from that of X and the page.
static double RangeOfY(bool wide, int rotation, double range)
{
    if (rotation == 1 || rotation == 3)
        return range * 8.5 / 8.0;
    return wide ? range / 8.0 * 8.5 : range / 6.0 * 4.2 / 8.0 * 8.5;
}

static void Turn(Stake& stake, int rotation, double xRange, double yRange)
{
    const double x = stake.X, y = stake.Y;
    if (rotation == 1) {
        stake.X = y;
        stake.Y = xRange - x;
    } else if (rotation == 2) {
        stake.X = std::floor(xRange) - x;
        stake.Y = std::floor(yRange) - y;
    } else if (rotation == 3) {
        stake.X = std::floor(yRange) - y;
        stake.Y = x;
    }
}

// The foot of a stake on the base plane, and the ground point on the sheet inside its border.
void FenceCheck::Places()
{
    if (!XHolds)
        return;
    const double xRange = X.End - X.Start, yRange = RangeOfY(Wide, Rotation, xRange);
    const Plane plane = PlaneOf(Wide, Rotation, xRange);
    const double slack = 0.1; // inches
    for (int row = 1; row <= FenceRecord::Borings; ++row) {
        Stake stake = Stakes[size_t(row)];
        if (stake.Name.empty())
            continue;
        Turn(stake, Rotation, xRange, yRange);
        const double back = double(Foreshortening) * stake.Y / plane.PerInch;
        const double along = stake.X / plane.PerInch; // from the diagonal edge
        const Text words = RowInWords(row, stake.Name);
        const double water = TextNumber(SS1.Cell(row, WaterColumn)) * 2 / (Elevation.Start - Elevation.End);
        if (TooFar(SS1, row, XColumn, words, SS1.Cell(row, XColumn), along + back) ||
            (ElevationHolds && TooFar(SS1, row, WaterColumn, words, SS1.Cell(row, WaterColumn), water)))
            continue;
        const double left = (Wide ? 0.95 : 0.85) + along + back;
        const double foot = 2.7 + back;
        double ground = foot;
        if (stake.Is && ElevationHolds)
            ground = foot + 2 - 2 * (Elevation.Start - stake.Ground) / (Elevation.Start - Elevation.End);
        const double sheetWidth = Wide ? 17.0 : 11.0, sheetHeight = Wide ? 11.0 : 8.5;
        if (left < 0.7 || left > sheetWidth - 0.7 || foot < 2.2 || std::max(foot, ground) > sheetHeight - 0.7)
            Flag("sheet-frame", SS1, row, XColumn, words + ", stands beyond the frame of the sheet.");
        else if (along < -slack || along > plane.Width + slack || back < -slack || back > plane.Rise + slack)
            Flag("sheet-frame", SS1, row, XColumn, words + ", stands beyond the base plane of the scales.");
        if (stake.Is && ElevationHolds && stake.Ground > Elevation.Start)
            Flag("sheet-frame", SS1, row, FileColumn,
                 words + ": the ground at " + PlainNumber(stake.Ground) +
                     " is above the elevation scale, which begins at " + PlainNumber(Elevation.Start) + ".");
        if (stake.Is && ElevationHolds && stake.Ground - stake.Is->Deepest < Elevation.End)
            Flag("sheet-frame", SS1, row, FileColumn,
                 words + ": the layers reach down to " + PlainNumber(stake.Ground - stake.Is->Deepest) +
                     ", below the base plane at " + PlainNumber(Elevation.End) + ".");
    }
}

void FenceCheck::StakeItself(int row)
{
    const Stake& stake = Stakes[size_t(row)];
    if (!stake.Is)
        return;
    const Text words = RowInWords(row, stake.Name);
    const bool byName = SameText(Trim(SS1.Cell(row, NameColumn)), "B");
    if (IsBlank(byName ? stake.Is->Name : stake.Is->WellName))
        Flag("sheet-label", SS1, row, NameColumn,
             words + ", has no " + (byName ? "boring name" : "first well name") + ", so no name stands at its stake.");
    const double water = TextNumber(SS1.Cell(row, WaterColumn));
    if (stake.Is->Depth() > 0 && water > stake.Is->StickUp + stake.Is->Depth())
        Flag("sheet-water", SS1, row, WaterColumn,
             words + ": water at " + PlainNumber(water) + " is deeper than the boring, which ends at " +
                 PlainNumber(stake.Is->Depth()) + ".");
}

// ---- Panels

// The row of the boring that one half of a panel names; 0, and told, for none.
int FenceCheck::PanelEnd(int panel, const Text& half)
{
    const Text name = UpperCase(Trim(half)), words = "Panel " + PlainNumber(panel);
    for (int row = FenceRecord::Borings; row >= 1 && !name.empty(); --row) {
        const Text& file = Stakes[size_t(row)].Name;
        if (!file.empty() && Before(UpperCase(BoringFileOf(file)), '.') == name)
            return row;
    }
    const double number = std::nearbyint(TextNumber(name));
    const bool row = number >= 1 && number <= FenceRecord::Borings && !Stakes[size_t(number)].Name.empty();
    if (!row)
        Flag("fence-panel", SS5, panel, 1,
             words + (name.empty() ? " names one boring only" : " names " + name + ", which is no boring of the list") +
                 ": it is not drawn.");
    else if (name.find_first_not_of("0123456789") != Text::npos)
        Flag("fence-panel", SS5, panel, 1,
             words + " names " + name + ", which is no boring of the list and is taken as row " +
                 PlainNumber(int(number)) + ".");
    return row ? int(number) : 0;
}

void FenceCheck::ReadPanels()
{
    bool any = false;
    for (int panel = 1; panel <= FenceRecord::Panels; ++panel) {
        const Text& cell = SS5.Cell(panel, 1);
        if (IsBlank(cell))
            continue;
        any = true;
        const Text words = "Panel " + PlainNumber(panel);
        if (!Holds(cell, ',')) {
            Flag("fence-panel", SS5, panel, 1,
                 words + ": \"" + cell + "\" has no comma between two borings: it is not drawn.");
            continue;
        }
        const int a = PanelEnd(panel, Text(Before(cell, ','))), b = PanelEnd(panel, Text(Behind(cell, ',')));
        if (a != 0 && a == b)
            Flag("fence-panel", SS5, panel, 1, words + " joins row " + PlainNumber(a) + " to itself: it has no width.");
        else if (a != 0 && b != 0)
            Panels[size_t(panel)] = {a, b};
    }
    if (!any && Layers)
        Flag("fence-panel", SS5, 1, 1, "The fence has no panel, so no layers are drawn.");
}

// ---- Fills

// Which layers of two borings become fills, by the rules of the drawing: those that the right boring has left over at
// its end do not. Calls used with the row and the layer.
template <class Use>
static void EachFill(int a, int b, Use used)
{
    startfencepair(a, b);
    LayerFillRecord& f = LayerFill;
    f.pinchTolerance = 10;
    const auto elevation = [](int boring, int layer) {
        return float(double(CrossRun.refElevation[boring]) - CrossRun.stickUp[boring] -
                     CrossRun.layerDepth[boring][layer]);
    };
    while (f.leftLayer <= CrossRun.layerCount[a]) {
        const bool last = CrossRun.layerCode[b][f.rightLayer] == CrossRun.layerCode[a][f.leftLayer] &&
                          f.leftLayer == CrossRun.layerCount[a];
        for (const char shape : last ? std::string_view("B") : chooseshapes(elevation)) {
            setfencepoints(shape);
            used(f.fillBoring, f.fillLayer);
        }
    }
}

void FenceCheck::CodeFills()
{
    const KeepAll run{Kind::Run};
    ResetCrossRun();
    for (int row = 1; row <= FenceRecord::Borings; ++row) {
        const Stake& stake = Stakes[size_t(row)];
        if (!stake.Is)
            continue;
        CrossRun.refElevation[row] = stake.Is->RefElevation;
        CrossRun.stickUp[row] = stake.Is->StickUp;
        int k = 0;
        for (const CheckedLayer& layer : stake.Is->Layers) {
            if (++k > MaxSectionLayers)
                break;
            CrossRun.layerDepth[row][k] = layer.Depth;
            CrossRun.layerCode[row][k] = layer.Code;
        }
        CrossRun.layerCount[row] = int16_t(std::min(k, MaxSectionLayers));
    }
    for (const auto& [a, b] : Panels) {
        if (a == 0 || !Stakes[size_t(a)].Is || !Stakes[size_t(b)].Is)
            continue;
        try {
            EachFill(a, b, [&](int row, int k) {
                const Text& code = CrossRun.layerCode[row][k];
                if (CrossRun.layerDepth[row][k] > CrossRun.layerDepth[row][k - 1] &&
                    Code(SS1, row, FileColumn, code,
                         RowInWords(row, Stakes[size_t(row)].Name) + ", layer to " +
                             PlainNumber(double(CrossRun.layerDepth[row][k]))))
                    Use(code);
            });
        } catch (const RunTimeError&) { // a boring of so many layers that the look ahead leaves the table
            Flag("sheet-code", SS1, a, FileColumn,
                 RowInWords(a, Stakes[size_t(a)].Name) + ", has too many layers, and the drawing of panels stops.");
        }
    }
}

void FenceCheck::TableFills()
{
    for (int k = 1; k <= TheTable->layerCount; ++k) {
        const bool drawn = std::any_of(Panels.begin(), Panels.end(), [&](const std::pair<int, int>& panel) {
            return panel.first != 0 && (HasThickness(*TheTable, Stakes[size_t(panel.first)].TableRow, k) ||
                                        HasThickness(*TheTable, Stakes[size_t(panel.second)].TableRow, k));
        });
        const Text& color = TheTable->layerColor.slot[size_t(k)];
        const Text& name = TheTable->layerName.slot[size_t(k)];
        if (!drawn)
            continue;
        if (!IsBlank(color))
            UseColor(color, name);
        else if (Code(SS3, GisRow, 1, name, "Layer " + PlainNumber(k) + " of the GIS file"))
            Use(name);
    }
}

void FenceCheck::Fills()
{
    if (!Layers)
        return;
    if (TheTable)
        TableFills();
    else if (IsBlank(SS3.Cell(GisRow, 1)))
        CodeFills();
    std::vector<Text> rows;
    for (int row = 1; row <= FenceRecord::LegendRows; ++row)
        rows.push_back(SS4.Cell(row, 1));
    Legend(SS4, rows, LegendRoom(Wide), TheTable != nullptr);
}

std::vector<CheckEntry> CheckFence()
{
    if (Empty())
        return {};
    FenceCheck check;
    check.Words();
    check.Scales();
    check.ReadRows();
    check.Places();
    for (int row = 1; row <= FenceRecord::Borings; ++row)
        check.StakeItself(row);
    check.ReadPanels();
    check.Fills();
    return check.Found;
}
