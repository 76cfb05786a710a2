// metaugl.cpp -- the primitives of the page. Each single operation on the pen rounds to 32 bits, left to right, so
// that a page comes out the same wherever it is drawn.
#include "canvas/metaugl.h"

#include "canvas/colors.h"
#include "canvas/pageobjects.h"
#include "canvas/patterns.h"
#include "session/deviceconfig.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/platform.h"

#include <algorithm>
#include <cmath>

static int32_t Nearest(float units)
{
    return RoundInt32(units);
}

// A distance in the units of the renderer as device units.
static float AlongX(float d)
{
    const float units = PageCanvas.unitsPerInch * d;
    return static_cast<float>(Over(units, PageCanvas.scaleX));
}

static float AlongY(float d)
{
    const float units = PageCanvas.unitsPerInch * d;
    return static_cast<float>(Over(units, PageCanvas.scaleY));
}

// ---- Page and origin

void canvasstart(const Text& mode)
{
    PageCanvas.mode = mode;
    if (mode != "C") {
        PageCanvas.paper = mode.empty() ? 'T' : mode[0];
        const Sheet sheet = Platform.PrinterSheet(PageCanvas.paper);
        PageCanvas.pageWidthUnits = sheet.WidthUnits;
        PageCanvas.pageHeightUnits = sheet.HeightUnits;
        PageCanvas.pageWidthInches = sheet.WidthInches;
        PageCanvas.pageHeightInches = sheet.HeightInches;
        PageCanvas.unitsPerInch = static_cast<float>(Over(sheet.WidthUnits, sheet.WidthInches));
    }
    ClearPage(Nearest(PageCanvas.pageWidthUnits), Nearest(PageCanvas.pageHeightUnits));
    PageCanvas.textAlign = 0;
    PageCanvas.textVAlign = 1;
    // Kept: the line spacing starts with the sign of a font height; any setfontsize replaces it.
    PageCanvas.lineSpacing = -83.3;
    PageCanvas.fontName = "Arial";
    PageCanvas.textAngle = 0;
    // All of it, or what a failed column leaves would dash the pages behind it.
    PageList.Default = ObjectStyle();
    Text& fills = PageCanvas.fillsDir;
    fills = DeviceConfig.SystemFiles[FillFolder];
    if (!EndsInSeparator(fills))
        fills += "/";
    PageCanvas.fillFile = fills + "F01.BMP";
    PageCanvas.tintCount = 0;
    ForgetPatternFiles();
}

void setorigin(float& x, float& y)
{
    x -= 0.25f;
    y -= 0.25f;
    if (PageCanvas.scaleX == 0)
        PageCanvas.scaleX = 1;
    if (PageCanvas.scaleY == 0)
        PageCanvas.scaleY = 1;
    PageCanvas.originX = PageCanvas.unitsPerInch * x;
    const float fromTop = PageCanvas.pageHeightInches - y;
    PageCanvas.originY = fromTop * PageCanvas.unitsPerInch;
    PageCanvas.penX = PageCanvas.originX;
    PageCanvas.penY = PageCanvas.originY;
}

void markorigin()
{
    PageCanvas.originX = PageCanvas.penX;
    PageCanvas.originY = PageCanvas.penY;
}

void setscalex(float f)
{
    PageCanvas.scaleX = f;
}

void setscaley(float f)
{
    PageCanvas.scaleY = f;
}

// ---- Pen moves and lines

void moveright(float d)
{
    PageCanvas.penX = PageCanvas.penX + AlongX(d);
}

void moveleft(float d)
{
    PageCanvas.penX = PageCanvas.penX - AlongX(d);
}

void moveup(float d)
{
    PageCanvas.penY = PageCanvas.penY - AlongY(d);
}

void movedown(float d)
{
    PageCanvas.penY = PageCanvas.penY + AlongY(d);
}

void moveto(float x, float y)
{
    const float toX = PageCanvas.originX + AlongX(x);
    const float toY = PageCanvas.originY - AlongY(y);
    // Kept: a target off the sheet leaves that axis alone.
    if (toX >= 0 && toX <= PageCanvas.pageWidthUnits)
        PageCanvas.penX = toX;
    if (toY >= 0 && toY <= PageCanvas.pageHeightUnits)
        PageCanvas.penY = toY;
}

static void LineTo(float x, float y)
{
    AddObject(ObjectKind::Line, Nearest(PageCanvas.penX), Nearest(PageCanvas.penY), Nearest(x), Nearest(y));
    PageCanvas.penX = x;
    PageCanvas.penY = y;
}

