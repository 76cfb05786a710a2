// fillform.cpp -- the boxes of the log tool: filled, emptied, and sized for the columns that they print in.
#include "editors/fillform.h"

#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "boring/reportparts.h"
#include "boring/textlines.h"
#include "report/layout.h"
#include "session/deviceconfig.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/session.h"

#include <algorithm>
#include <cmath>

using namespace frmBorinput;

static const char* const titleWords = "VeskLog - Boring Log Diagram";

template <int Rows, int Columns>
static void FillGrid(Grid& grid, const TextTable<Rows, Columns>& table, int count = Rows)
{
    for (int row = 1; row <= count; ++row)
        for (int column = 1; column <= Columns; ++column)
            grid.Cell(row, column) = table[row][column];
}

template <int Rows>
static void FillColumn(Grid& grid, const Slots<Text, Rows>& lines)
{
    for (int row = 1; row <= Rows; ++row)
        grid.Cell(row, 1) = lines[row];
}

static void ShowParameterNames()
{
    for (int n = 1; n <= SampleParams; ++n)
        SSSamp.headings[size_t(n) + 5] = BoringData.SampleParamSetup[n][1];
    for (int n = 1; n <= GenParams; ++n)
        SSPar.headings[size_t(n) + 1] = BoringData.GenParamSetup[n][1];
}

void LabelParameters()
{
    for (int n = 1; n <= SampleParams; ++n)
        SSSamp.headings[size_t(n) + 5] = "Param." + NumberText(n);
    for (int n = 1; n <= GenParams; ++n)
        SSPar.headings[size_t(n) + 1] = "Param." + NumberText(n);
}

void FillBoringForm()
try {
    Title = BoringFileName + " - " + titleWords;
    Text1 = BoringData.Name;
    Text2 = BoringData.MapFile;
    if (cmbLayFile != BoringData.LayoutFile) {
        cmbLayFile = BoringData.LayoutFile;
        LayoutFileChange();
    }
    Check1 = BoringData.Draft != 0;
    FillGrid(SSInfo, BoringData.Info);
    FillColumn(SSScale, BoringData.Scale);
    for (int row = 1; row <= BoringData.RepPartCount; ++row) {
        SSRepParts.Cell(row, 1) = BoringData.RepParts[row].Item;
        SSRepParts.Cell(row, 2) = BoringData.RepParts[row].Width;
    }
    FillGrid(SSSamp, BoringData.Samples, BoringData.SampleCount);
    FillGrid(SSLith, BoringData.Lith, BoringData.LithCount);
    FillGrid(SSPar, BoringData.Params, BoringData.ParamCount);
    FillGrid(SSP1Setup, BoringData.SampleParamSetup);
    FillGrid(SSP2Setup, BoringData.GenParamSetup);
    FillGrid(SSW, BoringData.WellInfo, BoringData.WellInfoCount);
    FillColumn(SSGenWellInfo, BoringData.GenWell);
    FillGrid(SSOuterLay, BoringData.OuterLayers, BoringData.OuterLayerCount);
    FillGrid(SSInnerLay, BoringData.InnerLayers, BoringData.InnerLayerCount);
    FillGrid(SSCuttings, BoringData.Cuttings, BoringData.CuttingCount);
    FillGrid(SSLegend, BoringData.Legend, BoringData.LegendCount);
    FillGrid(SSFormations, BoringData.Formations, BoringData.FormationCount);
    MemoDes.text = FlowingText(BoringData.Des, BoringData.DesCount);
    MemoWcon.text = FlowingText(BoringData.WellNotes, BoringData.WellNoteCount);
    MemoRemarks.text = FlowingText(BoringData.Remarks, BoringData.RemarkCount);
    MemoBottNotes.text = FlowingText(BoringData.BottNotes, MaxBottNotes);
    for (Memo* box : {&MemoDes, &MemoWcon, &MemoRemarks, &MemoBottNotes})
        box->edited = false;
    ShowParameterNames();
    BorTextChange();
    txtClient.clear();
    for (int i = 1; i <= MaxClient; ++i)
        txtClient += BoringData.Client[i] + CrLf;
    Option = BoringData.Style >= 1 && BoringData.Style <= 4 ? BoringData.Style : 0;
} catch (...) {
    ReportFailure(__func__);
}

