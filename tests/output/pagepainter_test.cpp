// pagepainter_test.cpp -- where ink falls: texts about their baseline, pens, dashes, patterns and tints.
#include "output/painting.h"

#include "canvas/bitmap.h"
#include "canvas/metaugl.h"
#include "canvas/patterns.h"
#include "session/failure.h"
#include "session/files.h"

#include <QPainter>
#include <cmath>

namespace
{
// The ink of a page as seen from an anchor along a turned text: how far it reaches left, right, up and down.
struct Reach {
    double left = 1e9, right = -1e9, top = 1e9, bottom = -1e9;
};
} // namespace

static Reach ReachOf(const QImage& image, double x, double y, double angle)
{
    const double radians = angle * 3.14159265358979 / 180;
    Reach reach;
    for (int row = 0; row < image.height(); ++row)
        for (int column = 0; column < image.width(); ++column)
            if (Dark(image, column, row)) {
                const double dx = column + 0.5 - x, dy = row + 0.5 - y;
                const double along = dx * std::cos(radians) - dy * std::sin(radians);
                const double down = dx * std::sin(radians) + dy * std::cos(radians);
                reach.left = std::min(reach.left, along);
                reach.right = std::max(reach.right, along);
                reach.top = std::min(reach.top, down);
                reach.bottom = std::max(reach.bottom, down);
            }
    return reach;
}

static PageObject& AddText(const Text& words, double height, double angle, int16_t align)
{
    PageObject& object = AddObject(ObjectKind::Text, 500, 500, 500, 500);
    object.String = words;
    object.FontHeight = height;
    object.TextAngle = angle;
    object.HAlign = align;
    return object;
}

TEST_CASE("the baseline lies 0.248 of the font height from a text's point, towards its down, at every angle")
{
    for (const double angle : {0.0, 30.0, 45.0, 90.0, 135.0, 180.0, 270.0, -60.0, 450.0}) {
        CAPTURE(angle);
        StartTestPage(1000, 1000);
        AddText("H", -200, angle, 0);
        const Reach reach = ReachOf(Painted(), 500, 500, angle);
        CHECK(reach.bottom == doctest::Approx(0.248 * 200).epsilon(0.03));
        CHECK(reach.top < -60);
    }
}

TEST_CASE("a text stands to the right of its point, about it, or to the left, by the sum of its advances")
{
    StartTestPage(1000, 1000);
    const double wide = TextAdvance("HIH", "Arial", false) * 100;
    CHECK(wide == doctest::Approx((1479 + 569 + 1479) / 2048.0 * 100));
    for (const double angle : {0.0, 90.0, 30.0, 200.0}) {
        CAPTURE(angle);
        for (const int16_t align : {int16_t(0), int16_t(1), int16_t(2)}) {
            CAPTURE(align);
            StartTestPage(1000, 1000);
            AddText("HIH", -100, angle, align);
            const Reach reach = ReachOf(Painted(), 500, 500, angle);
            const double start = align == 0 ? 0 : align == 1 ? -wide / 2 : -wide;
            // The H has about 0.08 em of white on each side.
            CHECK(reach.left - start == doctest::Approx(8).epsilon(0.2));
            CHECK(start + wide - reach.right == doctest::Approx(8).epsilon(0.2));
        }
    }
}

TEST_CASE("a text of any height is scaled exactly, with no rounding of font sizes")
{
    StartTestPage(1000, 1000);
    std::vector<double> wide;
    for (const double height : {-58.3333, -58.9, -59.4}) {
        StartTestPage(1000, 1000);
        AddText("HHHHHHHHHH", height, 0, 0);
        const Reach reach = ReachOf(Painted(), 500, 500, 0);
        CHECK((reach.right - reach.left + 1) / -height == doctest::Approx(10 * 1479 / 2048.0 - 0.16).epsilon(0.004));
    }
}

TEST_CASE("letters are not drawn together: AV is as wide as A and V")
{
    StartTestPage(1000, 1000);
    CHECK(TextAdvance("AVAV", "Arial", false) == doctest::Approx(4 * 1366 / 2048.0));
    AddText("AVAVAV", -100, 0, 0);
    const Reach reach = ReachOf(Painted(), 500, 500, 0);
    CHECK(reach.right - reach.left == doctest::Approx(600 * 1366 / 2048.0).epsilon(0.01));
}

