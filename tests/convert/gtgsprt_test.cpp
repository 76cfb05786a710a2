// gtgsprt_test.cpp -- GTGS print files.
#include "convert/gtgsprt.h"

#include "convert/converted.h"

#include "boring/boringdata.h"
#include "run/batchrun.h"
#include "session/files.h"
#include "session/platform.h"

static const Text done = "All .PRT Files Converted";

// The file with some text in place of other, converted and opened.
static void ConvertChanged(const Text& name, std::initializer_list<std::pair<std::string, std::string>> changes)
{
    std::string bytes = ConvertData("prt/" + name);
    for (const auto& [from, to] : changes) {
        REQUIRE(bytes.find(from) != std::string::npos);
        bytes.replace(bytes.find(from), from.size(), to);
    }
    WriteScratch("x.PRT", bytes);
    Run(ConvertGTGS2BOR, {"x.PRT"});
    CHECK(Told() == std::vector<Text>{done});
    Open("x.bor");
}

TEST_CASE("print files become boring files beside them, byte for byte the kept ones, with no message but the last")
{
    CopyData("prt");
    std::filesystem::remove(Scratch("foreign.PRT"));
    Run(ConvertGTGS2BOR, {"ordinary.PRT", "pages.PRT", "early.PRT", "heading.PRT"});
    CHECK(Told() == std::vector<Text>{done});
    for (const char* name : {"ordinary.bor", "pages.bor", "early.bor", "heading.bor"})
        CheckKept(name, Text("prt/kept/") + name, "3", " 0 ");
}

TEST_CASE("a print file of a wrong format is told by name, and its boring holds the defaults; the run goes on")
{
    CopyData("prt");
    WriteScratch("empty.PRT", "");
    Run(ConvertGTGS2BOR, {"foreign.PRT", "empty.PRT", "heading.PRT"});
    CHECK(Told() == std::vector<Text>{"Invalid Format for GTGS File: " + Scratch("foreign.PRT"),
                                      "Invalid Format for GTGS File: " + Scratch("empty.PRT"), done});
    CheckKept("foreign.bor", "prt/kept/foreign.bor", "3", " 0 ");
    CHECK(ReadScratch("empty.bor") == ReadScratch("foreign.bor"));
}

TEST_CASE("the heading is read by the distance of its lines from the name line")
{
    ConvertChanged("ordinary.PRT", {});
    CHECK(BoringData.Name == "B-12 north");
    const std::pair<int, const char*> fields[] = {
        {1, "3/1/99"},    {2, "1200.5"},         {3, "830.25"},       {4, "101.3"},
        {5, "103.1"},     {6, "40.0"},           {7, "Unit 7"},       {8, "00X-1"},
        {11, "K. Weber"}, {12, "A. Lindt"},      {13, "Drill Co."},   {14, "C57-1 no colon: here"},
        {15, "auger"},    {16, "CME 75, truck"}, {17, "split spoon"}, {18, "grouted"}};
    for (const auto& [row, text] : fields)
        CHECK(BoringData.Info[row][2] == text);
    CHECK(BoringData.GenWell[11] == "12.5");
    CHECK(BoringData.GenWell[12] == "14");
    CHECK(BoringData.Info[5][1] == "T.O.C. Elevaton");
    CHECK(BoringData.Info[9][1] == "");
}

TEST_CASE("a heading line without a colon, and a name line without a minus, are empty")
{
    ConvertChanged("ordinary.PRT", {{"Elev: 101.3", "Elev 101.3"}, {"BORING - B-12", "BORING B"}});
    CHECK(BoringData.Info[4][2] == "");
    CHECK(BoringData.Name == "");
}

TEST_CASE("a sample table that crosses pages goes on behind each heading with SAMP")
{
    ConvertChanged("pages.PRT", {});
    REQUIRE(BoringData.SampleCount == 3);
    CHECK(BoringData.Samples[1][1] == "0");
    CHECK(BoringData.Samples[2][1] == "10.0");
    CHECK(BoringData.Samples[3][1] == "20.0");
    CHECK(BoringData.Samples[3][2] == "21.5");
}

TEST_CASE("a page end among the outer layers skips two lines on, and the last of them is a line as any other")
{
    ConvertChanged("pages.PRT", {{"page heading", "page heading\r\n      2.5          3           7, Sand"}});
    REQUIRE(BoringData.OuterLayerCount == 3);
    CHECK(BoringData.OuterLayers[1][3] == "Concrete");
    CHECK(BoringData.OuterLayers[2][3] == "Sand");
    CHECK(BoringData.OuterLayers[3][3] == "Bentonite");
}

TEST_CASE("sample values find their sample by the number of its depth, and one that fits none is lost")
{
    ConvertChanged("ordinary.PRT", {});
    CHECK(BoringData.Samples[3][1] == "10.0");
    CHECK(BoringData.Samples[3][4] == "5-8-12");
    CHECK(BoringData.Samples[3][3] == "1");
    CHECK(BoringData.Samples[3][6] == "80");
    CHECK(BoringData.Samples[3][7] == "S-2");
    CHECK(BoringData.Samples[1][4] == "2-2");
    CHECK(BoringData.Samples[1][6] == "");
    CHECK(BoringData.Samples[2][3] == "");
}

