// gisfile_test.cpp -- the .GIS file, and from it into the workbench and back.
#include "gis/gisfile.h"

#include "testing.h"

#include "session/files.h"
#include "session/session.h"

using namespace frmGIS;

// Two layers and two borings.
static const std::string table =
    Lines({" 2 ", "SM",    "TAN1", "CL",  "", " 2 ", "B-1", "100.5", "200",  "12.3",   "B-1.BOR",
           "4",   "4-9.5", "B-2",  "110", "", "11",  "b-2", "X",     "X-25", "the end"});

static void Open(const std::string& bytes)
{
    WriteScratch("SITE.GIS", bytes);
    OpenGISFile(Scratch("SITE.GIS"));
}

// What a save writes of the workbench as it stands.
static std::string Saved()
{
    REQUIRE(SaveGISFile(Scratch("OUT.GIS")));
    return ReadScratch("OUT.GIS");
}

static void OpenInForm(const std::string& bytes)
{
    Open(bytes);
    FillGISForm();
}

TEST_CASE("each line of a GIS file has its cell")
{
    Open(table);
    CHECK(Messages.empty());
    CHECK(GisData.layerCount == 2);
    CHECK(GisData.layerName[2] == "CL");
    CHECK(GisData.layerColor[1] == "TAN1");
    CHECK(GisData.boringCount == 2);
    CHECK(GisData.boringCells[1][GisX] == "100.5");
    CHECK(GisData.boringCells[2][GisFileName] == "b-2");
    CHECK(GisData.layerCells[1][2] == "4-9.5");
    CHECK(GisData.layerCells[2][1] == "X");
    CHECK(GisData.trailerLine == "the end");
}

TEST_CASE("a GIS file opened in the workbench and saved is the same, byte by byte")
{
    for (const std::string& bytes :
         {table, Lines({" 0 ", " 0 ", ""}), Lines({" 1 ", " odd name ", "  ", " 0 ", ""}),
          Lines({" 0 ", " 1 ", "B-1", "", "", "", "B-1.BOR", "trailer"}),
          Lines({" 2 ", "", "RED", "CL", "", " 2 ", "", "", "", "", "", "", "", "B-2", "", "", "", "", "", "", ""})}) {
        CAPTURE(bytes);
        OpenInForm(bytes);
        CHECK(Messages.empty());
        CHECK(Saved() == bytes);
    }
}

TEST_CASE("a file without a trailer line gets an empty one, and not that of the file before")
{
    OpenInForm(table);
    OpenInForm(Lines({" 1 ", "SM", "", " 0 "}));
    CHECK(GisData.trailerLine == "");
    CHECK(Saved() == Lines({" 1 ", "SM", "", " 0 ", ""}));
}

TEST_CASE("\".gis\" is put behind a name with no point in its last part")
{
    std::filesystem::create_directory(Scratch("site.2"));
    WriteScratch("site.2/WELLS.GIS", table);
    OpenGISFile(Scratch("site.2/WELLS"));
    CHECK(Messages.empty());
    CHECK(GisData.boringCount == 2);
}

TEST_CASE("a GIS file that is not there is told with its ending, and leaves no rows and layers")
{
    Open(table);
    OpenGISFile(Scratch("NONE"));
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "GIS File Not Found: " + Scratch("NONE") + ".gis");
    CHECK(Messages[0].icon == Exclamation);
    CHECK(GisData.layerCount == 0);
    CHECK(GisData.boringCount == 0);
    CHECK(GisData.layerName[1] == "");
    CHECK(GisData.boringCells[1][1] == "");
    CHECK(GisData.trailerLine == "");
}

TEST_CASE("counts without their blanks, of no number and below 0 are read too")
{
    Open(Lines({"1", "SM", "", "-3", "rest"}));
    CHECK(GisData.layerCount == 1);
    CHECK(GisData.boringCount == 0);
    CHECK(GisData.trailerLine == "rest");
    Open(Lines({"none", "", "rest"}));
    CHECK(GisData.layerCount == 0);
    CHECK(GisData.trailerLine == "rest");
    CHECK(Messages.empty());
}

TEST_CASE("layer 101 and row 201 of a GIS file are error 9, and what was read stays")
{
    std::string layers = " 101 \r\n";
    for (int k = 1; k <= 101; ++k)
        layers += "L" + std::to_string(k) + "\r\nRED\r\n";
    Open(layers + " 0 \r\n");
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 9 in OpenGISFile.  Please contact Norvane");
    CHECK(GisData.layerCount == 100);
    CHECK(GisData.layerName[100] == "L100");
    CHECK(GisData.boringCount == 0);

    std::string rows = " 1 \r\nSM\r\n\r\n 201 \r\n";
    for (int row = 1; row <= 201; ++row)
        rows += "B-" + std::to_string(row) + "\r\n\r\n\r\n\r\n\r\n7\r\n";
    Open(rows);
    REQUIRE(Messages.size() == 2);
    CHECK(Messages[1].words == "Error 9 in OpenGISFile.  Please contact Norvane");
    CHECK(GisData.boringCount == 200);
    CHECK(GisData.boringCells[200][GisBoringName] == "B-200");
    CHECK(GisData.layerCells[200][1] == "7");
}

TEST_CASE("a GIS file that ends early is error 62; rows and cells that are not there are empty")
{
    Open(table);
    Open(Lines({" 1 ", "SM", "", " 3 ", "B-7", "1", "2"}));
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 62 in OpenGISFile.  Please contact Norvane");
    CHECK(GisData.boringCells[1][GisBoringName] == "B-7");
    CHECK(GisData.boringCells[1][GisY] == "2");
    CHECK(GisData.boringCells[1][GisFileName] == "");
    CHECK(GisData.boringCells[2][GisBoringName] == "");
    CHECK(GisData.layerCells[2][1] == "");
    CHECK(GisData.boringCells[0][GisBoringName] == "");
}

