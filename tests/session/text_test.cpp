// text_test.cpp -- numbers from texts, texts from numbers, upper case, the code page.
#include "session/text.h"

#include "testing.h"

#include "session/failure.h"

#include <clocale>
#include <cmath>

TEST_CASE("TextNumber reads the number at the front of a text and never fails")
{
    const struct {
        const char* text;
        double value;
    } cases[] = {{"12.5 ft", 12.5},
                 {"5,10", 5},
                 {".4", 0.4},
                 {"5.", 5},
                 {"1E2", 100},
                 {"2E", 2},
                 {"@", 0},
                 {"10U12", 10},
                 {"10\xB6", 10},
                 {"1 2", 1},
                 {"- 5", 0},
                 {"-.25", -0.25},
                 {" \t+7", 7},
                 {"1.2.3", 1.2},
                 {"--5", 0},
                 {"", 0},
                 {".", 0},
                 {"1e-2x", 0.01},
                 {"1E999", 0},
                 {"4E38", 0},
                 {"&H10", 0},
                 {"1D2", 1},
                 {"\xA0"
                  "5",
                  0}};
    for (const auto& one : cases) {
        CAPTURE(one.text);
        CHECK(TextNumber(one.text) == doctest::Approx(one.value).epsilon(1e-15));
    }
}

TEST_CASE("TextNumber of minus zero is zero")
{
    CHECK_FALSE(std::signbit(TextNumber("-0")));
    CHECK_FALSE(std::signbit(TextNumber("-0.0")));
}

TEST_CASE("rounding is half to even and overflow is failure 6")
{
    CHECK(RoundInt16(2.5) == 2);
    CHECK(RoundInt16(3.5) == 4);
    CHECK(RoundInt16(-2.5) == -2);
    CHECK(RoundInt16(32767.4) == 32767);
    CHECK(FailureOf([] { RoundInt16(32767.5); }) == Overflow);
    CHECK(FailureOf([] { RoundInt32(3e9); }) == Overflow);
    CHECK(FailureOf([] { Over(0, 0); }) == DivisionByZero);
}

TEST_CASE("number texts have up to seven digits and no zero before the point")
{
    CHECK(PlainNumber(0.5) == ".5");
    CHECK(PlainNumber(-0.25) == "-.25");
    CHECK(PlainNumber(0.1f) == ".1");
    CHECK(PlainNumber(12.0) == "12");
    CHECK(PlainNumber(7.5) == "7.5");
    CHECK(PlainNumber(0.00001) == "1E-05");
    CHECK(PlainNumber(16777216.0) == "1.677722E+07");
    CHECK(PlainNumber(9999999.0) == "9999999");
    CHECK(PlainNumber(0.0001) == ".0001");
    CHECK(PlainNumber(1e10) == "1E+10");
    CHECK(PlainNumber(0.0) == "0");
    CHECK(NumberText(3) == " 3");
    CHECK(NumberText(-3) == "-3");
    CHECK(NumberText(0.5) == " .5");
    CHECK(IntegerField(0) == " 0 ");
    CHECK(IntegerField(-50) == "-50 ");
}

TEST_CASE("pictures round the seven digits with halves away from zero")
{
    CHECK(Picture(0.125, 2) == ".13");
    CHECK(Picture(2.675f, 2) == "2.68");
    CHECK(Picture(12.5, 0) == "13");
    CHECK(Picture(0.0, 0) == "");
    CHECK(Picture(0.0, 2) == ".");
    CHECK(Picture(0.001, 2) == ".");
    CHECK(Picture(-0.001, 2) == ".");
    CHECK(Picture(7.001, 2) == "7.");
    CHECK(Picture(0.996, 2) == "1.");
    CHECK(Picture(99.996, 2) == "100.");
    CHECK(Picture(-12.345, 2) == "-12.35");
    CHECK(Picture(123456.7, 2) == "123456.7");
    CHECK(Picture(0.05, 2) == ".05");
    CHECK(Picture(0.4, 0) == "");
    CHECK(Picture(0.5, 0) == "1");
}

TEST_CASE("number texts do not heed the locale")
{
    // Any locale with a decimal comma that this machine has; with none the texts are still checked.
    for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "C"})
        if (std::setlocale(LC_ALL, name))
            break;
    CHECK(PlainNumber(1.5) == "1.5");
    CHECK(Picture(1.25, 2) == "1.25");
    CHECK(TextNumber("1.5") == 1.5);
    std::setlocale(LC_ALL, "C");
}

TEST_CASE("upper case is that of the code page")
{
    CHECK(UpperCase("gw-Gm") == "GW-GM");
    CHECK(UpperCase("\xE4\xF7\xDF\x9A\xFF") == "\xC4\xF7\xDF\x8A\x9F");
    CHECK(SameText("Pbasic.lay", "PBASIC.LAY"));
    CHECK_FALSE(SameText("a", "ab"));
}

TEST_CASE("only character 32 is a blank")
{
    CHECK(Trim("  a b \t ") == "a b \t");
    CHECK(LTrim("  x ") == "x ");
    CHECK(RTrim(" x  ") == " x");
    CHECK(IsBlank("   "));
    CHECK_FALSE(IsBlank("\t"));
    CHECK(Before("a,b,c", ',') == "a");
    CHECK(Behind("a,b,c", ',') == "b,c");
    CHECK(Behind("abc", ',') == "");
}

TEST_CASE("the code page is Windows-1252 at the edges, with ? for what it lacks")
{
    CHECK(ToUtf8("\x80\xB6\xE9") == "\xE2\x82\xAC\xC2\xB6\xC3\xA9");
    CHECK(FromUtf8("\xE2\x82\xAC\xC2\xB6\xC3\xA9") == "\x80\xB6\xE9");
    CHECK(ToUtf8("\x81") == "\xEF\xBF\xBD");
    CHECK(FromUtf8("\xE4\xB8\xAD"
                   "a") == "?a");
    CHECK(FromUtf8("\xC3") == "?");
}
