// layoutedit.cpp -- the commands of the layout editor, and where its tiles stand.
//
//     A place's number runs down each column, and the columns from left to right:
//
//         portrait  1 4 7      landscape  1 3 5 7      tabloid  1 3 5 7 9 11
//                   2 5 8                 2 4 6 8               2 4 6 8 10 12
//                   3 6 9 (below the log)
#include "report/layoutedit.h"

#include "boring/opensave.h"
#include "report/layout.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/savename.h"
#include "session/session.h"
#include "session/shared.h"

#include <cstdlib>

Slots<frmLayout::TilePoint, 12> frmLayout::Tile;
Text frmLayout::Title;

static const SharedRecord shared[] = {
    {"frmLayout::Tile", Kind::Window, frmLayout::Tile},
    {"frmLayout::Title", Kind::Window, frmLayout::Title},
};

static constexpr int tiles = 12;
static constexpr int snapX = 500, snapY = 200;

const std::vector<int>& frmLayout::ColumnsOf(int orientation)
{
    static const std::vector<int> portrait{5400, 6465, 7530}, landscape{4680, 5745, 6810, 7875},
        tabloid{2520, 3585, 4650, 5715, 6780, 7845};
    return orientation == 0 ? portrait : orientation == 1 ? landscape : tabloid;
}

const std::vector<int>& frmLayout::RowsOf(int orientation)
{
    static const std::vector<int> portrait{1080, 1425, 4530}, landscape{2160, 2505}, tabloid{2400, 2745};
    return orientation == 0 ? portrait : orientation == 1 ? landscape : tabloid;
}

const char* frmLayout::TileName(int code)
{
    static const char* const names[] = {"Logo",           "Client/Project", "Log Title, wide", "Boring Info, wide",
                                        "Boring Info 1",  "Boring Info 2",  "Boring Info 3",   "Project Map",
                                        "Title and Info", "Notes, narrow",  "Notes, wide",     "Log Title"};
    return code >= 1 && code <= tiles ? names[code - 1] : "";
}

// Beside the page, too far from every column to snap to it.
static frmLayout::TilePoint Beside(int code)
{
    return {300, 210 + (code - 1) * 410};
}

static void PutAllBeside()
{
    for (int code = 1; code <= tiles; ++code)
        frmLayout::Tile[code] = Beside(code);
}

// The tiles that have a position, to that position.
static void PlaceTiles()
{
    int position = 0;
    for (const int x : frmLayout::ColumnsOf(LayoutData.Orientation))
        for (const int y : frmLayout::RowsOf(LayoutData.Orientation)) {
            const int code = LayoutData.Blocks[++position];
            if (code >= 1 && code <= tiles)
                frmLayout::Tile[code] = {x, y};
        }
}

// The number of the place at exactly this point, 0 for none.
static int PositionAt(frmLayout::TilePoint point)
{
    int position = 0;
    for (const int x : frmLayout::ColumnsOf(LayoutData.Orientation))
        for (const int y : frmLayout::RowsOf(LayoutData.Orientation)) {
            ++position;
            if (point == frmLayout::TilePoint{x, y})
                return position;
        }
    return 0;
}

void frmLayout::Load()
{
    mnuNew();
}

void frmLayout::mnuNew()
{
    LayoutData = LayoutRecord();
    DialogResult = "";
    Title = "Layout Editor";
    PutAllBeside();
}

void frmLayout::mnuOpen()
{
    DialogMode = 12;
    Platform.ShowChooser();
    if (!FileExists(DialogResult))
        return;
    Title = "Layout Editor: " + DialogResult;
    PutAllBeside();
    try {
        ReadLayoutFile(DialogResult);
    } catch (...) {
        PlaceTiles(); // the picture is what a save would write
        throw;
    }
    PlaceTiles();
}

void frmLayout::mnuSave()
{
    if (DialogResult.empty())
        mnuSaveAs();
    else
        SaveLayoutFile();
}

void frmLayout::mnuSaveAs()
{
    DialogMode = 13;
    Platform.ShowChooser();
    if (DialogResult.empty())
        return;
    DialogResult = WithEnding(DialogResult, ".LAY");
    // Kept: at No the title changes all the same.
    Title = "Layout Editor: " + DialogResult;
    if (!MayReplace(DialogResult))
        return;
    SaveLayoutFile();
}

// The codes stay in their positions, also those that the new page has no place for: they stay in the file.
void frmLayout::ChooseOrientation(int orientation)
{
    if (orientation == LayoutData.Orientation)
        return;
    // A tile on a place of the old page that has none on the new one goes beside the page.
    for (int code = 1; code <= tiles; ++code)
        if (PositionAt(Tile[code]))
            Tile[code] = Beside(code);
    LayoutData.Orientation = int16_t(orientation);
    FileChanged = 1;
    PlaceTiles();
}

void frmLayout::DropTile(int code, int x, int y)
{
    // The tile moves with each snap, and the next row is measured from there.
    for (const int column : ColumnsOf(LayoutData.Orientation))
        if (std::abs(x - column) < snapX)
            x = column;
    for (const int row : RowsOf(LayoutData.Orientation))
        if (std::abs(y - row) < snapY)
            y = row;
    Tile[code] = {x, y};
    for (int position = 1; position <= 12; ++position)
        if (LayoutData.Blocks[position] == code)
            LayoutData.Blocks[position] = 0;
    // Kept: a code that was there is replaced, and its tile stays on the picture under this one.
    if (const int position = PositionAt({x, y}))
        LayoutData.Blocks[position] = int16_t(code);
}

bool frmLayout::InLayout(int code)
{
    const int position = PositionAt(Tile[code]);
    return position != 0 && LayoutData.Blocks[position] == code;
}

void frmLayout::TakeOutTile(int code)
{
    DropTile(code, Beside(code).x, Beside(code).y);
    Tile[code] = Beside(code); // the drop has drawn it to the height of a row
}

void frmLayout::StepTile(int code, int right, int down)
{
    const std::vector<int>& columns = ColumnsOf(LayoutData.Orientation);
    const std::vector<int>& rows = RowsOf(LayoutData.Orientation);
    const int rowCount = int(rows.size());
    const TilePoint from = Tile[code];
    const int position = PositionAt(from);
    if (position == 0) {
        // From beside the page: into the first column, at the nearest row.
        if (right < 1)
            return;
        int nearest = rows[0];
        for (const int row : rows)
            if (std::abs(from.y - row) < std::abs(from.y - nearest))
                nearest = row;
        DropTile(code, columns[0], nearest);
        return;
    }
    int column = (position - 1) / rowCount + right, row = (position - 1) % rowCount + down;
    // Over the places of others: on each of them the tile would put out the one that is there.
    const auto taken = [&] {
        return column >= 0 && column < int(columns.size()) && row >= 0 && row < rowCount &&
               LayoutData.Blocks[column * rowCount + row + 1] > 0;
    };
    while (taken()) {
        column += right;
        row += down;
    }
    if (column < 0)
        TakeOutTile(code);
    else if (column < int(columns.size()) && row >= 0 && row < rowCount)
        DropTile(code, columns[size_t(column)], rows[size_t(row)]);
}

void frmLayout::mnuExit()
{
    getfilelist(1);
}
