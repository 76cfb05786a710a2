// gridedit_test.cpp -- what the user does in a grid, with no window.
#include "grid/gridedit.h"

#include "testing.h"

static Grid Numbered(int rows, int columns)
{
    Grid grid(rows, columns);
    for (int row = 1; row <= rows; ++row)
        for (int column = 1; column <= columns; ++column)
            grid.Cell(row, column) = PlainNumber(row) + "." + PlainNumber(column);
    return grid;
}

static void Select(Grid& grid, Block block)
{
    grid.selected = block;
    grid.row = block.top;
    grid.column = block.left;
}

static Text All(const Grid& grid)
{
    return TabSeparated(grid, {1, 1, grid.rows, grid.columns});
}

static int changes;

TEST_CASE("a typed cell is one step: Undo takes it back, Redo brings it again, the same text again is none")
{
    Grid grid(3, 2);
    changes = 0;
    grid.changed = [] { ++changes; };
    TypeCell(grid, 2, 1, "CL");
    TypeCell(grid, 2, 1, "CL");
    CHECK(changes == 1);
    CHECK(grid.done.size() == 1);
    REQUIRE(UndoGrid(grid));
    CHECK(grid.Cell(2, 1) == "");
    CHECK(changes == 2);
    CHECK_FALSE(UndoGrid(grid));
    REQUIRE(RedoGrid(grid));
    CHECK(grid.Cell(2, 1) == "CL");
    CHECK_FALSE(RedoGrid(grid));
}

TEST_CASE("a line end in a typed cell becomes a blank, whichever of the three kinds it is")
{
    Grid grid(1, 1);
    for (const char* text : {"a\nb", "a\r\nb", "a\rb"}) {
        TypeCell(grid, 1, 1, "");
        TypeCell(grid, 1, 1, text);
        CHECK(grid.Cell(1, 1) == "a b");
    }
    TypeCell(grid, 1, 1, "\r\r\n\n\r");
    CHECK(grid.Cell(1, 1) == "    ");
}

TEST_CASE("after Undo a new change leaves nothing to do again")
{
    Grid grid(3, 2);
    TypeCell(grid, 1, 1, "a");
    UndoGrid(grid);
    TypeCell(grid, 1, 1, "b");
    CHECK_FALSE(RedoGrid(grid));
    CHECK(grid.Cell(1, 1) == "b");
}

static Grid* watched;

TEST_CASE("what a change writes of its own belongs to the same step")
{
    Grid grid(2, 2);
    watched = &grid;
    grid.changed = [] {
        if (watched->Cell(1, 1) == "remarks" && watched->Cell(1, 2).empty())
            watched->Cell(1, 2) = "1.4";
    };
    TypeCell(grid, 1, 1, "remarks");
    CHECK(grid.Cell(1, 2) == "1.4");
    UndoGrid(grid);
    CHECK(All(grid) == "\t\r\n\t\r\n");
}

TEST_CASE("Copy gives tab-separated rows, Cut clears the block too")
{
    Grid grid = Numbered(3, 3);
    Select(grid, {2, 1, 3, 2});
    CopySelected(grid);
    CHECK(PlainClipboard == "2.1\t2.2\r\n3.1\t3.2\r\n");
    CutSelected(grid);
    CHECK(All(grid) == "1.1\t1.2\t1.3\r\n\t\t2.3\r\n\t\t3.3\r\n");
    CHECK(grid.done.size() == 1);
}

TEST_CASE("cells with tabs, line ends or a quote mark in front are quoted, and come back as they were")
{
    Grid grid(1, 4);
    grid.Cell(1, 1) = "a\tb";
    grid.Cell(1, 2) = "\"x\"";
    grid.Cell(1, 3) = "5\" pipe";
    grid.Cell(1, 4) = "";
    const Text text = TabSeparated(grid, {1, 1, 1, 4});
    CHECK(text == "\"a\tb\"\t\"\"\"x\"\"\"\t5\" pipe\t\r\n");
    const auto rows = CellsOfText(text);
    REQUIRE(rows.size() == 1);
    CHECK(rows[0] == std::vector<Text>{"a\tb", "\"x\"", "5\" pipe", ""});
}

TEST_CASE("a line end inside a quoted cell becomes a blank, since a cell is one line of a file")
{
    const auto rows = CellsOfText("\"a\r\nb\nc\"\td\r\n");
    REQUIRE(rows.size() == 1);
    CHECK(rows[0] == std::vector<Text>{"a b c", "d"});
}

TEST_CASE("a quote mark that is never closed is a letter")
{
    CHECK(CellsOfText("\"a\tb") == std::vector<std::vector<Text>>{{"\"a", "b"}});
    CHECK(CellsOfText("\"a\"b\tc") == std::vector<std::vector<Text>>{{"\"a\"b", "c"}});
}

TEST_CASE("a final line end gives no extra row, every kind of line end ends one, empty rows count")
{
    CHECK(CellsOfText("1\r\n2\n3\r4") == std::vector<std::vector<Text>>{{"1"}, {"2"}, {"3"}, {"4"}});
    CHECK(CellsOfText("1\n").size() == 1);
    CHECK(CellsOfText("1\n\n2\n").size() == 3);
    CHECK(CellsOfText("").empty());
    CHECK(CellsOfText("a\t") == std::vector<std::vector<Text>>{{"a", ""}});
}

