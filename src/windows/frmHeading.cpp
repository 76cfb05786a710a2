// frmHeading.cpp -- the heading editor: the words on the drawings in three grids, each beside its default text.
#include "grid/gridedit.h"
#include "report/heading.h"
#include "report/headingedit.h"
#include "windows/editorwindow.h"
#include "windows/gridview.h"
#include "windows/showwindows.h"
#include "windows/uitext.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>

namespace
{
struct Shown {
    GridView* view;
    Grid* grid;
};
} // namespace

void ShowHeadingWindow()
{
    frmHeading::Load();
    EditorWindow window("frmHeading");
    const Shown grids[] = {{new GridView("SSLog", frmHeading::SSLog, &window), &frmHeading::SSLog},
                           {new GridView("SSSections", frmHeading::SSSections, &window), &frmHeading::SSSections},
                           {new GridView("SSGraphics", frmHeading::SSGraphics, &window), &frmHeading::SSGraphics}};
    const auto show = [&] {
        window.setWindowTitle(ToUi(frmHeading::Title));
        for (const Shown& shown : grids)
            shown.view->Refresh();
    };
    // The grid that the user is in, or was in before the menu.
    Grid* current = &frmHeading::SSLog;
    QObject::connect(qApp, &QApplication::focusChanged, &window, [&](QWidget*, QWidget* now) {
        for (const Shown& shown : grids)
            if (now && (now == shown.view || shown.view->isAncestorOf(now)))
                current = shown.grid;
    });
    window.before = [&] {
        for (const Shown& shown : grids)
            shown.view->FinishEdit();
    };
    window.refresh = show;

    QMenu* file = window.Part("mnuFile", "&File");
    window.Entry(file, "mnuOpen", "&Open...", QKeySequence::Open, frmHeading::mnuOpen);
    window.Entry(file, "mnuSave", "&Save", QKeySequence::Save, frmHeading::mnuSave);
    window.Entry(file, "mnuSaveAs", "Save &As...", QKeySequence("Ctrl+Shift+S"), frmHeading::mnuSaveAs);
    file->addSeparator();
    window.Entry(file, "mnuExit", "E&xit", QKeySequence("Ctrl+Q"), [&window] { window.close(); });
    // The keys for these are the grids' own.
    QMenu* edit = window.Part("mnuEdit", "&Edit");
    window.Entry(edit, "mnuCut", "Cu&t", {}, [&current] { CutSelected(*current); });
    window.Entry(edit, "mnuCopy", "&Copy", {}, [&current] { CopySelected(*current); });
    window.Entry(edit, "mnuPaste", "&Paste", {}, [&current] { PasteSelected(*current); });

    const auto titled = [&window](const Shown& shown) {
        auto* box = new QVBoxLayout;
        box->setSpacing(5);
        auto* label = new QLabel(ToUi(shown.grid->title), &window);
        QFont bold = label->font();
        bold.setBold(true);
        label->setFont(bold);
        label->setBuddy(shown.view);
        box->addWidget(label);
        box->addWidget(shown.view, 1);
        shown.view->setColumnWidth(0, 165);
        return box;
    };
    auto* legend = new QPushButton("Edit VeskLog &Legend...", &window);
    legend->setObjectName("Command1");
    legend->setAutoDefault(false);
    QObject::connect(legend, &QPushButton::clicked, &window, [] { ShowDescLegendWindow(); });
    auto* left = titled(grids[0]);
    left->addWidget(legend, 0, Qt::AlignLeft);
    auto* right = new QVBoxLayout;
    right->setSpacing(14);
    right->addLayout(titled(grids[1]), 10);
    right->addLayout(titled(grids[2]), 13);
    auto* sides = new QHBoxLayout;
    sides->setSpacing(18);
    sides->addLayout(left, 1);
    sides->addLayout(right, 1);
    window.content->addLayout(sides, 1);
    window.resize(920, 640);
    show();
    grids[0].view->setFocus();
    window.exec();
}
