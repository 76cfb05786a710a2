// crossfile.cpp -- the .CRO file, its record and the boxes of its form.
#include "sections/crossfile.h"

#include "grid/gridedit.h"
#include "sections/sectionlines.h"
#include "session/platform.h"
#include "session/shared.h"

#include <algorithm>

CrossRecord CrossData;

namespace frmCross
{
Text FileName;
Grid SS1(CrossRecord::FormBorings, 5), SS2(CrossRecord::Scales, 1), SS3(CrossRecord::FormReports, 1),
    SS4(CrossRecord::FormLegendRows, 2);
} // namespace frmCross

static const SharedRecord shared[] = {
    {"CrossData", Kind::Document, CrossData},      {"frmCross::FileName", Kind::Document, frmCross::FileName},
    {"frmCross::SS1", Kind::Boxes, frmCross::SS1}, {"frmCross::SS2", Kind::Boxes, frmCross::SS2},
    {"frmCross::SS3", Kind::Boxes, frmCross::SS3}, {"frmCross::SS4", Kind::Boxes, frmCross::SS4},
};

// ---------------------------------------------------------------------------------------------------- reading

// A row "distance,file,water,flag" of the older form: as many of these as it has pieces, the flag with all its commas.
static void ReadOldRow(std::string_view line, Slots<Text, 9>& cells)
{
    int column = 1;
    for (; column < 4 && Holds(line, ','); ++column) {
        cells[column] = Before(line, ',');
        line = Behind(line, ',');
    }
    cells[column] = line;
}

// Label, azimuth and inclination share a line. With one bar only it is all label; what stands behind a third is lost.
static void SplitSecondLabel(Slots<Text, 9>& cells)
{
    const Text line = cells[7];
    const std::string_view behindLabel = Behind(line, '|');
    if (!Holds(behindLabel, '|'))
        return;
    cells[7] = Before(line, '|');
    cells[8] = Before(behindLabel, '|');
    cells[9] = Before(Behind(behindLabel, '|'), '|');
}

static void ReadBorings(LineReader& in)
{
    const Text first = in.Line();
    if (IsBlank(first)) {
        CrossData.rowCount = CrossRecord::FormBorings;
        for (int row = 1; row <= CrossRecord::FormBorings; ++row)
            ReadOldRow(in.Line(), CrossData.boringCells[row]);
        return;
    }
    // More rows than there is room for are read as far as they go, so that the form shows them.
    const int told = std::max(RoundInt32(TextNumber(first)), 0);
    CrossData.rowCount = static_cast<int16_t>(std::min(told, CrossRecord::Borings));
    for (int row = 1; row <= told; ++row) {
        for (int column = 1; column <= 7; ++column)
            CrossData.boringCells[row][column] = in.Line();
        SplitSecondLabel(CrossData.boringCells[row]);
    }
}

void OpenCrossFile()
try {
    ClearCrossArrays();
    LineReader in(frmCross::FileName);
    ReadBorings(in);
    in.Skip(1);
    CrossData.scaleCells[1] = ReadScaleCell(in);
    CrossData.scaleCells[2] = in.Line();
    CrossData.scaleCells[3] = ReadScaleCell(in);
    CrossData.scaleCells[4] = in.Line();
    in.Skip(1);
    for (int row = 1; row <= 6; ++row)
        CrossData.reportCells[row] = in.Line();
    for (int row = 1; row <= CrossRecord::FormLegendRows; ++row)
        ReadLegendRow(in, CrossData.legendCells[row]);
    for (int row = 7; row <= CrossRecord::Reports && !in.AtEnd(); ++row)
        CrossData.reportCells[row] = in.Line();
    for (int row = CrossRecord::FormLegendRows + 1; row <= CrossRecord::LegendRows && !in.AtEnd(); ++row)
        ReadLegendRow(in, CrossData.legendCells[row]);
} catch (...) {
    ReportFailure(__func__);
}

// ---------------------------------------------------------------------------------------------------- writing

template <int Rows>
static void TakeColumn(const Grid& grid, Slots<Text, Rows>& cells)
{
    for (int row = 1; row <= grid.rows; ++row)
        cells[row] = grid.Cell(row, 1);
}

template <int Rows, int Columns>
static void TakeTable(const Grid& grid, int rows, Slots<Slots<Text, Columns>, Rows>& cells)
{
    for (int row = 1; row <= rows; ++row)
        for (int column = 1; column <= grid.columns; ++column)
            cells[row][column] = grid.Cell(row, column);
}

