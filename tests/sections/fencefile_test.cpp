// fencefile_test.cpp -- the .FEN file between its form and the disk.
#include "sections/fencefile.h"

#include "testing.h"

#include "boring/opensave.h"
#include "grid/gridedit.h"
#include "places.h"
#include "session/files.h"
#include "session/session.h"

#include <functional>

using namespace frmFence;

// A fence file: rows given first, the others in the empty form.
static std::string FenceText(const std::vector<Text>& borings, const std::vector<Text>& panels,
                             const std::vector<Text>& tail)
{
    std::string text = "\r\n";
    for (size_t row = 0; row < FenceRecord::Borings; ++row)
        text += (row < borings.size() ? borings[row] : ",,,,,") + "\r\n";
    text += "\r\n";
    for (size_t row = 0; row < FenceRecord::Panels; ++row)
        text += (row < panels.size() ? panels[row] : "") + "\r\n";
    text += "\r\n";
    for (const Text& line : tail)
        text += line + "\r\n";
    return text;
}

// What stands behind the panels of a whole file: 29 lines.
static const std::vector<Text> wholeTail = {
    "100", "700",  "200",   "Feet",   "50",    "620", "560",  "-10",     "Feet MSL",
    "",    "Main", "First", "Second", "Third", "Y",   "N,90", "CL;Clay", "F41,CONC;Concrete, cast",
    ";",   ";",    ";",     ";",      ";",     ";",   "T",    "SITE.GIS"};

static void Open(const std::string& bytes)
{
    WriteScratch("A.FEN", bytes);
    FileName = Scratch("A.FEN");
    OpenFenceFile();
}

static std::string SavedAs(const Text& name)
{
    FileName = Scratch(name);
    SaveFenceFile();
    return ReadScratch(name);
}

TEST_CASE("every line of a fence file has its cell")
{
    Open(FenceText({"300,200,B-1.BOR,12,T,B", "310.5,,B-2,,,W"}, {"B-1,B-2", "3,7"}, wholeTail));
    FillFenceForm();
    CHECK(Messages.empty());
    CHECK(frmFence::Title == Scratch("A.FEN") + " - VeskFence - Fence Diagram");
    CHECK(SS1.Cell(1, 1) == "300");
    CHECK(SS1.Cell(1, 3) == "B-1.BOR");
    CHECK(SS1.Cell(1, 6) == "B");
    CHECK(SS1.Cell(2, 1) == "310.5");
    CHECK(SS1.Cell(2, 2) == "");
    CHECK(SS1.Cell(2, 6) == "W");
    CHECK(SS1.DataRowCount() == 2);
    CHECK(SS5.Cell(1, 1) == "B-1,B-2");
    CHECK(SS5.Cell(2, 1) == "3,7");
    CHECK(SS5.DataRowCount() == 2);
    CHECK(SS2.cells == std::vector<Text>{"100,700,200", "Feet", "50", "620,560,-10", "Feet MSL"});
    CHECK(SS3.cells == std::vector<Text>{"Main", "First", "Second", "Third", "Y", "N,90", "T", "SITE.GIS"});
    CHECK(SS4.Cell(1, 1) == "CL");
    CHECK(SS4.Cell(1, 2) == "Clay");
    CHECK(SS4.Cell(2, 1) == "F41,CONC");
    CHECK(SS4.Cell(2, 2) == "Concrete, cast");
    CHECK(SS4.DataRowCount() == 2);
}

TEST_CASE("a fence file opened and saved is the same, byte for byte")
{
    const std::string whole = FenceText({"300,200,B-1.BOR,12,T,B", "310.5,,B-2,,,W", ",,,,,", " 1, 2, C,,,"},
                                        {"B-1,B-2", "", " 3 , 7 "}, wholeTail);
    Open(whole);
    FillFenceForm();
    CHECK(SavedAs("B.FEN") == whole);
    OpenFenceFile();
    FillFenceForm();
    CHECK(SavedAs("C.FEN") == whole);
}

TEST_CASE("the sixth cell of a boring takes every further comma")
{
    Open(FenceText({"1,2,A,3,T,B,and,more"}, {}, wholeTail));
    CHECK(FenceData.boringCells[1][5] == "T");
    CHECK(FenceData.boringCells[1][6] == "B,and,more");
}

