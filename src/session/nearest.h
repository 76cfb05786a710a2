// nearest.h -- what stands for a character that the code page lacks, in a text that comes in from a keyboard or from
// the clipboard: the nearest that it has. Names of files are left alone.
#pragma once

#include "session/text.h"

// Returns the letters that stand for a character: itself where the code page has it, the nearest where that lacks it
// ("<=" for the sign of less or equal, the bare letter for one with a foreign mark), none for a sign without a width,
// and "?" where nothing is near.
Text NearestInCodePage(char32_t letter);

struct NearestText {
    Text text;
    int replaced = 0; // characters that others stand for
    int lost = 0;     // those of them that became "?"
    Text first;       // what stands for the first of them
};

// Returns a whole text by its nearest letters. A letter and the mark behind it are one where the code page has them as
// one; a fraction behind a digit has a blank before it, a power of ten a "^".
NearestText NearestOf(std::string_view utf8);

// Returns one sentence for the status line about what was replaced, empty if nothing was.
Text ReplacementWords(const NearestText& nearest);

// Returns words in UTF-8 about what was replaced in a text, with the characters themselves, which no Text can hold:
// each once, what became of it, and after the first few how many there are more.
std::string ReplacedCharacters(std::string_view utf8);