TEST_CASE("contacts are the lines with a parenthesis, and a long code gets its hyphen")
{
    ConvertChanged("ordinary.PRT", {});
    REQUIRE(BoringData.LithCount == 3);
    CHECK(BoringData.Lith[1][1] == "5.0");
    CHECK(BoringData.Lith[1][2] == "SM");
    CHECK(BoringData.Lith[2][2] == "CL-ML");
    CHECK(BoringData.Lith[3][1] == "40");
    CHECK(BoringData.Lith[3][2] == "");
}

TEST_CASE("a code of two characters stays, and one of three has its hyphen behind the second")
{
    const auto code = [](const std::string& text) {
        ConvertChanged("ordinary.PRT", {{"      not a row", "      6.0      9)" + std::string(24, ' ') + text}});
        return BoringData.Lith[2][2];
    };
    CHECK(code("ABC") == "AB-C");
    CHECK(code("AB") == "AB");
    CHECK(code("A") == "A");
}

TEST_CASE("a line of six characters is all margin, and a shorter one has none")
{
    ConvertChanged("ordinary.PRT", {{"      SOFT CLAY", "123456\r\n12345\r\n      SOFT CLAY"}});
    CHECK(BoringData.Des[1] == " ");
    CHECK(BoringData.Des[2] == "12345 ");
    CHECK(BoringData.Des[3] == "SOFT CLAY ");
}

TEST_CASE("contacts beyond 100 take the place of the last one")
{
    std::string rows;
    for (int i = 1; i <= 110; ++i)
        rows += "      " + std::to_string(i) + " )\r\n";
    ConvertChanged("ordinary.PRT", {{"      not a row\r\n", rows}});
    CHECK(BoringData.LithCount == 100);
    CHECK(BoringData.Lith[99][1] == "98 )");
    CHECK(BoringData.Lith[100][1] == "40");
}

TEST_CASE("a contact line too short for a code leaves the last row the code that it has")
{
    std::string rows;
    for (int i = 1; i < 100; ++i)
        rows += "      " + std::to_string(i) + " )\r\n";
    const auto lastContact = [&rows](const std::string& line) {
        ConvertChanged("ordinary.PRT", {{"      not a row\r\n", rows}, {"      40       3) short  ", "      " + line}});
        CHECK(BoringData.LithCount == 100);
        CHECK(BoringData.Lith[100][1] == "40");
        return BoringData.Lith[100][2];
    };
    CHECK(lastContact("40       3) short") == "CL-ML");
    CHECK(lastContact("40       3)" + std::string(23, ' ')) == "CL-ML");
    // With 35 characters there is a code, and it is blank.
    CHECK(lastContact("40       3)" + std::string(24, ' ')) == "");
    CHECK(lastContact("40       3)" + std::string(24, ' ') + "SMSC") == "SM-SC");
}

TEST_CASE("description lines join with a blank, a line with a dot forces marks on both sides, and notes are lines")
{
    ConvertChanged("ordinary.PRT", {{".L=5.0", ". Dense"}, {"second", ". second"}});
    REQUIRE(BoringData.DesCount == 7);
    CHECK(BoringData.Des[1] == "SOFT CLAY ");
    CHECK(BoringData.Des[2] == "MOIST\xB6");
    CHECK(BoringData.Des[3] == ". Dense\xB6");
    CHECK(BoringData.Des[4].ends_with("to the end "));
    CHECK(BoringData.Des[5] == "Notes: drilled with mud\xB6");
    CHECK(BoringData.Des[6] == ". second\xB6");
    CHECK(BoringData.Des[7] == "third\xB6");
}

TEST_CASE("remarks go to the first general parameter by their depth, and what stands before the first depth is lost")
{
    ConvertChanged("ordinary.PRT", {});
    REQUIRE(BoringData.ParamCount == 2);
    CHECK(BoringData.Params[1][1] == "5.0");
    CHECK(BoringData.Params[1][2] == "Boulder,hard");
    CHECK(BoringData.Params[2][2] == "Water");
}

TEST_CASE("a print file that stops among its descriptions or remarks keeps what it has")
{
    const std::string bytes = ConvertData("prt/ordinary.PRT");
    for (const char* at : {"third", "Water\r\n      --", "hard\r\n"}) {
        Messages.clear();
        WriteScratch("x.PRT", bytes.substr(0, bytes.find(at)));
        Run(ConvertGTGS2BOR, {"x.PRT"});
        CHECK(Told() == std::vector<Text>{done});
    }
    Open("x.bor");
    CHECK(BoringData.DesCount == 7);
    CHECK(BoringData.Params[1][2] == "Boulder,");
}

