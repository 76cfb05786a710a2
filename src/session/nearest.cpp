// nearest.cpp -- the table of nearest letters, and the procedures that read it.
#include "session/nearest.h"

#include "session/unicode.h"

#include <algorithm>
#include <vector>

namespace
{
// The letters with marks, each by the letter of the code page that is left when marks are taken off, "." where there
// is none. The code in a comment is that of the first of 32 letters, which may take two lines.
constexpr std::string_view LettersFrom0100 = "AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGg"                               // 0100
                                             "GgGgHhHhIiIiIiIiIi..JjKkkLlLlLlL"                               // 0120
                                             "lLlNnNnNnnNnOoOoOo\x8C\x9CRrRrRrSsSsSs"                         // 0140
                                             "\x8A\x9ATtTtTtUuUuUuUuUuUuWwYy\x9FZzZz\x8E\x9Es";               // 0160
constexpr std::string_view LettersFrom0180 = "bBBb...Cc.DDd....F\x83G...IKkl..NnO"                            // 0180
                                             "Oo..Pp.....tTtTUu.VYyZz........."                               // 01A0
                                             ".............AaIiOoUu\xDC\xFC\xDC\xFC\xDC\xFC\xDC\xFC.\xC4\xE4" // 01C0
                                             "Aa\xC6\xE6GgGgKkOoOo..j...Gg..Nn\xC5\xE5\xC6\xE6\xD8\xF8"       // 01E0
                                             "AaAaEeEeIiIiOoOoRrRrUuUuSsTt..Hh"                               // 0200
                                             "Nd..ZzAaEe\xD6\xF6\xD5\xF5OoOoYylnt...ACcLTs"                   // 0220
                                             "z..B..EeJj.qRrYy";                                              // 0240
constexpr std::string_view LettersFrom1E00 = "AaBbBbBb\xC7\xE7"
                                             "DdDdDdDdDdEeEeEeEeEeFf"                       // 1E00
                                             "GgHhHhHhHhHhIi\xCF\xEFKkKkKkLlLlLlLlMm"       // 1E20
                                             "MmMmNnNnNnNn\xD5\xF5\xD5\xF5OoOoPpPpRrRrRrRr" // 1E40
                                             "SsSsSs\x8A\x9ASsTtTtTtTtUuUuUuUuUuVvVv"       // 1E60
                                             "WwWwWwWwWwXxXxYyZzZzZzhtwya....."             // 1E80
                                             "AaAa\xC2\xE2\xC2\xE2\xC2\xE2\xC2\xE2"
                                             "AaAaAaAaAaAaEeEeEe\xCA\xEA" // 1EA0
                                             "\xCA\xEA\xCA\xEA\xCA\xEA"
                                             "EeIiIiOoOo\xD4\xF4\xD4\xF4\xD4\xF4\xD4\xF4OoOoOoOo" // 1EC0
                                             "OoOoUuUuUuUuUuUuUuYyYyYyYy....Yy";                  // 1EE0

struct Block {
    char32_t first;
    std::string_view letters;
};
constexpr Block LetterBlocks[] = {{0x0100, LettersFrom0100}, {0x0180, LettersFrom0180}, {0x1E00, LettersFrom1E00}};

struct Near {
    char32_t letter;
    std::string_view nearest;
};

// Signs and letters one by one. What is looked up first is found first: what is not here may be in a block above.
constexpr Near NearSigns[] = {
    // Letters in pairs.
    {0x0132, "IJ"},
    {0x0133, "ij"},
    {0x01C4, "D\x8E"},
    {0x01C5, "D\x9E"},
    {0x01C6, "d\x9E"},
    {0x01C7, "LJ"},
    {0x01C8, "Lj"},
    {0x01C9, "lj"},
    {0x01CA, "NJ"},
    {0x01CB, "Nj"},
    {0x01CC, "nj"},
    {0x01F1, "DZ"},
    {0x01F2, "Dz"},
    {0x01F3, "dz"},
    {0x1E9E, "\xDF"},
    // Letters that stand for apostrophes, primes and degrees.
    {0x02B9, "'"},
    {0x02BA, "\""},
    {0x02BB, "'"},
    {0x02BC, "'"},
    {0x02BD, "'"},
    {0x02C8, "'"},
    {0x02DA, "\xB0"},
    {0x02DD, "\""},
    // Greek by name, but for the signs of units: the small mu of micro and the capital omega of Ohm.
    {0x0391, "Alpha"},
    {0x0392, "Beta"},
    {0x0393, "Gamma"},
    {0x0394, "Delta"},
    {0x0395, "Epsilon"},
    {0x0396, "Zeta"},
    {0x0397, "Eta"},
    {0x0398, "Theta"},
    {0x0399, "Iota"},
    {0x039A, "Kappa"},
    {0x039B, "Lambda"},
    {0x039C, "Mu"},
    {0x039D, "Nu"},
    {0x039E, "Xi"},
    {0x039F, "Omicron"},
    {0x03A0, "Pi"},
    {0x03A1, "Rho"},
    {0x03A3, "Sigma"},
    {0x03A4, "Tau"},
    {0x03A5, "Upsilon"},
    {0x03A6, "Phi"},
    {0x03A7, "Chi"},
    {0x03A8, "Psi"},
    {0x03A9, "Ohm"},
    {0x03B1, "alpha"},
    {0x03B2, "beta"},
    {0x03B3, "gamma"},
    {0x03B4, "delta"},
    {0x03B5, "epsilon"},
    {0x03B6, "zeta"},
    {0x03B7, "eta"},
    {0x03B8, "theta"},
    {0x03B9, "iota"},
    {0x03BA, "kappa"},
    {0x03BB, "lambda"},
    {0x03BC, "\xB5"},
    {0x03BD, "nu"},
    {0x03BE, "xi"},
    {0x03BF, "omicron"},
    {0x03C0, "pi"},
    {0x03C1, "rho"},
    {0x03C2, "sigma"},
    {0x03C3, "sigma"},
    {0x03C4, "tau"},
    {0x03C5, "upsilon"},
    {0x03C6, "phi"},
    {0x03C7, "chi"},
    {0x03C8, "psi"},
    {0x03C9, "omega"},
    {0x03D1, "theta"},
    {0x03D5, "phi"},
    {0x03F5, "epsilon"},
    // Dashes, dots and quotation marks that the code page does not have itself.
    {0x2010, "-"},
    {0x2011, "-"},
    {0x2012, "-"},
    {0x2015, "\x97"},
    {0x2016, "||"},
    {0x201B, "'"},
    {0x201F, "\""},
    {0x2023, "\x95"},
    {0x2024, "."},
    {0x2025, ".."},
    {0x2027, "\xB7"},
    {0x2028, "\r\n"},
    {0x2029, "\r\n"},
    {0x2032, "'"},
    {0x2033, "\""},
    {0x2034, "'''"},
    {0x2035, "'"},
    {0x2036, "\""},
    {0x2043, "-"},
    {0x2044, "/"},
    {0x204E, "*"},
    {0x275B, "\x91"},
    {0x275C, "\x92"},
    {0x275D, "\x93"},
    {0x275E, "\x94"},
    {0x301D, "\""},
    {0x301E, "\""},
    {0x301F, "\""},
    {0xFE58, "-"},
    {0xFE63, "-"},
    // Digits and signs above and below the line.
    {0x2070, "0"},
    {0x2071, "i"},
    {0x2074, "4"},
    {0x2075, "5"},
    {0x2076, "6"},
    {0x2077, "7"},
    {0x2078, "8"},
    {0x2079, "9"},
    {0x207A, "+"},
    {0x207B, "-"},
    {0x207C, "="},
    {0x207D, "("},
    {0x207E, ")"},
    {0x207F, "n"},
    {0x2080, "0"},
    {0x2081, "1"},
    {0x2082, "2"},
    {0x2083, "3"},
    {0x2084, "4"},
    {0x2085, "5"},
    {0x2086, "6"},
    {0x2087, "7"},
    {0x2088, "8"},
    {0x2089, "9"},
    {0x208A, "+"},
    {0x208B, "-"},
    {0x208C, "="},
    {0x208D, "("},
    {0x208E, ")"},
    {0x2090, "a"},
    {0x2091, "e"},
    {0x2092, "o"},
    {0x2093, "x"},
    {0x2095, "h"},
    {0x2096, "k"},
    {0x2097, "l"},
    {0x2098, "m"},
    {0x2099, "n"},
    {0x209A, "p"},
    {0x209B, "s"},
    {0x209C, "t"},
    // Fractions.
    {0x2150, "1/7"},
    {0x2151, "1/9"},
    {0x2152, "1/10"},
    {0x2153, "1/3"},
    {0x2154, "2/3"},
    {0x2155, "1/5"},
    {0x2156, "2/5"},
    {0x2157, "3/5"},
    {0x2158, "4/5"},
    {0x2159, "1/6"},
    {0x215A, "5/6"},
    {0x215B, "1/8"},
    {0x215C, "3/8"},
    {0x215D, "5/8"},
    {0x215E, "7/8"},
    // Roman numbers, which name grades and zones.
    {0x2160, "I"},
    {0x2161, "II"},
    {0x2162, "III"},
    {0x2163, "IV"},
    {0x2164, "V"},
    {0x2165, "VI"},
    {0x2166, "VII"},
    {0x2167, "VIII"},
    {0x2168, "IX"},
    {0x2169, "X"},
    {0x216A, "XI"},
    {0x216B, "XII"},
    {0x2170, "i"},
    {0x2171, "ii"},
    {0x2172, "iii"},
    {0x2173, "iv"},
    {0x2174, "v"},
    {0x2175, "vi"},
    {0x2176, "vii"},
    {0x2177, "viii"},
    {0x2178, "ix"},
    {0x2179, "x"},
    {0x217A, "xi"},
    {0x217B, "xii"},
    // Units and signs like letters.
    {0x20A4, "\xA3"},
    {0x2103, "\xB0"
             "C"},
    {0x2105, "c/o"},
    {0x2109, "\xB0"
             "F"},
    {0x2113, "l"},
    {0x2116, "No."},
    {0x2126, "Ohm"},
    {0x212A, "K"},
    {0x212B, "\xC5"},
    {0x338D, "\xB5g"},
    {0x338E, "mg"},
    {0x338F, "kg"},
    {0x339B, "\xB5m"},
    {0x339C, "mm"},
    {0x339D, "cm"},
    {0x339E, "km"},
    {0x339F, "mm\xB2"},
    {0x33A0, "cm\xB2"},
    {0x33A1, "m\xB2"},
    {0x33A2, "km\xB2"},
    {0x33A3, "mm\xB3"},
    {0x33A4, "cm\xB3"},
    {0x33A5, "m\xB3"},
    {0x33AA, "kPa"},
    {0x33AB, "MPa"},
    // Arrows.
    {0x2190, "<-"},
    {0x2191, "^"},
    {0x2192, "->"},
    {0x2193, "v"},
    {0x2194, "<->"},
    {0x21D0, "<-"},
    {0x21D2, "=>"},
    {0x21D4, "<=>"},
    // Signs of arithmetic.
    {0x0338, "/"},
    {0x2205, "\xD8"},
    {0x2206, "Delta"},
    {0x220F, "Pi"},
    {0x2211, "Sigma"},
    {0x2212, "-"},
    {0x2213, "-/+"},
    {0x2215, "/"},
    {0x2216, "\\"},
    {0x2217, "*"},
    {0x2218, "\xB0"},
    {0x2219, "\xB7"},
    {0x221A, "sqrt"},
    {0x221E, "inf."},
    {0x2223, "|"},
    {0x2225, "||"},
    {0x2236, ":"},
    {0x223C, "~"},
    {0x2243, "~"},
    {0x2245, "~"},
    {0x2248, "~"},
    {0x2260, "<>"},
    {0x2261, "="},
    {0x2264, "<="},
    {0x2265, ">="},
    {0x2266, "<="},
    {0x2267, ">="},
    {0x226A, "<<"},
    {0x226B, ">>"},
    {0x2272, "<~"},
    {0x2273, ">~"},
    {0x22C5, "\xB7"},
    {0x22EF, "\x85"},
    {0x2300, "\xD8"},
    {0x2A7D, "<="},
    {0x2A7E, ">="},
    // Signs that stand before the entries of a list.
    {0x25A0, "\x95"},
    {0x25AA, "\x95"},
    {0x25CB, "o"},
    {0x25CF, "\x95"},
    {0x25E6, "\xB0"},
    {0x2713, "x"},
    {0x2714, "x"},
    // Joined letters.
    {0xFB00, "ff"},
    {0xFB01, "fi"},
    {0xFB02, "fl"},
    {0xFB03, "ffi"},
    {0xFB04, "ffl"},
    {0xFB05, "st"},
    {0xFB06, "st"},
};

// A mark that follows its letter, and the letters that the code page has with it.
struct Mark {
    char32_t mark;
    std::string_view bare, marked;
};
constexpr Mark Marks[] = {
    {0x0300, "AEIOUaeiou", "\xC0\xC8\xCC\xD2\xD9\xE0\xE8\xEC\xF2\xF9"},
    {0x0301, "AEIOUYaeiouy", "\xC1\xC9\xCD\xD3\xDA\xDD\xE1\xE9\xED\xF3\xFA\xFD"},
    {0x0302, "AEIOUaeiou", "\xC2\xCA\xCE\xD4\xDB\xE2\xEA\xEE\xF4\xFB"},
    {0x0303, "ANOano", "\xC3\xD1\xD5\xE3\xF1\xF5"},
    {0x0308, "AEIOUYaeiouy", "\xC4\xCB\xCF\xD6\xDC\x9F\xE4\xEB\xEF\xF6\xFC\xFF"},
    {0x030A, "Aa", "\xC5\xE5"},
    {0x030C, "SZsz", "\x8A\x8E\x9A\x9E"},
    {0x0327, "Cc", "\xC7\xE7"},
};

bool Within(char32_t letter, char32_t first, char32_t last)
{
    return letter >= first && letter <= last;
}

// Joins, marks of direction and choices between two looks of a sign.
bool WithoutWidth(char32_t letter)
{
    return Within(letter, 0x200B, 0x200F) || Within(letter, 0x202A, 0x202E) || Within(letter, 0x2060, 0x206F) ||
           Within(letter, 0xFE00, 0xFE0F) || letter == 0xFEFF;
}

bool OtherBlank(char32_t letter)
{
    return letter == 0x1680 || Within(letter, 0x2000, 0x200A) || letter == 0x202F || letter == 0x205F ||
           letter == 0x3000;
}

bool Fraction(char32_t letter)
{
    return Within(letter, 0x2150, 0x215E);
}

bool Raised(char32_t letter)
{
    return letter == 0xB9 || letter == 0xB2 || letter == 0xB3 || Within(letter, 0x2070, 0x207E);
}

bool IsDigit(char32_t letter)
{
    return Within(letter, '0', '9');
}

// The code page's own letter for a character, "?" for a question mark and for what it lacks.
Text OwnLetter(char32_t letter)
{
    std::string utf8;
    AddUtf8(utf8, letter);
    return FromUtf8(utf8);
}

// The letter that the last of a text and the mark behind it are together, 0 where the code page has none.
char Joined(std::string_view text, char32_t mark)
{
    for (const Mark& one : Marks) {
        const size_t at = one.mark == mark && !text.empty() ? one.bare.find(text.back()) : std::string_view::npos;
        if (at != std::string_view::npos)
            return one.marked[at];
    }
    return 0;
}
} // namespace

