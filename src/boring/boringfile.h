// boringfile.h -- the boring file: BoringData from and to a .BOR file.
#pragma once

#include "session/files.h"

#include <array>
#include <functional>

// Reads BoringFileName into BoringData, which has just been cleared. Returns false where the file was refused or its
// reading has failed, which was told.
bool OpenBoringFile2();
// Takes the boxes into BoringData and writes that to BoringFileName, atomically.
void SaveBoringFile();
// Takes the boxes into BoringData as for a save, unchecked; failures by number.
void TakeBoringBoxes();
// Warns about the scale; changes nothing and blocks nothing.
void boringcheck();
// Tells each marker of the description in LineBuffer that is out of order or names no contact, with its line.
void CheckMarkers(int contacts, const std::function<void(const Text& words, int line)>& tell);
// Writes BoringData as it is, without the boxes and without checks.
void WriteConvertedBoring(const Text& name);
// Writes BoringData with the texts of Style and Draft given; failures by number.
void WriteBoring(const Text& name, const Text& style, const Text& draft, Durability durability = Durability::Saved);

// The readers of the forms before 5.0, which FillOlderForms puts in: 0 OpenSV3, 1 OpenSV4, 2 OpenSV46.
extern std::array<void (*)(), 3> OlderForms;