TEST_CASE("a positive font height is the height of the cell, so the letters are smaller")
{
    StartTestPage(1000, 1000);
    AddText("H", -200, 0, 0);
    const Reach em = ReachOf(Painted(), 500, 500, 0);
    StartTestPage(1000, 1000);
    AddText("H", 200, 0, 0);
    const Reach cell = ReachOf(Painted(), 500, 500, 0);
    CHECK((em.bottom - em.top) / (cell.bottom - cell.top) == doctest::Approx(1.117).epsilon(0.02));
}

TEST_CASE("bold has its own face, with more ink and its own widths")
{
    const auto ink = [](bool bold) {
        StartTestPage(1000, 1000);
        AddText("Sand", -100, 0, 0).Bold = bold;
        const QImage image = Painted();
        int count = 0;
        for (int y = 0; y < 1000; ++y)
            for (int x = 0; x < 1000; ++x)
                count += Dark(image, x, y);
        return count;
    };
    CHECK(ink(true) > 1.2 * ink(false));
    CHECK(TextAdvance("n", "Arial", true) == doctest::Approx(1251 / 2048.0));
    CHECK(TextAdvance("n", "Arial", false) == doctest::Approx(1139 / 2048.0));
}

TEST_CASE("a text holds characters of Windows-1252")
{
    StartTestPage(1000, 1000);
    CHECK(TextAdvance("\xB0", "Arial", false) == doctest::Approx(819 / 2048.0));  // degree sign
    CHECK(TextAdvance("\x80", "Arial", false) == doctest::Approx(1139 / 2048.0)); // euro sign
    CHECK(TextAdvance("\t", "Arial", false) == TextAdvance(" ", "Arial", false));
}

// ---- Pens

static PageObject& AddLine(int x1, int y1, int x2, int y2, int width, int style)
{
    PageObject& object = AddObject(ObjectKind::Line, x1, y1, x2, y2);
    object.PenWidth = width;
    object.PenStyle = int16_t(style);
    return object;
}

TEST_CASE("a line ends where its corners are, square to its run")
{
    StartTestPage(400, 200);
    AddLine(100, 100, 300, 100, 20, 0);
    const QImage image = Painted();
    CHECK(Runs(image, 0, 100, 1, 0) == std::vector<int>{200, 100});
    CHECK(Runs(image, 200, 0, 0, 1) == std::vector<int>{20, 90});
    CHECK(Dark(image, 100, 100));
    CHECK(!Dark(image, 99, 100));
}

TEST_CASE("joins are round: a corner is as far from its point as the pen is wide, and no farther")
{
    StartTestPage(400, 400);
    PageObject& object = AddObject(ObjectKind::Rectangle, 100, 300, 300, 100);
    object.Brush = BrushStyle::Hollow;
    object.PenWidth = 20;
    const QImage image = Painted();
    for (const int x : {91, 308})
        for (const int y : {91, 308})
            CHECK(!Dark(image, x, y));
    // The round of the corner, 10 from its point: 7 along each side.
    for (const int x : {94, 305})
        for (const int y : {94, 305})
            CHECK(Dark(image, x, y));
    CHECK(!Dark(image, 88, 200));
    CHECK(!Dark(image, 200, 200));
}

TEST_CASE("the tip of an acute wedge has no thorn, drawn alone or with others, filled or not")
{
    // 11 degrees at (100, 200): a mitre would reach over 100 units beyond the tip.
    const std::vector<PagePoint> wedge = {{100, 200}, {500, 160}, {500, 240}};
    for (const BrushStyle brush : {BrushStyle::Hollow, BrushStyle::Solid})
        for (const int32_t color : {0, 0x404040})
            for (size_t first = 0; first < 3; ++first) {
                CAPTURE(int(brush));
                CAPTURE(color);
                CAPTURE(first);
                StartTestPage(700, 400);
                PageObject& object = AddObject(ObjectKind::Polygon, 0, 0, 0, 0);
                for (size_t i = 0; i < 3; ++i)
                    object.Vertices.push_back(wedge[(first + i) % 3]);
                object.Brush = brush;
                object.PenWidth = 20;
                object.PenColor = color;
                const QImage image = Painted();
                CHECK(Dark(image, 91, 200));
                CHECK(!Dark(image, 88, 200));
                // The corners at the right are round as well.
                CHECK(!Dark(image, 511, 200));
                CHECK(Dark(image, 508, 200));
            }
}

