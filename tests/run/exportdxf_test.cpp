// exportdxf_test.cpp -- the screen view's export of a page.
#include "testing.h"

#include "canvas/metaugl.h"
#include "dxf/dxf.h"
#include "dxf/dxfdrawing.h"
#include "run/batchrun.h"
#include "run/outputmark.h"
#include "run/screenview.h"
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
    CHECK(ReadScratch("B-1.dxf") == PageDxf(DrawingMark()));
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "FILE CREATED:  " + Scratch("B-1.dxf"));
    CHECK(Messages[0].buttons == OkOnly);
    CHECK(Messages[0].icon == Announcement);
}

static void Export(const char* source, int16_t job)
{
    canvasstart("P");
    RunPages.pageFile = Scratch(source);
    jobCode = job;
    ExportDxf();
}

TEST_CASE("the drawing of a log is replaced by that of any page of it, and by no other job's")
{
    Export("X.BOR", 1);
    RunPages.pageIndex = 1;
    Export("X.BOR", 2);
    CHECK(Messages[1].words == "FILE CREATED:  " + Scratch("X.dxf"));
    const Text log = ReadScratch("X.dxf");
    const char* const jobs[][2] = {{"X.CRO", "X-section.dxf"}, {"X.FEN", "X-fence.dxf"}, {"X.SOI", "X-soil.dxf"}};
    for (int16_t i = 0; i < 3; ++i)
        for (int round = 1; round <= 2; ++round) { // the second time its own is replaced
            Export(jobs[i][0], static_cast<int16_t>(3 + 2 * i));
            CHECK(Messages.back().words == "FILE CREATED:  " + Scratch(jobs[i][1]));
        }
    introType = 1;
    Export("X.BOR", 1);
    CHECK(Messages.back().words == "FILE CREATED:  " + Scratch("X-intro.dxf"));
    CHECK(ReadScratch("X.dxf") == log);
    CHECK(MarkOfDxf(log) == "X.BOR (log)");
}

TEST_CASE("where the name with the job's word is another file's drawing, or another program's, a number is added")
{
    Export("X.BOR", 1);
    Export("X-section.BOR", 1);
    WriteScratch("X-section-2.dxf", "drawn by hand");
    Export("X.CRO", 3);
    CHECK(Messages.back().words == "FILE CREATED:  " + Scratch("X-section-3.dxf"));
    CHECK(MarkOfDxf(ReadScratch("X-section.dxf")) == "X-section.BOR (log)");
    CHECK(ReadScratch("X-section-2.dxf") == "drawn by hand");
}

TEST_CASE("the mark of a drawing is found before its first section alone")
{
    CHECK(MarkOfDxf("").empty());
    CHECK(MarkOfDxf("0\r\nSECTION\r\n").empty());
    CHECK(MarkOfDxf("999\r\nmade elsewhere\r\n0\r\nSECTION\r\n2\r\n999\r\nDrawing of X\r\n").empty());
}

TEST_CASE("an export that cannot be written says nothing of a file")
{
    canvasstart("P");
    RunPages.pageFile = Scratch("none/B-1.BOR");
    CHECK(FailureOf(ExportDxf) == PathNotFound);
    CHECK(Messages.empty());
}
