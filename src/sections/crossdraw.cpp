// crossdraw.cpp -- the frame of a cross section with its scales, its borings as columns, and the water marks.
//
// Data units are the user's feet or metres: with the section's scales in force x is a distance from the left edge of
// the frame, y an elevation from the top of the scale.
#include "canvas/metaugl.h"
#include "canvas/patterns.h"
#include "logrender/vlog.h"
#include "report/heading.h"
#include "run/batchrun.h"
#include "sections/crossrun.h"
#include "sections/sectionboring.h"
#include "session/deviceconfig.h"
#include "session/failure.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

using namespace VCROSS;

// ---- The frame

// A step for each routine that will run on this page, two of them for the frame.
static int ProgressSteps()
{
    const int n = CrossRun.boringCount;
    int steps = 2 + n;
    if (CrossRun.drawLayers == 1)
        steps += CrossRun.useGIS == 1 ? n - 1 : n + 1;
    if (CrossRun.paramKind > 0)
        steps += n;
    return std::min<int>(steps, INT16_MAX); // a count out of bounds fails where its borings are drawn
}

// Three lines, open at the top, with the names of the section's ends above its corners.
static void FrameLines()
{
    const double width = CrossRun.pageWidth - 2.6;
    const double height = CrossRun.pageHeight - 3.7;
    float x = DeviceConfig.MarginX + 1.3;
    float y = CrossRun.pageHeight - 1.0 + DeviceConfig.MarginY;
    setorigin(x, y);
    moveup(0.15);
    moveleft(0.4);
    setfontsize(10);
    textleft();
    printtext(CrossRun.leftCornerLabel);
    moveright(0.4);
    movedown(0.15);
    linedown(height);
    lineright(width);
    lineup(height);
    moveup(0.15);
    moveright(0.4);
    textright();
    printtext(CrossRun.rightCornerLabel);
}

// The number of steps from end to end.
static int16_t TickCount(double range, double increment)
{
    return RoundInt16(WholePart(static_cast<float>(Over(range, increment))));
}

// The elevations on both sides, from 0.2 below the frame's top.
static void ElevationScale()
{
    CrossRunRecord& run = CrossRun;
    moveto(0, -0.2);
    if (run.vStart == 0 && run.vEnd == 0) {
        run.vStart = 500;
        run.vEnd = 100;
        run.vInc = -50;
    }
    run.vRange = double(run.vStart) - run.vEnd;
    run.scaleY = Over(run.vRange, run.pageHeight - 4.2);
    setscaley(run.scaleY);
    run.vInc = RoundInt32(std::fabs(double(run.vInc)));
    const int16_t count = TickCount(run.vRange, run.vInc);
    setfontsize(8);
    for (int n = 0; n <= count; ++n) {
        const double elevation = run.vStart - double(n) * run.vInc;
        lineleft(0.1);
        moveleft(0.05);
        textright();
        printnum(elevation);
        moveright(run.pageWidth - 2.45);
        lineright(0.1);
        moveright(0.05);
        textleft();
        printnum(elevation);
        moveleft(run.pageWidth - 2.45);
        movedown(static_cast<float>(run.vInc));
    }
    setscaley(1);
}

// The distances along the frame's bottom. Leaves the x scale in force.
static void DistanceScale()
{
    CrossRunRecord& run = CrossRun;
    textcenter();
    moveto(0, -(run.pageHeight - 3.7));
    if (run.hStart == 0 && run.hEnd == 0) {
        run.hEnd = 500;
        run.hInc = 100;
    }
    run.hRange = run.hEnd - run.hStart;
    run.scaleX = Over(run.hRange, run.pageWidth - 2.6);
    setscalex(run.scaleX);
    const int16_t count = TickCount(run.hRange, run.hInc);
    for (int n = 0; n <= count; ++n) {
        linedown(0.05);
        movedown(0.05);
        printtext(PlainNumber(n * double(run.hInc) + run.hStart));
        moveright(run.hInc);
        moveup(0.1);
    }
}

static void AxisTitles()
{
    float x = DeviceConfig.MarginX + 0.7;
    float y = CrossRun.pageHeight - 0.7 + DeviceConfig.MarginY;
    setorigin(x, y);
    setscalex(1);
    setscaley(1);
    moveto(0.1, -(CrossRun.pageHeight - 2.9) / 2);
    settextangle(90);
    setfontsize(8);
    textcenter();
    printtext(HeadingWords[1] + " (" + CrossRun.vUnit + ")");
    moveto((CrossRun.pageWidth - 1.4) / 2, -(CrossRun.pageHeight - 3.05));
    settextangle(0);
    printtext(HeadingWords[2] + " (" + CrossRun.hUnit + ")");
}

