// sectionfuzz_test.cpp -- damaged definitions, tables and borings through whole runs of sections: pages or known
// messages, never a crash or a hang.
#include "fuzz/mutate.h"

#include "testing.h"

#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "gis/gisfile.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "sections/crossfile.h"
#include "sections/crosspage.h"
#include "sections/crossrun.h"
#include "sections/layershapes.h"
#include "session/files.h"
#include "session/session.h"

#include <chrono>
#include <set>

using namespace VCROSS;

// What a damaged file may make a run or an editor say.
static bool Known(const Text& words)
{
    static const char* const openings[] = {
        "Boring File Not Found: ",    "This boring file has the format of a previous version: ",
        "Parameter File Not Found: ", "GIS File Not Found: ",
        "File Not Found: ",           "This boring file has an invalid format.",
    };
    for (const char* opening : openings)
        if (words.starts_with(opening))
            return true;
    static const std::set<int> numbers = {InvalidCall, Overflow,     OutOfMemory,  SubscriptOutOfRange, DivisionByZero,
                                          BadFileName, FileNotFound, InputPastEnd, PathAccess,          PathNotFound};
    static const std::set<Text> procedures = {
        "OpenCrossFile",    "OpenGISFile",    "OpenBoringGIS",   "canvasstart",  "drawclient",
        "drawcrossborings", "drawcrossframe", "drawcrossparams", "drawlogo",     "drawlogolegend",
        "drawwaterlevels",  "fillcrossGIS",   "fillcrosslayers", "getcrossdata",
    };
    const Text tail = ".  Please contact Norvane";
    const size_t in = words.find(" in ");
    return words.starts_with("Error ") && words.ends_with(tail) && in != Text::npos &&
           numbers.contains(static_cast<int>(TextNumber(words.substr(6)))) &&
           procedures.contains(words.substr(in + 4, words.size() - tail.size() - in - 4));
}

// ---- The site: four borings, a table of them, a section of every kind

static BoringText SiteBoring(const Text& name, double level, const BoringText::Rows& layers)
{
    BoringText boring = SectionBoring(name, layers);
    boring.GenWell = {"MW-" + name, "", "", "", PlainNumber(level), "1"};
    boring.OuterLayers = {{"0", "40", "Sand"}};
    boring.InnerLayers = {{"0", "30", "Casing"}, {"20", "30", "Screen"}};
    boring.Samples = {{"2", "3", "", "4,5", "1", "10", "20"}, {"8", "9", "", "4,5", "2", "30", "40"}};
    boring.Params = {{"2", "10", "20", "30"}, {"9", "15", "25", "35"}};
    boring.SampleSetup = {{"N", "N", "0,50,10"}};
    boring.GenSetup = {{"CPT", "CPT", "0,100,20"}};
    return boring;
}

static void WriteSite()
{
    WriteHeadings();
    WriteBoring("A.BOR", SiteBoring("A", 95, {{"5", "SM"}, {"10", "CL"}, {"22", "SM"}, {"40", "GW,Gravel"}}));
    WriteBoring("B.BOR", SiteBoring("B", 93, {{"6", "SM"}, {"15", "SC"}, {"25", "ML"}, {"38", "GW,Gravel"}}));
    WriteBoring("C.BOR", SiteBoring("C", 90, {{"3", "SM"}, {"9", "F12,Fill"}, {"20", "SM"}, {"30", "CL"}}));
    WriteBoring("D.BOR", SiteBoring("D", 92, {{"30", "CL"}}));
}

static std::string Definition(int kind)
{
    SectionText section;
    section.Borings = {{"100", "A", "4", "B", "T", "0,0", "MW"},
                       {"300", "B.BOR", "3", "W", "B", ".1,.05", ""},
                       {"500", "C", "", "B", "T", "", "I|120|25"},
                       {"700", "D", "2", "B", "T", "", ""}};
    section.Legend = {"SM;Silty sand", "CL;Clay", "GW,Gravel;Gravel", "RED;Till"};
    section.Layers = kind == 2 ? "N" : kind == 3 ? "I" : "Y";
    section.Tail = {kind == 1 ? "T" : "L", kind == 1 ? "SITE.GIS" : "", kind == 2 ? "PG1" : kind == 3 ? "GP2" : "", ""};
    return section.Bytes();
}

static std::string Table()
{
    return Lines({" 3 ", "SM",    "",    "CL", "RED",   "GW", "",      " 4 ",                      //
                  "A",   "100",   "50",  "94", "A.BOR", "5",  "10-22", "40",                       //
                  "B",   "300",   "50",  "92", "B",     "6",  "X",     "6-38",                     //
                  "C",   "500",   "200", "89", "C.BOR", "3",  "X-12",  "30",   "D", "700", "20.5", //
                  "91",  "D.BOR", "",    "30", "",      ""});
}

