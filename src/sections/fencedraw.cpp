// fencedraw.cpp -- a fence diagram but for its panels: the base plane with its scales and the north arrow, the stakes
// with their labels, layers and elevation scales, and the water marks that go over the panels.
//
//     rotation 0             rotation 1             rotation 2             rotation 3        the edges with ticks
//                                                   X end ... start
//          +--------+             +--------X start      +========+         X end              = along the page
//         /        //            /        //           /        //        // end   /          // along the diagonal
//      Y /        // Y end      /        // X        Y/        // Y      //X      /
//       +========+             +========+ end        /        //        +========+
//       X start end            Y start end          +--------+          Y end start
//
// In rotation 2 the plane is seen from its far side: X is told along the far edge, where Y starts, and grid lines run
// down from there.
#include "canvas/metaugl.h"
#include "gis/gisfile.h"
#include "logrender/vlog.h"
#include "report/heading.h"
#include "sections/fencerun.h"
#include "sections/giscells.h"
#include "sections/sectionboring.h"
#include "session/deviceconfig.h"
#include "session/failure.h"

using namespace VCROSS;

static constexpr int16_t Solid = 1, Dotted = 5;
static constexpr double Tick = 0.05; // inches

static bool LargePage()
{
    return CrossRun.pageMode == "T";
}

static void SetScales(float units)
{
    setscalex(units);
    setscaley(units);
}

static void OriginAt(double x, double y)
{
    float left = x + DeviceConfig.MarginX;
    float bottom = y + DeviceConfig.MarginY;
    setorigin(left, bottom);
}

// ---- The base plane

// How many whole increments the range holds; below 0 there are no ticks at all.
static int16_t TickCount(double range, double increment)
{
    const float quotient = Over(range, increment);
    return RoundInt16(WholePart(double(quotient)));
}

namespace
{
// The numbers along an edge: first, first + step and so on, count steps of them.
struct EdgeNumbers {
    double first, step;
    int16_t count;
    Text operator[](int n) const
    {
        return PlainNumber(first + n * step);
    }
};
} // namespace

// X from one end of the site to the other: backward where the page starts at the end of X.
static EdgeNumbers NumbersOfX(bool backward)
{
    const FenceRunRecord& f = FenceRun;
    const int16_t count = TickCount(double(f.xRange), double(f.xInc));
    return backward ? EdgeNumbers{double(f.xEnd), -double(f.xInc), count}
                    : EdgeNumbers{double(f.xStart), double(f.xInc), count};
}

static EdgeNumbers NumbersOfY()
{
    const FenceRunRecord& f = FenceRun;
    return {double(f.yStart), double(f.xInc), TickCount(double(f.yRange), double(f.xInc))};
}

// Ticks along a horizontal edge from the pen, which stands a tick's length above it: a grid line over the plane by
// (grid, grid), the tick, its number. direction: 1 walks right, -1 left. Leaves both scales 1.
static void HorizontalTicks(const EdgeNumbers& numbers, double grid, int direction)
{
    for (int n = 0; n <= numbers.count; ++n) {
        setscalex(1);
        setlinestyle(Dotted);
        lineby(grid, grid);
        movedown(grid);
        moveleft(grid);
        setlinestyle(Solid);
        setscalex(BaseScale());
        linedown(Tick);
        movedown(Tick);
        printtext(numbers[n]);
        moveright(direction * double(FenceRun.xInc));
        moveup(2 * Tick);
    }
    SetScales(1);
}

// Ticks along a diagonal edge from the pen: a grid line over the plane, width inches away from the ticks, the tick, its
// number. side: 1 the ticks are to the right, -1 to the left. direction: 1 walks up, -1 down. Leaves both scales 1.
static void DiagonalTicks(const EdgeNumbers& numbers, double width, int side, int direction)
{
    const double step = direction * (double(FenceRun.xInc) * Foreshortening);
    for (int n = 0; n <= numbers.count; ++n) {
        SetScales(1);
        setlinestyle(Dotted);
        lineleft(side * width);
        moveright(side * width);
        setlinestyle(Solid);
        lineright(side * Tick);
        moveright(side * Tick);
        printtext(numbers[n]);
        moveleft(side * 2 * Tick);
        SetScales(BaseScale());
        moveright(step);
        moveup(step);
    }
    SetScales(1);
}

static void AxisTitle()
{
    textcenter();
    moveto(LargePage() ? 4.0 : 3.0, -0.3);
    printtext(HeadingWords[2] + " (" + FenceRun.xUnit + ")");
}

