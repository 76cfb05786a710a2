// memoview.cpp -- a text box record on the screen.
#include "windows/memoview.h"

#include "grid/textedits.h"
#include "session/linebreaks.h"
#include "windows/uitext.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>

// A control character inside a line: Qt's document would take some for the end of a paragraph, and some for blanks that
// a line may end in. On the screen their signs stand for them.
static constexpr ushort firstSign = 0x2400, controlCharacters = 32;

// The record's text as the document holds it: paragraphs ended by "\n", one character for each letter.
static QString ToDocument(const Text& text)
{
    QString shown = ToUi(text);
    shown.replace("\r\n", QString(QChar(QChar::ParagraphSeparator)));
    for (QChar& letter : shown)
        if (letter.unicode() < controlCharacters)
            letter = QChar(ushort(firstSign + letter.unicode()));
    return shown.replace(QChar(QChar::ParagraphSeparator), '\n');
}

static Text FromDocument(QString shown)
{
    for (QChar& letter : shown)
        if (letter.unicode() >= firstSign && letter.unicode() < firstSign + controlCharacters)
            letter = QChar(ushort(letter.unicode() - firstSign));
    return FromUi(shown);
}

// ---- The lines

// Lays out each paragraph by the breaker's counts of characters; a change lays out only the paragraphs that it touches.
class MemoLayout : public QPlainTextDocumentLayout
{
public:
    MemoLayout(QTextDocument* document, const Memo& shown) : QPlainTextDocumentLayout(document), memo(shown)
    {
    }
    void LayOutAll()
    {
        for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
            LayOut(block);
        Tell();
    }
    QRectF blockBoundingRect(const QTextBlock& block) const override
    {
        if (block.isValid() && block.layout()->lineCount() == 0)
            const_cast<MemoLayout*>(this)->LayOut(block);
        return QPlainTextDocumentLayout::blockBoundingRect(block);
    }
    QSizeF documentSize() const override
    {
        return QSizeF(width, document()->lineCount());
    }
    qreal width = 100;

protected:
    void documentChanged(int from, int, int added) override
    {
        const QTextBlock last = document()->findBlock(std::min(from + added, document()->characterCount() - 1));
        for (QTextBlock block = document()->findBlock(from); block.isValid(); block = block.next()) {
            LayOut(block);
            if (block == last)
                break;
        }
        Tell();
    }

private:
    void Tell()
    {
        emit documentSizeChanged(documentSize());
        emit update();
    }
    void LayOut(QTextBlock block)
    {
        QTextLayout* lines = block.layout();
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAnywhere);
        lines->setTextOption(option);
        const qreal margin = document()->documentMargin();
        qreal y = 0;
        lines->beginLayout();
        for (const int length : BreakParagraph(FromDocument(block.text()), memo.Room())) {
            QTextLine line = lines->createLine();
            if (!line.isValid())
                break;
            line.setNumColumns(std::max(length, 1));
            line.setPosition(QPointF(margin, y));
            y += line.height();
        }
        lines->endLayout();
        block.setLineCount(std::max(lines->lineCount(), 1));
    }

    const Memo& memo;
};

// ---- The box

MemoView::MemoView(const char* name, Memo& shown, QWidget* parent) : TypedTextEdit(parent), memo(shown)
{
    setObjectName(name);
    setTabChangesFocus(true);
    setLineWrapMode(NoWrap);
    // The printed font, so that a line looks on the screen as on paper. The breaker's widths know neither kerning nor
    // ligatures; a letter spacing, however small, keeps Qt from both.
    QFont font("Arial");
    font.setPixelSize(13);
    font.setKerning(false);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 0.02);
    setFont(font);
    auto* text = new QTextDocument(this);
    text->setDefaultFont(font);
    layout = new MemoLayout(text, memo);
    text->setDocumentLayout(layout);
    setDocument(text);
    connect(text, &QTextDocument::contentsChanged, this, [this] {
        if (showing)
            return;
        Text typed;
        typed.reserve(memo.text.size() + 16);
        for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
            if (block != document()->begin())
                typed += "\r\n";
            typed += FromDocument(block.text());
        }
        if (typed == memo.text)
            return;
        memo.text = typed;
        if (OnChange)
            OnChange();
    });
    Refresh();
}

