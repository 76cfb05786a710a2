// startup.h -- the order in which the program starts. What loads with the log window is the log tool's own
// (editors/borinput.h); windows are asked for through the platform.
#pragma once

#include "session/text.h"

extern Text HelpFile; // what the help viewer is given

// The title box, the log window, the title box again as a blocking window, and the treatment of a first start.
void Main();
// The loading of the title box: the folder of the executable becomes the working folder. That of an installed program
// is the user's, which is given its stock files.
void LoadTitleBox();
// On a first start, which is one without first.txt in the working folder: writes it, and welcomes the user.
void checkiffirst();