TEST_CASE("a pen width of 0 is one device unit, and no line is thinner than a pixel of the picture")
{
    const auto ink = [](double scale) {
        StartTestPage(400, 200);
        AddLine(0, 100, 400, 100, 0, 0);
        const QImage image = Painted(scale);
        double sum = 0;
        for (int y = 0; y < image.height(); ++y)
            sum += (255 - qGray(image.pixel(image.width() / 2, y))) / 255.0;
        return sum;
    };
    CHECK(ink(1) == doctest::Approx(1).epsilon(0.02));
    CHECK(ink(4) == doctest::Approx(4).epsilon(0.02));
    CHECK(ink(0.25) == doctest::Approx(1).epsilon(0.02));
}

TEST_CASE("dashes are lengths on the page, whatever the pen's width, and start anew with each line")
{
    const std::vector<int> dash = {36, 18, 36, 18}, dot = {7, 18, 7, 18}, dashDot = {36, 18, 7, 18, 36, 18, 7, 18},
                           dashDotDot = {36, 18, 7, 18, 7, 18, 36, 18};
    const std::vector<int> expected[] = {{}, dash, dot, dashDot, dashDotDot};
    for (const int width : {4, 8, 20})
        for (int style = 1; style <= 4; ++style) {
            CAPTURE(width);
            CAPTURE(style);
            StartTestPage(1200, 300);
            AddLine(50, 100, 1100, 100, width, style);
            AddLine(80, 200, 1100, 200, width, style);
            const QImage image = Painted();
            for (const int y : {100, 200}) {
                const std::vector<int> runs = Runs(image, 0, y, 1, 0);
                REQUIRE(runs.size() > 10);
                for (size_t i = 0; i < expected[style].size(); ++i)
                    CHECK(std::abs(runs[i] - expected[style][i]) <= 1);
            }
            CHECK(Dark(image, 50, 100));
            CHECK(!Dark(image, 49, 100));
            CHECK(Dark(image, 80, 200));
            CHECK(!Dark(image, 79, 200));
        }
}

// ---- Shapes

TEST_CASE("an arc runs from end to end of its chord and bulges by 0.3 of it, to the side of its first corner")
{
    for (const float side : {-1.0f, 1.0f}) {
        CAPTURE(side);
        StartTestPage(1000, 600);
        PageCanvas.scaleX = PageCanvas.scaleY = 1;
        PageCanvas.penX = 200;
        PageCanvas.penY = 300;
        drawarc(1, side); // 600 units wide
        const QImage image = Painted();
        const int top = 300 + int(side) * 180;
        CHECK(Dark(image, 500, top));
        CHECK(Dark(image, 200, 300 + int(side)));
        CHECK(Dark(image, 799, 300 + int(side)));
        CHECK(!Dark(image, 500, 300));
        CHECK(!Dark(image, 500, 300 - int(side) * 180));
        // Round: at a quarter of the chord it stands at 0.866 of its height.
        CHECK(Dark(image, 350, 300 + int(std::lround(side * 180 * 0.866))));
    }
}

TEST_CASE("an ellipse fills the box of its corners, hollow or black")
{
    StartTestPage(400, 400);
    PageCanvas.penX = 200;
    PageCanvas.penY = 200;
    circle(0.2f);
    QImage image = Painted();
    CHECK(Runs(image, 0, 200, 1, 0) == std::vector<int>{4, 236, 4, 78});
    blackcircle(0.2f);
    image = Painted();
    CHECK(Runs(image, 0, 200, 1, 0) == std::vector<int>{244, 78});
}

static PageObject& AddSquare(int x, int y, int size)
{
    PageObject& object = AddObject(ObjectKind::Polygon, x, y, x, y);
    object.Vertices = {{x, y}, {x + size, y}, {x + size, y + size}, {x, y + size}};
    object.PenWidth = 0;
    return object;
}

