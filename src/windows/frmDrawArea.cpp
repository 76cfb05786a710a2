// frmDrawArea.cpp -- the screen view: its menus, and which command each entry calls.
#include "canvas/metaugl.h"
#include "run/screenview.h"
#include "run/viewcommands.h"
#include "run/viewmoves.h"
#include "session/platform.h"
#include "windows/pageview.h"
#include "windows/showwindows.h"
#include "windows/uitext.h"
#include "windows/windowparts.h"

#include <QAction>
#include <QCloseEvent>
#include <QEventLoop>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QScreen>
#include <QStatusBar>
#include <QTimer>
#include <functional>

namespace
{
class DrawArea : public QMainWindow
{
public:
    DrawArea();
    void ShowPage(); // blocking: until a command hides the window

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Fit { None, Opening, Width, Page }; // what the view follows when the window's size changes
    QAction* Entry(QWidget* menu, const char* name, const char* caption, QKeySequence keys,
                   std::function<void()> command);
    void Steer(bool (*command)());
    void Arrange();
    void Zoom(Fit kind);
    void ShowState();

    QWidget* form; // the inner part of the window
    PageView* draw;
    QLabel* pageLabel;
    QLabel* fileLabel;
    QLabel* zoomLabel;
    QEventLoop wait;
    Fit fit = Fit::Opening;
    bool waiting = false;
    QTimer hideSoon;
};

// A run draws its next page in much less than this. The window stays up meanwhile, so that paging does not blink; when
// no page follows it goes.
constexpr int NextPageMs = 80;

DrawArea::DrawArea()
{
    hideSoon.setSingleShot(true);
    hideSoon.callOnTimeout(this, &QWidget::hide);
    setObjectName("DrawArea");
    setWindowTitle("Screen View");
    setWindowModality(Qt::ApplicationModal);
    form = new QWidget(this);
    form->setObjectName("Form");
    form->installEventFilter(this);
    QPalette desk;
    desk.setColor(QPalette::Window, DeskColor);
    form->setPalette(desk);
    form->setAutoFillBackground(true);
    setCentralWidget(form);
    draw = new PageView(form);
    draw->onMoved = [this] {
        fit = Fit::None;
        ShowState();
    };
    draw->onRectangle = [this](double x1, double y1, double x2, double y2) {
        if (x1 != x2 && y1 != y2)
            draw->RectangleMode(false);
        fit = Fit::None;
        draw->SetView(ZoomDragged(draw->View(), x1, y1, x2, y2, draw->width(), draw->height()));
        ShowState();
    };

    QMenu* file = menuBar()->addMenu("&File");
    file->menuAction()->setObjectName("mnuFile");
    Entry(file, "mnuDXF", "Export to &DXF", {}, ExportDxf);
    Entry(file, "mnuPDF", "&Export to PDF", {}, ExportPdf);
    file->addSeparator();
    Entry(file, "mnuPrintSetup", "Print &Setup", {}, [] { Platform.ShowPrinterSetup(); });
    Entry(file, "mnuPrint", "&Print", QKeySequence::Print, PrintShownPage);
    file->addSeparator();
    Entry(file, "mnuExit", "E&xit", QKeySequence("Ctrl+Q"), [this] { Steer(ExitRun); });

    QMenu* zoom = menuBar()->addMenu("&Zoom");
    zoom->menuAction()->setObjectName("mnuZoom");
    Entry(zoom, "mnuZoomWindow", "Zoom &Window", QKeySequence("Ctrl+W"), [this] { draw->RectangleMode(true); });
    Entry(zoom, "mnuZoomScreenWidth", "Zoom &Screen Width", QKeySequence("Ctrl+1"), [this] { Zoom(Fit::Width); });
    Entry(zoom, "mnuZoomPage", "Zoom &Page", QKeySequence("Ctrl+0"), [this] { Zoom(Fit::Page); });

    Entry(menuBar(), "mnuPrevious", "&Previous", Qt::Key_PageUp, [this] { Steer(PreviousPage); });
    Entry(menuBar(), "mnuNext", "&Next", Qt::Key_PageDown, [this] { Steer(NextPage); });
    Entry(menuBar(), "mnuGotoPage", "&GoTo", QKeySequence("Ctrl+G"), [this] { Steer(GoToPage); });
    Entry(menuBar(), "mnuHelp", "&Help", QKeySequence::HelpContents, [] { Platform.ShowHelp(); });

    const auto label = [this](const char* name) {
        auto* words = new QLabel(this);
        words->setObjectName(name);
        words->setContentsMargins(8, 0, 8, 0);
        return words;
    };
    pageLabel = label("lblPage");
    fileLabel = label("lblFile");
    zoomLabel = label("lblZoom");
    statusBar()->addWidget(pageLabel);
    statusBar()->addWidget(fileLabel, 1);
    statusBar()->addPermanentWidget(zoomLabel);

    const QRect room = screen()->availableGeometry();
    resize(room.size() * 0.86);
    CentreOnScreen(*this);
}

QAction* DrawArea::Entry(QWidget* menu, const char* name, const char* caption, QKeySequence keys,
                         std::function<void()> command)
{
    auto* action = new QAction(caption, this);
    action->setObjectName(name);
    action->setShortcut(keys);
    menu->addAction(action);
    connect(action, &QAction::triggered, this, [command] { command(); });
    return action;
}

// The form waits until a command has chosen another page, or the end of the run.
void DrawArea::ShowPage()
{
    fit = Fit::Opening;
    draw->SetPage();
    waiting = true;
    hideSoon.stop();
    setEnabled(true);
    show();
    raise();
    activateWindow();
    draw->setFocus();
    Arrange();
    ShowState();
    wait.exec();
    if (waiting) { // the program is told to end from outside: there is nothing to wait for any more
        waiting = false;
        hide();
        ExitRun();
    }
}

void DrawArea::Steer(bool (*command)())
{
    if (!waiting || !command())
        return;
    waiting = false;
    setEnabled(false); // between two pages there is nothing to steer
    if (command == ExitRun)
        hide();
    else
        hideSoon.start(NextPageMs);
    wait.quit();
}

void DrawArea::closeEvent(QCloseEvent* event)
{
    event->ignore(); // hidden, not destroyed
    Steer(ExitRun);
}

bool DrawArea::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == form && event->type() == QEvent::Resize)
        Arrange();
    return QMainWindow::eventFilter(watched, event);
}

