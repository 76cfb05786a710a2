// wellcasings.cpp -- the surface casings of a well, each a wall of fill around the next smaller one, and its cover.
#include "canvas/metaugl.h"
#include "canvas/patterns.h"
#include "logrender/logdata.h"
#include "logrender/welldiagram.h"
#include "report/heading.h"
#include "run/batchrun.h"

const Text& VLOG::wellcell(int row)
{
    return LogBoring.GenWell[row];
}

bool VLOG::casingfilled(int casing)
{
    return !IsBlank(wellcell(CasingDepth + casing));
}

int VLOG::casingsfilled()
{
    int count = 0;
    for (int k = 1; k <= 3; ++k)
        count += casingfilled(k) ? 1 : 0;
    return count;
}

double VLOG::stickup()
{
    return TextNumber(wellcell(StickUp));
}

// The depth of a casing's shoe below the page's start.
static double ShoeDepth(int casing)
{
    const float shoe = TextNumber(VLOG::wellcell(VLOG::CasingDepth + casing));
    return double(shoe) - double(LogPage.PageStartDepth);
}

// The length that a leader line at a depth below the page's start needs to clear the casings; t is where it begins, in
// steps of 0.1 inch. A casing counts down to the end of the fill below its shoe.
double VLOG::findscwidth(double depth, double t)
{
    static constexpr double clear[] = {0, 0.05, 0.15, 0.25};
    if (!(depth > 0))
        return 0;
    for (int k = 3; k >= 1; --k)
        if (casingfilled(k) && depth < ShoeDepth(k) + 0.05 * double(LogGeometry.DepthPerInch))
            return clear[k] - 0.1 * t;
    return 0;
}

// One side of a casing: fill from the pen outward and down, its outline, the lip that closes the fill below the shoe,
// and the casing's wall at twice the width. side: -1 the left one, 1 the right one. The pen ends at the wall's top.
static void CasingSide(int side, float d, float gap)
{
    rectfill(side * 0.1, -(double(d) + double(gap)));
    lineright(side * 0.1);
    linedown(double(d) + double(gap));
    moveleft(side * 0.1);
    if (gap > 0) {
        polyright(side * 0.01);
        polyup(gap);
        polyleft(side * 0.01);
        polyfillrgb("0 0 0");
    }
    moveup(gap);
    setlinewidth(2);
    lineup(d);
}

// From the top of a casing's left wall to the top of its right wall: over the pipe, when it sticks up.
static void CasingTop(int k)
{
    const double across = double(LogGeometry.ColumnWidth) + (k - 1) * 0.2;
    const double rise = 0.3 * double(LogGeometry.DepthPerInch);
    if (VLOG::stickup() > 0 && LogPage.PageStartDepth == 0) {
        lineup(rise);
        lineright(across);
        linedown(rise);
    } else
        moveright(across);
}

// The words at the casings, from the top of the right wall of casing 1: a circle on each casing's wall, then a leader.
static void CasingLabel()
{
    const double offset = TextNumber(Behind(VLOG::wellcell(VLOG::CasingFill), ','));
    moveup((offset * 0.1 - 0.1) * double(LogGeometry.DepthPerInch));
    circle(0.02);
    for (int k = 2; k <= 3; ++k)
        if (VLOG::casingfilled(k) && ShoeDepth(k) > 0) {
            lineright(0.1);
            circle(0.02);
        }
    lineright(0.15);
    moveright(0.02);
    printtext(HeadingWords[29]);
    setscaley(1);
    movedown(PageCanvas.lineSpacing / double(PageCanvas.unitsPerInch));
    printtext(HeadingWords[30]);
    setscaley(LogGeometry.DepthPerInch);
}

// A casing below the page's end is drawn to it, without a lip. y scale DepthPerInch before and after.
void VLOG::surfacecasings(bool large)
{
    const double span = double(LogPage.PageEndDepth) - double(LogPage.PageStartDepth);
    const Text fill(Before(wellcell(CasingFill), ','));
    for (int k = 1; k <= 3; ++k) {
        if (!casingfilled(k) || !(ShoeDepth(k) > 0))
            continue;
        float d = ShoeDepth(k), gap = 0.05 * double(LogGeometry.DepthPerInch);
        if (ShoeDepth(k) > span) {
            d = span;
            gap = 0;
        }
        moveto(-(k - 1) * 0.1, 0);
        setfillfile(IsBlank(fill) ? 2 : getpch(fill));
        CasingSide(-1, d, gap);
        CasingTop(k);
        setlinewidth(1);
        CasingSide(1, d, gap);
        setlinewidth(1);
        if (k == 1 && large)
            CasingLabel();
        incseg(2);
    }
}

// The cover stands over the casings, on the first page only. y scale DepthPerInch before and after.
void VLOG::wellcover(bool large)
{
    if (UpperCase(wellcell(WellCover)) != "Y" || LogPage.PageStartDepth != 0)
        return;
    const double casings = 0.1 * casingsfilled();
    setscaley(1);
    moveto(0, stickup() > 0 ? 0.3 : 0);
    moveleft(casings + 0.05);
    lineup(0.05);
    lineright(2 * casings + double(LogGeometry.ColumnWidth) + 0.1);
    linedown(0.05);
    if (large) {
        lineright(0.15);
        lineby(0.07, 0.07);
        moveright(0.02);
        printtext(HeadingWords[27]);
    }
    setscaley(LogGeometry.DepthPerInch);
}
