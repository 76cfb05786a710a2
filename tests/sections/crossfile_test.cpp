// crossfile_test.cpp -- the .CRO file between its form and the disk.
#include "sections/crossfile.h"

#include "testing.h"

#include "session/files.h"

using namespace frmCross;

// A file of two borings, the second one inclined, with something in every line that a file can have.
static std::string WholeFile()
{
    std::string bytes =
        Lines({" 2 ", "0",        "B-1", "5.5",          "B",   "T",   ".1,.05", "Inside", "250",  "B-2.BOR", "",
               "W",   "B",        "",    "North|120|30", "",    "0",   "500",    "100",    "Feet", "620",     "560",
               "-10", "Feet MSL", "",    "Main",         "One", "Two", "A",      "A'",     "Y"});
    for (const char* row : {"SM;Silty sand", "CL,F11;Clay", "F44,TS;Topsoil", ";", ";", ";", ";", "RED;Waste"})
        bytes += Text(row) + "\r\n";
    bytes += Lines({"T", "SITE", "GP3", ".2,8"});
    for (int row = 9; row <= 30; ++row)
        bytes += row == 30 ? "GT;Glacial till\r\n" : ";\r\n";
    return bytes;
}

static void Open(const Text& file)
{
    FileName = Scratch(file);
    OpenCrossFile();
    FillCrossForm();
}

static std::string Saved()
{
    FileName = Scratch("SAVED.CRO");
    CHECK(SaveCrossFile());
    return ReadScratch("SAVED.CRO");
}

// A line of the file, from 1.
static Text Line(const std::string& bytes, int number)
{
    size_t at = 0;
    for (; number > 1; --number)
        at = bytes.find("\r\n", at) + 2;
    return bytes.substr(at, bytes.find("\r\n", at) - at);
}

static const Text Beyond = "One or more of your boring distances exceed the END value of your HORIZONTAL SCALE.";

// The form as New leaves it, with a scale cell and one boring.
static void TypeBoring(const Text& scale, const Text& distance)
{
    FillCrossForm();
    SS2.Cell(1, 1) = scale;
    SS1.Cell(1, 1) = distance;
    SS1.Cell(1, 2) = "B-1";
}

TEST_CASE("a cross section file opened, shown, saved and opened again has the same cells, and the same bytes")
{
    WriteScratch("A.CRO", WholeFile());
    Open("A.CRO");
    CHECK(CrossData.rowCount == 2);
    CHECK(CrossData.boringCells[1].slot ==
          std::array<Text, 10>{"", "0", "B-1", "5.5", "B", "T", ".1,.05", "Inside", "", ""});
    CHECK(CrossData.boringCells[2].slot ==
          std::array<Text, 10>{"", "250", "B-2.BOR", "", "W", "B", "", "North", "120", "30"});
    CHECK(CrossData.scaleCells.slot == std::array<Text, 5>{"", "0,500,100", "Feet", "620,560,-10", "Feet MSL"});
    CHECK(CrossData.reportCells.slot ==
          std::array<Text, 11>{"", "Main", "One", "Two", "A", "A'", "Y", "T", "SITE", "GP3", ".2,8"});
    CHECK(CrossData.legendCells[2].slot == std::array<Text, 3>{"", "CL,F11", "Clay"});
    CHECK(CrossData.legendCells[30].slot == std::array<Text, 3>{"", "GT", "Glacial till"});
    const CrossRecord opened = CrossData;
    CHECK(Saved() == WholeFile());
    ClearCrossArrays();
    Open("SAVED.CRO");
    for (int row = 1; row <= 2; ++row)
        CHECK(CrossData.boringCells[row].slot == opened.boringCells[row].slot);
    CHECK(CrossData.reportCells.slot == opened.reportCells.slot);
    CHECK(Saved() == WholeFile());
    CHECK(Messages.empty());
}

TEST_CASE("the form shows five columns of the borings and eight legend rows, and has the file's name in its title")
{
    WriteScratch("A.CRO", WholeFile());
    Open("A.CRO");
    CHECK(Title == Scratch("A.CRO") + " - VeskCross - Cross Section Diagram");
    CHECK(SS1.rows == 15);
    CHECK(SS1.columns == 5);
    CHECK(SS1.Cell(2, 2) == "B-2.BOR");
    CHECK(SS1.DataRowCount() == 2);
    CHECK(SS2.Cell(3, 1) == "620,560,-10");
    CHECK(SS3.Cell(9, 1) == "GP3");
    CHECK(SS4.Cell(8, 1) == "RED");
    CHECK(SS4.rows == 8);
}

