// text.cpp -- numbers from texts and texts from numbers, by the program's own rules and in no locale.
#include "session/text.h"

#include "session/failure.h"
#include "session/unicode.h"

#include <charconv>
#include <cmath>
#include <limits>

static bool Digit(std::string_view text, size_t at)
{
    return at < text.size() && text[at] >= '0' && text[at] <= '9';
}

double TextNumber(std::string_view text)
{
    size_t at = 0;
    while (at < text.size() && (text[at] == ' ' || text[at] == '\t'))
        ++at;
    bool negative = false;
    if (at < text.size() && (text[at] == '+' || text[at] == '-'))
        negative = text[at++] == '-';
    const size_t start = at;
    size_t digits = 0;
    for (; Digit(text, at); ++at)
        ++digits;
    if (at < text.size() && text[at] == '.')
        for (++at; Digit(text, at); ++at)
            ++digits;
    if (digits == 0)
        return 0;
    if (at < text.size() && (text[at] == 'E' || text[at] == 'e')) {
        size_t exponent = at + 1;
        if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-'))
            ++exponent;
        if (Digit(text, exponent)) {
            while (Digit(text, exponent))
                ++exponent;
            at = exponent;
        }
    }
    double value = 0;
    const auto result = std::from_chars(text.data() + start, text.data() + at, value);
    if (result.ec != std::errc() || value > double(std::numeric_limits<float>::max()))
        return 0;
    return negative && value != 0 ? -value : value;
}

int16_t RoundInt16(double value)
{
    const double whole = std::nearbyint(value);
    if (!(whole >= -32768 && whole <= 32767))
        throw RunTimeError{Overflow};
    return static_cast<int16_t>(whole);
}

int32_t RoundInt32(double value)
{
    const double whole = std::nearbyint(value);
    if (!(whole >= -2147483648.0 && whole <= 2147483647.0))
        throw RunTimeError{Overflow};
    return static_cast<int32_t>(whole);
}

double Over(double a, double b)
{
    if (b == 0)
        throw RunTimeError{DivisionByZero};
    return a / b;
}

double WholePart(double value)
{
    return std::floor(value);
}

namespace
{
// A float by its 7 significant decimal digits: value = 0.d1 d2 ... d7 x 10^point.
struct Decimal {
    bool negative = false;
    std::string digits; // empty for 0, else no zero at either end
    int point = 0;      // the place of the decimal point, counted from the front of the digits
};

Decimal SevenDigits(double value)
{
    Decimal decimal;
    const float single = static_cast<float>(value);
    if (single == 0 || !std::isfinite(single))
        return decimal;
    char buffer[40];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, double(single), std::chars_format::scientific, 6);
    const std::string_view text(buffer, static_cast<size_t>(end.ptr - buffer));
    const size_t mark = text.find('e');
    for (const char letter : text.substr(0, mark))
        if (letter >= '0' && letter <= '9')
            decimal.digits += letter;
    decimal.negative = text[0] == '-';
    int exponent = 0;
    const size_t sign = text[mark + 1] == '+' ? 2 : 1; // from_chars takes no "+"
    std::from_chars(text.data() + mark + sign, text.data() + text.size(), exponent);
    decimal.point = exponent + 1;
    while (!decimal.digits.empty() && decimal.digits.back() == '0')
        decimal.digits.pop_back();
    return decimal;
}

// The digits with the point among them, in positional form.
std::string Positional(const Decimal& decimal)
{
    const int count = static_cast<int>(decimal.digits.size());
    if (decimal.point <= 0)
        return "." + std::string(static_cast<size_t>(-decimal.point), '0') + decimal.digits;
    if (decimal.point >= count)
        return decimal.digits + std::string(static_cast<size_t>(decimal.point - count), '0');
    return decimal.digits.substr(0, static_cast<size_t>(decimal.point)) + "." +
           decimal.digits.substr(static_cast<size_t>(decimal.point));
}
} // namespace

Text PlainNumber(int value)
{
    return std::to_string(value);
}

Text PlainNumber(double value)
{
    const Decimal decimal = SevenDigits(value);
    if (decimal.digits.empty())
        return "0";
    const Text sign = decimal.negative ? "-" : "";
    const int exponent = decimal.point - 1;
    if (exponent >= -4 && exponent <= 6)
        return sign + Positional(decimal);
    Text mantissa = decimal.digits.substr(0, 1);
    if (decimal.digits.size() > 1)
        mantissa += "." + decimal.digits.substr(1);
    const Text power = std::to_string(std::abs(exponent));
    return sign + mantissa + (exponent < 0 ? "E-" : "E+") + (power.size() < 2 ? "0" : "") + power;
}

Text NumberText(int value)
{
    return (value < 0 ? "" : " ") + PlainNumber(value);
}

Text NumberText(double value)
{
    const Text number = PlainNumber(value);
    return number[0] == '-' ? number : " " + number;
}

Text IntegerField(int value)
{
    return NumberText(value) + " ";
}

