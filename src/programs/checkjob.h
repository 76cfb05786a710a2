// checkjob.h -- the job that lists what a reviewer would flag in files, as the check lists of the tools do.
#pragma once

#include "programs/commandline.h"

// Prints a line for each entry, "file: Error: place: words", file by file. enter makes a project the current one, with
// its set-up. True when none of them is an error; a file that cannot be read is one.
bool RunChecks(const CommandLine& asked, void (*enter)(const Text& project));
