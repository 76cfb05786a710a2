// tools_test.cpp -- the windows of the tools that open on top of the log window, used by real keys and clicks.
#include "windows/driver.h"

#include "boring/boringboxes.h"
#include "boring/opensave.h"
#include "boring/projectlist.h"
#include "canvas/pageobjects.h"
#include "gis/gistool.h"
#include "sections/crosstool.h"
#include "sections/fencetool.h"
#include "sections/soiltool.h"
#include "session/deviceconfig.h"
#include "session/files.h"
#include "session/session.h"
#include "windows/livepane.h"
#include "windows/uitext.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTableView>
#include <QTest>
#include <QToolButton>
#include <set>

namespace
{
struct ToolCase {
    const char* entry; // in the log tool's menu
    const char* window;
    const char* back; // the entry of other tools that leads here
    ToolRecord& record;
};
} // namespace

static const ToolCase cases[] = {{"mnuvcross", "frmCross", "mnuVeskCross", CrossForm},
                                 {"mnuvfence", "frmFence", "mnuVeskFence", FenceForm},
                                 {"mnuvsoil", "frmSoil", "mnuVeskSoil", SoilForm},
                                 {"mnuvGIS", "frmGIS", "mnuVeskGIS", GisForm}};

static const char* const quitting = "Would you like to save the current file before quitting?";

// What the user does in the tool's window once it is up. A window that a failing check has left open is closed, so that
// the test ends.
static void InTool(const char* window, std::function<void(QWidget*)> act)
{
    Then(window, [act = std::move(act)](QWidget* tool) {
        const QPointer<QWidget> open(tool);
        try {
            act(tool);
        } catch (...) { // a check that had to hold has not, which is recorded: the window goes, so that the test ends
            FileChanged = 0;
            if (open)
                open->close();
        }
    });
}

// The tool from the log window's menu; act leaves it.
static void Visit(QMainWindow* log, const ToolCase& tool, std::function<void(QWidget*)> act)
{
    InTool(tool.window, std::move(act));
    ClickMenu(log, "mnuTools", tool.entry);
    CheckAllDone();
}

static void Leave(QWidget* tool)
{
    FileChanged = 0;
    ClickMenu(tool, "mnuTools", "mnuVeskLog");
}

static void ClickCell(QWidget* tool, const char* name, int row, int column)
{
    // Behind a menu or a box this screen has no window manager that makes the window active again.
    Settle();
    tool->activateWindow();
    Settle();
    auto* view = Find<QTableView>(tool, name);
    const QModelIndex at = view->model()->index(row - 1, column - 1);
    REQUIRE(at.isValid());
    view->scrollTo(at);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(at).center());
    CHECK(view->currentIndex() == at);
}

// Letters where the focus is.
static void TypeText(QWidget* tool, const char* text)
{
    for (const char* letter = text; *letter; ++letter) {
        if (!QApplication::focusWidget()) {
            tool->activateWindow();
            Settle();
        }
        QWidget* to = QApplication::focusWidget() ? QApplication::focusWidget() : tool;
        if (*letter == '\n')
            QTest::keyClick(to, Qt::Key_Return);
        else if (*letter == '\t')
            QTest::keyClick(to, Qt::Key_Tab);
        else
            QTest::keyClick(to, *letter);
        Settle();
    }
}

static void Press(QWidget* tool, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    tool->activateWindow();
    Settle();
    QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : tool, key, modifiers);
    Settle();
}

static void ThenChoose(const char* name)
{
    Then("frmOpenSave", [name](QWidget* window) {
        if (*name == 0) {
            Key(window, Qt::Key_Escape);
            return;
        }
        auto* box = Find<QLineEdit>(window, "fileText");
        box->setFocus();
        box->setText(name);
        QTest::keyClick(box, Qt::Key_Return);
    });
}

// ---- The windows

TEST_CASE("each tool opens on top of the log window with its title, its folder and its boxes, and VeskLog uncovers the "
          "log window")
{
    QMainWindow* log = LogWindow();
    const std::vector<const char*> boxes[] = {
        {"SS1", "SS2", "SS3", "SS4"},
        {"SS1", "SS2", "SS3", "SS4", "SS5"},
        {"SS1", "MemoSoil", "cmdAdj5", "cmdAdj6"},
        {"SSGISLayers", "SSGISInfo", "SSBoringData", "File1", "Option1", "Command1", "Command2", "Command3"}};
    for (size_t i = 0; i < std::size(cases); ++i)
        Visit(log, cases[i], [&, i](QWidget* tool) {
            CHECK(tool->isModal());
            CHECK(log->isVisible());
            const Text title = i == 3 ? Text("VeskGIS") : Scratch("samples") + " - " + cases[i].record.title;
            CHECK(tool->windowTitle().toStdString() == title + "[*]");
            CHECK_FALSE(tool->isWindowModified());
            CHECK(Find<QLabel>(tool, "lblProject")->text().toStdString() == "Project folder: " + Scratch("samples"));
            for (const char* name : boxes[i]) {
                auto* box = Find<QWidget>(tool, name);
                CAPTURE(name);
                CHECK(box->isVisible());
                auto* button = qobject_cast<QAbstractButton*>(box);
                CHECK((!box->accessibleName().isEmpty() || (button && !button->text().isEmpty())));
            }
            LookAt(tool, cases[i].window);
            ClickMenu(tool, "mnuTools", "mnuVeskLog");
            CHECK_FALSE(tool->isVisible());
        });
    CHECK(log->isVisible());
    CHECK(QApplication::activeModalWidget() == nullptr);
}

