// viewmoves_test.cpp -- the sums of looking at a page by hand.
#include "run/viewmoves.h"

#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "testing.h"

#include <array>

static void Letter()
{
    canvasstart("P");
}

TEST_CASE("a portrait page opens at screen width, any other fitted whole")
{
    Letter();
    const ViewRecord portrait = OpeningView("P", {}, 950, 570);
    CHECK(portrait.ImageWidth == 950);
    CHECK(portrait.ImageHeight == doctest::Approx(1246.875));
    CHECK(portrait.Top == 0);
    canvasstart("L");
    const ViewRecord landscape = OpeningView("L", {}, 950, 570);
    CHECK(landscape.ImageHeight == 570);
    CHECK(landscape.ImageWidth == 748);
    canvasstart("T");
    CHECK(OpeningView("T", {}, 950, 570).ImageWidth == 896);
}

TEST_CASE("the opening of a portrait page leaves the top offset, as long as it is on the page")
{
    Letter();
    ViewRecord view;
    view.Top = 300;
    CHECK(OpeningView("P", view, 950, 570).Top == 300);
    view.Top = 4000;
    CHECK(OpeningView("P", view, 950, 570).Top == doctest::Approx(1246.875 - 570));
    view.Top = -90;
    CHECK(OpeningView("P", view, 950, 570).Top == 0);
}

TEST_CASE("at screen width the whole width of the page is seen, and fitted whole all of it")
{
    Letter();
    ViewRecord view;
    view.Left = -400;
    view.Top = 77;
    view = FullWidth(view, 950);
    CHECK(PageX(view, 0) == 0);
    CHECK(PageX(view, 950) == doctest::Approx(4800));
    CHECK(view.Top == 0);
    for (const auto& [width, height] : {std::pair{950, 570}, {400, 570}, {300, 901}}) {
        view = WholePage(width, height);
        CHECK(PageX(view, 0) <= 0);
        CHECK(PageX(view, width) >= 4800);
        CHECK(PageY(view, 0) <= 0);
        CHECK(PageY(view, height) >= 6300);
        // With no more around it than the other side needs.
        CHECK((PageX(view, width) < 4820 || PageY(view, height) < 6320));
    }
}

TEST_CASE("the wheel keeps the place of the page under the pointer")
{
    Letter();
    const ViewRecord before = FullWidth({}, 950);
    const ViewRecord after = ZoomAbout(before, 1.25, 300, 200);
    CHECK(after.ImageWidth == doctest::Approx(950 * 1.25));
    CHECK(after.ImageHeight == doctest::Approx(1246.875 * 1.25));
    CHECK(PageX(after, 300) == doctest::Approx(PageX(before, 300)));
    CHECK(PageY(after, 200) == doctest::Approx(PageY(before, 200)));
}

TEST_CASE("the wheel stops at the smallest and the largest scale")
{
    Letter();
    const ViewRecord view = FullWidth({}, 950);
    CHECK(ZoomAbout(view, 1e-9, 0, 0).ImageWidth == doctest::Approx(8 * MinScale));
    CHECK(ZoomAbout(view, 1e9, 0, 0).ImageWidth == doctest::Approx(8 * MaxScale));
}

TEST_CASE("a drag moves the page with the hand and stops where a quarter of the window still shows it")
{
    Letter();
    ViewRecord view = FullWidth({}, 950);
    view = Dragged(view, 40, -30);
    CHECK(view.Left == -40);
    CHECK(view.Top == 30);
    CHECK(KeptInReach(Dragged(view, 5000, 0), 950, 570).Left == 950 * ReachPart - 950);
    CHECK(KeptInReach(Dragged(view, 0, -5000), 950, 570).Top == doctest::Approx(1246.875 - 570 * ReachPart));
    CHECK(KeptInReach(view, 950, 570).Left == view.Left);
}

TEST_CASE("a page smaller than the window stays whole in it")
{
    Letter();
    const ViewRecord view = KeptInReach(Dragged({100, 131, 0, 0}, 5000, -5000), 950, 570);
    CHECK(view.Left == 100 - 950);
    CHECK(view.Top == 0);
}

TEST_CASE("the rubber band keeps the shape of the window")
{
    const BandCorner wide = ShapedBand(100, 100, 300, 120, 800, 400);
    CHECK(wide.X == 300);
    CHECK(wide.Y == 200);
    const BandCorner high = ShapedBand(100, 100, 90, 20, 800, 400);
    CHECK(high.X == 100 - 160);
    CHECK(high.Y == 20);
}

TEST_CASE("a rectangle of the page fills the window, less a pixel on each side")
{
    Letter();
    const ViewRecord view = ZoomDragged({}, 1200, 600, 2400, 1320, 950, 570);
    CHECK(view.ImageWidth == doctest::Approx(948.0 * 4800 / 1200));
    CHECK(view.ImageHeight == doctest::Approx(568.0 * 6300 / 720));
    CHECK(PageX(view, 0) == doctest::Approx(1200));
    CHECK(PageY(view, 0) == doctest::Approx(600));
}

TEST_CASE("a rectangle shows the same part of the page, whichever corner its drag began in")
{
    Letter();
    for (const auto& [x1, y1, x2, y2] : {std::array{1200, 600, 2400, 1320}, std::array{2400, 1320, 1200, 600},
                                         std::array{2400, 600, 1200, 1320}, std::array{1200, 1320, 2400, 600}}) {
        const ViewRecord view = ZoomDragged({}, x1, y1, x2, y2, 950, 570);
        CHECK(PageX(view, 0) == doctest::Approx(1200));
        CHECK(PageY(view, 0) == doctest::Approx(600));
        CHECK(PageX(view, 948) == doctest::Approx(2400));
        CHECK(PageY(view, 568) == doctest::Approx(1320));
    }
}

TEST_CASE("rectangle in rectangle stops where the wheel stops, with the middle of the last one in the middle")
{
    Letter();
    const ViewRecord view = ZoomDragged({}, 1200, 600, 1202, 601.2, 950, 570);
    CHECK(view.ImageWidth == doctest::Approx(8 * MaxScale));
    CHECK(view.ImageHeight == doctest::Approx(10.5 * MaxScale).epsilon(0.01));
    CHECK(PageX(view, 475) == doctest::Approx(1201).epsilon(0.0001));
    CHECK(PageY(view, 285) == doctest::Approx(600.6).epsilon(0.0001));
}

TEST_CASE("a rectangle without width is told, and the view stays")
{
    Letter();
    const ViewRecord before = FullWidth({}, 950);
    const ViewRecord after = ZoomDragged(before, 700, 100, 700, 900, 950, 570);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 11 in DrawArea.  Please contact Norvane");
    CHECK(after.ImageWidth == before.ImageWidth);
    CHECK(after.Left == before.Left);
}

TEST_CASE("the page takes 95 percent of the window and stands in its middle")
{
    const ControlPlace place = PlaceControl(1000, 600);
    CHECK(place.Width == 950);
    CHECK(place.Height == 570);
    CHECK(place.X == 25);
    CHECK(place.Y == 15);
}

TEST_CASE("in a window of another size the middle of the view stays")
{
    Letter();
    const ViewRecord before = FullWidth({}, 950);
    const ViewRecord after = Resized(before, 950, 570, 760, 400);
    CHECK(PageX(after, 380) == doctest::Approx(PageX(before, 475)));
    CHECK(PageY(after, 200) == doctest::Approx(PageY(before, 285)));
    CHECK(after.ImageWidth == before.ImageWidth);
}
