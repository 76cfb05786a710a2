// rocks.cpp -- the fills of the rocks, and of the ground that has no soil code, file numbers 35 to 85.
//
// Limestones are walls of bricks with the sign of what is in them; in dolomite the bricks lean. Shales are
// long dashes, mudstones short ones; sandstones are dots in rows; igneous rocks carry crosses; what was
// under pressure has waves.
#include "raster.h"

#include <algorithm>
#include <cmath>

// ---- walls of bricks

// Four courses of two bricks to the tile, a brick 75 wide: room for a sign of 20 by 20.
constexpr int Courses = 4, BricksInCourse = 2;

// The joints of one course, which hangs below bed line number course. lean: how far right the top is of the foot.
static void Joints(Tile& tile, int course, double lean = 0, int courses = Courses, int bricks = BricksInCourse)
{
    const double top = FitRow(course, courses);
    const double bottom = course + 1 < courses ? FitRow(course + 1, courses) : FitRow(0, courses) + TileSize;
    for (int i = 0; i < bricks; ++i) {
        const double x = FitRow(2 * i + course % 2, 2 * bricks);
        if (lean == 0)
            Upright(tile, x, (top + bottom) / 2, bottom - top);
        else
            Line(tile, {x + lean / 2, top}, {x - lean / 2, bottom});
    }
}

static void Wall(Tile& tile, double lean = 0, int courses = Courses, int bricks = BricksInCourse)
{
    LevelRows(tile, courses);
    for (int course = 0; course < courses; ++course)
        Joints(tile, course, lean, courses, bricks);
}

// The middles of the bricks of a wall of four courses: all of them, or every second one (a sign in each would
// be too black), spread evenly.
static Points Bricks(bool all = true)
{
    Points points;
    for (int course = 0; course < Courses; ++course)
        for (int i = 0; i < BricksInCourse; ++i)
            if (all || i == course / 2) {
                const double top = FitRow(course, Courses);
                const double bottom =
                    course + 1 < Courses ? FitRow(course + 1, Courses) : FitRow(0, Courses) + TileSize;
                points.push_back({FitRow(2 * i + course % 2, 2 * BricksInCourse) + 37.5, (top + bottom) / 2});
            }
    return points;
}

// ---- small signs

static void Plus(Tile& tile, Point at, double size, double weight = Plain)
{
    Level(tile, at.x, at.y, size, weight);
    Upright(tile, at.x, at.y, size, weight);
}

static void Cross(Tile& tile, Point at, double size, double weight = Plain)
{
    const double half = size / 2;
    Line(tile, at + Point{-half, -half}, at + Point{half, half}, weight);
    Line(tile, at + Point{-half, half}, at + Point{half, -half}, weight);
}

static void Vee(Tile& tile, Point at, double size, double weight = Plain)
{
    Path(tile, {at + Point{-size / 2, -size / 2}, at + Point{0, size / 2}, at + Point{size / 2, -size / 2}}, weight);
}

// A sign at each of many even spots, clear of the spots that are taken and of all ink.
template <class Sign>
static void ScatterSigns(Tile& tile, Random& random, int count, double radius, double gap, Spots taken, Sign sign)
{
    const std::size_t first = taken.size();
    Scatter(taken, tile, random, count, radius, gap);
    for (std::size_t i = first; i < taken.size(); ++i)
        sign(taken[i].at);
}

// ---- limestones and their kin

static void Limestone(Tile& tile)
{
    Wall(tile);
}

static void LimestoneCrystalline(Tile& tile)
{
    Wall(tile);
    for (const Point at : Bricks())
        Cross(tile, at, 13);
}

constexpr double Lean = 20;

static void Dolomite(Tile& tile)
{
    Wall(tile, Lean);
}

// Two courses of upright joints to one of leaning ones, and the other way round.
static void LimestoneDolomitic(Tile& tile)
{
    LevelRows(tile, 6);
    for (int course = 0; course < 6; ++course)
        Joints(tile, course, course % 3 == 2 ? Lean : 0, 6);
}

static void DolomiteCalcitic(Tile& tile)
{
    LevelRows(tile, 6);
    for (int course = 0; course < 6; ++course)
        Joints(tile, course, course % 3 == 2 ? 0 : Lean, 6);
}

