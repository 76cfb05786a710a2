// borinput.cpp -- the commands of the log tool's window.
#include "editors/borinput.h"

#include "boring/boringblocks.h"
#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "boring/boringfile.h"
#include "boring/feet2meters.h"
#include "boring/opensave.h"
#include "boring/projectlist.h"
#include "boring/reportparts.h"
#include "boring/textlines.h"
#include "editors/fillform.h"
#include "editors/markers.h"
#include "grid/gridedit.h"
#include "report/desitems.h"
#include "report/fontprofile.h"
#include "report/prompts.h"
#include "run/batchrun.h"
#include "session/deviceconfig.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/recovery.h"
#include "session/savename.h"
#include "session/session.h"
#include "session/shared.h"
#include "tools/nextfile.h"

frmBorinput::CommandTable frmBorinput::Commands;

static const SharedRecord shared[] = {
    {"frmBorinput::Commands", Kind::Session, frmBorinput::Commands},
};

static const char* const ToolTitle = "VeskLog - Boring Log Diagram";

// The labels that the boxes bear by design.
static void LabelBoxes()
{
    using namespace frmBorinput;
    const auto label = [](Grid& grid, const char* title, std::initializer_list<const char*> headings,
                          std::initializer_list<const char*> rows = {}) {
        grid.title = title;
        grid.headings.assign(1, "");
        grid.headings.insert(grid.headings.end(), headings.begin(), headings.end());
        grid.headings.resize(grid.columns + 1);
        grid.rowHeadings.assign(1, "");
        grid.rowHeadings.insert(grid.rowHeadings.end(), rows.begin(), rows.end());
    };
    label(SSInfo, "Boring/Title Information", {"Prompt", "Text"});
    label(SSScale, "Scale Information", {""},
          {"End Depth", "Inc,#Ticks", "Page Brk,Len.", "Meas. In,Rot.", "Surf Elev.", "Start Elev.", "X, Y Coord."});
    label(SSRepParts, "Report Parts", {"Item", "Width"});
    SSRepParts.offered = {{}, OfferedItems};
    label(SSP1Setup, "Soil Sample Parameter Set-Up",
          {"Name", "Lg. Graph Heading", "Graph St.,End,Inc", "Split 1", "Split 2", "Split 3", "Stnd. 1", "Stnd. 2",
           "Units"});
    label(SSP2Setup, "General Parameter Set-Up",
          {"Name", "Lg. Graph Heading", "Graph St.,End,Inc", "Split 1", "Split 2", "Split 3", "File", "Field #/Hdr."});
    label(SSPar, "General Parameter Data", {"Depth"});
    label(SSSamp, "Soil Sample Data", {"Start", "End", "Cond.", "Blow Count", "Lab No."});
    label(SSLith, "Lithology", {"Depth", "USCS", "Line T.", "Color"});
    label(SSGenWellInfo, "General Well Information", {""},
          {"Well Name 1", "Well Name 2", "Well Name 3", "Well Name 4", "Ref. Elevation", "Stick-Up", "Depth of S.C. 1",
           "Depth of S.C. 2", "Depth of S.C. 3", "S.C. Fill #, Offset", "Water Depth 1", "Water Depth 2",
           "Well Cover (y/n)", "Other Depth"});
    label(SSOuterLay, "Outer Layers", {"Start", "End", "Text", "Label/Off.", "Fill #, Clr"});
    label(SSInnerLay, "Inner Layers", {"Start", "End", "Text", "Label/Off.", "Width"});
    label(SSW, "Well Construction Information", {"Prompt", "Text"});
    label(SSCuttings, "Cutting Information", {"Depth", "% Fine", "% Medium", "% Coarse"});
    label(SSFormations, "Formation Information", {"Depth", "Descripton, Abrev."});
    label(SSLegend, "Intro Page Legend", {"USCS", "Text"});
    LabelParameters();
}

