// recovery.cpp -- the copies of what is not saved yet, on the disk.
#include "session/recovery.h"

#include "session/failure.h"
#include "session/files.h"
#include "session/machine.h"
#include "session/platform.h"
#include "session/session.h"
#include "session/shared.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <filesystem>
#include <vector>

Slots<RecoveryTool, MaxRecoveryTools> RecoveryTools;
int RecoveryInterval = 60000;

namespace
{
using Clock = std::chrono::steady_clock;

// The copy of one tool's document.
struct CopyRecord {
    Text file;                 // its base name; empty: there is none
    bool owed = false;         // a save of the document has failed, and none has written it since
    Clock::time_point writeBy; // when the next one is due
};

struct RunRecord {
    Text folder;
    Text id; // of this run; empty: no copies are kept
    int lock = -1;
    int tool = 0;
    int copies = 0; // written so far; each has a name of its own
    Slots<CopyRecord, MaxRecoveryTools> copy;
};

// What a run that has ended has left of a document.
struct LeftCopy {
    Text stem; // of its text file
    int tool = 0;
    Text name, time, file;
    Text mark; // of the document's file when the copy was made
};
} // namespace

static RunRecord run;

static const SharedRecord shared[] = {
    {"RecoveryTools", Kind::Session, RecoveryTools},
    {"RecoveryInterval", Kind::Session, RecoveryInterval},
    {"run", Kind::Machine, run},
};

static void RemoveFile(const Text& name)
{
    Machine::Remove(NativePath(JoinPath(run.folder, name)));
}

// The file of this name and those that the tool has put beside it.
static void RemoveCopy(const Text& file)
{
    if (file.empty())
        return;
    for (const Text& name : FilesIn(run.folder, ""))
        if (name.starts_with(file))
            RemoveFile(name);
}

static Text TextFile(int tool)
{
    return run.id + "-" + PlainNumber(tool) + ".txt";
}

// The text file first: without it there is no copy, and a program killed between the two leaves nothing half.
static void Remove(int tool)
{
    CopyRecord& copy = run.copy[tool];
    if (!copy.file.empty()) {
        RemoveFile(TextFile(tool));
        RemoveCopy(copy.file);
    }
    copy = CopyRecord();
}

void StartRecovery(const Text& folder)
{
    EndRecovery();
    std::error_code ignored;
    std::filesystem::create_directories(NativePath(folder), ignored);
    Machine::KeepPrivate(NativePath(folder)); // what is typed here is nobody else's
    if (!FolderWritable(folder))
        return;
    run.folder = folder;
    const auto now = std::chrono::system_clock::now().time_since_epoch().count();
    const Text id = std::to_string(Machine::ProcessNumber()) + "-" + std::to_string(now / 1000 % 1000000000);
    // Locked before it has the name by which others look for it.
    const Text making = JoinPath(folder, id + ".new");
    run.lock = Machine::Lock(NativePath(making), true);
    if (run.lock >= 0 && Machine::Replace(NativePath(making), NativePath(JoinPath(folder, id + ".lock")), false) == 0)
        run.id = id;
}

static void Watch(int tool)
{
    run.tool = tool;
    run.copy[tool].writeBy = Clock::now();
}

void WatchTool(int tool)
{
    if (run.tool != 0 && run.tool != tool && !run.copy[run.tool].owed)
        Remove(run.tool);
    Watch(tool);
}

static Text Now()
{
    const std::time_t now = std::time(nullptr);
    char words[40];
    std::strftime(words, sizeof words, "%Y-%m-%d %H:%M", std::localtime(&now));
    return words;
}

// What stands under a name. A save puts a new file in the place of the old one, so that it is never the same again.
static Text MarkOf(const Text& name)
{
    const FileState state = name.empty() ? FileState() : Machine::StateOf(NativePath(name));
    if (state == FileState())
        return "";
    constexpr int64_t second = 1'000'000'000;
    return std::to_string(state.Number) + " " + std::to_string(state.Written / second) + " " +
           std::to_string(state.Written % second);
}

// A new copy, and then the old one goes: at every moment there is a whole one.
static void WriteCopy()
{
    const RecoveryTool& tool = RecoveryTools[run.tool];
    if (run.id.empty() || !tool.Write)
        return;
    CopyRecord& copy = run.copy[run.tool];
    const Text file = run.id + "-" + PlainNumber(run.tool) + "-" + PlainNumber(++run.copies) + ".copy";
    try {
        tool.Write(JoinPath(run.folder, file));
        if (!FileExists(JoinPath(run.folder, file)))
            throw RunTimeError{DiskFull};
        LineWriter out(JoinPath(run.folder, TextFile(run.tool)));
        out.Line(tool.Name);
        out.Line(*tool.FileName);
        out.Line(Now());
        out.Line(file);
        out.Line(MarkOf(*tool.FileName));
        out.Close();
    } catch (...) { // a disk that is full is told of when the user saves; the copy before stays
        RemoveCopy(file);
        return;
    }
    RemoveCopy(copy.file);
    copy.file = file;
    // A little early, so that with the time to the next call no more than the interval passes.
    copy.writeBy = Clock::now() + std::chrono::milliseconds(RecoveryInterval * 7 / 8);
}

void KeepCopy()
{
    if (run.tool == 0)
        return;
    CopyRecord& copy = run.copy[run.tool];
    if (FileChanged == 1) {
        if (Clock::now() >= copy.writeBy)
            WriteCopy();
    } else {
        if (!copy.file.empty() && !copy.owed)
            Remove(run.tool);
        copy.writeBy = Clock::now(); // the first change is kept at once
    }
}

