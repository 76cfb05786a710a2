// converters_test.cpp -- the converters by the menu of the log tool, their dialogs and the conversion editor, by real
// events.
#include "boring/boringboxes.h"
#include "convert/gtgsgeneditor.h"
#include "convert/gtgsgeneral.h"
#include "places.h"
#include "run/batchrun.h"
#include "session/files.h"
#include "session/session.h"
#include "windows/driver.h"

#include <QAbstractItemModel>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QTest>

static Text chosen;

// The chooser is tested by itself; here it answers.
static void Choose(const Text& name)
{
    chosen = name;
    Platform.ShowChooser = [] { DialogResult = chosen; };
}

// A folder of its own beside the stock files, with the data of a converter.
static Text DataFolder(const char* data)
{
    const std::string folder = Scratch("tables");
    std::filesystem::create_directories(folder);
    for (const auto& entry :
         std::filesystem::directory_iterator(std::string(SOURCE_DIR) + "/tests/convert/data/" + data))
        if (entry.is_regular_file())
            std::filesystem::copy(entry.path(), folder, std::filesystem::copy_options::overwrite_existing);
    return folder;
}

static std::string Kept(const Text& name)
{
    return ReadWholeFile(Text(SOURCE_DIR) + "/tests/convert/data/" + name);
}

// OK on these files of the batch dialog.
static void PickFiles(QWidget* dialog, std::initializer_list<const char*> names)
{
    auto* list = Find<QListWidget>(dialog, "File1");
    list->clearSelection();
    for (const char* name : names) {
        const QList<QListWidgetItem*> items = list->findItems(name, Qt::MatchExactly);
        REQUIRE(items.size() == 1);
        items.first()->setSelected(true);
    }
    ClickButton(dialog, "Command1");
}

TEST_CASE("GTGS print files by the menu: the dialog lists them, and OK converts those that are marked")
{
    QMainWindow* log = LogWindow();
    lastDir = DataFolder("prt");
    Then("frmDrawPrint", [](QWidget* dialog) {
        CHECK(dialog->windowTitle() == "Select GTGS .PRT Files to Convert");
        ThenAnswer("All .PRT Files Converted", "OK");
        PickFiles(dialog, {"ordinary.PRT", "pages.PRT"});
    });
    ClickMenu(log, "mnuUtilities", "mnuGTGS");
    CheckAllDone();
    CHECK(ReadScratch("tables/ordinary.bor") == Kept("prt/kept/ordinary.bor"));
    CHECK(ReadScratch("tables/pages.bor") == Kept("prt/kept/pages.bor"));
    CHECK_FALSE(FileExists(Scratch("tables/early.bor")));
}

TEST_CASE("WinLog files by the menu: first the template, then the dialog")
{
    QMainWindow* log = LogWindow();
    lastDir = DataFolder("log");
    Choose(lastDir + "/template.BOR");
    Then("frmDrawPrint", [](QWidget* dialog) {
        CHECK(dialog->windowTitle() == "Select WinLog .LOG Files to Convert");
        ThenAnswer("All .LOG Files Converted", "OK");
        PickFiles(dialog, {"short.LOG"});
    });
    ClickMenu(log, "mnuUtilities", "mnuConvertWinLog");
    CheckAllDone();
    CHECK(ReadScratch("tables/short.bor") == Kept("log/kept/short.bor"));
}

TEST_CASE("the IRPIMS export by the menu writes its tables into the folder of the dialog")
{
    QMainWindow* log = LogWindow();
    lastDir = DataFolder("irpims");
    Then("frmDrawPrint", [](QWidget* dialog) {
        CHECK(dialog->windowTitle() == "Select Boring Log Files to Export");
        ThenAnswer("Created TIMBORE.TXT, TIMLITH.TXT, TIMCONS.TXT", "OK");
        PickFiles(dialog, {"B-1.BOR", "B-2.BOR", "B-3.BOR"});
    });
    ClickMenu(log, "mnuUtilities", "mnuExp2IRPIMS");
    CheckAllDone();
    CHECK(ReadScratch("tables/timlith.txt") == Kept("irpims/kept/timlith.txt"));
}

TEST_CASE("GTGS text tables by the menu: two messages, and a boring for each line of the headers")
{
    QMainWindow* log = LogWindow();
    lastDir = DataFolder("txt");
    ThenAnswer("This conversion utility will open and convert the following files: headers.txt, depths.txt, lith.txt, "
               "desc.txt, depthr.txt, well.txt, wellcom.txt, remarks.txt",
               "OK");
    ThenAnswer("All .TXT Files Converted", "OK");
    ClickMenu(log, "mnuUtilities", "mnuConvertGTGStxt");
    CheckAllDone();
    CHECK(ReadScratch("tables/B-1.bor") == Kept("txt/kept/B-1.bor"));
}

