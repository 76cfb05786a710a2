// frmWelcome.cpp -- the welcome of a first start: a picture, and one button that closes it.
#include "windows/showwindows.h"
#include "windows/titlepicture.h"
#include "windows/windowparts.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

void ShowWelcomeWindow()
{
    QDialog window;
    window.setObjectName("frmWelcome");
    window.setWindowTitle("Welcome");
    auto* picture = new QLabel(&window);
    picture->setObjectName("Picture1");
    picture->setAccessibleName("Welcome to Stratavue");
    picture->setPixmap(WelcomePicture(window.devicePixelRatioF()));
    auto* close = new QPushButton("Start", &window);
    close->setObjectName("Command1");
    close->setDefault(true);
    close->setMinimumWidth(110);
    QObject::connect(close, &QPushButton::clicked, &window, &QDialog::accept);
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 16);
    layout->setSpacing(16);
    layout->addWidget(picture);
    layout->addWidget(close, 0, Qt::AlignHCenter);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    window.adjustSize();
    CentreOnScreen(window);
    window.exec();
}
