// wellfills_test.cpp -- what fills a layer of the annulus.
#include "wellpage.h"

#include "report/heading.h"

static int FillOf(const char* text, const char* cell = "")
{
    StartWell();
    AddLayer("0", "1", text, "", cell);
    return VLOG::selectfill(1);
}

TEST_CASE("a fill cell counts before the text, up to its comma")
{
    CHECK(FillOf("Grout", "F3") == 23);
    CHECK(FillOf("Grout", " gw , RED") == 21);
    CHECK(FillOf("Grout", "F0") == 0);
    CHECK(FillOf("Grout", "  ,RED") == 2);
}

TEST_CASE("without a fill cell the first material word of the heading file that the text holds chooses the fill")
{
    CHECK(FillOf("Packer") == 500);
    CHECK(FillOf("Backfill") == 1);
    CHECK(FillOf("cement grout") == 2);
    CHECK(FillOf("Bentonite seal") == 3);
    CHECK(FillOf("Filter pack") == 4);
    CHECK(FillOf("sand pack") == 5);
    CHECK(FillOf("Centralizer") == 501);
    CHECK(FillOf("Sand") == 0);
    CHECK(FillOf("") == 0);
    CHECK(FillOf("Seal fill") == 1); // by the order of the words, not of the text
}

TEST_CASE("an empty material word matches nothing")
{
    StartWell();
    HeadingWords[31] = "";
    AddLayer("0", "1", "Grout");
    CHECK(VLOG::selectfill(1) == 2);
}

TEST_CASE("a centralizer's offset counts up from its symbol")
{
    CHECK(FillOf("Centralizer, 2") == 503);
    CHECK(FillOf("Centralizer, x") == 501);
    CHECK(FillOf("Centralizer,2.6,9") == 504);
    CHECK(FillOf("Centralizer,-3") == 498);
}

TEST_CASE("the half of a centralizer's offset goes to the even number by itself, before the symbol's is added")
{
    CHECK(FillOf("Centralizer, 0.5") == 501);
    CHECK(FillOf("Centralizer, 1.5") == 503);
    CHECK(FillOf("Centralizer, 2.5") == 503);
    CHECK(FillOf("Centralizer, -0.5") == 501);
}

TEST_CASE("an offset beyond all symbols is told by its own reader, and the layer goes without a fill")
{
    CHECK(FillOf("Centralizer,40000") == 0);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 6 in selectfill.  Please contact Norvane");
}

TEST_CASE("findcenttype cuts a centralizer's text at its comma and gives the number behind it")
{
    Text text = "4 in. cent., 1.5";
    CHECK(VLOG::findcenttype(text) == 1.5);
    CHECK(text == "4 in. cent.");
    text = "Centralizer";
    CHECK(VLOG::findcenttype(text) == 0);
    text = "Sand, 20/40";
    CHECK(VLOG::findcenttype(text) == 0);
    CHECK(text == "Sand, 20/40");
}

TEST_CASE("the words of a screen and a pump are no materials of the annulus")
{
    CHECK(FillOf("Screen") == 0);
    CHECK(FillOf("Pump") == 0);
}
