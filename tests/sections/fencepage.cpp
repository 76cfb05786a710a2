// fencepage.cpp -- the files of a fence run, and what was drawn from them.
#include "fencepage.h"

#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "sections/fencerun.h"
#include "session/files.h"
#include "session/session.h"

#include <algorithm>

std::string FenceText::Bytes() const
{
    std::string bytes = "\r\n";
    AddLines(bytes, Borings, 15, ",,,,,");
    bytes += "\r\n";
    AddLines(bytes, Panels, 20, "");
    bytes += "\r\n";
    AddLines(bytes, {XStart, XEnd, XInc, XUnit, YStart, VStart, VEnd, VInc, VUnit, ""}, 10, "");
    AddLines(bytes, {MainTitle, Title1, Title2, Title3, Layers, Direction}, 6, "");
    AddLines(bytes, Legend, 8, ";");
    AddLines(bytes, Tail, Tail.size(), "");
    return bytes;
}

void WriteFence(const Text& file, const FenceText& fence)
{
    WriteScratch(file, fence.Bytes());
}

bool ReadFence(const FenceText& fence)
{
    WriteFence("A.FEN", fence);
    RunPages.pageFile = Scratch("A.FEN");
    return VCROSS::getfencedata();
}

BoringText FenceBoring(const Text& name, const BoringText::Rows& layers)
{
    BoringText boring;
    boring.Name = name;
    boring.Lith = layers;
    boring.GenWell = {"MW-" + name, "", "", "", "600", "2"};
    return boring;
}

void StartFence(const FenceText& fence)
{
    NumberHeadings();
    REQUIRE(ReadFence(fence));
    PageList = PageListRecord();
    canvasstart(VCROSS::CrossRun.pageMode);
    VCROSS::drawfenceframe();
}

// Where the base plane starts is (0.6, 2.45) inches from the corner of the printable sheet.
static int32_t BaseY()
{
    return static_cast<int32_t>(PageCanvas.pageHeightUnits) - 1470;
}

Drawing FenceDrawn()
{
    const auto& objects = PageList.Objects;
    const auto foot = std::find_if(objects.begin(), objects.end(), [](const PageObject& object) {
        return object.Kind == ObjectKind::Text && object.String.ends_with(RunPages.pageFile) && object.HAlign == 0;
    });
    const size_t skip = foot == objects.end() ? 0 : size_t(foot - objects.begin()) + 1;
    return DrawnFrom(360, BaseY(), skip);
}

Text FencePen()
{
    return std::to_string(RoundInt32(double(PageCanvas.penX)) - 360) + "," +
           std::to_string(RoundInt32(double(PageCanvas.penY)) - BaseY());
}
