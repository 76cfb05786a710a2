// outputnames.h -- what the files of a run's pages are called: without folder and ending, which each output adds.
#pragma once

#include "session/text.h"

#include <set>

// The source's name, the word of the job, the page: "B-1-2", "X-section-1". The word keeps the jobs apart that draw
// sources of one name, as a section and a fence through the same borings have; a log has none. In any case of its
// letters each name is given once.
class OutputNames
{
public:
    explicit OutputNames(Text word) : job(std::move(word))
    {
    }
    // Returns the name of the next page, which comes from that file. With a number of its own (page 2 of the log, drawn
    // alone) it has that one, and "-2" behind it where two files have the same name; without (0) pages count on.
    Text Next(const Text& source, int number = 0);

private:
    Text job;
    std::set<Text> given;
};
