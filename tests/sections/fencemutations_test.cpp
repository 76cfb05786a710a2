// fencemutations_test.cpp -- damaged fences, and damaged files that they name, through whole runs and through the form:
// pages or known messages, never a crash or a hang.
#include "fuzz/mutate.h"

#include "testing.h"

#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "logrender/boringtext.h"
#include "places.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "sections/fencefile.h"
#include "sections/fencerun.h"
#include "session/files.h"
#include "session/platform.h"

#include <chrono>

static bool Known(const Text& words)
{
    static const char* const openings[] = {
        "GIS File Not Found: ",
        "Boring File Not Found: ",
        "This boring file has the format of a previous version: ",
        "Fill pattern number is out of range: ",
    };
    for (const char* opening : openings)
        if (words.starts_with(opening))
            return true;
    return words.starts_with("Error ") && words.ends_with(".  Please contact Norvane");
}

static std::string Sample(const Text& name)
{
    return ReadWholeFile(Text(SOURCE_DIR) + "/samples/" + name);
}

// Runs the sample fence with so many damaged copies of one of its files; how many went without a word.
static int RunMutants(const Text& fence, const Text& damaged, int first, int count)
{
    static int pages;
    pages = 0;
    WriteHeadings();
    for (const char* name :
         {"TC-101.BOR", "TC-102.BOR", "TC-104.BOR", "MW-108.BOR", "MW-109.BOR", "MW-110.BOR", "TC-FENCE.GIS"})
        WriteScratch(name, Sample(name));
    WriteScratch(fence, Sample(fence));
    WriteScratch("log.mas", Lines({"1", Scratch(fence)}));
    const std::string whole = Sample(damaged);
    Platform.Unattended = true;
    Platform.PageDrawn = [] {
        ++pages;
        CHECK(PageList.Objects.size() <= MaxPageObjects);
    };
    int silent = 0;
    for (int seed = first; seed < first + count; ++seed) {
        INFO(damaged << ", seed ", seed);
        WriteWholeFile(Scratch(damaged), Mutate(whole, uint64_t(seed)), Durability::Scratch);
        Messages.clear();
        PageCanvas = CanvasRecord();
        PageList = PageListRecord();
        const auto before = std::chrono::steady_clock::now();
        VCROSS::vfencestart();
        const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - before;
        CHECK(seconds.count() < 20);
        CHECK(RunPages.pageIndex == 2);
        if (Messages.empty())
            ++silent;
        for (const PlainMessage& message : Messages)
            if (!Known(message.words))
                FAIL_CHECK(message.words.substr(0, 200));
    }
    CHECK(pages == count); // a page whatever is wrong with it
    return silent;
}

TEST_CASE("a damaged fence file is drawn as far as it goes, in known words")
{
    const int count = MutantCount(300) / 3;
    int silent = 0;
    silent += RunMutants("TC-F1.FEN", "TC-F1.FEN", 1, count);
    silent += RunMutants("TC-F2.FEN", "TC-F2.FEN", 1000001, count);
    silent += RunMutants("TC-F3.FEN", "TC-F3.FEN", 2000001, count);
    // Some damage is told, and some draws as if nothing were amiss: else the mutants miss their point.
    CHECK(silent > 3 * count / 10);
    CHECK(silent < 3 * count);
}

TEST_CASE("a fence is drawn with a damaged boring or a damaged GIS table, in known words")
{
    const int count = MutantCount(200) / 2;
    const int borings = RunMutants("TC-F1.FEN", "TC-102.BOR", 1, count);
    const int tables = RunMutants("TC-F3.FEN", "TC-FENCE.GIS", 1000001, count);
    for (const int silent : {borings, tables}) {
        CHECK(silent > count / 10);
        CHECK(silent < count);
    }
}

TEST_CASE("a damaged fence file opens as far as it goes, and once saved it is saved the same again")
{
    const std::string whole = Sample("TC-F1.FEN");
    const int count = MutantCount(300);
    int silent = 0;
    for (int seed = 1; seed <= count; ++seed) {
        INFO("seed ", seed);
        WriteWholeFile(Scratch("A.FEN"), Mutate(whole, uint64_t(seed)), Durability::Scratch);
        Messages.clear();
        std::string saved[2];
        for (std::string& bytes : saved) {
            frmFence::FileName = Scratch("A.FEN");
            OpenFenceFile();
            FillFenceForm();
            if (Messages.empty() || &bytes == saved)
                SaveFenceFile();
            bytes = ReadWholeFile(Scratch("A.FEN"));
        }
        CHECK(saved[0] == saved[1]);
        CHECK(Messages.size() <= 1);
        if (Messages.empty())
            ++silent;
        for (const PlainMessage& message : Messages)
            if (message.words != "Error 62 in OpenFenceFile.  Please contact Norvane")
                FAIL_CHECK(message.words.substr(0, 200));
    }
    CHECK(silent > count / 10);
    CHECK(silent < count);
}