TEST_CASE("every entry of every tool's menu is there and enabled, and no tool leads to itself")
{
    QMainWindow* log = LogWindow();
    for (const ToolCase& one : cases)
        Visit(log, one, [&](QWidget* tool) {
            std::vector<std::string> wanted = {"mnuNew",        "mnuOpen",     "mnuSave",        "mnuSaveAs",
                                               "mnuExit",       "mnuUndo",     "mnuRedo",        "mnuCut",
                                               "mnuCopy",       "mnuPaste",    "mnuFillDown",    "mnuInsertRow",
                                               "mnuDeleteRow",  "mnuVeskLog",  "mnuEditHeading", "mnuGraphicSetup",
                                               "mnuCreateLogo", "mnuFillPatt", "mnuHelp",        "mnuAbout"};
            for (const ToolCase& other : cases)
                if (&other != &one)
                    wanted.push_back(other.back);
            const bool gis = &one.record == &GisForm;
            for (const char* name : {"mnuPreview", "mnuBatchDraw", "mnuPrint", "mnuPrintSetup", "mnuLivePreview"})
                if (gis)
                    CHECK(tool->findChild<QAction*>(name) == nullptr);
                else
                    wanted.push_back(name);
            if (gis)
                for (const char* name : {"mnuExportArcView", "mnuExp2EVS", "mnuInsertColumn", "mnuDeleteColumn"})
                    wanted.push_back(name);
            for (const std::string& name : wanted) {
                CAPTURE(name);
                CHECK(Find<QAction>(tool, name.c_str())->isEnabled());
            }
            CHECK(tool->findChild<QAction*>(one.back) == nullptr);
            Leave(tool);
        });
}

TEST_CASE("the shared windows open from each tool, which is in front again behind them")
{
    QMainWindow* log = LogWindow();
    for (const ToolCase& one : cases)
        Visit(log, one, [&](QWidget* tool) {
            const auto away = [](QWidget* window) { window->close(); };
            Then("frmHeading", away);
            ClickMenu(tool, "mnuEdit", "mnuEditHeading");
            Then("frmPrinterSetup", away);
            ClickMenu(tool, "mnuUtilities", "mnuGraphicSetup");
            Then("frmLogo", away);
            ClickMenu(tool, "mnuUtilities", "mnuCreateLogo");
            Then("Help", away);
            ClickMenu(tool, "mnuHelpMenu", "mnuHelp");
            Then("frmAbout5", Click);
            ClickMenu(tool, "mnuHelpMenu", "mnuAbout");
            Then("DrawArea", [](QWidget* window) { ClickMenu(window, "mnuFile", "mnuExit"); });
            ClickMenu(tool, "mnuUtilities", "mnuFillPatt");
            CheckAllDone();
            CHECK(tool->isVisible());
            CHECK(FileChanged == 0);
            Leave(tool);
        });
}

TEST_CASE("Tab goes through all boxes of a tool and comes round")
{
    QMainWindow* log = LogWindow();
    const std::vector<std::string> orders[] = {
        {"SS1", "SS4", "SS2", "SS3"},
        {"SS1", "SS5", "SS4", "SS2", "SS3"},
        {"SS1", "MemoSoil", "cmdAdj5", "cmdAdj6"},
        {"SSGISLayers", "Command2", "File1", "Option1", "Command1", "Command3", "SSBoringData", "SSGISInfo"}};
    for (size_t i = 0; i < std::size(cases); ++i)
        Visit(log, cases[i], [&, i](QWidget* tool) {
            Find<QWidget>(tool, orders[i][0].c_str())->setFocus();
            for (size_t n = 1; n <= orders[i].size(); ++n) {
                QWidget* from = QApplication::focusWidget();
                REQUIRE(from);
                if (qobject_cast<QTableView*>(from))
                    QTest::keyClick(from, Qt::Key_F6); // Tab goes through the cells first
                else
                    QTest::keyClick(from, Qt::Key_Tab);
                REQUIRE(QApplication::focusWidget());
                CHECK(QApplication::focusWidget()->objectName().toStdString() == orders[i][n % orders[i].size()]);
            }
            Leave(tool);
        });
}

TEST_CASE("the closing of a tool's window asks and leads back to the log window")
{
    QMainWindow* log = LogWindow();
    for (const ToolCase& one : cases)
        Visit(log, one, [&](QWidget* tool) {
            FileChanged = 1;
            ThenAnswer(quitting, "Cancel");
            tool->close();
            CheckAllDone();
            CHECK(tool->isVisible());
            CHECK(FileChanged == 1);
            ThenAnswer(quitting, "No");
            tool->close();
            CheckAllDone();
            CHECK_FALSE(tool->isVisible());
        });
    CHECK(log->isVisible());
    CHECK(FileChanged == 0);
}

TEST_CASE("Exit of any tool leaves the program: Cancel keeps it, No ends it")
{
    for (const ToolCase& one : cases) {
        std::filesystem::remove_all(ScratchFolder());
        std::filesystem::create_directories(ScratchFolder());
        QMainWindow* log = LogWindow();
        Visit(log, one, [&](QWidget* tool) {
            FileChanged = 1;
            ThenAnswer(quitting, "Cancel");
            ClickMenu(tool, "mnuFile", "mnuExit");
            CheckAllDone();
            CHECK(tool->isVisible());
            CHECK(log->isVisible());
            ThenAnswer(quitting, "No");
            ClickMenu(tool, "mnuFile", "mnuExit");
            CheckAllDone();
            CHECK_FALSE(tool->isVisible());
        });
        CHECK_FALSE(log->isVisible());
    }
}

// ---- A section

