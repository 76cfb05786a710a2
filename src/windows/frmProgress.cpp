// frmProgress.cpp -- the progress window of a run: how much of the page is made.
#include "run/batchrun.h"
#include "windows/showwindows.h"
#include "windows/uitext.h"
#include "windows/windowparts.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QVBoxLayout>

namespace
{
// Most pages are made faster than a window comes up. Only a page that takes longer than this shows it, so that paging
// through a log does not flicker.
constexpr qint64 PatienceMs = 120;

class ProgressWindow : public QWidget
{
public:
    ProgressWindow();
    QLabel* label2;
    QProgressBar* gauge1;
    QElapsedTimer since;
    bool wanted = false;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
};

ProgressWindow::ProgressWindow() : QWidget(nullptr, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
{
    setObjectName("frmProgress");
    setWindowTitle("Stratavue");
    setWindowModality(Qt::ApplicationModal);
    label2 = new QLabel(this);
    label2->setObjectName("Label2");
    gauge1 = new QProgressBar(this);
    gauge1->setObjectName("Gauge1");
    gauge1->setRange(0, 1000);
    gauge1->setTextVisible(false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 20);
    layout->setSpacing(10);
    layout->addWidget(label2);
    layout->addWidget(gauge1);
    resize(340, sizeHint().height());
}

void ProgressWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        stopRequested = -1;
    else
        QWidget::keyPressEvent(event);
}

void ProgressWindow::closeEvent(QCloseEvent* event)
{
    event->ignore(); // it goes when the page is made
}
} // namespace

static ProgressWindow& Window()
{
    static QPointer<ProgressWindow> window;
    if (!window)
        window = new ProgressWindow;
    return *window;
}

bool RunUnderWay()
{
    return Window().wanted;
}

void ShowProgressWindow(bool shown)
{
    ProgressWindow& window = Window();
    if (shown) {
        if (!window.wanted)
            window.since.start();
        window.gauge1->setValue(0);
        window.label2->setText("% Complete: ");
    } else {
        window.hide();
    }
    window.wanted = shown;
}

void RunPaused()
{
    Window().since.start();
}

void StepProgressWindow(const Text& words, float percent)
{
    ProgressWindow& window = Window();
    window.label2->setText(ToUi(words));
    window.gauge1->setValue(int(percent * 10));
    Breathe();
}

// The bar is painted and Escape is seen. The window is modal, so nothing else is; while it is not up there is nothing
// to see, and a click meant for a menu would start a second run inside the first.
void Breathe()
{
    ProgressWindow& window = Window();
    if (!window.wanted || window.since.elapsed() < PatienceMs)
        return;
    if (!window.isVisible()) {
        CentreOnScreen(window);
        window.show();
    }
    QApplication::processEvents();
}
