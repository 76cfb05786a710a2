// checked.h -- what a check list of a section, fence, soil table or layer table holds, in words.
#pragma once

#include "tools/checkentry.h"

// The words of the entries of a kind, in order.
inline std::vector<Text> WordsOf(const std::vector<CheckEntry>& entries, std::string_view kind)
{
    std::vector<Text> words;
    for (const CheckEntry& entry : entries)
        if (entry.Kind == kind)
            words.push_back(entry.Words);
    return words;
}

// All of them with their kinds, a line each: what is told where a list differs.
inline Text AllWords(const std::vector<CheckEntry>& entries)
{
    Text all;
    for (const CheckEntry& entry : entries)
        all += Text(entry.Kind) + ": " + entry.Words + "\n";
    return all;
}
