// workbench_test.cpp -- the commands of the GIS workbench, and what it reads of a boring.
#include "gis/gisfile.h"

#include "logrender/boringtext.h"
#include "testing.h"

#include "boring/boringdata.h"
#include "grid/gridedit.h"
#include "session/files.h"
#include "session/session.h"

using namespace frmGIS;

// A boring of these contacts in the project folder.
static void WriteContacts(const Text& file, const BoringText::Rows& lith)
{
    BoringText boring;
    boring.Name = file.substr(0, file.find('.'));
    boring.SurfElev = "12.5";
    boring.Coordinates = "100,200";
    boring.Lith = lith;
    WriteBoring(file, boring);
}

// The workbench with these layers in force, and all borings of the project folder marked.
static void StartWorkbench(std::initializer_list<const char*> layers)
{
    ClearGISForm();
    int row = 0;
    for (const char* layer : layers)
        SSGISLayers.Cell(++row, 1) = layer;
    Command2();
    RefreshFileList();
    Option1();
    FileChanged = 0;
}

static std::vector<Text> Row(int row)
{
    std::vector<Text> cells;
    for (int column = 1; column <= SSGISInfo.columns; ++column)
        cells.push_back(SSGISInfo.Cell(row, column));
    return cells;
}

// ---- A boring

TEST_CASE("of a boring the workbench takes name, place, elevation, lithology, and what the well reaches")
{
    BoringText boring;
    boring.Name = "MW-7";
    boring.Coordinates = "518051.96, 466589.83";
    boring.SurfElev = "10.65";
    boring.StartElev = "11";
    boring.RepParts = {{"DEPTH", ".4"}};
    boring.Samples = {{"1", "2"}, {"3", "4"}};
    boring.Lith = {{"2.5", "SM", "1", "RED"}, {"9", "CL"}};
    boring.Des = {"one", "two"};
    boring.Params = {{"1", "2"}};
    boring.WellInfo = {{"WELL", "x"}};
    boring.WellNotes = {"note"};
    boring.OuterLayers = {{"0", " 3 "}, {"3", "12.50"}, {"1", "12.5"}};
    boring.InnerLayers = {
        {"0", "4", "2 in. casing"}, {"4", "8", "2 in. Screen"}, {"8", "9", "sump"}, {"9", "11", "SCREENED"}};
    WriteBoring("MW-7.BOR", boring);
    OpenBoringGIS(Scratch("MW-7.BOR"));
    CHECK(Messages.empty());
    CHECK(boringSummary[1] == "MW-7");
    CHECK(boringSummary[2] == "518051.96");
    CHECK(boringSummary[3] == " 466589.83");
    CHECK(boringSummary[4] == "10.65");
    CHECK(boringSummary[5] == "");
    CHECK(boringSummary[6] == "12.50"); // the first of equals
    CHECK(boringSummary[7] == "11");
    CHECK(boringSummary[8] == "4,9");
    CHECK(boringSummary[9] == "8,11");
    CHECK(boringLithology.count == 2);
    CHECK(boringLithology.depth[1] == "2.5");
    CHECK(boringLithology.code[2] == "CL");
}

TEST_CASE("coordinates without a comma are none, a well without rows reaches nowhere, one screen stands alone")
{
    BoringText boring;
    boring.Coordinates = "100 200";
    WriteBoring("A.BOR", boring);
    OpenBoringGIS(Scratch("A.BOR"));
    CHECK(boringSummary[2] == "");
    CHECK(boringSummary[3] == "");
    CHECK(boringSummary[6] == "");
    CHECK(boringSummary[7] == "");
    CHECK(boringSummary[8] == "");
    boring.InnerLayers = {{"4", "-8", "screen"}};
    WriteBoring("A.BOR", boring);
    OpenBoringGIS(Scratch("A.BOR"));
    CHECK(boringSummary[7] == "-8");
    CHECK(boringSummary[8] == "4");
    CHECK(boringSummary[9] == "-8");
}

TEST_CASE("a boring of form 5.0 has nine cells a row of parameters")
{
    BoringText boring;
    boring.Version = "5.0";
    boring.ParamCells = 9;
    boring.Params = {{"1", "2"}, {"3"}};
    boring.OuterLayers = {{"0", "14"}};
    WriteBoring("A.BOR", boring);
    OpenBoringGIS(Scratch("A.BOR"));
    CHECK(Messages.empty());
    CHECK(boringSummary[6] == "14");
}

