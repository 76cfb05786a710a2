// livepreview_test.cpp -- a page of the boring as it stands in the boxes, with no window.
#include "editors/livepreview.h"

#include "boring/boringboxes.h"
#include "canvas/batch.h"
#include "canvas/screenview.h"
#include "editors/borinput.h"
#include "logrender/vlog.h"
#include "session/files.h"
#include "session/session.h"
#include "testing.h"

#include <cmath>

static void OpenSample()
{
    std::filesystem::copy_file(SOURCE_DIR "/data/prompt.txt", Scratch("prompt.txt"),
                               std::filesystem::copy_options::overwrite_existing);
    frmBorinput::Load();
    JobTable[1] = VLOG::vlogstart;
    frmBorinput::OpenNamed(Text(SOURCE_DIR) + "/samples/TC-101.BOR");
    Messages.clear();
    std::filesystem::create_directory(Scratch("live"));
}

static bool Holds(const LivePage& page, const Text& words)
{
    for (const PageObject& object : page.List.Objects)
        if (object.String.find(words) != Text::npos)
            return true;
    return false;
}

TEST_CASE("the live page shows what stands in the boxes, and leaves the session as it was")
{
    OpenSample();
    frmBorinput::MemoDes.text.insert(4, "purple ");
    frmBorinput::SSScale.Cell(1, 1) = "60";
    frmBorinput::SSScale.Cell(3, 1) = "15";
    const int16_t zeroBased = RunPages.zeroBased;
    LivePage page;
    REQUIRE(DrawLivePage(1, Scratch("live"), page));
    CHECK(page.Page == 1);
    CHECK(page.Pages == 4);
    CHECK(page.Start == 0);
    CHECK(page.End == 15);
    CHECK(Holds(page, "purple"));
    CHECK(Messages.empty());
    CHECK(Listings.empty());
    CHECK(PageList.Objects.empty());
    CHECK(BoringFileName == Text(SOURCE_DIR) + "/samples/TC-101.BOR");
    CHECK(FileChanged == 0);
    CHECK(RunFolder == ScratchFolder());
    CHECK(RunPages.zeroBased == zeroBased);
    CHECK(singleFile == 0);
    CHECK_FALSE(FileExists(Scratch("log.mas")));
    REQUIRE(DrawLivePage(9, Scratch("live"), page));
    CHECK(page.Page == 4);
    CHECK(page.Start == 45);
}

TEST_CASE("a boring that cannot be saved leaves the live page as it was")
{
    OpenSample();
    LivePage page;
    REQUIRE(DrawLivePage(1, Scratch("live"), page));
    const size_t objects = page.List.Objects.size();
    for (int i = 0; i < 61; ++i)
        frmBorinput::MemoWcon.text += "line\r\n";
    CHECK_FALSE(DrawLivePage(1, Scratch("live"), page));
    CHECK(page.List.Objects.size() == objects);
    CHECK(Messages.empty());
}

TEST_CASE("a point on the live page is the layer at its depth")
{
    OpenSample();
    LivePage page;
    REQUIRE(DrawLivePage(2, Scratch("live"), page));
    CHECK(page.Start == 30);
    const auto at = [&page](double depth) { return LayerAt(page, page.Top + (depth - 30) * page.UnitsPerDepth); };
    CHECK(at(31) == 7);  // to 38
    CHECK(at(43) == 8);  // to 44
    CHECK(at(59) == 10); // to 66
    CHECK(at(29) == 0);
    CHECK(at(61) == 0);
    // The contact at 38 is drawn where the page has it.
    const double y = page.Top + 8 * page.UnitsPerDepth;
    bool there = false;
    for (const PageObject& object : page.List.Objects)
        there |= object.Kind == ObjectKind::Line && object.Y1 == object.Y2 && std::abs(object.Y1 - y) <= 2;
    CHECK(there);
}
