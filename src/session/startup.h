// startup.h -- the order in which the program starts. What loads with the log window is the log tool's own
// (editors/borinput.h); windows are asked for through the platform.
#pragma once

#include "session/text.h"

#include <string>
#include <vector>

extern Text HelpFile; // what the help viewer is given

// What the desktop program answers on standard output instead of starting, by the words of its command line; "" where
// it is to start.
std::string ShellAnswer(const std::vector<std::string>& words);
// The title box, the log window, the title box again as a blocking window, and the treatment of a first start.
void Main();
// The loading of the title box: the folder of the executable becomes the working folder. That of an installed program
// is the user's, which is given its stock files.
void LoadTitleBox();
// On a first start, which is one without first.txt in the working folder: writes it, and welcomes the user.
void checkiffirst();
