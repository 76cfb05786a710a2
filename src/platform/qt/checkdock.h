// checkdock.h -- what a reviewer would flag, beside the boxes of a window when the user wishes. Each entry leads to
// where it is to be mended.
#pragma once

#include "editors/checklist.h"

#include <QDockWidget>
#include <QTimer>
#include <functional>
#include <vector>

class ItemList;
class QListWidget;
class QMainWindow;
class QMenu;

class CheckDock : public QDockWidget
{
public:
    // On the right of the window, hidden at first; its entry goes into the menu.
    CheckDock(QMainWindow* window, QMenu* menu);
    std::function<std::vector<CheckEntry>()> Check; // as it stands now
    std::function<void(const CheckEntry&)> GoTo;
    void Soon(); // something has changed: looked at anew when the user pauses
    QListWidget* List() const;

private:
    void Look();

    ItemList* entries;
    QTimer soon;
};