void SaveDocument(void (*save)())
{
    if (run.tool == 0) {
        save();
        return;
    }
    const Text name = *RecoveryTools[run.tool].FileName;
    const Text before = MarkOf(name);
    save();
    if (MarkOf(name) != before) {
        Remove(run.tool);
        return;
    }
    OweCopy();
}

void OweCopy()
{
    if (run.tool == 0)
        return;
    WriteCopy();
    run.copy[run.tool].owed = true;
}

bool SaveOwed()
{
    return run.tool != 0 && run.copy[run.tool].owed;
}

void DropCopy()
{
    if (run.tool != 0)
        Remove(run.tool);
}

// The text file gets a name of its own, so that the next copy of the tool does not take its place.
static void LeaveCopy(int tool)
{
    CopyRecord& copy = run.copy[tool];
    if (!copy.file.empty()) {
        const Text left = copy.file.substr(0, copy.file.size() - Text(".copy").size()) + ".txt";
        std::error_code ignored;
        std::filesystem::rename(NativePath(JoinPath(run.folder, TextFile(tool))),
                                NativePath(JoinPath(run.folder, left)), ignored);
    }
    copy = CopyRecord();
}

void LeaveDocument()
{
    if (run.tool == 0)
        return;
    if (run.copy[run.tool].owed)
        LeaveCopy(run.tool);
    else
        Remove(run.tool);
}

static int ToolOfName(const Text& name)
{
    for (int tool = 1; tool <= MaxRecoveryTools; ++tool)
        if (RecoveryTools[tool].Name == name && RecoveryTools[tool].Open)
            return tool;
    return 0;
}

// What a run has left, by its text files. One that says nothing of use is a damaged disk's.
static std::vector<LeftCopy> CopiesOf(const Text& id)
{
    std::vector<LeftCopy> copies;
    for (const Text& name : FilesIn(run.folder, ".txt"))
        if (name.starts_with(id + "-"))
            try {
                LineReader in(JoinPath(run.folder, name));
                LeftCopy copy;
                copy.stem = name;
                copy.tool = ToolOfName(in.Line());
                copy.name = in.Line();
                copy.time = in.Line();
                copy.file = in.Line();
                copy.mark = in.Line();
                if (!FileExists(JoinPath(run.folder, copy.file)))
                    throw RunTimeError{FileNotFound};
                copies.push_back(copy);
            } catch (...) {
                RemoveFile(name);
            }
    return copies;
}

// The files of a run that no text file speaks of: the program ended while it wrote them.
static void RemoveStrays(const Text& id)
{
    const std::vector<LeftCopy> copies = CopiesOf(id);
    for (const Text& name : FilesIn(run.folder, "")) {
        const bool known = std::any_of(copies.begin(), copies.end(), [&name](const LeftCopy& copy) {
            return name == copy.stem || name.starts_with(copy.file);
        });
        if (name.starts_with(id + "-") && !known)
            RemoveFile(name);
    }
    if (copies.empty())
        RemoveFile(id + ".lock");
}

// True: the user has opened it.
static bool Offer(const LeftCopy& left)
{
    const RecoveryTool& tool = RecoveryTools[left.tool];
    const Text what = left.name.empty() ? "a new " + tool.Name + " file" : left.name;
    // The program may have ended at the end of a save, or another one may have saved it.
    const Text since = MarkOf(left.name) == left.mark ? "" : "  The file itself has been written since.";
    const int answer = MsgBox("The program ended before " + what + " was saved.  A copy of " + left.time +
                                  " was kept." + since + "  Would you like to open it?",
                              YesNoCancel, Question);
    if (answer == Cancel)
        return false;
    const bool open = answer == Yes;
    if (open) {
        tool.Open(JoinPath(run.folder, left.file), left.name);
        // It goes when this run has its own.
        if (run.id.empty())
            return true;
        if (FileChanged == 1 && run.tool == left.tool) {
            WriteCopy();
            if (run.copy[run.tool].file.empty())
                return true;
        }
    }
    RemoveFile(left.stem);
    RemoveCopy(left.file);
    return open;
}

void OfferCopies()
{
    if (run.folder.empty())
        return;
    struct EndedRun {
        Text id;
        int lock;
    };
    std::vector<EndedRun> ended;
    std::vector<LeftCopy> copies;
    for (const Text& name : FilesIn(run.folder, ".lock")) {
        const Text id = name.substr(0, name.size() - Text(".lock").size());
        const int lock = id == run.id ? -1 : Machine::Lock(NativePath(JoinPath(run.folder, name)), false);
        if (lock < 0)
            continue;
        ended.push_back({id, lock});
        for (const LeftCopy& copy : CopiesOf(id))
            if (copy.tool != 0)
                copies.push_back(copy);
    }
    std::stable_sort(copies.begin(), copies.end(),
                     [](const LeftCopy& a, const LeftCopy& b) { return a.time > b.time; });
    // One is enough: a second would take the place of the first in the boxes. It is offered at the next start.
    std::any_of(copies.begin(), copies.end(), Offer);
    for (const EndedRun& old : ended) {
        RemoveStrays(old.id);
        Machine::Unlock(old.lock);
    }
}

void EndRecovery()
{
    if (!run.id.empty()) {
        for (int tool = 1; tool <= MaxRecoveryTools; ++tool)
            if (!run.copy[tool].owed)
                Remove(tool);
        RemoveStrays(run.id);
    }
    if (run.lock >= 0)
        Machine::Unlock(run.lock);
    run = RunRecord();
}
