// choosing.h -- the user of the chooser, and heading files, for the tests of the small editors.
#pragma once

#include "testing.h"

#include "session/session.h"

inline Text chosen;       // what the user picks
inline int16_t modeAsked; // what the chooser was opened for

inline void Choose(const Text& name)
{
    chosen = name;
    Platform.ShowChooser = [] {
        modeAsked = DialogMode;
        DialogResult = chosen;
        DialogMode = -1;
    };
}

// A heading file of the current form: slot n holds "wn", but for what is set.
inline std::string HeadingText(std::initializer_list<std::pair<int, Text>> slots = {})
{
    Text words[85];
    for (int slot = 1; slot <= 84; ++slot)
        words[slot] = "w" + std::to_string(slot);
    for (const auto& [slot, word] : slots)
        words[slot] = word;
    std::string file = "5.0\r\n";
    for (int slot = 1; slot <= 84; ++slot)
        file += words[slot] + "\r\n";
    return file;
}
