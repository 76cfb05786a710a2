// pageview.h -- the control that shows the page on the canvas: zoomed, dragged, with a rubber band.
//
// The page is drawn once for a zoom, into a picture of the part in view and a margin around it; dragging and the
// rubber band only copy from it. While the wheel turns the picture is stretched, and drawn anew when it rests. The
// sums are run/viewmoves.h.
#pragma once

#include "run/viewmoves.h"

#include <QColor>
#include <QImage>
#include <QTimer>
#include <QWidget>
#include <functional>

// What lies under the page.
extern const QColor DeskColor;

class PageView : public QWidget
{
public:
    explicit PageView(QWidget* parent);

    void SetPage(); // makes the pictures anew, since the canvas holds another page
    void SetView(const ViewRecord& view);
    const ViewRecord& View() const
    {
        return shown;
    }
    void RectangleMode(bool on); // lets the next drag draw a rectangle instead of moving the page
    bool InRectangleMode() const
    {
        return rectangleMode;
    }
    void Redraw();         // draws the picture of the part in view, now
    bool UpToDate() const; // returns whether nothing in the picture is stretched and nothing in view is missing

    std::function<void(double x1, double y1, double x2, double y2)> onRectangle; // called with corners in page units
    std::function<void()> onMoved;                                               // called at a zoom or a drag

protected:
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    // A picture of a part of the page, in device pixels.
    struct Picture {
        QImage image;
        QRectF part; // of the whole page, which is 0, 0, 1, 1
        double pixelsPerUnit = 0;
    };
    QRectF Page() const;      // returns the place of the page's image in the control
    QRect PageInView() const; // returns what of it is seen
    double PixelsPerUnit() const;
    bool Covers(const Picture& picture, const QRectF& area) const;
    void PaintPicture(QPainter& painter, const Picture& picture, const QRect& area) const;
    QRect Band() const;
    void UpdateBand(const QRect& before);
    void MovedByHand(const ViewRecord& view);

    ViewRecord shown;
    Picture sharp; // of the part in view, at its zoom
    Picture whole; // the last one that showed the whole page, for what the sharp one lacks
    QTimer redrawSoon;
    bool failed = false; // a picture of the page could not be had, and was told
    bool rectangleMode = false, banding = false, dragging = false;
    QPoint bandStart, bandEnd;
    QPointF dragFrom;
};
