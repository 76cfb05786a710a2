// crosscheck_test.cpp -- what a reviewer of a cross section would flag, and that nothing else is.
#include "sections/crosscheck.h"

#include "checked.h"
#include "crosspage.h"
#include "gis/gisfile.h"
#include "sections/crossfile.h"
#include "sections/crossrun.h"
#include "sections/crosstool.h"
#include "sections/sheetcheck.h"
#include "session/deviceconfig.h"
#include "session/session.h"
#include "testing.h"

#include <chrono>
#include <filesystem>

using Words = std::vector<Text>;

// Two borings side by side, with nothing to flag.
static SectionText GoodSection()
{
    WriteHeadings();
    ProjectPath = ScratchFolder();
    WriteBoring("A.BOR", SectionBoring("A", {{"4", "SM"}, {"10", "CL"}}));
    WriteBoring("B.BOR", SectionBoring("B", {{"3", "SM"}, {"9", "CL"}}));
    SectionText section;
    section.Borings = {{"100", "A", "5", "W", "T", "0,0"}, {"600", "B.BOR", "", "B", "B"}};
    section.Layers = "Y";
    section.Legend = {"SM;Silty sand", "CL;Clay"};
    return section;
}

static std::vector<CheckEntry> Check(const SectionText& section)
{
    WriteSection("A.CRO", section);
    frmCross::FileName = Scratch("A.CRO");
    frmCross::LabelBoxes();
    CrossData = CrossRecord();
    OpenCrossFile();
    FillCrossForm();
    return CheckSection();
}

static Words Kind(const SectionText& section, const char* kind)
{
    return WordsOf(Check(section), kind);
}

TEST_CASE("a section with nothing to flag, and one with nothing in it, have an empty list")
{
    SectionText section = GoodSection();
    for (const char* mode : {"Y", "N", "I"}) {
        section.Layers = mode;
        CHECK(AllWords(Check(section)) == "");
    }
    for (Grid* grid : CrossForm.grids)
        grid->Clear();
    CHECK(CheckSection().empty());
}

TEST_CASE("the check of a section shows no box and leaves every record of a drawing as it was")
{
    SectionText section = GoodSection();
    section.Tail = {"L", "none", "GP1", ""};
    VCROSS::CrossRun.boringCount = 7;
    VCROSS::CrossRun.refElevation[1] = 12;
    GisData.layerCount = 3;
    GisData.layerName[1] = "kept";
    const std::vector<CheckEntry> found = Check(section);
    CHECK_FALSE(found.empty());
    CHECK(Messages.empty());
    CHECK(VCROSS::CrossRun.boringCount == 7);
    CHECK(VCROSS::CrossRun.refElevation[1] == 12);
    CHECK(GisData.layerCount == 3);
    CHECK(GisData.layerName[1] == "kept");
}

TEST_CASE("a boring of a section that is missing, old or broken off is an error at its cell")
{
    SectionText section = GoodSection();
    section.Borings = {{"100", "NONE"}, {"200", "OLD"}, {"300", "SHORT"}, {"400", ""}, {"500", "A"}};
    WriteScratch("OLD.BOR", "4.6\r\n");
    WriteScratch("SHORT.BOR", "5.0.12\r\nS\r\n");
    const std::vector<CheckEntry> found = Check(section);
    CHECK(WordsOf(found, "named-boring") ==
          Words{"The boring file NONE.bor is not found: no boring of the section is drawn.",
                "The boring file OLD.bor has the format of a previous version: no boring of the section is drawn.",
                "The boring file SHORT.bor cannot be read whole (error 62): no boring of the section is drawn.",
                "Row 4 names no boring: no boring of the section is drawn."});
    CHECK(found[0].InGrid == &frmCross::SS1);
    CHECK(found[1].Row == 2);
    CHECK(found[1].Column == 2);
    CHECK(WeightOf(found[0]) == CheckWeight::Error);
    section.Borings = {};
    CHECK(Kind(section, "named-boring") == Words{"The section has no boring."});
}

