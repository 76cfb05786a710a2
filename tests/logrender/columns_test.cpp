// columns_test.cpp -- which routine a report part's name chooses, and what the dispatcher does besides.
#include "canvas/metaugl.h"
#include "columnpage.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"
#include "run/batchrun.h"

// The first heading word of the column that a report part draws, which tells its routine.
static Text ColumnOf(const char* item, const char* width = "1", const char* firstLine = "")
{
    StartColumn();
    LogBoring.TickIncrement = 10;
    LogBoring.Des[1] = firstLine;
    LogBoring.RepParts[1] = {item, width};
    LogGeometry.ColumnNumber = 1;
    VLOG::processrepparts();
    CHECK(LogGeometry.ColumnNumber == 2);
    const Drawing words = DrawnTexts();
    return words.empty() ? "nothing" : words[0];
}

static float PenInches()
{
    return (PageCanvas.penX - ColumnX) / 600;
}

TEST_CASE("a report part's name in any case chooses its column")
{
    CHECK(ColumnOf("depth scale") == " W3 ");
    CHECK(ColumnOf("Elevation Scale") == " W4 ");
    CHECK(ColumnOf("formations") == "W26");
    CHECK(ColumnOf("uscs") == "W11");
    CHECK(ColumnOf("graphic") == "W10");
    CHECK(ColumnOf("descriptions") == " W12 ");
    CHECK(ColumnOf("sample box-numbered") == "W6");
    CHECK(ColumnOf("blow count") == "W7");
    CHECK(ColumnOf("lab number") == " W9 ");
    CHECK(ColumnOf("well construction info") == " W14 ");
    CHECK(ColumnOf("WCON") == " W14 ");
    CHECK(ColumnOf("remarks") == " W17 ");
    CHECK(ColumnOf("cuttings") == " W22 ");
    CHECK(Messages.empty());
}

TEST_CASE("columns of a width of their own step to their right edge")
{
    const auto step = [](const char* item, const char* width) {
        ColumnOf(item, width);
        CHECK(EndsAtBaseline(PenInches()));
        return doctest::Approx(PenInches());
    };
    CHECK(0.6 == step("depth scale", "0.6"));
    CHECK(0.4 == step("elevation scale", "9"));
    CHECK(0.25 == step("formations", "9"));
    CHECK(0.5 == step("uscs", "0.5"));
    CHECK(0.25 == step("graphic", "-"));
    CHECK(2.5 == step("descriptions", "2.5"));
    CHECK(0.3 == step("sample box-graphic", "9"));
    CHECK(0.2 == step("blow count", "9"));
    CHECK(0.6 == step("lab number", "9"));
    CHECK(1.5 == step("well const. info", "1.5"));
    CHECK(1.4 == step("remarks", "1.4"));
    CHECK(0.9 == step("cuttings", "9"));
    CHECK(0.9 == step("cuttings graph", "9"));
}

TEST_CASE("samples are shown by condition under one name alone")
{
    ColumnOf("Sample Box-Graphic");
    CHECK(LogGeometry.GraphicSampleFlag);
    ColumnOf("sample box-numbered");
    CHECK_FALSE(LogGeometry.GraphicSampleFlag);
    ColumnOf("sample box-graphic ");
    CHECK_FALSE(LogGeometry.GraphicSampleFlag);
}

TEST_CASE("cuttings are a table under their plain name and bars under any longer one")
{
    ColumnOf("Cuttings");
    CHECK(Drawn()[0] == "text 270,-330 7pt  W22  centred");
    ColumnOf("cuttings bar");
    CHECK(Drawn()[0] == "text 270,-510 8pt  W22  centred");
}

TEST_CASE("the first description line chooses among the three forms")
{
    // ".T" is a dot command in one form and a line of text in the others, and what is no command is told in a box.
    const auto form = [](const char* firstLine) {
        StartColumn();
        SetContacts({10});
        LogBoring.Contacts[1].Offset = 2;
        LogBoring.Contacts[1].LineType = "N";
        SetLines({firstLine, ".XX"});
        LogBoring.RepParts[1] = {"DES", "2"};
        LogGeometry.ColumnNumber = 1;
        Messages.clear();
        VLOG::processrepparts();
        const size_t lines = Drawn(6).size();
        CHECK(LogGeometry.ColumnWidth == 1);
        if (!Messages.empty())
            return "dot";
        return lines >= 3 ? "manual" : "marked";
    };
    CHECK(form("@1") == "marked");
    CHECK(form("manual") == "manual");
    CHECK(form("Manual placing") == "manual");
    CHECK(form("Sand") == "dot");
    CHECK(form("") == "dot");
}

TEST_CASE("an unknown report part is told, draws nothing and takes no width")
{
    CHECK(ColumnOf("Colour chart") == "nothing");
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Report Part Unknown: Colour chart");
    CHECK(PenInches() == 0);
    CHECK(Drawn().empty());
}

TEST_CASE("names that must match whole do not match longer ones")
{
    for (const char* item : {"uscs ", "graphics", "remarks 2", " depth"}) {
        Messages.clear();
        CHECK(ColumnOf(item) == "nothing");
        CHECK(Messages.size() == 1);
    }
}

TEST_CASE("each report part is one progress step, known or not")
{
    SetProgress(10);
    ColumnOf("Colour chart");
    CHECK(progressValue == 1);
    ColumnOf("lab number");
    CHECK(progressValue == 2);
}

TEST_CASE("behind a column that failed on a page of no depth the next one's heading stands in its place")
{
    StartColumn();
    LogPage.PageStartDepth = LogPage.PageEndDepth = 20;
    LogBoring.RepParts[1] = {"depth scale", "-"};
    LogBoring.RepParts[2] = {"lab number", "-"};
    LogGeometry.ColumnNumber = 1;
    VLOG::processrepparts();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 11 in drawscale.  Please contact Norvane");
    CHECK(PageCanvas.scaleY == 0);
    const size_t before = Drawn().size();
    VLOG::processrepparts();
    CHECK(Drawn().size() > before);
    CHECK(LogGeometry.ColumnNumber == 3);
}
