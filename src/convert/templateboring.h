// templateboring.h -- boring files as the converters read them: into a record of their own, only as far as they need.
#pragma once

#include "boring/boringdata.h"

class LineReader;

enum class LastBlock { GenParamSetup, InnerLayers, Client };

// Reads the blocks behind the version line, in the file's order, up to the last one asked for. A form without Client
// ends at GenParamSetup where Client is asked for. Counts above a bound and an early end are failures by number.
void ReadBoringBlocks(LineReader& in, const Text& version, BoringRecord& boring, LastBlock last);

// Takes from a template boring into BoringData, which is clear, what a conversion needs of it: prompts, report parts,
// layout, both set-ups, and the client lines of a form that has them, if they are asked for.
void TakeTemplate(LineReader& in, const Text& version, bool client);
