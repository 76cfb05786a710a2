// headingedit.cpp -- the commands of the heading editor and of its legend editor.
#include "report/headingedit.h"

#include "grid/gridedit.h"
#include "report/heading.h"
#include "session/deviceconfig.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/savename.h"
#include "session/session.h"
#include "session/shared.h"

Text frmHeading::Title;
frmDescLegend::Record frmDescLegend::Dialog;

static const SharedRecord shared[] = {
    {"frmHeading::Title", Kind::Window, frmHeading::Title},
    {"frmDescLegend::Dialog", Kind::Window, frmDescLegend::Dialog},
};

// Shown beside each word as guidance; a fresh heading file holds them.
static const char* const defaultTexts[] = {
    "LOG OF BORING", "Page, of", "Depth, in", "Surf.", "Elev.", "Samples", "Blow Count", "Graph", "Lab No.", "GRAPHIC",
    "USCS", "DESCRIPTION", "Well", "Well Construction", "Information", "NOTES", "REMARKS", "PROJECT MAP", "LEGEND",
    "SIEVE", "ANALYSIS", "CUTTINGS", "Fine", "Med.", "Coarse", "Formation", "Cover", "Water Levels", "Surface",
    "Casing", "PACKER", "FILL", "GROUT", "SEAL", "FILTER", "PACK", "CENT", "SCREEN", "PUMP",
    // Slots 62 to 71.
    "ELEVATION", "DISTANCE", "Geologic Cr. Sect.", "SECTION", "Geologic Fence Diag.", "Soil Sample Analysis", "LEGEND",
    "Sample Source", "SAMP #", "LAB #",
    // Slots 72 to 84.
    "SOURCE", "Sampling Dates", "NOTES", "Units", "PARAMETER", "Date, Sampled", "Project Dates", "EPISODE", "SCALE MAX",
    "Ref, Elevation", "Dates", "Water, Depth", "Water, Elevation"};

void frmHeading::Load()
{
    DialogResult = "";
    HeadingTable = {};
    Title = "Heading Editor";
    SSLog.title = "VeskLog Headings and Keywords";
    SSSections.title = "VeskCross/Fence/Soil Headings";
    SSGraphics.title = "GW Graphics Headings";
    const char* const* next = defaultTexts;
    for (Grid* grid : {&SSLog, &SSSections, &SSGraphics}) {
        grid->headings = {"", "Default Text", "New Text"};
        grid->locked = 1;
        grid->fontName = DeviceConfig.FontName;
        ForgetSteps(*grid);
        grid->row = 1;
        grid->column = 2;
        grid->selected = {1, 2, 1, 2};
        for (int row = 1; row <= grid->rows; ++row) {
            grid->Cell(row, 1) = *next++;
            grid->Cell(row, 2).clear();
        }
    }
}

void frmHeading::mnuOpen()
{
    DialogMode = 9;
    Platform.ShowChooser();
    if (DialogResult.empty())
        return;
    OpenHeadingFile();
    for (Grid* grid : {&SSLog, &SSSections, &SSGraphics})
        ForgetSteps(*grid);
    Title = "Heading Editor - " + DialogResult;
}

void frmHeading::mnuSave()
{
    if (DialogResult.empty())
        mnuSaveAs();
    else
        SaveHeadingFile();
}

void frmHeading::mnuSaveAs()
{
    DialogMode = 10;
    Platform.ShowChooser();
    if (DialogResult.empty())
        return;
    DialogResult = WithEnding(DialogResult, ".HDG");
    if (!MayReplace(DialogResult))
        return;
    SaveHeadingFile();
    Title = "Heading Editor - " + DialogResult;
}

// ---------------------------------------------------------------------------------------------------- the legends

// Where each legend stands in the table: its title, and the flag that it is in use.
static constexpr int titleSlots[] = {40, 46, 50, 56};
static constexpr int useSlots[] = {45, 49, 55, 61};
static constexpr int firstBox = 41, triangleSlot = 47, openTriangleSlot = 48;

void frmDescLegend::Load()
{
    Dialog = Record();
    for (int i = 1; i <= 4; ++i) {
        Dialog.Title[i] = HeadingTable[titleSlots[i - 1]];
        Dialog.Use[i] = TextNumber(HeadingTable[useSlots[i - 1]]) > 0;
        const Text& box = HeadingTable[firstBox + i - 1];
        Dialog.BoxText[i] = Text(Before(box, ','));
        Dialog.BoxFill[i] = Text(Behind(box, ','));
        for (int legend = 1; legend <= 2; ++legend)
            Dialog.Line[legend][i] = HeadingTable[titleSlots[legend + 1] + i];
    }
    Dialog.FilledTriangle = Text(Before(HeadingTable[triangleSlot], '|'));
    Dialog.Diamond = Text(Behind(HeadingTable[triangleSlot], '|'));
    Dialog.OpenTriangle = HeadingTable[openTriangleSlot];
}

bool frmDescLegend::Command1()
{
    int inUse = 0;
    for (int i = 1; i <= 4; ++i)
        inUse += Dialog.Use[i];
    if (inUse > 2) {
        MsgBox("More than 2 legends are checked.  There is room for up to 2 legends.  Please un-check and try again.");
        return false;
    }
    for (int i = 1; i <= 4; ++i) {
        HeadingTable[titleSlots[i - 1]] = Dialog.Title[i];
        HeadingTable[useSlots[i - 1]] = NumberText(Dialog.Use[i] ? 1 : 0);
        HeadingTable[firstBox + i - 1] = Dialog.BoxText[i] + "," + Dialog.BoxFill[i];
        for (int legend = 1; legend <= 2; ++legend)
            HeadingTable[titleSlots[legend + 1] + i] = Dialog.Line[legend][i];
    }
    HeadingTable[triangleSlot] = Dialog.FilledTriangle;
    if (!Dialog.Diamond.empty())
        HeadingTable[triangleSlot] += "|" + Dialog.Diamond;
    HeadingTable[openTriangleSlot] = Dialog.OpenTriangle;
    return true;
}
