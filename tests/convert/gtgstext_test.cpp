// gtgstext_test.cpp -- the text tables of a GTGS export in their fixed form.
#include "convert/gtgstext.h"

#include "convert/converted.h"

#include "boring/boringdata.h"
#include "run/batchrun.h"
#include "session/files.h"

static const Text start = "This conversion utility will open and convert the following files: headers.txt, depths.txt, "
                          "lith.txt, desc.txt, depthr.txt, well.txt, wellcom.txt, remarks.txt";
static const Text done = "All .TXT Files Converted";

// One boring, and empty tables but for the one given.
static void Tables(const Text& name, std::initializer_list<std::string_view> lines, std::string_view headers = "\"B\"")
{
    for (const char* table : {"depths.txt", "depthr.txt", "lith.txt", "desc.txt", "well.txt", "remarks.txt"})
        WriteScratch(table, "");
    WriteScratch("headers.txt", Text(headers) + "\r\n");
    WriteScratch(name, Lines(lines));
    lastDir = ScratchFolder();
    ConvertGTGSText();
    CHECK(Told() == std::vector<Text>{start, done});
}

TEST_CASE("text tables of three borings become three boring files, byte for byte the kept ones")
{
    CopyData("txt");
    lastDir = ScratchFolder();
    ConvertGTGSText();
    CHECK(Told() == std::vector<Text>{start, done});
    CHECK(Messages[0].icon == Announcement);
    for (const char* name : {"B-1.bor", "B-2.bor", "B-3.bor"})
        CheckKept(name, Text("txt/kept/") + name, " 0", " 0");
}

TEST_CASE("a blow count of 5-8/12 becomes 5,8,12, and a line with a comma in front goes on with the sample number")
{
    Tables("depths.txt", {"0,\"S-1\",\"1.2\",\"5-8/12\",\"0.4\"", ",\"A\",", ",B", "3,\"S-2\",\"1\",\"7\",0.5", "5"});
    Open("B.bor");
    CHECK(BoringData.SampleCount == 3);
    CHECK(BoringData.Samples[1][4] == "5,8,12");
    CHECK(BoringData.Samples[1][6] == "S-1AB");
    CHECK(BoringData.Samples[1][7] == "1.2");
    CHECK(BoringData.Samples[1][8] == "0.4");
    CHECK(BoringData.Samples[2][8] == "0.5");
    CHECK(BoringData.Samples[3][6] == "");
}

TEST_CASE("a smaller depth starts the next boring with its own row, and equal depths do not")
{
    Tables("depths.txt", {"10,\"a\"", "40,\"b\"", "40,\"c\"", "0,\"d\"", "5,\"e\""}, "\"B\"\r\n\"C\"");
    Open("B.bor");
    CHECK(BoringData.SampleCount == 3);
    Open("C.bor");
    CHECK(BoringData.SampleCount == 2);
    CHECK(BoringData.Samples[1][6] == "d");
}

TEST_CASE("a boring for which nothing is left has no rows, and there is no message")
{
    Tables("lith.txt", {"4,\"15\""}, "\"B\"\r\n\"C\"\r\n");
    Open("C.bor");
    CHECK(BoringData.LithCount == 0);
}

TEST_CASE("lithology codes are translated, and one that is not in the table stays")
{
    Tables("lith.txt", {"1,\"65\"", "2,\"15\"", "3,49", "4,31", "5,2", "6,46", "7,22", "8,\" 7=12\"", "9,12", "10,75",
                        "11,\"99\""});
    Open("B.bor");
    const char* const codes[] = {"FB", "CL", "DO", "GP", "GW", "LS", "SW", "SM", "ML", "FL", "99"};
    for (int row = 1; row <= 11; ++row)
        CHECK(BoringData.Lith[row][2] == codes[row - 1]);
}

