// frmProjEdit.cpp -- the project list's editor: its grid, and its two buttons.
#include "boring/projectlist.h"
#include "grid/gridedit.h"
#include "windows/gridview.h"
#include "windows/showwindows.h"
#include "windows/uitext.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

void ShowProjEdit()
{
    frmProjEdit::Load();
    QDialog dialog(QApplication::activeWindow());
    dialog.setObjectName("frmProjEdit");
    dialog.setWindowTitle("Edit Project List");
    auto* grid = new GridView("SS", frmProjEdit::SS, &dialog);
    grid->setColumnWidth(0, 170);
    grid->setColumnWidth(1, 300);
    grid->setColumnWidth(2, 140);
    auto* caption = new QLabel("&Projects:", &dialog);
    caption->setBuddy(grid);
    auto* command1 = new QPushButton("OK", &dialog);
    command1->setObjectName("Command1");
    command1->setDefault(true);
    auto* command2 = new QPushButton("Cancel", &dialog);
    command2->setObjectName("Command2");
    command2->setAutoDefault(false);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(command1);
    buttons->addWidget(command2);
    auto* all = new QVBoxLayout(&dialog);
    all->setContentsMargins(18, 16, 18, 16);
    all->setSpacing(6);
    all->addWidget(caption);
    all->addWidget(grid, 1);
    all->addSpacing(8);
    all->addLayout(buttons);
    dialog.resize(830, 440);
    QObject::connect(command1, &QPushButton::clicked, &dialog, [&dialog, grid] {
        grid->FinishEdit();
        if (frmProjEdit::Command1())
            dialog.accept();
    });
    QObject::connect(command2, &QPushButton::clicked, &dialog, &QDialog::reject);
    grid->setFocus();
    dialog.exec();
}