void lineright(float d)
{
    LineTo(PageCanvas.penX + AlongX(d), PageCanvas.penY);
}

void lineleft(float d)
{
    LineTo(PageCanvas.penX - AlongX(d), PageCanvas.penY);
}

void lineup(float d)
{
    LineTo(PageCanvas.penX, PageCanvas.penY - AlongY(d));
}

void linedown(float d)
{
    LineTo(PageCanvas.penX, PageCanvas.penY + AlongY(d));
}

void lineto(float x, float y)
{
    const float toX = PageCanvas.originX + AlongX(x);
    LineTo(toX, PageCanvas.originY - AlongY(y));
}

void lineby(float dx, float dy)
{
    const float toX = PageCanvas.penX + AlongX(dx);
    LineTo(toX, PageCanvas.penY - AlongY(dy));
}

void linepolar(float angle, float length)
{
    const float radians = static_cast<float>(angle * 3.1415926536 / 180);
    lineby(static_cast<float>(length * std::cos(double(radians))),
           static_cast<float>(length * std::sin(double(radians))));
}

// ---- Shapes

void rectby(float dx, float dy)
{
    const float toX = PageCanvas.penX + AlongX(dx);
    const float toY = PageCanvas.penY - AlongY(dy);
    AddObject(ObjectKind::Rectangle, Nearest(PageCanvas.penX), Nearest(PageCanvas.penY), Nearest(toX), Nearest(toY))
        .Brush = BrushStyle::Hollow;
}

static PageObject& Round(float r)
{
    const float units = PageCanvas.unitsPerInch * r;
    return AddObject(ObjectKind::Ellipse, Nearest(PageCanvas.penX - units), Nearest(PageCanvas.penY - units),
                     Nearest(PageCanvas.penX + units), Nearest(PageCanvas.penY + units));
}

void circle(float r)
{
    Round(r).Brush = BrushStyle::Hollow;
}

void blackcircle(float r)
{
    PageObject& object = Round(r);
    object.Brush = BrushStyle::Solid;
    object.BrushColor = 0;
}

void drawarc(float width, float side)
{
    const float w = AlongX(width);
    const float h = static_cast<float>(0.6 * w);
    const float middle = PageCanvas.penX + w / 2;
    const float end = PageCanvas.penX + w;
    const PagePoint left{Nearest(PageCanvas.penX), Nearest(PageCanvas.penY)};
    const PagePoint right{Nearest(end), left.Y};
    if (side == -1) {
        const float top = PageCanvas.penY - h / 2;
        AddObject(ObjectKind::Arc, Nearest(middle), Nearest(top), right.X, right.Y).Vertices = {left, right};
    } else {
        const float bottom = PageCanvas.penY + h / 2;
        AddObject(ObjectKind::Arc, Nearest(middle), Nearest(bottom), left.X, left.Y).Vertices = {right, left};
    }
}

// The corners of a triangle of circumradius r about the pen: from the pen to the left end of its flat edge, along
// it, and to the point; side 1 points up, -1 down. true inches whatever the scale; the pen is put back exactly.
static void Triangle(float r, int side, bool solid)
{
    const float scaleX = PageCanvas.scaleX, scaleY = PageCanvas.scaleY;
    const float penX = PageCanvas.penX, penY = PageCanvas.penY;
    setscalex(1);
    setscaley(1);
    const float a = static_cast<float>(0.866 * r);
    const float b = static_cast<float>(0.5 * r);
    const float wide = 2 * a;
    const float rise = r + b;
    moveleft(a);
    if (side > 0)
        movedown(b);
    else
        moveup(b);
    if (solid) {
        polyby(wide, 0);
        polyby(-a, static_cast<float>(side) * rise);
        polyfillrgb("0 0 0");
    } else {
        lineby(wide, 0);
        lineby(-a, static_cast<float>(side) * rise);
        lineby(-a, static_cast<float>(-side) * rise);
    }
    setscalex(scaleX);
    setscaley(scaleY);
    PageCanvas.penX = penX;
    PageCanvas.penY = penY;
}

void triangleup(float r)
{
    Triangle(r, 1, false);
}

void triangledown(float r)
{
    Triangle(r, -1, false);
}

void triangleupsolid(float r)
{
    Triangle(r, 1, true);
}

void triangledownsolid(float r)
{
    Triangle(r, -1, true);
}

