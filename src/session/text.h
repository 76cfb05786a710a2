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

// The number at the front of a text, 0 if there is none: blanks and tabs, a sign, digits with at most one point,
// an exponent if digits follow it. Never fails; what is beyond a 32-bit float is 0.
double TextNumber(std::string_view text);

// Half to even; a value outside the type is failure 6.
int16_t RoundInt16(double value);
int32_t RoundInt32(double value);

// a / b, with failure 11 for a divisor of 0.
double Over(double a, double b);

// The next lower whole number: the "whole part" of counts and elevations.
double WholePart(double value);

// The number as text: whole numbers by their digits, others by up to 7 significant digits of the 32-bit float,
// no zero before the point, "1E-05" beyond exponents -4 and 6. PlainNumber has no leading blank; NumberText has
// one in the place of the sign (" 12", "-12"); IntegerField has one behind it too (" 0 ", "-50 ").
Text PlainNumber(int value);
Text PlainNumber(double value);
Text NumberText(int value);
Text NumberText(double value);
Text IntegerField(int value);

// The number by a picture such as "#####.##": the float's 7 significant digits rounded to so many places, halves
// away from zero; no zero before the point, no trailing zeros. The point stays ("12."); with 0 places there is
// none, and 0 is the empty text.
Text Picture(double value, int places);

// Blank is character 32 only; a tab is text.
std::string_view LTrim(std::string_view text);
std::string_view RTrim(std::string_view text);
std::string_view Trim(std::string_view text);
bool IsBlank(std::string_view text);

// Upper case of the code page.
char UpperCase(char letter);
Text UpperCase(std::string_view text);
bool SameText(std::string_view a, std::string_view b); // in any case

// The text before and behind the first separator; without one all of it, and nothing.
std::string_view Before(std::string_view text, char separator);
std::string_view Behind(std::string_view text, char separator);
bool Holds(std::string_view text, char letter);

// The edges. A character that the code page lacks becomes "?"; the five codes that it does not assign become
// the replacement sign.
std::string ToUtf8(std::string_view text);
Text FromUtf8(std::string_view utf8);
