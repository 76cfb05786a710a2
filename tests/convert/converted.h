// converted.h -- what the tests of the converters share: their data, runs, and what every converted boring has to do.
#pragma once

#include "testing.h"

#include <initializer_list>
#include <string_view>
#include <vector>

std::string ConvertData(const Text& name);                              // the bytes of a file under tests/convert/data
void CopyData(const Text& folder);                                      // its files into the scratch folder
void Run(void (*job)(), std::initializer_list<std::string_view> files); // on files of the scratch folder
std::vector<Text> Told();                                               // the words of all boxes so far

// The record as the file of the scratch folder has it.
void Open(const Text& name);
// The bytes are those kept under tests/convert/data; and the file is read back: written anew from the record it is the
// same, it opens without a message, and a save from the boxes changes no text.
void CheckKept(const Text& name, const Text& kept, const Text& style, const Text& draft);
void CheckReadsBack(const Text& name, const Text& style, const Text& draft);