static void LimestoneShaley(Tile& tile)
{
    Wall(tile);
    for (const Point at : Bricks()) {
        Level(tile, at.x - 10, Fit(at.y - 6), 24);
        Level(tile, at.x + 10, Fit(at.y + 6), 24);
    }
}

// A wall with holes that water has eaten.
static void LimestoneWeathered(Tile& tile)
{
    Wall(tile);
    Random random(73);
    Spots holes;
    Scatter(holes, Tile(), random, 3, 16, 12);
    Scatter(holes, Tile(), random, 5, 9, 12);
    for (const Spot& hole : holes) {
        Points rim = Pebble(random, {0, 0}, hole.radius);
        for (Point& p : rim)
            p = hole.at + Point{p.x * 1.15, p.y * 0.8};
        Opaque(tile, rim);
    }
}

static void LimestoneSandy(Tile& tile)
{
    Wall(tile);
    for (const Point at : Bricks())
        for (const Point grain : {Point{-20, -5}, Point{-7, 6}, Point{6, -5}, Point{20, 6}})
            Dot(tile, at + grain, 7);
}

static void LimestoneClayey(Tile& tile)
{
    Wall(tile);
    for (const Point at : Bricks())
        for (const double x : {-16.0, 0.0, 16.0})
            Line(tile, at + Point{x - 7, 7}, at + Point{x + 7, -7});
}

// Chert is a triangle wherever it is found.
static void LimestoneCherty(Tile& tile)
{
    Wall(tile);
    for (const Point at : Bricks())
        Polygon(tile, RegularPolygon(at + Point{0, 2}, 12, 3, 90));
}

static void ChertBedded(Tile& tile)
{
    LevelRows(tile, Courses);
    for (int course = 0; course < Courses; ++course)
        for (int i = 0; i < 5; ++i) {
            const double x = 30 * i + 3 + (course % 2 ? 15 : 0);
            const double y = Bricks()[std::size_t(course * BricksInCourse)].y;
            Outline(tile, RegularPolygon({x, y + 3}, 11, 3, 90), Plain);
        }
}

// Bricks with joints that stop short: soft, thick beds.
static void Chalk(Tile& tile)
{
    for (int course = 0; course < Courses; ++course) {
        const double y = FitRow(course, Courses);
        for (int i = 0; i < BricksInCourse; ++i) {
            const double x = FitRow(2 * i + course % 2, 2 * BricksInCourse);
            Level(tile, x, y, 54);
            Upright(tile, x, y + 10, 20);
        }
    }
}

// Beds of lime and of clay by turns: a course of bricks, a course of dashes.
static void Marl(Tile& tile)
{
    LevelRows(tile, Courses);
    for (const int course : {0, 2})
        for (int i = 0; i < 3; ++i) {
            const double top = FitRow(course, Courses), bottom = FitRow(course + 1, Courses);
            Upright(tile, FitRow(2 * i + course / 2, 6), (top + bottom) / 2, bottom - top);
        }
    for (const int course : {1, 3}) {
        const double y = Bricks()[std::size_t(course * BricksInCourse)].y;
        DashRow(tile, 15, Fit(y - 6), 30, 50);
        DashRow(tile, 40, Fit(y + 6), 30, 50);
    }
}

// A shell: fan, hinge and two ribs.
static void Shell(Tile& tile, Point at)
{
    const Point hinge = at + Point{0, 11};
    Path(tile, Arc(at + Point{0, 2}, 15, 12, -20, 200), Plain);
    for (const double degrees : {-20.0, 50.0, 90.0, 130.0, 200.0}) {
        const Point rim = Polar(1, degrees);
        Line(tile, hinge, at + Point{15 * rim.x, 2 + 12 * rim.y}, Fine);
    }
}

// A snail: a spiral of a turn and a half.
static void Snail(Tile& tile, Point at)
{
    Points points;
    for (int degrees = 0; degrees <= 560; degrees += 15) {
        const Point unit = Polar(3.0 + degrees * 10.0 / 560, degrees);
        points.push_back({at.x + unit.x * 1.1, at.y + unit.y});
    }
    Path(tile, points, Plain);
}

static void LimestoneFossiliferous(Tile& tile)
{
    Wall(tile);
    bool snail = false;
    for (const Point at : Bricks(false)) {
        snail ? Snail(tile, at) : Shell(tile, at - Point{0, 3});
        snail = !snail;
    }
}

