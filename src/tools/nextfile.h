// nextfile.h -- files that come from outside: by the command line, or dropped on a window. The tool of a file's ending
// opens it, whichever window it is that the file comes to.
#pragma once

#include "session/platform.h"

// The file that the window which comes next, or is in front when a command ends, opens; "" for none. Set by what leaves
// a window for the sake of a file, taken by the windows.
extern Text NextFile;
Text TakeNextFile(); // Returns that file, and leaves none.

bool OpensFile(const Text& name);       // Returns whether its ending is one of the program's.
bool IsConversionMap(const Text& name); // Returns whether it is a .GCV file, of the editor of the general conversion.
Tool ToolOfFile(const Text& name);      // Returns the tool by the file's ending; the log tool for all other endings.
