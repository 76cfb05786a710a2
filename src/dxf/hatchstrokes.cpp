// hatchstrokes.cpp -- a hatch drawn out in an area.
#include "dxf/hatchstrokes.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace
{
// One definition line laid over an area. Places are told by how far they lie along the line and across it.
class Family
{
public:
    Family(const HatchLine& definition, const HatchPlace& place) : line(definition), pixel(place.Pixel)
    {
        const double radians = line.Angle * std::numbers::pi / 180;
        cosine = std::cos(radians);
        sine = std::sin(radians);
        start = {place.Origin.X + line.X * pixel, place.Origin.Y + line.Y * pixel};
        stepAlong = (line.OffsetX * cosine + line.OffsetY * sine) * pixel;
        stepAcross = (line.OffsetY * cosine - line.OffsetX * sine) * pixel;
        for (const double dash : line.Dashes)
            period += std::fabs(dash) * pixel;
    }
    bool Repeats() const
    {
        return std::fabs(stepAcross) > 1e-6 && (line.Dashes.empty() || period > 1e-6);
    }
    HatchPoint Seen(const HatchPoint& point) const
    {
        const double x = point.X - start.X, y = point.Y - start.Y;
        return {x * cosine + y * sine, y * cosine - x * sine};
    }

    // Calls piece(from, to) for each stroke of the line so many steps on, between two places along it. What they leave
    // of a dash is passed over where it is shorter than that.
    template <class Piece>
    void Dashes(double number, double from, double to, double shortest, const Piece& piece) const
    {
        if (line.Dashes.empty()) {
            if (to - from >= shortest)
                piece(from, to);
            return;
        }
        const double shift = number * stepAlong;
        for (double round = std::floor((from - shift) / period); shift + round * period < to; ++round) {
            double at = shift + round * period;
            for (const double dash : line.Dashes) {
                const double end = at + std::fabs(dash) * pixel;
                const double begin = std::max(at, from), stop = std::min(end, to);
                if (dash > 0 && stop - begin >= std::min(shortest, end - at))
                    piece(begin, stop);
                at = end;
            }
        }
    }
    HatchPoint Place(double along, double across) const
    {
        return {start.X + along * cosine - across * sine, start.Y + along * sine + across * cosine};
    }
    double StepAcross() const
    {
        return stepAcross;
    }

private:
    const HatchLine& line;
    double pixel, cosine, sine, stepAlong, stepAcross, period = 0;
    HatchPoint start{};
};

// Where a line crosses the border of an area, in order along it: it is inside from the first to the second, from the
// third to the fourth. Corners as the line sees them.
void Crossings(const std::vector<HatchPoint>& corners, double across, std::vector<double>& places)
{
    places.clear();
    for (size_t i = 0; i < corners.size(); ++i) {
        const HatchPoint &a = corners[i], &b = corners[i + 1 < corners.size() ? i + 1 : 0];
        if ((a.Y >= across) != (b.Y >= across))
            places.push_back(a.X + (across - a.Y) / (b.Y - a.Y) * (b.X - a.X));
    }
    std::sort(places.begin(), places.end());
}

// The ends of strokes by where they lie, and which are tied together. End 2n is the start of stroke n, 2n + 1 its end.
class Ends
{
public:
    explicit Ends(const std::vector<HatchStroke>& all, double farthest) : strokes(all), apart(farthest)
    {
        const int count = static_cast<int>(strokes.size()) * 2;
        low = high = At(0);
        for (int end = 0; end < count; ++end) {
            low = {std::min(low.X, At(end).X), std::min(low.Y, At(end).Y)};
            high = {std::max(high.X, At(end).X), std::max(high.Y, At(end).Y)};
        }
        // Boxes no smaller than what is looked for, and about as many as ends.
        box = std::max({apart, std::sqrt((high.X - low.X) * (high.Y - low.Y) / count), (high.X - low.X) / count,
                        (high.Y - low.Y) / count});
        wide = static_cast<int>((high.X - low.X) / box) + 1;
        tall = static_cast<int>((high.Y - low.Y) / box) + 1;
        first.assign(static_cast<size_t>(wide * tall), -1);
        next.assign(static_cast<size_t>(count), -1);
        tied.assign(static_cast<size_t>(count), -1);
        for (int end = count; end-- > 0;) {
            int& head = first[static_cast<size_t>(Row(At(end).Y) * wide + Column(At(end).X))];
            next[static_cast<size_t>(end)] = head;
            head = end;
        }
        for (int end = 0; end < count; ++end)
            Tie(end);
    }
    const HatchPoint& At(int end) const
    {
        const HatchStroke& stroke = strokes[static_cast<size_t>(end / 2)];
        return end % 2 == 0 ? stroke.From : stroke.To;
    }
    int Tied(int end) const // -1: to none
    {
        return tied[static_cast<size_t>(end)];
    }

private:
    int Column(double x) const
    {
        return static_cast<int>((x - low.X) / box);
    }
    int Row(double y) const
    {
        return static_cast<int>((y - low.Y) / box);
    }
    // Ties an end to the nearest one of another stroke that is free too.
    void Tie(int end)
    {
        if (Tied(end) >= 0)
            return;
        const HatchPoint& here = At(end);
        double nearest = apart;
        int best = -1;
        for (int row = std::max(Row(here.Y) - 1, 0); row <= std::min(Row(here.Y) + 1, tall - 1); ++row)
            for (int column = std::max(Column(here.X) - 1, 0); column <= std::min(Column(here.X) + 1, wide - 1);
                 ++column)
                for (int other = first[static_cast<size_t>(row * wide + column)]; other >= 0;
                     other = next[static_cast<size_t>(other)]) {
                    if (other / 2 == end / 2 || Tied(other) >= 0)
                        continue;
                    const double distance = std::hypot(At(other).X - here.X, At(other).Y - here.Y);
                    if (distance <= nearest) {
                        nearest = distance;
                        best = other;
                    }
                }
        if (best < 0)
            return;
        tied[static_cast<size_t>(end)] = best;
        tied[static_cast<size_t>(best)] = end;
    }

    const std::vector<HatchStroke>& strokes;
    double apart, box = 1;
    HatchPoint low{}, high{};
    int wide = 1, tall = 1;
    std::vector<int> first, next, tied; // the first end of a box, and the one behind it
};
} // namespace

