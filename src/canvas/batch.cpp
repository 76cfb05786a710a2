// batch.cpp -- the batch dialog's work, the run files and the progress of a page. The renderers read the run files and
// know nothing else of who called them.
#include "canvas/batch.h"

#include "canvas/metaugl.h"
#include "canvas/patterns.h"
#include "canvas/screenview.h"
#include "session/deviceconfig.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/savename.h"
#include "session/session.h"
#include "session/shared.h"

#include <algorithm>
#include <cmath>

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
struct Job {
    std::string_view Title, Filter, Label;
};

// One record of the page form: a page to draw.
struct PageEntry {
    Text File, Caption;
    int16_t Start = 0;
    float End = 0;
};
using PageTable = Slots<PageEntry, MaxPageRecords>;
} // namespace

static const Slots<Job, MaxJobs> jobs = {{{
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

static constexpr int guideJob = 9;

static bool DrawsBorings()
{
    return jobCode == 1 || jobCode == 2;
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

static void WritePages(const PageTable& pages, int count)
{
    LineWriter out(MasFile(), Durability::Scratch);
    out.Line(PlainNumber(count));
    for (int i = 1; i <= count; ++i) {
        out.Line(pages[i].File);
        out.Line(pages[i].Caption);
        out.Line(PlainNumber(int(pages[i].Start)));
        out.Line(PlainNumber(double(pages[i].End)));
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

// Appends the pages of one boring, all of them or the one that the dialog asks for.
static void AddPages(const Text& file, PageTable& pages, int& count, Text& firstWord, Text& secondWord)
{
    BoringPages page(file);
    int only = 0;
    if (!frmDrawPrint::Dialog.AllPages && page.Count > 0)
        only = static_cast<int>(
            std::clamp(std::nearbyint(TextNumber(frmDrawPrint::Dialog.Text1)), 1.0, double(page.Count)));
    while (page.Next())
        if (only == 0 || only == page.Number) {
            getpage(firstWord, secondWord);
            PageEntry& entry = pages[++count];
            entry = {file, "", page.Start, page.End};
            if (!firstWord.empty())
                entry.Caption = "(" + firstWord + " " + PlainNumber(page.Number) + " " + secondWord + " " +
                                PlainNumber(int(page.Count)) + ")";
        }
}

static void WritePageForm()
{
    PageTable pages;
    int count = 0;
    Text firstWord, secondWord;
    for (int i = 1; i <= runFileCount; ++i)
        AddPages(runFiles[i], pages, count, firstWord, secondWord);
    WritePages(pages, count);
}

// ---- The dialog

void DrawPrintLoad()
try {
    using frmDrawPrint::Dialog;
    if (jobCode < guideJob && !ProjectPath.empty())
        lastDir = ProjectPath;
    if (lastDir.empty())
        lastDir = WorkingFolder;
    const Job& job = jobs[jobCode];
    Dialog = frmDrawPrint::Record();
    Dialog.Unloaded = false;
    Dialog.Title = job.Title;
    Dialog.Filter = job.Filter;
    Dialog.Label = job.Label;
    Dialog.ReportChoice = DrawsBorings();
    Dialog.HeightTwips = jobCode > 2 ? 4035 : 0;
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
    if (jobCode == 2)
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

static void TakeSelection()
{
    using frmDrawPrint::Dialog;
    runFileCount = 0;
    if (singleFile == 1) {
        runFiles[1] = singleFileName;
        runFileCount = 1;
        return;
    }
    for (int i = 1; i <= Dialog.FileCount; ++i)
        if (Dialog.Selected[i]) {
            runFiles[runFileCount + 1] = JoinPath(Dialog.Dir1, Dialog.File1[i]);
            ++runFileCount;
        }
}

// What the job table gives for the job. The four drawing jobs come in pairs, to draw and to print.
static void StartJob()
{
    const bool intro = DrawsBorings() && introType != 0;
    void (*const run)() = intro ? IntroPages : JobTable[jobCode];
    if (!run)
        return;
    if (jobCode < guideJob)
        RunPages.printing = jobCode % 2 == 0 ? 1 : 0;
    if (DrawsBorings() && !intro)
        RunPages.zeroBased = 1;
    PageCanvas.polyCount = 0; // a polygon that failed half-way is of its own run
    ForgetChangedPictures();
    if (jobCode < guideJob && RunPages.printing == 1)
        PrintRun(run);
    else
        run();
}

void DrawPrintOk()
try {
    using frmDrawPrint::Dialog;
    if (!ProjectPath.empty() && jobCode < guideJob)
        lastDir = ProjectPath;
    SaveDevice();
    TakeSelection();
    if (runFileCount == 0)
        return;
    if (DrawsBorings() && Dialog.ReportOption == 0)
        WritePageForm();
    else
        WriteList();
    introType = static_cast<int16_t>(Dialog.ReportOption);
    Dialog.Unloaded = true;
    if (frmDrawPrint::CloseWindow)
        frmDrawPrint::CloseWindow();
    StartJob();
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
