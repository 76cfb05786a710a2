// colors.cpp -- the colour names of the cells, and colours typed as three numbers.
#include "canvas/colors.h"

#include "canvas/pageobjects.h"
#include "session/platform.h"

#include <algorithm>
#include <cmath>

namespace
{
struct ColorName {
    std::string_view Name, Value;
};
} // namespace

// Kept: FUSCHIA, the common misspelling, and GREY beside GRAY; cells hold them.
static constexpr ColorName colorNames[] = {
    {"MAROON", "192 0 0"},    {"RED", "255 0 0"},        {"OLIVE", "128 128 0"},  {"YELLOW", "255 255 0"},
    {"LIME", "0 255 0"},      {"GREEN", "0 128 0"},      {"TEAL", "0 128 128"},   {"AQUA", "0 255 255"},
    {"BLUE", "0 0 255"},      {"NAVY", "0 0 128"},       {"PURPLE", "128 0 128"}, {"FUCHSIA", "255 0 255"},
    {"FUSCHIA", "255 0 255"}, {"WHITE", "255 255 255"},  {"GRAY", "128 128 128"}, {"GREY", "128 128 128"},
    {"BLACK", "0 0 0"},       {"SILVER", "192 192 192"}, {"TAN1", "210 180 150"}, {"TAN2", "220 180 140"},
    {"TAN3", "230 180 130"},  {"TAN4", "240 180 120"},   {"TAN5", "250 180 110"}, {"BROWN1", "166 26 26"},
    {"BROWN2", "157 34 34"},  {"BROWN3", "149 43 43"},   {"BROWN4", "136 55 55"}, {"BROWN5", "128 64 64"},
};

static const Text white = "255 255 255";

static bool InByte(std::string_view number)
{
    const double value = TextNumber(number);
    return value >= 0 && value <= 255;
}

Text getcolor(const Text& text, bool quiet)
{
    const Text typed(Trim(text));
    for (const ColorName& color : colorNames)
        if (SameText(color.Name, typed))
            return Text(color.Value);
    if (quiet)
        return white;
    const size_t first = typed.find(' ');
    if (first == Text::npos) {
        MsgBox("Missing 2 Color Values: " + typed, OkOnly, Exclamation);
        return white;
    }
    const size_t second = typed.find(' ', first + 1);
    if (second == Text::npos) {
        MsgBox("Missing 1 Color Value: " + typed, OkOnly, Exclamation);
        return white;
    }
    const std::string_view parts = typed;
    if (InByte(parts.substr(0, first)) && InByte(parts.substr(first + 1, second - first - 1)) &&
        InByte(parts.substr(second + 1)))
        return typed;
    MsgBox("Color values must be in the range of 0 to 255: " + typed, OkOnly, Exclamation);
    return white;
}

int32_t ParseColor(const Text& color)
{
    const size_t first = color.find(' ');
    const size_t second = first == Text::npos ? Text::npos : color.find(' ', first + 1);
    if (second == Text::npos)
        return White;
    const auto part = [](std::string_view text) {
        return static_cast<int>(std::clamp(std::nearbyint(TextNumber(text)), 0.0, 255.0));
    };
    const std::string_view text = color;
    return ColorOf(part(text.substr(0, first)), part(text.substr(first + 1, second - first - 1)),
                   part(text.substr(second + 1)));
}

bool IsColorName(const Text& text)
{
    return getcolor(text, true) != white || SameText(Trim(text), "WHITE");
}
