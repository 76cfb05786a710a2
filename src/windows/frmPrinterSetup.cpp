// frmPrinterSetup.cpp -- the set-up window, "Graphics/System Setup": it shows the boxes of report/fontprofile.h, and
// says which command each button and entry calls.
#include "grid/gridedit.h"
#include "report/fontprofile.h"
#include "session/files.h"
#include "session/machine.h"
#include "session/platform.h"
#include "windows/gridview.h"
#include "windows/showwindows.h"
#include "windows/uitext.h"

#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QStorageInfo>
#include <QVBoxLayout>
#include <algorithm>

using frmPrinterSetup::Dialog;

namespace
{
class PrinterSetup : public QDialog
{
public:
    explicit PrinterSetup(QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QPushButton* Button(const char* name, const char* caption, void (PrinterSetup::*clicked)());
    QLineEdit* Line(const char* name, const char* meaning);
    QWidget* FontBox();
    QWidget* FilesBox();
    QWidget* CopyBox();
    void Show();
    void Ok();
    void PrinterSetUp();
    void ChooseFont();
    void Copy();
    void Browse();
    void Run(void (*command)());

    QLineEdit *font, *adjust, *margin, *copyTo;
    GridView* files;
};
} // namespace

QPushButton* PrinterSetup::Button(const char* name, const char* caption, void (PrinterSetup::*clicked)())
{
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, clicked);
    return button;
}

QLineEdit* PrinterSetup::Line(const char* name, const char* meaning)
{
    auto* line = new QLineEdit(this);
    line->setObjectName(name);
    line->setAccessibleName(meaning);
    return line;
}

PrinterSetup::PrinterSetup(QWidget* parent) : QDialog(parent)
{
    setObjectName("frmPrinterSetup");
    setWindowTitle("Graphics/System Setup");
    auto* bar = new QMenuBar(this);
    QMenu* profile = bar->addMenu("&File");
    profile->menuAction()->setObjectName("mnuFile");
    const auto entry = [&](const char* name, const char* caption, QKeySequence keys, void (*command)()) {
        QAction* action = profile->addAction(caption);
        action->setObjectName(name);
        action->setShortcut(keys);
        connect(action, &QAction::triggered, this, [this, command] { Run(command); });
    };
    entry("mnuOpen", "&Open Profile...", QKeySequence::Open, frmPrinterSetup::mnuOpen);
    entry("mnuSave", "&Save Profile...", QKeySequence::Save, frmPrinterSetup::mnuSave);

    auto* command1 = Button("Command1", "OK", &PrinterSetup::Ok);
    command1->setDefault(true);
    auto* command2 = Button("Command2", "Cancel", &PrinterSetup::reject);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(command1);
    buttons->addWidget(command2);
    auto* all = new QVBoxLayout(this);
    all->setMenuBar(bar);
    all->setContentsMargins(18, 14, 18, 16);
    all->setSpacing(12);
    all->addWidget(FontBox());
    all->addWidget(FilesBox());
    all->addWidget(CopyBox());
    all->addStretch();
    all->addLayout(buttons);
    QWidget* last = font;
    for (const char* name : {"Command4", "Text2", "Text3", "Command3", "SSMainFilePath", "Text4", "cmdBrowse",
                             "Command5", "Command1", "Command2"}) {
        auto* box = findChild<QWidget*>(name);
        setTabOrder(last, box);
        last = box;
    }
    resize(620, sizeHint().height());
    Show();
    font->setFocus();
}