TEST_CASE("the conversion editor: a map is opened, typed in and saved, and Begin Conversion opens the new boring")
{
    QMainWindow* log = LogWindow();
    ProjectPath = DataFolder("general");
    Then("frmGTGSGenEditor", [](QWidget* window) {
        CHECK(window->windowTitle() == "GTGS General Conversion Editor");
        CHECK(Find<QRadioButton>(window, "Option2")->isChecked());
        CHECK_FALSE(Find<QComboBox>(window, "Combo1")->isEnabled());
        Choose(ProjectPath + "/comma.GCV");
        ClickMenu(window, "mnuFile", "mnuOpenGTGSConvFile");
        CHECK(window->windowTitle().toStdString() == "GTGS General Conversion Editor - " + chosen);
        auto* combo = Find<QComboBox>(window, "Combo1");
        CHECK(combo->isEnabled());
        CHECK(combo->currentText() == "Comma");
        CHECK(Find<QLineEdit>(window, "Text1")->text() == "template");
        auto* fields = Find<QTableView>(window, "SS1");
        CHECK(fields->model()->headerData(0, Qt::Horizontal).toString() == "Maps to Vesklog");
        CHECK(fields->model()->data(fields->model()->index(3, 0)).toString() == "Boring Info");
        LookAt(window, "frmGTGSGenEditor");
        // A kind is picked from the list of its cell, in which the arrows move.
        fields->setFocus();
        fields->setCurrentIndex(fields->model()->index(9, 0));
        Settle(); // the menu's leaving has given the focus back
        QTest::keyClick(window->focusWidget(), Qt::Key_F2);
        Settle();
        auto* list = fields->findChild<QComboBox*>();
        REQUIRE(list != nullptr);
        CHECK(list->count() == 6);
        QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Down);
        CHECK(list->currentText() == "Client Info");
        LookAt(window, "frmGTGSGenEditorList");
        QTest::keyClick(list, Qt::Key_Return);
        Settle();
        CHECK(frmGTGSGenEditor::SS1.Cell(10, 1) == "Client Info");
        Choose(Scratch("mine"));
        ClickMenu(window, "mnuFile", "mnuSaveAs");
        CHECK(window->windowTitle().toStdString() == "GTGS General Conversion Editor - " + Scratch("mine.GCV"));
        CHECK(GtgsMapping.fieldMap[10].kind == ClientInfo);
        ClickButton(window, "Option4");
        auto* name = Find<QLineEdit>(window, "Text4");
        CHECK(name->isEnabled());
        name->setFocus();
        TypeWords(window, "mine");
        static const std::string created = "New Boring File Created:  " + ProjectPath + "/mine.bor";
        ThenAnswer(created.c_str(), "OK");
        ClickButton(window, "Command1");
        Key(window, Qt::Key_Escape);
        CHECK(window->isVisible());
        ClickMenu(window, "mnuFile", "mnuExit");
        CHECK_FALSE(window->isVisible());
    });
    ClickMenu(log, "mnuUtilities", "mnuConvertGTGSgeneral");
    CheckAllDone();
    CHECK(FileExists(Scratch("tables/mine.bor")));
    CHECK(ReadScratch("mine.GCV").starts_with("template\r\n\r\n 0 \r\n 1 \r\n 1 \r\n"));
    CHECK(frmBorinput::Text1 == "GB-7");
    CHECK(Find<QTableView>(log, "SSLith")->model()->index(0, 1).data().toString() == "FB");
    FileChanged = 0;
}

TEST_CASE("a changed map is asked about before another is opened and before the window goes, by menu or by its corner")
{
    QMainWindow* log = LogWindow();
    ProjectPath = DataFolder("general");
    static const char* const quitting = "Would you like to save the current file before quitting?";
    Then("frmGTGSGenEditor", [](QWidget* window) {
        Choose(ProjectPath + "/comma.GCV");
        ClickMenu(window, "mnuFile", "mnuOpenGTGSConvFile");
        auto* boring = Find<QLineEdit>(window, "Text1");
        boring->setFocus();
        TypeWords(window, "s");
        ThenAnswer("Would you like to save the current file before opening another file?", "Cancel");
        Choose(ProjectPath + "/fixed.GCV");
        ClickMenu(window, "mnuFile", "mnuOpenGTGSConvFile");
        CHECK(boring->text() == "templates");
        ThenAnswer(quitting, "Cancel");
        ClickMenu(window, "mnuFile", "mnuExit");
        CHECK(window->isVisible());
        // A cell that is still being typed in counts, and a number that does not fit keeps the window.
        auto* fields = Find<QTableView>(window, "SS1");
        fields->setFocus();
        fields->setCurrentIndex(fields->model()->index(24, 1));
        Settle();
        TypeWords(window, "40000");
        ThenAnswer(quitting, "Yes");
        ThenAnswer("Run-time error 6", "OK");
        window->close();
        CHECK(window->isVisible());
        CHECK(frmGTGSGenEditor::SS1.Cell(25, 2) == "40000");
        CHECK(ReadScratch("tables/comma.GCV") == Kept("general/comma.GCV"));
        ThenAnswer(quitting, "No");
        window->close();
        CHECK_FALSE(window->isVisible());
    });
    ClickMenu(log, "mnuUtilities", "mnuConvertGTGSgeneral");
    CheckAllDone();
    CHECK(ReadScratch("tables/comma.GCV") == Kept("general/comma.GCV"));
}
