// mutate.cpp -- damaged copies of a file.
#include "mutate.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <vector>

namespace
{
// A small generator of our own: those of the standard library may differ from one library to the next.
struct Dice {
    uint64_t state;
    uint64_t Next()
    {
        state += 0x9E3779B97F4A7C15u;
        uint64_t z = state;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
        return z ^ (z >> 31);
    }
    size_t Below(size_t bound)
    {
        return bound == 0 ? 0 : size_t(Next() % bound);
    }
    template <size_t N>
    const char* One(const char* const (&words)[N])
    {
        return words[Below(N)];
    }
};
using FileLines = std::vector<std::string>;
} // namespace

static FileLines Split(const std::string& bytes)
{
    FileLines lines;
    size_t start = 0;
    while (start < bytes.size()) {
        const size_t end = std::min(bytes.find("\r\n", start), bytes.size());
        lines.push_back(bytes.substr(start, end - start));
        start = end + 2;
    }
    return lines;
}

static std::string Join(const FileLines& lines, const char* lineEnd = "\r\n")
{
    std::string bytes;
    for (const std::string& line : lines)
        bytes.append(line).append(lineEnd);
    return bytes;
}

static bool Number(const std::string& line)
{
    return !line.empty() && line.find_first_not_of("0123456789") == std::string::npos;
}

// A line that holds a whole number, as counts do; any line when there is none.
static size_t NumberLine(const FileLines& lines, Dice& dice)
{
    std::vector<size_t> at;
    for (size_t i = 0; i < lines.size(); ++i)
        if (Number(lines[i]))
            at.push_back(i);
    return at.empty() ? dice.Below(lines.size()) : at[dice.Below(at.size())];
}

static std::string DamageLines(const std::string& bytes, int way, Dice& dice)
{
    static constexpr const char* numbers[] = {"1000000000", "2147483647",  "2147483648", "99999999999999999999",
                                              "-1",         "-1000000000", "0",          "31",
                                              "101",        "1001",        "1E9",        "1E400",
                                              "2.5",        "@",           "",           " 7 "};
    static constexpr const char* versions[] = {
        "5.0", "5.0.11", "5.0.12", "5.0.99999999999", "5.1", "4.6", "4.0", "3.0", "", "5.", "5.0.", "6.0", "hello"};
    static constexpr const char* cells[] = {"1E38",
                                            "-1E38",
                                            "1E-45",
                                            "nan",
                                            "inf",
                                            "-0",
                                            "F2001",
                                            "0,0,0",
                                            "@1000",
                                            "-",
                                            "@-1",
                                            ",,,",
                                            "\"",
                                            "|",
                                            "\xB6",
                                            "\t",
                                            "SP/GP,",
                                            "32768",
                                            "-40000",
                                            ".LN=99999",
                                            "MANUAL",
                                            "P99G",
                                            "MPG1-2-3-4-5-6-7-8"};
    FileLines lines = Split(bytes);
    if (lines.empty())
        return bytes;
    const size_t at = dice.Below(lines.size()), other = dice.Below(lines.size());
    switch (way) {
    case 0:
        lines[NumberLine(lines, dice)] = dice.One(numbers);
        break;
    case 1:
        lines[at] = std::string(1 << 20, char('!' + dice.Below(90)));
        break;
    case 2:
        lines[0] = dice.One(versions);
        break;
    case 3:
        std::swap(lines[at], lines[other]);
        break;
    case 4:
        lines.insert(lines.begin() + std::ptrdiff_t(at), lines[other]);
        break;
    case 5:
        lines.erase(lines.begin() + std::ptrdiff_t(at),
                    lines.begin() + std::ptrdiff_t(std::min(lines.size(), at + 1 + dice.Below(20))));
        break;
    case 6:
        lines[at].clear();
        break;
    case 7:
        lines[at] = dice.One(cells);
        break;
    case 8:
        lines[NumberLine(lines, dice)] = dice.One(cells);
        break;
    default:
        return Join(lines, dice.Below(2) == 0 ? "\n" : "\r");
    }
    return Join(lines);
}

static std::string DamageBytes(std::string bytes, int way, Dice& dice)
{
    const size_t at = dice.Below(bytes.size());
    switch (way) {
    case 0:
        bytes.resize(at);
        break;
    case 1:
        bytes.insert(at, 1 + dice.Below(8), '\0');
        break;
    case 2:
        for (size_t i = 0, count = 1 + dice.Below(16); i < count && !bytes.empty(); ++i)
            bytes[dice.Below(bytes.size())] = char(dice.Below(256));
        break;
    case 3:
        bytes.insert(at, 1, '\x1A');
        break;
    case 4:
        bytes += bytes.substr(at);
        break;
    default:
        for (size_t i = 0, count = 1 + dice.Below(200); i < count; ++i)
            bytes.insert(bytes.begin() + std::ptrdiff_t(at), char(dice.Below(256)));
    }
    return bytes;
}

std::string Mutate(const std::string& bytes, uint64_t seed)
{
    Dice dice{seed * 0x2545F4914F6CDD1Du + 1};
    std::string damaged = bytes;
    for (size_t i = 0, count = 1 + dice.Below(3); i < count; ++i) {
        const int way = int(dice.Below(16));
        damaged = way < 10 ? DamageLines(damaged, way, dice) : DamageBytes(damaged, way - 10, dice);
    }
    return damaged;
}

int MutantCount(int few)
{
    const char* const told = std::getenv("STRATAVUE_FUZZ");
    const int count = told ? std::atoi(told) : 0;
    return count > 0 ? count : few;
}