TEST_CASE("a section is typed, saved under a new name, previewed and found again as it was")
{
    QMainWindow* log = LogWindow();
    Visit(log, cases[0], [&](QWidget* tool) {
        ClickCell(tool, "SS1", 1, 1);
        TypeText(tool, "10\tMW-108\t\tB\tT\t80\tMW-109.BOR\t5\tW\tB\t");
        ClickCell(tool, "SS2", 1, 1);
        TypeText(tool, "0,100,20\nFeet\n120,20,10\nFeet\n");
        ClickCell(tool, "SS3", 1, 1);
        TypeText(tool, "The yard\nOne\nTwo\nA\nB\ny\nL\n");
        ClickCell(tool, "SS4", 1, 1);
        TypeText(tool, "CL\tClay");
        CHECK(FileChanged == 1);
        CHECK(tool->isWindowModified());
        ThenChoose("YARD");
        Press(tool, Qt::Key_S, Qt::ControlModifier);
        CheckAllDone();
        CHECK(tool->windowTitle().toStdString() ==
              Scratch("samples/YARD.CRO") + " - VeskCross - Cross Section Diagram[*]");
        CHECK_FALSE(tool->isWindowModified());
        CHECK(Find<QLabel>(tool, "lblState")->text() == "2 borings");
        std::string file =
            Lines({" 2 ", "10",   "MW-108", "",         "B",   "T",   "",    "",   "80",   "MW-109.BOR", "5",
                   "W",   "B",    "",       "",         "",    "0",   "100", "20", "Feet", "120",        "20",
                   "10",  "Feet", "",       "The yard", "One", "Two", "A",   "B",  "y",    "CL;Clay"});
        for (int row = 2; row <= 8; ++row)
            file += ";\r\n";
        file += Lines({"L", "", "", ""});
        for (int row = 9; row <= 30; ++row)
            file += ";\r\n";
        CHECK(ReadScratch("samples/YARD.CRO") == file);
        LookAt(tool, "cross-typed");
        // The page, and back with the cell and the focus as they were.
        ClickCell(tool, "SS3", 2, 1);
        static size_t objects;
        objects = 0;
        Then("DrawArea", [tool](QWidget* window) {
            objects = PageList.Objects.size();
            CHECK_FALSE(tool->isVisible());
            ClickMenu(window, "mnuFile", "mnuExit");
        });
        Press(tool, Qt::Key_F5);
        CheckAllDone();
        CHECK(objects > 100);
        CHECK(tool->isVisible());
        CHECK(frmCross::SS3.row == 2);
        CHECK(tool->focusWidget()->objectName() == "SS3");
        // A change is saved by Preview without a question.
        TypeText(tool, "Uno\n");
        Then("DrawArea", [](QWidget* window) { ClickMenu(window, "mnuFile", "mnuExit"); });
        Press(tool, Qt::Key_F5);
        CheckAllDone();
        CHECK(ReadScratch("samples/YARD.CRO").find("\r\nUno\r\n") != std::string::npos);
        CHECK(FileChanged == 0);
        Press(tool, Qt::Key_N, Qt::ControlModifier);
        CHECK(tool->windowTitle() == "VeskCross - Cross Section Diagram[*]");
        CHECK(frmCross::SS1.DataRowCount() == 0);
        CHECK(Find<QAction>(tool, "mnuRecent1")->text() == "&1 " + ToUi(Scratch("samples/YARD.CRO")));
        Find<QAction>(tool, "mnuRecent1")->trigger();
        CHECK(frmCross::SS1.Cell(2, 2) == "MW-109.BOR");
        Leave(tool);
    });
    CHECK(BoringFileName == "");
}

TEST_CASE("a distance beyond the scale is told on the save and saved all the same")
{
    QMainWindow* log = LogWindow();
    Visit(log, cases[0], [&](QWidget* tool) {
        ClickCell(tool, "SS1", 1, 1);
        TypeText(tool, "500\n");
        ClickCell(tool, "SS2", 1, 1);
        TypeText(tool, "0,100,20\n");
        ThenChoose("FAR.CRO");
        ThenAnswer("One or more of your boring distances exceed the END value of your HORIZONTAL SCALE.", "OK");
        ClickMenu(tool, "mnuFile", "mnuSaveAs");
        CheckAllDone();
        CHECK(FileExists(Scratch("samples/FAR.CRO")));
        ThenChoose("FAR.CRO");
        ThenAnswer(
            ("The file, " + Scratch("samples/FAR.CRO") + " already exists.  Do you wish to overwrite it?").c_str(),
            "No");
        ClickMenu(tool, "mnuFile", "mnuSaveAs");
        CheckAllDone();
        Leave(tool);
    });
}

TEST_CASE("rows go in and out of the grid that was entered last, a boring's row number with them; fixed boxes refuse")
{
    QMainWindow* log = LogWindow();
    const char* const refusal = "It is not possible to insert or delete rows in this box.";
    Visit(log, cases[0], [&](QWidget* tool) {
        auto* borings = Find<QTableView>(tool, "SS1");
        ClickMenu(tool, "mnuEdit", "mnuInsertRow"); // no grid has been entered yet
        CHECK(borings->model()->rowCount() == 16);
        CHECK(FileChanged == 1);
        ClickMenu(tool, "mnuEdit", "mnuDeleteRow");
        CHECK(borings->model()->rowCount() == 15);
        ClickCell(tool, "SS4", 8, 1);
        TypeText(tool, "CL\n");
        ClickMenu(tool, "mnuEdit", "mnuInsertRow");
        CHECK(frmCross::SS4.Cell(8, 1) == "CL");
        ClickCell(tool, "SS4", 3, 1);
        ClickMenu(tool, "mnuEdit", "mnuDeleteRow");
        CHECK(frmCross::SS4.Cell(7, 1) == "CL");
        Press(tool, Qt::Key_Z, Qt::ControlModifier);
        CHECK(frmCross::SS4.Cell(8, 1) == "CL");
        for (const char* name : {"SS2", "SS3"}) {
            ClickCell(tool, name, 1, 1);
            for (const char* entry : {"mnuInsertRow", "mnuDeleteRow"}) {
                ThenAnswer(refusal, "OK");
                ClickMenu(tool, "mnuEdit", entry);
                CheckAllDone();
            }
        }
        Leave(tool);
    });
    Visit(log, cases[1], [&](QWidget* tool) {
        for (const char* name : {"SS1", "SS4", "SS5"}) {
            ClickCell(tool, name, 2, 1);
            TypeText(tool, "x\n");
            ClickCell(tool, name, 1, 1);
            ClickMenu(tool, "mnuEdit", "mnuInsertRow");
            CHECK(Find<QTableView>(tool, name)->model()->index(2, 0).data().toString() == "x");
            ClickMenu(tool, "mnuEdit", "mnuDeleteRow");
            CHECK(Find<QTableView>(tool, name)->model()->index(1, 0).data().toString() == "x");
        }
        for (const char* name : {"SS2", "SS3"}) {
            ClickCell(tool, name, 1, 1);
            ThenAnswer(refusal, "OK");
            ClickMenu(tool, "mnuEdit", "mnuInsertRow");
            CheckAllDone();
        }
        Leave(tool);
    });
    Visit(log, cases[2], [&](QWidget* tool) {
        for (const char* entry : {"mnuInsertRow", "mnuDeleteRow"}) {
            ThenAnswer(refusal, "OK");
            ClickMenu(tool, "mnuEdit", entry);
            CheckAllDone();
        }
        CHECK(FileChanged == 0);
        Leave(tool);
    });
}

