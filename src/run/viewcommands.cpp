// viewcommands.cpp -- the screen view's File menu.
#include "run/viewcommands.h"

#include "canvas/patterns.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "session/kept.h"
#include "session/platform.h"
#include "session/shared.h"

void PrintShownPage()
{
    Platform.ShowPrinting();
    PrintRun(printcanvas);
}

// The flag of break.mas, which the description column hands from one page to the next. Only log runs write the file;
// "" where it is not there.
static Text BreakFlag()
{
    try {
        return ReadBreak();
    } catch (...) {
        return "";
    }
}

// A flag that cannot be written is no reason to lose the page on the screen: the disk is full, and the run has told it.
static void PutBack(const Text& flag)
{
    if (flag.empty())
        return;
    try {
        WriteBreak(flag);
    } catch (...) {
        return;
    }
}

namespace
{
// The run within the run: the page on the screen and every later one stay as they would be without it. Put back even
// when the run fails.
struct Within {
    const KeepAll records{Kind::Run};
    const Kept<void (*)()> showPage{Platform.ShowPage};
    const Text breakFlag = BreakFlag();

    Within() = default;
    Within(const Within&) = delete;
    Within& operator=(const Within&) = delete;
    ~Within()
    {
        Platform.PrintToPdf(false);
        PutBack(breakFlag);
    }
};
} // namespace

// Stands in for the screen view while the run goes through once more.
static void PageToPdf()
{
    printcanvas();
    NextPage();
}

static bool IsLogRun()
{
    return jobCode <= PrintLogsJob && introType == 0;
}

void ExportPdf()
{
    // The run as a person at Next would see it, from its first page to its last, by the very loop that waits here.
    void (*const run)() = jobCode <= PrintLogsJob && introType != 0 ? IntroPages : JobTable[jobCode];
    if (!run)
        return;
    const Within within;
    if (IsLogRun())
        WriteBreak("0"); // as a run begins, not what the page on the screen has left behind
    Platform.PrintToPdf(true);
    Platform.ShowPage = PageToPdf;
    RunPages.printing = 1; // every entry of the list is a page, also one that Next on the screen would leave out
    stopRequested = 0;
    ForgetChangedPictures();
    PrintRun(run);
}

Text ShownPlace()
{
    if (jobCode == GuideJob)
        return "";
    // A log run counts from 0, every other run from 1.
    return "Page" + NumberText(RunPages.pageIndex + (IsLogRun() ? 1 : 0)) + " of" + NumberText(RunPages.pageCount);
}

Text ShownFile()
{
    return jobCode == GuideJob ? "" : RunPages.pageFile;
}
