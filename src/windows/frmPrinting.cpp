// frmPrinting.cpp -- the notice that something goes to the printer: a second and a half, then it is gone.
#include "windows/showwindows.h"
#include "windows/windowparts.h"

#include <QDialog>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

void ShowPrintingNotice()
{
    QDialog notice(nullptr, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    notice.setObjectName("frmPrinting");
    notice.setWindowTitle("Stratavue");
    auto* words = new QLabel("Printing...", &notice);
    words->setObjectName("Label1");
    words->setAlignment(Qt::AlignCenter);
    auto* layout = new QVBoxLayout(&notice);
    layout->setContentsMargins(40, 24, 40, 24);
    layout->addWidget(words);
    notice.adjustSize();
    CentreOnScreen(notice);
    QTimer::singleShot(1500, &notice, &QDialog::accept);
    notice.exec();
}