Text NearestInCodePage(char32_t letter)
{
    const Text own = OwnLetter(letter);
    if (own != "?" || letter == '?')
        return own;
    for (const Near& sign : NearSigns)
        if (sign.letter == letter)
            return Text(sign.nearest);
    for (const Block& block : LetterBlocks)
        if (letter >= block.first && letter < block.first + block.letters.size() &&
            block.letters[letter - block.first] != '.')
            return Text(1, block.letters[letter - block.first]);
    if (Within(letter, 0xFF01, 0xFF5E)) // letters as wide as they are high
        return Text(1, static_cast<char>(letter - 0xFF01 + '!'));
    if (OtherBlank(letter))
        return " ";
    if (WithoutWidth(letter) || Within(letter, 0x0300, 0x036F))
        return "";
    return "?";
}

NearestText NearestOf(std::string_view utf8)
{
    NearestText result;
    char32_t before = 0;
    for (size_t at = 0; at < utf8.size();) {
        const char32_t letter = NextUtf8(utf8, at);
        if (const char joined = Joined(result.text, letter)) {
            result.text.back() = joined;
            continue;
        }
        Text near = NearestInCodePage(letter);
        const bool own = near == OwnLetter(letter) && (near != "?" || letter == '?');
        // "2" and a third are not twenty-one thirds, nor is ten to the fourth a hundred and four.
        if (!own && IsDigit(before) && Fraction(letter))
            near = " " + near;
        if (!own && IsDigit(before) && Raised(letter))
            near = "^" + near;
        if (!own && !WithoutWidth(letter)) {
            ++result.replaced;
            result.lost += near == "?";
            if (result.replaced == 1)
                result.first = near;
        }
        result.text += near;
        before = letter;
    }
    return result;
}