TEST_CASE("a paste fills from the block's first cell on, marks what it filled, and is one step")
{
    Grid grid(4, 3);
    PlainClipboard = "1\t2\r\n3\r\n";
    grid.Cell(3, 3) = "old";
    Select(grid, {2, 2, 2, 2});
    PasteSelected(grid);
    CHECK(All(grid) == "\t\t\r\n\t1\t2\r\n\t3\t\r\n\t\t\r\n");
    CHECK(grid.selected == Block{2, 2, 3, 3});
    CHECK(Notices.empty());
    UndoGrid(grid);
    CHECK(All(grid) == "\t\t\r\n\t\t\r\n\t\told\r\n\t\t\r\n");
}

TEST_CASE("a paste larger than the grid fills what fits and says so")
{
    Grid grid(2, 2);
    PlainClipboard = "1\t2\r\n3\t4\r\n";
    Select(grid, {2, 2, 2, 2});
    PasteSelected(grid);
    CHECK(All(grid) == "\t\r\n\t1\r\n");
    REQUIRE(Notices.size() == 1);
    CHECK(Notices[0] == "The clipboard holds more than fits here: left out are 1 row and 1 column.");
}

TEST_CASE("a grid that rows can be put into grows for a paste, up to its bound, and shrinks when that is undone")
{
    static std::vector<Text> hidden;
    hidden = {"a", "b", "old", "old", "old"};
    Grid grid(2, 1);
    grid.minRows = 2;
    grid.maxRows = 4;
    grid.besideWidth = 1;
    grid.beside = [] { return hidden; };
    grid.putBeside = [](const std::vector<Text>& cells) { hidden = cells; };
    PlainClipboard = "1\r\n2\r\n3\r\n4\r\n";
    Select(grid, {2, 1, 2, 1});
    PasteSelected(grid);
    CHECK(grid.rows == 4);
    CHECK(All(grid) == "\r\n1\r\n2\r\n3\r\n");
    CHECK(hidden == std::vector<Text>{"a", "b", "", "", "old"});
    REQUIRE(Notices.size() == 1);
    CHECK(Notices[0] == "The clipboard holds more than fits here: left out are 1 row and 0 columns.");
    UndoGrid(grid);
    CHECK(grid.rows == 2);
    CHECK(hidden == std::vector<Text>{"a", "b", "old", "old", "old"});
}

TEST_CASE("one copied cell fills the whole block")
{
    Grid grid(2, 2);
    PlainClipboard = "x\r\n";
    Select(grid, {1, 1, 2, 2});
    PasteSelected(grid);
    CHECK(All(grid) == "x\tx\r\nx\tx\r\n");
}

TEST_CASE("Fill Down copies the block's first row, or the row above a block of one row")
{
    Grid grid = Numbered(3, 2);
    Select(grid, {1, 2, 3, 2});
    FillDown(grid);
    CHECK(All(grid) == "1.1\t1.2\r\n2.1\t1.2\r\n3.1\t1.2\r\n");
    Select(grid, {2, 1, 2, 1});
    FillDown(grid);
    CHECK(grid.Cell(2, 1) == "1.1");
    Select(grid, {1, 1, 1, 1});
    FillDown(grid);
    CHECK(grid.Cell(1, 1) == "1.1");
    CHECK(grid.done.size() == 2);
}

TEST_CASE("Insert Row moves the rows from the current one down, Delete Row moves them up, each is one step")
{
    Grid grid = Numbered(3, 1);
    grid.Cell(3, 1) = "";
    const Text before = All(grid);
    Select(grid, {2, 1, 2, 1});
    InsertRow(grid);
    CHECK(All(grid) == "1.1\r\n\r\n2.1\r\n");
    UndoGrid(grid);
    CHECK(All(grid) == before);
    Select(grid, {1, 1, 1, 1});
    DeleteRow(grid);
    CHECK(All(grid) == "2.1\r\n\r\n\r\n");
}

TEST_CASE("a last row that holds text is not pushed out: Insert Row does nothing but say so")
{
    Grid grid = Numbered(3, 1);
    const Text before = All(grid);
    InsertRow(grid);
    CHECK(All(grid) == before);
    CHECK(grid.done.empty());
    REQUIRE(Notices.size() == 1);
    CHECK(Notices[0] == "The last row holds text, so no row was inserted.");
    grid.row = 3;
    DeleteRow(grid);
    CHECK(grid.Cell(3, 1) == "");
}

TEST_CASE("Undo shows the block that it brought back")
{
    Grid grid(5, 5);
    PlainClipboard = "1\t2\r\n3\t4\r\n";
    Select(grid, {2, 3, 2, 3});
    PasteSelected(grid);
    Select(grid, {5, 5, 5, 5});
    UndoGrid(grid);
    CHECK(grid.selected == Block{2, 3, 3, 4});
    CHECK(grid.row == 2);
    CHECK(grid.column == 3);
}
