// crossrun.cpp -- the loop over the cross sections of log.mas. It knows nothing of the form: each page is drawn from
// the saved files.
#include "sections/crossrun.h"

#include "canvas/batch.h"
#include "canvas/metaugl.h"
#include "canvas/screenview.h"
#include "gis/gisfile.h"
#include "report/heading.h"
#include "session/failure.h"
#include "session/platform.h"

using namespace VCROSS;

// One page, the definition having been read.
static void DrawPage()
{
    const CrossRunRecord& run = CrossRun;
    if (run.useGIS == 1)
        OpenGISFile(run.gisPath);
    canvasstart(run.pageMode);
    drawcrossframe();
    // Layers of a GIS table lie under the columns, which are drawn over them. Those that are correlated need what the
    // columns have read, and leave the columns free.
    if (run.drawLayers == 1 && run.useGIS == 1)
        fillcrossGIS();
    drawcrossborings();
    if (run.drawLayers == 1 && run.useGIS == 0)
        fillcrosslayers();
    drawwaterlevels();
    if (run.paramKind > 0)
        drawcrossparams();
}

void VCROSS::vcrossstart()
try {
    RunPages.pageCount = 0; // a list that cannot be read is an empty one, not the run before
    getsvfiles();
    getclientlogo(2);
    stopRequested = 0; // a Cancel of the dialog stops no fill of this run
    RunPages.pageIndex = 1;
    while (RunPages.pageIndex <= RunPages.pageCount) {
        Platform.ShowProgress(true);
        RunPages.pageFile = runFiles[RunPages.pageIndex];
        if (!getcrossdata()) {
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