// X along the page, the near edge of the plane in rotation 0 and the far one in rotation 2; Y along the right side.
// Kept: all ticks of X stand 0.05 inch to the right of their place.
static void StraightPlane()
{
    FenceRunRecord& f = FenceRun;
    const bool turned = f.rotation == 2;
    const double rise = f.baseRise, width = f.baseWidth;
    const double start = turned ? rise : 0;
    moveto(start, start);
    lineright(width);
    moveto(start + Tick, start + Tick);
    HorizontalTicks(NumbersOfX(turned), turned ? -rise : rise, 1);
    AxisTitle();
    moveto(start + width, start);
    f.yRange = LargePage() ? double(f.xRange) / 8.0 * 8.5 : double(f.xRange) / 6.0 * 4.2 / 8.0 * 8.5;
    textleft();
    DiagonalTicks(NumbersOfY(), width, 1, turned ? -1 : 1);
}

// X along the diagonal, the right side of the plane in rotation 1 and the left one in rotation 3; Y along the page.
static void QuarterPlane()
{
    FenceRunRecord& f = FenceRun;
    const bool right = f.rotation == 1;
    const double rise = LargePage() ? 5.6 : 4.2, width = LargePage() ? 8.5 : 4.2;
    const double start = right ? width : 0;
    moveto(start, 0);
    lineby(rise, rise);
    moveto(start, 0);
    f.yRange = double(f.xRange) * 8.5 / 8.0;
    if (right)
        textleft();
    else
        textright();
    DiagonalTicks(NumbersOfX(right), width, right ? 1 : -1, 1);
    AxisTitle();
    moveto((right ? 0 : Over(WholePart(double(f.yRange)), double(BaseScale()))) + Tick, Tick);
    HorizontalTicks(NumbersOfY(), rise, right ? 1 : -1);
}

// Kept: a GIS file's coordinates replace those of the definition, in the table of the file itself the names of the
// borings are completed.
static void TakeGisPlaces()
{
    FenceRunRecord& f = FenceRun;
    spellgisnames();
    for (int i = 1; i <= CrossRun.boringCount; ++i) {
        if (!HasBoring(i))
            continue;
        const int row = gisrowof(UpperCase(CrossRun.boringFile[i]));
        if (row == 0)
            continue; // it keeps the place that the definition gives it
        CrossRun.gisRow[i] = static_cast<int16_t>(row);
        // 32-bit before the start is taken off, as the definition's own are.
        f.siteX[i] = TextNumber(GisData.boringCells[row][GisX]);
        f.siteX[i] = double(f.siteX[i]) - f.xStart;
        f.siteY[i] = TextNumber(GisData.boringCells[row][GisY]);
        f.siteY[i] = double(f.siteY[i]) - f.yStart;
        CrossRun.refElevation[i] = TextNumber(GisData.boringCells[row][GisElevation]);
    }
}

// Kept: quarter turns round one coordinate to 16 bits. The first boring beyond them is failure 6, and the borings from
// it on stay where they are.
static void TurnBorings()
{
    FenceRunRecord& f = FenceRun;
    for (int i = 1; i <= CrossRun.boringCount && f.rotation != 0; ++i) {
        if (!HasBoring(i))
            continue;
        const double x = f.siteX[i], y = f.siteY[i];
        const double width = WholePart(double(f.xRange)), depth = WholePart(double(f.yRange));
        switch (f.rotation) {
        case 1:
            f.siteY[i] = double(f.xRange) - RoundInt16(x);
            f.siteX[i] = y;
            break;
        case 2:
            f.siteX[i] = width - x;
            f.siteY[i] = depth - y;
            break;
        case 3:
            f.siteY[i] = RoundInt16(x);
            f.siteX[i] = depth - y;
            break;
        }
    }
}

// ---- The north arrow

namespace
{
// An arrow of a facing, in inches from its origin: its tail, its shaft from there, and one barb from the tip.
struct Arrow {
    double tailX, tailY, shaftX, shaftY, barbX, barbY;
};
} // namespace

static const Arrow arrows[] = {
    {-0.7, -0.7, 0.7, 0.7, -0.25, -0.15},
    {0, 0, -1, 0, 0.25, 0.05},
    {0, 0, -0.7, -0.7, 0.25, 0.15},
    {0, 0, 1, 0, -0.25, 0.05},
};

// Kept: on the large page the arrow stands by the number of increments, and with many of them above the sheet.
static void ArrowOrigin()
{
    const FenceRunRecord& f = FenceRun;
    const bool level = f.facing % 2 == 0;
    if (!LargePage()) {
        OriginAt(f.facing == 2 ? 9.9 : level ? 8.9 : 9.5, level ? 5.0 : 4.4);
        return;
    }
    const double increments = Over(double(level ? f.xRange : f.yRange), double(f.xInc));
    OriginAt(f.facing == 2 ? 12.9 : level ? 11.9 : 12.5, increments + (level ? 4.0 : 4.6));
}

