// columnpage.cpp -- a page with one column under test.
#include "columnpage.h"

#include "canvas/bitmap.h"
#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "canvas/patterns.h"
#include "logrender/logdata.h"
#include "report/heading.h"
#include "run/batchrun.h"
#include "session/files.h"

#include <cmath>

void StartColumn()
{
    LogPage = LogPageRecord();
    LogBoring = LogBoringRecord();
    LogGeometry = LogGeometryRecord();
    LogPage.PageEndDepth = 67;
    LogGeometry.DepthPerInch = 10;
    LogGeometry.BottomSpan = 60;
    LogGeometry.ColumnWidth = 1;
    LegendInUse = 0;
    NumberHeadings();
    WriteBreak("0");
    PageList = PageListRecord();
    canvasstart("P");
    float x = 1.25f, y = 7.75f;
    setscalex(1);
    setscaley(1);
    setorigin(x, y);
    REQUIRE(PageCanvas.penX == ColumnX);
    REQUIRE(PageCanvas.penY == ColumnY);
}

void SetPatterns(std::initializer_list<int> files)
{
    Bitmap tile;
    tile.Width = tile.Height = 1;
    tile.Pixels = {0};
    std::filesystem::create_directories(Scratch("fills"));
    for (const int file : files)
        for (const char* form : {".BMP", "_sc.BMP"})
            WriteScratch("fills/F" + Text(file > 0 && file < 10 ? "0" : "") + PlainNumber(file) + form,
                         EncodeBitmap(tile));
    ForgetPatterns();
}

void SetContacts(std::initializer_list<float> depths)
{
    LogBoring.ContactCount = 0;
    for (const float depth : depths)
        LogBoring.Contacts[++LogBoring.ContactCount].Depth = depth;
    LogGeometry.ContactFirst = depths.size() > 0 ? 1 : 0;
    LogGeometry.ContactLast = static_cast<int16_t>(depths.size());
}

void SetLines(std::initializer_list<const char*> lines)
{
    LogBoring.DesCount = 0;
    for (const char* line : lines)
        LogBoring.Des[++LogBoring.DesCount] = line;
}

LogParamSetup Setup(float start, float end, float increment)
{
    LogParamSetup setup;
    setup.Start = start;
    setup.End = end;
    setup.Increment = increment;
    return setup;
}

void AddSample(float top, float bottom)
{
    LogSample& sample = LogBoring.Samples[++LogBoring.SampleCount];
    sample.Top = top;
    sample.Bottom = bottom;
    sample.Blows = "-1";
    LogGeometry.SampleFirst = 1;
    LogGeometry.SampleLast = static_cast<int16_t>(LogBoring.SampleCount);
    LogGeometry.SampleTopHeld = LogBoring.Samples[1].Top;
    LogGeometry.SampleBottomHeld = bottom;
}

static Text Place(int32_t x, int32_t y)
{
    return std::to_string(x - ColumnX) + "," + std::to_string(y - ColumnY - 60);
}

static Text Pen(const PageObject& object)
{
    static const char* const names[] = {"", " dashed", " dotted", " dash-dot", " dash-dot-dot"};
    return names[object.PenStyle] + Text(object.PenWidth == 8 ? " wide" : "");
}

static Text Words(const PageObject& object)
{
    static const char* const aligned[] = {"", " centred", " right"};
    const int32_t nudge = RoundInt32(-0.11 * object.FontHeight);
    const double angle = object.TextAngle;
    const int points = static_cast<int>(std::lround(-object.FontHeight * 72 / 600));
    const Text place = Place(object.X1 - (angle == 90 ? nudge : 0), object.Y1 - (angle == 0 ? nudge : 0));
    return "text " + place + " " + std::to_string(points) + "pt " + object.String + (object.Bold ? " bold" : "") +
           aligned[object.HAlign] +
           (angle == 0    ? ""
            : angle == 90 ? " upward"
                          : " at " + PlainNumber(angle));
}

