// checkview.h -- a check list as it is shown beside the boxes and printed by stratavue-batch: in order, in words, and
// without the kinds that the project has switched off.
#pragma once

#include "tools/checkentry.h"

struct CheckList {
    std::vector<CheckEntry> Entries; // the gravest first; those of one weight by their place
    int Hidden = 0;                  // entries of kinds that the project has switched off
};

// What a check has found, as this project wishes to see it; all: also what is switched off, and nothing is hidden.
CheckList ListForProject(std::vector<CheckEntry> found, bool all = false);

// Whether the project has switched the kind off, which project.cfg tells: check.off = key, key.
bool KindIsOff(const Text& key);
// Writes it there; keys that this program does not know stay. False: it could not be written, which was told.
bool SwitchKind(const Text& key, bool off);

const char* WeightWord(CheckWeight weight); // "Error", "Warning", "Remark"
Text EntryInWords(const CheckEntry& entry); // "Error: " and what it says
// The words of the entry's kind, for the menu; "" for a key that is in no list.
Text KindInWords(const CheckEntry& entry);
// "Boring Information, row 3, Distance"; of a text box "Descriptions, line 4". "" for an entry without a box.
Text PlaceInWords(const CheckEntry& entry);
// "2 errors, 1 warning"; "" for none.
Text CountsInWords(const std::vector<CheckEntry>& entries);
// "3 more are not shown, by the project's choice"; "" for none.
Text HiddenInWords(int hidden);
