// viewcommands_test.cpp -- printing and the PDF of the whole run from the screen view.
#include "run/viewcommands.h"

#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "session/session.h"
#include "testing.h"

static std::vector<int> printedPages; // the page index at each page printed
static std::vector<Text> events;

// A run of three pages, each with as many lines as its number; as the log, it counts from 0 and leaves its mark for the
// next page in break.mas.
static void ThreePages()
{
    RunPages.pageCount = 3;
    RunPages.pageIndex = 0;
    RunPages.pageFile = "B-1.BOR";
    while (RunPages.pageIndex < RunPages.pageCount) {
        canvasstart("P");
        float x = 0.25, y = 10;
        setorigin(x, y);
        for (int i = 0; i <= RunPages.pageIndex; ++i)
            lineright(1);
        WriteBreak(RunPages.pageIndex == 2 ? "Y" : "N");
        ShowOrPrint();
    }
}

static void Prepare()
{
    printedPages.clear();
    events.clear();
    JobTable[1] = ThreePages;
    jobCode = 1;
    introType = 0;
    Platform.PrintPage = [] { printedPages.push_back(int(PageList.Objects.size())); };
    Platform.PrintToPdf = [](bool on) { events.push_back(on ? "to PDF" : "as before"); };
    Platform.EndPrintRun = [] { events.push_back("run ended"); };
    Platform.ShowPrinting = [] { events.push_back("notice"); };
}

TEST_CASE("the PDF of a run has all its pages, and the page on the screen stays where it is")
{
    Prepare();
    PlainShowPage = [] {
        if (RunPages.pageIndex == 1) {
            PageList.Objects[0].String = "shown";
            ExportPdf();
            CHECK(RunPages.pageIndex == 1);
            REQUIRE(PageList.Objects.size() == 2);
            CHECK(PageList.Objects[0].String == "shown");
        }
        NextPage();
    };
    ThreePages();
    CHECK(printedPages == std::vector<int>{1, 2, 3});
    CHECK(events == std::vector<Text>{"to PDF", "run ended", "as before"});
    CHECK(Listings.size() == 3 + 3);
}

TEST_CASE("what one page leaves for the next in break.mas outlasts the PDF of the run")
{
    Prepare();
    PlainShowPage = [] {
        if (RunPages.pageIndex == 0) {
            ExportPdf();
            CHECK(ReadBreak() == "N");
        }
        NextPage();
    };
    ThreePages();
}

TEST_CASE("a run that fails on its way to the PDF gives the screen back")
{
    Prepare();
    PlainShowPage = [] {
        Platform.PrintPage = [] { throw RunTimeError{DiskFull}; };
        void (*const screen)() = Platform.ShowPage;
        CHECK(FailureOf(ExportPdf) == DiskFull);
        const bool same = Platform.ShowPage == screen;
        CHECK(same);
        CHECK(events.back() == "as before");
        ExitRun();
    };
    ThreePages();
}

// A run of two pages that notes the flag of break.mas which each of them finds.
static std::vector<Text> flagsFound;

static void PagesThatReadTheFlag()
{
    RunPages.pageCount = 2;
    RunPages.pageIndex = 0;
    RunPages.pageFile = "B-1.BOR";
    while (RunPages.pageIndex < RunPages.pageCount) {
        flagsFound.push_back(ReadBreak());
        WriteBreak("Y");
        ShowOrPrint();
    }
}

TEST_CASE("the PDF of a log run begins with the flag of break.mas that every run begins with")
{
    Prepare();
    flagsFound.clear();
    JobTable[1] = PagesThatReadTheFlag;
    WriteBreak("0");
    PlainShowPage = [] {
        ExportPdf();
        CHECK(ReadBreak() == "Y");
        ExitRun();
    };
    PagesThatReadTheFlag();
    CHECK(flagsFound == std::vector<Text>{"0", "0", "Y"});
}

