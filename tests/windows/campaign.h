// campaign.h -- the rounds of a test by random events. Each begins with everything fresh and goes by its number alone,
// so that a long campaign can be played in pieces, by several processes, and a round that failed alone.
//
// STRATAVUE_WILD tells how many rounds, STRATAVUE_WILD_FROM the first one. Without them the rounds are few, with
// STRATAVUE_SOAK as many as the full campaign has. STRATAVUE_WILD_LOG names a file to which each round adds a line as
// it begins and one as it ends: what is left of a round that took the process with it.
#pragma once

#include <string>

class Campaign
{
public:
    Campaign(const char* name, int few, int full);

    // The rounds in their order.
    class Round
    {
    public:
        int operator*() const;
        Round& operator++();
        bool operator!=(const Round& other) const;

    private:
        friend class Campaign;
        Round(const Campaign& campaign, int number);
        const Campaign& of;
        int number;
    };
    Round begin() const;
    Round end() const;

private:
    void Tell(const std::string& words) const;

    const std::string name;
    int first = 0, count = 0;
};
