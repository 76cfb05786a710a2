// hatchlines.cpp -- the ink of a tile covered by strokes.
//
// First the smallest cell that repeats over the tile is found, so that a regular pattern costs a few lines however
// large its bitmap is. Then the cell is covered greedily, longest stroke first, in eight directions; strokes on one
// line of the plane share a definition line. Everything wraps around with the cell.
#include "dxf/hatchlines.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>
#include <queue>

namespace
{
constexpr int MaxLines = 80;      // definition lines of one hatch: what keeps a drawing of sixty hatches small
constexpr int DashesOfLine = 3;   // drawing programs read six dash lengths, gaps included
constexpr int Margin = 8;         // cells around the repeated cell while distances are measured
constexpr double WidestPen = 5.5; // half widths above it are filled by several strokes

struct Step {
    int X, Y;
};
constexpr Step Directions[] = {{1, 0}, {0, 1}, {1, 1}, {1, -1}, {2, 1}, {1, 2}, {2, -1}, {1, -2}};

int Modulo(int a, int n)
{
    const int rest = a % n;
    return rest < 0 ? rest + n : rest;
}

// The translations that carry the pattern into itself: all sums of (Width, 0) and (Shift, Height). The repeated cell
// is Width by Height; leaving it through its lower edge comes back at the upper one, Shift further left.
struct Lattice {
    int Width = 1, Height = 1, Shift = 0;
    // The cell's own place for any place of the plane.
    void Wrap(int& x, int& y) const
    {
        if (x >= 0 && x < Width && y >= 0 && y < Height)
            return;
        const int rows = (y >= 0 ? y : y - Height + 1) / Height;
        y -= rows * Height;
        x = Modulo(x - rows * Shift, Width);
    }
    int Index(int x, int y) const
    {
        Wrap(x, y);
        return y * Width + x;
    }
};

class Tile
{
public:
    explicit Tile(const Bitmap& bitmap) : width(bitmap.Width), height(bitmap.Height)
    {
        black.reserve(bitmap.Pixels.size());
        for (const uint32_t pixel : bitmap.Pixels) {
            const uint32_t light = (pixel >> 16 & 255) * 299 + (pixel >> 8 & 255) * 587 + (pixel & 255) * 114;
            black.push_back(light < 127500);
        }
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                if (At(x, y))
                    ink.push_back({x, y});
    }
    bool At(int x, int y) const
    {
        return black[static_cast<size_t>(y * width + x)] != 0;
    }
    size_t Ink() const
    {
        return ink.size();
    }
    Lattice Symmetry() const
    {
        Lattice cell{width, height, 0};
        for (int x = 1; x < width; ++x)
            if (width % x == 0 && Carries(x, 0)) {
                cell.Width = x;
                break;
            }
        for (int y = 1; y < height; ++y)
            for (int x = 0; height % y == 0 && x < cell.Width; ++x)
                if (Carries(x, y)) {
                    cell.Height = y;
                    cell.Shift = x;
                    return cell;
                }
        return cell;
    }

private:
    // Whether the pattern moved by x, y lies on itself. Most moves fail at one of the first pixels.
    bool Carries(int x, int y) const
    {
        return std::all_of(ink.begin(), ink.end(), [&](const Step& from) {
            const int toX = from.X + x, toY = from.Y + y;
            return At(toX < width ? toX : toX - width, toY < height ? toY : toY - height);
        });
    }

