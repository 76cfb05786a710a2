// boringtext.cpp -- the files of a log run.
#include "boringtext.h"

#include "testing.h"

#include "run/batchrun.h"
#include "session/files.h"

namespace
{
// The lines of a file under way.
struct Composer {
    std::string bytes;
    void Line(const Text& text)
    {
        bytes += text + "\r\n";
    }
    // A row of cells, and empty ones up to the block's width.
    void Cells(const BoringText::Row& row, size_t cells)
    {
        for (size_t i = 0; i < cells; ++i)
            Line(i < row.size() ? row[i] : Text());
    }
    // A block that is always there, with so many rows.
    void Fixed(const BoringText::Rows& rows, size_t count, size_t cells)
    {
        for (size_t i = 0; i < count; ++i)
            Cells(i < rows.size() ? rows[i] : BoringText::Row(), cells);
    }
    void Counted(const BoringText::Rows& rows, size_t cells)
    {
        Line(std::to_string(rows.size()));
        Fixed(rows, rows.size(), cells);
    }
    void CountedLines(const BoringText::Row& lines)
    {
        Line(std::to_string(lines.size()));
        Cells(lines, lines.size());
    }
};
} // namespace

std::string BoringText::Bytes() const
{
    Composer out;
    out.Cells({Version, Name, MapFile}, 3);
    out.Fixed(Info, 30, 2);
    out.Cells({EndDepth, Increment, PageBreak, Unit, SurfElev, StartElev, Coordinates}, 7);
    out.Counted(RepParts, 2);
    out.Line(LayoutFile);
    out.Counted(Samples, 21);
    out.Counted(Lith, 4);
    out.CountedLines(Des);
    out.Counted(Params, static_cast<size_t>(ParamCells));
    out.Fixed(SampleSetup, 16, 9);
    out.Fixed(GenSetup, 20, 8);
    out.Counted(WellInfo, 2);
    out.CountedLines(WellNotes);
    out.Cells(GenWell, 14);
    out.Counted(OuterLayers, 5);
    out.Counted(InnerLayers, 5);
    out.CountedLines(Remarks);
    out.Counted(Cuttings, 4);
    out.Counted(Legend, 2);
    out.Counted(Formations, 2);
    out.Cells(BottNotes, 10);
    out.Cells(Tail, Tail.size());
    return out.bytes;
}

void WriteBoring(const Text& file, const BoringText& boring)
{
    WriteScratch(file, boring.Bytes());
}

void WriteLayout(const Text& file, const Text& orientation, std::initializer_list<int> codes)
{
    Composer out;
    out.Line(orientation);
    for (const int code : codes)
        out.Line(IntegerField(code));
    for (size_t i = codes.size(); i < 12; ++i)
        out.Line(" 0 ");
    WriteScratch(file, out.bytes);
}

void WriteHeadings()
{
    Composer out;
    out.Line("5.0");
    for (int slot = 1; slot <= 84; ++slot)
        out.Line("W" + std::to_string(slot));
    WriteScratch("us.hdg", out.bytes);
    WriteScratch("logo.txt", Lines({"", "", "", "0", "", ""}));
}

void WriteRunList(std::initializer_list<Text> files)
{
    LineWriter out(MasFile(), Durability::Scratch);
    out.Line(std::to_string(files.size()));
    for (const Text& file : files)
        out.Line(Scratch(file));
    out.Close();
}

void WriteMas(std::initializer_list<MasEntry> entries)
{
    LineWriter out(MasFile(), Durability::Scratch);
    out.Line(std::to_string(entries.size()));
    for (const MasEntry& entry : entries) {
        out.Line(entry.File);
        out.Line(entry.Caption);
        out.Line(entry.Start);
        out.Line(entry.End);
    }
    out.Close();
    WriteBreak("0");
}