void ClearBoringForm()
{
    BoringFileName.clear();
    Text1.clear();
    Text2.clear();
    if (!cmbLayFile.empty()) {
        cmbLayFile.clear();
        LayoutFileChange();
    }
    for (Memo* box : {&MemoDes, &MemoWcon, &MemoRemarks, &MemoBottNotes}) {
        box->text.clear();
        box->edited = false; // of another boring
    }
    txtClient.clear();
    Check1 = false;
    Option = 0;
    lblWidthtot = "       ";
    SSInfo.Clear();
    SSScale.Clear();
    for (Grid* grid : {&SSRepParts, &SSP1Setup, &SSP2Setup, &SSPar, &SSSamp, &SSLith, &SSGenWellInfo, &SSOuterLay,
                       &SSInnerLay, &SSW, &SSCuttings, &SSFormations, &SSLegend})
        grid->ClearRows(1, grid->DataRowCount());
    ClearBoringArrays();
    LabelParameters();
    FileChanged = 0;
    Title = titleWords;
}

void SetupGridChange()
{
    for (int row = 1; row <= SampleParams; ++row)
        for (int column = 1; column <= 9; ++column)
            BoringData.SampleParamSetup[row][column] = SSP1Setup.Cell(row, column);
    for (int row = 1; row <= GenParams; ++row)
        for (int column = 1; column <= 8; ++column)
            BoringData.GenParamSetup[row][column] = SSP2Setup.Cell(row, column);
    ShowParameterNames();
    FileChanged = 1;
}

namespace
{
enum Test { Begins, Equals };

// What the editor knows of a report part: its usual width, and for a column of text its limits, the words for a
// width out of them, and the box that wraps its text.
struct PartDefault {
    Test test;
    std::string_view words;
    const char* width;
    Memo* box = nullptr;
    int adjustment = 0; // which of the text adjustments
    float least = 0, most = 0;
    const char* tooNarrow = nullptr;
    const char* tooWide = nullptr;
};
} // namespace

static const PartDefault partDefaults[] = {
    {Begins, "DES", "3", &MemoDes, 1, 2, 3.6f, "The width of the description box must be at least 2 inches.",
     "The width of the description box must not exceed 3.6 inches."},
    {Begins, "WELL C", "2", &MemoWcon, 2, 1, 3, "The width of the WELL CONSTRUCTION column must be at least 1 inch.",
     "The width of the WELL CONSTRUCTION column must not exceed 3 inches."},
    {Equals, "REMARKS", "1.4", &MemoRemarks, 3, 0.5, 3, "The width of the REMARKS column must be at least 0.5 inches.",
     "The width of the REMARKS column must not exceed 3 inches."},
    {Begins, "P", ".4"},      // Kept: "P12G" and its kin too, whose drawn width is fixed
    {Begins, "GPG", nullptr}, // as any other item, and not as "GP"
    {Begins, "GP", ".5"},
    {Equals, "USCS", ".25"},
    {Begins, "GRAP", ".25"},
    {Begins, "MPG", "1.6"},
    {Begins, "DEP", ".4"},
};

// The width of a text box, so that its lines fit the printed column with its margins.
static void SizeBox(const PartDefault& part, float width)
{
    if (width < part.least)
        MsgBox(part.tooNarrow);
    if (width > part.most)
        MsgBox(part.tooWide);
    const double room = (std::clamp(width, part.least, part.most) - 0.1) * part.box->factor;
    part.box->widthTwips = RoundInt32(room + DeviceConfig.TextAdjust[part.adjustment] + 255);
}

// Row of the report part grid into the record, with its default width put in. An item that has none is as wide as
// the program makes it, which shows as "-".
static void TakeReportPart(int row)
{
    ReportPart& part = BoringData.RepParts[row];
    part.Item = Trim(SSRepParts.Cell(row, 1));
    part.Width = Trim(SSRepParts.Cell(row, 2));
    if (part.Width == "-")
        part.Width.clear();
    const Text upper = UpperCase(part.Item);
    const auto known = std::find_if(std::begin(partDefaults), std::end(partDefaults), [&](const PartDefault& usual) {
        return usual.test == Equals ? upper == usual.words : upper.starts_with(usual.words);
    });
    if (known == std::end(partDefaults) || !known->width)
        SSRepParts.Cell(row, 2) = part.Width = "-";
    else if (part.Width.empty())
        SSRepParts.Cell(row, 2) = part.Width = known->width;
    if (known != std::end(partDefaults) && known->box)
        SizeBox(*known, float(TextNumber(part.Width)));
}

