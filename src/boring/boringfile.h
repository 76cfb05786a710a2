// boringfile.h -- the boring file: BoringData from and to a .BOR file.
#pragma once

#include "session/files.h"

#include <array>

// BoringFileName into BoringData, which has just been cleared. False: it was refused or has failed, which was told.
bool OpenBoringFile2();
void SaveBoringFile();  // the boxes into BoringData, and that into BoringFileName, atomically
void TakeBoringBoxes(); // the boxes into BoringData as for a save, unchecked; failures by number
void boringcheck();     // warns about the scale; changes nothing and blocks nothing
// The markers of the description in LineBuffer that are out of order or name no contact, each with its line.
void CheckMarkers(int contacts, void (*tell)(const Text& words, int line));
void WriteConvertedBoring(const Text& name); // BoringData as it is, no boxes and no checks
// The same with the texts of Style and Draft given; failures by number.
void WriteBoring(const Text& name, const Text& style, const Text& draft, Durability durability = Durability::Saved);

// Readers of the forms before 5.0, by procedure: they are built above this folder. 0 OpenSV3, 1 OpenSV4, 2 OpenSV46.
extern std::array<void (*)(), 3> OlderForms;
