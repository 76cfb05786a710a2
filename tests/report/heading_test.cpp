// heading_test.cpp -- the heading file and the logo.
#include "report/heading.h"

#include "report/choosing.h"

#include "session/deviceconfig.h"
#include "session/session.h"

static void WriteLogo()
{
    WriteScratch("logo.txt", Lines({"One", "Two", "Three", "1", "logo.bmp", "300"}));
}

static void CheckOneMessage(const Text& words)
{
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == words);
    CHECK(Messages[0].buttons == OkOnly);
    CHECK(Messages[0].icon == NoIcon);
}

TEST_CASE("the log takes slots 1 to 61 and the logo")
{
    WriteScratch("us.hdg", HeadingText());
    WriteLogo();
    getclientlogo(1);
    CHECK(Messages.empty());
    for (int slot = 1; slot <= 61; ++slot)
        CHECK(HeadingWords[slot] == "w" + std::to_string(slot));
    CHECK(HeadingWords[62] == "");
    CHECK(LogoData.Line[1] == "One");
    CHECK(LogoData.Line[3] == "Three");
    CHECK(LogoData.Flag == 1);
    CHECK(LogoData.File == "logo.bmp");
    CHECK(LogoData.Resolution == "300");
}

TEST_CASE("sections and fences take slots 62 to 68 as words 1 to 7")
{
    WriteScratch("us.hdg", HeadingText());
    WriteLogo();
    getclientlogo(2);
    for (int slot = 1; slot <= 7; ++slot)
        CHECK(HeadingWords[slot] == "w" + std::to_string(slot + 61));
    CHECK(HeadingWords[8] == "");
}

TEST_CASE("soil tables take eight words, the first cut at its comma")
{
    WriteScratch("us.hdg", HeadingText({{3, "Depth, in"}}));
    WriteLogo();
    getclientlogo(3);
    const char* const expected[] = {"Depth", "w10", "w11", "w16", "w67", "w69", "w70", "w71"};
    for (int slot = 1; slot <= 8; ++slot)
        CHECK(HeadingWords[slot] == expected[slot - 1]);
    CHECK(HeadingWords[9] == "");
}

TEST_CASE("a heading file that ends among a soil table's words has given those before, the first of them cut")
{
    const std::string whole = HeadingText({{3, "Depth, in"}});
    WriteScratch("us.hdg", whole.substr(0, whole.find("w20")));
    WriteLogo();
    getclientlogo(3);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 62 in getclientlogo.  Please contact Norvane");
    CHECK(HeadingWords[1] == "Depth");
    CHECK(HeadingWords[4] == "w16");
    CHECK(HeadingWords[5] == "");
}

TEST_CASE("words that a run does not load stay from the run before")
{
    WriteScratch("us.hdg", HeadingText());
    WriteLogo();
    getclientlogo(1);
    getclientlogo(2);
    CHECK(HeadingWords[7] == "w68");
    CHECK(HeadingWords[8] == "w8");
    std::filesystem::remove(Scratch("us.hdg"));
    getclientlogo(1);
    CHECK(HeadingWords[7] == "w68");
}

TEST_CASE("legend boxes have their usual patterns, another one behind a comma")
{
    WriteScratch("us.hdg", HeadingText({{41, "No recovery,F12"}, {42, "Tube,"}, {43, "Bag"}, {44, "Core, FB ,x"}}));
    WriteLogo();
    getclientlogo(1);
    CHECK(HeadingWords[41] == "No recovery");
    CHECK(HeadingWords[42] == "Tube");
    CHECK(HeadingWords[43] == "Bag");
    CHECK(HeadingWords[44] == "Core");
    CHECK(LegendBoxFill[0] == 0);
    CHECK(LegendBoxFill[1] == 32);
    CHECK(LegendBoxFill[2] == 7);
    CHECK(LegendBoxFill[3] == 20);
    CHECK(LegendBoxFill[4] == 0); // "FB ,x" is no code
}

TEST_CASE("a closing comma alone is dropped and the text in front keeps its own")
{
    WriteScratch("us.hdg", HeadingText({{41, "a,b,"}}));
    WriteLogo();
    getclientlogo(1);
    CHECK(HeadingWords[41] == "a,b");
    CHECK(LegendBoxFill[1] == 1);
}

