// soilfile.cpp -- the .SOI file: nine cells, then ten lines of notes.
#include "sections/soilfile.h"

#include "boring/textlines.h"
#include "report/prompts.h"
#include "session/deviceconfig.h"
#include "session/files.h"
#include "session/gridedit.h"
#include "session/platform.h"
#include "session/session.h"
#include "session/shared.h"

#include <algorithm>

SoilRecord SoilData;
Grid frmSoil::SS1(MaxSoilCells, 1);
Text frmSoil::FileName;

static const SharedRecord shared[] = {
    {"SoilData", Kind::Document, SoilData},
    {"frmSoil::SS1", Kind::Document, frmSoil::SS1},
    {"frmSoil::FileName", Kind::Document, frmSoil::FileName},
};

static const char* const toolTitle = "VeskSoil - Soil Analysis Table";

void frmSoil::LabelBoxes()
{
    const char* const rows[] = {"Boring File",      "Parameter #'s",     "Standard Label 1",
                                "Standard Label 2", "Print Graph (Y/N)", "Main Title",
                                "Title 1",          "Title 2",           "Title 3"};
    SS1.title = PromptLabel(203, "Report Information");
    SS1.headings.assign(2, "");
    SS1.rowHeadings.assign(1, "");
    for (int row = 1; row <= MaxSoilCells; ++row)
        SS1.rowHeadings.push_back(PromptLabel(203 + row, rows[row - 1]));
}

void ClearSoilArrays()
{
    SoilData = SoilRecord();
}

void OpenSoilFile()
try {
    ClearSoilArrays();
    LineReader in(frmSoil::FileName);
    for (int row = 1; row <= MaxSoilCells; ++row)
        SoilData.cells[row] = in.Line();
    for (int row = 1; row <= MaxSoilNotes; ++row)
        SoilData.notes[row] = in.Line();
} catch (...) {
    ReportFailure(__func__);
}

bool SaveSoilFile()
try {
    for (int row = 1; row <= MaxSoilCells; ++row)
        SoilData.cells[row] = frmSoil::SS1.Cell(row, 1);
    Text2Wrap32(4);
    if (LineCount > MaxSoilNotes) {
        MsgBox("Your notes exceed 10 lines.  You must reduce the number of lines by " +
                   NumberText(LineCount - MaxSoilNotes) + ".",
               OkOnly, Exclamation);
        return false;
    }
    for (int row = 1; row <= MaxSoilNotes; ++row)
        SoilData.notes[row] = row <= LineCount ? LineBuffer[row] : "";
    LineWriter out(frmSoil::FileName);
    for (int row = 1; row <= MaxSoilCells; ++row)
        out.Line(RTrim(SoilData.cells[row]));
    for (int row = 1; row <= MaxSoilNotes; ++row)
        out.Line(RTrim(SoilData.notes[row]));
    out.Close();
    return true;
} catch (...) {
    ReportFailure(__func__);
    return false;
}

// A note as it was typed: without the mark at its end.
static std::string_view NoteWords(int row)
{
    std::string_view words = SoilData.notes[row];
    if (words.ends_with(ParagraphMark))
        words.remove_suffix(1);
    return words;
}

// The notes as text: each line ends a paragraph, since the box has the width that they were cut to. Lines that are
// empty at the end are left out, or they would fill the box.
static Text NotesText()
{
    int last = MaxSoilNotes;
    while (last > 0 && IsBlank(NoteWords(last)))
        --last;
    Text text;
    for (int row = 1; row <= last; ++row)
        text.append(row == 1 ? "" : CrLf).append(NoteWords(row));
    return text;
}

void FillSoilForm()
try {
    frmSoil::Title = frmSoil::FileName + " - " + toolTitle;
    for (int row = 1; row <= MaxSoilCells; ++row)
        frmSoil::SS1.Cell(row, 1) = SoilData.cells[row];
    frmSoil::MemoSoil.text = NotesText();
    ForgetSteps(frmSoil::SS1);
} catch (...) {
    ReportFailure(__func__);
}

void frmSoil::SizeMemo()
{
    MemoSoil.widthTwips = std::min(6800 + DeviceConfig.TextAdjust[5], 10000);
}

// By the rule of the log tool's text boxes.
static void AdjustMemo(int change)
{
    DeviceConfig.TextAdjust[5] = RoundInt16(DeviceConfig.TextAdjust[5] + change);
    frmSoil::MemoSoil.widthTwips += change;
    DeviceChanged = 1;
    FileChanged = 1;
}

void frmSoil::cmdAdj5()
{
    AdjustMemo(-50);
}

void frmSoil::cmdAdj6()
{
    AdjustMemo(50);
}
