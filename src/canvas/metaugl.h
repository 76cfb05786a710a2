// metaugl.h -- every primitive of the page: the only way to draw.
//
// A pen plotter in page inches over the kept list of pageobjects.h. Arguments are page inches divided by the scale
// factors (a renderer sets them to draw in feet of depth, say); y of arguments points up the sheet, y of device
// units down. The pen is kept unrounded; only the coordinates of objects are rounded, half to even.
#pragma once

#include "canvas/pagecanvas.h"

// Page and origin.
void canvasstart(const Text& mode); // "P", "L", "T", or "C" for the geometry of the page before
void setorigin(float& x, float& y); // from the sheet's lower left corner. Kept: lowers both by the 0.25 margin
void markorigin();
void setscalex(float f);
void setscaley(float f);

// Pen moves, and lines from the pen that take it along.
void moveright(float d);
void moveleft(float d);
void moveup(float d);
void movedown(float d);
void moveto(float x, float y); // from the origin; an axis whose target is off the sheet stays
void lineright(float d);
void lineleft(float d);
void lineup(float d);
void linedown(float d);
void lineto(float x, float y);
void lineby(float dx, float dy);
void linepolar(float angle, float length); // degrees, counter-clockwise

// Shapes; the pen stays.
void rectby(float dx, float dy);
void circle(float r);
void blackcircle(float r);
void drawarc(float width, float side); // half a wave over the next width: side -1 bulges up, any other down
void triangleup(float r);
void triangledown(float r);
void triangleupsolid(float r);
void triangledownsolid(float r);
// Adds a picture of that size from the pen up and to the right. A missing file is told in a box, and nothing is added;
// one that is no picture is failure 481.
void drawbitmap(const Text& file, float width, float height);
void bringtofront();

// Polygons: building calls move the pen, one closing call adds the object and puts the pen on the rounded first
// vertex. A 31st vertex is failure 9.
void polyright(float d);
void polyleft(float d);
void polyup(float d);
void polydown(float d);
void polyby(float dx, float dy);
void polyto(float x, float y);
void polyfill();
void polyfillwhite();
void polyfillcolored(const Text& color);
void polyfillrgb(const Text& color);
void polyfillflag(float f);

// Filled rectangles rising from the pen; nothing at all when a side is not above 0.01.
void rectfill(float dx, float dy);
void rectfillwhite(float dx, float dy);
void rectfillrgb(float dx, float dy, const Text& color);
void rectfillcolored(float dx, float dy, const Text& color);
void rectfillflag(float dx, float dy, float f);

// Styles and text.
void setlinestyle(int16_t& n); // 1 solid, 2 dash, 3 dash-dot, 4 dash-dot-dot, 5 dot. Kept: n leaves as the pen style
void setlinestyle(int&& n);    // the same for a constant
void setlinewidth(int n);
void setcolor(int n);
void setfontname(const Text& name);
void setfontsize(float points);
void settextangle(double degrees);
void textleft();
void textcenter();
void textright();
void textmiddle();
void textboldon();
void textboldoff();
void printtext(const Text& s); // "\n" in it starts a new line; centred text gets a blank on each side
void printtextraw(const Text& s);
void printnum(float v);
