// fencefile.cpp -- the .FEN file, its record and the boxes of its form.
#include "sections/fencefile.h"

#include "boring/opensave.h"
#include "sections/sectionlines.h"
#include "session/shared.h"

FenceRecord FenceData;

namespace frmFence
{
Text FileName;
Grid SS1(FenceRecord::Borings, 6), SS2(FenceRecord::Scales, 1), SS3(FenceRecord::Reports, 1),
    SS4(FenceRecord::LegendRows, 2), SS5(FenceRecord::Panels, 1);
} // namespace frmFence

static const SharedRecord shared[] = {
    {"FenceData", Kind::Document, FenceData},      {"frmFence::FileName", Kind::Document, frmFence::FileName},
    {"frmFence::SS1", Kind::Boxes, frmFence::SS1}, {"frmFence::SS2", Kind::Boxes, frmFence::SS2},
    {"frmFence::SS3", Kind::Boxes, frmFence::SS3}, {"frmFence::SS4", Kind::Boxes, frmFence::SS4},
    {"frmFence::SS5", Kind::Boxes, frmFence::SS5},
};

// The first pieces of a line, a cell each; the last cell takes all that is left, commas too.
static Slots<Text, 6> CutBoringRow(std::string_view line)
{
    Slots<Text, 6> cells;
    for (int column = 1; column < 6; ++column) {
        cells[column] = Before(line, ',');
        line = Behind(line, ',');
    }
    cells[6] = line;
    return cells;
}

void OpenFenceFile()
try {
    ClearFenceArrays();
    LineReader in(frmFence::FileName);
    in.Skip(1);
    for (int row = 1; row <= FenceRecord::Borings; ++row)
        FenceData.boringCells[row] = CutBoringRow(in.Line());
    in.Skip(1);
    for (int row = 1; row <= FenceRecord::Panels; ++row)
        FenceData.sectionCells[row] = in.Line();
    in.Skip(1);
    FenceData.scaleCells[1] = ReadScaleCell(in);
    FenceData.scaleCells[2] = in.Line();
    FenceData.scaleCells[3] = in.Line();
    FenceData.scaleCells[4] = ReadScaleCell(in);
    FenceData.scaleCells[5] = in.Line();
    in.Skip(1);
    for (int row = 1; row <= 6; ++row)
        FenceData.reportCells[row] = in.Line();
    for (int row = 1; row <= FenceRecord::LegendRows; ++row)
        ReadLegendRow(in, FenceData.legendCells[row]);
    for (int row = 7; row <= FenceRecord::Reports && !in.AtEnd(); ++row)
        FenceData.reportCells[row] = in.Line();
} catch (...) {
    ReportFailure(__func__);
}

template <int Rows>
static void TakeColumn(const Grid& grid, Slots<Text, Rows>& cells)
{
    for (int row = 1; row <= Rows; ++row)
        cells[row] = grid.Cell(row, 1);
}

template <int Rows, int Columns>
static void TakeTable(const Grid& grid, Slots<Slots<Text, Columns>, Rows>& cells)
{
    for (int row = 1; row <= Rows; ++row)
        for (int column = 1; column <= Columns; ++column)
            cells[row][column] = grid.Cell(row, column);
}

static void TakeBoxes()
{
    TakeTable(frmFence::SS1, FenceData.boringCells);
    TakeColumn(frmFence::SS5, FenceData.sectionCells);
    TakeColumn(frmFence::SS2, FenceData.scaleCells);
    TakeColumn(frmFence::SS3, FenceData.reportCells);
    TakeTable(frmFence::SS4, FenceData.legendCells);
}

static Text BoringRow(const Slots<Text, 6>& cells)
{
    Text line(RTrim(cells[1]));
    for (int column = 2; column <= 6; ++column)
        line.append(",").append(RTrim(cells[column]));
    return line;
}

void SaveFenceFile()
try {
    TakeBoxes();
    LineWriter out(frmFence::FileName);
    out.Line("");
    for (int row = 1; row <= FenceRecord::Borings; ++row)
        out.Line(BoringRow(FenceData.boringCells[row]));
    out.Line("");
    for (int row = 1; row <= FenceRecord::Panels; ++row)
        out.Line(FenceData.sectionCells[row]);
    out.Line("");
    WriteScaleCell(out, FenceData.scaleCells[1]);
    out.Line(Trim(FenceData.scaleCells[2]));
    out.Line(Trim(FenceData.scaleCells[3]));
    WriteScaleCell(out, FenceData.scaleCells[4]);
    out.Line(Trim(FenceData.scaleCells[5]));
    out.Line("");
    for (int row = 1; row <= 6; ++row)
        out.Line(FenceData.reportCells[row]);
    for (int row = 1; row <= FenceRecord::LegendRows; ++row)
        WriteLegendRow(out, FenceData.legendCells[row]);
    for (int row = 7; row <= FenceRecord::Reports; ++row)
        out.Line(FenceData.reportCells[row]);
    out.Close();
} catch (...) {
    ReportFailure(__func__);
}

void ClearFenceArrays()
try {
    FenceData = {};
} catch (...) {
    ReportFailure(__func__);
}

template <int Rows>
static void FillColumn(Grid& grid, const Slots<Text, Rows>& cells)
{
    for (int row = 1; row <= Rows; ++row)
        grid.Cell(row, 1) = cells[row];
}

template <int Rows, int Columns>
static void FillTable(Grid& grid, const Slots<Slots<Text, Columns>, Rows>& cells)
{
    for (int row = 1; row <= Rows; ++row)
        for (int column = 1; column <= Columns; ++column)
            grid.Cell(row, column) = cells[row][column];
}

void FillFenceForm()
try {
    frmFence::Title = frmFence::FileName + " - VeskFence - Fence Diagram";
    FillTable(frmFence::SS1, FenceData.boringCells);
    FillColumn(frmFence::SS5, FenceData.sectionCells);
    FillColumn(frmFence::SS2, FenceData.scaleCells);
    FillColumn(frmFence::SS3, FenceData.reportCells);
    FillTable(frmFence::SS4, FenceData.legendCells);
} catch (...) {
    ReportFailure(__func__);
}