static void LimestoneOolitic(Tile& tile)
{
    Wall(tile);
    for (const Point at : Bricks())
        for (const double x : {-15.0, 15.0}) {
            Outline(tile, Ellipse(at + Point{x, 0}, 9, 9));
            Dot(tile, at + Point{x, 0}, 5);
        }
}

static void LimestonePelletal(Tile& tile)
{
    Wall(tile);
    for (const Point at : Bricks()) {
        Polygon(tile, Ellipse(at + Point{-15, 4}, 9, 5));
        Polygon(tile, Ellipse(at + Point{15, -4}, 9, 5));
    }
}

// Flat pieces of an older bed, open, lying at all angles.
static void LimestoneIntraclastic(Tile& tile)
{
    Wall(tile);
    int turn = 0;
    for (const Point at : Bricks()) {
        const Point along = Polar(15, turn ? 22 : -22), across = Polar(5, turn ? 112 : 68);
        Outline(tile, {at + along + across, at + along - across, at - along - across, at - along + across});
        turn = !turn;
    }
}

// The finest grain: the smallest bricks.
static void LimestoneMicritic(Tile& tile)
{
    Wall(tile, 0, 8, 4);
}

// Lime nodules grown in shells, the large ones with a core, in soil.
static void Caliche(Tile& tile)
{
    Random random(62);
    Spots nodules;
    Scatter(nodules, tile, random, 5, 21, 5);
    Scatter(nodules, tile, random, 8, 11, 5);
    for (const Spot& nodule : nodules) {
        const Points rim = Pebble(random, {0, 0}, nodule.radius - Plain / 2);
        Points shell, core;
        for (const Point p : rim) {
            shell.push_back(nodule.at + p);
            core.push_back(nodule.at + p * 0.45);
        }
        Outline(tile, shell);
        if (nodule.radius > 15)
            Outline(tile, core);
        else
            Dot(tile, nodule.at, 5);
    }
    ScatterSigns(tile, random, 20, 6, 3, nodules, [&](Point at) { Level(tile, at.x, Fit(at.y), 12); });
}

// ---- marbles

// The beds of a limestone, bent.
static void MarbleBedded(Tile& tile)
{
    for (int course = 0; course < Courses; ++course) {
        const double y = FitRow(course, Courses);
        Path(tile, Wave(0, y, 5, 3));
        for (int i = 0; i < 3; ++i) {
            const double x = 50.0 * i + (course % 2 ? 25 : 0);
            Line(tile, {x + 6, y - (course % 2 ? -5 : 5)}, {x - 6, y + 37.5 - (course % 2 ? -5 : 5)});
        }
    }
}

// Veins: two systems of slanting lines that sway.
static void MarbleVeined(Tile& tile)
{
    const auto vein = [&](double shift, double rise, double sway, int waves, double weight) {
        Points points;
        for (int step = 0; step <= TileSize; step += 2) {
            const double turn = 2 * Pi * step / TileSize;
            const double off = sway * std::sin(waves * turn) + sway * 0.5 * std::sin((waves + 1) * turn + shift);
            points.push_back({shift + step + off, -rise * step + off * rise});
        }
        Path(tile, points, weight);
    };
    vein(10, 1, 6, 2, Plain);
    vein(60, 1, 5, 3, Fine);
    vein(110, 1, 6, 2, Plain);
    vein(30, -1, 5, 2, Plain);
    vein(105, -1, 6, 1, Fine);
}

// ---- shales, mudstones, coal

// Long dashes in rows 25 apart, each row moved on against the one above it.
static void ShaleRows(Tile& tile)
{
    for (int row = 0; row < 6; ++row)
        DashRow(tile, row % 2 ? 37.5 : 0, FitRow(row, 6), 60, 75);
}

static void Shale(Tile& tile)
{
    ShaleRows(tile);
}

static void ShaleWeathered(Tile& tile)
{
    Random random(69);
    for (int row = 0; row < 6; ++row) {
        double x = random.upto(30);
        const double y = FitRow(row, 6), first = x;
        while (x < first + TileSize - 15) {
            const double length = std::min(random.between(10, 40), first + TileSize - 9 - x);
            const double tilt = random.between(-3, 3);
            Path(tile, {{x, y}, {x + length / 2, y + tilt}, {x + length, y + tilt * 0.3}});
            x += length + random.between(9, 18);
        }
    }
}

