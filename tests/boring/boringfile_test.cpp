// boringfile_test.cpp -- reading boring files.
#include "boring/boringfile.h"

#include "testing.h"

#include "boring/boringdata.h"
#include "boring/boringlines.h"
#include "session/session.h"

static void OpenText(const std::string& file)
{
    WriteScratch("B.BOR", file);
    BoringFileName = Scratch("B.BOR");
    DialogMode = 2;
    ClearBoringArrays();
    OpenBoringFile2();
}

static void CheckOneMessage(const Text& words, Icon icon = NoIcon)
{
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == words);
    CHECK(Messages[0].buttons == OkOnly);
    CHECK(Messages[0].icon == icon);
}

static BoringLines::Block Cells(int count, const Text& text = "c")
{
    BoringLines::Block cells;
    for (int i = 1; i <= count; ++i)
        cells.push_back(text + std::to_string(i));
    return cells;
}

TEST_CASE("every line of a boring file comes to its place")
{
    BoringLines lines;
    lines.name = " B-1 ";
    lines.mapFile = "site.bmp";
    lines.info = Cells(60, "i");
    lines.scale = Cells(7, "s");
    lines.repParts = Cells(6, "r");
    lines.layoutFile = "a.lay";
    lines.samples = Cells(42, "m");
    lines.lith = Cells(12, "l");
    lines.des = Cells(4, "d");
    lines.params = Cells(42, "p");
    lines.sampleSetup = Cells(144, "t");
    lines.genSetup = Cells(160, "g");
    lines.wellInfo = Cells(4, "w");
    lines.wellNotes = Cells(3, "n");
    lines.genWell = Cells(14, "e");
    lines.outer = Cells(10, "o");
    lines.inner = Cells(5, "u");
    lines.remarks = Cells(2, "k");
    lines.cuttings = Cells(8, "c");
    lines.legend = Cells(6, "y");
    lines.formations = Cells(4, "f");
    lines.bottNotes = Cells(10, "b");
    lines.client = Cells(5, "q");
    lines.tail = {"3", " 1 "};
    OpenText(lines.File());
    CHECK(Messages.empty());
    CHECK(BoringData.Name == " B-1 "); // the reader keeps lines as they stand
    CHECK(BoringData.MapFile == "site.bmp");
    CHECK(BoringData.Info[1][2] == "i2");
    CHECK(BoringData.Info[30][1] == "i59");
    CHECK(BoringData.Scale[7] == "s7");
    CHECK(BoringData.RepPartCount == 3);
    CHECK(BoringData.RepParts[3].Item == "r5");
    CHECK(BoringData.RepParts[3].Width == "r6");
    CHECK(BoringData.LayoutFile == "a.lay");
    CHECK(BoringData.SampleCount == 2);
    CHECK(BoringData.Samples[2][21] == "m42");
    CHECK(BoringData.LithCount == 3);
    CHECK(BoringData.Lith[3][1] == "l9");
    CHECK(BoringData.DesCount == 4);
    CHECK(BoringData.Des[4] == "d4");
    CHECK(BoringData.ParamCount == 2);
    CHECK(BoringData.Params[2][1] == "p22");
    CHECK(BoringData.SampleParamSetup[16][9] == "t144");
    CHECK(BoringData.GenParamSetup[20][8] == "g160");
    CHECK(BoringData.WellInfoCount == 2);
    CHECK(BoringData.WellInfo[2][2] == "w4");
    CHECK(BoringData.WellNoteCount == 3);
    CHECK(BoringData.GenWell[14] == "e14");
    CHECK(BoringData.OuterLayerCount == 2);
    CHECK(BoringData.OuterLayers[2][5] == "o10");
    CHECK(BoringData.InnerLayerCount == 1);
    CHECK(BoringData.InnerLayers[1][5] == "u5");
    CHECK(BoringData.RemarkCount == 2);
    CHECK(BoringData.CuttingCount == 2);
    CHECK(BoringData.Cuttings[2][4] == "c8");
    CHECK(BoringData.LegendCount == 3);
    CHECK(BoringData.FormationCount == 2);
    CHECK(BoringData.Formations[2][2] == "f4");
    CHECK(BoringData.BottNotes[10] == "b10");
    CHECK(BoringData.Client[5] == "q5");
    CHECK(BoringData.Style == 3);
    CHECK(BoringData.Draft == 1);
}

