// makefills.h -- the stock fills: which file numbers there are, and the tile of each.
//
// This is all that a test or another program needs. How strokes are laid on a tile is in raster.h.
#pragma once

#include <array>
#include <bitset>
#include <span>
#include <string>
#include <vector>

constexpr int TileSize = 150; // pixels across and down; a quarter inch on paper
constexpr int TilesPerInch = 4;
constexpr int PixelsPerInch = TileSize * TilesPerInch;
constexpr int ScreenSize = 25;                  // the same tile on the screen
constexpr int CellSize = TileSize / ScreenSize; // paper pixels across one screen pixel

// One tile: black strokes on white. It is a torus, so every position is valid: column 150 is column 0
// again, and -1 is column 149. Row 0 is the top.
class Tile
{
public:
    bool ink(int x, int y) const
    {
        return dots[index(x, y)];
    }
    void put(int x, int y, bool black)
    {
        dots[index(x, y)] = black;
    }
    bool operator==(const Tile&) const = default;

private:
    static int wrapped(int v)
    {
        return (v % TileSize + TileSize) % TileSize;
    }
    static std::size_t index(int x, int y)
    {
        return std::size_t(wrapped(y) * TileSize + wrapped(x));
    }
    std::bitset<std::size_t(TileSize* TileSize)> dots;
};

// A line of the table of fills. draw starts on a white tile.
struct StockFill {
    int number;
    const char* name;
    void (*draw)(Tile&);
};

// The three families: 0 to 20, 500 and 501; the soil codes; the rocks. Each in the order of its numbers.
std::span<const StockFill> SystemFills();
std::span<const StockFill> SoilFills();
std::span<const StockFill> RockFills();

// Every stock fill, in the order of the file numbers.
std::vector<StockFill> StockFills();

// The tile of one file number; a white one when there is no such stock fill.
Tile DrawFill(int number);

// "F0.BMP", "F01.BMP" to "F09.BMP", "F10.BMP" and on: the name that the drawing program looks for.
std::string FillFileName(int number);

// The screen form, row by row: how many of the 6 x 6 paper pixels under each screen pixel are black (0 to 36).
using ScreenForm = std::array<int, std::size_t(ScreenSize* ScreenSize)>;
ScreenForm ReduceToScreen(const Tile& tile);

// The tile as the bytes of a Windows bitmap: 1 bit a pixel, 600 pixels to the inch.
std::string TileAsBitmap(const Tile& tile);

// One grey picture of all fills: number, the tile 2 x 2, its screen form at 1:1 and three times enlarged.
std::string ContactSheet(std::span<const StockFill> fills);