    int width, height;
    std::vector<char> black;
    std::vector<Step> ink;
};

// A stroke: so many steps from the first one of its track, and the cell where it starts.
struct Stroke {
    int First, Length, Start;
    double Score; // what it covers and no other does yet
};

// One line of the plane, with all lines that the lattice makes of it, and the strokes that could lie on it.
struct Track {
    int Direction, Start, Position;
    bool Closed = false; // ink all the way round: one stroke without end
    std::vector<Stroke> Strokes;
    double Worth = 1; // of a score: less where the line's parallels are closer than the pen is wide
    double Score = 0; // of the strokes that would be taken together
};

// How the lattice cuts the plane into lines of one direction.
struct Rule {
    Step Way;      // one step along a line
    int Parallels; // lines that the lattice keeps apart
    int Steps;     // steps until a line comes back to itself
    Step Offset;   // a move of the lattice from a line to the next one but Parallels
    Step Across;   // with Way a basis of the plane's cells
    // The line of a cell, 0 to Parallels - 1, and its place on that line.
    std::pair<int, int> Position(int x, int y) const
    {
        const int line = Way.X * y - Way.Y * x;
        const int moves = (line - Modulo(line, Parallels)) / Parallels;
        x -= moves * Offset.X;
        y -= moves * Offset.Y;
        return {Modulo(line, Parallels), Modulo(x * Across.Y - y * Across.X, Steps)};
    }
};

class Cover
{
public:
    Cover(const Tile& tile, Lattice lattice) : cell(lattice)
    {
        const size_t size = static_cast<size_t>(cell.Width * cell.Height);
        depth.resize(size);
        weight.resize(size);
        centre.resize(size);
        need.resize(size);
        Measure(tile);
        ChoosePen();
        FindTracks();
        Choose();
    }
    HatchPattern Pattern() const
    {
        HatchPattern pattern;
        pattern.PenWidth = pen;
        pattern.Lines = lines;
        return pattern;
    }

private:
    // How deep each pixel lies in the ink, in pixels: 1 at its edge. Measured in two passes (a straight step counts 3,
    // a slanting one 4) over the cell and a margin around it.
    void Measure(const Tile& tile)
    {
        const int wide = cell.Width + 2 * Margin, high = cell.Height + 2 * Margin;
        std::vector<int> distance(static_cast<size_t>(wide * high));
        const auto at = [&](int x, int y) -> int& { return distance[static_cast<size_t>(y * wide + x)]; };
        for (int y = 0; y < high; ++y)
            for (int x = 0; x < wide; ++x) {
                int fromX = x - Margin, fromY = y - Margin;
                cell.Wrap(fromX, fromY);
                at(x, y) = tile.At(fromX, fromY) ? 3 * Margin : 0;
            }
        // From the four neighbours that the pass has been at: ahead is 1 on the way down, -1 on the way up.
        const auto lower = [&](int x, int y, int ahead) {
            int& own = at(x, y);
            if (own == 0)
                return;
            const int straight = std::min(at(x - ahead, y), at(x, y - ahead)) + 3;
            const int slanting = std::min(at(x - 1, y - ahead), at(x + 1, y - ahead)) + 4;
            own = std::min(own, std::min(straight, slanting));
        };
        for (int y = 1; y < high; ++y)
            for (int x = 1; x < wide - 1; ++x)
                lower(x, y, 1);
        for (int y = high - 2; y >= 0; --y)
            for (int x = wide - 2; x > 0; --x)
                lower(x, y, -1);
        ridge.assign(depth.size(), 0);
        for (int y = 0; y < cell.Height; ++y)
            for (int x = 0; x < cell.Width; ++x) {
                const int px = x + Margin, py = y + Margin, own = at(px, py);
                bool highest = own > 0;
                for (int dy = -1; dy <= 1 && highest; ++dy)
                    for (int dx = -1; dx <= 1; ++dx)
                        highest = highest && at(px + dx, py + dy) <= own;
                const size_t index = static_cast<size_t>(y * cell.Width + x);
                depth[index] = own / 3.0;
                ridge[index] = highest;
            }
    }

