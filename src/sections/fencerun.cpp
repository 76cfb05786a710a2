// fencerun.cpp -- the loop over the fence diagrams of a run. Each is drawn from its saved file.
#include "sections/fencerun.h"

#include "canvas/batch.h"
#include "canvas/metaugl.h"
#include "canvas/screenview.h"
#include "gis/gisfile.h"
#include "report/heading.h"
#include "session/failure.h"
#include "session/platform.h"

VCROSS::FenceRunRecord VCROSS::FenceRun;

void VCROSS::ResetFenceRun()
{
    FenceRun = FenceRunRecord();
}

bool VCROSS::HasBoring(int i)
{
    return !CrossRun.boringFile[i].empty();
}

float VCROSS::BaseScale()
{
    return static_cast<float>(Over(double(FenceRun.xRange), double(FenceRun.baseWidth)));
}

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
    RunPages.pageCount = 0; // a list that cannot be read is an empty one, not the run before
    getsvfiles();
    getclientlogo(2);
    stopRequested = 0; // a Cancel of the dialog before must not stop the panels of this run
    RunPages.pageIndex = 1;
    while (RunPages.pageIndex <= RunPages.pageCount) {
        Platform.ShowProgress(true);
        RunPages.pageFile = runFiles[RunPages.pageIndex];
        if (!getfencedata()) {
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
