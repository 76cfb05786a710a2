// livepane.cpp -- the pane beside the editor.
#include "windows/livepane.h"

#include "painter/pagepainter.h"
#include "windows/pageview.h"
#include "windows/showwindows.h"
#include "windows/uitext.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

static constexpr int pauseMs = 120;

LivePane::LivePane(QWidget* parent) : QWidget(parent)
{
    setObjectName("LivePage");
    setAccessibleName("Preview of the page");
    setMinimumSize(200, 200);
    pause.setSingleShot(true);
    pause.setInterval(pauseMs);
    connect(&pause, &QTimer::timeout, this, &LivePane::Draw);
}

void LivePane::Soon()
{
    if (isVisible())
        pause.start();
}

void LivePane::Turn(int pages)
{
    wanted = std::clamp(page.Page + pages, 1, std::max(page.Pages, 1));
    Draw();
}

// A run of the program has the canvas while its windows are up; the pane waits for it.
void LivePane::Draw()
{
    if (!isVisible())
        return;
    const QWidget* front = QApplication::activeModalWidget();
    if ((front && front != window()) || RunUnderWay()) {
        pause.start();
        return;
    }
    Draws(wanted, FromUi(folder.path()), page);
    wanted = page.Page;
    picture = QPixmap();
    update();
    if (OnDrawn)
        OnDrawn();
}

QRectF LivePane::Sheet() const
{
    if (page.List.ExtentWidth <= 0 || page.List.ExtentHeight <= 0)
        return {};
    const double scale = std::min((width() - 12.0) / page.List.ExtentWidth, (height() - 12.0) / page.List.ExtentHeight);
    const QSizeF size(page.List.ExtentWidth * scale, page.List.ExtentHeight * scale);
    return QRectF(QPointF((width() - size.width()) / 2, 6), size);
}

void LivePane::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), DeskColor);
    const QRectF sheet = Sheet();
    if (sheet.isEmpty()) {
        painter.drawText(rect(), Qt::AlignCenter, "There is no page to show yet");
        return;
    }
    if (picture.isNull()) {
        const double ratio = devicePixelRatioF();
        picture = QPixmap((sheet.size() * ratio).toSize().expandedTo(QSize(1, 1)));
        picture.fill(Qt::white);
        QPainter on(&picture);
        on.setRenderHint(QPainter::Antialiasing);
        std::swap(PageList, page.List); // the painter draws the page on the canvas
        try {
            PaintPage(on, sheet.width() * ratio / PageList.ExtentWidth, PatternForm::Screen);
        } catch (...) { // a picture that is not there is left out, and the screen view tells of it
        }
        std::swap(PageList, page.List);
        picture.setDevicePixelRatio(ratio);
    }
    painter.drawPixmap(sheet.topLeft(), picture);
}

void LivePane::resizeEvent(QResizeEvent*)
{
    picture = QPixmap();
}

void LivePane::showEvent(QShowEvent*)
{
    Soon();
}

void LivePane::mousePressEvent(QMouseEvent* event)
{
    const QRectF sheet = Sheet();
    if (sheet.isEmpty() || !OnLayer)
        return;
    const double y = (event->position().y() - sheet.top()) * page.List.ExtentHeight / sheet.height();
    if (const int row = LayerAt(page, y))
        OnLayer(row);
}

QSize LivePane::sizeHint() const
{
    return QSize(420, 540);
}
