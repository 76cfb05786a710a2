// stockfiles.cpp -- the stock files of an installation, and their copies in the user's data folder.
#include "session/stockfiles.h"

#include "session/failure.h"
#include "session/files.h"
#include "session/machine.h"
#include "session/platform.h"
#include "session/session.h"

#include <filesystem>
#include <set>
#include <system_error>

// Every set of stock files has the heading words.
static constexpr char Sign[] = "us.hdg";
// The folders of the stock files, within theirs.
static const Text Folders[] = {"", "fills", "samples"};

// The shared data folder of the installation, as it lies from the folder of the programs; told by the build.
static Text SharedFolder()
{
    const std::filesystem::path folder = NativePath(Platform.ExecutableFolder());
    return FromUtf8((folder / STRATAVUE_SHARED).lexically_normal().string());
}

Text StockFolder()
{
    const Text beside = Platform.ExecutableFolder(), shared = SharedFolder();
    return FileExists(JoinPath(beside, Sign)) || !FileExists(JoinPath(shared, Sign)) ? beside : shared;
}

bool Installed()
{
    // An administrator may write anywhere, which is no reason to keep a set-up among the programs: where the stock
    // files are decides first.
    const Text folder = Platform.ExecutableFolder();
    if (StockFolder() != folder)
        return true;
    // No probe is written: several programs may start at once from one folder.
    return !Machine::Writable(NativePath(folder));
}

Text UserFolder()
{
    return JoinPath(Platform.DataFolder(), "Stratavue");
}

Text HomeFolder()
{
    return Installed() ? UserFolder() : Platform.ExecutableFolder();
}

static void MakeFolder(const Text& folder)
{
    std::error_code error;
    std::filesystem::create_directories(NativePath(folder), error);
    if (error)
        RaiseSystemError(error.value(), false);
}

static std::set<Text> GivenBefore(const Text& list)
{
    std::set<Text> names;
    if (!FileExists(list))
        return names;
    LineReader in(list);
    while (!in.AtEnd())
        names.insert(in.Line());
    return names;
}

void CopyStockFiles()
try {
    const Text stock = StockFolder(), list = JoinPath(WorkingFolder, "stock.lst");
    std::set<Text> given = GivenBefore(list);
    const size_t before = given.size();
    for (const Text& folder : Folders) {
        const Text from = JoinPath(stock, folder), to = JoinPath(WorkingFolder, folder);
        MakeFolder(to);
        for (const Text& name : FilesIn(from, "")) {
            if (!given.insert(JoinPath(folder, name)).second || FileExists(JoinPath(to, name)))
                continue;
            WriteWholeFile(JoinPath(to, name), ReadWholeFile(JoinPath(from, name)));
        }
    }
    if (given.size() == before)
        return;
    // Last, so that a first start that was cut short is made good at the next.
    LineWriter out(list);
    for (const Text& name : given)
        out.Line(name);
    out.Close();
} catch (...) {
    ReportFailure(__func__);
}