TEST_CASE("a definition dropped on a tool's window opens, and one that ends early shows what was read")
{
    QMainWindow* log = LogWindow();
    WriteScratch("samples/D.CRO", Lines({" 1 ", "5", "DROPPED", "", "", "", "", ""}));
    Visit(log, cases[0], [&](QWidget* tool) {
        ThenAnswer("Error 62 in OpenCrossFile.  Please contact Norvane", "OK");
        CHECK(Drop(tool, Scratch("samples/D.CRO")));
        Settle(50);
        CheckAllDone();
        CHECK(frmCross::SS1.Cell(1, 2) == "DROPPED");
        Leave(tool);
    });
}

TEST_CASE("a project chosen in a tool's chooser shows in all titles and status bars, the log window's too")
{
    QMainWindow* log = LogWindow();
    std::filesystem::create_directories(Scratch("quay"));
    ProjectList[1] = {"Quay", Scratch("quay"), "", ""};
    ProjectCount = 1;
    Visit(log, cases[0], [&](QWidget* tool) {
        Then("frmOpenSave", [](QWidget* window) {
            frmOpenSave::SelectProject(1);
            Key(window, Qt::Key_Escape);
        });
        ClickMenu(tool, "mnuFile", "mnuOpen");
        CheckAllDone();
        CHECK(tool->windowTitle().toStdString() == Scratch("quay") + " - VeskCross - Cross Section Diagram[*]");
        CHECK(Find<QLabel>(tool, "lblProject")->text().toStdString() == "Project folder: " + Scratch("quay"));
        Leave(tool);
    });
    CHECK(log->windowTitle().toStdString() == Scratch("quay") + " - VeskLog - Boring Log Diagram[*]");
}

TEST_CASE("the page beside the boxes of a tool follows what is typed")
{
    QMainWindow* log = LogWindow();
    for (size_t i = 0; i < 3; ++i)
        Visit(log, cases[i], [&, i](QWidget* tool) {
            tool->resize(1180, 740);
            ClickCell(tool, i == 2 ? "SS1" : "SS2", 1, 1);
            TypeText(tool, i == 2 ? "MW-108\n" : "0,100,20\n");
            if (i < 2) {
                ClickCell(tool, "SS2", i == 0 ? 3 : 4, 1);
                TypeText(tool, "120,20,10\n");
            }
            ClickMenu(tool, "mnuView", "mnuLivePreview");
            auto* pane = static_cast<LivePane*>(Find<QWidget>(tool, "LivePage"));
            CHECK(QTest::qWaitFor([pane] { return pane->Shown().List.Objects.size() > 10; }));
            ClickCell(tool, i == 2 ? "SS1" : "SS3", i == 2 ? 6 : 1, 1);
            TypeText(tool, "Purple yard\n");
            CAPTURE(i);
            CHECK((i == 2   ? frmSoil::SS1.Cell(6, 1)
                   : i == 1 ? frmFence::SS3.Cell(1, 1)
                            : frmCross::SS3.Cell(1, 1)) == "Purple yard");
            CHECK(QTest::qWaitFor([pane] {
                for (const PageObject& object : pane->Shown().List.Objects)
                    if (object.String.find("Purple yard") != Text::npos)
                        return true;
                return false;
            }));
            CHECK(FileChanged == 1);
            CHECK(PageList.Objects.empty());
            LookAt(tool, std::string(cases[i].window) + "-live");
            Leave(tool);
        });
}

// ---- The soil tool