// ---- The runs

static int pagesDrawn;

static void StartCampaign()
{
    WriteSite();
    SetPatterns({0, 21, 26, 27, 28, 29, 31, 32});
    WriteScratch("SITE.GIS", Table());
    Platform.Unattended = true;
    pagesDrawn = 0;
    Platform.PageDrawn = [] {
        ++pagesDrawn;
        CHECK(PageList.Objects.size() <= MaxPageObjects);
    };
}

// One run of one file from records as at the start of the program. True when it went without a word.
static bool Run(const char* file)
{
    ResetCrossRun();
    LayerFill = LayerFillRecord();
    GisData = GisRecord();
    PageCanvas = CanvasRecord();
    PageList = PageListRecord();
    Messages.clear();
    WriteRunList({file});
    const auto before = std::chrono::steady_clock::now();
    vcrossstart();
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - before;
    CHECK(seconds.count() < 20);
    CHECK(RunPages.pageIndex == 2);
    for (const PlainMessage& message : Messages)
        if (!Known(message.words))
            FAIL_CHECK(message.words.substr(0, 200));
    return Messages.empty();
}

// Some damage is told, and some draws as if nothing were amiss: else the mutants miss their point.
static void CheckCampaign(int silent, int count)
{
    CHECK(pagesDrawn > count / 2);
    CHECK(silent > count / 10);
    CHECK(silent < count);
}

TEST_CASE("the site of the campaigns is drawn without a word as it stands")
{
    StartCampaign();
    for (int kind = 0; kind < 4; ++kind) {
        WriteScratch("S.CRO", Definition(kind));
        CHECK(Run("S.CRO"));
        CHECK(PageList.Objects.size() > 100);
    }
}

TEST_CASE("a damaged section definition draws its page or says why not, in known words")
{
    StartCampaign();
    const int count = MutantCount(400);
    int silent = 0;
    for (int seed = 1; seed <= count; ++seed) {
        INFO("seed ", seed);
        WriteWholeFile(Scratch("S.CRO"), Mutate(Definition(seed % 4), uint64_t(seed)), Durability::Scratch);
        silent += Run("S.CRO");
    }
    CheckCampaign(silent, count);
}

TEST_CASE("a damaged GIS table leaves a page, or says why not, in known words")
{
    StartCampaign();
    WriteScratch("S.CRO", Definition(1));
    const int count = MutantCount(400);
    int silent = 0;
    for (int seed = 1; seed <= count; ++seed) {
        INFO("seed ", seed);
        WriteWholeFile(Scratch("SITE.GIS"), Mutate(Table(), uint64_t(seed)), Durability::Scratch);
        silent += Run("S.CRO");
    }
    CHECK(pagesDrawn == count);
    CheckCampaign(silent, count);
}

TEST_CASE("a damaged boring leaves a page of its section, or says why not, in known words")
{
    StartCampaign();
    const std::string boring = ReadScratch("B.BOR");
    for (int kind = 0; kind < 4; ++kind)
        WriteScratch("S" + std::to_string(kind) + ".CRO", Definition(kind));
    const int count = MutantCount(400);
    int silent = 0;
    for (int seed = 1; seed <= count; ++seed) {
        INFO("seed ", seed);
        WriteWholeFile(Scratch("B.BOR"), Mutate(boring, uint64_t(seed)), Durability::Scratch);
        silent += Run(("S" + std::to_string(seed % 4) + ".CRO").c_str());
    }
    CHECK(pagesDrawn == count);
    CheckCampaign(silent, count);
}

// ---- The editors' readers

TEST_CASE("damaged sections, tables and borings come into their forms, or are told in known words")
{
    StartCampaign();
    const std::string boring = ReadScratch("B.BOR");
    const int count = MutantCount(400);
    int silent = 0;
    const auto load = [&](const char* file, const std::string& bytes, int seed, void (*open)(const Text&)) {
        WriteWholeFile(Scratch(file), Mutate(bytes, uint64_t(seed)), Durability::Scratch);
        Messages.clear();
        open(Scratch(file));
        for (const PlainMessage& message : Messages)
            if (!Known(message.words))
                FAIL_CHECK(message.words.substr(0, 200));
        silent += Messages.empty();
    };
    for (int seed = 1; seed <= count; ++seed) {
        INFO("seed ", seed);
        load("E.CRO", Definition(seed % 4), seed, [](const Text& path) {
            frmCross::FileName = path;
            ClearCrossArrays();
            OpenCrossFile();
            FillCrossForm();
        });
        load("E.GIS", Table(), seed, [](const Text& path) {
            OpenGISFile(path);
            FillGISForm();
        });
        load("E.BOR", boring, seed, [](const Text& path) { OpenBoringGIS(path); });
    }
    CHECK(silent > count / 10);
    CHECK(silent < 3 * count);
}
