// pageview.cpp -- the control that shows the page on the canvas.
#include "windows/pageview.h"

#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "painter/pagepainter.h"
#include "windows/application.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

namespace
{
// The margin around the part in view that is drawn with it, in parts of the control.
constexpr double Margin = 0.5;
// A page whose whole picture is no larger than this is drawn whole, so that a drag never meets an edge.
constexpr double WholeLimit = 6e6;
// The picture is drawn anew when the wheel, or the hand, has rested for so long.
constexpr int RestMs = 60;
constexpr int ArrowStep = 48;

const QColor Edge(0x9a, 0xa1, 0xa9), BandLine(0x2f, 0x6b, 0xa8);
} // namespace

const QColor DeskColor(0xc9, 0xce, 0xd4);

PageView::PageView(QWidget* parent) : QWidget(parent)
{
    setObjectName("MDraw");
    setAccessibleName("Page");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::OpenHandCursor);
    redrawSoon.setSingleShot(true);
    redrawSoon.callOnTimeout(this, [this] {
        Redraw();
        update();
    });
}

QRectF PageView::Page() const
{
    return QRectF(-shown.Left, -shown.Top, shown.ImageWidth, shown.ImageHeight);
}

QRect PageView::PageInView() const
{
    return Page().toAlignedRect() & rect();
}

double PageView::PixelsPerUnit() const
{
    return PageList.ExtentWidth > 0 ? shown.ImageWidth * devicePixelRatioF() / PageList.ExtentWidth : 0;
}

void PageView::SetPage()
{
    sharp = whole = Picture();
    failed = false;
    RectangleMode(false);
    update();
}

void PageView::SetView(const ViewRecord& view)
{
    shown = view;
    Redraw();
    update();
}

bool PageView::Covers(const Picture& picture, const QRectF& area) const
{
    const QRectF page = Page();
    const QRectF part(page.left() + picture.part.left() * page.width(), page.top() + picture.part.top() * page.height(),
                      picture.part.width() * page.width(), picture.part.height() * page.height());
    return !picture.image.isNull() && part.adjusted(-1, -1, 1, 1).contains(area);
}

bool PageView::UpToDate() const
{
    return sharp.pixelsPerUnit == PixelsPerUnit() && Covers(sharp, PageInView());
}

void PageView::Redraw()
{
    redrawSoon.stop();
    const double pixelsPerUnit = PixelsPerUnit();
    const QRectF page = Page();
    const QRectF inView = QRectF(PageInView());
    if (pixelsPerUnit <= 0 || inView.isEmpty() || UpToDate())
        return;
    const double ratio = devicePixelRatioF();
    QRectF area = page;
    if (page.width() * page.height() * ratio * ratio > WholeLimit)
        area &= inView.adjusted(-Margin * width(), -Margin * height(), Margin * width(), Margin * height());
    // In pixels of the page's image, from its corner, so that the patterns lie the same in every picture.
    const QRect pixels = QRectF((area.topLeft() - page.topLeft()) * ratio, area.size() * ratio).toAlignedRect();
    Picture picture;
    picture.image = QImage(pixels.size(), QImage::Format_RGB32);
    picture.image.fill(Qt::white);
    picture.pixelsPerUnit = pixelsPerUnit;
    picture.part = QRectF(pixels.left() / (page.width() * ratio), pixels.top() / (page.height() * ratio),
                          pixels.width() / (page.width() * ratio), pixels.height() / (page.height() * ratio));
    QPainter painter(&picture.image);
    painter.translate(-pixels.topLeft());
    painter.scale(ratio, ratio);
    try {
        PaintPage(painter, pixelsPerUnit / ratio, PatternForm::Screen);
    } catch (...) {
        // Told once for a page, whatever the user then does with the view; what could be drawn is shown.
        if (!failed)
            TellRunTimeError();
        failed = true;
    }
    painter.end();
    sharp = picture;
    if (area == page)
        whole = picture;
}

// Copies, or stretches, what a picture has of the area. In device pixels, so that an unstretched picture goes pixel
// on pixel on every screen.
void PageView::PaintPicture(QPainter& painter, const Picture& picture, const QRect& area) const
{
    if (picture.image.isNull())
        return;
    const double ratio = devicePixelRatioF();
    const double stretch = PixelsPerUnit() / picture.pixelsPerUnit;
    const QPointF corner(std::round(-shown.Left * ratio), std::round(-shown.Top * ratio));
    const QPointF origin = corner + QPointF(picture.part.left() * shown.ImageWidth * ratio,
                                            picture.part.top() * shown.ImageHeight * ratio);
    painter.save();
    painter.scale(1 / ratio, 1 / ratio);
    if (std::fabs(stretch - 1) < 1e-9) {
        painter.drawImage(QPoint(int(std::lround(origin.x())), int(std::lround(origin.y()))), picture.image);
    } else {
        // Only the pixels that end up in the area: a picture zoomed far out of the window is not stretched whole.
        const QRectF wanted(QPointF(area.topLeft()) * ratio, QSizeF(area.size()) * ratio);
        QRectF source((wanted.topLeft() - origin) / stretch, wanted.size() / stretch);
        source &= QRectF(picture.image.rect());
        if (!source.isEmpty())
            painter.drawImage(QRectF(origin + source.topLeft() * stretch, source.size() * stretch), picture.image,
                              source);
    }
    painter.restore();
}

