// checkview.h -- a check list as it is shown beside the boxes and printed by stratavue-batch: in order, in words, and
// without the kinds that the project has switched off.
#pragma once

#include "tools/checkentry.h"

struct CheckList {
    std::vector<CheckEntry> Entries; // the gravest first; those of one weight by their place
    int Hidden = 0;                  // entries of kinds that the project has switched off
};

// Returns what a check has found, as this project wishes to see it. With all, also what is switched off is in the list,
// and nothing is hidden.
CheckList ListForProject(std::vector<CheckEntry> found, bool all = false);

// Returns whether the project has switched the kind off, which project.cfg tells: check.off = key, key.
bool KindIsOff(const Text& key);
// Writes that into project.cfg; keys that this program does not know stay. Returns false where it could not be written,
// which was told.
bool SwitchKind(const Text& key, bool off);

const char* WeightWord(CheckWeight weight); // Returns "Error", "Warning" or "Remark".
Text EntryInWords(const CheckEntry& entry); // Returns "Error: ", for example, and what the entry says.
// Returns the words of the entry's kind, for the menu; "" for a key that is in no list.
Text KindInWords(const CheckEntry& entry);
// Returns where the entry leads, "Boring Information, row 3, Distance"; for a text box "Descriptions, line 4"; "" for
// an entry without a box.
Text PlaceInWords(const CheckEntry& entry);
// Returns how many there are of each weight, "2 errors, 1 warning"; "" for none.
Text CountsInWords(const std::vector<CheckEntry>& entries);
// Returns "3 more are not shown, by the project's choice"; "" for none.
Text HiddenInWords(int hidden);
