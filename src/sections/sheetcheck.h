// sheetcheck.h -- what the check lists of sections, fences and soil tables have in common.
#pragma once

#include "grid/controls.h"
#include "sections/checkedboring.h"
#include "tools/checkentry.h"

#include <map>
#include <set>

namespace VCROSS
{
// Returns whether the number of a cell is read as it looks: "14.5", "-3 m"; not "1,200", "7'6" or words. A blank cell
// has no number.
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

    // Checks that the heading file of the set-up is there, which the words of the page come from.
    void HeadingThere(const Grid& grid, int row);
    // Checks that a title has room in its box of the foot; fonts other than the one whose widths are known are not
    // judged.
    void Title(const Grid& grid, int row, double points, double inches);
    // Checks a cell that may be blank, and otherwise is one of these letters, exactly or, trimmed, in any case.
    void OneOf(const Grid& grid, int row, int column, const char* letters, bool trimmed, const Text& taken);
    // Checks a cell that has to be blank or a number.
    void Number(const Grid& grid, int row, int column, const Text& name);
    // Checks a number that puts something so many inches away: too many for a page to hold, where the drawing stops.
    // Returns true where that was told.
    bool TooFar(const Grid& grid, int row, int column, const Text& name, const Text& cell, double inches);
    // Returns the boring that a row names; null where it is not there, not current or broken, which is told with what
    // follows from it.
    BoringLookedAt Boring(const Grid& grid, int row, int column, const Text& file, const Text& consequence);
    // Checks the pieces of a scale, which is so many inches long on the page. A descending one runs from a larger
    // number to a smaller one, and the sign of its increment does not count. Returns false where no place on the page
    // can be told by it.
    bool Scale(const Grid& grid, int row, const SheetScale& scale, bool descending, double inches);
    // Returns whether a pattern is drawn for a code. Where none is, that is told, once for each code.
    bool Code(const Grid& grid, int row, int column, const Text& code, const Text& whose);
    // Returns the table of the "GIS File" cell; null for one that is not found, which is told.
    TableLookedAt Table(const Grid& grid, int row);
    // Checks the rows of the legend grid against the fills that are used; so many rows have room on the page.
    void Legend(const Grid& grid, const std::vector<Text>& legendRows, int rows, bool colors);

    std::set<SheetFill> Used;
    void Use(const Text& code);
    void UseColor(const Text& color, const Text& layer);

private:
    std::map<Text, bool> codes; // those that were looked at, and whether they draw something
};

// Returns how many rows of the legend have room beside the title block.
int LegendRoom(bool wide);
// Returns a row with the boring that it names: "2, MW-108".
Text RowInWords(int row, const Text& name);
} // namespace VCROSS
