// batchrun_test.cpp -- the batch dialog, the cutting of borings into pages, the run files, the job table and progress.
#include "run/batchrun.h"

#include "testing.h"

#include "canvas/metaugl.h"
#include "run/screenview.h"
#include "session/deviceconfig.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/session.h"

using frmDrawPrint::Dialog;

// A boring file as far as the cutting into pages reads it.
static void WriteBoring(const Text& name, const Text& endDepth, const Text& pageBreak)
{
    std::string text;
    for (int i = 1; i <= 63; ++i)
        text += "line " + std::to_string(i) + "\r\n";
    WriteScratch(name, text + endDepth + "\r\n65\r\n" + pageBreak + "\r\n");
}

static void WriteHeading(const Text& thirdLine)
{
    WriteScratch("us.hdg", Lines({"1", "2", thirdLine}));
}

static Text started; // the jobs that were started, by letter
static void StartFirst()
{
    started += "1";
}
static void StartSecond()
{
    started += "2";
}
static void StartIntro()
{
    started += "i";
}

// One boring as Preview runs it; log.mas afterwards.
static std::string Preview(const Text& endDepth, const Text& pageBreak)
{
    WriteBoring("a.BOR", endDepth, pageBreak);
    if (!FileExists("us.hdg"))
        WriteHeading("Page, of");
    jobCode = 1;
    singleFile = 1;
    singleFileName = "a.BOR";
    DrawPrintLoad();
    DrawPrintOk();
    singleFile = 0;
    return ReadScratch("log.mas");
}

// The dialog for a job, over these files in the project folder, all marked.
static void OpenDialog(int job, std::initializer_list<const char*> files)
{
    for (const char* file : files)
        WriteBoring(file, "50", "20");
    WriteHeading("Page, of");
    jobCode = static_cast<int16_t>(job);
    DrawPrintLoad();
    frmDrawPrint::Option1();
}

static void CheckOneMessage(const Text& words)
{
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == words);
}

TEST_CASE("the page count is the quotient rounded half to even: 2 for 2.5, 4 for 3.5")
{
    CHECK(Preview("50", "20") ==
          Lines({"2", "a.BOR", "(Page 1 of 2)", "0", "20", "a.BOR", "(Page 2 of 2)", "20", "40"}));
    CHECK(Preview("70", "20").starts_with("4\r\n"));
    CHECK(Messages.empty());
}

TEST_CASE("a page break of 0 or less is one page down to the end depth")
{
    CHECK(Preview("50", "0") == Lines({"1", "a.BOR", "(Page 1 of 1)", "0", "50"}));
    CHECK(Preview("12.5", "") == Lines({"1", "a.BOR", "(Page 1 of 1)", "0", "12.5"}));
    CHECK(Preview("50", "-3") == Lines({"1", "a.BOR", "(Page 1 of 1)", "0", "50"}));
}

TEST_CASE("each page starts at the end of the one before, rounded half to even")
{
    CHECK(Preview("22.5", "7.5") == Lines({"3", "a.BOR", "(Page 1 of 3)", "0", "7.5", "a.BOR", "(Page 2 of 3)", "8",
                                           "15.5", "a.BOR", "(Page 3 of 3)", "16", "23.5"}));
}

TEST_CASE("the page break is the number in front of the page length")
{
    CHECK(Preview("40", "20,5").starts_with("2\r\n"));
}

TEST_CASE("a boring that rounds to no page has no record, and a run of none draws nothing")
{
    JobTable[1] = StartFirst;
    CHECK(Preview("5", "20") == Lines({"0"}));
    CHECK(ReadScratch("break.mas") == Lines({"0"}));
}

TEST_CASE("a page that ends beyond 32767 is an overflow, and the run files stay as they were")
{
    WriteScratch("log.mas", "before");
    CHECK(Preview("40000", "0") == "before");
    CheckOneMessage("Error 6 in DrawPrintOk.  Please contact Norvane");
    CHECK_FALSE(FileExists("break.mas"));
    Messages.clear();
    CHECK(Preview("1E30", "0.001") == "before");
    CheckOneMessage("Error 6 in DrawPrintOk.  Please contact Norvane");
}

