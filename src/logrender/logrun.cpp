// logrun.cpp -- the loop over the pages of a log run. It knows nothing of the editor: each page is drawn from log.mas
// and the saved boring.
#include "canvas/metaugl.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"
#include "report/heading.h"
#include "run/batchrun.h"
#include "run/runmessages.h"
#include "run/screenview.h"
#include "session/failure.h"
#include "session/kept.h"
#include "session/platform.h"

#include <algorithm>
#include <vector>

// What the columns of a page share begins anew with each page. Kept: the title blocks and the bottom row stay in force
// where a layout file is missing.
static void FreshGeometry()
{
    LogGeometryRecord fresh;
    fresh.FrameKind = LogGeometry.FrameKind;
    fresh.HasBottomRow = LogGeometry.HasBottomRow;
    fresh.TitleBlocks = LogGeometry.TitleBlocks;
    LogGeometry = std::move(fresh);
    PageCanvas.polyCount = 0; // a polygon that failed half-way is of its own page
}

// One page, the boring having been read.
static void DrawPage()
{
    FreshGeometry();
    canvasstart(Text(1, LogGeometry.FrameKind));
    VLOG::drawframe();
    // A log whose first column is not the depth scale gets one all the same: drawscale computes DepthPerInch.
    if (!UpperCase(LogBoring.RepParts[1].Item).starts_with("DEP")) {
        LogGeometry.ColumnWidth = 0.4;
        VLOG::drawscale();
    }
    VLOG::process_sam_con_form();
    LogGeometry.ColumnNumber = 1;
    while (LogGeometry.ColumnNumber <= MaxRepParts && !LogBoring.RepParts[LogGeometry.ColumnNumber].Item.empty())
        VLOG::processrepparts();
}

// ---- What a page hands to the next one
//
// The description column tells in break.mas whether it has printed the text of a unit that the page's end cuts. So a
// page depends on those before it, back to the boring's first. They are drawn unseen where they have not just been
// drawn: for a page that is asked for alone, paged back or gone to.

namespace
{
// While pages are drawn that nobody sees. What they have to tell is told when they are drawn to be seen.
struct Unseen {
    Unseen()
    {
        Platform.MsgBox = [](const Text&, Buttons buttons, Icon) { return int(buttons == OkOnly ? Ok : No); };
        Platform.StepProgress = [](const Text&, float) {};
    }

private:
    const Kept<int (*)(const Text&, Buttons, Icon)> box{Platform.MsgBox};
    const Kept<void (*)(const Text&, float)> step{Platform.StepProgress};
    const Kept<RunPagesRecord> pages{RunPages}; // a refused file moves the index on
    const Kept<LogPageRecord> page{LogPage};
};
} // namespace

static bool SamePage(const LogPageRecord& a, const LogPageRecord& b)
{
    return a.BoringFileName == b.BoringFileName && a.PageStartDepth == b.PageStartDepth &&
           a.PageEndDepth == b.PageEndDepth;
}

// The pages of the boring in front of that one, from the first, as log.mas would tell them. None where the boring
// cannot be read, which the page itself will tell, or is not cut so.
static std::vector<LogPageRecord> PagesBefore(const LogPageRecord& page)
try {
    std::vector<LogPageRecord> before;
    for (BoringPages each(page.BoringFileName); each.Next();) {
        const double end = TextNumber(PlainNumber(double(each.End)));
        before.push_back({page.BoringFileName, "", float(each.Start), float(end)});
        if (SamePage(before.back(), page)) {
            before.pop_back();
            return before;
        }
    }
    return {};
} catch (...) {
    return {};
}

// Nothing comes over from the boring before. A file that is not there is the description column's to tell.
static void ForgetFlag()
{
    Text flag;
    try {
        flag = ReadBreak();
    } catch (...) {
        return;
    }
    if (flag != "0")
        WriteBreak("0");
}

// Brings break.mas to what the page in hand shall find. last: the page drawn last, or none; then the last one drawn
// here.
static void DrawPagesBefore(LogPageRecord& last)
{
    if (!(LogPage.PageStartDepth > 0)) // a boring's first page
        return ForgetFlag();
    const std::vector<LogPageRecord> before = PagesBefore(LogPage);
    if (before.empty()) {
        // A list made by hand: its pages follow one another as they stand there.
        if (last.BoringFileName != LogPage.BoringFileName)
            ForgetFlag();
        return;
    }
    auto next = std::find_if(before.begin(), before.end(), [&](const auto& page) { return SamePage(page, last); });
    if (next != before.end())
        ++next;
    else {
        ForgetFlag();
        next = before.begin();
    }
    if (next == before.end())
        return;
    const Unseen unseen;
    for (; next != before.end(); ++next) {
        LogPage = *next;
        VLOG::getvlogdata();
        if (LogBoring.RepPartCount == -1)
            return;
        DrawPage();
        last = *next;
    }
}

void VLOG::vlogstart()
try {
    getvlogfilecounter();
    getclientlogo(1);
    LogPageRecord last; // drawn last
    while (RunPages.pageIndex < RunPages.pageCount) {
        stopRequested = 0; // an Escape on an earlier page has ended nothing and counts no more
        Platform.ShowProgress(true);
        getvlogfiles();
        DrawPagesBefore(last);
        const int16_t index = RunPages.pageIndex;
        const LogPageRecord page = LogPage; // drawscale may change its end
        getvlogdata();
        if (LogBoring.RepPartCount == -1) {
            // Kept: a refused file has moved the index on, but one that fails to be read comes back with its message
            // each time round. Escape is the way out; where nobody sits in front, the run ends by itself.
            Platform.Breathe();
            if (index == RunPages.pageIndex && (stopRequested != 0 || Platform.Unattended))
                break;
            if (index == RunPages.pageIndex && RunMessages.Collecting) // the list has it, and the run goes on
                ++RunPages.pageIndex;
            continue;
        }
        DrawPage();
        last = page;
        Platform.ShowProgress(false);
        ShowOrPrint();
    }
    Platform.ShowProgress(false);
} catch (...) {
    Platform.ShowProgress(false);
    ReportFailure(__func__);
}
