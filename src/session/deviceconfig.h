// deviceconfig.h -- DeviceConfig: the set-up of the program, as device.cfg in the working folder holds it.
//
// Filled by LoadDevice at the start and by the set-up window; read by everything. ProjectPath, line 1 of the file,
// is a session variable of its own.
#pragma once

#include "session/slots.h"
#include "session/text.h"

// The system files, in file order: lines 9 to 15.
enum SystemFile { HeadingFile = 1, ProjectListFile, DescItemFile, LayoutFolder, LogoFolder, ProfileFolder, FillFolder };

struct DeviceRecord {
    Text MarginOffsets = "0,0";     // as the user typed it
    float MarginX = 0, MarginY = 0; // the sheet offsets in inches, within -2 to 2
    Text FontName = "Arial";
    Slots<int16_t, 5> TextAdjust; // twips: description, well notes, remarks, general notes, soil notes box
    Slots<Text, 7> SystemFiles;
};
extern DeviceRecord DeviceConfig;

// Reads device.cfg at the start of a program, or writes it where there is none, and says so. A project folder that
// cannot be written gives way to the working folder, and what is empty is filled in; then the file is written anew.
void LoadDevice();
void SaveDevice();         // Rewrites device.cfg, and clears DeviceChanged.
void SplitMarginOffsets(); // Puts MarginOffsets into MarginX and MarginY; without a comma they are 0.
void DefaultSystemFiles(); // Gives each system file that has no name its default one.
