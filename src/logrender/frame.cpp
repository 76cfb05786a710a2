// frame.cpp -- what every log page has before any column: frame, date line, head lines, title block positions.
#include "canvas/metaugl.h"
#include "canvas/patterns.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"
#include "report/heading.h"
#include "run/screenview.h"
#include "session/deviceconfig.h"
#include "session/failure.h"
#include "session/platform.h"

namespace
{
struct Place {
    double x, y;
};

// The upper left corners of the twelve positions, from the frame's corner. Positions that an orientation lacks stay
// at the corner.
const Place portrait[12] = {{0, 0},   {0, -0.75},   {0, -8.85},   {2.4, 0}, {2.4, -0.75}, {2.4, -8.85},
                            {4.8, 0}, {4.8, -0.75}, {4.8, -8.85}, {0, 0},   {0, 0},       {0, 0}};
const Place landscape[12] = {{0, 0},   {0, -0.75},   {2.4, 0}, {2.4, -0.75}, {4.8, 0}, {4.8, -0.75},
                             {7.2, 0}, {7.2, -0.75}, {0, 0},   {0, 0},       {0, 0},   {0, 0}};
const Place tabloid[12] = {{0, 0},   {0, -0.75},   {2.6, 0},  {2.6, -0.75},  {5.2, 0}, {5.2, -0.75},
                           {7.8, 0}, {7.8, -0.75}, {10.4, 0}, {10.4, -0.75}, {13, 0},  {13, -0.75}};
} // namespace

static void TitleWords(float points, const Text& words)
{
    setfontsize(points);
    textcenter();
    printtext(words);
}

// The log title, two blocks wide. Pen: the block's upper left corner.
static void WideTitle(double e)
{
    rectby(4.8 + 4 * e, -0.75);
    moveright(2.4 + 2 * e);
    movedown(0.3);
    TitleWords(13, HeadingWords[1] + " " + LogBoring.Name);
    moveright(1.4 + e);
    movedown(0.3);
    setfontsize(9);
    printtext(LogPage.PageCaption);
}

// The log title, one block wide.
static void NarrowTitle(double e)
{
    rectby(2.4 + 2 * e, -0.75);
    moveright(1.2 + e);
    movedown(0.3);
    TitleWords(12, HeadingWords[1] + " " + LogBoring.Name);
    moveright(0.6 + e);
    movedown(0.3);
    setfontsize(8);
    printtext(LogPage.PageCaption);
}

// The block of a code at the pen. A code above 12 is none.
static void TitleBlock(int code, int position, double e)
{
    const bool oneHigh = LogGeometry.FrameKind == 'P' ? position < 9 && position % 3 == 2 : position % 2 == 0;
    switch (code) {
    case 1:
        return VLOG::drawlogo(e);
    case 2:
        return VLOG::drawclient(e);
    case 3:
        return WideTitle(e);
    case 4:
        return VLOG::drawlongborinfo(e);
    case 5:
    case 6:
    case 7:
        return VLOG::drawborinfo(e, code - 5, oneHigh ? 1 : 0);
    case 8:
        return VLOG::drawmap();
    case 9:
        return VLOG::drawlogplusinfo(e);
    case 10:
        return VLOG::drawbottnotes(e, 1);
    case 11:
        return VLOG::drawbottnotes(e, 0);
    case 12:
        return NarrowTitle(e);
    default:
        return;
    }
}

void VLOG::framefont()
{
    setfontname(DeviceConfig.FontName.empty() ? "Arial" : DeviceConfig.FontName);
    setfontsize(6);
    textleft();
    textmiddle();
}

// It runs up the outside of the left edge; on a landscape page it stands below the frame.
void VLOG::dateline()
{
    const bool turned = LogGeometry.FrameKind != 'L';
    moveto(turned ? -0.07 : 0.1, turned ? -9.5 : -7.17);
    settextangle(turned ? 90 : 0);
    printtextraw(Platform.ShortDate() + "   " + PrintedName(LogPage.BoringFileName));
    settextangle(0);
}

// Reads LogGeometry and LogBoring; leaves the origin at the frame's upper left corner, both scales 1, and the pen on
// the baseline at the left edge, (0, -2.7).
void VLOG::drawframe()
try {
    const char kind = LogGeometry.FrameKind;
    const double width = kind == 'P' ? 7.2 : kind == 'L' ? 9.6 : 15.6;
    const double height = kind == 'L' ? 7.1 : 9.6;
    const double e = kind == 'T' ? 0.1 : 0;
    setfillfile(1);
    setcolor(0);
    framefont();
    float x = 0.7 + DeviceConfig.MarginX;
    float y = (kind == 'L' ? 7.8 : 10.3) + DeviceConfig.MarginY;
    setorigin(x, y);
    setscalex(1);
    setscaley(1);
    setlinewidth(2);
    rectby(width, -height);
    setlinewidth(1);
    dateline();
    moveto(0, -1.5);
    lineright(width);
    if (LogGeometry.HasBottomRow == 1) {
        moveto(0, -8.85);
        lineright(width);
    }
    const Place* places = kind == 'P' ? portrait : kind == 'L' ? landscape : tabloid;
    for (int position = 1; position <= 12; ++position)
        if (LogGeometry.TitleBlocks[position] > 0) {
            moveto(places[position - 1].x, places[position - 1].y);
            TitleBlock(LogGeometry.TitleBlocks[position], position, e);
        }
    if (LogBoring.Draft == 1) {
        moveto(3, -2.5);
        setfontsize(32);
        textleft();
        settextangle(45);
        printtext("CHECK PRINT");
        settextangle(0);
    }
    moveto(0, -2.7);
} catch (...) {
    ReportFailure(__func__);
}
