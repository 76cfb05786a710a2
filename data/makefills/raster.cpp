// raster.cpp -- strokes and shapes on a tile, and even scatters of points.
#include "raster.h"

#include <algorithm>
#include <cmath>

// Sets the pixels of a box whose centres are inside a shape.
template <class Inside>
static void Paint(Tile& tile, double left, double top, double right, double bottom, bool black, Inside inside)
{
    const int firstX = int(std::floor(left)), lastX = int(std::ceil(right));
    const int firstY = int(std::floor(top)), lastY = int(std::ceil(bottom));
    for (int y = firstY; y < lastY; ++y)
        for (int x = firstX; x < lastX; ++x)
            if (inside(Point{x + 0.5, y + 0.5}))
                tile.put(x, y, black);
}

static double Product(Point a, Point b)
{
    return a.x * b.x + a.y * b.y;
}
static double Length(Point a)
{
    return std::sqrt(Product(a, a));
}

Point Polar(double radius, double degrees)
{
    const double angle = degrees * Pi / 180;
    return {radius * std::cos(angle), -radius * std::sin(angle)};
}

Point Across(Point a, Point b)
{
    const auto shortest = [](double d) { return d - TileSize * std::floor(d / TileSize + 0.5); };
    return {shortest(b.x - a.x), shortest(b.y - a.y)};
}

double Random::upto(double limit)
{
    state ^= state << 13;
    state ^= state >> 17;
    state ^= state << 5;
    return limit * (state >> 8) / double(1 << 24);
}

double Fit(double centre, double weight)
{
    const double edge = std::floor(centre - weight / 2 + 0.5);
    if (weight > CellSize)
        return edge + weight / 2;
    const double cell = std::floor(centre / CellSize) * CellSize;
    return std::clamp(edge, cell, cell + CellSize - weight) + weight / 2;
}

double FitRow(int i, int count, double weight)
{
    return Fit(4 + double(TileSize) * i / count, weight);
}

void Line(Tile& tile, Point from, Point to, double weight)
{
    const double half = weight / 2;
    const Point way = to - from;
    const double square = Product(way, way);
    const auto inside = [&](Point p) {
        const double along = square > 0 ? std::clamp(Product(p - from, way) / square, 0.0, 1.0) : 0;
        return Length(p - from - way * along) < half;
    };
    Paint(tile, std::min(from.x, to.x) - half, std::min(from.y, to.y) - half, std::max(from.x, to.x) + half,
          std::max(from.y, to.y) + half, true, inside);
}

void Path(Tile& tile, const Points& points, double weight)
{
    for (std::size_t i = 1; i < points.size(); ++i)
        Line(tile, points[i - 1], points[i], weight);
}

void Outline(Tile& tile, const Points& points, double weight)
{
    Path(tile, points, weight);
    Line(tile, points.back(), points.front(), weight);
}

void Polygon(Tile& tile, const Points& points, bool black)
{
    const auto [left, right] =
        std::minmax_element(points.begin(), points.end(), [](Point a, Point b) { return a.x < b.x; });
    const auto [top, bottom] =
        std::minmax_element(points.begin(), points.end(), [](Point a, Point b) { return a.y < b.y; });
    const auto inside = [&](Point p) {
        bool odd = false;
        for (std::size_t i = 0, j = points.size() - 1; i < points.size(); j = i++) {
            const Point a = points[i], b = points[j];
            if ((a.y > p.y) != (b.y > p.y) && p.x < a.x + (b.x - a.x) * (p.y - a.y) / (b.y - a.y))
                odd = !odd;
        }
        return odd;
    };
    Paint(tile, left->x, top->y, right->x, bottom->y, black, inside);
}

void Box(Tile& tile, double left, double top, double right, double bottom, bool black)
{
    const auto inside = [&](Point p) { return p.x > left && p.x < right && p.y > top && p.y < bottom; };
    Paint(tile, left, top, right, bottom, black, inside);
}

void Opaque(Tile& tile, const Points& points, double weight)
{
    Polygon(tile, points, false);
    Outline(tile, points, weight);
}

void Level(Tile& tile, double x, double y, double length, double weight)
{
    Box(tile, x - length / 2, y - weight / 2, x + length / 2, y + weight / 2);
}

void Upright(Tile& tile, double x, double y, double length, double weight)
{
    Box(tile, x - weight / 2, y - length / 2, x + weight / 2, y + length / 2);
}

void LevelAcross(Tile& tile, double y, double weight)
{
    Level(tile, TileSize / 2, y, TileSize, weight);
}
void UprightAcross(Tile& tile, double x, double weight)
{
    Upright(tile, x, TileSize / 2, TileSize, weight);
}

void LevelRows(Tile& tile, int count, double weight)
{
    for (int i = 0; i < count; ++i)
        LevelAcross(tile, FitRow(i, count, weight), weight);
}

void UprightRows(Tile& tile, int count, double weight)
{
    for (int i = 0; i < count; ++i)
        UprightAcross(tile, FitRow(i, count, weight), weight);
}

void DashRow(Tile& tile, double x, double y, double length, double period, double weight)
{
    for (double along = 0; along < TileSize; along += period)
        Level(tile, x + along, y, length, weight);
}

void Hatch(Tile& tile, int count, int rise, double weight, double shift)
{
    // Two ends beyond the tile: the round caps fall on the line's own next round.
    for (int i = 0; i < count; ++i) {
        const double x = shift + double(TileSize) * i / count;
        Line(tile, {x, 0}, {x + TileSize, -double(rise) * TileSize}, weight);
    }
}

