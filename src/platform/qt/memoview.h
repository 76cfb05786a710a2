// memoview.h -- a text box record on the screen, to type in: it shows exactly the lines of the line breaker
// (session/linebreaks.h), which are the lines that are stored and printed.
#pragma once

#include "session/controls.h"

#include <QPlainTextEdit>
#include <functional>

class MemoLayout;

class MemoView : public QPlainTextEdit
{
public:
    MemoView(const char* name, Memo& shown, QWidget* parent);
    void Refresh();                 // the record has changed: its text, its width
    void Insert(const Text& text);  // at the caret
    std::function<void()> OnChange; // after every change by the user, which the record has taken

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    QSize sizeHint() const override;

private:
    int TextWidth() const; // of the widest line that fits, in pixels
    void Follow(const Text& shown);

    Memo& memo;
    MemoLayout* layout;
    bool showing = false;
};
