// samepages_test.cpp -- a boring's pages are the same however they are asked for.
//
// tests/pages/samepages.py does the same for other folders, with stratavue-batch.
#include "pages/pages.h"

#include "testing.h"

#include "boring/boringboxes.h"
#include "canvas/pagelisting.h"
#include "canvas/pageobjects.h"
#include "canvas/patterns.h"
#include "editors/borinput.h"
#include "places.h"
#include "programs/jobtable.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "session/files.h"
#include "tools/livepreview.h"

#include <algorithm>
#include <map>

using Pages = std::vector<std::string>;

// Without the first line, which tells the number of the page in the run and the name of the file without its folder.
static std::string Objects(const std::string& listing)
{
    return listing.substr(listing.find('\n') + 1);
}

static Pages Drawn()
{
    Pages pages;
    for (const std::string& listing : Listings)
        pages.push_back(Objects(listing));
    Listings.clear();
    return pages;
}

// What the batch dialog makes of these files, marked in this order. page: "" for all.
static Pages Batch(const std::vector<Text>& files, const Text& page = "")
{
    jobCode = 1;
    singleFile = 0;
    DrawPrintLoad();
    frmDrawPrint::Record& dialog = frmDrawPrint::Dialog;
    dialog.Dir1 = ScratchFolder();
    dialog.FileCount = 0;
    for (const Text& file : files) {
        dialog.File1[++dialog.FileCount] = file;
        dialog.Selected[dialog.FileCount] = true;
    }
    dialog.AllPages = page.empty();
    dialog.Text1 = page;
    DrawPrintOk();
    return Drawn();
}

static void CheckSame(const Pages& pages, const Pages& expected)
{
    REQUIRE(pages.size() == expected.size());
    for (size_t i = 0; i < pages.size(); ++i) {
        CAPTURE(i);
        const bool same = pages[i] == expected[i];
        CHECK(same);
    }
}

static Pages PagesOf(std::map<Text, Pages>& alone, const std::vector<Text>& files)
{
    Pages all;
    for (const Text& file : files)
        all.insert(all.end(), alone[file].begin(), alone[file].end());
    return all;
}

// Returns how many of the pages are not the first of their boring.
static size_t CheckFolder(const std::string& folder)
{
    LayOutFolder(folder);
    std::filesystem::create_symlink(std::string(BUILD_DIR) + "/prompt.txt", Scratch("prompt.txt"));
    std::filesystem::create_directory(Scratch("live"));
    TintsInMemory = true;
    FillJobTable();
    frmBorinput::Load();
    Messages.clear(); // a new device.cfg
    std::vector<Text> files = FilesIn(ScratchFolder(), ".BOR");
    REQUIRE(files.size() >= 5);

    std::map<Text, Pages> alone;
    size_t later = 0;
    for (const Text& file : files) {
        alone[file] = Batch({file});
        REQUIRE_FALSE(alone[file].empty());
        later += alone[file].size() - 1;
    }
    CheckSame(Batch(files), PagesOf(alone, files));
    std::reverse(files.begin(), files.end());
    CheckSame(Batch(files), PagesOf(alone, files));

    for (const Text& file : files) {
        CAPTURE(file);
        frmBorinput::OpenNamed(Scratch(file));
        frmBorinput::mnuPreview();
        CheckSame(Drawn(), alone[file]);
        for (size_t i = 0; i < alone[file].size(); ++i) {
            CAPTURE(i);
            CheckSame(Batch({file}, PlainNumber(int(i + 1))), {alone[file][i]});
            LivePage page;
            REQUIRE(DrawLivePage(int(i + 1), Scratch("live"), page));
            PageList = page.List;
            CheckSame({Objects(PageListing(1, ""))}, {alone[file][i]});
        }
    }
    CHECK(Messages.empty());
    return later;
}

TEST_CASE("a sample boring has the same pages alone, in a run, the other way round, one by one, in Preview and live")
{
    CHECK(CheckFolder(std::string(BUILD_DIR) + "/samples") > 5);
    CheckFolder(std::string(SOURCE_DIR) + "/tests/pages/columns");
}
