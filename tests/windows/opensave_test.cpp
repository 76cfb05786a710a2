// opensave_test.cpp -- the file chooser, by real events.
#include "boring/boringboxes.h"
#include "boring/opensave.h"
#include "boring/projectlist.h"
#include "session/deviceconfig.h"
#include "session/files.h"
#include "session/session.h"
#include "session/startup.h"
#include "windows/application.h"
#include "windows/driver.h"
#include "windows/showwindows.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

static QPoint MiddleOf(QListWidget* list, const char* name)
{
    const QList<QListWidgetItem*> found = list->findItems(name, Qt::MatchExactly);
    REQUIRE(found.size() == 1);
    list->scrollToItem(found.first());
    return list->visualItemRect(found.first()).center();
}

// Two projects, of which one is gone; the first has a heading file and a logo.
static void TwoProjects()
{
    std::filesystem::create_directories(Scratch("harbour"));
    WriteScratch("harbour/H-1.BOR", "");
    WriteScratch("svproj.lst",
                 Lines({" 2 ", "Harbour,harbour.hdg,HARBOUR.BMP", Scratch("harbour"), "Gone,,", "/nowhere"}));
}

static void ClickProject(QWidget* window, int row)
{
    auto* grid = Find<QTableWidget>(window, "SS");
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->visualItemRect(grid->item(row - 1, 0)).center());
}

TEST_CASE("a file that is clicked has its name in the name box, and OK opens it")
{
    QMainWindow* log = LogWindow();
    Then("frmOpenSave", [](QWidget* window) {
        CHECK(window->windowTitle() == "Open Boring Diagram File");
        auto* files = Find<QListWidget>(window, "File1");
        const int borings = int(FilesIn(Scratch("samples"), ".BOR").size());
        CHECK(files->count() == borings);
        QTest::mouseClick(files->viewport(), Qt::LeftButton, {}, MiddleOf(files, "TC-102.BOR"));
        CHECK(Find<QLineEdit>(window, "fileText")->text() == "TC-102.BOR");
        CHECK(window->isVisible());
        ClickButton(window, "Command1");
    });
    ClickMenu(log, "mnuFile", "mnuOpen");
    CheckAllDone();
    CHECK(BoringFileName == Scratch("samples/TC-102.BOR"));
    CHECK(frmBorinput::Text1 == "TC-102");
}

