// commandline.h -- the command lines of stratavue-batch: the table of its jobs, and what was asked.
#pragma once

#include "session/text.h"

#include <vector>

enum class BatchWork { Draws, Converts, ConvertsTables, ConvertsByMap, AddsToGis, ExportsGis, Checks };

struct BatchJob {
    const char* Name;     // the first word of the command line
    int16_t JobCode;      // the Job of the batch dialog that it runs
    int16_t ReportOption; // the dialog's report choice; intro pages have two, told by --type
    const char* Options;  // the options that it knows, in the order of its usage line
    const char* Files;    // what it takes besides, for the usage line; "" for none, "[...]" for one or none
    const char* HelpLine; // what it does; in the help behind "draws" where that is what it does
    BatchWork Work = BatchWork::Draws;
    const char* Needs = ""; // what it cannot do without: one of these options, as its usage line has them
};

struct CommandLine {
    const BatchJob* Job = nullptr; // none for a wrong command line or --help
    bool Help = false;
    std::string Wrong;                       // what is wrong with it; empty when nothing is
    Text Home, Project, Pdf, Png, Dxf, List; // full paths; empty when not given
    Text Gis, ArcView, Evs;                  // likewise
    Text Map, Template, Out;                 // likewise
    Text Name;
    int16_t ReportOption = 0; // the job's own, or what --type says
    Text Page, Date;
    bool DateGiven = false;
    bool All = false; // --all
    int Dpi = 150;
    int Jobs = 0;            // processes; 0: as many as pay
    int Share = 0, Of = 0;   // this process does share 2 of 4; 0: all
    Text ShareFolder;        // where it leaves what it has made
    std::vector<Text> Files; // full paths
};

CommandLine ReadCommandLine(const std::vector<std::string>& words); // the words behind the program's name, in UTF-8
std::string UsageText();