Text Picture(double value, int places)
{
    Decimal decimal = SevenDigits(value);
    const Text nothing = places > 0 ? "." : "";
    if (decimal.digits.empty())
        return nothing;
    const int keep = decimal.point + places; // digits left of the cut
    if (keep < 0)
        return nothing;
    if (keep < static_cast<int>(decimal.digits.size())) {
        const bool up = decimal.digits[static_cast<size_t>(keep)] >= '5';
        decimal.digits.resize(static_cast<size_t>(keep));
        if (up) {
            size_t at = decimal.digits.size();
            while (at > 0 && decimal.digits[at - 1] == '9')
                decimal.digits[--at] = '0';
            if (at > 0)
                ++decimal.digits[at - 1];
            else {
                decimal.digits.insert(decimal.digits.begin(), '1');
                ++decimal.point;
            }
        }
        while (!decimal.digits.empty() && decimal.digits.back() == '0')
            decimal.digits.pop_back();
        if (decimal.digits.empty())
            return nothing;
    }
    Text text = Positional(decimal);
    if (places > 0 && text.find('.') == Text::npos)
        text += ".";
    return (decimal.negative ? "-" : "") + text;
}

std::string_view LTrim(std::string_view text)
{
    const size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

std::string_view RTrim(std::string_view text)
{
    const size_t last = text.find_last_not_of(' ');
    return last == std::string_view::npos ? std::string_view() : text.substr(0, last + 1);
}

std::string_view Trim(std::string_view text)
{
    return LTrim(RTrim(text));
}

bool IsBlank(std::string_view text)
{
    return text.find_first_not_of(' ') == std::string_view::npos;
}

char UpperCase(char letter)
{
    const unsigned code = static_cast<unsigned char>(letter);
    if ((code >= 'a' && code <= 'z') || (code >= 224 && code <= 254 && code != 247))
        return static_cast<char>(code - 32);
    if (code == 154 || code == 156 || code == 158)
        return static_cast<char>(code - 16);
    return code == 255 ? static_cast<char>(159) : letter;
}

Text UpperCase(std::string_view text)
{
    Text upper(text);
    for (char& letter : upper)
        letter = UpperCase(letter);
    return upper;
}

bool SameText(std::string_view a, std::string_view b)
{
    if (a.size() != b.size())
        return false;
    for (size_t i = 0; i < a.size(); ++i)
        if (UpperCase(a[i]) != UpperCase(b[i]))
            return false;
    return true;
}

std::string_view Before(std::string_view text, char separator)
{
    return text.substr(0, text.find(separator));
}

std::string_view Behind(std::string_view text, char separator)
{
    const size_t at = text.find(separator);
    return at == std::string_view::npos ? std::string_view() : text.substr(at + 1);
}

bool Holds(std::string_view text, char letter)
{
    return text.find(letter) != std::string_view::npos;
}

// Codes 128 to 159 of the code page; the others are their own Unicode numbers.
static constexpr char16_t HighCodes[32] = {0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                           0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD,
                                           0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                           0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

std::string ToUtf8(std::string_view text)
{
    std::string utf8;
    utf8.reserve(text.size());
    for (const char letter : text) {
        const unsigned code = static_cast<unsigned char>(letter);
        AddUtf8(utf8, code >= 128 && code < 160 ? HighCodes[code - 128] : code);
    }
    return utf8;
}

static char FromUnicode(char32_t code)
{
    if (code < 128 || (code >= 160 && code < 256))
        return static_cast<char>(code);
    if (code != 0xFFFD)
        for (unsigned i = 0; i < 32; ++i)
            if (HighCodes[i] == code)
                return static_cast<char>(128 + i);
    return '?';
}

Text FromUtf8(std::string_view utf8)
{
    Text text;
    for (size_t at = 0; at < utf8.size();)
        text += FromUnicode(NextUtf8(utf8, at));
    return text;
}

void AddUtf8(std::string& utf8, char32_t character)
{
    const auto tail = [character](int shift) { return static_cast<char>(0x80 | ((character >> shift) & 0x3F)); };
    if (character < 0x80)
        utf8 += static_cast<char>(character);
    else if (character < 0x800)
        utf8 += {static_cast<char>(0xC0 | (character >> 6)), tail(0)};
    else if (character < 0x10000)
        utf8 += {static_cast<char>(0xE0 | (character >> 12)), tail(6), tail(0)};
    else
        utf8 += {static_cast<char>(0xF0 | (character >> 18)), tail(12), tail(6), tail(0)};
}

char32_t NextUtf8(std::string_view utf8, size_t& at)
{
    const unsigned lead = static_cast<unsigned char>(utf8[at++]);
    const int more = lead < 0xC0 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
    if (more == 0)
        return lead < 0x80 ? lead : 0xFFFD;
    char32_t character = lead & (0x3Fu >> more);
    for (int k = 0; k < more; ++k) {
        if (at >= utf8.size() || (static_cast<unsigned char>(utf8[at]) & 0xC0) != 0x80)
            return 0xFFFD;
        character = (character << 6) | (static_cast<unsigned char>(utf8[at++]) & 0x3F);
    }
    return character;
}