// Shale with round nodules.
static void ShalePhosphatic(Tile& tile)
{
    ShaleRows(tile);
    for (const Point at : Staggered(2, 2)) {
        const double above = FitRow(at.y < TileSize / 2 ? 0 : 3, 6), below = FitRow(at.y < TileSize / 2 ? 1 : 4, 6);
        Polygon(tile, Ellipse({at.x + 18, (above + below) / 2}, 11, 6));
    }
}

static void Mudstone(Tile& tile)
{
    for (const Point at : Staggered(2, 4))
        Level(tile, at.x, at.y, 34);
}

// A dash, a dot, a dash, a dot.
static void Siltstone(Tile& tile)
{
    for (int row = 0; row < 6; ++row) {
        const double y = FitRow(row, 6);
        for (int k = 0; k < 3; ++k) {
            const double x = 50 * k + (row % 2 ? 25 : 0);
            Level(tile, x, y, 24);
            Dot(tile, {x + 25, y}, 7);
        }
    }
}

static void Coal(Tile& tile)
{
    Box(tile, 0, 0, TileSize, TileSize);
}

// ---- sandstones and coarser rocks

static void Sandstone(Tile& tile)
{
    for (const Point at : Staggered(5, 10))
        Dot(tile, at, 7);
}

static void SandstoneFine(Tile& tile)
{
    for (const Point at : FineLattice())
        Dot(tile, at, 4.6);
}

static void SandstoneSilty(Tile& tile)
{
    for (int row = 0; row < 6; ++row)
        for (int k = 0; k < 5; ++k) {
            const Point at{FitRow(2 * k + row % 2, 10), FitRow(row, 6)};
            if (row % 2)
                Level(tile, at.x, at.y, 16);
            else
                Dot(tile, at, 7);
        }
}

static void Graywacke(Tile& tile)
{
    Random random(60);
    ScatterSigns(tile, random, 16, 8, 6, {}, [&](Point at) { Polygon(tile, Fragment(random, at, 9)); });
    Grains(tile, random, 46, 7, 4);
}

static void Conglomerate(Tile& tile)
{
    Random random(43);
    Spots stones;
    Scatter(stones, tile, random, 5, 20, 6);
    Scatter(stones, tile, random, 7, 12, 6);
    Stones(tile, random, stones);
    Grains(tile, random, 40, 7, 4, stones);
}

static void ConglomerateMatrix(Tile& tile)
{
    Random random(56);
    Spots stones;
    Scatter(stones, tile, random, 4, 15, 20);
    Stones(tile, random, stones);
    ScatterSigns(tile, random, 22, 9, 4, stones, [&](Point at) { Level(tile, at.x, Fit(at.y), 16); });
    Grains(tile, random, 22, 7, 4, stones);
}

static void SandstoneConglomeratic(Tile& tile)
{
    Random random(57);
    Spots stones;
    Scatter(stones, tile, random, 3, 18, 20);
    Scatter(stones, tile, random, 3, 12, 16);
    Stones(tile, random, stones);
    for (const Point at : Staggered(5, 10))
        if (FreeOf(stones, at, 7))
            Dot(tile, at, 7);
}

static void Breccia(Tile& tile)
{
    Random random(44);
    Spots stones;
    Scatter(stones, tile, random, 5, 23, 1);
    Scatter(stones, tile, random, 8, 13, 1);
    for (const Spot& stone : stones)
        Outline(tile, Fragment(random, stone.at, stone.radius));
    ScatterSigns(tile, random, 14, 5, 2, stones,
                 [&](Point at) { Polygon(tile, RegularPolygon(at, 6, 3, random.upto(360))); });
}

static void Till(Tile& tile)
{
    Random random(47);
    ScatterSigns(tile, random, 9, 13, 9, {},
                 [&](Point at) { Outline(tile, RegularPolygon(at, 12, 3, random.upto(360))); });
    ScatterSigns(tile, random, 12, 8, 5, {}, [&](Point at) {
        const Point half = Polar(7, random.between(-30, 30));
        Line(tile, at - half, at + half);
    });
    Grains(tile, random, 26, 7, 5);
}

// ---- igneous rocks

static void Volcanics(Tile& tile)
{
    for (const Point at : Staggered(3, 4))
        Vee(tile, at, 20);
}