// The arrow to where north lies in this view, with an N in a circle on its tip.
static void NorthArrow()
{
    const bool level = FenceRun.facing % 2 == 0;
    const Arrow& arrow = arrows[FenceRun.facing - 1];
    const double side = level ? 0.24 : 0.18;
    SetScales(1);
    setfontsize(14);
    textcenter();
    ArrowOrigin();
    moveto(arrow.tailX, arrow.tailY);
    lineby(arrow.shaftX, arrow.shaftY);
    lineby(arrow.barbX, arrow.barbY);
    moveleft(arrow.barbX);
    movedown(arrow.barbY);
    moveleft(side / 2);
    movedown(side / 2);
    rectfillflag(side, side, 0);
    moveright(side / 2);
    moveup(side / 2);
    circle(0.12);
    moveleft(0.04);
    movedown(0.05);
    lineup(0.1);
    lineby(0.08, -0.1);
    lineup(0.1);
}

// Reads both records; leaves in them the ranges, the defaults, and the places of the borings turned as they are drawn.
void VCROSS::drawfenceframe()
try {
    FenceRunRecord& f = FenceRun;
    setcolor(0);
    drawlogolegend('F');
    OriginAt(0.85, 2.7);
    SetScales(1);
    setfontsize(8);
    textcenter();
    if (f.xEnd == 0 && f.xStart == 0) {
        f.xEnd = 500;
        f.xInc = 100;
    }
    f.xRange = double(f.xEnd) - f.xStart;
    if (f.rotation == 0 || f.rotation == 2)
        StraightPlane();
    else
        QuarterPlane();
    if (CrossRun.vStart == 0 && CrossRun.vEnd == 0) {
        CrossRun.vStart = 500;
        CrossRun.vEnd = 100;
        CrossRun.vInc = -50;
    }
    CrossRun.vRange = double(CrossRun.vStart) - CrossRun.vEnd;
    setfontsize(6);
    if (CrossRun.useGIS == 1)
        TakeGisPlaces();
    TurnBorings();
    if (f.facing > 0)
        NorthArrow();
} catch (...) {
    ReportFailure(__func__);
}

// ---- The stakes

// The stakes stand 2 inches high between vEnd and vStart.
static float StakeScale()
{
    return static_cast<float>(double(CrossRun.vRange) / 2);
}

// The elevation of vStart over the ground of a boring.
static double TopOverGround(int i)
{
    return double(CrossRun.vStart) - CrossRun.refElevation[i] + CrossRun.stickUp[i];
}

// The boring's name or that of its well, over the stake or under its foot. Pen: the reference level, which it keeps.
static void Label(int i, const SectionWell& well)
{
    const Text& label = CrossRun.labelBoringName[i] ? well.Name : well.WellName;
    const double height = double(CrossRun.refElevation[i]) - CrossRun.vEnd;
    if (CrossRun.labelAtBottom[i]) {
        movedown(height);
        setscaley(1);
        movedown(0.15);
        printtext(label);
        moveup(0.15);
        setscaley(StakeScale());
        moveup(height);
        return;
    }
    setscaley(1);
    moveup(0.2);
    printtext(label);
    movedown(0.2);
    setscaley(StakeScale());
}

// Down to the base plane whatever the depth of the boring. Pen: from the reference level to the ground.
static void Stake(int i)
{
    const double height = double(CrossRun.refElevation[i]) - CrossRun.vEnd;
    setfontsize(6);
    linedown(height);
    setscalex(1);
    lineright(0.02);
    lineleft(0.04);
    moveright(0.02);
    moveup(height - CrossRun.stickUp[i]);
}

// The elevation scale beside a stake: side 1 to its right, -1 to its left. Pen: from the ground to Tick beside the
// stake, an increment below the last number.
static void ElevationTicks(int i, int side)
{
    CrossRunRecord& run = CrossRun;
    moveup(TopOverGround(i));
    moveright(side * Tick);
    linedown(run.vRange);
    moveup(run.vRange);
    if (run.vInc < 0)
        run.vInc = RoundInt32(-double(run.vInc));
    const int count = TickCount(double(run.vRange), double(run.vInc));
    for (int n = 0; n <= count; ++n) {
        lineright(side * Tick);
        moveright(side * Tick);
        printtext(PlainNumber(int(RoundInt32(double(run.vStart) - double(n) * run.vInc))));
        movedown(double(run.vInc));
        moveleft(side * 2 * Tick);
    }
}

// The left scale with its title. Kept: the way back counts on a range of whole increments; with another one the codes
// and the water mark of this boring stand too high.
static void LeftScale(int i)
{
    const CrossRunRecord& run = CrossRun;
    textright();
    ElevationTicks(i, -1);
    moveup(double(run.vRange) / 2 + run.vInc);
    moveleft(0.5);
    settextangle(90);
    textcenter();
    setfontsize(8);
    printtext(HeadingWords[1] + " (" + run.vUnit + ")");
    settextangle(0);
    moveup(double(run.vRange) / 2);
    moveright(0.5 + Tick);
    movedown(TopOverGround(i));
    setfontsize(6);
}

