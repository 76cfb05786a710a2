// linebreaks_test.cpp -- where a text box wraps.
#include "session/linebreaks.h"

#include "testing.h"

// An "i" is 455 wide and a blank 569, so "i i" is 1479.
static std::vector<Text> Broken(std::string_view text, int64_t room)
{
    return BreakLines(text, room);
}
using TextLines = std::vector<Text>;

TEST_CASE("advances are Arial's, whatever font the machine has")
{
    CHECK(AdvanceWidth(' ') == 569);
    CHECK(AdvanceWidth('i') == 455);
    CHECK(AdvanceWidth('M') == 1706);
    CHECK(AdvanceWidth('0') == 1139);
    CHECK(AdvanceWidth('\xB0') == 819); // degree
    CHECK(AdvanceWidth('\xC4') == AdvanceWidth('A'));
    CHECK(AdvanceWidth("AVA") == 3 * 1366); // no kerning
}

TEST_CASE("characters that print nothing or are not assigned still have a width")
{
    for (int code = 0; code < 256; ++code) {
        CHECK(AdvanceWidth(char(code)) >= 391);
        CHECK(AdvanceWidth(char(code)) <= 2079);
    }
    CHECK(AdvanceWidth('\t') == AdvanceWidth(' '));
    CHECK(AdvanceWidth('\x81') == 2048);
}

TEST_CASE("a line is broken in front of a word, and the blanks there stay at its end and do not count")
{
    CHECK(Broken("ii ii ii", 910 + 569 + 910) == TextLines{"ii ii ", "ii"});
    CHECK(Broken("ii ii ii", 910 + 569 + 909) == TextLines{"ii ", "ii ", "ii"});
    CHECK(Broken("ii    ii", 910) == TextLines{"ii    ", "ii"});
    CHECK(Broken("ii     ", 910) == TextLines{"ii     "});
}

TEST_CASE("a sum that equals the room fits, one unit more does not")
{
    CHECK(Broken("iii", 3 * 455) == TextLines{"iii"});
    CHECK(Broken("iii", 3 * 455 - 1) == TextLines{"ii", "i"});
}

TEST_CASE("a word wider than the room is cut at the last character that fits, or behind its first")
{
    CHECK(Broken("iiiiiii", 3 * 455) == TextLines{"iii", "iii", "i"});
    CHECK(Broken("a iiiiiii b", 3 * 455) == TextLines{"a ", "iii", "iii", "i ", "b"});
    CHECK(Broken("MM", 100) == TextLines{"M", "M"});
    CHECK(Broken("MM", -1) == TextLines{"M", "M"});
    CHECK(Broken("M  M ", 100) == TextLines{"M  ", "M "});
}

TEST_CASE("the rest of a cut word goes on with the words behind it")
{
    CHECK(Broken("iiii i", 3 * 455) == TextLines{"iii", "i ", "i"});
    CHECK(Broken("iiii i", 3 * 455 + 114) == TextLines{"iii", "i i"});
    CHECK(Broken("iiiiiiii ii", 5 * 455) == TextLines{"iiiii", "iii ", "ii"});
}

TEST_CASE("blanks in front of a word that does not fit are a line of their own")
{
    CHECK(Broken("  MM", 2 * 1706) == TextLines{"  ", "MM"});
}

TEST_CASE("a tab is no place to break")
{
    CHECK(Broken("ii\tii", 910) == TextLines{"ii", "\t", "ii"});
}

TEST_CASE("an empty paragraph is one line, an empty text is none, and a closing line end adds none")
{
    CHECK(Broken("", 1000) == TextLines{});
    CHECK(Broken("\r\n", 1000) == TextLines{""});
    CHECK(Broken("i\r\n\r\ni", 1000) == TextLines{"i", "", "i"});
    CHECK(Broken("i\r\n", 1000) == TextLines{"i"});
    CHECK(Broken("i\r\n\r\n", 1000) == TextLines{"i", ""});
}

TEST_CASE("only CR LF ends a paragraph; a lone CR or LF is a character")
{
    CHECK(Broken("a\rb\nc\n\rd", 100000) == TextLines{"a\rb\nc\n\rd"});
    CHECK(Broken("a\r\r\nb", 100000) == TextLines{"a\r", "b"});
}

TEST_CASE("the lines of a paragraph together are the paragraph, and no line but a cut word is too wide")
{
    const Text words = "Stiff brown slightly sandy gravelly CLAY with many cobbles.  Gravel is angular, of "
                       "flint-and-quartzite; occasional pockets (up to 40mm) of orange silty fine sand";
    for (int64_t room = 0; room < 60000; room += 977) {
        Text joined;
        for (const Text& line : Broken(words, room)) {
            CHECK_FALSE(line.empty());
            joined += line;
            const Text shown(RTrim(line));
            CHECK((AdvanceWidth(shown) <= room || shown.size() == 1));
        }
        CHECK(joined == words);
        size_t total = 0;
        for (const int length : BreakParagraph(words, room))
            total += size_t(length);
        CHECK(total == words.size());
    }
}

TEST_CASE("the lengths of a paragraph are those of its lines")
{
    CHECK(BreakParagraph("", 1000) == std::vector<int>{0});
    CHECK(BreakParagraph("ii ii ii", 910 + 569 + 910) == std::vector<int>{6, 2});
}

TEST_CASE("room in inches and room of a box are the same measure")
{
    // 2.9 inches of 8 points: 53452.8 units.
    CHECK(BoxRoom(4750, 1550, 8) == 53452);
    CHECK(BreakLines(Text(200, 'i'), 2.9, 8) == BreakLines(Text(200, 'i'), int64_t(53452)));
    CHECK(BoxRoom(255, 1550, 8) == 0);
    CHECK(BoxRoom(254, 1550, 8) < 0);
}
