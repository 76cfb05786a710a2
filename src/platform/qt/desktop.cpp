// desktop.cpp -- the seam of the desktop program: each procedure of Platform, and the window or box behind it.
#include "canvas/batch.h"
#include "canvas/patterns.h"
#include "logrender/intropage.h"
#include "logrender/vlog.h"
#include "platform/qt/boxes.h"
#include "platform/qt/filedialog.h"
#include "platform/qt/helpwindow.h"
#include "platform/qt/printers.h"
#include "platform/qt/uitext.h"
#include "platform/qt/windows.h"
#include "session/platform.h"

#include <QApplication>
#include <QDate>
#include <QLocale>
#include <QScreen>
#include <QWidget>

void CentreOnScreen(QWidget& window)
{
    const QRect room = window.screen()->availableGeometry();
    const QSize size = window.isVisible() || window.testAttribute(Qt::WA_Resized) ? window.size() : window.sizeHint();
    window.move(room.center() - QPoint(size.width() / 2, size.height() / 2));
}

static Text ExecutableFolder()
{
    return FromUi(QCoreApplication::applicationDirPath());
}

static Text Today()
{
    return FromUi(QLocale().toString(QDate::currentDate(), QLocale::ShortFormat));
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
    Platform.ShowDrawPrint = ShowDrawPrintDialog;
    Platform.ShowPrinting = ShowPrintingNotice;
    Platform.ShowProgress = ShowProgressWindow;
    Platform.StepProgress = StepProgressWindow;
    Platform.ShowChooser = ShowFileDialog;
    Platform.ShowHelp = ShowHelpWindow;
    Platform.ShowPrinterSetup = ShowPrinterSetupBox;
    Platform.PrintToPdf = ForcePdf;
    Platform.ExecutableFolder = ExecutableFolder;
    Platform.ShowAbout = ShowAboutBox;
    Platform.ShowLogWindow = ShowLogWindow;
    Platform.ShowWelcome = ShowWelcomeWindow;
    Platform.EndProcess = EndProgram;
    Platform.Breathe = Breathe;
    Platform.ShortDate = Today;
    Platform.Unattended = false;
}

void FillJobTable()
{
    JobTable[1] = JobTable[2] = VLOG::vlogstart;
    JobTable[9] = patternstart;
    IntroPages = VLOG::vlogintrostart;
}
