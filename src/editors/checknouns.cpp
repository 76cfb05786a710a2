// checknouns.cpp -- the check list's view of a layer's words: a code that contradicts the main soil of its text.
//
// Only what is sure is told. The words of a log and its codes follow rules of their own: a sandy clay may be SC by its
// sieve curve, a made ground of gravel has the code of a fill. So a code is held against the soil that the text names
// first, and it contradicts it when the text names nowhere what the code says.
#include "boring/boringboxes.h"
#include "canvas/patterns.h"
#include "editors/checkparts.h"

#include <algorithm>
#include <cmath>

using namespace BoringChecks;

namespace
{
enum Soil { None, Clay, Silt, Sand, Gravel, Peat, Hard };

struct Noun {
    std::string_view Word;
    Soil Kind;
};

struct Word {
    Text Upper;
    bool Capitals;
    char Behind; // the character that ends it
};
} // namespace

static constexpr Noun nouns[] = {{"CLAY", Clay}, {"CLAYS", Clay},     {"SILT", Silt},      {"SILTS", Silt},
                                 {"SAND", Sand}, {"SANDS", Sand},     {"GRAVEL", Gravel},  {"GRAVELS", Gravel},
                                 {"PEAT", Peat}, {"COBBLES", Gravel}, {"BOULDERS", Gravel}};

static Soil SoilOf(const Text& upper)
{
    for (const Noun& noun : nouns)
        if (upper == noun.Word)
            return noun.Kind;
    return None;
}

static bool Letter(char letter)
{
    const char upper = UpperCase(letter);
    return upper >= 'A' && upper <= 'Z';
}

// The words of a text. What stands in brackets names a formation or a code, and is left out.
static std::vector<Word> Words(const Text& text)
{
    std::vector<Word> words;
    int brackets = 0;
    for (size_t at = 0; at < text.size();) {
        if (text[at] == '(' || text[at] == '[')
            ++brackets;
        if ((text[at] == ')' || text[at] == ']') && brackets > 0)
            --brackets;
        if (!Letter(text[at])) {
            if (!words.empty() && text[at] != ' ' && words.back().Behind == ' ')
                words.back().Behind = text[at];
            ++at;
            continue;
        }
        const size_t start = at;
        while (at < text.size() && Letter(text[at]))
            ++at;
        const Text word = text.substr(start, at - start);
        if (brackets == 0)
            words.push_back({UpperCase(word), word == UpperCase(word), at < text.size() ? text[at] : '.'});
    }
    return words;
}

// Words behind which a soil is no longer the main one.
static bool EndsMain(const Text& upper)
{
    static constexpr std::string_view words[] = {"WITH", "SOME", "TRACE", "OF",     "CONTAINING", "OCCASIONAL",
                                                 "FEW",  "OVER", "IN",    "LITTLE", "AND/OR"};
    return std::find(std::begin(words), std::end(words), upper) != std::end(words);
}

static bool EndsClause(char letter)
{
    return letter == '.' || letter == ';' || letter == ':' || letter == ',';
}

// The soils that a text names first: one, or several joined without a break, "SAND and GRAVEL", "CLAY/SILT". Where a
// log writes its soils in capitals those count alone; elsewhere the first clause has to end in its only soil.
static std::vector<Soil> MainSoils(const Text& text)
{
    const std::vector<Word> words = Words(text);
    const bool capitals = std::any_of(words.begin(), words.end(),
                                      [](const Word& word) { return word.Capitals && SoilOf(word.Upper) != None; });
    std::vector<Soil> soils;
    bool lastIsSoil = false;
    for (const Word& word : words) {
        if (!capitals && soils.empty() && EndsMain(word.Upper))
            return {};
        const Soil soil = capitals && !word.Capitals ? None : SoilOf(word.Upper);
        if (!soils.empty() && EndsMain(word.Upper))
            break;
        lastIsSoil = soil != None;
        if (soil != None)
            soils.push_back(soil);
        if (EndsClause(word.Behind) && (!soils.empty() || !capitals)) {
            if (!soils.empty() || word.Behind != ':')
                break;
        }
    }
    if (!capitals && (soils.size() != 1 || !lastIsSoil))
        return {};
    return soils;
}

