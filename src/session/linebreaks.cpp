// linebreaks.cpp -- the line breaker and its table of widths.
#include "session/linebreaks.h"

#include <algorithm>
#include <array>
#include <cmath>

// Arial's advances for the code page, sixteen a row. A control character, which prints nothing, is as wide as a
// blank; the five codes that the page does not assign print as a replacement sign, at most as wide as it is high.
// clang-format off
static constexpr std::array<int16_t, 256> advanceWidths = {
    569, 569, 569, 569, 569, 569, 569, 569, 569, 569, 569, 569, 569, 569, 569, 569, // 0
    569, 569, 569, 569, 569, 569, 569, 569, 569, 569, 569, 569, 569, 569, 569, 569, // 16
    569, 569, 727, 1139, 1139, 1821, 1366, 391, 682, 682, 797, 1196, 569, 682, 569, 569, // 32
    1139, 1139, 1139, 1139, 1139, 1139, 1139, 1139, 1139, 1139, 569, 569, 1196, 1196, 1196, 1139, // 48
    2079, 1366, 1366, 1479, 1479, 1366, 1251, 1593, 1479, 569, 1024, 1366, 1139, 1706, 1479, 1593, // 64
    1366, 1593, 1479, 1366, 1251, 1479, 1366, 1933, 1366, 1366, 1251, 569, 569, 569, 961, 1139, // 80
    682, 1139, 1139, 1024, 1139, 1139, 569, 1139, 1139, 455, 455, 1024, 455, 1706, 1139, 1139, // 96
    1139, 1139, 682, 1024, 569, 1139, 1024, 1479, 1024, 1024, 1024, 684, 532, 684, 1196, 569, // 112
    1139, 2048, 455, 1139, 682, 2048, 1139, 1139, 682, 2048, 1366, 682, 2048, 2048, 1251, 2048, // 128
    2048, 455, 455, 682, 682, 717, 1139, 2048, 682, 2048, 1024, 682, 1933, 2048, 1024, 1366, // 144
    569, 682, 1139, 1139, 1139, 1139, 532, 1139, 682, 1509, 758, 1139, 1196, 682, 1509, 1131, // 160
    819, 1124, 682, 682, 682, 1180, 1100, 569, 682, 682, 748, 1139, 1708, 1708, 1708, 1251, // 176
    1366, 1366, 1366, 1366, 1366, 1366, 2048, 1479, 1366, 1366, 1366, 1366, 569, 569, 569, 569, // 192
    1479, 1479, 1593, 1593, 1593, 1593, 1593, 1196, 1593, 1479, 1479, 1479, 1479, 1366, 1366, 1251, // 208
    1139, 1139, 1139, 1139, 1139, 1139, 1821, 1024, 1139, 1139, 1139, 1139, 569, 569, 569, 569, // 224
    1139, 1139, 1139, 1139, 1139, 1139, 1139, 1124, 1251, 1139, 1139, 1139, 1139, 1024, 1139, 1024, // 240
};
// clang-format on

int AdvanceWidth(char letter)
{
    return advanceWidths[static_cast<unsigned char>(letter)];
}

int64_t AdvanceWidth(std::string_view text)
{
    int64_t sum = 0;
    for (const char letter : text)
        sum += AdvanceWidth(letter);
    return sum;
}

int64_t BoxRoom(int widthTwips, int twipsPerInch, int points)
{
    // inches = (width - 255) / twips per inch; an inch is 72 / points font heights.
    const int64_t units = (int64_t(widthTwips) - 255) * 72 * UnitsPerHeight;
    const int64_t divisor = int64_t(twipsPerInch) * points;
    return units >= 0 ? units / divisor : -((-units + divisor - 1) / divisor);
}

// Length of the first line of a text that is not empty.
static size_t FirstLine(std::string_view text, int64_t room)
{
    int64_t width = 0;
    size_t wordStart = 0; // of the word under way; 0 while the line has one word only
    for (size_t i = 0; i < text.size(); ++i) {
        width += AdvanceWidth(text[i]);
        if (text[i] == ' ')
            continue; // blanks count only when something stands behind them
        if (i > 0 && text[i - 1] == ' ')
            wordStart = i;
        if (width <= room)
            continue;
        if (wordStart > 0)
            return wordStart;
        if (i > 0)
            return i;
        return std::min(text.find_first_not_of(' ', 1), text.size()); // one character at least, and its blanks
    }
    return text.size();
}

std::vector<int> BreakParagraph(std::string_view paragraph, int64_t room)
{
    std::vector<int> lengths;
    do {
        const size_t length = paragraph.empty() ? 0 : FirstLine(paragraph, room);
        lengths.push_back(int(length));
        paragraph.remove_prefix(length);
    } while (!paragraph.empty());
    return lengths;
}

std::vector<Text> BreakLines(std::string_view text, int64_t room)
{
    std::vector<Text> lines;
    while (!text.empty()) {
        const size_t end = std::min(text.find("\r\n"), text.size());
        std::string_view paragraph = text.substr(0, end);
        do {
            const size_t length = paragraph.empty() ? 0 : FirstLine(paragraph, room);
            lines.emplace_back(paragraph.substr(0, length));
            paragraph.remove_prefix(length);
        } while (!paragraph.empty());
        text.remove_prefix(std::min(end + 2, text.size()));
    }
    return lines;
}

std::vector<Text> BreakLines(std::string_view text, double roomInches, double points)
{
    return BreakLines(text, int64_t(std::floor(roomInches * 72 * UnitsPerHeight / points)));
}