// The columns' sum against the width of the page. Kept: a depth scale in the first column stands left of the frame
// for the most part and counts as 0.4 less; the total is shown, not enforced.
static void ShowTotalWidth()
{
    double total = 0;
    for (int row = 1; row <= BoringData.RepPartCount; ++row) {
        const ReportPart& part = BoringData.RepParts[row];
        if (row == 1 && UpperCase(part.Item).starts_with("DEP"))
            total += TextNumber(part.Width) - 0.4;
        else
            total += findpartwidth(part.Item, part.Width);
    }
    const int orientation = LayoutData.Orientation;
    lblWidthtot = PlainNumber(total) + (orientation == 0 ? "/6.8" : orientation == 1 ? "/9.2" : "/15.2");
}

void BorTextChange()
try {
    FileChanged = 1;
    BoringData.RepPartCount = SSRepParts.DataRowCount();
    for (int row = 1; row <= BoringData.RepPartCount; ++row)
        TakeReportPart(row);
    ShowTotalWidth();
} catch (...) {
    ReportFailure(__func__);
}

void LayoutFileChange()
{
    findbottnotewidth();
    changebottnotewidth();
    FileChanged = 1;
}

void findbottnotewidth()
try {
    if (!FileExists(cmbLayFile))
        return;
    LineReader in(cmbLayFile);
    LayoutData.Orientation = RoundInt16(TextNumber(in.Line()));
    for (int i = 1; i <= 12; ++i) {
        const int16_t code = RoundInt16(TextNumber(in.Line()));
        if (code == 10)
            NarrowNotes = true;
        else if (code == 11)
            NarrowNotes = false;
    }
} catch (...) {
    ReportFailure(__func__);
}

void changebottnotewidth()
try {
    const int adjustment = DeviceConfig.TextAdjust[4];
    MemoBottNotes.widthTwips = NarrowNotes ? std::min(6200 + adjustment, 6700) : std::min(8010 + adjustment, 9000);
} catch (...) {
    ReportFailure(__func__);
}

void ResetTextBoxes()
try {
    BorTextChange();
    changebottnotewidth();
    frmSoil::MemoSoil.widthTwips = std::min(6800 + DeviceConfig.TextAdjust[5], 10000);
} catch (...) {
    ReportFailure(__func__);
}

void AdjustTextBox(int button)
{
    Memo* const boxes[] = {&MemoDes, &MemoWcon, &MemoRemarks, &MemoBottNotes};
    const int box = (button + 1) / 2;
    int16_t& adjustment = DeviceConfig.TextAdjust[box];
    if (button == 2 && adjustment >= 900) {
        MsgBox("Maximum text adjustment reached.  Note: clicking these arrows does not change the width of the "
               "description box on the printed diagram.  These arrows adjust the amount of text placed on each line "
               "in the description box.  After printing a test diagram, examine the text in the description box.  If "
               "the text falls short of the right side of the box, increase this text box size.  Decrease this text "
               "box if the text runs over the right side of the box.  To change the width of the actual description "
               "box, edit the width of the 'descriptions' item under report parts.");
        return;
    }
    const int change = button % 2 == 0 ? 50 : -50;
    adjustment = RoundInt16(adjustment + change);
    boxes[box - 1]->widthTwips += change;
    DeviceChanged = 1;
    FileChanged = 1;
}

Text PageWords()
{
    const int pages = BoringFileName.empty() ? 0 : PagesOfLog();
    return pages == 0 ? "no page" : PlainNumber(pages) + (pages == 1 ? " page" : " pages");
}

void EditLayouts(void (*edit)())
{
    struct InUse {
        const decltype(LayoutData.Orientation) orientation = LayoutData.Orientation;
        ~InUse()
        {
            LayoutData.Orientation = orientation;
            findbottnotewidth(); // it may be the one that was edited
            changebottnotewidth();
            if (!IsBlank(lblWidthtot))
                ShowTotalWidth();
        }
    } inUse;
    edit();
}

void SetUpGraphics(bool documentEmpty)
{
    const int16_t before = FileChanged;
    Platform.ShowGraphicsSetup();
    if (documentEmpty)
        FileChanged = before;
}

bool BoringEmpty()
{
    for (int box = 1; box <= 16; ++box)
        if (const Grid* grid = BoxGrid(box))
            if (grid->DataRowCount() > 0)
                return false;
    for (const Text* text : {&BoringFileName, &Text1, &Text2, &cmbLayFile, &txtClient, &MemoDes.text, &MemoWcon.text,
                             &MemoRemarks.text, &MemoBottNotes.text})
        if (!text->empty())
            return false;
    return !Check1 && Option == 0;
}
