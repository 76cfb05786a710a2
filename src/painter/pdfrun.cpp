// pdfrun.cpp -- a PDF of vector pages with searchable text, and whether a PDF is one of ours.
#include "painter/pdfrun.h"

#include "canvas/metaugl.h"
#include "painter/pagepainter.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/machine.h"
#include "session/session.h"

#include <QFile>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include <cerrno>
#include <cmath>
#include <cstdio>

static constexpr double Margin = 0.25; // inches of the paper on each side of the sheet
static constexpr char Producer[] = "Stratavue 1.0";
// The document's entries stand at its front, in room made by this many letters of its creator.
static constexpr int EntryRoom = 100;
static constexpr qint64 FrontLength = 16384;

struct PdfRun::Body {
    Body(const std::string& place, const Text& documentTitle, const Text& documentMark)
        : path(place), temporary(TemporaryFor(place)), title(documentTitle), mark(documentMark),
          file(QString::fromStdString(temporary)), writer(&file)
    {
    }
    [[noreturn]] void Fail()
    {
        const bool full = file.error() == QFileDevice::WriteError || file.error() == QFileDevice::ResourceError;
        throw RunTimeError{full ? DiskFull : DeviceError};
    }
    void Describe();

    std::string path, temporary;
    Text title, mark;
    QFile file;
    QPdfWriter writer;
    QPainter painter;
    bool closed = false;
};

PdfRun::PdfRun(const Text& file, const Text& title, const Text& mark)
{
    const std::string path = NativePath(file);
    body = std::make_unique<Body>(path, title, mark);
    errno = 0;
    if (!body->file.open(QIODevice::ReadWrite | QIODevice::NewOnly)) {
        const int reason = errno;
        RaiseSystemError(reason == 0 ? EACCES : reason, FolderWritable(FolderName(FromUtf8(path))));
    }
    // An older file that is write-protected is one to keep.
    if (Machine::Exists(path) && !Machine::Writable(path)) {
        body->file.remove();
        throw RunTimeError{PathAccess};
    }
    body->writer.setTitle(QString::fromStdString(ToUtf8(title)));
    body->writer.setCreator(QString(EntryRoom + 2 * int(mark.size()), QLatin1Char(' ')));
    body->writer.setResolution(600);
}

PdfRun::~PdfRun()
{
    if (!body->closed) {
        body->painter.end();
        // Not by the file's own way, which leaves it where its last bytes could not be written.
        body->file.close();
        Machine::Remove(body->temporary);
    }
}

void PdfRun::AddPage()
{
    Body& b = *body;
    const double unitsPerInch = PageCanvas.unitsPerInch > 0 ? double(PageCanvas.unitsPerInch) : 600;
    const QSizeF paper(PageList.ExtentWidth / unitsPerInch + 2 * Margin,
                       PageList.ExtentHeight / unitsPerInch + 2 * Margin);
    const QPageSize size(paper * 72, QPageSize::Point, QString(), QPageSize::ExactMatch);
    b.writer.setPageLayout(QPageLayout(size, QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
    const bool begun = b.painter.isActive() ? b.writer.newPage() : b.painter.begin(&b.writer);
    if (!begun)
        b.Fail();
    const double dotsPerUnit = 600 / unitsPerInch;
    b.painter.resetTransform();
    b.painter.translate(Margin * 600, Margin * 600);
    PaintPage(b.painter, dotsPerUnit, PatternForm::Print);
    if (b.file.error() != QFileDevice::NoError)
        b.Fail();
}

// A text as a PDF string: as it stands where it is plain, else in 16-bit Unicode.
static std::string PdfString(const Text& text)
{
    const QString unicode = QString::fromStdString(ToUtf8(text));
    const bool plain = std::all_of(text.begin(), text.end(), [](char c) { return c >= 32 && c < 127; });
    std::string bytes = plain ? text : "\xFE\xFF";
    if (!plain)
        for (const QChar c : unicode) {
            bytes += static_cast<char>(c.unicode() >> 8);
            bytes += static_cast<char>(c.unicode() & 255);
        }
    std::string quoted = "(";
    for (const char c : bytes) {
        if (c == '(' || c == ')' || c == '\\')
            quoted += '\\';
        if (c == '\r')
            quoted += "\\r";
        else
            quoted += c;
    }
    return quoted + ")";
}

static std::string SubjectOf(const Text& mark)
{
    return "/Subject " + PdfString(mark) + "\n";
}

// Puts this program's name into the entries of the document, in place of those of the library: whether a file may be
// replaced goes by it. The time is left out, so that the same pages give the same file.
void PdfRun::Body::Describe()
{
    file.seek(0);
    QByteArray front = file.read(FrontLength);
    const qsizetype creator = front.indexOf("/Creator");
    const qsizetype begin = front.lastIndexOf("<<", creator);
    const qsizetype end = front.indexOf("endobj", creator);
    const qsizetype close = front.lastIndexOf(">>", end);
    if (creator < 0 || begin < 0 || end < 0 || close < begin)
        throw RunTimeError{DeviceError};
    std::string entries = "<<\n/Title " + PdfString(title) + "\n/Creator (Stratavue)\n/Producer (" + Producer + ")\n";
    if (!mark.empty())
        entries += SubjectOf(mark);
    const auto room = static_cast<size_t>(close - begin);
    if (entries.size() > room)
        throw RunTimeError{DeviceError};
    entries.resize(room, ' ');
    file.seek(begin);
    if (file.write(entries.data(), qint64(room)) != qint64(room))
        Fail();
}

void PdfRun::Close()
{
    Body& b = *body;
    if (b.painter.isActive() && !b.painter.end())
        b.Fail();
    if (b.file.error() != QFileDevice::NoError || !b.file.flush())
        b.Fail();
    b.Describe();
    if (!b.file.flush() || Machine::Flush(b.file.handle()) != 0)
        b.Fail();
    b.file.close();
    if (const int reason = Machine::Replace(b.temporary, b.path, true)) {
        b.file.remove();
        b.closed = true;
        RaiseSystemError(reason, true);
    }
    b.closed = true;
}

// What stands before the pages of a PDF of this program; "" for any other file.
static QByteArray FrontOfOurs(const Text& file)
{
    QFile in(QString::fromStdString(NativePath(file)));
    if (!in.open(QIODevice::ReadOnly))
        return {};
    const QByteArray front = in.read(FrontLength);
    return front.startsWith("%PDF-") && front.contains("/Producer (Stratavue ") ? front : QByteArray();
}

bool WrittenByUs(const Text& file)
{
    return !FrontOfOurs(file).isEmpty();
}

Text PdfBeside(const Text& source, const Text& mark)
{
    Text stem = source;
    if (BaseName(stem).empty())
        stem = JoinPath(ProjectPath, "patterns");
    else if (HasEnding(stem))
        stem.resize(stem.rfind('.'));
    const std::string subject = SubjectOf(mark);
    for (int number = 1;; ++number) {
        const Text name = stem + (number == 1 ? "" : "-" + PlainNumber(number)) + ".pdf";
        if (!FileExists(name) || FrontOfOurs(name).contains(QByteArrayView(subject.data(), qsizetype(subject.size()))))
            return name;
    }
}
