// uitext.cpp -- texts at the edge to the windows.
#include "platform/qt/uitext.h"

#include "session/gridedit.h"

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

Text FromUi(const QString& text)
{
    Text inside;
    qsizetype from = 0;
    const auto takeTo = [&](qsizetype end) {
        inside += FromUtf8(text.mid(from, end - from).toStdString());
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