void DrawArea::Arrange()
{
    const QSize before = draw->size();
    const ControlPlace place = PlaceControl(form->width(), form->height());
    draw->setGeometry(place.X, place.Y, place.Width, place.Height);
    if (fit == Fit::None)
        draw->SetView(Resized(draw->View(), before.width(), before.height(), place.Width, place.Height));
    else
        Zoom(fit);
}

void DrawArea::Zoom(Fit kind)
{
    fit = kind;
    if (kind == Fit::Opening)
        draw->SetView(OpeningView(PageCanvas.mode, draw->View(), draw->width(), draw->height()));
    else if (kind == Fit::Width)
        draw->SetView(FullWidth(draw->View(), draw->width()));
    else
        draw->SetView(WholePage(draw->width(), draw->height()));
    ShowState();
}

void DrawArea::ShowState()
{
    pageLabel->setText(ToUi(ShownPlace()));
    fileLabel->setText(ToUi(ShownFile()));
    const double inches = PageCanvas.pageWidthInches > 0 ? double(PageCanvas.pageWidthInches) : 1;
    zoomLabel->setText(QString("%1 %").arg(qRound(draw->View().ImageWidth / inches / 96 * 100)));
}
} // namespace

void ShowDrawArea()
{
    static QPointer<DrawArea> window;
    if (!window)
        window = new DrawArea;
    window->ShowPage();
}
