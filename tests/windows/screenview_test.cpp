// screenview_test.cpp -- the screen view by mouse and keys.
#include "canvas/bitmap.h"
#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "painter/pdfrun.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "session/files.h"
#include "session/session.h"
#include "windows/driver.h"
#include "windows/pageview.h"

#include <QElapsedTimer>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QTest>
#include <QWheelEvent>

static PageView* View(QWidget* window)
{
    return dynamic_cast<PageView*>(window->findChild<QWidget*>("MDraw"));
}

static QString Place(QWidget* window)
{
    return window->findChild<QLabel*>("lblPage")->text();
}

static void Exit(QWidget* window)
{
    ClickMenu(window, "mnuFile", "mnuExit");
}

TEST_CASE("a sample is previewed: Next, Previous, GoTo and Exit steer the run")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-101.BOR");
    Then("DrawArea", [](QWidget* window) {
        CHECK(window->windowTitle() == "Screen View");
        CHECK(Place(window) == "Page 1 of 3");
        CHECK(PageList.Objects.size() > 50);
        ClickMenu(window, "", "mnuNext");
    });
    Then("DrawArea", [](QWidget* window) {
        CHECK(Place(window) == "Page 2 of 3");
        ClickMenu(window, "", "mnuPrevious");
    });
    Then("DrawArea", [](QWidget* window) {
        CHECK(Place(window) == "Page 1 of 3");
        ClickMenu(window, "", "mnuPrevious");
        CHECK(window->isVisible());
        ClickMenu(window, "", "mnuGotoPage");
    });
    ThenAnswer("This is the first drawing.", "OK");
    Then("InputBox", [](QWidget* window) {
        CHECK(window->windowTitle() == "Go To Page");
        auto* box = qobject_cast<QInputDialog*>(window);
        CHECK(box->labelText() == "Enter a Page Number between 1 and 3");
        CHECK(box->textValue() == "1");
        auto* answer = window->findChild<QLineEdit*>();
        answer->selectAll();
        QTest::keyClicks(answer, "99");
        QTest::keyClick(answer, Qt::Key_Return);
    });
    Then("DrawArea", [](QWidget* window) {
        CHECK(Place(window) == "Page 3 of 3");
        Exit(window);
    });
    ClickMenu(log, "mnuFile", "mnuPreview");
    CheckAllDone();
    CHECK(RunPages.pageIndex == 4);
    CHECK(QApplication::activeModalWidget() == nullptr);
}

TEST_CASE("Page Down and Page Up go through the pages, and Page Down on the last one ends the run")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-102.BOR");
    Then("DrawArea", [](QWidget* window) { Key(window, Qt::Key_PageDown); });
    Then("DrawArea", [](QWidget* window) {
        CHECK(Place(window) == "Page 2 of 2");
        Key(window, Qt::Key_PageUp);
    });
    Then("DrawArea", [](QWidget* window) {
        CHECK(Place(window) == "Page 1 of 2");
        Key(window, Qt::Key_PageDown);
    });
    Then("DrawArea", [](QWidget* window) { Key(window, Qt::Key_PageDown); });
    ClickMenu(log, "mnuFile", "mnuPreview");
    CheckAllDone();
    CHECK(RunPages.pageIndex == 2);
    Settle(200);
    CHECK(QApplication::activeModalWidget() == nullptr);
}

TEST_CASE("closing the screen view ends the run as Exit does")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-101.BOR");
    Then("DrawArea", [](QWidget* window) { window->close(); });
    ClickMenu(log, "mnuFile", "mnuPreview");
    CheckAllDone();
    CHECK(RunPages.pageIndex == 4);
}

