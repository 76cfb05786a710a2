// sectionlines.h -- what the files of cross sections and fences write alike: scale cells and legend rows.
#pragma once

#include "session/files.h"
#include "session/slots.h"
#include "session/text.h"

// Reads the three numbers of a scale, a line each, and returns them joined by commas as their cell shows them.
Text ReadScaleCell(LineReader& in);
// Writes the three numbers of a cell, trimmed, a line each; a cell without a comma is written 0, 1000, 100.
void WriteScaleCell(LineWriter& out, const Text& cell);

// Read and write a legend row "code;text", which in older files is "code,text".
void ReadLegendRow(LineReader& in, Slots<Text, 2>& row);
void WriteLegendRow(LineWriter& out, const Slots<Text, 2>& row);