TEST_CASE("a sample row with only a depth keeps 20 empty cells")
{
    BoringLines lines;
    lines.samples = BoringLines::Block(21);
    lines.samples[0] = "2.5";
    OpenText(lines.File());
    CHECK(BoringData.SampleCount == 1);
    CHECK(BoringData.Samples[1][1] == "2.5");
    for (int column = 2; column <= 21; ++column)
        CHECK(BoringData.Samples[1][column] == "");
    WriteConvertedBoring(Scratch("C.BOR"));
    CHECK(ReadScratch("C.BOR").find("\r\n1\r\n2.5\r\n\r\n\r\n") != Text::npos);
}

TEST_CASE("a file of another kind is refused, the record stays empty and the name stays")
{
    for (const char* const first : {"hello", "", "4.5", "4.60", " 5.0", "6.0"}) {
        Messages.clear();
        OpenText(Lines({first, "a", "b", "c"}));
        CheckOneMessage("This boring file has an invalid format.", Exclamation);
        CHECK(BoringData.Name == "");
        CHECK(BoringFileName == Scratch("B.BOR"));
    }
}

static int readerRun;

TEST_CASE("a 4.6 file is told and goes to its own reader")
{
    readerRun = 0;
    OlderForms[2] = [] { readerRun = 46; };
    OpenText(Lines({"4.6", "B-1"}));
    CheckOneMessage("This boring file has version 4.6 format.  When saved, it will be converted to 5.0 format.");
    CHECK(readerRun == 46);
    CHECK(BoringData.Name == "");
}

TEST_CASE("a form without a reader is refused like a foreign file")
{
    OpenText(Lines({"4.6", "B-1"}));
    CheckOneMessage("This boring file has an invalid format.", Exclamation);
    Messages.clear();
    DialogMode = 1;
    OpenBoringFile2();
    CheckOneMessage("This boring file has an invalid format.", Exclamation);
}

TEST_CASE("the version chosen in the chooser wins, and the file is not looked at")
{
    readerRun = 0;
    OlderForms[0] = [] { readerRun = 30; };
    OlderForms[1] = [] { readerRun = 40; };
    BoringFileName = Scratch("not there");
    DialogMode = 0;
    OpenBoringFile2();
    CHECK(readerRun == 30);
    DialogMode = 1;
    OpenBoringFile2();
    CHECK(readerRun == 40);
    CHECK(Messages.empty());
}

TEST_CASE("a failure in the reader of an older form is told once, by its own name, and the opening goes on")
{
    OlderForms[2] = [] {
        try {
            throw RunTimeError{InputPastEnd};
        } catch (...) {
            ReportFailure("OpenSV46");
        }
    };
    OpenText(Lines({"4.6"}));
    REQUIRE(Messages.size() == 2);
    CHECK(Messages[1].words == "Error 62 in OpenSV46.  Please contact Norvane");
}

TEST_CASE("no version chosen reads the current form")
{
    WriteScratch("B.BOR", BoringLines().File());
    BoringFileName = Scratch("B.BOR");
    DialogMode = -1;
    OpenBoringFile2();
    CHECK(Messages.empty());
    CHECK(BoringData.Style == 4);
}

TEST_CASE("a 5.0 file has 9 parameter cells a row, and shows what columns 10 to 21 held before")
{
    BoringLines lines;
    lines.params = Cells(21, "p");
    OpenText(lines.File());
    lines.version = "5.0";
    lines.paramCells = 9;
    lines.params = Cells(9, "q");
    lines.client = {};
    lines.tail = {" 1 "};
    OpenText(lines.File());
    CHECK(Messages.empty());
    CHECK(BoringData.ParamCount == 1);
    CHECK(BoringData.Params[1][9] == "q9");
    CHECK(BoringData.Params[1][10] == "p10");
    CHECK(BoringData.Params[1][21] == "p21");
    CHECK(BoringData.Draft == 1);
    CHECK(BoringData.Style == 0);
    CHECK(BoringData.Client[1] == "");
}

