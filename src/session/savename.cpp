// savename.cpp -- the name under which something is to be saved.
#include "session/savename.h"

#include "session/files.h"
#include "session/platform.h"

Text WithEnding(const Text& name, const char* ending)
{
    return HasEnding(name) ? name : name + ending;
}

bool MayReplace(const Text& name)
{
    return !FileExists(name) ||
           MsgBox("The file, " + name + " already exists.  Do you wish to overwrite it?", YesNo, Question) == Yes;
}
