// controls_test.cpp -- grids and text boxes as records.
#include "grid/controls.h"

#include "testing.h"

#include "session/failure.h"

TEST_CASE("a cell outside the grid is failure 380, on every side")
{
    Grid grid(3, 2);
    grid.Cell(3, 2) = "x";
    CHECK(grid.Cell(3, 2) == "x");
    for (const auto& [row, column] : {std::pair(0, 1), {4, 1}, {1, 0}, {1, 3}, {-1, 1}}) {
        int failure = 0;
        try {
            grid.Cell(row, column) = "y";
        } catch (...) {
            failure = FailureInHand();
        }
        CHECK(failure == InvalidValue);
    }
}

TEST_CASE("the last row with data is the last with a character in any cell, a blank too")
{
    Grid grid(5, 3);
    CHECK(grid.DataRowCount() == 0);
    grid.Cell(1, 1) = "a";
    CHECK(grid.DataRowCount() == 1);
    grid.Cell(3, 3) = "b";
    CHECK(grid.DataRowCount() == 3);
    grid.Cell(4, 2) = " ";
    CHECK(grid.DataRowCount() == 4);
    grid.Cell(5, 1) = "c";
    CHECK(grid.DataRowCount() == 5);
}

TEST_CASE("clearing rows leaves the others, clearing the grid leaves none")
{
    Grid grid(4, 2);
    for (int row = 1; row <= 4; ++row)
        grid.Cell(row, 2) = "x";
    grid.ClearRows(2, 3);
    CHECK(grid.Cell(1, 2) == "x");
    CHECK(grid.Cell(2, 2) == "");
    CHECK(grid.Cell(3, 2) == "");
    CHECK(grid.Cell(4, 2) == "x");
    grid.ClearRows(1, 0);
    CHECK(grid.Cell(1, 2) == "x");
    grid.Clear();
    CHECK(grid.DataRowCount() == 0);
}

TEST_CASE("a grid has a heading for each column")
{
    const Grid grid(2, 21);
    CHECK(grid.headings.size() == 22);
}

TEST_CASE("a text box wraps at its width, 255 twips of which are not for text")
{
    // Ten M's of 8 points are 17060 / 2048 x 8 / 72 = 0.92556 inches, and 0.92556 x 1550 + 255 = 1689.6 twips.
    Memo box{Text(10, 'M'), 1690, 1550};
    CHECK(box.DisplayLines().size() == 1);
    box.widthTwips = 1689;
    CHECK(box.DisplayLines() == std::vector<Text>{Text(9, 'M'), "M"});
    // Of 7 points 0.80986 inches, and 0.80986 x 1750 + 255 = 1672.3 twips.
    box.factor = 1750;
    box.widthTwips = 1673;
    CHECK(box.DisplayLines().size() == 1);
    box.widthTwips = 1672;
    CHECK(box.DisplayLines().size() == 2);
}
