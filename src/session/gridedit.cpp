// gridedit.cpp -- what the user does in a grid.
#include "session/gridedit.h"

#include "session/platform.h"

#include <algorithm>
#include <cstddef>
#include <functional>

static constexpr size_t maxSteps = 1000;

static GridStep Differences(const Grid& grid, const std::vector<Text>& before)
{
    GridStep step;
    for (size_t i = 0; i < before.size(); ++i)
        if (before[i] != grid.cells[i])
            step.push_back({int(i) / grid.columns + 1, int(i) % grid.columns + 1, before[i], grid.cells[i]});
    return step;
}

// One change by the user.
static void Change(Grid& grid, const std::function<void()>& write)
{
    const std::vector<Text> before = grid.cells;
    write();
    for (size_t i = 0; i < before.size(); ++i)
        if (int(i) % grid.columns < grid.locked)
            grid.cells[i] = before[i];
    if (grid.cells == before)
        return;
    if (grid.changed)
        grid.changed();
    grid.done.push_back(Differences(grid, before));
    if (grid.done.size() > maxSteps)
        grid.done.erase(grid.done.begin());
    grid.undone.clear();
}

void TypeCell(Grid& grid, int row, int column, const Text& text)
{
    Change(grid, [&] { grid.Cell(row, column) = text; });
}

void ClearSelected(Grid& grid)
{
    Change(grid, [&] {
        for (int row = grid.selected.top; row <= grid.selected.bottom; ++row)
            for (int column = grid.selected.left; column <= grid.selected.right; ++column)
                grid.Cell(row, column).clear();
    });
}

void CopySelected(const Grid& grid)
{
    Platform.SetClipboardText(TabSeparated(grid, grid.selected));
}

void CutSelected(Grid& grid)
{
    CopySelected(grid);
    ClearSelected(grid);
}

void PasteSelected(Grid& grid)
{
    const std::vector<std::vector<Text>> rows = CellsOfText(Platform.ClipboardText());
    if (rows.empty())
        return;
    const Block at = grid.selected;
    const bool alone = rows.size() == 1 && rows[0].size() == 1;
    size_t width = 0;
    for (const std::vector<Text>& row : rows)
        width = std::max(width, row.size());
    Block filled = at;
    if (!alone) {
        filled.bottom = std::min(grid.rows, at.top + int(rows.size()) - 1);
        filled.right = std::min(grid.columns, at.left + int(width) - 1);
    }
    grid.selected = filled;
    grid.row = filled.top;
    grid.column = filled.left;
    Change(grid, [&] {
        for (int row = filled.top; row <= filled.bottom; ++row)
            for (int column = filled.left; column <= filled.right; ++column) {
                const std::vector<Text>& from = rows[alone ? 0 : size_t(row - at.top)];
                const size_t i = alone ? 0 : size_t(column - at.left);
                grid.Cell(row, column) = i < from.size() ? from[i] : Text();
            }
    });
    const int rowsOut = alone ? 0 : at.top + int(rows.size()) - 1 - filled.bottom;
    const int columnsOut = alone ? 0 : at.left + int(width) - 1 - filled.right;
    if (rowsOut > 0 || columnsOut > 0)
        Platform.Notice("The clipboard holds more than fits here: left out are " + PlainNumber(rowsOut) + " rows and " +
                        PlainNumber(columnsOut) + " columns.");
}

void FillDown(Grid& grid)
{
    Block to = grid.selected;
    int from = to.top;
    if (to.top == to.bottom)
        --from;
    else
        ++to.top;
    if (from < 1)
        return;
    Change(grid, [&] {
        for (int row = to.top; row <= to.bottom; ++row)
            for (int column = to.left; column <= to.right; ++column)
                grid.Cell(row, column) = grid.Cell(from, column);
    });
}

void InsertRow(Grid& grid)
{
    if (grid.DataRowCount() == grid.rows) {
        Platform.Notice("The last row holds text, so no row was inserted.");
        return;
    }
    Change(grid, [&] {
        const auto at = grid.cells.begin() + std::ptrdiff_t(grid.row - 1) * grid.columns;
        std::rotate(at, grid.cells.end() - grid.columns, grid.cells.end());
    });
}

