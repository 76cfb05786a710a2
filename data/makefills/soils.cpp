// soils.cpp -- the fills of the soil codes, file numbers 21 to 34.
//
// One language for all: rings are gravel, dots are sand, upright lines are silt, slanting lines are clay. The
// second word of a code comes behind the first: in GC the rings lie on the slanting lines and hide them.
// Well graded is a mixture of sizes, poorly graded is one size.
#include "raster.h"

static void GravelWellGraded(Tile& tile)
{
    Random random(4);
    Spots spots;
    Scatter(spots, tile, random, 3, 24, 4);
    Scatter(spots, tile, random, 6, 14, 4);
    Scatter(spots, tile, random, 14, 8, 4);
    Stones(tile, random, spots);
    Grains(tile, random, 26, 7, 2.5, spots);
}

static void GravelPoorlyGraded(Tile& tile)
{
    Random random(22);
    Spots spots;
    for (const Point at : Staggered(4, 4))
        spots.push_back({at + Point{random.between(-2, 2), random.between(-2, 2)}, 15});
    Stones(tile, random, spots);
}

static Spots GravelOnLines(Random& random)
{
    Spots spots;
    const Tile white;
    Scatter(spots, white, random, 3, 21, 8);
    Scatter(spots, white, random, 5, 14, 8);
    return spots;
}

static void GravelSilty(Tile& tile)
{
    Random random(23);
    UprightRows(tile, 5);
    Stones(tile, random, GravelOnLines(random));
}

static void GravelClayey(Tile& tile)
{
    Random random(24);
    Hatch(tile, 5, 1);
    Stones(tile, random, GravelOnLines(random));
}

static void SandWellGraded(Tile& tile)
{
    Random random(1);
    Grains(tile, random, 12, 13, 6);
    Grains(tile, random, 22, 9, 4);
    Grains(tile, random, 60, 5, 3);
}

static void SandPoorlyGraded(Tile& tile)
{
    Random random(26);
    Grains(tile, random, 64, 7, 5);
}

static void SandSilty(Tile& tile)
{
    Random random(27);
    UprightRows(tile, 3);
    Grains(tile, random, 44, 7, 4);
}

static void SandClayey(Tile& tile)
{
    Random random(28);
    Hatch(tile, 3, 1);
    Grains(tile, random, 44, 7, 4);
}

static void Silt(Tile& tile)
{
    UprightRows(tile, 5);
}

// Elastic silt and fat clay are drawn as silt and clay with twice the lines.
static void SiltElastic(Tile& tile)
{
    UprightRows(tile, 10);
}

static void Clay(Tile& tile)
{
    Hatch(tile, 5, 1);
}

static void ClayFat(Tile& tile)
{
    Hatch(tile, 10, 1, Plain, 1.5);
}

// A tuft of reed on a short piece of ground, 36 wide and 24 tall.
static void Tuft(Tile& tile, Point at)
{
    const Point foot = at + Point{0, 9};
    Level(tile, foot.x, foot.y, 36);
    for (const int side : {-1, 0, 1})
        Line(tile, foot + Point{side * 7.0, 0}, foot + Point{side * 15.0, side ? -16.0 : -22.0});
}

static void Peat(Tile& tile)
{
    for (const Point at : Staggered(2, 4))
        Tuft(tile, at);
    for (const Point at : Staggered(2, 4))
        Level(tile, at.x + 37.5, at.y + 9, 18);
}

static void MadeGround(Tile& tile)
{
    Hatch(tile, 3, 1);
    Hatch(tile, 3, -1);
    for (int row = 0; row < 6; ++row) // a speck in each diamond
        for (int column = 0; column < 3; ++column) {
            const double x = 50 * column + (row % 2 ? 0 : 25), y = 25 * row;
            Box(tile, x - 5, y - 5, x + 5, y + 5);
        }
}

static const StockFill fills[] = {
    {21, "GW, well graded gravels", GravelWellGraded},
    {22, "GP, poorly graded gravels", GravelPoorlyGraded},
    {23, "GM, silty gravels", GravelSilty},
    {24, "GC, clayey gravels", GravelClayey},
    {25, "SW, well graded sands", SandWellGraded},
    {26, "SP, poorly graded sands", SandPoorlyGraded},
    {27, "SM, silty sands", SandSilty},
    {28, "SC, clayey sands", SandClayey},
    {29, "ML, inorganic silts", Silt},
    {30, "MH, elastic silts", SiltElastic},
    {31, "CL, inorganic clays", Clay},
    {32, "CH, fat clays", ClayFat},
    {33, "PT, peat or organic soils", Peat},
    {34, "AR, artificial materials or fill", MadeGround},
};

std::span<const StockFill> SoilFills()
{
    return fills;
}