TEST_CASE("sample depths stand behind a mark for each boring, or in front of it where no mark begins the file")
{
    for (const bool heading : {true, false}) {
        Messages.clear();
        Text lines = Lines({"0,1.5,1", "5,6.5,3", "7,8,8", "9,10,15", "\"BLOCK 2\"", "20,21,3", "22,23,4", "24,25,1"});
        Tables("depths.txt", {}, "\"B\"\r\n\"C\"\r\n\"D\"");
        WriteScratch("depthr.txt", heading ? "\"BLOCK\r\n" + lines : lines);
        Messages.clear();
        ConvertGTGSText();
        Open("B.bor");
        CHECK(BoringData.SampleCount == 4);
        const char* const conditions[] = {"4", "1", "3", "2"};
        for (int row = 1; row <= 4; ++row)
            CHECK(BoringData.Samples[row][3] == conditions[row - 1]);
        CHECK(BoringData.Samples[2][1] == "5");
        CHECK(BoringData.Samples[2][2] == "6.5");
        Open("C.bor");
        CHECK(BoringData.SampleCount == 1);
        Open("D.bor");
        CHECK(BoringData.SampleCount == 0);
    }
}

TEST_CASE("description lines flow on without formatting codes, and lines with a dot end paragraphs on both sides")
{
    Tables("desc.txt", {"|BFill|N", "|B2moist|", ".L=4", "Sand", ". x|y", ".d=4"});
    Open("B.bor");
    const char* const lines[] = {"Fill ", "moist \xB6", ".L=4\xB6", "Sand \xB6", ". x|y\xB6", ".d=4\xB6"};
    REQUIRE(BoringData.DesCount == 6);
    for (int row = 1; row <= 6; ++row)
        CHECK(BoringData.Des[row] == lines[row - 1]);
}

TEST_CASE("the first depth line of a boring never ends it, and a smaller one belongs to the next boring")
{
    Tables("desc.txt", {".L=-3", "a", ".D=-4", "b"}, "\"B\"\r\n\"C\"");
    Open("B.bor");
    CHECK(BoringData.DesCount == 2);
    Open("C.bor");
    CHECK(BoringData.Des[1] == ".D=-4\xB6");
}

TEST_CASE("well elements go inside and outside the casing, with the words of their numbers")
{
    Tables("well.txt",
           {"\"cover\",0,1,3", "\"case\",0,5,24", "\"case\",5,9,3", "\"case\",9,10,4", "\"seal\",0,1,54",
            "\"fseal\",1,2,21", "\"seal\",2,9,22", "\"Seal\",1,2,22", "\"cover\",7,8", "\"seal\",8,9,1"},
           "\"B\"\r\n\"C\"");
    Open("B.bor");
    REQUIRE(BoringData.InnerLayerCount == 4);
    REQUIRE(BoringData.OuterLayerCount == 3);
    const char* const inner[] = {"Cover", "2in. ID SCH.40 Blank PVC", "2in. ID SCh.40 10-Slot PVC", ""};
    for (int row = 1; row <= 4; ++row)
        CHECK(BoringData.InnerLayers[row][3] == inner[row - 1]);
    const char* const outer[] = {"Concrete Surface Seal", "Bentonite Chip Seal", "Sand Pack Filter"};
    for (int row = 1; row <= 3; ++row)
        CHECK(BoringData.OuterLayers[row][3] == outer[row - 1]);
    CHECK(BoringData.InnerLayers[2][2] == "5");
    Open("C.bor");
    CHECK(BoringData.InnerLayers[1][1] == "7");
    CHECK(BoringData.OuterLayers[1][3] == "");
}

TEST_CASE("remarks: a depth gets its minus, dots end paragraphs, and the end mark ends the boring")
{
    Tables("remarks.txt", {"flows", ".D=4.5", "Boulder", ". x", "<END>", ".d= 7"}, "\"B\"\r\n\"C\"");
    Open("B.bor");
    const char* const lines[] = {"flows \xB6", "-4.5\xB6", "Boulder \xB6", ". x\xB6"};
    REQUIRE(BoringData.RemarkCount == 4);
    for (int row = 1; row <= 4; ++row)
        CHECK(BoringData.Remarks[row] == lines[row - 1]);
    Open("C.bor");
    CHECK(BoringData.Remarks[1] == "- 7\xB6");
}