TEST_CASE("a portrait page opens at screen width, a landscape page fitted whole, and the menu has both")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-103.BOR");
    Then("DrawArea", [](QWidget* window) {
        const QWidget* form = window->findChild<QWidget*>("Form");
        PageView* view = View(window);
        CHECK(view->width() == qRound(form->width() * 0.95));
        CHECK(view->height() == qRound(form->height() * 0.95));
        CHECK(view->View().ImageWidth == view->width());
        CHECK(view->View().Left == 0);
        ClickMenu(window, "mnuZoom", "mnuZoomPage");
        CHECK(view->View().ImageHeight == view->height());
        CHECK(view->View().Top == 0);
        ClickMenu(window, "mnuZoom", "mnuZoomScreenWidth");
        CHECK(view->View().ImageWidth == view->width());
        CHECK(view->View().Top == 0);
        Exit(window);
    });
    ClickMenu(log, "mnuFile", "mnuPreview");
    OpenSample("TC-102.BOR");
    Then("DrawArea", [](QWidget* window) {
        const QWidget* view = View(window);
        const double aspect = 10.5 / 8;
        CHECK(View(window)->View().ImageHeight ==
              std::nearbyint(std::min(double(view->height()), view->width() / aspect)));
        Exit(window);
    });
    ClickMenu(log, "mnuFile", "mnuPreview");
    CheckAllDone();
}

TEST_CASE("on a window of another size the page keeps its 95 percent and its fit")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-103.BOR");
    Then("DrawArea", [](QWidget* window) {
        window->resize(700, 500);
        Settle();
        const QWidget* form = window->findChild<QWidget*>("Form");
        CHECK(View(window)->width() == qRound(form->width() * 0.95));
        CHECK(View(window)->View().ImageWidth == View(window)->width());
        CHECK(View(window)->x() == (form->width() - View(window)->width()) / 2);
        Exit(window);
    });
    ClickMenu(log, "mnuFile", "mnuPreview");
    CheckAllDone();
}

static void Wheel(PageView* view, QPoint at, int clicks)
{
    QWheelEvent event(at, view->mapToGlobal(at), {}, QPoint(0, 120 * clicks), {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(view, &event);
}

TEST_CASE("in the screen view the keys go to the page, and a fit that was left does not come back with the next size")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-103.BOR");
    Then("DrawArea", [](QWidget* window) {
        PageView* view = View(window);
        REQUIRE(window->focusWidget() == view);
        const double fitted = view->View().ImageWidth;
        QTest::keyClick(window->focusWidget(), Qt::Key_Plus);
        CHECK(view->View().ImageWidth == doctest::Approx(fitted * 1.25));
        const QString shown = window->findChild<QLabel*>("lblZoom")->text();
        QTest::keyClick(window->focusWidget(), Qt::Key_Minus);
        CHECK(view->View().ImageWidth == doctest::Approx(fitted));
        CHECK(window->findChild<QLabel*>("lblZoom")->text() != shown);
        const ViewRecord before = view->View();
        QTest::keyClick(window->focusWidget(), Qt::Key_Down);
        CHECK(view->View().Top == before.Top + 48);
        window->resize(window->width() - 200, window->height());
        Settle();
        CHECK(view->View().ImageWidth == doctest::Approx(fitted));
        Exit(window);
    });
    ClickMenu(log, "mnuFile", "mnuPreview");
    CheckAllDone();
}

TEST_CASE("the wheel zooms at the pointer and the mouse drags the page; the picture is sharp when they rest")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-103.BOR");
    Then("DrawArea", [](QWidget* window) {
        PageView* view = View(window);
        const ViewRecord before = view->View();
        Wheel(view, QPoint(200, 150), 4);
        const ViewRecord zoomed = view->View();
        CHECK(zoomed.ImageWidth == doctest::Approx(before.ImageWidth * 1.25 * 1.25 * 1.25 * 1.25));
        CHECK(PageX(zoomed, 200) == doctest::Approx(PageX(before, 200)));
        CHECK(PageY(zoomed, 150) == doctest::Approx(PageY(before, 150)));
        CHECK_FALSE(view->UpToDate());
        Settle(150);
        CHECK(view->UpToDate());
        QTest::mousePress(view, Qt::LeftButton, {}, QPoint(300, 300));
        QTest::mouseMove(view, QPoint(260, 280));
        QTest::mouseRelease(view, Qt::LeftButton, {}, QPoint(260, 280));
        CHECK(view->View().Left == doctest::Approx(zoomed.Left + 40));
        CHECK(view->View().Top == doctest::Approx(zoomed.Top + 20));
        Exit(window);
    });
    ClickMenu(log, "mnuFile", "mnuPreview");
    CheckAllDone();
}

