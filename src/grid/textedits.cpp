// textedits.cpp -- from one text to another by small changes.
#include "grid/textedits.h"

#include "session/session.h"

#include <algorithm>

static std::vector<Text> Paragraphs(const Text& text)
{
    std::vector<Text> paragraphs;
    size_t at = 0;
    for (size_t end = text.find(CrLf); end != Text::npos; end = text.find(CrLf, at)) {
        paragraphs.push_back(text.substr(at, end - at));
        at = end + CrLf.size();
    }
    paragraphs.push_back(text.substr(at));
    return paragraphs;
}

namespace
{
// Paragraphs from first up to last, last not included, of each text.
struct Hunk {
    size_t first, last, otherFirst, otherLast;
};
} // namespace

// What differs between a[from, aEnd) and b[from, bEnd), which begin and end with other paragraphs: the gaps of the
// longest list that both have in common.
static std::vector<Hunk> HunksOf(const std::vector<Text>& a, const std::vector<Text>& b, size_t from, size_t aEnd,
                                 size_t bEnd)
{
    const size_t rows = aEnd - from, columns = bEnd - from;
    constexpr size_t most = 1000000;
    if (rows * columns > most)
        return {{from, aEnd, from, bEnd}};
    std::vector<int> common((rows + 1) * (columns + 1)); // of what follows paragraph i of a and k of b
    const auto at = [&](size_t i, size_t k) -> int& { return common[i * (columns + 1) + k]; };
    for (size_t i = rows; i-- > 0;)
        for (size_t k = columns; k-- > 0;)
            at(i, k) = a[from + i] == b[from + k] ? at(i + 1, k + 1) + 1 : std::max(at(i + 1, k), at(i, k + 1));
    std::vector<Hunk> hunks;
    size_t i = 0, k = 0;
    while (i < rows || k < columns) {
        const size_t first = i, otherFirst = k;
        while (i < rows || k < columns) {
            if (i < rows && k < columns && a[from + i] == b[from + k])
                break;
            if (k == columns || (i < rows && at(i + 1, k) >= at(i, k + 1)))
                ++i;
            else
                ++k;
        }
        if (i > first || k > otherFirst)
            hunks.push_back({from + first, from + i, from + otherFirst, from + k});
        for (; i < rows && k < columns && a[from + i] == b[from + k]; ++i)
            ++k;
    }
    return hunks;
}

static Text Joined(const std::vector<Text>& paragraphs, size_t first, size_t last)
{
    Text text;
    for (size_t i = first; i < last; ++i)
        text += (i > first ? CrLf : Text()) + paragraphs[i];
    return text;
}

// The middle in which two paragraphs differ.
static TextEdit Within(const Text& a, const Text& b, int place)
{
    const size_t front = size_t(std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin());
    size_t back = 0;
    while (back < std::min(a.size(), b.size()) - front && a[a.size() - 1 - back] == b[b.size() - 1 - back])
        ++back;
    return {place + int(front), int(a.size() - front - back), b.substr(front, b.size() - front - back)};
}

std::vector<TextEdit> EditsBetween(const Text& before, const Text& after)
{
    const std::vector<Text> a = Paragraphs(before), b = Paragraphs(after);
    std::vector<int> places(1); // of the paragraphs of a
    for (const Text& paragraph : a)
        places.push_back(places.back() + int(paragraph.size()) + 1);
    const size_t shorter = std::min(a.size(), b.size());
    size_t from = 0, back = 0;
    while (from < shorter && a[from] == b[from])
        ++from;
    while (back < shorter - from && a[a.size() - 1 - back] == b[b.size() - 1 - back])
        ++back;
    std::vector<TextEdit> edits;
    for (const Hunk& hunk : HunksOf(a, b, from, a.size() - back, b.size() - back)) {
        const auto& [first, last, otherFirst, otherLast] = hunk;
        const int place = places[first], length = places[last] - place;
        const Text put = Joined(b, otherFirst, otherLast);
        if (last - first == otherLast - otherFirst)
            for (size_t i = 0; i < last - first; ++i)
                edits.push_back(Within(a[first + i], b[otherFirst + i], places[first + i]));
        else if (last > first && otherLast > otherFirst)
            edits.push_back({place, length - 1, put});
        else if (last == first) // put in front of a paragraph, or behind the last one
            edits.push_back(first < a.size() ? TextEdit{place, 0, put + CrLf} : TextEdit{place - 1, 0, CrLf + put});
        else // taken out with the line end behind it, or in front of the last one
            edits.push_back(last < a.size() ? TextEdit{place, length, ""} : TextEdit{place - 1, length, ""});
    }
    std::reverse(edits.begin(), edits.end());
    return edits;
}
