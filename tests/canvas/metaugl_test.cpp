// metaugl_test.cpp -- the primitives: where the pen goes, what is added, what is rounded.
#include "canvas/metaugl.h"

#include "testing.h"

#include "canvas/pageobjects.h"
#include "session/failure.h"

static void StartPage(const char* mode = "P")
{
    float x = 0.25f, y = 0.25f;
    canvasstart(mode);
    setscalex(1);
    setscaley(1);
    setorigin(x, y);
}

static const PageObject& Last()
{
    return PageList.Objects.back();
}

TEST_CASE("setorigin at a quarter inch is the lower left corner, and lowers its arguments")
{
    canvasstart("P");
    float x = 0.25f, y = 0.25f;
    setorigin(x, y);
    CHECK(x == 0);
    CHECK(y == 0);
    CHECK(PageCanvas.penX == 0);
    CHECK(PageCanvas.penY == 6300);
    CHECK(PageCanvas.scaleX == 1);
}

TEST_CASE("moveto leaves an axis whose target is off the sheet, and takes a target on the limit")
{
    StartPage();
    moveto(1, 1);
    moveto(-0.1, 2);
    CHECK(PageCanvas.penX == 600);
    CHECK(PageCanvas.penY == 5100);
    moveto(8, 11);
    CHECK(PageCanvas.penX == 4800);
    CHECK(PageCanvas.penY == 5100);
    lineto(9, 1);
    CHECK(PageCanvas.penX == 5400);
}

TEST_CASE("the pen keeps its fraction over short steps, and only objects are rounded, half to even")
{
    StartPage();
    for (int i = 0; i < 1000; ++i)
        moveright(0.001);
    CHECK(PageCanvas.penX == doctest::Approx(600).epsilon(0.0001));
    PageCanvas.penX = 10.5f;
    lineright(0.01);
    CHECK(Last().X1 == 10);
    CHECK(Last().X2 == 16);
}

TEST_CASE("scales divide the distances along their axis")
{
    StartPage();
    moveto(1, 5);
    setscalex(2);
    setscaley(10);
    lineby(1, -10);
    CHECK(Last().X2 - Last().X1 == 300);
    CHECK(Last().Y2 - Last().Y1 == 600);
}

TEST_CASE("a scale of 0 set after the origin is failure 11 at the next scaled call")
{
    StartPage();
    setscaley(0);
    CHECK(FailureOf([] { moveup(1); }) == DivisionByZero);
}

TEST_CASE("linepolar goes counter-clockwise from the x axis")
{
    StartPage();
    moveto(2, 2);
    linepolar(90, 1);
    CHECK(Last().X2 == 1200);
    CHECK(Last().Y2 == 4500);
}

TEST_CASE("a filled rectangle of 0.01 draws nothing and one of 0.011 draws")
{
    StartPage();
    moveto(1, 1);
    PageCanvas.penX += 0.25f;
    rectfill(0.01, 1);
    CHECK(PageList.Objects.empty());
    CHECK(PageCanvas.penX == 600.25f);
    rectfill(0.011, 1);
    REQUIRE(PageList.Objects.size() == 1);
    CHECK(Last().Vertices.size() == 4);
    CHECK(Last().Vertices[0] == PagePoint{600, 5700});
}

TEST_CASE("after a closing call the pen is on the rounded first vertex")
{
    StartPage();
    PageCanvas.penX = 100.4f;
    PageCanvas.penY = 200.6f;
    polyright(1);
    polyup(1);
    polyfillrgb("1 2 3");
    CHECK(PageCanvas.penX == 100);
    CHECK(PageCanvas.penY == 201);
    CHECK(PageCanvas.polyCount == 0);
    CHECK(Last().BrushColor == ColorOf(1, 2, 3));
}

TEST_CASE("thirty vertices are kept and the next is failure 9")
{
    StartPage();
    for (int i = 0; i < 29; ++i)
        polyright(0.01);
    CHECK(PageCanvas.polyCount == 60);
    CHECK(FailureOf([] { polyright(0.01); }) == SubscriptOutOfRange);
}

TEST_CASE("polyfillrgb with fewer than two blanks is white")
{
    StartPage();
    moveto(1, 1);
    rectfillrgb(1, 1, "10 20");
    CHECK(Last().BrushColor == White);
}

TEST_CASE("a white fill is a solid polygon and the pattern over the same vertices")
{
    StartPage();
    moveto(1, 1);
    rectfillwhite(1, 1);
    REQUIRE(PageList.Objects.size() == 2);
    CHECK(PageList.Objects[0].Brush == BrushStyle::Solid);
    CHECK(PageList.Objects[0].BrushColor == White);
    CHECK(PageList.Objects[1].Brush == BrushStyle::Picture);
    CHECK(PageList.Objects[0].Vertices == PageList.Objects[1].Vertices);
}

