// convertedboring.h -- what the converters share: the record before and behind a conversion, the name of the boring
// beside its source, and the progress of a run.
#pragma once

#include "session/text.h"

// ClearBoringArrays, and the rows above the counts too: a foreign file may name rows beyond its own count, and a run
// that has failed leaves them; they must not show up in the next boring. Columns 10 to 21 of Params stay as they are.
void ClearForConversion();

// Text column of so many Info prompts from row 1 on, and names of the report parts: the fixed ones of a conversion.
struct FixedPart {
    const char* Item;
    const char* Width;
};
void SetReportPart(int row, const FixedPart& part); // RepPartCount becomes the row
void DropBlankReportParts();                        // at the end of the list

// Beside the foreign file. Kept: the path ends at its first ".", also where that stands in the name of a folder.
Text ConvertedName(const Text& file);

// The progress window from here to the end of the scope, a step for each file.
class ConversionProgress
{
public:
    explicit ConversionProgress(int total);
    ~ConversionProgress();
    ConversionProgress(const ConversionProgress&) = delete;
    ConversionProgress& operator=(const ConversionProgress&) = delete;
};
