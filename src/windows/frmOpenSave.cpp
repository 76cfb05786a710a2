// frmOpenSave.cpp -- the file chooser's window: it shows the boxes of boring/opensave.h, and says which command each
// button calls.
#include "boring/opensave.h"

#include "boring/projectlist.h"
#include "session/platform.h"
#include "windows/folderlist.h"
#include "windows/showwindows.h"
#include "windows/uitext.h"

#include <QApplication>
#include <QDialog>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <functional>

using frmOpenSave::Dialog;

namespace
{
// Lists in which Enter chooses, and does not go on to the dialog's OK.
template <class List>
class Chooses : public List
{
public:
    using List::List;

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if (OnChoice && (enter || event->key() == Qt::Key_Space) && this->currentIndex().isValid())
            OnChoice(this->currentIndex().row());
        else
            List::keyPressEvent(event);
        if (enter)
            event->accept();
    }

public:
    std::function<void(int)> OnChoice; // of the row from 0, by Enter or the space bar; without it the list's own way
};

class OpenSave : public QDialog
{
public:
    explicit OpenSave(QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QPushButton* Button(const char* name, const QString& caption);
    QLabel* Label(const QString& caption, QWidget* box);
    QWidget* Versions();
    QWidget* Projects();
    void GoTo(const Text& folder);
    void ShowFolder();
    void ShowFiles();
    void ShowProjects();
    void TakeFile(const QListWidgetItem* item);
    void SelectProject(int row);
    void Ok();
    void Cancel();

    QLineEdit* fileText;
    QLabel* pattern;
    QListWidget* file1;
    FolderList* dir1;
    DriveList* drive1;
    QTableWidget* projects = nullptr;
};
} // namespace

QPushButton* OpenSave::Button(const char* name, const QString& caption)
{
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

QLabel* OpenSave::Label(const QString& caption, QWidget* box)
{
    auto* label = new QLabel(caption, this);
    label->setBuddy(box);
    return label;
}

OpenSave::OpenSave(QWidget* parent) : QDialog(parent)
{
    setObjectName("frmOpenSave");
    setWindowTitle(ToUi(Dialog.Title));
    fileText = new QLineEdit(this);
    fileText->setObjectName("fileText");
    fileText->setAccessibleName("File name");
    file1 = new Chooses<QListWidget>(this);
    file1->setObjectName("File1");
    file1->setAccessibleName("Files");
    file1->setUniformItemSizes(true);
    file1->setMinimumWidth(210);
    pattern = Label("", file1);
    pattern->setObjectName("lblPattern");
    dir1 = new FolderList(this);
    drive1 = new DriveList(this);
    auto* command1 = Button("Command1", "OK");
    auto* command2 = Button("Command2", "Cancel");
    auto* command3 = Button("Command3", "&Help");
    command1->setDefault(true);

    auto* left = new QVBoxLayout;
    left->setSpacing(5);
    left->addWidget(Label("File &name:", fileText));
    left->addWidget(fileText);
    left->addSpacing(6);
    left->addWidget(pattern);
    left->addWidget(file1, 1);
    auto* middle = new QVBoxLayout;
    middle->setSpacing(5);
    middle->addWidget(Label("Dri&ves:", drive1));
    middle->addWidget(drive1);
    middle->addSpacing(6);
    middle->addWidget(Label("&Directories:", dir1));
    middle->addWidget(dir1, 1);
    if (Dialog.Version >= 0) {
        middle->addSpacing(6);
        middle->addWidget(Versions());
    }
    auto* right = new QVBoxLayout;
    right->setSpacing(8);
    right->addWidget(command1);
    right->addWidget(command2);
    right->addWidget(command3);
    right->addStretch();
    auto* top = new QHBoxLayout;
    top->setSpacing(16);
    top->addLayout(left, 6);
    top->addLayout(middle, 5);
    top->addLayout(right);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(18, 16, 18, 18);
    all->setSpacing(14);
    all->addLayout(top, 3);
    if (Dialog.Projects)
        all->addWidget(Projects(), 2);
    resize(680, Dialog.Projects ? 580 : 380);
    // By the reading order: name, files, drives, folders, versions, projects; the buttons last.
    setTabOrder(fileText, file1);
    setTabOrder(file1, drive1);
    setTabOrder(drive1, dir1);
    QWidget* last = dir1;
    for (const char* name : {"List1", "SS", "Command4", "Command1", "Command2", "Command3"})
        if (auto* box = findChild<QWidget*>(name)) {
            setTabOrder(last, box);
            last = box;
        }

    drive1->OnFolder = dir1->OnFolder = [this](const Text& folder) { GoTo(folder); };
    connect(fileText, &QLineEdit::textChanged, this, [](const QString& words) { Dialog.fileText = LineFromUi(words); });
    connect(file1, &QListWidget::itemSelectionChanged, this, [this] {
        if (!file1->selectedItems().isEmpty())
            TakeFile(file1->selectedItems().first());
    });
    connect(file1, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) { TakeFile(item); });
    connect(file1, &QListWidget::itemActivated, this, [this](QListWidgetItem* item) {
        TakeFile(item);
        Ok();
    });
    connect(command1, &QPushButton::clicked, this, [this] { Ok(); });
    connect(command2, &QPushButton::clicked, this, [this] { Cancel(); });
    connect(command3, &QPushButton::clicked, this, [] { Platform.ShowHelp(); });
    connect(this, &QDialog::rejected, this, [] { frmOpenSave::Command2(); });
    ShowFolder();
    fileText->setFocus();
}

