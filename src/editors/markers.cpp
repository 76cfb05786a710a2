// markers.cpp -- the "@" markers of a description go with their layers.
#include "editors/markers.h"

#include "boring/boringboxes.h"
#include "grid/rowmoves.h"
#include "session/session.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <set>

namespace
{
// A marker with the paragraphs up to the next one.
struct MarkedBlock {
    int number = 0; // of the row before; 0: the one that takes the place of a layer without a text
    int moved = 0;  // of the row now
    bool gone = false;
    bool above = false; // its text has gone to the layer above
    Text marker;
    std::vector<Text> lines;

    // How many of its lines are the text of the layer: text at a depth, and a marker without a number, end it.
    size_t Own() const
    {
        const auto end = std::find_if(lines.begin(), lines.end(),
                                      [](const Text& line) { return line.starts_with('-') || line.starts_with('@'); });
        return size_t(end - lines.begin());
    }
};

struct Description {
    std::vector<Text> head; // in front of the first marker
    std::vector<MarkedBlock> blocks;
    bool closed = false; // by a line end
};
} // namespace

// The digits of a marker's number. False: the line is no marker, or its number is not a whole one that names a row.
static bool MarkerDigits(const Text& line, size_t& from, size_t& length)
{
    if (!line.starts_with('@'))
        return false;
    from = line.find_first_not_of(" \t", 1);
    if (from == Text::npos)
        return false;
    length = 0;
    while (from + length < line.size() && std::isdigit(static_cast<unsigned char>(line[from + length])))
        ++length;
    const double number = TextNumber(line.substr(1));
    return length > 0 && length < 6 && number >= 1 && number == TextNumber(line.substr(from, length));
}

// What stands behind the number of a marker. No page shows it.
static Text BehindNumber(const Text& marker)
{
    size_t from = 0, length = 0;
    MarkerDigits(marker, from, length);
    return Text(Trim(std::string_view(marker).substr(from + length)));
}

static bool HasText(const MarkedBlock& block)
{
    return !BehindNumber(block.marker).empty() ||
           std::any_of(block.lines.begin(), block.lines.begin() + std::ptrdiff_t(block.Own()),
                       [](const Text& line) { return !IsBlank(line); });
}

static Description Parsed(const Text& text)
{
    Description parsed;
    parsed.closed = text.ends_with(CrLf);
    const Text whole = parsed.closed ? text : text + CrLf;
    for (size_t at = 0; at < whole.size();) {
        const size_t end = whole.find(CrLf, at);
        const Text line = whole.substr(at, end - at);
        at = end + CrLf.size();
        size_t from = 0, length = 0;
        if (MarkerDigits(line, from, length))
            parsed.blocks.push_back({int(TextNumber(line.substr(from, length))), 0, false, false, line, {}});
        else if (parsed.blocks.empty())
            parsed.head.push_back(line);
        else
            parsed.blocks.back().lines.push_back(line);
    }
    return parsed;
}

static Text Joined(const Description& parsed)
{
    Text text;
    const auto add = [&text](const Text& line) { text += line + CrLf; };
    std::for_each(parsed.head.begin(), parsed.head.end(), add);
    for (const MarkedBlock& block : parsed.blocks) {
        add(block.marker);
        std::for_each(block.lines.begin(), block.lines.end(), add);
    }
    if (!parsed.closed)
        text.resize(text.size() - CrLf.size());
    return text;
}

// The marker with another number; what stands behind the number stays.
static Text Renumbered(const Text& marker, int number)
{
    size_t from = 0, length = 0;
    MarkerDigits(marker, from, length);
    return Text(marker).replace(from, length, PlainNumber(number));
}

static bool InOrder(const std::vector<MarkedBlock>& blocks)
{
    return std::is_sorted(blocks.begin(), blocks.end(),
                          [](const MarkedBlock& a, const MarkedBlock& b) { return a.number < b.number; });
}

static bool IsLayer(const LayerRows& layers, int row)
{
    return row > 0 && row < int(layers.size()) && layers[size_t(row)];
}

// A block whose layer has gone goes to the one that has its depths: the next one below it, else the next above. Where
// there is none it stays.
static void FindLayer(MarkedBlock& block, const RowMoves& moves, const LayerRows& layers)
{
    block.moved = block.number;
    for (int other = block.number + 1; other < int(moves.size()); ++other)
        if (const int now = MovedRow(moves, other); IsLayer(layers, now)) {
            block.moved = now;
            return;
        }
    for (int other = block.number - 1; other > 0; --other)
        if (const int now = MovedRow(moves, other); IsLayer(layers, now)) {
            block.moved = now;
            block.above = true;
            return;
        }
}

