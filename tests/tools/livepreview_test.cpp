// livepreview_test.cpp -- a page of the boring as it stands in the boxes, with no window.
#include "tools/livepreview.h"

#include "boring/boringboxes.h"
#include "canvas/pageobjects.h"
#include "editors/borinput.h"
#include "logrender/vlog.h"
#include "places.h"
#include "run/batchrun.h"
#include "run/screenview.h"
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

TEST_CASE("on upright, landscape and wide pages, with headings turned or not, a point is the layer that is drawn there")
{
    std::filesystem::copy(SOURCE_DIR "/data", ScratchFolder());
    frmBorinput::Load();
    JobTable[1] = VLOG::vlogstart;
    std::filesystem::create_directory(Scratch("live"));
    int contacts = 0;
    for (const char* sample : {"TC-101", "TC-102", "TC-103", "TC-105", "TC-106", "TC-107", "MW-108"}) {
        const Text name = sample;
        CAPTURE(name);
        frmBorinput::OpenNamed(Text(SOURCE_DIR) + "/samples/" + name + ".BOR");
        for (int number = 1, pages = 1; number <= pages; ++number) {
            CAPTURE(number);
            LivePage page;
            REQUIRE(DrawLivePage(number, Scratch("live"), page));
            pages = page.Pages;
            const int rows = frmBorinput::SSLith.DataRowCount();
            for (int row = 1; row <= rows; ++row) {
                const float depth = float(TextNumber(frmBorinput::SSLith.Cell(row, 1)));
                if (depth <= page.Start || depth >= page.End)
                    continue;
                CAPTURE(row);
                const double y = page.Top + (double(depth) - page.Start) * page.UnitsPerDepth;
                CHECK(LayerAt(page, y - 1) == row);
                CHECK(LayerAt(page, y + 1) == (row < rows ? row + 1 : 0));
                // That is where the page has its line, across or with its leaders.
                bool there = UpperCase(frmBorinput::SSLith.Cell(row, 3)) == "N";
                for (const PageObject& object : page.List.Objects)
                    there |= object.Kind == ObjectKind::Line && std::abs(object.Y1 - y) <= 2;
                CHECK(there);
                ++contacts;
            }
        }
    }
    CHECK(contacts > 40);
    Messages.clear();
}

static bool operator==(const PageObject& a, const PageObject& b)
{
    return a.Kind == b.Kind && a.X1 == b.X1 && a.Y1 == b.Y1 && a.X2 == b.X2 && a.Y2 == b.Y2 && a.String == b.String;
}

static std::vector<PageObject> previewed;

static void Preview()
{
    previewed.clear();
    PlainShowPage = [] {
        previewed = PageList.Objects;
        ExitRun();
    };
    frmBorinput::mnuPreview();
}

TEST_CASE("the live page prints the name of the document, and not that of the copy that it is drawn from")
{
    OpenSample();
    LivePage page;
    REQUIRE(DrawLivePage(1, Scratch("live"), page));
    CHECK(Holds(page, "   " + Text(SOURCE_DIR) + "/samples/TC-101.BOR"));
    CHECK_FALSE(RunPages.printedName);
    BoringFileName = "";
    REQUIRE(DrawLivePage(1, Scratch("live"), page));
    CHECK_FALSE(Holds(page, ".BOR"));
}

TEST_CASE("the live page of an unchanged boring has the lines of its file, wherever they were cut")
{
    OpenSample();
    std::string bytes = ReadWholeFile(Text(SOURCE_DIR) + "/samples/TC-101.BOR");
    // The first word of a line to the end of the line above.
    const size_t lines = bytes.find("\r\n@1");
    const size_t end = bytes.find("\r\n", bytes.find("\r\n", lines + 2) + 2);
    const size_t word = bytes.find(' ', end + 2) + 1;
    REQUIRE(word - end < 20);
    bytes = bytes.substr(0, end) + bytes.substr(end + 2, word - end - 2) + "\r\n" + bytes.substr(word);
    WriteScratch("CUT.BOR", bytes);
    frmBorinput::OpenNamed(Scratch("CUT.BOR"));
    LivePage page;
    REQUIRE(DrawLivePage(1, Scratch("live"), page));
    Preview();
    CHECK(page.List.Objects == previewed);
    const std::vector<PageObject> asInFile = previewed;
    // Changed, it is what Preview shows behind its save.
    FileChanged = 1;
    REQUIRE(DrawLivePage(1, Scratch("live"), page));
    CHECK_FALSE(page.List.Objects == asInFile);
    Preview();
    CHECK(page.List.Objects == previewed);
    // What is typed is shown also where the flag says nothing of it.
    frmBorinput::MemoDes.text.insert(4, "purple ");
    FileChanged = 0;
    REQUIRE(DrawLivePage(1, Scratch("live"), page));
    CHECK(Holds(page, "purple"));
    Messages.clear();
}

TEST_CASE("the live page of a later page is that of the whole log")
{
    OpenSample();
    for (int number = 1; number <= 3; ++number) {
        CAPTURE(number);
        LivePage page;
        REQUIRE(DrawLivePage(number, Scratch("live"), page));
        static int wanted;
        wanted = number;
        PlainShowPage = [] {
            previewed = PageList.Objects;
            RunPages.pageIndex = static_cast<int16_t>(RunPages.pageIndex + 1 == wanted ? RunPages.pageCount + 1
                                                                                       : RunPages.pageIndex + 1);
        };
        frmBorinput::mnuPreview();
        if (page.Page == number)
            CHECK(page.List.Objects == previewed);
    }
}
