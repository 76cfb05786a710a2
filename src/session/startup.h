// startup.h -- the order in which the program starts. What loads with the log window is the log tool's own
// (editors/borinput.h); windows are asked for through the platform.
#pragma once

#include "session/text.h"

#include <string>
#include <vector>

extern Text HelpFile; // what the help viewer is given

// Returns what the desktop program answers on standard output instead of starting, by the words of its command line; ""
// where it is to start.
std::string ShellAnswer(const std::vector<std::string>& words);
// Starts the program: shows the title box, the log window, and the title box again as a blocking window; then it treats
// a first start.
void Main();
// Loads the title box, by which the folder of the executable becomes the working folder. The working folder of an
// installed program is the user's, which is given its stock files.
void LoadTitleBox();
// Writes first.txt into the working folder and welcomes the user, where that file is not there: then it is a first
// start.
void checkiffirst();
