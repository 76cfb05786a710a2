// pageview_test.cpp -- the page in the screen view under the mouse.
#include "windows/pageview.h"

#include "canvas/metaugl.h"
#include "run/screenview.h"
#include "windows/driver.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTest>

static void Mouse(PageView& view, QEvent::Type type, QPoint at)
{
    QMouseEvent event(type, at, view.mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, {});
    QApplication::sendEvent(&view, &event);
}

namespace
{
// A page at screen width in a window of its own. The desktop first: no widget stands before it.
struct Desktop {
    Desktop()
    {
        UseDesktop();
        canvasstart("P");
    }
};
struct Shown : Desktop {
    Shown()
    {
        window.resize(1280, 900);
        view.setGeometry(window.rect());
        window.show();
        REQUIRE(QTest::qWaitForWindowExposed(&window));
        view.SetPage();
        view.SetView(FullWidth({}, 1280));
    }
    QWidget window;
    PageView view{&window};
};
} // namespace

TEST_CASE("the arrow keys move the view over the page, each its own way")
{
    Shown shown;
    PageView& view = shown.view;
    ViewRecord start = FullWidth({}, 1280);
    start.Left = 300;
    start.Top = 200;
    struct Move {
        Qt::Key key;
        double left, top;
    };
    for (const Move& move :
         {Move{Qt::Key_Left, -48, 0}, {Qt::Key_Right, 48, 0}, {Qt::Key_Up, 0, -48}, {Qt::Key_Down, 0, 48}}) {
        CAPTURE(int(move.key));
        view.SetView(start);
        int moved = 0;
        view.onMoved = [&] { ++moved; };
        QTest::keyClick(&view, move.key);
        CHECK(view.View().Left == start.Left + move.left);
        CHECK(view.View().Top == start.Top + move.top);
        CHECK(view.View().ImageWidth == start.ImageWidth);
        CHECK(moved == 1);
    }
}

TEST_CASE("plus and minus zoom about the middle of the view, and an equals sign is a plus without its shift")
{
    Shown shown;
    PageView& view = shown.view;
    struct Zoom {
        Qt::Key key;
        double factor;
    };
    for (const Zoom& zoom : {Zoom{Qt::Key_Plus, 1.25}, {Qt::Key_Equal, 1.25}, {Qt::Key_Minus, 0.8}}) {
        CAPTURE(int(zoom.key));
        view.SetView(FullWidth({}, 1280));
        const ViewRecord before = view.View();
        QTest::keyClick(&view, zoom.key);
        CHECK(view.View().ImageWidth == doctest::Approx(1280 * zoom.factor));
        CHECK(PageX(view.View(), 640) == doctest::Approx(PageX(before, 640)));
        CHECK(PageY(view.View(), 450) == doctest::Approx(PageY(before, 450)));
    }
}

TEST_CASE("the keys stop where a quarter of the window still shows the page")
{
    Shown shown;
    for (int i = 0; i < 60; ++i)
        QTest::keyClick(&shown.view, Qt::Key_Right);
    CHECK(shown.view.View().Left == 1280 - 1280 * ReachPart);
}

TEST_CASE("the page follows the mouse while it is dragged")
{
    Shown shown;
    PageView& view = shown.view;
    const ViewRecord before = view.View();
    Mouse(view, QEvent::MouseButtonPress, QPoint(400, 400));
    for (int i = 0; i < 60; ++i)
        Mouse(view, QEvent::MouseMove, QPoint(400 + i, 400 - i * 2));
    Mouse(view, QEvent::MouseButtonRelease, QPoint(459, 282));
    CHECK(view.View().Top == before.Top + 118);
}
