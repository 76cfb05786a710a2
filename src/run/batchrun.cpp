// batchrun.cpp -- the batch dialog's work, the run files and the progress of a page. The renderers read the run files
// and know nothing else of who called them.
#include "run/batchrun.h"

#include "canvas/metaugl.h"
#include "canvas/patterns.h"
#include "run/runmessages.h"
#include "run/screenview.h"
#include "session/deviceconfig.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/savename.h"
#include "session/session.h"
#include "session/shared.h"

#include <algorithm>
#include <cmath>
#include <vector>

int16_t jobCode = 0;
Slots<Text, MaxRunFiles> runFiles;
int16_t runFileCount = 0;
int16_t singleFile = 0;
Text singleFileName;
int16_t introType = 0;
int16_t dialogBusy = 0;
int16_t stopRequested = 0;
Text lastDir;
int16_t progressValue = 0, progressTotal = 0;
Slots<void (*)(), MaxJobs> JobTable;
void (*IntroPages)() = nullptr;
frmDrawPrint::Record frmDrawPrint::Dialog;
void (*frmDrawPrint::CloseWindow)() = nullptr;

static const SharedRecord shared[] = {
    {"jobCode", Kind::Run, jobCode},
    {"runFiles", Kind::Run, runFiles},
    {"runFileCount", Kind::Run, runFileCount},
    {"singleFile", Kind::Run, singleFile},
    {"singleFileName", Kind::Run, singleFileName},
    {"introType", Kind::Run, introType},
    {"dialogBusy", Kind::Window, dialogBusy},
    {"stopRequested", Kind::Run, stopRequested},
    {"lastDir", Kind::Run, lastDir},
    {"progressValue", Kind::Run, progressValue},
    {"progressTotal", Kind::Run, progressTotal},
    {"JobTable", Kind::Session, JobTable},
    {"IntroPages", Kind::Session, IntroPages},
    {"frmDrawPrint::Dialog", Kind::Run, frmDrawPrint::Dialog},
    {"frmDrawPrint::CloseWindow", Kind::Run, frmDrawPrint::CloseWindow},
};

namespace
{
struct JobWords {
    std::string_view Title, Filter, Label;
};

// One record of the page form: a page to draw.
struct PageEntry {
    Text File, Caption;
    int16_t Start = 0;
    float End = 0;
    int Page = 0; // of the boring
};

// As much of a run as the run files hold. Pages: where the page form is written; else the list of the files is.
struct RunPart {
    std::vector<Text> Files;
    std::vector<PageEntry> Pages;
};
} // namespace

static const Slots<JobWords, MaxJobs> jobs = {{{
    {},
    {"Select Borings to Draw", "*.BOR", "Boring Log Files:"},
    {"Select Borings to Print", "*.BOR", "Boring Log Files:"},
    {"Select Cross Sections to Draw", "*.CRO", "Cross Section Files:"},
    {"Select Cross Sections to Print", "*.CRO", "Cross Section Files:"},
    {"Select Fence Diagrams to Draw", "*.FEN", "Fence Diagram Files:"},
    {"Select Fence Diagrams to Print", "*.FEN", "Fence Diagram Files:"},
    {"Select Soil Tables to Draw", "*.SOI", "Soil Table Files:"},
    {"Select Soil Tables to Print", "*.SOI", "Soil Table Files:"},
    {}, // the Fill Pattern Guide has no dialog
    {"Select Boring Log Files to Export", "*.BOR", "Boring Log Files:"},
    {"Select GTGS .PRT Files to Convert", "*.PRT", "GTGS Files:"},
    {"Select WinLog .LOG Files to Convert", "*.LOG", "WinLog Files:"},
}}};

static bool DrawsBorings()
{
    return jobCode == DrawLogsJob || jobCode == PrintLogsJob;
}

// ---- The run files

Text MasFile()
{
    return JoinPath(RunFolder, "log.mas");
}

static Text BreakFile()
{
    return JoinPath(RunFolder, "break.mas");
}

void WriteBreak(const Text& flag)
{
    LineWriter out(BreakFile(), Durability::Scratch);
    out.Line(flag);
    out.Close();
}

Text ReadBreak()
{
    return LineReader(BreakFile()).Line();
}

void getsvfiles()
try {
    LineReader in(MasFile());
    const int count = in.Count();
    for (int i = 1; i <= count; ++i)
        runFiles[i] = in.Line();
    runFileCount = RoundInt16(count);
    RunPages.pageCount = runFileCount;
    RunPages.pageFile = runFiles[1];
} catch (...) {
    ReportFailure(__func__);
}

static void WriteList()
{
    LineWriter out(MasFile(), Durability::Scratch);
    out.Line(PlainNumber(int(runFileCount)));
    for (int i = 1; i <= runFileCount; ++i)
        out.Line(runFiles[i]);
    out.Close();
}

