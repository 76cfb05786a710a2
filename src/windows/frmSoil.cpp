// frmSoil.cpp -- the soil tool's window: where its boxes are, and the two buttons below the notes.
#include "report/prompts.h"
#include "sections/soiltool.h"
#include "windows/showwindows.h"
#include "windows/toolwindow.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSplitter>
#include <QToolButton>

// How much text a line of the notes takes.
static void AddButtons(ToolWindow& window, QWidget* notes)
{
    auto* buttons = new QHBoxLayout;
    buttons->setContentsMargins(0, 0, 0, 0);
    buttons->addWidget(new QLabel("Text on a line:", notes));
    const auto add = [&](const char* name, const char* caption, const char* told, void (*command)()) {
        auto* button = new QToolButton(notes);
        button->setObjectName(name);
        button->setText(caption);
        button->setAccessibleName(told);
        button->setFocusPolicy(Qt::StrongFocus);
        QObject::connect(button, &QToolButton::clicked, &window, [&window, command] { window.Run(command); });
        buttons->addWidget(button);
        window.Own(button);
    };
    add("cmdAdj5", "\u25C2 less", "Notes: less text on a line", frmSoil::cmdAdj5);
    add("cmdAdj6", "more \u25B8", "Notes: more text on a line", frmSoil::cmdAdj6);
    buttons->addStretch();
    static_cast<QVBoxLayout*>(notes->layout())->addLayout(buttons);
}

void ShowSoilWindow()
{
    using namespace frmSoil;
    ToolWindow window(SoilForm);
    QWidget* report = window.GridBox("SS1", SS1);
    QWidget* notes = window.MemoBox("MemoSoil", PromptLabel(213, "Notes"), MemoSoil);
    AddButtons(window, notes);
    window.Blocking(Split(Qt::Vertical, {report, notes}, {6, 5}));
}
