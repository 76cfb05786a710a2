// checkfuzz_test.cpp -- damaged definitions and borings through the check lists: an answer each time, no box, and
// nothing that a drawing tells of goes without an error in the list.
#include "fuzz/mutate.h"

#include "testing.h"

#include "places.h"

#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "gis/gistool.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "sections/crosspage.h"
#include "sections/crossrun.h"
#include "sections/crosstool.h"
#include "sections/fencerun.h"
#include "sections/fencetool.h"
#include "sections/layershapes.h"
#include "sections/soiltable.h"
#include "sections/soiltool.h"
#include "session/deviceconfig.h"
#include "session/files.h"
#include "session/session.h"
#include "tools/checkview.h"

#include <algorithm>

// The stock samples as a project, with the words of the pages.
static std::string Stock(const char* name)
{
    return ReadWholeFile(Text(SOURCE_DIR) + "/samples/" + name);
}

static void WriteProject()
{
    WriteHeadings();

    ProjectPath = ScratchFolder();
    for (const char* name : {"TC-101.BOR", "TC-102.BOR", "TC-104.BOR", "MW-108.BOR", "MW-109.BOR", "MW-110.BOR",
                             "TC-S2.GIS", "SB-111.BOR"})
        WriteScratch(name, Stock(name));
}

// The file into the boxes of its tool. False: it was not read without a word.
static bool Open(ToolRecord& tool, const Text& name)
{
    Messages.clear();
    LoadTool(tool);
    ToolOpenNamed(tool, Scratch(name));
    const bool silent = Messages.empty();
    Messages.clear();
    return silent;
}

static bool HasError(const std::vector<CheckEntry>& entries)
{
    return std::any_of(entries.begin(), entries.end(),
                       [](const CheckEntry& entry) { return WeightOf(entry) == CheckWeight::Error; });
}

static void CheckWords(const std::vector<CheckEntry>& entries)
{
    CHECK(Messages.empty());
    for (const CheckEntry& entry : entries) {
        CHECK_FALSE(entry.Words.empty());
        CHECK_FALSE(KindInWords(entry).empty());
        CHECK_FALSE(PlaceInWords(entry).empty());
        if (entry.InGrid) {
            CHECK(entry.Row >= 1);
            CHECK(entry.Row <= entry.InGrid->rows);
            CHECK(entry.Column >= 1);
            CHECK(entry.Column <= entry.InGrid->columns);
        }
    }
}

// The page of a saved definition; true when nothing was told.
static bool Draws(ToolRecord& tool, const Text& name, void (*run)())
{
    VCROSS::ResetCrossRun();
    VCROSS::ResetFenceRun();
    VCROSS::LayerFill = VCROSS::LayerFillRecord();
    Messages.clear();
    FileChanged = 0;
    tool.FileName = Scratch(name);
    WriteRunList({name});
    run();
    return Messages.empty();
}

// Damages the sample again and again; what the boxes then hold is saved, checked and drawn.
static void Damage(ToolRecord& tool, const char* sample, void (*run)())
{
    WriteProject();
    Platform.Unattended = true;
    const std::string good = Stock(sample);
    const Text name = Text("X") + tool.ending;
    const int count = MutantCount(150);
    int checked = 0;
    for (int seed = 1; seed <= count; ++seed) {
        CAPTURE(seed);
        WriteScratch(name, Mutate(good, uint64_t(seed)));
        if (!Open(tool, name))
            continue;
        ++checked;
        tool.FileName = Scratch(name);
        const bool saved = tool.SaveFile();
        Messages.clear();
        const std::vector<CheckEntry> entries = tool.Check();
        CheckWords(entries);
        if (!run || !saved || HasError(entries))
            continue;
        if (!Draws(tool, name, run)) {
            CAPTURE(Messages[0].words);
            FAIL_CHECK("drawn with a word, and the check list has no error");
        }
    }
    CHECK(checked > count / 10);
}

TEST_CASE("a damaged section that cannot be drawn has an error in its check list")
{
    Damage(CrossForm, "TC-S1.CRO", VCROSS::vcrossstart);
    Damage(CrossForm, "TC-S2.CRO", VCROSS::vcrossstart);
}

TEST_CASE("a damaged fence that cannot be drawn has an error in its check list")
{
    Damage(FenceForm, "TC-F1.FEN", VCROSS::vfencestart);
}

TEST_CASE("a damaged soil table that cannot be drawn has an error in its check list")
{
    Damage(SoilForm, "SB-111.SOI", VCROSS::vsoilstart);
}

TEST_CASE("a damaged layer table has a check list")
{
    Damage(GisForm, "TC-S2.GIS", nullptr);
}

TEST_CASE("damaged borings have their entry in the check lists of the sheets that name them")
{
    WriteProject();
    const int count = MutantCount(100);
    const std::string good = Stock("MW-108.BOR");
    WriteScratch("X.CRO", Stock("TC-S1.CRO"));
    WriteScratch("X.FEN", Stock("TC-F1.FEN"));
    WriteScratch("X.SOI", Stock("MW-108.SOI"));
    for (ToolRecord* tool : {&CrossForm, &FenceForm, &SoilForm}) {
        REQUIRE(Open(*tool, Text("X") + tool->ending));
        for (int seed = 1; seed <= count; ++seed) {
            CAPTURE(seed);
            WriteScratch("MW-108.BOR", Mutate(good, uint64_t(seed)));
            CheckWords(tool->Check());
        }
    }
}