static void Renumber(std::vector<MarkedBlock>& blocks, const RowMoves& moves, const LayerRows& layers)
{
    for (MarkedBlock& block : blocks) {
        block.moved = MovedRow(moves, block.number);
        block.gone = block.moved == 0;
        if (block.gone)
            FindLayer(block, moves, layers);
        block.marker = Renumbered(block.marker, block.moved);
    }
}

// Texts that belong to one layer now stand under one marker. Text at a depth stays where it is: it goes by its depth.
static void Merge(std::vector<MarkedBlock>& blocks)
{
    std::map<int, size_t> first;
    std::vector<MarkedBlock> merged;
    for (MarkedBlock& block : blocks) {
        const auto known = first.find(block.moved);
        if (known == first.end() || merged[known->second].number == block.number) {
            first.insert({block.moved, merged.size()});
            merged.push_back(std::move(block));
            continue;
        }
        MarkedBlock& under = merged[known->second];
        std::vector<Text> own(block.lines.begin(), block.lines.begin() + std::ptrdiff_t(block.Own()));
        const Text behind = BehindNumber(block.marker);
        if (!behind.empty())
            own.insert(own.begin(), behind);
        const auto placed = block.lines.begin() + std::ptrdiff_t(block.Own());
        merged.back().lines.insert(merged.back().lines.end(), placed, block.lines.end());
        under.lines.insert(under.lines.begin() + std::ptrdiff_t(under.Own()), own.begin(), own.end());
    }
    blocks = std::move(merged);
}

// The numbers below the last marker that have none and need one: they had one, or a layer has come into an order that
// had no gap. blocks are in order.
static std::set<int> PlacesToHold(const std::vector<MarkedBlock>& before, const std::vector<MarkedBlock>& now,
                                  const RowMoves& moves, const LayerRows& layers)
{
    std::set<int> had, has, free;
    for (const MarkedBlock& block : before)
        had.insert(block.number);
    for (const MarkedBlock& block : now)
        has.insert(block.moved);
    const bool whole = int(had.size()) == *had.rbegin();
    for (int number = 1; number < *had.rbegin(); ++number)
        if (!had.contains(number))
            free.insert(MovedRow(moves, number));
    std::set<int> places;
    for (int number = 1; number < *has.rbegin(); ++number)
        if (!has.contains(number) && !free.contains(number) &&
            (had.contains(number) || (whole && IsLayer(layers, number))))
            places.insert(number);
    return places;
}

static void HoldPlaces(std::vector<MarkedBlock>& blocks, const std::set<int>& places)
{
    for (const int number : places) {
        const auto behind = std::find_if(blocks.begin(), blocks.end(),
                                         [number](const MarkedBlock& block) { return block.moved > number; });
        blocks.insert(behind, {0, number, false, false, "@" + PlainNumber(number), {}});
    }
}

// ---- In words

// "@2", "@2 to @4, @7".
static Text Names(const std::set<int>& numbers)
{
    Text names;
    for (auto from = numbers.begin(); from != numbers.end();) {
        auto last = from;
        for (auto next = std::next(last); next != numbers.end() && *next == *last + 1; ++next)
            last = next;
        names +=
            (names.empty() ? "@" : ", @") + PlainNumber(*from) + (from == last ? Text() : " to @" + PlainNumber(*last));
        from = std::next(last);
    }
    return names;
}

// "Markers @5 to @9 are now @6 to @10." for each run of them.
static Text WordsOfMoves(const std::vector<MarkedBlock>& blocks)
{
    std::map<int, int> moved;
    for (const MarkedBlock& block : blocks)
        if (!block.gone && block.moved != block.number)
            moved[block.number] = block.moved;
    Text words;
    for (auto from = moved.begin(); from != moved.end();) {
        auto last = from;
        for (auto next = std::next(last);
             next != moved.end() && next->first == last->first + 1 && next->second == last->second + 1; ++next)
            last = next;
        const auto name = [](int number) { return "@" + PlainNumber(number); };
        words += (words.empty() ? "" : " ") +
                 (from == last ? "Marker " + name(from->first) + " is now " + name(from->second) + "."
                               : "Markers " + name(from->first) + " to " + name(last->first) + " are now " +
                                     name(from->second) + " to " + name(last->second) + ".");
        from = std::next(last);
    }
    return words;
}

