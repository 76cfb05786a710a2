// deviceconfig.cpp -- device.cfg: read at the start, rewritten whole.
#include "session/deviceconfig.h"

#include "session/failure.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/session.h"
#include "session/shared.h"

#include <algorithm>

DeviceRecord DeviceConfig;

static const SharedRecord shared[] = {
    {"DeviceConfig", Kind::Session, DeviceConfig},
};

static Text DeviceFile()
{
    return JoinPath(WorkingFolder, "device.cfg");
}

void SplitMarginOffsets()
{
    const Text& offsets = DeviceConfig.MarginOffsets;
    const bool both = Holds(offsets, ',');
    DeviceConfig.MarginX = std::clamp(both ? TextNumber(Before(offsets, ',')) : 0.0, -2.0, 2.0);
    DeviceConfig.MarginY = std::clamp(both ? TextNumber(Behind(offsets, ',')) : 0.0, -2.0, 2.0);
}

void DefaultSystemFiles()
{
    const Text defaults[] = {"us.hdg",
                             "svproj.lst",
                             "desitem.txt",
                             WorkingFolder,
                             WorkingFolder,
                             WorkingFolder,
                             JoinPath(WorkingFolder, "fills/")};
    for (int i = 1; i <= 7; ++i)
        if (DeviceConfig.SystemFiles[i].empty())
            DeviceConfig.SystemFiles[i] = defaults[i - 1];
}

// Read only as long as the file has lines: an older, shorter device.cfg is valid.
static void ReadDevice()
{
    LineReader in(DeviceFile());
    ProjectPath = in.AtEnd() ? "" : in.Line();
    DeviceConfig.MarginOffsets = in.AtEnd() ? "" : in.Line();
    DeviceConfig.FontName = in.AtEnd() ? "" : in.Line();
    for (int i = 1; i <= 5; ++i)
        DeviceConfig.TextAdjust[i] = in.AtEnd() ? int16_t(0) : RoundInt16(TextNumber(in.Line()));
    for (int i = 1; i <= 7; ++i)
        DeviceConfig.SystemFiles[i] = in.AtEnd() ? "" : in.Line();
    SplitMarginOffsets();
}

// The first device.cfg: lines 1 to 14, the adjustments as bare "0".
static void WriteFirstDevice()
{
    ProjectPath = WorkingFolder;
    DeviceConfig = DeviceRecord();
    DefaultSystemFiles();
    LineWriter out(DeviceFile());
    out.Line(ProjectPath);
    out.Line(DeviceConfig.MarginOffsets);
    out.Line(DeviceConfig.FontName);
    for (int i = 1; i <= 5; ++i)
        out.Line("0");
    for (int i = 1; i <= 6; ++i)
        out.Line(DeviceConfig.SystemFiles[i]);
    out.Close();
}

void LoadDevice()
{
    // A run without windows takes the set-up as it finds it: the folder may be read-only, or shared with others.
    if (Platform.Unattended) {
        DeviceConfig = DeviceRecord();
        ProjectPath = WorkingFolder;
        if (FileExists(DeviceFile()))
            ReadDevice();
        DefaultSystemFiles();
        return;
    }
    if (FileExists(DeviceFile())) {
        ReadDevice();
        if (!FolderWritable(ProjectPath))
            ProjectPath = WorkingFolder;
    } else {
        WriteFirstDevice();
        MsgBox("Couldn't Find DEVICE.CFG File, creating new", OkOnly, Exclamation);
    }
    DefaultSystemFiles();
    SaveDevice();
}

void SaveDevice()
try {
    if (Platform.Unattended) {
        DeviceChanged = 0;
        return;
    }
    LineWriter out(DeviceFile());
    out.Line(ProjectPath);
    out.Line(DeviceConfig.MarginOffsets);
    out.Line(DeviceConfig.FontName);
    for (int i = 1; i <= 5; ++i)
        out.Line(IntegerField(DeviceConfig.TextAdjust[i]));
    for (int i = 1; i <= 7; ++i)
        out.Line(DeviceConfig.SystemFiles[i]);
    out.Close();
    DeviceChanged = 0;
} catch (...) {
    ReportFailure(__func__);
}
