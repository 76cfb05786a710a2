// sectionboring_test.cpp -- what sections and fences take of a boring's file.
#include "crosspage.h"

#include "logrender/logdata.h"
#include "run/screenview.h"
#include "sections/crossrun.h"
#include "sections/sectionboring.h"
#include "session/platform.h"
#include "session/session.h"

using namespace VCROSS;

static int FailureOfReading(const std::string& bytes, void (*reader)(const Text&))
{
    WriteScratch("B.BOR", bytes);
    try {
        reader(Scratch("B.BOR"));
        return 0;
    } catch (const RunTimeError& error) {
        return error.Number;
    }
}

static void Layers(const Text& path)
{
    ReadSectionLayers(path, 1);
}

static SectionWell well;

static void Well(const Text& path)
{
    ReadSectionWell(path, 1, well, false);
}

static void WellWithClient(const Text& path)
{
    ReadSectionWell(path, 1, well, true);
}

static void Fence(const Text& path)
{
    ReadFenceBoring(path, 1, well, false);
}

// A boring with something in each block in front of the well.
static BoringText FullBoring()
{
    BoringText boring = SectionBoring("B-1", {{"2.5", "SM"}, {"4", " "}, {"10", "F12,Sand", "D", "RED"}});
    boring.RepParts = {{"DEP", ".4"}, {"GRAPHIC", ".3"}};
    boring.Samples = {{"1", "2", "1", "4-5-6", "L1", "p1", "p2"}, {"3", "4"}};
    boring.Des = {"@1", "Sand"};
    boring.Params = {{"1", "2", "3"}, {"2"}};
    boring.WellInfo = {{"Driller", "X"}, {"Rig", "Y"}, {"Bit", "Z"}};
    boring.WellNotes = {"Note", "Another"};
    boring.GenWell = {"MW-1", "MW-1b", "", "", "601.5", "2.25"};
    boring.OuterLayers = {{"0", "8"}, {"8", "12.5"}, {"12.5", "9"}, {"9", ""}};
    boring.InnerLayers = {{"-2", "3", "Pipe"}, {"3", "7.5", "0.02 screen"}, {"8", "9", "SCREENS"}};
    return boring;
}

TEST_CASE("a boring without a folder lies in the project folder")
{
    ProjectPath = "/p";
    CHECK(SectionBoringPath("B.BOR") == "/p/B.BOR");
    CHECK(SectionBoringPath("") == "/p/");
    CHECK(SectionBoringPath("a\\B.BOR") == "a\\B.BOR");
    CHECK(SectionBoringPath("a/B.BOR") == "a/B.BOR");
    CHECK(SectionBoringPath("c:B.BOR") == "c:B.BOR");
}

TEST_CASE("a boring that is missing or has an earlier form is told with its whole path")
{
    CHECK(!SectionBoringThere(Scratch("NONE.BOR")));
    WriteScratch("OLD.BOR", "4.6\r\n");
    CHECK(!SectionBoringThere(Scratch("OLD.BOR")));
    WriteScratch("NEW.BOR", "5.9\r\n");
    CHECK(SectionBoringThere(Scratch("NEW.BOR")));
    REQUIRE(Messages.size() == 2);
    CHECK(Messages[0].words == "Boring File Not Found: " + Scratch("NONE.BOR"));
    CHECK(Messages[1].words == "This boring file has the format of a previous version: " + Scratch("OLD.BOR"));
}

TEST_CASE("an entry is stepped over on the screen alone")
{
    RunPages.pageIndex = 3;
    StepOverEntry();
    CHECK(RunPages.pageIndex == 4);
    RunPages.printing = 1;
    StepOverEntry();
    CHECK(RunPages.pageIndex == 4);
    RunPages.printing = 0;
    Platform.Unattended = true;
    StepOverEntry();
    CHECK(RunPages.pageIndex == 4);
}

TEST_CASE("the lithology gives depths and codes, a blank code being an empty pattern without letters")
{
    WriteBoring("B.BOR", FullBoring());
    ReadSectionLayers(Scratch("B.BOR"), 3);
    CHECK(CrossRun.layerCount[3] == 3);
    CHECK(CrossRun.layerDepth[3][1] == 2.5f);
    CHECK(CrossRun.layerDepth[3][3] == 10);
    CHECK(CrossRun.layerCode[3][1] == "SM");
    CHECK(CrossRun.layerCode[3][2] == "F0,");
    CHECK(CrossRun.layerCode[3][3] == "F12,Sand");
    CHECK(CrossRun.deepestLayer[3] == 10);
}

TEST_CASE("the well gives names, elevations, the greatest ends and the screens")
{
    WriteBoring("B.BOR", FullBoring());
    Well(Scratch("B.BOR"));
    CHECK(well.Name == "B-1");
    CHECK(well.WellName == "MW-1");
    CHECK(CrossRun.refElevation[1] == 601.5f);
    CHECK(CrossRun.stickUp[1] == 2.25f);
    CHECK(well.boreDepth == 12.5f);
    CHECK(well.casingDepth == 9);
    CHECK(well.screenCount == 2);
    CHECK(well.screenTop[1] == 3);
    CHECK(well.screenBottom[1] == 7.5f);
    CHECK(well.screenTop[2] == 8);
    CHECK(well.screenBottom[2] == 9);
}

