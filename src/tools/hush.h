// hush.h -- a save or a run of the program that nobody is to notice: what it writes is put back, and nothing is shown.
#pragma once

#include "session/kept.h"
#include "session/platform.h"
#include "session/shared.h"

// As long as a Hushed lives, the seam to the window system shows nothing and answers what loses nothing; behind it all
// that a save or an opening of a file writes is put back. For a run, KeepAll{Kind::Run} beside it puts back what that
// writes.
//
// It may come in the midst of a run, by the timer of the recovery copies. What the run holds on to stays where it is:
// a record that nothing has changed is put back in place.
struct Hushed {
    Hushed();
    ~Hushed();

    const Kept<PlatformRecord> platform{Platform};
    const KeptRecords document{Kind::Document};
};