TEST_CASE("the workbench shows a column for each layer, headed with its name")
{
    LabelBoxes();
    FileName = "/p/SITE.GIS";
    OpenInForm(table);
    CHECK(frmGIS::Title == "VeskGIS - /p/SITE.GIS");
    CHECK(SSGISLayers.Cell(2, 1) == "CL");
    CHECK(SSGISLayers.Cell(1, 2) == "TAN1");
    CHECK(SSGISInfo.columns == 7);
    CHECK(SSGISInfo.headings ==
          std::vector<Text>{"", "Boring", "X Coord.", "Y Coord.", "Surf. Elev.", "Filename", "SM", "CL"});
    CHECK(SSGISInfo.Cell(2, 5) == "b-2");
    CHECK(SSGISInfo.Cell(2, 7) == "X-25");
    CHECK(SSGISInfo.DataRowCount() == 2);
    CHECK(SSGISInfo.rows == 200);
}

TEST_CASE("filling the workbench leaves the changed flag, and nothing of the file before")
{
    OpenInForm(table);
    OpenInForm(Lines({" 1 ", "GT", "", " 1 ", "B-9", "", "", "", "", "3", ""}));
    CHECK(FileChanged == 0);
    CHECK(SSGISLayers.DataRowCount() == 1);
    CHECK(SSGISInfo.DataRowCount() == 1);
    CHECK(SSGISInfo.columns == 6);
    CHECK(SSGISInfo.headings[6] == "GT");
}

TEST_CASE("the labels are those by design")
{
    LabelBoxes();
    CHECK(SSGISLayers.title == "Layer List");
    CHECK(SSGISLayers.headings == std::vector<Text>{"", "Layer", "Color"});
    CHECK(SSBoringData.title == "Boring Data");
    CHECK(SSBoringData.headings == std::vector<Text>{"", "Depth", "USCS"});
    CHECK(SSGISInfo.title == "GIS Information");
}

TEST_CASE("an empty table is saved as two counts of 0 and the trailer line")
{
    OpenInForm(table);
    ClearGISForm();
    CHECK(Saved() == Lines({" 0 ", " 0 ", ""}));
}

TEST_CASE("a new table has no name, no rows, no layers and no trailer, and is not changed")
{
    FileName = "/p/SITE.GIS";
    OpenInForm(table);
    SSBoringData.Cell(1, 1) = "4";
    FileChanged = 1;
    ClearGISForm();
    CHECK(frmGIS::Title == "VeskGIS");
    CHECK(FileName == "");
    CHECK(FileChanged == 0);
    CHECK(SSGISLayers.DataRowCount() == 0);
    CHECK(SSGISInfo.DataRowCount() == 0);
    CHECK(SSGISInfo.columns == 5);
    CHECK(SSBoringData.DataRowCount() == 0);
    CHECK(GisData.layerCount == 0);
    CHECK(GisData.trailerLine == "");
}

TEST_CASE("a save takes the rows up to the last one with a character, empty ones between and blanks too")
{
    OpenInForm(Lines({" 0 ", " 0 ", ""}));
    SSGISLayers.Cell(2, 1) = " ";
    SSGISInfo.Cell(1, 1) = "B-1";
    SSGISInfo.Cell(3, 4) = " ";
    CHECK(Saved() == Lines({" 2 ", "", "", " ", "", " 3 ", "B-1", "", "", "",  "", "", "", "",
                            "",    "", "", "",  "", "",    "",    "", "", " ", "", "", "", ""}));
}

TEST_CASE("a save takes a list that has grown, and the cells of columns beyond the layers are not saved")
{
    OpenInForm(table);
    SSGISLayers.Cell(3, 1) = "GT"; // it has no column yet
    CHECK(
        Saved().starts_with(" 3 \r\nSM\r\nTAN1\r\nCL\r\n\r\nGT\r\n\r\n 2 \r\nB-1\r\n100.5\r\n200\r\n12.3\r\nB-1.BOR\r\n"
                            "4\r\n4-9.5\r\n\r\nB-2\r\n"));
    SSGISLayers.ClearRows(2, 3);
    CHECK(Saved() == Lines({" 1 ", "SM", "TAN1", " 2 ", "B-1", "100.5", "200", "12.3", "B-1.BOR", "4", "B-2", "110", "",
                            "11", "b-2", "X", "the end"}));
}

TEST_CASE("a GIS file that cannot be written is told, and the answer is no")
{
    CHECK_FALSE(SaveGISFile(Scratch("nowhere/OUT.GIS")));
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 76 in SaveGISFile.  Please contact Norvane");
}

TEST_CASE("a save takes every cell of the list and of the table as typed, the first and the last of each row")
{
    OpenInForm(table);
    for (int k = 1; k <= 2; ++k)
        for (int column = 1; column <= 2; ++column)
            SSGISLayers.Cell(k, column) = "l" + std::to_string(k) + std::to_string(column);
    for (int row = 1; row <= 2; ++row)
        for (int column = 1; column <= 7; ++column)
            SSGISInfo.Cell(row, column) = "c" + std::to_string(row) + std::to_string(column);
    CHECK(Saved() == Lines({" 2 ", "l11", "l12", "l21", "l22", " 2 ", "c11", "c12", "c13", "c14",    "c15",
                            "c16", "c17", "c21", "c22", "c23", "c24", "c25", "c26", "c27", "the end"}));
}
