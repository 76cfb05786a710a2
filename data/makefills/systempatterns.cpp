// systempatterns.cpp -- the fills that the drawings pick by themselves: well materials, sample boxes,
// cuttings bars, and a family of hatchings; file numbers 0 to 20, 500 and 501.
//
// A ring of a well is a tenth of an inch wide and a cuttings bar is not much taller, so the grain of those
// fills is fine: a strip of 40 pixels must show what it is.
#include "raster.h"

static void Blank(Tile&)
{
}

// Earth: groups of three strokes that lean to either side by turns, woven like a basket. The groups stand on
// a chess board turned by 45 degrees, 50 from corner to corner.
static void Backfill(Tile& tile)
{
    for (int row = 0; row < 6; ++row)
        for (int column = 0; column < 3; ++column) {
            const Point centre{50.0 * column + (row % 2 ? 25 : 0), 25.0 * row};
            const double rise = row % 2 ? -1 : 1;
            for (const double out : {-8.0, 0.0, 8.0}) {
                const Point middle = centre + Point{out, rise * out}, half{9, -rise * 9};
                Line(tile, middle - half, middle + half);
            }
        }
}

// Cement: chips of stone among fine specks.
static void Grout(Tile& tile)
{
    Random random(2);
    Spots chips;
    Scatter(chips, tile, random, 11, 10, 6);
    for (const Spot& chip : chips)
        Outline(tile, RegularPolygon(chip.at, 9, 3, random.upto(360)), Fine);
    Grains(tile, random, 40, 5, 5);
}

// Bentonite.
static void Seal(Tile& tile)
{
    Hatch(tile, 8, 1, 4, 1.5);
    Hatch(tile, 8, -1, 4, 1.5);
}

static void FilterPackFine(Tile& tile)
{
    Random random(4);
    Grains(tile, random, 150, 5, 3);
}
static void FilterPackCoarse(Tile& tile)
{
    Random random(5);
    Grains(tile, random, 56, 9, 5);
}

// Slots of a well screen.
static void Screen(Tile& tile)
{
    LevelRows(tile, 10);
}

static void PushedTube(Tile& tile)
{
    Hatch(tile, 5, 1, 10);
}
static void PushedTubeBack(Tile& tile)
{
    Hatch(tile, 5, -1, 10);
}
static void CoreBox(Tile& tile)
{
    LevelRows(tile, 5);
    UprightRows(tile, 5);
}

static void CuttingsFine(Tile& tile)
{
    for (const Point at : FineLattice())
        Dot(tile, at, 4.6);
}

static void CuttingsMedium(Tile& tile)
{
    for (const Point at : Staggered(5, 10))
        Dot(tile, at, 10);
}

static void CuttingsCoarse(Tile& tile)
{
    for (const Point at : CoarseLattice())
        Outline(tile, Ellipse(at, 9, 9));
}

static void HatchRight(Tile& tile)
{
    Hatch(tile, 5, 1);
}
static void HatchLeft(Tile& tile)
{
    Hatch(tile, 5, -1);
}
static void HatchLevel(Tile& tile)
{
    LevelRows(tile, 5);
}
static void HatchUpright(Tile& tile)
{
    UprightRows(tile, 5);
}

static void HatchCrossed(Tile& tile)
{
    Hatch(tile, 5, 1);
    Hatch(tile, 5, -1);
}

// An even grey: a dot in each pixel of the screen.
static void HalfTone(Tile& tile)
{
    for (int row = 0; row < ScreenSize; ++row)
        for (int column = 0; column < ScreenSize; ++column)
            Dot(tile, {(column + 0.5) * CellSize, (row + 0.5) * CellSize}, 4.6);
}

// A pump: black with white level lines. So that it stands out from the slots of the screen below it.
static void Pump(Tile& tile)
{
    for (int i = 0; i < 5; ++i)
        Box(tile, 0, i * 30 + 6, TileSize, i * 30 + 30);
}

static void Packer(Tile& tile)
{
    Box(tile, 0, 0, TileSize, TileSize);
}

// Bow springs on both sides of a rod.
static void Centralizer(Tile& tile)
{
    for (int i = 0; i < 3; ++i) {
        const double x = FitRow(i, 3);
        UprightAcross(tile, x);
        for (const double y : {37.5, 112.5})
            Outline(tile, Ellipse({x, y}, 15, 36));
    }
}

static const StockFill fills[] = {
    {0, "blank", Blank},
    {1, "backfill, earth", Backfill},
    {2, "cement grout", Grout},
    {3, "bentonite seal", Seal},
    {4, "fine filter pack", FilterPackFine},
    {5, "coarse filter pack", FilterPackCoarse},
    {6, "well screen", Screen},
    {7, "driven or pushed sample", PushedTube},
    {8, "heavy hatching, falling", PushedTubeBack},
    {9, "core or bag sample", CoreBox},
    {10, "fine cuttings", CuttingsFine},
    {11, "medium cuttings", CuttingsMedium},
    {12, "coarse cuttings", CuttingsCoarse},
    {13, "hatching, rising", HatchRight},
    {14, "hatching, falling", HatchLeft},
    {15, "hatching, level", HatchLevel},
    {16, "hatching, upright", HatchUpright},
    {17, "hatching, crossed", HatchCrossed},
    {18, "half tone", HalfTone},
    {19, "pump", Pump},
    {20, "blank", Blank},
    {500, "packer", Packer},
    {501, "centralizer", Centralizer},
};

std::span<const StockFill> SystemFills()
{
    return fills;
}
