// colors_test.cpp -- colour cells.
#include "canvas/colors.h"

#include "testing.h"

TEST_CASE("a colour name is found in any case, its misspelling and second spelling too")
{
    CHECK(getcolor("fuschia", false) == "255 0 255");
    CHECK(getcolor("FUCHSIA", false) == "255 0 255");
    CHECK(getcolor("Grey", false) == getcolor("GRAY", false));
    CHECK(getcolor("tan3", true) == "230 180 130");
    CHECK(getcolor("Brown5", false) == "128 64 64");
    CHECK(Messages.empty());
}

TEST_CASE("blanks around a colour do not count")
{
    CHECK(getcolor(" BLUE ", false) == "0 0 255");
    CHECK(getcolor(" 10 20 30 ", false) == "10 20 30");
}

TEST_CASE("a colour with one number missing is told and white")
{
    CHECK(getcolor("10 20", false) == "255 255 255");
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Missing 1 Color Value: 10 20");
    CHECK(Messages[0].icon == Exclamation);
}

TEST_CASE("a colour that is one word but no name misses two numbers")
{
    CHECK(getcolor("mauve", false) == "255 255 255");
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Missing 2 Color Values: mauve");
}

TEST_CASE("a colour number above 255 or below 0 is told and white")
{
    CHECK(getcolor("10 20 300", false) == "255 255 255");
    CHECK(getcolor("-1 20 30", false) == "255 255 255");
    REQUIRE(Messages.size() == 2);
    CHECK(Messages[0].words == "Color values must be in the range of 0 to 255: 10 20 300");
    CHECK(Messages[1].words == "Color values must be in the range of 0 to 255: -1 20 30");
}

TEST_CASE("three numbers from 0 to 255 are taken as typed")
{
    CHECK(getcolor("10 20 30", false) == "10 20 30");
    CHECK(getcolor("0 255 007", false) == "0 255 007");
    CHECK(Messages.empty());
}

TEST_CASE("a quiet reading takes what is no name for white and says nothing")
{
    CHECK(getcolor("10 20 30", true) == "255 255 255");
    CHECK(getcolor("mauve", true) == "255 255 255");
    CHECK(Messages.empty());
}

TEST_CASE("each of the three numbers of a colour may be 255 and none 256")
{
    CHECK(getcolor("255 255 255", false) == "255 255 255");
    CHECK(getcolor("255 0 255", false) == "255 0 255");
    CHECK(Messages.empty());
    for (const char* colour : {"256 0 0", "0 256 0", "0 0 256", "0 -1 0", "-1 0 0"}) {
        Messages.clear();
        CHECK(getcolor(colour, false) == "255 255 255");
        REQUIRE(Messages.size() == 1);
        CHECK(Messages[0].words == Text("Color values must be in the range of 0 to 255: ") + colour);
    }
}
