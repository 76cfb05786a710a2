// rowmoves.cpp -- where the rows of a grid have gone in a step.
#include "grid/rowmoves.h"

#include <algorithm>

static RowMoves AsTheyWere(int rows)
{
    RowMoves moves(size_t(rows) + 1);
    for (int row = 1; row <= rows; ++row)
        moves[size_t(row)] = row;
    return moves;
}

int MovedRow(const RowMoves& moves, int row)
{
    const int listed = int(moves.size()) - 1;
    if (row <= listed)
        return moves[size_t(row)];
    return listed < 1 || moves.back() == 0 ? row : row + moves.back() - listed;
}

RowMoves Inverse(const RowMoves& moves)
{
    RowMoves back(size_t(moves.empty() ? 0 : *std::max_element(moves.begin(), moves.end())) + 1);
    for (size_t row = 1; row < moves.size(); ++row)
        if (moves[row] > 0 && back[size_t(moves[row])] == 0)
            back[size_t(moves[row])] = int(row);
    return back;
}

RowMoves RowInserted(int rows, int at)
{
    RowMoves moves = AsTheyWere(rows);
    for (int row = at; row <= rows; ++row)
        ++moves[size_t(row)];
    return moves;
}

RowMoves RowDeleted(int rows, int at)
{
    RowMoves moves = AsTheyWere(rows);
    moves[size_t(at)] = 0;
    for (int row = at + 1; row <= rows; ++row)
        --moves[size_t(row)];
    return moves;
}

// ---- Pasted rows

static bool Blank(const std::vector<Text>& row)
{
    return std::all_of(row.begin(), row.end(), [](const Text& cell) { return IsBlank(cell); });
}

static bool SameDepth(const std::vector<Text>& a, const std::vector<Text>& b)
{
    return !IsBlank(a[0]) && !IsBlank(b[0]) && TextNumber(a[0]) == TextNumber(b[0]);
}

static bool SameRow(const std::vector<Text>& a, const std::vector<Text>& b)
{
    if (Blank(a) || !(SameDepth(a, b) || SameText(Trim(a[0]), Trim(b[0]))))
        return false;
    for (size_t i = 1; i < a.size(); ++i)
        if (!SameText(Trim(a[i]), Trim(b[i])))
            return false;
    return true;
}

namespace
{
// A row before and the row after that it is.
struct Pair {
    int before, after;
};
} // namespace

// The longest chain of pairs that goes down both tables, with as few changes between rows that have moved by different
// distances as can be; of two such chains the one with more rows at their place.
static std::vector<Pair> LongestChain(const std::vector<Pair>& pairs)
{
    constexpr size_t most = 3000; // a table of equal rows says nothing of where they have gone
    if (pairs.size() > most)
        return {};
    std::vector<long> worth(pairs.size());
    std::vector<int> last(pairs.size(), -1);
    int best = -1;
    const auto distance = [](const Pair& pair) { return pair.after - pair.before; };
    const auto step = [](int a, int b) { return a == b ? 0L : -1000L; };
    for (size_t i = 0; i < pairs.size(); ++i) {
        const long own = 1000000L + (distance(pairs[i]) == 0);
        worth[i] = own + step(0, distance(pairs[i]));
        for (size_t k = 0; k < i; ++k) {
            if (pairs[k].before >= pairs[i].before || pairs[k].after >= pairs[i].after)
                continue;
            const long chain = worth[k] + own + step(distance(pairs[k]), distance(pairs[i]));
            if (chain > worth[i]) {
                worth[i] = chain;
                last[i] = int(k);
            }
        }
        if (best < 0 || worth[i] > worth[size_t(best)])
            best = int(i);
    }
    std::vector<Pair> chain;
    for (int i = best; i >= 0; i = last[size_t(i)])
        chain.push_back(pairs[size_t(i)]);
    std::reverse(chain.begin(), chain.end());
    return chain;
}

namespace
{
// The rows that are not paired yet, those of before and of after, in order.
struct Loose {
    std::vector<int> before, after;
};

struct Matching {
    const RowList& before;
    const RowList& after;
    RowMoves moves;

    // The chain of the pairs for which this holds, and what lies between its members.
    template <class Same>
    std::vector<Loose> Take(const Loose& loose, Same same)
    {
        std::vector<Pair> pairs;
        for (const int i : loose.before)
            for (const int k : loose.after)
                if (same(before[size_t(i)], after[size_t(k)]))
                    pairs.push_back({i, k});
        std::vector<Loose> between(1);
        const std::vector<Pair> chain = LongestChain(pairs);
        auto row = loose.before.begin(), pasted = loose.after.begin();
        for (const Pair& pair : chain) {
            for (; *row != pair.before; ++row)
                between.back().before.push_back(*row);
            for (; *pasted != pair.after; ++pasted)
                between.back().after.push_back(*pasted);
            moves[size_t(*row++)] = *pasted++;
            between.emplace_back();
        }
        between.back().before.insert(between.back().before.end(), row, loose.before.end());
        between.back().after.insert(between.back().after.end(), pasted, loose.after.end());
        return between;
    }
    // What is left between two rows that are known was written over, one row by the other. No row with words has
    // become a blank one.
    void TakeInOrder(const Loose& loose)
    {
        auto pasted = loose.after.begin();
        for (const int row : loose.before) {
            auto next = pasted;
            while (next != loose.after.end() && !Blank(before[size_t(row)]) && Blank(after[size_t(*next)]))
                ++next;
            if (next == loose.after.end())
                continue;
            moves[size_t(row)] = *next;
            pasted = next + 1;
        }
    }
};
} // namespace

RowMoves RowsPasted(const RowList& before, const RowList& after, int cut, int pastedAt, int count)
{
    Matching match{before, after, RowMoves(before.size())};
    Loose loose;
    for (int row = 1; row < int(before.size()); ++row)
        if (cut == 0 || row < cut || row >= cut + count)
            loose.before.push_back(row);
        else if (pastedAt + row - cut < int(after.size()))
            match.moves[size_t(row)] = pastedAt + row - cut;
    for (int row = 1; row < int(after.size()); ++row)
        if (cut == 0 || row < pastedAt || row >= pastedAt + count)
            loose.after.push_back(row);
    const std::vector<Loose> gaps = match.Take(loose, SameRow);
    if (gaps.size() == 1 && cut == 0)
        return {};
    for (const Loose& gap : gaps)
        for (const Loose& rest : match.Take(gap, SameDepth))
            match.TakeInOrder(rest);
    for (int row = pastedAt; row < pastedAt + count && row < int(before.size()); ++row)
        if (match.moves[size_t(row)] == 0 && Blank(before[size_t(row)]))
            match.moves[size_t(row)] = row; // a name may have waited here for the layer that has come
    return match.moves == AsTheyWere(int(before.size()) - 1) ? RowMoves() : match.moves;
}
