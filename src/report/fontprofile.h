// fontprofile.h -- the font of the boxes and its profiles, and what the set-up window does.
//
// The text adjustments calibrate the line breaks of the screen to a printer, for one font; a profile (.PRF) keeps a
// font together with them.
#pragma once

#include "grid/controls.h"
#include "session/slots.h"
#include "session/text.h"

// A profile, whose file has six lines: the font, then text adjustments 1 to 5 as integers.
struct FontProfile {
    Text FontName;
    Slots<int16_t, 5> TextAdjust;
};
FontProfile ReadProfile(const Text& name); // failures by number
void WriteProfile(const Text& name, const FontProfile& profile);

// Gives DeviceConfig.FontName, "Arial" if it is empty, to every box whose text reaches the drawings: a line that wraps
// on the screen is the same line on paper.
void AssignFont();

// Copies the files that an office has made its own (logo, project list, description items, headings, layouts, logo
// pictures, profiles) to CopyDestination, once the user has said OK.
void CopyMainFiles();
extern Text CopyDestination; // a folder or a drive; for the session

// What a change of the set-up starts in other places, by procedure: they are built above or beside this folder. The
// start of the program fills them in; null is nothing to do.
struct SetupChangeRecord {
    void (*ResetTextBoxes)() = nullptr; // font or adjustments
    void (*loaddeslists)() = nullptr;   // the description item file
};
extern SetupChangeRecord SetupChange;

namespace frmPrinterSetup
{
// Its boxes, filled by Load and by the commands.
struct Record {
    Text fontText;   // the font as typed
    Text adjustText; // the adjustments in steps of the adjustment buttons: " 0, 1,-2, 0, 0"
    Text marginText; // the offsets as typed
    bool profileLoaded = false;
};
extern Record Dialog;
extern Grid SSMainFilePath; // the seven system files

void Load();     // Fills the boxes from DeviceConfig.
void Command1(); // OK: the boxes take effect, and device.cfg is written
void Command3(); // Printer Set-Up
void Command4(); // Choose Font: takes effect on the adjustments at once
void Command5(); // Copy System Files to Diskette
void mnuOpen();  // a profile: takes effect on the adjustments at once, its font at OK
void mnuSave();  // the font shown and the adjustments as a profile
} // namespace frmPrinterSetup