TEST_CASE("a boring of another form is refused by the workbench, and leaves nothing of the one before")
{
    WriteContacts("A.BOR", {{"4", "SM"}});
    OpenBoringGIS(Scratch("A.BOR"));
    BoringText boring;
    boring.Version = "5.1";
    WriteBoring("B.BOR", boring);
    OpenBoringGIS(Scratch("B.BOR"));
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "This boring file has an invalid format.");
    CHECK(boringSummary[1] == "");
    CHECK(boringLithology.count == 0);
}

TEST_CASE("a boring that is not there or ends early is an error, and the rows read so far stay")
{
    OpenBoringGIS(Scratch("NONE.BOR"));
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 53 in OpenBoringGIS.  Please contact Norvane");
    WriteContacts("A.BOR", {{"4", "SM"}, {"9", "CL"}});
    const std::string bytes = ReadScratch("A.BOR");
    WriteScratch("A.BOR", bytes.substr(0, bytes.find("9\r\nCL\r\n")));
    OpenBoringGIS(Scratch("A.BOR"));
    REQUIRE(Messages.size() == 2);
    CHECK(Messages[1].words == "Error 62 in OpenBoringGIS.  Please contact Norvane");
    CHECK(boringLithology.count == 1);
    CHECK(boringSummary[1] == "A");
}

TEST_CASE("contact 101 is error 9, and a hundred are there")
{
    BoringText::Rows lith;
    for (int row = 1; row <= 101; ++row)
        lith.push_back({std::to_string(row), "SM"});
    WriteContacts("A.BOR", lith);
    OpenBoringGIS(Scratch("A.BOR"));
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 9 in OpenBoringGIS.  Please contact Norvane");
    CHECK(boringLithology.count == 100);
    CHECK(boringLithology.depth[100] == "100");
}

TEST_CASE("what the log tool below shows and saves does not change when the workbench reads a boring")
{
    BoringData.Name = "mine";
    BoringData.LithCount = 1;
    BoringData.Lith[1][1] = "77";
    WriteContacts("A.BOR", {{"4", "SM"}});
    OpenBoringGIS(Scratch("A.BOR"));
    CHECK(BoringData.Name == "mine");
    CHECK(BoringData.LithCount == 1);
    CHECK(BoringData.Lith[1][1] == "77");
    CHECK(BoringFileName == "");
}

// ---- Add to GIS

TEST_CASE("a layer that a boring lacks ends where the one above it ends")
{
    WriteContacts("A.BOR", {{"3", "SM"}, {"8", "SM"}});
    WriteContacts("B.BOR", {{"2", "SM"}, {"5", "CL"}, {"9", "SM"}});
    StartWorkbench({"SM", "CL", "SM"});
    Command1();
    CHECK(Row(1) == std::vector<Text>{"A", "100", "200", "12.5", "A.BOR", "3", "3", "8"});
    CHECK(Row(2) == std::vector<Text>{"B", "100", "200", "12.5", "B.BOR", "2", "5", "9"});
}

TEST_CASE("a layer that no boring holds has the cell above it, and above the first contact stands 0")
{
    WriteContacts("A.BOR", {{"3", "SM"}});
    StartWorkbench({"PT", "SM", "PT"});
    Command1();
    CHECK(Row(1) == std::vector<Text>{"A", "100", "200", "12.5", "A.BOR", "0", "3", "3"});
}

TEST_CASE("a boring deeper than the list has its lower layers left out")
{
    WriteContacts("A.BOR", {{"3", "SM"}, {"8", "CL"}, {"20", "GT"}});
    StartWorkbench({"SM", "CL"});
    Command1();
    CHECK(Row(1) == std::vector<Text>{"A", "100", "200", "12.5", "A.BOR", "3", "8"});
}

TEST_CASE("codes are compared exactly, and a blank layer name is a blank code's and nothing else's")
{
    WriteContacts("A.BOR", {{"3", "sm"}, {"8", ""}});
    StartWorkbench({"SM", "sm ", "sm"});
    SSGISLayers.Cell(5, 1) = "CL"; // row 4 has no name
    Command2();
    Command1();
    CHECK(Row(1) == std::vector<Text>{"A", "100", "200", "12.5", "A.BOR", "0", "0", "3", "8", "8"});
}