TEST_CASE("the 501st page has no place in the table")
{
    Preview("500", "1");
    CHECK(Messages.empty());
    CHECK(ReadScratch("log.mas").starts_with("500\r\n"));
    Preview("501", "1");
    CheckOneMessage("Error 9 in DrawPrintOk.  Please contact Norvane");
    CHECK(ReadScratch("log.mas").starts_with("500\r\n"));
}

TEST_CASE("a boring file with fewer than 66 lines ends the run with the report")
{
    JobTable[1] = StartFirst;
    started = "";
    WriteScratch("short.BOR", Lines({"5.0", "short"}));
    jobCode = 1;
    singleFile = 1;
    singleFileName = "short.BOR";
    DrawPrintLoad();
    DrawPrintOk();
    CheckOneMessage("Error 62 in DrawPrintOk.  Please contact Norvane");
    CHECK(started == "");
}

TEST_CASE("Page # with 0 takes page 1, with a number above the count the last page")
{
    OpenDialog(1, {"a.BOR"});
    Dialog.AllPages = false;
    Dialog.Text1 = "0";
    DrawPrintOk();
    CHECK(ReadScratch("log.mas") == Lines({"1", Scratch("a.BOR"), "(Page 1 of 2)", "0", "20"}));
    OpenDialog(1, {"a.BOR"});
    Dialog.AllPages = false;
    Dialog.Text1 = "99";
    DrawPrintOk();
    CHECK(ReadScratch("log.mas") == Lines({"1", Scratch("a.BOR"), "(Page 2 of 2)", "20", "40"}));
}

TEST_CASE("Page # is rounded half to even and clamped for each boring by itself")
{
    OpenDialog(1, {"a.BOR"});
    WriteBoring("b.BOR", "100", "20");
    DrawPrintLoad();
    frmDrawPrint::Option1();
    Dialog.AllPages = false;
    Dialog.Text1 = "3.5";
    DrawPrintOk();
    CHECK(ReadScratch("log.mas") ==
          Lines({"2", Scratch("a.BOR"), "(Page 2 of 2)", "20", "40", Scratch("b.BOR"), "(Page 4 of 5)", "60", "80"}));
}

TEST_CASE("the words of the page label are the third line of the heading file, cut at its comma")
{
    WriteHeading("Sheet, of");
    CHECK(Preview("100", "20").find("(Sheet 2 of 5)\r\n") != std::string::npos);
    WriteHeading("Sheet");
    CHECK(Preview("100", "20").find("(Sheet 2 - 5)\r\n") != std::string::npos);
    WriteHeading(", of");
    CHECK(Preview("20", "20") == Lines({"1", "a.BOR", "", "0", "20"}));
}

TEST_CASE("the heading file is the set-up's, with .hdg where it has no ending, and us.hdg for none")
{
    Text first, second;
    WriteScratch("german.hdg", Lines({"", "", "Blatt,  von,x"}));
    DeviceConfig.SystemFiles[HeadingFile] = "german";
    getpage(first, second);
    CHECK(first == "Blatt");
    CHECK(second == "von,x");
    WriteHeading("Page, of");
    DeviceConfig.SystemFiles[HeadingFile] = "";
    getpage(first, second);
    CHECK(first == "Page");
    CHECK(second == "of");
}

TEST_CASE("a missing heading file is told for each page, and the labels are empty")
{
    DeviceConfig.SystemFiles[HeadingFile] = "none";
    WriteHeading("Page, of");
    CHECK(Preview("40", "20") == Lines({"2", "a.BOR", "", "0", "20", "a.BOR", "", "20", "40"}));
    REQUIRE(Messages.size() == 2);
    CHECK(Messages[0].words == "Heading File Not Found: none.hdg");
    CHECK(Messages[0].icon == Exclamation);
}

TEST_CASE("a heading file with fewer than three lines is reported, and the words stay")
{
    WriteScratch("us.hdg", Lines({"1", "2"}));
    Text first = "Page", second = "of";
    getpage(first, second);
    CheckOneMessage("Error 62 in getpage.  Please contact Norvane");
    CHECK(first == "Page");
    CHECK(second == "of");
}