TEST_CASE("ends below 0 and a well without rows leave its depths at 0")
{
    BoringText boring = FullBoring();
    boring.OuterLayers = {};
    boring.InnerLayers = {{"-5", "-2", "Screen"}};
    WriteBoring("B.BOR", boring);
    well.boreDepth = 99;
    Well(Scratch("B.BOR"));
    CHECK(well.boreDepth == 0);
    CHECK(well.casingDepth == 0);
    CHECK(well.screenTop[1] == -5);
}

TEST_CASE("the sixth screen takes the place of the fifth")
{
    BoringText boring = FullBoring();
    boring.InnerLayers.clear();
    for (int n = 1; n <= 6; ++n)
        boring.InnerLayers.push_back({std::to_string(n), std::to_string(n) + ".5", "screen"});
    WriteBoring("B.BOR", boring);
    Well(Scratch("B.BOR"));
    CHECK(well.screenCount == 5);
    CHECK(well.screenTop[4] == 4);
    CHECK(well.screenTop[5] == 6);
    CHECK(well.screenBottom[5] == 6.5f);
}

TEST_CASE("rows of general parameters have nine lines in the oldest form and twenty-one in all others")
{
    for (const auto& [version, cells] : {std::pair{"5.0", 9}, {"5.0.2", 21}, {"5.1", 21}}) {
        BoringText boring = FullBoring();
        boring.Version = version;
        boring.ParamCells = cells;
        WriteBoring("B.BOR", boring);
        Well(Scratch("B.BOR"));
        CHECK(well.WellName == "MW-1");
    }
}

TEST_CASE("lists that are passed over may be longer than any log could take")
{
    BoringText boring = FullBoring();
    boring.Samples.assign(300, {"1", "2"});
    boring.Des.assign(2000, "text");
    boring.Params.assign(300, {"1"});
    WriteBoring("B.BOR", boring);
    Well(Scratch("B.BOR"));
    CHECK(well.WellName == "MW-1");
    Layers(Scratch("B.BOR"));
    CHECK(CrossRun.layerCount[1] == 3);
}

TEST_CASE("layer 101 is error 9")
{
    BoringText boring = FullBoring();
    boring.Lith.assign(100, {"1", "SM"});
    CHECK(FailureOfReading(boring.Bytes(), Layers) == 0);
    boring.Lith.assign(101, {"1", "SM"});
    CHECK(FailureOfReading(boring.Bytes(), Layers) == SubscriptOutOfRange);
    CHECK(CrossRun.layerCount[1] == 101);
    CHECK(FailureOfReading(boring.Bytes(), Well) == 0);
    CHECK(FailureOfReading(boring.Bytes(), Fence) == SubscriptOutOfRange);
}

TEST_CASE("a file may end behind what is read of it, and not before")
{
    BoringText boring = FullBoring();
    boring.Des = {"behind the layers"};
    boring.WellNotes = {"in front of the well"};
    boring.OuterLayers = {{"0", "8", "behind the names"}};
    boring.InnerLayers = {{"0", "8", "", "", "the end of the well"}};
    const std::string bytes = boring.Bytes();
    const auto until = [&](const char* words) { return bytes.substr(0, bytes.find(words)); };
    CHECK(FailureOfReading(until("behind the layers"), Layers) == 0);
    CHECK(FailureOfReading(until("F12,Sand"), Layers) == InputPastEnd);
    CHECK(FailureOfReading(until("in front of the well"), Well) == InputPastEnd);
    CHECK(FailureOfReading(until("the end of the well"), Well) == InputPastEnd);
    CHECK(FailureOfReading(until("the end of the well") + "x\r\n", Well) == 0);
    CHECK(FailureOfReading(until("the end of the well") + "x\r\n", WellWithClient) == InputPastEnd);
    CHECK(FailureOfReading(until("behind the names"), Fence) == 0);
    CHECK(FailureOfReading(until("601.5"), Fence) == InputPastEnd);
}

TEST_CASE("the client block is read as far as the file lasts")
{
    BoringText boring = FullBoring();
    boring.Remarks = {"r"};
    boring.Cuttings = {{"1", "2", "3", "4"}};
    boring.Legend = {{"SM", "Sand"}};
    boring.Formations = {{"1", "F"}};
    boring.Tail = {"c1", "c2", "c3", "c4", "c5", "3", " 0 "};
    WriteBoring("B.BOR", boring);
    LogBoring.Style = 9;
    Well(Scratch("B.BOR"));
    CHECK(LogBoring.Style == 9);
    WellWithClient(Scratch("B.BOR"));
    CHECK(LogBoring.Client.slot == std::array<Text, 6>{"", "c1", "c2", "c3", "c4", "c5"});
    CHECK(LogBoring.Style == 3);
    boring.Tail = {"one", "two"};
    WriteBoring("B.BOR", boring);
    ReadFenceBoring(Scratch("B.BOR"), 1, well, true);
    CHECK(LogBoring.Client.slot == std::array<Text, 6>{"", "one", "two", "", "", ""});
    CHECK(LogBoring.Style == 1);
}

TEST_CASE("a fence takes layers, names and elevations, and no tables")
{
    WriteBoring("B.BOR", FullBoring());
    ReadFenceBoring(Scratch("B.BOR"), 2, well, false);
    CHECK(CrossRun.layerCount[2] == 3);
    CHECK(CrossRun.refElevation[2] == 601.5f);
    CHECK(CrossRun.stickUp[2] == 2.25f);
    CHECK(well.Name == "B-1");
    CHECK(well.WellName == "MW-1");
    CHECK(well.screenCount == 0);
}
