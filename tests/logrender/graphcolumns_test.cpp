// graphcolumns_test.cpp -- which name of a report part draws which parameter or blow count column.
#include "columnpage.h"

#include "logrender/vlog.h"

static Drawing DrawPart(const char* item, const char* width = "0.5")
{
    StartColumn();
    for (int n = 1; n <= 16; ++n) {
        LogBoring.SampleSetup[n] = Setup(0, 100, 50);
        LogBoring.SampleSetup[n].Heading = "H" + std::to_string(n);
        LogBoring.SampleSetup[n].Split[1] = "S" + std::to_string(n);
    }
    for (int n = 1; n <= 20; ++n) {
        LogBoring.GenSetup[n] = Setup(0, 100, 50);
        LogBoring.GenSetup[n].Heading = "HG" + std::to_string(n);
        LogBoring.GenSetup[n].Split[1] = "SG" + std::to_string(n);
    }
    LogBoring.RepParts[1] = {item, width};
    LogGeometry.ColumnNumber = 1;
    VLOG::processrepparts();
    CHECK(LogGeometry.ColumnNumber == 2);
    return DrawnTexts();
}

TEST_CASE("a P and a number is the column of that parameter's texts, as wide as its report part")
{
    CHECK(DrawPart("p16", "0.7") == Drawing{" S16 ", "  ", "  "});
    CHECK(EndsAtBaseline(0.7f));
    CHECK(DrawPart("P5G")[0] == " S5 "); // no graph of this number
    CHECK(Drawn().size() == 6);
}

TEST_CASE("P1G to P4G are graphs of one curve, as wide as their report part")
{
    for (const char* item : {"P1G", "P2G", "P3G", "p4g"}) {
        const Drawing words = DrawPart(item, "0.8");
        CHECK(words[0] == " S" + Text(1, item[1]) + " ");
        CHECK(words.size() == 6);
        CHECK(EndsAtBaseline(0.8f));
    }
}

TEST_CASE("P12G and P34G are graphs of two curves, P1-4G of four")
{
    CHECK(DrawPart("P12G") == Drawing{"H1", "H2", "0", "50", "100"});
    CHECK(EndsAtBaseline(1));
    CHECK(DrawPart("P34G") == Drawing{"H3", "H4", "0", "50", "100"});
    CHECK(EndsAtBaseline(1));
    CHECK(DrawPart("P1-4G") == Drawing{"H1", "H2", "H3", "H4", "0", "50", "100"});
    CHECK(EndsAtBaseline(2));
}

TEST_CASE("GP and a number is a column of general texts, GPG a graph, MPG a graph of several")
{
    CHECK(DrawPart("GP20", "0.3") == Drawing{" SG20 ", "  ", "  "});
    CHECK(EndsAtBaseline(0.3f));
    CHECK(DrawPart("gpg7") == Drawing{" SG7 ", "  ", "  ", "0", "50", "100"});
    CHECK(EndsAtBaseline(0.6f));
    CHECK(DrawPart("MPG4-9", "1.5") == Drawing{" HG4 ", "0", "50", "100", " HG9 ", "0", "50", "100"});
    CHECK(EndsAtBaseline(1.5f));
}

TEST_CASE("the blow count graphs are known by their whole names")
{
    CHECK(DrawPart("blow count graph") == Drawing{" W7 ", " W8 ", "10", "50"});
    CHECK(EndsAtBaseline(0.6f));
    CHECK(DrawPart("BLOW COUNT GRAPH-WIDE") == Drawing{" W7 ", " W8 ", "0", "20", "40", "60", "80"});
    CHECK(EndsAtBaseline(1));
}

TEST_CASE("a parameter number above 16 is told, and the columns to its right close up to the left")
{
    for (const char* item : {"P17", "p17G"}) {
        CHECK(DrawPart(item) == Drawing{});
        REQUIRE(Messages.size() == 1);
        CHECK(Messages[0].words == "Report Part, 'P17,' refers to a parameter number greater than 16.  ");
        CHECK(EndsAtBaseline(0));
        Messages.clear();
    }
    DrawPart("P1E30");
    CHECK(Messages[0].words == "Report Part, 'P1E+30,' refers to a parameter number greater than 16.  ");
    Messages.clear();
}

TEST_CASE("an absurd number behind GP is told as an overflow, and the run goes on with the next column")
{
    DrawPart("GP99999");
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 6 in processrepparts.  Please contact Norvane");
    Messages.clear();
}
