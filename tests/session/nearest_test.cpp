// nearest_test.cpp -- what stands for a character that the code page lacks.
#include "session/nearest.h"

#include "testing.h"

#include "session/unicode.h"

static Text Nearest(const char* utf8)
{
    return NearestOf(utf8).text;
}

TEST_CASE("a character of the code page stays as it is, dashes and typographic quotation marks too")
{
    for (int code = 0; code < 256; ++code) {
        CAPTURE(code);
        const Text letter(1, char(code));
        const std::string utf8 = ToUtf8(letter);
        size_t at = 0;
        const char32_t character = NextUtf8(utf8, at);
        if (character != 0xFFFD)
            CHECK(NearestInCodePage(character) == letter);
    }
    const NearestText text = NearestOf("5\u201310 \u2014 \u2018a\u2019 \u201Cb\u201D \u00BD \u00B5 \u00B2 \u00B0 ?");
    CHECK(text.text == "5\x96"
                       "10 \x97 \x91"
                       "a\x92 \x93"
                       "b\x94 \xBD \xB5 \xB2 \xB0 ?");
    CHECK(text.replaced == 0);
    CHECK(text.lost == 0);
    CHECK(ReplacementWords(text) == "");
}

TEST_CASE("what stands for a character is always of the code page and reads back as itself")
{
    for (char32_t character = 0; character < 0x11000; ++character) {
        const Text near = NearestInCodePage(character);
        CAPTURE(unsigned(character));
        CHECK(FromUtf8(ToUtf8(near)) == near);
        CHECK(near.find('\x1A') == (character == 0x1A ? 0 : Text::npos));
    }
}

TEST_CASE("a sign that the code page lacks becomes the nearest that it has")
{
    CHECK(Nearest("\u2264 \u2265 \u2260 \u2248 \u2212 \u00B1") == "<= >= <> ~ - \xB1");
    CHECK(Nearest("\u03BCg/l \u2126 \u03A9m \u03C6 \u0394") == "\xB5g/l Ohm Ohmm phi Delta");
    CHECK(Nearest("5\u2032 6\u2033 5\u02DA 5\u2218 20\u2103") == "5' 6\" 5\xB0 5\xB0 20\xB0"
                                                                 "C");
    CHECK(Nearest("a\u2192b \u2190 \u2194") == "a->b <- <->");
    CHECK(Nearest("a\u2010b\u2011c\u2012d\u2015e") == "a-b-c-d\x97"
                                                      "e");
    CHECK(Nearest("\u201Ba\u201F") == "'a\"");
    CHECK(Nearest("\uFB01ne \uFB02at") == "fine flat");
    CHECK(Nearest("\uFF27\uFF37\uFF0D\uFF11") == "GW-1");
    CHECK(Nearest("\u2162 m\u2074 H\u2082O 5\u339E") == "III m4 H2O 5km");
    CHECK(Nearest("\u25CF one \u2300 2") == "\x95 one \xD8 2");
}

TEST_CASE("a letter with a mark that the code page lacks loses the mark and no more")
{
    CHECK(Nearest("\u0141\u00F3d\u017A \u010Cesk\u00FD \u0219i \u0151 \u011E") == "L\xF3"
                                                                                  "dz Cesk\xFD si o G");
    CHECK(Nearest("\u1EBF \u1E00 \u01D6 \u1EF9") == "\xEA A \xFC y");
    CHECK(Nearest("\u0160\u0161\u017D\u017E\u0152\u0153\u0178\u0192") == "\x8A\x9A\x8E\x9E\x8C\x9C\x9F\x83");
    CHECK(Nearest("\u0100\u017E\u017F\u0180\u024F\u1EFF") == "A\x9Esbyy");
}

TEST_CASE("a mark behind its letter is joined with it, and any other is left out")
{
    const NearestText joined = NearestOf("e\u0301 A\u030A s\u030C y\u0308");
    CHECK(joined.text == "\xE9 \xC5 \x9A \xFF");
    CHECK(joined.replaced == 0);
    const NearestText left = NearestOf("n\u0301 \u0301");
    CHECK(left.text == "n ");
    CHECK(left.replaced == 2);
    CHECK(Nearest("\u0301") == "");
    CHECK(Nearest("=\u0338") == "=/");
}

