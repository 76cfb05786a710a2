// narrowcolumn.cpp -- what the narrow columns of a log have in common: heading band, body box, end.
#include "canvas/metaugl.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"

// A heading that reads upward. Pen: from the column's left edge on the baseline, which becomes the origin.
void VLOG::turnedheading(double x, const Text& words)
{
    markorigin();
    setfontsize(8);
    textleft();
    settextangle(90);
    moveto(x, 0.05);
    printtext(words);
    settextangle(0);
}

// The lines of the heading band, after the heading. Leaves the origin on the depth line at the left edge, y scale
// DepthPerInch, 7 point, centred; bodyBox: with the rectangle of the column's body.
void VLOG::narrowcolumn(double width, bool bodyBox)
{
    moveto(width, 0);
    lineup(1.2);
    movedown(1.2);
    lineleft(width);
    moveto(0, -0.1);
    markorigin();
    setscaley(LogGeometry.DepthPerInch);
    setfontsize(7);
    textcenter();
    if (bodyBox)
        rectby(width, -LogGeometry.BottomSpan);
}

void VLOG::endcolumn(double width)
{
    setscaley(1);
    moveto(width, 0.1);
}
