// layout_test.cpp -- the layout file.
#include "report/layout.h"

#include "testing.h"

#include "session/session.h"

TEST_CASE("a layout is 13 lines of integers between blanks, and comes back as it was")
{
    LayoutData.Orientation = 2;
    LayoutData.Blocks[1] = 12;
    LayoutData.Blocks[12] = -3;
    DialogResult = Scratch("a.lay");
    SaveLayoutFile();
    CHECK(ReadScratch("a.lay") ==
          Lines({" 2 ", " 12 ", " 0 ", " 0 ", " 0 ", " 0 ", " 0 ", " 0 ", " 0 ", " 0 ", " 0 ", " 0 ", "-3 "}));
    LayoutData = LayoutRecord();
    ReadLayoutFile("A.LAY");
    CHECK(LayoutData.Orientation == 2);
    CHECK(LayoutData.Blocks[1] == 12);
    CHECK(LayoutData.Blocks[12] == -3);
    CHECK(Messages.empty());
}

TEST_CASE("blanks around the numbers of a layout do not matter")
{
    WriteScratch("a.lay", Lines({"1", "  2", "x", "", "5 x", "6", "7", "8", "9", "10", "11", "12", "3"}));
    ReadLayoutFile("a.lay");
    CHECK(LayoutData.Orientation == 1);
    CHECK(LayoutData.Blocks[1] == 2);
    CHECK(LayoutData.Blocks[2] == 0);
    CHECK(LayoutData.Blocks[4] == 5);
    CHECK(LayoutData.Blocks[12] == 3);
}

TEST_CASE("a layout that is missing, short or holds too large a code fails by number")
{
    CHECK(FailureOf([] { ReadLayoutFile("nothing.lay"); }) == FileNotFound);
    WriteScratch("a.lay", Lines({"1", "2"}));
    LayoutData.Orientation = 2;
    LayoutData.Blocks.slot.fill(9);
    CHECK(FailureOf([] { ReadLayoutFile("a.lay"); }) == InputPastEnd);
    // What was read of it stands there, and nothing of the layout before.
    CHECK(LayoutData.Orientation == 1);
    CHECK(LayoutData.Blocks[1] == 2);
    for (int i = 2; i <= 12; ++i)
        CHECK(LayoutData.Blocks[i] == 0);
    WriteScratch("a.lay", Lines({"40000"}));
    CHECK(FailureOf([] { ReadLayoutFile("a.lay"); }) == Overflow);
}

TEST_CASE("a layout that cannot be written is told by name")
{
    DialogResult = Scratch("nowhere/a.lay");
    SaveLayoutFile();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 76 in SaveLayoutFile.  Please contact Norvane");
}
