// hush.h -- a save or a run of the program that nobody is to notice: what it writes is put back, and nothing is shown.
#pragma once

#include "session/kept.h"
#include "session/platform.h"
#include "session/session.h"

// As long as a Hushed lives, the seam to the window system shows nothing and answers what loses nothing; behind it the
// session variables that a save writes are put back. The document's record and name are the caller's to keep.
struct Hushed {
    Hushed();

    const Kept<PlatformRecord> platform{Platform};
    const Kept<int16_t> changed{FileChanged}, deviceChanged{DeviceChanged}, mode{DialogMode}, lineCount{LineCount};
    const Kept<Slots<Text, MaxLineBuffer>> lines{LineBuffer};
};