// What becomes of the texts whose layers have gone.
static Text WordsOfGone(const std::vector<MarkedBlock>& blocks, const LayerRows& layers)
{
    Text words;
    for (const MarkedBlock& block : blocks) {
        if (!block.gone || !HasText(block))
            continue;
        const Text where = block.above ? "above" : "below";
        words += (words.empty() ? "" : " ") + ("The text of @" + PlainNumber(block.number)) +
                 ", whose layer has gone, stays" +
                 (IsLayer(layers, block.moved)
                      ? ": it is now with the layer " + where + ", under @" + PlainNumber(block.moved) + "."
                      : Text(" under its marker."));
    }
    return words;
}

// Markers without a text that have gone with their layers; one that now stands for the next layer has not.
static Text WordsOfEmpty(const std::vector<MarkedBlock>& blocks)
{
    Text words;
    for (const MarkedBlock& block : blocks)
        if (block.gone && !HasText(block) && std::any_of(blocks.begin(), blocks.end(), [&](const MarkedBlock& other) {
                return other.moved == block.moved && other.number != block.number;
            }))
            words += (words.empty() ? "The empty @" : " The empty @") + PlainNumber(block.number) + " has gone.";
    return words;
}

static Text WordsOfPlaces(const std::set<int>& places)
{
    return places.empty() ? "" : Names(places) + (places.size() == 1 ? " is" : " are") + " new, and empty.";
}

static Text InOneLine(std::initializer_list<Text> sentences)
{
    Text line;
    for (const Text& words : sentences)
        if (!words.empty())
            line += (line.empty() ? "" : " ") + words;
    return line;
}

// ---- The description

static bool NamesLayers(const Text& description)
{
    return description.starts_with('@') || UpperCase(description).starts_with("MANUAL");
}

MovedMarkers MoveMarkers(const Text& description, const RowMoves& moves, const LayerRows& layers)
{
    Description parsed = NamesLayers(description) ? Parsed(description) : Description();
    std::vector<MarkedBlock>& blocks = parsed.blocks;
    if (blocks.empty() || moves.empty())
        return {description, ""};
    const bool inOrder = InOrder(blocks);
    Renumber(blocks, moves, layers);
    const std::vector<MarkedBlock> before = blocks;
    if (inOrder)
        std::stable_sort(blocks.begin(), blocks.end(),
                         [](const MarkedBlock& a, const MarkedBlock& b) { return a.moved < b.moved; });
    Merge(blocks);
    const std::set<int> places = inOrder ? PlacesToHold(before, blocks, moves, layers) : std::set<int>();
    HoldPlaces(blocks, places);
    return {Joined(parsed), InOneLine({WordsOfMoves(before), WordsOfGone(before, layers), WordsOfEmpty(before),
                                       WordsOfPlaces(places)})};
}

// ---- The description box

static Text DescriptionText()
{
    return frmBorinput::MemoDes.text;
}

static void PutDescription(const Text& text)
{
    if (text == frmBorinput::MemoDes.text)
        return;
    frmBorinput::MemoDes.text = text;
    frmBorinput::MemoDes.edited = true;
}

static Text MoveInBox(const RowMoves& moves)
{
    const Grid& grid = frmBorinput::SSLith;
    LayerRows layers(size_t(grid.rows) + 1);
    for (int row = 1; row <= grid.rows; ++row)
        for (int column = 1; column <= grid.columns; ++column)
            layers[size_t(row)] = layers[size_t(row)] || !IsBlank(grid.Cell(row, column));
    const MovedMarkers moved = MoveMarkers(frmBorinput::MemoDes.text, moves, layers);
    PutDescription(moved.text);
    return moved.words;
}

static Text CutFromBox(int top, int bottom)
{
    if (!NamesLayers(frmBorinput::MemoDes.text))
        return "";
    std::set<int> numbers;
    for (const MarkedBlock& block : Parsed(frmBorinput::MemoDes.text).blocks)
        if (block.number >= top && block.number <= bottom)
            numbers.insert(block.number);
    if (numbers.empty())
        return "";
    return numbers.size() == 1
               ? "The text under " + Names(numbers) + " stays for now; it goes along when its row is pasted."
               : "The texts under " + Names(numbers) + " stay for now; they go along when their rows are pasted.";
}

const RowNames LayerMarkers = {DescriptionText, PutDescription, MoveInBox, CutFromBox};
