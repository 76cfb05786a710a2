// pngpages.cpp -- a page painted into a picture.
#include "painter/pngpages.h"

#include "canvas/metaugl.h"
#include "painter/pagepainter.h"
#include "session/failure.h"
#include "session/files.h"

#include <QBuffer>
#include <QImage>
#include <QImageWriter>
#include <QPainter>

#include <cmath>

static constexpr double Margin = 0.25; // inches of the paper on each side of the sheet

void SavePagePng(const Text& file, int dotsPerInch)
{
    const double unitsPerInch = PageCanvas.unitsPerInch > 0 ? double(PageCanvas.unitsPerInch) : 600;
    const auto dots = [&](int32_t units) {
        return int(std::lround((units / unitsPerInch + 2 * Margin) * dotsPerInch));
    };
    QImage image(dots(PageList.ExtentWidth), dots(PageList.ExtentHeight), QImage::Format_RGB32);
    if (image.isNull())
        throw RunTimeError{OutOfMemory};
    image.fill(Qt::white);
    int failure = 0;
    {
        QPainter painter(&image);
        painter.translate(Margin * dotsPerInch, Margin * dotsPerInch);
        try {
            PaintPage(painter, dotsPerInch / unitsPerInch, PatternForm::Print);
        } catch (const RunTimeError& error) {
            failure = error.Number;
        }
    }
    // A page of black ink is a third as large in greys.
    if (image.allGray())
        image = image.convertToFormat(QImage::Format_Grayscale8);
    image.setDotsPerMeterX(int(std::lround(dotsPerInch / 0.0254)));
    image.setDotsPerMeterY(int(std::lround(dotsPerInch / 0.0254)));
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    if (!QImageWriter(&bytes, "png").write(image))
        throw RunTimeError{OutOfMemory};
    WriteWholeFile(file, std::string_view(bytes.data().constData(), size_t(bytes.data().size())), Durability::Scratch);
    if (failure != 0)
        throw RunTimeError{failure};
}