TEST_CASE("distances of a section that do not grow are flagged, whatever is drawn between them")
{
    SectionText section = GoodSection();
    section.Borings[1][0] = "90";
    CHECK(Kind(section, "sheet-order") == Words{"Row 2, B.BOR, stands at 90, not to the right of row 1 at 100: the "
                                                "layers between them are drawn over others."});
    section.Layers = "N";
    section.Borings[1][0] = "100";
    CHECK(Kind(section, "sheet-order") == Words{"Row 2, B.BOR, stands at 100, not to the right of row 1 at 100."});
}

TEST_CASE("a vertical scale that is upside down, without height or without increment is an error")
{
    SectionText section = GoodSection();
    section.VStart = "57";
    section.VEnd = "100";
    CHECK(Kind(section, "sheet-scale") ==
          Words{"Vert. Start, End, Inc.: the scale runs from 57 to 100, upside down: the first number is the elevation "
                "of its top."});
    section.VEnd = "57";
    CHECK(Kind(section, "sheet-scale") ==
          Words{"Vert. Start, End, Inc.: the scale runs from 57 to 57, so nothing on it has a place."});
    section = GoodSection();
    section.VInc = "0.4";
    CHECK(Kind(section, "sheet-scale") ==
          Words{"Vert. Start, End, Inc.: the increment is 0, and the drawing of the scale stops."});
    section.VInc = "20"; // the sign is a habit
    CHECK(AllWords(Check(section)) == "");
    section.VStart = section.VEnd = section.VInc = "0"; // the drawing's own
    CHECK(Kind(section, "sheet-scale").empty());
    CHECK(Kind(section, "sheet-ticks").empty());
}

TEST_CASE("a scale cell without a comma is judged by what a save makes of it")
{
    GoodSection();
    Check(GoodSection());
    frmCross::SS2.Cell(3, 1) = "";
    CHECK(WordsOf(CheckSection(), "sheet-scale") ==
          Words{"Vert. Start, End, Inc.: without a comma it is saved as 0,1000,100; the scale runs from 0 to 1000, "
                "upside down: the first number is the elevation of its top."});
    Check(GoodSection());
    frmCross::SS2.Cell(1, 1) = ""; // 0 to 1000, as good as any
    CHECK(AllWords(CheckSection()) == "");
}

TEST_CASE("a horizontal scale that runs backward or has no ticks is an error, one with a single tick a warning")
{
    SectionText section = GoodSection();
    section.HStart = "900";
    CHECK(Kind(section, "sheet-scale").size() == 1);
    section = GoodSection();
    section.HInc = "-20";
    CHECK(Kind(section, "sheet-scale") == Words{"Horiz. Start, End, Inc.: an increment below 0 gives no ticks."});
    section.HInc = "0.001";
    CHECK(Kind(section, "sheet-scale") ==
          Words{"Horiz. Start, End, Inc.: an increment of .001 is too small, and the drawing stops."});
    section.HInc = "841";
    CHECK(Kind(section, "sheet-ticks") ==
          Words{"Horiz. Start, End, Inc.: the increment 841 is larger than the scale, which has one tick."});
    section.HInc = "840";
    CHECK(AllWords(Check(section)) == "");
    section.HInc = "5"; // 168 numbers on 8.4 inches
    CHECK(Kind(section, "sheet-ticks") ==
          Words{"Horiz. Start, End, Inc.: the numbers of the ticks run into one another at an increment of 5."});
    section.HInc = "10";
    CHECK(AllWords(Check(section)) == "");
}

TEST_CASE("elevations of the scale that are not whole are told as they are drawn")
{
    SectionText section = GoodSection();
    section.VStart = "100.5";
    CHECK(Kind(section, "sheet-ticks") == Words{"Vert. Start, End, Inc.: elevations of the scale are whole numbers, so "
                                                "it is drawn from 100 to 57 by 20."});
}