// The soil that the text names first, in whatever letters.
static Soil FirstSoil(const Text& text)
{
    for (const Word& word : Words(text))
        if (SoilOf(word.Upper) != None)
            return SoilOf(word.Upper);
    return None;
}

// ---- What a code says

static int PatternOf(const Text& half)
{
    const int file = getpch(half);
    return file > 20 ? file - 20 : 0;
}

// The soil of a pattern by its number in the Fill Pattern Guide. Of made ground, till, topsoil and rock core nothing is
// known; Hard are rocks that no soil grades into.
static Soil SoilOfPattern(int pattern)
{
    if (pattern >= 1 && pattern <= 4)
        return Gravel;
    if (pattern >= 5 && pattern <= 8)
        return Sand;
    if (pattern == 9 || pattern == 10 || pattern == 47 || pattern == 48)
        return Silt;
    if (pattern == 11 || pattern == 12 || pattern == 45 || pattern == 46)
        return Clay;
    if (pattern == 13)
        return Peat;
    static constexpr int rocks[] = {19, 25, 26, 28, 29, 30, 31, 32, 33, 34, 35};
    return std::find(std::begin(rocks), std::end(rocks), pattern) != std::end(rocks) ? Hard : None;
}

static bool CleanPattern(int pattern)
{
    return pattern == 1 || pattern == 2 || pattern == 5 || pattern == 6;
}

// ---- The two against each other

static bool HoldsAny(const Text& upper, std::initializer_list<std::string_view> words)
{
    return std::any_of(words.begin(), words.end(),
                       [&](std::string_view word) { return upper.find(word) != Text::npos; });
}

// A text that names what the code says, if only as an adjective or a bed, leaves room for it.
static bool Mentions(const Text& upper, Soil code)
{
    switch (code) {
    case Clay:
        return HoldsAny(upper, {"CLAY"});
    case Silt:
        return HoldsAny(upper, {"SILT"});
    case Sand:
        return HoldsAny(upper, {"SAND"});
    case Gravel:
        return HoldsAny(upper, {"GRAVEL", "COBBLE", "BOULDER", "STONE", "PEBBLE"});
    case Peat:
        return HoldsAny(upper, {"PEAT", "ORGANIC", "HUM", "ROOT", "PLANT", "WOOD", "VEGET", "TOPSOIL", "FIBR", "MUCK"});
    case Hard:
        return HoldsAny(upper, {"ROCK",     "GRANIT", "BASALT",   "VOLCAN",    "TUFF",    "SCHIST",   "GNEISS",
                                "QUARTZ",   "MARBLE", "COAL",     "CHARCOAL",  "WEATHER", "RESIDUAL", "DECOMPOS",
                                "SAPROLIT", "LAVA",   "DOLERITE", "METAMORPH", "IGNEOUS", "SLATE",    "PORPHYR"});
    case None:
        break;
    }
    return true;
}

static bool Layered(const Text& upper)
{
    return HoldsAny(upper, {"LAYER", "BEDS", "BEDDED", "LAMINA", "ALTERNAT", "BANDS", "VARV", "LENS", "SEAMS"});
}

static bool Fine(Soil soil)
{
    return soil == Clay || soil == Silt;
}

// The text may say its code itself, in brackets: "Silty SAND (SM)".
static bool NamesCode(const Text& upper, const Text& cell)
{
    const Text code(Before(cell, ','));
    return upper.find("(" + code + ")") != Text::npos || upper.find("[" + code + "]") != Text::npos;
}

// A code in brackets that says the same soil as the words: then nothing else is left room for.
static bool NamesSoil(const Text& upper, Soil soil)
{
    for (int i = 1; i <= MaxUscsCodes; ++i)
        if (SoilOfPattern(i) == soil && upper.find("(" + uscsCodes[i] + ")") != Text::npos)
            return true;
    return false;
}

