// raster.h -- strokes and shapes on a tile, and even scatters of points.
//
// Coordinates are paper pixels, x right and y down; the pixel in column 0 spans 0 to 1. All wraps around, so
// a shape may stand anywhere and the tile stays seamless. A pixel is set when its centre lies in the shape.
//
// Fitted strokes: 25 screen pixels stand for 150 paper pixels, so a thin upright or level stroke that
// straddles two screen pixels comes out pale and broad, and a row of such strokes shows bands. Places that go
// through Fit lie inside one screen pixel; they are off the true place by 2 pixels at most (1/300 inch).
#pragma once

#include "makefills.h"

#include <cstdint>
#include <vector>

// Stroke weights; fine is for what is inside a sign.
constexpr double Fine = 3, Plain = 4;

constexpr double Pi = 3.14159265358979323846;

struct Point {
    double x = 0, y = 0;
};
inline Point operator+(Point a, Point b)
{
    return {a.x + b.x, a.y + b.y};
}
inline Point operator-(Point a, Point b)
{
    return {a.x - b.x, a.y - b.y};
}
inline Point operator*(Point a, double k)
{
    return {a.x * k, a.y * k};
}
inline bool operator==(Point a, Point b)
{
    return a.x == b.x && a.y == b.y;
}
using Points = std::vector<Point>;

// The point at a distance and an angle from the origin; 0 degrees is right and 90 is up the page.
Point Polar(double radius, double degrees);

// The shortest way from a to b on the torus.
Point Across(Point a, Point b);

// A row of numbers that is the same on every machine and library.
class Random
{
public:
    explicit Random(std::uint32_t seed) : state(seed * 2654435761u + 1u)
    {
    }
    double upto(double limit); // 0 <= value < limit
    double between(double low, double high)
    {
        return low + upto(high - low);
    }

private:
    std::uint32_t state;
};

// ---- strokes

// The place nearest to centre where a level or upright stroke of this weight has whole pixels for edges and
// lies in one screen pixel. Weights above 6 only get whole edges.
double Fit(double centre, double weight = Plain);

// The middle of row (or column) i of count equal ones, fitted; the first is 4 from the tile's edge, from where
// the fitted places of most counts come out evenly.
double FitRow(int i, int count, double weight = Plain);

void Line(Tile& tile, Point from, Point to, double weight = Plain); // round ends
void Path(Tile& tile, const Points& points, double weight = Plain);
void Outline(Tile& tile, const Points& points, double weight = Plain); // closed
void Polygon(Tile& tile, const Points& points, bool black = true);     // its inside, even-odd
void Box(Tile& tile, double left, double top, double right, double bottom, bool black = true);

// A white inside with a black outline: hides what was drawn before.
void Opaque(Tile& tile, const Points& points, double weight = Plain);

// Level and upright strokes with square ends; LevelAcross and UprightAcross go round the whole tile.
void Level(Tile& tile, double x, double y, double length, double weight = Plain);
void Upright(Tile& tile, double x, double y, double length, double weight = Plain);
void LevelAcross(Tile& tile, double y, double weight = Plain);
void UprightAcross(Tile& tile, double x, double weight = Plain);

// Count strokes round the whole tile, at the places of FitRow.
void LevelRows(Tile& tile, int count, double weight = Plain);
void UprightRows(Tile& tile, int count, double weight = Plain);

// Level strokes of a length, one for each period (a divisor of the tile), the first one's middle at x.
void DashRow(Tile& tile, double x, double y, double length, double period, double weight = Plain);

// Lines at 45 degrees, count of them to the tile, the first through (shift, 0). rise 1: "/", -1: "\".
void Hatch(Tile& tile, int count, int rise, double weight = Plain, double shift = 0);

// ---- shapes, as points for the strokes above

Points Ellipse(Point centre, double rx, double ry, double degrees = 0);
Points Arc(Point centre, double rx, double ry, double fromDegrees, double toDegrees);
Points RegularPolygon(Point centre, double radius, int corners, double degrees);

// A rounded stone: an ellipse of mean radius, a little uneven.
Points Pebble(Random& random, Point centre, double radius);

// A broken stone: 4 to 6 sharp corners around the centre.
Points Fragment(Random& random, Point centre, double radius);

// A wave along the whole tile around y, waves of them to the tile, the first crest at x.
Points Wave(double x, double y, double amplitude, int waves);

void Dot(Tile& tile, Point centre, double diameter);

// ---- arrangements

struct Spot {
    Point at;
    double radius;
};
using Spots = std::vector<Spot>;

// Adds count spots of a radius to those in spots, each as far from all others as can be found, at least gap
// from edge to edge and clear of the ink of the tile by gap. Places that cannot be found are left out. Spots are the
// middles of pixels, so dots of one size come out alike.
void Scatter(Spots& spots, const Tile& tile, Random& random, int count, double radius, double gap);

// The two that the fills use most, by Scatter. Stones: the outline of a pebble in each spot; what was drawn
// inside goes. Grains: count dots of one size, clear of all ink and of the spots that are taken.
void Stones(Tile& tile, Random& random, const Spots& spots);
void Grains(Tile& tile, Random& random, int count, double diameter, double gap, Spots taken = {});

// Whether a disc keeps off all of the spots.
bool FreeOf(const Spots& spots, Point at, double radius);

// Columns by rows, the odd rows half a column on; rows is even. The spots are fitted for Plain strokes.
Points Staggered(int columns, int rows);

// Square lattices, turned, of points in the middle of screen pixels, so that all look alike there: 125 points
// 13.4 apart, and 25 points 30 apart.
Points FineLattice();
Points CoarseLattice();
