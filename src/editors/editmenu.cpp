// editmenu.cpp -- the Edit menu of the log tool, by the box last entered.
#include "boring/boringboxes.h"
#include "editors/borinput.h"
#include "editors/fillform.h"
#include "grid/gridedit.h"
#include "session/platform.h"
#include "session/session.h"

static constexpr int scaleBox = 2, reportBox = 3, textBoxes = 9, wellBox = 10;

// A command of the clipboard. Text boxes know theirs by their keys only.
static void OnSelected(void (*command)(Grid&), const char* wordsForTextBoxes)
{
    if (ActiveBox == textBoxes)
        MsgBox(wordsForTextBoxes);
    else if (Grid* grid = frmBorinput::BoxGrid(ActiveBox))
        command(*grid);
}

static void OnRow(void (*command)(Grid&))
{
    if (ActiveBox == scaleBox || ActiveBox == wellBox)
        MsgBox("It is not possible to insert or delete rows in this box.", OkOnly, Exclamation);
    else if (ActiveBox == textBoxes)
        MsgBox("This function does not apply to text boxes.", OkOnly, Exclamation);
    else if (Grid* grid = frmBorinput::BoxGrid(ActiveBox)) {
        const std::vector<Text> before = grid->cells;
        command(*grid);
        if (ActiveBox == reportBox && grid->cells == before) // else the change has done it
            BorTextChange();
    }
}

static void OnGrid(void (*command)(Grid&))
{
    if (Grid* grid = frmBorinput::BoxGrid(ActiveBox))
        command(*grid);
}

void frmBorinput::mnuUndo()
{
    OnGrid([](Grid& grid) { UndoGrid(grid); });
}

void frmBorinput::mnuRedo()
{
    OnGrid([](Grid& grid) { RedoGrid(grid); });
}

void frmBorinput::mnuCut()
{
    OnSelected(CutSelected, "Please use the shortcut, CTRL-X or SHIFT-DEL, to CUT text from a text box.");
}

void frmBorinput::mnuCopy()
{
    OnSelected([](Grid& grid) { CopySelected(grid); },
               "Please use the shortcut, CTRL-C or CTRL-INS, to COPY text from a text box.");
}

void frmBorinput::mnuPaste()
{
    OnSelected(PasteSelected, "Please use the shortcut, CTRL-V or SHIFT-INS, to PASTE text to a text box.");
}

void frmBorinput::mnuFillDown()
{
    OnGrid(FillDown);
}

void frmBorinput::mnuInsertRow()
{
    OnRow([](Grid& grid) { InsertRow(grid); });
}

void frmBorinput::mnuDeleteRow()
{
    OnRow(DeleteRow);
}