// What a change by the user brings about: each sets the flag, and some size boxes or show names elsewhere.
static void WatchBoxes()
{
    for (int box = 1; box <= 16; ++box)
        if (Grid* grid = frmBorinput::BoxGrid(box))
            grid->changed = [] { FileChanged = 1; };
    frmBorinput::SSRepParts.changed = frmBorinput::SSGenWellInfo.changed = BorTextChange;
    frmBorinput::SSP1Setup.changed = frmBorinput::SSP2Setup.changed = SetupGridChange;
    frmBorinput::SSLith.names = &LayerMarkers;
}

void frmBorinput::Load()
{
    FileChanged = 0;
    LoadDevice();
    if (DeviceConfig.FontName != "Arial")
        AssignFont();
    LoadProjectList();
    ActiveBox = 0;
    BoringFileName = "";
    LabelBoxes();
    WatchBoxes();
    Title = ProjectPath + " - " + ToolTitle;
    getfilelist(1);
    loaddeslists();
    // The start widths; a boring's report parts set them anew.
    MemoDes.widthTwips = 4205 + DeviceConfig.TextAdjust[1];
    MemoWcon.widthTwips = 3249 + DeviceConfig.TextAdjust[2];
    MemoRemarks.widthTwips = 2223 + DeviceConfig.TextAdjust[3];
    LoadPrompts();
}

// The question before something that would drop unsaved work. False: the user has thought better of it.
static bool SaveFirst(const char* question)
{
    if (FileChanged != 1)
        return true;
    const int answer = MsgBox(question, YesNoCancel, Question);
    if (answer == Yes)
        frmBorinput::mnuSave();
    if (answer == Yes && FileChanged == 1) // the user has thought better of the name, and the flow goes on all the same
        OweCopy();
    if (answer == No)
        DropCopy();
    return answer != Cancel;
}

// Another boring is in the boxes: nothing of the one before can be taken back.
static void ForgetAll()
{
    for (int box = 1; box <= 16; ++box)
        if (Grid* grid = frmBorinput::BoxGrid(box))
            ForgetSteps(*grid);
}

void frmBorinput::mnuNew()
{
    if (!SaveFirst("Would you like to save the current file before starting a new file?"))
        return;
    LeaveDocument();
    ClearBoringForm();
    RecentFile = "";
    if (DeviceConfig.FontName != "Arial")
        AssignFont();
    ForgetAll();
}

// The way of every opening; choose leaves the name in DialogResult and the version of the form in DialogMode. False:
// the file was refused or has failed, which was told.
template <class Choose>
static bool Open(Choose choose)
{
    using namespace frmBorinput;
    // Kept: after a No the flag stays 1, so New asks once more in its own words, and a Cancel there does not stop the
    // opening; it only skips the clearing.
    if (!SaveFirst("Would you like to save the current file before opening another file?"))
        return true;
    bool whole = true;
    choose();
    if (!DialogResult.empty()) {
        // New may save, and with that choose another name.
        const Text chosen = DialogResult;
        const int16_t version = DialogMode;
        mnuNew();
        LeaveDocument();
        BoringFileName = DialogResult = chosen;
        DialogMode = version;
        FileChanged = 0;
        whole = OpenBoringFile2();
        FillBoringForm();
        ForgetAll();
        RecentFile = whole ? BoringFileName : "";
    }
    FileChanged = 0; // Kept: also when the chooser was cancelled
    KeepCopy();      // what was dropped by a No, and kept again while the chooser was up
    return whole;
}

void frmBorinput::mnuOpen()
{
    Open([] {
        DialogMode = 1;
        Platform.ShowChooser();
    });
}

// The version of the chooser's list that the file's ending tells. A boring that was saved under the name of its older
// form is one of the current form.
static int16_t FormOf(const Text& name)
{
    const Text upper = UpperCase(name);
    const bool third = upper.ends_with(".SV3");
    if ((!third && !upper.ends_with(".SV4")) || !FileExists(name))
        return 2;
    LineReader in(name);
    return !in.AtEnd() && in.Line() == BoringVersion ? int16_t(2) : third ? int16_t(0) : int16_t(1);
}

void frmBorinput::OpenNamed(const Text& name)
{
    const bool whole = Open([&name] {
        DialogMode = FormOf(name);
        DialogResult = name;
    });
    if (whole)
        return;
    BoringFileName = "";
    Title = ToolTitle;
}

