// itemlist.h -- a list whose items do something when they are clicked, or by Enter.
#pragma once

#include <QListWidget>
#include <functional>

class ItemList : public QListWidget
{
public:
    using QListWidget::QListWidget;
    std::function<void(const QListWidgetItem&)> OnChoice;

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};
