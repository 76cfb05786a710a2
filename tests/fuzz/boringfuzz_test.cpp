// boringfuzz_test.cpp -- damaged boring files: a message or none, and never a crash or a write beside the record.
#include "fuzz/mutate.h"

#include "testing.h"

#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "boring/boringfile.h"
#include "editors/fillform.h"
#include "session/files.h"
#include "session/session.h"

#include <set>

static void CheckCounts()
{
    const auto within = [](int32_t count, int bound) { return count >= 0 && count <= bound; };
    CHECK(within(BoringData.RepPartCount, MaxRepParts));
    CHECK(within(BoringData.SampleCount, MaxSamples));
    CHECK(within(BoringData.LithCount, MaxLith));
    CHECK(within(BoringData.DesCount, MaxDes));
    CHECK(within(BoringData.ParamCount, MaxParams));
    CHECK(within(BoringData.WellInfoCount, MaxWellInfo));
    CHECK(within(BoringData.WellNoteCount, MaxWellNotes));
    CHECK(within(BoringData.OuterLayerCount, MaxLayers));
    CHECK(within(BoringData.InnerLayerCount, MaxLayers));
    CHECK(within(BoringData.RemarkCount, MaxRemarks));
    CHECK(within(BoringData.CuttingCount, MaxCuttings));
    CHECK(within(BoringData.LegendCount, MaxLegend));
    CHECK(within(BoringData.FormationCount, MaxFormations));
}

TEST_CASE("a mutant depends on its seed alone, and seeds differ")
{
    const std::string file = ReadWholeFile(TestData("boring/whole.BOR"));
    std::set<std::string> mutants;
    for (uint64_t seed = 1; seed <= 50; ++seed) {
        CHECK(Mutate(file, seed) == Mutate(file, seed));
        mutants.insert(Mutate(file, seed));
    }
    CHECK(mutants.size() > 40);
    CHECK(Mutate("", 3).size() < 10000);
}

TEST_CASE("a damaged boring file gives one of the known messages, and the record stays within its bounds")
{
    const std::string file = ReadWholeFile(TestData("boring/whole.BOR"));
    const std::set<Text> known = {
        "This boring file has an invalid format.", "Error 6 in OpenBoringFile2.  Please contact Norvane",
        "Error 9 in OpenBoringFile2.  Please contact Norvane", "Error 62 in OpenBoringFile2.  Please contact Norvane"};
    int refused = 0;
    const int count = MutantCount(2000);
    for (int seed = 1; seed <= count; ++seed) {
        INFO("seed ", seed);
        WriteWholeFile(Scratch("B.BOR"), Mutate(file, uint64_t(seed)), Durability::Scratch);
        Messages.clear();
        ClearBoringForm();
        BoringFileName = Scratch("B.BOR");
        DialogMode = 2;
        OpenBoringFile2();
        REQUIRE(Messages.size() <= 1);
        if (!Messages.empty()) {
            CHECK(known.contains(Messages[0].words));
            ++refused;
        }
        CheckCounts();
    }
    CHECK(refused > count / 4);
    CHECK(refused < count);
}

TEST_CASE("a damaged boring file that was opened fills the boxes and is saved, or refused in known words")
{
    const std::string file = ReadWholeFile(TestData("boring/whole.BOR"));
    const int count = MutantCount(2000) / 10;
    for (int seed = 1; seed <= count; ++seed) {
        INFO("seed ", seed);
        WriteWholeFile(Scratch("B.BOR"), Mutate(file, uint64_t(seed)), Durability::Scratch);
        ClearBoringForm();
        BoringFileName = Scratch("B.BOR");
        DialogMode = 2;
        OpenBoringFile2();
        Messages.clear();
        FillBoringForm();
        for (const PlainMessage& message : Messages)
            CHECK(message.words.starts_with("The width of the "));
        Messages.clear();
        boringcheck();
        BoringFileName = Scratch("C.BOR");
        SaveBoringFile();
        for (const PlainMessage& message : Messages)
            CHECK_FALSE(message.words.find("SaveBoringFile") != Text::npos);
        // What was saved opens without a message.
        if (!FileExists(BoringFileName))
            continue;
        Messages.clear();
        ClearBoringArrays();
        OpenBoringFile2();
        CHECK(Messages.empty());
    }
}
