// checkentry.h -- one line of a check list: what a reviewer would flag, how grave it is, and where it is to be mended.
#pragma once

#include "session/text.h"

#include <vector>

struct Grid;

// An error makes a wrong or incomplete page or loses data; a warning is most likely a slip; a remark is worth a look.
enum class CheckWeight { Error, Warning, Remark };

// A kind of line, as a project can switch it off by its key.
struct CheckKind {
    const char* key; // small letters and "-", as it stands in project.cfg
    CheckWeight weight;
    const char* words; // what the kind is about, for the menu that switches it off
};

struct CheckEntry {
    Text Words;
    int Box = 0;              // where to look: its number, as ActiveBox; the text boxes share 9
    int Row = 1, Column = 1;  // of a grid
    const char* TextBox = ""; // the name of a text box, with the place in its text, line ends as one character
    int Place = 0;
    const Grid* InGrid = nullptr; // of a tool beside the log tool: the grid itself, in place of its number
    const char* Kind = "";        // the key of its kind, which tells its weight
};

// Returns every kind, in the order of the menu.
const std::vector<CheckKind>& CheckKinds();

// Returns the weight of the entry's kind. An entry whose key is in no list is a mistake of ours: a warning.
CheckWeight WeightOf(const CheckEntry& entry);
