// pageobjects.cpp -- the kept list of one page.
#include "canvas/pageobjects.h"

#include "session/failure.h"
#include "session/shared.h"

#include <algorithm>

PageListRecord PageList;

static const SharedRecord shared[] = {
    {"PageList", Kind::Run, PageList},
};

void ClearPage(int32_t width, int32_t height)
{
    PageList.Objects.clear();
    PageList.ExtentWidth = width;
    PageList.ExtentHeight = height;
}

PageObject& AddObject(ObjectKind kind, int32_t x1, int32_t y1, int32_t x2, int32_t y2)
{
    if (PageList.Objects.size() >= MaxPageObjects)
        throw RunTimeError{OutOfMemory};
    PageObject& object = PageList.Objects.emplace_back();
    static_cast<ObjectStyle&>(object) = PageList.Default;
    object.Kind = kind;
    object.X1 = x1;
    object.Y1 = y1;
    object.X2 = x2;
    object.Y2 = y2;
    return object;
}

PageObject& CurrentObject()
{
    if (PageList.Objects.empty())
        throw RunTimeError{InvalidCall};
    return PageList.Objects.back();
}

void SelectedToFront()
{
    std::stable_partition(PageList.Objects.begin(), PageList.Objects.end(),
                          [](const PageObject& object) { return !object.Selected; });
    for (PageObject& object : PageList.Objects)
        object.Selected = false;
}

std::array<int32_t, 4> PageBounds()
{
    std::array<int32_t, 4> bounds = {0, 0, 0, 0};
    bool first = true;
    const auto include = [&](int32_t x, int32_t y) {
        bounds = first ? std::array{x, y, x, y}
                       : std::array{std::min(bounds[0], x), std::min(bounds[1], y), std::max(bounds[2], x),
                                    std::max(bounds[3], y)};
        first = false;
    };
    for (const PageObject& object : PageList.Objects) {
        for (const PagePoint& point : object.Vertices)
            include(point.X, point.Y);
        if (object.Vertices.empty() || object.Kind == ObjectKind::Arc) {
            include(object.X1, object.Y1);
            include(object.X2, object.Y2);
        }
    }
    return bounds;
}
