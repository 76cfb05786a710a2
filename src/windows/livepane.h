// livepane.h -- the pane beside the boxes of a tool that shows a page of what stands in them.
#pragma once

#include "tools/livepreview.h"

#include <QPixmap>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>
#include <functional>

class LivePane : public QWidget
{
public:
    explicit LivePane(QWidget* parent);
    void Soon();          // draws anew when the user pauses, since something has changed
    void Turn(int pages); // goes to a later or an earlier page
    // Draws the page: the log's unless another tool's is set.
    std::function<bool(int number, const Text& folder, LivePage& page)> Draws = DrawLivePage;
    std::function<void(int)> OnLayer; // called at a click on the layer of that row
    std::function<void()> OnDrawn;    // called when a page was drawn
    const LivePage& Shown() const
    {
        return page;
    }
    QRectF Sheet() const; // returns where the page is in the pane

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    QSize sizeHint() const override;

private:
    void Draw();

    QTemporaryDir folder;
    QTimer pause;
    LivePage page;
    int wanted = 1;
    QPixmap picture; // of the page, in the size of the pane
};
