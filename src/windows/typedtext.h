// typedtext.h -- texts as they are typed, pasted, dropped or composed: what the code page lacks gives way to the
// nearest at once, in the box itself, and the status line says which character became what.
#pragma once

#include "session/text.h"

#include <QPlainTextEdit>

class QLineEdit;

// Shows the words in the status line of the window in front, behind those of the same command.
void TellWords(const QString& words);
// Returns what was typed as the code page has it, and tells what it replaces.
Text Typed(const QString& text);

// Returns the text of a field of one line that has just been edited, as the code page has it. The field shows that, and
// the caret stays at its letter.
Text TypedLine(QLineEdit& line);
void CleanAsTyped(QLineEdit* line); // Does the same at each edit, for a field whose text is taken later.

// A text box of any kind.
class TypedTextEdit : public QPlainTextEdit
{
public:
    using QPlainTextEdit::QPlainTextEdit;

protected:
    virtual QString Clean(const QString& typed) const; // returns what was typed as the box is to show it
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;
};
