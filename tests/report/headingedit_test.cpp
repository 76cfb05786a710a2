// headingedit_test.cpp -- the commands of the heading editor and of its legend editor.
#include "report/headingedit.h"

#include "report/choosing.h"

#include "grid/gridedit.h"
#include "places.h"
#include "report/heading.h"
#include "session/files.h"
#include "session/session.h"

static void WriteHeadings(const Text& name, std::initializer_list<std::pair<int, Text>> slots = {})
{
    WriteScratch(name, HeadingText(slots));
}

static Text SlotInFile(const Text& name, int slot)
{
    LineReader in(name);
    in.Skip(slot);
    return in.Line();
}

static void Open(const Text& name)
{
    frmHeading::Load();
    Choose(Scratch(name));
    frmHeading::mnuOpen();
}

TEST_CASE("the heading editor opens with nothing open: no file, empty words, the defaults beside them")
{
    DialogResult = "old";
    HeadingTable[1] = "old";
    frmHeading::SSLog.Cell(1, 2) = "old";
    frmHeading::Load();
    CHECK(DialogResult == "");
    CHECK(HeadingTable[1] == "");
    CHECK(frmHeading::SSLog.Cell(1, 2) == "");
    CHECK(frmHeading::SSLog.Cell(1, 1) == "LOG OF BORING");
    CHECK(frmHeading::SSLog.Cell(39, 1) == "PUMP");
    CHECK(frmHeading::SSSections.Cell(1, 1) == "ELEVATION");
    CHECK(frmHeading::SSSections.Cell(10, 1) == "LAB #");
    CHECK(frmHeading::SSGraphics.Cell(1, 1) == "SOURCE");
    CHECK(frmHeading::SSGraphics.Cell(13, 1) == "Water, Elevation");
    CHECK(frmHeading::Title == "Heading Editor");
}

TEST_CASE("the default texts are those of the stock heading file")
{
    frmHeading::Load();
    DialogResult = Text(SOURCE_DIR) + "/data/us.hdg";
    OpenHeadingFile();
    for (Grid* grid : {&frmHeading::SSLog, &frmHeading::SSSections, &frmHeading::SSGraphics})
        for (int row = 1; row <= grid->rows; ++row)
            CHECK(grid->Cell(row, 1) == grid->Cell(row, 2));
}

TEST_CASE("Open reads the chosen heading file and names it in the title; cancelled, it does nothing but lose the file")
{
    WriteHeadings("a.hdg");
    Open("a.hdg");
    CHECK(modeAsked == 9);
    CHECK(frmHeading::SSLog.Cell(1, 2) == "w1");
    CHECK(frmHeading::Title == "Heading Editor - " + Scratch("a.hdg"));
    Choose("");
    frmHeading::mnuOpen();
    CHECK(frmHeading::SSLog.Cell(1, 2) == "w1");
    CHECK(frmHeading::Title == "Heading Editor - " + Scratch("a.hdg"));
    frmHeading::mnuSave(); // no current file: the chooser again
    CHECK(modeAsked == 10);
    CHECK(Messages.empty());
}

TEST_CASE("a heading file saved unchanged behind another one is as in a fresh program, also one that breaks off")
{
    WriteHeadings("full.hdg", {{28, "Water"}, {45, " 1"}, {84, "last"}});
    std::string old;
    for (int line = 1; line <= 72; ++line)
        old += "o" + std::to_string(line) + "\r\n";
    for (const std::string& second : {HeadingText({{28, ""}, {40, ""}, {84, ""}}), old}) {
        const auto saved = [](const std::string& bytes) {
            WriteScratch("b.hdg", bytes);
            Choose(Scratch("b.hdg"));
            frmHeading::mnuOpen();
            frmHeading::mnuSave();
            return ReadScratch("b.hdg");
        };
        for (size_t end = 0; end != Text::npos && end <= second.size();) {
            const std::string bytes = second.substr(0, end);
            frmHeading::Load();
            const std::string fresh = saved(bytes);
            Choose(Scratch("full.hdg"));
            frmHeading::mnuOpen();
            CHECK(saved(bytes) == fresh);
            end = end == second.size() ? Text::npos : second.find("\r\n", end) + 2;
        }
    }
}

