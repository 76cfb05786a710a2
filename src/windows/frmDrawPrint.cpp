// frmDrawPrint.cpp -- the batch dialog: it shows the boxes of run/batchrun.h, and says which command each button calls.
#include "run/batchrun.h"
#include "session/platform.h"
#include "windows/folderlist.h"
#include "windows/showwindows.h"
#include "windows/uitext.h"

#include <QApplication>
#include <QDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <functional>

using frmDrawPrint::Dialog;

namespace
{
class DrawPrint : public QDialog
{
public:
    explicit DrawPrint(QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    template <class Button>
    Button* Add(const char* name, const QString& caption);
    void Folders();
    void Files();
    void TakeSelection();
    void GoTo(const Text& folder);
    void Ok();
    void Cancel();

    DriveList* drive1;
    FolderList* dir1;
    QListWidget* file1;
    QLabel* label1;
    QRadioButton* option1;
    bool filling = false; // the boxes are being shown, not changed by the user
};

template <class Button>
Button* DrawPrint::Add(const char* name, const QString& caption)
{
    auto* button = new Button(caption, this);
    button->setObjectName(name);
    return button;
}

DrawPrint::DrawPrint(QWidget* parent) : QDialog(parent)
{
    setObjectName("frmDrawPrint");
    setWindowTitle(ToUi(Dialog.Title));

    drive1 = new DriveList(this);
    dir1 = new FolderList(this);
    file1 = new QListWidget(this);
    file1->setObjectName("File1");
    file1->setMinimumWidth(210);
    file1->setSelectionMode(QAbstractItemView::ExtendedSelection);
    file1->setUniformItemSizes(true);
    label1 = new QLabel(ToUi(Dialog.Label), this);
    label1->setObjectName("Label1");
    label1->setBuddy(file1);
    auto* drives = new QLabel("Drives:", this);
    drives->setBuddy(drive1);
    auto* directories = new QLabel("Directories:", this);
    directories->setBuddy(dir1);
    option1 = Add<QRadioButton>("Option1", "Select All");
    option1->setAutoExclusive(false);

    auto* command1 = Add<QPushButton>("Command1", "OK");
    auto* command2 = Add<QPushButton>("Command2", "Cancel");
    auto* command3 = Add<QPushButton>("Command3", "Help");
    auto* command4 = Add<QPushButton>("Command4", "Graphics Setup");
    command1->setDefault(true);
    for (QPushButton* button : {command2, command3, command4})
        button->setAutoDefault(false);

    auto* frame2 = Add<QGroupBox>("Frame2", "Report Choice");
    auto* optionBor = Add<QRadioButton>("OptionBor", "Boring Diagram");
    auto* optionIntro = Add<QRadioButton>("OptionIntro", "Intro Page, Type 1");
    auto* optionIntro2 = Add<QRadioButton>("OptionIntro2", "Intro Page, Type 2");
    auto* choices = new QVBoxLayout(frame2);
    for (QRadioButton* option : {optionBor, optionIntro, optionIntro2})
        choices->addWidget(option);
    auto* frame3 = Add<QGroupBox>("Frame3", "Pages to Print");
    auto* optionAll = Add<QRadioButton>("OptionAll", "All Pages");
    auto* optionPage = Add<QRadioButton>("OptionPage", "Page #");
    auto* text1 = new QLineEdit(ToUi(Dialog.Text1), this);
    text1->setObjectName("Text1");
    text1->setAccessibleName("Page number");
    text1->setMaximumWidth(70);
    auto* pages = new QGridLayout(frame3);
    pages->addWidget(optionAll, 0, 0, 1, 2);
    pages->addWidget(optionPage, 1, 0);
    pages->addWidget(text1, 1, 1);
    pages->setColumnStretch(2, 1);
    pages->setRowStretch(2, 1);
    frame2->setVisible(Dialog.ReportChoice);
    frame3->setVisible(Dialog.ReportChoice);
    (Dialog.ReportOption == 1 ? optionIntro : Dialog.ReportOption == 2 ? optionIntro2 : optionBor)->setChecked(true);
    (Dialog.AllPages ? optionAll : optionPage)->setChecked(true);

    auto* left = new QVBoxLayout;
    left->setSpacing(5);
    left->addWidget(drives);
    left->addWidget(drive1);
    left->addSpacing(6);
    left->addWidget(directories);
    left->addWidget(dir1, 1);
    auto* middle = new QVBoxLayout;
    middle->setSpacing(5);
    middle->addWidget(label1);
    middle->addWidget(file1, 1);
    middle->addWidget(option1);
    auto* right = new QVBoxLayout;
    right->addWidget(command1);
    right->addWidget(command2);
    right->addWidget(command3);
    right->addSpacing(12);
    right->addWidget(command4);
    right->addStretch();
    auto* top = new QHBoxLayout;
    top->setSpacing(16);
    top->addLayout(left, 5);
    top->addLayout(middle, 6);
    top->addLayout(right);
    auto* frames = new QHBoxLayout;
    frames->setSpacing(16);
    frames->addWidget(frame2, 1);
    frames->addWidget(frame3, 1);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(18, 16, 18, 18);
    all->setSpacing(14);
    all->addLayout(top, 1);
    all->addLayout(frames);
    resize(640, Dialog.ReportChoice ? 500 : 360);

    drive1->OnFolder = dir1->OnFolder = [this](const Text& folder) { GoTo(folder); };
    connect(file1, &QListWidget::itemSelectionChanged, this, [this] { TakeSelection(); });
    connect(file1, &QListWidget::itemDoubleClicked, this, [this] { Ok(); });
    connect(option1, &QRadioButton::clicked, this, [this] {
        frmDrawPrint::Option1();
        Files();
    });
    connect(command1, &QPushButton::clicked, this, [this] { Ok(); });
    connect(command2, &QPushButton::clicked, this, [this] { Cancel(); });
    connect(command3, &QPushButton::clicked, this, [] {
        if (!dialogBusy)
            Platform.ShowHelp();
    });
    connect(command4, &QPushButton::clicked, this, [] {
        if (!dialogBusy)
            Platform.ShowGraphicsSetup();
    });
    connect(optionBor, &QRadioButton::toggled, this,
            [](bool on) { Dialog.ReportOption = on ? 0 : Dialog.ReportOption; });
    connect(optionIntro, &QRadioButton::toggled, this,
            [](bool on) { Dialog.ReportOption = on ? 1 : Dialog.ReportOption; });
    connect(optionIntro2, &QRadioButton::toggled, this,
            [](bool on) { Dialog.ReportOption = on ? 2 : Dialog.ReportOption; });
    connect(optionAll, &QRadioButton::toggled, this, [](bool on) { Dialog.AllPages = on; });
    connect(text1, &QLineEdit::textEdited, this, [optionPage](const QString& words) {
        Dialog.Text1 = LineFromUi(words);
        optionPage->setChecked(true);
    });
    Folders();
    Files();
    file1->setFocus();
}

void DrawPrint::Folders()
{
    dir1->Show(Dialog.Dir1);
    drive1->Show(Dialog.Dir1);
}

void DrawPrint::Files()
{
    filling = true;
    file1->clear();
    for (int i = 1; i <= Dialog.FileCount; ++i) {
        auto* item = new QListWidgetItem(ToUi(Dialog.File1[i]), file1);
        item->setSelected(Dialog.Selected[i]);
    }
    if (file1->count() > 0 && !file1->currentItem())
        file1->setCurrentRow(0, QItemSelectionModel::NoUpdate);
    option1->setChecked(Dialog.SelectAll);
    filling = false;
}

void DrawPrint::TakeSelection()
{
    if (filling)
        return;
    for (int i = 1; i <= Dialog.FileCount; ++i)
        Dialog.Selected[i] = file1->item(i - 1)->isSelected();
}

void DrawPrint::GoTo(const Text& folder)
{
    if (filling || dialogBusy)
        return;
    frmDrawPrint::ChangeFolder(folder);
    Folders();
    Files();
}

// The job runs inside; the dialog is gone from the screen as soon as the choice is made.
void DrawPrint::Ok()
{
    if (frmDrawPrint::Command1())
        accept();
}

void DrawPrint::Cancel()
{
    if (frmDrawPrint::Command2())
        reject();
}

void DrawPrint::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        stopRequested = -1;
        Cancel();
        return;
    }
    if (event->key() == Qt::Key_F1) {
        if (!dialogBusy)
            Platform.ShowHelp();
        return;
    }
    QDialog::keyPressEvent(event);
}

void DrawPrint::closeEvent(QCloseEvent* event)
{
    event->ignore();
    Cancel();
}
} // namespace

static QPointer<DrawPrint> open;

void ShowDrawPrintDialog()
{
    DrawPrintLoad();
    DrawPrint dialog(QApplication::activeWindow());
    open = &dialog;
    // The choice is made: the dialog goes before the windows of its job come, while OK is still at work.
    frmDrawPrint::CloseWindow = [] {
        if (open)
            open->hide();
    };
    dialog.exec();
    frmDrawPrint::CloseWindow = nullptr;
}
