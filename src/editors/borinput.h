// borinput.h -- the commands of the log tool's window. No widget is known here: the boxes are the records of
// boring/boringboxes.h, and the window shows them after each command.
#pragma once

#include "session/text.h"

namespace frmBorinput
{
// Commands that open another window or tool. The start of a program fills in those that it has; the entry of one that
// is not there is shown disabled.
struct CommandTable {
    // Edit.
    void (*mnuEditHeading)() = nullptr;
    void (*mnuEditLayout)() = nullptr;
    void (*mnuEditDesItems)() = nullptr;
    void (*mnuEditPromptFile)() = nullptr;
    // Utilities.
    void (*mnuGraphicSetup)() = nullptr;
    void (*mnuCreateLogo)() = nullptr;
    void (*mnuConvertFeetMeters)() = nullptr;
    void (*mnuExp2IRPIMS)() = nullptr;
    void (*mnuGTGS)() = nullptr;
    void (*mnuConvertGTGStxt)() = nullptr;
    void (*mnuConvertGTGSgeneral)() = nullptr;
    void (*mnuConvertWinLog)() = nullptr;
    // Tools.
    void (*mnuvcross)() = nullptr;
    void (*mnuvfence)() = nullptr;
    void (*mnuvsoil)() = nullptr;
    void (*mnuvGIS)() = nullptr;
};
extern CommandTable Commands;

void Load(); // the loading of the window at the start: the set-up, the title, the widths of the boxes

// File.
void mnuNew();
void mnuOpen();
void mnuSave();
void mnuSaveAs();
void mnuImport();
// Open with a file that is known: a recent one, or one from outside. Its form is that of its ending, and one that is
// refused leaves no name behind that a save could write over.
void OpenNamed(const Text& name);
void OpenFromOutside(const Text& name); // by the tool of its ending, each after its own question
void mnuPreview();
void mnuBatchDraw();
void mnuPrint();
void mnuPrintSetup();
// Hand-over to another tool, which opens on top.
void mnuvcross();
void mnuvfence();
void mnuvsoil();
void mnuvGIS();
bool mnuExit(); // also at the closing of the window; false: the user stays
// Edit, by ActiveBox: the box last entered.
void mnuUndo();
void mnuRedo();
void mnuCut();
void mnuCopy();
void mnuPaste();
void mnuFillDown();
void mnuInsertRow();
void mnuDeleteRow();
// Utilities and Help.
void mnuConvertFeetMeters();
void mnuGraphicSetup();
void mnuCreateLogo();
void mnuFillPatt();
void mnuHelp();
// Recovery (session/recovery.h).
void WriteCopy(const Text& copy);                  // the boring as it stands in the boxes
void OpenCopy(const Text& copy, const Text& name); // a copy into the boxes, as a changed boring of that name
} // namespace frmBorinput
