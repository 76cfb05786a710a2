// checkdock.h -- what a reviewer would flag, beside the boxes of a window when the user wishes. Each entry leads to
// where it is to be mended.
#pragma once

#include "tools/checkview.h"

#include <QDockWidget>
#include <QTimer>
#include <functional>
#include <vector>

class ItemList;
class QLabel;
class QListWidget;
class QListWidgetItem;
class QMainWindow;
class QMenu;
class QToolButton;

// Returns the sign of a weight, told by its shape: a disc with a cross, a triangle with an exclamation mark, a ring
// with an i.
QIcon WeightSign(CheckWeight weight, const QPalette& palette);

class CheckDock : public QDockWidget
{
public:
    // Stands on the right of the window, hidden at first; its entry goes into the menu.
    CheckDock(QMainWindow* window, QMenu* menu);
    std::function<std::vector<CheckEntry>()> Check; // Returns what there is to flag now.
    std::function<void(const CheckEntry&)> GoTo;    // Leads to where an entry is to be mended.
    void Soon();                                    // Looks anew when the user pauses, since something has changed.
    QListWidget* List() const;
    QWidget* Kinds() const; // Returns the button with the kinds, for the way of the Tab key.

protected:
    void changeEvent(QEvent* event) override;

private:
    QWidget* MakeContent();
    void Look();
    void Show(const CheckList& list);
    void Choose(const QListWidgetItem& item);
    void FillKinds();
    void ListMenu(const QPoint& place);
    void Switch(const Text& key, bool off);

    QLabel* head;
    ItemList* entries;
    QLabel* foot;
    QToolButton* kinds;
    QMenu* kindsMenu;
    QTimer soon;
};
