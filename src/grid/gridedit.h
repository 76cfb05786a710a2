// gridedit.h -- what the user does in a grid: typing, the clipboard, fills, rows in and out, and all of it taken back.
//
// No widget is known here. Each procedure works on the record, keeps what it changed for Undo as one step, and calls
// the grid's changed; what changed itself writes into cells belongs to the same step, and so does what becomes of the
// text that names the rows (RowNames): rows put in, taken out, and whole rows pasted take their names along.
#pragma once

#include "grid/controls.h"

// Puts the text into the cell; the same text again is no change.
void TypeCell(Grid& grid, int row, int column, const Text& text);
// Empties the cells of the selected block.
void ClearSelected(Grid& grid);
// Copies the selected block to the clipboard.
void CopySelected(const Grid& grid);
// Copies the selected block to the clipboard and empties its cells; the rows stay where they are.
void CutSelected(Grid& grid);
// Puts the clipboard into the cells from the block's first one on; one cell alone fills the whole block. What does not
// fit is left out, and said. The block becomes what was filled.
void PasteSelected(Grid& grid);
// Copies the block's first row into its others; a block of one row takes the row above it.
void FillDown(Grid& grid);
// Puts an empty row in front of the current one. Returns false, which is said, where that would push out a last row
// that holds text, or make a grid that grows larger than it may become.
bool InsertRow(Grid& grid);
// Takes the current row out; an empty one comes at the end.
void DeleteRow(Grid& grid);
// Do the same with columns, whose headings go with them; the grid grows to maxColumns.
bool InsertColumn(Grid& grid, int maxColumns);
void DeleteColumn(Grid& grid);
// Take the last step back, and do it again. They return false where there is none.
bool UndoGrid(Grid& grid);
bool RedoGrid(Grid& grid);
// Drops the steps of Undo and Redo, since another document is in the boxes.
void ForgetSteps(Grid& grid);

// Returns the text with blanks for its line ends: a cell or a box of one line is a line of a file.
Text OneLine(std::string_view cell);

// Returns a block as spreadsheets exchange it: tabs between cells, CR LF behind each row. A cell that holds a tab or a
// line end, or begins with a quote mark, is quoted.
Text TabSeparated(const Grid& grid, const Block& block);
// Returns the rows of such a text. A line end at its end starts no row; a line end inside a cell becomes a blank, since
// a cell is one line of a file.
std::vector<std::vector<Text>> CellsOfText(std::string_view text);
