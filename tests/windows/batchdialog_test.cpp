// batchdialog_test.cpp -- the batch dialog and the progress of a run.
#include "canvas/pagelisting.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "session/files.h"
#include "session/session.h"
#include "windows/driver.h"
#include "windows/showwindows.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTest>

TEST_CASE("an empty selection leaves the dialog open and log.mas as it was")
{
    QMainWindow* log = LogWindow();
    WriteScratch("log.mas", "as it was");
    Then("frmDrawPrint", [](QWidget* window) {
        CHECK(window->windowTitle() == "Select Borings to Draw");
        CHECK(Find<QLabel>(window, "Label1")->text() == "Boring Log Files:");
        ClickButton(window, "Command1");
        CHECK(window->isVisible());
        CHECK(ReadScratch("log.mas") == "as it was");
        ClickButton(window, "Command2");
        CHECK_FALSE(window->isVisible());
    });
    ClickMenu(log, "mnuFile", "mnuBatchDraw");
    CheckAllDone();
}

TEST_CASE("Select All marks every file and stays checked until another folder is shown")
{
    QMainWindow* log = LogWindow();
    Then("frmDrawPrint", [](QWidget* window) {
        auto* files = Find<QListWidget>(window, "File1");
        auto* all = Find<QRadioButton>(window, "Option1");
        const int borings = int(FilesIn(Scratch("samples"), ".BOR").size());
        CHECK(files->count() == borings);
        CHECK(files->selectedItems().isEmpty());
        Click(all);
        CHECK(files->selectedItems().size() == borings);
        CHECK(all->isChecked());
        Click(all);
        CHECK(all->isChecked());
        // Up one folder, by a double click on it.
        auto* folders = Find<QListWidget>(window, "Dir1");
        QListWidgetItem* up = folders->item(folders->currentRow() - 1);
        folders->scrollToItem(up);
        const QPoint at = folders->visualItemRect(up).center();
        QTest::mouseClick(folders->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(folders->viewport(), Qt::LeftButton, {}, at);
        CHECK(files->count() == 0);
        CHECK_FALSE(all->isChecked());
        Key(window, Qt::Key_Escape);
    });
    ClickMenu(log, "mnuFile", "mnuBatchDraw");
    CheckAllDone();
}

TEST_CASE("a double click on a file is OK, and the dialog is gone while its job runs")
{
    QMainWindow* log = LogWindow();
    QWidget* dialog = nullptr;
    Then("frmDrawPrint", [&](QWidget* window) {
        dialog = window;
        auto* files = Find<QListWidget>(window, "File1");
        QListWidgetItem* item = files->findItems("TC-103.BOR", Qt::MatchExactly).first();
        const QPoint at = files->visualItemRect(item).center();
        QTest::mouseClick(files->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(files->viewport(), Qt::LeftButton, {}, at);
    });
    Then("DrawArea", [&](QWidget* window) {
        CHECK_FALSE(dialog->isVisible());
        CHECK(dialogBusy == -1);
        CHECK(BaseName(RunPages.pageFile) == "TC-103.BOR");
        ClickMenu(window, "mnuFile", "mnuExit");
    });
    ClickMenu(log, "mnuFile", "mnuBatchDraw");
    CheckAllDone();
    CHECK(dialogBusy == 0);
}

TEST_CASE("the page number asked for is the page that is drawn")
{
    QMainWindow* log = LogWindow();
    Then("frmDrawPrint", [](QWidget* window) {
        auto* files = Find<QListWidget>(window, "File1");
        files->findItems("TC-101.BOR", Qt::MatchExactly).first()->setSelected(true);
        QTest::keyClicks(Find<QLineEdit>(window, "Text1"), "2");
        CHECK(Find<QRadioButton>(window, "OptionPage")->isChecked());
        ClickButton(window, "Command1");
    });
    Then("DrawArea", [](QWidget* window) {
        CHECK(window->findChild<QLabel*>("lblPage")->text() == "Page 1 of 1");
        LineReader run(MasFile());
        run.Skip(3);
        CHECK(run.Line() == "30");
        ClickMenu(window, "mnuFile", "mnuExit");
    });
    ClickMenu(log, "mnuFile", "mnuBatchDraw");
    CheckAllDone();
}

// Draws the intro page of a sample with this option of the report choice.
static void DrawIntroPage(const char* option, int arrangement)
{
    QMainWindow* log = LogWindow();
    Then("frmDrawPrint", [option](QWidget* window) {
        auto* choice = Find<QRadioButton>(window, option);
        CHECK(choice->isEnabled());
        Click(choice);
        auto* files = Find<QListWidget>(window, "File1");
        files->findItems("MW-108.BOR", Qt::MatchExactly).first()->setSelected(true);
        ClickButton(window, "Command1");
    });
    Then("DrawArea", [arrangement](QWidget* window) {
        CHECK(introType == arrangement);
        CHECK(window->findChild<QLabel*>("lblPage")->text() == "Page 1 of 1");
        const std::string page = PageListing(1, RunPages.pageFile);
        CHECK(page.find("\"text\": \" PROJECT MAP \"") != std::string::npos);
        CHECK(page.find("\"text\": \"LEGEND:\"") != std::string::npos);
        ClickMenu(window, "mnuFile", "mnuExit");
    });
    ClickMenu(log, "mnuFile", "mnuBatchDraw");
    CheckAllDone();
}

TEST_CASE("the report choice draws the first intro page")
{
    DrawIntroPage("OptionIntro", 1);
}

TEST_CASE("the report choice draws the second intro page")
{
    DrawIntroPage("OptionIntro2", 2);
}

TEST_CASE("jobs above 2 have a short dialog with neither pages nor report choice")
{
    UseDesktop();
    jobCode = 3;
    Then("frmDrawPrint", [](QWidget* window) {
        CHECK(window->windowTitle() == "Select Cross Sections to Draw");
        CHECK_FALSE(Find<QGroupBox>(window, "Frame2")->isVisible());
        CHECK_FALSE(Find<QGroupBox>(window, "Frame3")->isVisible());
        CHECK(window->height() < 400);
        Key(window, Qt::Key_Escape);
    });
    ShowDrawPrintDialog();
    jobCode = 1;
    Then("frmDrawPrint", [](QWidget* window) {
        CHECK(Find<QGroupBox>(window, "Frame2")->isVisible());
        CHECK(Find<QGroupBox>(window, "Frame3")->title() == "Pages to Print");
        Key(window, Qt::Key_Escape);
    });
    ShowDrawPrintDialog();
    CheckAllDone();
}

TEST_CASE("while OK is at work Cancel, Help and a second OK do nothing")
{
    UseDesktop();
    jobCode = 1;
    Then("frmDrawPrint", [](QWidget* window) {
        dialogBusy = -1;
        stopRequested = 0;
        ClickButton(window, "Command2");
        ClickButton(window, "Command3");
        ClickButton(window, "Command1");
        window->close();
        CHECK(window->isVisible());
        CHECK(stopRequested == 0);
        dialogBusy = 0;
        ClickButton(window, "Command2");
        CHECK(stopRequested == -1);
    });
    ShowDrawPrintDialog();
    CheckAllDone();
}

TEST_CASE("a page that takes long shows its progress, and Escape on it asks for a stop")
{
    UseDesktop();
    stopRequested = 0;
    ShowProgressWindow(true);
    SetProgress(4);
    Settle(150);
    incseg(1);
    QWidget* window = QApplication::activeModalWidget();
    REQUIRE(window);
    CHECK(window->objectName() == "frmProgress");
    CHECK(Find<QLabel>(window, "Label2")->text() == "% Complete: 25");
    CHECK(Find<QProgressBar>(window, "Gauge1")->value() == 250);
    Key(window, Qt::Key_Escape);
    CHECK(stopRequested == -1);
    ShowProgressWindow(false);
    CHECK_FALSE(window->isVisible());
}

TEST_CASE("a run over a file that cannot be read brings its message round after round until Escape is pressed on it")
{
    QMainWindow* log = LogWindow();
    const std::string whole = ReadScratch("samples/TC-103.BOR");
    WriteScratch("samples/CUT.BOR", whole.substr(0, whole.size() / 2));
    int rounds = 0;
    Then("frmDrawPrint", [](QWidget* window) {
        auto* files = Find<QListWidget>(window, "File1");
        files->findItems("CUT.BOR", Qt::MatchExactly).first()->setSelected(true);
        ClickButton(window, "Command1");
    });
    for (int i = 0; i < 3; ++i)
        Then("MsgBox", [&rounds, i](QWidget* window) {
            ++rounds;
            CHECK(qobject_cast<QMessageBox*>(window)->text() == "Error 62 in getvlogdata.  Please contact Norvane");
            Key(window, i < 2 ? Qt::Key_Return : Qt::Key_Escape);
        });
    ClickMenu(log, "mnuFile", "mnuBatchDraw");
    CheckAllDone();
    CHECK(rounds == 3);
    CHECK(QApplication::activeModalWidget() == nullptr);
}

TEST_CASE("a message of a run of several files offers a list; then the run goes on, and the list comes at its end")
{
    QMainWindow* log = LogWindow();
    const std::string whole = ReadScratch("samples/TC-103.BOR");
    WriteScratch("samples/TC-103A.BOR", whole.substr(0, whole.size() / 2));
    WriteScratch("samples/TC-103B.BOR", whole.substr(0, whole.size() / 3));
    Then("frmDrawPrint", [](QWidget* window) {
        auto* files = Find<QListWidget>(window, "File1");
        for (const char* name : {"TC-103A.BOR", "TC-103B.BOR", "TC-104.BOR"})
            files->findItems(name, Qt::MatchExactly).first()->setSelected(true);
        ClickButton(window, "Command1");
    });
    Then("MsgBox", [](QWidget* window) {
        auto* box = qobject_cast<QMessageBox*>(window);
        CHECK(box->text() == "Error 62 in getvlogdata.  Please contact Norvane");
        REQUIRE(box->checkBox());
        CHECK(box->checkBox()->text() == "Collect further messages in a list");
        LookAt(window, "collect");
        box->checkBox()->setChecked(true);
        Key(window, Qt::Key_Return);
    });
    Then("DrawArea", [](QWidget* window) {
        CHECK(BaseName(RunPages.pageFile) == "TC-104.BOR");
        ClickMenu(window, "mnuFile", "mnuExit");
    });
    Then("frmRunMessages", [](QWidget* window) {
        auto* table = Find<QTableWidget>(window, "Messages");
        REQUIRE(table->rowCount() >= 1);
        CHECK(table->item(0, 0)->text().toStdString() == Scratch("samples/TC-103B.BOR"));
        CHECK(table->item(0, 1)->text() == "1");
        CHECK(table->item(0, 2)->text() == "Error 62 in getvlogdata.  Please contact Norvane");
        LookAt(window, "runmessages");
        ClickButton(window, "Command1");
        CHECK(QApplication::clipboard()->text().toStdString().starts_with(
            Scratch("samples/TC-103B.BOR") + "\t1\tError 62 in getvlogdata.  Please contact Norvane"));
        // Enter on an entry opens its file behind the list.
        table->setFocus();
        table->setCurrentCell(0, 0);
        Key(window, Qt::Key_Return);
    });
    ThenAnswer("Error 62 in OpenBoringFile2.  Please contact Norvane", "OK");
    ClickMenu(log, "mnuFile", "mnuBatchDraw");
    Settle(100);
    CheckAllDone();
    CHECK(Find<QLineEdit>(log, "Text1")->text() == "TC-103");
    CHECK(BoringFileName == "");
}

TEST_CASE("a message of a run of one file offers no list")
{
    QMainWindow* log = LogWindow();
    const std::string whole = ReadScratch("samples/TC-103.BOR");
    WriteScratch("samples/CUT.BOR", whole.substr(0, whole.size() / 2));
    Then("frmDrawPrint", [](QWidget* window) {
        auto* files = Find<QListWidget>(window, "File1");
        files->findItems("CUT.BOR", Qt::MatchExactly).first()->setSelected(true);
        ClickButton(window, "Command1");
    });
    Then("MsgBox", [](QWidget* window) {
        CHECK(qobject_cast<QMessageBox*>(window)->checkBox() == nullptr);
        Key(window, Qt::Key_Escape);
    });
    ClickMenu(log, "mnuFile", "mnuBatchDraw");
    CheckAllDone();
}