TEST_CASE("81 samples, or 31 layers, are error 9 and end the run")
{
    std::string samples, layers;
    for (int i = 1; i <= 81; ++i)
        samples += "      " + std::to_string(i) + "\r\n";
    for (int i = 1; i <= 31; ++i)
        layers += "      1            2           3, x\r\n";
    const std::string bytes = ConvertData("prt/ordinary.PRT");
    CopyData("prt");
    for (const auto& [at, rows] : {std::pair<std::string, std::string>("      0.0          1.5", samples),
                                   std::pair<std::string, std::string>("      0            2 ", layers)}) {
        std::string more = bytes;
        REQUIRE(more.find(at) != std::string::npos);
        more.insert(more.find(at), rows);
        WriteScratch("x.PRT", more);
        Messages.clear();
        Run(ConvertGTGS2BOR, {"x.PRT", "early.PRT"});
        CHECK(Told() == std::vector<Text>{"Error 9 in ConvertGTGS2BOR.  Please contact Norvane"});
        CHECK_FALSE(FileExists(Scratch("x.bor")));
        CHECK_FALSE(FileExists(Scratch("early.bor")));
    }
}

TEST_CASE("the new name ends at the first dot of the path, and an older boring there is replaced")
{
    CopyData("prt");
    std::filesystem::create_directory(Scratch("job.99"));
    std::filesystem::rename(Scratch("early.PRT"), Scratch("job.99/early.PRT"));
    std::filesystem::rename(Scratch("heading.PRT"), Scratch("a.b.PRT"));
    WriteScratch("a.bor", "older");
    Run(ConvertGTGS2BOR, {"job.99/early.PRT", "a.b.PRT"});
    CHECK(ReadScratch("job.bor") == ConvertData("prt/kept/early.bor"));
    CHECK(ReadScratch("a.bor") == ConvertData("prt/kept/heading.bor"));
}

TEST_CASE("a print file that is not there is told by number and ends the run")
{
    Run(ConvertGTGS2BOR, {"none.PRT"});
    CHECK(Told() == std::vector<Text>{"Error 53 in ConvertGTGS2BOR.  Please contact Norvane"});
}

TEST_CASE("a run of conversions shows its progress, a step for each file")
{
    static std::vector<Text> steps;
    steps.clear();
    Platform.ShowProgress = [](bool shown) { steps.push_back(shown ? "shown" : "hidden"); };
    Platform.StepProgress = [](const Text& words, float) { steps.push_back(words); };
    CopyData("prt");
    Run(ConvertGTGS2BOR, {"heading.PRT", "early.PRT"});
    CHECK(steps == std::vector<Text>{"shown", "% Complete: 50", "% Complete: 100", "hidden"});
    steps.clear();
    Run(ConvertGTGS2BOR, {"none.PRT"});
    CHECK(steps == std::vector<Text>{"shown", "hidden"});
}

TEST_CASE("the menu shows the batch dialog for print files")
{
    static int dialogs;
    dialogs = 0;
    Platform.ShowDrawPrint = [] { ++dialogs; };
    frmBorinput::mnuGTGS();
    CHECK(jobCode == 11);
    CHECK(dialogs == 1);
}

TEST_CASE("between the sample values and the contacts, and between descriptions and remarks, nothing is taken")
{
    ConvertChanged("ordinary.PRT",
                   {{"[EXT]\r\n", "[EXT]\r\n      1.0      9)                        GW\r\n"},
                    {"****REMARKS\r\nheading\r\n",
                     "      .D=1\r\n      lost\r\n****REMARKS\r\n      .D=2\r\n      .D=3.5\r\n      kept\r\n"}});
    REQUIRE(BoringData.LithCount == 3);
    CHECK(BoringData.Lith[1][1] == "5.0");
    CHECK(BoringData.Params[1][1] == "3.5");
    CHECK(BoringData.Params[1][2] == "keptbefore any depth");
    CHECK(BoringData.Params[2][1] == "5.0");
}

TEST_CASE("sample values stand in columns of 13, and what is not there is empty")
{
    ConvertChanged("ordinary.PRT", {{"      10      5-8-12       80           S-2",
                                     "      10      1234567890123ABCDEFGHIJKLMnumber and all"},
                                    {"      0.0     2-2          ", "      0.0     2-2          7"}});
    CHECK(BoringData.Samples[3][4] == "1234567890123");
    CHECK(BoringData.Samples[3][6] == "ABCDEFGHIJKLM");
    CHECK(BoringData.Samples[3][7] == "number and all");
    CHECK(BoringData.Samples[1][4] == "2-2");
    CHECK(BoringData.Samples[1][6] == "7");
    CHECK(BoringData.Samples[1][7] == "");
    ConvertChanged("ordinary.PRT", {{"      10      5-8-12       80           S-2", "      10"}});
    CHECK(BoringData.Samples[3][4] == "");
    CHECK(BoringData.Samples[3][3] == "1");
}
