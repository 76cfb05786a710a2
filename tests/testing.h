// testing.h -- what every test starts from: records at their start values, an empty working folder of its own.
#pragma once

#include "plain/plain.h"

#include <doctest/doctest.h>
#include <filesystem>

Text TestData(const Text& name); // path of a file under tests/data
const Text& ScratchFolder();     // the working folder of the test that runs: empty at its start
Text Scratch(const Text& name);  // a path in it
void WriteScratch(const Text& name, std::string_view bytes);
void WritePicture(const Text& name); // a small grey picture, as a Windows bitmap
std::string ReadScratch(const Text& name);
int FailureOf(void (*procedure)()); // the number of the failure that it raises, 0 for none

// What every test begins with, and a campaign each of its rounds. Nothing of what was before is left: not in the
// records, which have the values of the program's start again, not in the windows, and not on the disk.
void StartAfresh();
// Set by tests with windows: takes down those of the test before. May be null.
extern void (*CloseWindows)();

// Lines joined with CR LF, closed by one: a file.
std::string Lines(std::initializer_list<std::string_view> lines);