TEST_CASE("after Open no step of the heading file before can be taken back or done again")
{
    WriteHeadings("a.hdg");
    WriteHeadings("b.hdg");
    Open("a.hdg");
    Grid* const grids[] = {&frmHeading::SSLog, &frmHeading::SSSections, &frmHeading::SSGraphics};
    for (Grid* grid : grids)
        for (const char* text : {"typed", "typed again"})
            TypeCell(*grid, 1, 2, text);
    for (Grid* grid : grids)
        REQUIRE(UndoGrid(*grid));
    Choose(Scratch("b.hdg"));
    frmHeading::mnuOpen();
    for (Grid* grid : grids) {
        const Text word = grid->Cell(1, 2);
        CHECK(word.starts_with("w"));
        CHECK_FALSE(UndoGrid(*grid));
        CHECK_FALSE(RedoGrid(*grid));
        CHECK(grid->Cell(1, 2) == word);
    }
}

TEST_CASE("an Open that is cancelled leaves the steps of the heading editor")
{
    WriteHeadings("a.hdg");
    Open("a.hdg");
    TypeCell(frmHeading::SSLog, 1, 2, "typed");
    Choose("");
    frmHeading::mnuOpen();
    CHECK(UndoGrid(frmHeading::SSLog));
    CHECK(frmHeading::SSLog.Cell(1, 2) == "w1");
}

TEST_CASE("a file of the old form keeps its words, loses one, and is told to be converted")
{
    std::string file;
    for (int line = 1; line <= 72; ++line)
        file += "line " + std::to_string(line) + "\r\n";
    WriteScratch("old.hdg", file);
    Open("old.hdg");
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words ==
          "This heading file has an old format.  When saved, it will be converted to the new 5.0 heading format.");
    CHECK(frmHeading::SSLog.Cell(1, 2) == "line 1");
    CHECK(frmHeading::SSLog.Cell(7, 2) == "line 17");
    CHECK(frmHeading::SSLog.Cell(27, 2) == "line 37");
    CHECK(frmHeading::SSLog.Cell(28, 2) == "");
    CHECK(frmHeading::SSLog.Cell(29, 2) == "line 39");
    CHECK(frmHeading::SSGraphics.Cell(13, 2) == "line 72");
    frmHeading::mnuSave();
    CHECK(ReadScratch("old.hdg").starts_with("5.0\r\nline 1\r\n"));
    CHECK(SlotInFile("old.hdg", 41) == "line 8");
    CHECK(SlotInFile("old.hdg", 45) == "");
}

TEST_CASE("lower-case keywords of slots 31 to 39 come out in upper case, other words keep their case")
{
    WriteHeadings("a.hdg");
    Open("a.hdg");
    frmHeading::SSLog.Cell(32, 2) = "fill";
    frmHeading::SSLog.Cell(1, 2) = "Log of boring";
    frmHeading::mnuSave();
    CHECK(SlotInFile("a.hdg", 32) == "FILL");
    CHECK(SlotInFile("a.hdg", 39) == "W39");
    CHECK(SlotInFile("a.hdg", 30) == "w30");
    CHECK(SlotInFile("a.hdg", 1) == "Log of boring");
}

TEST_CASE("an editor that has opened nothing cannot save, whatever was typed")
{
    frmHeading::Load();
    for (int row = 1; row <= 39; ++row)
        frmHeading::SSLog.Cell(row, 2) = "typed";
    Choose(Scratch("new"));
    frmHeading::mnuSave();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words ==
          "There are too many blank cells.  Before creating a heading file, you should open an existing heading file, "
          "make changes, and then 'Save As' a different filename.");
    CHECK_FALSE(FileExists(Scratch("new.HDG")));
}

