// logrun.cpp -- the loop over the pages of a log run. It knows nothing of the editor: each page is drawn from log.mas
// and the saved boring.
#include "canvas/batch.h"
#include "canvas/metaugl.h"
#include "canvas/runmessages.h"
#include "canvas/screenview.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"
#include "report/heading.h"
#include "session/failure.h"
#include "session/platform.h"

// One page, the boring having been read.
static void DrawPage()
{
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

void VLOG::vlogstart()
try {
    getvlogfilecounter();
    getclientlogo(1);
    // What drawscale leaves as it was when it fails; of the run's pages, not of an earlier run's.
    LogGeometry.BottomDepth = LogGeometry.BottomSpan = 0;
    while (RunPages.pageIndex < RunPages.pageCount) {
        stopRequested = 0; // an Escape on an earlier page has ended nothing and counts no more
        Platform.ShowProgress(true);
        getvlogfiles();
        const int16_t index = RunPages.pageIndex;
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
        Platform.ShowProgress(false);
        ShowOrPrint();
    }
    Platform.ShowProgress(false);
} catch (...) {
    Platform.ShowProgress(false);
    ReportFailure(__func__);
}
