// mutate.h -- damaged copies of a file, the same ones for the same seed on every machine.
#pragma once

#include <cstdint>
#include <string>

// A copy of the bytes, damaged in one to three ways: cut anywhere, counts of 10^9 and the like, lines of a megabyte,
// zero bytes, other version words, lines swapped, doubled, dropped or blanked, random bytes, other line ends.
std::string Mutate(const std::string& bytes, uint64_t seed);

// How many mutants a test feeds: few, or as many as the environment variable STRATAVUE_FUZZ says.
int MutantCount(int few);