static void Granitics(Tile& tile)
{
    for (const Point at : Staggered(3, 4))
        Plus(tile, at, 24);
}

static void GraniticsFine(Tile& tile)
{
    for (const Point at : CoarseLattice())
        Plus(tile, at, 14);
}

// Crosses, and here and there a large crystal.
static void Porphyry(Tile& tile)
{
    Spots crystals;
    double turn = 25;
    for (const Point at : Staggered(1, 2)) {
        const Point along = Polar(20, turn), across = Polar(11, turn + 90);
        Outline(tile, {at + along + across, at + along - across, at - along - across, at - along + across});
        crystals.push_back({at, 22});
        turn = -turn;
    }
    for (const Point at : Staggered(3, 4))
        if (FreeOf(crystals, at, 10))
            Plus(tile, at, 18);
}

// ---- metamorphic rocks

static void Metamorphics(Tile& tile)
{
    for (const Point at : Staggered(2, 4)) {
        Points wave;
        for (int x = -27; x <= 27; ++x)
            wave.push_back(at + Point{double(x), -6 * std::sin(2 * Pi * x / 54)});
        Path(tile, wave);
    }
}

static void Schist(Tile& tile)
{
    for (int row = 0; row < 6; ++row)
        Path(tile, Wave(row % 2 ? 9 : 0, 3 + 25.0 * row, 4.5, 2));
}

static void SchistFolded(Tile& tile)
{
    for (int row = 0; row < 5; ++row)
        Path(tile, Wave(0, 3 + 30.0 * row, 19, 2));
}

// Grains grown together: the borders between the regions nearest to each of some even points.
static void Quartzite(Tile& tile)
{
    Random random(51);
    Spots grains;
    Scatter(grains, tile, random, 26, 8, 4);
    for (int y = 0; y < TileSize; ++y)
        for (int x = 0; x < TileSize; ++x) {
            const Point here{x + 0.5, y + 0.5};
            const auto square = [](Point p) { return p.x * p.x + p.y * p.y; };
            const auto nearer = [&](const Spot& a, const Spot& b) {
                return square(Across(here, a.at)) < square(Across(here, b.at));
            };
            const Spot& own = *std::min_element(grains.begin(), grains.end(), nearer);
            const Point way = Across(here, own.at);
            for (const Spot& other : grains) {
                const double apart = std::sqrt(square(Across(own.at, other.at)));
                if (apart > 0 && (square(Across(here, other.at)) - square(way)) / (2 * apart) < Plain / 2)
                    tile.put(x, y, true);
            }
        }
}

// ---- ground that has no code

// Cement with coarse chips.
static void Grout(Tile& tile)
{
    Random random(61);
    ScatterSigns(tile, random, 6, 16, 10, {},
                 [&](Point at) { Outline(tile, RegularPolygon(at, 15, 3, random.upto(360))); });
    ScatterSigns(tile, random, 8, 9, 6, {},
                 [&](Point at) { Outline(tile, RegularPolygon(at, 8, 3, random.upto(360)), Plain); });
    Grains(tile, random, 36, 7, 5);
}

// Pieces of core in their box: cylinders end to end.
static void RockCore(Tile& tile)
{
    for (int column = 0; column < 3; ++column) {
        const double left = 50 * column + 7, right = left + 36, middle = (left + right) / 2;
        const double top = column * 25 + 9;
        for (int piece = 0; piece < 2; ++piece) {
            const double y = top + 75 * piece, foot = y + 54;
            Line(tile, {left, y}, {left, foot});
            Line(tile, {right, y}, {right, foot});
            Outline(tile, Ellipse({middle, y}, 18, 6));
            Path(tile, Arc({middle, foot}, 18, 6, 180, 360));
        }
    }
}

// A root, 40 tall: a stem that winds down, with four branches.
static void Root(Tile& tile, Point at, double side)
{
    Path(tile, {at + Point{0, -22}, at + Point{3 * side, -10}, at + Point{-2 * side, 4}, at + Point{1 * side, 22}});
    Path(tile, {at + Point{2 * side, -9}, at + Point{11 * side, -3}, at + Point{15 * side, 6}}, Fine);
    Path(tile, {at + Point{-1 * side, 1}, at + Point{-10 * side, 6}, at + Point{-13 * side, 16}}, Fine);
    Path(tile, {at + Point{-1 * side, 7}, at + Point{7 * side, 12}, at + Point{10 * side, 20}}, Fine);
    Path(tile, {at + Point{3 * side, -11}, at + Point{-7 * side, -7}, at + Point{-12 * side, 0}}, Fine);
}

