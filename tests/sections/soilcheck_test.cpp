// soilcheck_test.cpp -- what a reviewer of a soil analysis table would flag, and that nothing else is.
#include "sections/soilcheck.h"

#include "checked.h"
#include "logrender/boringtext.h"
#include "sections/soilfile.h"
#include "session/session.h"
#include "testing.h"

using Words = std::vector<Text>;
using frmSoil::SS1;

static BoringText GoodBoring()
{
    BoringText boring;
    boring.Samples = {{"1", "2", "", "", "L1", "7", "", "3"}, {"5", "6", "", "", "L2", "9"}};
    boring.SampleSetup = {
        {"Lead", "", "0,100,10", "100", "Lead", ""}, {"Zinc", "", "", "Zinc"}, {"Iron", "", "", "10"}};
    boring.Lith = {{"4", "SM"}, {"40", "CL"}};
    return boring;
}

// A table with nothing to flag.
static void GoodTable()
{
    WriteHeadings();
    ProjectPath = ScratchFolder();
    WriteBoring("B-1.BOR", GoodBoring());
    frmSoil::LabelBoxes();
    SS1.Clear();
    SS1.Cell(SoilBoringFile, 1) = "B-1";
    SS1.Cell(SoilParameters, 1) = "1,3";
    frmSoil::MemoSoil.text = "";
}

static Words Kind(const char* kind)
{
    return WordsOf(CheckSoilTable(), kind);
}

TEST_CASE("a soil table with nothing to flag, and one with nothing in it, have an empty list")
{
    GoodTable();
    CHECK(AllWords(CheckSoilTable()) == "");
    SS1.Cell(SoilGraph, 1) = " y";
    CHECK(AllWords(CheckSoilTable()) == "");
    SS1.Clear();
    CHECK(CheckSoilTable().empty());
    CHECK(Messages.empty());
}

TEST_CASE("a soil table's boring that is not found or not named is an error")
{
    GoodTable();
    SS1.Cell(SoilBoringFile, 1) = "NONE";
    const std::vector<CheckEntry> found = CheckSoilTable();
    CHECK(AllWords(found) == "named-boring: The boring file NONE.bor is not found: the table is empty.\n");
    CHECK(found[0].InGrid == &SS1);
    CHECK(found[0].Row == SoilBoringFile);
    SS1.Cell(SoilBoringFile, 1) = "";
    CHECK(Kind("named-boring") == Words{"No boring is named, so the table is empty."});
}

TEST_CASE("numbers that are no parameter, and more columns than the page has room for, are errors")
{
    GoodTable();
    SS1.Cell(SoilParameters, 1) = "1, 17,x,0,,3";
    CHECK(AllWords(CheckSoilTable()) == "soil-parameter: \"17\" is no parameter: there are 1 to 16.\n"
                                        "soil-parameter: \"x\" is no parameter: there are 1 to 16.\n"
                                        "soil-parameter: \"0\" is no parameter: there are 1 to 16.\n");
    SS1.Cell(SoilParameters, 1) = "1,3,1,3,1,3,1,3,1,3,1,3,1,3,1,3";
    CHECK(Kind("soil-columns").empty());
    SS1.Cell(SoilParameters, 1) += ",1";
    CHECK(Kind("soil-columns") == Words{"17 columns are beyond the border of the page, which has room for 16."});
}

TEST_CASE("columns without values, without captions, twice or none at all are flagged")
{
    GoodTable();
    SS1.Cell(SoilParameters, 1) = "1,2,1,5";
    CHECK(Kind("soil-values") ==
          Words{"Parameter 1 has more than one column.", "Parameter 2 has no value in any sample.",
                "Parameter 5 has no value in any sample.", "Parameter 5 has no caption in the set-up of the boring."});
    SS1.Cell(SoilParameters, 1) = "";
    CHECK(Kind("soil-values") == Words{"No parameter is named, so the table has no column."});
}

TEST_CASE("a bar without a full scale is an error, where bars are drawn and there is a value")
{
    GoodTable();
    BoringText boring = GoodBoring();
    boring.SampleSetup[0][3] = "Lead";
    WriteBoring("B-1.BOR", boring);
    SS1.Cell(SoilParameters, 1) = "1,2";
    CHECK(Kind("soil-scale").empty());
    SS1.Cell(SoilGraph, 1) = "Y";
    CHECK(Kind("soil-scale") ==
          Words{"Parameter 1: a bar is a part of its \"Split 1\", which is \"Lead\" and no number "
                "above 0: the drawing stops."});
    SS1.Cell(SoilGraph, 1) = "J";
    CHECK(Kind("sheet-choice") == Words{"\"J\" is none of the letters told, and is taken as N."});
}

TEST_CASE("samples and layers below the depth scale, and rows on one another, are flagged")
{
    GoodTable();
    BoringText boring = GoodBoring();
    boring.Samples.push_back({"40", "41"}); // within the rim
    CHECK(AllWords(CheckSoilTable()) == "");
    boring.Samples.push_back({"41", "42", "", "", "", "1"});
    boring.Samples.push_back({"41", "42.4"});
    boring.Lith.push_back({"42", "GW"});
    WriteBoring("B-1.BOR", boring);
    CHECK(AllWords(CheckSoilTable()) ==
          "soil-depth: 2 samples lie below the depth scale, which ends at 40.\n"
          "soil-depth: The layers go down to 42, below the depth scale, which ends at 40.\n"
          "soil-rows: 1 of 5 samples stand so close below another that their rows are printed on one another.\n");
    boring = GoodBoring();
    boring.EndDepth = ""; // the drawing's own scale ends at 40
    WriteBoring("B-1.BOR", boring);
    CHECK(AllWords(CheckSoilTable()) == "");
}

TEST_CASE("codes of the layers beside a soil table that draw blank or stop the drawing are flagged")
{
    GoodTable();
    BoringText boring = GoodBoring();
    boring.Lith = {{"4", "SM-CL"}, {"4", "Q"}, {"10", "C"}, {"40", ""}};
    WriteBoring("B-1.BOR", boring);
    CHECK(AllWords(CheckSoilTable()) ==
          "sheet-blank: Layer to 4: SM-CL draws blank, since it is neither F and a number nor a code that has a "
          "pattern.\n"
          "sheet-code: Layer to 10: \"C\" is too short for a pattern, and the drawing stops there.\n");
}

TEST_CASE("more notes than a soil table has lines are an error with its place in the notes")
{
    GoodTable();
    for (int line = 1; line <= 10; ++line)
        frmSoil::MemoSoil.text += "Note\r\n";
    CHECK(AllWords(CheckSoilTable()) == "");
    frmSoil::MemoSoil.text += "Note\r\nNote";
    const std::vector<CheckEntry> found = CheckSoilTable();
    CHECK(AllWords(found) == "soil-notes: The notes exceed 10 lines by 2, and the table is not saved.\n");
    CHECK(Text(found[0].TextBox) == "MemoSoil");
}