TEST_CASE("borings beyond the ends of the scale, above the frame or below it are flagged, those within its rim are not")
{
    SectionText section = GoodSection();
    section.Borings[0][0] = "-1";
    section.Borings[1][0] = "840.5";
    CHECK(Kind(section, "sheet-frame") == Words{"Row 1, A, stands at -1, beyond the scale from 0 to 840.",
                                                "Row 2, B.BOR, stands at 840.5, beyond the scale from 0 to 840."});
    section.Borings[0][0] = "0";
    section.Borings[1][0] = "840";
    CHECK(AllWords(Check(section)) == "");
    // 10 units to the inch: the frame reaches 2 above the scale and 3 below it.
    section.VStart = "88";
    section.VEnd = "45";
    CHECK(AllWords(Check(section)) == "");
    section.VStart = "87";
    CHECK(Kind(section, "sheet-frame").size() == 2);
    CHECK(Kind(section, "sheet-frame")[0] ==
          "Row 1, A, begins at elevation 90, above the frame, whose scale begins at 87.");
    section.VStart = "126";
    section.VEnd = "83";
    CHECK(AllWords(Check(section)) == "");
    section.VStart = "127";
    section.VEnd = "84";
    CHECK(Kind(section, "sheet-frame")[0] ==
          "Row 1, A, reaches down to elevation 80, below the frame, whose scale ends at 84.");
}

TEST_CASE("fills that the legend lacks or has no room for are flagged in one entry, where fills are drawn")
{
    SectionText section = GoodSection();
    section.Legend = {"CL;Clay", ";", "F24;Sand by its number"};
    const std::vector<CheckEntry> found = Check(section);
    CHECK(WordsOf(found, "sheet-legend") == Words{"The legend has no row for what is drawn: SM."});
    CHECK(found[0].InGrid == &frmCross::SS4);
    CHECK(found[0].Row == 2);
    section.Layers = "I";
    CHECK(Kind(section, "sheet-legend").size() == 1);
    section.Layers = "N";
    CHECK(AllWords(Check(section)) == "");
    section.Layers = "Y";
    section.Legend = {};
    CHECK(Kind(section, "sheet-legend") == Words{"The legend is empty, and the page has 2 fills."});
    // By the pattern and not by its name: SM is number 7 of the codes.
    section.Legend = {"F7,SAND;Silty sand", "CL"};
    CHECK(Kind(section, "sheet-legend") == Words{"The legend has no row for what is drawn: CL."});
    section.Legend = {"F7,SAND;Silty sand"};
    section.Tail = {"L", "", "", "", ";", ";", ";", ";", "CL;Clay"};
    CHECK(Kind(section, "sheet-legend") ==
          Words{"The page shows the first 12 rows of the legend, and none of those for CL."});
    section.Tail[0] = "T";
    section.HEnd = "1440";
    section.VEnd = "32";
    CHECK(AllWords(Check(section)) == "");
}

TEST_CASE("codes that draw blank are flagged once each where fills are drawn, those that are to be blank are not")
{
    SectionText section = GoodSection();
    WriteBoring("A.BOR", SectionBoring("A", {{"2", "sm"},
                                             {"4", "SM/CL"},
                                             {"5", "F400"},
                                             {"6", "F0,NR"},
                                             {"7", ""},
                                             {"8", "FB"},
                                             {"9", "SM/CL"},
                                             {"10", "F24,FILL"}}));
    section.Legend.push_back("F24;Fill");
    CHECK(Kind(section, "sheet-blank") ==
          Words{"Row 1, A, layer to 2: sm draws blank, since codes are in capital letters.",
                "Row 1, A, layer to 4: SM/CL draws blank, since it is neither F and a number nor a code that has a "
                "pattern.",
                "Row 1, A, layer to 5: F400 draws blank, since it is neither F and a number nor a code that has a "
                "pattern."});
    section.Layers = "I";
    CHECK(Kind(section, "sheet-blank").size() == 3);
    section.Layers = "N";
    CHECK(Kind(section, "sheet-blank").empty());
}

