// exportdxf_test.cpp -- the screen view's export of a page.
#include "testing.h"

#include "canvas/dxf.h"
#include "canvas/metaugl.h"
#include "canvas/screenview.h"
#include "session/failure.h"

TEST_CASE("the export lands beside the source file, replaces an older one without a question, and says so")
{
    canvasstart("P");
    setscalex(1);
    setscaley(1);
    lineright(1);
    RunPages.pageFile = Scratch("B-1.BOR");
    WriteScratch("B-1.dxf", "older");
    ExportDxf();
    CHECK(ReadScratch("B-1.dxf") == PageDxf());
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "FILE CREATED:  " + Scratch("B-1.dxf"));
    CHECK(Messages[0].buttons == OkOnly);
    CHECK(Messages[0].icon == Announcement);
}

TEST_CASE("an export that cannot be written says nothing of a file")
{
    canvasstart("P");
    RunPages.pageFile = Scratch("none/B-1.BOR");
    CHECK(FailureOf(ExportDxf) == PathNotFound);
    CHECK(Messages.empty());
}