static PageObject& AddPatterned(int x, int y, int size, const Text& name)
{
    PageObject& object = AddSquare(x, y, size);
    object.Brush = BrushStyle::Picture;
    object.BrushPicture = Scratch("fills/" + name + "_sc.BMP");
    object.Fill = Scratch("fills/" + name + ".bmp");
    return object;
}

TEST_CASE("overlapping black shapes stay black where they overlap")
{
    StartTestPage(400, 400);
    for (const int x : {50, 100}) {
        PageObject& object = AddSquare(x, 50, 100);
        object.Brush = BrushStyle::Solid;
        object.BrushColor = 0;
    }
    CHECK(Dark(Painted(), 125, 100));
}

// ---- Patterns

TEST_CASE("a pattern lies on the page's own grid, a dot of it a device unit, wherever its area begins")
{
    StartTestPage(700, 700);
    WriteTestPattern("F31.BMP", 60, 90);
    AddPatterned(10, 10, 320, "F31");
    AddPatterned(333, 347, 340, "F31");
    const QImage image = Painted();
    int areas = 0;
    for (int y = 15; y < 680; y += 5)
        for (int x = 15; x < 680; x += 5) {
            const bool first = x < 325 && y<325, second = x> 340 && x < 668 && y > 352 && y < 682;
            if (!first && !second)
                continue;
            ++areas;
            const int u = x % 150, v = y % 150;
            if (std::abs(u - 60) > 1 && std::abs(u - 90) > 1 && std::abs(v - 90) > 1 && std::abs(v - 120) > 1)
                CHECK(Dark(image, x, y) == (u >= 60 && u < 90 && v >= 90 && v < 120));
        }
    CHECK(areas > 5000);
}

TEST_CASE("the white of a pattern shows what lies beneath it; a solid ground under it hides that")
{
    StartTestPage(400, 400);
    WriteTestPattern("F32.BMP", 60, 60);
    AddLine(0, 30, 400, 30, 10, 0);
    AddPatterned(0, 0, 200, "F32");
    QImage image = Painted();
    CHECK(Dark(image, 100, 30));
    CHECK(Dark(image, 75, 75));
    CHECK(!Dark(image, 20, 75));
    PageObject& white = AddSquare(0, 0, 200);
    white.Brush = BrushStyle::Solid;
    white.BrushColor = White;
    AddPatterned(0, 0, 200, "F32");
    image = Painted();
    CHECK(!Dark(image, 100, 30));
    CHECK(Dark(image, 300, 30));
    CHECK(Dark(image, 75, 75));
}

TEST_CASE("a tinted pattern is its strokes in black on a ground of the colour")
{
    StartTestPage(400, 400);
    WriteTestPattern("F33.BMP", 60, 60);
    AddLine(0, 30, 400, 30, 10, 0);
    PageObject& object = AddPatterned(0, 0, 200, "F33");
    object.TintOf = object.BrushPicture;
    object.Tint = "250 180 110";
    object.BrushPicture = Scratch("fills/T1_sc.bmp");
    object.Fill = Scratch("fills/T1.bmp");
    const QImage image = Painted();
    CHECK(image.pixel(20, 30) == qRgb(250, 180, 110));
    CHECK(image.pixel(75, 75) == qRgb(0, 0, 0));
    CHECK(Dark(image, 300, 30));
    CHECK(Dark(image, 0, 100));
}

TEST_CASE("on the screen the small form is tiled pixel by pixel from the page's corner, whatever the zoom")
{
    StartTestPage(3000, 3000);
    WriteTestPattern("F34.BMP", 60, 90);
    PageCanvas.fillFile = Scratch("fills/F34.BMP");
    setfillfile(34);
    AddPatterned(0, 0, 3000, "F34").Fill = "";
    const Bitmap& form = PatternPicture(Scratch("fills/F34_sc.BMP"));
    REQUIRE(form.Width == 25);
    for (const double scale : {0.05, 0.1, 0.137, 0.5}) {
        CAPTURE(scale);
        const QImage image = Painted(scale, PatternForm::Screen);
        int wrong = 0;
        for (int y = 3; y < 140; ++y)
            for (int x = 3; x < 140; ++x)
                wrong += (image.pixel(x, y) & 0xFFFFFF) != (form.At(x % 25, y % 25) & 0xFFFFFF);
        CHECK(wrong == 0);
    }
}

