// oldboring.h -- the readers of boring files before form 5.
//
// Each fills BoringData, which has just been cleared; what a form lacks stays empty. The next Save writes the newest
// form. They stand here and not beside the reader of form 5, which knows them by procedure (OlderForms): their lists of
// columns are spelled anew by convertrepparts.
#pragma once

#include "session/text.h"

void OpenSV46();                // Reads BoringFileName, which has form 4.6.
void OpenSV4(const Text& name); // Reads a file of form 4.0, .SV4.
void OpenSV3(const Text& name); // Reads a file of form 3.0, .SV3.

void FillOlderForms(); // Puts the readers into OlderForms, at the start of a program that opens borings.
