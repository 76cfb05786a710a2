// savename.h -- the name under which something is to be saved: its ending, and the question before a file is replaced.
#pragma once

#include "session/text.h"

// Returns the name with the ending, ".BOR" for example, behind it where its last part has no ".".
Text WithEnding(const Text& name, const char* ending);
// Returns true when there is no such file, or when the user says in a box that it may be overwritten.
bool MayReplace(const Text& name);
