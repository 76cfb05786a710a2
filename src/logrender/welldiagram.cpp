// welldiagram.cpp -- the well that was built in the boring: heading, annulus, casings, cover, pipes, water levels, with
// leader lines to their labels. The large form prints texts, the small one depths.
#include "logrender/welldiagram.h"

#include "canvas/colors.h"
#include "canvas/metaugl.h"
#include "canvas/patterns.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"
#include "report/heading.h"
#include "run/batchrun.h"
#include "session/failure.h"

#include <algorithm>

namespace
{
// A layer's depths as they are drawn, and its cells.
struct Layer {
    float Start = 0, End = 0;
    Text Words, LabelCell;
};
} // namespace

static double BelowStart(double depth)
{
    return depth - double(LogPage.PageStartDepth);
}

// The highest well of the four that has a name, at least 1.
static int WellCount()
{
    int count = 1;
    for (int k = 2; k <= 4; ++k)
        if (!VLOG::wellcell(k).empty())
            count = k;
    return count;
}

// "Well 2: MW-7", or the heading word alone before the name where it is no "Well".
static Text WellLine(int k, int count)
{
    Text words = HeadingWords[13];
    if (UpperCase(words).starts_with("WELL") && count > 1)
        words += " " + PlainNumber(k);
    return words + ": " + VLOG::wellcell(k);
}

// Kept: no line is drawn along the baseline, and none on the right of the last column.
static void WellHeading(int count, double width)
{
    markorigin();
    const int next = LogGeometry.ColumnNumber + 1;
    if (next <= MaxRepParts && !LogBoring.RepParts[next].Item.empty()) {
        moveright(width);
        lineup(1.2);
    }
    moveto(0.15, 0.45);
    setfontsize(8);
    textleft();
    const Text& elevation = VLOG::wellcell(VLOG::RefElevation);
    printtext(HeadingWords[5].empty() ? elevation : HeadingWords[5] + ": " + elevation);
    for (int k = count; k >= 1; --k) {
        moveup(0.15);
        printtext(WellLine(k, count));
    }
}

static bool Labelled(const Layer& layer)
{
    return !layer.Words.empty() && !SameText(Trim(layer.LabelCell), "N");
}

// The label cell's number lifts a label by so many tenths of an inch.
static double Lift(const Layer& layer)
{
    return TextNumber(layer.LabelCell) * 0.1 * double(LogGeometry.DepthPerInch);
}

// A leader line from x at the depth, and the depth at its end: the small form's label.
static void DepthLabel(double x, float depth, double leader)
{
    moveto(x, -BelowStart(depth));
    lineright(leader);
    moveright(0.02);
    setfontsize(7);
    printnum(depth);
}

// ---- The annulus

// A black triangle from the pen by two sides, in true inches; the pen is put back exactly.
static void Wedge(double dx1, double dy1, double dx2, double dy2)
{
    const float penX = PageCanvas.penX, penY = PageCanvas.penY;
    polyby(dx1, dy1);
    polyby(dx2, dy2);
    polyfillrgb("0 0 0");
    PageCanvas.penX = penX;
    PageCanvas.penY = penY;
}

// The wings of a packer at its top (side -1) or bottom (side 1), tapering into it: ColumnWidth apart.
static void PackerWings(float depth, int side)
{
    moveto(0, -BelowStart(depth));
    setscaley(1);
    Wedge(-0.12, 0, 0.12, side * 0.12);
    moveright(LogGeometry.ColumnWidth);
    Wedge(0.12, 0, -0.12, side * 0.12);
    setscaley(LogGeometry.DepthPerInch);
}

static void Packer(const Layer& layer)
{
    moveto(0, -BelowStart(layer.Start));
    rectfillrgb(LogGeometry.ColumnWidth, -(double(layer.End) - double(layer.Start)), "0 0 0");
    PackerWings(layer.Start, -1);
    PackerWings(layer.End, 1);
}

// A wedge on each side at the layer's top, pointing at the pipe. Kept: with an offset both stand lower by it, and only
// the right one further out, by twice as much.
static void Centralizer(const Layer& layer, int offset)
{
    moveto(0, -BelowStart(layer.Start));
    setscaley(1);
    movedown(0.1 * offset);
    Wedge(-0.1, 0.1, 0, -0.2);
    moveright(double(LogGeometry.ColumnWidth) + 0.2 * offset);
    Wedge(0.1, 0.1, 0, -0.2);
    setscaley(LogGeometry.DepthPerInch);
}

