// crosscheck.cpp -- what a reviewer of a cross section would flag.
//
// It goes by what a save writes and the drawing then does with it: which borings end the drawing, where columns stand,
// which codes become fills.
#include "sections/crosscheck.h"

#include "sections/crossfile.h"
#include "sections/sectionboring.h"
#include "sections/sheetcheck.h"
#include "session/files.h"
#include "session/session.h"

#include <algorithm>
#include <cmath>

using namespace VCROSS;
using namespace frmCross;

namespace
{
enum ReportRow { DrawLayersRow = 6, PageRow, GisRow, ParameterRow };
enum BoringColumn { DistanceColumn = 1, FileColumn, WaterColumn, NameColumn, PlaceColumn };

// A row of the form as it is drawn.
struct Placed {
    int Row = 0;
    Text Name;           // as typed
    double Distance = 0; // from the start of the scale
    BoringLookedAt Is;   // null: it cannot be drawn
    int TableRow = 0;    // of the layer table; 0 for none
};

struct SectionCheck : SheetCheck {
    bool Layers = false;     // "Y": fills between the borings
    bool Individual = false; // "I" and all but "Y" and "N": columns filled one by one
    bool Wide = false;
    SheetScale Horizontal{SS2.Cell(1, 1)}, Vertical{SS2.Cell(3, 1), true};
    bool HorizontalHolds = false, VerticalHolds = false; // places can be told by it
    TableLookedAt TheTable;                              // where the layers are drawn by one
    std::vector<Placed> Borings;

    double Width() const
    {
        return Wide ? 14.4 : 8.4;
    }
    double Height() const // from the top of the scale to its bottom
    {
        return Wide ? 6.8 : 4.3;
    }

    void Words();
    void Scales();
    void ReadRows();
    void PlaceByTable();
    void Order();
    void Frame(const Placed& boring);
    void BoringItself(const Placed& boring);
    void Fills();
    void TableFills();
    void Parameter();
};
} // namespace

static bool Empty()
{
    return SS1.DataRowCount() == 0 && SS2.DataRowCount() == 0 && SS3.DataRowCount() == 0 && SS4.DataRowCount() == 0;
}

// ---- The cells

void SectionCheck::Words()
{
    const Text mode = UpperCase(SS3.Cell(DrawLayersRow, 1));
    Layers = mode == "Y";
    Individual = mode != "Y" && mode != "N";
    Wide = UpperCase(SS3.Cell(PageRow, 1)) == "T";
    OneOf(SS3, DrawLayersRow, 1, "YNI", false, "I");
    OneOf(SS3, PageRow, 1, "LT", false, "L");
    HeadingThere(SS3, 1);
    const Text& options = CrossData.reportCells[10]; // "width,size"; no row shows it
    TooFar(SS3, ParameterRow, 1, "Width of the columns", options, TextNumber(options));
    for (int row = 1; row <= 3; ++row)
        Title(SS3, row, row == 1 ? 10 : 9, 2.4);
    if (IsBlank(SS3.Cell(GisRow, 1)))
        return;
    const TableLookedAt table = Table(SS3, GisRow);
    TheTable = Layers ? table : nullptr;
}

void SectionCheck::Scales()
{
    HorizontalHolds = Scale(SS2, 1, Horizontal, false, Width());
    VerticalHolds = Scale(SS2, 3, Vertical, true, Height());
    // What the drawing has where the file has none.
    if (Horizontal.Start == 0 && Horizontal.End == 0)
        Horizontal.End = 500;
    if (Vertical.Start == 0 && Vertical.End == 0) {
        Vertical.Start = 500;
        Vertical.End = 100;
    }
}

