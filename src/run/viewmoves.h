// viewmoves.h -- looking at a page by hand: wheel zoom, dragging, and the view after a change of the window's size.
//
// The menu's zooms are in screenview.h; these sums are what a mouse adds to them. All in screen units, of the
// control that shows the page; Left and Top are how far the image's corner lies left of and above the control's.
#pragma once

#include "run/screenview.h"

// Returns the view that a page opens with: "P" at screen width, any other mode fitted whole. What a fit fills is the
// control itself, not the window around it: all of the page's width is seen, or all of the page.
ViewRecord OpeningView(const Text& mode, ViewRecord view, double drawWidth, double drawHeight);
// Returns the view of Zoom Screen Width, with the page's left edge at the control's.
ViewRecord FullWidth(ViewRecord view, double drawWidth);
// Returns the view of Zoom Page in that control.
ViewRecord WholePage(double drawWidth, double drawHeight);

// Returns the view scaled by factor about the point x, y of the control, which keeps showing the same place of the
// page. The scale stays between MinScale and MaxScale screen units to a page inch.
constexpr double MinScale = 8, MaxScale = 4800;
ViewRecord ZoomAbout(ViewRecord view, double factor, double x, double y);

// Returns the view moved with the hand: dx right, dy down.
ViewRecord Dragged(ViewRecord view, double dx, double dy);

// Returns the view kept in reach: at least this part of the control, or the whole image where it is smaller, shows the
// page.
constexpr double ReachPart = 0.25;
ViewRecord KeptInReach(ViewRecord view, double drawWidth, double drawHeight);

// Returns the view for a control of another size: the same place of the page in the middle, at the same scale.
ViewRecord Resized(ViewRecord view, double oldWidth, double oldHeight, double newWidth, double newHeight);

// Returns the view of Zoom Window: the part of the page between two corners, in page units and in any order, fills the
// control, up to MaxScale. A drag without width or height is told, and the view stays.
ViewRecord ZoomDragged(ViewRecord view, double x1, double y1, double x2, double y2, double drawWidth,
                       double drawHeight);
// Returns the corner of the rubber band that goes with the pointer. The band keeps the shape of the control, since the
// zoom takes each axis by itself and would draw the page out of shape. Right above or beside the band's start the
// corner is the pointer itself.
struct BandCorner {
    double X = 0, Y = 0;
};
BandCorner ShapedBand(double startX, double startY, double x, double y, double drawWidth, double drawHeight);

// Returns the place of the control in the window: 95 percent of the window's inner size, centred, in whole screen
// units.
struct ControlPlace {
    int X = 0, Y = 0, Width = 0, Height = 0;
};
ControlPlace PlaceControl(int innerWidth, int innerHeight);

// Return the place of a point of the control, in page units.
double PageX(const ViewRecord& view, double x);
double PageY(const ViewRecord& view, double y);
