// kept.cpp -- the list of the records that drawing runs change, filled before the program starts.
#include "session/kept.h"

using Keepers = std::vector<std::function<std::shared_ptr<void>()>>;

// Inside a procedure, so that it is there for the first record that asks, whichever file that is in.
static Keepers& RecordsOfRuns()
{
    static Keepers keepers;
    return keepers;
}

void RunRecord::Add(std::function<std::shared_ptr<void>()> keep)
{
    RecordsOfRuns().push_back(std::move(keep));
}

RunKept::RunKept()
{
    for (const auto& keep : RecordsOfRuns())
        records.push_back(keep());
}