TEST_CASE("the reference elevation is the sum of ground and stick-up in single precision, 0 for two empty fields")
{
    std::string fields = "\"B\"";
    for (int i = 2; i <= 20; ++i)
        fields += i == 19 ? ",\".2\"" : i == 20 ? ",\"100.1\"" : ",\"\"";
    Tables("lith.txt", {}, fields + "\r\n\"C\"");
    Open("B.bor");
    CHECK(BoringData.GenWell[5] == "100.3");
    CHECK(BoringData.GenWell[6] == ".2");
    CHECK(BoringData.Scale[7] == ",");
    Open("C.bor");
    CHECK(BoringData.GenWell[5] == "0");
}

TEST_CASE("quotes within the fields of a header line are text; the last one closes it")
{
    std::string fields = "\"B\",\"say 4\" pipe\"";
    Tables("lith.txt", {}, fields + "\r\n\"C 2\" x\"");
    Open("B.bor");
    CHECK(BoringData.Client[4] == "say 4\" pipe");
    Open("C 2\" x.bor");
    CHECK(BoringData.Name == "C 2\" x");
}

TEST_CASE("every line of the headers is a boring, a blank one too; the 201st is error 9")
{
    Tables("lith.txt", {}, "\"B\"\r\n\r\n\"C\"");
    CHECK(FileExists(Scratch(".bor")));
    CHECK(runFileCount == 3);
    CHECK(runFiles[3] == "C.bor");
    std::string headers;
    for (int i = 0; i < 201; ++i)
        headers += "\"X\"\r\n";
    WriteScratch("headers.txt", headers);
    Messages.clear();
    ConvertGTGSText();
    CHECK(Told() == std::vector<Text>{start, "Error 9 in ConvertGTGSText.  Please contact Norvane"});
    CHECK_FALSE(FileExists(Scratch("X.bor")));
}

TEST_CASE("a table that is not there is told with its path, and nothing is converted; wellcom.txt is no table")
{
    CopyData("txt");
    lastDir = ScratchFolder();
    for (const char* name : {"remarks.txt", "lith.txt", "headers.txt"}) {
        std::filesystem::remove(Scratch(name));
        Messages.clear();
        ConvertGTGSText();
        CHECK(Told() == std::vector<Text>{start, "File Not Found: " + Scratch(name)});
        CHECK(Messages[1].icon == Exclamation);
        CHECK_FALSE(FileExists(Scratch("B-1.bor")));
    }
}

TEST_CASE("rows beyond a table of the boring are error 9, and what failed does not show in the next run")
{
    std::string rows;
    for (int i = 1; i <= 81; ++i)
        rows += std::to_string(i) + ",\"full\"\r\n";
    Tables("lith.txt", {});
    WriteScratch("depths.txt", rows);
    Messages.clear();
    ConvertGTGSText();
    CHECK(Told() == std::vector<Text>{start, "Error 9 in ConvertGTGSText.  Please contact Norvane"});
    Messages.clear();
    Tables("depthr.txt", {"1,2,3"});
    Open("B.bor");
    CHECK(BoringData.SampleCount == 1);
    CHECK(BoringData.Samples[1][6] == "");
}

TEST_CASE("601 lines of remarks are error 9")
{
    Tables("lith.txt", {});
    std::string lines;
    for (int i = 1; i <= 601; ++i)
        lines += "x\r\n";
    WriteScratch("remarks.txt", lines);
    Messages.clear();
    ConvertGTGSText();
    CHECK(Told().back() == "Error 9 in ConvertGTGSText.  Please contact Norvane");
}

TEST_CASE("blank rows of the boring opened before go into a converted one, and other rows of it do not")
{
    BoringData.CuttingCount = 2;
    BoringData.Cuttings[1][1] = "5";
    BoringData.SampleCount = 1;
    BoringData.Samples[1][1] = "9";
    Tables("depths.txt", {"1"});
    Open("B.bor");
    CHECK(BoringData.CuttingCount == 2);
    CHECK(BoringData.Cuttings[1][1] == "");
    CHECK(BoringData.Samples[1][1] == "");
}

TEST_CASE("the menu converts in the folder last shown by the batch dialog, in the project's before that")
{
    lastDir = "";
    frmBorinput::mnuConvertGTGStxt();
    CHECK(Told().back() == "File Not Found: " + Scratch("headers.txt"));
    lastDir = "/none";
    frmBorinput::mnuConvertGTGStxt();
    CHECK(Told().back() == "File Not Found: /none/headers.txt");
}
