// rowmoves.h -- where the rows of a grid have gone in a step, for those who name rows by their numbers.
#pragma once

#include "grid/controls.h"

// Returns where the row is now; 0 if it has gone. Rows behind the list go with its last one.
int MovedRow(const RowMoves& moves, int row);
// Returns the moves of the same step taken back: rows that had come go.
RowMoves Inverse(const RowMoves& moves);
// Return the moves of a grid of so many rows when a row has come there, and when it has gone from there.
RowMoves RowInserted(int rows, int at);
RowMoves RowDeleted(int rows, int at);

// Returns the moves by the rows of a table before and after whole rows were pasted over it. A row of the same depth and
// the same words is the same row; without any such row nothing has moved. Where cut is not 0, the rows from cut on,
// count of them, were cut out before and stand from row pastedAt on now.
using RowList = std::vector<std::vector<Text>>; // from index 1
RowMoves RowsPasted(const RowList& before, const RowList& after, int cut = 0, int pastedAt = 0, int count = 0);
