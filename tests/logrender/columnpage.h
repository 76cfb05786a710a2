// columnpage.h -- a page with one column under test, and what was drawn on it in words that a test can spell.
//
// The column's left edge on the baseline is at (ColumnX, ColumnY). Places are told in device units, 600 to the inch,
// right of the column's left edge and down from the depth line, which is 60 below the baseline.
#pragma once

#include "testing.h"

#include "logrender/logdata.h"

#include <vector>

constexpr int ColumnX = 600, ColumnY = 1800;

using Drawing = std::vector<Text>;

// Empty log records, heading words that name their slots, "0" in break.mas, a started page with the pen at the
// column. The column is 2 inches wide and shows depths 0 to 67, 10 to the inch.
void StartColumn();

// Patterns in the fills folder, by file number; any other is blank.
void SetPatterns(std::initializer_list<int> files);

// The contacts of the boring, all of them on the page, the last one its end.
void SetContacts(std::initializer_list<float> depths);
void SetLines(std::initializer_list<const char*> lines);
// A set-up with the linear axis start, end, increment; and the samples of the boring, all of them on the page.
LogParamSetup Setup(float start, float end, float increment);
void AddSample(float top, float bottom);

// The objects behind the first skip ones, one text each:
//     line 0,0 1200,0 dotted          (and "wide" for a pen of twice the width)
//     rectangle 0,0 600,300
//     text 30,48 8pt Clay bold        (the place is the pen's, before the nudge that sits text on its line)
//     text 30,48 8pt Clay upward      (turned by 90 degrees, "at 45" for any other angle)
//     circle 300,600 18               dot 300,600 18     (the middle and the radius; a dot is filled black)
//     polygon 0,0 150,0 150,-60 F21   (vertices; then "black", "white" or the pattern, and " in 255 0 0" for a tint)
//     arc 38,22 0,0 from 75,0 to 0,0
//     picture 0,0 600,300 SITE.BMP
Drawing Drawn(size_t skip = 0);
Drawing DrawnTexts(); // the words only
// The same with places from (x, y) of the page, in device units.
Drawing DrawnFrom(int32_t x, int32_t y, size_t skip);

// Where the pen is, "1200,-60" for the right edge on the baseline.
Text PenPlace();
// The pen on the baseline at x inches, both scales 1, line style 1: what the next column relies on.
bool EndsAtBaseline(float x);
Text PageCanvasScales(); // "1 1"
Text BreakFile();        // the line in break.mas

// A drawing that differs is shown line by line.
template <>
struct doctest::StringMaker<Drawing> {
    static doctest::String convert(const Drawing& drawing)
    {
        Text lines = "\n";
        for (const Text& object : drawing)
            lines += "    " + object + "\n";
        return lines.c_str();
    }
};

void NumberHeadings(); // heading words "W1" and so on
// So many lines to a file's bytes: those there are, then empty ones.
void AddLines(std::string& bytes, const std::vector<Text>& lines, size_t count, const Text& empty);
