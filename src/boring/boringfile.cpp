// boringfile.cpp -- the boring file of form 5: a line for each cell, in the order of the record, no keys.
//
//     version, Name, MapFile, Info, Scale, RepParts *, LayoutFile, Samples *, Lith *, Des *, Params *,
//     SampleParamSetup, GenParamSetup, WellInfo *, WellNotes *, GenWell, OuterLayers *, InnerLayers *, Remarks *,
//     Cuttings *, Legend *, Formations *, BottNotes, Client, Style, Draft           * its count, then the rows
//
// The scale is checked in boringcheck.cpp; forms before 5 have readers of their own.
#include "boring/boringfile.h"

#include "boring/boringblocks.h"
#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "boring/textlines.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/session.h"
#include "session/shared.h"

#include <algorithm>

std::array<void (*)(), 3> OlderForms = {};

static const SharedRecord shared[] = {
    {"OlderForms", Kind::Session, OlderForms},
};

// ---------------------------------------------------------------------------------------------------- reading

static void ReadReportParts(LineReader& in)
{
    const int told = ReadCount(in, BoringData.RepPartCount, MaxRepParts);
    for (int row = 1; row <= BoringData.RepPartCount; ++row)
        BoringData.RepParts[row] = ReportPart();
    for (int row = 1; row <= told; ++row) {
        BoringData.RepParts[row].Item = in.Line();
        BoringData.RepParts[row].Width = in.Line();
    }
}

// What stands behind the notes depends on the version; the oldest files end there.
static void ReadTail(LineReader& in, const Text& version)
{
    if (!version.starts_with("5.0"))
        return;
    if (HasClient(version)) {
        ReadLines(in, BoringData.Client);
        BoringData.Style = RoundInt16(TextNumber(in.Line()));
    }
    if (!in.AtEnd())
        BoringData.Draft = RoundInt16(TextNumber(in.Line()));
}

// The reader of an older form; a form that has none is refused like a foreign file.
static bool OpenOlderForm(int form)
{
    if (!OlderForms[form]) {
        MsgBox("This boring file has an invalid format.", OkOnly, Exclamation);
        return false;
    }
    const int before = FailuresReported;
    OlderForms[form]();
    return FailuresReported == before;
}

bool OpenBoringFile2()
try {
    if (DialogMode == 0 || DialogMode == 1)
        return OpenOlderForm(DialogMode);
    LineReader in(BoringFileName);
    const Text version = in.Line();
    if (version == "4.6") {
        if (OlderForms[2])
            MsgBox("This boring file has version 4.6 format.  When saved, it will be converted to 5.0 format.");
        return OpenOlderForm(2);
    }
    if (!version.starts_with("5.")) {
        // Kept: the name stays, so a later Save writes over the file that was refused; but for one from outside, which
        // the caller then has no name for.
        MsgBox("This boring file has an invalid format.", OkOnly, Exclamation);
        return false;
    }
    BoringData.Name = in.Line();
    BoringData.MapFile = in.Line();
    ReadCells(in, BoringData.Info);
    ReadLines(in, BoringData.Scale);
    ReadReportParts(in);
    BoringData.LayoutFile = in.Line();
    ReadBlock(in, BoringData.Samples, BoringData.SampleCount);
    ReadBlock(in, BoringData.Lith, BoringData.LithCount);
    ReadBlock(in, BoringData.Des, BoringData.DesCount);
    ReadBlock(in, BoringData.Params, BoringData.ParamCount, ParamCells(version));
    ReadCells(in, BoringData.SampleParamSetup);
    ReadCells(in, BoringData.GenParamSetup);
    ReadBlock(in, BoringData.WellInfo, BoringData.WellInfoCount);
    ReadBlock(in, BoringData.WellNotes, BoringData.WellNoteCount);
    ReadLines(in, BoringData.GenWell);
    ReadBlock(in, BoringData.OuterLayers, BoringData.OuterLayerCount);
    ReadBlock(in, BoringData.InnerLayers, BoringData.InnerLayerCount);
    ReadBlock(in, BoringData.Remarks, BoringData.RemarkCount);
    ReadBlock(in, BoringData.Cuttings, BoringData.CuttingCount);
    ReadBlock(in, BoringData.Legend, BoringData.LegendCount);
    ReadBlock(in, BoringData.Formations, BoringData.FormationCount);
    ReadLines(in, BoringData.BottNotes);
    ReadTail(in, version);
    return true;
} catch (...) {
    ReportFailure(__func__);
    return false;
}