// The boxes into the file of BoringFileName.
static void Write()
{
    SaveDocument(SaveBoringFile);
    FileChanged = 0; // Kept: also when the save was refused
    if (!SaveOwed())
        frmBorinput::RecentFile = BoringFileName;
}

void frmBorinput::mnuSave()
{
    if (BoringFileName.empty()) {
        mnuSaveAs();
        return;
    }
    boringcheck();
    Write();
}

void frmBorinput::mnuSaveAs()
{
    DialogMode = 2;
    Platform.ShowChooser();
    if (DialogResult.empty())
        return;
    const Text name = WithEnding(DialogResult, ".BOR");
    if (!MayReplace(name))
        return;
    boringcheck();
    BoringFileName = name;
    Write();
    Title = BoringFileName + " - " + ToolTitle;
}

void frmBorinput::mnuImport()
{
    DialogMode = 11;
    Platform.ShowChooser();
    if (DialogResult.empty())
        return;
    const Text before = MemoDes.text;
    ImportDesc();
    if (MemoDes.text != before)
        FileChanged = 1;
}

void frmBorinput::mnuPreview()
{
    if (BoringFileName.empty()) {
        jobCode = DrawLogsJob;
        Platform.ShowDrawPrint();
        return;
    }
    if (FileChanged == 1)
        mnuSave();
    jobCode = DrawLogsJob;
    singleFile = 1;
    singleFileName = BoringFileName;
    DrawPrintLoad();
    DrawPrintOk();
    singleFile = 0;
}

static void Batch(int16_t job)
{
    if (!SaveFirst("Would you like to save the current file before drawing?"))
        return;
    jobCode = job;
    Platform.ShowDrawPrint();
}

void frmBorinput::mnuBatchDraw()
{
    Batch(DrawLogsJob);
}

void frmBorinput::mnuPrint()
{
    Batch(PrintLogsJob);
}

void frmBorinput::mnuPrintSetup()
{
    Platform.ShowPrinterSetup();
}

void frmBorinput::mnuConvertFeetMeters()
{
    if (MsgBox(
            "This utility converts all depths from feet to meters.  Afterward, you may want to save the file under a "
            "different name.  Do you wish to proceed?",
            YesNo, Question) != Yes)
        return;
    convertfeet2meters();
    ForgetAll(); // a step taken back would put feet among the meters
}

void frmBorinput::mnuGraphicSetup()
{
    SetUpGraphics(BoringEmpty());
}

void frmBorinput::mnuCreateLogo()
{
    Platform.ShowLogo();
}

void frmBorinput::mnuFillPatt()
{
    singleFile = 1;
    jobCode = GuideJob;
    DrawPrintOk();
    singleFile = 0; // else the next batch run would take its file from here
}

void frmBorinput::mnuHelp()
{
    Platform.ShowHelp();
}

static const char* const quitting = "Would you like to save the current file before quitting?";

// With a file that the tool opens, or none.
static void HandOver(Tool tool, const Text& file = "")
{
    if (!SaveFirst(quitting))
        return;
    FileChanged = 0; // Kept: after a No too, though the boring that stays in the boxes is still the changed one
    NextFile = file;
    Platform.ShowTool(tool);
}

void frmBorinput::mnuvcross()
{
    HandOver(Tool::Cross);
}

void frmBorinput::mnuvfence()
{
    HandOver(Tool::Fence);
}

void frmBorinput::mnuvsoil()
{
    HandOver(Tool::Soil);
}

void frmBorinput::mnuvGIS()
{
    HandOver(Tool::GIS);
}

void frmBorinput::OpenFromOutside(const Text& name)
{
    if (ToolOfFile(name) != Tool::Log)
        return HandOver(ToolOfFile(name), name);
    if (!IsConversionMap(name))
        return OpenNamed(name);
    NextFile = name;
    if (Commands.mnuConvertGTGSgeneral)
        Commands.mnuConvertGTGSgeneral();
}

bool frmBorinput::mnuExit()
{
    if (!SaveFirst(quitting))
        return false;
    FileChanged = 0;
    if (DeviceChanged == 1)
        SaveDevice();
    Platform.EndProcess();
    return true;
}
