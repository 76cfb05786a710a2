// crosslayers.cpp -- the fill between the columns of a cross section, by the codes of the layers or by a GIS table.
#include "sections/crossrun.h"

#include "canvas/metaugl.h"
#include "gis/gisfile.h"
#include "run/batchrun.h"
#include "sections/giscells.h"
#include "sections/layershapes.h"

#include <cmath>

// ---- By codes

void VCROSS::startcrosspair(int i)
{
    LayerFillRecord& f = LayerFill;
    f.leftBoring = i;
    f.rightBoring = i + 1;
    f.leftX = CrossRun.columnRight[i];
    f.leftGround = CrossRun.groundY[i];
    f.leftLayer = f.rightLayer = 1;
    if (i >= CrossRun.boringCount)
        return;
    f.rightX = CrossRun.columnRight[i + 1] - f.columnUnits;
    f.rightGround = CrossRun.groundY[i + 1];
    f.halfway = (double(CrossRun.distance[i + 1]) - CrossRun.distance[i]) / 2;
}

void VCROSS::setcrosspoints(char shape)
{
    if (shape != 'A') {
        setlayerpoints(shape);
        return;
    }
    LayerFillRecord& f = LayerFill;
    const float edge = CrossRun.hEnd - CrossRun.hStart;
    setcorner(1, f.leftX, contacttop(f.leftGround, f.leftBoring, f.leftLayer));
    setcorner(2, f.leftX, contactbottom(f.leftGround, f.leftBoring, f.leftLayer));
    setcorner(3, edge, f.polyY[2]);
    setcorner(4, edge, f.polyY[1]);
    closecorners(5);
    f.fillBoring = static_cast<int16_t>(f.leftBoring);
    f.fillLayer = f.leftLayer;
    ++f.leftLayer;
}

// The columns and the ground in frame units.
static void placecolumns()
{
    using namespace VCROSS;
    LayerFill.columnUnits = CrossRun.columnWidth * CrossRun.scaleX;
    LayerFill.pinchTolerance = CrossRun.vRange / 6.0;
    for (int i = 1; i <= CrossRun.boringCount; ++i) {
        CrossRun.columnRight[i] = CrossRun.distance[i] + LayerFill.columnUnits / 2.0;
        CrossRun.groundY[i] = double(CrossRun.refElevation[i]) - CrossRun.vStart - CrossRun.stickUp[i];
    }
}

static float bottomheight(int boring, int layer)
{
    return VCROSS::contactbottom(VCROSS::CrossRun.groundY[boring], boring, layer);
}

// One pair from top to bottom. Kept: layers that the right boring has left over are not drawn; they come in the next
// pair, where it is the left one. False when the user has stopped the fill.
static bool fillpair(int i)
{
    using namespace VCROSS;
    moveto(CrossRun.columnRight[i], CrossRun.groundY[i]);
    startcrosspair(i);
    while (LayerFill.leftLayer <= CrossRun.layerCount[i]) {
        const std::string_view shapes = chooseshapes(bottomheight);
        setcrosspoints(shapes[0]);
        filllayer(polyfill);
        if (shapes.size() > 1) {
            setcrosspoints(shapes[1]);
            filllayer(polyfillwhite);
        }
        if (fillstopped())
            return false;
    }
    return true;
}

// The layers of the first boring, flat to the left edge of the frame.
static void fillleftedge()
{
    using namespace VCROSS;
    float& edge = CrossRun.columnRight[1]; // the left one from now on
    edge = edge - LayerFill.columnUnits;
    LayerFill.fillBoring = 1;
    for (int k = 1; k <= CrossRun.layerCount[1]; ++k) {
        setcorner(1, edge, contacttop(CrossRun.groundY[1], 1, k));
        setcorner(2, edge, contactbottom(CrossRun.groundY[1], 1, k));
        setcorner(3, 0, LayerFill.polyY[2]);
        setcorner(4, 0, LayerFill.polyY[1]);
        closecorners(5);
        LayerFill.fillLayer = static_cast<int16_t>(k);
        filllayer(polyfill);
    }
}

