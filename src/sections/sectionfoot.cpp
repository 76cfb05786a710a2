// sectionfoot.cpp -- the sheet's frame and its foot, 1.5 inches tall, of a cross section or a fence.
//
//     +-----------+-------------+---------------------------------------------+
//     |   logo    |  the title  |                  LEGEND                     |
//     |-----------|-------------|   ## text    ## text    ## text             |   a column is six rows
//     |  client   |  three more |   ## text    ## text    ## text             |
//     +-----------+-------------+---------------------------------------------+
//     date, file
#include "canvas/colors.h"
#include "canvas/metaugl.h"
#include "canvas/patterns.h"
#include "logrender/vlog.h"
#include "report/heading.h"
#include "run/screenview.h"
#include "sections/crossrun.h"
#include "sections/fencerun.h"
#include "session/deviceconfig.h"
#include "session/failure.h"
#include "session/platform.h"

using namespace VCROSS;

static constexpr int legendColumns = 5, columnRows = 6;
static constexpr double legendPitch = 2.4;

// Wider blocks on the wide sheet.
static bool WideSheet()
{
    return CrossRun.pageWidth >= 17;
}

// ---- Frame and titles

static void SheetFrame()
{
    setfontname(DeviceConfig.FontName.empty() ? "Arial" : DeviceConfig.FontName);
    textcenter();
    setfontsize(8);
    float x = DeviceConfig.MarginX + 0.7;
    float y = CrossRun.pageHeight - 0.7 + DeviceConfig.MarginY;
    setorigin(x, y);
    setscalex(1);
    setscaley(1);
    rectby(CrossRun.pageWidth - 1.4, -(CrossRun.pageHeight - 1.4));
    moveto(0, -(CrossRun.pageHeight - 2.9));
    markorigin();
    lineright(CrossRun.pageWidth - 1.4);
}

static void Titles(char kind)
{
    moveright(1.2);
    movedown(0.3);
    setfontsize(10);
    printtext(CrossRun.mainTitle);
    moveleft(1.2);
    movedown(0.2);
    lineright(2.4);
    moveleft(1.2);
    movedown(0.2);
    setfontsize(9);
    printtext(HeadingWords[kind == 'F' ? 5 : 3]);
    movedown(0.2);
    if (kind == 'F') {
        printtext(CrossRun.title1);
        movedown(0.15);
        printtext(CrossRun.title2);
        movedown(0.15);
        printtext(FenceRun.title3);
        return;
    }
    printtext(HeadingWords[4] + " " + CrossRun.leftCornerLabel + "-" + CrossRun.rightCornerLabel);
    movedown(0.15);
    printtext(CrossRun.title1);
    movedown(0.15);
    printtext(CrossRun.title2);
}

// ---- Legend

// A row of the legend; a fence has eight, whatever a section has left in the others.
static Text LegendRow(char kind, int row)
{
    constexpr int fenceRows = 8;
    return kind == 'F' && row > fenceRows ? Text() : CrossRun.legendRows[row];
}

static bool Empty(const Text& row)
{
    const std::string_view text = Trim(row);
    return text.empty() || text == ";" || text == ",";
}

// Of the rows: the more of them the fullest column holds, the closer they stand, so that six fit above the foot's edge.
static double RowPitch(char kind)
{
    double pitch = 0.3;
    for (int column = 1; column <= legendColumns; ++column) {
        if (!Empty(LegendRow(kind, column * columnRows)))
            return 0.2;
        if (!Empty(LegendRow(kind, column * columnRows - 1)))
            pitch = 0.24;
    }
    return pitch;
}

static void Swatch(const Text& code, double pitch)
{
    if (CrossRun.drawLayers == 1 && CrossRun.useGIS == 1 && IsColorName(code))
        rectfillrgb(0.4, -pitch, getcolor(code, true));
    else {
        setpatt(code);
        rectfill(0.4, -pitch);
    }
    rectby(0.4, -pitch);
}

// The row "code,colour;text" at the pen, which steps down behind it. One without a code takes no room.
static void LegendEntry(const Text& row, bool individual, double pitch)
{
    const char separator = Holds(row, ';') ? ';' : ',';
    if (!Holds(row, separator))
        return;
    Text text(LTrim(Behind(row, separator)));
    const std::string_view front = Before(row, separator);
    Text code(Before(front, ','));
    const Text color(Holds(front, ',') ? Behind(front, ',') : front);
    if (individual)
        text = color + ": " + text;
    else if (CrossRun.drawLayers == 0)
        code = color;
    if (code.empty())
        return;
    if (CrossRun.drawLayers == 1 || individual)
        Swatch(code, pitch);
    else {
        moveright(0.2);
        movedown(pitch / 2);
        printtext(code);
        moveleft(0.2);
        moveup(pitch / 2);
    }
    moveright(0.5);
    movedown(pitch / 2);
    printtext(text);
    movedown(pitch / 2);
    moveleft(0.5);
}

static void Legend(char kind)
{
    moveto(2.4, 0);
    markorigin();
    linedown(1.5);
    moveto(2.35, -0.1);
    setfontsize(13);
    printtext(HeadingWords[7]);
    moveto(0.2, -0.25);
    setfontsize(8);
    textleft();
    const double pitch = RowPitch(kind);
    const double room = CrossRun.pageWidth - 1.4 - (WideSheet() ? 5.2 : 4.8);
    for (int column = 1; column <= legendColumns && column * legendPitch - 0.2 <= room; ++column) {
        moveto((column - 1) * legendPitch + 0.1, -0.25);
        for (int row = (column - 1) * columnRows + 1; row <= column * columnRows; ++row)
            if (const Text cell = LegendRow(kind, row); !Empty(cell))
                LegendEntry(cell, kind == 'C' && CrossRun.individualColumns == 1, pitch);
    }
}

// Reads CrossRun, for a fence FenceRun.title3 besides, and the words and the logo of the run; leaves both scales 1 and
// the text left aligned, 6 point.
void VCROSS::drawlogolegend(char kind)
try {
    const double e = WideSheet() ? 0.1 : 0;
    SheetFrame();
    moveto(0, -0.75);
    VLOG::drawlogo(e);
    moveto(2.4 + 2 * e, 0);
    markorigin();
    Titles(kind);
    Legend(kind);
    float x = DeviceConfig.MarginX + 0.8;
    float y = DeviceConfig.MarginY + 0.65;
    setorigin(x, y);
    setfontsize(6);
    textleft();
    printtextraw(Platform.ShortDate() + "    " + PrintedName(RunPages.pageFile));
} catch (...) {
    ReportFailure(__func__);
}
