// screenview_bench.cpp -- what a move in the screen view costs on a page of 3,000 objects: a drag, a step of the rubber
// band, a zoom step with the page drawn anew. On a screen that is not there, 1280 by 900.
#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "canvas/patterns.h"
#include "run/screenview.h"
#include "session/deviceconfig.h"
#include "session/platform.h"
#include "session/session.h"
#include "windows/pageview.h"

#include <QApplication>
#include <QMouseEvent>
#include <benchmark/benchmark.h>

static PageView* view = nullptr;

// Texts, lines and patterned boxes all over the sheet.
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

static void Mouse(QEvent::Type type, QPoint at)
{
    QMouseEvent event(type, at, view->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, {});
    QApplication::sendEvent(view, &event);
    view->repaint(); // all of it, more than the move asks for
}

static void Drag(benchmark::State& state)
{
    view->SetView(FullWidth({}, 1280));
    Mouse(QEvent::MouseButtonPress, QPoint(400, 400));
    int i = 0;
    for (auto _ : state) {
        ++i;
        Mouse(QEvent::MouseMove, QPoint(400 + i % 100, 400 - i % 100));
    }
    Mouse(QEvent::MouseButtonRelease, QPoint(400, 400));
}
BENCHMARK(Drag)->Unit(benchmark::kMillisecond);

static void RubberBand(benchmark::State& state)
{
    view->SetView(FullWidth({}, 1280));
    view->RectangleMode(true);
    Mouse(QEvent::MouseButtonPress, QPoint(100, 100));
    int i = 0;
    for (auto _ : state) {
        ++i;
        Mouse(QEvent::MouseMove, QPoint(120 + i % 90 * 8, 120 + i % 90 * 5));
    }
    view->RectangleMode(false);
}
BENCHMARK(RubberBand)->Unit(benchmark::kMillisecond);

static void ZoomStep(benchmark::State& state)
{
    view->SetView(FullWidth({}, 1280));
    int i = 0;
    for (auto _ : state) {
        view->SetView(ZoomAbout(view->View(), ++i % 2 == 0 ? 1.25 : 0.8, 600, 400));
        view->repaint();
    }
}
BENCHMARK(ZoomStep)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    Platform.MsgBox = [](const Text&, Buttons, Icon) { return int(Ok); };
    Platform.PrinterSheet = DefaultSheet;
    Platform.Unattended = true;
    WorkingFolder = RunFolder = BUILD_DIR;
    LoadDevice();
    CrowdedPage();
    QWidget window;
    window.resize(1280, 900);
    PageView pageView(&window);
    pageView.setGeometry(window.rect());
    view = &pageView;
    window.show();
    QApplication::processEvents();
    pageView.SetPage();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
