// controls.h -- the boxes of the windows as plain records: grids and text boxes. The widget only shows them.
#pragma once

#include "session/text.h"

#include <vector>

// A grid of text cells, rows and columns from 1. A cell outside is failure 380.
struct Grid {
    Grid(int rowCount, int columnCount);
    Text& Cell(int row, int column);
    const Text& Cell(int row, int column) const;
    int DataRowCount() const; // the last row with a character in any cell, blanks included; 0 if none
    void ClearRows(int first, int last);
    void Clear();

    int rows, columns;
    std::vector<Text> cells;
    std::vector<Text> headings;    // of the columns, from index 1
    std::vector<Text> rowHeadings; // from index 1; short or empty: numbers
    Text title;
    Text fontName; // of the cells; "": the window's own
};

// A multi-line text box with word wrap. Its text has CR LF line ends; widthTwips decides where lines break.
struct Memo {
    Text text;
    int widthTwips = 0;
    int factor = 1550;                      // twips of room to an inch of text: 1550 for 8 point, 1750 for 7 point
    Text fontName = "Arial";                // what it is drawn with; where lines break does not depend on it
    int Points() const;                     // the size that factor stands for
    int64_t Room() const;                   // of a line, in the line breaker's units
    std::vector<Text> DisplayLines() const; // every character but the line ends stands in one of them
};
