// hatchstrokes_test.cpp -- hatches drawn out: which dashes lie in an area, and which are drawn in one go.
#include "dxf/hatchstrokes.h"

#include "testing.h"

#include <cmath>

static constexpr HatchWindow Sheet{0, 0, 4800, 6300};

// Dashes of 6 on 4 along x, every 10 up, each line 5 further along.
static HatchPattern Dashed()
{
    HatchPattern pattern;
    pattern.PenWidth = 2;
    pattern.Lines.push_back({0, 0, 0, 5, 10, {6, -4}});
    return pattern;
}

static std::vector<HatchPoint> Box(double left, double bottom, double right, double top)
{
    return {{left, bottom}, {right, bottom}, {right, top}, {left, top}};
}

static double Length(const std::vector<HatchStroke>& strokes)
{
    double sum = 0;
    for (const HatchStroke& one : strokes)
        sum += std::hypot(one.To.X - one.From.X, one.To.Y - one.From.Y);
    return sum;
}

TEST_CASE("a hatch drawn out has the dashes of its area, cut at the border, each line moved along by its offset")
{
    const auto strokes = HatchStrokes(Dashed(), {{0, 0}, 1}, Box(100, 95, 120, 115), Sheet, 1000);
    // The lines at 100 and 110; the second has 1 of a dash at its start, less than the pen is wide.
    REQUIRE(strokes.size() == 4);
    CHECK(strokes[0].From == HatchPoint{100, 100});
    CHECK(strokes[0].To == HatchPoint{106, 100});
    CHECK(strokes[1].From == HatchPoint{110, 100});
    CHECK(strokes[1].To == HatchPoint{116, 100});
    CHECK(strokes[2].From == HatchPoint{105, 110});
    CHECK(strokes[3].From == HatchPoint{115, 110});
    CHECK(strokes[3].To == HatchPoint{120, 110});
}

TEST_CASE("what the border leaves of a dash is passed over where it is shorter than the pen is wide")
{
    HatchPattern pattern = Dashed();
    CHECK(HatchStrokes(pattern, {{0, 0}, 1}, Box(104, 95, 120, 105), Sheet, 1000).size() == 2);
    CHECK(HatchStrokes(pattern, {{0, 0}, 1}, Box(105, 95, 120, 105), Sheet, 1000).size() == 1);
    // A dot is short by itself, and stays.
    pattern.Lines[0].Dashes = {1, -9};
    CHECK(HatchStrokes(pattern, {{0, 0}, 1}, Box(99, 95, 120, 105), Sheet, 1000).size() == 2);
}

TEST_CASE("lines without gaps are drawn from border to border, and left out where the border has turned back")
{
    HatchPattern pattern;
    pattern.Lines.push_back({0, 0, 0, 0, 10, {}});
    // A U: the line at 110 goes through its two arms, the one at 100 through its foot.
    const std::vector<HatchPoint> u = {{100, 95},  {160, 95},  {160, 115}, {140, 115},
                                       {140, 105}, {120, 105}, {120, 115}, {100, 115}};
    const auto strokes = HatchStrokes(pattern, {{0, 0}, 1}, u, Sheet, 1000);
    REQUIRE(strokes.size() == 3);
    CHECK(strokes[0].To == HatchPoint{160, 100});
    CHECK(strokes[1].To == HatchPoint{120, 110});
    CHECK(strokes[2].From == HatchPoint{140, 110});
}

TEST_CASE("slanting lines of a hatch keep their distance and end at the border")
{
    HatchPattern pattern;
    pattern.Lines.push_back({45, 0, 0, 20, 0, {}});
    const auto strokes = HatchStrokes(pattern, {{0, 0}, 1}, Box(1000, 1000, 1400, 1200), Sheet, 1000);
    // Lines 20 apart along x cover an area with one unit of length for each 20 * sin 45 of it.
    CHECK(std::fabs(Length(strokes) - 400 * 200 / (20 * std::sqrt(0.5))) < 300);
    for (const HatchStroke& one : strokes) {
        CHECK(std::fabs((one.To.X - one.From.X) - (one.To.Y - one.From.Y)) < 1e-6);
        CHECK(std::fabs(std::remainder(one.From.X - one.From.Y, 20)) < 1e-6);
        CHECK(one.From.X >= 1000 - 1e-6);
        CHECK(one.To.Y <= 1200 + 1e-6);
    }
}

TEST_CASE("a hatch is drawn out on the sheet alone, however far its area goes")
{
    const double far = 2147483647;
    const auto strokes = HatchStrokes(Dashed(), {{0, 6300}, 1}, Box(-far, -far, far, far), {0, 0, 100, 100}, 100000);
    CHECK(strokes.size() > 90);
    CHECK(strokes.size() < 130);
    for (const HatchStroke& one : strokes) {
        CHECK(one.From.X >= 0);
        CHECK(one.To.X <= 100);
    }
}

TEST_CASE("a hatch of too many strokes is given up")
{
    CHECK(HatchStrokes(Dashed(), {{0, 0}, 1}, Box(0, 0, 4000, 4000), Sheet, 1000).size() > 1000);
    CHECK(HatchStrokes(Dashed(), {{0, 0}, 1}, Box(0, 0, 4000, 4000), Sheet, 1000).size() < 2000);
}

TEST_CASE("a definition line that never moves on, or has no length, is passed over")
{
    HatchPattern pattern;
    pattern.Lines.push_back({0, 0, 0, 10, 0, {}});
    pattern.Lines.push_back({0, 0, 0, 0, 10, {0, 0}});
    CHECK(HatchStrokes(pattern, {{0, 0}, 1}, Box(0, 0, 100, 100), Sheet, 1000).empty());
}

TEST_CASE("strokes that end where others begin are drawn in one go, and a ring comes back to its start")
{
    // Three sides that meet, and one stroke away from them.
    const std::vector<HatchStroke> open = {
        {{0, 0}, {10, 0}}, {{10, 10}, {0, 10}}, {{10, 1}, {10, 9}}, {{50, 50}, {60, 50}}};
    auto chains = JoinedStrokes(open, 2);
    REQUIRE(chains.size() == 2);
    REQUIRE(chains[0].size() == 4);
    CHECK(chains[0][0] == HatchPoint{0, 0});
    CHECK(chains[0][1] == HatchPoint{10, 0.5});
    CHECK(chains[0][3] == HatchPoint{0, 10});
    CHECK(chains[1].size() == 2);

    std::vector<HatchStroke> ring = open;
    ring[3] = {{0, 10}, {0, 0}};
    chains = JoinedStrokes(ring, 2);
    REQUIRE(chains.size() == 1);
    CHECK(chains[0].size() == 5);
    CHECK(chains[0].front() == chains[0].back());
}

TEST_CASE("no stroke is tied to itself or to one that is farther away than told")
{
    CHECK(JoinedStrokes({{{0, 0}, {1, 0}}}, 5).size() == 1);
    CHECK(JoinedStrokes({{{0, 0}, {1, 0}}}, 5)[0].size() == 2);
    CHECK(JoinedStrokes({{{0, 0}, {10, 0}}, {{13, 0}, {20, 0}}}, 2.9).size() == 2);
    CHECK(JoinedStrokes({{{0, 0}, {10, 0}}, {{13, 0}, {20, 0}}}, 3).size() == 1);
    CHECK(JoinedStrokes({}, 3).empty());
}