TEST_CASE("on a coarse picture a pattern is averaged and keeps its pitch")
{
    StartTestPage(3000, 3000);
    WriteTestPattern("F35.BMP", 60, 90);
    AddPatterned(0, 0, 3000, "F35");
    const QImage image = Painted(0.25);
    // The square of 30 dots in 150 is 7.5 in 37.5 pixels: after 20 tiles it is still where it belongs.
    for (int tile = 0; tile < 19; ++tile) {
        const int x = int((tile * 150 + 75) * 0.25), y = int((tile * 150 + 105) * 0.25);
        CHECK(Dark(image, x, y));
        CHECK(!Dark(image, x - 15, y));
    }
}

TEST_CASE("a region that is blanked leaves no seam, and one that is blacked out is black to its edge")
{
    StartTestPage(400, 400);
    WriteScratch("fills/F0.bmp", EncodeBitmap({25, 25, std::vector<uint32_t>(625, 0xFFFFFF)}));
    PageCanvas.scaleX = PageCanvas.scaleY = 1;
    PageCanvas.penX = 51.4f;
    PageCanvas.penY = 251.4f;
    rectfillflag(0.3f, 0.3f, 0);
    QImage image = Painted(0.37);
    int ink = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ink += image.pixel(x, y) != qRgb(255, 255, 255);
    CHECK(ink == 0);
    rectfillflag(0.3f, 0.3f, 1);
    image = Painted(0.37);
    CHECK(Dark(image, 20, 60));
    CHECK(Dark(image, 50, 60));
}

TEST_CASE("black objects are drawn in groups, but never past one that covers")
{
    StartTestPage(400, 400);
    AddLine(0, 100, 400, 100, 10, 0);
    AddText("H", -100, 0, 0);
    PageObject& white = AddSquare(50, 50, 100);
    white.Brush = BrushStyle::Solid;
    white.BrushColor = White;
    AddLine(0, 120, 400, 120, 10, 0);
    const QImage image = Painted();
    CHECK(Dark(image, 20, 100));
    CHECK(!Dark(image, 100, 100));
    CHECK(Dark(image, 200, 100));
    CHECK(Dark(image, 100, 120));
}

TEST_CASE("a picture that is gone fails with 53 and a damaged one with 481, when the rest of the page is drawn")
{
    StartTestPage(400, 400);
    PageObject& gone = AddObject(ObjectKind::Picture, 50, 200, 200, 50);
    gone.String = Scratch("LOGO.BMP");
    AddLine(0, 300, 400, 300, 10, 0);
    QImage image(400, 400, QImage::Format_RGB32);
    image.fill(Qt::white);
    const auto paint = [&image] {
        QPainter painter(&image);
        try {
            PaintPage(painter, 1, PatternForm::Print);
            return 0;
        } catch (const RunTimeError& error) {
            return error.Number;
        }
    };
    CHECK(paint() == FileNotFound);
    CHECK(Dark(image, 200, 300));
    WriteScratch("LOGO.BMP", "no picture");
    CHECK(paint() == InvalidPicture);
}

static int FailureOfLoading()
{
    return FailureOf([] { LoadPagePictures(PatternForm::Print); });
}

TEST_CASE("the pictures of a page can be had or not before any of it is painted")
{
    StartTestPage(400, 400);
    CHECK(FailureOfLoading() == 0);
    PageObject& pattern = AddObject(ObjectKind::Rectangle, 0, 400, 400, 0);
    pattern.Brush = BrushStyle::Picture;
    pattern.BrushPicture = Scratch("fills/F21_sc.BMP");
    pattern.Fill = Scratch("fills/F21.bmp");
    CHECK(FailureOfLoading() == FileNotFound);
    WriteTestPattern("F21.BMP", 0, 0);
    CHECK(FailureOfLoading() == 0);
    AddObject(ObjectKind::Picture, 50, 200, 200, 50).String = Scratch("MAP.BMP");
    CHECK(FailureOfLoading() == FileNotFound);
    WriteScratch("MAP.BMP", "no picture");
    CHECK(FailureOfLoading() == InvalidPicture);
}

