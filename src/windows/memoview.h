// memoview.h -- a text box record on the screen, to type in: it shows exactly the lines of the line breaker
// (session/linebreaks.h), which are the lines that are stored and printed.
#pragma once

#include "grid/controls.h"
#include "windows/typedtext.h"

#include <functional>

class MemoLayout;

class MemoView : public TypedTextEdit
{
public:
    MemoView(const char* name, Memo& shown, QWidget* parent);
    void Refresh();                 // shows the text and the width that the record has now
    void Insert(const Text& text);  // puts the text in at the caret
    std::function<void()> OnChange; // called after every change by the user, which the record has taken

protected:
    QString Clean(const QString& typed) const override;
    void keyPressEvent(QKeyEvent* event) override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
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
