// smoothness_test.cpp -- what a move costs on a crowded page. The bounds are wide, for a busy machine: they catch a
// page that is drawn anew at every move, which is what must not be.
#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "canvas/patterns.h"
#include "canvas/screenview.h"
#include "platform/qt/pageview.h"
#include "windows/driver.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QTest>
#include <algorithm>

// A page of 3000 objects: texts, lines, patterned boxes, all over the sheet.
static void CrowdedPage()
{
    canvasstart("P");
    float x = 0.25, y = 0.25;
    setorigin(x, y);
    setscalex(1);
    setscaley(1);
    setfontsize(7);
    for (int i = 0; i < 1000; ++i) {
        moveto(float(0.2 + i % 25 * 0.3), float(0.2 + i / 25 * 0.25));
        setfillfile(21 + i % 30);
        rectfill(0.25, 0.12);
        lineby(0.2, 0.1);
        printtext("SM, fine");
    }
}

static double Median(std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

TEST_CASE("dragging, the rubber band and a zoom step stay quick on a page of 3000 objects")
{
    UseDesktop();
    CrowdedPage();
    REQUIRE(PageList.Objects.size() == 3000);
    QWidget window;
    window.resize(1280, 900);
    PageView view(&window);
    view.setGeometry(window.rect());
    window.show();
    REQUIRE(QTest::qWaitForWindowExposed(&window));
    view.SetPage();
    view.SetView(FullWidth({}, 1280, 1280));
    const auto measure = [&](int times, auto move) {
        std::vector<double> took;
        for (int i = 0; i < times; ++i) {
            QElapsedTimer clock;
            clock.start();
            move(i);
            took.push_back(double(clock.nsecsElapsed()) / 1e6);
        }
        return Median(took);
    };
    const auto mouse = [&](QEvent::Type type, QPoint at) {
        QMouseEvent event(type, at, view.mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, {});
        QApplication::sendEvent(&view, &event);
        view.repaint(); // all of it, more than the move asks for
    };
    const ViewRecord before = view.View();
    mouse(QEvent::MouseButtonPress, QPoint(400, 400));
    const double drag = measure(60, [&](int i) { mouse(QEvent::MouseMove, QPoint(400 + i, 400 - i * 2)); });
    mouse(QEvent::MouseButtonRelease, QPoint(400, 400));
    CHECK(view.View().Top == before.Top + 118);
    view.RectangleMode(true);
    mouse(QEvent::MouseButtonPress, QPoint(100, 100));
    const double band = measure(60, [&](int i) { mouse(QEvent::MouseMove, QPoint(120 + i * 8, 120 + i * 5)); });
    view.RectangleMode(false);
    const double zoom = measure(20, [&](int i) {
        view.SetView(ZoomAbout(view.View(), i % 2 == 0 ? 1.25 : 0.8, 600, 400));
        view.repaint();
    });
    MESSAGE("milliseconds at the median: drag " << drag << ", rubber band " << band << ", zoom step " << zoom);
    CHECK(drag < 25);
    CHECK(band < 25);
    CHECK(zoom < 400);
}