TEST_CASE("a flag fill is black for exactly 1 and white otherwise, and its pen colours are its own")
{
    StartPage();
    moveto(1, 1);
    rectfillflag(1, 1, 1);
    CHECK(PageList.Objects[0].BrushColor == 0);
    CHECK(PageList.Objects[1].PenColor == 0);
    CHECK(PageList.Objects[1].BrushPicture == PageCanvas.fillsDir + "F0.bmp");
    CHECK(PageList.Objects[1].Fill == "");
    rectfillflag(1, 1, 0.99);
    CHECK(PageList.Objects[2].BrushColor == White);
    CHECK(PageList.Objects[2].PenColor == 0);
    CHECK(PageList.Objects[3].PenColor == 16777215);
    lineright(1);
    CHECK(Last().PenColor == 0);
}

TEST_CASE("a missing pattern falls back on the blank one")
{
    StartPage();
    moveto(1, 1);
    PageCanvas.fillFile = PageCanvas.fillsDir + "F99.BMP";
    rectfill(1, 1);
    CHECK(PageCanvas.fillFile == PageCanvas.fillsDir + "f0_sc.bmp");
    CHECK(Last().Fill == PageCanvas.fillsDir + "f0.bmp");
}

TEST_CASE("the pen style of a line type leaves in the caller's variable")
{
    StartPage();
    const int16_t expected[] = {0, 1, 3, 4, 2};
    for (int16_t n = 1; n <= 5; ++n) {
        int16_t style = n;
        setlinestyle(style);
        CHECK(style == expected[n - 1]);
    }
    setlinestyle(7);
    lineright(1);
    CHECK(Last().PenStyle == 0);
}

TEST_CASE("line widths are four units a step, held at 0 to 5")
{
    StartPage();
    setlinewidth(2);
    lineright(1);
    CHECK(Last().PenWidth == 8);
    setlinewidth(9);
    lineright(1);
    CHECK(Last().PenWidth == 20);
    setlinewidth(-1);
    lineright(1);
    CHECK(Last().PenWidth == 0);
}

TEST_CASE("a text with line breaks is one object a line, a line spacing apart")
{
    StartPage();
    moveto(1, 5);
    setfontsize(12);
    printtext("A\\NB\\nC");
    REQUIRE(PageList.Objects.size() == 3);
    CHECK(PageList.Objects[0].String == "A");
    CHECK(PageList.Objects[2].String == "C");
    CHECK(PageList.Objects[0].Y1 == 3300 + 11);
    CHECK(PageList.Objects[1].Y1 == 3400 + 11);
    CHECK(PageList.Objects[2].X1 == 600);
}

TEST_CASE("lines of a turned text are offset along x only, and nudged at 90 degrees alone")
{
    StartPage();
    moveto(1, 5);
    setfontsize(12);
    settextangle(45);
    printtext("A\\NB");
    CHECK(PageList.Objects[1].X1 == 700);
    CHECK(PageList.Objects[1].Y1 == 3300);
    settextangle(90);
    printtext("A");
    CHECK(Last().X1 == 611);
    CHECK(Last().Y1 == 3300);
}

TEST_CASE("the nudge is rounded by itself, at 6 point to even")
{
    StartPage();
    const struct {
        float points;
        int nudge;
    } cases[] = {{6, 6}, {7, 6}, {8, 7}, {9, 8}, {10, 9}, {12, 11}, {13, 12}};
    for (const auto& one : cases) {
        setfontsize(one.points);
        moveto(1, 5);
        printtextraw("x");
        CHECK(Last().Y1 == 3300 + one.nudge);
    }
}

TEST_CASE("centred text is padded with blanks by printtext and not by printtextraw")
{
    StartPage();
    textcenter();
    printtext("a");
    CHECK(Last().String == " a ");
    CHECK(Last().HAlign == 1);
    printtextraw("a");
    CHECK(Last().String == "a");
    printtext("");
    CHECK(Last().String == "  ");
}

TEST_CASE("printnum prints whole numbers without a point and others with up to two decimals")
{
    StartPage();
    const struct {
        float value;
        const char* text;
    } cases[] = {{12.00005f, "12"}, {12.5f, "12.5"}, {0.25f, ".25"},    {12.001f, "12."},
                 {-3, "-3"},        {0, "0"},        {11.9999f, "12."}, {-0.5f, "-.5"}};
    for (const auto& one : cases) {
        printnum(one.value);
        CHECK(Last().String == one.text);
    }
}

