// frmLogo.cpp -- the logo window: it shows the boxes of report/logo.h.
#include "report/logo.h"

#include "windows/showwindows.h"
#include "windows/typedtext.h"
#include "windows/uitext.h"

#include <QApplication>
#include <QDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

using frmLogo::Dialog;

// The boxes back into the record.
static void TakeBoxes(const QDialog& window)
{
    Dialog.Text1 = TextOf(*window.findChild<QPlainTextEdit*>("Text1"));
    Dialog.graphic = window.findChild<QRadioButton*>("Option1")->isChecked();
    Dialog.fileText = LineFromUi(window.findChild<QLineEdit*>("Text2")->text());
    Dialog.resolutionText = LineFromUi(window.findChild<QLineEdit*>("Text3")->text());
}

void ShowLogoWindow()
{
    frmLogo::Load();
    QDialog window(QApplication::activeWindow());
    window.setObjectName("frmLogo");
    window.setWindowTitle("Logo");
    auto* text = new TypedTextEdit(ToUi(Dialog.Text1).remove('\r'), &window);
    text->setObjectName("Text1");
    text->setAccessibleName("Logo text, three lines");
    text->setTabChangesFocus(true);
    text->setLineWrapMode(QPlainTextEdit::NoWrap);
    text->setFixedHeight(4 * text->fontMetrics().lineSpacing() + 2 * text->frameWidth() + 10);
    const auto line = [&window](const char* name, const char* meaning, const Text& words) {
        auto* box = new QLineEdit(ToUi(words), &window);
        box->setObjectName(name);
        box->setAccessibleName(meaning);
        return box;
    };
    auto* file = line("Text2", "Logo file", Dialog.fileText);
    auto* resolution = line("Text3", "Resolution", Dialog.resolutionText);
    resolution->setMaximumWidth(90);
    const auto option = [&window](const char* name, const char* caption, bool on) {
        auto* button = new QRadioButton(caption, &window);
        button->setObjectName(name);
        button->setChecked(on);
        return button;
    };
    auto* option1 = option("Option1", "Use &Graphic Logo", Dialog.graphic);
    auto* option2 = option("Option2", "Use T&ext Logo", !Dialog.graphic);
    auto* command1 = new QPushButton("OK", &window);
    command1->setObjectName("Command1");
    command1->setDefault(true);
    auto* command2 = new QPushButton("Cancel", &window);
    command2->setObjectName("Command2");
    command2->setAutoDefault(false);

    auto* kinds = new QHBoxLayout;
    kinds->addWidget(option1);
    kinds->addSpacing(12);
    kinds->addWidget(option2);
    kinds->addStretch();
    auto* form = new QFormLayout;
    form->setHorizontalSpacing(16);
    form->setVerticalSpacing(10);
    form->addRow("Logo &text:", text);
    form->addRow("", kinds);
    form->addRow("Logo &file:", file);
    form->addRow("&Resolution:", resolution);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(command1);
    buttons->addWidget(command2);
    auto* all = new QVBoxLayout(&window);
    all->setContentsMargins(20, 18, 20, 16);
    all->setSpacing(14);
    all->addLayout(form);
    all->addStretch();
    all->addLayout(buttons);
    window.resize(460, window.sizeHint().height());
    QObject::connect(command1, &QPushButton::clicked, &window, [&window] {
        TakeBoxes(window);
        frmLogo::Command1();
        window.accept();
    });
    QObject::connect(command2, &QPushButton::clicked, &window, &QDialog::reject);
    window.exec();
}
