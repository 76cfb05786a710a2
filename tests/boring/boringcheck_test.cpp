// boringcheck_test.cpp -- the warnings about the scale ahead of a save.
#include "boring/boringfile.h"

#include "testing.h"

#include "boring/boringboxes.h"

using namespace frmBorinput;

static const Text endAboveContact =
    "The 'Scale: End Depth' value must be greater or equal to the depth of the last contact.";
static const Text incrementUneven =
    "The 'Scale: Increment' value must divide evenly into the 'Scale: End Depth' value.";
static const Text incrementMissing = "A value is needed for the 'Scale: Increment.'";
static const Text breakTooDeep = "The 'Scale: Page Brk Depth' value must be less than the 'Scale: End Depth' value.";
static const Text breakUneven =
    "The 'Scale: Page Brk Depth' value must divide evenly into the 'Scale: End Depth' value.";
static const Text startAbove =
    "The 'Scale: Start Elev.' value must be less than or equal to the 'Scale: Surface Elev.' value.";
static const Text startUneven = "The 'Scale: Start Elev.' value must be an integer.";
static const Text lastContact =
    "The last contact depth, in the lithology section, determines the depth of the bottom line of each element listed "
    "under report parts.  Therefore, you should enter a value for this depth as deep as any other element on the "
    "diagram even if you choose not to include USCS or descriptions on the diagram.  If this value is deeper than the "
    "boring, you should enter ''F0'' as the USCS for this last contact.  You can note the depth of the end of the "
    "boring in the description text.";

// End depth, increment, page break, surface and start elevation, last contact; "" is an empty cell.
static std::vector<Text> Check(const Text& end, const Text& increment, const Text& pageBreak, const Text& contact,
                               const Text& surface = "", const Text& start = "")
{
    SSScale.Cell(1, 1) = end;
    SSScale.Cell(2, 1) = increment;
    SSScale.Cell(3, 1) = pageBreak;
    SSScale.Cell(5, 1) = surface;
    SSScale.Cell(6, 1) = start;
    SSLith.Clear();
    if (!contact.empty()) {
        SSLith.Cell(1, 1) = "0.1";
        SSLith.Cell(2, 1) = contact;
    }
    Messages.clear();
    boringcheck();
    std::vector<Text> words;
    for (const PlainMessage& message : Messages) {
        CHECK(message.buttons == OkOnly);
        CHECK(message.icon == Exclamation);
        words.push_back(message.words);
    }
    return words;
}
using Words = std::vector<Text>;

TEST_CASE("a good scale gives no warning")
{
    CHECK(Check("40", "5", "20", "40", "100.5", "100") == Words{});
    CHECK(Check("40", "5,4", "20,6.5", "25") == Words{});
}

TEST_CASE("with the scale left to the program only the last contact is asked for")
{
    CHECK(Check("", "", "", "12") == Words{});
    CHECK(Check("", "", "", "") == Words{lastContact});
}

TEST_CASE("without a lithology the long message comes at every save")
{
    CHECK(Check("40", "5", "20", "") == Words{lastContact});
    CHECK(Check("40", "5", "20", "") == Words{lastContact});
}

TEST_CASE("the end depth may not be less than the depth of the last contact")
{
    CHECK(Check("40", "5", "20", "40.5") == Words{endAboveContact});
    CHECK(Check("40", "5", "20", "40") == Words{});
}

TEST_CASE("the increment has to divide the end depth, and is needed where the scale is not left to the program")
{
    CHECK(Check("40", "3", "20", "40") == Words{incrementUneven});
    CHECK(Check("40", "", "20", "40") == Words{incrementMissing});
    CHECK(Check("40", "-5", "20", "40") == Words{});
}

TEST_CASE("quotients are whole as single precision sees them")
{
    CHECK(Check("0.6", "0.2", "0.3", "0.6") == Words{});
    CHECK(Check("1.2", "0.4", "0.6", "1.2") == Words{});
}

TEST_CASE("the page break has to be less than the end depth and to divide it")
{
    CHECK(Check("40", "5", "40", "40") == Words{breakTooDeep});
    CHECK(Check("40", "5", "15", "40") == Words{breakUneven});
    CHECK(Check("0", "5", "0", "") == Words{breakTooDeep, lastContact});
}

TEST_CASE("the start elevation is whole and not above the surface")
{
    CHECK(Check("40", "5", "20", "40", "100", "101") == Words{startAbove});
    CHECK(Check("40", "5", "20", "40", "100", "99.5") == Words{startUneven});
    CHECK(Check("40", "5", "20", "40", "100", "100.5") == Words{startAbove, startUneven});
}

TEST_CASE("the last contact has to lie on the last page")
{
    CHECK(Check("40", "5", "20", "20") == Words{});
    CHECK(Check("40", "5", "20", "19.9") == Words{lastContact});
}

TEST_CASE("warnings follow each other, none stops the others")
{
    CHECK(Check("10", "3", "20", "30", "5", "5.5") ==
          Words{endAboveContact, incrementUneven, breakTooDeep, breakUneven, startAbove, startUneven});
}

TEST_CASE("the last contact is the last row with data, as typed in the grid")
{
    Check("40", "5", "20", "40");
    SSLith.Cell(4, 2) = "F0"; // a code without a depth
    Messages.clear();
    boringcheck();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == lastContact);
}

TEST_CASE("a quotient beyond a number is error 6 in boringcheck")
{
    SSScale.Cell(1, 1) = "3E38";
    SSScale.Cell(2, 1) = "1E-30";
    boringcheck();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 6 in boringcheck.  Please contact Norvane");
}