void drawbitmap(const Text& file, float width, float height)
{
    if (!FileExists(file)) {
        MsgBox("File Not Found: " + file, OkOnly, Exclamation);
        return;
    }
    if (!Platform.PictureLoads(file))
        throw RunTimeError{InvalidPicture};
    const float toX = PageCanvas.penX + PageCanvas.unitsPerInch * width;
    const float toY = PageCanvas.penY - PageCanvas.unitsPerInch * height;
    AddObject(ObjectKind::Picture, Nearest(PageCanvas.penX), Nearest(PageCanvas.penY), Nearest(toX), Nearest(toY))
        .String = file;
}

void bringtofront()
{
    CurrentObject().Selected = true;
    SelectedToFront();
}

// ---- Polygons

// Appends the pen, rounded; the first call of a polygon has stored where it began.
static void PolyTo(float x, float y)
{
    CanvasRecord& c = PageCanvas;
    if (c.polyCount == 0) {
        c.polyPoints[0] = Nearest(c.penX);
        c.polyPoints[1] = Nearest(c.penY);
        c.polyCount = 2;
    }
    c.penX = x;
    c.penY = y;
    // 30 vertices: the 31st has no slot, although slot 60 exists for its x.
    if (c.polyCount >= MaxPolyPoints)
        throw RunTimeError{SubscriptOutOfRange};
    c.polyPoints[c.polyCount] = Nearest(c.penX);
    c.polyPoints[c.polyCount + 1] = Nearest(c.penY);
    c.polyCount += 2;
}

void polyright(float d)
{
    PolyTo(PageCanvas.penX + AlongX(d), PageCanvas.penY);
}

void polyleft(float d)
{
    PolyTo(PageCanvas.penX - AlongX(d), PageCanvas.penY);
}

void polyup(float d)
{
    PolyTo(PageCanvas.penX, PageCanvas.penY - AlongY(d));
}

void polydown(float d)
{
    PolyTo(PageCanvas.penX, PageCanvas.penY + AlongY(d));
}

void polyby(float dx, float dy)
{
    const float toX = PageCanvas.penX + AlongX(dx);
    PolyTo(toX, PageCanvas.penY - AlongY(dy));
}

void polyto(float x, float y)
{
    const float toX = PageCanvas.originX + AlongX(x);
    PolyTo(toX, PageCanvas.originY - AlongY(y));
}

static PageObject& AddPolygon()
{
    const CanvasRecord& c = PageCanvas;
    PageObject& object =
        AddObject(ObjectKind::Polygon, c.polyPoints[0], c.polyPoints[1], c.polyPoints[0], c.polyPoints[1]);
    object.Vertices.reserve(static_cast<size_t>(c.polyCount / 2));
    for (int i = 0; i < c.polyCount; i += 2)
        object.Vertices.push_back({c.polyPoints[i], c.polyPoints[i + 1]});
    return object;
}

static PageObject& AddSolid(int32_t color)
{
    PageObject& object = AddPolygon();
    object.Brush = BrushStyle::Solid;
    object.BrushColor = color;
    return object;
}

static PageObject& AddPattern()
{
    if (!PatternThere(PageCanvas.fillFile))
        PageCanvas.fillFile = PageCanvas.fillsDir + "f0_sc.bmp";
    PageObject& object = AddPolygon();
    object.Brush = BrushStyle::Picture;
    object.BrushPicture = PageCanvas.fillFile;
    object.Fill = PrintForm(PageCanvas.fillFile);
    return object;
}

static void ClosePolygon()
{
    PageCanvas.penX = static_cast<float>(PageCanvas.polyPoints[0]);
    PageCanvas.penY = static_cast<float>(PageCanvas.polyPoints[1]);
    PageCanvas.polyCount = 0;
}

void polyfill()
{
    AddPattern();
    ClosePolygon();
}

void polyfillwhite()
{
    AddSolid(White);
    AddPattern();
    ClosePolygon();
}

void polyfillcolored(const Text& color)
{
    ++PageCanvas.tintCount;
    PageObject& object = AddPattern();
    createcoloredFP(color, PageCanvas.tintCount);
    object.TintOf = object.BrushPicture;
    object.Tint = color;
    const Text name = PageCanvas.fillsDir + "T" + PlainNumber(int(PageCanvas.tintCount));
    object.BrushPicture = name + "_sc.bmp";
    object.Fill = name + ".bmp";
    ClosePolygon();
}

void polyfillrgb(const Text& color)
{
    AddSolid(ParseColor(color));
    ClosePolygon();
}