// The forms of boring files, of which the current one is marked.
QWidget* OpenSave::Versions()
{
    auto* box = new QWidget(this);
    auto* list = new QListWidget(box);
    list->setObjectName("List1");
    list->setAccessibleName("Version of VeskLog");
    list->addItems({"Version 3.0", "Version 4.0/4.0P", "Version 4.6/5.0"});
    list->setCurrentRow(Dialog.Version);
    list->setFixedHeight(3 * list->sizeHintForRow(0) + 2 * list->frameWidth() + 2);
    auto* layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(5);
    layout->addWidget(Label("&Click to select version of VeskLog:", list));
    layout->addWidget(list);
    connect(list, &QListWidget::currentRowChanged, this, [this](int row) {
        frmOpenSave::ChangeVersion(row);
        ShowFiles();
    });
    return box;
}

// A project is chosen by a click, or by Enter or the space bar; going through the list by the arrows chooses none.
QWidget* OpenSave::Projects()
{
    auto* box = new QWidget(this);
    auto* table = new Chooses<QTableWidget>(0, 2, box);
    table->OnChoice = [this](int row) { SelectProject(row + 1); };
    projects = table;
    projects->setObjectName("SS");
    projects->setAccessibleName("Projects");
    projects->setHorizontalHeaderLabels({ToUi(frmOpenSave::SS.headings[1]), ToUi(frmOpenSave::SS.headings[2])});
    projects->setSelectionBehavior(QAbstractItemView::SelectRows);
    projects->setSelectionMode(QAbstractItemView::SingleSelection);
    projects->setEditTriggers(QAbstractItemView::NoEditTriggers);
    projects->setAlternatingRowColors(true);
    projects->setTabKeyNavigation(false);
    projects->setWordWrap(false);
    projects->verticalHeader()->hide();
    projects->verticalHeader()->setDefaultSectionSize(projects->fontMetrics().height() + 7);
    projects->horizontalHeader()->setStretchLastSection(true);
    projects->horizontalHeader()->setHighlightSections(false);
    projects->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    projects->setColumnWidth(0, 190);
    auto* command4 = Button("Command4", "&Edit Project List");
    auto* head = new QHBoxLayout;
    head->addWidget(Label("&Projects:", projects));
    head->addStretch();
    head->addWidget(command4);
    auto* layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    layout->addLayout(head);
    layout->addWidget(projects, 1);
    ShowProjects();
    connect(projects, &QTableWidget::cellClicked, this, [this](int row, int) { SelectProject(row + 1); });
    connect(command4, &QPushButton::clicked, this, [this] {
        frmOpenSave::Command4();
        ShowProjects();
    });
    return box;
}

void OpenSave::GoTo(const Text& folder)
{
    frmOpenSave::ChangeFolder(folder);
    ShowFolder();
}

void OpenSave::ShowFolder()
{
    dir1->Show(Dialog.Dir1);
    drive1->Show(Dialog.Dir1);
    ShowFiles();
}

void OpenSave::ShowFiles()
{
    pattern->setText("&Files (" + ToUi(Dialog.Pattern) + "):");
    file1->clear();
    for (const Text& name : Dialog.File1)
        file1->addItem(ToUi(name));
}

void OpenSave::ShowProjects()
{
    projects->setRowCount(frmOpenSave::SS.DataRowCount());
    for (int row = 1; row <= projects->rowCount(); ++row)
        for (int column = 1; column <= 2; ++column)
            projects->setItem(row - 1, column - 1, new QTableWidgetItem(ToUi(frmOpenSave::SS.Cell(row, column))));
}

void OpenSave::TakeFile(const QListWidgetItem* item)
{
    fileText->setText(item->text());
}

void OpenSave::SelectProject(int row)
{
    frmOpenSave::SelectProject(row);
    ShowFolder();
}

void OpenSave::Ok()
{
    frmOpenSave::Command1();
    accept();
}

void OpenSave::Cancel()
{
    reject();
}

void OpenSave::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F1)
        Platform.ShowHelp();
    else
        QDialog::keyPressEvent(event);
}

void ShowOpenSave()
{
    frmOpenSave::Load();
    OpenSave dialog(QApplication::activeWindow());
    dialog.exec();
}
