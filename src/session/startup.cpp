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

static constexpr char usage[] = "Usage: stratavue [FILE]\n"
                                "Types borings in, draws logs, cross sections, fence diagrams and soil tables.\n"
                                "\n"
                                "A FILE is opened by the tool of its ending:\n"
                                "  .BOR .SV3 .SV4   boring logs\n"
                                "  .CRO             cross sections\n"
                                "  .FEN             fence diagrams\n"
                                "  .SOI             soil analysis tables\n"
                                "  .GIS             the layers of a site\n"
                                "  .GCV             maps of the general conversion\n"
                                "\n"
                                "  -h, --help       this text, and nothing is opened\n"
                                "  --version        the version, and nothing is opened\n"
                                "\n"
                                "Pages are drawn without windows by stratavue-batch.\n";

std::string ShellAnswer(const std::vector<std::string>& words)
{
    for (const std::string& word : words) {
        if (word == "-h" || word == "--help")
            return usage;
        if (word == "--version")
            return "Stratavue " STRATAVUE_VERSION "\n";
    }
    return "";
}

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