static void Roots(Tile& tile)
{
    double side = 1;
    for (const Point at : Staggered(2, 4)) {
        Root(tile, at, side);
        side = -side;
    }
}

static void ClaySilty(Tile& tile)
{
    Hatch(tile, 5, 1);
    for (int i = 0; i < 5; ++i)
        for (int k = 0; k < 5; ++k)
            Upright(tile, 30 * i + 4, 30 * k + 11, 15);
}

static void ClaySandy(Tile& tile)
{
    Hatch(tile, 5, 1);
    for (int i = 0; i < 5; ++i)
        for (int k = 0; k < 5; ++k)
            Dot(tile, {30.0 * i + 15, 30.0 * k}, 9);
}

static void SiltClayey(Tile& tile)
{
    UprightRows(tile, 5);
    for (int i = 0; i < 5; ++i)
        for (int k = 0; k < 5; ++k) {
            const Point at{30.0 * i + 19, 30.0 * k + 12.0 * i};
            Line(tile, at + Point{-7, 7}, at + Point{7, -7});
        }
}

static void SiltSandy(Tile& tile)
{
    UprightRows(tile, 5);
    for (int i = 0; i < 5; ++i)
        for (int k = 0; k < 5; ++k)
            Dot(tile, {30.0 * i + 19, 30.0 * k + 12.0 * i + 3}, 8);
}

static const StockFill fills[] = {
    {35, "LS, limestone", Limestone},
    {36, "LC, crystalline limestone", LimestoneCrystalline},
    {37, "DO, dolomite", Dolomite},
    {38, "SH, shale", Shale},
    {39, "CO, coal", Coal},
    {40, "SS, sandstone", Sandstone},
    {41, "MS, mudstone", Mudstone},
    {42, "SL, siltstone", Siltstone},
    {43, "CG, conglomerate", Conglomerate},
    {44, "BR, breccia", Breccia},
    {45, "MA, marble in beds", MarbleBedded},
    {46, "MB, marble with veins", MarbleVeined},
    {47, "GT, glacial till", Till},
    {48, "VL, volcanics", Volcanics},
    {49, "GR, granitics", Granitics},
    {50, "ME, metamorphics", Metamorphics},
    {51, "QU, quartzite", Quartzite},
    {52, "fine granitics", GraniticsFine},
    {53, "porphyritic plutonic rock", Porphyry},
    {54, "schist", Schist},
    {55, "folded schist", SchistFolded},
    {56, "matrix supported conglomerate", ConglomerateMatrix},
    {57, "conglomeratic sandstone", SandstoneConglomeratic},
    {58, "fine sandstone", SandstoneFine},
    {59, "silty sandstone", SandstoneSilty},
    {60, "graywacke", Graywacke},
    {61, "grout", Grout},
    {62, "caliche", Caliche},
    {63, "rock core", RockCore},
    {64, "roots, organic material", Roots},
    {65, "silty clay", ClaySilty},
    {66, "sandy clay", ClaySandy},
    {67, "clayey silt", SiltClayey},
    {68, "sandy silt", SiltSandy},
    {69, "weathered shale", ShaleWeathered},
    {70, "dolomitic limestone", LimestoneDolomitic},
    {71, "calcitic dolomite", DolomiteCalcitic},
    {72, "shaley limestone", LimestoneShaley},
    {73, "weathered limestone", LimestoneWeathered},
    {74, "sandy limestone", LimestoneSandy},
    {75, "clayey limestone", LimestoneClayey},
    {76, "cherty limestone", LimestoneCherty},
    {77, "bedded chert", ChertBedded},
    {78, "phosphatic shale", ShalePhosphatic},
    {79, "chalk", Chalk},
    {80, "marl", Marl},
    {81, "fossiliferous limestone", LimestoneFossiliferous},
    {82, "oolitic limestone", LimestoneOolitic},
    {83, "pelletal limestone", LimestonePelletal},
    {84, "intraclastic limestone", LimestoneIntraclastic},
    {85, "micritic limestone", LimestoneMicritic},
};

std::span<const StockFill> RockFills()
{
    return fills;
}
