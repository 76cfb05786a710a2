// itemlist.cpp -- a list whose items do something.
#include "windows/itemlist.h"

#include <QKeyEvent>
#include <QMouseEvent>

void ItemList::mouseReleaseEvent(QMouseEvent* event)
{
    QListWidget::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && itemAt(event->pos()))
        OnChoice(*itemAt(event->pos()));
}

void ItemList::keyPressEvent(QKeyEvent* event)
{
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && currentItem())
        OnChoice(*currentItem());
    else
        QListWidget::keyPressEvent(event);
}
