// typedtext.cpp -- texts as they are typed.
#include "windows/typedtext.h"

#include "grid/gridedit.h"
#include "windows/uitext.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QMimeData>
#include <QStatusBar>
#include <QTimer>
#include <QToolTip>

// A window without a status line has the words beside the box that is typed in.
void TellWords(const QString& words)
{
    static bool told = false;
    QWidget* front = QApplication::activeWindow();
    if (auto* window = qobject_cast<QMainWindow*>(front)) {
        const QString before = told ? window->statusBar()->currentMessage() + "  " : QString();
        window->statusBar()->showMessage(before + words, 20000);
        told = true;
        QTimer::singleShot(0, [] { told = false; });
    } else if (QWidget* box = front ? QApplication::focusWidget() : nullptr) {
        QToolTip::showText(box->mapToGlobal(QPoint(0, box->height())), words, box, {}, 20000);
    }
}

static Text Told(const TypedText& typed)
{
    if (!typed.words.isEmpty())
        TellWords(typed.words);
    return typed.text;
}

Text Typed(const QString& text)
{
    return Told(FromTyped(text));
}

Text TypedLine(QLineEdit& line)
{
    const QString shown = line.text();
    const Text text = OneLine(Typed(shown));
    const QString clean = ToUi(text);
    if (clean != shown) {
        const qsizetype caret = ToUi(OneLine(FromTyped(shown.left(line.cursorPosition())).text)).size();
        line.undo(); // else the field's own Undo would bring the replaced character back
        line.selectAll();
        line.insert(clean);
        line.setCursorPosition(int(caret));
    }
    return text;
}

void CleanAsTyped(QLineEdit* line)
{
    QObject::connect(line, &QLineEdit::textEdited, line, [line] { TypedLine(*line); });
}

// ---- Text boxes

QString TypedTextEdit::Clean(const QString& typed) const
{
    return ToUi(Typed(typed));
}

void TypedTextEdit::keyPressEvent(QKeyEvent* event)
{
    const QString text = event->text();
    const QString clean = text.isEmpty() || !(text[0].isPrint() || text[0].isSurrogate()) ? text : Clean(text);
    if (clean == text)
        return QPlainTextEdit::keyPressEvent(event);
    if (clean.isEmpty()) // a sign without a width
        return;
    QKeyEvent typed(event->type(), event->key(), event->modifiers(), clean);
    QPlainTextEdit::keyPressEvent(&typed);
}

void TypedTextEdit::inputMethodEvent(QInputMethodEvent* event)
{
    QInputMethodEvent typed(event->preeditString(), event->attributes());
    typed.setCommitString(Clean(event->commitString()), event->replacementStart(), event->replacementLength());
    QPlainTextEdit::inputMethodEvent(&typed);
}

void TypedTextEdit::insertFromMimeData(const QMimeData* source)
{
    if (!source->hasText())
        return;
    textCursor().insertText(Clean(source->text()));
    ensureCursorVisible();
}