TEST_CASE("a distance beyond the end of the scale is told once for all rows, and saved all the same")
{
    TypeBoring("0,500,100", "500.5");
    SS1.Cell(2, 1) = "600";
    const std::string bytes = Saved();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == Beyond);
    CHECK(Messages[0].icon == Exclamation);
    CHECK(Line(bytes, 1) == " 2 ");
    CHECK(Line(bytes, 2) == "500.5");
}

TEST_CASE("a distance at the end of the scale is not told")
{
    TypeBoring("0,500,100", "500");
    Saved();
    CHECK(Messages.empty());
}

TEST_CASE("a blank distance counts as 0, so a negative end is told for it")
{
    TypeBoring("-100,-5,10", "");
    Saved();
    CHECK(Messages.size() == 1);
}

TEST_CASE("a scale cell with one comma only has its end for the increment too")
{
    TypeBoring(" 0 , 500 ", "100");
    const std::string bytes = Saved();
    CHECK(Messages.empty());
    CHECK(Line(bytes, 10) == "0");
    CHECK(Line(bytes, 11) == "500");
    CHECK(Line(bytes, 12) == "500");
}

TEST_CASE("a scale cell with three commas has all behind the second for its increment")
{
    TypeBoring("0,500,100,7", "100");
    CHECK(Line(Saved(), 12) == "100,7");
}

TEST_CASE("without a comma in the scale the end counts as 0, and 0, 1000 and 100 are written")
{
    TypeBoring("500", "1");
    const std::string bytes = Saved();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == Beyond);
    CHECK(Line(bytes, 10) == "0");
    CHECK(Line(bytes, 11) == "1000");
    CHECK(Line(bytes, 12) == "100");
}

TEST_CASE("a row with a blank azimuth is written without any bar")
{
    TypeBoring("0,500,100", "100");
    CrossData.boringCells[1][7] = "Inside";
    CrossData.boringCells[1][8] = "  ";
    CrossData.boringCells[1][9] = "30";
    CHECK(Line(Saved(), 8) == "Inside");
}

TEST_CASE("saving twice without opening writes azimuth and inclination twice, and the reader takes the first")
{
    TypeBoring("0,500,100", "100");
    CrossData.boringCells[1][7] = "Inside";
    CrossData.boringCells[1][8] = "120";
    CrossData.boringCells[1][9] = "30";
    CHECK(Line(Saved(), 8) == "Inside|120|30");
    CHECK(Line(Saved(), 8) == "Inside|120|30|120|30");
    ClearCrossArrays();
    Open("SAVED.CRO");
    CHECK(CrossData.boringCells[1][7] == "Inside");
    CHECK(CrossData.boringCells[1][8] == "120");
    CHECK(CrossData.boringCells[1][9] == "30");
}

TEST_CASE("a second label with one bar only is left as it is")
{
    TypeBoring("0,500,100", "100");
    CrossData.boringCells[1][7] = "One|two";
    CHECK(Line(Saved(), 8) == "One|two");
    ClearCrossArrays();
    Open("SAVED.CRO");
    CHECK(CrossData.boringCells[1][7] == "One|two");
    CHECK(CrossData.boringCells[1][8] == "");
}

TEST_CASE("legend rows 9 to 30 come from a file alone, and are written back")
{
    WriteScratch("A.CRO", WholeFile());
    Open("A.CRO");
    SS4.Cell(8, 2) = "Fill  ";
    const std::string bytes = Saved();
    CHECK(Line(bytes, 39) == "RED;Fill");
    CHECK(Line(bytes, 65) == "GT;Glacial till");
    CHECK(bytes.find("GT;Glacial till") == bytes.rfind("GT;"));
}

TEST_CASE("a legend row without a separator empties its cells, and a comma separates where there is no semicolon")
{
    std::string bytes = WholeFile();
    bytes.replace(bytes.find("SM;Silty sand"), 13, "SM, Silty sand ");
    bytes.replace(bytes.find("RED;Waste"), 9, "RED Waste");
    WriteScratch("A.CRO", bytes);
    CrossData.legendCells[8][1] = "old";
    Open("A.CRO");
    CHECK(CrossData.legendCells[1].slot == std::array<Text, 3>{"", "SM", "Silty sand"});
    CHECK(CrossData.legendCells[8].slot == std::array<Text, 3>{"", "", ""});
}