TEST_CASE("a pattern whose file is missing in a folder of patterns draws blank")
{
    SectionText section = GoodSection();
    DeviceConfig.SystemFiles[FillFolder] = ScratchFolder();
    WritePicture("F27.BMP");
    CHECK(Kind(section, "sheet-blank") ==
          Words{"Row 1, A, layer to 10: CL draws blank, since its pattern has no file."});
}

TEST_CASE("a code of one letter is an error where fills are drawn, in a layer and in the legend")
{
    SectionText section = GoodSection();
    WriteBoring("A.BOR", SectionBoring("A", {{"2", "C"}}));
    section.Legend.push_back("S;Sand");
    const Words words = Kind(section, "sheet-code");
    REQUIRE(words.size() == 2);
    CHECK(words[0] == "Row 1, A, layer to 2: \"C\" is too short for a pattern, and the drawing stops there.");
    section.Layers = "N";
    CHECK(Kind(section, "sheet-code").empty());
}

// A layer table of these rows: boring, X, Y, elevation, file, cells of the layers SM and CL, the second in red.
static void WriteTable(const std::vector<Words>& rows)
{
    std::string bytes = Lines({" 2 ", "SM", "", "CL", "RED"}) + " " + std::to_string(rows.size()) + " \r\n";
    for (const Words& row : rows)
        for (const Text& cell : row)
            bytes += cell + "\r\n";
    WriteScratch("T.GIS", bytes);
}

TEST_CASE("a GIS file that is not found, and borings that it lacks, are errors")
{
    SectionText section = GoodSection();
    section.Tail[1] = "T";
    CHECK(Kind(section, "named-file") == Words{"The GIS file T.gis is not found or cannot be read whole."});
    WriteTable({{"A", "0", "0", "90", "a", "4", "10"}});
    section.Legend = {"SM;Sand", "Red;Clay"};
    CHECK(AllWords(Check(section)) == "table-row: Row 2, B.BOR has no row in the GIS file: its layers have no "
                                      "thickness, at elevation 0.\n");
    WriteTable({{"A", "0", "0", "90", "a", "4", "10"}, {"B", "0", "0", "90", "B.bor", "3", "9"}});
    CHECK(AllWords(Check(section)) == "");
    section.Layers = "N"; // the table is opened and not used
    WriteTable({});
    CHECK(AllWords(Check(section)) == "");
    WriteScratch("T.GIS", " 1 \r\n");
    CHECK(Kind(section, "named-file").size() == 1);
}

TEST_CASE("with a GIS file distances of 0 come from the coordinates, and the legend shows colors")
{
    SectionText section = GoodSection();
    section.Tail[1] = "T.GIS";
    section.Borings = {{"0", "A"}, {"0", "B"}};
    WriteTable({{"A", "10", "10", "90", "A.BOR", "4", "10"}, {"B", "310", "410", "90", "B.BOR", "3", "9"}});
    section.Legend = {"SM;Sand", "CL;Clay"};
    CHECK(AllWords(Check(section)) == "sheet-legend: The legend has no row for what is drawn: RED of layer CL.\n");
    section.Legend = {"SM;Sand", "red;Clay"};
    CHECK(AllWords(Check(section)) == "");
    section.HEnd = "400";
    section.HInc = "200";
    CHECK(Kind(section, "sheet-frame").size() == 1); // 500 away
    WriteTable({{"A", "10", "10", "90", "A.BOR", "4", "4"}, {"B", "10", "10", "90", "B.BOR", "3", "X"}});
    section.Legend = {"SM;Sand"}; // CL has no thickness anywhere
    CHECK(AllWords(Check(section)) ==
          "sheet-order: Row 2, B, stands at 0, not to the right of row 1 at 0: the layers between them are drawn over "
          "others.\n");
}