TEST_CASE("the notes of the soil tool: typed, sized by their buttons, and refused above ten lines")
{
    QMainWindow* log = LogWindow();
    DeviceConfig.TextAdjust[5] = 100;
    Visit(log, cases[2], [&](QWidget* tool) {
        auto* notes = Find<QPlainTextEdit>(tool, "MemoSoil");
        CHECK(frmSoil::MemoSoil.widthTwips == 6900);
        QTest::mouseClick(notes->viewport(), Qt::LeftButton, {}, QPoint(5, 5));
        TypeText(tool, "one");
        CHECK(FileChanged == 1);
        CHECK(Find<QLabel>(tool, "lblState")->text() == "1 of 10 lines of notes");
        Press(tool, Qt::Key_Z, Qt::ControlModifier);
        CHECK(frmSoil::MemoSoil.text == "");
        FileChanged = DeviceChanged = 0;
        ClickButton(tool, "cmdAdj6");
        CHECK(frmSoil::MemoSoil.widthTwips == 6950);
        CHECK(DeviceConfig.TextAdjust[5] == 150);
        CHECK(FileChanged == 1);
        CHECK(DeviceChanged == 1);
        ClickButton(tool, "cmdAdj5");
        ClickButton(tool, "cmdAdj5");
        CHECK(frmSoil::MemoSoil.widthTwips == 6850);
        QTest::mouseClick(notes->viewport(), Qt::LeftButton, {}, QPoint(5, 5));
        TypeText(tool, "1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11");
        ThenChoose("S");
        ThenAnswer("Your notes exceed 10 lines.  You must reduce the number of lines by  1.", "OK");
        Press(tool, Qt::Key_S, Qt::ControlModifier);
        CheckAllDone();
        CHECK_FALSE(FileExists(Scratch("samples/S.SOI")));
        CHECK(frmSoil::FileName == "");
        CHECK(tool->isWindowModified());
        Press(tool, Qt::Key_Backspace);
        Press(tool, Qt::Key_Backspace);
        Press(tool, Qt::Key_Backspace);
        ThenChoose("S");
        Press(tool, Qt::Key_S, Qt::ControlModifier);
        CheckAllDone();
        CHECK(FileExists(Scratch("samples/S.SOI")));
        CHECK(FileChanged == 0);
        Leave(tool);
    });
}

// ---- The workbench

TEST_CASE("the workbench: borings are looked at, added, given layers and exported")
{
    QMainWindow* log = LogWindow();
    Visit(log, cases[3], [&](QWidget* tool) {
        auto* list = Find<QListWidget>(tool, "File1");
        auto* all = Find<QAbstractButton>(tool, "Option1");
        REQUIRE(list->count() == int(FilesIn(Scratch("samples"), ".bor").size()));
        const auto clickFile = [&](int row, Qt::KeyboardModifiers keys = {}) {
            QTest::mouseClick(list->viewport(), Qt::LeftButton, keys, list->visualItemRect(list->item(row)).center());
        };
        ClickButton(tool, "Command3"); // nothing is marked
        CHECK(frmGIS::SSBoringData.DataRowCount() == 0);
        clickFile(3);
        ClickButton(tool, "Command3");
        CHECK(frmGIS::SSBoringData.DataRowCount() > 2);
        CHECK(FileChanged == 0);
        Click(all);
        CHECK(all->isChecked());
        CHECK(list->selectedItems().size() == list->count());
        clickFile(0);
        CHECK_FALSE(all->isChecked());
        clickFile(1, Qt::ControlModifier);
        CHECK(list->selectedItems().size() == 2);
        ClickCell(tool, "SSGISLayers", 1, 1);
        TypeText(tool, "ML\t\tCL\tRED\t");
        ClickButton(tool, "Command2");
        auto* table = Find<QTableView>(tool, "SSGISInfo");
        CHECK(table->model()->columnCount() == 7);
        CHECK(table->model()->headerData(6, Qt::Horizontal).toString() == "CL");
        ClickButton(tool, "Command1");
        CHECK(list->selectedItems().isEmpty());
        CHECK(frmGIS::SSGISInfo.DataRowCount() == 2);
        CHECK(table->model()->index(1, 4).data().toString() == list->item(1)->text());
        CHECK(Find<QLabel>(tool, "lblState")->text() == "2 borings, 2 layers");
        CHECK(FileChanged == 1);
        LookAt(tool, "gis-filled");
        // Columns at the current cell; none among the first five.
        ClickCell(tool, "SSGISInfo", 1, 2);
        ClickMenu(tool, "mnuEdit", "mnuInsertColumn");
        ClickMenu(tool, "mnuEdit", "mnuDeleteColumn");
        CHECK(table->model()->columnCount() == 7);
        ClickCell(tool, "SSGISInfo", 1, 6);
        ClickMenu(tool, "mnuEdit", "mnuInsertColumn");
        CHECK(table->model()->columnCount() == 8);
        CHECK(table->model()->headerData(6, Qt::Horizontal).toString() == "ML");
        Press(tool, Qt::Key_Z, Qt::ControlModifier);
        CHECK(table->model()->columnCount() == 7);
        ThenChoose("SITE");
        ClickMenu(tool, "mnuFile", "mnuSave");
        CheckAllDone();
        CHECK(tool->windowTitle().toStdString() == "VeskGIS - " + Scratch("samples/SITE.GIS") + "[*]");
        CHECK(ReadScratch("samples/SITE.GIS").starts_with(" 2 \r\nML\r\n\r\nCL\r\nRED\r\n 2 \r\n"));
        ThenChoose("OUT.TXT");
        ThenAnswer("Done Creating ArcView Export File.", "OK");
        ClickMenu(tool, "mnuFile", "mnuExportArcView");
        CheckAllDone();
        const std::string arcView = ReadScratch("samples/OUT.TXT");
        CHECK(std::count(arcView.begin(), arcView.end(), '\n') == 4);
        const std::string question =
            "The file, " + Scratch("samples/OUT.TXT") + " already exists.  Do you wish to overwrite it?";
        ThenChoose("OUT.TXT");
        ThenAnswer(question.c_str(), "No");
        ClickMenu(tool, "mnuFile", "mnuExp2EVS");
        CheckAllDone();
        CHECK(ReadScratch("samples/OUT.TXT") == arcView);
        ThenChoose("OUT.TXT");
        ThenAnswer(question.c_str(), "Yes");
        ThenAnswer("Done Creating EVS Export File.", "OK");
        ClickMenu(tool, "mnuFile", "mnuExp2EVS");
        CheckAllDone();
        CHECK(ReadScratch("samples/OUT.TXT").starts_with("Easting/X"));
        ThenChoose("");
        ClickMenu(tool, "mnuFile", "mnuExp2EVS");
        CheckAllDone();
        Leave(tool);
    });
}