TEST_CASE("behind the last contact no layer matches, not even one without a name")
{
    WriteContacts("A.BOR", {{"3", "SM"}});
    StartWorkbench({"SM"});
    SSGISLayers.Cell(3, 1) = "CL";
    Command2();
    Command1();
    CHECK(Row(1) == std::vector<Text>{"A", "100", "200", "12.5", "A.BOR", "3", "3", "3"});
}

TEST_CASE("borings that cannot be read are told one by one, and have a row with their file name and 0 in each layer")
{
    WriteScratch("A.BOR", "4.6\r\n");
    WriteScratch("B.BOR", "nothing\r\n");
    StartWorkbench({"SM", "CL"});
    Command1();
    REQUIRE(Messages.size() == 2);
    CHECK(Messages[1].words == "This boring file has an invalid format.");
    CHECK(Row(1) == std::vector<Text>{"", "", "", "", "A.BOR", "0", "0"});
    CHECK(Row(2) == std::vector<Text>{"", "", "", "", "B.BOR", "0", "0"});
}

TEST_CASE("the rows go below the last one with data; the same boring twice is two rows; nothing is marked then")
{
    WriteContacts("A.BOR", {{"3", "SM"}});
    StartWorkbench({"SM"});
    SSGISInfo.Cell(4, 3) = " ";
    SSBoringData.Cell(50, 1) = "x";
    Command1();
    CHECK(Row(5)[0] == "A");
    CHECK(File1.selected == std::vector<bool>{false});
    CHECK_FALSE(File1.SelectAll);
    Option1();
    Command1();
    CHECK(Row(6)[4] == "A.BOR");
    CHECK(FileChanged == 1);
}

TEST_CASE("adding with nothing marked adds nothing, and the table counts as unchanged")
{
    WriteContacts("A.BOR", {{"3", "SM"}});
    StartWorkbench({"SM"});
    File1.selected.assign(File1.names.size(), false);
    FileChanged = 0;
    Command1();
    CHECK(FileChanged == 0);
    CHECK(SSGISInfo.DataRowCount() == 0);
}

TEST_CASE("row 201 is failure 9, and the table stays as it is")
{
    WriteContacts("A.BOR", {{"3", "SM"}});
    StartWorkbench({"SM"});
    SSGISInfo.Cell(200, 1) = "last";
    CHECK(FailureOf(Command1) == 9);
    CHECK(Row(200)[0] == "last");
}

TEST_CASE("layers count from Update Layers on, also on a new table")
{
    WriteContacts("A.BOR", {{"3", "SM"}});
    StartWorkbench({});
    SSGISLayers.Cell(1, 1) = "SM";
    Command1();
    CHECK(Row(1) == std::vector<Text>{"A", "100", "200", "12.5", "A.BOR"});
    Command2();
    Option1();
    Command1();
    CHECK(Row(2) == std::vector<Text>{"A", "100", "200", "12.5", "A.BOR", "3"});
}

// ---- Update Layers

TEST_CASE("Update Layers heads a column for each row of the list and moves no cells")
{
    StartWorkbench({"SM", "CL"});
    CHECK(FileChanged == 0);
    SSGISInfo.Cell(1, 6) = "4";
    SSGISInfo.Cell(1, 7) = "9";
    SSGISLayers.Cell(1, 1) = "CL";
    SSGISLayers.Cell(2, 1) = "SM";
    SSGISLayers.Cell(3, 1) = "GT";
    Command2();
    CHECK(FileChanged == 1);
    CHECK(SSGISInfo.columns == 8);
    CHECK(SSGISInfo.headings[6] == "CL");
    CHECK(SSGISInfo.headings[7] == "SM");
    CHECK(SSGISInfo.headings[8] == "GT");
    CHECK(Row(1) == std::vector<Text>{"", "", "", "", "", "4", "9", ""});
    CHECK(GisData.layerCount == 3);
    CHECK(GisData.layerName[3] == "GT");
}

TEST_CASE("columns beyond a shorter list are blanked, heading and all")
{
    StartWorkbench({"SM", "CL", "GT"});
    SSGISInfo.Cell(1, 6) = "4";
    SSGISInfo.Cell(1, 8) = "20";
    SSGISLayers.ClearRows(2, 3);
    Command2();
    CHECK(GisData.layerCount == 1);
    SSGISLayers.Cell(3, 1) = "MS";
    Command2();
    CHECK(Row(1) == std::vector<Text>{"", "", "", "", "", "4", "", ""});
    CHECK(SSGISInfo.headings[8] == "MS");
    CHECK(SSGISInfo.headings[7] == "");
}