// Reads CrossRun as getcrossdata has left it; leaves the ranges and the scales of the section in it.
void VCROSS::drawcrossframe()
try {
    SetProgress(ProgressSteps());
    setcolor(0);
    drawlogolegend('C');
    incseg(2);
    FrameLines();
    ElevationScale();
    DistanceScale();
    AxisTitles();
    incseg(2);
} catch (...) {
    ReportFailure(__func__);
}

// ---- A boring's column

namespace
{
// The pen in device units, put back exactly: an unrounded place, and one that may be off the sheet.
struct Pen {
    float x = 0, y = 0;
};

struct Column {
    int i = 0;
    SectionWell well;
    float columnHeight = 0, casingHeight = 0; // from the reference level
    float width = 0, lineStep = 0;            // inches
    bool inclined = false;                    // is drawn along its axis
    double sinA = 0, cosA = 1;                // of the axis to the vertical, in the section's plane
    float acrossX = 0, acrossY = 0;           // from the right edge of an inclined column to the left one, inches
};
} // namespace

static void SetPen(const Pen& pen)
{
    PageCanvas.penX = pen.x;
    PageCanvas.penY = pen.y;
}

static Pen RememberedPen(int i)
{
    return {CrossRun.penX[i], CrossRun.penY[i]};
}

static void RememberPen(int i)
{
    CrossRun.penX[i] = PageCanvas.penX;
    CrossRun.penY[i] = PageCanvas.penY;
}

// A length along an inclined column in inches, from one in depth.
static double AlongColumn(const Column& column, double depth)
{
    return Over(depth * CrossRun.depthFactor[column.i], CrossRun.scaleY);
}

// Down the axis of the column by a depth, the y scale of the section in force before and after.
static void MoveDown(const Column& column, double depth)
{
    if (!column.inclined)
        return movedown(depth);
    const double length = AlongColumn(column, depth);
    setscaley(1);
    moveright(length * column.sinA);
    moveup(-length * column.cosA);
    setscaley(CrossRun.scaleY);
}

// ---- Label and plan symbol

// The pen stands at the reference level over the column's middle, and comes back there; the y scale is the section's.
static void LabelBelow(const Column& column, const Text& label)
{
    const int i = column.i;
    movedown(column.columnHeight);
    setscaley(1);
    movedown(column.lineStep);
    moveright(CrossRun.labelOffsetX[i]);
    moveup(CrossRun.labelOffsetY[i]);
    printtext(label);
    if (!IsBlank(CrossRun.label2[i])) {
        movedown(column.lineStep);
        printtext(CrossRun.label2[i]);
        moveup(column.lineStep);
    }
    moveup(column.lineStep);
    // The offset shifts the label on the sheet, so it is taken back in inches too.
    moveleft(CrossRun.labelOffsetX[i]);
    movedown(CrossRun.labelOffsetY[i]);
    setscaley(CrossRun.scaleY);
    moveup(column.columnHeight);
}

// A small compass over the label, the boring's direction in it: the longer its line, the deeper the boring beside the
// deepest of the section.
static void PlanSymbol(const Column& column, float deepest)
{
    const int i = column.i;
    const double rise = column.lineStep * (IsBlank(CrossRun.label2[i]) ? 1.0 : 2.0) + 0.25;
    moveup(rise);
    moveup(0.1);
    circle(0.008);
    movedown(0.1);
    moveright(0.1);
    circle(0.008);
    moveleft(0.1);
    movedown(0.1);
    circle(0.008);
    moveup(0.1);
    moveleft(0.1);
    circle(0.008);
    moveright(0.1);
    blackcircle(0.01);
    const float length = Over(column.well.boreDepth, deepest) * 0.2;
    linepolar(CrossRun.azimuth[i], length);
    linepolar(double(CrossRun.azimuth[i]) + 180, length);
    movedown(rise);
}

// As LabelBelow. It decides whether the column is an inclined one.
static void LabelAbove(const Column& column, const Text& label, float deepest)
{
    const int i = column.i;
    setscaley(1);
    moveright(CrossRun.labelOffsetX[i]);
    moveup(CrossRun.labelOffsetY[i]);
    if (IsBlank(CrossRun.label2[i])) {
        moveup(column.lineStep);
        printtext(label);
    } else {
        moveup(2 * column.lineStep);
        printtext(label);
        movedown(column.lineStep);
        printtext(CrossRun.label2[i]);
    }
    movedown(column.lineStep);
    CrossRun.inclinedColumn = CrossRun.azimuth[i] != 0 || std::nearbyint(CrossRun.inclination[i]) != 0 ? 1 : 0;
    if (CrossRun.inclinedColumn == 1)
        PlanSymbol(column, deepest);
    moveleft(CrossRun.labelOffsetX[i]);
    movedown(CrossRun.labelOffsetY[i]);
    setscaley(CrossRun.scaleY);
}