TEST_CASE("Save As adds the ending, asks before it replaces, and makes the new name the current file")
{
    WriteHeadings("a.hdg");
    Open("a.hdg");
    // A point in a folder's name is no ending.
    std::filesystem::create_directory(Scratch("v1.2"));
    Choose(Scratch("v1.2/b"));
    frmHeading::mnuSaveAs();
    CHECK(DialogResult == Scratch("v1.2/b.HDG"));
    CHECK(frmHeading::Title == "Heading Editor - " + Scratch("v1.2/b.HDG"));
    CHECK(SlotInFile("v1.2/b.HDG", 84) == "w84");
    CHECK(Messages.empty());
    frmHeading::SSLog.Cell(1, 2) = "changed";
    Answers = {No, Yes};
    Choose(Scratch("a.hdg"));
    frmHeading::mnuSaveAs();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "The file, " + Scratch("a.hdg") + " already exists.  Do you wish to overwrite it?");
    CHECK(Messages[0].buttons == YesNo);
    CHECK(Messages[0].icon == Question);
    CHECK(SlotInFile("a.hdg", 1) == "w1");
    frmHeading::mnuSaveAs();
    CHECK(SlotInFile("a.hdg", 1) == "changed");
    frmHeading::SSLog.Cell(1, 2) = "again";
    frmHeading::mnuSave();
    CHECK(SlotInFile("a.hdg", 1) == "again");
}

TEST_CASE("a second name behind the first water mark shows as two rows and is saved back the same way")
{
    WriteHeadings("a.hdg", {{47, "Static|Artesian"}, {45, " 0"}, {49, " 1"}, {55, ""}, {61, " 0"}, {42, "Tube,7"}});
    Open("a.hdg");
    frmDescLegend::Load();
    CHECK(frmDescLegend::Dialog.FilledTriangle == "Static");
    CHECK(frmDescLegend::Dialog.Diamond == "Artesian");
    CHECK(frmDescLegend::Dialog.OpenTriangle == "w48");
    CHECK(frmDescLegend::Dialog.BoxText[2] == "Tube");
    CHECK(frmDescLegend::Dialog.BoxFill[2] == "7");
    CHECK(frmDescLegend::Dialog.Title[2] == "w46");
    CHECK(frmDescLegend::Dialog.Line[1][4] == "w54");
    CHECK(frmDescLegend::Dialog.Line[2][1] == "w57");
    CHECK(frmDescLegend::Dialog.Use[2]);
    CHECK_FALSE(frmDescLegend::Dialog.Use[1]);
    CHECK(frmDescLegend::Command1());
    frmHeading::mnuSave();
    CHECK(SlotInFile("a.hdg", 47) == "Static|Artesian");
    CHECK(SlotInFile("a.hdg", 42) == "Tube,7");
    CHECK(SlotInFile("a.hdg", 41) == "w41,");
    CHECK(SlotInFile("a.hdg", 45) == " 0");
    CHECK(SlotInFile("a.hdg", 49) == " 1");
    CHECK(SlotInFile("a.hdg", 55) == " 0");
    CHECK(SlotInFile("a.hdg", 60) == "w60");
}

TEST_CASE("without a diamond there is no bar behind the filled triangle")
{
    HeadingTable[47] = "Static|Artesian";
    frmDescLegend::Load();
    frmDescLegend::Dialog.Diamond = "";
    CHECK(frmDescLegend::Command1());
    CHECK(HeadingTable[47] == "Static");
}

TEST_CASE("three legends checked are refused, and nothing is taken")
{
    frmDescLegend::Load();
    frmDescLegend::Dialog.Title[1] = "typed";
    frmDescLegend::Dialog.Use[1] = frmDescLegend::Dialog.Use[2] = frmDescLegend::Dialog.Use[4] = true;
    CHECK_FALSE(frmDescLegend::Command1());
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "More than 2 legends are checked.  There is room for up to 2 legends.  Please un-check "
                               "and try again.");
    CHECK(Messages[0].buttons == OkOnly);
    CHECK(Messages[0].icon == NoIcon);
    CHECK(HeadingTable[40] == "");
    frmDescLegend::Dialog.Use[4] = false;
    CHECK(frmDescLegend::Command1());
    CHECK(HeadingTable[40] == "typed");
    CHECK(HeadingTable[61] == " 0");
}