// One box for all rows. Kept: it is the number behind the first comma, so without a comma every positive distance is
// beyond it.
static void CheckDistances()
{
    const float end = TextNumber(Behind(CrossData.scaleCells[1], ','));
    for (int row = 1; row <= CrossData.rowCount; ++row)
        if (static_cast<float>(TextNumber(CrossData.boringCells[row][1])) > end) {
            MsgBox("One or more of your boring distances exceed the END value of your HORIZONTAL SCALE.", OkOnly,
                   Exclamation);
            return;
        }
}

static void WriteBorings(LineWriter& out)
{
    out.Line(IntegerField(CrossData.rowCount));
    for (int row = 1; row <= CrossData.rowCount; ++row) {
        Slots<Text, 9>& cells = CrossData.boringCells[row];
        // Kept: the joined text stays in the cell, so a second save joins the two once more. The reader takes the
        // first pair.
        if (!IsBlank(cells[8]))
            cells[7] += "|" + cells[8] + "|" + cells[9];
        for (int column = 1; column <= 7; ++column)
            out.Line(cells[column]);
    }
}

bool SaveCrossFile()
try {
    const int rows = frmCross::SS1.DataRowCount();
    CrossData.rowCount = static_cast<int16_t>(rows == 0 ? CrossRecord::FormBorings : rows);
    TakeTable(frmCross::SS1, CrossData.rowCount, CrossData.boringCells);
    TakeColumn(frmCross::SS2, CrossData.scaleCells);
    TakeColumn(frmCross::SS3, CrossData.reportCells);
    CheckDistances();
    TakeTable(frmCross::SS4, frmCross::SS4.rows, CrossData.legendCells);
    LineWriter out(frmCross::FileName);
    WriteBorings(out);
    out.Line("");
    WriteScaleCell(out, CrossData.scaleCells[1]);
    out.Line(Trim(CrossData.scaleCells[2]));
    WriteScaleCell(out, CrossData.scaleCells[3]);
    out.Line(Trim(CrossData.scaleCells[4]));
    out.Line("");
    for (int row = 1; row <= 6; ++row)
        out.Line(CrossData.reportCells[row]);
    for (int row = 1; row <= CrossRecord::FormLegendRows; ++row)
        WriteLegendRow(out, CrossData.legendCells[row]);
    for (int row = 7; row <= CrossRecord::Reports; ++row)
        out.Line(CrossData.reportCells[row]);
    for (int row = CrossRecord::FormLegendRows + 1; row <= CrossRecord::LegendRows; ++row)
        WriteLegendRow(out, CrossData.legendCells[row]);
    out.Close();
    return true;
} catch (...) {
    ReportFailure(__func__);
    return false;
}

// ---------------------------------------------------------------------------------------- the record and the form

void ClearCrossArrays()
try {
    CrossData = {};
} catch (...) {
    ReportFailure(__func__);
}

template <int Rows>
static void FillColumn(Grid& grid, const Slots<Text, Rows>& cells)
{
    for (int row = 1; row <= grid.rows; ++row)
        grid.Cell(row, 1) = cells[row];
}

template <int Rows, int Columns>
static void FillTable(Grid& grid, int rows, const Slots<Slots<Text, Columns>, Rows>& cells)
{
    for (int row = 1; row <= rows; ++row)
        for (int column = 1; column <= grid.columns; ++column)
            grid.Cell(row, column) = cells[row][column];
}

// The grid with so many empty rows.
static void SetRowCount(Grid& grid, int rows)
{
    grid.rows = rows;
    grid.cells.assign(static_cast<size_t>(rows) * grid.columns, Text());
    grid.row = std::min(grid.row, rows);
    grid.selected = {grid.row, grid.column, grid.row, grid.column};
}

void FillCrossForm()
try {
    using namespace frmCross;
    Title = FileName + " - VeskCross - Cross Section Diagram";
    SetRowCount(SS1, std::max<int>(CrossData.rowCount, CrossRecord::FormBorings));
    FillTable(SS1, CrossData.rowCount, CrossData.boringCells);
    FillColumn(SS2, CrossData.scaleCells);
    FillColumn(SS3, CrossData.reportCells);
    FillTable(SS4, SS4.rows, CrossData.legendCells);
    for (Grid* grid : {&SS1, &SS2, &SS3, &SS4})
        ForgetSteps(*grid);
} catch (...) {
    ReportFailure(__func__);
}
