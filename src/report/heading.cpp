// heading.cpp -- the heading file, for its editor and for the renderers, and the client's logo.
#include "report/heading.h"

#include "canvas/patterns.h"
#include "session/deviceconfig.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/savename.h"
#include "session/session.h"
#include "session/shared.h"

Slots<Text, MaxHeadings> HeadingTable;
Slots<Text, MaxHeadings> HeadingWords;
int16_t LegendInUse = 0;
Slots<int16_t, 4> LegendBoxFill;
LogoRecord LogoData;
Grid frmHeading::SSLog(39, 2), frmHeading::SSSections(10, 2), frmHeading::SSGraphics(13, 2);

static const SharedRecord shared[] = {
    {"HeadingTable", Kind::Window, HeadingTable},
    {"HeadingWords", Kind::Run, HeadingWords},
    {"LegendInUse", Kind::Run, LegendInUse},
    {"LegendBoxFill", Kind::Run, LegendBoxFill},
    {"LogoData", Kind::Run, LogoData},
    {"frmHeading::SSLog", Kind::Window, frmHeading::SSLog},
    {"frmHeading::SSSections", Kind::Window, frmHeading::SSSections},
    {"frmHeading::SSGraphics", Kind::Window, frmHeading::SSGraphics},
};

// Which slots each grid shows.
namespace
{
struct HeadingBlock {
    Grid& grid;
    int firstSlot;
};
} // namespace
static const HeadingBlock headingBlocks[] = {
    {frmHeading::SSLog, 1}, {frmHeading::SSSections, 62}, {frmHeading::SSGraphics, 72}};

static bool CurrentForm(const Text& version)
{
    return version.starts_with("5.0");
}

static void ReadSlots(LineReader& in, int first, int last)
{
    for (int slot = first; slot <= last; ++slot)
        HeadingTable[slot] = in.Line();
}

// The old form has no version line: its first line is slot 1 already. It ends with 72 lines.
static void ReadOldForm(LineReader& in, const Text& firstLine)
{
    MsgBox("This heading file has an old format.  When saved, it will be converted to the new 5.0 heading format.");
    HeadingTable[1] = firstLine;
    ReadSlots(in, 2, 6);
    ReadSlots(in, 40, 44);
    ReadSlots(in, 50, 54);
    ReadSlots(in, 7, 27);
    in.Skip(1); // Kept: the word of slot 28 is lost
    ReadSlots(in, 29, 39);
    ReadSlots(in, 62, 84);
}

static void ShowTable()
{
    for (const HeadingBlock& block : headingBlocks)
        for (int row = 1; row <= block.grid.rows; ++row)
            block.grid.Cell(row, 2) = HeadingTable[block.firstSlot + row - 1];
}

void OpenHeadingFile()
try {
    HeadingTable = {};
    LineReader in(DialogResult);
    const Text version = in.Line();
    if (CurrentForm(version))
        ReadSlots(in, 1, MaxHeadings);
    else
        ReadOldForm(in, version);
    ShowTable();
} catch (...) {
    ShowTable(); // what was read, or a save would write what the grids had before over it
    ReportFailure(__func__);
}

void SaveHeadingFile()
try {
    // Kept: the table as last read is tested, before the grids are taken, so an editor that has opened nothing
    // cannot save whatever was typed into it.
    int blankCells = 0;
    for (int slot = 1; slot <= 20; ++slot)
        blankCells += HeadingTable[slot].empty();
    if (blankCells >= 6) {
        MsgBox("There are too many blank cells.  Before creating a heading file, you should open an existing heading "
               "file, make changes, and then 'Save As' a different filename.");
        return;
    }
    for (const HeadingBlock& block : headingBlocks)
        for (int row = 1; row <= block.grid.rows; ++row)
            HeadingTable[block.firstSlot + row - 1] = block.grid.Cell(row, 2);
    for (int slot = 31; slot <= 39; ++slot)
        HeadingTable[slot] = UpperCase(HeadingTable[slot]);
    LineWriter out(DialogResult);
    out.Line("5.0");
    for (int slot = 1; slot <= MaxHeadings; ++slot)
        out.Line(HeadingTable[slot]);
    out.Close();
} catch (...) {
    ReportFailure(__func__);
}

// Keywords 41 to 44, "text, fill number": the text stays in the slot, the number becomes the pattern of the sample
// box of that condition. Without a number the box keeps the pattern that it has.
static void SplitLegendBoxes()
{
    for (int n = 1; n <= 4; ++n) {
        Text& word = HeadingWords[40 + n];
        if (word.ends_with(','))
            word.pop_back();
        else if (Holds(word, ',')) {
            const Text fill(Behind(word, ','));
            word = Before(word, ',');
            LegendBoxFill[n] = getpch(fill);
        }
    }
}

static void ReadLogWords(LineReader& in)
{
    for (int slot = 1; slot <= 61; ++slot)
        HeadingWords[slot] = in.Line();
    SplitLegendBoxes();
    LegendInUse = 0;
    for (const int flag : {45, 49, 55, 61})
        if (TextNumber(HeadingWords[flag]) > 0)
            LegendInUse = 1;
}

static void ReadSectionWords(LineReader& in)
{
    in.Skip(61);
    for (int slot = 1; slot <= 7; ++slot)
        HeadingWords[slot] = in.Line();
}

static void ReadSoilWords(LineReader& in)
{
    int line = 0, slot = 0;
    for (const int wanted : {3, 10, 11, 16, 67, 69, 70, 71}) {
        in.Skip(wanted - line - 1);
        HeadingWords[++slot] = in.Line();
        if (wanted == 3)
            HeadingWords[slot] = Text(Before(HeadingWords[slot], ','));
        line = wanted;
    }
}

// logo.txt of the working folder. Its three lines of text have to be there, the others need not.
static void ReadLogo()
{
    LogoData = LogoRecord();
    LineReader in("logo.txt");
    for (int i = 1; i <= 3; ++i)
        LogoData.Line[i] = in.Line();
    if (!in.AtEnd())
        LogoData.Flag = RoundInt16(TextNumber(in.Line()));
    if (!in.AtEnd())
        LogoData.File = in.Line();
    if (!in.AtEnd())
        LogoData.Resolution = in.Line();
}

void getclientlogo(int kind)
try {
    if (kind == 1)
        LegendBoxFill.slot = {0, 1, 7, 20, 9}; // the usual patterns, also where no heading file can be read
    const Text& told = DeviceConfig.SystemFiles[HeadingFile];
    const Text name = told.empty() ? "us.hdg" : WithEnding(told, ".hdg");
    if (FileExists(name)) {
        LineReader in(name);
        if (!CurrentForm(in.Line())) {
            // Kept: the logo is not read either; nothing is drawn from an old heading file.
            MsgBox("The heading file has an old format.  Use the heading editor to convert it to the new 5.0 format.");
            return;
        }
        if (kind == 1)
            ReadLogWords(in);
        else if (kind == 2)
            ReadSectionWords(in);
        else
            ReadSoilWords(in);
    } else {
        MsgBox("Heading File Not Found:  " + name);
    }
    ReadLogo();
} catch (...) {
    ReportFailure(__func__);
}