TEST_CASE("a legend is in use when any of its four flags is above 0")
{
    WriteLogo();
    for (const int flag : {45, 49, 55, 61}) {
        WriteScratch("us.hdg", HeadingText({{45, " 0"}, {49, " 0"}, {55, " 0"}, {61, " 0"}}));
        getclientlogo(1);
        CHECK(LegendInUse == 0);
        std::string file = HeadingText({{45, " 0"}, {49, " 0"}, {55, " 0"}, {61, " 0"}, {flag, " 1"}});
        WriteScratch("us.hdg", file);
        getclientlogo(1);
        CHECK(LegendInUse == 1);
    }
}

TEST_CASE("the heading file's name gets its ending, and an empty one is the stock file")
{
    WriteLogo();
    WriteScratch("office.hdg", HeadingText({{1, "OFFICE"}}));
    DeviceConfig.SystemFiles[HeadingFile] = "OFFICE";
    getclientlogo(1);
    CHECK(HeadingWords[1] == "OFFICE");
    WriteScratch("us.hdg", HeadingText({{1, "STOCK"}}));
    DeviceConfig.SystemFiles[HeadingFile] = "";
    getclientlogo(1);
    CHECK(HeadingWords[1] == "STOCK");
    CHECK(Messages.empty());
}

TEST_CASE("a dot in a folder's name is no ending")
{
    WriteLogo();
    std::filesystem::create_directory(Scratch("v1.0"));
    WriteScratch("v1.0/office.hdg", HeadingText({{1, "OFFICE"}}));
    DeviceConfig.SystemFiles[HeadingFile] = Scratch("v1.0/office");
    getclientlogo(1);
    CHECK(HeadingWords[1] == "OFFICE");
}

TEST_CASE("a heading file that is not there is told, and the logo is read all the same")
{
    WriteLogo();
    DeviceConfig.SystemFiles[HeadingFile] = "office";
    getclientlogo(1);
    CheckOneMessage("Heading File Not Found:  office.hdg");
    CHECK(LogoData.Line[1] == "One");
}

TEST_CASE("an old heading file is told, and neither words nor logo are read")
{
    WriteScratch("us.hdg", Lines({"LOG OF BORING", "Page, of"}));
    WriteLogo();
    getclientlogo(1);
    CheckOneMessage("The heading file has an old format.  Use the heading editor to convert it to the new 5.0 format.");
    CHECK(HeadingWords[1] == "");
    CHECK(LogoData.Line[1] == "");
}

TEST_CASE("without logo.txt the run has its words and no logo")
{
    WriteScratch("us.hdg", HeadingText());
    WriteLogo();
    getclientlogo(1);
    std::filesystem::remove(Scratch("logo.txt"));
    getclientlogo(1);
    CheckOneMessage("Error 53 in getclientlogo.  Please contact Norvane");
    CHECK(HeadingWords[61] == "w61");
    CHECK(LogoData.Line[1] == "");
    CHECK(LogoData.Flag == 0);
}

TEST_CASE("a short logo file has what it has, but its three lines of text")
{
    WriteScratch("us.hdg", HeadingText());
    WriteScratch("logo.txt", Lines({"One", "Two", "Three", "x"}));
    getclientlogo(1);
    CHECK(Messages.empty());
    CHECK(LogoData.Flag == 0);
    CHECK(LogoData.File == "");
    WriteScratch("logo.txt", Lines({"One"}));
    getclientlogo(1);
    CheckOneMessage("Error 62 in getclientlogo.  Please contact Norvane");
    CHECK(LogoData.Line[1] == "One");
}

TEST_CASE("a heading file that ends early is error 62, with the words before it")
{
    WriteScratch("us.hdg", Lines({"5.0", "a", "b"}));
    WriteLogo();
    getclientlogo(1);
    CheckOneMessage("Error 62 in getclientlogo.  Please contact Norvane");
    CHECK(HeadingWords[2] == "b");
    CHECK(LogoData.Line[1] == "");
}

TEST_CASE("the editor reads 84 slots and shows them in three grids")
{
    WriteScratch("a.hdg", HeadingText({{2, ""}, {84, " w84 "}}));
    DialogResult = Scratch("a.hdg");
    OpenHeadingFile();
    CHECK(Messages.empty());
    CHECK(HeadingTable[1] == "w1");
    CHECK(HeadingTable[2] == "");
    CHECK(HeadingTable[84] == " w84 ");
    CHECK(frmHeading::SSLog.Cell(1, 2) == "w1");
    CHECK(frmHeading::SSLog.Cell(39, 2) == "w39");
    CHECK(frmHeading::SSSections.Cell(1, 2) == "w62");
    CHECK(frmHeading::SSSections.Cell(10, 2) == "w71");
    CHECK(frmHeading::SSGraphics.Cell(1, 2) == "w72");
    CHECK(frmHeading::SSGraphics.Cell(13, 2) == " w84 ");
}