// ---------------------------------------------------------------------------------------------------- writing

static void WriteCount(LineWriter& out, int count)
{
    out.Line(PlainNumber(count));
}

template <int Rows>
static void WriteTrimmed(LineWriter& out, const Slots<Text, Rows>& lines)
{
    for (int row = 1; row <= Rows; ++row)
        out.Line(Trim(lines[row]));
}

template <int Rows, int Columns>
static void WriteTrimmed(LineWriter& out, const TextTable<Rows, Columns>& table, int count = Rows)
{
    for (int row = 1; row <= count; ++row)
        for (int column = 1; column <= Columns; ++column)
            out.Line(Trim(table[row][column]));
}

template <int Rows, int Columns>
static void WriteTrimmedBlock(LineWriter& out, const TextTable<Rows, Columns>& table, int count)
{
    WriteCount(out, count);
    WriteTrimmed(out, table, count);
}

// Stored lines and other text that is written as it stands.
template <int Rows>
static void WriteLines(LineWriter& out, const Slots<Text, Rows>& lines, int count = Rows)
{
    for (int row = 1; row <= count; ++row)
        out.Line(lines[row]);
}

template <int Rows>
static void WriteLineBlock(LineWriter& out, const Slots<Text, Rows>& lines, int count)
{
    WriteCount(out, count);
    WriteLines(out, lines, count);
}

// BoringData as it is, in the newest form, to the file; Style and Draft by their texts.
void WriteBoring(const Text& name, const Text& style, const Text& draft, Durability durability)
{
    LineWriter out(name, durability);
    out.Line(BoringVersion);
    out.Line(Trim(BoringData.Name));
    out.Line(Trim(BoringData.MapFile));
    WriteTrimmed(out, BoringData.Info);
    WriteTrimmed(out, BoringData.Scale);
    WriteCount(out, BoringData.RepPartCount);
    for (int row = 1; row <= BoringData.RepPartCount; ++row) {
        out.Line(Trim(BoringData.RepParts[row].Item));
        out.Line(Trim(BoringData.RepParts[row].Width));
    }
    out.Line(BoringData.LayoutFile);
    WriteTrimmedBlock(out, BoringData.Samples, BoringData.SampleCount);
    WriteTrimmedBlock(out, BoringData.Lith, BoringData.LithCount);
    WriteLineBlock(out, BoringData.Des, BoringData.DesCount);
    WriteTrimmedBlock(out, BoringData.Params, BoringData.ParamCount);
    WriteTrimmed(out, BoringData.SampleParamSetup);
    WriteTrimmed(out, BoringData.GenParamSetup);
    WriteCount(out, BoringData.WellInfoCount);
    for (int row = 1; row <= BoringData.WellInfoCount; ++row)
        WriteLines(out, BoringData.WellInfo[row]);
    WriteLineBlock(out, BoringData.WellNotes, BoringData.WellNoteCount);
    WriteTrimmed(out, BoringData.GenWell);
    WriteTrimmedBlock(out, BoringData.OuterLayers, BoringData.OuterLayerCount);
    WriteTrimmedBlock(out, BoringData.InnerLayers, BoringData.InnerLayerCount);
    WriteLineBlock(out, BoringData.Remarks, BoringData.RemarkCount);
    WriteTrimmedBlock(out, BoringData.Cuttings, BoringData.CuttingCount);
    WriteTrimmedBlock(out, BoringData.Legend, BoringData.LegendCount);
    WriteTrimmedBlock(out, BoringData.Formations, BoringData.FormationCount);
    WriteLines(out, BoringData.BottNotes);
    WriteLines(out, BoringData.Client);
    out.Line(style);
    out.Line(draft);
    out.Close();
}

