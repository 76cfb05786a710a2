// openfile_test.cpp -- files that come from outside: dropped on a window, or by the command line; the list of recent
// files; and the mark of a save that has failed.
#include "windows/driver.h"

#include "boring/boringboxes.h"
#include "convert/gtgsgeneditor.h"
#include "gis/gistool.h"
#include "sections/crosstool.h"
#include "sections/fencetool.h"
#include "sections/soiltool.h"
#include "session/files.h"
#include "session/session.h"
#include "tools/nextfile.h"
#include "windows/hands.h"
#include "windows/showwindows.h"
#include "windows/uitext.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTableView>
#include <QTest>

static const char* const quitting = "Would you like to save the current file before quitting?";
static const char* const opening = "Would you like to save the current file before opening another file?";

// What the user does in the window once it is up; one that a failing check has left open is closed.
static void In(const char* name, std::function<void(QWidget*)> act)
{
    Then(name, [act = std::move(act)](QWidget* window) {
        const QPointer<QWidget> open(window);
        try {
            act(window);
        } catch (...) {
            FileChanged = 0;
            if (open)
                open->close();
        }
    });
}

static void Leave(QWidget* tool)
{
    FileChanged = 0;
    ClickMenu(tool, "mnuTools", "mnuVeskLog");
}

// Typed into the cell, and not taken in yet.
static void TypeInto(QWidget* window, const char* grid, int row, int column, const char* letters)
{
    window->activateWindow();
    Settle();
    auto* view = Find<QTableView>(window, grid);
    const QModelIndex at = view->model()->index(row - 1, column - 1);
    view->scrollTo(at);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(at).center());
    for (const char* letter = letters; *letter; ++letter)
        QTest::keyClick(QApplication::focusWidget(), *letter);
}

// ---- Drops

TEST_CASE("a file dropped on the log window opens in the tool of its ending, after the question of leaving the boring")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-101.BOR");
    const struct {
        const char* file;
        const char* window;
        ToolRecord& tool;
    } cases[] = {{"TC-S1.CRO", "frmCross", CrossForm},
                 {"TC-F1.FEN", "frmFence", FenceForm},
                 {"MW-108.SOI", "frmSoil", SoilForm},
                 {"WIREWICK.GIS", "frmGIS", GisForm}};
    for (const auto& one : cases) {
        CAPTURE(one.file);
        const Text name = Scratch(Text("samples/") + one.file);
        FileChanged = 1;
        ThenAnswer(quitting, "Cancel");
        CHECK(Drop(log, name));
        CheckAllDone();
        CHECK(FileChanged == 1);
        ThenAnswer(quitting, "No");
        In(one.window, [&](QWidget* window) {
            Settle(20);
            CHECK(one.tool.FileName == name);
            CHECK(window->windowTitle().contains(ToUi(name)));
            CHECK(one.tool.grids[0]->DataRowCount() > 0);
            LookAt(window, Text("dropped-") + one.file);
            CHECK(Find<QAction>(window, "mnuRecent1")->text() == "&1 " + ToUi(name));
            CHECK(FileChanged == 0);
            Leave(window);
        });
        CHECK(Drop(log, name));
        Settle(50);
        CheckAllDone();
        CHECK(BoringFileName == Scratch("samples/TC-101.BOR"));
    }
    CHECK(Find<QLineEdit>(log, "Text1")->text() == "TC-101");
}

TEST_CASE("a file dropped on a tool's window opens in the tool of its ending, a boring in the log window behind it")
{
    QMainWindow* log = LogWindow();
    In("frmCross", [](QWidget* cross) {
        CHECK_FALSE(Drop(cross, Scratch("us.hdg")));
        TypeInto(cross, "SS1", 1, 2, "typed");
        ThenAnswer(quitting, "Cancel");
        CHECK(Drop(cross, Scratch("samples/TC-F1.FEN")));
        CHECK(cross->isVisible());
        CHECK(frmCross::SS1.Cell(1, 2) == "typed");
        ThenAnswer(quitting, "No");
        In("frmFence", [](QWidget* fence) {
            Settle(20);
            CHECK(frmFence::FileName == Scratch("samples/TC-F1.FEN"));
            CHECK(Drop(fence, Scratch("samples/TC-102.BOR")));
        });
        CHECK(Drop(cross, Scratch("samples/TC-F1.FEN")));
    });
    ClickMenu(log, "mnuTools", "mnuvcross");
    Settle(50);
    CheckAllDone();
    CHECK(BoringFileName == Scratch("samples/TC-102.BOR"));
    CHECK(Find<QLineEdit>(log, "Text1")->text() == "TC-102");
    CHECK(QApplication::activeModalWidget() == nullptr);
}