    // The pen is as wide as the thinner strokes of the tile: thick ones can be filled by several, thin ones cannot
    // be drawn with a broad pen. Centres are where it stays in the ink, and the ridges of what is thinner still;
    // best are those where it just touches the edge, so that a broad area is filled from its edges inward.
    void ChoosePen()
    {
        std::vector<double> depths;
        for (size_t i = 0; i < depth.size(); ++i)
            if (ridge[i])
                depths.push_back(depth[i]);
        const auto low = depths.begin() + static_cast<std::ptrdiff_t>(depths.size() * 3 / 10);
        std::nth_element(depths.begin(), low, depths.end());
        half = std::clamp(*low, 1.0, WidestPen);
        pen = 2 * half - 0.5;
        reach = static_cast<int>(half + 0.5);
        for (size_t i = 0; i < depth.size(); ++i) {
            centre[i] = ridge[i] || depth[i] >= std::max(1.0, 0.65 * half);
            need[i] = centre[i];
            weight[i] = depth[i] <= half ? depth[i] : std::max(half - 0.3 * (depth[i] - half), 0.5 * half);
        }
    }

    void Advance(int& x, int& y, Step step) const
    {
        x += step.X;
        y += step.Y;
        cell.Wrap(x, y);
    }

    size_t At(int x, int y) const
    {
        return static_cast<size_t>(cell.Index(x, y));
    }

    Rule RuleOf(Step way) const
    {
        Rule rule{way, std::gcd(way.Y * cell.Width, way.X * cell.Height - way.Y * cell.Shift), 0, {0, 0}, {0, 0}};
        rule.Steps = cell.Width * cell.Height / rule.Parallels;
        for (int y = 0; y <= 1; ++y)
            for (int x = -1; x <= 1; ++x)
                if (way.X * y - way.Y * x == 1)
                    rule.Across = {x, y};
        // The shortest of the moves that reach the next parallel; the rows of the lattice come round with its width.
        const auto length = [](Step move) { return std::hypot(move.X, move.Y); };
        for (int row = 0; row <= cell.Width; ++row)
            for (int side = -1; side <= 1; side += 2) {
                // (x + n Width, y) is it for a whole n.
                const int x = row * cell.Shift, y = row * cell.Height, stride = way.Y * cell.Width;
                const int rest = way.X * y - way.Y * x - side * rule.Parallels;
                if (stride == 0 ? rest != 0 : rest % stride != 0)
                    continue;
                const int n = stride == 0 ? -x / cell.Width : rest / stride;
                const Step move{side * (x + n * cell.Width), side * y};
                if ((rule.Offset.X == 0 && rule.Offset.Y == 0) || length(move) < length(rule.Offset))
                    rule.Offset = move;
            }
        return rule;
    }

    // All lines in all directions that meet a centre, with the runs of centres on them.
    void FindTracks()
    {
        std::vector<int> centres, lineTrack;
        for (size_t at = 0; at < centre.size(); ++at)
            if (centre[at])
                centres.push_back(static_cast<int>(at));
        std::vector<char> seen;
        for (int direction = 0; direction < static_cast<int>(std::size(Directions)); ++direction) {
            const Rule rule = RuleOf(Directions[direction]);
            lineTrack.assign(static_cast<size_t>(rule.Parallels), -1);
            const double apart = rule.Parallels / std::hypot(rule.Way.X, rule.Way.Y);
            const double worth = std::min(1.0, std::pow(apart / pen, 2));
            const size_t firstTrack = tracks.size();
            size_t met = 0;
            const auto add = [&](int at, bool closed) {
                const Stroke stroke = StrokeFrom(direction, at, rule.Steps, seen);
                met += static_cast<size_t>(stroke.Length);
                const auto [line, position] = rule.Position(at % cell.Width, at / cell.Width);
                int& number = lineTrack[static_cast<size_t>(line)];
                if (number < 0) {
                    number = static_cast<int>(tracks.size());
                    tracks.push_back({direction, at, position, closed, {}, worth, 0});
                }
                Track& track = tracks[static_cast<size_t>(number)];
                track.Strokes.push_back(stroke);
                track.Strokes.back().First = Modulo(position - track.Position, rule.Steps);
            };
            seen.assign(centre.size(), 0);
            for (const int at : centres)
                if (!centre[At(at % cell.Width - rule.Way.X, at / cell.Width - rule.Way.Y)])
                    add(at, false);
            for (const int at : centres)
                if (met < centres.size() && !seen[size_t(at)])
                    add(at, true);
            for (size_t i = firstTrack; i < tracks.size(); ++i) {
                Rank(tracks[i]);
                queue.push({tracks[i].Score, i});
            }
        }
    }