void SectionCheck::ReadRows()
{
    const int rows = SS1.DataRowCount();
    if (rows == 0)
        Flag("named-boring", SS1, 1, FileColumn, "The section has no boring.");
    for (int row = 1; row <= rows; ++row) {
        Placed boring;
        boring.Row = row;
        boring.Name = SS1.Cell(row, FileColumn);
        const Text words = RowInWords(row, boring.Name);
        Number(SS1, row, DistanceColumn, words);
        Number(SS1, row, WaterColumn, words);
        OneOf(SS1, row, NameColumn, "WB", false, "W");
        OneOf(SS1, row, PlaceColumn, "TB", false, "T");
        if (IsBlank(SS1.Cell(row, DistanceColumn)) && !TheTable && !IsBlank(boring.Name))
            Flag("sheet-number", SS1, row, DistanceColumn, words + " has no distance, and stands at 0.");
        boring.Distance = TextNumber(SS1.Cell(row, DistanceColumn)) - Horizontal.Start;
        const Text consequence = "no boring of the section is drawn";
        if (IsBlank(boring.Name))
            Flag("named-boring", SS1, row, FileColumn,
                 "Row " + PlainNumber(row) + " names no boring: " + consequence + ".");
        else
            boring.Is = Boring(SS1, row, FileColumn, boring.Name, consequence);
        if (TheTable && !IsBlank(boring.Name)) {
            boring.TableRow = RowInTable(*TheTable, BoringFileOf(boring.Name));
            if (boring.TableRow == 0)
                Flag("table-row", SS1, row, FileColumn,
                     words + " has no row in the GIS file: its layers have no thickness, at elevation 0.");
        }
        Borings.push_back(std::move(boring));
    }
}

// A distance of 0 is told by the coordinates of the layer table: from the boring before whose distance was so told.
void SectionCheck::PlaceByTable()
{
    if (!TheTable)
        return;
    const auto number = [&](const Placed& boring, int column) {
        return TextNumber(TheTable->boringCells[boring.TableRow].slot[size_t(column)]);
    };
    double px = 0, py = 0, before = 0;
    for (Placed& boring : Borings) {
        const double qx = number(boring, GisX), qy = number(boring, GisY);
        const bool first = &boring == &Borings.front();
        if (first || boring.Distance == -Horizontal.Start) {
            if (!first)
                boring.Distance = before + std::hypot(qx - px, qy - py);
            px = qx;
            py = qy;
        }
        before = boring.Distance;
    }
}

// ---- The borings in their places

void SectionCheck::Order()
{
    for (size_t i = 1; i < Borings.size(); ++i) {
        const Placed &left = Borings[i - 1], &right = Borings[i];
        if (IsBlank(left.Name) || IsBlank(right.Name) || right.Distance > left.Distance)
            continue;
        const auto at = [&](const Placed& boring) { return PlainNumber(boring.Distance + Horizontal.Start); };
        Flag("sheet-order", SS1, right.Row, DistanceColumn,
             RowInWords(right.Row, right.Name) + ", stands at " + at(right) + ", not to the right of row " +
                 PlainNumber(left.Row) + " at " + at(left) +
                 (Layers ? ": the layers between them are drawn over others." : "."));
    }
}

// The frame reaches 0.2 inch above the scale and 0.3 below it.
void SectionCheck::Frame(const Placed& boring)
{
    const Text words = RowInWords(boring.Row, boring.Name);
    const double acrossInch = (Horizontal.End - Horizontal.Start) / Width();
    if (HorizontalHolds && TooFar(SS1, boring.Row, DistanceColumn, words, SS1.Cell(boring.Row, DistanceColumn),
                                  boring.Distance / acrossInch))
        return;
    if (HorizontalHolds && (boring.Distance < 0 || boring.Distance > Horizontal.End - Horizontal.Start))
        Flag("sheet-frame", SS1, boring.Row, DistanceColumn,
             words + ", stands at " + PlainNumber(boring.Distance + Horizontal.Start) + ", beyond the scale from " +
                 PlainNumber(Horizontal.Start) + " to " + PlainNumber(Horizontal.End) + ".");
    if (!VerticalHolds)
        return;
    const double inch = (Vertical.Start - Vertical.End) / Height();
    const double top = std::max(boring.Is->RefElevation, boring.Is->Ground());
    const double bottom = boring.Is->Ground() - boring.Is->Depth();
    if (top > Vertical.Start + 0.2 * inch)
        Flag("sheet-frame", SS1, boring.Row, FileColumn,
             words + ", begins at elevation " + PlainNumber(top) + ", above the frame, whose scale begins at " +
                 PlainNumber(Vertical.Start) + ".");
    if (bottom < Vertical.End - 0.3 * inch)
        Flag("sheet-frame", SS1, boring.Row, FileColumn,
             words + ", reaches down to elevation " + PlainNumber(bottom) + ", below the frame, whose scale ends at " +
                 PlainNumber(Vertical.End) + ".");
}

