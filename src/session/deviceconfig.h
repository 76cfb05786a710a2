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

// Steps 2 and 3 of the start: reads device.cfg, or writes it and says so; replaces a project folder that cannot be
// written by the working folder; fills what is empty; writes the file anew.
void LoadDevice();
void SaveDevice();         // rewrites device.cfg, clears DeviceChanged
void SplitMarginOffsets(); // MarginOffsets into MarginX and MarginY; without a comma 0, 0
void DefaultSystemFiles(); // those that are empty
