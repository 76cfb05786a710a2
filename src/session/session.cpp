// session.cpp -- the session variables and their start values.
#include "session/session.h"

Text ProjectPath;
Text BoringFileName;
int16_t FileChanged = 0;
int16_t DeviceChanged = 0;
int16_t ActiveBox = 0;
int16_t DialogMode = 0;
Text DialogResult;
Slots<Text, MaxLineBuffer> LineBuffer;
int16_t LineCount = 0;
const Text CrLf = "\r\n";
Text WorkingFolder = ".";
Text RunFolder = ".";