void SectionCheck::BoringItself(const Placed& boring)
{
    const Text words = RowInWords(boring.Row, boring.Name);
    const bool byName = UpperCase(SS1.Cell(boring.Row, NameColumn)) == "B";
    if (IsBlank(byName ? boring.Is->Name : boring.Is->WellName))
        Flag("sheet-label", SS1, boring.Row, NameColumn,
             words + ", has no " + (byName ? "boring name" : "first well name") + ", so no name stands at its column.");
    if (boring.Is->BoreDepth <= 0 && !Individual)
        Flag("sheet-column", SS1, boring.Row, FileColumn,
             words + ", has no outer layer that tells how deep it is: its column has no length.");
    const Text& offset = CrossData.boringCells[boring.Row][6]; // of the label, in inches; no column shows it
    for (const double inches : {TextNumber(offset), TextNumber(Behind(offset, ','))})
        if (TooFar(SS1, boring.Row, NameColumn, words + ", offset of the label", offset, inches))
            return;
    const double water = TextNumber(SS1.Cell(boring.Row, WaterColumn));
    if (VerticalHolds && TooFar(SS1, boring.Row, WaterColumn, words, SS1.Cell(boring.Row, WaterColumn),
                                water * Height() / (Vertical.Start - Vertical.End)))
        return;
    if (water > boring.Is->StickUp + boring.Is->Depth() && boring.Is->Depth() > 0)
        Flag("sheet-water", SS1, boring.Row, WaterColumn,
             words + ": water at " + PlainNumber(water) + " is deeper than the boring, which ends at " +
                 PlainNumber(boring.Is->Depth()) + ".");
}

// ---- Fills

static bool HasThickness(const std::vector<CheckedLayer>& layers, size_t k)
{
    return layers[k].Depth > (k == 0 ? 0 : layers[k - 1].Depth);
}

// Each layer is a fill, in the columns or between them; with "N" codes stand beside the columns as text.
void SectionCheck::Fills()
{
    if (!Layers && !Individual)
        return;
    if (TheTable)
        return TableFills();
    if (Layers && !IsBlank(SS3.Cell(GisRow, 1)))
        return; // the table is not there
    for (const Placed& boring : Borings) {
        if (!boring.Is)
            continue;
        const std::vector<CheckedLayer>& layers = boring.Is->Layers;
        for (size_t k = 0; k < layers.size(); ++k)
            if (HasThickness(layers, k)) {
                const Text whose = RowInWords(boring.Row, boring.Name) + ", layer to " + PlainNumber(layers[k].Depth);
                if (Code(SS1, boring.Row, FileColumn, layers[k].Code, whose))
                    Use(layers[k].Code);
            }
    }
}

void SectionCheck::TableFills()
{
    for (int k = 1; k <= TheTable->layerCount; ++k) {
        const bool drawn = std::any_of(Borings.begin(), Borings.end(), [&](const Placed& boring) {
            return HasThickness(*TheTable, boring.TableRow, k);
        });
        const Text& color = TheTable->layerColor.slot[size_t(k)];
        const Text& name = TheTable->layerName.slot[size_t(k)];
        if (!drawn || Borings.size() < 2)
            continue;
        if (!IsBlank(color))
            UseColor(color, name);
        else if (Code(SS3, GisRow, 1, name, "Layer " + PlainNumber(k) + " of the GIS file"))
            Use(name);
    }
}