TEST_CASE("a picture loads in any form that its bytes tell, whatever its name says")
{
    StartTestPage(400, 400);
    QImage(3, 2, QImage::Format_RGB32).save(QString::fromStdString(Scratch("png.bmp")), "png");
    WritePicture("real.bmp");
    WriteScratch("text.bmp", "a text");
    WriteScratch("cut.bmp", ReadScratch("real.bmp").substr(0, 30));
    WriteScratch("empty.bmp", "");
    CHECK(PictureLoads(Scratch("png.bmp")));
    CHECK(PictureLoads(Scratch("REAL.BMP")));
    for (const char* name : {"text.bmp", "cut.bmp", "empty.bmp", "gone.bmp"}) {
        CAPTURE(name);
        CHECK_FALSE(PictureLoads(Scratch(name)));
    }
}

static void Replace(const char* name, std::string_view bytes)
{
    WriteWholeFile(Scratch(name), bytes, Durability::Scratch);
}

TEST_CASE("a map that has changed on the disk is the old one until a run begins, then the new one")
{
    StartTestPage(400, 400);
    AddObject(ObjectKind::Picture, 100, 300, 300, 100).String = Scratch("MAP.BMP");
    const auto colour = [] { return Painted().pixel(200, 200); };
    Replace("MAP.BMP", EncodeBitmap(Bitmap{1, 1, {0xFF0000}}));
    CHECK(colour() == qRgb(255, 0, 0));
    Replace("MAP.BMP", EncodeBitmap(Bitmap{1, 1, {0x0000FF}}));
    CHECK(colour() == qRgb(255, 0, 0));
    DropChangedPictures();
    CHECK(colour() == qRgb(0, 0, 255));
    Replace("MAP.BMP", "no picture");
    DropChangedPictures();
    CHECK_FALSE(PictureLoads(Scratch("MAP.BMP")));
    Replace("MAP.BMP", EncodeBitmap(Bitmap{1, 1, {0x00FF00}}));
    DropChangedPictures();
    CHECK(PictureLoads(Scratch("MAP.BMP")));
    CHECK(colour() == qRgb(0, 255, 0));
    std::filesystem::remove(Scratch("MAP.BMP"));
    DropChangedPictures();
    CHECK_FALSE(PictureLoads(Scratch("MAP.BMP")));
}

TEST_CASE("a pattern that has been mended is painted anew from the next run on, at full size and averaged")
{
    StartTestPage(400, 400);
    PageObject& object = AddObject(ObjectKind::Rectangle, 0, 300, 300, 0);
    object.Brush = BrushStyle::Picture;
    object.BrushPicture = Scratch("fills/F21_sc.BMP");
    object.Fill = Scratch("fills/F21.bmp");
    object.PenWidth = 1;
    WriteTestPattern("F21.BMP", 0, 0);
    CHECK(Dark(Painted(), 15, 15));
    CHECK(Dark(Painted(0.5), 8, 8));
    WriteTestPattern("F21.BMP", 60, 60);
    CHECK(Dark(Painted(), 15, 15));
    Platform.DropChangedPictures = DropChangedPictures;
    ForgetChangedPictures();
    for (const double scale : {1.0, 0.5}) {
        const QImage image = Painted(scale);
        CHECK_FALSE(Dark(image, int(15 * scale), int(15 * scale)));
        CHECK(Dark(image, int(75 * scale), int(75 * scale)));
    }
}

TEST_CASE("a picture fills its corners, found in any case of its name")
{
    StartTestPage(400, 400);
    Bitmap bitmap{2, 2, {0xFF0000, 0x00FF00, 0x0000FF, 0xFFFFFF}};
    WriteScratch("Map.bmp", EncodeBitmap(bitmap));
    AddObject(ObjectKind::Picture, 100, 300, 300, 100).String = Scratch("MAP.BMP");
    const QImage image = Painted();
    CHECK(qRed(image.pixel(110, 110)) > 200);
    CHECK(qGreen(image.pixel(110, 110)) < 60);
    CHECK(qBlue(image.pixel(110, 290)) > 200);
    CHECK(image.pixel(90, 200) == qRgb(255, 255, 255));
}
