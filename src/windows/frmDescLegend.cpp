// frmDescLegend.cpp -- the four legends of the log: their titles, rows, and which are in use.
#include "report/headingedit.h"
#include "windows/showwindows.h"
#include "windows/typedtext.h"
#include "windows/uitext.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <functional>
#include <vector>

namespace
{
class DescLegendWindow : public QDialog
{
public:
    DescLegendWindow();

private:
    QLineEdit* Box(QGroupBox* group, const QString& name, const QString& accessible, Text& text);
    void Row(QGroupBox* group, const QString& name, const char* caption, Text& text);
    QGroupBox* Group(int legend);

    std::vector<std::function<void()>> takers; // one for each box: what the user left in it
};
} // namespace

static const char* const legendNames[] = {"Sample Box Legend", "Water Level Legend", "Text Legend 1", "Text Legend 2"};

QLineEdit* DescLegendWindow::Box(QGroupBox* group, const QString& name, const QString& accessible, Text& text)
{
    auto* box = new QLineEdit(ToUi(text), group);
    box->setObjectName(name);
    box->setAccessibleName(accessible);
    CleanAsTyped(box);
    takers.push_back([box, &text] { text = LineFromUi(box->text()); });
    return box;
}

// A box of the group with its caption, below what is there.
void DescLegendWindow::Row(QGroupBox* group, const QString& name, const char* caption, Text& text)
{
    auto* rows = static_cast<QGridLayout*>(group->layout());
    QLineEdit* box = Box(group, name, group->title() + ", " + caption, text);
    auto* label = new QLabel(QString(caption) + ":", group);
    label->setBuddy(box);
    const int row = rows->rowCount();
    rows->addWidget(label, row, 0);
    rows->addWidget(box, row, 1);
}

QGroupBox* DescLegendWindow::Group(int legend)
{
    frmDescLegend::Record& dialog = frmDescLegend::Dialog;
    auto* group = new QGroupBox(legendNames[legend - 1], this);
    auto* rows = new QGridLayout(group);
    rows->setContentsMargins(14, 12, 14, 12);
    rows->setColumnStretch(1, 1);
    Row(group, QString("txtTitle%1").arg(legend), "Title", dialog.Title[legend]);
    for (int i = 1; i <= 4 && legend == 1; ++i) {
        const QString caption = QString("Box %1").arg(i);
        Row(group, QString("txtBox%1").arg(i), caption.toLatin1(), dialog.BoxText[i]);
        QLineEdit* fill =
            Box(group, QString("txtFill%1").arg(i), group->title() + ", fill number of " + caption, dialog.BoxFill[i]);
        fill->setMaximumWidth(64);
        auto* label = new QLabel("Fill:", group);
        label->setBuddy(fill);
        rows->addWidget(label, rows->rowCount() - 1, 2);
        rows->addWidget(fill, rows->rowCount() - 1, 3);
    }
    if (legend == 2) {
        Row(group, "txtFilledTriangle", "Filled Triangle", dialog.FilledTriangle);
        Row(group, "txtDiamond", "Diamond", dialog.Diamond);
        Row(group, "txtOpenTriangle", "Open Triangle", dialog.OpenTriangle);
    }
    for (int i = 1; i <= 4 && legend >= 3; ++i)
        Row(group, QString("txtLegend%1Line%2").arg(legend - 2).arg(i), QString("Line %1").arg(i).toLatin1(),
            dialog.Line[legend - 2][i]);
    auto* use = new QCheckBox(QString("Use ") + legendNames[legend - 1], group);
    use->setObjectName(QString("Check%1").arg(legend));
    use->setChecked(dialog.Use[legend]);
    takers.push_back([use, legend] { frmDescLegend::Dialog.Use[legend] = use->isChecked(); });
    const int row = rows->rowCount();
    rows->setRowStretch(row, 1);
    rows->addWidget(use, row + 1, 0, 1, 4);
    return group;
}

DescLegendWindow::DescLegendWindow() : QDialog(QApplication::activeWindow())
{
    setObjectName("frmDescLegend");
    setWindowTitle("VeskLog Legend");
    auto* groups = new QGridLayout;
    groups->setSpacing(14);
    for (int legend = 1; legend <= 4; ++legend)
        groups->addWidget(Group(legend), (legend - 1) / 2, (legend - 1) % 2);
    auto* ok = new QPushButton("OK", this);
    ok->setObjectName("Command1");
    ok->setDefault(true);
    auto* cancel = new QPushButton("Cancel", this);
    cancel->setObjectName("Command2");
    cancel->setAutoDefault(false);
    connect(ok, &QPushButton::clicked, this, [this] {
        for (const std::function<void()>& take : takers)
            take();
        if (frmDescLegend::Command1())
            accept();
    });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(new QLabel("The log has room for up to 2 legends.", this));
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(18, 16, 18, 16);
    all->setSpacing(14);
    all->addLayout(groups, 1);
    all->addLayout(buttons);
    resize(780, sizeHint().height());
}

void ShowDescLegendWindow()
{
    frmDescLegend::Load();
    DescLegendWindow().exec();
}
