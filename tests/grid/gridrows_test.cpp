// gridrows_test.cpp -- grids that change their size under the user, and the way back.
#include "grid/gridedit.h"
#include "testing.h"

static Grid Growing()
{
    Grid grid(2, 2);
    grid.minRows = 2;
    grid.maxRows = 4;
    grid.Cell(1, 1) = "a";
    grid.Cell(2, 1) = "b";
    return grid;
}

static std::vector<Text> Beside;

static Text FirstColumn(const Grid& grid)
{
    Text text;
    for (int row = 1; row <= grid.rows; ++row)
        text += (row > 1 ? "," : "") + grid.Cell(row, 1);
    return text;
}

TEST_CASE("a grid that grows has a row more after Insert Row, up to its most; there nothing happens but a word")
{
    Grid grid = Growing();
    grid.row = 2;
    CHECK(InsertRow(grid));
    CHECK(FirstColumn(grid) == "a,,b");
    CHECK(InsertRow(grid));
    CHECK(grid.rows == 4);
    CHECK_FALSE(InsertRow(grid));
    CHECK(FirstColumn(grid) == "a,,,b");
    CHECK(Notices.size() == 1);
}

TEST_CASE("Delete Row takes a row out of a grid that grows, and below its least an empty one comes at the end")
{
    Grid grid = Growing();
    InsertRow(grid);
    DeleteRow(grid);
    CHECK(grid.rows == 2);
    DeleteRow(grid);
    CHECK(FirstColumn(grid) == "b,");
}

TEST_CASE("the current cell and the block stay inside a grid that shrinks")
{
    Grid grid = Growing();
    InsertRow(grid);
    grid.row = 3;
    grid.selected = {2, 1, 3, 2};
    DeleteRow(grid);
    CHECK(grid.row == 2);
    CHECK(grid.selected == Block{2, 1, 2, 2});
}

TEST_CASE("rows that came and went are taken back with their cells and the grid's size, and done again")
{
    Grid grid = Growing();
    grid.row = 2;
    InsertRow(grid);
    TypeCell(grid, 2, 1, "new");
    grid.row = 3;
    DeleteRow(grid);
    CHECK(FirstColumn(grid) == "a,new");
    for (const char* before : {"a,new,b", "a,,b", "a,b"}) {
        CHECK(UndoGrid(grid));
        CHECK(FirstColumn(grid) == before);
    }
    CHECK_FALSE(UndoGrid(grid));
    for (const char* after : {"a,,b", "a,new,b", "a,new"}) {
        CHECK(RedoGrid(grid));
        CHECK(FirstColumn(grid) == after);
    }
}

TEST_CASE("cells that no column shows go with their rows, out and back, and none comes up from below the last row")
{
    Beside = {"1", "2", "3", "4"};
    Grid grid = Growing();
    grid.besideWidth = 1;
    grid.beside = [] { return Beside; };
    grid.putBeside = [](const std::vector<Text>& cells) { Beside = cells; };
    grid.row = 2;
    InsertRow(grid);
    CHECK(Beside == std::vector<Text>{"1", "", "2", "3"});
    grid.row = 1;
    DeleteRow(grid);
    CHECK(Beside == std::vector<Text>{"", "2", "", "3"});
    TypeCell(grid, 1, 1, "x");
    UndoGrid(grid);
    UndoGrid(grid);
    CHECK(Beside == std::vector<Text>{"1", "", "2", "3"});
    UndoGrid(grid);
    CHECK(Beside == std::vector<Text>{"1", "2", "3", "4"});
    RedoGrid(grid);
    RedoGrid(grid);
    CHECK(Beside == std::vector<Text>{"", "2", "", "3"});
}

TEST_CASE("columns come and go with their headings, and back")
{
    Grid grid(1, 3);
    grid.headings = {"", "A", "B", "C"};
    for (int column = 1; column <= 3; ++column)
        grid.Cell(1, column) = grid.headings[column] + "1";
    grid.column = 2;
    CHECK(InsertColumn(grid, 4));
    CHECK(grid.headings == std::vector<Text>{"", "A", "", "B", "C"});
    CHECK(grid.cells == std::vector<Text>{"A1", "", "B1", "C1"});
    CHECK_FALSE(InsertColumn(grid, 4));
    CHECK(Notices.size() == 1);
    grid.column = 4;
    DeleteColumn(grid);
    CHECK(grid.headings == std::vector<Text>{"", "A", "", "B"});
    CHECK(grid.column == 3);
    UndoGrid(grid);
    CHECK(grid.headings == std::vector<Text>{"", "A", "", "B", "C"});
    CHECK(grid.Cell(1, 4) == "C1");
    UndoGrid(grid);
    CHECK(grid.headings == std::vector<Text>{"", "A", "B", "C"});
    CHECK(grid.cells == std::vector<Text>{"A1", "B1", "C1"});
    RedoGrid(grid);
    RedoGrid(grid);
    CHECK(grid.cells == std::vector<Text>{"A1", "", "B1"});
}
