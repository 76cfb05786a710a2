// sectionlines.cpp -- scale cells and legend rows, between their cells and their lines.
#include "sections/sectionlines.h"

Text ReadScaleCell(LineReader& in)
{
    const Text start = in.Line();
    const Text end = in.Line();
    return start + "," + end + "," + in.Line();
}

void WriteScaleCell(LineWriter& out, const Text& cell)
{
    // Kept: a cell without a comma, an empty one too, is replaced by a scale of a thousand feet.
    if (!Holds(cell, ','))
        return WriteScaleCell(out, "0,1000,100");
    const std::string_view behind = Behind(cell, ',');
    out.Line(Trim(Before(cell, ',')));
    out.Line(Trim(Before(behind, ',')));
    // Kept: without a second comma the end stands for the increment too; further commas stay in the increment.
    out.Line(Trim(Holds(behind, ',') ? Behind(behind, ',') : behind));
}

void ReadLegendRow(LineReader& in, Slots<Text, 2>& row)
{
    const Text line = in.Line();
    const char separator = Holds(line, ';') ? ';' : ',';
    row = {};
    if (!Holds(line, separator))
        return;
    row[1] = Before(line, separator);
    row[2] = Trim(Behind(line, separator));
}

void WriteLegendRow(LineWriter& out, const Slots<Text, 2>& row)
{
    out.Line(row[1] + ";" + Text(RTrim(row[2])));
}
