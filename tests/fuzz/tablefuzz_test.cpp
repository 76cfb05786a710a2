// tablefuzz_test.cpp -- damaged GIS tables, soil tables and their borings: known messages, and what was read stays in
// bounds.
#include "fuzz/mutate.h"

#include "testing.h"

#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "gis/gisfile.h"
#include "logrender/boringtext.h"
#include "places.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "sections/soilfile.h"
#include "sections/soiltable.h"
#include "session/failure.h"
#include "session/files.h"

#include <chrono>
#include <set>

static std::string Stock(const Text& sample)
{
    return ReadWholeFile(Text(SOURCE_DIR) + "/samples/" + sample);
}

// The reports that a file's content can bring about.
static bool Report(const Text& words)
{
    static const std::set<int> numbers = {InvalidCall, Overflow,     OutOfMemory,  SubscriptOutOfRange, DivisionByZero,
                                          BadFileName, FileNotFound, InputPastEnd, PathAccess,          PathNotFound};
    return words.starts_with("Error ") && words.ends_with(".  Please contact Norvane") &&
           numbers.contains(static_cast<int>(TextNumber(words.substr(6))));
}

static void CheckMessages(std::initializer_list<const char*> openings)
{
    for (const PlainMessage& message : Messages) {
        bool known = Report(message.words);
        for (const char* opening : openings)
            known = known || message.words.starts_with(opening);
        if (!known)
            FAIL_CHECK(message.words.substr(0, 200));
    }
}

TEST_CASE("a damaged GIS table opens with a known message or none, takes a boring, and is the same when saved again")
{
    const std::string table = Stock("WIREWICK.GIS");
    WriteScratch("B.BOR", Stock("MW-108.BOR"));
    const int count = MutantCount(150);
    int told = 0;
    for (int seed = 1; seed <= count; ++seed) {
        INFO("seed ", seed);
        WriteWholeFile(Scratch("A.GIS"), Mutate(table, uint64_t(seed)), Durability::Scratch);
        Messages.clear();
        ClearGISForm();
        OpenGISFile(Scratch("A.GIS"));
        FillGISForm();
        told += Messages.empty() ? 0 : 1;
        CheckMessages({});
        REQUIRE(GisData.layerCount >= 0);
        REQUIRE(GisData.layerCount <= MaxGisLayers);
        REQUIRE(GisData.boringCount >= 0);
        REQUIRE(GisData.boringCount <= MaxGisBorings);
        Messages.clear();
        frmGIS::Command2();
        if (frmGIS::SSGISInfo.DataRowCount() < MaxGisBorings)
            frmGIS::AddBoring(Scratch("B.BOR"), "B.BOR");
        CHECK(ExportGIS2ArcView(Scratch("a.txt")));
        CHECK(ExportGIS2EVS(Scratch("e.txt")));
        REQUIRE(SaveGISFile(Scratch("A.GIS")));
        const std::string saved = ReadScratch("A.GIS");
        OpenGISFile(Scratch("A.GIS"));
        FillGISForm();
        REQUIRE(SaveGISFile(Scratch("A.GIS")));
        CHECK(ReadScratch("A.GIS") == saved);
        CHECK(Messages.size() == 2); // both exports are done
    }
    CHECK(told > count / 20);
    CHECK(told < count);
}

TEST_CASE("a damaged boring is added to the GIS table and looked at, with a known message or none")
{
    const std::string boring = Stock("MW-108.BOR");
    const int count = MutantCount(150);
    int told = 0;
    for (int seed = 1; seed <= count; ++seed) {
        INFO("seed ", seed);
        WriteWholeFile(Scratch("B.BOR"), Mutate(boring, uint64_t(seed)), Durability::Scratch);
        Messages.clear();
        ClearGISForm();
        frmGIS::SSGISLayers.Cell(1, 1) = "AR";
        frmGIS::SSGISLayers.Cell(2, 1) = "SM";
        frmGIS::Command2();
        frmGIS::RefreshFileList();
        frmGIS::Option1();
        frmGIS::Command3();
        frmGIS::Command1();
        CHECK(frmGIS::SSGISInfo.Cell(1, GisFileName) == "B.BOR");
        CHECK(Messages.size() % 2 == 0); // the same words twice, or none
        told += Messages.empty() ? 0 : 1;
        CheckMessages({"This boring file has an invalid format."});
    }
    CHECK(told > count / 20);
    CHECK(told < count);
}

// Runs so many damaged soil tables, or tables of damaged borings; how many were told.
static int RunTables(const std::string& table, const std::string& boring, bool damageBoring, int count)
{
    static int pages;
    pages = 0;
    Platform.PageDrawn = [] {
        ++pages;
        CHECK(PageList.Objects.size() <= MaxPageObjects);
    };
    WriteHeadings();
    WriteScratch("log.mas", Lines({"1", "A.SOI"}));
    int told = 0;
    for (int seed = 1; seed <= count; ++seed) {
        INFO("seed ", seed);
        WriteWholeFile(Scratch("A.SOI"), damageBoring ? table : Mutate(table, uint64_t(seed)), Durability::Scratch);
        WriteWholeFile(Scratch("SB-111.BOR"), damageBoring ? Mutate(boring, uint64_t(seed)) : boring,
                       Durability::Scratch);
        Messages.clear();
        PageCanvas = CanvasRecord();
        PageList = PageListRecord();
        const auto before = std::chrono::steady_clock::now();
        VCROSS::vsoilstart();
        const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - before;
        CHECK(seconds.count() < 20);
        CHECK(RunPages.pageIndex == 2);
        told += Messages.empty() ? 0 : 1;
        CheckMessages({"Boring File Not Found: ", "This boring file has the format of a previous version: "});
    }
    CHECK(pages == count);
    return told;
}

TEST_CASE("a damaged soil table, or one of a damaged boring, draws its page and says what is amiss in known words")
{
    const std::string table = Stock("SB-111.SOI"), boring = Stock("SB-111.BOR");
    const int count = MutantCount(200) / 2;
    for (const bool damageBoring : {false, true}) {
        const int told = RunTables(table, boring, damageBoring, count);
        CHECK(told > count / 20);
        CHECK(told < count);
    }
}

TEST_CASE("a damaged soil table comes into its form with a known message or none, and is the same when saved twice")
{
    const std::string table = Stock("SB-111.SOI");
    const int count = MutantCount(150);
    int told = 0, saved = 0;
    for (int seed = 1; seed <= count; ++seed) {
        INFO("seed ", seed);
        WriteWholeFile(Scratch("A.SOI"), Mutate(table, uint64_t(seed)), Durability::Scratch);
        Messages.clear();
        frmSoil::FileName = Scratch("A.SOI");
        OpenSoilFile();
        FillSoilForm();
        told += Messages.empty() ? 0 : 1;
        CheckMessages({});
        Messages.clear();
        if (!SaveSoilFile()) {
            CheckMessages({"Your notes exceed 10 lines."});
            continue;
        }
        ++saved;
        OpenSoilFile();
        FillSoilForm();
        REQUIRE(SaveSoilFile());
        OpenSoilFile();
        FillSoilForm();
        const std::string second = ReadScratch("A.SOI");
        REQUIRE(SaveSoilFile());
        CHECK(ReadScratch("A.SOI") == second);
    }
    CHECK(told > count / 20);
    CHECK(told < count);
    CHECK(saved > count / 2);
}