void DeleteRow(Grid& grid)
{
    Change(grid, [&] {
        grid.ClearRows(grid.row, grid.row);
        const auto at = grid.cells.begin() + std::ptrdiff_t(grid.row - 1) * grid.columns;
        std::rotate(at, at + grid.columns, grid.cells.end());
    });
}

// The last step of one list is applied, one way or the other, and moves to the other list. The block that it touched is
// shown.
static bool Move(Grid& grid, std::vector<GridStep>& from, std::vector<GridStep>& to, Text CellChange::*text)
{
    if (from.empty())
        return false;
    GridStep step = std::move(from.back());
    from.pop_back();
    for (const CellChange& change : step)
        grid.Cell(change.row, change.column) = change.*text;
    Block touched{step[0].row, step[0].column, step[0].row, step[0].column};
    for (const CellChange& change : step) {
        touched.left = std::min(touched.left, change.column);
        touched.right = std::max(touched.right, change.column);
        touched.bottom = std::max(touched.bottom, change.row);
    }
    grid.selected = touched;
    grid.row = touched.top;
    grid.column = touched.left;
    to.push_back(std::move(step));
    if (grid.changed)
        grid.changed();
    return true;
}

bool UndoGrid(Grid& grid)
{
    return Move(grid, grid.done, grid.undone, &CellChange::before);
}

bool RedoGrid(Grid& grid)
{
    return Move(grid, grid.undone, grid.done, &CellChange::after);
}

void ForgetSteps(Grid& grid)
{
    grid.done.clear();
    grid.undone.clear();
}

Text TabSeparated(const Grid& grid, const Block& block)
{
    Text text;
    for (int row = block.top; row <= block.bottom; ++row) {
        for (int column = block.left; column <= block.right; ++column) {
            const Text& cell = grid.Cell(row, column);
            if (column > block.left)
                text += '\t';
            if (cell.find_first_of("\t\r\n") == Text::npos && !cell.starts_with('"')) {
                text += cell;
                continue;
            }
            text += '"';
            for (const char letter : cell) {
                if (letter == '"')
                    text += '"';
                text += letter;
            }
            text += '"';
        }
        text += "\r\n";
    }
    return text;
}

// Length of the line end that stands at the front, 0 if none does.
static size_t LineEnd(std::string_view text)
{
    return text.starts_with("\r\n") ? 2 : text.starts_with('\r') || text.starts_with('\n') ? 1 : 0;
}

static bool CellEnd(std::string_view text)
{
    return text.empty() || text[0] == '\t' || LineEnd(text) > 0;
}

// Takes a quoted cell from the front. False, and nothing taken, where no closing mark ends a cell: then the mark is a
// letter like any other.
static bool TakeQuoted(std::string_view& text, Text& cell)
{
    for (size_t i = 1; i < text.size(); ++i) {
        if (text[i] != '"') {
            cell += text[i];
        } else if (text.substr(i + 1).starts_with('"')) {
            cell += text[i++];
        } else if (CellEnd(text.substr(i + 1))) {
            text.remove_prefix(i + 1);
            return true;
        } else {
            break;
        }
    }
    cell.clear();
    return false;
}

// A cell is one line: blanks for its line ends.
static Text OneLine(std::string_view cell)
{
    Text line;
    while (!cell.empty()) {
        const size_t end = LineEnd(cell);
        line += end > 0 ? ' ' : cell[0];
        cell.remove_prefix(std::max<size_t>(end, 1));
    }
    return line;
}

std::vector<std::vector<Text>> CellsOfText(std::string_view text)
{
    std::vector<std::vector<Text>> rows;
    while (!text.empty()) {
        rows.emplace_back();
        for (bool more = true; more;) {
            Text cell;
            if (!text.starts_with('"') || !TakeQuoted(text, cell)) {
                size_t length = 0;
                while (!CellEnd(text.substr(length)))
                    ++length;
                cell = text.substr(0, length);
                text.remove_prefix(length);
            }
            rows.back().push_back(OneLine(cell));
            more = text.starts_with('\t');
            text.remove_prefix(more ? 1 : LineEnd(text));
        }
    }
    return rows;
}
