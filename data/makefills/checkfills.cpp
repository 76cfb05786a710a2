// checkfills.cpp -- checks of the stock fills and of the strokes they are made of; exit status 1 when one fails.
//
// It needs nothing but the sources of makefills, so that the fills can be checked before anything else is built.
#include "raster.h"

#include <algorithm>
#include <cmath>
#include <iostream>
#include <set>

static int failures = 0;

static void Check(bool holds, const std::string& words, int number = -1)
{
    if (holds)
        return;
    ++failures;
    std::cerr << "FAILED: " << words;
    if (number >= 0)
        std::cerr << ", file number " << number;
    std::cerr << '\n';
}

static int Black(const Tile& tile)
{
    int count = 0;
    for (int y = 0; y < TileSize; ++y)
        for (int x = 0; x < TileSize; ++x)
            count += tile.ink(x, y);
    return count;
}

// The tile seen from another corner.
static Tile Moved(const Tile& tile, int dx, int dy)
{
    Tile moved;
    for (int y = 0; y < TileSize; ++y)
        for (int x = 0; x < TileSize; ++x)
            moved.put(x + dx, y + dy, tile.ink(x, y));
    return moved;
}

static void CheckNumbers()
{
    std::vector<int> expected;
    for (int number = 0; number <= 85; ++number)
        expected.push_back(number);
    expected.insert(expected.end(), {500, 501});
    std::vector<int> numbers;
    for (const StockFill& fill : StockFills())
        numbers.push_back(fill.number);
    Check(numbers == expected, "the stock fills are 0 to 85, 500 and 501, each once");
    Check(Black(DrawFill(86)) == 0 && Black(DrawFill(-1)) == 0, "a number with no stock fill gives a white tile");
}

static void CheckNames()
{
    Check(FillFileName(0) == "F0.BMP", "number 0 has one digit");
    Check(FillFileName(1) == "F01.BMP" && FillFileName(9) == "F09.BMP", "numbers 1 to 9 have two digits");
    Check(FillFileName(10) == "F10.BMP" && FillFileName(501) == "F501.BMP", "numbers from 10 are as they are");
}

static void CheckBitmap()
{
    Tile tile;
    tile.put(0, 149, true); // bottom left: the first bit of the first row of the file
    tile.put(149, 0, true); // top right: bit 149 of the last row
    const std::string bytes = TileAsBitmap(tile);
    const auto number = [&](std::size_t at, int size) {
        unsigned long value = 0;
        for (int i = size - 1; i >= 0; --i)
            value = value << 8 | static_cast<unsigned char>(bytes[at + std::size_t(i)]);
        return value;
    };
    Check(bytes.size() == 62 + 150 * 20 && number(2, 4) == bytes.size(), "a tile is a bitmap of 3062 bytes");
    Check(bytes.substr(0, 2) == "BM" && number(10, 4) == 62 && number(14, 4) == 40, "the headers are those of Windows");
    Check(number(18, 4) == 150 && number(22, 4) == 150 && number(28, 2) == 1, "150 by 150 pixels of one bit");
    Check(number(38, 4) == 23622 && number(42, 4) == 23622, "600 pixels to the inch");
    Check(number(54, 4) == 0 && number(58, 4) == 0xffffff, "colour 0 is black and colour 1 is white");
    Check(number(62, 1) == 0x7f && number(62 + 149 * 20 + 18, 1) == 0xf8, "rows stand from the bottom up");
}

// Whatever is drawn at the edge is the same as what is drawn in the middle and moved there.
template <class Draw>
static void CheckWraps(const char* name, Draw draw)
{
    Tile middle;
    draw(middle, Point{75, 75});
    for (const auto& [dx, dy] : {std::pair{75, 0}, {-75, 0}, {0, 75}, {74, -70}, {225, -375}}) {
        Tile edge;
        draw(edge, Point{75.0 + dx, 75.0 + dy});
        Check(Black(middle) > 0 && edge == Moved(middle, dx, dy), std::string(name) + " goes on at the other side");
    }
}