QRect PageView::Band() const
{
    return QRect(bandStart, bandEnd).normalized();
}

void PageView::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    const QRect area = event->rect();
    painter.setClipRect(area);
    const QRect page = PageInView();
    painter.fillRect(area, DeskColor);
    painter.fillRect(page, Qt::white);
    const QRect seen = page & area;
    if (!seen.isEmpty()) {
        if (!UpToDate()) {
            if (!Covers(sharp, PageInView()))
                PaintPicture(painter, whole, seen);
            if (!redrawSoon.isActive())
                redrawSoon.start(RestMs);
        }
        PaintPicture(painter, sharp, seen);
    }
    painter.setPen(Edge);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(Page().toAlignedRect().adjusted(-1, -1, 0, 0));
    if (banding) {
        QPen pen(BandLine, 1.4, Qt::DashLine);
        painter.setPen(pen);
        painter.setBrush(QColor(0x2f, 0x6b, 0xa8, 28));
        painter.drawRect(Band());
    }
}

void PageView::MovedByHand(const ViewRecord& view)
{
    shown = KeptInReach(view, width(), height());
    if (!UpToDate())
        redrawSoon.start(RestMs);
    update();
    if (onMoved)
        onMoved();
}

void PageView::wheelEvent(QWheelEvent* event)
{
    const double steps = event->angleDelta().y() / 120.0;
    if (steps == 0 || banding)
        return;
    MovedByHand(ZoomAbout(shown, std::pow(1.25, steps), event->position().x(), event->position().y()));
    event->accept();
}

void PageView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    if (rectangleMode) {
        banding = true;
        bandStart = bandEnd = event->position().toPoint();
        return;
    }
    dragging = true;
    dragFrom = event->position();
    setCursor(Qt::ClosedHandCursor);
}

// The band's surroundings only: all else stays as it is on the screen.
void PageView::UpdateBand(const QRect& before)
{
    update(before.adjusted(-3, -3, 3, 3) | Band().adjusted(-3, -3, 3, 3));
}

void PageView::mouseMoveEvent(QMouseEvent* event)
{
    if (banding) {
        const QRect before = Band();
        const BandCorner corner = ShapedBand(bandStart.x(), bandStart.y(), event->position().toPoint().x(),
                                             event->position().toPoint().y(), width(), height());
        bandEnd = QPoint(int(std::lround(corner.X)), int(std::lround(corner.Y)));
        UpdateBand(before);
    } else if (dragging) {
        const QPointF by = event->position() - dragFrom;
        dragFrom = event->position();
        MovedByHand(Dragged(shown, by.x(), by.y()));
    }
}

void PageView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    if (banding) {
        banding = false;
        update(Band().adjusted(-3, -3, 3, 3));
        if (onRectangle)
            onRectangle(PageX(shown, bandStart.x()), PageY(shown, bandStart.y()), PageX(shown, bandEnd.x()),
                        PageY(shown, bandEnd.y()));
        return;
    }
    dragging = false;
    setCursor(rectangleMode ? Qt::CrossCursor : Qt::OpenHandCursor);
}

void PageView::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        RectangleMode(false);
        return;
    case Qt::Key_Left:
        return MovedByHand(Dragged(shown, ArrowStep, 0));
    case Qt::Key_Right:
        return MovedByHand(Dragged(shown, -ArrowStep, 0));
    case Qt::Key_Up:
        return MovedByHand(Dragged(shown, 0, ArrowStep));
    case Qt::Key_Down:
        return MovedByHand(Dragged(shown, 0, -ArrowStep));
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return MovedByHand(ZoomAbout(shown, 1.25, width() / 2.0, height() / 2.0));
    case Qt::Key_Minus:
        return MovedByHand(ZoomAbout(shown, 1 / 1.25, width() / 2.0, height() / 2.0));
    default:
        QWidget::keyPressEvent(event);
    }
}

void PageView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange)
        RectangleMode(false);
    QWidget::changeEvent(event);
}

void PageView::RectangleMode(bool on)
{
    rectangleMode = on;
    banding = dragging = false;
    setCursor(on ? Qt::CrossCursor : Qt::OpenHandCursor);
    update();
}
