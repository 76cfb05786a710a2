// checkgraphs_test.cpp -- axes that cannot be drawn, values beyond their ends, data files.
#include "checkedboring.h"

#include "session/session.h"

#include <filesystem>

using namespace frmBorinput;

// The boring with a column of a graph, and its axis.
static void Graph(const char* part, Grid& setup, int n, const char* axis)
{
    GoodBoring();
    SSRepParts.Cell(4, 1) = part;
    SSRepParts.Cell(4, 2) = "0.8";
    setup.Cell(n, 1) = "Moisture";
    setup.Cell(n, 3) = axis;
}

TEST_CASE("a value beyond the axis of its graph is flagged, one at its end is not")
{
    Graph("P1G", SSP1Setup, 1, "0,80,20");
    SSSamp.Cell(1, 6) = "0";
    SSSamp.Cell(2, 6) = "80";
    SSSamp.Cell(3, 6) = "";
    CHECK(Clean());
    SSSamp.Cell(3, 6) = "81";
    CHECK(Only() == "axis: Parameter 1 (Moisture): 81 lies beyond the axis of P1G, which goes from 0 to 80.");
    CHECK(Cell() == "7 3,6");
    SSSamp.Cell(1, 6) = "-1";
    CHECK(Only() == "axis: Parameter 1 (Moisture): -1 and 1 more lie beyond the axis of P1G, which goes from 0 to 80.");
    SSRepParts.Cell(4, 1) = "P1"; // numbers have no axis
    CHECK(Clean());
}

TEST_CASE("the ends of an error bar count, and an axis may fall to the right")
{
    Graph("P2G", SSP1Setup, 2, "0,80,20");
    SSSamp.Cell(1, 7) = "40,20,90";
    CHECK(Only().starts_with("axis: Parameter 2 (Moisture): 40,20,90 lies"));
    SSSamp.Cell(1, 7) = "40,20,80";
    CHECK(Clean());
    SSP1Setup.Cell(2, 3) = "80,0,-20";
    CHECK(Clean());
    SSSamp.Cell(1, 7) = "81";
    CHECK(Only().starts_with("axis: "));
}

TEST_CASE("a logarithmic axis holds the powers of ten that it is set up for")
{
    Graph("P3G", SSP1Setup, 3, "-999,-1,3");
    SSSamp.Cell(1, 8) = "0.1";
    SSSamp.Cell(2, 8) = "1000";
    CHECK(Clean());
    SSSamp.Cell(2, 8) = "1001";
    CHECK(Only() == "axis: Parameter 3 (Moisture): 1001 lies beyond the axis of P3G, which goes from .1 to 1000.");
    SSSamp.Cell(2, 8) = "0"; // no power of ten
    CHECK(Only().starts_with("axis: "));
}

TEST_CASE("curves on one axis are held against the axis that is drawn")
{
    Graph("P12G", SSP1Setup, 1, "0,50,10");
    SSP1Setup.Cell(2, 3) = "0,100,20";
    SSSamp.Cell(1, 6) = "90"; // the second parameter's axis serves both
    CHECK(Clean());
    SSSamp.Cell(1, 6) = "101";
    CHECK(Only().starts_with("axis: Parameter 1 (Moisture): 101 lies beyond the axis of P12G"));
    Graph("P1-4G", SSP1Setup, 4, "0,200,50");
    SSSamp.Cell(1, 6) = "150,140,900"; // four curves take the number in front alone
    CHECK(Clean());
    SSSamp.Cell(1, 6) = "201";
    CHECK(Only().starts_with("axis: Parameter 1"));
}

TEST_CASE("an axis that was never set up goes from 0 to 1")
{
    Graph("P1G", SSP1Setup, 1, "");
    CHECK(Clean());
    SSSamp.Cell(1, 6) = "12";
    CHECK(Only().ends_with("12 lies beyond the axis of P1G, which goes from 0 to 1."));
}

TEST_CASE("an axis that ends where it begins, or has too many ticks, is told as one that cannot be drawn")
{
    Graph("P1G", SSP1Setup, 1, "5,5,1");
    CHECK(Only() ==
          "axis-fails: Parameter 1 (Moisture): the axis \"5,5,1\" cannot be drawn, and P1G ends in an error.");
    CHECK(Cell() == "4 1,3");
    SSP1Setup.Cell(1, 3) = "0,1000,.001";
    CHECK(Only().starts_with("axis-fails: "));
    SSP1Setup.Cell(1, 3) = "0,1000,0"; // an increment of 0 resets it
    CHECK(Clean());
}

TEST_CASE("values of general parameters are held against their axis, in one graph or in several")
{
    Graph("GPG2", SSP2Setup, 2, "0,10,5");
    SSPar.Cell(1, 1) = "3";
    SSPar.Cell(1, 3) = "10";
    CHECK(Clean());
    SSPar.Cell(2, 1) = "4";
    SSPar.Cell(2, 3) = "11";
    CHECK(Only() == "axis: Parameter 2 (Moisture): 11 lies beyond the axis of GPG2, which goes from 0 to 10.");
    CHECK(Cell() == "6 2,3");
    SSRepParts.Cell(4, 1) = "MPG1-2";
    CHECK(Only().ends_with("beyond the axis of MPG1-2, which goes from 0 to 10."));
    SSRepParts.Cell(4, 1) = "MPG1--3";
    CHECK(Clean());
    SSRepParts.Cell(4, 1) = "GP2";
    CHECK(Clean());
}

TEST_CASE("the values of a data file are held against the axis, down to the end of the log")
{
    Graph("GPG1", SSP2Setup, 1, "0,10,5");
    SSP2Setup.Cell(1, 7) = "probe.txt";
    SSP2Setup.Cell(1, 8) = "1,1";
    WriteScratch("probe.txt", Lines({"depth value", "1 10", "2 ", "3 4", "30 99"}));
    CHECK(Clean());
    WriteScratch("probe.txt", Lines({"depth value", "1 10", "2 12.5", "3 4", "30 99"}));
    CHECK(Only() == "axis: Parameter 1 (Moisture): 12.5 lies beyond the axis of GPG1, which goes from 0 to 10.");
    CHECK(Cell() == "5 1,3");
    SSScale.Cell(1, 1) = "40";
    CHECK(Only().find("12.5 and 1 more lie") != Text::npos);
    SSP2Setup.Cell(1, 3) = "0,100,50";
    CHECK(Clean());
}

TEST_CASE("a data file that is not found, or is shorter than its header, is flagged for every column that draws it")
{
    for (const char* part : {"GPG1", "GP1", "MPG1"}) {
        Graph(part, SSP2Setup, 1, "0,10,5");
        Fill(SSP2Setup, {{"Moisture", "", "0,10,5", "", "", "", "lost.txt", ""}});
        CHECK(Only() == "file: Parameter 1 (Moisture): the data file is not found: " + Scratch("lost.txt"));
        CHECK(Cell() == "5 1,7");
        WriteScratch("lost.txt", "1 2\r\n");
        CHECK(Clean());
        SSP2Setup.Cell(1, 8) = "1,5";
        CHECK(Only() ==
              "file: Parameter 1 (Moisture): the data file is shorter than its header: " + Scratch("lost.txt"));
        std::filesystem::remove(Scratch("lost.txt"));
    }
    SSRepParts.Cell(4, 1) = "GP2";
    CHECK(Clean());
}
