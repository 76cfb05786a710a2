// frmAbout5.cpp -- the title box: up while the program loads, then until it is clicked.
#include "windows/showwindows.h"
#include "windows/titlepicture.h"
#include "windows/windowparts.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QTimer>
#include <QVBoxLayout>

namespace
{
class AboutBox : public QDialog
{
public:
    AboutBox();

protected:
    void mousePressEvent(QMouseEvent*) override
    {
        ClickedAway();
    }
    void keyPressEvent(QKeyEvent*) override
    {
        ClickedAway(); // for who works without a mouse
    }

private:
    void ClickedAway()
    {
        if (isModal())
            accept();
    }
};

AboutBox::AboutBox() : QDialog(nullptr, Qt::Dialog | Qt::FramelessWindowHint)
{
    setObjectName("frmAbout5");
    setWindowTitle("Stratavue");
    auto* picture = new QLabel(this);
    picture->setObjectName("Picture1");
    picture->setAccessibleName("Stratavue. Click to go on.");
    picture->setPixmap(TitlePicture(devicePixelRatioF()));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(picture);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    adjustSize();
}
} // namespace

static QPointer<AboutBox> box;

void ShowAboutBox(bool blocking)
{
    if (!box)
        box = new AboutBox;
    if (!blocking) {
        box->setWindowModality(Qt::NonModal);
        CentreOnScreen(*box);
        box->show();
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents); // painted before the loading begins
        return;
    }
    box->hide();
    // Over the log window, which has been shown meanwhile and waits for the click on this box.
    QTimer::singleShot(0, box, [] {
        box->raise();
        box->activateWindow();
    });
    box->exec();
    delete box;
}
