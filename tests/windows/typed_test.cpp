// typed_test.cpp -- characters that the code page lacks, on every way into a box: the nearest stands for them, and it
// is said.
#include "windows/driver.h"
#include "windows/hands.h"

#include "boring/boringboxes.h"
#include "report/heading.h"
#include "sections/soiltool.h"
#include "session/platform.h"
#include "session/session.h"
#include "windows/uitext.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QTableView>
#include <QTest>
#include <QToolTip>

// One stroke of a key, as a keyboard of another country sends it.
static void Stroke(const QString& letters)
{
    QWidget* to = Focus();
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, letters);
    QApplication::sendEvent(to, &press);
    Settle();
}

static void Compose(const QString& letters)
{
    QInputMethodEvent composed;
    composed.setCommitString(letters);
    QApplication::sendEvent(Focus(), &composed);
    Settle();
}

static void PasteText(const QString& text)
{
    QApplication::clipboard()->setText(text);
    Press(Qt::Key_V, Qt::ControlModifier);
}

static QString Words(QMainWindow* window)
{
    const QString words = window->statusBar()->currentMessage();
    window->statusBar()->clearMessage();
    return words;
}

static const QString lessOrEqual(QChar(0x2264)), sigma(QChar(0x2211)), han(QChar(0x4E2D)), enDash(QChar(0x2013));
static const QString becameLess = "Not in the code page: " + lessOrEqual + " became \"<=\".";

TEST_CASE("in a text box what is typed, composed, pasted and dropped has its nearest letters, and it is said")
{
    QMainWindow* log = LogWindow();
    for (const char* name : {"MemoDes", "MemoRemarks", "txtClient"}) {
        CAPTURE(name);
        auto* box = static_cast<QPlainTextEdit*>(Bring(log, name));
        const auto text = [&]() -> Text {
            return box->objectName() == "txtClient" ? frmBorinput::txtClient
                   : box->objectName() == "MemoDes" ? frmBorinput::MemoDes.text
                                                    : frmBorinput::MemoRemarks.text;
        };
        box->setFocus();
        Stroke("a");
        CHECK(Words(log) == "");
        Stroke(lessOrEqual);
        CHECK(text() == "a<=");
        CHECK(box->toPlainText() == "a<=");
        CHECK(Words(log) == becameLess);
        Compose(lessOrEqual + "5");
        CHECK(text() == "a<=<=5");
        CHECK(Words(log) == becameLess);
        PasteText("\n" + han + enDash + lessOrEqual);
        CHECK(text() == "a<=<=5\r\n?\x96<=");
        CHECK(box->toPlainText() == "a<=<=5\n?" + enDash + "<=");
        CHECK(Words(log) == "Not in the code page: " + han + " became \"?\", " + lessOrEqual +
                                " became \"<=\". Nothing is near to what became \"?\".");
        Stroke(QString::fromUtf8("\xF0\x9F\x98\x80")); // beyond the first plane: two units, one character
        CHECK(text().ends_with("<=?"));
        CHECK(box->toPlainText().endsWith("<=?"));
        CHECK(Words(log) != "");
        QMimeData dropped;
        dropped.setText(lessOrEqual);
        const QPointF there(box->viewport()->rect().center());
        QDropEvent drop(there, Qt::CopyAction, &dropped, Qt::LeftButton, {});
        QDragEnterEvent enter(there.toPoint(), Qt::CopyAction, &dropped, Qt::LeftButton, {});
        QApplication::sendEvent(box->viewport(), &enter);
        QApplication::sendEvent(box->viewport(), &drop);
        CHECK(text().ends_with("?<="));
        CHECK(Words(log) == becameLess);
        box->undo();
        CHECK(text().ends_with("<=?"));
    }
    FileChanged = 0;
}

TEST_CASE("in a field of one line the nearest letters stand at once, with the caret behind them and a step of Undo")
{
    QMainWindow* log = LogWindow();
    auto* line = Find<QLineEdit>(log, "Text1");
    line->setFocus();
    TypeText("ab");
    line->setCursorPosition(1);
    Stroke(lessOrEqual);
    CHECK(line->text() == "a<=b");
    CHECK(line->cursorPosition() == 3);
    CHECK(frmBorinput::Text1 == "a<=b");
    CHECK(Words(log) == becameLess);
    PasteText(han);
    CHECK(frmBorinput::Text1 == "a<=?b");
    CHECK(line->cursorPosition() == 4);
    CHECK(Words(log).contains(han + " became \"?\""));
    for (const char* before : {"a<=b", "ab", ""}) {
        line->undo();
        CHECK(frmBorinput::Text1 == before);
        CHECK(line->text() == before);
    }
    CHECK(Words(log) == "");
    auto* layout = Find<QComboBox>(log, "cmbLayFile");
    layout->setFocus();
    Stroke(lessOrEqual);
    CHECK(frmBorinput::cmbLayFile == "<=");
    CHECK(layout->currentText() == "<=");
    CHECK(Words(log) == becameLess);
    FileChanged = 0;
}

TEST_CASE("in a cell what is typed and pasted has its nearest letters, and it is said")
{
    QMainWindow* log = LogWindow();
    ClickCell(log, "SSInfo", 1, 2);
    Stroke(lessOrEqual);
    CHECK(qobject_cast<QLineEdit*>(Focus()));
    CHECK(qobject_cast<QLineEdit*>(Focus())->text() == "<=");
    CHECK(Words(log) == becameLess);
    Compose(sigma);
    const Text sum = FromTyped(sigma).text;
    CHECK(Words(log).contains(sigma + " became"));
    Press(Qt::Key_Return);
    CHECK(frmBorinput::SSInfo.Cell(1, 2) == "<=" + sum);
    CHECK(Words(log) == "");
    PasteText(lessOrEqual + "\t" + han + "\n" + enDash);
    CHECK(frmBorinput::SSInfo.Cell(2, 2) == "<=");
    CHECK(frmBorinput::SSInfo.Cell(3, 2) == "\x96");
    LookAt(log, "nearest");
    const QString words = Words(log);
    CHECK(words.startsWith("Not in the code page: " + lessOrEqual + " became \"<=\", " + han));
    CHECK(words.contains("The clipboard holds more than fits here")); // neither hides the other
    FileChanged = 0;
}

TEST_CASE("in the small editors too, beside the box where the window has no status line")
{
    QMainWindow* log = LogWindow();
    Then("frmHeading", [](QWidget* window) {
        auto* view = window->findChild<QTableView*>();
        REQUIRE(view);
        view->setFocus();
        view->setCurrentIndex(view->model()->index(0, 1));
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, lessOrEqual);
        QApplication::sendEvent(view, &press);
        Settle();
        CHECK(QToolTip::text() == becameLess);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        Settle();
        CHECK(view->model()->index(0, 1).data().toString() == "<=");
        FileChanged = 0;
        window->close();
    });
    ClickMenu(log, "mnuEdit", "mnuEditHeading");
    CheckAllDone();
    Then("InputBox", [](QWidget* window) {
        auto* line = window->findChild<QLineEdit*>();
        REQUIRE(line);
        line->setText(lessOrEqual);
        QTest::keyClick(line, Qt::Key_Return);
    });
    CHECK(Platform.InputBox("Name", "Title", "") == "<=");
    CheckAllDone();
}
