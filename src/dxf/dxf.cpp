// dxf.cpp -- each object of the page as entities of a drawing.
//
//     line        LINE                    rectangle   LWPOLYLINE, closed
//     ellipse     CIRCLE or ELLIPSE       polygon     its fill, and LWPOLYLINE, closed
//     arc         ARC                     text        TEXT
//     picture     IMAGE
// A fill comes before its outline: HATCH in one colour, HATCH of lines, or for a tinted pattern one of each. A pattern
// without ink has no hatch. Behind each HATCH of lines stands an INSERT of a block that holds its strokes as LINEs
// and LWPOLYLINEs: some
// drawing programs know patterns only by names of their own and show nothing of a hatch that brings its lines along.
// The two lie on each other, on layers of their own. An ellipse or arc without a height or width is a LINE, since no
// round entity may be flat.
#include "dxf/dxf.h"

#include "canvas/colors.h"
#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "canvas/patterns.h"
#include "dxf/dxfdrawing.h"
#include "dxf/hatchlines.h"
#include "dxf/hatchstrokes.h"
#include "session/failure.h"
#include "session/files.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace
{
constexpr double CapitalHeight = 0.716; // of the font height: Arial's capitals
constexpr double BaselineDrop = 0.248;  // of the font height: from the point of a text to its baseline
// Of one page. It is some hundred full sheets of the densest pattern; a damaged file may ask for more, and has the
// hatches alone then.
constexpr size_t MostStrokes = 500000;

using Place = HatchPoint;

// A pen width as the nearest line weight that a drawing knows, in 1/100 mm.
int LineWeight(double units, double unitsPerInch)
{
    static constexpr int weights[] = {5,  9,  13, 15, 18,  20,  25,  30,  35,  40,  50, 53,
                                      60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211};
    const double wanted = std::max(units, 1.0) / unitsPerInch * 2540;
    return *std::min_element(std::begin(weights), std::end(weights),
                             [&](int a, int b) { return std::fabs(a - wanted) < std::fabs(b - wanted); });
}

// Red in the high byte. Kept: white is a shade below white, since some programs take pure white for the pen that they
// turn round with the ground, and would print white areas in black.
int TrueColor(int32_t color)
{
    if (color == White)
        return 0xFEFEFE;
    return (color & 255) << 16 | (color & 0xFF00) | (color >> 16 & 255);
}

// The size in pixels that a picture file tells in its head: Windows bitmap, PNG, GIF or JPEG. 1 by 1 for any other.
std::pair<int, int> PictureSize(const Text& name)
{
    std::string bytes;
    try {
        bytes = ReadWholeFile(name);
    } catch (const RunTimeError&) {
        return {1, 1};
    }
    const auto byte = [&](size_t at) { return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0; };
    const auto little = [&](size_t at, int count) {
        unsigned value = 0;
        for (int i = count; i-- > 0;)
            value = value << 8 | byte(at + static_cast<size_t>(i));
        return static_cast<int>(value);
    };
    const auto big = [&](size_t at, int count) {
        unsigned value = 0;
        for (int i = 0; i < count; ++i)
            value = value << 8 | byte(at + static_cast<size_t>(i));
        return static_cast<int>(value);
    };
    std::pair<int, int> size{0, 0};
    if (bytes.starts_with("BM"))
        size = {little(18, 4), std::abs(std::max(little(22, 4), -INT32_MAX))};
    else if (bytes.starts_with("\x89PNG"))
        size = {big(16, 4), big(20, 4)};
    else if (bytes.starts_with("GIF8"))
        size = {little(6, 2), little(8, 2)};
    else if (bytes.starts_with("\xFF\xD8")) {
        for (size_t at = 2; at + 9 < bytes.size() && byte(at) == 0xFF;) {
            const int marker = byte(at + 1);
            if (marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC) {
                size = {big(at + 7, 2), big(at + 5, 2)};
                break;
            }
            at += 2 + static_cast<size_t>(std::max(big(at + 2, 2), 2));
        }
    }
    return size.first > 0 && size.second > 0 ? size : std::pair{1, 1};
}

class PageDrawing
{
public:
    explicit PageDrawing(const Text& mark)
    {
        sheet.Width = std::max(PageList.ExtentWidth, 1);
        sheet.Height = std::max(PageList.ExtentHeight, 1);
        if (PageCanvas.unitsPerInch > 0)
            sheet.UnitsPerInch = double(PageCanvas.unitsPerInch);
        sheet.InchesWide = double(PageCanvas.pageWidthInches);
        sheet.InchesHigh = double(PageCanvas.pageHeightInches);
        sheet.Mark = mark;
        const auto bounds = PageBounds();
        const bool empty = PageList.Objects.empty();
        sheet.Left = empty ? 0 : bounds[0];
        sheet.Bottom = empty ? 0 : Up(bounds[3]);
        sheet.Right = empty ? sheet.Width : bounds[2];
        sheet.Top = empty ? sheet.Height : Up(bounds[1]);
    }
    std::string File()
    {
        out.bytes.reserve(PageList.Objects.size() * 160 + 4096);
        const PageObject* before = nullptr;
        for (const PageObject& object : PageList.Objects) {
            Object(object, before);
            before = &object;
        }
        return drawing.File(sheet);
    }

private:
    void Object(const PageObject& object, const PageObject* before)
    {
        switch (object.Kind) {
        case ObjectKind::Line:
            Line(object, DxfLayer::Lines, At(object.X1, object.Y1), At(object.X2, object.Y2));
            break;
        case ObjectKind::Rectangle: {
            const std::vector<Place> corners = {At(object.X1, object.Y1), At(object.X2, object.Y1),
                                                At(object.X2, object.Y2), At(object.X1, object.Y2)};
            Fill(object, corners, before);
            Outline(object, DxfLayer::Rectangles, corners);
            break;
        }
        case ObjectKind::Ellipse:
            Ellipse(object);
            break;
        case ObjectKind::Arc:
            Arc(object);
            break;
        case ObjectKind::Polygon: {
            std::vector<Place> corners;
            for (const PagePoint& point : object.Vertices)
                corners.push_back(At(point.X, point.Y));
            Fill(object, corners, before);
            Outline(object, DxfLayer::Outlines, corners);
            break;
        }
        case ObjectKind::Text:
            Words(object);
            break;
        case ObjectKind::Picture:
            Picture(object);
            break;
        }
    }

    double Up(int32_t y) const
    {
        return sheet.Height - y;
    }
    Place At(int32_t x, int32_t y) const
    {
        return {double(x), Up(y)};
    }

    // Black is the colour that a drawing program turns white on a dark screen; all others are as told.
    void Color(int32_t color)
    {
        if (color == 0)
            out.Add(62, 7);
        else
            out.Add(420, TrueColor(color));
    }

    void Pen(const ObjectStyle& style)
    {
        static constexpr const char* linetypes[] = {nullptr, "DASHED", "DOT", "DASHDOT", "DIVIDE"};
        if (style.PenStyle > 0 && style.PenStyle < static_cast<int>(std::size(linetypes)))
            out.Add(6, linetypes[style.PenStyle]);
        Color(style.PenColor);
        out.Add(370, LineWeight(style.PenWidth, sheet.UnitsPerInch));
    }

    void Line(const PageObject& object, DxfLayer layer, Place from, Place to)
    {
        drawing.Entity("LINE", layer);
        Pen(object);
        out.Add(100, "AcDbLine");
        out.AddPoint(10, from.X, from.Y);
        out.Add(30, 0);
        out.AddPoint(11, to.X, to.Y);
        out.Add(31, 0);
    }

    void Outline(const PageObject& object, DxfLayer layer, std::vector<Place> corners)
    {
        if (corners.empty())
            return;
        corners.erase(std::unique(corners.begin(), corners.end()), corners.end());
        // A polyline has two vertices at least.
        if (corners.size() == 1)
            corners.push_back(corners[0]);
        drawing.Entity("LWPOLYLINE", layer);
        Pen(object);
        out.Add(100, "AcDbPolyline");
        out.Add(90, static_cast<int>(corners.size()));
        out.Add(70, 129); // closed, and dashes run on round its corners
        for (const Place& corner : corners)
            out.AddPoint(10, corner.X, corner.Y);
    }

    void Ellipse(const PageObject& object)
    {
        const Place from = At(object.X1, object.Y1), to = At(object.X2, object.Y2);
        const double halfWidth = std::fabs(to.X - from.X) / 2, halfHeight = std::fabs(to.Y - from.Y) / 2;
        if (halfWidth == 0 || halfHeight == 0) {
            Line(object, DxfLayer::Ellipses, from, to);
            return;
        }
        const Place centre{(from.X + to.X) / 2, (from.Y + to.Y) / 2};
        const bool wide = halfWidth >= halfHeight;
        const double ratio = wide ? halfHeight / halfWidth : halfWidth / halfHeight;
        const Place axis = wide ? Place{halfWidth, 0} : Place{0, halfHeight};
        const auto hatchBorder = [&] {
            out.Add(92, 1);
            out.Add(93, 1);
            out.Add(72, ratio == 1 ? 2 : 3);
            out.AddPoint(10, centre.X, centre.Y);
            if (ratio == 1)
                out.Add(40, halfWidth);
            else {
                out.AddPoint(11, axis.X, axis.Y);
                out.Add(40, ratio);
            }
            out.Add(50, 0);
            out.Add(51, 360);
            out.Add(73, 1);
        };
        if (object.Brush == BrushStyle::Solid)
            SolidHatch(TrueColor(object.BrushColor), hatchBorder);
        drawing.Entity(ratio == 1 ? "CIRCLE" : "ELLIPSE", DxfLayer::Ellipses);
        Pen(object);
        out.Add(100, ratio == 1 ? "AcDbCircle" : "AcDbEllipse");
        out.AddPoint(10, centre.X, centre.Y);
        out.Add(30, 0);
        if (ratio == 1) {
            out.Add(40, halfWidth);
            return;
        }
        out.AddPoint(11, axis.X, axis.Y);
        out.Add(31, 0);
        out.Add(40, ratio);
        out.Add(41, 0);
        out.Add(42, 2 * std::numbers::pi);
    }

    // A segment of a circle over the chord between the two ends, 0.3 of the chord high, on the side of the chord where
    // the object's first corner lies; when that is on the chord, on the left of the way from end to end.
    void Arc(const PageObject& object)
    {
        if (object.Vertices.size() != 2)
            return;
        Place from = At(object.Vertices[0].X, object.Vertices[0].Y);
        Place to = At(object.Vertices[1].X, object.Vertices[1].Y);
        const double chord = std::hypot(to.X - from.X, to.Y - from.Y);
        if (chord == 0) {
            Line(object, DxfLayer::Arcs, from, to);
            return;
        }
        const Place top = At(object.X1, object.Y1);
        if ((to.X - from.X) * (top.Y - from.Y) - (to.Y - from.Y) * (top.X - from.X) < 0)
            std::swap(from, to);
        const double height = 0.3 * chord;
        const double radius = (chord * chord / 4 + height * height) / (2 * height);
        const double alongX = (to.X - from.X) / chord, alongY = (to.Y - from.Y) / chord;
        // The bulge is on the left, so the centre is below it on the right.
        const Place centre{(from.X + to.X) / 2 + alongY * (radius - height),
                           (from.Y + to.Y) / 2 - alongX * (radius - height)};
        const auto angle = [&](Place end) {
            const double degrees = std::atan2(end.Y - centre.Y, end.X - centre.X) * 180 / std::numbers::pi;
            return degrees < 0 ? degrees + 360 : degrees;
        };
        drawing.Entity("ARC", DxfLayer::Arcs);
        Pen(object);
        out.Add(100, "AcDbCircle");
        out.AddPoint(10, centre.X, centre.Y);
        out.Add(30, 0);
        out.Add(40, radius);
        out.Add(100, "AcDbArc");
        out.Add(50, angle(to));
        out.Add(51, angle(from));
    }

    // ---- Fills

    // A pattern as a hatch: its lines as groups, and how they are drawn out.
    struct Definition {
        Text Name;
        bool Solid = false;
        int Lines = 0, Weight = 0;
        DxfTags Tags;
        HatchPattern Pattern;
    };

    void Fill(const PageObject& object, std::vector<Place> corners, const PageObject* before)
    {
        corners.erase(std::unique(corners.begin(), corners.end()), corners.end());
        while (corners.size() > 1 && corners.back() == corners.front())
            corners.pop_back();
        if (object.Brush == BrushStyle::Hollow || Flat(corners))
            return;
        const auto border = [&] {
            out.Add(92, 3);
            out.Add(72, 0);
            out.Add(73, 1);
            out.Add(93, static_cast<int>(corners.size()));
            for (const Place& corner : corners)
                out.AddPoint(10, corner.X, corner.Y);
        };
        if (object.Brush == BrushStyle::Solid) {
            SolidHatch(TrueColor(object.BrushColor), border);
            return;
        }
        const bool tinted = !object.TintOf.empty();
        if (tinted)
            SolidHatch(TrueColor(ParseColor(object.Tint)), border);
        // On a ground of its own the ink stays black whatever the screen's colour is.
        const bool onGround = tinted || (before && before->Kind == ObjectKind::Polygon &&
                                         before->Brush == BrushStyle::Solid && before->Vertices == object.Vertices);
        const Definition& definition = DefinitionOf(PatternOf(object));
        if (definition.Lines == 0 && !definition.Solid)
            return;
        PatternHatch(definition, onGround, border);
        Strokes(definition, onGround, corners);
    }

    // The bitmap behind a brush picture: the print form, of a tinted copy the one that was tinted.
    static Text PatternOf(const PageObject& object)
    {
        if (!object.TintOf.empty())
            return PrintForm(object.TintOf);
        return object.Fill.empty() ? object.BrushPicture : object.Fill;
    }

    // Whether all corners lie on one line, and there is nothing to fill.
    static bool Flat(const std::vector<Place>& corners)
    {
        for (size_t i = 2; i < corners.size(); ++i)
            if ((corners[1].X - corners[0].X) * (corners[i].Y - corners[0].Y) !=
                (corners[1].Y - corners[0].Y) * (corners[i].X - corners[0].X))
                return false;
        return true;
    }

    void HatchHead(const Text& name, bool solid)
    {
        out.Add(100, "AcDbHatch");
        out.AddPoint(10, 0, 0);
        out.Add(30, 0);
        out.AddPoint(210, 0, 0);
        out.Add(230, 1);
        out.Add(2, name);
        out.Add(70, solid ? 1 : 0);
        out.Add(71, 0);
        out.Add(91, 1);
    }

    void HatchTail(int type)
    {
        out.Add(97, 0);
        out.Add(75, 0);
        out.Add(76, type);
    }

    template <class Border>
    void SolidHatch(int trueColor, const Border& border)
    {
        drawing.Entity("HATCH", DxfLayer::Fills);
        out.Add(420, trueColor);
        HatchHead("SOLID", true);
        border();
        HatchTail(1);
        out.Add(98, 0);
    }

    template <class Border>
    void PatternHatch(const Definition& definition, bool onGround, const Border& border)
    {
        drawing.Entity("HATCH", DxfLayer::Patterns);
        if (onGround)
            out.Add(420, 0);
        else
            out.Add(62, 7);
        if (!definition.Solid)
            out.Add(370, definition.Weight);
        HatchHead(definition.Name, definition.Solid);
        border();
        HatchTail(definition.Solid ? 1 : 2);
        if (!definition.Solid) {
            out.Add(52, 0);
            out.Add(41, 1);
            out.Add(77, 0);
            out.Add(78, definition.Lines);
            out.Append(definition.Tags);
        }
        out.Add(98, 0);
    }

    // The strokes of an area's pattern, told from its lower left corner, which is where their block is put.
    void Strokes(const Definition& definition, bool onGround, const std::vector<Place>& corners)
    {
        const double pixel = sheet.UnitsPerInch / 600;
        const std::vector<HatchStroke> strokes =
            HatchStrokes(definition.Pattern, {{0, sheet.Height}, pixel}, corners, {0, 0, sheet.Width, sheet.Height},
                         MostStrokes - strokeCount);
        if (strokes.empty() || strokes.size() > MostStrokes - strokeCount)
            return;
        strokeCount += strokes.size();
        Place corner = corners[0];
        for (const Place& other : corners)
            corner = {std::min(corner.X, other.X), std::min(corner.Y, other.Y)};
        // To a six-hundredth of an inch, a pixel of the pattern, or a unit where that is finer.
        const double parts = std::max(1.0, std::ceil(1 / pixel));
        const auto places = [&](double value) { return std::round(value * parts) / parts; };
        DxfTags block;
        block.bytes.reserve(strokes.size() * 64);
        for (const std::vector<HatchPoint>& chain : JoinedStrokes(strokes, definition.Pattern.PenWidth * pixel)) {
            const bool line = chain.size() == 2;
            drawing.BlockEntity(block, line ? "LINE" : "LWPOLYLINE");
            if (onGround)
                block.Add(420, 0);
            block.Add(100, line ? "AcDbLine" : "AcDbPolyline");
            if (!line) {
                block.Add(90, static_cast<int>(chain.size()));
                block.Add(70, 0);
            }
            for (size_t i = 0; i < chain.size(); ++i) {
                const int code = line && i == 1 ? 11 : 10;
                block.Add(code, places(chain[i].X - corner.X));
                block.Add(code + 10, places(chain[i].Y - corner.Y));
            }
        }
        const Text name = drawing.Block(definition.Name, std::move(block));
        drawing.Entity("INSERT", DxfLayer::Strokes);
        out.Add(100, "AcDbBlockReference");
        out.Add(2, name);
        out.AddPoint(10, corner.X, corner.Y);
        out.Add(30, 0);
    }

    // The definition of a pattern, made once for the page. Tiles are anchored at the upper left corner of the page, a
    // pixel 1/600 inch.
    const Definition& DefinitionOf(const Text& picture)
    {
        const auto known = definitions.find(picture);
        if (known != definitions.end())
            return known->second;
        const Bitmap& tile = PatternPicture(picture);
        Definition& definition = definitions[picture];
        definition.Pattern = HatchLines(tile);
        const HatchPattern& pattern = definition.Pattern;
        definition.Solid = pattern.Solid;
        definition.Lines = static_cast<int>(pattern.Lines.size());
        const double pixel = sheet.UnitsPerInch / 600;
        definition.Weight = LineWeight(pattern.PenWidth * pixel, sheet.UnitsPerInch);
        const Text base = BaseName(picture);
        definition.Name = pattern.Solid ? "SOLID" : DxfName(UpperCase(base.substr(0, base.rfind('.'))));
        const double top = std::fmod(sheet.Height, std::max(tile.Height, 1) * pixel);
        const auto rounded = [](double value) { return std::round(value * 1000) / 1000; };
        for (const HatchLine& line : pattern.Lines) {
            definition.Tags.Add(53, line.Angle);
            definition.Tags.Add(43, rounded(line.X * pixel));
            definition.Tags.Add(44, rounded(line.Y * pixel + top));
            definition.Tags.Add(45, line.OffsetX * pixel);
            definition.Tags.Add(46, line.OffsetY * pixel);
            definition.Tags.Add(79, static_cast<int>(line.Dashes.size()));
            // Rounded but for the last gap: the sum is what keeps the dashes in step across the page.
            double period = 0, sum = 0;
            for (const double dash : line.Dashes)
                period += std::fabs(dash) * pixel;
            for (size_t i = 0; i < line.Dashes.size(); ++i) {
                const double dash = rounded(line.Dashes[i] * pixel);
                sum += std::fabs(dash);
                definition.Tags.Add(49, i + 1 < line.Dashes.size() ? dash : sum - std::fabs(dash) - period);
            }
        }
        return definition;
    }

    // ---- Texts and pictures

    // The text's point is where the middle of the capitals stands, less the nudge that it holds; an entity stands on
    // its baseline and is as high as its capitals.
    void Words(const PageObject& object)
    {
        const double height = std::fabs(object.FontHeight);
        const double radians = object.TextAngle * std::numbers::pi / 180;
        const Place point = At(object.X1, object.Y1);
        const Place base{point.X + BaselineDrop * height * std::sin(radians),
                         point.Y - BaselineDrop * height * std::cos(radians)};
        drawing.Entity("TEXT", DxfLayer::Texts);
        Color(object.PenColor);
        out.Add(100, "AcDbText");
        const auto place = [&](int code) {
            out.AddPoint(code, std::round(base.X * 1000) / 1000, std::round(base.Y * 1000) / 1000);
            out.Add(code + 20, 0);
        };
        place(10);
        out.Add(40, CapitalHeight * height);
        out.Add(1, DxfString(object.String));
        out.Add(50, object.TextAngle);
        out.Add(7, drawing.Style(object.FontName, object.Bold));
        if (object.HAlign != 0) {
            out.Add(72, int(object.HAlign));
            place(11);
        }
        out.Add(100, "AcDbText");
    }

    void Picture(const PageObject& object)
    {
        const Place a = At(object.X1, object.Y1), b = At(object.X2, object.Y2);
        const auto [width, height] = PictureSize(object.String);
        const int entity = drawing.Entity("IMAGE", DxfLayer::Pictures);
        const auto link = drawing.Image(entity, FullPath(NativePath(object.String)), width, height);
        out.Add(100, "AcDbRasterImage");
        out.Add(90, 0);
        out.AddPoint(10, std::min(a.X, b.X), std::min(a.Y, b.Y));
        out.Add(30, 0);
        // A pixel along the row and up the column.
        out.AddPoint(11, std::max(std::fabs(a.X - b.X), 1.0) / width, 0);
        out.Add(31, 0);
        out.AddPoint(12, 0, std::max(std::fabs(a.Y - b.Y), 1.0) / height);
        out.Add(32, 0);
        out.AddPoint(13, width, height);
        out.AddHandle(340, link.Definition);
        out.Add(70, 7);
        out.Add(280, 0);
        out.Add(281, 50);
        out.Add(282, 50);
        out.Add(283, 0);
        out.AddHandle(360, link.Reactor);
        out.Add(71, 1);
        out.Add(91, 2);
        out.AddPoint(14, -0.5, -0.5);
        out.AddPoint(14, width - 0.5, height - 0.5);
    }

    DxfSheet sheet;
    DxfDrawing drawing;
    DxfTags& out = drawing.Entities;
    std::map<Text, Definition> definitions;
    size_t strokeCount = 0;
};
} // namespace

std::string PageDxf(const Text& mark)
{
    return PageDrawing(mark).File();
}