TEST_CASE("an empty selection leaves the dialog open and log.mas as it was")
{
    WriteScratch("log.mas", "before");
    OpenDialog(1, {"a.BOR"});
    JobTable[1] = StartFirst;
    started = "";
    Dialog.Selected[1] = false;
    CHECK_FALSE(frmDrawPrint::Command1());
    CHECK_FALSE(Dialog.Unloaded);
    CHECK(ReadScratch("log.mas") == "before");
    CHECK(started == "");
    CHECK(dialogBusy == 0);
}

// So many files of the dialog, all marked.
static void Mark(int job, int files, const char* name)
{
    jobCode = static_cast<int16_t>(job);
    DrawPrintLoad();
    Dialog.FileCount = files;
    for (int i = 1; i <= files; ++i) {
        Dialog.File1[i] = name;
        Dialog.Selected[i] = true;
    }
}

static std::vector<int> parts; // the count of log.mas at each start of the job
static void NotePart()
{
    parts.push_back(LineReader(MasFile()).Count());
    RunPages.pageIndex = RunPages.pageCount;
}

TEST_CASE("more than 200 files are drawn 200 at a time, and printed in one print run")
{
    parts.clear();
    JobTable[3] = JobTable[4] = NotePart;
    Mark(3, 305, "a.CRO");
    DrawPrintOk();
    CHECK(parts == std::vector<int>{200, 105});
    parts.clear();
    Mark(4, 401, "a.CRO");
    DrawPrintOk();
    CHECK(parts == std::vector<int>{200, 200, 1});
    CHECK(PlainRunsEnded == 1);
    CHECK(Messages.empty());
}

TEST_CASE("borings of more than 500 pages are drawn in as many parts as their pages need, each boring in one of them")
{
    parts.clear();
    JobTable[1] = NotePart;
    WriteBoring("a.BOR", "70", "10"); // 7 pages
    WriteHeading("Page, of");
    Mark(1, 150, "a.BOR");
    DrawPrintOk();
    CHECK(parts == std::vector<int>{71 * 7, 71 * 7, 8 * 7});
    CHECK(Messages.empty());
}

TEST_CASE("a run in parts that the user ends, or that breaks off, ends with its part")
{
    parts.clear();
    JobTable[3] = [] {
        NotePart();
        ExitRun();
    };
    Mark(3, 305, "a.CRO");
    DrawPrintOk();
    CHECK(parts.size() == 1);
    JobTable[3] = [] {
        NotePart();
        RunPages.pageCount = 200;
        RunPages.pageIndex = 7;
    };
    Mark(3, 305, "a.CRO");
    DrawPrintOk();
    CHECK(parts.size() == 2);
    CHECK(Messages.empty());
}

TEST_CASE("a file in a later part that cannot be cut into pages is told before anything is drawn")
{
    parts.clear();
    JobTable[1] = NotePart;
    WriteBoring("a.BOR", "50", "0");
    WriteHeading("Page, of");
    WriteScratch("short.BOR", Lines({"5.0", "short"}));
    Mark(1, 305, "a.BOR");
    Dialog.File1[300] = "short.BOR";
    DrawPrintOk();
    CheckOneMessage("Error 62 in DrawPrintOk.  Please contact Norvane");
    CHECK(parts.empty());
}

TEST_CASE("an export or a conversion of more than 200 files is told in words, and nothing is begun")
{
    for (const int job : {10, 11, 12}) {
        parts.clear();
        Messages.clear();
        JobTable[job] = NotePart;
        Mark(job, 305, "a.BOR");
        DrawPrintOk();
        CheckOneMessage("305 chosen, 200 possible");
        CHECK(Messages[0].icon == Exclamation);
        CHECK_FALSE(Dialog.Unloaded);
        CHECK(parts.empty());
        Mark(job, 200, "a.BOR");
        DrawPrintOk();
        CHECK(parts == std::vector<int>{200});
    }
}

TEST_CASE("a dialog's failure is told under its own name")
{
    jobCode = 13;
    DrawPrintLoad();
    CheckOneMessage("Error 9 in DrawPrintLoad.  Please contact Norvane");
}