// ---- The column itself: from the reference level at its middle to its edge at the ground

// The hole and its cased part, the open hole as a line down the middle. Pen: to the left edge.
static void PlainColumn(const Column& column)
{
    const float w = column.width;
    moveleft(w / 2);
    rectfillflag(w, -column.columnHeight, 0);
    rectby(w, -column.columnHeight);
    rectby(w, -column.casingHeight);
    movedown(column.casingHeight);
    moveright(w / 2);
    linedown(double(column.well.boreDepth) - column.well.casingDepth);
    moveright(w / 2);
    lineleft(w);
    moveup(column.well.boreDepth);
}

// The same along the axis. Pen: to the right edge.
static void InclinedColumn(Column& column)
{
    const float c = column.width / 2 * column.cosA;
    const float s = column.width / 2 * column.sinA;
    setscalex(1);
    setscaley(1);
    moveright(c);
    moveup(s);
    column.acrossX = -2 * c;
    column.acrossY = -2 * s;
    const float x = column.acrossX, y = column.acrossY;
    const double length = AlongColumn(column, column.columnHeight);
    const float downX = length * column.sinA, downY = -length * column.cosA;
    polyby(downX, downY);
    polyby(x, y);
    polyby(-downX, -downY);
    polyfillflag(0);
    lineby(downX, downY);
    lineby(x, y);
    lineby(-downX, -downY);
    lineby(-x, -y);
    moveright(x);
    moveup(y);
    setscaley(CrossRun.scaleY);
    MoveDown(column, column.casingHeight);
    setscaley(1);
    lineby(-x, -y);
    moveright(x / 2);
    moveup(y / 2);
    const double open = AlongColumn(column, double(column.well.boreDepth) - column.well.casingDepth);
    lineby(open * column.sinA, -open * column.cosA);
    moveright(x / 2);
    moveup(y / 2);
    lineby(-x, -y);
    setscaley(CrossRun.scaleY);
    MoveDown(column, -double(column.well.boreDepth));
}

// Of an individual column only what stands above the ground: the layers are the rest. Pen: to the left edge.
static void IndividualColumn(const Column& column)
{
    moveleft(column.width / 2);
    rectby(column.width, -CrossRun.stickUp[column.i]);
    movedown(CrossRun.stickUp[column.i]);
}

static void Tick()
{
    lineright(0.05);
    moveleft(0.05);
}

// ---- Layers, screens, water: from the right edge at the ground

// Code by code down the column, in individual columns each with its pattern. A layer that ends at or above the ground
// is left out: the next one begins at the ground, as thick as from the end of the one left out.
static void LayerCodes(const Column& column)
{
    const int i = column.i;
    for (int k = 1; k <= CrossRun.layerCount[i]; ++k) {
        const double depth = CrossRun.layerDepth[i][k];
        if (!(depth > 0))
            continue;
        const double h = (depth - CrossRun.layerDepth[i][k - 1]) / 2;
        const Text& code = CrossRun.layerCode[i][k];
        MoveDown(column, h);
        moveright(0.05);
        printtext(Text(Holds(code, ',') ? Behind(code, ',') : std::string_view(code)));
        MoveDown(column, h);
        moveleft(0.05);
        if (CrossRun.individualColumns == 1) {
            setpatt(code);
            rectfill(-column.width, 2 * h);
            rectby(-column.width, 2 * h);
        }
        if (depth < column.well.boreDepth)
            Tick();
    }
}

// Lines across an inclined column, 0.05 inch apart along it.
static void HatchScreen(const Column& column, float top, float bottom)
{
    const double length = AlongColumn(column, double(bottom) - top);
    const int16_t lines = RoundInt16(WholePart(static_cast<float>(length / 0.05)) + 1);
    MoveDown(column, top);
    setscaley(1);
    for (int n = 1; n <= lines; ++n) {
        lineby(column.acrossX, column.acrossY);
        moveright(-column.acrossX);
        moveup(-column.acrossY);
        moveright(0.05 * column.sinA);
        moveup(-0.05 * column.cosA);
    }
    setscaley(CrossRun.scaleY);
    SetPen(RememberedPen(column.i));
}

static void Screen(const Column& column, float top, float bottom)
{
    const double rise = double(top) - bottom;
    if (column.inclined)
        return HatchScreen(column, top, bottom);
    if (CrossRun.individualColumns == 1) {
        moveleft(0.125);
        movedown(top);
        rectfillwhite(0.05, rise);
        moveup(top);
        moveright(0.125);
        return;
    }
    movedown(top);
    moveleft(column.width);
    rectfill(column.width, rise);
    rectby(column.width, rise);
    moveup(top);
    moveright(column.width);
}