static void LayerFill(const Layer& layer, int fill, const Text& color)
{
    const double h = double(layer.End) - double(layer.Start);
    setfillfile(fill);
    moveto(0, -BelowStart(layer.Start));
    if (IsBlank(color))
        rectfill(LogGeometry.ColumnWidth, -h);
    else
        rectfillcolored(LogGeometry.ColumnWidth, -h, getcolor(color, false));
}

static void AnnulusLabel(Layer& layer, bool large)
{
    const double w = LogGeometry.ColumnWidth;
    const double offset = VLOG::findcenttype(layer.Words);
    if (!large) {
        moveto(0, -BelowStart(layer.End));
        moveright(w);
        moveup(Lift(layer));
        lineright(0.05);
        moveright(0.02);
        setfontsize(7);
        printnum(layer.End);
        return;
    }
    const double middle = BelowStart((double(layer.Start) + double(layer.End)) / 2);
    moveto(0.1 * offset, -middle);
    moveright(w);
    moveup(Lift(layer));
    lineright(VLOG::findscwidth(middle - Lift(layer), offset) + 0.1);
    moveright(0.02);
    printtext(layer.Words);
}

static void AnnulusLayer(int row, bool large)
{
    const auto& cells = LogBoring.OuterLayers[row];
    Layer layer{static_cast<float>(TextNumber(cells[1])), static_cast<float>(TextNumber(cells[2])), cells[3], cells[4]};
    if (layer.End == 0)
        layer.End = layer.Start;
    if (!(layer.End > LogPage.PageStartDepth && layer.Start < LogPage.PageEndDepth))
        return;
    layer.Start = std::max(layer.Start, LogPage.PageStartDepth);
    layer.End = std::min(layer.End, LogPage.PageEndDepth);
    const int fill = VLOG::selectfill(row);
    if (fill < 500)
        LayerFill(layer, fill, Text(Behind(cells[5], ',')));
    else if (fill == 500)
        Packer(layer);
    else
        Centralizer(layer, fill - 501);
    if (Labelled(layer))
        AnnulusLabel(layer, large);
}

// ---- The pipes

static bool RingMarker(int row)
{
    const auto& cells = LogBoring.InnerLayers[row];
    return Trim(cells[3]) == "@" || LTrim(cells[1]).starts_with("@");
}

// "S,F20": the width letter of a ring row, then its fill; what follows is ignored. Without a letter the width stays.
static void TakeWidth(int row, double& width)
{
    const Text letter = UpperCase(Trim(Before(LogBoring.InnerLayers[row][5], ',')));
    if (!letter.empty())
        width = letter == "L" ? 0.12 : letter == "M" ? 0.09 : 0.06;
}

// Depths as they are drawn: on the first page a pipe above ground takes no more than a quarter inch and is not cut, all
// else is held within the page. shown: the row has something to draw here.
static void RingDepths(Layer& layer, bool last, bool& shown)
{
    const float start = LogPage.PageStartDepth, end = LogPage.PageEndDepth;
    const double quarter = 0.25 * double(LogGeometry.DepthPerInch);
    float& s = layer.Start;
    float& e = layer.End;
    if (start == 0 && -double(s) > quarter) {
        const double ratio = quarter / -double(s);
        s = -quarter;
        if (e < 0)
            e = e * ratio;
    }
    if (e == 0)
        e = s;
    const bool aboveGround = start == 0 && s < 0 && e < 0;
    // Kept: the last row of the list is drawn on every page, as a rectangle of no height where it does not belong.
    shown = (e > start && s < end) || last || aboveGround;
    if (!(start == 0 && s < 0))
        s = std::max(start, std::min(s, end));
    if (!aboveGround)
        e = std::max(start, std::min(e, end));
}

// The words of the heading file tell a screen and a pump; another text takes its fill from its cell.
static bool TextHolds(const Text& words, int slot)
{
    return !HeadingWords[slot].empty() && UpperCase(words).find(HeadingWords[slot]) != Text::npos;
}