TEST_CASE("the list form has the count and the paths of the marked files in list order")
{
    WriteScratch("b.CRO", "");
    WriteScratch("a.cro", "");
    WriteScratch("c.BOR", "");
    jobCode = 3;
    DrawPrintLoad();
    REQUIRE(Dialog.FileCount == 2);
    CHECK(Dialog.File1[1] == "a.cro");
    frmDrawPrint::Option1();
    DrawPrintOk();
    CHECK(ReadScratch("log.mas") == Lines({"2", Scratch("a.cro"), Scratch("b.CRO")}));
    CHECK_FALSE(FileExists("break.mas"));
    CHECK(Dialog.Unloaded);
}

TEST_CASE("an intro page run takes the list form and the renderer of intro pages")
{
    OpenDialog(1, {"a.BOR"});
    JobTable[1] = StartFirst;
    IntroPages = StartIntro;
    started = "";
    Dialog.ReportOption = 2;
    DrawPrintOk();
    CHECK(started == "i");
    CHECK(introType == 2);
    CHECK(RunPages.zeroBased == 0);
    CHECK(ReadScratch("log.mas") == Lines({"1", Scratch("a.BOR")}));
}

TEST_CASE("what the renderers read back of the list form is its files, count and first file")
{
    WriteScratch("log.mas", Lines({"2", "C:\\JOB\\A, B.CRO", "B.CRO"}));
    getsvfiles();
    CHECK(runFiles[1] == "C:\\JOB\\A, B.CRO");
    CHECK(runFiles[2] == "B.CRO");
    CHECK(runFileCount == 2);
    CHECK(RunPages.pageCount == 2);
    CHECK(RunPages.pageFile == "C:\\JOB\\A, B.CRO");
    CHECK(Messages.empty());
}

TEST_CASE("a list form that is missing, cut or too long is reported as getsvfiles")
{
    getsvfiles();
    WriteScratch("log.mas", Lines({"2", "a"}));
    getsvfiles();
    std::string text = "201\r\n";
    for (int i = 1; i <= 201; ++i)
        text += "a\r\n";
    WriteScratch("log.mas", text);
    getsvfiles();
    REQUIRE(Messages.size() == 3);
    CHECK(Messages[0].words == "Error 53 in getsvfiles.  Please contact Norvane");
    CHECK(Messages[1].words == "Error 62 in getsvfiles.  Please contact Norvane");
    CHECK(Messages[2].words == "Error 9 in getsvfiles.  Please contact Norvane");
}

TEST_CASE("the dialog of each job has its title, filter and label")
{
    struct Expected {
        int job;
        const char *title, *filter, *label;
    };
    for (const Expected& e : {Expected{1, "Select Borings to Draw", "*.BOR", "Boring Log Files:"},
                              {2, "Select Borings to Print", "*.BOR", "Boring Log Files:"},
                              {3, "Select Cross Sections to Draw", "*.CRO", "Cross Section Files:"},
                              {4, "Select Cross Sections to Print", "*.CRO", "Cross Section Files:"},
                              {5, "Select Fence Diagrams to Draw", "*.FEN", "Fence Diagram Files:"},
                              {6, "Select Fence Diagrams to Print", "*.FEN", "Fence Diagram Files:"},
                              {7, "Select Soil Tables to Draw", "*.SOI", "Soil Table Files:"},
                              {8, "Select Soil Tables to Print", "*.SOI", "Soil Table Files:"},
                              {10, "Select Boring Log Files to Export", "*.BOR", "Boring Log Files:"},
                              {11, "Select GTGS .PRT Files to Convert", "*.PRT", "GTGS Files:"},
                              {12, "Select WinLog .LOG Files to Convert", "*.LOG", "WinLog Files:"}}) {
        jobCode = static_cast<int16_t>(e.job);
        DrawPrintLoad();
        CHECK(Dialog.Title == e.title);
        CHECK(Dialog.Filter == e.filter);
        CHECK(Dialog.Label == e.label);
        CHECK(Dialog.ReportChoice == (e.job <= 2));
        CHECK(Dialog.HeightTwips == (e.job <= 2 ? 0 : 4035));
    }
}

TEST_CASE("for cross sections the form is short, and neither pages nor report choice can be set")
{
    jobCode = 3;
    DrawPrintLoad();
    CHECK(Dialog.HeightTwips == 4035);
    CHECK_FALSE(Dialog.ReportChoice);
}

