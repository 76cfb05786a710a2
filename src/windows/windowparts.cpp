// windowparts.cpp -- what the windows of the tools are made of.
#include "windows/windowparts.h"

#include "session/files.h"
#include "session/platform.h"
#include "windows/uitext.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QScreen>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>
#include <QWindow>
#include <utility>

bool PlacesWindows(const QString& platform)
{
    return !platform.startsWith("wayland");
}

void CentreOnScreen(QWidget& window)
{
    if (!PlacesWindows(QGuiApplication::platformName())) {
        QWidget* const under = QApplication::activeWindow();
        if (!qobject_cast<QDialog*>(&window) || !under || under == &window)
            return;
        window.winId(); // made now, so that there is a handle
        window.windowHandle()->setTransientParent(under->windowHandle());
        return;
    }
    const QRect room = window.screen()->availableGeometry();
    const QSize size = window.isVisible() || window.testAttribute(Qt::WA_Resized) ? window.size() : window.sizeHint();
    window.move(room.center() - QPoint(size.width() / 2, size.height() / 2));
}

QSplitter* Split(Qt::Orientation orientation, std::initializer_list<QWidget*> boxes, std::initializer_list<int> shares)
{
    auto* splitter = new QSplitter(orientation);
    splitter->setChildrenCollapsible(false);
    splitter->setHandleWidth(10);
    for (QWidget* box : boxes)
        splitter->addWidget(box);
    int i = 0;
    QList<int> sizes;
    for (const int share : shares) {
        splitter->setStretchFactor(i++, share);
        sizes << share * 100;
    }
    splitter->setSizes(sizes);
    return splitter;
}

void AddStatusWords(QStatusBar* bar, QLabel*& project, QLabel*& state)
{
    project = new QLabel(bar);
    project->setObjectName("lblProject");
    project->setContentsMargins(8, 0, 8, 0);
    state = new QLabel(bar);
    state->setObjectName("lblState");
    state->setContentsMargins(8, 0, 8, 0);
    bar->addWidget(project, 1);
    bar->addPermanentWidget(state);
}

template <class Box>
static void Do(Box& box, TextCommand command)
{
    switch (command) {
    case TextCommand::Undo:
        return box.undo();
    case TextCommand::Redo:
        return box.redo();
    case TextCommand::Cut:
        return box.cut();
    case TextCommand::Copy:
        return box.copy();
    case TextCommand::Paste:
        return box.paste();
    }
}

bool DoInText(QWidget* focus, TextCommand command)
{
    const auto* list = qobject_cast<QComboBox*>(focus); // it has the focus for its field
    auto* line = list ? list->lineEdit() : qobject_cast<QLineEdit*>(focus);
    auto* text = qobject_cast<QPlainTextEdit*>(focus);
    if (text)
        Do(*text, command);
    else if (line)
        Do(*line, command);
    return text || line;
}

QString MarkedTitle(const Text& title)
{
    return ToUi(title).replace("[*]", "[*][*]") + "[*]";
}

static constexpr int maxRecent = 9;

RecentFiles::RecentFiles(QMenu* shownIn, const char* keptAs, std::function<void(const Text&)> open)
    : menu(shownIn), key(keptAs), opens(std::move(open))
{
}

void RecentFiles::Show(const Text& current)
{
    QSettings settings("Stratavue", "Stratavue");
    QStringList files = settings.value(key).toStringList();
    const QString name = ToUi(current);
    if (!name.isEmpty() && files.value(0) != name && FileExists(current)) {
        files.removeAll(name);
        files.prepend(name);
        files = files.mid(0, maxRecent);
        settings.setValue(key, files);
    }
    menu->clear();
    menu->setEnabled(!files.isEmpty());
    int i = 0;
    for (const QString& file : files) {
        QAction* action = menu->addAction(QString("&%1 %2").arg(++i).arg(QString(file).replace("&", "&&")));
        action->setObjectName(QString("mnuRecent%1").arg(i));
        QObject::connect(action, &QAction::triggered, menu, [this, file] {
            if (FileExists(FromUi(file)))
                return opens(FromUi(file));
            MsgBox("File Not Found: " + FromUi(file), OkOnly, Exclamation);
            QSettings kept("Stratavue", "Stratavue");
            QStringList others = kept.value(key).toStringList();
            others.removeAll(file);
            kept.setValue(key, others);
        });
    }
}
