// titleblocks.cpp -- what stands in the title block positions at the head of a log page.
//
// Each routine is entered with the pen on its block's upper left corner and draws its box itself; nobody counts on
// where it leaves the pen. e is the extra width on a wide page, 0.1 or 0: a block is 2.4 + 2e wide.
#include "canvas/metaugl.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"
#include "report/heading.h"
#include "report/projectfiles.h"
#include "session/deviceconfig.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/session.h"

// ---- Logo and map

static void PictureLogo(double e)
{
    const Text& folder = DeviceConfig.SystemFiles[LogoFolder];
    const Text path = JoinPath(IsBlank(folder) ? WorkingFolder : folder, LogoData.File);
    const Text upper = UpperCase(LogoData.File);
    if (!upper.ends_with("BMP")) {
        MsgBox("Unsupported Logo File Format: " + path, OkOnly, Exclamation);
        return;
    }
    moveright(0.025 + e);
    movedown(0.025);
    drawbitmap(path, 2.35, -0.7);
}

// A line of the logo text: what stands behind "|" makes its 11 points larger.
static void LogoLine(const Text& line)
{
    if (line.empty())
        return;
    setfontsize(11 + TextNumber(Behind(line, '|')));
    printtext(Text(Before(line, '|')));
    movedown(0.15);
}

static void TextLogo(double e)
{
    textcenter();
    moveright(1.2 + e);
    movedown(0.225);
    if (LogoData.Line[2].empty())
        movedown(0.05);
    LogoLine(LogoData.Line[1]);
    LogoLine(LogoData.Line[2]);
    movedown(0.05);
    setfontsize(8);
    printtext(LogoData.Line[3]);
}

void VLOG::drawlogo(double e)
try {
    rectby(2.4 + 2 * e, -0.75);
    if (LogoData.Flag == 1)
        PictureLogo(e);
    else
        TextLogo(e);
} catch (...) {
    ReportFailure(__func__);
}

// The boring's map picture, from the project folder or beside the boring; without a name nothing.
void VLOG::drawmap()
try {
    const Text name(Trim(LogBoring.MapFile));
    if (name.empty())
        return;
    moveright(0.05);
    movedown(0.05);
    setscalex(1);
    setscaley(1);
    drawbitmap(MapPath(name, LogPage.BoringFileName), 2.3, -1.4);
} catch (...) {
    ReportFailure(__func__);
}

// ---- Client block

// Client lines from first to last, in either direction; each is printed and then stepped over.
static void ClientLines(int first, int last, double up)
{
    const int step = first <= last ? 1 : -1;
    for (int i = first; i != last + step; i += step) {
        printtext(LogBoring.Client[i]);
        moveup(up);
    }
}

void VLOG::drawclient(double e)
try {
    const double width = 2.4 + 2 * e;
    const double half = 1.2 + e;
    rectby(width, -0.75);
    setfontsize(8);
    textcenter();
    switch (LogBoring.Style) {
    case 1: // Open
        movedown(0.115);
        moveright(half);
        ClientLines(1, 5, -0.13);
        break;
    case 2: // 1 Line A
        movedown(0.59);
        lineright(width);
        movedown(0.08);
        moveleft(half);
        printtext(LogBoring.Client[5]);
        moveup(0.18);
        ClientLines(4, 1, 0.13);
        break;
    case 3: // 2 Line
        movedown(0.43);
        lineright(width);
        movedown(0.08);
        moveleft(half);
        printtext(LogBoring.Client[4]);
        movedown(0.08);
        moveleft(half);
        lineright(width);
        movedown(0.08);
        moveleft(half);
        printtext(LogBoring.Client[5]);
        moveup(0.325);
        ClientLines(3, 1, 0.13);
        break;
    case 4: // 1 Line B
        movedown(0.45);
        lineright(width);
        moveup(0.105);
        moveleft(half);
        ClientLines(3, 1, 0.13);
        movedown(0.57);
        printtext(LogBoring.Client[4]);
        movedown(0.13);
        printtext(LogBoring.Client[5]);
        break;
    default: // converted files may hold no style: the box alone
        break;
    }
} catch (...) {
    ReportFailure(__func__);
}

// ---- Title rows

// Rows of the title information at the pen, 0.14 apart. A row with neither prompt nor text takes no line.
static void TitleRows(int first, int last)
{
    for (int row = first; row <= last; ++row) {
        const Text& label = LogBoring.Info[row][1];
        const Text& value = LogBoring.Info[row][2];
        if (UpperCase(value) == "HEADING")
            printtext(label);
        else if (label.empty() && value.empty())
            continue;
        else {
            printtext(label);
            moveright(1.0);
            printtext(": " + value);
            moveleft(1.0);
        }
        movedown(0.14);
    }
}

static void SmallLeft()
{
    setfontsize(7);
    textleft();
}

// kind 0 to 2: rows 1, 11 or 21 on. row 1: the block is one position high; 0: it covers the one below too.
void VLOG::drawborinfo(double e, int kind, int row)
try {
    rectby(2.4 + 2 * e, row == 1 ? -0.75 : -1.5);
    moveright(0.1);
    movedown(row == 1 ? 0.095 : 0.12);
    SmallLeft();
    const int first = 10 * kind + 1;
    TitleRows(first, row == 1 ? first + 4 : first + 9);
} catch (...) {
    ReportFailure(__func__);
}

void VLOG::drawlongborinfo(double e)
try {
    rectby(4.8 + 4 * e, -0.75);
    moveright(0.1);
    movedown(0.095);
    SmallLeft();
    TitleRows(1, 5);
    // Kept: up by five lines even when fewer were taken, so that empty rows lift the second column.
    moveup(0.7);
    moveright(2.5 + 2 * e);
    TitleRows(6, 10);
} catch (...) {
    ReportFailure(__func__);
}

// The log title over title rows 1 to 6, in one block two positions high.
void VLOG::drawlogplusinfo(double e)
try {
    const double width = 2.4 + 2 * e;
    rectby(width, -1.5);
    moveright(1.2 + e);
    movedown(0.25);
    setfontsize(12);
    textcenter();
    printtext(HeadingWords[1] + " " + LogBoring.Name);
    moveright(0.6 + e);
    movedown(0.2);
    setfontsize(8);
    printtext(LogPage.PageCaption);
    moveright(0.6);
    movedown(0.1);
    lineleft(width);
    moveright(0.1);
    movedown(0.12);
    SmallLeft();
    TitleRows(1, 6);
} catch (...) {
    ReportFailure(__func__);
}

// ---- General notes

static void Notes(int first, int last)
{
    for (int i = first; i <= last; ++i) {
        printtext(LogBoring.BottNotes[i]);
        movedown(0.13);
    }
}

// kind 0: five lines in a box of two blocks. kind 1: two columns with no box, for the bottom row, which the frame
// bounds.
void VLOG::drawbottnotes(double e, int kind)
try {
    SmallLeft();
    if (kind == 0) {
        rectby(4.8 + 4 * e, -0.75);
        moveright(0.05);
        movedown(0.12);
        Notes(1, 5);
        return;
    }
    moveright(0.075);
    movedown(0.12);
    Notes(1, 5);
    moveup(0.65);
    moveright(3.6);
    Notes(6, 10);
} catch (...) {
    ReportFailure(__func__);
}