TEST_CASE("a heading file comes back as it was but for keywords, which are in upper case")
{
    const std::string file = HeadingText({{31, "Packer"}, {39, "Pump"}, {47, "Static|Artesian"}, {40, " Title "}});
    WriteScratch("a.hdg", file);
    DialogResult = Scratch("a.hdg");
    OpenHeadingFile();
    DialogResult = Scratch("b.hdg");
    SaveHeadingFile();
    CHECK(Messages.empty());
    CHECK(HeadingTable[30] == "w30");
    CHECK(HeadingTable[40] == " Title ");
    CHECK(HeadingTable[47] == "Static|Artesian");
    std::string expected = file;
    for (const char* const word : {"Packer", "w32", "w33", "w34", "w35", "w36", "w37", "w38", "Pump"}) {
        const Text old = Text("\r\n") + word + "\r\n";
        expected.replace(expected.find(old), old.size(), UpperCase(old));
    }
    CHECK(ReadScratch("b.hdg") == expected);
    CHECK(DialogResult == Scratch("b.hdg")); // the editor's current file from now on
}

TEST_CASE("what is typed into the grids is saved")
{
    WriteScratch("a.hdg", HeadingText());
    DialogResult = Scratch("a.hdg");
    OpenHeadingFile();
    frmHeading::SSLog.Cell(1, 2) = "BOHRPROFIL";
    frmHeading::SSLog.Cell(32, 2) = "f\xFCllung";
    frmHeading::SSSections.Cell(10, 2) = "Lab";
    frmHeading::SSGraphics.Cell(1, 2) = "Source";
    SaveHeadingFile();
    OpenHeadingFile();
    CHECK(HeadingTable[1] == "BOHRPROFIL");
    CHECK(HeadingTable[32] == "F\xDCLLUNG");
    CHECK(HeadingTable[71] == "Lab");
    CHECK(HeadingTable[72] == "Source");
}

TEST_CASE("a table with six or more blanks among its first twenty is not saved, whatever the grids hold")
{
    const Text refusal = "There are too many blank cells.  Before creating a heading file, you should open an existing "
                         "heading file, make changes, and then 'Save As' a different filename.";
    for (int row = 1; row <= 39; ++row)
        frmHeading::SSLog.Cell(row, 2) = "typed";
    DialogResult = Scratch("a.hdg");
    SaveHeadingFile();
    CheckOneMessage(refusal);
    CHECK_FALSE(std::filesystem::exists(Scratch("a.hdg")));
    for (int slot = 1; slot <= 14; ++slot)
        HeadingTable[slot] = "x";
    SaveHeadingFile();
    CHECK(Messages.size() == 2);
    HeadingTable[15] = " ";
    SaveHeadingFile();
    CHECK(Messages.size() == 2);
    CHECK(std::filesystem::exists(Scratch("a.hdg")));
}

TEST_CASE("a heading file of the old form is told, and its words come to their slots but for slot 28")
{
    // Line n of the old form is "o" n, in the order that it had.
    std::string file;
    for (int line = 1; line <= 72; ++line)
        file += "o" + std::to_string(line) + "\r\n";
    WriteScratch("old.hdg", file);
    DialogResult = Scratch("old.hdg");
    OpenHeadingFile();
    CheckOneMessage(
        "This heading file has an old format.  When saved, it will be converted to the new 5.0 heading format.");
    CHECK(HeadingTable[1] == "o1");
    CHECK(HeadingTable[6] == "o6");
    CHECK(HeadingTable[40] == "o7");
    CHECK(HeadingTable[44] == "o11");
    CHECK(HeadingTable[50] == "o12");
    CHECK(HeadingTable[54] == "o16");
    CHECK(HeadingTable[7] == "o17");
    CHECK(HeadingTable[27] == "o37");
    CHECK(HeadingTable[28] == "");
    CHECK(HeadingTable[29] == "o39");
    CHECK(HeadingTable[39] == "o49");
    CHECK(HeadingTable[62] == "o50");
    CHECK(HeadingTable[84] == "o72");
    for (const int slot : {45, 46, 47, 48, 49, 55, 56, 57, 58, 59, 60, 61})
        CHECK(HeadingTable[slot] == "");
}