TEST_CASE("a boring row with fewer commas leaves its other cells blank, whatever was open before")
{
    Open(FenceText({"1,2,A,3,T,B", "1,2,A,3,T,B"}, {}, wholeTail));
    Open(FenceText({"alone", "1,2,A"}, {}, wholeTail));
    CHECK(FenceData.boringCells[1][1] == "alone");
    CHECK(FenceData.boringCells[1][2] == "");
    CHECK(FenceData.boringCells[1][6] == "");
    CHECK(FenceData.boringCells[2][3] == "A");
    CHECK(FenceData.boringCells[2][4] == "");
}

TEST_CASE("a fence file without its last two lines opens with both cells blank, and is saved with both")
{
    std::vector<Text> tail = wholeTail;
    tail.resize(tail.size() - 2);
    Open(FenceText({"1,2,A,,,"}, {}, wholeTail));
    Open(FenceText({"1,2,A,,,"}, {}, tail));
    FillFenceForm();
    CHECK(Messages.empty());
    CHECK(SS3.Cell(6, 1) == "N,90");
    CHECK(SS3.Cell(7, 1) == "");
    CHECK(SS3.Cell(8, 1) == "");
    tail.insert(tail.end(), {"", ""});
    CHECK(SavedAs("B.FEN") == FenceText({"1,2,A,,,"}, {}, tail));
}

TEST_CASE("a fence file that ends early shows failure 62 and what was read, and nothing of the file before")
{
    Open(FenceText({"1,2,A,,,"}, {"1,2"}, wholeTail));
    std::vector<Text> tail = wholeTail;
    tail.resize(5);
    Open(FenceText({"5,6,B,,,"}, {"3,4"}, tail));
    FillFenceForm();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 62 in OpenFenceFile.  Please contact Norvane");
    CHECK(SS1.Cell(1, 3) == "B");
    CHECK(SS5.Cell(1, 1) == "3,4");
    CHECK(SS2.cells == std::vector<Text>{"100,700,200", "Feet", "50", "", ""});
    CHECK(SS3.DataRowCount() == 0);
}

TEST_CASE("a fence file that is not there shows failure 53 and empties the cells")
{
    Open(FenceText({"1,2,A,,,"}, {"1,2"}, wholeTail));
    FileName = Scratch("NONE.FEN");
    OpenFenceFile();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 53 in OpenFenceFile.  Please contact Norvane");
    CHECK(FenceData.boringCells[1][1] == "");
    CHECK(FenceData.reportCells[8] == "");
}

TEST_CASE("an older legend row is cut at its comma, one without a separator is empty")
{
    std::vector<Text> tail = wholeTail;
    tail[16] = "CL, Clay; silty ";
    tail[17] = "SM,  Sand ";
    tail[18] = "Gravel";
    Open(FenceText({}, {}, tail));
    CHECK(FenceData.legendCells[1][1] == "CL, Clay");
    CHECK(FenceData.legendCells[1][2] == "silty");
    CHECK(FenceData.legendCells[2][1] == "SM");
    CHECK(FenceData.legendCells[2][2] == "Sand");
    CHECK(FenceData.legendCells[3][1] == "");
    CHECK(FenceData.legendCells[3][2] == "");
}

// The lines of a saved form, from 0.
static std::vector<Text> SavedLines()
{
    FileName = Scratch("S.FEN");
    SaveFenceFile();
    LineReader in(FileName);
    std::vector<Text> lines;
    while (!in.AtEnd())
        lines.push_back(in.Line());
    return lines;
}

constexpr size_t firstScale = 38; // line of the X start: 1 + 15 + 1 + 20 + 1

TEST_CASE("an empty fence form is saved with all its rows, the scales at a thousand")
{
    std::vector<Text> tail(26);
    for (const size_t at : {0, 5}) {
        tail[at] = "0";
        tail[at + 1] = "1000";
        tail[at + 2] = "100";
    }
    for (size_t at = 16; at < 24; ++at)
        tail[at] = ";";
    CHECK(SavedAs("E.FEN") == FenceText({}, {}, tail));
    CHECK(SS2.Cell(1, 1) == ""); // the form shows it after the next opening only
    CHECK(SS2.Cell(4, 1) == "");
    OpenFenceFile();
    FillFenceForm();
    CHECK(SS2.Cell(1, 1) == "0,1000,100");
    CHECK(SS2.Cell(4, 1) == "0,1000,100");
}

