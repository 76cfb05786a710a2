// startup.cpp -- the order in which the program starts.
#include "session/startup.h"

#include "session/failure.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/session.h"
#include "session/shared.h"
#include "session/stockfiles.h"

#include <filesystem>

Text HelpFile;

static const SharedRecord shared[] = {
    {"HelpFile", Kind::Session, HelpFile},
};

void LoadTitleBox()
{
    WorkingFolder = RunFolder = HomeFolder();
    if (Installed())
        CopyStockFiles();
    // What the system resolves without files.cpp, such as its own file dialogs, counts from here too. A folder that
    // cannot be entered fails later, at its first file.
    std::error_code ignored;
    std::filesystem::current_path(NativePath(WorkingFolder), ignored);
    HelpFile = "sv5.HLP";
}

void Main()
try {
    LoadTitleBox();
    Platform.ShowAbout(false);
    Platform.ShowLogWindow();
    Platform.ShowAbout(true);
    checkiffirst();
} catch (...) {
    ReportFailure(__func__);
}

// The mark is written before the window is shown, so that a program ended at the welcome has been welcomed. Its content
// is never read.
void checkiffirst()
try {
    const Text mark = JoinPath(WorkingFolder, "first.txt");
    if (FileExists(mark))
        return;
    LineWriter out(mark);
    out.Line("yes");
    out.Close();
    Platform.ShowWelcome();
} catch (...) {
    ReportFailure(__func__);
}
