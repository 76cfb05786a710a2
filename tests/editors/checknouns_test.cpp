// checknouns_test.cpp -- a code that contradicts the main soil of its layer's text.
#include "checkedboring.h"

using namespace frmBorinput;

// What the list says of a layer of that code and text.
static Text Says(const Text& code, const Text& text)
{
    GoodBoring();
    SSLith.Cell(1, 2) = code;
    Type("@1\r\n" + text + "\r\n@2\r\n@3");
    return Only();
}

static bool Fits(const Text& code, const Text& text)
{
    return Says(code, text) == "0 entries";
}

TEST_CASE("a code that says another soil than the first noun of the text is flagged at its marker")
{
    CHECK(Says("SP", "Lean CLAY, brown, stiff") ==
          "marker-code: The text of contact 1 tells of clay, and its code is SP.");
    CHECK(Cell() == "MemoDes at 0");
    CHECK(Says("CL", "Poorly graded SAND, fine, brown").starts_with("marker-code: "));
    CHECK(Says("CL", "PEAT, fibrous, black").starts_with("marker-code: "));
    CHECK(Says("PT", "Grey SILT").starts_with("marker-code: "));
    CHECK(Says("GW-GM", "Fat CLAY").starts_with("marker-code: "));
    CHECK(Says("GR", "Sandy GRAVEL, dense").starts_with("marker-code: ")); // granitics
    CHECK(Says("F6,SAND", "Silty CLAY").starts_with("marker-code: "));
    CHECK(Says("GP", "Stiff gravelly CLAY. Gravel is fine to coarse of sandstone.").starts_with("marker-code: "));
    CHECK(Says("SM", "Lean CLAY with sand (CL), soft").starts_with("marker-code: "));
}

TEST_CASE("a code that the text leaves room for is not flagged")
{
    CHECK(Fits("CL", "Lean CLAY"));
    CHECK(Fits("ML", "Clayey SILT"));
    CHECK(Fits("CL", "Clayey SILT"));
    CHECK(Fits("SC", "Very sandy CLAY")); // by its sieve curve
    CHECK(Fits("SM/ML", "Sandy SILT"));
    CHECK(Fits("SP/GP", "SAND and GRAVEL"));
    CHECK(Fits("GP", "SAND and GRAVEL"));
    CHECK(Fits("CH/MH", "Soft organic CLAY/SILT"));
    CHECK(Fits("PT", "Organic CLAY with roots"));
    CHECK(Fits("SP", "Interbedded CLAY and SAND"));
    CHECK(Fits("SP", "CLAY with layers of sand"));
    CHECK(Fits("SM", "Silty SAND (SM), gray. A lens of CLAY at 3 feet."));
    CHECK(Fits("SM", "Silty sand, well graded GRAVEL (GW) below"));
    CHECK(Fits("", "Lean CLAY"));
    CHECK(Fits("F0", "Lean CLAY"));
}

TEST_CASE("made ground, till, topsoil and rock may be made of anything")
{
    CHECK(Fits("AR", "MADE GROUND: sandy GRAVEL with brick"));
    CHECK(Fits("GT", "Stiff sandy CLAY [Glacial Till]"));
    CHECK(Fits("F44,TS", "TOPSOIL: clayey SAND"));
    CHECK(Fits("MS", "Stiff CLAY, a residual soil of mudstone"));
    CHECK(Fits("GR", "Silty SAND, decomposed granite"));
    CHECK(Fits("CL", "SHALE, weathered, soft"));
}

TEST_CASE("text without capitals counts where its first clause ends in its only soil")
{
    CHECK(Says("SP", "Brown silty clay, soft").starts_with("marker-code: "));
    CHECK(Says("SP", "Clay").starts_with("marker-code: "));
    CHECK(Fits("SP", "Brown, fine, with clay"));
    CHECK(Fits("SP", "With clay"));
    CHECK(Fits("SP", "Sand seams in clay"));
    CHECK(Fits("GW", "No recovery. Possibly clay."));
}

TEST_CASE("text with dot commands and text placed by hand belong to their layers too")
{
    GoodBoring();
    Type(".L=0\r\nLean CLAY\r\n.L=5\r\nFat CLAY\r\n"); // from 5 on SM
    CHECK(Only() == "marker-code: The text of contact 2 tells of clay, and its code is SM.");
    CHECK(Cell() == "MemoDes at 15");
    Type(".L=0\r\nLean CLAY\r\n.L=4\r\nFat CLAY\r\n"); // at no contact
    CHECK(Clean());
    Type("MANUAL\r\n@1\r\nLean CLAY\r\n@2\r\nFat CLAY\r\n@3");
    CHECK(Only().starts_with("marker-code: The text of contact 2"));
    Type("@1\r\nLean CLAY\r\n-3\r\nSAND\r\n@2\r\nSilty\r\n<<SAND>>\r\n@3"); // a bed at a depth
    CHECK(Clean());
}