TEST_CASE("the PDF of an intro page or of a section leaves break.mas alone")
{
    Prepare();
    PlainShowPage = [] { ExitRun(); };
    for (const bool intro : {true, false}) {
        jobCode = intro ? 1 : 3;
        introType = intro ? 1 : 0;
        static Text found;
        found = "";
        IntroPages = JobTable[3] = [] { found = FailureOf([] { ReadBreak(); }) == 0 ? ReadBreak() : "none"; };
        ExportPdf();
        CHECK(found == "none");
        CHECK_FALSE(std::filesystem::exists(Scratch("break.mas")));
    }
}

TEST_CASE("a PDF run that fails gives break.mas back too, and is ended")
{
    Prepare();
    PlainShowPage = [] {
        WriteBreak("Y");
        Platform.PrintPage = [] { throw RunTimeError{DiskFull}; };
        CHECK(FailureOf(ExportPdf) == DiskFull);
        CHECK(ReadBreak() == "Y");
        CHECK(events == std::vector<Text>{"to PDF", "run ended", "as before"});
        ExitRun();
    };
    ThreePages();
}

TEST_CASE("a PDF run whose end fails gives break.mas back too")
{
    Prepare();
    PlainShowPage = [] {
        WriteBreak("N");
        Platform.EndPrintRun = [] { throw RunTimeError{DiskFull}; };
        CHECK(FailureOf(ExportPdf) == DiskFull);
        CHECK(ReadBreak() == "N");
        ExitRun();
    };
    ThreePages();
}

TEST_CASE("a page that cannot be printed ends its job all the same, and its own failure is told")
{
    Prepare();
    PlainShowPage = [] {
        Platform.PrintPage = [] { throw RunTimeError{PrinterError}; };
        CHECK(FailureOf(PrintShownPage) == PrinterError);
        CHECK(events == std::vector<Text>{"notice", "run ended"});
        Platform.EndPrintRun = [] { throw RunTimeError{DiskFull}; };
        CHECK(FailureOf(PrintShownPage) == PrinterError);
        ExitRun();
    };
    ThreePages();
}

TEST_CASE("a print run of the dialog is ended also where its renderer fails")
{
    Prepare();
    JobTable[4] = [] { throw RunTimeError{DeviceError}; };
    jobCode = 4;
    singleFile = 1;
    singleFileName = "S-1.CRO";
    DrawPrintOk();
    CHECK(events == std::vector<Text>{"run ended"});
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 57 in DrawPrintOk.  Please contact Norvane");
}

static int looks; // so many times the pictures were looked through for changed ones

TEST_CASE("changed logos and maps are looked for as a run begins, and not for each of its pages")
{
    Prepare();
    looks = 0;
    Platform.DropChangedPictures = [] { ++looks; };
    singleFile = 1;
    singleFileName = "B-1.BOR";
    frmDrawPrint::Dialog.ReportOption = 1;
    IntroPages = ThreePages;
    PlainShowPage = nullptr;
    DrawPrintOk();
    CHECK(Listings.size() == 3);
    CHECK(looks == 1);
    PlainShowPage = [] {
        ExportPdf();
        ExitRun();
    };
    DrawPrintOk();
    CHECK(printedPages.size() == 3);
    CHECK(looks == 3);
}

TEST_CASE("Print shows its notice, prints the page and ends the job")
{
    Prepare();
    PlainShowPage = [] {
        PrintShownPage();
        ExitRun();
    };
    ThreePages();
    CHECK(printedPages == std::vector<int>{1});
    CHECK(events == std::vector<Text>{"notice", "run ended"});
}

TEST_CASE("the place in the run counts from 1 in a log run and in every other")
{
    jobCode = 1;
    introType = 0;
    RunPages.pageCount = 5;
    RunPages.pageIndex = 1;
    CHECK(ShownPlace() == "Page 2 of 5");
    jobCode = 3;
    CHECK(ShownPlace() == "Page 1 of 5");
    jobCode = 9;
    CHECK(ShownPlace() == "");
}
