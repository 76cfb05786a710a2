// waterlevels.cpp -- the marks of water levels, and the narrow column that shows nothing else.
#include "canvas/metaugl.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"
#include "logrender/welldiagram.h"
#include "report/heading.h"
#include "session/failure.h"

void VLOG::diamond(float r)
{
    const float penX = PageCanvas.penX, penY = PageCanvas.penY;
    moveleft(r);
    polyby(r, r);
    polyby(r, -r);
    polyby(-r, -r);
    polyfillrgb("0 0 0");
    PageCanvas.penX = penX;
    PageCanvas.penY = penY;
}

const VLOG::WaterMark VLOG::waterMarks[3] = {
    {WaterDepth1, triangledownsolid}, {WaterDepth2, triangledown}, {OtherDepth, diamond}};

// Water depths are measured from the top of the pipe, so the stick-up is taken off.
bool VLOG::wateronpage(const WaterMark& mark, double& depth)
{
    const Text& cell = wellcell(mark.Cell);
    const float below = TextNumber(cell) - stickup();
    depth = double(below) - double(LogPage.PageStartDepth);
    return !cell.empty() && below > LogPage.PageStartDepth && below < LogPage.PageEndDepth;
}

// 0.2 inch wide.
void VLOG::drawwaterlevels()
try {
    turnedheading(0.1, HeadingWords[28]);
    narrowcolumn(0.2);
    for (const WaterMark& mark : waterMarks) {
        double depth = 0;
        if (!wateronpage(mark, depth))
            continue;
        moveto(0.2, -depth);
        lineleft(0.2);
        moveright(0.1);
        setscaley(1);
        moveup(0.05);
        mark.Draw(0.05);
        setscaley(LogGeometry.DepthPerInch);
    }
    endcolumn(0.2);
} catch (...) {
    ReportFailure(__func__);
}
