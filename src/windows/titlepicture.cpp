// titlepicture.cpp -- a boring through layered ground, and the name of the program.
#include "windows/titlepicture.h"

#include <QFont>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <cmath>

namespace
{
struct Layer {
    double top;   // of the height of the ground
    QRgb color;   //
    double swell; // height of the contact's wave
    int mark;     // what fills it: 0 nothing, 1 dots, 2 dashes, 3 slanting hatch, 4 rings
};
constexpr Layer Layers[] = {{0.00, 0xff8c7355, 3, 2},
                            {0.13, 0xffd9c18c, 7, 1},
                            {0.36, 0xffb7a07a, 6, 4},
                            {0.52, 0xff93a39a, 9, 3},
                            {0.74, 0xff6f7d86, 5, 0}};
} // namespace

// The contact of a layer at x: a slow wave, the same every time.
static double Contact(double top, const Layer& layer, double height, double x)
{
    return top + layer.top * height + layer.swell * std::sin(x / 95 + layer.top * 11) +
           layer.swell * 0.4 * std::sin(x / 37 + layer.top * 23);
}

// The marks of a layer below its contact; what goes beyond its base is painted over by the next layer. All of one
// kind go out in one call, and none is clipped to the layer: the program starts behind this picture.
template <class Below>
static void Marks(QPainter& painter, const QRectF& area, int mark, Below below)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(0, 0, 0, 70), 1));
    // A fixed sequence stands for chance, so that the picture is the same at each start.
    unsigned seed = 7;
    const auto chance = [&seed](double to) {
        seed = seed * 1664525u + 1013904223u;
        return to * (seed >> 8) / 16777216.0;
    };
    const int count = int(area.width() * area.height() / (mark == 4 ? 420 : mark == 1 ? 90 : 150));
    QList<QPointF> points;
    QList<QLineF> lines;
    for (int i = 0; i < count && mark != 3 && mark != 0; ++i) {
        const QPointF at(area.left() + chance(area.width()), area.top() + chance(area.height()));
        const QPointF size = mark == 4 ? QPointF(3 + chance(3), 2.5 + chance(2)) : QPointF(0, 1);
        if (!below(at - QPointF(0, size.y())))
            continue;
        if (mark == 1)
            points << at;
        else if (mark == 2)
            lines << QLineF(at, at + QPointF(7, 0));
        else
            painter.drawEllipse(at, size.x(), size.y());
    }
    for (double x = area.left() - area.height(); mark == 3 && x < area.right(); x += 9) {
        double up = 0;
        while (up < area.height() && below(QPointF(x + up + 1, area.bottom() - up - 1)))
            ++up;
        lines << QLineF(x, area.bottom(), x + up, area.bottom() - up);
    }
    painter.drawPoints(points.constData(), int(points.size()));
    painter.drawLines(lines);
}

static void Ground(QPainter& painter, const QRectF& area)
{
    painter.save();
    painter.setClipRect(area.adjusted(0, -12, 0, 0));
    for (const Layer& layer : Layers) {
        QPolygonF contact;
        for (double x = area.left(); x <= area.right() + 4; x += 4)
            contact << QPointF(x, Contact(area.top(), layer, area.height(), x));
        QPainterPath path(QPointF(area.left(), area.bottom()));
        for (const QPointF& point : contact)
            path.lineTo(point);
        path.lineTo(area.right() + 4, area.bottom());
        path.closeSubpath();
        painter.fillPath(path, QColor(layer.color));
        Marks(painter,
              QRectF(area.left(), area.top() + layer.top * area.height() - 12, area.width(), area.height() * 0.4),
              layer.mark,
              [&](const QPointF& at) { return at.y() > Contact(area.top(), layer, area.height(), at.x()); });
        // A pen of one pixel along the contact alone: a wider one, all round, took a third of the picture's time.
        painter.setPen(QPen(QColor(40, 34, 28, 170), 1));
        painter.drawPolyline(contact);
    }
    painter.restore();
}

