// gridedit.cpp -- what the user does in a grid.
#include "grid/gridedit.h"

#include "grid/rowmoves.h"
#include "session/platform.h"

#include <algorithm>
#include <cstddef>
#include <functional>

static constexpr size_t maxSteps = 1000;

// The cells of a grid at one moment.
struct Cells {
    GridShape shape;
    std::vector<Text> cells, beside;
    const Text& At(int row, int column) const
    {
        static const Text none;
        return row > shape.rows || column > shape.columns ? none
                                                          : cells[size_t(row - 1) * shape.columns + (column - 1)];
    }
};

static Cells CellsOf(const Grid& grid)
{
    return {grid.Shape(), grid.cells, grid.beside ? grid.beside() : std::vector<Text>()};
}

static GridStep Differences(const Cells& before, const Cells& after)
{
    GridStep step;
    step.before = before.shape;
    step.after = after.shape;
    if (before.beside != after.beside) {
        step.besideBefore = before.beside;
        step.besideAfter = after.beside;
    }
    for (int row = 1; row <= std::max(before.shape.rows, after.shape.rows); ++row)
        for (int column = 1; column <= std::max(before.shape.columns, after.shape.columns); ++column)
            if (before.At(row, column) != after.At(row, column))
                step.cells.push_back({row, column, before.At(row, column), after.At(row, column)});
    return step;
}

// The current cell and the block stay inside the grid.
static void StayInside(Grid& grid)
{
    grid.row = std::min(grid.row, grid.rows);
    grid.column = std::min(grid.column, grid.columns);
    Block& block = grid.selected;
    block.top = std::min(block.top, grid.rows);
    block.bottom = std::min(block.bottom, grid.rows);
    block.left = std::min(block.left, grid.columns);
    block.right = std::min(block.right, grid.columns);
}

static bool Took(const CutRows& before, const CutRows& after)
{
    return before.top != after.top || before.text != after.text;
}

// The text that names the rows goes with them, and so do rows that wait to be pasted.
static void MoveNames(Grid& grid, const RowMoves& moves, GridStep& step)
{
    if (!grid.names || moves.empty())
        return;
    step.moves = moves;
    step.namesBefore = grid.names->text();
    step.words = grid.names->move(moves);
    step.namesAfter = grid.names->text();
    if (grid.cut.top > 0)
        grid.cut.top = MovedRow(moves, grid.cut.top);
    if (!step.words.empty())
        Platform.Tell(step.words);
}

// One change by the user; went says where the rows have gone by it.
static void Change(Grid& grid, const std::function<void()>& write,
                   const std::function<RowMoves(const Cells& before)>& went = {})
{
    const Cells before = CellsOf(grid);
    const CutRows cut = grid.cut;
    write();
    for (int row = 1; row <= std::min(grid.rows, before.shape.rows); ++row)
        for (int column = 1; column <= std::min(grid.locked, grid.columns); ++column)
            grid.Cell(row, column) = before.At(row, column);
    StayInside(grid);
    if (grid.cells == before.cells && grid.Shape() == before.shape && (!grid.beside || grid.beside() == before.beside))
        return;
    GridStep named;
    if (went)
        MoveNames(grid, went(before), named);
    if (grid.changed)
        grid.changed();
    GridStep step = Differences(before, CellsOf(grid));
    step.moves = std::move(named.moves);
    step.namesBefore = std::move(named.namesBefore);
    step.namesAfter = std::move(named.namesAfter);
    step.words = std::move(named.words);
    step.cutBefore = cut;
    step.cutAfter = grid.cut;
    grid.done.push_back(std::move(step));
    if (grid.done.size() > maxSteps)
        grid.done.erase(grid.done.begin());
    grid.undone.clear();
}

