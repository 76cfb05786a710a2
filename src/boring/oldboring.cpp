// oldboring.cpp -- boring files of the forms 4.6, 4.0 and 3.0: a line for each cell, as in form 5, with fewer blocks.
//
//     [version], Name, Info (8 rows), Scale (6 rows; 4), list of columns, Samples *, Lith *, Des *, Params *,
//     SampleParamSetup, GenParamSetup, 39 lines of no use, WellInfo *, WellNotes *, GenWell (10 rows; 7),
//     1 line (2) of no use, OuterLayers *, InnerLayers *, Remarks *, Cuttings *, Legend *, Formations *
//
// A star is a count and then the rows. The figures behind ";" and in brackets are those of form 3.0. Only 4.6 has a
// version line.
#include "boring/oldboring.h"

#include "boring/boringblocks.h"
#include "boring/boringdata.h"
#include "boring/boringfile.h"
#include "boring/reportparts.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/session.h"

namespace
{
enum Form { Form3, Form4, Form46 };
} // namespace

// Cuts a cell at its first comma; without one the second cell becomes empty.
static void CutAtComma(Text& cell, Text& behind)
{
    behind = Text(Behind(cell, ','));
    cell = Text(Before(cell, ','));
}

// Scale rows that shared a line.
static void ReadScale(LineReader& in, Form form)
{
    ReadLines(in, BoringData.Scale, form == Form3 ? 4 : 6);
    if (form == Form3) {
        CutAtComma(BoringData.Scale[4], BoringData.Scale[5]);
        CutAtComma(BoringData.Scale[5], BoringData.Scale[6]);
    } else if (Holds(BoringData.Scale[5], ',')) {
        CutAtComma(BoringData.Scale[5], BoringData.Scale[7]);
    }
}

// Form 4.0 has a column for the colour; in the others it stands behind the line type.
static void ReadLith(LineReader& in, Form form)
{
    const int told = ReadCount(in, BoringData.LithCount, MaxLith);
    for (int row = 1; row <= BoringData.LithCount; ++row)
        BoringData.Lith[row] = {};
    for (int row = 1; row <= told; ++row) {
        for (int column = 1; column <= (form == Form4 ? 4 : 3); ++column)
            BoringData.Lith[row][column] = in.Line();
        if (form != Form4)
            CutAtComma(BoringData.Lith[row][3], BoringData.Lith[row][4]);
    }
}

// Before 4.6 whole lines were stored, not wrapped ones: each is a paragraph.
static void ReadDes(LineReader& in, Form form)
{
    const int told = ReadCount(in, BoringData.DesCount, MaxDes);
    for (int row = 1; row <= BoringData.DesCount; ++row)
        BoringData.Des[row].clear();
    for (int row = 1; row <= told; ++row) {
        BoringData.Des[row] = in.Line();
        if (form != Form46)
            BoringData.Des[row] += ParagraphMark;
    }
}

static void ReadGenWell(LineReader& in, Form form)
{
    if (form == Form3) {
        for (const int row : {1, 2, 5, 6, 7, 11, 13})
            BoringData.GenWell[row] = in.Line();
        CutAtComma(BoringData.GenWell[7], BoringData.GenWell[8]);
        in.Skip(2);
    } else {
        for (const int row : {1, 2, 5, 6, 7, 8, 9, 10, 11, 13})
            BoringData.GenWell[row] = in.Line();
        in.Skip(1);
    }
}

// Everything behind the version line.
static void ReadOldBoring(LineReader& in, Form form)
{
    BoringData.Name = in.Line();
    ReadCells(in, BoringData.Info, 8);
    ReadScale(in, form);
    convertrepparts(in.Line());
    ReadBlock(in, BoringData.Samples, BoringData.SampleCount);
    if (form == Form3) // Kept: what that form holds in the column of the condition is dropped
        for (int row = 1; row <= BoringData.SampleCount; ++row)
            BoringData.Samples[row][3].clear();
    ReadLith(in, form);
    ReadDes(in, form);
    ReadBlock(in, BoringData.Params, BoringData.ParamCount, 9);
    ReadCells(in, BoringData.SampleParamSetup);
    ReadCells(in, BoringData.GenParamSetup);
    in.Skip(39);
    ReadBlock(in, BoringData.WellInfo, BoringData.WellInfoCount);
    ReadBlock(in, BoringData.WellNotes, BoringData.WellNoteCount);
    ReadGenWell(in, form);
    ReadBlock(in, BoringData.OuterLayers, BoringData.OuterLayerCount, 4);
    ReadBlock(in, BoringData.InnerLayers, BoringData.InnerLayerCount);
    ReadBlock(in, BoringData.Remarks, BoringData.RemarkCount);
    ReadBlock(in, BoringData.Cuttings, BoringData.CuttingCount);
    ReadBlock(in, BoringData.Legend, BoringData.LegendCount);
    ReadBlock(in, BoringData.Formations, BoringData.FormationCount);
}

void OpenSV46()
try {
    LineReader in(BoringFileName);
    if (in.Line() != "4.6") {
        MsgBox("This boring file has an format prior to version 4.6.  Use the Conversion Utility to convert it to "
               "version 4.6 format.",
               OkOnly, Exclamation);
        return;
    }
    ReadOldBoring(in, Form46);
} catch (...) {
    ReportFailure(__func__);
}

void OpenSV4(const Text& name)
try {
    LineReader in(name);
    ReadOldBoring(in, Form4);
} catch (...) {
    ReportFailure(__func__);
}

// Kept: whatever file was chosen is taken to be of the form that the user marked, so the version line of a later form
// becomes the name.
void OpenSV3(const Text& name)
try {
    LineReader in(name);
    ReadOldBoring(in, Form3);
} catch (...) {
    ReportFailure(__func__);
}

void FillOlderForms()
{
    OlderForms[0] = [] { OpenSV3(BoringFileName); };
    OlderForms[1] = [] { OpenSV4(BoringFileName); };
    OlderForms[2] = OpenSV46;
}