TEST_CASE("triangles stand on their centre whatever the scale, and put the pen back exactly")
{
    StartPage();
    moveto(2, 2);
    PageCanvas.penX += 0.3f;
    setscaley(7);
    const float x = PageCanvas.penX, y = PageCanvas.penY;
    triangledown(0.1);
    CHECK(PageList.Objects.size() == 3);
    CHECK(PageList.Objects[0].X1 == 1148);
    CHECK(PageList.Objects[0].Y1 == 5070);
    CHECK(PageList.Objects[0].X2 == 1252);
    CHECK(PageList.Objects[1].Y2 == 5160);
    CHECK(PageCanvas.penX == x);
    CHECK(PageCanvas.penY == y);
    CHECK(PageCanvas.scaleY == 7);
    triangleupsolid(0.1);
    CHECK(Last().Vertices.size() == 3);
    CHECK(Last().Vertices[2] == PagePoint{1200, 5040});
    CHECK(PageCanvas.penX == x);
}

TEST_CASE("an arc bulges up for side -1 and down for any other, its ends in drawing order")
{
    StartPage();
    moveto(1, 1);
    drawarc(1, -1);
    CHECK(Last().X1 == 900);
    CHECK(Last().Y1 == 5520);
    CHECK(Last().X2 == 1200);
    CHECK(Last().Vertices == std::vector<PagePoint>{{600, 5700}, {1200, 5700}});
    drawarc(1, 1);
    CHECK(Last().Y1 == 5880);
    CHECK(Last().X2 == 600);
    CHECK(Last().Vertices == std::vector<PagePoint>{{1200, 5700}, {600, 5700}});
    CHECK(PageCanvas.penX == 600);
}

TEST_CASE("a missing picture is told and adds nothing")
{
    StartPage();
    drawbitmap("nothing.bmp", 1, 1);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "File Not Found: nothing.bmp");
    CHECK(PageList.Objects.empty());
    WritePicture("MAP.BMP");
    moveto(1, 1);
    setscalex(5);
    drawbitmap("map.bmp", 2.35, -0.7);
    CHECK(Last().X2 == 600 + 1410);
    CHECK(Last().Y2 == 5700 + 420);
    CHECK(Last().String == "map.bmp");
}

TEST_CASE("a picture that is no picture is failure 481 and adds nothing, whatever the platform reads")
{
    StartPage();
    WriteScratch("MAP.BMP", "a text");
    CHECK(FailureOf([] { drawbitmap("map.bmp", 1, 1); }) == InvalidPicture);
    WritePicture("GOOD.BMP");
    Platform.PictureLoads = [](const Text& file) { return file != "good.bmp"; };
    CHECK(FailureOf([] { drawbitmap("good.bmp", 1, 1); }) == InvalidPicture);
    CHECK(PageList.Objects.empty());
    CHECK(Messages.empty());
}

TEST_CASE("bringtofront moves the object just added to the end of the list")
{
    StartPage();
    lineright(1);
    rectby(1, 1);
    bringtofront();
    CHECK(Last().Kind == ObjectKind::Rectangle);
    CHECK_FALSE(Last().Selected);
    CHECK(FailureOf([] {
              PageList.Objects.clear();
              bringtofront();
          }) == InvalidCall);
}

TEST_CASE("mode C keeps the sheet of the page before, and any other mode than P and L is 11 by 17")
{
    StartPage("L");
    canvasstart("C");
    CHECK(PageCanvas.pageWidthUnits == 6300);
    canvasstart("T");
    CHECK(PageCanvas.pageWidthUnits == 9900);
    canvasstart("");
    CHECK(PageCanvas.pageWidthInches == 16.5f);
}

TEST_CASE("a page is printed on the paper that its sheet was asked for with, also in mode C and without a mode")
{
    static char asked;
    Platform.PrinterSheet = [](char mode) { return DefaultSheet(asked = mode); };
    for (const char* mode : {"P", "L", "T", ""}) {
        canvasstart(mode);
        CHECK(PageCanvas.paper == asked);
        canvasstart("C");
        CHECK(PageCanvas.paper == asked);
    }
    CHECK(asked == 'T');
}

TEST_CASE("a new page resets text, pen width and fill but not the pen, the origin and the scales")
{
    StartPage();
    moveto(1, 1);
    setscaley(3);
    setfontsize(8);
    setlinewidth(5);
    textright();
    settextangle(90);
    canvasstart("P");
    CHECK(PageCanvas.penX == 600);
    CHECK(PageCanvas.scaleY == 3);
    CHECK(PageCanvas.lineSpacing == -83.3);
    CHECK(PageCanvas.textAlign == 0);
    CHECK(PageCanvas.textAngle == 0);
    CHECK(PageList.Default.PenWidth == 4);
    CHECK(PageCanvas.fillFile == PageCanvas.fillsDir + "F01.BMP");
}