TEST_CASE(
    "a boring that comes into the project's folder stands in the workbench's list when the window is in front again")
{
    QMainWindow* log = LogWindow();
    Visit(log, cases[3], [&](QWidget* tool) {
        WriteScratch("samples/A-NEW.BOR", ReadScratch("samples/TC-101.BOR"));
        Then("Help", [](QWidget* window) { Key(window, Qt::Key_Escape); });
        ClickMenu(tool, "mnuHelpMenu", "mnuHelp");
        CheckAllDone();
        CHECK(Find<QListWidget>(tool, "File1")->item(0)->text() == "A-NEW.BOR");
        Leave(tool);
    });
}

TEST_CASE("the workbench's check list follows the table, and an entry leads to its cell")
{
    Visit(LogWindow(), cases[3], [](QWidget* tool) {
        for (const auto& [row, layer] : {std::pair(1, "A"), {2, "B"}, {3, "C"}})
            frmGIS::SSGISLayers.Cell(row, 1) = layer;
        for (int row = 1; row <= 3; ++row)
            frmGIS::SSGISLayers.Cell(row, 2) = "Tan1";
        frmGIS::Command2();
        for (const auto& [column, cell] : {std::pair(1, "B"), {2, "1"}, {3, "2"}, {4, "3"}, {5, "TC-101"}})
            frmGIS::SSGISInfo.Cell(2, column) = cell;
        for (const auto& [column, cell] : {std::pair(6, "5"), {7, "10"}, {8, "20"}})
            frmGIS::SSGISInfo.Cell(2, column) = cell;
        ClickMenu(tool, "mnuView", "mnuCheckList");
        Settle(300);
        auto* list = Find<QListWidget>(tool, "lstCheck");
        CHECK(list->isVisible());
        REQUIRE(list->count() == 1);
        CHECK(list->item(0)->text() == "Nothing to remark");
        ClickCell(tool, "SSGISInfo", 2, 7);
        TypeText(tool, "x\n");
        Settle(300);
        REQUIRE(list->count() == 1);
        CHECK(list->item(0)->text().startsWith("Warning: Row 2"));
        ClickCell(tool, "SSGISLayers", 1, 1);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
        CHECK(frmGIS::SSGISInfo.row == 2);
        CHECK(frmGIS::SSGISInfo.column == 8);
        CHECK(QApplication::focusWidget() == Find<QTableView>(tool, "SSGISInfo"));
        Leave(tool);
    });
}

TEST_CASE("a kind of the check list can be switched off for the project, which is told, and on again")
{
    const Text before = ProjectPath;
    Visit(LogWindow(), cases[3], [](QWidget* tool) {
        ProjectPath = Scratch("samples");
        frmGIS::SSGISLayers.Cell(1, 1) = "SM";
        frmGIS::Command2();
        for (const auto& [column, cell] : {std::pair(1, "B"), {2, "1"}, {5, "NONE"}, {6, "five"}})
            frmGIS::SSGISInfo.Cell(1, column) = cell;
        ClickMenu(tool, "mnuView", "mnuCheckList");
        Settle(300);
        auto* list = Find<QListWidget>(tool, "lstCheck");
        auto* head = Find<QLabel>(tool, "lblCheckHead");
        auto* foot = Find<QLabel>(tool, "lblCheckFoot");
        REQUIRE(list->count() == 4);
        CHECK(head->text() == "1 error, 3 warnings");
        CHECK(foot->text().isEmpty());
        CHECK(list->item(0)->text().startsWith("Error: Row 1, B: SM \"five\""));

        const QPoint place = list->visualItemRect(list->item(1)).center();
        QContextMenuEvent context(QContextMenuEvent::Mouse, place, list->viewport()->mapToGlobal(place));
        QApplication::sendEvent(list->viewport(), &context);
        auto* menu = tool->findChild<QMenu*>("mnuCheckEntry");
        REQUIRE(menu);
        CHECK(menu->actions()[0]->text() == "Do not show: Borings of a layer table without coordinates or elevation");
        menu->actions()[0]->trigger();
        menu->close();
        CHECK(list->count() == 2);
        CHECK(head->text() == "1 error, 1 warning");
        CHECK(foot->text() == "2 more are not shown, by the project's choice");
        CHECK(ReadScratch("samples/project.cfg") == "check.off = gis-place\r\n");

        auto* kinds = Find<QMenu>(tool, "mnuCheckKinds");
        emit kinds->aboutToShow();
        CHECK(Find<QAction>(tool, "kind.gis-boring")->isChecked());
        Find<QAction>(tool, "kind.gis-boring")->trigger();
        Find<QAction>(tool, "kind.gis-number")->trigger();
        REQUIRE(list->count() == 1);
        CHECK(list->item(0)->text() == "Nothing to remark");
        CHECK_FALSE(head->isVisible());
        CHECK(foot->text() == "4 more are not shown, by the project's choice");
        emit kinds->aboutToShow();
        for (const char* key : {"kind.gis-place", "kind.gis-boring", "kind.gis-number"}) {
            CHECK_FALSE(Find<QAction>(tool, key)->isChecked());
            Find<QAction>(tool, key)->trigger();
        }
        CHECK(list->count() == 4);
        CHECK(foot->text().isEmpty());
        CHECK(ReadScratch("samples/project.cfg") == "check.off =\r\n");
        Leave(tool);
    });
    ProjectPath = before;
}