TEST_CASE("cells of a section that are no number, or letters that are none of those told, are flagged")
{
    SectionText section = GoodSection();
    section.Borings[0] = {"1,00", "A", "dry", "w ", "x"};
    section.Borings[1][0] = "";
    section.HEnd = "one";
    section.Layers = "y ";
    section.Tail[0] = "A4";
    CHECK(Kind(section, "sheet-number") == Words{"Horiz. Start, End, Inc.: \"one\" is no number, and is taken as 0.",
                                                 "Row 1, A: \"1,00\" is no number, and is taken as 1.",
                                                 "Row 1, A: \"dry\" is no number, and is taken as 0.",
                                                 "Row 2, B.BOR has no distance, and stands at 0."});
    CHECK(Kind(section, "sheet-choice") == Words{"\"y \" is none of the letters told, and is taken as I.",
                                                 "\"A4\" is none of the letters told, and is taken as L.",
                                                 "\"w \" is none of the letters told, and is taken as W.",
                                                 "\"x\" is none of the letters told, and is taken as T."});
    section = GoodSection();
    section.Borings[0] = {"100 ft", "A", "5 ", "b", "t"};
    section.Layers = "y";
    section.Tail[0] = "l";
    CHECK(AllWords(Check(section)) == "");
}

TEST_CASE("a number so large that the drawing stops at it is an error")
{
    SectionText section = GoodSection();
    section.Borings[0][2] = "2E9";
    section.Borings[1][0] = "3E9";
    section.Borings[1].push_back("0,-1E8");
    section.Tail[3] = "1E9,10";
    CHECK(AllWords(Check(section)) ==
          "sheet-number: Width of the columns: \"1E9,10\" is so far beyond the sheet that the drawing stops.\n"
          "sheet-number: Row 1, A: \"2E9\" is so far beyond the sheet that the drawing stops.\n"
          "sheet-number: Row 2, B.BOR: \"3E9\" is so far beyond the sheet that the drawing stops.\n"
          "sheet-number: Row 2, B.BOR, offset of the label: \"0,-1E8\" is so far beyond the sheet that the drawing "
          "stops.\n");
}

TEST_CASE("numbers are what a reader of the cell takes them for")
{
    using VCROSS::ReadsAsNumber;
    for (const char* cell : {"1", " -2.5 ", "+.5", "3.", "1E3", "2e-1 m", "4 feet", "7m"})
        CHECK_MESSAGE(ReadsAsNumber(cell), cell);
    for (const char* cell : {"", ".", "-", "abc", "1,5", "12 ft 6", "1.2.3", "<5", "3-4"})
        CHECK_FALSE_MESSAGE(ReadsAsNumber(cell), cell);
}

TEST_CASE("a column without a length, a label without a name and water below the boring are flagged")
{
    SectionText section = GoodSection();
    BoringText boring = SectionBoring("", {{"4", "SM"}, {"10", "CL"}});
    boring.OuterLayers = {};
    boring.GenWell[0] = " ";
    WriteBoring("A.BOR", boring);
    section.Borings[0][2] = "10.5";
    CHECK(AllWords(Check(section)) ==
          "sheet-label: Row 1, A, has no first well name, so no name stands at its column.\n"
          "sheet-column: Row 1, A, has no outer layer that tells how deep it is: its column has no length.\n"
          "sheet-water: Row 1, A: water at 10.5 is deeper than the boring, which ends at 10.\n");
    section.Borings[0][2] = "10";
    section.Borings[0][3] = "B";
    section.Layers = "I"; // a column is its layers
    CHECK(AllWords(Check(section)) == "sheet-label: Row 1, A, has no boring name, so no name stands at its column.\n");
}

