// viewmoves.cpp -- looking at a page by hand.
#include "run/viewmoves.h"

#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "session/failure.h"

#include <algorithm>
#include <cmath>

ViewRecord FullWidth(ViewRecord view, double drawWidth)
{
    view = ZoomScreenWidth(view, drawWidth);
    view.Left = 0;
    return view;
}

ViewRecord WholePage(double drawWidth, double drawHeight)
{
    return ZoomPage(drawWidth, drawHeight, drawWidth, drawHeight);
}

ViewRecord OpeningView(const Text& mode, ViewRecord view, double drawWidth, double drawHeight)
{
    // A portrait page keeps its top offset, so that paging through a log at screen width stays at the same height of
    // the page. An offset that a closer zoom left behind is brought back onto the page.
    if (mode == "P") {
        const double top = view.Top;
        view = FullWidth(view, drawWidth);
        view.Top = std::clamp(top, 0.0, std::max(view.ImageHeight - drawHeight, 0.0));
        return view;
    }
    return WholePage(drawWidth, drawHeight);
}

ViewRecord ZoomAbout(ViewRecord view, double factor, double x, double y)
{
    if (view.ImageWidth <= 0 || view.ImageHeight <= 0 || PageCanvas.pageWidthInches <= 0)
        return view;
    const double scale = view.ImageWidth / PageCanvas.pageWidthInches;
    factor = std::clamp(scale * factor, MinScale, MaxScale) / scale;
    view.Left = (view.Left + x) * factor - x;
    view.Top = (view.Top + y) * factor - y;
    view.ImageWidth *= factor;
    view.ImageHeight *= factor;
    return view;
}

ViewRecord Dragged(ViewRecord view, double dx, double dy)
{
    view.Left -= dx;
    view.Top -= dy;
    return view;
}

// One axis: an image of this length, at -offset in a control of that length.
static double InReach(double offset, double image, double control)
{
    const double part = std::min(control * ReachPart, image);
    return std::clamp(offset, part - control, image - part);
}

ViewRecord KeptInReach(ViewRecord view, double drawWidth, double drawHeight)
{
    view.Left = InReach(view.Left, view.ImageWidth, drawWidth);
    view.Top = InReach(view.Top, view.ImageHeight, drawHeight);
    return view;
}

ViewRecord Resized(ViewRecord view, double oldWidth, double oldHeight, double newWidth, double newHeight)
{
    view.Left += (oldWidth - newWidth) / 2;
    view.Top += (oldHeight - newHeight) / 2;
    return view;
}

ViewRecord ZoomDragged(ViewRecord view, double x1, double y1, double x2, double y2, double drawWidth, double drawHeight)
try {
    view =
        ZoomWindow(std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2), drawWidth, drawHeight, 1, 1);
    // A rectangle of a few dots would take the scale past where a page can still be found again.
    if (view.ImageWidth > MaxScale * double(PageCanvas.pageWidthInches))
        view = ZoomAbout(view, 1, drawWidth / 2, drawHeight / 2);
    return view;
} catch (...) {
    ReportFailure("DrawArea");
    return view;
}

BandCorner ShapedBand(double startX, double startY, double x, double y, double drawWidth, double drawHeight)
{
    const double dx = x - startX, dy = y - startY;
    if (dx == 0 || dy == 0 || drawWidth <= 0 || drawHeight <= 0)
        return {x, y};
    const double part = std::max(std::fabs(dx) / drawWidth, std::fabs(dy) / drawHeight);
    return {startX + std::copysign(part * drawWidth, dx), startY + std::copysign(part * drawHeight, dy)};
}

ControlPlace PlaceControl(int innerWidth, int innerHeight)
{
    const int width = int(std::lround(innerWidth * 0.95)), height = int(std::lround(innerHeight * 0.95));
    return {(innerWidth - width) / 2, (innerHeight - height) / 2, width, height};
}

double PageX(const ViewRecord& view, double x)
{
    return view.ImageWidth > 0 ? (view.Left + x) * PageList.ExtentWidth / view.ImageWidth : 0;
}

double PageY(const ViewRecord& view, double y)
{
    return view.ImageHeight > 0 ? (view.Top + y) * PageList.ExtentHeight / view.ImageHeight : 0;
}