QWidget* PrinterSetup::FontBox()
{
    auto* box = new QGroupBox("Font and Printer", this);
    font = Line("Text1", "Font");
    connect(font, &QLineEdit::textEdited, this, [](const QString& words) { Dialog.fontText = LineFromUi(words); });
    adjust = Line("Text2", "Text adjustments");
    adjust->setReadOnly(true); // they are set by the buttons beside the text boxes, and by profiles
    const QString meaning = "Description, well notes, remarks, general notes and soil notes box,\n"
                            "in steps of the buttons beside them";
    adjust->setToolTip(meaning);
    adjust->setAccessibleDescription(meaning);
    margin = Line("Text3", "Margin offsets in inches, x and y");
    connect(margin, &QLineEdit::textEdited, this, [](const QString& words) { Dialog.marginText = LineFromUi(words); });
    auto* fontRow = new QHBoxLayout;
    fontRow->setSpacing(8);
    fontRow->addWidget(font, 1);
    fontRow->addWidget(Button("Command4", "&Choose Font", &PrinterSetup::ChooseFont));
    auto* marginRow = new QHBoxLayout;
    marginRow->setSpacing(8);
    marginRow->addWidget(margin, 1);
    marginRow->addWidget(Button("Command3", "&Printer Set-Up", &PrinterSetup::PrinterSetUp));
    // The two buttons one below the other, equally wide.
    auto* choose = findChild<QPushButton*>("Command4");
    auto* printer = findChild<QPushButton*>("Command3");
    const int wide = std::max(choose->sizeHint().width(), printer->sizeHint().width()) + 12;
    choose->setMinimumWidth(wide);
    printer->setMinimumWidth(wide);
    auto* form = new QFormLayout(box);
    form->setHorizontalSpacing(16);
    form->setVerticalSpacing(9);
    form->setContentsMargins(14, 10, 14, 12);
    const auto row = [&](const char* caption, QWidget* buddy, auto* field) {
        auto* label = new QLabel(caption, box);
        label->setBuddy(buddy);
        form->addRow(label, field);
    };
    row("Fo&nt:", font, fontRow);
    row("Text &adjustments:", adjust, adjust);
    row("&Margin offsets (x,y):", margin, marginRow);
    return box;
}

QWidget* PrinterSetup::FilesBox()
{
    auto* box = new QGroupBox("System Files", this);
    files = new GridView("SSMainFilePath", frmPrinterSetup::SSMainFilePath, box);
    files->verticalHeader()->setHighlightSections(false);
    files->setFixedHeight(7 * files->verticalHeader()->defaultSectionSize() + 2 * files->frameWidth());
    auto* layout = new QVBoxLayout(box);
    layout->setContentsMargins(14, 10, 14, 12);
    layout->addWidget(files);
    return box;
}

// Where there are no drives with letters, the first medium that can be taken out, or a folder that the user names.
static void FindDestination()
{
    if (Machine::HasDriveLetters() || CopyDestination != "a:\\")
        return;
    CopyDestination.clear();
    for (const QStorageInfo& drive : QStorageInfo::mountedVolumes())
        if (drive.isReady() && !drive.isReadOnly() &&
            (drive.rootPath().startsWith("/media/") || drive.rootPath().startsWith("/run/media/"))) {
            CopyDestination = FromUi(drive.rootPath());
            return;
        }
}

QWidget* PrinterSetup::CopyBox()
{
    auto* box = new QWidget(this);
    copyTo = Line("Text4", "Copy to");
    copyTo->setPlaceholderText("Drive or folder");
    copyTo->setText(ToUi(CopyDestination));
    connect(copyTo, &QLineEdit::textChanged, this, [](const QString& words) { CopyDestination = LineFromUi(words); });
    auto* caption = new QLabel("Copy &to:", box);
    caption->setBuddy(copyTo);
    auto* browse = Button("cmdBrowse", "&Browse...", &PrinterSetup::Browse);
    auto* layout = new QHBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(caption);
    layout->addWidget(copyTo, 1);
    layout->addWidget(browse);
    layout->addWidget(Button("Command5", "Copy &System Files to Diskette", &PrinterSetup::Copy));
    return box;
}

void PrinterSetup::Show()
{
    font->setText(ToUi(Dialog.fontText));
    adjust->setText(ToUi(Dialog.adjustText));
    margin->setText(ToUi(Dialog.marginText));
}

// However a command ends, what it has done is shown.
void PrinterSetup::Run(void (*command)())
{
    struct Afterwards {
        PrinterSetup& window;
        ~Afterwards()
        {
            window.Show();
        }
    } afterwards{*this};
    command();
}

void PrinterSetup::Ok()
{
    files->FinishEdit();
    frmPrinterSetup::Command1();
    accept();
}

void PrinterSetup::PrinterSetUp()
{
    frmPrinterSetup::Command3();
}

void PrinterSetup::ChooseFont()
{
    Run(frmPrinterSetup::Command4);
}

void PrinterSetup::Copy()
{
    if (CopyDestination.empty())
        Browse();
    if (!CopyDestination.empty())
        frmPrinterSetup::Command5();
}

void PrinterSetup::Browse()
{
    const QString folder = QFileDialog::getExistingDirectory(this, "Copy System Files to", copyTo->text());
    if (!folder.isEmpty())
        copyTo->setText(folder);
}

void PrinterSetup::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F1)
        Platform.ShowHelp();
    else
        QDialog::keyPressEvent(event);
}

void ShowGraphicsSetup()
{
    frmPrinterSetup::Load();
    FindDestination();
    PrinterSetup(QApplication::activeWindow()).exec();
}
