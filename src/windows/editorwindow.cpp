// editorwindow.cpp -- what the small editors with a menu have in common.
#include "windows/editorwindow.h"

#include "tools/nextfile.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>
#include <QVBoxLayout>

EditorWindow::EditorWindow(const char* name) : QDialog(QApplication::activeWindow())
{
    setObjectName(name);
    setAcceptDrops(true);
    content = new QVBoxLayout(this);
    content->setContentsMargins(14, 12, 14, 14);
    content->setSpacing(8);
    bar = new QMenuBar(this);
    content->setMenuBar(bar);
}

QMenu* EditorWindow::Part(const char* name, const char* caption)
{
    QMenu* menu = bar->addMenu(caption);
    menu->menuAction()->setObjectName(name);
    return menu;
}

void EditorWindow::Entry(QMenu* menu, const char* name, const char* caption, QKeySequence keys,
                         std::function<void()> command)
{
    auto* action = new QAction(caption, this);
    action->setObjectName(name);
    action->setShortcut(keys);
    menu->addAction(action);
    connect(action, &QAction::triggered, this, [this, command] {
        // However the command ends, what it has done is shown.
        struct Afterwards {
            EditorWindow& window;
            ~Afterwards()
            {
                if (window.refresh)
                    window.refresh();
            }
        } afterwards{*this};
        if (before)
            before();
        command();
    });
}

void EditorWindow::reject()
{
    if (before)
        before();
    if (!mayClose || mayClose())
        QDialog::reject();
}

bool EditorWindow::Takes(const Text& name) const
{
    return mayClose && OpensFile(name);
}

void EditorWindow::OpenSoon(const Text& name)
{
    QTimer::singleShot(0, this, [this, name] {
        if (before)
            before();
        if (opens && opens(name)) {
            if (refresh)
                refresh();
            return;
        }
        close();
        if (!isVisible())
            NextFile = name;
    });
}

void EditorWindow::closeEvent(QCloseEvent* event)
{
    event->ignore(); // a save on the way out that fails leaves by the failure, and the window is to stay
    reject();
    event->setAccepted(!isVisible());
}

void EditorWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        event->accept();
    else
        QDialog::keyPressEvent(event);
}
