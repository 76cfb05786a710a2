// outputmark.cpp -- the words by which an output is known again.
#include "run/outputmark.h"

#include "run/batchrun.h"
#include "run/screenview.h"
#include "session/files.h"

Text JobWord()
{
    // The desktop's jobs are odd where they show and even where they print.
    static constexpr const char* words[] = {"log", "section", "fence", "soil"};
    if (jobCode <= PrintLogsJob)
        return introType == 0 ? "log" : "intro";
    return jobCode < GuideJob ? words[(jobCode - DrawLogsJob) / 2] : "guide";
}

static Text Source(bool wholeRun)
{
    const Text more = wholeRun && runFileCount > 1 ? " and " + PlainNumber(runFileCount - 1) + " more" : "";
    return BaseName(RunPages.pageFile) + more + " (" + JobWord() + ")";
}

Text DrawingMark()
{
    return Source(false);
}

Text PdfMark(bool exporting)
{
    if (exporting)
        return "Export to PDF of " + Source(true);
    if (RunPages.printing == 1)
        return "Print run of " + Source(true);
    // A log run counts from 0, every other run from 1.
    const int page = RunPages.pageIndex + (JobWord() == "log" ? 1 : 0);
    return "Print of page " + PlainNumber(page) + " of " + Source(false);
}
