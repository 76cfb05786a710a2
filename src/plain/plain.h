// plain.h -- the seam to the machine with no screen, for tests: a fixed printer, messages kept, answers from a list.
#pragma once

#include "session/platform.h"

#include <deque>
#include <vector>

struct PlainMessage {
    Text words;
    Buttons buttons;
    Icon icon;
};
extern std::vector<PlainMessage> Messages; // every box in order
extern std::deque<int> Answers;            // of the boxes to come; Ok, or No where it is not offered, when it is empty
extern std::deque<Text> InputAnswers;      // of the input boxes to come; "" when it is empty
extern std::vector<std::string> Listings;  // of every page drawn, in order
extern Text PlainClipboard;
extern std::vector<Text> Notices; // every word in passing, in order
extern void (*PlainShowPage)();   // what the user does at the screen view; the start value is Next
extern int PlainPrinted;          // pages printed
extern int PlainRunsEnded;        // print runs ended

void UsePlainPlatform(); // fills in Platform and empties what is kept
