// desktop.cpp -- the seam of the desktop program: each procedure of Platform, and the window or box behind it.
#include "boring/oldboring.h"
#include "convert/gtgsprt.h"
#include "convert/gtgstext.h"
#include "convert/irpims.h"
#include "convert/winlog.h"
#include "editors/borinput.h"
#include "editors/fillform.h"
#include "gis/gistool.h"
#include "painter/headless.h"
#include "painter/pagepainter.h"
#include "report/desitems.h"
#include "report/fontprofile.h"
#include "sections/crosstool.h"
#include "sections/fencetool.h"
#include "sections/soiltool.h"
#include "session/platform.h"
#include "session/recovery.h"
#include "session/session.h"
#include "windows/boxes.h"
#include "windows/fonts.h"
#include "windows/helpwindow.h"
#include "windows/printers.h"
#include "windows/showwindows.h"
#include "windows/typedtext.h"
#include "windows/uitext.h"

#include <QApplication>
#include <QClipboard>
#include <QDate>
#include <QLocale>
#include <QWidget>

static Text ExecutableFolder()
{
    return FromUi(QCoreApplication::applicationDirPath());
}

static Text Today()
{
    return FromUi(QLocale().toString(QDate::currentDate(), QLocale::ShortFormat));
}

static Text ClipboardText()
{
    return Typed(QApplication::clipboard()->text());
}

static void SetClipboardText(const Text& text)
{
    QApplication::clipboard()->setText(ToUi(text));
}

static void Tell(const Text& words)
{
    TellWords(ToUi(words));
}

// A beep, and the words in the status bar of the window in front.
static void Notice(const Text& words)
{
    QApplication::beep();
    Tell(words);
}

// The commands of the log tool that belong to other windows.
static void FillCommandTable()
{
    frmBorinput::CommandTable& commands = frmBorinput::Commands;
    commands = {};
    commands.mnuEditHeading = ShowHeadingWindow;
    commands.mnuEditLayout = ShowLayoutWindow;
    commands.mnuEditDesItems = ShowDesItemsWindow;
    commands.mnuEditPromptFile = ShowPromptWindow;
    commands.mnuConvertFeetMeters = frmBorinput::mnuConvertFeetMeters;
    commands.mnuGraphicSetup = frmBorinput::mnuGraphicSetup;
    commands.mnuCreateLogo = frmBorinput::mnuCreateLogo;
    commands.mnuConvertGTGStxt = frmBorinput::mnuConvertGTGStxt;
    commands.mnuConvertGTGSgeneral = ShowGTGSGenEditor;
    commands.mnuGTGS = frmBorinput::mnuGTGS;
    commands.mnuConvertWinLog = frmBorinput::mnuConvertWinLog;
    commands.mnuExp2IRPIMS = frmBorinput::mnuExp2IRPIMS;
    commands.mnuvcross = frmBorinput::mnuvcross;
    commands.mnuvfence = frmBorinput::mnuvfence;
    commands.mnuvsoil = frmBorinput::mnuvsoil;
    commands.mnuvGIS = frmBorinput::mnuvGIS;
    SetupChange.ResetTextBoxes = ResetTextBoxes;
    SetupChange.loaddeslists = loaddeslists;
}

// One tool after another on top of the log window, until the user is back there or has left the program.
static void ShowTool(Tool tool)
{
    struct Window {
        Tool tool;
        ToolRecord& record;
        void (*Show)();
    };
    static const Window windows[] = {{Tool::Cross, CrossForm, ShowCrossWindow},
                                     {Tool::Fence, FenceForm, ShowFenceWindow},
                                     {Tool::Soil, SoilForm, ShowSoilWindow},
                                     {Tool::GIS, GisForm, ShowGisWindow}};
    for (NextTool = tool; NextTool != Tool::Log;) {
        const Tool opening = NextTool;
        NextTool = Tool::Log;
        for (const Window& window : windows)
            if (window.tool == opening) {
                LoadTool(window.record);
                WatchTool(RecoveryNumber(opening));
                window.Show();
            }
    }
    WatchTool(LogTool);
}

// What each tool does with its recovery copies.
static void FillRecoveryTools()
{
    RecoveryTools[LogTool] = {"VeskLog", &BoringFileName, frmBorinput::WriteCopy, frmBorinput::OpenCopy};
    RecoveryTools[CrossTool] = {"VeskCross", &frmCross::FileName, CopyOfTool<CrossForm>, ToolOfCopy<CrossForm>};
    RecoveryTools[FenceTool] = {"VeskFence", &frmFence::FileName, CopyOfTool<FenceForm>, ToolOfCopy<FenceForm>};
    RecoveryTools[SoilTool] = {"VeskSoil", &frmSoil::FileName, CopyOfTool<SoilForm>, ToolOfCopy<SoilForm>};
    RecoveryTools[GisTool] = {"VeskGIS", &frmGIS::FileName, CopyOfTool<GisForm>, ToolOfCopy<GisForm>};
}

void UseDesktopPlatform()
{
    Platform.MsgBox = ShowMessageBox;
    Platform.InputBox = ShowInputBox;
    Platform.PrinterSheet = SheetOf;
    Platform.PageDrawn = [] {};
    Platform.ShowPage = ShowDrawArea;
    Platform.PrintPage = PrintPageObjects;
    Platform.EndPrintRun = EndPdfRun;
    Platform.PictureLoads = PictureLoads;
    Platform.DropChangedPictures = DropChangedPictures;
    Platform.ShowDrawPrint = ShowDrawPrintDialog;
    Platform.ShowPrinting = ShowPrintingNotice;
    Platform.ShowProgress = ShowProgressWindow;
    Platform.StepProgress = StepProgressWindow;
    Platform.ShowRunMessages = ShowRunMessagesWindow;
    Platform.ShowChooser = ShowOpenSave;
    Platform.ShowProjEdit = ShowProjEdit;
    Platform.ShowGraphicsSetup = ShowGraphicsSetup;
    Platform.ShowLogo = ShowLogoWindow;
    Platform.ShowHelp = ShowHelpWindow;
    Platform.ShowPrinterSetup = ShowPrinterSetupBox;
    Platform.PrinterHasFont = PrinterHasFont;
    Platform.ChooseFont = ShowFontDialog;
    Platform.PrintToPdf = ForcePdf;
    Platform.ExecutableFolder = ExecutableFolder;
    Platform.DataFolder = UserDataFolder;
    Platform.ShowAbout = ShowAboutBox;
    Platform.ShowLogWindow = ShowLogWindow;
    Platform.ShowWelcome = ShowWelcomeWindow;
    Platform.EndProcess = EndProgram;
    Platform.ShowTool = ShowTool;
    Platform.ClipboardText = ClipboardText;
    Platform.SetClipboardText = SetClipboardText;
    Platform.Notice = Notice;
    Platform.Tell = Tell;
    Platform.Breathe = Breathe;
    Platform.ShortDate = Today;
    Platform.Unattended = false;
    FillCommandTable();
    FillRecoveryTools();
    FillOlderForms();
}
