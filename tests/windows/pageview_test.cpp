// pageview_test.cpp -- the page in the screen view under the mouse.
#include "platform/qt/pageview.h"

#include "canvas/metaugl.h"
#include "canvas/screenview.h"
#include "windows/driver.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTest>

static void Mouse(PageView& view, QEvent::Type type, QPoint at)
{
    QMouseEvent event(type, at, view.mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, {});
    QApplication::sendEvent(&view, &event);
}

TEST_CASE("the page follows the mouse while it is dragged")
{
    UseDesktop();
    canvasstart("P");
    QWidget window;
    window.resize(1280, 900);
    PageView view(&window);
    view.setGeometry(window.rect());
    window.show();
    REQUIRE(QTest::qWaitForWindowExposed(&window));
    view.SetPage();
    view.SetView(FullWidth({}, 1280));
    const ViewRecord before = view.View();
    Mouse(view, QEvent::MouseButtonPress, QPoint(400, 400));
    for (int i = 0; i < 60; ++i)
        Mouse(view, QEvent::MouseMove, QPoint(400 + i, 400 - i * 2));
    Mouse(view, QEvent::MouseButtonRelease, QPoint(459, 282));
    CHECK(view.View().Top == before.Top + 118);
}