TEST_CASE("Zoom Window: the rectangle dragged fills the window, once")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-103.BOR");
    Then("DrawArea", [](QWidget* window) {
        PageView* view = View(window);
        ClickMenu(window, "mnuZoom", "mnuZoomWindow");
        CHECK(view->InRectangleMode());
        const ViewRecord before = view->View();
        const double left = PageX(before, 100), top = PageY(before, 80);
        QTest::mousePress(view, Qt::LeftButton, {}, QPoint(100, 80));
        QTest::mouseMove(view, QPoint(100 + view->width() / 4, 120));
        QTest::mouseRelease(view, Qt::LeftButton, {}, QPoint(100 + view->width() / 4, 120));
        CHECK_FALSE(view->InRectangleMode());
        CHECK(view->View().ImageWidth / before.ImageWidth == doctest::Approx(4).epsilon(0.02));
        CHECK(view->View().ImageHeight / before.ImageHeight == doctest::Approx(4).epsilon(0.02));
        CHECK(PageX(view->View(), 0) == doctest::Approx(left));
        CHECK(PageY(view->View(), 0) == doctest::Approx(top));
        CHECK(view->UpToDate());
        Exit(window);
    });
    ClickMenu(log, "mnuFile", "mnuPreview");
    CheckAllDone();
}

TEST_CASE("Zoom Window: a rectangle dragged up and to the left shows what lies in it")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-103.BOR");
    Then("DrawArea", [](QWidget* window) {
        PageView* view = View(window);
        ClickMenu(window, "mnuZoom", "mnuZoomWindow");
        const ViewRecord before = view->View();
        const int wide = view->width() / 4, high = view->height() / 4;
        const double left = PageX(before, 400 - wide), top = PageY(before, 300 - high);
        const double right = PageX(before, 400), bottom = PageY(before, 300);
        QTest::mousePress(view, Qt::LeftButton, {}, QPoint(400, 300));
        QTest::mouseMove(view, QPoint(400 - wide, 300 - high));
        QTest::mouseRelease(view, Qt::LeftButton, {}, QPoint(400 - wide, 300 - high));
        CHECK(PageX(view->View(), 0) == doctest::Approx(left).epsilon(0.01));
        CHECK(PageY(view->View(), 0) == doctest::Approx(top).epsilon(0.01));
        CHECK(PageX(view->View(), view->width()) == doctest::Approx(right).epsilon(0.01));
        CHECK(PageY(view->View(), view->height()) == doctest::Approx(bottom).epsilon(0.01));
        Exit(window);
    });
    ClickMenu(log, "mnuFile", "mnuPreview");
    CheckAllDone();
}

TEST_CASE("Zoom Window: a click without a drag is told as a division by zero, Escape leaves the mode")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-103.BOR");
    Then("DrawArea", [](QWidget* window) {
        PageView* view = View(window);
        ClickMenu(window, "mnuZoom", "mnuZoomWindow");
        const ViewRecord before = view->View();
        QTest::mouseClick(view, Qt::LeftButton, {}, QPoint(100, 80));
        CHECK(view->View().ImageWidth == before.ImageWidth);
        CHECK(view->InRectangleMode());
        Key(window, Qt::Key_Escape);
        CHECK_FALSE(view->InRectangleMode());
        Exit(window);
    });
    ThenAnswer("Error 11 in DrawArea.  Please contact Norvane", "OK");
    ClickMenu(log, "mnuFile", "mnuPreview");
    CheckAllDone();
}

static int RedPixels(QWidget* window)
{
    const QImage image = View(window)->grab().toImage();
    int red = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            red += qRed(image.pixel(x, y)) > 200 && qGreen(image.pixel(x, y)) < 60 && qBlue(image.pixel(x, y)) < 60;
    return red;
}

