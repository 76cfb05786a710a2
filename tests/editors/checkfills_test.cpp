// checkfills_test.cpp -- codes that draw blank and colours that draw white.
#include "checkedboring.h"

#include <filesystem>

using namespace frmBorinput;

TEST_CASE("soil codes that draw blank are flagged, those that are blank on purpose are not")
{
    GoodBoring();
    Type("@1\r\n@2\r\n@3");
    for (const char* code : {"CK", "F99", "F2001", "FL", "SM/XX", "XX-CL", "CL,FAT-CLAY", "SP-SM/GP", "F", "12A3X/Q"}) {
        SSLith.Cell(2, 2) = code;
        CHECK_MESSAGE(Only().starts_with("fill: Contact 2: \"" + Text(code) + "\" draws blank, since "), code);
        CHECK(Cell() == "8 2,2");
    }
    for (const char* code :
         {"CL", "cl", "F0", "FB", "0", "", "F12", "12", "F12,TS", "SM-ML", "SP/GP", "GW-GM,both", "F6/CL,layers"}) {
        SSLith.Cell(2, 2) = code;
        CHECK_MESSAGE(Clean(), code);
    }
    SSLith.Cell(2, 2) = "CK";
    CHECK(Only() == "fill: Contact 2: \"CK\" draws blank, since \"CK\" is no code.");
    SSLith.Cell(2, 2) = "F2001";
    CHECK(Only() == "fill: Contact 2: \"F2001\" draws blank, since \"F2001\" is out of range.");
    SSLith.Cell(2, 2) = "F99";
    CHECK(Only() == "fill: Contact 2: \"F99\" draws blank, since \"F99\" has no pattern.");
}

TEST_CASE("a pattern that is put into its folder is there for the list")
{
    GoodBoring();
    SSLith.Cell(2, 2) = "F99";
    CHECK(Only().ends_with("has no pattern."));
    WritePicture("fills/F119.BMP");
    CHECK(Clean());
}

TEST_CASE("a code without a pattern is a remark where its letters are printed, and nothing where it is not drawn")
{
    GoodBoring();
    SSLith.Cell(1, 2) = "TS";
    SSRepParts.Cell(3, 1) = "USCS";
    CHECK(Only() ==
          "fill-letters: Contact 1: \"TS\" is printed here, but draws blank in sections, since \"TS\" is no code.");
    SSRepParts.Cell(3, 1) = "";
    CHECK(Clean());
}

TEST_CASE("colours that are drawn white are flagged, a number of lines before the comma is no colour")
{
    GoodBoring();
    for (const char* color : {"PINK", "1", "10 20", "10 20 300", "2,PINK"}) {
        SSLith.Cell(1, 4) = color;
        CHECK_MESSAGE(Only().starts_with("color: Contact 1: "), color);
        CHECK(Cell() == "8 1,4");
    }
    for (const char* color : {"", "grey", "TAN3", "10 20 30", "2,", "2,fuschia", "WHITE", " 255 255 255 "}) {
        SSLith.Cell(1, 4) = color;
        CHECK_MESSAGE(Clean(), color);
    }
    SSLith.Cell(1, 4) = "PINK";
    SSLith.Cell(1, 2) = ""; // nothing is drawn
    CHECK(Clean());
}

TEST_CASE("conditions of samples are told where their boxes show them, and are none of 0 to 4")
{
    GoodBoring();
    SSSamp.Cell(2, 3) = "7";
    CHECK(Clean());
    SSRepParts.Cell(4, 1) = "sample box-graphic";
    CHECK(Only() == "fill: Sample row 2: condition \"7\" is none of 0 to 4, and its box is drawn as 0.");
    CHECK(Cell() == "7 2,3");
    SSSamp.Cell(2, 3) = "SS";
    CHECK(Only().starts_with("fill: "));
    for (const char* condition : {"", "0", "1", "2", "3", "4"}) {
        SSSamp.Cell(2, 3) = condition;
        CHECK_MESSAGE(Clean(), condition);
    }
    std::filesystem::remove(Scratch("fills/F20.BMP"));
    std::filesystem::remove(Scratch("fills/F09.BMP")); // of condition 4
    CHECK(Only() == "fill: Sample row 2: condition \"4\" has no pattern, and its box is drawn blank.");
}

TEST_CASE("layers of the well that draw blank are flagged where the well is drawn")
{
    GoodBoring();
    Fill(SSOuterLay, {{"0", "2", "Concrete", "", "XX"}, {"2", "5", "Bentonite", "", ""}});
    SSOuterLay.title = "Outer Layers";
    CHECK(Clean());
    SSRepParts.Cell(4, 1) = "well diagram-small";
    CHECK(Has("Outer Layers, row 1: \"XX\" is no code, and draws blank.", 11, 1, 5));
    CHECK(Has("Outer Layers, row 2: no fill is given, and \"Bentonite\" holds no word of the heading file that has "
              "one, so it draws blank.",
              11, 2, 5));
    Fill(SSOuterLay, {{"0", "2", "Concrete", "", "F21"},
                      {"2", "5", "Bentonite seal", "", ""},
                      {"5", "9", "Void", "", "F0"},
                      {"9", "10", "", "", ""}});
    CHECK(Clean());
    SSOuterLay.Cell(1, 5) = "F21,PINK";
    CHECK(Only() == "color: Outer Layers, row 1: \"PINK\" is no color, and is drawn white.");
}

TEST_CASE("fills of pipes and casings that draw blank are flagged, an empty pipe is not")
{
    GoodBoring();
    SSRepParts.Cell(4, 1) = "well diagram";
    SSInnerLay.title = "Inner Layers";
    for (const char* cell : {"", "M", "M,", "S,F12", "L,F0", "M,GW,RED"}) {
        Fill(SSInnerLay, {{"0", "5", "pipe", "", cell}});
        CHECK_MESSAGE(Clean(), cell);
    }
    SSInnerLay.Cell(1, 5) = "M,XX";
    CHECK(Only() == "well-fill: Inner Layers, row 1: \"XX\" is no code, and draws blank.");
    CHECK(Cell() == "12 1,5");
    SSInnerLay.Cell(1, 3) = "slotted screen"; // drawn as one, whatever its fill
    CHECK(Clean());
    SSInnerLay.Cell(1, 3) = "";
    SSInnerLay.Cell(1, 5) = "M,F12";
    CHECK(Only() == "well-fill: Inner Layers, row 1: \"F12\" needs a text beside it, and draws blank.");
    SSInnerLay.Clear();
    SSGenWellInfo.Cell(10, 1) = "XX,2";
    CHECK(Clean());
    SSGenWellInfo.Cell(7, 1) = "4";
    CHECK(Only().starts_with("well-fill: "));
    CHECK(Cell() == "10 10,1");
    SSGenWellInfo.Cell(10, 1) = ",2";
    CHECK(Clean());
}

TEST_CASE("codes of the intro page's legend that draw blank are flagged by its own reading")
{
    GoodBoring();
    SSLegend.title = "Intro Page Legend";
    for (const char* code : {"XX", "12", "F300", "F99", "GW/GM"}) {
        SSLegend.Cell(1, 1) = code;
        CHECK_MESSAGE(Only().starts_with("legend-fill: Intro Page Legend, row 1: \"" + Text(code) + "\" "), code);
        CHECK(Cell() == "16 1,1");
    }
    for (const char* code : {"", "F0", "FB", "gw", "F12", "F12,TS"}) {
        SSLegend.Cell(1, 1) = code;
        CHECK_MESSAGE(Clean(), code);
    }
}