TEST_CASE("a 5.0.n file with n below 12 has no client block")
{
    BoringLines lines;
    lines.version = "5.0.11";
    lines.params = Cells(21, "p");
    lines.client = {};
    lines.tail = {"1"};
    OpenText(lines.File());
    CHECK(Messages.empty());
    CHECK(BoringData.Params[1][21] == "p21");
    CHECK(BoringData.Style == 0);
    CHECK(BoringData.Draft == 1);
}

TEST_CASE("a later release has the client block, and one without a draft line leaves the draft at 0")
{
    BoringLines lines;
    lines.version = "5.0.13b";
    lines.client = {"a", "b", "c", "d", "e"};
    lines.tail = {"2"};
    OpenText(lines.File());
    CHECK(Messages.empty());
    CHECK(BoringData.Client[5] == "e");
    CHECK(BoringData.Style == 2);
    CHECK(BoringData.Draft == 0);
}

TEST_CASE("of any other 5 nothing is read behind the notes")
{
    BoringLines lines;
    lines.version = "5.1";
    lines.bottNotes[9] = "last";
    lines.client = {"a", "b", "c", "d", "e"};
    lines.tail = {"2", "1"};
    OpenText(lines.File());
    CHECK(Messages.empty());
    CHECK(BoringData.BottNotes[10] == "last");
    CHECK(BoringData.Client[1] == "");
    CHECK(BoringData.Style == 0);
    CHECK(BoringData.Draft == 0);
}

TEST_CASE("a count past its bound is told as error 9, and the rows before it stay")
{
    BoringLines lines;
    for (int i = 1; i <= 101; ++i)
        for (int column = 1; column <= 4; ++column)
            lines.lith.push_back(std::to_string(i));
    lines.des = {"behind it"};
    OpenText(lines.File());
    CheckOneMessage("Error 9 in OpenBoringFile2.  Please contact Norvane");
    CHECK(BoringData.LithCount == 100);
    CHECK(BoringData.Lith[1][1] == "1");
    CHECK(BoringData.Lith[100][4] == "100");
    CHECK(BoringData.DesCount == 0);
}

TEST_CASE("report parts past their bound are error 9 too")
{
    BoringLines lines;
    lines.repParts = Cells(62, "r");
    OpenText(lines.File());
    CheckOneMessage("Error 9 in OpenBoringFile2.  Please contact Norvane");
    CHECK(BoringData.RepPartCount == 30);
    CHECK(BoringData.RepParts[30].Width == "r60");
}

TEST_CASE("a count that no file could hold ends at the bound, one that no number holds is error 6")
{
    std::string file = BoringLines().File();
    const size_t at = file.find("\r\n0\r\n"); // the report parts
    OpenText(file.substr(0, at) + "\r\n1000000000\r\n" + file.substr(at + 5));
    CheckOneMessage("Error 9 in OpenBoringFile2.  Please contact Norvane");
    CHECK(BoringData.RepPartCount == 30);
    Messages.clear();
    OpenText(file.substr(0, at) + "\r\n3000000000\r\n" + file.substr(at + 5));
    CheckOneMessage("Error 6 in OpenBoringFile2.  Please contact Norvane");
    CHECK(BoringData.RepPartCount == 0);
}

TEST_CASE("a count below zero is none, and one with a fraction is rounded to even")
{
    BoringLines lines;
    std::string file = lines.File();
    const size_t at = file.find("\r\n0\r\n");
    OpenText(file.substr(0, at) + "\r\n-4\r\n" + file.substr(at + 5));
    CHECK(Messages.empty());
    CHECK(BoringData.RepPartCount == 0);
    lines.repParts = {"a", "b", "c", "d"};
    file = lines.File();
    const size_t two = file.find("\r\n2\r\n");
    OpenText(file.substr(0, two) + "\r\n2.5 parts\r\n" + file.substr(two + 5));
    CHECK(Messages.empty());
    CHECK(BoringData.RepPartCount == 2);
}

