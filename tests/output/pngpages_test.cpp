// pngpages_test.cpp -- the page as a picture file.
#include "painter/pngpages.h"

#include "output/painting.h"

TEST_CASE("a PNG is the whole paper with its margin, at the resolution asked for")
{
    StartTestPage(4800, 6300);
    PageObject& object = AddObject(ObjectKind::Line, 0, 0, 4800, 0);
    object.PenWidth = 20;
    SavePagePng(Scratch("page.png"), 150);
    const QImage image(QString::fromStdString(Scratch("page.png")));
    CHECK(image.width() == 1275);
    CHECK(image.height() == 1650);
    CHECK(image.dotsPerMeterX() == 5906);
    CHECK(!Dark(image, 36, 37));
    CHECK(Dark(image, 38, 37));
    CHECK(Dark(image, 1236, 37));
    CHECK(!Dark(image, 1238, 37));
    SavePagePng(Scratch("page.png"), 75);
    CHECK(QImage(QString::fromStdString(Scratch("page.png"))).width() == 638);
}

TEST_CASE("a PNG keeps its colours")
{
    StartTestPage(600, 600);
    PageObject& object = AddObject(ObjectKind::Polygon, 0, 0, 0, 0);
    object.Vertices = {{0, 0}, {600, 0}, {600, 600}, {0, 600}};
    object.BrushColor = ColorOf(166, 26, 26);
    SavePagePng(Scratch("page.png"), 100);
    CHECK(QImage(QString::fromStdString(Scratch("page.png"))).pixel(75, 75) == qRgb(166, 26, 26));
}
