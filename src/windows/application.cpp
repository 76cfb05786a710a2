// application.cpp -- the program as Qt sees it.
#include "windows/application.h"

#include "session/failure.h"
#include "session/platform.h"
#include "session/text.h"
#include "windows/uitext.h"
#include "windows/windowparts.h"

#include <QDropEvent>
#include <QFile>
#include <QIcon>
#include <QMimeData>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QUrl>
#include <QWidget>
#include <cstdlib>

bool StartDone = false;
void (*EndAtOnce)(int status) = std::_Exit;

namespace
{
// Words alone on the buttons, and lists that act on a double click.
class PlainButtons : public QProxyStyle
{
public:
    PlainButtons() : QProxyStyle(QStyleFactory::create("Fusion"))
    {
    }
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override
    {
        if (hint == SH_DialogButtonBox_ButtonsHaveIcons)
            return 0;
        if (hint == SH_ItemView_ActivateItemOnSingleClick)
            return 0; // a click chooses a file, a double click opens it, whatever the desktop's habit
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
};
} // namespace

// One look on every machine: Qt's own style, light, with a calm blue as the only accent.
static void Dress()
{
    QApplication::setStyle(new PlainButtons);
    QPalette palette(QColor(0xf2, 0xf3, 0xf5));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xf7, 0xf9, 0xfb));
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x6b, 0xa8));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Text, QColor(0x1f, 0x26, 0x2e));
    palette.setColor(QPalette::WindowText, QColor(0x1f, 0x26, 0x2e));
    palette.setColor(QPalette::ButtonText, QColor(0x1f, 0x26, 0x2e));
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x8b, 0x93, 0x9c));
    QApplication::setPalette(palette);
}

Application::Application(int& argc, char** argv) : QApplication(argc, argv)
{
    setApplicationName("Stratavue");
    setDesktopFileName("stratavue");
    setQuitOnLastWindowClosed(false); // the log window ends the program, not the last box that closes
    Dress();
}

void Application::ShowIcon()
{
    // An installed program's is the desktop's.
    const QString icon = applicationDirPath() + "/stratavue.png";
    setWindowIcon(QFile::exists(icon) ? QIcon(icon) : QIcon::fromTheme("stratavue"));
}

// A file of the program that is dragged over a window or dropped there is for the window, and for no box on it. False:
// it is not, and the box may take it.
static bool DropOnWindow(QWidget* box, QDropEvent& event)
{
    const QUrl file = event.mimeData()->urls().value(0); // of several the first one
    const Text name = FromUi(file.toLocalFile());
    const QWidget* const modal = QApplication::activeModalWidget();
    for (QWidget* at = box; at && !name.empty(); at = at->parentWidget())
        if (auto* window = dynamic_cast<TakesFiles*>(at)) {
            if (!window->Takes(name) || (modal && modal != at))
                return false;
            event.acceptProposedAction();
            if (event.type() == QEvent::Drop)
                window->OpenSoon(name);
            return true;
        }
    return false;
}

bool Application::notify(QObject* receiver, QEvent* event)
{
    const QEvent::Type type = event->type();
    const bool drop = type == QEvent::DragEnter || type == QEvent::DragMove || type == QEvent::Drop;
    try {
        if (drop && receiver->isWidgetType() &&
            DropOnWindow(static_cast<QWidget*>(receiver), *static_cast<QDropEvent*>(event)))
            return true;
        return QApplication::notify(receiver, event);
    } catch (...) {
        TellRunTimeError();
        return true;
    }
}

void TellRunTimeError()
{
    MsgBox("Run-time error" + NumberText(FailureInHand()));
    if (!StartDone)
        EndAtOnce(1);
}