    Stroke StrokeFrom(int direction, int at, int steps, std::vector<char>& seen) const
    {
        Stroke stroke{0, 0, at, 0};
        int x = at % cell.Width, y = at / cell.Width;
        for (size_t index = size_t(at); centre[index] && stroke.Length < steps; index = At(x, y)) {
            seen[index] = 1;
            ++stroke.Length;
            stroke.Score += weight[index];
            Advance(x, y, Directions[direction]);
        }
        return stroke;
    }

    // Weighs each stroke by what it would cover that no other has, deep cells more than shallow ones. An open stroke
    // loses the ends that are covered; one that has nothing left goes.
    void Weigh(Track& track) const
    {
        const Step step = Directions[track.Direction];
        for (Stroke& stroke : track.Strokes) {
            int x = stroke.Start % cell.Width, y = stroke.Start / cell.Width, start = stroke.Start;
            int first = -1, last = -1;
            double score = 0;
            bool touched = false;
            for (int at = stroke.First; at < stroke.First + stroke.Length; ++at) {
                const size_t index = static_cast<size_t>(y * cell.Width + x);
                if (need[index]) {
                    if (first < 0) {
                        first = at;
                        start = static_cast<int>(index);
                    }
                    last = at;
                    score += weight[index];
                } else
                    touched = true;
                Advance(x, y, step);
            }
            // What is left at the rim of a stroke is no stroke of its own.
            stroke.Score = touched && score < half * (half + 1) ? 0 : score;
            if (score > 0 && !track.Closed) {
                stroke.First = first;
                stroke.Start = start;
                stroke.Length = last - first + 1;
            }
        }
        std::erase_if(track.Strokes, [](const Stroke& stroke) { return stroke.Score <= 0; });
        Rank(track);
    }

    // The best strokes first, and what those that go together are worth.
    static void Rank(Track& track)
    {
        std::sort(track.Strokes.begin(), track.Strokes.end(), [](const Stroke& a, const Stroke& b) {
            return a.Score != b.Score ? a.Score > b.Score : a.First < b.First;
        });
        track.Score = 0;
        for (size_t i = 0; i < Together(track); ++i)
            track.Score += track.Strokes[i].Score * track.Worth;
    }

    // How many of the track's best strokes go into one definition line: those that are worth it beside the best.
    static size_t Together(const Track& track)
    {
        size_t count = 0;
        while (count < track.Strokes.size() && count < DashesOfLine &&
               track.Strokes[count].Score >= 0.4 * track.Strokes[0].Score)
            ++count;
        return count;
    }

    // The line that covers most, again and again. A line is weighed anew when its turn comes, since others have
    // covered parts of it.
    void Choose()
    {
        double length = 0;
        while (!queue.empty() && lines.size() < MaxLines) {
            const auto [score, number] = queue.top();
            queue.pop();
            Track& track = tracks[number];
            Weigh(track);
            if (track.Score == 0)
                continue;
            if (track.Score == score) {
                length += Take(track);
                Weigh(track);
            }
            queue.push({track.Score, number});
        }
        // As broad as makes the strokes as black as the tile.
        const double ink =
            static_cast<double>(std::count_if(depth.begin(), depth.end(), [](double d) { return d > 0; }));
        pen = std::clamp(ink / std::max(length, 1.0), 0.75 * (2 * half - 1), 2 * half);
    }

