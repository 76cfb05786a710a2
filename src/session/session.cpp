// session.cpp -- the session variables and their start values.
#include "session/session.h"

#include "session/shared.h"

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

static const SharedRecord shared[] = {
    {"ProjectPath", Kind::Session, ProjectPath},
    {"BoringFileName", Kind::Document, BoringFileName},
    {"FileChanged", Kind::Document, FileChanged},
    {"DeviceChanged", Kind::Session, DeviceChanged},
    {"ActiveBox", Kind::Window, ActiveBox},
    {"DialogMode", Kind::Document, DialogMode},
    {"DialogResult", Kind::Document, DialogResult},
    {"LineBuffer", Kind::Document, LineBuffer},
    {"LineCount", Kind::Document, LineCount},
    {"WorkingFolder", Kind::Session, WorkingFolder},
    {"RunFolder", Kind::Run, RunFolder},
};