void WriteConvertedBoring(const Text& name)
try {
    WriteBoring(name, NumberText(BoringData.Style), NumberText(BoringData.Draft));
} catch (...) {
    ReportFailure(__func__);
}

// ------------------------------------------------------------------------------------- from the boxes, and checks

template <int Rows, int Columns>
static void TakeGrid(TextTable<Rows, Columns>& table, const Grid& grid, int count = Rows)
{
    for (int row = 1; row <= count; ++row)
        for (int column = 1; column <= Columns; ++column)
            table[row][column] = grid.Cell(row, column);
}

// Rows up to the last one with data; blank ones between them are kept.
template <int Rows, int Columns>
static void TakeList(TextTable<Rows, Columns>& table, int32_t& count, const Grid& grid)
{
    count = grid.DataRowCount();
    TakeGrid(table, grid, count);
}

template <int Rows>
static void TakeColumn(Slots<Text, Rows>& lines, const Grid& grid)
{
    for (int row = 1; row <= Rows; ++row)
        lines[row] = grid.Cell(row, 1);
}

template <int Rows>
static void TakeLineBuffer(Slots<Text, Rows>& lines, int32_t& count)
{
    count = std::min<int32_t>(LineCount, Rows); // what the record holds, also where the rest makes it fail
    for (int row = 1; row <= LineCount; ++row)
        lines[row] = LineBuffer[row];
}

// The box that refuses a save for too many stored lines in LineBuffer.
static bool TooManyLines(const char* what, int bound)
{
    if (LineCount <= bound)
        return false;
    MsgBox(Text("Your ") + what + " exceed " + PlainNumber(bound) + " lines.  You must reduce the number of lines by " +
               NumberText(LineCount - bound) + ".",
           OkOnly, Exclamation);
    return true;
}

// "@" lines have to be numbered 1, 2, ...; the first that is missing is told, and the scan goes on from the one found.
static void CheckMarkerOrder(void (*tell)(const Text& words, int line))
{
    double last = 0;
    for (int i = 1; i <= LineCount; ++i) {
        if (!LineBuffer[i].starts_with('@'))
            continue;
        const double k = TextNumber(LineBuffer[i].substr(1));
        if (k != last + 1)
            tell("In the description text box, the @" + PlainNumber(last + 1) +
                     " marker is missing.  The @ markers used to place descriptions must be entered in order starting "
                     "with @1.  Enter a marker as a place holder, even if you have no text for a contact box. ",
                 i);
        last = k;
    }
}

static void CheckMarkerBounds(int contacts, void (*tell)(const Text& words, int line))
{
    for (int i = 1; i <= LineCount; ++i) {
        if (!LineBuffer[i].starts_with('@'))
            continue;
        // Kept: one digit only, so "@12" counts as contact box 1.
        if (TextNumber(LineBuffer[i].substr(1, 1)) > contacts)
            tell("Warning: In your description text, you have entered a reference to a contact box, " + LineBuffer[i] +
                     ", that does not exist.  Remember that ''@'' plus a number is used to place text at the top of "
                     "a contact box, and ''-'' plus a number is used to place text at a depth.",
                 i);
    }
}

void CheckMarkers(int contacts, void (*tell)(const Text& words, int line))
{
    CheckMarkerOrder(tell);
    CheckMarkerBounds(contacts, tell);
}

static void TakeBottNotes(bool checked)
{
    Text2Wrap32(5);
    if (checked && LineCount > MaxBottNotes)
        MsgBox("Your general notes exceed 10 lines.  Only the first 10 lines will be saved.", OkOnly, Exclamation);
    for (int i = 1; i <= MaxBottNotes; ++i)
        BoringData.BottNotes[i] = i <= LineCount ? LineBuffer[i] : "";
}