TEST_CASE("the dialog opens on all pages of boring diagrams, whatever was chosen before")
{
    OpenDialog(1, {"a.BOR"});
    Dialog.ReportOption = 1;
    Dialog.AllPages = false;
    DrawPrintLoad();
    CHECK(Dialog.ReportOption == 0);
    CHECK(Dialog.AllPages);
    CHECK_FALSE(Dialog.SelectAll);
}

TEST_CASE("the project folder is the dialog's folder for drawings, but not for conversions")
{
    lastDir = "elsewhere";
    jobCode = 11;
    DrawPrintLoad();
    CHECK(Dialog.Dir1 == "elsewhere");
    jobCode = 1;
    DrawPrintLoad();
    CHECK(Dialog.Dir1 == ScratchFolder());
    lastDir = "elsewhere";
    singleFile = 1;
    singleFileName = "x";
    DrawPrintOk();
    CHECK(lastDir == ScratchFolder());
}

TEST_CASE("Select All marks every file, and a change of folder clears it")
{
    OpenDialog(1, {"a.BOR", "b.BOR"});
    CHECK(Dialog.SelectAll);
    CHECK(Dialog.Selected[1]);
    CHECK(Dialog.Selected[2]);
    std::filesystem::create_directories(Scratch("other"));
    WriteBoring("other/c.BOR", "1", "1");
    frmDrawPrint::ChangeFolder(Scratch("other"));
    CHECK_FALSE(Dialog.SelectAll);
    CHECK(Dialog.FileCount == 1);
    CHECK(Dialog.File1[1] == "c.BOR");
    CHECK_FALSE(Dialog.Selected[1]);
    CHECK(lastDir == Scratch("other"));
}

TEST_CASE("OK is ignored while a job runs, and so is Cancel")
{
    OpenDialog(1, {"a.BOR"});
    static bool again, cancelled;
    JobTable[1] = [] {
        CHECK(dialogBusy == -1);
        again = frmDrawPrint::Command1();
        cancelled = frmDrawPrint::Command2();
        started += "1";
    };
    started = "";
    again = cancelled = true;
    CHECK(frmDrawPrint::Command1());
    CHECK_FALSE(again);
    CHECK_FALSE(cancelled);
    CHECK(stopRequested == 0);
    CHECK(started == "1");
    CHECK(dialogBusy == 0);
}

TEST_CASE("Cancel closes the dialog and asks a running fill to stop")
{
    OpenDialog(1, {"a.BOR"});
    CHECK(frmDrawPrint::Command2());
    CHECK(Dialog.Unloaded);
    CHECK(stopRequested == -1);
}

TEST_CASE("the dialog is closed before its job starts")
{
    OpenDialog(1, {"a.BOR"});
    started = "";
    frmDrawPrint::CloseWindow = [] { started += "c"; };
    JobTable[1] = StartFirst;
    frmDrawPrint::Command1();
    CHECK(started == "c1");
}

TEST_CASE("a drawing run shows, and a print run prints and then ends; the notice comes for borings alone")
{
    static int notices;
    notices = 0;
    Platform.ShowPrinting = [] { ++notices; };
    OpenDialog(1, {"a.BOR"});
    JobTable[1] = StartFirst;
    JobTable[2] = StartSecond;
    started = "";
    RunPages.printing = 1;
    frmDrawPrint::Command1();
    CHECK(RunPages.printing == 0);
    CHECK(RunPages.zeroBased == 1);
    CHECK(notices == 0);
    CHECK(PlainRunsEnded == 0);
    OpenDialog(2, {"a.BOR"});
    frmDrawPrint::Command1();
    CHECK(RunPages.printing == 1);
    CHECK(notices == 1);
    CHECK(PlainRunsEnded == 1);
    CHECK(started == "12");
    WriteScratch("a.CRO", "");
    jobCode = 4;
    DrawPrintLoad();
    frmDrawPrint::Option1();
    JobTable[4] = StartFirst;
    frmDrawPrint::Command1();
    CHECK(notices == 1);
    CHECK(PlainRunsEnded == 2);
}

TEST_CASE("a job that is not built into the program starts nothing")
{
    OpenDialog(2, {"a.BOR"});
    CHECK(frmDrawPrint::Command1());
    CHECK(PlainRunsEnded == 0);
    CHECK(RunPages.zeroBased == 0);
    CHECK(Messages.empty());
}

