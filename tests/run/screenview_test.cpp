// screenview_test.cpp -- steering a run from the screen view, printing a page, the sums of the zooms.
#include "run/screenview.h"

#include "testing.h"

#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "canvas/patterns.h"
#include "session/failure.h"
#include "session/files.h"

static void StartPage(const char* mode)
{
    float x = 0.25f, y = 0.25f;
    canvasstart(mode);
    setscalex(1);
    setscaley(1);
    setorigin(x, y);
}

// A page with a plain, a tinted and a solid fill.
static void DrawFills()
{
    Bitmap bitmap;
    bitmap.Width = bitmap.Height = 150;
    bitmap.Pixels.assign(150 * 150, 0xFFFFFF);
    std::filesystem::create_directories(Scratch("fills"));
    WriteScratch("fills/F21.BMP", EncodeBitmap(bitmap));
    StartPage("P");
    setfillfile(21);
    rectfill(1, 1);
    rectfillcolored(1, 1, "0 0 255");
    rectfillrgb(1, 1, "1 2 3");
}

static std::vector<Text> Brushes()
{
    std::vector<Text> names;
    for (const PageObject& object : PageList.Objects)
        names.push_back(BaseName(object.BrushPicture));
    return names;
}

static void Run(int count, int index, int zeroBased)
{
    RunPages.pageCount = static_cast<int16_t>(count);
    RunPages.pageIndex = static_cast<int16_t>(index);
    RunPages.zeroBased = static_cast<int16_t>(zeroBased);
}

TEST_CASE("Previous on the first page of a log run is told, and the view stays")
{
    Run(5, 0, 1);
    CHECK_FALSE(PreviousPage());
    CHECK(RunPages.pageIndex == 0);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "This is the first drawing.");
}

TEST_CASE("Previous goes back one page")
{
    Run(5, 3, 1);
    CHECK(PreviousPage());
    CHECK(RunPages.pageIndex == 2);
    CHECK(Messages.empty());
}

TEST_CASE("after a log run, Previous on page 1 of another run goes to index 0 without a message")
{
    Run(3, 1, 1);
    CHECK(PreviousPage());
    CHECK(RunPages.pageIndex == 0);
    CHECK(Messages.empty());
    Run(3, 1, 0);
    CHECK_FALSE(PreviousPage());
    CHECK(RunPages.pageIndex == 1);
    CHECK(Messages.size() == 1);
}

TEST_CASE("Next on the last page ends the run, and Exit on any page")
{
    Run(5, 4, 1);
    CHECK(NextPage());
    CHECK(RunPages.pageIndex == 5);
    Run(5, 0, 1);
    CHECK(ExitRun());
    CHECK(RunPages.pageIndex == 6);
}

TEST_CASE("GoTo asks between 1 and the page count, and goes to the page before the answer in either counting")
{
    Run(5, 0, 1);
    InputAnswers = {"3", "99", "0", "x", "-4", "5.5"};
    CHECK(GoToPage());
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Go To Page: Enter a Page Number between 1 and 5");
    CHECK(RunPages.pageIndex == 2);
    CHECK(GoToPage());
    CHECK(RunPages.pageIndex == 4);
    CHECK(GoToPage());
    CHECK(RunPages.pageIndex == 0);
    CHECK(GoToPage());
    CHECK(RunPages.pageIndex == 0);
    CHECK(GoToPage());
    CHECK(RunPages.pageIndex == 0);
    CHECK(GoToPage());
    CHECK(RunPages.pageIndex == 4);
}

TEST_CASE("GoTo with an empty answer does nothing")
{
    Run(5, 2, 1);
    CHECK_FALSE(GoToPage());
    CHECK(RunPages.pageIndex == 2);
}

TEST_CASE("GoTo in a run that counts from 1 shows the page before the answer")
{
    Run(5, 2, 0);
    InputAnswers = {"1"};
    CHECK(GoToPage());
    CHECK(RunPages.pageIndex == 0);
}

TEST_CASE("the DXF file lies beside the source, with its last four characters replaced")
{
    RunPages.pageFile = "C:\\JOB\\B-1.BOR";
    CHECK(DxfName() == "C:\\JOB\\B-1.dxf");
    RunPages.pageFile = "x";
    CHECK(FailureOf([] { DxfName(); }) == InvalidCall);
}

TEST_CASE("a page goes to the printer with the full bitmaps, and the screen's patterns are back afterwards")
{
    DrawFills();
    CHECK(Brushes() == std::vector<Text>{"F21_sc.BMP", "T1_sc.bmp", ""});
    static std::vector<Text> printed;
    Platform.PrintPage = [] { printed = Brushes(); };
    printcanvas();
    CHECK(printed == std::vector<Text>{"F21.bmp", "T1.bmp", ""});
    CHECK(Brushes() == std::vector<Text>{"F21_sc.bmp", "T1_sc.bmp", ""});
    CHECK(PatternPicture(PageList.Objects[0].BrushPicture).Width == 25);
    CHECK(PatternPicture(PageList.Objects[0].Fill).Width == 150);
}