TEST_CASE("sections, fences and soil tables have a check list, and an entry leads to its cell or its text")
{
    QMainWindow* log = LogWindow();
    const auto look = [](QWidget* tool) {
        ClickMenu(tool, "mnuView", "mnuCheckList");
        Settle(300);
        tool->activateWindow(); // as behind any menu
        Settle();
        return Find<QListWidget>(tool, "lstCheck");
    };
    const auto click = [](QListWidget* list, const char* words) {
        for (int row = 0; row < list->count(); ++row)
            if (list->item(row)->text().contains(words)) {
                list->scrollToItem(list->item(row));
                QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(row)).center());
                return;
            }
        FAIL(words);
    };
    Visit(log, cases[0], [&](QWidget* tool) {
        ClickCell(tool, "SS1", 1, 2);
        TypeText(tool, "NONE\n");
        ClickCell(tool, "SS3", 1, 1);
        click(look(tool), "NONE.bor is not found");
        CHECK(QApplication::focusWidget() == Find<QTableView>(tool, "SS1"));
        CHECK(frmCross::SS1.column == 2);
        FileChanged = 0;
        Leave(tool);
    });
    Visit(log, cases[1], [&](QWidget* tool) {
        ClickCell(tool, "SS5", 3, 1);
        TypeText(tool, "1,2\n");
        ClickCell(tool, "SS3", 1, 1);
        click(look(tool), "Panel 3 names 1");
        CHECK(QApplication::focusWidget() == Find<QTableView>(tool, "SS5"));
        CHECK(frmFence::SS5.row == 3);
        FileChanged = 0;
        Leave(tool);
    });
    Visit(log, cases[2], [&](QWidget* tool) {
        auto* notes = Find<QPlainTextEdit>(tool, "MemoSoil");
        notes->setFocus();
        for (int line = 1; line <= 12; ++line)
            TypeText(tool, "n\n");
        ClickCell(tool, "SS1", 1, 1);
        click(look(tool), "The notes exceed 10 lines");
        CHECK(QApplication::focusWidget() == notes);
        CHECK(notes->textCursor().atEnd());
        FileChanged = 0;
        Leave(tool);
    });
}

TEST_CASE("what the workbench reads of a boring leaves the log tool's boring alone")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-101.BOR");
    const std::vector<Text> before = frmBorinput::SSLith.cells;
    ClickMenu(log, "mnuFile", "mnuSave");
    const std::string file = ReadScratch("samples/TC-101.BOR");
    Visit(log, cases[3], [&](QWidget* tool) {
        Click(Find<QAbstractButton>(tool, "Option1"));
        ClickButton(tool, "Command1");
        Leave(tool);
    });
    CHECK(frmBorinput::SSLith.cells == before);
    ClickMenu(log, "mnuFile", "mnuSave");
    CHECK((ReadScratch("samples/TC-101.BOR") == file));
}

// ---- The walk

TEST_CASE("a walk through all five tools in one session, saving and not saving on the way")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-103.BOR");
    const std::string boring = ReadScratch("samples/TC-103.BOR");
    const auto type = [](QWidget* tool, const char* name, const char* words) {
        ClickCell(tool, name, 1, 1);
        TypeText(tool, words);
    };
    ThenAnswer(quitting, "No"); // the log tool's own question
    InTool("frmCross", [&](QWidget* tool) {
        CHECK(FileChanged == 0);
        type(tool, "SS1", "1\n");
        ThenAnswer(quitting, "Cancel");
        ClickMenu(tool, "mnuTools", "mnuVeskFence");
        CHECK(tool->isVisible());
        ThenAnswer(quitting, "Yes"); // without a name: Save As, which is cancelled, so the user stays
        ThenChoose("");
        ClickMenu(tool, "mnuTools", "mnuVeskFence");
        CHECK(tool->isVisible());
        ThenAnswer(quitting, "Yes");
        ThenChoose("W");
        ThenAnswer("One or more of your boring distances exceed the END value of your HORIZONTAL SCALE.", "OK");
        InTool("frmFence", [&](QWidget* fence) {
            CHECK(ReadScratch("samples/W.CRO").starts_with(" 1 \r\n1\r\n"));
            CHECK(FileChanged == 0);
            CHECK(frmFence::FileName == "");
            type(fence, "SS5", "1,2\n");
            ThenAnswer(quitting, "No");
            InTool("frmSoil", [&](QWidget* soil) {
                type(soil, "SS1", "TC-103\n");
                ThenChoose("W.SOI");
                ClickMenu(soil, "mnuFile", "mnuSave");
                InTool("frmGIS", [&](QWidget* gis) {
                    type(gis, "SSGISLayers", "SM\n");
                    ThenAnswer(quitting, "Yes");
                    ThenChoose("W");
                    InTool("frmCross", [&](QWidget* again) {
                        CHECK(frmCross::FileName == ""); // each visit begins with no file
                        CHECK(frmCross::SS1.DataRowCount() == 0);
                        ThenChoose("W.CRO");
                        ClickMenu(again, "mnuFile", "mnuOpen");
                        CHECK(frmCross::SS1.Cell(1, 1) == "1");
                        ClickMenu(again, "mnuTools", "mnuVeskLog");
                    });
                    ClickMenu(gis, "mnuTools", "mnuVeskCross");
                });
                ClickMenu(soil, "mnuTools", "mnuVeskGIS");
            });
            ClickMenu(fence, "mnuTools", "mnuVeskSoil");
        });
        ClickMenu(tool, "mnuTools", "mnuVeskFence");
    });
    auto* name = Find<QLineEdit>(log, "Text1");
    name->setFocus();
    QTest::keyClick(name, Qt::Key_End);
    QTest::keyClicks(name, "x");
    CHECK(FileChanged == 1);
    ClickMenu(log, "mnuTools", "mnuvcross");
    CheckAllDone();
    CHECK(log->isVisible());
    CHECK(QApplication::activeModalWidget() == nullptr);
    CHECK(FileChanged == 0);
    CHECK(Find<QLineEdit>(log, "Text1")->text() == "TC-103x"); // still in the boxes
    CHECK(BoringFileName == Scratch("samples/TC-103.BOR"));
    CHECK(ReadScratch("samples/TC-103.BOR") == boring);
    CHECK_FALSE(FileExists(Scratch("samples/W.FEN")));
    CHECK(ReadScratch("samples/W.SOI").starts_with("TC-103\r\n"));
    CHECK(ReadScratch("samples/W.GIS").starts_with(" 1 \r\nSM\r\n"));
}

