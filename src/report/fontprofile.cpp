// fontprofile.cpp -- the font of the boxes, its profiles, and the commands of the set-up window.
#include "report/fontprofile.h"

#include "boring/boringboxes.h"
#include "boring/opensave.h"
#include "boring/projectlist.h"
#include "grid/gridedit.h"
#include "session/deviceconfig.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/savename.h"
#include "session/session.h"
#include "session/shared.h"

SetupChangeRecord SetupChange;
frmPrinterSetup::Record frmPrinterSetup::Dialog;
Grid frmPrinterSetup::SSMainFilePath(7, 1);
Text CopyDestination = "a:\\";

// What the window found when it opened: DeviceConfig stays as it is until OK.
static Text fontAtOpening;

static const SharedRecord shared[] = {
    {"SetupChange", Kind::Session, SetupChange},
    {"frmPrinterSetup::Dialog", Kind::Window, frmPrinterSetup::Dialog},
    {"frmPrinterSetup::SSMainFilePath", Kind::Window, frmPrinterSetup::SSMainFilePath},
    {"CopyDestination", Kind::Window, CopyDestination},
    {"fontAtOpening", Kind::Window, fontAtOpening},
};

// ---- The font

void AssignFont()
try {
    using namespace frmBorinput;
    if (DeviceConfig.FontName.empty())
        DeviceConfig.FontName = "Arial";
    const Text& font = DeviceConfig.FontName;
    Text1Font = txtClientFont = font;
    for (Memo* box : {&MemoDes, &MemoWcon, &MemoRemarks, &MemoBottNotes, &frmSoil::MemoSoil})
        box->fontName = font;
    for (Grid* grid : {&SSInfo, &SSScale, &SSRepParts, &SSP1Setup, &SSP2Setup, &SSPar, &SSSamp, &SSLith, &SSGenWellInfo,
                       &SSOuterLay, &SSInnerLay, &SSW, &SSCuttings, &SSFormations, &SSLegend})
        grid->fontName = font;
} catch (...) {
    ReportFailure(__func__);
}

FontProfile ReadProfile(const Text& name)
{
    FontProfile profile;
    LineReader in(name);
    profile.FontName = in.Line();
    for (int i = 1; i <= 5; ++i)
        profile.TextAdjust[i] = RoundInt16(TextNumber(in.Line()));
    return profile;
}

void WriteProfile(const Text& name, const FontProfile& profile)
{
    LineWriter out(name);
    out.Line(profile.FontName);
    for (int i = 1; i <= 5; ++i)
        out.Line(IntegerField(profile.TextAdjust[i]));
    out.Close();
}

// ---- The window

// In steps of the adjustment buttons, so that they are whole numbers: " 0, 1,-2, 0, 0".
static Text AdjustmentWords()
{
    constexpr double step = 50; // twips
    Text words;
    for (int i = 1; i <= 5; ++i)
        words += NumberText(DeviceConfig.TextAdjust[i] / step) + ",";
    words.pop_back();
    return words;
}

static void ResetBoxes()
{
    if (SetupChange.ResetTextBoxes)
        SetupChange.ResetTextBoxes();
}

void frmPrinterSetup::Load()
{
    Dialog = {DeviceConfig.FontName, AdjustmentWords(), DeviceConfig.MarginOffsets, false};
    fontAtOpening = DeviceConfig.FontName;
    SSMainFilePath.title = "System Files";
    SSMainFilePath.headings = {"", ""};
    SSMainFilePath.rowHeadings = {"",
                                  "Heading File",
                                  "Project List File",
                                  "Desc. Item File",
                                  "Path to Layout Files",
                                  "Path to Logo Files",
                                  "Path to Profile Files",
                                  "Path to Fill Files"};
    ForgetSteps(SSMainFilePath);
    SSMainFilePath.row = SSMainFilePath.column = 1;
    SSMainFilePath.selected = Block();
    for (int i = 1; i <= 7; ++i)
        SSMainFilePath.Cell(i, 1) = DeviceConfig.SystemFiles[i];
}

// Step 1 of OK. Kept: with a font that the printer lacks the window closes all the same; the old font stays.
static void TakeFont(const Text& typed)
{
    if (Platform.PrinterHasFont(typed))
        DeviceConfig.FontName = typed;
    else
        MsgBox("Font: " + typed + " is not available for your printer.  Please select another.");
}