TEST_CASE("a pattern removed before printing is failure 53, and nothing is printed or changed")
{
    DrawFills();
    std::filesystem::remove(Scratch("fills/F21.BMP"));
    CHECK(FailureOf(printcanvas) == FileNotFound);
    CHECK(PlainPrinted == 0);
    CHECK(Brushes()[0] == "F21_sc.BMP");
}

TEST_CASE("a print that fails leaves the screen's patterns")
{
    DrawFills();
    Platform.PrintPage = [] { throw RunTimeError{PrinterError}; };
    CHECK(FailureOf(printcanvas) == PrinterError);
    CHECK(Brushes() == std::vector<Text>{"F21_sc.bmp", "T1_sc.bmp", ""});
}

TEST_CASE("an object with a colour attribute is printed with a black pen")
{
    StartPage("P");
    lineright(1);
    lineright(1);
    PageList.Objects[0].Color = "255";
    PageList.Objects[0].PenColor = PageList.Objects[1].PenColor = 7;
    static int32_t first, second;
    Platform.PrintPage = [] {
        first = PageList.Objects[0].PenColor;
        second = PageList.Objects[1].PenColor;
    };
    printcanvas();
    CHECK(first == 0);
    CHECK(second == 7);
    CHECK(PageList.Objects[0].PenColor == 255);
    CHECK(PageList.Objects[1].PenColor == 7);
}

TEST_CASE("a page without objects prints blank")
{
    StartPage("P");
    printcanvas();
    CHECK(PlainPrinted == 1);
}

TEST_CASE("the end of a page shows it, or prints it and steps on")
{
    StartPage("P");
    Run(2, 0, 1);
    PlainShowPage = [] { RunPages.pageIndex = 7; };
    ShowOrPrint();
    CHECK(RunPages.pageIndex == 7);
    CHECK(PlainPrinted == 0);
    CHECK(Listings.size() == 1);
    RunPages.printing = 1;
    ShowOrPrint();
    CHECK(RunPages.pageIndex == 8);
    CHECK(PlainPrinted == 1);
    CHECK(Listings.size() == 2);
}

TEST_CASE("Zoom Screen Width takes the window's width and goes to the top")
{
    StartPage("P");
    const ViewRecord view = ZoomScreenWidth({100, 100, 30, 40}, 960);
    CHECK(view.ImageWidth == 960);
    CHECK(view.ImageHeight == 1260);
    CHECK(view.Left == 30);
    CHECK(view.Top == 0);
}

TEST_CASE("Zoom Page fits the page whole and centres it, by the side that is short")
{
    StartPage("P");
    ViewRecord view = ZoomPage(1000, 601, 950, 570);
    CHECK(view.ImageHeight == 601);
    CHECK(view.ImageWidth == 458);
    CHECK(view.Left == -246);
    CHECK(view.Top == 15.5);
    StartPage("L");
    view = ZoomPage(500, 800, 475, 760);
    CHECK(view.ImageWidth == 500);
    CHECK(view.ImageHeight == 381);
    CHECK(view.Left == 12.5);
    CHECK(view.Top == -189.5);
}

TEST_CASE("Zoom Window fills the control with the rectangle, less two pixels")
{
    StartPage("P");
    const ViewRecord view = ZoomWindow(1200, 3000, 2400, 4500, 962, 602, 1, 1);
    CHECK(view.ImageWidth == 960.0 * 4800 / 1200);
    CHECK(view.ImageHeight == 600.0 * 6300 / 1500);
    CHECK(view.Left == 960);
    CHECK(view.Top == 1200);
    CHECK(ZoomWindow(2400, 4500, 1200, 3000, 962, 602, 1, 1).ImageWidth == view.ImageWidth);
}

TEST_CASE("a Zoom Window without width or height is a division by zero")
{
    StartPage("P");
    CHECK(FailureOf([] { ZoomWindow(10, 10, 10, 20, 900, 600, 1, 1); }) == DivisionByZero);
    CHECK(FailureOf([] { ZoomWindow(10, 10, 20, 10, 900, 600, 1, 1); }) == DivisionByZero);
}

TEST_CASE("a page whose source has fewer than four characters has no name for its drawing")
{
    RunPages.pageFile = "abc";
    CHECK(FailureOf([] { DxfName(); }) == InvalidCall);
    RunPages.pageFile = ".BOR";
    CHECK(DxfName() == ".dxf");
}
