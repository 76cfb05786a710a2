// outputmark_test.cpp -- what outputs say of themselves.
#include "run/outputmark.h"

#include "run/batchrun.h"
#include "run/screenview.h"
#include "testing.h"

TEST_CASE("a PDF tells the command, the file and the job that it is of")
{
    RunPages.pageFile = "C:\\JOB\\B-1.BOR";
    jobCode = 1;
    CHECK(PdfMark(true) == "Export to PDF of B-1.BOR (log)");
    RunPages.pageIndex = 1;
    CHECK(PdfMark(false) == "Print of page 2 of B-1.BOR (log)");
    jobCode = 2;
    RunPages.printing = 1;
    runFileCount = 1;
    CHECK(PdfMark(false) == "Print run of B-1.BOR (log)");
    runFileCount = 4;
    CHECK(PdfMark(false) == "Print run of B-1.BOR and 3 more (log)");
    CHECK(PdfMark(true) == "Export to PDF of B-1.BOR and 3 more (log)");
}

TEST_CASE("a drawing tells the file and the job, and no page")
{
    const std::pair<int16_t, const char*> words[] = {{1, "log"},     {2, "log"},   {3, "section"},
                                                     {4, "section"}, {5, "fence"}, {6, "fence"},
                                                     {7, "soil"},    {8, "soil"},  {9, "guide"}};
    for (const auto& [job, word] : words) {
        jobCode = job;
        RunPages.pageFile = "JOB/X.CRO";
        RunPages.pageIndex = 3;
        CHECK(JobWord() == word);
        CHECK(DrawingMark() == Text("X.CRO (") + word + ")");
    }
    jobCode = 1;
    introType = 2;
    CHECK(JobWord() == "intro");
    CHECK(PdfMark(false) == "Print of page 3 of X.CRO (intro)");
}
