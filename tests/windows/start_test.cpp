// start_test.cpp -- the start and the end of the program, as the user meets them.
#include "session/deviceconfig.h"
#include "session/files.h"
#include "session/session.h"
#include "session/startup.h"
#include "windows/application.h"
#include "windows/driver.h"
#include "windows/showwindows.h"
#include "windows/windowparts.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTableView>
#include <filesystem>

TEST_CASE("a first start: the missing set-up is told once, the title box waits for a click, the welcome for its button")
{
    UseDesktop();
    ThenAnswer("Couldn't Find DEVICE.CFG File, creating new", "OK");
    Then("frmAbout5", Click);
    Then("frmWelcome", [](QWidget* window) {
        CHECK(ReadScratch("first.txt") == "yes\r\n");
        ClickButton(window, "Command1");
    });
    Main();
    CheckAllDone();
    CHECK(StartDone);
    CHECK(FileExists("device.cfg"));
    for (QWidget* window : QApplication::topLevelWidgets())
        CHECK_MESSAGE((window->isVisible() == (window->objectName() == "frmBorinput")),
                      window->objectName().toStdString());
}

TEST_CASE("a second start asks for nothing but the click on the title box")
{
    QMainWindow* log = LogWindow();
    REQUIRE(log);
    CHECK(log->isVisible());
    CHECK(log->windowTitle().toStdString() == Scratch("samples") + " - VeskLog - Boring Log Diagram[*]");
}

TEST_CASE("the tabs behind the first are filled by a command that comes before the first painting")
{
    UseDesktop();
    WriteScratch("device.cfg", Lines({Scratch("samples"), "0,0", "Arial"}));
    WriteScratch("first.txt", "yes");
    static bool before, after;
    Platform.ShowLogWindow = [] {
        ShowLogWindow();
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->objectName() == "frmBorinput") {
                before = window->findChild<QTableView*>("SSLegend");
                window->findChild<QAction*>("mnuNew")->trigger();
                after = window->findChild<QTableView*>("SSLegend");
            }
    };
    Then("frmAbout5", Click);
    Main();
    CheckAllDone();
    CHECK_FALSE(before);
    CHECK(after);
}

TEST_CASE("the tabs behind the first are filled when the window has been painted")
{
    QMainWindow* log = LogWindow();
    CHECK(Find<QTableView>(log, "SSLegend")->model()->rowCount() > 0);
}

TEST_CASE("a key closes the title box too")
{
    UseDesktop();
    WriteScratch("device.cfg", Lines({ScratchFolder(), "0,0", "Arial"}));
    WriteScratch("first.txt", "yes");
    Then("frmAbout5", [](QWidget* window) { Key(window, Qt::Key_Return); });
    Main();
    CheckAllDone();
}

TEST_CASE("a set-up that cannot be written ends the start: the number, then status 1")
{
    UseDesktop();
    // A folder in the place of the file: it is not a file that could be read, nor one that could be replaced.
    std::filesystem::create_directories(Scratch("device.cfg/inside"));
    WriteScratch("first.txt", "yes");
    CHECK(StatusOfStart("Run-time error 75") == 1);
}

TEST_CASE("a failure in a command of the window is told once, and the program goes on")
{
    QMainWindow* log = LogWindow();
    Platform.ShowPrinterSetup = [] { throw RunTimeError{482}; };
    ThenAnswer("Run-time error 482", "OK");
    ClickMenu(log, "mnuFile", "mnuPrintSetup");
    CheckAllDone();
    CHECK(log->isVisible());
    OpenSample("TC-103.BOR");
    CHECK(Find<QLineEdit>(log, "Text1")->text() == "TC-103");
}

TEST_CASE("a boring from outside is opened as one that is dropped on the window, with the question before it")
{
    QMainWindow* log = LogWindow();
    OpenInLogWindow(Scratch("samples/TC-102.BOR"));
    Settle();
    CHECK(BoringFileName == Scratch("samples/TC-102.BOR"));
    CHECK(Find<QLineEdit>(log, "Text1")->text() == "TC-102");
    FileChanged = 1;
    ThenAnswer("Would you like to save the current file before opening another file?", "Cancel");
    OpenInLogWindow(Scratch("samples/TC-103.BOR"));
    Settle(200);
    CheckAllDone();
    CHECK(Find<QLineEdit>(log, "Text1")->text() == "TC-102");
}

TEST_CASE("the open boring is shown in its boxes, and nothing counts as changed")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-101.BOR");
    CHECK(log->windowTitle().toStdString() == Scratch("samples/TC-101.BOR") + " - VeskLog - Boring Log Diagram[*]");
    const QAbstractItemModel* lith = Find<QTableView>(log, "SSLith")->model();
    CHECK(lith->rowCount() == 100);
    CHECK(lith->columnCount() == 4);
    CHECK(lith->headerData(1, Qt::Horizontal).toString() == "USCS");
    CHECK_FALSE(lith->data(lith->index(0, 1)).toString().isEmpty());
    CHECK(Find<QTableView>(log, "SSScale")->model()->headerData(0, Qt::Vertical).toString() == "End Depth");
    CHECK_FALSE(Find<QPlainTextEdit>(log, "MemoDes")->toPlainText().isEmpty());
    CHECK(FileChanged == 0);
    CHECK_FALSE(log->isWindowModified());
}

TEST_CASE("an open of an older form or of a damaged file tells so and leaves a window that works")
{
    QMainWindow* log = LogWindow();
    WriteScratch("samples/CUT.BOR", ReadScratch("samples/TC-101.BOR").substr(0, 900));
    Then("frmOpenSave", [](QWidget* window) {
        auto* box = window->findChild<QLineEdit*>("fileText");
        box->setText("CUT.BOR");
        Key(box, Qt::Key_Return);
    });
    ThenAnswer("Error 62 in OpenBoringFile2.  Please contact Norvane", "OK");
    ClickMenu(log, "mnuFile", "mnuOpen");
    CheckAllDone();
    CHECK(Find<QLineEdit>(log, "Text1")->text() == "TC-101");
}

TEST_CASE("the closing of the window asks as Exit does: Cancel keeps it, No lets it go")
{
    QMainWindow* log = LogWindow();
    FileChanged = 1;
    ThenAnswer("Would you like to save the current file before quitting?", "Cancel");
    log->close();
    CheckAllDone();
    CHECK(log->isVisible());
    CHECK(FileChanged == 1);
    ThenAnswer("Would you like to save the current file before quitting?", "No");
    ClickMenu(log, "mnuFile", "mnuExit");
    CheckAllDone();
    CHECK_FALSE(log->isVisible());
    CHECK(FileChanged == 0);
}

TEST_CASE("Help shows its window, by the menu and by F1")
{
    QMainWindow* log = LogWindow();
    Then("Help", [](QWidget* window) { Key(window, Qt::Key_Escape); });
    ClickMenu(log, "mnuHelpMenu", "mnuHelp");
    CheckAllDone();
}

TEST_CASE("a window is put into the middle of the screen, but where the desktop places all windows")
{
    CHECK(PlacesWindows(QApplication::platformName()));
    CHECK(PlacesWindows("xcb"));
    CHECK_FALSE(PlacesWindows("wayland"));
    CHECK_FALSE(PlacesWindows("wayland-egl"));
    QMainWindow window;
    window.resize(200, 100);
    CentreOnScreen(window);
    const QPoint middle = window.screen()->availableGeometry().center();
    CHECK(window.pos() == middle - QPoint(100, 50));
}
