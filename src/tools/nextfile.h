// nextfile.h -- files that come from outside: by the command line, or dropped on a window. The tool of a file's ending
// opens it, whichever window it is that the file comes to.
#pragma once

#include "session/platform.h"

// The file that the window which comes next, or is in front when a command ends, opens; "" for none. Set by what leaves
// a window for the sake of a file, taken by the windows.
extern Text NextFile;
Text TakeNextFile(); // it, which is none then

bool OpensFile(const Text& name);       // its ending is one of the program's
bool IsConversionMap(const Text& name); // .GCV, of the editor of the general conversion
Tool ToolOfFile(const Text& name);      // by its ending; the log tool for all that no other one has