void polyfillflag(float f)
{
    const int32_t color = f == 1 ? 0 : White;
    AddSolid(color).PenColor = 0;
    PageObject& object = AddPolygon();
    object.Brush = BrushStyle::Picture;
    object.BrushPicture = PageCanvas.fillsDir + "F0.bmp";
    object.PenColor = color;
    ClosePolygon();
}

// The three sides of a rectangle from the pen; false, and nothing done, for one too small to see.
static bool Rectangle(float dx, float dy)
{
    if (!(std::fabs(dx) > 0.01f && std::fabs(dy) > 0.01f))
        return false;
    polyright(dx);
    polyup(dy);
    polyleft(dx);
    return true;
}

void rectfill(float dx, float dy)
{
    if (Rectangle(dx, dy))
        polyfill();
}

void rectfillwhite(float dx, float dy)
{
    if (Rectangle(dx, dy))
        polyfillwhite();
}

void rectfillrgb(float dx, float dy, const Text& color)
{
    if (Rectangle(dx, dy))
        polyfillrgb(color);
}

void rectfillcolored(float dx, float dy, const Text& color)
{
    if (Rectangle(dx, dy))
        polyfillcolored(color);
}

void rectfillflag(float dx, float dy, float f)
{
    if (Rectangle(dx, dy))
        polyfillflag(f);
}

// ---- Styles and text

void setlinestyle(int16_t& n)
{
    static constexpr int16_t penStyles[] = {0, 1, 3, 4, 2};
    if (n < 1 || n > 5)
        n = 1;
    n = penStyles[n - 1];
    PageList.Default.PenStyle = n;
}

void setlinestyle(int&& n)
{
    int16_t style = static_cast<int16_t>(n);
    setlinestyle(style);
}

void setlinewidth(int n)
{
    PageList.Default.PenWidth = 4 * std::clamp(n, 0, 5);
}

void setcolor(int n)
{
    PageList.Default.PenColor = std::clamp(n, 0, 15);
}

void setfontname(const Text& name)
{
    PageCanvas.fontName = name;
    PageList.Default.FontName = name;
}

void setfontsize(float points)
{
    PageCanvas.lineSpacing = double(points) / 72 * double(PageCanvas.unitsPerInch);
    PageList.Default.FontHeight = -PageCanvas.lineSpacing;
}

void settextangle(double degrees)
{
    PageCanvas.textAngle = degrees;
}

static void AlignText(int16_t align)
{
    PageCanvas.textAlign = align;
    PageList.Default.HAlign = align;
}

void textleft()
{
    AlignText(0);
}

void textcenter()
{
    AlignText(1);
}

void textright()
{
    AlignText(2);
}

void textmiddle()
{
    PageList.Default.VAlign = 1;
}

void textboldon()
{
    PageList.Default.Bold = true;
}

void textboldoff()
{
    PageList.Default.Bold = false;
}

// One line of text, the n-th of its block. The nudge sits it on the line that the pen marks; it is rounded by itself,
// so that it does not depend on where the pen stands.
static void TextLine(const Text& line, int n)
{
    const CanvasRecord& c = PageCanvas;
    const double step = n * c.lineSpacing;
    int32_t x = RoundInt32(c.textAngle == 0 ? double(c.penX) : c.penX + step);
    int32_t y = RoundInt32(c.textAngle == 0 ? c.penY + step : double(c.penY));
    const int32_t nudge = RoundInt32(0.11 * c.lineSpacing);
    if (c.textAngle == 0)
        y += nudge;
    else if (c.textAngle == 90)
        x += nudge;
    PageObject& object = AddObject(ObjectKind::Text, x, y, x, y);
    object.TextAngle = c.textAngle;
    object.String = line;
}

void printtext(const Text& s)
{
    std::string_view rest = s;
    for (int n = 0;; ++n) {
        size_t mark = rest.find('\\');
        while (mark != std::string_view::npos &&
               !(mark + 1 < rest.size() && (rest[mark + 1] == 'N' || rest[mark + 1] == 'n')))
            mark = rest.find('\\', mark + 1);
        Text line(rest.substr(0, mark));
        if (PageCanvas.textAlign == 1)
            line = " " + line + " ";
        TextLine(line, n);
        if (mark == std::string_view::npos)
            return;
        rest.remove_prefix(mark + 2);
    }
}

void printtextraw(const Text& s)
{
    TextLine(s, 0);
}

void printnum(float v)
{
    const double whole = std::trunc(double(v));
    printtextraw(std::fabs(double(v) - whole) < 0.0001 ? PlainNumber(whole) : Picture(v, 2));
}