TEST_CASE("a parameter that is none, that no boring has, or whose graph or data file is not there is flagged")
{
    SectionText section = GoodSection();
    BoringText boring = SectionBoring("A", {{"4", "SM"}, {"10", "CL"}});
    boring.Samples = {{"1", "2", "", "", "", "12"}};
    boring.SampleSetup = {{"N", "", "5,5,1"}};
    boring.GenSetup = {{"G", "", "0,10", "", "", "", "NO.DAT", "1"}};
    WriteBoring("A.BOR", boring);
    const auto told = [&](const char* cell, const char* kind) {
        section.Tail[2] = cell;
        return Kind(section, kind);
    };
    CHECK(told("P1", "sheet-parameter").empty());
    CHECK(told("Q1", "sheet-parameter") ==
          Words{"\"Q1\" is none of GP, GPG, P and PG with a number: no value is shown."});
    CHECK(told("P17", "sheet-parameter") == Words{"\"P17\": there are parameters 1 to 16."});
    CHECK(told("GP", "sheet-parameter") == Words{"\"GP\": there are parameters 1 to 20."});
    CHECK(told("p2", "sheet-parameter") == Words{"No boring of the section has a value of this parameter."});
    CHECK(told("PG1", "sheet-scale") ==
          Words{"Row 1, A: the graph of the parameter starts and ends at 5, and its drawing stops."});
    CHECK(told("gpg1", "named-file") == Words{"Row 1, A: the data file NO.DAT is not found."});
    CHECK(told("GP1", "named-file").empty());
    WriteScratch("NO.DAT", "1,2\r\n");
    CHECK(told("GPG1", "named-file").empty());
    CHECK(told("GPG1", "sheet-parameter").empty());
}

TEST_CASE("a heading file that is not found, and a title wider than its box, are flagged")
{
    SectionText section = GoodSection();
    section.MainTitle = "A title that has far more words than its box has room for";
    REQUIRE(Kind(section, "sheet-title").size() == 1);
    CHECK(Kind(section, "sheet-title")[0] == "The title is 3.4 inches wide, and its box at the foot of the page 2.4.");
    section.MainTitle = "Main";
    DeviceConfig.SystemFiles[HeadingFile] = "none";
    CHECK(AllWords(Check(section)) ==
          "named-file: The heading file none.hdg is not found: the words of the page are blank.\n");
}

TEST_CASE("a check sees a boring that has changed since the last one")
{
    SectionText section = GoodSection();
    CHECK(AllWords(Check(section)) == "");
    WriteBoring("B.BOR", SectionBoring("B", {{"3", "SM"}, {"9", "GW"}, {"10", "CL"}}));
    CHECK(Kind(section, "sheet-legend") == Words{"The legend has no row for what is drawn: GW."});
    std::filesystem::remove(Scratch("B.BOR"));
    CHECK(Kind(section, "named-boring").size() == 1);
}

TEST_CASE("a check of 15 borings is done before the next picture of the screen")
{
    SectionText section = GoodSection();
    section.Borings.clear();
    for (int i = 1; i <= 15; ++i) {
        const Text name = "B" + std::to_string(i);
        BoringText boring = SectionBoring(name);
        for (int k = 1; k <= 40; ++k)
            boring.Lith.push_back({PlainNumber(k * 0.25), k % 2 == 0 ? "SM" : "CL"});
        for (int k = 0; k < 80; ++k)
            boring.Samples.push_back({PlainNumber(k * 0.1), PlainNumber(k * 0.1 + 0.1), "", "", "", "1", "2", "3"});
        WriteBoring(name + ".BOR", boring);
        section.Borings.push_back({PlainNumber(i * 50), name});
    }
    CHECK(AllWords(Check(section)) == "");
    const auto start = std::chrono::steady_clock::now();
    constexpr int times = 20;
    for (int i = 0; i < times; ++i)
        CheckSection();
    const double each =
        std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count() / times;
    MESSAGE("milliseconds: " << each);
    CHECK(each < 16 * 4); // a busy machine and a build with checks have their share
}