static Text Vertices(const PageObject& object)
{
    Text words = "polygon";
    for (const PagePoint& point : object.Vertices)
        words += " " + Place(point.X, point.Y);
    if (object.Brush == BrushStyle::Solid)
        return words + (object.BrushColor == 0 ? " black" : object.BrushColor == White ? " white" : " solid");
    const Text name = BaseName(object.TintOf.empty() ? object.BrushPicture : object.TintOf);
    return words + " " + name.substr(0, name.find('_')) + (object.Tint.empty() ? "" : " in " + object.Tint);
}

static Text Circle(const PageObject& object)
{
    return (object.Brush == BrushStyle::Solid && object.BrushColor == 0 ? "dot " : "circle ") +
           Place((object.X1 + object.X2) / 2, (object.Y1 + object.Y2) / 2) + " " +
           std::to_string((object.X2 - object.X1) / 2) + Pen(object);
}

Drawing Drawn(size_t skip)
{
    Drawing drawing;
    for (size_t i = skip; i < PageList.Objects.size(); ++i) {
        const PageObject& object = PageList.Objects[i];
        const Text corners = Place(object.X1, object.Y1) + " " + Place(object.X2, object.Y2);
        switch (object.Kind) {
        case ObjectKind::Line:
            drawing.push_back("line " + corners + Pen(object));
            break;
        case ObjectKind::Rectangle:
            drawing.push_back("rectangle " + corners + Pen(object));
            break;
        case ObjectKind::Ellipse:
            drawing.push_back(Circle(object));
            break;
        case ObjectKind::Polygon:
            drawing.push_back(Vertices(object));
            break;
        case ObjectKind::Text:
            drawing.push_back(Words(object));
            break;
        case ObjectKind::Arc:
            drawing.push_back("arc " + corners + " from " + Place(object.Vertices[0].X, object.Vertices[0].Y) + " to " +
                              Place(object.Vertices[1].X, object.Vertices[1].Y));
            break;
        case ObjectKind::Picture:
            drawing.push_back("picture " + corners + " " + BaseName(object.String));
            break;
        default:
            drawing.push_back("another kind");
        }
    }
    return drawing;
}

void NumberHeadings()
{
    for (int slot = 1; slot <= MaxHeadings; ++slot)
        HeadingWords[slot] = "W" + std::to_string(slot);
}

void AddLines(std::string& bytes, const std::vector<Text>& lines, size_t count, const Text& empty)
{
    for (size_t line = 0; line < count; ++line)
        bytes += (line < lines.size() ? lines[line] : empty) + "\r\n";
}

Drawing DrawnFrom(int32_t x, int32_t y, size_t skip)
{
    const PageListRecord kept = PageList;
    const int32_t right = ColumnX - x, down = ColumnY + 60 - y;
    for (PageObject& object : PageList.Objects) {
        object.X1 += right;
        object.X2 += right;
        object.Y1 += down;
        object.Y2 += down;
        for (PagePoint& point : object.Vertices) {
            point.X += right;
            point.Y += down;
        }
    }
    const Drawing drawing = Drawn(skip);
    PageList = kept;
    return drawing;
}

Drawing DrawnTexts()
{
    Drawing words;
    for (const PageObject& object : PageList.Objects)
        if (object.Kind == ObjectKind::Text)
            words.push_back(object.String);
    return words;
}

Text PenPlace()
{
    return Place(RoundInt32(PageCanvas.penX), RoundInt32(PageCanvas.penY));
}

bool EndsAtBaseline(float x)
{
    return std::fabs(PageCanvas.penX - (ColumnX + 600 * x)) < 0.01 && std::fabs(PageCanvas.penY - ColumnY) < 0.01 &&
           PageCanvas.scaleX == 1 && PageCanvas.scaleY == 1 && PageList.Default.PenStyle == 0;
}

Text PageCanvasScales()
{
    return PlainNumber(double(PageCanvas.scaleX)) + " " + PlainNumber(double(PageCanvas.scaleY));
}

Text BreakFile()
{
    return ReadBreak();
}
