// hands.cpp -- typing into the boxes of the log tool's window.
#include "windows/hands.h"

#include "windows/driver.h"

#include <QApplication>
#include <QMainWindow>
#include <QTabWidget>
#include <QTableView>
#include <QTest>

QWidget* Bring(QMainWindow* log, const char* name)
{
    auto* box = Find<QWidget>(log, name);
    auto* tabs = Find<QTabWidget>(log, "SSTab1");
    for (int i = 0; i < tabs->count(); ++i)
        if (tabs->widget(i)->isAncestorOf(box))
            tabs->setCurrentIndex(i);
    return box;
}

void ClickCell(QMainWindow* log, const char* name, int row, int column)
{
    auto* view = static_cast<QTableView*>(Bring(log, name));
    const QModelIndex at = view->model()->index(row - 1, column - 1);
    view->scrollTo(at);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(at).center());
    CHECK(view->currentIndex() == at);
}

// Behind a message box this screen has no window manager that would make the window active again.
QWidget* Focus()
{
    if (!QApplication::focusWidget())
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->objectName() == "frmBorinput") {
                window->activateWindow();
                Settle();
            }
    QWidget* to = QApplication::focusWidget();
    REQUIRE(to);
    return to;
}

void TypeText(const char* text)
{
    for (const char* letter = text; *letter; ++letter) {
        QWidget* to = Focus();
        if (*letter == '\n')
            QTest::keyClick(to, Qt::Key_Return);
        else if (*letter == '\t')
            QTest::keyClick(to, Qt::Key_Tab);
        else
            QTest::keyClick(to, *letter);
        Settle();
    }
}

void Press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(Focus(), key, modifiers);
    Settle();
}