// The boring: casing, samples and the water table.
static void Boring(QPainter& painter, double x, const QRectF& area)
{
    const QRectF hole(x - 8, area.top() - 24, 16, area.height() * 0.86 + 24);
    painter.setPen(QPen(QColor(20, 26, 32), 1.4));
    painter.setBrush(QColor(250, 250, 248));
    painter.drawRect(hole);
    painter.setBrush(QColor(0x2f, 0x6b, 0xa8));
    painter.drawRect(QRectF(hole.left(), area.top() + area.height() * 0.45, hole.width(),
                            hole.bottom() - area.top() - area.height() * 0.45));
    painter.setBrush(QColor(20, 26, 32));
    for (int i = 0; i < 6; ++i)
        painter.drawRect(QRectF(hole.right() + 4, area.top() + area.height() * 0.06 + i * area.height() * 0.135, 5,
                                area.height() * 0.07));
    const double water = area.top() + area.height() * 0.45;
    const QPointF drop[] = {{x - 34, water - 11}, {x - 20, water - 11}, {x - 27, water}};
    painter.setBrush(QColor(0x2f, 0x6b, 0xa8));
    painter.drawPolygon(drop, 3);
}

static QPixmap Blank(QSize size, qreal pixelRatio)
{
    QPixmap pixmap(size * pixelRatio);
    pixmap.setDevicePixelRatio(pixelRatio);
    return pixmap;
}

static void Words(QPainter& painter, const QRectF& area, const QString& words, int pixels, bool bold, QColor color)
{
    QFont font("Liberation Sans");
    font.setPixelSize(pixels);
    font.setBold(bold);
    painter.setFont(font);
    painter.setPen(color);
    painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter, words);
}

static void Scene(QPainter& painter, QSize size, double sky)
{
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient air(0, 0, 0, sky);
    air.setColorAt(0, QColor(0xff, 0xff, 0xff));
    air.setColorAt(1, QColor(0xdd, 0xe7, 0xf0));
    painter.fillRect(QRectF(0, 0, size.width(), sky + 12), air);
    const QRectF ground(0, sky, size.width(), size.height() - sky);
    Ground(painter, ground);
    Boring(painter, size.width() - 96, ground);
    Boring(painter, size.width() - 250, QRectF(0, sky + 3, size.width(), ground.height() * 0.72));
}

QPixmap TitlePicture(qreal pixelRatio)
{
    const QSize size(560, 360);
    QPixmap pixmap = Blank(size, pixelRatio);
    QPainter painter(&pixmap);
    Scene(painter, size, 170);
    Words(painter, QRectF(36, 34, 400, 56), "Stratavue", 46, true, QColor(0x1d, 0x3c, 0x5c));
    Words(painter, QRectF(38, 92, 480, 26), "Boring logs from field data", 17, false, QColor(0x3d, 0x4d, 0x5c));
    painter.setPen(QPen(QColor(0x1d, 0x3c, 0x5c), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(0.5, 0.5, size.width() - 1, size.height() - 1));
    return pixmap;
}

QPixmap WelcomePicture(qreal pixelRatio)
{
    const QSize size(560, 330);
    QPixmap pixmap = Blank(size, pixelRatio);
    QPainter painter(&pixmap);
    Scene(painter, size, 196);
    Words(painter, QRectF(36, 24, 480, 44), "Welcome to Stratavue", 32, true, QColor(0x1d, 0x3c, 0x5c));
    Words(painter, QRectF(38, 78, 500, 24), "Open a boring with File, Open and look at its log with Preview.", 15,
          false, QColor(0x3d, 0x4d, 0x5c));
    Words(painter, QRectF(38, 102, 500, 24), "Batch Draw and Batch Print do the same for many borings at once.", 15,
          false, QColor(0x3d, 0x4d, 0x5c));
    return pixmap;
}
