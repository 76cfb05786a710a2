// fencerun.cpp -- the page of a fence diagram, and the run over those of log.mas. Each is drawn from its saved file.
#include "sections/fencerun.h"

#include "canvas/metaugl.h"
#include "gis/gisfile.h"
#include "sections/sheetrun.h"
#include "session/failure.h"
#include "session/platform.h"

// The page of the file that has been read. The stakes come first and the panels over them, in the order of the file.
static void DrawPage()
{
    using namespace VCROSS;
    if (CrossRun.useGIS == 1)
        OpenGISFile(CrossRun.gisPath);
    canvasstart(CrossRun.pageMode);
    drawfenceframe();
    drawfenceborings();
    if (CrossRun.drawLayers == 1 && CrossRun.useGIS == 1)
        fillfenceGIS();
    else if (CrossRun.drawLayers == 1)
        fillfencelayers();
    drawwaterlevelfence();
}

void VCROSS::vfencestart()
try {
    RunSheets(2, getfencedata, DrawPage);
} catch (...) {
    Platform.ShowProgress(false);
    ReportFailure(__func__);
}
