// gridedit.h -- what the user does in a grid: typing, the clipboard, fills, rows in and out, and all of it taken back.
//
// No widget is known here. Each procedure works on the record, keeps what it changed for Undo as one step, and calls
// the grid's changed; what changed itself writes into cells belongs to the same step, and so does what becomes of the
// text that names the rows (RowNames): rows put in, taken out, and whole rows pasted take their names along.
#pragma once

#include "grid/controls.h"

void TypeCell(Grid& grid, int row, int column, const Text& text); // the same text again is no change
void ClearSelected(Grid& grid);
void CopySelected(const Grid& grid); // to the clipboard
void CutSelected(Grid& grid);        // rows stay where they are, blank
// The clipboard from the block's first cell on; one cell alone fills the whole block. What does not fit is left out,
// and said. The block becomes what was filled.
void PasteSelected(Grid& grid);
void FillDown(Grid& grid); // the block's first row into the others; a block of one row takes the row above it
// A row in front of the current one. A last row that holds text is not pushed out, and a grid that grows has a size of
// its own: false then, and it is said.
bool InsertRow(Grid& grid);
void DeleteRow(Grid& grid); // the current row goes, an empty one comes at the end
// The same with columns, whose headings go with them; the grid grows to maxColumns.
bool InsertColumn(Grid& grid, int maxColumns);
void DeleteColumn(Grid& grid);
bool UndoGrid(Grid& grid); // false: there is nothing to take back
bool RedoGrid(Grid& grid);
void ForgetSteps(Grid& grid); // another boring is in the boxes

// A cell or a box of one line is a line of a file: blanks for its line ends.
Text OneLine(std::string_view cell);

// A block as spreadsheets exchange it: tabs between cells, CR LF behind each row. A cell that holds a tab or a line
// end, or begins with a quote mark, is quoted.
Text TabSeparated(const Grid& grid, const Block& block);
// The rows of such a text. A line end at its end starts no row; a line end inside a cell becomes a blank, since a cell
// is one line of a file.
std::vector<std::vector<Text>> CellsOfText(std::string_view text);
