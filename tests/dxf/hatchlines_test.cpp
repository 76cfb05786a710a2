// hatchlines_test.cpp -- bitmaps as hatch lines: how many lines, and whether their picture is the pattern's.
#include "dxf/hatchlines.h"

#include "testing.h"

#include <cmath>

static Bitmap Blank(int width, int height)
{
    Bitmap tile;
    tile.Width = width;
    tile.Height = height;
    tile.Pixels.assign(size_t(width) * size_t(height), 0xFFFFFF);
    return tile;
}

static void Box(Bitmap& tile, int x1, int y1, int x2, int y2)
{
    for (int y = y1; y < y2; ++y)
        for (int x = x1; x < x2; ++x)
            tile.At((x + tile.Width) % tile.Width, (y + tile.Height) % tile.Height) = 0;
}

// Whether a place of the plane lies under the pen of the pattern, drawn with flat ends.
static bool Inked(const HatchPattern& pattern, double x, double y)
{
    for (const HatchLine& line : pattern.Lines) {
        const double c = std::cos(line.Angle * 3.14159265358979 / 180);
        const double s = std::sin(line.Angle * 3.14159265358979 / 180);
        const double along = (x - line.X) * c + (y - line.Y) * s, off = (y - line.Y) * c - (x - line.X) * s;
        const double offsetAlong = line.OffsetX * c + line.OffsetY * s, offsetOff = line.OffsetY * c - line.OffsetX * s;
        double period = 0;
        for (const double dash : line.Dashes)
            period += std::fabs(dash);
        for (double n = std::round(off / offsetOff) - 1; n <= std::round(off / offsetOff) + 1; ++n) {
            if (std::fabs(off - n * offsetOff) > pattern.PenWidth / 2)
                continue;
            if (line.Dashes.empty())
                return true;
            double place = std::fmod(along - n * offsetAlong, period);
            place = place < 0 ? place + period : place;
            for (const double dash : line.Dashes) {
                if (place < std::fabs(dash)) {
                    if (dash > 0)
                        return true;
                    break;
                }
                place -= std::fabs(dash);
            }
        }
    }
    return false;
}

// The parts of the tile's ink that the lines cover, and that they draw beside it, over four tiles each way.
static std::pair<double, double> Likeness(const Bitmap& tile, const HatchPattern& pattern)
{
    int ink = 0, covered = 0, beside = 0;
    for (int y = 0; y < 4 * tile.Height; ++y)
        for (int x = 0; x < 4 * tile.Width; ++x) {
            const bool black = tile.At(x % tile.Width, y % tile.Height) == 0;
            const bool drawn = Inked(pattern, x + 0.5, -y - 0.5);
            ink += black;
            covered += black && drawn;
            beside += !black && drawn;
        }
    return {double(covered) / ink, double(beside) / ink};
}

TEST_CASE("a tile without ink has no lines and a tile of ink is solid")
{
    Bitmap tile = Blank(20, 30);
    CHECK(HatchLines(tile).Lines.empty());
    CHECK_FALSE(HatchLines(tile).Solid);
    Box(tile, 0, 0, 20, 30);
    CHECK(HatchLines(tile).Lines.empty());
    CHECK(HatchLines(tile).Solid);
    CHECK(HatchLines(Bitmap()).Lines.empty());
}

TEST_CASE("a level line is one family as far apart as the tile is high, with its pen in the middle of the ink")
{
    Bitmap tile = Blank(150, 150);
    Box(tile, 0, 10, 150, 14);
    const HatchPattern pattern = HatchLines(tile);
    REQUIRE(pattern.Lines.size() == 1);
    CHECK(pattern.PenWidth == 4);
    CHECK(pattern.Lines[0].Angle == 0);
    CHECK(pattern.Lines[0].Y == -12);
    CHECK(std::fabs(pattern.Lines[0].OffsetY) == 150);
    CHECK(pattern.Lines[0].Dashes.empty());
}

TEST_CASE("a stripe broader than any pen is lines along it, not many short ones across")
{
    Bitmap tile = Blank(150, 150);
    for (int y = 0; y < 150; y += 30)
        Box(tile, 0, y, 150, y + 24);
    const HatchPattern pattern = HatchLines(tile);
    CHECK(pattern.Lines.size() <= 4);
    for (const HatchLine& line : pattern.Lines) {
        CHECK(line.Angle == 0);
        CHECK(line.Dashes.empty());
        CHECK(std::fabs(line.OffsetY) == 30);
    }
    const auto [covered, beside] = Likeness(tile, pattern);
    CHECK(covered > 0.9);
    CHECK(beside < 0.05);
}