static int RingFill(const Layer& layer, int row)
{
    if (TextHolds(layer.Words, 38))
        return 6;
    if (TextHolds(layer.Words, 39))
        return 19;
    if (layer.Words.empty())
        return 0;
    return getpch(Text(Before(Behind(LogBoring.InnerLayers[row][5], ','), ',')));
}

static void RingLabel(const Layer& layer, double r, bool large)
{
    const double w = LogGeometry.ColumnWidth;
    if (!large) {
        DepthLabel(r + 0.18, layer.End, w - 0.13 - r);
        if (TextHolds(layer.Words, 38))
            DepthLabel(r + 0.18, layer.Start, w - 0.13 - r);
        return;
    }
    const double middle = BelowStart((double(layer.Start) + double(layer.End)) / 2);
    moveto(r + 0.18, -middle);
    moveup(Lift(layer));
    lineright(VLOG::findscwidth(middle - Lift(layer)) + w - 0.08 - r);
    moveright(0.02);
    printtext(layer.Words);
}

// One row of a pipe whose middle is 0.15 right of r. Kept: a row that is not on the page does not change the width
// either, so a pipe may stand wider on a page than its rows above the page say.
static void Ring(int row, double r, double& width, bool large)
{
    const auto& cells = LogBoring.InnerLayers[row];
    Layer layer{static_cast<float>(TextNumber(cells[1])), static_cast<float>(TextNumber(cells[2])), cells[3], cells[4]};
    bool shown = false;
    RingDepths(layer, row == LogBoring.InnerLayerCount, shown);
    if (!shown)
        return;
    const double h = double(layer.End) - double(layer.Start);
    const int fill = RingFill(layer, row);
    moveto(r + 0.15, -BelowStart(layer.Start));
    TakeWidth(row, width);
    moveleft(width / 2);
    rectfillflag(width, -h, 0);
    if (fill > 0) {
        setfillfile(fill);
        rectfill(width, -h);
    }
    rectby(width, -h);
    if (Labelled(layer))
        RingLabel(layer, r, large);
}

// A marker row begins the next pipe, further right.
static void Rings(bool large)
{
    float r = 0;
    double width = 0.06;
    if (LogBoring.InnerLayerCount > 0)
        TakeWidth(1, width);
    for (int row = 1; row <= LogBoring.InnerLayerCount; ++row) {
        if (RingMarker(row))
            r = double(r) + 0.18;
        else
            Ring(row, r, width, large);
        incseg(2);
    }
}

static void WaterLevels()
{
    for (const VLOG::WaterMark& mark : VLOG::waterMarks) {
        double depth = 0;
        if (!VLOG::wateronpage(mark, depth))
            continue;
        moveto(0, -depth);
        moveleft(VLOG::findscwidth(depth) + 0.05);
        lineleft(0.16);
        moveright(0.08);
        setscaley(1);
        moveup(0.04);
        mark.Draw(0.04);
        setscaley(LogGeometry.DepthPerInch);
    }
}

// Reads WellScale, 0.6 for the large form and 0 for the small one; sets ColumnWidth, the width of the annulus. Kept:
// the room taken depends on the wells and the casings, not on the report part's width.
void VLOG::drawgw()
try {
    const bool large = LogGeometry.WellScale > 0;
    const int count = WellCount();
    const int casings = casingsfilled();
    LogGeometry.ColumnWidth = 0.3 + (count - 1) * 0.18;
    if (count > 2)
        LogGeometry.WellScale = double(LogGeometry.WellScale) + (count - 2) * 0.18;
    const double c = LogGeometry.WellScale;
    WellHeading(count, c + 1);
    moveto(0.2, -0.1);
    for (int k = 1; k <= 2; ++k)
        if (casingfilled(k))
            moveright(0.1);
    markorigin();
    moveto(0, 0);
    setscaley(LogGeometry.DepthPerInch);
    textleft();
    for (int row = 1; row <= LogBoring.OuterLayerCount; ++row) {
        AnnulusLayer(row, large);
        incseg(2);
    }
    surfacecasings(large);
    wellcover(large);
    Rings(large);
    WaterLevels();
    setscaley(1);
    moveto(0.8 - 0.1 * casings + c + (casingfilled(3) ? 0.1 : 0), 0.1);
    incseg(2);
} catch (...) {
    ReportFailure(__func__);
}