Points Ellipse(Point centre, double rx, double ry, double degrees)
{
    const Point along = Polar(1, degrees), across = Polar(1, degrees + 90);
    const int corners = std::max(12, int(rx + ry) * 2);
    Points points;
    for (int i = 0; i < corners; ++i) {
        const double angle = 2 * Pi * i / corners;
        points.push_back(centre + along * (rx * std::cos(angle)) + across * (ry * std::sin(angle)));
    }
    return points;
}

Points Arc(Point centre, double rx, double ry, double fromDegrees, double toDegrees)
{
    const int steps = std::max(6, int(std::abs(toDegrees - fromDegrees) / 10));
    Points points;
    for (int i = 0; i <= steps; ++i) {
        const Point unit = Polar(1, fromDegrees + (toDegrees - fromDegrees) * i / steps);
        points.push_back({centre.x + rx * unit.x, centre.y + ry * unit.y});
    }
    return points;
}

Points RegularPolygon(Point centre, double radius, int corners, double degrees)
{
    Points points;
    for (int i = 0; i < corners; ++i)
        points.push_back(centre + Polar(radius, degrees + 360.0 * i / corners));
    return points;
}

Points Pebble(Random& random, Point centre, double radius)
{
    const double flat = random.between(0.08, 0.16), flatAt = random.upto(2 * Pi);
    const double dent = random.between(0.02, 0.05), dentAt = random.upto(2 * Pi);
    const int corners = std::max(12, int(radius) * 3);
    Points points;
    for (int i = 0; i < corners; ++i) {
        const double angle = 2 * Pi * i / corners;
        const double out = radius * (1 + flat * std::cos(2 * angle + flatAt) + dent * std::cos(3 * angle + dentAt));
        points.push_back(centre + Point{std::cos(angle), std::sin(angle)} * out);
    }
    return points;
}

Points Fragment(Random& random, Point centre, double radius)
{
    const int corners = 4 + int(random.upto(2.4));
    const double turn = random.upto(360);
    Points points;
    for (int i = 0; i < corners; ++i) {
        const double out = radius * random.between(0.78, 1.12);
        const double aside = random.between(-0.22, 0.22);
        points.push_back(centre + Polar(out, turn + 360.0 / corners * (i + aside)));
    }
    return points;
}

Points Wave(double x, double y, double amplitude, int waves)
{
    Points points;
    for (int step = 0; step <= TileSize; step += 2)
        points.push_back({x + step, y - amplitude * std::cos(2 * Pi * waves * step / TileSize)});
    return points;
}

void Dot(Tile& tile, Point centre, double diameter)
{
    const double r = diameter / 2;
    Paint(tile, centre.x - r, centre.y - r, centre.x + r, centre.y + r, true,
          [&](Point p) { return Length(p - centre) < r; });
}

bool FreeOf(const Spots& spots, Point at, double radius)
{
    return std::all_of(spots.begin(), spots.end(),
                       [&](const Spot& spot) { return Length(Across(at, spot.at)) >= radius + spot.radius; });
}

// Whether no ink lies within radius of the point.
static bool Clear(const Tile& tile, Point at, double radius)
{
    const int reach = int(std::ceil(radius));
    const int column = int(std::floor(at.x)), row = int(std::floor(at.y));
    for (int y = row - reach; y <= row + reach; ++y)
        for (int x = column - reach; x <= column + reach; ++x)
            if (tile.ink(x, y) && Length(Point{x + 0.5, y + 0.5} - at) < radius)
                return false;
    return true;
}

void Scatter(Spots& spots, const Tile& tile, Random& random, int count, double radius, double gap)
{
    constexpr int Tries = 150;
    for (int i = 0; i < count; ++i) {
        Spot best{{}, radius};
        double bestRoom = gap;
        for (int t = 0; t < Tries; ++t) {
            const Point at{std::floor(random.upto(TileSize)) + 0.5, std::floor(random.upto(TileSize)) + 0.5};
            double room = TileSize;
            for (const Spot& other : spots)
                room = std::min(room, Length(Across(at, other.at)) - radius - other.radius);
            if (room >= bestRoom && Clear(tile, at, radius + gap)) {
                bestRoom = room;
                best.at = at;
            }
        }
        if (bestRoom > gap)
            spots.push_back(best);
    }
}

void Stones(Tile& tile, Random& random, const Spots& spots)
{
    for (const Spot& spot : spots)
        Opaque(tile, Pebble(random, spot.at, spot.radius - Plain / 2));
}

void Grains(Tile& tile, Random& random, int count, double diameter, double gap, Spots taken)
{
    const std::size_t first = taken.size();
    Scatter(taken, tile, random, count, diameter / 2, gap);
    for (std::size_t i = first; i < taken.size(); ++i)
        Dot(tile, taken[i].at, diameter);
}

Points Staggered(int columns, int rows)
{
    Points points;
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column)
            points.push_back({FitRow(2 * column + row % 2, 2 * columns), FitRow(row, rows)});
    return points;
}

// The middles of the screen pixels whose column + step x row is a multiple of every.
static Points ScreenLattice(int step, int every)
{
    Points points;
    for (int row = 0; row < ScreenSize; ++row)
        for (int column = 0; column < ScreenSize; ++column)
            if ((column + step * row) % every == 0)
                points.push_back({(column + 0.5) * CellSize, (row + 0.5) * CellSize});
    return points;
}

Points FineLattice()
{
    return ScreenLattice(2, 5);
}
Points CoarseLattice()
{
    return ScreenLattice(7, 25);
}
