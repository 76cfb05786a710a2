// checkedboring.h -- what the tests of the check list start from: a boring as it should be, in an office that has all
// its files, and how they look at the list.
#pragma once

#include "boring/boringboxes.h"
#include "editors/checklist.h"
#include "testing.h"

#include <algorithm>
#include <initializer_list>

void Fill(Grid& grid, std::initializer_list<std::initializer_list<const char*>> rows);
void WriteLayout(const Text& name, int orientation, std::initializer_list<int> blocks = {}); // positions 1 on
void GoodBoring();     // 20 feet on one portrait page, with nothing to flag
void Type(Text words); // the descriptions

bool Clean(); // the list is empty
Text Only();  // the only entry, "kind: words"
Text Cell();  // where the only entry leads: "box row,column", or "name of a text box at place"
bool Has(const Text& words, int box, int row, int column);
int CountOf(const char* kind);
