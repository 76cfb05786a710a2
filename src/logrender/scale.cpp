// scale.cpp -- the depth scale, which fixes the page's vertical scale, and the elevation scale.
#include "canvas/metaugl.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"
#include "report/heading.h"
#include "session/failure.h"

#include <algorithm>

// How many whole increments the page holds. The quotient is a 32-bit value first, so that 40 / 0.1 is 400.
static int16_t Increments()
{
    const float quotient =
        Over(double(LogPage.PageEndDepth) - double(LogPage.PageStartDepth), double(LogBoring.TickIncrement));
    return RoundInt16(WholePart(double(quotient)));
}

static void ScaleHeading(double w)
{
    const Text wordA(Before(HeadingWords[3], ','));
    const Text wordB(LTrim(Behind(HeadingWords[3], ',')));
    setfontsize(7);
    textcenter();
    moveright(w / 2);
    if (LogBoring.HeadingTurned) {
        moveup(0.05);
        settextangle(90);
        textleft();
        setfontsize(8);
        printtext(wordA + " " + wordB + " " + LogBoring.UnitWord);
        settextangle(0);
        return;
    }
    moveup(0.435);
    printtext(wordA);
    movedown(0.13);
    printtext(wordB);
    movedown(0.13);
    printtext(LogBoring.UnitWord);
}

// Ticks in each increment when the boring does not say: fewer, the more increments there are.
static int TicksByDefault(int increments)
{
    return increments <= 10 ? 10 : increments <= 20 ? 5 : increments <= 40 ? 2 : 1;
}

// Reads ColumnWidth; sets DepthPerInch, BottomDepth and BottomSpan. Leaves y scale 1, the origin on the depth line at
// the scale's right edge and the pen above it on the baseline, (0, 0.1).
void VLOG::drawscale()
try {
    const double w = LogGeometry.ColumnWidth;
    const double height = ColumnHeight();
    markorigin();
    ScaleHeading(w);
    moveto(0, 1.2);
    linedown(height);
    lineright(w);
    lineup(height);
    movedown(1.2);
    lineleft(w);
    moveright(w);
    movedown(0.1);
    setfontsize(8);
    textright();
    markorigin(); // all depths count from here
    lineleft(0.08);
    moveleft(0.02);
    printtext(PlainNumber(double(LogPage.PageStartDepth)));
    if (LogPage.PageEndDepth == 0) {
        LogPage.PageEndDepth = 40;
        LogBoring.TickIncrement = 5;
    }
    const double start = LogPage.PageStartDepth;
    const double end = LogPage.PageEndDepth;
    LogGeometry.DepthPerInch = (end - start) / DrawingLength();
    setscaley(LogGeometry.DepthPerInch);
    const double increment = LogBoring.TickIncrement;
    const int count = Increments();
    for (int k = 1; k <= count; ++k) {
        movedown(increment);
        printnum(start + k * increment);
    }
    const int ticks = LogBoring.TicksPerIncrement != 0 ? LogBoring.TicksPerIncrement : TicksByDefault(count);
    moveto(0, 0);
    for (int k = 1; k <= count; ++k)
        for (int j = 1; j <= ticks; ++j) {
            movedown(increment / ticks);
            const double length = j == ticks ? 0.08 : ticks == 10 && j == 5 ? 0.06 : 0.04;
            lineleft(length);
            moveright(length);
        }
    setscaley(1);
    moveto(0, 0.1);
    LogGeometry.BottomDepth = LogBoring.ContactCount > 0 ? LogBoring.Contacts[LogBoring.ContactCount].Depth : 0;
    LogGeometry.BottomSpan = std::min(double(LogGeometry.BottomDepth) - start, end - start);
} catch (...) {
    ReportFailure(__func__);
}

// One tick of the elevation scale, from the column's left edge inward, with its number.
static void ElevationTick(float value)
{
    lineright(0.04);
    moveright(0.04);
    textleft();
    printnum(value);
    moveleft(0.08);
}

// The elevation scale, 0.4 wide. Pen: from the baseline at the left edge to (0, 0.1) in the origin's terms, which stays
// on the baseline; the dispatcher goes on from there. Leaves y scale 1.
void VLOG::drawelev()
try {
    markorigin();
    moveto(0.2, 0.435);
    setfontsize(7);
    textcenter();
    printtext(HeadingWords[4]);
    movedown(0.13);
    printtext(HeadingWords[5]);
    movedown(0.13);
    printtext(LogBoring.SurfElevText);
    // Kept: this line is as tall as the frame and does not heed a page length.
    moveto(0, 0);
    lineright(0.4);
    moveup(1.2);
    linedown(LogGeometry.FrameKind == 'L' ? 5.6 : LogGeometry.HasBottomRow == 1 ? 7.35 : 8.1);
    if (LogBoring.SurfElevText.empty())
        return;
    moveto(0, -0.1);
    setscaley(LogGeometry.DepthPerInch);
    movedown(double(LogBoring.SurfElev) - LogBoring.StartElev);
    float value = double(LogBoring.StartElev) - double(LogPage.PageStartDepth);
    ElevationTick(value);
    const int more = Increments() - 1;
    for (int i = 1; i <= more; ++i) {
        value = double(value) - double(LogBoring.TickIncrement);
        movedown(LogBoring.TickIncrement);
        ElevationTick(value);
    }
    setscaley(1);
    moveto(0, 0.1);
} catch (...) {
    ReportFailure(__func__);
}
