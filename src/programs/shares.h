// shares.h -- a run of many files in several processes. Each is this program once more with the same command line and a
// share of the files, one behind another; it leaves what it has made in a folder of its own, with a report. The process
// that the user has started takes all of it in the order of the files: it gives the names and tells the messages.
#pragma once

#include "session/text.h"

#include <cstddef>
#include <fstream>
#include <string>
#include <vector>

// What a process reports of its share, in the order in which it happens.
struct ShareEvent {
    enum Kind : char {
        Page = 'P',         // of File, numbered Number in its boring or 0: its drawing and its listing are there
        Picture = 'I',      // the picture of the page last told of is there
        Boring = 'B',       // that File is converted to
        Message = 'M',      // Words for File
        Announcement = 'A', // Words for File
        FontMissing = 'F',  // at the first page of the share
        Line = 'L',         // of a check list
        FileDone = 'D',     // a file of the share has been checked or converted
        Hidden = 'H',       // so many entries of the check lists have been switched off
        NotGood = 'N',      // an entry of the check lists is an error
        Ended = 'E',        // the share is done
        BrokenOff = 'X',    // the run has ended before the share was done, and with it what comes behind
        Unsettled = 'U'     // what the share begins with cannot be had without all that comes before it
    };
    Kind What;
    int Number = 0;
    Text File, Words;
};

// The report under way; each event is on the disk when Tell returns.
class ShareReport
{
public:
    explicit ShareReport(const Text& folder); // failures by number
    void Tell(const ShareEvent& event);       // failures by number

private:
    std::ofstream out;
};

// Reads the report of a share as far as it got.
std::vector<ShareEvent> ReadShareReport(const Text& folder);

// The files of share 1 to of: those from First, without Last.
struct ShareOfFiles {
    size_t First, Last;
};
ShareOfFiles FilesOfShare(size_t files, int share, int of);

// Returns the lines of so many pages from the front of a listing, which counts from 1, numbered behind those drawn.
std::string Renumbered(const std::string& listing, int pages, int drawn);

// The user has asked the program to end.
struct Interrupt {
};

// The processes of a run; those that have not ended die with this.
class ShareProcesses
{
public:
    static constexpr int UnsettledStatus = 4; // of a process that has reported Unsettled
    // words: the command line behind the program's name. folder: where each share gets a folder of its own.
    ShareProcesses(const std::vector<std::string>& words, int shares, const Text& folder);
    ~ShareProcesses();
    ShareProcesses(const ShareProcesses&) = delete;
    ShareProcesses& operator=(const ShareProcesses&) = delete;
    // Waits for all of them. False: one could not be started, or is unsettled. Throws Interrupt.
    bool Await();
    static Text Folder(const Text& folder, int share);

private:
    std::vector<int> running;
    bool started = true;
};