TEST_CASE("a site map that is mended between two previews is seen in the second one")
{
    QMainWindow* log = LogWindow();
    WritePicture("samples/SITEMAP.BMP");
    OpenSample("MW-108.BOR");
    Then("DrawArea", [](QWidget* window) {
        ClickMenu(window, "mnuZoom", "mnuZoomPage");
        CHECK(RedPixels(window) == 0);
        Exit(window);
    });
    ClickMenu(log, "mnuFile", "mnuPreview");
    WriteScratch("samples/SITEMAP.BMP", EncodeBitmap(Bitmap{1, 1, {0xFF0000}}));
    Then("DrawArea", [](QWidget* window) {
        ClickMenu(window, "mnuZoom", "mnuZoomPage");
        CHECK(RedPixels(window) > 1000);
        Exit(window);
    });
    ClickMenu(log, "mnuFile", "mnuPreview");
    CheckAllDone();
}

TEST_CASE("the page on the screen is the page on the canvas, at its place")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-103.BOR");
    Then("DrawArea", [](QWidget* window) {
        PageView* view = View(window);
        ClickMenu(window, "mnuZoom", "mnuZoomPage");
        const QImage seen = view->grab().toImage();
        // The upper left corner of the log's frame is an object like any other: its ink stands where the sums say.
        int dark = 0;
        for (const PageObject& object : PageList.Objects)
            if (object.Kind == ObjectKind::Rectangle && object.X1 != object.X2) {
                const double scale = view->View().ImageWidth / PageList.ExtentWidth;
                const QPoint at(int(object.X1 * scale - view->View().Left),
                                int((object.Y1 + object.Y2) / 2 * scale - view->View().Top));
                for (int x = -2; x <= 2; ++x)
                    dark += qGray(seen.pixel(at + QPoint(x, 0))) < 160;
                break;
            }
        CHECK(dark > 0);
        Exit(window);
    });
    ClickMenu(log, "mnuFile", "mnuPreview");
    CheckAllDone();
}

TEST_CASE("Export to DXF writes beside the source and says so")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-103.BOR");
    const Text name = Scratch("samples/TC-103.dxf");
    Then("DrawArea", [](QWidget* window) {
        ClickMenu(window, "mnuFile", "mnuDXF");
        CHECK(window->isVisible());
        Exit(window);
    });
    ThenAnswer(("FILE CREATED:  " + name).c_str(), "OK");
    ClickMenu(log, "mnuFile", "mnuPreview");
    CheckAllDone();
    CHECK(FileExists(name));
}

TEST_CASE("Export to PDF writes every page of the run, and the view stays on its page")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-101.BOR");
    const Text name = Scratch("samples/TC-101.pdf");
    Then("DrawArea", [](QWidget* window) { ClickMenu(window, "", "mnuNext"); });
    Then("DrawArea", [](QWidget* window) {
        const size_t objects = PageList.Objects.size();
        ClickMenu(window, "mnuFile", "mnuPDF");
        CHECK(Place(window) == "Page 2 of 3");
        CHECK(PageList.Objects.size() == objects);
        CHECK(RunPages.pageIndex == 1);
        ClickMenu(window, "", "mnuNext");
    });
    ThenAnswer(("FILE CREATED:  " + name).c_str(), "OK");
    Then("DrawArea", [](QWidget* window) {
        CHECK(Place(window) == "Page 3 of 3");
        Exit(window);
    });
    ClickMenu(log, "mnuFile", "mnuPreview");
    CheckAllDone();
    CHECK(WrittenByUs(name));
    const std::string bytes = ReadScratch("samples/TC-101.pdf");
    CHECK(bytes.find("/Count 3") != std::string::npos);
}

TEST_CASE("the pattern guide is a page like any other: shown, exported, left")
{
    QMainWindow* log = LogWindow();
    const Text name = Scratch("samples/fillpatt.pdf");
    Then("DrawArea", [](QWidget* window) {
        CHECK(PageList.Objects.size() > 150);
        CHECK(Place(window) == "");
        ClickMenu(window, "mnuFile", "mnuPDF");
        Exit(window);
    });
    ThenAnswer(("FILE CREATED:  " + name).c_str(), "OK");
    ClickMenu(log, "mnuUtilities", "mnuFillPatt");
    CheckAllDone();
    CHECK(WrittenByUs(name));
}
