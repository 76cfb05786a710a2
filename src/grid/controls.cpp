// controls.cpp -- grids and text boxes as plain records.
#include "grid/controls.h"

#include "session/failure.h"
#include "session/linebreaks.h"

#include <algorithm>

Grid::Grid(int rowCount, int columnCount)
    : rows(rowCount), columns(columnCount), cells(static_cast<std::size_t>(rowCount) * columnCount),
      headings(static_cast<std::size_t>(columnCount) + 1)
{
}

// The place of a cell in the row-by-row list.
static std::size_t Place(const Grid& grid, int row, int column)
{
    if (row < 1 || row > grid.rows || column < 1 || column > grid.columns)
        throw RunTimeError{InvalidValue};
    return static_cast<std::size_t>(row - 1) * grid.columns + (column - 1);
}

Text& Grid::Cell(int row, int column)
{
    return cells[Place(*this, row, column)];
}

const Text& Grid::Cell(int row, int column) const
{
    return cells[Place(*this, row, column)];
}

int Grid::DataRowCount() const
{
    const auto last = std::find_if(cells.rbegin(), cells.rend(), [](const Text& cell) { return !cell.empty(); });
    if (last == cells.rend())
        return 0;
    return int(cells.rend() - last - 1) / columns + 1;
}

void Grid::ClearRows(int first, int last)
{
    for (int row = first; row <= last; ++row)
        for (int column = 1; column <= columns; ++column)
            Cell(row, column).clear();
}

void Grid::Clear()
{
    ClearRows(1, rows);
}

void Grid::Resize(int rowCount, int columnCount)
{
    std::vector<Text> kept(static_cast<std::size_t>(rowCount) * columnCount);
    for (int row = 1; row <= std::min(rows, rowCount); ++row)
        for (int column = 1; column <= std::min(columns, columnCount); ++column)
            kept[static_cast<std::size_t>(row - 1) * columnCount + (column - 1)] = std::move(Cell(row, column));
    cells = std::move(kept);
    rows = rowCount;
    columns = columnCount;
    headings.resize(static_cast<std::size_t>(columnCount) + 1);
}

GridShape Grid::Shape() const
{
    return {rows, columns, headings};
}

int Memo::Points() const
{
    return factor == 1550 ? 8 : 7;
}

int64_t Memo::Room() const
{
    return BoxRoom(widthTwips, factor, Points());
}

std::vector<Text> Memo::DisplayLines() const
{
    return BreakLines(text, Room());
}