TEST_CASE("a double click on a file opens it at once")
{
    QMainWindow* log = LogWindow();
    Then("frmOpenSave", [](QWidget* window) {
        auto* files = Find<QListWidget>(window, "File1");
        const QPoint at = MiddleOf(files, "TC-103.BOR");
        QTest::mouseClick(files->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(files->viewport(), Qt::LeftButton, {}, at);
    });
    ClickMenu(log, "mnuFile", "mnuOpen");
    CheckAllDone();
    CHECK(BoringFileName == Scratch("samples/TC-103.BOR"));
}

TEST_CASE("the chooser works by the keyboard: down the files and Enter; Escape cancels")
{
    QMainWindow* log = LogWindow();
    QString chosen;
    Then("frmOpenSave", [&chosen](QWidget* window) {
        CHECK(window->focusWidget() == Find<QLineEdit>(window, "fileText"));
        Key(window, Qt::Key_Tab);
        CHECK(window->focusWidget() == Find<QListWidget>(window, "File1"));
        Key(window, Qt::Key_Down);
        Key(window, Qt::Key_Down);
        auto* files = Find<QListWidget>(window, "File1");
        chosen = files->currentItem()->text();
        CHECK(files->currentRow() > 0);
        CHECK(Find<QLineEdit>(window, "fileText")->text() == chosen);
        Key(window, Qt::Key_Return);
    });
    ClickMenu(log, "mnuFile", "mnuOpen");
    CheckAllDone();
    const Text opened = BoringFileName;
    CHECK(opened == Scratch("samples/" + chosen.toStdString()));
    Then("frmOpenSave", [](QWidget* window) {
        QTest::keyClicks(Find<QLineEdit>(window, "fileText"), "TC-107.BOR");
        Key(window, Qt::Key_Escape);
    });
    ClickMenu(log, "mnuFile", "mnuOpen");
    CheckAllDone();
    CHECK(DialogResult == "");
    CHECK(BoringFileName == opened);
}

TEST_CASE("the tab order of the chooser goes through every box and button once")
{
    LogWindow();
    DialogMode = 1;
    Then("frmOpenSave", [](QWidget* window) {
        std::vector<std::string> order;
        for (int i = 0; i < 10; ++i) {
            order.push_back(window->focusWidget()->objectName().toStdString());
            Key(window, Qt::Key_Tab);
        }
        CHECK(order == std::vector<std::string>{"fileText", "File1", "Drive1", "Dir1", "List1", "SS", "Command4",
                                                "Command1", "Command2", "Command3"});
        CHECK(window->focusWidget()->objectName() == "fileText");
        for (const char* name : {"fileText", "File1", "Drive1", "Dir1", "List1", "SS"})
            CHECK_MESSAGE(!Find<QWidget>(window, name)->accessibleName().isEmpty(), name);
        CHECK(Find<QPushButton>(window, "Command1")->isDefault());
        Key(window, Qt::Key_Escape);
    });
    ShowOpenSave();
    CheckAllDone();
}

TEST_CASE("the version list is there in mode 1 alone, with the newest form marked; another one shows its own files")
{
    LogWindow();
    WriteScratch("samples/OLD.SV3", "");
    WriteScratch("samples/NEWER.SV4", "");
    DialogMode = 1;
    Then("frmOpenSave", [](QWidget* window) {
        bool told = false;
        for (const QLabel* label : window->findChildren<QLabel*>())
            told = told || label->text().remove('&') == "Click to select version of VeskLog:";
        CHECK(told);
        auto* versions = Find<QListWidget>(window, "List1");
        CHECK(versions->count() == 3);
        CHECK(versions->currentItem()->text() == "Version 4.6/5.0");
        CHECK(Find<QLabel>(window, "lblPattern")->text() == "&Files (*.BOR):");
        QTest::mouseClick(versions->viewport(), Qt::LeftButton, {}, MiddleOf(versions, "Version 3.0"));
        CHECK(Find<QLabel>(window, "lblPattern")->text() == "&Files (*.SV3):");
        auto* files = Find<QListWidget>(window, "File1");
        CHECK(files->count() == 1);
        CHECK(files->item(0)->text() == "OLD.SV3");
        QTest::mouseClick(versions->viewport(), Qt::LeftButton, {}, MiddleOf(versions, "Version 4.0/4.0P"));
        CHECK(files->item(0)->text() == "NEWER.SV4");
        QTest::keyClicks(Find<QLineEdit>(window, "fileText"), "forgotten");
        ClickButton(window, "Command1");
    });
    ShowOpenSave();
    CheckAllDone();
    CHECK(DialogResult == Scratch("samples/forgotten"));
    CHECK(DialogMode == 1);
    DialogMode = 2;
    Then("frmOpenSave", [](QWidget* window) {
        CHECK(window->windowTitle() == "Save Boring Diagram File");
        CHECK(window->findChild<QListWidget*>("List1") == nullptr);
        QTest::keyClicks(Find<QLineEdit>(window, "fileText"), "C:\\x.bor");
        ClickButton(window, "Command1");
    });
    ShowOpenSave();
    CheckAllDone();
    CHECK(DialogResult == "C:\\x.bor");
    CHECK(DialogMode == -1);
}

TEST_CASE("modes outside the project folder have the smaller window, with no project list")
{
    LogWindow();
    int tall = 0;
    for (const int mode : {11, 9, 10, 12, 13, 14, 15, 20, 21}) {
        DialogMode = int16_t(mode);
        Then("frmOpenSave", [&](QWidget* window) {
            CHECK((window->findChild<QTableWidget*>("SS") != nullptr) == (mode == 11));
            if (mode == 11)
                tall = window->height();
            else
                CHECK(window->height() < tall);
            ClickButton(window, "Command2");
        });
        ShowOpenSave();
        CheckAllDone();
        CHECK(DialogResult == "");
    }
}

TEST_CASE("folders are gone to by a double click or Enter, and Enter there does not close the chooser")
{
    LogWindow();
    std::filesystem::create_directories(Scratch("samples/inner"));
    WriteScratch("samples/inner/I-1.BOR", "");
    DialogMode = 1;
    Then("frmOpenSave", [](QWidget* window) {
        auto* folders = Find<QListWidget>(window, "Dir1");
        folders->setFocus();
        Key(window, Qt::Key_Down); // the first folder inside
        Key(window, Qt::Key_Return);
        CHECK(window->isVisible());
        CHECK(frmOpenSave::Dialog.Dir1 == Scratch("samples/inner"));
        auto* files = Find<QListWidget>(window, "File1");
        REQUIRE(files->count() == 1);
        QTest::mouseClick(files->viewport(), Qt::LeftButton, {}, MiddleOf(files, "I-1.BOR"));
        ClickButton(window, "Command1");
    });
    ShowOpenSave();
    CheckAllDone();
    CHECK(DialogResult == Scratch("samples/inner/I-1.BOR"));
    CHECK(ProjectPath == Scratch("samples"));
}

TEST_CASE("a click on a project makes its folder the project folder, its heading file and logo take effect")
{
    QMainWindow* log = LogWindow();
    TwoProjects();
    LoadProjectList();
    Then("frmOpenSave", [](QWidget* window) {
        auto* grid = Find<QTableWidget>(window, "SS");
        CHECK(grid->rowCount() == 2);
        CHECK(grid->item(0, 0)->text() == "Harbour");
        CHECK(grid->item(1, 1)->text() == "/nowhere");
        CHECK(grid->horizontalHeaderItem(0)->text() == "Project ID");
        CHECK(grid->horizontalHeaderItem(1)->text() == "Project Path");
        ClickProject(window, 1);
        CHECK(Find<QListWidget>(window, "File1")->count() == 1);
        ClickButton(window, "Command2");
    });
    ClickMenu(log, "mnuFile", "mnuOpen");
    CheckAllDone();
    CHECK(ProjectPath == Scratch("harbour"));
    CHECK(log->windowTitle().toStdString().starts_with(Scratch("harbour") + " - VeskLog - Boring Log Diagram"));
    CHECK(DeviceConfig.SystemFiles[HeadingFile] == "harbour.hdg");
    LineReader logo("logo.txt");
    logo.Skip(4);
    CHECK(logo.Line() == "HARBOUR.BMP");
}

TEST_CASE("a project is chosen by Enter or the space bar; the arrows alone choose none")
{
    LogWindow();
    TwoProjects();
    LoadProjectList();
    DialogMode = 2;
    Then("frmOpenSave", [](QWidget* window) {
        auto* grid = Find<QTableWidget>(window, "SS");
        grid->setFocus();
        Key(window, Qt::Key_Down);
        Key(window, Qt::Key_Down);
        Key(window, Qt::Key_Up);
        CHECK(grid->currentRow() == 0);
        CHECK(ProjectPath == Scratch("samples"));
        Key(window, Qt::Key_Space);
        CHECK(ProjectPath == Scratch("harbour"));
        CHECK(window->isVisible());
        Key(window, Qt::Key_Down);
        Key(window, Qt::Key_Return); // the folder of this one is gone
        CHECK(ProjectPath == Scratch("harbour"));
        CHECK(window->isVisible());
        Key(window, Qt::Key_Escape);
    });
    ThenAnswer("Warning:  /nowhere path does not exist.", "OK");
    ShowOpenSave();
    CheckAllDone();
}

TEST_CASE("Edit Project List opens its editor, and the grid shows what was edited")
{
    LogWindow();
    TwoProjects();
    LoadProjectList();
    DialogMode = 1;
    Then("frmOpenSave", [](QWidget* window) {
        CHECK(Find<QPushButton>(window, "Command4")->text().remove('&') == "Edit Project List");
        ClickButton(window, "Command4");
        CHECK(Find<QTableWidget>(window, "SS")->rowCount() == 1);
        CHECK(Find<QTableWidget>(window, "SS")->item(0, 0)->text() == "Quay");
        Key(window, Qt::Key_Escape);
    });
    Then("frmProjEdit", [](QWidget* window) {
        frmProjEdit::SS.ClearRows(2, 2);
        frmProjEdit::SS.Cell(1, 1) = "Quay";
        ClickButton(window, "Command1");
    });
    ShowOpenSave();
    CheckAllDone();
}

TEST_CASE("a project list that ends early ends the start: the number, then status 1")
{
    UseDesktop();
    WriteScratch("device.cfg", Lines({ScratchFolder(), "0,0", "Arial"}));
    WriteScratch("first.txt", "yes");
    WriteScratch("svproj.lst", " 2 \r\n");
    CHECK(StatusOfStart("Run-time error 62") == 1);
}

TEST_CASE("Help of the chooser, by its button and by F1")
{
    LogWindow();
    DialogMode = 1;
    Then("frmOpenSave", [](QWidget* window) {
        ClickButton(window, "Command3");
        Key(window, Qt::Key_F1);
        Key(window, Qt::Key_Escape);
    });
    Then("Help", [](QWidget* window) { Key(window, Qt::Key_Escape); });
    Then("Help", [](QWidget* window) { Key(window, Qt::Key_Escape); });
    ShowOpenSave();
    CheckAllDone();
}
