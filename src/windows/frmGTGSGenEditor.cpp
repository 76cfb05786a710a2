// frmGTGSGenEditor.cpp -- the editor of the general GTGS conversion: template and folder, how headers.txt is cut, the
// name of the new boring, and two grids.
#include "convert/gtgsgeneditor.h"
#include "tools/nextfile.h"
#include "windows/editorwindow.h"
#include "windows/gridview.h"
#include "windows/showwindows.h"
#include "windows/uitext.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>

using frmGTGSGenEditor::Dialog;

namespace
{
// The boxes of the window, each beside the record that it shows.
class Boxes
{
public:
    explicit Boxes(EditorWindow& window);
    void Show();
    void Take();
    GridView* grid1;
    GridView* grid2;
    QLineEdit* text1;

private:
    QLineEdit* Line(const char* name, const char* accessible);
    QRadioButton* Option(QButtonGroup* group, const char* name, const char* caption);
    QGroupBox* FieldBox();
    QGroupBox* NameBox();
    void EnableBoxes();

    EditorWindow& window;
    QLineEdit *text2, *text3, *text4;
    QRadioButton *option1, *option2, *option3, *option4;
    QComboBox* combo1;
};
} // namespace

QLineEdit* Boxes::Line(const char* name, const char* accessible)
{
    auto* line = new QLineEdit(&window);
    line->setObjectName(name);
    line->setAccessibleName(accessible);
    return line;
}

QRadioButton* Boxes::Option(QButtonGroup* group, const char* name, const char* caption)
{
    auto* button = new QRadioButton(caption, &window);
    button->setObjectName(name);
    group->addButton(button);
    QObject::connect(button, &QRadioButton::toggled, &window, [this] { EnableBoxes(); });
    return button;
}

// How headers.txt is cut into fields.
QGroupBox* Boxes::FieldBox()
{
    auto* box = new QGroupBox("HEADERS.TXT", &window);
    auto* group = new QButtonGroup(box);
    option1 = Option(group, "Option1", "&Character Separator");
    combo1 = new QComboBox(box);
    combo1->setObjectName("Combo1");
    combo1->setAccessibleName("Separator");
    combo1->addItems({"Comma", "Space", "Tab"});
    option2 = Option(group, "Option2", "Fi&xed Length Fields");
    text3 = Line("Text3", "Field Length in Characters");
    text3->setMaximumWidth(70);
    auto* label = new QLabel("Field &Length in Characters", box);
    label->setBuddy(text3);
    auto* grid = new QGridLayout(box);
    grid->addWidget(option1, 0, 0);
    grid->addWidget(combo1, 0, 1);
    grid->addWidget(option2, 1, 0);
    grid->addWidget(label, 2, 0, Qt::AlignRight);
    grid->addWidget(text3, 2, 1);
    return box;
}

QGroupBox* Boxes::NameBox()
{
    auto* box = new QGroupBox("New Boring File", &window);
    auto* group = new QButtonGroup(box);
    option3 = Option(group, "Option3", "&Boring Name + \".BOR\"");
    option4 = Option(group, "Option4", "&Enter Below");
    text4 = Line("Text4", "New Boring File");
    auto* column = new QVBoxLayout(box);
    column->addWidget(option3);
    column->addWidget(option4);
    column->addWidget(text4);
    return box;
}

Boxes::Boxes(EditorWindow& shown) : window(shown)
{
    text1 = Line("Text1", "Borehole File to be used as a template");
    text2 = Line("Text2", "Path to Headers/Desc/Lith/Well .TXT Files");
    const auto labelled = [this](const char* words, QLineEdit* line) {
        auto* label = new QLabel(words, &window);
        label->setBuddy(line);
        window.content->addWidget(label);
        window.content->addWidget(line);
    };
    labelled("Borehole File to be used as a &template", text1);
    labelled("&Path to Headers/Desc/Lith/Well .TXT Files (default is current project folder)", text2);
    auto* choices = new QHBoxLayout;
    choices->setSpacing(14);
    choices->addWidget(FieldBox(), 1);
    choices->addWidget(NameBox(), 1);
    window.content->addLayout(choices);

    grid1 = new GridView("SS1", frmGTGSGenEditor::SS1, &window);
    grid2 = new GridView("SS2", frmGTGSGenEditor::SS2, &window);
    auto* grids = new QHBoxLayout;
    grids->setSpacing(14);
    for (const auto& [view, words] : {std::pair<GridView*, Text>(grid1, frmGTGSGenEditor::SS1.title),
                                      std::pair<GridView*, Text>(grid2, frmGTGSGenEditor::SS2.title)}) {
        auto* column = new QVBoxLayout;
        auto* label = new QLabel(ToUi(words), &window);
        QFont bold = label->font();
        bold.setBold(true);
        label->setFont(bold);
        label->setBuddy(view);
        column->addWidget(label);
        column->addWidget(view, 1);
        view->setColumnWidth(0, 170);
        grids->addLayout(column, 1);
    }
    window.content->addLayout(grids, 1);
}

