// patterns.cpp -- fill patterns: codes, names, screen forms and tints.
#include "canvas/patterns.h"

#include "canvas/metaugl.h"
#include "session/files.h"

bool TintsInMemory = false;

Text PrintForm(const Text& screenName)
{
    return screenName.size() > 7 ? screenName.substr(0, screenName.size() - 7) + ".bmp" : ".bmp";
}

bool PatternThere(const Text& screenName)
{
    return FileExists(screenName) || FileExists(PrintForm(screenName));
}

void createcoloredFP(const Text&, int)
{
}