// ---- Values beside the columns

namespace
{
struct ParameterCell {
    bool Known = false, General = false, Graph = false;
    int Number = 0;
};
} // namespace

static ParameterCell ReadParameterCell(const Text& cell)
{
    const Text upper = UpperCase(cell);
    for (const auto& [front, general, graph] :
         {std::tuple("GPG", true, true), {"GP", true, false}, {"PG", false, true}, {"P", false, false}})
        if (upper.starts_with(front)) {
            const double number = std::nearbyint(TextNumber(std::string_view(cell).substr(Text(front).size())));
            return {true, general, graph, number >= 0 && number <= 1000 ? int(number) : 0};
        }
    return {};
}

static bool Filled(const CheckedBoring& boring, const ParameterCell& cell)
{
    if (cell.General)
        return boring.GenParamFilled[size_t(cell.Number)] || (cell.Graph && !IsBlank(boring.GenSetup[cell.Number][7]));
    return std::any_of(boring.Samples.begin(), boring.Samples.end(),
                       [&](const CheckedSample& sample) { return !IsBlank(sample.Param[size_t(cell.Number)]); });
}

void SectionCheck::Parameter()
{
    const Text& typed = SS3.Cell(ParameterRow, 1);
    if (IsBlank(typed))
        return;
    const ParameterCell cell = ReadParameterCell(typed);
    const auto flag = [&](const char* kind, const Text& words) { Flag(kind, SS3, ParameterRow, 1, words); };
    const int most = cell.General ? GenParams : SampleParams;
    if (!cell.Known)
        return flag("sheet-parameter",
                    "\"" + typed + "\" is none of GP, GPG, P and PG with a number: no value is shown.");
    if (cell.Number < 1 || cell.Number > most)
        return flag("sheet-parameter", "\"" + typed + "\": there are parameters 1 to " + PlainNumber(most) + ".");
    bool any = false, all = true;
    std::set<Text> missing;
    for (const Placed& boring : Borings) {
        all = all && boring.Is;
        if (!boring.Is || !Filled(*boring.Is, cell))
            continue;
        any = true;
        const auto& setups =
            cell.General ? boring.Is->GenSetup[cell.Number][3] : boring.Is->SampleSetup[cell.Number][3];
        const bool told = Holds(setups, ',');
        if (cell.Graph && told && TextNumber(setups) == TextNumber(Behind(setups, ',')))
            flag("sheet-scale", RowInWords(boring.Row, boring.Name) +
                                    ": the graph of the parameter starts and ends at " +
                                    PlainNumber(TextNumber(setups)) + ", and its drawing stops.");
        const Text file(cell.General && cell.Graph ? Trim(boring.Is->GenSetup[cell.Number][7]) : "");
        if (!file.empty() && !FileExists(JoinPath(ProjectPath, file)) && missing.insert(file).second)
            flag("named-file", RowInWords(boring.Row, boring.Name) + ": the data file " + file + " is not found.");
    }
    if (!any && all && !Borings.empty())
        flag("sheet-parameter", "No boring of the section has a value of this parameter.");
}

// ---- All of it

static std::vector<Text> LegendRows()
{
    std::vector<Text> rows;
    for (int row = 1; row <= CrossRecord::LegendRows; ++row)
        rows.push_back(row <= SS4.rows ? SS4.Cell(row, 1) : CrossData.legendCells[row][1]);
    return rows;
}

std::vector<CheckEntry> CheckSection()
{
    if (Empty())
        return {};
    SectionCheck check;
    check.Words();
    check.Scales();
    check.ReadRows();
    check.PlaceByTable();
    check.Order();
    for (const Placed& boring : check.Borings)
        if (boring.Is) {
            check.Frame(boring);
            check.BoringItself(boring);
        }
    check.Fills();
    if (check.Layers || check.Individual)
        check.Legend(SS4, LegendRows(), LegendRoom(check.Wide), check.TheTable != nullptr);
    check.Parameter();
    return check.Found;
}
