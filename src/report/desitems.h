// desitems.h -- the stock phrases that the user clicks into the description: four lists, kept in a file that the set-up
// names.
//
// The file has four blocks, one for each list: a count, and that many lines.
#pragma once

#include "session/slots.h"
#include "session/text.h"

constexpr int MaxDesItems = 50;

// Reads the file of the set-up, or else desitem.txt, into frmBorinput::List; with neither the lists stay. They are
// filled only when all four blocks have been read.
void loaddeslists();

// The editor of the lists.
namespace frmDesItems
{
extern Slots<Text, 4> Box; // a list each, an item a line, CR LF line ends
void Load();               // Puts the lists into the boxes.
bool Command1();           // OK: takes the boxes into the file and the lists; returns true when the window closes.
} // namespace frmDesItems