TEST_CASE("the current cell stays in a table that gets narrower")
{
    StartWorkbench({"SM", "CL", "GT"});
    SSGISInfo.column = 8;
    SSGISInfo.selected = {1, 7, 2, 8};
    SSGISLayers.ClearRows(2, 3);
    Command2();
    CHECK(SSGISInfo.column == 6);
    CHECK(SSGISInfo.selected == Block{1, 6, 2, 6});
}

TEST_CASE("after Update Layers no step of the table can be taken back, also where its width already fits the list")
{
    StartWorkbench({"SM"});
    TypeCell(SSGISInfo, 1, 1, "B-1");
    TypeCell(SSGISInfo, 1, 1, "B-2");
    SSGISInfo.column = 6;
    mnuInsertColumn();
    TypeCell(SSGISInfo, 1, 6, "4");
    REQUIRE(UndoGrid(SSGISInfo));
    TypeCell(SSGISLayers, 2, 1, "CL");
    Command2();
    CHECK(SSGISInfo.columns == 7);
    CHECK_FALSE(UndoGrid(SSGISInfo));
    CHECK_FALSE(RedoGrid(SSGISInfo));
    CHECK(SSGISInfo.columns == 7);
    CHECK(SSGISInfo.headings[6] == "SM");
    CHECK(SSGISInfo.headings[7] == "CL");
    CHECK(UndoGrid(SSGISLayers)); // the list is the user's own
}

// ---- The list and the preview

TEST_CASE("the list holds the borings of the project folder by name, in any case of their ending")
{
    for (const char* name : {"b.bor", "A.BOR", "c.Bor", "d.CRO"})
        WriteScratch(name, "");
    RefreshFileList();
    CHECK(File1.names == std::vector<Text>{"A.BOR", "b.bor", "c.Bor"});
    CHECK(File1.selected == std::vector<bool>{false, false, false});
}

TEST_CASE("a list read anew keeps what is marked; Select All is let go when the selection changes")
{
    for (const char* name : {"A.BOR", "B.BOR"})
        WriteScratch(name, "");
    RefreshFileList();
    Option1();
    CHECK(File1.SelectAll);
    CHECK(File1.selected == std::vector<bool>{true, true});
    RefreshFileList();
    CHECK(File1.SelectAll);
    std::filesystem::remove(Scratch("A.BOR"));
    WriteScratch("C.BOR", "");
    RefreshFileList();
    CHECK(File1.selected == std::vector<bool>{true, false});
    CHECK_FALSE(File1.SelectAll);
    Option1();
    SelectFile(1, false);
    CHECK(File1.selected == std::vector<bool>{true, false});
    CHECK_FALSE(File1.SelectAll);
}

TEST_CASE("View Data shows depth and code of the first marked boring, and changes nothing")
{
    WriteContacts("A.BOR", {{"3", "SM"}});
    WriteContacts("B.BOR", {{"2", "CL"}, {"7", "GT"}});
    WriteContacts("C.BOR", {{"1", "PT"}});
    StartWorkbench({"SM"});
    SelectFile(0, false);
    SSBoringData.Cell(5, 1) = "old";
    Command3();
    CHECK(SSBoringData.Cell(1, 1) == "2");
    CHECK(SSBoringData.Cell(2, 2) == "GT");
    CHECK(SSBoringData.DataRowCount() == 2);
    CHECK(FileChanged == 0);
    CHECK(File1.selected == std::vector<bool>{false, true, true});
}

TEST_CASE("what was typed into the preview cannot be taken back once View Data has shown a boring")
{
    WriteContacts("A.BOR", {{"3", "SM"}});
    StartWorkbench({"SM"});
    for (const char* depth : {"1", "2"})
        TypeCell(SSBoringData, 1, 1, depth);
    REQUIRE(UndoGrid(SSBoringData));
    Command3();
    CHECK_FALSE(UndoGrid(SSBoringData));
    CHECK_FALSE(RedoGrid(SSBoringData));
    CHECK(SSBoringData.Cell(1, 1) == "3");
}