void TypeCell(Grid& grid, int row, int column, const Text& text)
{
    Change(grid, [&] { grid.Cell(row, column) = OneLine(text); });
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

static bool WholeRows(const Grid& grid, const Block& block)
{
    return block.left == 1 && block.right == grid.columns;
}

// Rows that are cut out whole are remembered, so that their names go with them to where they are pasted.
void CutSelected(Grid& grid)
{
    const Block block = grid.selected;
    CopySelected(grid);
    grid.cut = {};
    if (grid.names && WholeRows(grid, block))
        grid.cut = {block.top, TabSeparated(grid, block)};
    ClearSelected(grid);
    if (grid.cut.top == 0)
        return;
    const Text words = grid.names->cut(block.top, block.bottom);
    if (!words.empty())
        Platform.Tell(words);
}

// The rows of a grid as they stood in its cells, from index 1.
static RowList RowsOf(const Cells& cells)
{
    RowList rows(size_t(cells.shape.rows) + 1);
    for (int row = 1; row <= cells.shape.rows; ++row)
        for (int column = 1; column <= cells.shape.columns; ++column)
            rows[size_t(row)].push_back(cells.At(row, column));
    return rows;
}

// How many rows were cut out that are what is pasted; 0 where it is something else, or they have been filled again.
static int RowsCut(const Grid& grid, const Cells& before, const std::vector<std::vector<Text>>& pasted)
{
    const int count = int(pasted.size());
    if (grid.cut.top == 0 || CellsOfText(grid.cut.text) != pasted || grid.cut.top + count - 1 > before.shape.rows)
        return 0;
    for (int row = grid.cut.top; row < grid.cut.top + count; ++row)
        for (int column = 1; column <= before.shape.columns; ++column)
            if (!before.At(row, column).empty())
                return 0;
    return count;
}

// Where the rows have gone when whole rows were pasted; rows that were cut out before go with that.
static RowMoves MovesByPaste(Grid& grid, const Cells& before, const std::vector<std::vector<Text>>& pasted, int at)
{
    const int count = RowsCut(grid, before, pasted);
    const int top = count > 0 ? grid.cut.top : 0;
    if (count > 0)
        grid.cut = {};
    return RowsPasted(RowsOf(before), RowsOf(CellsOf(grid)), top, at, count);
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
    // A grid that rows can be put into grows for them.
    const int wanted = alone ? grid.rows : at.top + int(rows.size()) - 1;
    const int grown = std::max(grid.rows, std::min(wanted, grid.maxRows));
    Block filled = at;
    if (!alone) {
        filled.bottom = std::min(grown, wanted);
        filled.right = std::min(grid.columns, at.left + int(width) - 1);
    }
    grid.selected = filled;
    grid.row = filled.top;
    grid.column = filled.left;
    const auto write = [&] {
        if (grid.beside && grown > grid.rows) { // what an earlier document left below the last row does not come up
            std::vector<Text> cells = grid.beside();
            std::fill(cells.begin() + std::ptrdiff_t(grid.rows) * grid.besideWidth,
                      cells.begin() + std::ptrdiff_t(grown) * grid.besideWidth, Text());
            grid.putBeside(cells);
        }
        grid.Resize(grown, grid.columns);
        for (int row = filled.top; row <= filled.bottom; ++row)
            for (int column = filled.left; column <= filled.right; ++column) {
                const std::vector<Text>& from = rows[alone ? 0 : size_t(row - at.top)];
                const size_t i = alone ? 0 : size_t(column - at.left);
                grid.Cell(row, column) = i < from.size() ? from[i] : Text();
            }
    };
    if (grid.names && WholeRows(grid, filled) && !alone)
        Change(grid, write, [&](const Cells& before) { return MovesByPaste(grid, before, rows, filled.top); });
    else
        Change(grid, write);
    const int rowsOut = alone ? 0 : at.top + int(rows.size()) - 1 - filled.bottom;
    const int columnsOut = alone ? 0 : at.left + int(width) - 1 - filled.right;
    if (rowsOut > 0 || columnsOut > 0)
        Platform.Notice("The clipboard holds more than fits here: left out are " + PlainNumber(rowsOut) +
                        (rowsOut == 1 ? " row and " : " rows and ") + PlainNumber(columnsOut) +
                        (columnsOut == 1 ? " column." : " columns."));
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

// What stands beside the rows makes room for one at the current row, or closes over it. It goes on below the grid's
// last row, for the rows that the grid may grow to; what an earlier document left there does not come up with a row
// deleted.
static void MoveBeside(Grid& grid, bool in)
{
    if (!grid.beside)
        return;
    std::vector<Text> cells = grid.beside();
    const auto at = cells.begin() + std::ptrdiff_t(grid.row - 1) * grid.besideWidth;
    if (in) {
        std::rotate(at, cells.end() - grid.besideWidth, cells.end());
        std::fill(at, at + grid.besideWidth, Text());
    } else {
        std::fill(at, at + grid.besideWidth, Text());
        std::rotate(at, at + grid.besideWidth, cells.begin() + std::ptrdiff_t(grid.rows) * grid.besideWidth);
    }
    grid.putBeside(cells);
}

bool InsertRow(Grid& grid)
{
    const bool grows = grid.maxRows > 0;
    if (grows && grid.rows >= grid.maxRows) {
        Platform.Notice("The grid has " + PlainNumber(grid.rows) + " rows, which is all that it can have.");
        return false;
    }
    if (!grows && grid.DataRowCount() == grid.rows) {
        Platform.Notice("The last row holds text, so no row was inserted.");
        return false;
    }
    const int row = grid.row;
    const auto write = [&] {
        if (grows)
            grid.Resize(grid.rows + 1, grid.columns);
        const auto at = grid.cells.begin() + std::ptrdiff_t(row - 1) * grid.columns;
        std::rotate(at, grid.cells.end() - grid.columns, grid.cells.end());
        MoveBeside(grid, true);
    };
    Change(grid, write, [row](const Cells& before) { return RowInserted(before.shape.rows, row); });
    return true;
}

void DeleteRow(Grid& grid)
{
    const int deleted = grid.row;
    const auto write = [&] {
        grid.ClearRows(deleted, deleted);
        const auto at = grid.cells.begin() + std::ptrdiff_t(deleted - 1) * grid.columns;
        std::rotate(at, at + grid.columns, grid.cells.end());
        MoveBeside(grid, false);
        if (grid.maxRows > 0 && grid.rows > grid.minRows)
            grid.Resize(grid.rows - 1, grid.columns);
    };
    Change(grid, write, [deleted](const Cells& before) { return RowDeleted(before.shape.rows, deleted); });
}

// Column from goes to where column to is; those between make room.
static void MoveColumn(Grid& grid, int from, int to)
{
    const auto turn = [from, to](auto first) { // first: of column 1
        if (from > to)
            std::rotate(first + (to - 1), first + (from - 1), first + from);
        else
            std::rotate(first + (from - 1), first + from, first + to);
    };
    turn(grid.headings.begin() + 1);
    for (int row = 1; row <= grid.rows; ++row)
        turn(grid.cells.begin() + std::ptrdiff_t(row - 1) * grid.columns);
}

bool InsertColumn(Grid& grid, int maxColumns)
{
    if (grid.columns >= maxColumns) {
        Platform.Notice("The grid has " + PlainNumber(grid.columns) + " columns, which is all that it can have.");
        return false;
    }
    Change(grid, [&] {
        grid.Resize(grid.rows, grid.columns + 1);
        MoveColumn(grid, grid.columns, grid.column);
    });
    return true;
}

void DeleteColumn(Grid& grid)
{
    Change(grid, [&] {
        MoveColumn(grid, grid.column, grid.columns);
        grid.Resize(grid.rows, grid.columns - 1);
    });
}

// The names of rows go back, or on again, with the rows. Where the text has been changed since the step, it is
// renumbered as it stands now, and what was typed into it stays.
static void MoveNamesAgain(Grid& grid, const GridStep& step, bool back)
{
    if (!grid.names || step.moves.empty())
        return;
    const Text now = grid.names->text();
    const Text& from = back ? step.namesAfter : step.namesBefore;
    const Text& to = back ? step.namesBefore : step.namesAfter;
    Text words;
    if (now == from && from != to) {
        grid.names->put(to);
        words = back ? "Taken back: " + step.words : step.words;
    } else if (now != from && now != to) {
        words = grid.names->move(back ? Inverse(step.moves) : step.moves);
    }
    if (!words.empty())
        Platform.Tell(words);
}

// The last step of one list is applied, one way or the other, and moves to the other list. The block that it touched is
// shown.
static bool Move(Grid& grid, std::vector<GridStep>& from, std::vector<GridStep>& to, Text CellChange::*text,
                 GridShape GridStep::*shape, std::vector<Text> GridStep::*beside)
{
    if (from.empty())
        return false;
    GridStep step = std::move(from.back());
    from.pop_back();
    const GridShape& wanted = step.*shape;
    if (step.before.rows != step.after.rows || step.before.columns != step.after.columns)
        grid.Resize(wanted.rows, wanted.columns);
    if (!(step.*beside).empty())
        grid.putBeside(step.*beside);
    if (step.before.headings != step.after.headings)
        grid.headings = wanted.headings;
    Block touched{grid.rows + 1, grid.columns + 1, 0, 0};
    for (const CellChange& change : step.cells) {
        if (change.row > grid.rows || change.column > grid.columns)
            continue; // a cell of the larger shape
        grid.Cell(change.row, change.column) = change.*text;
        touched.top = std::min(touched.top, change.row);
        touched.left = std::min(touched.left, change.column);
        touched.right = std::max(touched.right, change.column);
        touched.bottom = std::max(touched.bottom, change.row);
    }
    if (touched.bottom > 0) {
        grid.selected = touched;
        grid.row = touched.top;
        grid.column = touched.left;
    }
    StayInside(grid);
    const bool back = &from == &grid.done;
    MoveNamesAgain(grid, step, back);
    if (Took(step.cutBefore, step.cutAfter))
        grid.cut = back ? step.cutBefore : step.cutAfter;
    to.push_back(std::move(step));
    if (grid.changed)
        grid.changed();
    return true;
}

bool UndoGrid(Grid& grid)
{
    return Move(grid, grid.done, grid.undone, &CellChange::before, &GridStep::before, &GridStep::besideBefore);
}

bool RedoGrid(Grid& grid)
{
    return Move(grid, grid.undone, grid.done, &CellChange::after, &GridStep::after, &GridStep::besideAfter);
}

void ForgetSteps(Grid& grid)
{
    grid.done.clear();
    grid.undone.clear();
    grid.cut = {};
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

Text OneLine(std::string_view cell)
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
