// remarks.cpp -- the remarks column, and the column of well construction information.
#include "canvas/metaugl.h"
#include "logrender/logdata.h"
#include "logrender/textcolumns.h"
#include "logrender/vlog.h"
#include "report/heading.h"

// Remarks stand at the depths of their "-" lines; what comes before the first of them never prints.
void VLOG::drawremarks(float width)
try {
    // The heading.
    markorigin();
    moveright(width / 2);
    moveup(0.3);
    setfontsize(10);
    textcenter();
    printtext(HeadingWords[17]);
    moveright(width / 2);
    movedown(0.3);
    lineup(1.2);
    movedown(1.2);
    lineleft(width);
    // The box, down to the boring's end or the page's.
    moveto(0, -0.1);
    markorigin();
    setscaley(LogGeometry.DepthPerInch);
    rectby(width, -LogGeometry.BottomSpan);
    setfontsize(7);
    textleft();
    bool print = false;
    for (int i = 1; i <= LogBoring.RemarkCount; ++i) {
        const Text& line = LogBoring.Remarks[i];
        if (line.starts_with('-')) {
            print = depthplaced(line);
        } else if (print) {
            printtext(line);
            movedown(LinePitch);
        }
    }
    setscaley(1);
    moveto(width, 0.1);
} catch (...) {
    ReportFailure(__func__);
}

// One line of the well construction list: a heading, or a label and its value in two columns.
static void wellrow(const Text& label, const Text& value, double offset)
{
    if (UpperCase(value) == "HEADING") {
        movedown(0.05);
        printtext(label);
        movedown(0.15);
        return;
    }
    printtext(label);
    moveright(offset);
    printtext(": " + value);
    movedown(0.1);
    moveleft(offset);
}

void VLOG::wellrows(double offset)
{
    for (int i = 1; i <= LogBoring.WellInfoCount; ++i)
        wellrow(LogBoring.WellInfo[i][1], LogBoring.WellInfo[i][2], offset);
}

// The well construction column: its list, a line, the notes. Its box is as tall as the page and not as the boring.
void VLOG::drawwcon(float width)
try {
    // The heading in two lines.
    markorigin();
    moveright(width / 2);
    moveup(0.35);
    setfontsize(10);
    textcenter();
    printtext(HeadingWords[14]);
    movedown(0.15);
    printtext(HeadingWords[15]);
    moveto(width, 0);
    lineup(1.2);
    movedown(1.2);
    lineleft(width);
    // The box.
    moveto(0, -0.1);
    rectby(width, LogGeometry.FrameKind == 'L' ? -4.2 : LogGeometry.HasBottomRow == 1 ? -5.95 : -6.7);
    // The list.
    markorigin();
    moveto(0.05, -0.05);
    setfontsize(7);
    textleft();
    wellrows(0.45 * width);
    // The notes under a line of their own.
    movedown(0.2);
    moveleft(0.05);
    lineright(width);
    moveleft(width);
    moveright(0.05);
    movedown(0.1);
    setfontsize(7);
    printtext(HeadingWords[16]);
    movedown(0.15);
    for (int i = 1; i <= LogBoring.WellNoteCount; ++i) {
        printtext(LogBoring.WellNotes[i]);
        movedown(LinePitch);
    }
    moveto(width, 0.1);
} catch (...) {
    ReportFailure(__func__);
}
