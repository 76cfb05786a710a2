// crossrun.cpp -- the page of a cross section, and the run over those of log.mas. It knows nothing of the form: each
// page is drawn from the saved files.
#include "sections/crossrun.h"

#include "canvas/metaugl.h"
#include "gis/gisfile.h"
#include "sections/sheetrun.h"
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
    // Of a first file that breaks off before its page; further files then have the sheet of the file before.
    startsheet();
    RunSheets(2, getcrossdata, DrawPage);
} catch (...) {
    Platform.ShowProgress(false);
    ReportFailure(__func__);
}
