// pagelisting.cpp -- the object list as lines of JSON.
#include "canvas/pagelisting.h"

#include "canvas/colors.h"
#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "session/files.h"

#include <charconv>
#include <cmath>

// A number in the shortest form that reads back the same; a whole one with ".0" where a fraction is usual.
static std::string Number(double value, bool alwaysPoint)
{
    char buffer[40];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value);
    std::string text(buffer, end.ptr);
    if (alwaysPoint && text.find_first_of(".en") == std::string::npos)
        text += ".0";
    return text;
}

static std::string Quoted(const Text& text)
{
    std::string quoted = "\"";
    for (const char letter : ToUtf8(text)) {
        if (letter == '"' || letter == '\\')
            quoted += '\\';
        if (static_cast<unsigned char>(letter) < 0x20) {
            static constexpr char hex[] = "0123456789abcdef";
            quoted += "\\u00";
            quoted += hex[letter >> 4];
            quoted += hex[letter & 15];
        } else
            quoted += letter;
    }
    return quoted + "\"";
}

static std::string Corners(const PageObject& object)
{
    return ", \"x1\": " + std::to_string(object.X1) + ", \"y1\": " + std::to_string(object.Y1) +
           ", \"x2\": " + std::to_string(object.X2) + ", \"y2\": " + std::to_string(object.Y2);
}

static std::string Points(const PageObject& object)
{
    std::string text = ", \"points\": [";
    for (const PagePoint& point : object.Vertices) {
        if (text.back() == ']')
            text += ",";
        text += "[" + std::to_string(point.X) + "," + std::to_string(point.Y) + "]";
    }
    return text + "]";
}

static std::string Pen(const PageObject& object)
{
    return ", \"pen\": {\"style\": " + std::to_string(object.PenStyle) +
           ", \"width\": " + std::to_string(object.PenWidth) + ", \"color\": " + std::to_string(object.PenColor) + "}";
}

static std::string Rgb(int32_t color)
{
    return std::to_string(color & 255) + " " + std::to_string(color >> 8 & 255) + " " +
           std::to_string(color >> 16 & 255);
}

static std::string Brush(const PageObject& object)
{
    if (object.Brush == BrushStyle::Hollow)
        return ", \"brush\": {\"style\": \"hollow\"}";
    if (object.Brush == BrushStyle::Solid)
        return ", \"brush\": {\"style\": \"solid\", \"color\": \"" + Rgb(object.BrushColor) + "\"}";
    std::string text = ", \"brush\": {\"style\": \"picture\", \"picture\": " + Quoted(BaseName(object.BrushPicture));
    if (!object.Fill.empty())
        text += ", \"fill\": " + Quoted(BaseName(object.Fill));
    if (!object.TintOf.empty())
        text += ", \"of\": " + Quoted(BaseName(object.TintOf)) + ", \"tint\": \"" + Rgb(ParseColor(object.Tint)) + "\"";
    return text + "}";
}

static std::string Words(const PageObject& object)
{
    const double height = std::round(object.FontHeight * 10000) / 10000;
    return ", \"x\": " + std::to_string(object.X1) + ", \"y\": " + std::to_string(object.Y1) +
           ", \"text\": " + Quoted(object.String) + ", \"font\": " + Quoted(object.FontName) +
           ", \"height\": " + Number(height, true) + ", \"angle\": " + Number(object.TextAngle, false) +
           ", \"bold\": " + (object.Bold ? "true" : "false") + ", \"halign\": " + std::to_string(object.HAlign) +
           ", \"valign\": " + std::to_string(object.VAlign);
}

static std::string ObjectLine(const PageObject& object)
{
    switch (object.Kind) {
    case ObjectKind::Line:
        return "{\"kind\": \"line\"" + Corners(object) + Pen(object) + "}\n";
    case ObjectKind::Rectangle:
        return "{\"kind\": \"rectangle\"" + Corners(object) + Pen(object) + Brush(object) + "}\n";
    case ObjectKind::Ellipse:
        return "{\"kind\": \"ellipse\"" + Corners(object) + Pen(object) + Brush(object) + "}\n";
    case ObjectKind::Arc:
        return "{\"kind\": \"arc\"" + Corners(object) + Points(object) + Pen(object) + "}\n";
    case ObjectKind::Polygon:
        return "{\"kind\": \"polygon\"" + Points(object) + Pen(object) + Brush(object) + "}\n";
    case ObjectKind::Text:
        return "{\"kind\": \"text\"" + Words(object) + "}\n";
    case ObjectKind::Picture:
        return "{\"kind\": \"picture\"" + Corners(object) + ", \"file\": " + Quoted(BaseName(object.String)) + "}\n";
    }
    return "";
}

std::string PageListing(int number, const Text& source)
{
    const CanvasRecord& c = PageCanvas;
    std::string listing = "{\"page\": " + std::to_string(number) + ", \"source\": " + Quoted(BaseName(source)) +
                          ", \"mode\": " + Quoted(c.mode) +
                          ", \"unitsPerInch\": " + Number(double(c.unitsPerInch), true) +
                          ", \"widthInches\": " + Number(double(c.pageWidthInches), true) +
                          ", \"heightInches\": " + Number(double(c.pageHeightInches), true) +
                          ", \"width\": " + std::to_string(PageList.ExtentWidth) +
                          ", \"height\": " + std::to_string(PageList.ExtentHeight) + "}\n";
    for (const PageObject& object : PageList.Objects)
        listing += ObjectLine(object);
    return listing;
}
