// logfuzz_test.cpp -- damaged boring files through a whole log run: pages or known messages, never a crash or a hang.
#include "fuzz/mutate.h"

#include "testing.h"

#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "logrender/boringtext.h"
#include "logrender/intropage.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"
#include "places.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "session/files.h"
#include "session/platform.h"

#include <chrono>
#include <set>

// What a damaged boring may make the run say.
static bool Known(const Text& words)
{
    static const char* const openings[] = {
        "This boring file has the format of a previous version and will be skipped: ",
        "Layout File Not Found: ",
        "File Not Found: ",
        "Parameter File Not Found: ",
        "Report Part Unknown: ",
        "Report Part, 'P",
        "Unrecognized Command: ",
        "Fill pattern number is out of range: ",
        "Missing 2 Color Values: ",
        "Missing 1 Color Value: ",
        "Color values must be in the range of 0 to 255: ",
    };
    for (const char* opening : openings)
        if (words.starts_with(opening))
            return true;
    static const std::set<int> numbers = {Overflow,     OutOfMemory,  SubscriptOutOfRange, DivisionByZero, BadFileName,
                                          FileNotFound, InputPastEnd, PathAccess,          PathNotFound};
    return words.starts_with("Error ") && words.ends_with(".  Please contact Norvane") &&
           numbers.contains(static_cast<int>(TextNumber(words.substr(6))));
}

// Runs so many mutants of a file of the project, the boring or another that it draws, as two pages of the boring each;
// how many went without a word.
static int RunMutants(const std::string& original, int first, int count, const Text& damaged = "B.BOR")
{
    static int pages;
    pages = 0;
    WriteHeadings();
    for (const char* layout : {"Pbasic.lay", "PORTRAIT.LAY", "LANDSCAP.LAY", "TABLOID.LAY"})
        WriteScratch(layout, ReadWholeFile(Text(SOURCE_DIR) + "/data/" + layout));
    Platform.Unattended = true;
    Platform.PageDrawn = [] {
        ++pages;
        CHECK(PageList.Objects.size() <= MaxPageObjects);
    };
    WriteMas({{"B.BOR", "(Page 1 of 2)", "0", "40"}, {"B.BOR", "(Page 2 of 2)", "40", "62.5"}});
    int silent = 0;
    for (int seed = first; seed < first + count; ++seed) {
        INFO("seed ", seed);
        WriteWholeFile(Scratch(damaged), Mutate(original, uint64_t(seed)), Durability::Scratch);
        Messages.clear();
        WriteBreak("0");
        PageCanvas = CanvasRecord();
        PageList = PageListRecord();
        const auto before = std::chrono::steady_clock::now();
        VLOG::vlogstart();
        const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - before;
        CHECK(seconds.count() < 20);
        CHECK(RunPages.pageIndex <= 2);
        if (Messages.empty())
            ++silent;
        for (const PlainMessage& message : Messages)
            if (!Known(message.words))
                FAIL_CHECK(message.words.substr(0, 200));
    }
    CHECK(pages > count / 2);
    return silent;
}

TEST_CASE("a damaged boring file draws its pages or says why not, in known words")
{
    const int count = MutantCount(400) / 2;
    RunMutants(ReadWholeFile(TestData("boring/whole.BOR")), 1, count);
    const int silent = RunMutants(ReadWholeFile(Text(SOURCE_DIR) + "/samples/TC-101.BOR"), 1000001, count);
    // Some damage is told, and some draws as if nothing were amiss: else the mutants miss their point.
    CHECK(silent > count / 10);
    CHECK(silent < count);
}

TEST_CASE("a damaged boring file of a well with every kind of graph draws its pages or says why not, in known words")
{
    WriteScratch("SITEMAP.BMP", ReadWholeFile(Text(BUILD_DIR) + "/samples/SITEMAP.BMP"));
    const int count = MutantCount(100);
    const int silent = RunMutants(ReadWholeFile(Text(SOURCE_DIR) + "/samples/MW-108.BOR"), 2000001, count);
    CHECK(silent > count / 10);
    CHECK(silent < count);
}

TEST_CASE("a damaged data file of graphs draws what can be read of it, or is told in known words")
{
    // Numbers, a graph and several curves from the file, and the file in a size that a mutant of it is soon drawn.
    std::string boring = ReadWholeFile(Text(SOURCE_DIR) + "/samples/CP-111.BOR");
    for (const auto& [sample, other] :
         {std::pair<Text, Text>{"P1G\r\n1.2", "GP2\r\n.5"}, {"P2G\r\n1.1", "GPG1\r\n-"}}) {
        REQUIRE(boring.find(sample) != std::string::npos);
        boring.replace(boring.find(sample), sample.size(), other);
    }
    WriteScratch("B.BOR", boring);
    WriteScratch("SITEMAP.BMP", ReadWholeFile(Text(BUILD_DIR) + "/samples/SITEMAP.BMP"));
    const std::string soundings = ReadWholeFile(Text(BUILD_DIR) + "/samples/CP-111.DAT");
    size_t end = 0;
    for (int line = 1; line <= 42; ++line)
        end = soundings.find('\n', end) + 1;
    const int count = MutantCount(60);
    const int silent = RunMutants(soundings.substr(0, end), 3000001, count, "CP-111.DAT");
    CHECK(silent > count / 10);
    CHECK(silent < count);
}

TEST_CASE("a damaged boring file draws its intro page or says why not, in known words")
{
    static int pages;
    pages = 0;
    WriteHeadings();
    Platform.Unattended = true;
    Platform.PageDrawn = [] { ++pages; };
    WriteScratch("log.mas", Lines({"1", "B.BOR"}));
    const std::string boring = ReadWholeFile(Text(SOURCE_DIR) + "/samples/MW-108.BOR");
    const int count = MutantCount(200);
    int silent = 0;
    for (int seed = 1; seed <= count; ++seed) {
        INFO("seed ", seed);
        WriteWholeFile(Scratch("B.BOR"), Mutate(boring, uint64_t(seed)), Durability::Scratch);
        Messages.clear();
        PageCanvas = CanvasRecord();
        PageList = PageListRecord();
        introType = static_cast<int16_t>(1 + seed % 2);
        VLOG::vlogintrostart();
        CHECK(RunPages.pageIndex == 2);
        CHECK(Messages.size() <= 1);
        if (Messages.empty())
            ++silent;
        for (const PlainMessage& message : Messages)
            if (!Known(message.words))
                FAIL_CHECK(message.words.substr(0, 200));
    }
    CHECK(pages > count / 2);
    CHECK(silent > count / 10);
    CHECK(silent < count);
}