static void RightScale(int i)
{
    textleft();
    ElevationTicks(i, 1);
    moveup(double(CrossRun.vRange) + CrossRun.vInc);
    moveleft(Tick);
    movedown(TopOverGround(i));
}

static void GroundTick()
{
    lineright(0.03);
    moveleft(0.03);
}

// The codes beside the stake, each in the middle of its layer, with ticks at the contacts. Pen: from the ground to the
// last contact, whose depth is returned.
static float LayerCodes(int i)
{
    const CrossRunRecord& run = CrossRun;
    GroundTick();
    textleft();
    float top = 0;
    for (int k = 1; k <= run.layerCount[i]; ++k) {
        const float depth = run.layerDepth[i][k];
        const double half = (double(depth) - top) / 2;
        top = depth;
        if (!(depth > 0))
            continue;
        const Text& code = run.layerCode[i][k];
        movedown(half);
        moveright(0.05);
        printtext(Holds(code, ',') ? Text(Behind(code, ',')) : code);
        movedown(half);
        moveleft(0.05);
        GroundTick();
    }
    return top;
}

// Pen: the reference level. The mark is drawn again over the panels; until then the pen is kept.
static void WaterMark(int i)
{
    movedown(CrossRun.waterDepth[i]);
    SetScales(1);
    moveup(0.05);
    CrossRun.penX[i] = PageCanvas.penX;
    CrossRun.penY[i] = PageCanvas.penY;
    FenceRun.waterMark[i] = true;
    triangledownsolid(0.05);
}

// The boring's file into slot i; for the first boring also its client block onto the page. The ground is the surface
// of the GIS file where that has the boring.
static void ReadBoring(const Text& path, int i, SectionWell& well, bool first)
{
    ReadFenceBoring(path, i, well, first);
    if (CrossRun.gisRow[i] > 0)
        CrossRun.refElevation[i] =
            TextNumber(GisData.boringCells[CrossRun.gisRow[i]][GisElevation]) + CrossRun.stickUp[i];
    if (!first)
        return;
    OriginAt(0.7, 2.2);
    SetScales(1);
    VLOG::drawclient(LargePage() ? 0.1 : 0);
}

// The stake of a boring that has been read.
static void DrawStake(int i, const SectionWell& well, bool first, bool last)
{
    const double place = double(FenceRun.siteY[i]) * Foreshortening;
    fenceorigin();
    SetScales(BaseScale());
    moveright(FenceRun.siteX[i]);
    moveright(place);
    moveup(place);
    setscaley(StakeScale());
    movedown(double(CrossRun.vStart) - CrossRun.refElevation[i]);
    setfontsize(7);
    textcenter();
    Label(i, well);
    Stake(i);
    if (first)
        LeftScale(i);
    if (last && CrossRun.drawLayers == 1)
        RightScale(i);
    const float depth = CrossRun.drawLayers == 0 ? LayerCodes(i) : 0;
    moveup(double(depth) + CrossRun.stickUp[i]);
    if (CrossRun.waterDepth[i] > 0)
        WaterMark(i);
}

// Reads each boring when its turn comes, and draws it; a missing or old one ends the routine with its box. Leaves the
// layers and elevations of the borings drawn.
void VCROSS::drawfenceborings()
try {
    int first = 0, last = 0;
    for (int i = 1; i <= CrossRun.boringCount; ++i)
        if (HasBoring(i)) {
            first = first == 0 ? i : first;
            last = i;
        }
    for (int i = 1; i <= last; ++i) {
        if (!HasBoring(i))
            continue;
        const Text path = SectionBoringPath(CrossRun.boringFile[i]);
        if (!SectionBoringThere(path))
            return StepOverEntry();
        SectionWell well;
        ReadBoring(path, i, well, i == first);
        DrawStake(i, well, i == first, i == last);
    }
} catch (...) {
    ReportFailure(__func__);
}

// The marks of the stakes, once more: the panels have been painted over them.
void VCROSS::drawwaterlevelfence()
try {
    OriginAt(LargePage() ? 0.95 : 0.85, LargePage() ? 8.3 : 5.8);
    SetScales(1);
    for (int i = 1; i <= CrossRun.boringCount; ++i)
        if (FenceRun.waterMark[i]) {
            PageCanvas.penX = CrossRun.penX[i];
            PageCanvas.penY = CrossRun.penY[i];
            triangledownsolid(0.05);
        }
} catch (...) {
    ReportFailure(__func__);
}