// A box whose option is not chosen cannot be typed in.
void Boxes::EnableBoxes()
{
    if (!window.isVisible())
        return;
    combo1->setEnabled(option1->isChecked());
    text3->setEnabled(option2->isChecked());
    text4->setEnabled(option4->isChecked());
}

void Boxes::Show()
{
    window.setWindowTitle(ToUi(Dialog.Title));
    text1->setText(ToUi(Dialog.Text1));
    text2->setText(ToUi(Dialog.Text2));
    text3->setText(ToUi(Dialog.Text3));
    text4->setText(ToUi(Dialog.Text4));
    (Dialog.Option2 ? option2 : option1)->setChecked(true);
    combo1->setCurrentIndex(Dialog.Combo1);
    (Dialog.Option3 ? option3 : option4)->setChecked(true);
    combo1->setEnabled(!Dialog.Option2);
    text3->setEnabled(Dialog.Option2);
    text4->setEnabled(!Dialog.Option3);
    grid1->Refresh();
    grid2->Refresh();
}

void Boxes::Take()
{
    grid1->FinishEdit();
    grid2->FinishEdit();
    Dialog.Text1 = LineFromUi(text1->text());
    Dialog.Text2 = LineFromUi(text2->text());
    Dialog.Text3 = LineFromUi(text3->text());
    Dialog.Text4 = LineFromUi(text4->text());
    Dialog.Option2 = option2->isChecked();
    Dialog.Combo1 = combo1->currentIndex();
    Dialog.Option3 = option3->isChecked();
}

void ShowGTGSGenEditor()
{
    frmGTGSGenEditor::Load();
    EditorWindow window("frmGTGSGenEditor");
    Boxes boxes(window);
    window.before = [&boxes] { boxes.Take(); };
    window.refresh = [&boxes] { boxes.Show(); };
    window.mayClose = frmGTGSGenEditor::mnuExit;
    window.opens = [](const Text& name) {
        if (!IsConversionMap(name))
            return false;
        frmGTGSGenEditor::OpenNamed(name);
        return true;
    };

    QMenu* file = window.Part("mnuFile", "&File");
    window.Entry(file, "mnuOpenGTGSConvFile", "&Open GTGS Conversion File...", QKeySequence::Open,
                 frmGTGSGenEditor::mnuOpenGTGSConvFile);
    window.Entry(file, "mnuSaveGTGSConvFile", "&Save GTGS Conversion File", QKeySequence::Save,
                 frmGTGSGenEditor::mnuSaveGTGSConvFile);
    window.Entry(file, "mnuSaveAs", "Save &As...", QKeySequence("Ctrl+Shift+S"), frmGTGSGenEditor::mnuSaveAs);
    file->addSeparator();
    window.Entry(file, "mnuExit", "E&xit", QKeySequence("Ctrl+Q"), [&window] { window.close(); });

    auto* begin = new QPushButton("Be&gin Conversion", &window);
    begin->setObjectName("Command1");
    begin->setAutoDefault(false);
    QObject::connect(begin, &QPushButton::clicked, &window, [&boxes] {
        boxes.Take();
        frmGTGSGenEditor::Command1();
        boxes.Show();
    });
    window.content->addWidget(begin, 0, Qt::AlignRight);
    window.resize(860, 680);
    boxes.Show();
    boxes.text1->setFocus();
    if (!NextFile.empty())
        window.OpenSoon(TakeNextFile());
    window.exec();
}