// Fills between the columns by matching the codes of neighbouring borings, and beyond the outer ones to the edges of
// the frame. Reads layerDepth and layerCode as drawcrossborings has left them, and draws from the origin that it has
// left. Leaves columnRight and groundY, with the left edge of the first column in columnRight(1), and the two scales.
void VCROSS::fillcrosslayers()
try {
    placecolumns();
    setscaley(CrossRun.scaleY);
    setscalex(CrossRun.scaleX);
    const int last = CrossRun.boringCount;
    for (int i = 1; i < last; ++i) {
        incseg(2);
        if (!fillpair(i))
            return;
    }
    startcrosspair(last);
    while (LayerFill.leftLayer <= CrossRun.layerCount[last]) {
        setcrosspoints('A');
        filllayer(polyfill);
    }
    incseg(2);
    fillleftedge();
    incseg(2);
} catch (...) {
    ReportFailure(__func__);
}

// ---- By a GIS table

// The rows of the borings. Kept: a boring in no row keeps the row that it had, in another section maybe; 0 at first,
// which is an empty row.
static void matchborings()
{
    using namespace VCROSS;
    spellgisnames();
    for (int i = 1; i <= CrossRun.boringCount; ++i) {
        CrossRun.boringFile[i] = UpperCase(CrossRun.boringFile[i]);
        if (const int row = gisrowof(CrossRun.boringFile[i]))
            CrossRun.gisRow[i] = static_cast<int16_t>(row);
    }
}

// Distances that the section does not tell, from the coordinates; and the ground. A boring with a distance of its own
// does not move the place from which the next ones are measured.
static void placegisborings()
{
    using namespace VCROSS;
    const auto number = [](int boring, int column) {
        return TextNumber(GisData.boringCells[CrossRun.gisRow[boring]][column]);
    };
    // Not told in the file: 0, less the start of the frame.
    const float nowhere = -CrossRun.hStart;
    double px = 0, py = 0;
    for (int i = 1; i <= CrossRun.boringCount; ++i) {
        const double qx = number(i, GisX), qy = number(i, GisY);
        if (i == 1 || CrossRun.distance[i] == nowhere) {
            if (i > 1)
                CrossRun.distance[i] =
                    CrossRun.distance[i - 1] + std::sqrt((qx - px) * (qx - px) + (qy - py) * (qy - py));
            px = qx;
            py = qy;
        }
        CrossRun.columnRight[i] = CrossRun.distance[i];
        CrossRun.groundY[i] = number(i, GisElevation) - CrossRun.vStart;
    }
}

static void startgispair(int i)
{
    using namespace VCROSS;
    LayerFillRecord& f = LayerFill;
    f.leftBoring = i;
    f.rightBoring = i + 1;
    f.leftX = CrossRun.columnRight[i];
    f.rightX = CrossRun.columnRight[i + 1];
    f.leftGround = CrossRun.groundY[i];
    f.rightGround = CrossRun.groundY[i + 1];
    f.rise = f.riseDepth = 1;
}

// Fills between the borings with the layers of GisData, from boring to boring; the columns are drawn over it later.
// Reads nothing of the borings' own files. Leaves the rows of the borings in gisRow, their files in upper case, the
// distances that it has worked out, columnRight (without a column's width) and groundY, and the data origin.
void VCROSS::fillcrossGIS()
try {
    matchborings();
    placegisborings();
    dataorigin();
    setscaley(CrossRun.scaleY);
    setscalex(CrossRun.scaleX);
    for (int i = 1; i < CrossRun.boringCount; ++i) {
        startgispair(i);
        if (!fillgislayers())
            return;
        incseg(2);
    }
} catch (...) {
    ReportFailure(__func__);
}