TEST_CASE("a file that ends early is error 62: what was read stays, the rows that are missing are empty")
{
    // Rows of an earlier boring that a save has shortened stand behind the count.
    for (int row = 1; row <= 5; ++row)
        BoringData.Lith[row][1] = "old";
    BoringLines lines;
    lines.name = "B-9";
    lines.lith = {"1", "CL", "", "", "2", "SP", "", ""};
    const std::string file = lines.File();
    OpenText(file.substr(0, file.find("\r\n2\r\nSP") + 5));
    CheckOneMessage("Error 62 in OpenBoringFile2.  Please contact Norvane");
    CHECK(BoringData.Name == "B-9");
    CHECK(BoringData.LithCount == 2);
    CHECK(BoringData.Lith[1][2] == "CL");
    CHECK(BoringData.Lith[2][1] == "2");
    CHECK(BoringData.Lith[2][2] == "");
}

TEST_CASE("a missing file is error 53, a name of nothing error 75, an empty file error 62")
{
    DialogMode = 2;
    BoringFileName = Scratch("nothing.BOR");
    OpenBoringFile2();
    CheckOneMessage("Error 53 in OpenBoringFile2.  Please contact Norvane");
    Messages.clear();
    BoringFileName = "";
    OpenBoringFile2();
    CheckOneMessage("Error 75 in OpenBoringFile2.  Please contact Norvane");
    Messages.clear();
    OpenText("");
    CheckOneMessage("Error 62 in OpenBoringFile2.  Please contact Norvane");
}

TEST_CASE("a style or a draft line that no 16-bit field holds is error 6")
{
    BoringLines lines;
    lines.tail = {"40000"};
    OpenText(lines.File());
    CheckOneMessage("Error 6 in OpenBoringFile2.  Please contact Norvane");
    CHECK(BoringData.Style == 0);
}

TEST_CASE("a boring is found in any case of its name")
{
    WriteScratch("b-7.bor", BoringLines().File());
    BoringFileName = "B-7.BOR";
    DialogMode = 2;
    OpenBoringFile2();
    CHECK(Messages.empty());
}

TEST_CASE("a converted boring is written as it is: trimmed cells, letters and report parts kept")
{
    BoringData.Name = " B-1 ";
    BoringData.LayoutFile = " Pbasic ";
    BoringData.RepParts[1] = {" descriptions ", " 3 "};
    BoringData.RepParts[2] = {" ", "1"};
    BoringData.RepPartCount = 2;
    BoringData.Lith[1][2] = " cl ";
    BoringData.LithCount = 1;
    BoringData.Des[1] = " text \xB6";
    BoringData.DesCount = 1;
    BoringData.WellInfo[1][1] = " w ";
    BoringData.WellInfoCount = 1;
    BoringData.Client[2] = " client ";
    BoringData.Style = 3;
    BoringLines lines;
    lines.name = "B-1";
    lines.layoutFile = " Pbasic ";
    lines.repParts = {"descriptions", "3", "", "1"};
    lines.lith = {"", "cl", "", ""};
    lines.des = {" text \xB6"};
    lines.wellInfo = {" w ", ""};
    lines.client[1] = " client ";
    lines.tail = {" 3", " 0"};
    WriteConvertedBoring(Scratch("C.BOR"));
    CHECK(Messages.empty());
    CHECK(ReadScratch("C.BOR") == lines.File());
}

TEST_CASE("a converted boring with a count past its bound is error 9, and no file is written")
{
    BoringData.LithCount = 101;
    WriteConvertedBoring(Scratch("C.BOR"));
    CheckOneMessage("Error 9 in WriteConvertedBoring.  Please contact Norvane");
    CHECK_FALSE(std::filesystem::exists(Scratch("C.BOR")));
}

TEST_CASE("a number behind the notes of any other 5 is no draft mark")
{
    BoringLines lines;
    lines.version = "5.1";
    lines.client = {"1", "2", "3", "4", "5"};
    lines.tail = {"3", "1"};
    OpenText(lines.File());
    CHECK(Messages.empty());
    CHECK(BoringData.Draft == 0);
    CHECK(BoringData.Client[1] == "");
    CHECK(BoringData.Style == 0);
}