namespace
{
// What is opened in each tool of the round, and the cell that is typed over.
struct Stop {
    const char* file;
    const char* grid;
    int row, column;
    const char* was;
};
} // namespace

static const Stop stops[] = {{"TC-S1.CRO", "SS3", 1, 1, "\r\nFormer Hallam Wire Works\r\n"},
                             {"TC-F1.FEN", "SS3", 1, 1, "\r\nTamber River Crossing\r\n"},
                             {"MW-108.SOI", "SS1", 6, 1, "\r\nFormer Hallam Wire Works\r\n"},
                             {"WIREWICK.GIS", "SSGISLayers", 1, 2, "\r\nGRAY\r\n"}};

static std::string With(std::string file, const std::string& was, const std::string& now)
{
    const size_t at = file.find(was);
    REQUIRE(at != std::string::npos);
    return file.replace(at, was.size(), now);
}

// In one tool, and from there through the rest: Cancel keeps the user and the file as they are, then the other answer
// leads on, with the file saved or not.
static void GoRound(size_t at, QWidget* tool, const char* answer, const char* typed)
{
    const Stop& stop = stops[at];
    const Text name = Text("samples/") + stop.file;
    CAPTURE(name);
    CHECK(FileChanged == 0);
    ThenChoose(stop.file);
    ClickMenu(tool, "mnuFile", "mnuOpen");
    const std::string before = ReadScratch(name);
    ClickCell(tool, stop.grid, stop.row, stop.column);
    TypeText(tool, (Text(typed) + "\n").c_str());
    CHECK(FileChanged == 1);
    const bool last = at + 1 == std::size(stops);
    const char* const next = last ? "mnuVeskLog" : cases[at + 1].back;
    ThenAnswer(quitting, "Cancel");
    ClickMenu(tool, "mnuTools", next);
    CHECK(tool->isVisible());
    CHECK(FileChanged == 1);
    CHECK((ReadScratch(name) == before));
    const std::string expected = answer == Text("Yes") ? With(before, stop.was, Text("\r\n") + typed + "\r\n") : before;
    ThenAnswer(quitting, answer);
    if (!last)
        InTool(cases[at + 1].window, [=](QWidget* other) {
            CHECK((ReadScratch(name) == expected));
            GoRound(at + 1, other, answer, typed);
        });
    ClickMenu(tool, "mnuTools", next);
    CHECK((ReadScratch(name) == expected));
}

TEST_CASE(
    "round through all five tools: at each hand-over Cancel stays, Yes saves the file, and No leaves it as it was")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-103.BOR");
    ClickMenu(log, "mnuFile", "mnuSave"); // each cell as a save writes it
    const std::string boring = ReadScratch("samples/TC-103.BOR");
    std::string expected = boring;
    const std::pair<const char*, const char*> rounds[] = {{"No", "One"}, {"Yes", "Two"}, {"No", "Three"}};
    for (const auto& [answer, typed] : rounds) {
        const Text given = typed;
        CAPTURE(given);
        auto* name = Find<QLineEdit>(log, "Text1");
        name->setFocus();
        QTest::keyClick(name, Qt::Key_End);
        QTest::keyClicks(name, "x");
        CHECK(FileChanged == 1);
        ThenAnswer(quitting, "Cancel");
        ClickMenu(log, "mnuTools", "mnuvcross");
        CheckAllDone();
        CHECK(FileChanged == 1);
        CHECK((ReadScratch("samples/TC-103.BOR") == expected));
        if (answer == Text("Yes")) // with what was typed in the round before
            expected = With(boring, "\r\nTC-103\r\n", "\r\nTC-103xx\r\n");
        ThenAnswer(quitting, answer);
        InTool("frmCross", [&, answer = answer, typed = typed](QWidget* tool) {
            CHECK((ReadScratch("samples/TC-103.BOR") == expected));
            GoRound(0, tool, answer, typed);
        });
        ClickMenu(log, "mnuTools", "mnuvcross");
        CheckAllDone();
        CHECK(log->isVisible());
        CHECK(QApplication::activeModalWidget() == nullptr);
        CHECK(FileChanged == 0);
        CHECK((ReadScratch("samples/TC-103.BOR") == expected));
        log->activateWindow(); // there is no window manager here to do it
        Settle();
    }
    CHECK(Find<QLineEdit>(log, "Text1")->text() == "TC-103xxx");
}

TEST_CASE("Enter behind a run of Tabs goes back to where it began in a tool's grid too")
{
    QMainWindow* log = LogWindow();
    Visit(log, cases[0], [](QWidget* tool) {
        ClickCell(tool, "SS1", 1, 1);
        TypeText(tool, "A.BOR\t0\n");
        CHECK(frmCross::SS1.row == 2);
        CHECK(frmCross::SS1.column == 1);
        Leave(tool);
    });
}

TEST_CASE("a change of the font from a tool marks no empty document as changed")
{
    QMainWindow* log = LogWindow();
    for (const ToolCase& one : cases)
        Visit(log, one, [&](QWidget* tool) {
            CAPTURE(one.window);
            const auto otherFont = [](QWidget* window) {
                auto* font = Find<QLineEdit>(window, "Text1");
                font->selectAll();
                QTest::keyClicks(font, DeviceConfig.FontName == "Arial" ? "DejaVu Sans" : "Arial");
                ClickButton(window, "Command1");
            };
            const Text before = DeviceConfig.FontName;
            Then("frmPrinterSetup", otherFont);
            ClickMenu(tool, "mnuUtilities", "mnuGraphicSetup");
            CheckAllDone();
            CHECK(DeviceConfig.FontName != before);
            CHECK(FileChanged == 0);
            CHECK_FALSE(tool->isWindowModified());
            Leave(tool);
        });
}