static void WritePages(const std::vector<PageEntry>& pages)
{
    LineWriter out(MasFile(), Durability::Scratch);
    out.Line(PlainNumber(int(pages.size())));
    for (const PageEntry& page : pages) {
        out.Line(page.File);
        out.Line(page.Caption);
        out.Line(PlainNumber(int(page.Start)));
        out.Line(PlainNumber(double(page.End)));
    }
    out.Close();
    WriteBreak("0");
}

// ---- The pages of a boring

void getpage(Text& first, Text& second)
try {
    const Text& told = DeviceConfig.SystemFiles[HeadingFile];
    const Text name = told.empty() ? "us.hdg" : WithEnding(told, ".hdg");
    if (!FileExists(name)) {
        first = "";
        MsgBox("Heading File Not Found: " + name, OkOnly, Exclamation);
        return;
    }
    LineReader in(name);
    in.Skip(2);
    const Text line = in.Line();
    first = Before(line, ',');
    second = Holds(line, ',') ? Text(LTrim(Behind(line, ','))) : "-";
} catch (...) {
    ReportFailure(__func__);
}

BoringPages::BoringPages(const Text& file)
{
    LineReader in(file);
    in.Skip(63);
    const float endDepth = static_cast<float>(TextNumber(in.Line()));
    in.Skip(1);
    pageBreak = static_cast<float>(TextNumber(in.Line()));
    if (pageBreak > 0)
        Count = RoundInt16(endDepth / pageBreak);
    else
        pageBreak = endDepth;
}

// Kept: a page starts at the end of the one before rounded to a whole number, with the gap or overlap that results.
bool BoringPages::Next()
{
    if (Number > 0)
        Start = RoundInt16(End);
    ++Number;
    End = static_cast<float>(Start) + pageBreak;
    return Number <= Count;
}

// The pages of one boring, all of them or the one that the dialog asks for; failure 9 for more than the run files
// hold.
static std::vector<PageEntry> PagesOfBoring(const Text& file, Text& firstWord, Text& secondWord)
{
    BoringPages page(file);
    std::vector<PageEntry> pages;
    int only = 0;
    if (!frmDrawPrint::Dialog.AllPages && page.Count > 0)
        only = static_cast<int>(
            std::clamp(std::nearbyint(TextNumber(frmDrawPrint::Dialog.Text1)), 1.0, double(page.Count)));
    while (page.Next())
        if (only == 0 || only == page.Number) {
            getpage(firstWord, secondWord);
            if (pages.size() == MaxPageRecords)
                throw RunTimeError{SubscriptOutOfRange};
            PageEntry& entry = pages.emplace_back(PageEntry{file, "", page.Start, page.End, page.Number});
            if (!firstWord.empty())
                entry.Caption = "(" + firstWord + " " + PlainNumber(page.Number) + " " + secondWord + " " +
                                PlainNumber(int(page.Count)) + ")";
        }
    return pages;
}

// The run in as few parts as the run files allow, a boring whole in one of them.
static std::vector<RunPart> PartsOf(const std::vector<Text>& files)
{
    const bool pageForm = DrawsBorings() && frmDrawPrint::Dialog.ReportOption == 0;
    std::vector<RunPart> parts(1);
    Text firstWord, secondWord;
    for (const Text& file : files) {
        RunMessages.Place = [file] { return RunMessage{file, 0, ""}; };
        const std::vector<PageEntry> pages =
            pageForm ? PagesOfBoring(file, firstWord, secondWord) : std::vector<PageEntry>();
        if (parts.back().Files.size() == MaxRunFiles || parts.back().Pages.size() + pages.size() > MaxPageRecords)
            parts.emplace_back();
        parts.back().Files.push_back(file);
        parts.back().Pages.insert(parts.back().Pages.end(), pages.begin(), pages.end());
    }
    return parts;
}

static void WriteRunFiles(const RunPart& part)
{
    runFileCount = int16_t(part.Files.size());
    std::copy(part.Files.begin(), part.Files.end(), runFiles.slot.begin() + 1);
    if (DrawsBorings() && frmDrawPrint::Dialog.ReportOption == 0)
        WritePages(part.Pages);
    else
        WriteList();
}

// ---- The dialog

void DrawPrintLoad()
try {
    using frmDrawPrint::Dialog;
    if (jobCode < GuideJob && !ProjectPath.empty())
        lastDir = ProjectPath;
    if (lastDir.empty())
        lastDir = WorkingFolder;
    const JobWords& job = jobs[jobCode];
    Dialog = frmDrawPrint::Record();
    Dialog.Unloaded = false;
    Dialog.Title = job.Title;
    Dialog.Filter = job.Filter;
    Dialog.Label = job.Label;
    Dialog.ReportChoice = DrawsBorings();
    Dialog.HeightTwips = jobCode > PrintLogsJob ? 4035 : 0;
    Dialog.Dir1 = lastDir;
    if (singleFile != 1)
        frmDrawPrint::ChangeFolder(lastDir);
} catch (...) {
    ReportFailure(__func__);
}