TEST_CASE("blanks of every width are blanks, and signs without a width go unseen")
{
    const NearestText blanks = NearestOf("a\u2009b\u202Fc\u3000d\u2003e");
    CHECK(blanks.text == "a b c d e");
    CHECK(blanks.replaced == 4);
    CHECK(Nearest("a\u00A0b") == "a\xA0"
                                 "b");
    const NearestText unseen = NearestOf("\uFEFFa\u200Bb\u200Ec\uFE0F");
    CHECK(unseen.text == "abc");
    CHECK(unseen.replaced == 0);
    CHECK(Nearest("a\u2028b") == "a\r\nb");
}

TEST_CASE("a fraction and a power behind a digit do not run into it")
{
    CHECK(Nearest("2\u2153 ft, \u2153") == "2 1/3 ft, 1/3");
    CHECK(Nearest("2\u00BD") == "2\xBD");
    CHECK(Nearest("10\u2074 10\u207B\u2076 10\u00B3") == "10^4 10^-6 10\xB3");
    CHECK(Nearest("10\u00B9\u2074") == "10\xB9"
                                       "4");
    CHECK(Nearest("K\u2080 C\u2087") == "K0 C7");
}

TEST_CASE("what nothing is near to becomes a question mark, and is counted")
{
    const NearestText text = NearestOf("\u4E2D? \u2264\U0001F600 \xC3");
    CHECK(text.text == "?? <=? ?");
    CHECK(text.replaced == 4);
    CHECK(text.lost == 3);
    CHECK(text.first == "?");
    CHECK(NearestInCodePage(0x81) == "?");
    CHECK(NearestInCodePage(0x110000) == "?");
}

TEST_CASE("the words about replaced characters tell how many there are and what stands for them")
{
    CHECK(ReplacementWords(NearestOf("< 5")) == "");
    CHECK(ReplacementWords(NearestOf("\u2264 5")) == "1 character is not in the code page: \"<=\" stands for it.");
    CHECK(ReplacementWords(NearestOf("\u4E2D")) == "1 character is not in the code page: \"?\" stands for it.");
    CHECK(ReplacementWords(NearestOf("\u2264 \u2265")) ==
          "2 characters are not in the code page: the nearest stand for them.");
    CHECK(ReplacementWords(NearestOf("\u4E2D\u4E2D")) ==
          "2 characters are not in the code page: \"?\" stands for them.");
    CHECK(ReplacementWords(NearestOf("\u4E2D \u2264 \u2265")) ==
          "3 characters are not in the code page: the nearest stand for them, \"?\" for 1.");
}

TEST_CASE("characters go out of UTF-8 and into it, broken ones as the replacement sign")
{
    for (const char32_t character : {U'a', U'\u00E9', U'\u2264', U'\U0001F600'}) {
        std::string utf8;
        AddUtf8(utf8, character);
        size_t at = 0;
        CHECK(NextUtf8(utf8, at) == character);
        CHECK(at == utf8.size());
    }
    size_t at = 0;
    CHECK(NextUtf8("\xE2\x89", at) == 0xFFFD);
    CHECK(at == 2);
    at = 0;
    CHECK(NextUtf8("\x89", at) == 0xFFFD);
    CHECK(at == 1);
}

TEST_CASE("the words that show the characters name each once, and what nothing is near to")
{
    CHECK(ReplacedCharacters("abc \u00B5 \u2013") == "");
    CHECK(ReplacedCharacters("\u2264 5") == "Not in the code page: \u2264 became \"<=\".");
    CHECK(ReplacedCharacters("\u2264 \u2264 \u4E2D") == "Not in the code page: \u2264 became \"<=\", \u4E2D became "
                                                        "\"?\". Nothing is near to what became \"?\".");
    CHECK(
        ReplacedCharacters("\u0100\u0102\u0104\u0106\u0108\u010A\u010C\u010E").ends_with(" became \"C\" and 2 more."));
    CHECK(ReplacedCharacters("n\u0301") == "1 character is not in the code page: \"\" stands for it.");
}