static void CheckStrokes()
{
    CheckWraps("a line", [](Tile& tile, Point at) { Line(tile, at - Point{30, 11}, at + Point{30, 17}); });
    CheckWraps("a dot", [](Tile& tile, Point at) { Dot(tile, at, 13); });
    CheckWraps("a level stroke", [](Tile& tile, Point at) { Level(tile, at.x, at.y, 40); });
    CheckWraps("an upright stroke", [](Tile& tile, Point at) { Upright(tile, at.x, at.y, 40); });
    CheckWraps("an outline", [](Tile& tile, Point at) { Outline(tile, Ellipse(at, 20, 12, 30)); });
    CheckWraps("an area", [](Tile& tile, Point at) { Polygon(tile, RegularPolygon(at, 20, 5, 0)); });
    CheckWraps("a white inside", [](Tile& tile, Point at) {
        Dot(tile, at, 40);
        Opaque(tile, RegularPolygon(at, 17.3, 5, 7));
    });
    for (const int count : {3, 5, 10})
        for (const int rise : {1, -1}) {
            Tile tile;
            Hatch(tile, count, rise);
            Check(tile == Moved(tile, 1, -rise), "hatching goes on without a break");
            Check(tile == Moved(tile, TileSize / count, 0), "hatching is even, across the seam too");
        }
    for (const int count : {3, 4, 5, 6, 8, 10})
        for (int i = 0; i < count; ++i) {
            const double next = i + 1 < count ? FitRow(i + 1, count) : FitRow(0, count) + TileSize;
            Check(std::abs(next - FitRow(i, count) - double(TileSize) / count) < 4, "fitted rows are nearly even");
        }
    for (double place = 0; place < 30; place += 0.37) {
        const double fitted = Fit(place), cell = std::floor(place / CellSize) * CellSize;
        Check(fitted - 2 >= cell && fitted + 2 <= cell + CellSize && std::abs(fitted - place) <= 2,
              "a fitted stroke lies in the screen pixel of its place");
    }
}

// How often ink begins or ends between each column (or row) and the one before it; slot 0 is the seam.
static std::vector<int> Changes(const Tile& tile, bool columns)
{
    std::vector<int> changes(TileSize);
    for (int i = 0; i < TileSize; ++i)
        for (int k = 0; k < TileSize; ++k)
            changes[std::size_t(i)] +=
                columns ? tile.ink(i - 1, k) != tile.ink(i, k) : tile.ink(k, i - 1) != tile.ink(k, i);
    return changes;
}

// The part of the ink that shapes of 3 by 3 pixels, a square or a plus, can cover from inside.
static double SolidPart(const Tile& tile)
{
    Tile covered;
    for (int y = 0; y < TileSize; ++y)
        for (int x = 0; x < TileSize; ++x)
            for (const int shape : {0777, 0272}) {
                const auto each = [&](auto action) {
                    bool all = true;
                    for (int i = 0; i < 9; ++i)
                        all = (!(shape >> i & 1) || action(x + i % 3, y + i / 3)) && all;
                    return all;
                };
                if (each([&](int column, int row) { return tile.ink(column, row); }))
                    each([&](int column, int row) { return covered.put(column, row, true), true; });
            }
    return double(Black(covered)) / Black(tile);
}

static void CheckTiles()
{
    const std::set<int> blank{0, 20}, solid{39, 500};
    for (const StockFill& fill : StockFills()) {
        const Tile tile = DrawFill(fill.number);
        Check(tile == DrawFill(fill.number), "a fill is the same each time", fill.number);
        const double part = double(Black(tile)) / (TileSize * TileSize);
        if (blank.contains(fill.number) || solid.contains(fill.number)) {
            Check(part == (solid.contains(fill.number) ? 1 : 0), "blank is white; coal and packers are black",
                  fill.number);
            continue;
        }
        Check(part > 0.04 && part < 0.82, "a fill is neither empty nor solid", fill.number);
        Check(SolidPart(tile) > 0.97, "strokes are 3 pixels wide at least", fill.number);
        for (const bool columns : {true, false}) {
            const std::vector<int> changes = Changes(tile, columns);
            Check(changes[0] <= *std::max_element(changes.begin() + 1, changes.end()), "the seam does not show",
                  fill.number);
        }
    }
}

// The least mean difference of two screen forms, in parts of 36, however the one is moved on the other: two
// fills that are one pattern with another start are no different to the eye.
static double ScreenDifference(const ScreenForm& a, const ScreenForm& b)
{
    int least = 36 * ScreenSize * ScreenSize;
    for (int dy = 0; dy < ScreenSize; ++dy)
        for (int dx = 0; dx < ScreenSize; ++dx) {
            int sum = 0;
            for (int y = 0; y < ScreenSize; ++y)
                for (int x = 0; x < ScreenSize; ++x) {
                    const int other = (y + dy) % ScreenSize * ScreenSize + (x + dx) % ScreenSize;
                    sum += std::abs(a[std::size_t(y * ScreenSize + x)] - b[std::size_t(other)]);
                }
            least = std::min(least, sum);
        }
    return double(least) / (ScreenSize * ScreenSize);
}

static void CheckSoilsDiffer()
{
    double least = 36;
    for (int a = 21; a <= 34; ++a)
        for (int b = a + 1; b <= 34; ++b) {
            const double apart = ScreenDifference(ReduceToScreen(DrawFill(a)), ReduceToScreen(DrawFill(b)));
            least = std::min(least, apart);
            Check(apart > 3.5, "soils differ on the screen: " + FillFileName(a) + " and " + FillFileName(b));
        }
    std::cout << "least difference of two soils on the screen: " << least << " of 36\n";
}

int main()
{
    CheckNumbers();
    CheckNames();
    CheckBitmap();
    CheckStrokes();
    CheckTiles();
    CheckSoilsDiffer();
    std::cout << (failures == 0 ? "all checks passed\n" : "some checks failed\n");
    return failures == 0 ? 0 : 1;
}
