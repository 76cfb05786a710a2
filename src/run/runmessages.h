// runmessages.h -- what a run of several files has to tell. Each message holds up the run until it is answered; where
// the user wishes, the further ones go into a list that is shown when the run has ended.
#pragma once

#include "session/platform.h"

#include <functional>
#include <vector>

struct RunMessage {
    Text File;
    int Page = 0; // of the file; 0: of no page
    Text Words;
};

struct RunMessagesRecord {
    bool Offered = false;              // a run of several files is under way: its boxes offer the list
    bool Collecting = false;           // the user has taken the offer
    std::function<RunMessage()> Place; // where the run is, but for the words; may be null
    std::vector<RunMessage> List;
};
extern RunMessagesRecord RunMessages;

// Returns whether a box may offer the list: one that asks nothing and tells of something wrong, in a run of several
// files.
bool OffersList(Buttons buttons, Icon icon);
// Puts the words of a box into the list, where messages are collected. Returns false where the box is to be shown.
bool CollectMessage(const Text& words, Buttons buttons, Icon icon);
// Returns the list as lines of text, for the clipboard: file, page and words between tabs.
Text RunMessagesText();

// A run of so many files, as long as it lives. At its end the list is shown, if there is one.
struct MessagesOfRun {
    explicit MessagesOfRun(int files);
    ~MessagesOfRun();
    MessagesOfRun(const MessagesOfRun&) = delete;
    MessagesOfRun& operator=(const MessagesOfRun&) = delete;

private:
    RunMessagesRecord before; // of a run that this one lies within
};
