// fencelayers.cpp -- the panels of a fence: where borings stand on the page, and the fill between two of them, by the
// codes of the layers or by a GIS table.
#include "sections/fencerun.h"

#include "canvas/metaugl.h"
#include "run/batchrun.h"
#include "sections/giscells.h"
#include "sections/layershapes.h"
#include "session/deviceconfig.h"

void VCROSS::fenceorigin()
{
    // Kept: on the larger page stakes and panels stand 0.1 to the right of their frame.
    float x = (CrossRun.pageMode == "T" ? 0.95 : 0.85) + DeviceConfig.MarginX;
    float y = 2.7 + DeviceConfig.MarginY;
    setorigin(x, y);
    setscalex(1);
    setscaley(1);
    moveto(0, 2);
}

// The ground point of every boring, in inches from the level of vStart above the base's origin; the elevations of the
// scale are 2 inches high.
static void planborings()
{
    using namespace VCROSS;
    const float perInch = BaseScale();
    for (int i = 1; i <= CrossRun.boringCount; ++i) {
        const double back = double(Foreshortening) * FenceRun.siteY[i];
        FenceRun.planX[i] = Over(FenceRun.siteX[i] + back, perInch);
        const double down = double(CrossRun.vStart) - CrossRun.refElevation[i] + CrossRun.stickUp[i];
        FenceRun.planY[i] = Over(back, perInch) - Over(2 * down, CrossRun.vRange);
    }
}

static void startpanels()
{
    VCROSS::fenceorigin();
    markorigin();
    planborings();
    SetProgress(VCROSS::FenceRun.sectionCount);
}

void VCROSS::startfencepair(int a, int b)
{
    LayerFillRecord& f = LayerFill;
    f.leftBoring = a;
    f.rightBoring = b;
    f.leftX = FenceRun.planX[a];
    f.rightX = FenceRun.planX[b];
    f.leftGround = FenceRun.planY[a];
    f.rightGround = FenceRun.planY[b];
    f.halfway = (double(f.rightX) - f.leftX) / 2;
    f.leftLayer = f.rightLayer = 1;
}

void VCROSS::setfencepoints(char shape)
{
    setlayerpoints(shape);
}

// The elevation of a layer's bottom, from its depth in inches.
static float bottomelevation(int boring, int layer)
{
    using namespace VCROSS;
    const double depth = double(CrossRun.layerDepth[boring][layer]) * CrossRun.vRange / 2;
    return double(CrossRun.refElevation[boring]) - CrossRun.stickUp[boring] - depth;
}

// The last layer of the left boring joins its like at once, whatever the right boring holds below it.
static bool joinslast()
{
    using namespace VCROSS;
    const LayerFillRecord& f = LayerFill;
    return CrossRun.layerCode[f.rightBoring][f.rightLayer] == CrossRun.layerCode[f.leftBoring][f.leftLayer] &&
           f.leftLayer == CrossRun.layerCount[f.leftBoring];
}

// One panel from top to bottom. Each polygon hides what lies behind it. False when the user has stopped the fill.
static bool fillpanel(int a, int b)
{
    using namespace VCROSS;
    moveto(FenceRun.planX[a], FenceRun.planY[a]);
    startfencepair(a, b);
    while (LayerFill.leftLayer <= CrossRun.layerCount[a])
        for (const char shape : joinslast() ? std::string_view("B") : chooseshapes(bottomelevation)) {
            setfencepoints(shape);
            filllayer(polyfillwhite);
            if (fillstopped())
                return false;
        }
    return true;
}

// Runs over the panels in the order of the file; a row without two borings is a step of the progress and no panel.
static void eachpanel(bool (*fill)(int a, int b))
{
    using namespace VCROSS;
    for (int k = 1; k <= FenceRun.sectionCount; ++k) {
        incseg(1);
        const int a = FenceRun.sectionA[k], b = FenceRun.sectionB[k];
        if (a != 0 && b != 0 && !fill(a, b))
            return;
    }
}

// Fills the panels by matching the codes of their two borings. Reads layerDepth and layerCode as drawfenceborings has
// left them. Leaves planX, planY, and layerDepth in inches: nothing may read the depths as depths behind it.
void VCROSS::fillfencelayers()
try {
    startpanels();
    LayerFill.pinchTolerance = 10;
    for (int i = 1; i <= CrossRun.boringCount; ++i)
        for (int k = 1; k <= MaxSectionLayers; ++k)
            CrossRun.layerDepth[i][k] = Over(double(CrossRun.layerDepth[i][k]) * 2, CrossRun.vRange);
    eachpanel(fillpanel);
} catch (...) {
    ReportFailure(__func__);
}

// Fills the panels with the layers of GisData; the frame has found the borings in it. Leaves planX, planY.
void VCROSS::fillfenceGIS()
try {
    startpanels();
    LayerFill.rise = 2;
    LayerFill.riseDepth = CrossRun.vRange;
    eachpanel([](int a, int b) {
        startfencepair(a, b);
        return fillgislayers();
    });
} catch (...) {
    ReportFailure(__func__);
}