std::vector<HatchStroke> HatchStrokes(const HatchPattern& pattern, const HatchPlace& place,
                                      const std::vector<HatchPoint>& corners, const HatchWindow& window, size_t most)
{
    std::vector<HatchStroke> strokes;
    const double shortest = pattern.PenWidth * place.Pixel;
    std::vector<HatchPoint> area, sheet;
    std::vector<double> inArea, inSheet;
    for (const HatchLine& line : pattern.Lines) {
        const Family family(line, place);
        if (!family.Repeats())
            continue;
        area.clear();
        for (const HatchPoint& corner : corners)
            area.push_back(family.Seen(corner));
        sheet = {family.Seen({window.Left, window.Bottom}), family.Seen({window.Right, window.Bottom}),
                 family.Seen({window.Right, window.Top}), family.Seen({window.Left, window.Top})};
        const auto lower = [](const HatchPoint& a, const HatchPoint& b) { return a.Y < b.Y; };
        const auto [areaLow, areaHigh] = std::minmax_element(area.begin(), area.end(), lower);
        const auto [sheetLow, sheetHigh] = std::minmax_element(sheet.begin(), sheet.end(), lower);
        double first = std::max(areaLow->Y, sheetLow->Y) / family.StepAcross();
        double last = std::min(areaHigh->Y, sheetHigh->Y) / family.StepAcross();
        if (family.StepAcross() < 0)
            std::swap(first, last);
        for (double number = std::ceil(first); number <= last; ++number) {
            const double across = number * family.StepAcross();
            Crossings(area, across, inArea);
            Crossings(sheet, across, inSheet);
            if (inSheet.size() != 2)
                continue;
            for (size_t i = 0; i + 1 < inArea.size(); i += 2) {
                const double from = std::max(inArea[i], inSheet[0]), to = std::min(inArea[i + 1], inSheet[1]);
                if (from >= to)
                    continue;
                family.Dashes(number, from, to, shortest, [&](double begin, double end) {
                    strokes.push_back({family.Place(begin, across), family.Place(end, across)});
                });
                if (strokes.size() > most)
                    return strokes;
            }
        }
    }
    return strokes;
}

std::vector<std::vector<HatchPoint>> JoinedStrokes(const std::vector<HatchStroke>& strokes, double apart)
{
    std::vector<std::vector<HatchPoint>> chains;
    if (strokes.empty())
        return chains;
    const Ends ends(strokes, apart);
    std::vector<char> drawn(strokes.size());
    const auto middle = [&](int end) {
        const HatchPoint &a = ends.At(end), &b = ends.At(ends.Tied(end));
        return HatchPoint{(a.X + b.X) / 2, (a.Y + b.Y) / 2};
    };
    // From an end through all that is tied on behind it.
    const auto draw = [&](int end) {
        std::vector<HatchPoint>& chain = chains.emplace_back();
        chain.push_back(ends.Tied(end) < 0 ? ends.At(end) : middle(end));
        while (end >= 0 && !drawn[static_cast<size_t>(end / 2)]) {
            drawn[static_cast<size_t>(end / 2)] = 1;
            end ^= 1;
            chain.push_back(ends.Tied(end) < 0 ? ends.At(end) : middle(end));
            end = ends.Tied(end);
        }
    };
    const int count = static_cast<int>(strokes.size()) * 2;
    for (int end = 0; end < count; ++end)
        if (ends.Tied(end) < 0 && !drawn[static_cast<size_t>(end / 2)])
            draw(end);
    for (int end = 0; end < count; end += 2) // what is left comes back to its start
        if (!drawn[static_cast<size_t>(end / 2)])
            draw(end);
    return chains;
}
