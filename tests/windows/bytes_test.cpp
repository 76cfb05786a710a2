// bytes_test.cpp -- what the boxes of the log tool show and take back: the bytes of the file, and one line where a file
// has room for one.
#include "windows/driver.h"
#include "windows/hands.h"

#include "boring/boringboxes.h"
#include "editors/borinput.h"
#include "report/desitems.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/session.h"
#include "windows/uitext.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <QWheelEvent>
#include <filesystem>

// A sample with other bytes in it, opened.
static void OpenChanged(QMainWindow* log, const Text& before, const Text& after)
{
    Text bytes = ReadWholeFile(Scratch("samples/MW-108.BOR"));
    const size_t at = bytes.find(before);
    REQUIRE(at != Text::npos);
    bytes.replace(at, before.size(), after);
    WriteScratch("samples/ODD.BOR", bytes);
    frmBorinput::OpenNamed(Scratch("samples/ODD.BOR"));
    Find<QAction>(log, "mnuHelp"); // the window is there
    Then("Help", [](QWidget* window) { window->close(); });
    Find<QAction>(log, "mnuHelp")->trigger(); // the boxes are shown anew behind each command
    CheckAllDone();
}

TEST_CASE("every letter of the code page goes to the screen and comes back, the free codes too")
{
    Text all;
    for (int code = 0; code < 256; ++code)
        if (code != 26)
            all += char(code);
    CHECK(ToUi(all).size() == 255);
    CHECK(FromUi(ToUi(all)) == all);
    CHECK(FromUi(QString::fromUtf8("a\xEF\xBF\xBD\xCF\x80")) == "a??");
    CHECK(FromUi("a\x1A"
                 "b") == "ab");
    CHECK(FromUi(QString(QChar(0xF701))) == "?"); // of the private area, but no sign of ours
    CHECK(LineFromUi("a\nb\r\nc\rd") == "a b c d");
}

TEST_CASE("a client's name with a blank that does not break, or a free code, is opened unchanged and saved as it was")
{
    QMainWindow* log = LogWindow();
    OpenChanged(log, "Wirewick Redevelopment Authority", "Wirewick\xA0Redevelopment\x81 Authority");
    CHECK(FileChanged == 0);
    CHECK(frmBorinput::txtClient.starts_with("Wirewick\xA0Redevelopment\x81 Authority"));
    auto* client = static_cast<QPlainTextEdit*>(Bring(log, "txtClient"));
    Click(client->viewport());
    Press(Qt::Key_End, Qt::ControlModifier);
    TypeText("x");
    CHECK(FileChanged == 1);
    CHECK(frmBorinput::txtClient.starts_with("Wirewick\xA0Redevelopment\x81 Authority\r\n"));
    CHECK(frmBorinput::txtClient.ends_with("x"));
    Press(Qt::Key_Backspace);
    Find<QAction>(log, "mnuSave")->trigger();
    const Text saved = ReadWholeFile(Scratch("samples/ODD.BOR"));
    CHECK(saved.find("Wirewick\xA0Redevelopment\x81 Authority\r\n") != Text::npos);
}

TEST_CASE("a free code in a description stays when a letter is typed elsewhere, and the box keeps its steps of undo")
{
    QMainWindow* log = LogWindow();
    auto* view = static_cast<QPlainTextEdit*>(Bring(log, "MemoDes"));
    frmBorinput::MemoDes.text = "soft \x8D clay\r\nsand";
    ClickCell(log, "SSLith", 1, 1);
    TypeText("5\n"); // shows the boxes anew
    Click(view->viewport());
    Press(Qt::Key_End, Qt::ControlModifier);
    TypeText("y");
    CHECK(frmBorinput::MemoDes.text == "soft \x8D clay\r\nsandy");
    ClickCell(log, "SSLith", 2, 1);
    TypeText("6\n");
    CHECK(view->document()->isUndoAvailable());
    CHECK(frmBorinput::MemoDes.text == "soft \x8D clay\r\nsandy");
}

TEST_CASE("a cell with a free code that is opened for editing and closed is as it was")
{
    QMainWindow* log = LogWindow();
    auto* view = static_cast<QTableView*>(Bring(log, "SSLith"));
    frmBorinput::SSLith.Cell(1, 2) = "C\x9DL\xA0";
    ClickCell(log, "SSLith", 1, 2);
    Press(Qt::Key_F2);
    Press(Qt::Key_Return);
    CHECK(frmBorinput::SSLith.Cell(1, 2) == "C\x9DL\xA0");
    CHECK(view->currentIndex().row() == 1);
}

TEST_CASE("a text of two lines pasted into a box of one line, or into a cell being edited, is one line")
{
    QMainWindow* log = LogWindow();
    for (const char* words : {"B-1\nnew", "B-1\r\nnew", "B-1\rnew"}) {
        QApplication::clipboard()->setText(words);
        auto* name = Find<QLineEdit>(log, "Text1");
        Click(name);
        Press(Qt::Key_A, Qt::ControlModifier);
        Press(Qt::Key_V, Qt::ControlModifier);
        CHECK(frmBorinput::Text1 == "B-1 new");
        ClickCell(log, "SSInfo", 3, 2);
        Press(Qt::Key_F2);
        Press(Qt::Key_A, Qt::ControlModifier);
        Press(Qt::Key_V, Qt::ControlModifier);
        Press(Qt::Key_Return);
        CHECK(frmBorinput::SSInfo.Cell(3, 2) == "B-1 new");
    }
    auto* layout = Find<QComboBox>(log, "cmbLayFile");
    Click(layout->lineEdit());
    QApplication::clipboard()->setText("A\nB.LAY");
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_V, Qt::ControlModifier);
    CHECK(frmBorinput::cmbLayFile == "A B.LAY");
}

