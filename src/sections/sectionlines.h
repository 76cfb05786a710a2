// sectionlines.h -- what the files of cross sections and fences write alike: scale cells and legend rows.
#pragma once

#include "session/files.h"
#include "session/slots.h"
#include "session/text.h"

// The three numbers of a scale, a line each, joined by commas as their cell shows them.
Text ReadScaleCell(LineReader& in);
void WriteScaleCell(LineWriter& out, const Text& cell); // trimmed; a cell without a comma is written 0, 1000, 100

// A legend row "code;text", in older files "code,text".
void ReadLegendRow(LineReader& in, Slots<Text, 2>& row);
void WriteLegendRow(LineWriter& out, const Slots<Text, 2>& row);
