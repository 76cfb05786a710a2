// convertedboring.h -- what the converters share: the record before and behind a conversion, the run over files
// with a boring beside each, and its progress.
#pragma once

#include "session/text.h"

#include <span>

// Empties BoringData as ClearBoringArrays does, and the rows above the counts too: a foreign file may name rows beyond
// its own count, and a run that has failed leaves them; they must not show up in the next boring. Columns 10 to 21 of
// Params stay as they are.
void ClearForConversion();

// A report part that a conversion gives every boring.
struct FixedPart {
    const char* Item;
    const char* Width;
};
// Puts in what a form without a template gives every boring: title prompts, report parts and layout, and feet.
void SetFixedForm(std::span<const char* const> prompts, std::span<const FixedPart> parts, const char* layout);

// The boring that stands beside a source, which its conversion writes. Kept: the name is the path up to its first ".",
// also where that stands in the name of a folder.
Text BesideSource(const Text& source);

// Where the boring of a source is written instead, by a process that does a share of a run; null: beside the source.
extern Text (*ConvertedName)(const Text& source);

// Converts each file of the run to a boring beside it, with the progress window. A file whose boring would take its own
// place is told by name and passed over. Failures by number; one ends the run.
void ConvertRunFiles(void (*convert)(const Text& source));

// Writes BoringData beside its source, with the texts of Style and Draft given and without blank report parts at the
// end. Failures by number.
void WriteBesideSource(const Text& source, const Text& style, const Text& draft);

// Puts a boring that was written elsewhere beside its source. Failures by number.
void PlaceConverted(const Text& source, std::string_view bytes);

// Shows the progress window from here to the end of the scope, with a step for each file.
class ConversionProgress
{
public:
    explicit ConversionProgress(int total);
    ~ConversionProgress();
    ConversionProgress(const ConversionProgress&) = delete;
    ConversionProgress& operator=(const ConversionProgress&) = delete;
};
