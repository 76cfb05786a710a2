// checkdock.cpp -- the list of what a reviewer would flag.
#include "platform/qt/checkdock.h"

#include "platform/qt/itemlist.h"
#include "platform/qt/uitext.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>

static constexpr int pauseMs = 120;

CheckDock::CheckDock(QMainWindow* window, QMenu* menu) : QDockWidget("Check List", window)
{
    setObjectName("dckCheck");
    setFeatures(QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable);
    entries = new ItemList(this);
    entries->setObjectName("lstCheck");
    entries->setAccessibleName("Check list");
    entries->setWordWrap(true);
    entries->setTextElideMode(Qt::ElideNone);
    entries->setStyleSheet("QListView::item { padding: 3px; }"); // a spacing would be dead strips between the entries
    entries->setMinimumSize(200, 60);
    entries->OnChoice = [this](const QListWidgetItem& item) {
        const Text words = FromUi(item.text());
        for (const CheckEntry& entry : Check()) // where it stands by now
            if (entry.Words == words)
                return GoTo(entry);
    };
    setWidget(entries);
    window->addDockWidget(Qt::RightDockWidgetArea, this);
    hide();
    soon.setSingleShot(true);
    soon.setInterval(pauseMs);
    connect(&soon, &QTimer::timeout, this, &CheckDock::Look);
    connect(this, &QDockWidget::visibilityChanged, this, [this](bool visible) {
        if (visible)
            soon.start();
    });
    QAction* toggle = toggleViewAction();
    toggle->setObjectName("mnuCheckList");
    toggle->setText("&Check List");
    toggle->setShortcut(QKeySequence("Ctrl+F7"));
    menu->addAction(toggle);
}

void CheckDock::Soon()
{
    if (entries->isVisible())
        soon.start();
}

QListWidget* CheckDock::List() const
{
    return entries;
}

void CheckDock::Look()
{
    if (!entries->isVisible())
        return;
    QStringList words;
    for (const CheckEntry& entry : Check())
        words << ToUi(entry.Words);
    if (words.isEmpty())
        words << "Nothing to remark";
    QStringList shown;
    for (int row = 0; row < entries->count(); ++row)
        shown << entries->item(row)->text();
    if (shown == words)
        return;
    entries->clear();
    entries->addItems(words);
}