TEST_CASE("a scale cell with one comma repeats its end as the increment, with three the rest is the increment")
{
    SS2.Cell(1, 1) = "0, 500 ";
    SS2.Cell(4, 1) = " 620 ,560,-10,7";
    const std::vector<Text> lines = SavedLines();
    CHECK(lines[firstScale] == "0");
    CHECK(lines[firstScale + 1] == "500");
    CHECK(lines[firstScale + 2] == "500");
    CHECK(lines[firstScale + 5] == "620");
    CHECK(lines[firstScale + 6] == "560");
    CHECK(lines[firstScale + 7] == "-10,7");
}

TEST_CASE("a fence is saved with boring cells trimmed on the right, scales on both sides, all else as typed")
{
    SS1.Cell(1, 1) = " 12 ";
    SS1.Cell(1, 3) = "B 1  ";
    SS1.Cell(15, 6) = "B ";
    SS5.Cell(20, 1) = " 1 , 2 ";
    SS2.Cell(2, 1) = " Feet ";
    SS2.Cell(3, 1) = " 7 ";
    SS2.Cell(5, 1) = " MSL ";
    SS3.Cell(1, 1) = " Main ";
    SS3.Cell(8, 1) = " A.GIS ";
    SS4.Cell(1, 1) = " CL ";
    SS4.Cell(1, 2) = " Clay ";
    const std::vector<Text> lines = SavedLines();
    REQUIRE(lines.size() == 64);
    CHECK(lines[1] == " 12,,B 1,,,");
    CHECK(lines[15] == ",,,,,B");
    CHECK(lines[36] == " 1 , 2 ");
    CHECK(lines[firstScale + 3] == "Feet");
    CHECK(lines[firstScale + 4] == "7");
    CHECK(lines[firstScale + 8] == "MSL");
    CHECK(lines[48] == " Main ");
    CHECK(lines[54] == " CL ; Clay");
    CHECK(lines[63] == " A.GIS ");
}

TEST_CASE("a fence is saved without a check of its values and without a word")
{
    SS1.Cell(1, 1) = "far away";
    SS5.Cell(1, 1) = "99,-1";
    SS2.Cell(1, 1) = "0,10,1";
    FileName = Scratch("S.FEN");
    SaveFenceFile();
    CHECK(Messages.empty());
}

TEST_CASE("opening, filling and saving a fence leave the changed flag as it is")
{
    for (const int16_t flag : {int16_t(0), int16_t(1)}) {
        FileChanged = flag;
        Open(FenceText({}, {}, wholeTail));
        FillFenceForm();
        SaveFenceFile();
        ClearFenceArrays();
        CHECK(FileChanged == flag);
    }
}

TEST_CASE("clearing a fence empties every cell of the record")
{
    Open(FenceText({"1,2,A,3,T,B"}, {"1,2"}, wholeTail));
    ClearFenceArrays();
    FillFenceForm();
    for (const Grid* grid : {&SS1, &SS2, &SS3, &SS4, &SS5})
        CHECK(grid->DataRowCount() == 0);
}

TEST_CASE("deleting a boring row moves the later ones up, and the panels mean others by the same numbers")
{
    Open(FenceText({"1,1,A,,,", "2,2,B,,,", "3,3,C,,,"}, {"2,3"}, wholeTail));
    FillFenceForm();
    SS1.row = 1;
    SS1.selected = {1, 1, 1, 1};
    DeleteRow(SS1);
    CHECK(SS1.Cell(1, 3) == "B");
    CHECK(SS1.Cell(2, 3) == "C");
    CHECK(SS1.Cell(3, 3) == "");
    CHECK(SS5.Cell(1, 1) == "2,3"); // as typed: row 3 is empty now
    CHECK(SavedAs("D.FEN") == FenceText({"2,2,B,,,", "3,3,C,,,"}, {"2,3"}, wholeTail));
}

TEST_CASE("the sample fences are opened, saved, opened and saved byte for byte")
{
    const std::vector<Text> fences = FilesIn(Text(SOURCE_DIR) + "/samples", ".FEN");
    CHECK(fences.size() >= 3);
    for (const Text& fence : fences) {
        CAPTURE(fence);
        const std::string bytes = ReadWholeFile(Text(SOURCE_DIR) + "/samples/" + fence);
        Open(bytes);
        FillFenceForm();
        CHECK(SavedAs("B.FEN") == bytes);
        OpenFenceFile();
        FillFenceForm();
        CHECK(SavedAs("C.FEN") == bytes);
    }
}

TEST_CASE("a fence that cannot be written is told by its failure")
{
    FileName = Scratch("none/A.FEN");
    SaveFenceFile();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 76 in SaveFenceFile.  Please contact Norvane");
}