TEST_CASE("the sign that would end a file is left out of what is pasted")
{
    QMainWindow* log = LogWindow();
    QApplication::clipboard()->setText("soft\x1A clay");
    auto* view = static_cast<QPlainTextEdit*>(Bring(log, "MemoDes"));
    Click(view->viewport());
    Press(Qt::Key_V, Qt::ControlModifier);
    CHECK(frmBorinput::MemoDes.text == "soft clay");
    auto* client = static_cast<QPlainTextEdit*>(Bring(log, "txtClient"));
    Click(client->viewport());
    Press(Qt::Key_V, Qt::ControlModifier);
    CHECK(frmBorinput::txtClient == "soft clay");
}

TEST_CASE("the description items keep a blank that does not break and a free code")
{
    QMainWindow* log = LogWindow();
    frmBorinput::List[2] = {"10\xA0mm", "free \x81"};
    Then("frmDesItems", [](QWidget* window) { ClickButton(window, "Command1"); });
    ClickMenu(log, "mnuEdit", "mnuEditDesItems");
    CheckAllDone();
    CHECK(frmBorinput::List[2] == std::vector<Text>{"10\xA0mm", "free \x81"});
}

TEST_CASE("to go through the layout box, or to turn the wheel over it, changes nothing")
{
    QMainWindow* log = LogWindow();
    OpenSample("MW-108.BOR");
    auto* layout = Find<QComboBox>(log, "cmbLayFile");
    REQUIRE(layout->count() > 2);
    Text other; // not the first of the list
    for (int i = 1; i < layout->count(); ++i)
        if (FromUi(layout->itemText(i)) != frmBorinput::cmbLayFile)
            other = FromUi(layout->itemText(i));
    REQUIRE(other != "");
    OpenChanged(log, frmBorinput::cmbLayFile + "\r\n", other + "\r\n");
    CHECK(layout->currentText() == ToUi(other));
    Click(Find<QLineEdit>(log, "Text2"));
    Press(Qt::Key_Tab);
    CHECK(layout->lineEdit()->hasFocus());
    Press(Qt::Key_Tab);
    CHECK(FileChanged == 0);
    Click(layout->lineEdit());
    Press(Qt::Key_Return);
    CHECK(FileChanged == 0);
    Click(Find<QLineEdit>(log, "Text2"));
    QWheelEvent wheel(QPointF(5, 5), layout->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(layout, &wheel);
    CHECK(FileChanged == 0);
    CHECK(frmBorinput::cmbLayFile == other);
}

TEST_CASE("the labels of the single fields are the words of prompt.txt and no more")
{
    QMainWindow* log = LogWindow();
    QStringList labels;
    for (QLabel* label : log->findChildren<QLabel*>())
        labels << label->text();
    for (const char* words : {"Boring Name", "Map File", "Layout File"})
        CHECK(labels.contains(words));
}

TEST_CASE("F2 and a double click put the caret behind what is there, and a key over a cell begins anew")
{
    QMainWindow* log = LogWindow();
    auto* view = static_cast<QTableView*>(Bring(log, "SSInfo"));
    frmBorinput::SSInfo.Cell(1, 2) = "Truck";
    ClickCell(log, "SSInfo", 1, 2);
    Press(Qt::Key_F2);
    TypeText(" rig\n");
    CHECK(frmBorinput::SSInfo.Cell(1, 2) == "Truck rig");
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(view->model()->index(0, 1)).center());
    TypeText(", 2\n");
    CHECK(frmBorinput::SSInfo.Cell(1, 2) == "Truck rig, 2");
    ClickCell(log, "SSInfo", 1, 2);
    TypeText("new\n");
    CHECK(frmBorinput::SSInfo.Cell(1, 2) == "new");
}

TEST_CASE("a file of the recent ones that has gone is told, and what is open stays")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-103.BOR");
    OpenSample("TC-101.BOR");
    std::filesystem::remove(Scratch("samples/TC-103.BOR"));
    ThenAnswer(("File Not Found: " + Scratch("samples/TC-103.BOR")).c_str(), "OK");
    for (QAction* action : log->findChildren<QAction*>())
        if (action->text().contains("TC-103.BOR")) {
            action->trigger();
            break;
        }
    CheckAllDone();
    CHECK(frmBorinput::Text1 == "TC-101");
    CHECK(BoringFileName == Scratch("samples/TC-101.BOR"));
}

TEST_CASE("another boring is shown from its first rows on")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-101.BOR");
    auto* view = static_cast<QTableView*>(Bring(log, "SSLith"));
    ClickCell(log, "SSLith", 90, 2);
    CHECK(view->verticalScrollBar()->value() > 0);
    OpenSample("TC-103.BOR");
    CHECK(view->verticalScrollBar()->value() == 0);
    CHECK(view->currentIndex() == view->model()->index(0, 0));
    CHECK(frmBorinput::SSLith.row == 1);
}

TEST_CASE("Save As leaves the user in the cell that is worked in")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-101.BOR");
    ClickCell(log, "SSLith", 60, 2);
    TypeText("CL");
    Press(Qt::Key_Return);
    Platform.MsgBox = [](const Text&, Buttons, Icon) { return int(Ok); };
    Platform.ShowChooser = [] { DialogResult = Scratch("samples/OTHER.BOR"); };
    Find<QAction>(log, "mnuSaveAs")->trigger();
    CHECK(BoringFileName == Scratch("samples/OTHER.BOR"));
    CHECK(frmBorinput::SSLith.row == 61);
    CHECK(static_cast<QTableView*>(Bring(log, "SSLith"))->currentIndex().row() == 60);
}
