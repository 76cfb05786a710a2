// intropage.cpp -- the intro page of a boring log, always portrait.
//
//     arrangement 1                       arrangement 2
//     +----------------------------+      +----------------------------+
//     | logo           PROJECT MAP |      | logo             name      |
//     | client          +--------+ |      | client          +--------+ |
//     | name            |        | |      |   PROJECT MAP   | well   | |
//     | +-------------+ |        | |      | +-------------+ |        | |
//     | | well | notes| +--------+ |      | |             | |--------| |
//     | |      |      |            |      | |             | | notes  | |
//     | +-------------+            |      | +-------------+ +--------+ |
//     | LEGEND:                    |      | LEGEND:                    |
//     +----------------------------+      +----------------------------+
#include "logrender/intropage.h"

#include "canvas/metaugl.h"
#include "canvas/patterns.h"
#include "logrender/logdata.h"
#include "logrender/textcolumns.h"
#include "logrender/vlog.h"
#include "report/heading.h"
#include "report/projectfiles.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "session/deviceconfig.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/session.h"

#include <algorithm>
#include <cmath>

static constexpr double introLinePitch = 0.1;

// ---- Well construction

// The well construction lines at the pen, labels and values 0.8 apart.
static void WellLines()
{
    setfontsize(7);
    textleft();
    VLOG::wellrows(0.8);
}

// The notes under their title, which stands at the pen.
static void WellNotes()
{
    printtext(HeadingWords[16]);
    movedown(0.15);
    for (int i = 1; i <= LogBoring.WellNoteCount; ++i) {
        printtext(LogBoring.WellNotes[i]);
        movedown(introLinePitch);
    }
}

void VLOG::drawintrowcon()
try {
    moveto(0.2, -2.1);
    rectby(4, -4);
    moveright(2);
    linedown(4);
    moveto(0.3, -2.15);
    WellLines();
    moveto(2.3, -2.2);
    WellNotes();
} catch (...) {
    ReportFailure(__func__);
}

void VLOG::drawintrowcon2()
try {
    moveto(4.4, -0.4);
    rectby(2.5, -5.7);
    moveto(4.4, -3.9);
    lineright(2.5);
    moveto(4.5, -0.45);
    WellLines();
    // Kept: the title of the notes stands on the line itself, which runs through it.
    moveto(4.5, -3.9);
    WellNotes();
} catch (...) {
    ReportFailure(__func__);
}

// ---- The project map

// The map under its title, which stands at the pen, centred; from (x, y), an empty box where the project has none.
static void ProjectMap(double x, double y, double width, double height)
{
    setfontsize(10);
    textcenter();
    printtext(HeadingWords[18]);
    moveto(x, y);
    const Text path = MapPath("project.bmp", LogPage.BoringFileName);
    if (FileExists(path))
        drawbitmap(path, width, -height);
    rectby(width, -height);
}

void VLOG::drawintromap()
try {
    moveto(5.65, -0.25);
    ProjectMap(4.45, -0.45, 2.5, 3);
} catch (...) {
    ReportFailure(__func__);
}

void VLOG::drawintromap2()
try {
    moveto(2.2, -1.95);
    ProjectMap(0.2, -2.1, 4, 4);
} catch (...) {
    ReportFailure(__func__);
}

// ---- The legend

// A legend cell as a file number. Unlike getpch it tells nobody of a number that is too high, and an empty cell is the
// code in slot 0.
static int LegendPattern(const Text& cell)
{
    constexpr int firstUserFile = 20, mostFile = 300;
    const Text code = UpperCase(Trim(cell));
    if (code.starts_with('F')) {
        const double file = std::nearbyint(TextNumber(std::string_view(code).substr(1)) + firstUserFile);
        return file > mostFile ? 0 : static_cast<int>(std::max(file, 0.0));
    }
    for (int p = 0; p <= MaxUscsCodes; ++p)
        if (code == uscsCodes[p])
            return p + firstUserFile;
    return 0;
}

// Three columns of ten swatches, in the font of the map's title.
static void DrawLegend()
{
    moveto(0.2, -6.35);
    textleft();
    printtext(HeadingWords[19] + ":");
    movedown(0.15);
    setfontsize(9);
    for (int i = 1; i <= LogBoring.LegendCount; ++i) {
        setfillfile(LegendPattern(LogBoring.Legend[i][1]));
        rectfill(0.4, -0.2);
        rectby(0.4, -0.2);
        moveright(0.5);
        movedown(0.1);
        printtext(LogBoring.Legend[i][2]);
        movedown(0.175);
        moveleft(0.5);
        if (i == 10 || i == 20) {
            moveright(2.3);
            moveup(2.75);
        }
        incseg(2);
    }
}

// ---- The page

// Reads LogBoring; leaves the origin at the frame's upper left corner and both scales 1.
void VLOG::drawframeintro()
try {
    LogGeometry.FrameKind = 'P';
    canvasstart("P");
    float x = 0.7 + DeviceConfig.MarginX;
    float y = 10.3 + DeviceConfig.MarginY;
    setorigin(x, y);
    setscalex(1);
    setscaley(1);
    setlinewidth(2);
    rectby(7.2, -9.6);
    setlinewidth(1);
    framefont();
    dateline();
    moveto(0.2, -0.2);
    drawlogo(0.1);
    moveto(0.2, -0.95);
    drawclient(0.1);
    incseg(2);
} catch (...) {
    ReportFailure(__func__);
}

void VLOG::drawintromain()
try {
    setfontsize(12);
    textleft();
    if (introType == 1) {
        moveto(0.25, -1.9);
        printtext(LogBoring.Name);
        drawintrowcon();
        drawintromap();
    } else {
        moveto(4.5, -0.25);
        printtext(LogBoring.Name);
        drawintrowcon2();
        drawintromap2();
    }
    incseg(2);
    DrawLegend();
} catch (...) {
    ReportFailure(__func__);
}

void VLOG::vlogintrostart()
try {
    RunPages.pageCount = 0; // a list that cannot be read is an empty one, not the run before
    getsvfiles();
    getclientlogo(1);
    RunPages.pageIndex = 1;
    while (RunPages.pageIndex <= RunPages.pageCount) {
        Platform.ShowProgress(true);
        LogPage.BoringFileName = RunPages.pageFile = runFiles[RunPages.pageIndex];
        getintrodata();
        if (LogBoring.RepPartCount == -1)
            continue; // refused, and the index has moved on
        // Kept: a boring that fails to be read is told, and has a page with what was read of it.
        drawframeintro();
        drawintromain();
        Platform.ShowProgress(false);
        ShowOrPrint();
    }
    Platform.ShowProgress(false);
} catch (...) {
    Platform.ShowProgress(false);
    ReportFailure(__func__);
}