Text ReplacementWords(const NearestText& nearest)
{
    if (nearest.replaced == 0)
        return "";
    if (nearest.replaced == 1)
        return "1 character is not in the code page: \"" + nearest.first + "\" stands for it.";
    const Text words = PlainNumber(nearest.replaced) + " characters are not in the code page: ";
    if (nearest.lost == nearest.replaced)
        return words + "\"?\" stands for them.";
    if (nearest.lost > 0)
        return words + "the nearest stand for them, \"?\" for " + PlainNumber(nearest.lost) + ".";
    return words + "the nearest stand for them.";
}

std::string ReplacedCharacters(std::string_view utf8)
{
    const NearestText whole = NearestOf(utf8);
    if (whole.replaced == 0)
        return "";
    constexpr size_t most = 6;
    std::vector<char32_t> told;
    std::string words;
    for (size_t at = 0; at < utf8.size();) {
        const char32_t letter = NextUtf8(utf8, at);
        const Text near = NearestInCodePage(letter);
        std::string itself;
        AddUtf8(itself, letter);
        if (near.empty() || ToUtf8(near) == itself || std::find(told.begin(), told.end(), letter) != told.end())
            continue;
        told.push_back(letter);
        if (told.size() <= most)
            words += (words.empty() ? "" : ", ") + itself + " became \"" + ToUtf8(near) + "\"";
    }
    if (told.empty()) // marks that were left out
        return ToUtf8(ReplacementWords(whole));
    if (told.size() > most)
        words += " and " + ToUtf8(PlainNumber(int(told.size() - most))) + " more";
    return "Not in the code page: " + words + (whole.lost > 0 ? ". Nothing is near to what became \"?\"." : ".");
}