void frmDrawPrint::ChangeFolder(const Text& folder)
{
    lastDir = folder;
    Dialog.Dir1 = folder;
    Dialog.SelectAll = false;
    Dialog.FileCount = 0;
    if (Dialog.Filter.empty())
        return;
    for (const Text& file : FilesIn(folder, Dialog.Filter.substr(1))) {
        Dialog.File1[Dialog.FileCount + 1] = file;
        Dialog.Selected[++Dialog.FileCount] = false;
    }
}

void frmDrawPrint::Option1()
{
    for (int i = 1; i <= Dialog.FileCount; ++i)
        Dialog.Selected[i] = true;
    Dialog.SelectAll = true;
}

bool frmDrawPrint::Command1()
{
    if (dialogBusy != 0)
        return false;
    dialogBusy = -1;
    if (jobCode == PrintLogsJob)
        Platform.ShowPrinting();
    DrawPrintOk();
    dialogBusy = 0;
    return Dialog.Unloaded;
}

bool frmDrawPrint::Command2()
{
    if (dialogBusy != 0)
        return false;
    Dialog.Unloaded = true;
    stopRequested = -1;
    return true;
}

static std::vector<Text> Selection()
{
    using frmDrawPrint::Dialog;
    if (singleFile == 1)
        return {singleFileName};
    std::vector<Text> files;
    for (int i = 1; i <= Dialog.FileCount; ++i)
        if (Dialog.Selected[i])
            files.push_back(JoinPath(Dialog.Dir1, Dialog.File1[i]));
    return files;
}

// Conversions and exports take their files at once. False: there are too many, which is told.
static bool FitsRun(size_t files)
{
    if (jobCode <= GuideJob || files <= MaxRunFiles)
        return true;
    MsgBox(PlainNumber(int(files)) + " chosen, " + PlainNumber(MaxRunFiles) + " possible", OkOnly, Exclamation);
    return false;
}

// The file and page that the run is at. Conversions have no pages; all runs but that of logs count from 1.
static RunMessage PlaceIn(const RunPart& part)
{
    const bool pages = jobCode < GuideJob, log = !part.Pages.empty();
    const int at = !pages ? progressValue : log ? RunPages.pageIndex : RunPages.pageIndex - 1;
    if (at < 0 || at >= int(log ? part.Pages.size() : part.Files.size()))
        return {};
    return log ? RunMessage{part.Pages[size_t(at)].File, part.Pages[size_t(at)].Page, ""}
               : RunMessage{part.Files[size_t(at)], pages ? 1 : 0, ""};
}

// Starts the job for one part after another, the run files of the first one having been written. A run that the user
// has ended, or that has broken off, ends with its part.
static void RunParts(const std::vector<RunPart>& parts, void (*run)())
{
    for (const RunPart& part : parts) {
        if (&part != &parts.front())
            WriteRunFiles(part);
        RunMessages.Place = [&part] { return PlaceIn(part); };
        RunPages.exited = false;
        run();
        if (RunPages.exited || RunPages.pageIndex < RunPages.pageCount)
            break;
    }
    RunMessages.Place = nullptr;
}

// What the job table gives for the job. The four drawing jobs come in pairs, to draw and to print.
static void StartJob(const std::vector<RunPart>& parts)
{
    const bool intro = DrawsBorings() && introType != 0;
    void (*const run)() = intro ? IntroPages : JobTable[jobCode];
    if (!run)
        return;
    if (jobCode < GuideJob)
        RunPages.printing = jobCode % 2 == 0 ? 1 : 0;
    if (DrawsBorings() && !intro)
        RunPages.zeroBased = 1;
    PageCanvas.polyCount = 0; // a polygon that failed half-way is of its own run
    ForgetChangedPictures();
    if (jobCode < GuideJob && RunPages.printing == 1)
        PrintRun([&] { RunParts(parts, run); });
    else
        RunParts(parts, run);
}

void DrawPrintOk()
try {
    using frmDrawPrint::Dialog;
    if (!ProjectPath.empty() && jobCode < GuideJob)
        lastDir = ProjectPath;
    SaveDevice();
    const std::vector<Text> files = Selection();
    if (files.empty() || !FitsRun(files.size()))
        return;
    const MessagesOfRun messages(int(files.size()));
    const std::vector<RunPart> parts = PartsOf(files);
    WriteRunFiles(parts.front());
    introType = static_cast<int16_t>(Dialog.ReportOption);
    Dialog.Unloaded = true;
    if (frmDrawPrint::CloseWindow)
        frmDrawPrint::CloseWindow();
    StartJob(parts);
} catch (...) {
    ReportFailure(__func__);
}

// ---- Progress

void SetProgress(int total)
{
    progressValue = 0;
    progressTotal = RoundInt16(std::max(total, 0));
}

void incseg(int)
try {
    progressValue = std::min<int16_t>(static_cast<int16_t>(progressValue + 1), progressTotal);
    const float percent = progressTotal == 0 ? 0.0f : 100.0f * progressValue / progressTotal;
    Platform.StepProgress("% Complete: " + Picture(percent, 0), percent);
} catch (...) {
    ReportFailure(__func__);
}