TEST_CASE("a pattern that repeats within its tile costs what the repeated cell costs")
{
    Bitmap bricks = Blank(150, 150);
    for (int row = 0; row < 6; ++row) {
        Box(bricks, 0, row * 25, 150, row * 25 + 3);
        for (int column = 0; column < 3; ++column)
            Box(bricks, column * 50 + row % 2 * 25, row * 25, column * 50 + row % 2 * 25 + 3, row * 25 + 25);
    }
    const HatchPattern pattern = HatchLines(bricks);
    CHECK(pattern.Lines.size() == 2);
    const auto [covered, beside] = Likeness(bricks, pattern);
    CHECK(covered > 0.98);
    CHECK(beside < 0.02);
}

TEST_CASE("slanting lines of all eight directions are one family each, also over a tile that is not square")
{
    const std::pair<int, int> ways[] = {{1, 0}, {0, 1}, {1, 1}, {1, -1}, {2, 1}, {1, 2}, {2, -1}, {1, -2}};
    for (const auto& [dx, dy] : ways) {
        const auto way = std::to_string(dx) + " " + std::to_string(dy);
        CAPTURE(way);
        Bitmap tile = Blank(60, 120);
        // A thick line through the corner: the cells within 2 of one of its copies.
        for (int y = 0; y < 120; ++y)
            for (int x = 0; x < 60; ++x) {
                const int period = dx == 0 || dy == 0 ? (dx == 0 ? 60 : 120) : 60 * std::abs(dy);
                int off = (dx * y - dy * x) % period;
                off = off < 0 ? off + period : off;
                if (std::min(off, period - off) <= 2 * std::hypot(dx, dy))
                    tile.At(x, y) = 0;
            }
        const HatchPattern pattern = HatchLines(tile);
        REQUIRE(pattern.Lines.size() == 1);
        CHECK(pattern.Lines[0].Dashes.empty());
        const auto [covered, beside] = Likeness(tile, pattern);
        CHECK(covered > 0.8);
        CHECK(beside < 0.1);
    }
}

TEST_CASE("rings and dots keep their places and their blackness over many tiles")
{
    Bitmap tile = Blank(150, 150);
    const struct {
        int x, y, outer, inner;
    } rings[] = {{30, 30, 22, 18}, {100, 50, 15, 11}, {60, 110, 30, 26}, {140, 130, 4, 0}, {10, 75, 3, 0}};
    for (const auto& ring : rings)
        for (int y = -40; y <= 40; ++y)
            for (int x = -40; x <= 40; ++x)
                if (const double far = std::hypot(x, y); far <= ring.outer && far >= ring.inner)
                    Box(tile, ring.x + x, ring.y + y, ring.x + x + 1, ring.y + y + 1);
    const HatchPattern pattern = HatchLines(tile);
    const auto [covered, beside] = Likeness(tile, pattern);
    CHECK(covered > 0.75);
    CHECK(beside < 0.2);
    CHECK(pattern.Lines.size() < 60);
    for (const HatchLine& line : pattern.Lines)
        CHECK(line.Dashes.size() <= 6);
}

TEST_CASE("noise is held at as many lines as a drawing can bear")
{
    Bitmap tile = Blank(97, 101);
    uint32_t state = 1;
    for (uint32_t& pixel : tile.Pixels) {
        state = state * 1664525 + 1013904223;
        pixel = state >> 31 ? 0u : 0xFFFFFFu;
    }
    const HatchPattern pattern = HatchLines(tile);
    CHECK(pattern.Lines.size() > 10);
    CHECK(pattern.Lines.size() <= 80);
}

TEST_CASE("tiles of a few pixels are patterns too")
{
    for (int width = 1; width <= 5; ++width)
        for (int height = 1; height <= 5; ++height) {
            Bitmap tile = Blank(width, height);
            tile.At(0, 0) = 0;
            const HatchPattern pattern = HatchLines(tile);
            CHECK((pattern.Solid || !pattern.Lines.empty()));
            for (const HatchLine& line : pattern.Lines)
                CHECK((line.OffsetX != 0 || line.OffsetY != 0));
        }
}