TEST_CASE("the older form has fifteen rows cut at their commas, and is saved in the current form")
{
    std::string bytes = "  \r\n0,B-1,5.5,b\r\n";
    for (const char* row : {",,,", "100,B-2", "lost", "200,B-3,3,b,more"})
        bytes += Text(row) + "\r\n";
    for (int row = 6; row <= 15; ++row)
        bytes += ",,,\r\n";
    const std::string whole = WholeFile();
    bytes += whole.substr(whole.find("\r\n\r\n0\r\n500") + 2);
    WriteScratch("OLD.CRO", bytes);
    Open("OLD.CRO");
    CHECK(Messages.empty());
    CHECK(CrossData.rowCount == 15);
    CHECK(CrossData.boringCells[1].slot == std::array<Text, 10>{"", "0", "B-1", "5.5", "b", "", "", "", "", ""});
    CHECK(CrossData.boringCells[2].slot == std::array<Text, 10>());
    CHECK(CrossData.boringCells[3].slot == std::array<Text, 10>{"", "100", "B-2", "", "", "", "", "", "", ""});
    CHECK(CrossData.boringCells[4].slot == std::array<Text, 10>{"", "lost", "", "", "", "", "", "", "", ""});
    CHECK(CrossData.boringCells[5].slot == std::array<Text, 10>{"", "200", "B-3", "3", "b,more", "", "", "", "", ""});
    CHECK(CrossData.reportCells[1] == "Main");
    const std::string saved = Saved();
    CHECK(Line(saved, 1) == " 5 ");
    CHECK(Line(saved, 9) == "");
    CHECK(Line(saved, 23) == "lost");
}

TEST_CASE("a file without its last lines is read as far as it goes, and the rest is empty")
{
    const std::string whole = WholeFile();
    WriteScratch("A.CRO", whole.substr(0, whole.find("SITE")));
    CrossData.reportCells[10] = "old";
    CrossData.legendCells[30][1] = "old";
    Open("A.CRO");
    CHECK(Messages.empty());
    CHECK(CrossData.reportCells[7] == "T");
    CHECK(CrossData.reportCells[8] == "");
    CHECK(CrossData.reportCells[10] == "");
    CHECK(CrossData.legendCells[30][1] == "");
}

TEST_CASE("a file that ends within its borings is told as error 62, and what was read is shown")
{
    WriteScratch("A.CRO", Lines({" 2 ", "0", "B-1", "5.5"}));
    Open("A.CRO");
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 62 in OpenCrossFile.  Please contact Norvane");
    CHECK(SS1.Cell(1, 3) == "5.5");
}

TEST_CASE("a file that is not there is told as error 53")
{
    Open("NONE.CRO");
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 53 in OpenCrossFile.  Please contact Norvane");
}

TEST_CASE("behind a long section a file that is not there, or is empty, shows no boring of it")
{
    std::string bytes = " 20 \r\n";
    for (int row = 1; row <= 20; ++row)
        bytes += std::to_string(row) + "\r\n\r\n\r\n\r\n\r\n\r\n\r\n";
    WriteScratch("A.CRO", bytes);
    WriteScratch("EMPTY.CRO", "");
    for (const char* name : {"NONE.CRO", "EMPTY.CRO"}) {
        Open("A.CRO");
        CHECK(SS1.rows == 20);
        ClearCrossArrays();
        Open(name);
        CHECK(SS1.rows == 15);
        CHECK(SS1.DataRowCount() == 0);
    }
}

TEST_CASE("more than fifty borings are told as error 9, and fifty are shown")
{
    std::string bytes = "40000\r\n";
    for (int row = 1; row <= 51; ++row)
        bytes += std::to_string(row) + "\r\n\r\n\r\n\r\n\r\n\r\n\r\n";
    WriteScratch("A.CRO", bytes);
    Open("A.CRO");
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 9 in OpenCrossFile.  Please contact Norvane");
    CHECK(SS1.rows == 50);
    CHECK(SS1.Cell(50, 1) == "50");
}

TEST_CASE("the grid grows to the rows of a file, and a shorter one opened next leaves no row behind")
{
    std::string bytes = " 20 \r\n";
    for (int row = 1; row <= 20; ++row)
        bytes += std::to_string(row) + "\r\n\r\n\r\n\r\n\r\n\r\n\r\n";
    const std::string whole = WholeFile();
    WriteScratch("A.CRO", bytes + whole.substr(whole.find("\r\n\r\n0\r\n500") + 2));
    Open("A.CRO");
    CHECK(SS1.rows == 20);
    CHECK(SS1.Cell(20, 1) == "20");
    SS1.row = 20;
    WriteScratch("B.CRO", whole);
    ClearCrossArrays();
    Open("B.CRO");
    CHECK(SS1.rows == 15);
    CHECK(SS1.row == 15);
    CHECK(SS1.DataRowCount() == 2);
}

