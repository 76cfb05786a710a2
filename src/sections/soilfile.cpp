// soilfile.cpp -- the .SOI file: nine cells, then ten lines of notes.
#include "sections/soilfile.h"

#include "boring/textlines.h"
#include "grid/gridedit.h"
#include "report/prompts.h"
#include "session/deviceconfig.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/session.h"
#include "session/shared.h"

#include <algorithm>

SoilRecord SoilData;
Grid frmSoil::SS1(MaxSoilCells, 1);
Text frmSoil::FileName;

static const SharedRecord shared[] = {
    {"SoilData", Kind::Document, SoilData},
    {"frmSoil::SS1", Kind::Boxes, frmSoil::SS1},
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

// Whether the end of a stored note is in the middle of a word: one that is wider than the box is cut where the box is
// full, with nothing else in its line.
static bool CutInWord(const Text& note, const Text& next)
{
    return !Holds(note, ' ') && AdvanceWidth(note) + AdvanceWidth(next[0]) > frmSoil::MemoSoil.Room();
}

// Notes with marks as flowing text: a mark ends a paragraph, and a note without one runs on into the next. Notes are
// stored without blanks at their end, so the one that stood where a line was cut is put in again. An empty note without
// a mark cannot hold text.
static Text FlowingNotes()
{
    Text text;
    const Text* cut = nullptr; // the note before, where it runs on
    for (int row = 1; row <= MaxSoilNotes; ++row) {
        const Text& note = SoilData.notes[row];
        if (IsBlank(note))
            continue;
        if (cut && !cut->ends_with(' ') && !CutInWord(*cut, note))
            text += ' ';
        const bool closed = note.ends_with(ParagraphMark);
        text.append(note, 0, note.size() - closed).append(closed ? CrLf : "");
        cut = closed ? nullptr : &note;
    }
    return text;
}

// Notes without marks as text: each is a line of its own. Those that are empty at the end are left out, or they would
// fill the box.
static Text LinesOfNotes()
{
    int last = MaxSoilNotes;
    while (last > 0 && IsBlank(SoilData.notes[last]))
        --last;
    Text text;
    for (int row = 1; row <= last; ++row)
        text.append(row == 1 ? "" : CrLf).append(SoilData.notes[row]);
    return text;
}

static bool Marked()
{
    for (const Text& note : SoilData.notes.slot)
        if (note.ends_with(ParagraphMark))
            return true;
    return false;
}

static Text NotesText()
{
    return Marked() ? FlowingNotes() : LinesOfNotes();
}

// Whether flowing notes are in their box as they came, and the box is as wide as it was. They stay cut where they are
// then: the lines are what is printed, and a box of another width, or another program, may have cut them.
static bool NotesLeftAlone()
{
    return Marked() && frmSoil::MemoSoil.widthTwips == SoilData.notesWidth && frmSoil::MemoSoil.text == FlowingNotes();
}

// The notes as their box shows them. False: there are too many, which is told.
static bool TakeNotes()
{
    if (NotesLeftAlone())
        return true;
    Text2Wrap32(4);
    if (LineCount > MaxSoilNotes) {
        MsgBox("Your notes exceed 10 lines.  You must reduce the number of lines by " +
                   NumberText(LineCount - MaxSoilNotes) + ".",
               OkOnly, Exclamation);
        return false;
    }
    for (int row = 1; row <= MaxSoilNotes; ++row)
        SoilData.notes[row] = row <= LineCount ? LineBuffer[row] : "";
    SoilData.notesWidth = frmSoil::MemoSoil.widthTwips;
    return true;
}

bool SaveSoilFile()
try {
    for (int row = 1; row <= MaxSoilCells; ++row)
        SoilData.cells[row] = frmSoil::SS1.Cell(row, 1);
    if (!TakeNotes())
        return false;
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

void FillSoilForm()
try {
    frmSoil::Title = frmSoil::FileName + " - " + toolTitle;
    for (int row = 1; row <= MaxSoilCells; ++row)
        frmSoil::SS1.Cell(row, 1) = SoilData.cells[row];
    frmSoil::MemoSoil.text = NotesText();
    SoilData.notesWidth = frmSoil::MemoSoil.widthTwips;
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
