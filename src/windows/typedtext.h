// typedtext.h -- texts as they are typed, pasted, dropped or composed: what the code page lacks gives way to the
// nearest at once, in the box itself, and the status line says which character became what.
#pragma once

#include "session/text.h"

#include <QPlainTextEdit>

class QLineEdit;

void TellWords(const QString& words); // in the status line of the window in front, behind those of the same command
Text Typed(const QString& text);      // tells what it replaces

// A field of one line, as its text has just been edited: it shows what it holds, and the caret stays at its letter.
Text TypedLine(QLineEdit& line);
void CleanAsTyped(QLineEdit* line); // the same from now on, for a field whose text is taken later

// A text box of any kind.
class TypedTextEdit : public QPlainTextEdit
{
public:
    using QPlainTextEdit::QPlainTextEdit;

protected:
    virtual QString Clean(const QString& typed) const; // as the box is to show it
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;
};
