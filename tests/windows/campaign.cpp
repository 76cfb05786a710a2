// campaign.cpp -- the rounds of a test by random events.
#include "windows/campaign.h"

#include <cstdlib>
#include <fstream>

Campaign::Campaign(const char* name, int few, int full) : name(name)
{
    const char* const asked = std::getenv("STRATAVUE_WILD");
    const char* const from = std::getenv("STRATAVUE_WILD_FROM");
    count = asked ? std::atoi(asked) : std::getenv("STRATAVUE_SOAK") ? full : few;
    first = from ? std::atoi(from) : 0;
}

void Campaign::Tell(const std::string& words) const
{
    if (const char* const log = std::getenv("STRATAVUE_WILD_LOG"))
        std::ofstream(log, std::ios::app) << name << " " << words << std::endl;
}

Campaign::Round::Round(const Campaign& campaign, int number) : of(campaign), number(number)
{
}

int Campaign::Round::operator*() const
{
    of.Tell("round " + std::to_string(number) + " begins");
    return number;
}

Campaign::Round& Campaign::Round::operator++()
{
    of.Tell("round " + std::to_string(number) + " is over");
    ++number;
    return *this;
}

bool Campaign::Round::operator!=(const Round& other) const
{
    return number != other.number;
}

Campaign::Round Campaign::begin() const
{
    return {*this, first};
}

Campaign::Round Campaign::end() const
{
    return {*this, first + count};
}
