// borinput.h -- the commands of the log tool's window. No widget is known here: the boxes are the records of
// boring/boringboxes.h, and the window shows them after each command.
#pragma once

namespace frmBorinput
{
void Load(); // the loading of the window at the start: the set-up, the title, the widths of the boxes

// File.
void mnuNew();
void mnuOpen();
void mnuSave();
void mnuSaveAs();
void mnuPreview();
void mnuBatchDraw();
void mnuPrint();
void mnuPrintSetup();
bool mnuExit(); // also at the closing of the window; false: the user stays
// Utilities and Help.
void mnuConvertFeetMeters();
void mnuGraphicSetup();
void mnuCreateLogo();
void mnuFillPatt();
void mnuHelp();
} // namespace frmBorinput
