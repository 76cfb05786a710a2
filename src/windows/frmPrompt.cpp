// frmPrompt.cpp -- the prompt editor: the labels of the windows, by default and as the office wants them.
#include "report/prompts.h"
#include "windows/editorwindow.h"
#include "windows/gridview.h"
#include "windows/showwindows.h"
#include "windows/uitext.h"

#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QVBoxLayout>

void ShowPromptWindow()
{
    frmPrompt::Load();
    EditorWindow window("frmPrompt");
    window.setWindowTitle("Prompt Editor");
    auto* grid = new GridView("SS1", frmPrompt::SS1, &window);
    QMenu* file = window.Part("mnuFile", "&File");
    window.Entry(file, "mnuSave", "&Save to PROMPT.TXT", QKeySequence::Save, frmPrompt::mnuSave);
    window.Entry(file, "mnuRevert", "&Revert to Defaults", {}, frmPrompt::mnuRevert);
    file->addSeparator();
    window.Entry(file, "mnuExit", "E&xit", QKeySequence("Ctrl+Q"), [&window] { window.close(); });
    window.before = [grid] { grid->FinishEdit(); };
    window.refresh = [grid] { grid->Refresh(); };
    window.mayClose = frmPrompt::mnuExit;

    auto* heading = new QLabel(ToUi(frmPrompt::SS1.title), &window);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    heading->setBuddy(grid);
    window.content->addWidget(heading);
    window.content->addWidget(grid, 1);
    grid->setColumnWidth(0, 270);
    window.resize(660, 600);
    grid->setFocus();
    window.exec();
}