TEST_CASE("a new page begins solid, black and not bold, whatever the page before has ended in")
{
    StartPage();
    setlinestyle(5);
    setcolor(9);
    textboldon();
    canvasstart("P");
    CHECK(PageList.Default.PenStyle == 0);
    CHECK(PageList.Default.PenColor == 0);
    CHECK_FALSE(PageList.Default.Bold);
}

TEST_CASE("moveto takes a target on each edge of the sheet and none beyond it")
{
    StartPage();
    moveto(1, 1);
    moveto(0, 10.5);
    CHECK(PageCanvas.penX == 0);
    CHECK(PageCanvas.penY == 0);
    moveto(8, 0);
    CHECK(PageCanvas.penX == 4800);
    CHECK(PageCanvas.penY == 6300);
    moveto(1, 1);
    moveto(8.002f, -0.002f);
    CHECK(PageCanvas.penX == 600);
    CHECK(PageCanvas.penY == 5700);
    moveto(-0.002f, 10.502f);
    CHECK(PageCanvas.penX == 600);
    CHECK(PageCanvas.penY == 5700);
}

TEST_CASE("setorigin gives a scale of 0 on either axis the value 1, and leaves any other")
{
    canvasstart("P");
    PageCanvas.scaleX = 0;
    PageCanvas.scaleY = 5;
    float x = 1, y = 1;
    setorigin(x, y);
    CHECK(PageCanvas.scaleX == 1);
    CHECK(PageCanvas.scaleY == 5);
    PageCanvas.scaleX = 4;
    PageCanvas.scaleY = 0;
    setorigin(x, y);
    CHECK(PageCanvas.scaleX == 4);
    CHECK(PageCanvas.scaleY == 1);
}

TEST_CASE("a polygon's sides go right, down, left and up, each by its scale")
{
    StartPage();
    setscaley(10);
    moveto(1, 50);
    polyright(1);
    polydown(10);
    polyleft(1);
    polyup(10);
    polyfillrgb("0 0 0");
    const PageObject& polygon = Last();
    REQUIRE(polygon.Vertices.size() == 5);
    const int32_t x[] = {600, 1200, 1200, 600, 600}, y[] = {3300, 3300, 3900, 3900, 3300};
    for (size_t i = 0; i < 5; ++i) {
        CHECK(polygon.Vertices[i].X == x[i]);
        CHECK(polygon.Vertices[i].Y == y[i]);
    }
}

TEST_CASE("a filled rectangle needs more than 0.01 both ways, upward and downward alike")
{
    StartPage();
    moveto(1, 1);
    rectfillwhite(1, 0.01f);
    rectfillrgb(1, -0.01f, "0 0 0");
    rectfillrgb(0.01f, 1, "0 0 0");
    rectfillcolored(1, 0.005f, "255 0 0");
    rectfillflag(1, 0.01f, 1);
    CHECK(PageList.Objects.empty());
    rectfillrgb(1, -0.011f, "0 0 0");
    CHECK(PageList.Objects.size() == 1);
}

TEST_CASE("line types outside 1 to 5 are solid, the ends of the range are what they are")
{
    StartPage();
    const std::pair<int16_t, int16_t> styles[] = {{0, 0}, {-3, 0}, {1, 0}, {5, 2}, {6, 0}};
    for (const auto& [type, style] : styles) {
        int16_t n = type;
        setlinestyle(n);
        CHECK(n == style);
    }
}

TEST_CASE("the pen colour is held at 0 to 15")
{
    StartPage();
    const std::pair<int, int32_t> colours[] = {{-1, 0}, {0, 0}, {7, 7}, {15, 15}, {16, 15}};
    for (const auto& [n, colour] : colours) {
        setcolor(n);
        lineright(1);
        CHECK(Last().PenColor == colour);
    }
}

TEST_CASE("the numbers of a colour are held at 0 to 255 each")
{
    StartPage();
    moveto(1, 1);
    rectfillrgb(1, 1, "300 -5 255");
    CHECK(Last().BrushColor == 0xFF00FF);
    rectfillrgb(1, 1, "1 2 3");
    CHECK(Last().BrushColor == 0x030201);
}

TEST_CASE("a backslash with no N behind it is a letter of the text, at its end too")
{
    StartPage();
    const size_t before = PageList.Objects.size();
    printtext("a\\b\\");
    CHECK(PageList.Objects.size() == before + 1);
    CHECK(Last().String == "a\\b\\");
    printtext("x\\y\\nz\\N");
    CHECK(PageList.Objects.size() == before + 4);
    CHECK(PageList.Objects[before + 1].String == "x\\y");
    CHECK(PageList.Objects[before + 2].String == "z");
    CHECK(Last().String == "");
}