TEST_CASE("a count of 0 is no row, and a form without any row is saved with fifteen")
{
    const std::string whole = WholeFile();
    WriteScratch("A.CRO", "0\r\n" + whole.substr(whole.find("\r\n\r\n0\r\n500") + 2));
    Open("A.CRO");
    CHECK(Messages.empty());
    CHECK(CrossData.rowCount == 0);
    CHECK(CrossData.reportCells[1] == "Main");
    const std::string saved = Saved();
    CHECK(Line(saved, 1) == " 15 ");
    CHECK(Line(saved, 108) == "0");
}

TEST_CASE("rows count by what the form shows, so a last row of hidden cells alone is not written")
{
    TypeBoring("0,500,100", "100");
    CrossData.boringCells[2][6] = ".1,.1";
    CHECK(Line(Saved(), 1) == " 1 ");
}

TEST_CASE("clearing empties every cell, also those that the form does not show, and a new file is saved without them")
{
    CrossData.rowCount = 50;
    CrossData.reportCells.slot.fill("x");
    CrossData.scaleCells.slot.fill("x");
    for (int row = 1; row <= 50; ++row)
        CrossData.boringCells[row].slot.fill("x");
    for (int row = 1; row <= 30; ++row)
        CrossData.legendCells[row].slot.fill("x");
    ClearCrossArrays();
    CHECK(CrossData.rowCount == 0);
    for (int cell = 1; cell <= 10; ++cell)
        CHECK(CrossData.reportCells[cell] == "");
    for (int cell = 1; cell <= 4; ++cell)
        CHECK(CrossData.scaleCells[cell] == "");
    for (int row = 1; row <= 50; ++row)
        for (int column = 1; column <= 9; ++column)
            CHECK(CrossData.boringCells[row][column] == "");
    for (int row = 1; row <= 30; ++row)
        for (int column = 1; column <= 2; ++column)
            CHECK(CrossData.legendCells[row][column] == "");
    TypeBoring("0,500,100", "100");
    const std::string saved = Saved();
    CHECK(Line(saved, 36) == "");
    CHECK(Line(saved, 37) == ";");
}

TEST_CASE("units and scale numbers are written trimmed, titles as they stand, legend texts right-trimmed")
{
    TypeBoring(" 0 , 500 ,100 ", "100");
    SS2.Cell(2, 1) = " Feet ";
    SS3.Cell(1, 1) = " Main ";
    SS4.Cell(1, 1) = " SM ";
    SS4.Cell(1, 2) = " Silty sand ";
    const std::string saved = Saved();
    CHECK(Line(saved, 10) == "0");
    CHECK(Line(saved, 13) == "Feet");
    CHECK(Line(saved, 19) == " Main ");
    CHECK(Line(saved, 25) == " SM ; Silty sand");
}

TEST_CASE("each scale and unit of a section is written trimmed")
{
    TypeBoring("0,500,100", "100");
    SS2.Cell(1, 1) = " 0 , 500 , 100 ";
    SS2.Cell(2, 1) = " Feet ";
    SS2.Cell(3, 1) = " 60 , 20 , -10 ";
    SS2.Cell(4, 1) = "  MSL  ";
    const std::string saved = Saved();
    const char* const lines[] = {"0", "500", "100", "Feet", "60", "20", "-10", "MSL", ""};
    for (int i = 0; i < 9; ++i)
        CHECK(Line(saved, 1 + 7 + 2 + i) == lines[i]);
}

TEST_CASE("after Open no step of the section before can be taken back in any of the four grids")
{
    WriteScratch("A.CRO", WholeFile());
    Open("A.CRO");
    for (Grid* grid : {&SS1, &SS2, &SS3, &SS4}) {
        GridStep step{};
        step.cells = {{1, 1, "x", "y"}};
        step.before = step.after = grid->Shape();
        grid->done.push_back(step);
    }
    Open("A.CRO");
    for (Grid* grid : {&SS1, &SS2, &SS3, &SS4})
        CHECK(grid->done.empty());
}

TEST_CASE("a file that cannot be written is told, and the save says so")
{
    TypeBoring("0,500,100", "100");
    FileName = Scratch("none/A.CRO");
    CHECK(!SaveCrossFile());
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 76 in SaveCrossFile.  Please contact Norvane");
}