static bool Contradicts(int pattern, Soil noun, const Text& upper)
{
    const Soil code = SoilOfPattern(pattern);
    if (code == None || code == noun || (Fine(code) && Fine(noun)))
        return false;
    if (NamesSoil(upper, noun))
        return true;
    // A clean sand or gravel is no clay, however sandy that is.
    if (Fine(noun) && CleanPattern(pattern))
        return !Layered(upper);
    return !Mentions(upper, code);
}

static const char* const soilWords[] = {"", "clay", "silt", "sand", "gravel", "peat", ""};

static void CheckLayer(int row, const Text& text, int place)
{
    Text cell = UpperCase(Cell(LithBox, row, 2));
    const Text upper = UpperCase(text);
    std::vector<Soil> soils = MainSoils(text);
    if (cell.empty() || soils.empty() || NamesCode(upper, cell))
        return;
    const Soil told = soils.front();
    soils.push_back(FirstSoil(text)); // "silty sand, below 5 feet GRAVEL" may be either
    const char separator = Holds(cell, '/') ? '/' : '-';
    std::vector<Text> halves = {Text(Before(Before(cell, separator), ','))};
    if (Holds(cell, separator))
        halves.emplace_back(Before(Behind(cell, separator), ','));
    for (const Text& half : halves)
        for (const Soil soil : soils)
            if (!Contradicts(PatternOf(half), soil, upper))
                return;
    FlagText("marker-code",
             "The text of contact " + PlainNumber(row) + " tells of " + soilWords[told] + ", and its code is " + cell +
                 ".",
             "MemoDes", place);
}

// ---- The texts of the layers

namespace
{
struct LayerText {
    int Row;
    int Place;
    Text Words;
};
} // namespace

static void AddLine(Text& words, Text line)
{
    if (line.starts_with("<<")) {
        line.erase(0, 2);
        if (line.ends_with(">>"))
            line.resize(line.size() - 2);
    }
    words += line;
    words += ' ';
}

// The contact that a line of descriptions begins the text of; 0 for none, -1 for a line of text.
static int LayerBegun(const Text& line, bool dots)
{
    if (!dots) {
        if (line.starts_with('@'))
            return int(std::clamp(std::nearbyint(TextNumber(line.substr(1))), 0.0, 1000.0));
        return line.starts_with('-') ? 0 : -1;
    }
    const Text command = UpperCase(line);
    if (!command.starts_with('.') || command.starts_with(".."))
        return -1;
    if (!command.starts_with(".L"))
        return command.starts_with(".T") || command.starts_with(".NF") ? -1 : 0; // a tick's text is no layer's
    const double depth = TextNumber(std::string_view(command).substr(command.starts_with(".L=") ? 3 : 2));
    if (depth == 0)
        return 1;
    for (int row = 1; row < Rows(LithBox); ++row)
        if (Number(LithBox, row, 1) == depth)
            return row + 1;
    return 0;
}

void BoringChecks::CheckNouns()
{
    const std::vector<StoredLine> lines = StoredLines(1);
    if (lines.empty())
        return;
    const bool dots = !lines[0].Words.starts_with("@") && !UpperCase(lines[0].Words).starts_with("MANUAL");
    std::vector<LayerText> layers;
    bool open = false;
    for (const StoredLine& line : lines) {
        const int row = LayerBegun(line.Words, dots);
        if (row >= 0)
            open = row > 0;
        if (row > 0)
            layers.push_back({row, line.Place, ""});
        else if (row < 0 && open && !(dots && line.Words.starts_with(".") && !line.Words.starts_with("..")))
            AddLine(layers.back().Words, line.Words);
    }
    for (const LayerText& layer : layers)
        if (layer.Row <= Rows(LithBox))
            CheckLayer(layer.Row, layer.Words, layer.Place);
}
