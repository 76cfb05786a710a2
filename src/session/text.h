// text.h -- texts as the program holds them, and every way between a text and a number.
//
// A Text is a string of bytes of Windows-1252, one byte one character, in memory as in the files. It is turned
// into Unicode at the edges only: windows, page output, names of files. Nothing here looks at the locale.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

using Text = std::string;

constexpr char ParagraphMark = '\xB6'; // character 182: ends a paragraph in stored lines

// Returns the number at the front of a text, 0 if there is none: blanks and tabs, a sign, digits with at most one
// point, an exponent if digits follow it. It never fails; what is beyond a 32-bit float is 0.
double TextNumber(std::string_view text);

// Return the value rounded, a half to even; one outside the type is failure 6.
int16_t RoundInt16(double value);
int32_t RoundInt32(double value);

// Returns a / b; a divisor of 0 is failure 11.
double Over(double a, double b);

// Returns the next lower whole number: the "whole part" of counts and elevations.
double WholePart(double value);

// Return the number as text: whole numbers by their digits, others by up to 7 significant digits of the 32-bit float,
// no zero before the point, "1E-05" beyond exponents -4 and 6. PlainNumber has no leading blank; NumberText has
// one in the place of the sign (" 12", "-12"); IntegerField has one behind it too (" 0 ", "-50 ").
Text PlainNumber(int value);
Text PlainNumber(double value);
Text NumberText(int value);
Text NumberText(double value);
Text IntegerField(int value);

// Returns the number by a picture such as "#####.##", which has two places: the float's 7 significant digits rounded,
// halves away from zero; no zero before the point, no trailing zeros. The point stays ("12."); with 0 places there is
// none, and 0 is the empty text.
Text Picture(double value, int places);

// Return the text without the blanks in front, at its end, or at both. A blank is character 32 only; a tab is text.
std::string_view LTrim(std::string_view text);
std::string_view RTrim(std::string_view text);
std::string_view Trim(std::string_view text);
bool IsBlank(std::string_view text);

// Return the letters in upper case, by the code page.
char UpperCase(char letter);
Text UpperCase(std::string_view text);
bool SameText(std::string_view a, std::string_view b); // in any case

// Return the text before and behind the first separator; without one Before is all of it and Behind nothing.
std::string_view Before(std::string_view text, char separator);
std::string_view Behind(std::string_view text, char separator);
bool Holds(std::string_view text, char letter);

// Return the text in UTF-8, and back from it. A character that the code page lacks becomes "?"; the five codes that it
// does not assign become the replacement sign.
std::string ToUtf8(std::string_view text);
Text FromUtf8(std::string_view utf8);