TEST_CASE("a file dropped on a field is the window's, and the field keeps its text")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-101.BOR");
    CHECK(Drop(Find<QLineEdit>(log, "Text1"), Scratch("samples/TC-103.BOR")));
    CHECK(Find<QLineEdit>(log, "Text1")->text() == "TC-103");
    CHECK(FileChanged == 0);
    CHECK(Drop(Find<QPlainTextEdit>(log, "txtClient"), Scratch("samples/TC-102.BOR")));
    CHECK(Find<QLineEdit>(log, "Text1")->text() == "TC-102");
}

TEST_CASE("a map of the general conversion opens its editor, which opens others itself and makes room for other files")
{
    QMainWindow* log = LogWindow();
    std::string map = "template.BOR\r\n\r\n 1 \r\n 1 \r\n";
    for (int i = 0; i < 200; ++i)
        map += " 0 \r\n 0 \r\n";
    WriteScratch("A.GCV", map);
    WriteScratch("B.gcv", map);
    In("frmGTGSGenEditor", [](QWidget* editor) {
        Settle(20);
        CHECK(frmGTGSGenEditor::Dialog.File == Scratch("A.GCV"));
        CHECK(Find<QLineEdit>(editor, "Text1")->text() == "template.BOR");
        CHECK(Drop(editor, Scratch("B.gcv")));
        CHECK(editor->windowTitle().endsWith(ToUi(Scratch("B.gcv"))));
        Find<QLineEdit>(editor, "Text1")->setText("another");
        ThenAnswer(quitting, "Cancel");
        CHECK(Drop(editor, Scratch("samples/TC-102.BOR")));
        CHECK(editor->isVisible());
        ThenAnswer(quitting, "No");
        CHECK(Drop(editor, Scratch("samples/TC-102.BOR")));
    });
    CHECK(Drop(log, Scratch("A.GCV")));
    Settle(50);
    CheckAllDone();
    CHECK(BoringFileName == Scratch("samples/TC-102.BOR"));
    CHECK(NextFile == "");
}

TEST_CASE("while a box waits for its answer no window takes a file")
{
    QMainWindow* log = LogWindow();
    FileChanged = 1;
    Then("MsgBox", [log](QWidget* box) {
        CHECK_FALSE(Drop(log, Scratch("samples/TC-102.BOR")));
        CHECK_FALSE(Drop(box, Scratch("samples/TC-102.BOR")));
        Key(box, Qt::Key_Escape);
    });
    ClickMenu(log, "mnuFile", "mnuNew");
    CheckAllDone();
    CHECK(BoringFileName == "");
    FileChanged = 0;
}

// ---- The command line

TEST_CASE("a section on the command line opens in its tool, and no boring is written over it")
{
    QMainWindow* log = LogWindow();
    const std::string before = ReadScratch("samples/TC-S1.CRO");
    In("frmCross", [](QWidget* cross) {
        Settle(20);
        CHECK(frmCross::FileName == Scratch("samples/TC-S1.CRO"));
        Leave(cross);
    });
    OpenInLogWindow(Scratch("samples/TC-S1.CRO"));
    Settle(50);
    CheckAllDone();
    CHECK(BoringFileName == "");
    Then("frmOpenSave", [](QWidget* window) { Key(window, Qt::Key_Escape); });
    ClickMenu(log, "mnuFile", "mnuSave");
    CheckAllDone();
    CHECK(ReadScratch("samples/TC-S1.CRO") == before);
}