TEST_CASE("an unreadable set-up file does not keep a run from drawing")
{
    std::filesystem::create_directories(Scratch("device.cfg"));
    JobTable[1] = StartFirst;
    started = "";
    Preview("50", "20");
    CheckOneMessage("Error 75 in SaveDevice.  Please contact Norvane");
    CHECK(started == "1");
}

TEST_CASE("Escape during a log run is noted and ends nothing by itself")
{
    JobTable[1] = [] {
        stopRequested = -1;
        incseg(1);
        started += "1";
    };
    started = "";
    Preview("50", "20");
    CHECK(started == "1");
    CHECK(stopRequested == -1);
}

TEST_CASE("break.mas holds the flag that was written")
{
    WriteBreak("Y");
    CHECK(ReadScratch("break.mas") == Lines({"Y"}));
    CHECK(ReadBreak() == "Y");
    std::filesystem::remove(Scratch("break.mas"));
    CHECK(FailureOf([] { ReadBreak(); }) == FileNotFound);
}

static Text shownWords;
static float shownPercent;

TEST_CASE("a progress step counts one whatever its argument, and stays at the total")
{
    Platform.StepProgress = [](const Text& words, float percent) {
        shownWords = words;
        shownPercent = percent;
    };
    SetProgress(8);
    incseg(2);
    CHECK(progressValue == 1);
    CHECK(shownWords == "% Complete: 13");
    CHECK(shownPercent == 12.5f);
    for (int i = 0; i < 10; ++i)
        incseg(1);
    CHECK(progressValue == 8);
    CHECK(shownWords == "% Complete: 100");
}

TEST_CASE("a percentage of 0 shows no number")
{
    Platform.StepProgress = [](const Text& words, float percent) {
        shownWords = words;
        shownPercent = percent;
    };
    SetProgress(300);
    incseg(1);
    CHECK(shownWords == "% Complete: ");
    SetProgress(0);
    incseg(1);
    CHECK(shownWords == "% Complete: ");
    CHECK(shownPercent == 0);
    CHECK(Messages.empty());
}

TEST_CASE("a conversion opens on the working folder when no folder was shown before, and keeps the one that is shown")
{
    std::filesystem::create_directories(Scratch("job"));
    std::filesystem::create_directories(Scratch("tables"));
    ProjectPath = Scratch("job");
    lastDir = "";
    jobCode = 11;
    DrawPrintLoad();
    CHECK(Dialog.Dir1 == WorkingFolder);
    WriteScratch("tables/a.PRT", "");
    frmDrawPrint::ChangeFolder(Scratch("tables"));
    frmDrawPrint::Option1();
    JobTable[11] = StartFirst;
    frmDrawPrint::Command1();
    CHECK(lastDir == Scratch("tables"));
    CHECK(ReadScratch("log.mas") == Lines({"1", Scratch("tables/a.PRT")}));
}

TEST_CASE("a conversion prints nothing and ends no print run")
{
    WriteScratch("a.LOG", "");
    RunPages.printing = 1;
    jobCode = 12;
    DrawPrintLoad();
    frmDrawPrint::Option1();
    JobTable[12] = StartFirst;
    started = "";
    frmDrawPrint::Command1();
    CHECK(started == "1");
    CHECK(PlainRunsEnded == 0);
    RunPages.printing = 0;
    jobCode = 12;
    DrawPrintLoad();
    frmDrawPrint::Option1();
    frmDrawPrint::Command1();
    CHECK(RunPages.printing == 0);
    CHECK(PlainRunsEnded == 0);
}

TEST_CASE("a polygon that an earlier run has left half-way is no part of the next one")
{
    static int corners;
    for (const int job : {1, 9}) {
        PageCanvas.polyCount = 4;
        corners = -1;
        JobTable[job] = [] { corners = PageCanvas.polyCount; };
        WriteBoring("A.BOR", "50", "20");
        jobCode = static_cast<int16_t>(job);
        singleFile = 1;
        singleFileName = "A.BOR";
        DrawPrintOk();
        CHECK(corners == 0);
    }
}
