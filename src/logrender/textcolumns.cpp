// textcolumns.cpp -- heading and box of the description columns, and text that stands at a depth.
#include "logrender/textcolumns.h"

#include "canvas/metaugl.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"
#include "report/heading.h"

#include <cmath>

void VLOG::descriptionbox(bool continued)
{
    const float h = LogGeometry.ColumnWidth;
    // The heading word, lower in the band when a legend takes the rest of it, and the line right of the band.
    markorigin();
    moveright(h);
    const double up = LegendInUse == 1 ? 0.15 : 0.3;
    moveup(up);
    setfontsize(10);
    textcenter();
    printtext(HeadingWords[12]);
    moveright(h);
    movedown(up);
    lineup(1.2);
    movedown(1.2);
    lineleft(2 * h);
    if (LegendInUse == 1)
        drawdesclegend();
    // The box, from the depth line down. It has no bottom line: the last contact closes it.
    moveto(0, -0.1);
    markorigin();
    setscaley(LogGeometry.DepthPerInch);
    linedown(LogGeometry.BottomSpan);
    moveright(2 * h);
    lineup(LogGeometry.BottomSpan);
    if (continued && LogPage.PageStartDepth > 0 && LogBoring.PageBreakMarker == 1)
        setlinestyle(5);
    lineleft(2 * h);
    setlinestyle(1);
    setfontsize(8);
    textleft();
}

void VLOG::enddescriptions()
{
    setlinestyle(1);
    setscaley(1);
    moveto(2 * LogGeometry.ColumnWidth, 0.1);
}

bool VLOG::contactonpage(double n)
{
    const double contact = std::nearbyint(n);
    return LogGeometry.ContactFirst > 0 && contact >= LogGeometry.ContactFirst && contact <= LogGeometry.ContactLast;
}

void VLOG::movetodepth(float depth)
{
    setscaley(LogGeometry.DepthPerInch);
    moveto(0, -(double(depth) - LogPage.PageStartDepth));
    setscaley(1);
}

bool VLOG::depthplaced(const Text& line)
{
    const float depth = -TextNumber(line);
    if (depth > LogPage.PageEndDepth || depth < LogPage.PageStartDepth)
        return false;
    movetodepth(depth);
    moveright(TextIndent);
    return true;
}