TEST_CASE("a file from outside that is refused is not among the recent ones, and Save asks for a name")
{
    QMainWindow* log = LogWindow();
    WriteScratch("samples/X.BOR", "a letter\r\nto the client\r\n");
    OpenSample("TC-101.BOR");
    ThenAnswer("This boring file has an invalid format.", "OK");
    OpenInLogWindow(Scratch("samples/X.BOR"));
    Settle(50);
    CheckAllDone();
    CHECK(log->windowTitle() == "VeskLog - Boring Log Diagram[*]");
    CHECK(Find<QAction>(log, "mnuRecent1")->text() == "&1 " + ToUi(Scratch("samples/TC-101.BOR")));
    CHECK(log->findChild<QAction*>("mnuRecent2") == nullptr);
    Then("frmOpenSave", [](QWidget* window) { Key(window, Qt::Key_Escape); });
    ClickMenu(log, "mnuFile", "mnuSave");
    CheckAllDone();
    CHECK(ReadScratch("samples/X.BOR") == "a letter\r\nto the client\r\n");
    // So it is with one that Open refuses, which keeps its name.
    Then("frmOpenSave", [](QWidget* window) {
        auto* box = Find<QLineEdit>(window, "fileText");
        box->setText("X.BOR");
        Key(box, Qt::Key_Return);
    });
    ThenAnswer("This boring file has an invalid format.", "OK");
    ClickMenu(log, "mnuFile", "mnuOpen");
    CheckAllDone();
    CHECK(BoringFileName == Scratch("samples/X.BOR"));
    CHECK(log->findChild<QAction*>("mnuRecent2") == nullptr);
}

// ---- A save that has failed

TEST_CASE(
    "the mark of unsaved changes stays in the log window's title after a save that was refused, until one is done")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-101.BOR");
    const Text notes = frmBorinput::MemoWcon.text;
    for (int i = 0; i < 61; ++i)
        frmBorinput::MemoWcon.text += "x\r\n";
    FileChanged = 1;
    Then("MsgBox", [](QWidget* window) { Key(window, Qt::Key_Return); });
    Find<QAction>(log, "mnuSave")->trigger();
    CheckAllDone();
    CHECK(FileChanged == 0);
    CHECK(log->isWindowModified());
    frmBorinput::MemoWcon.text = notes;
    Find<QAction>(log, "mnuSave")->trigger();
    CHECK_FALSE(log->isWindowModified());
}

TEST_CASE("the mark of unsaved changes stays in a tool's title after a save that has failed, until one is done")
{
    QMainWindow* log = LogWindow();
    const std::pair<const char*, ToolRecord*> cases[] = {
        {"mnuvcross", &CrossForm}, {"mnuvfence", &FenceForm}, {"mnuvsoil", &SoilForm}, {"mnuvGIS", &GisForm}};
    for (const auto& [entry, tool] : cases) {
        CAPTURE(entry);
        In(tool->window, [tool = tool](QWidget* window) {
            tool->FileName = Scratch("none/X") + tool->ending;
            FileChanged = 1;
            Then("MsgBox", [](QWidget* box) { Key(box, Qt::Key_Return); });
            Find<QAction>(window, "mnuSave")->trigger();
            CHECK(window->isWindowModified());
            // Whatever the flag says by then.
            FileChanged = 0;
            Find<QAction>(window, "mnuCopy")->trigger();
            CHECK(window->isWindowModified());
            tool->FileName = Scratch("X") + tool->ending;
            Find<QAction>(window, "mnuSave")->trigger();
            CHECK_FALSE(window->isWindowModified());
            Leave(window);
        });
        ClickMenu(log, "mnuTools", entry);
        CheckAllDone();
    }
}

TEST_CASE("what is being typed in a cell is asked about when a tool's window is closed, and Yes saves it")
{
    QMainWindow* log = LogWindow();
    In("frmCross", [](QWidget* cross) {
        Settle(20);
        TypeInto(cross, "SS1", 1, 1, "77");
        ThenAnswer(quitting, "Yes");
        cross->close();
        CHECK_FALSE(cross->isVisible());
    });
    OpenInLogWindow(Scratch("samples/TC-S1.CRO"));
    Settle(100);
    CheckAllDone();
    CHECK(LineReader(Scratch("samples/TC-S1.CRO")).Line().starts_with(" "));
    LineReader in(Scratch("samples/TC-S1.CRO"));
    in.Skip(1);
    CHECK(in.Line() == "77");
    CHECK(log->isVisible());
}
