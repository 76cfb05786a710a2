// checkjob.h -- the job that lists what a reviewer would flag in files, as the check lists of the tools do.
#pragma once

#include "programs/commandline.h"

struct CheckRun {
    const CommandLine& Asked;
    void (*Enter)(const Text& project);     // makes a project the current one, with its set-up
    void (*Print)(const Text& line);        // takes a line of the list
    void (*Done)(CheckRun& run, bool read); // a file is done; read: it is in the boxes
    int Hidden = 0;                         // entries that the projects have switched off
    bool Good = true;                       // none so far is an error; a file that cannot be read is one
};

// Lists each entry of the files, "file: Error: place: words", file by file.
void RunChecks(CheckRun& run);
// Prints how many entries the projects have switched off, if there are any.
void PrintHidden(int hidden);
