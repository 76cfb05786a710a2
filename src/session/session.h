// session.h -- the variables that the whole session shares. None is saved with a document.
#pragma once

#include "session/slots.h"
#include "session/text.h"

extern Text ProjectPath;      // current project folder: line 1 of device.cfg
extern Text BoringFileName;   // path of the open boring file; empty: it was never saved
extern int16_t FileChanged;   // 1: the open document of the visible tool has unsaved changes
extern int16_t DeviceChanged; // 1: device.cfg has to be rewritten at exit; cleared by SaveDevice
extern int16_t ActiveBox;     // number of the editor's box last clicked
extern int16_t DialogMode;    // before the chooser its mode, after its OK the chosen file version (0, 1, 2, or -1)
extern Text DialogResult;     // what the chooser returns: a path, or empty when cancelled
constexpr int MaxLineBuffer = 1000;
extern Slots<Text, MaxLineBuffer> LineBuffer; // lines of Text2Wrap32 and Text2Array
extern int16_t LineCount;                     // number of valid lines in LineBuffer
extern const Text CrLf;

extern Text WorkingFolder; // folder of the executable: device.cfg, prompt.txt, logo.txt, the stock files
extern Text RunFolder;     // where log.mas and break.mas lie: the current folder, a private one without windows