TEST_CASE("a shorter heading file of either form is error 62, and the grids show what was read of it alone")
{
    WriteScratch("full.hdg", HeadingText());
    WriteScratch("new.hdg", Lines({"5.0", "a", "b"}));
    WriteScratch("old.hdg", Lines({"a", "b"}));
    for (const char* name : {"new.hdg", "old.hdg"}) {
        CAPTURE(name);
        DialogResult = Scratch("full.hdg");
        OpenHeadingFile();
        Messages.clear();
        DialogResult = Scratch(name);
        OpenHeadingFile();
        CHECK(Messages.back().words == "Error 62 in OpenHeadingFile.  Please contact Norvane");
        CHECK(HeadingTable[1] == "a");
        CHECK(frmHeading::SSLog.Cell(1, 2) == "a");
        CHECK(frmHeading::SSLog.Cell(2, 2) == "b");
        for (int row = 3; row <= 39; ++row)
            CHECK(frmHeading::SSLog.Cell(row, 2) == "");
        CHECK(frmHeading::SSSections.Cell(1, 2) == "");
        CHECK(frmHeading::SSGraphics.Cell(13, 2) == "");
    }
    DialogResult = Scratch("full.hdg");
    OpenHeadingFile();
    DialogResult = Scratch("none.hdg");
    OpenHeadingFile();
    CHECK(frmHeading::SSLog.Cell(1, 2) == "");
}

TEST_CASE("Save behind a heading file that breaks off keeps the words that it has")
{
    const std::string whole = HeadingText();
    const std::string cut = whole.substr(0, whole.find("w30"));
    WriteScratch("a.hdg", cut);
    DialogResult = Scratch("a.hdg");
    OpenHeadingFile();
    SaveHeadingFile();
    const std::string saved = ReadScratch("a.hdg");
    CHECK(saved.starts_with(cut));
    for (const char letter : saved.substr(cut.size()))
        CHECK((letter == '\r' || letter == '\n'));
}

TEST_CASE("a heading file of the old form that is not closed by its last line keeps the words of its slots")
{
    std::string file;
    for (int line = 1; line <= 60; ++line)
        file += "o" + std::to_string(line) + "\r\n";
    WriteScratch("a.hdg", file);
    DialogResult = Scratch("a.hdg");
    OpenHeadingFile();
    CHECK(frmHeading::SSLog.Cell(39, 2) == HeadingTable[39]);
    CHECK(frmHeading::SSSections.Cell(1, 2) == "o50");
    CHECK(frmHeading::SSGraphics.Cell(1, 2) == "o60");
    CHECK(frmHeading::SSGraphics.Cell(2, 2) == "");
}

TEST_CASE("a heading file that cannot be written is told by name")
{
    for (int slot = 1; slot <= 20; ++slot)
        HeadingTable[slot] = "x";
    DialogResult = Scratch("nowhere/a.hdg");
    SaveHeadingFile();
    CheckOneMessage("Error 76 in SaveHeadingFile.  Please contact Norvane");
}

TEST_CASE("the four legend boxes keep their usual patterns where no number is told")
{
    WriteScratch("us.hdg", HeadingText({{41, "a"}, {42, "b"}, {43, "c"}, {44, "d"}}));
    WriteLogo();
    getclientlogo(1);
    const int usual[] = {0, 1, 7, 20, 9};
    for (int box = 0; box <= 4; ++box)
        CHECK(LegendBoxFill[box] == usual[box]);
}

TEST_CASE("the legend boxes have their usual patterns without a heading file that can be read, too")
{
    WriteLogo();
    const std::string whole = HeadingText({{41, "a,32"}, {44, "b,32"}});
    const int usual[] = {0, 1, 7, 20, 9};
    for (const std::string& file : {Text("none"), Text(), Lines({"4.6", "a"}), whole.substr(0, whole.find("w40")),
                                    whole.substr(0, whole.find("w50"))}) {
        CAPTURE(file);
        std::filesystem::remove(Scratch("us.hdg"));
        if (file != "none")
            WriteScratch("us.hdg", file);
        LegendBoxFill.slot.fill(40); // of the run before
        getclientlogo(1);
        for (int box = 0; box <= 4; ++box)
            CHECK(LegendBoxFill[box] == usual[box]);
    }
}

TEST_CASE("the first word of a heading table counts among its blanks as the twentieth does")
{
    DialogResult = Scratch("a.hdg");
    for (const int filled : {1, 20}) {
        HeadingTable = {};
        for (int slot = 4; slot <= 17; ++slot)
            HeadingTable[slot] = "x";
        SaveHeadingFile();
        CHECK_FALSE(std::filesystem::exists(Scratch("a.hdg")));
        HeadingTable[filled] = "x";
        SaveHeadingFile();
        CHECK(std::filesystem::remove(Scratch("a.hdg")));
    }
}