    // Makes a definition line of the track's best strokes and marks what the pen covers. Leaves their length.
    double Take(const Track& track)
    {
        const Step step = Directions[track.Direction];
        const double unit = std::hypot(step.X, step.Y);
        const Step side = step.X < std::abs(step.Y) ? Step{1, 0} : Step{0, 1};
        const size_t count = Together(track);
        double length = 0, below = 0, above = 0;
        for (size_t i = 0; i < count; ++i) {
            const Stroke& stroke = track.Strokes[i];
            length += track.Closed ? stroke.Length * unit : (stroke.Length - 1) * unit + 0.8 * pen;
            int x = stroke.Start % cell.Width, y = stroke.Start / cell.Width;
            for (int j = 0; j < stroke.Length; ++j, Advance(x, y, step)) {
                for (int dy = -reach; dy <= reach; ++dy)
                    for (int dx = -reach; dx <= reach; ++dx)
                        if (dx * dx + dy * dy <= (half + 0.5) * (half + 0.5))
                            need[At(x + dx, y + dy)] = 0;
                above += depth[At(x - side.X, y - side.Y)];
                below += depth[At(x + side.X, y + side.Y)];
            }
        }
        // The middle of a stroke of even width lies between two rows of cells.
        const double shift = above > 1.25 * below ? -0.5 : below > 1.25 * above ? 0.5 : 0;
        AddLine(track, count, shift * side.X, shift * side.Y);
        return length;
    }

    void AddLine(const Track& track, size_t count, double shiftX, double shiftY)
    {
        const Step step = Directions[track.Direction];
        const double unit = std::hypot(step.X, step.Y);
        const Rule rule = RuleOf(step);
        const double period = rule.Steps * unit;
        HatchLine& line = lines.emplace_back();
        line.Angle = std::atan2(-step.Y, step.X) * 180 / std::numbers::pi;
        line.OffsetX = rule.Offset.X;
        line.OffsetY = -rule.Offset.Y;
        // From the ends of the pen's way nearly half its width further: that is where the ink, often round, ends.
        std::vector<std::pair<double, double>> dashes;
        for (size_t i = 0; i < count; ++i)
            dashes.push_back({track.Strokes[i].First * unit - 0.4 * pen,
                              (track.Strokes[i].First + track.Strokes[i].Length - 1) * unit + 0.4 * pen});
        std::sort(dashes.begin(), dashes.end());
        for (size_t i = 1; i < dashes.size();)
            if (dashes[i].first <= dashes[i - 1].second) {
                dashes[i - 1].second = std::max(dashes[i - 1].second, dashes[i].second);
                dashes.erase(dashes.begin() + static_cast<std::ptrdiff_t>(i));
            } else
                ++i;
        if (dashes.size() > 1 && dashes.back().second >= dashes.front().first + period) {
            dashes.front().first = dashes.back().first - period;
            dashes.pop_back();
        }
        const double start = dashes.front().first;
        line.X = track.Start % cell.Width + 0.5 + shiftX + start / unit * step.X;
        line.Y = -(track.Start / cell.Width + 0.5 + shiftY + start / unit * step.Y);
        if (track.Closed || dashes.front().second - start >= period)
            return;
        for (size_t i = 0; i < dashes.size(); ++i) {
            const double next = i + 1 < dashes.size() ? dashes[i + 1].first : start + period;
            line.Dashes.push_back(dashes[i].second - dashes[i].first);
            line.Dashes.push_back(dashes[i].second - next);
        }
    }

    Lattice cell;
    std::vector<double> depth, weight;
    std::vector<char> ridge, centre, need;
    double half = 1, pen = 1;
    int reach = 0;
    std::vector<Track> tracks;
    std::priority_queue<std::pair<double, size_t>> queue; // score when last weighed, and the track
    std::vector<HatchLine> lines;
};
} // namespace

HatchPattern HatchLines(const Bitmap& bitmap)
{
    const Tile tile(bitmap);
    if (tile.Ink() == 0)
        return {};
    if (tile.Ink() == bitmap.Pixels.size()) {
        HatchPattern pattern;
        pattern.Solid = true;
        return pattern;
    }
    return Cover(tile, tile.Symmetry()).Pattern();
}