// The boxes into the record. False: refused, and a box has told why. Unchecked, nothing is told and nothing refused:
// more well notes or remarks than the record holds are failure 9 then, descriptions and general notes are cut.
static bool TakeBoxes(bool checked)
{
    BoringData.Name = frmBorinput::Text1;
    BoringData.MapFile = frmBorinput::Text2;
    BoringData.LayoutFile = frmBorinput::cmbLayFile;
    if (!UpperCase(BoringData.LayoutFile).ends_with(".LAY"))
        BoringData.LayoutFile += ".lay";
    BoringData.Draft = frmBorinput::Check1 ? 1 : 0;
    TakeGrid(BoringData.Info, frmBorinput::SSInfo);
    TakeColumn(BoringData.Scale, frmBorinput::SSScale);
    BoringData.RepPartCount = frmBorinput::SSRepParts.DataRowCount();
    for (int row = 1; row <= BoringData.RepPartCount; ++row)
        BoringData.RepParts[row] = {frmBorinput::SSRepParts.Cell(row, 1), frmBorinput::SSRepParts.Cell(row, 2)};
    TakeGrid(BoringData.SampleParamSetup, frmBorinput::SSP1Setup);
    TakeGrid(BoringData.GenParamSetup, frmBorinput::SSP2Setup);
    TakeList(BoringData.Samples, BoringData.SampleCount, frmBorinput::SSSamp);
    TakeList(BoringData.Lith, BoringData.LithCount, frmBorinput::SSLith);
    for (int row = 1; row <= BoringData.LithCount; ++row)
        for (int column = 1; column <= 4; ++column)
            BoringData.Lith[row][column] = UpperCase(BoringData.Lith[row][column]);
    Text2Wrap32(1);
    // Text2Wrap32 hands over no more than there is room for; a breaker that did would be caught here.
    if (checked && TooManyLines("descriptions", MaxDes))
        return false;
    if (checked)
        CheckMarkers(BoringData.LithCount, [](const Text& words, int) { MsgBox(words, OkOnly, Exclamation); });
    TakeLineBuffer(BoringData.Des, BoringData.DesCount);
    TakeList(BoringData.Params, BoringData.ParamCount, frmBorinput::SSPar);
    TakeColumn(BoringData.GenWell, frmBorinput::SSGenWellInfo);
    TakeList(BoringData.OuterLayers, BoringData.OuterLayerCount, frmBorinput::SSOuterLay);
    TakeList(BoringData.InnerLayers, BoringData.InnerLayerCount, frmBorinput::SSInnerLay);
    TakeList(BoringData.WellInfo, BoringData.WellInfoCount, frmBorinput::SSW);
    Text2Wrap32(2);
    if (checked && TooManyLines("notes", MaxWellNotes))
        return false;
    TakeLineBuffer(BoringData.WellNotes, BoringData.WellNoteCount);
    Text2Wrap32(3);
    if (checked && TooManyLines("remarks", MaxRemarks))
        return false;
    TakeLineBuffer(BoringData.Remarks, BoringData.RemarkCount);
    TakeBottNotes(checked);
    TakeList(BoringData.Cuttings, BoringData.CuttingCount, frmBorinput::SSCuttings);
    TakeList(BoringData.Formations, BoringData.FormationCount, frmBorinput::SSFormations);
    TakeList(BoringData.Legend, BoringData.LegendCount, frmBorinput::SSLegend);
    Text2Array(frmBorinput::txtClient);
    for (int i = 1; i <= MaxClient; ++i)
        BoringData.Client[i] = LineBuffer[i];
    // Kept: with no style chosen the last one is saved.
    const int option = frmBorinput::Option;
    BoringData.Style = option >= 1 && option <= 3 ? int16_t(option) : int16_t(4);
    return true;
}

void TakeBoringBoxes()
{
    TakeBoxes(false);
}

void SaveBoringFile()
try {
    if (!TakeBoxes(true))
        return;
    while (BoringData.RepPartCount > 0 && IsBlank(BoringData.RepParts[BoringData.RepPartCount].Item))
        --BoringData.RepPartCount;
    WriteBoring(BoringFileName, PlainNumber(BoringData.Style), IntegerField(BoringData.Draft));
} catch (...) {
    ReportFailure(__func__);
}
