// gtgstext.h -- the text tables of a GTGS export, in the one form that the program knows by heart.
#pragma once

// Converts the seven tables of the folder lastDir, all borings of a project in each, into a boring file for each
// boring, in the same folder.
void ConvertGTGSText();

namespace frmBorinput
{
// Converts the tables of the folder last shown by the batch dialog, or the project's before any was shown.
void mnuConvertGTGStxt();
} // namespace frmBorinput
