// gischeck.cpp -- what a reviewer of the table would flag.
#include "gis/gischeck.h"

#include "gis/gisfile.h"

// A cell that tells the layer's bottom alone.
static bool IsPlain(const Text& cell)
{
    return !IsBlank(cell) && !Holds(cell, '-') && !UpperCase(Trim(cell)).starts_with("X");
}

// A cell whose first number is no depth of the boring.
static bool TellsNoDepth(const Text& cell)
{
    return IsBlank(cell) || UpperCase(Trim(cell)).starts_with("X");
}

std::vector<CheckEntry> CheckGisTable()
{
    std::vector<CheckEntry> entries;
    const int layers = frmGIS::SSGISInfo.columns - GisColumns;
    const int rows = frmGIS::SSGISInfo.DataRowCount();
    // A save and the exports write a column for each name of the list, in its order.
    const auto heading = [](int k) { return frmGIS::SSGISInfo.headings[size_t(GisColumns) + k]; };
    const int listed = frmGIS::SSGISLayers.DataRowCount();
    bool same = listed == layers;
    for (int k = 1; k <= std::min(listed, layers); ++k)
        same = same && heading(k) == frmGIS::SSGISLayers.Cell(k, 1);
    if (!same && rows > 0) {
        CheckEntry entry;
        entry.Words = "The columns of the table are not those of the Layer List, by which it is saved.  Bring the list "
                      "to the columns, or the columns to the list by Update Layers.";
        entry.Kind = "gis-columns";
        entry.GridName = "SSGISLayers";
        entries.push_back(entry);
    }
    for (int row = 1; row <= rows; ++row)
        for (int k = 2; k <= layers; ++k) {
            const Text cell = frmGIS::LayerCell(row, k), above = frmGIS::LayerCell(row, k - 1);
            if (!IsPlain(cell) || !TellsNoDepth(above))
                continue;
            const auto name = [](int layer) { return frmGIS::SSGISInfo.headings[size_t(GisColumns) + layer]; };
            const Text bottom(Trim(cell));
            CheckEntry entry;
            entry.Words =
                "Row " + PlainNumber(row) + ", " + frmGIS::SSGISInfo.Cell(row, GisBoringName) + ": " + name(k) +
                " ends at " + bottom + ", but " + name(k - 1) +
                " above it tells no depth, so it is drawn from the ground on.  Write its top before it: top-" + bottom +
                ".";
            entry.Kind = "gis-no-top";
            entry.GridName = "SSGISInfo";
            entry.Row = row;
            entry.Column = GisColumns + k;
            entries.push_back(entry);
        }
    return entries;
}
