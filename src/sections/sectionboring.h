// sectionboring.h -- what sections and fences take of a boring's file, line by line, by their own reader.
#pragma once

#include "session/slots.h"
#include "session/text.h"

namespace VCROSS
{
// The whole path of a boring named in a definition file: the project folder in front of a name without a folder.
Text SectionBoringPath(const Text& name);

// What is read of the second pass: the well, its screens, and the words of the label.
struct SectionWell {
    Text Name, WellName;                  // the two names that a label can be
    float boreDepth = 0, casingDepth = 0; // greatest ends of the outer and the inner table, at least 0
    Slots<float, 5> screenTop, screenBottom;
    int16_t screenCount = 0; // a sixth screen overwrites the fifth
};

// True when the file is there and begins with "5."; else its box is shown: "Boring File Not Found: " or "This boring
// file has the format of a previous version: ". The file counter of the run is the caller's.
bool SectionBoringThere(const Text& path);
// The lithology of the boring at path into layerCount, layerDepth, layerCode and deepestLayer of slot i.
void ReadSectionLayers(const Text& path, int i);
// The well of the boring at path: refElevation and stickUp of slot i, and well. withClient: also the client block that
// drawclient prints (LogBoring.Client, Style), as far as the file lasts.
void ReadSectionWell(const Text& path, int i, SectionWell& well, bool withClient);
} // namespace VCROSS
