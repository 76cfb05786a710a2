// sectionboring.h -- what sections and fences take of a boring's file, line by line, by their own reader.
//
// A third reader of the boring file, on purpose: a section shows what is on disk, and takes so little of it that most
// blocks are only counted past.
#pragma once

#include "session/files.h"
#include "session/slots.h"
#include "session/text.h"

namespace VCROSS
{
Text BoringFileOf(const Text& name); // Returns the name, with ".bor" behind it where it has no ".".
// Returns the whole path of a boring named in a definition file: with the project folder in front of a name without a
// folder.
Text SectionBoringPath(const Text& name);

// Returns what stands for a layer's fill: its code, the blank pattern for one without.
Text LayerCode(const Text& code);

// Returns whether the file is there and begins with "5."; else its box is shown: "Boring File Not Found: " or "This
// boring file has the format of a previous version: ". The file counter of the run is the caller's, by StepOverEntry.
bool SectionBoringThere(const Text& path);

// Moves the file counter of the run on by one, at a boring that is missing or old.
// Kept: so on the screen Next leaves a file out and Previous shows this page again. Where every entry is to become a
// page, in a print run or with nobody in front, nothing happens: only the run's own step counts there.
void StepOverEntry();

// What is read of the well, and the words of the label.
struct SectionWell {
    Text Name, WellName;                  // the two names that a label can be
    float boreDepth = 0, casingDepth = 0; // greatest ends of the outer and the inner table, at least 0
    Slots<float, 5> screenTop, screenBottom;
    int16_t screenCount = 0; // a sixth screen overwrites the fifth
};

// All three readers take a file that SectionBoringThere has let pass, and fail by number: 9 for a layer above 100, 62
// for an end of the file within what they read. With withClient they also read the client block that drawclient prints
// (LogBoring.Client, Style), as far as the file lasts; lines that are not there are empty, a missing style is 1.
//
// Reads the lithology into layerCount, layerDepth, layerCode and deepestLayer of slot i.
void ReadSectionLayers(const Text& path, int i);
// Reads refElevation and stickUp of slot i, and the well as far as the inner table.
void ReadSectionWell(const Text& path, int i, SectionWell& well, bool withClient);
// Reads both in one go, for a fence: the layers, and of the well the names and the elevations alone.
void ReadFenceBoring(const Text& path, int i, SectionWell& well, bool withClient);

// A boring's file under way, opened behind its version line: its blocks are taken or passed over in their order.
struct SectionBoringFile {
    explicit SectionBoringFile(const Text& path);
    Text ToSamples();       // Passes over all in front of the samples' count, and returns the boring's name.
    void Pass(int cells);   // Passes over a counted block of so many cells a row, which has no bound.
    int ParamCells() const; // Returns the cells of a row of general parameters, its depth among them.
    void GenWell(int i, SectionWell& well);
    void OuterLayers(SectionWell& well);
    void ClientBlock(); // Reads what drawclient prints, behind the inner table, as far as the file lasts.
    LineReader in;
    Text version;
};
} // namespace VCROSS
