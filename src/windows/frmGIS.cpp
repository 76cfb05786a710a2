// frmGIS.cpp -- the GIS workbench's window: where its boxes are, the list of boring files, and its buttons.
#include "gis/gistool.h"
#include "report/prompts.h"
#include "windows/showwindows.h"
#include "windows/toolwindow.h"
#include "windows/uitext.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSplitter>

static QPushButton* Button(ToolWindow& window, const char* name, const Text& caption, void (*command)())
{
    auto* button = new QPushButton(ToUi(caption), &window);
    button->setObjectName(name);
    QObject::connect(button, &QPushButton::clicked, &window, [&window, command] { window.Run(command); });
    return button;
}

// The list shows what the record holds; a mark that the user sets or takes goes into the record.
static QListWidget* FileBox(ToolWindow& window, const QString& title)
{
    auto* list = new QListWidget(&window);
    list->setObjectName("File1");
    list->setAccessibleName(title);
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    return list;
}

static void ShowFiles(QListWidget* list, QRadioButton* all)
{
    frmGIS::RefreshFileList();
    const QSignalBlocker quietList(list), quietBox(all);
    QStringList names, shown;
    for (const Text& name : frmGIS::File1.names)
        names << ToUi(name);
    for (int i = 0; i < list->count(); ++i)
        shown << list->item(i)->text();
    if (shown != names) {
        list->clear();
        list->addItems(names);
    }
    for (int i = 0; i < list->count(); ++i)
        list->item(i)->setSelected(frmGIS::File1.selected[size_t(i)]);
    all->setChecked(frmGIS::File1.SelectAll);
}

// The boring files of the project, with what may be done with those that are marked.
static QWidget* Files(ToolWindow& window)
{
    const QString title = ToUi(PromptLabel(190, "Boring Files"));
    auto* whole = new QWidget;
    auto* layout = new QVBoxLayout(whole);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(5);
    auto* list = FileBox(window, title);
    auto* all = new QRadioButton(ToUi(PromptLabel(191, "Select All")), whole);
    all->setObjectName("Option1");
    all->setAutoExclusive(false); // it is let go when the marks change
    auto* label = new QLabel(title, whole);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    label->setBuddy(list);
    QPushButton* view = Button(window, "Command3", PromptLabel(192, "View Data ->"), frmGIS::Command3);
    QPushButton* add = Button(window, "Command1", PromptLabel(193, "Add to GIS"), frmGIS::Command1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(add);
    buttons->addWidget(view);
    layout->addWidget(label);
    layout->addWidget(list, 1);
    layout->addWidget(all);
    layout->addLayout(buttons);
    QObject::connect(list, &QListWidget::itemSelectionChanged, &window, [list, all] {
        for (int i = 0; i < list->count(); ++i)
            if (list->item(i)->isSelected() != frmGIS::File1.selected[size_t(i)])
                frmGIS::SelectFile(i, list->item(i)->isSelected());
        ShowFiles(list, all);
    });
    QObject::connect(all, &QRadioButton::clicked, &window, [list, all] {
        frmGIS::Option1(); // a second click marks them again
        ShowFiles(list, all);
    });
    window.Own(list, [list, all] { ShowFiles(list, all); });
    window.Own(all);
    window.Own(add);
    window.Own(view);
    return whole;
}

static void FillMenus(ToolWindow& window)
{
    QMenu* file = window.Menu("mnuFile");
    QAction* exit = file->actions().last();
    file->insertAction(exit,
                       window.Entry(file, "mnuExportArcView", "Export to A&rcView...", {}, frmGIS::mnuExportArcView));
    file->insertAction(exit, window.Entry(file, "mnuExp2EVS", "Export to &EVS...", {}, frmGIS::mnuExp2EVS));
    file->insertSeparator(exit);
    QMenu* edit = window.Menu("mnuEdit");
    QAction* heading = edit->actions().last();
    for (QAction* column : {window.Entry(edit, "mnuInsertColumn", "Insert C&olumn", {}, frmGIS::mnuInsertColumn),
                            window.Entry(edit, "mnuDeleteColumn", "Delete Colu&mn", {}, frmGIS::mnuDeleteColumn)})
        edit->insertAction(heading, column);
    edit->insertSeparator(heading);
}

void ShowGisWindow()
{
    using namespace frmGIS;
    ToolWindow window(GisForm);
    FillMenus(window);
    QWidget* layers = window.GridBox("SSGISLayers", SSGISLayers);
    auto* update = Button(window, "Command2", PromptLabel(189, "Update Layers"), Command2);
    layers->layout()->addWidget(update);
    window.Own(update);
    QWidget* files = Files(window);
    QWidget* data = window.GridBox("SSBoringData", SSBoringData);
    QWidget* table = window.GridBox("SSGISInfo", SSGISInfo);
    window.Blocking(Split(Qt::Vertical, {Split(Qt::Horizontal, {layers, files, data}, {1, 1, 1}), table}, {1, 1}));
}