// The adjustments of one font are wrong for another, unless they came with it in a profile.
static void FontChange()
{
    AssignFont();
    if (!frmPrinterSetup::Dialog.profileLoaded)
        DeviceConfig.TextAdjust = {};
}

void frmPrinterSetup::Command1()
{
    TakeFont(Dialog.fontText);
    const bool fontChanged = DeviceConfig.FontName != fontAtOpening;
    if (fontChanged)
        FontChange();
    // A profile's adjustments size the boxes too, when its font is the one in use.
    if (fontChanged || Dialog.profileLoaded)
        ResetBoxes();
    if (Dialog.marginText != DeviceConfig.MarginOffsets) {
        DeviceConfig.MarginOffsets = Dialog.marginText;
        SplitMarginOffsets();
    }
    const Slots<Text, 7> before = DeviceConfig.SystemFiles;
    for (int i = 1; i <= 7; ++i)
        DeviceConfig.SystemFiles[i] = SSMainFilePath.Cell(i, 1);
    SaveDevice();
    const auto changed = [&](SystemFile file) { return DeviceConfig.SystemFiles[file] != before[file]; };
    if (changed(ProjectListFile))
        LoadProjectList();
    if (changed(DescItemFile) && SetupChange.loaddeslists)
        SetupChange.loaddeslists();
    if (changed(LayoutFolder))
        getfilelist(1);
}

void frmPrinterSetup::Command3()
{
    Platform.ShowPrinterSetup();
}

void frmPrinterSetup::Command4()
{
    const Text chosen = Platform.ChooseFont(Dialog.fontText);
    if (chosen.empty())
        return;
    Dialog.fontText = chosen;
    Dialog.adjustText = "0, 0, 0, 0, 0";
    // Kept: at once, and Cancel does not bring them back.
    DeviceConfig.TextAdjust = {};
    ResetBoxes();
}

void frmPrinterSetup::Command5()
{
    CopyMainFiles();
}

void frmPrinterSetup::mnuOpen()
{
    DialogMode = 14;
    Platform.ShowChooser();
    if (DialogResult.empty())
        return;
    const FontProfile profile = ReadProfile(DialogResult);
    DeviceConfig.TextAdjust = profile.TextAdjust; // Kept: at once, and Cancel does not bring them back
    Dialog.fontText = profile.FontName;
    Dialog.adjustText = AdjustmentWords();
    Dialog.profileLoaded = true;
}

// The font shown goes with the adjustments, which are those of the session already.
void frmPrinterSetup::mnuSave()
{
    DialogMode = 15;
    Platform.ShowChooser();
    if (DialogResult.empty())
        return;
    DialogResult = WithEnding(DialogResult, ".PRF");
    WriteProfile(DialogResult, {Dialog.fontText, DeviceConfig.TextAdjust});
}

// ---- The copy

// A name without a drive or a folder stands in the working folder, as every relative name does.
static void CopyFile(const Text& name)
{
    if (FileExists(name))
        WriteWholeFile(JoinPath(CopyDestination, BaseName(name)), ReadWholeFile(name));
}

static void CopyAll(const Text& folder, const Text& ending)
{
    for (const Text& name : FilesIn(folder, ending))
        CopyFile(JoinPath(folder, name));
}

void CopyMainFiles()
try {
    if (MsgBox("This utility copies files for your logo, project list, description item text, layouts, headings, and "
               "font profiles to a floppy drive so that they can be transfered to a new computer.  Please insert a "
               "diskette into the A: drive and click 'OK' when ready.",
               OkCancel) != Ok)
        return;
    CopyFile(JoinPath(WorkingFolder, "logo.txt"));
    CopyFile(DeviceConfig.SystemFiles[ProjectListFile]);
    CopyFile(DeviceConfig.SystemFiles[DescItemFile]);
    CopyAll(WorkingFolder, ".hdg");
    CopyAll(DeviceConfig.SystemFiles[LayoutFolder], ".lay");
    CopyAll(DeviceConfig.SystemFiles[LogoFolder], ".bmp");
    CopyAll(DeviceConfig.SystemFiles[ProfileFolder], ".prf");
    MsgBox("All Files Copied.");
} catch (...) {
    ReportFailure(__func__);
}
