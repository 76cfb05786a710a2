// pageobjects.h -- the kept list of one page: what metaugl adds and what screen, printer, PDF and DXF draw.
//
// One page in the process. All coordinates are integer device units, y down the sheet. The default style is copied
// into each new object; directly after an object is added it is the current one, whose style alone may be changed.
#pragma once

#include "session/text.h"

#include <array>
#include <utility>
#include <vector>

enum class ObjectKind { Line = 1, Rectangle = 2, Ellipse = 4, Arc = 5, Polygon = 9, Text = 10, Picture = 12 };
enum class BrushStyle { Solid = 0, Hollow = 1, Picture = 2 };

struct PagePoint {
    int32_t X = 0, Y = 0;
    bool operator==(const PagePoint&) const = default;
};

// A colour of the drawing interface: red in the low byte.
constexpr int32_t ColorOf(int red, int green, int blue)
{
    return red | green << 8 | blue << 16;
}
constexpr int32_t White = ColorOf(255, 255, 255);

struct ObjectStyle {
    int16_t PenStyle = 0; // the drawing interface's: 0 solid, 1 dash, 2 dot, 3 dash-dot, 4 dash-dot-dot
    int32_t PenWidth = 4; // device units
    int32_t PenColor = 0;
    BrushStyle Brush = BrushStyle::Solid;
    int32_t BrushColor = White;
    Text BrushPicture; // path of the bitmap, in its screen form but while a page is printed
    Text FontName = "Arial";
    double FontHeight = -83.3; // negative: character height
    double TextAngle = 0;      // degrees, counter-clockwise
    bool Bold = false;
    int16_t HAlign = 0; // 0 left, 1 centre, 2 right
    int16_t VAlign = 1;
};

struct PageObject : ObjectStyle {
    ObjectKind Kind = ObjectKind::Line;
    int32_t X1 = 0, Y1 = 0, X2 = 0, Y2 = 0; // for a text the anchor, twice
    std::vector<PagePoint> Vertices;        // a polygon's, or the two ends of an arc
    Text String;                            // a text's words, a picture's file
    Text Fill;                              // named attribute: path of the print form of the pattern; "" for none
    Text Color;                             // named attribute: nothing in this system sets it, printing heeds it
    Text TintOf, Tint;                      // of a tinted pattern: the untinted screen form and the colour "r g b"
    bool Selected = false;
};

constexpr size_t MaxPageObjects = 500000;
struct PageListRecord {
    std::vector<PageObject> Objects; // in drawing order
    ObjectStyle Default;
    int32_t ExtentWidth = 0, ExtentHeight = 0; // device units; the view starts at 0, 0
};
extern PageListRecord PageList;

void ClearPage(int32_t width, int32_t height); // Removes all objects and sets the extent.
// Adds an object with the default style, which becomes the current object, and returns it. A full page is failure 7:
// absurd tick counts in a damaged file end so, and not in the machine's memory.
PageObject& AddObject(ObjectKind kind, int32_t x1, int32_t y1, int32_t x2, int32_t y2);
PageObject& CurrentObject(); // Returns the object added last; without one it is failure 5.
void SelectedToFront();      // Moves the selected objects to the end of the drawing order and clears the selection.
// Returns the smallest and the largest x and y of the objects: x1, y1, x2, y2; zeros where there are none.
std::array<int32_t, 4> PageBounds();
