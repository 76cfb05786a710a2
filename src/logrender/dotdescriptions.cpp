// dotdescriptions.cpp -- the description column of text with dot commands: every line across and every tick is asked
// for by a command among the text.
//
//      .L 5.7        a line across the column at depth 5.7
//      .L 5.7 U 6.1  the same, slanted down to 6.1 between the edges
//      .D 4.2        (.S likewise) a tick from depth 4.2 to the text that follows, which is indented
//      .T 2          lines to come are dashed; 0 or 1: solid
//      .NF           nothing
#include "canvas/metaugl.h"
#include "logrender/logdata.h"
#include "logrender/textcolumns.h"
#include "logrender/vlog.h"
#include "session/platform.h"

#include <algorithm>
#include <cmath>

namespace
{
// Where the text stands while the lines are gone through. Lengths in inches of depth are times DepthPerInch.
struct DotText {
    float At = 0;           // depth of the next text line
    bool AfterText = false; // the line before was text
    bool Indented = false;  // the next text belongs to a tick
};

// Depth D and, behind a "U", depth E of a command.
struct DotDepths {
    float D = 0, E = 0;
    bool HasE = false;
    bool OnPage = false;
};

double InchesOfDepth(double inches)
{
    return inches * LogGeometry.DepthPerInch;
}

DotDepths ReadDepths(const Text& rest)
{
    DotDepths depths;
    depths.D = TextNumber(rest);
    depths.HasE = Holds(rest, 'U');
    if (depths.HasE)
        depths.E = TextNumber(Behind(rest, 'U'));
    depths.OnPage = depths.D >= LogPage.PageStartDepth && depths.D <= LogPage.PageEndDepth;
    return depths;
}

void ToDepth(float depth)
{
    moveto(0, -(double(depth) - LogPage.PageStartDepth));
}

// A line across whose middle part stands at another depth than its ends.
void SlantedLine(float ends, float middle)
{
    lineby(0.05, double(ends) - middle);
    lineright(2 * LogGeometry.ColumnWidth - 0.1);
    lineby(0.05, double(middle) - ends);
}

void LineAcross(DotDepths depths, DotText& text)
{
    const double step = InchesOfDepth(0.08);
    if (!depths.OnPage) {
        text.At = depths.D + step;
        return;
    }
    ToDepth(depths.D);
    if (depths.D < text.At) {
        // The text has gone past this depth.
        SlantedLine(depths.D, text.At);
        text.At = text.At + step;
    } else if (depths.HasE) {
        depths.E = std::max(depths.E, text.At);
        SlantedLine(depths.D, depths.E);
        text.At = depths.E + step;
    } else {
        lineright(2 * LogGeometry.ColumnWidth);
        text.At = depths.D + step;
    }
}

void Tick(DotDepths depths, DotText& text)
{
    const double gap = InchesOfDepth(0.06);
    const bool past = depths.D < text.At;
    if (depths.OnPage && past && depths.D < LogPage.PageEndDepth) {
        ToDepth(depths.D);
        lineby(0.06, -(text.At + gap - depths.D));
        lineright(0.03);
        text.At = text.At + gap;
        text.Indented = true;
    } else if (depths.OnPage && !past && depths.HasE) {
        ToDepth(depths.D);
        if (depths.E < text.At + gap)
            depths.E = text.At + gap;
        lineby(0.06, double(depths.D) - depths.E);
        lineright(0.03);
        text.At = depths.E;
        text.Indented = true;
    } else {
        text.At = depths.D;
    }
}

void Command(const Text& line, DotText& text)
{
    const Text command = UpperCase(line);
    const char letter = command.size() > 1 ? command[1] : ' ';
    Text rest = command.size() > 2 ? command.substr(2) : "";
    if (rest.starts_with('='))
        rest.erase(0, 1);
    if (letter == 'L') {
        LineAcross(ReadDepths(rest), text);
    } else if (letter == 'T') {
        const double style = std::nearbyint(TextNumber(rest));
        setlinestyle(style == 0 || style == 1 ? 1 : 2);
    } else if (letter == 'D' || letter == 'S') {
        Tick(ReadDepths(rest), text);
    } else if (!command.starts_with(".NF")) {
        MsgBox("Unrecognized Command: " + line, OkOnly, Exclamation);
    }
    text.AfterText = false;
}

// Kept: a line of a running text prints also below the page's end, and text at depth 0 on the first page does not
// print unless a command has moved it on.
void TextLine(const Text& line, DotText& text)
{
    const bool onPage = text.At > LogPage.PageStartDepth && text.At <= LogPage.PageEndDepth;
    if (!onPage && !text.AfterText)
        return;
    if (text.AfterText)
        text.At = text.At + InchesOfDepth(0.02);
    moveto(VLOG::TextIndent, -(double(text.At) - LogPage.PageStartDepth));
    if (text.Indented)
        moveright(0.05);
    text.Indented = false;
    printtext(line);
    text.At = text.At + InchesOfDepth(0.08);
    text.AfterText = true;
}
} // namespace

// The description column of dot commands; ColumnWidth is half its width. Draws no contact by itself. Its lines are
// 0.10 apart; a line that begins with two dots is text.
void VLOG::drawdesdot()
try {
    descriptionbox(false);
    DotText text;
    for (int i = 1; i <= LogBoring.DesCount; ++i) {
        const Text& line = LogBoring.Des[i];
        if (line.starts_with('.') && !line.starts_with(".."))
            Command(line, text);
        else
            TextLine(line, text);
    }
    enddescriptions();
} catch (...) {
    ReportFailure(__func__);
}
