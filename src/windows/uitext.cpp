// uitext.cpp -- texts at the edge to the windows.
#include "windows/uitext.h"

#include "grid/gridedit.h"
#include "session/nearest.h"

#include <QPlainTextEdit>
#include <QTextBlock>

static constexpr ushort firstFreeSign = 0xF700, replacement = 0xFFFD, endOfFile = 26;

static bool IsFreeSign(QChar letter)
{
    const ushort code = letter.unicode();
    return code >= firstFreeSign + 128 && code < firstFreeSign + 160 &&
           ToUi(Text(1, char(code - firstFreeSign))) == QString(letter);
}

QString ToUi(std::string_view text)
{
    QString shown = QString::fromStdString(ToUtf8(text));
    for (qsizetype i = 0; i < shown.size(); ++i)
        if (shown[i] == QChar(replacement))
            shown[i] = QChar(ushort(firstFreeSign + static_cast<unsigned char>(text[size_t(i)])));
    return shown;
}

// The pieces between the signs that stand for codes of our own, each by its own conversion.
template <class Convert>
static Text ByPieces(const QString& text, Convert convert)
{
    Text inside;
    qsizetype from = 0;
    const auto takeTo = [&](qsizetype end) {
        inside += convert(text.mid(from, end - from).toStdString());
        from = end + 1;
    };
    for (qsizetype i = 0; i < text.size(); ++i)
        if (IsFreeSign(text[i])) {
            takeTo(i);
            inside += char(text[i].unicode() - firstFreeSign);
        } else if (text[i] == QChar(endOfFile))
            takeTo(i);
    takeTo(text.size());
    return inside;
}

Text FromUi(const QString& text)
{
    return ByPieces(text, [](const std::string& utf8) { return FromUtf8(utf8); });
}

TypedText FromTyped(const QString& text)
{
    std::string all;
    const Text inside = ByPieces(text, [&all](const std::string& utf8) {
        all += utf8;
        return NearestOf(utf8).text;
    });
    return {inside, QString::fromStdString(ReplacedCharacters(all))};
}

Text LineFromUi(const QString& text)
{
    return OneLine(FromUi(text));
}

Text TextOf(const QPlainTextEdit& box)
{
    Text text;
    for (QTextBlock block = box.document()->begin(); block.isValid(); block = block.next()) {
        QString paragraph = block.text();
        paragraph.replace(QChar(QChar::LineSeparator), '\n');
        if (block != box.document()->begin())
            text += "\r\n";
        text += FromUi(paragraph.replace("\n", "\r\n"));
    }
    return text;
}