void MemoView::Refresh()
{
    if (font().family() != ToUi(memo.fontName)) {
        QFont other = font();
        other.setFamily(ToUi(memo.fontName));
        setFont(other);
        document()->setDefaultFont(other);
        layout->LayOutAll();
    }
    Text now;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
        now += (block == document()->begin() ? "" : "\r\n") + FromDocument(block.text());
    const qreal wanted = TextWidth() + 2 * document()->documentMargin();
    const bool sized = wanted != layout->width;
    layout->width = wanted;
    if (now != memo.text) {
        showing = true;
        if (memo.edited)
            Follow(now);
        else
            setPlainText(ToDocument(memo.text));
        showing = false;
    }
    memo.edited = false;
    if (sized) {
        layout->LayOutAll();
        viewport()->update();
    }
}

// What a command has changed is a step of this box's Undo too, and the caret stays at its words.
void MemoView::Follow(const Text& shown)
{
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    for (const TextEdit& edit : EditsBetween(shown, memo.text)) {
        cursor.setPosition(edit.from);
        cursor.setPosition(edit.from + edit.removed, QTextCursor::KeepAnchor);
        cursor.insertText(ToDocument(edit.put));
    }
    cursor.endEditBlock();
}

void MemoView::Insert(const Text& text)
{
    textCursor().insertText(ToDocument(text));
    ensureCursorVisible();
}

int MemoView::TextWidth() const
{
    return int(double(std::max<int64_t>(memo.Room(), 0)) * font().pixelSize() / UnitsPerHeight + 1);
}

QSize MemoView::sizeHint() const
{
    return QSize(TextWidth() + 40, 200);
}

// Every kind of line end is a paragraph's.
QString MemoView::Clean(const QString& typed) const
{
    const Text inside = Typed(typed);
    Text lines;
    for (size_t i = 0; i < inside.size(); ++i) {
        if (inside[i] == '\r' && i + 1 < inside.size() && inside[i + 1] == '\n')
            continue;
        lines += inside[i] == '\r' || inside[i] == '\n' ? "\r\n" : Text(1, inside[i]);
    }
    return ToDocument(lines);
}

void MemoView::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Redo) ||
        (event->modifiers() == Qt::ControlModifier && event->key() == Qt::Key_Y)) {
        redo();
        return;
    }
    // Two strokes that Qt takes for a line break inside a paragraph, which a file cannot hold.
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && event->modifiers() != Qt::NoModifier) {
        QKeyEvent plain(event->type(), Qt::Key_Return, Qt::NoModifier, "\r");
        QPlainTextEdit::keyPressEvent(&plain);
        return;
    }
    TypedTextEdit::keyPressEvent(event);
}

// Files are for the window.
bool MemoView::canInsertFromMimeData(const QMimeData* source) const
{
    return !source->hasUrls() && source->hasText();
}

// Qt's own layout forgets all lines when the width of the window changes.
void MemoView::resizeEvent(QResizeEvent* event)
{
    QPlainTextEdit::resizeEvent(event);
    layout->LayOutAll();
}

// The right edge of the printed column, behind the text.
void MemoView::paintEvent(QPaintEvent* event)
{
    {
        QPainter painter(viewport());
        const int x = int(contentOffset().x() + document()->documentMargin()) + TextWidth();
        painter.setPen(QPen(QColor(0xc4, 0xcc, 0xd4), 1, Qt::DashLine));
        painter.drawLine(x, 0, x, viewport()->height());
    }
    QPlainTextEdit::paintEvent(event);
}
