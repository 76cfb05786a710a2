// layoutedit.h -- what the layout editor does: twelve tiles, one for each title block, on the picture of a page. No
// widget is known here. Points are twips of the picture, a tile's its left top corner.
#pragma once

#include "session/slots.h"
#include "session/text.h"

#include <vector>

namespace frmLayout
{
constexpr int PictureWidth = 9300, PictureHeight = 5340; // of the picture
constexpr int TileWidth = 1065, TileHeight = 345;

struct TilePoint {
    int x = 0, y = 0;
    friend bool operator==(const TilePoint&, const TilePoint&) = default;
};
extern Slots<TilePoint, 12> Tile; // by title block code
extern Text Title;

// Return the columns and the rows of the places of an orientation: 0 portrait, 1 landscape, any other tabloid.
const std::vector<int>& ColumnsOf(int orientation);
const std::vector<int>& RowsOf(int orientation);
const char* TileName(int code);

void Load(); // Begins as New does.
void mnuNew();
void mnuOpen();
// Saves to the file in DialogResult, so any chooser that is shown in between changes where Save writes.
void mnuSave();
void mnuSaveAs();
void ChooseOrientation(int orientation);
// Lets a tile go at a point: near a place it snaps there and takes it in LayoutData, elsewhere it leaves the layout.
void DropTile(int code, int x, int y);
// Moves a tile to the neighbouring place, for the keyboard. From beside the page the step to the right enters the first
// column; the step to the left out of the first column leaves the layout.
void StepTile(int code, int right, int down);
void TakeOutTile(int code); // Puts it back beside the page, out of the layout.
bool InLayout(int code);
void mnuExit(); // Looks up the log tool's list of layouts anew, behind the closing: it may have a new one.
} // namespace frmLayout
