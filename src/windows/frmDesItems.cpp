// frmDesItems.cpp -- the description item editor: a text box for each list, an item a line.
#include "report/desitems.h"
#include "windows/showwindows.h"
#include "windows/typedtext.h"
#include "windows/uitext.h"

#include <QApplication>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

void ShowDesItemsWindow()
{
    frmDesItems::Load();
    QDialog window(QApplication::activeWindow());
    window.setObjectName("frmDesItems");
    window.setWindowTitle("Description Item Editor");
    auto* all = new QVBoxLayout(&window);
    all->setContentsMargins(18, 16, 18, 16);
    all->setSpacing(8);
    all->addWidget(new QLabel("Each line is an item to click into the description, up to 50 in a list.", &window));
    auto* lists = new QGridLayout;
    lists->setHorizontalSpacing(14);
    lists->setVerticalSpacing(4);
    QPlainTextEdit* boxes[5] = {};
    for (int i = 1; i <= 4; ++i) {
        boxes[i] = new TypedTextEdit(&window);
        boxes[i]->setObjectName(QString("Text%1").arg(i));
        boxes[i]->setAccessibleName(QString("List %1").arg(i));
        boxes[i]->setLineWrapMode(QPlainTextEdit::NoWrap);
        boxes[i]->setTabChangesFocus(true);
        boxes[i]->setPlainText(ToUi(frmDesItems::Box[i]).remove('\r'));
        auto* label = new QLabel(QString("List &%1:").arg(i), &window);
        label->setBuddy(boxes[i]);
        const int row = (i - 1) / 2 * 2, column = (i - 1) % 2;
        lists->addWidget(label, row, column);
        lists->addWidget(boxes[i], row + 1, column);
        lists->setRowStretch(row + 1, 1);
        lists->setColumnStretch(column, 1);
    }
    all->addLayout(lists, 1);
    auto* ok = new QPushButton("OK", &window);
    ok->setObjectName("Command1");
    ok->setDefault(true);
    auto* cancel = new QPushButton("Cancel", &window);
    cancel->setObjectName("Command2");
    cancel->setAutoDefault(false);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    all->addSpacing(6);
    all->addLayout(buttons);
    QObject::connect(ok, &QPushButton::clicked, &window, [&window, &boxes] {
        for (int i = 1; i <= 4; ++i)
            frmDesItems::Box[i] = TextOf(*boxes[i]);
        if (frmDesItems::Command1())
            window.accept();
    });
    QObject::connect(cancel, &QPushButton::clicked, &window, &QDialog::reject);
    window.resize(720, 560);
    boxes[1]->setFocus();
    window.exec();
}