TEST_CASE("View Data with nothing marked does nothing; a boring that is refused blanks the preview")
{
    WriteScratch("A.BOR", "4.6\r\n");
    StartWorkbench({});
    SSBoringData.Cell(1, 1) = "old";
    SelectFile(0, false);
    Command3();
    CHECK(SSBoringData.Cell(1, 1) == "old");
    CHECK(Messages.empty());
    SelectFile(0, true);
    Command3();
    CHECK(SSBoringData.DataRowCount() == 0);
    CHECK(Messages.size() == 1);
}

// ---- Rows and columns

TEST_CASE("rows go in and out of the table at the current cell, up to 200")
{
    StartWorkbench({"SM"});
    SSGISInfo.Cell(1, 1) = "one";
    SSGISInfo.Cell(2, 1) = "two";
    SSGISInfo.row = 2;
    mnuInsertRow();
    CHECK(Row(2)[0] == "");
    CHECK(Row(3)[0] == "two");
    CHECK(FileChanged == 1);
    mnuDeleteRow();
    CHECK(Row(2)[0] == "two");
    SSGISInfo.Cell(200, 1) = "last";
    FileChanged = 0;
    mnuInsertRow();
    CHECK(Row(200)[0] == "last");
    CHECK(FileChanged == 0);
    CHECK(Notices.size() == 1);
}

TEST_CASE("columns go in and out with their headings, and the layer list stays")
{
    StartWorkbench({"SM", "CL"});
    SSGISInfo.Cell(1, 6) = "4";
    SSGISInfo.Cell(1, 7) = "9";
    SSGISInfo.column = 7;
    mnuInsertColumn();
    CHECK(FileChanged == 1);
    CHECK(Row(1) == std::vector<Text>{"", "", "", "", "", "4", "", "9"});
    CHECK(SSGISInfo.headings[6] == "SM");
    CHECK(SSGISInfo.headings[7] == "");
    CHECK(SSGISInfo.headings[8] == "CL");
    CHECK(SSGISLayers.Cell(2, 1) == "CL");
    CHECK(GisData.layerCount == 2);
    SSGISInfo.column = 6;
    mnuDeleteColumn();
    CHECK(Row(1) == std::vector<Text>{"", "", "", "", "", "", "9"});
    CHECK(SSGISInfo.headings[7] == "CL");
    Command2();
    CHECK(SSGISInfo.headings[6] == "SM");
}

TEST_CASE("in the first five columns the column commands do nothing")
{
    StartWorkbench({"SM"});
    SSGISInfo.Cell(1, 5) = "A.BOR";
    SSGISInfo.column = 5;
    mnuInsertColumn();
    mnuDeleteColumn();
    CHECK(SSGISInfo.columns == 6);
    CHECK(Row(1)[4] == "A.BOR");
    CHECK(FileChanged == 0);
}

TEST_CASE("no more than 100 layer columns go in")
{
    StartWorkbench({});
    SSGISLayers.Cell(100, 1) = "last";
    Command2();
    CHECK(SSGISInfo.columns == 105);
    SSGISInfo.column = 6;
    FileChanged = 0;
    mnuInsertColumn();
    CHECK(SSGISInfo.columns == 105);
    CHECK(SSGISInfo.headings[105] == "last");
    CHECK(FileChanged == 0);
    CHECK(Notices.size() == 1);
}

TEST_CASE("a layer whose column was deleted is saved empty, and has a column again for the next boring")
{
    WriteContacts("A.BOR", {{"3", "SM"}, {"8", "CL"}});
    StartWorkbench({"SM", "CL"});
    SSGISInfo.Cell(1, 1) = "old";
    SSGISInfo.column = 7;
    mnuDeleteColumn();
    CHECK(LayerCell(1, 2) == "");
    REQUIRE(SaveGISFile(Scratch("OUT.GIS")));
    CHECK(ReadScratch("OUT.GIS") == Lines({" 2 ", "SM", "", "CL", "", " 1 ", "old", "", "", "", "", "", "", ""}));
    Command1();
    CHECK(Row(2) == std::vector<Text>{"A", "100", "200", "12.5", "A.BOR", "3", "8"});
    CHECK(SSGISInfo.headings[7] == "CL");
}

TEST_CASE("a column inserted in the workbench can be taken back")
{
    StartWorkbench({"SM"});
    SSGISInfo.Cell(1, 6) = "4";
    SSGISInfo.column = 6;
    mnuInsertColumn();
    REQUIRE(UndoGrid(SSGISInfo));
    CHECK(Row(1) == std::vector<Text>{"", "", "", "", "", "4"});
    CHECK(SSGISInfo.headings[6] == "SM");
}