// The pen that drawwaterlevels starts from. Kept: the depth counts from the reference level, above the ground by the
// stick-up; on an inclined column the mark stands beside its right edge.
static void WaterLevel(const Column& column)
{
    const int i = column.i;
    if (!(CrossRun.waterDepth[i] > 0))
        return;
    SetPen(RememberedPen(i));
    if (!column.inclined)
        moveleft(column.width);
    MoveDown(column, -double(CrossRun.stickUp[i]));
    MoveDown(column, CrossRun.waterDepth[i]);
    RememberPen(i);
}

// ---- The borings

static void EraseBorings()
{
    CrossRun.layerDepth = {};
    CrossRun.layerCode = {};
    CrossRun.layerCount = {};
    CrossRun.deepestLayer = {};
}

// The client block over the foot, from the first boring.
static void DrawClient()
{
    float x = DeviceConfig.MarginX + 0.7;
    float y = DeviceConfig.MarginY + 2.2;
    setorigin(x, y);
    setscalex(1);
    setscaley(1);
    VLOG::drawclient(CrossRun.pageWidth >= 17 ? 0.1 : 0);
}

void VCROSS::toboring(int i)
{
    dataorigin();
    setscaley(CrossRun.scaleY);
    setscalex(CrossRun.scaleX);
    moveto(0, 0);
    moveright(CrossRun.distance[i]);
    movedown(double(CrossRun.vStart) - CrossRun.refElevation[i]);
}

static void DrawBoring(Column& column, float deepest)
{
    const int i = column.i;
    column.columnHeight = double(column.well.boreDepth) + CrossRun.stickUp[i];
    column.casingHeight = double(column.well.casingDepth) + CrossRun.stickUp[i];
    column.width = CrossRun.columnWidth;
    column.lineStep = CrossRun.labelSize / 72.0;
    toboring(i);
    setscalex(1); // widths are inches from here on
    textcenter();
    setfontsize(CrossRun.labelSize);
    const Text& label = CrossRun.labelBoringName[i] == 1 ? column.well.Name : column.well.WellName;
    // Kept: a boring labelled below does not ask whether it is inclined, and is drawn as the one before it.
    if (CrossRun.labelAtBottom[i] == 1)
        LabelBelow(column, label);
    else
        LabelAbove(column, label, deepest);
    column.inclined = CrossRun.inclinedColumn == 1 && CrossRun.individualColumns == 0;
    const double angle = CrossRun.apparentAngle[i] * 3.1415926536 / 180;
    column.sinA = std::sin(angle);
    column.cosA = std::cos(angle);
    if (column.inclined)
        InclinedColumn(column);
    else {
        if (CrossRun.individualColumns == 1)
            IndividualColumn(column);
        else
            PlainColumn(column);
        moveright(column.width);
    }
    Tick();
    RememberPen(i);
    setfontsize(6);
    textleft();
    if (CrossRun.drawLayers == 0) {
        LayerCodes(column);
        SetPen(RememberedPen(i));
    }
    setfillfile(6);
    for (int n = 1; n <= column.well.screenCount; ++n)
        Screen(column, column.well.screenTop[n], column.well.screenBottom[n]);
    WaterLevel(column);
    incseg(2);
}

// Reads the borings of CrossRun from their files; leaves the layers, elevations and pens of each in it, the data origin
// and the section's y scale in force. A boring that is missing or old ends the routine, and the page goes on with what
// there is.
void VCROSS::drawcrossborings()
try {
    EraseBorings();
    const int count = CrossRun.boringCount;
    float deepest = 0;
    for (int i = 1; i <= count; ++i) {
        const Text path = SectionBoringPath(CrossRun.boringFile[i]);
        if (!SectionBoringThere(path))
            return StepOverEntry();
        ReadSectionLayers(path, i);
        deepest = std::max(deepest, CrossRun.deepestLayer[i]);
    }
    for (int i = 1; i <= count; ++i) {
        const Text path = SectionBoringPath(CrossRun.boringFile[i]);
        if (!SectionBoringThere(path))
            return StepOverEntry();
        Column column;
        column.i = i;
        ReadSectionWell(path, i, column.well, i == 1);
        if (i == 1)
            DrawClient();
        DrawBoring(column, deepest);
    }
} catch (...) {
    ReportFailure(__func__);
}

// The mark of each boring's water level, on top of the fill: a line across the column with a triangle on it.
void VCROSS::drawwaterlevels()
try {
    dataorigin();
    setscalex(1);
    setscaley(1);
    for (int i = 1; i <= CrossRun.boringCount; ++i) {
        if (!(CrossRun.waterDepth[i] > 0))
            continue;
        SetPen(RememberedPen(i));
        lineright(CrossRun.columnWidth);
        moveleft(CrossRun.columnWidth / 2);
        moveup(0.04);
        triangledownsolid(0.04);
    }
} catch (...) {
    ReportFailure(__func__);
}
