// sheetcheck.h -- what the check lists of sections, fences and soil tables have in common.
#pragma once

#include "grid/controls.h"
#include "sections/checkedboring.h"
#include "tools/checkentry.h"

#include <map>
#include <set>

namespace VCROSS
{
// True for a cell whose number is read as it looks: "14.5", "-3 m"; not "1,200", "7'6" or words. Blank is no number.
bool ReadsAsNumber(const Text& cell);

// A scale cell as a save writes it and a drawing reads it: one without a comma is 0, 1000, 100.
struct SheetScale {
    explicit SheetScale(const Text& cell, bool whole = false); // whole: the drawing rounds to whole numbers
    Text StartText, EndText, IncText;
    double Start = 0, End = 0, Inc = 0;
    bool Replaced = false; // the cell has no comma
    bool Rounded = false;  // one of the numbers is not whole, and the drawing rounds it
};

// The fills of the page in hand, each by what tells one from another: a pattern's number or a colour.
struct SheetFill {
    Text Shown; // the first code of it, as typed
    int Pattern = 0;
    Text Color; // "r g b" where the fill is a colour and no pattern
    bool operator<(const SheetFill& other) const
    {
        return Pattern != other.Pattern ? Pattern < other.Pattern : Color < other.Color;
    }
};

// A check list under way.
struct SheetCheck {
    std::vector<CheckEntry> Found;

    void Flag(const char* kind, const Grid& grid, int row, int column, const Text& words);

    // The heading file of the set-up, which the words of the page come from.
    void HeadingThere(const Grid& grid, int row);
    // A title in its box of the foot; fonts other than the one whose widths are known are not judged.
    void Title(const Grid& grid, int row, double points, double inches);
    // A cell that may be blank, and otherwise is one of these letters, exactly or, trimmed, in any case.
    void OneOf(const Grid& grid, int row, int column, const char* letters, bool trimmed, const Text& taken);
    // A cell that has to be blank or a number.
    void Number(const Grid& grid, int row, int column, const Text& name);
    // A number that puts something so many inches away: too many for a page to hold, where the drawing stops. True: it
    // was told.
    bool TooFar(const Grid& grid, int row, int column, const Text& name, const Text& cell, double inches);
    // The boring that a row names: told where it is not there, not current or broken, with what follows from that.
    // Null then.
    BoringLookedAt Boring(const Grid& grid, int row, int column, const Text& file, const Text& consequence);
    // The pieces of a scale; descending: it runs from a larger number to a smaller one, and the sign of the increment
    // does not count. inches: its length on the page. False: no place on the page can be told by it.
    bool Scale(const Grid& grid, int row, const SheetScale& scale, bool descending, double inches);
    // A code that a pattern is drawn for. False: nothing is drawn, which is told, once for each code.
    bool Code(const Grid& grid, int row, int column, const Text& code, const Text& whose);
    // The table of the "GIS File" cell; null for one that is not found, which is told.
    TableLookedAt Table(const Grid& grid, int row);
    // The fills that are used, and the rows of the legend grid against them; rows: so many have room on the page.
    void Legend(const Grid& grid, const std::vector<Text>& legendRows, int rows, bool colors);

    std::set<SheetFill> Used;
    void Use(const Text& code);
    void UseColor(const Text& color, const Text& layer);

private:
    std::map<Text, bool> codes; // those that were looked at, and whether they draw something
};

// How many rows of the legend have room beside the title block.
int LegendRoom(bool wide);
// "2, MW-108": a row with the boring that it names.
Text RowInWords(int row, const Text& name);
} // namespace VCROSS
