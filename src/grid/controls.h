// controls.h -- the boxes of the windows as plain records: grids and text boxes. The widget only shows them.
#pragma once

#include "session/text.h"

#include <vector>

// Cells of a grid, both corners included, rows and columns from 1.
struct Block {
    int top = 1, left = 1, bottom = 1, right = 1;
    friend bool operator==(const Block&, const Block&) = default;
};

// A cell that the user has changed, for the way back and forth.
struct CellChange {
    int row, column;
    Text before, after;
};

// How large a grid is, and the headings of its columns.
struct GridShape {
    int rows, columns;
    std::vector<Text> headings;
    friend bool operator==(const GridShape&, const GridShape&) = default;
};

// Where the rows of a grid have gone: row n, from index 1, is row [n] now, and 0 says that it has gone. An empty list
// says that none has moved.
using RowMoves = std::vector<int>;

// A text elsewhere that names the rows of a grid by their numbers, and goes with them.
struct RowNames {
    Text (*text)();
    void (*put)(const Text& text);
    Text (*move)(const RowMoves& moves); // renumbers the text, and returns in words what it has done; "" for nothing
    Text (*cut)(int top, int bottom);    // returns in words what becomes of the names of rows that were cut out
};

// Whole rows that were cut out and not pasted yet: the first one, and what the clipboard has of them.
struct CutRows {
    int top = 0; // 0: none
    Text text;
};

// What one Undo takes back. A cell that one of the two shapes lacks counts as empty there.
struct GridStep {
    std::vector<CellChange> cells;
    GridShape before, after;
    std::vector<Text> besideBefore, besideAfter; // empty where no row has come or gone
    RowMoves moves;                              // with the text that names the rows, and what was said of it
    Text namesBefore, namesAfter, words;
    CutRows cutBefore, cutAfter;
};

// A grid of text cells, rows and columns from 1. A cell outside is failure 380.
struct Grid {
    Grid(int rowCount, int columnCount);
    Text& Cell(int row, int column);
    const Text& Cell(int row, int column) const;
    int DataRowCount() const; // returns the last row with a character in any cell, blanks included; 0 if none
    void ClearRows(int first, int last);
    void Clear();
    void Resize(int rowCount, int columnCount); // cells and headings that both sizes have stay
    GridShape Shape() const;

    int rows, columns;
    // Rows put in make a grid grow up to maxRows, and rows taken out make it shrink down to minRows. 0: it has its
    // rows, and no more and no fewer.
    int minRows = 0, maxRows = 0;
    // Cells that go with the rows and that no column shows, so many to a row; kept elsewhere, row by row. May be null.
    int besideWidth = 0;
    std::vector<Text> (*beside)() = nullptr;
    void (*putBeside)(const std::vector<Text>&) = nullptr;
    std::vector<Text> cells;
    std::vector<Text> headings;    // of the columns, from index 1
    std::vector<Text> rowHeadings; // from index 1; short or empty: numbers
    Text title;
    std::vector<std::vector<Text>> choices; // of the columns, from index 1: what a cell is picked from; none: any text
    std::vector<std::vector<Text>> offered; // likewise, but any text may be typed as well
    int locked = 0; // so many first columns are there to read: nothing that the user does changes them
    Text fontName;  // of the cells; "": the window's own
    // What the user does in it (grid/gridedit.h).
    int row = 1, column = 1;     // the current cell
    Block selected;              // the block that Cut, Copy, Paste and Delete act on; the current cell is in it
    void (*changed)() = nullptr; // called after every change by the user; it may write cells of its own
    std::vector<GridStep> done, undone;
    const RowNames* names = nullptr; // may be null
    CutRows cut;
};

// A multi-line text box with word wrap. Its text has CR LF line ends; widthTwips decides where lines break.
struct Memo {
    Text text;
    int widthTwips = 0;
    int factor = 1550;                      // twips of room to an inch of text: 1550 for 8 point, 1750 for 7 point
    Text fontName = "Arial";                // what it is drawn with; where lines break does not depend on it
    bool edited = false;                    // a command has changed the text: its widget shows that as a step of Undo
    int Points() const;                     // returns the size that factor stands for
    int64_t Room() const;                   // returns the room of a line, in the line breaker's units
    std::vector<Text> DisplayLines() const; // returns the lines shown, which hold all characters but the line ends
};
