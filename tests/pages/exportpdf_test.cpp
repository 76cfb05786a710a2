// exportpdf_test.cpp -- the PDF that the screen view makes of a sample log: its pages are those of the run.
#include "pages/pages.h"

#include "testing.h"

#include "canvas/patterns.h"
#include "places.h"
#include "programs/jobtable.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "run/viewcommands.h"

// Without the first line, whose page number counts on.
static std::string Objects(const std::string& listing)
{
    return listing.substr(listing.find('\n'));
}

static void Preview(const Text& boring)
{
    jobCode = 1;
    singleFile = 1;
    singleFileName = boring;
    DrawPrintLoad();
    DrawPrintOk();
    singleFile = 0;
}

static std::vector<std::string> pages; // of the run
static int flagged = 0;                // pages shown that a description leads over from

static void ExportAndGoOn()
{
    const size_t before = Listings.size();
    const Text flag = ReadBreak();
    flagged += flag == "Y";
    CAPTURE(RunPages.pageIndex);
    CAPTURE(flag);
    ExportPdf();
    REQUIRE(Listings.size() == before + pages.size());
    for (size_t i = 0; i < pages.size(); ++i)
        CHECK(Objects(Listings[before + i]) == pages[i]);
    CHECK(ReadBreak() == flag);
    Listings.resize(before);
    NextPage();
}

TEST_CASE("the PDF of a sample log has the pages of its run, whichever page is on the screen")
{
    LayOutFolder(std::string(BUILD_DIR) + "/samples");
    TintsInMemory = true;
    FillJobTable();
    flagged = 0;
    for (const char* boring : {"TC-101.BOR", "TC-103.BOR", "CP-111.BOR"}) {
        CAPTURE(boring);
        pages.clear();
        Listings.clear();
        PlainShowPage = nullptr;
        Preview(boring);
        for (const std::string& listing : Listings)
            pages.push_back(Objects(listing));
        REQUIRE_FALSE(pages.empty());
        Listings.clear();
        PlainShowPage = ExportAndGoOn;
        Preview(boring);
        REQUIRE(Listings.size() == pages.size());
        for (size_t i = 0; i < pages.size(); ++i)
            CHECK(Objects(Listings[i]) == pages[i]);
    }
    CHECK(flagged > 0);
    CHECK(Messages.empty());
}
