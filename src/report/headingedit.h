// headingedit.h -- what the heading editor and its legend editor do. No widget is known here.
#pragma once

#include "session/slots.h"
#include "session/text.h"

namespace frmHeading
{
extern Text Title;
void Load(); // Empties the table and the grids: nothing is open.
void mnuOpen();
// Saves to the file in DialogResult, so any chooser that is shown in between changes where Save writes.
void mnuSave();
void mnuSaveAs();
} // namespace frmHeading

// The four legends of the log, slots 40 to 61 of the table.
namespace frmDescLegend
{
struct Record {
    Slots<Text, 4> Title;            // sample boxes, water levels, text legends 1 and 2
    Slots<bool, 4> Use;              // its check box
    Slots<Text, 4> BoxText, BoxFill; // of the sample boxes
    Text FilledTriangle, Diamond, OpenTriangle;
    Slots<Slots<Text, 4>, 2> Line; // of the text legends
};
extern Record Dialog;
void Load();     // Fills the boxes from HeadingTable.
bool Command1(); // OK: takes them into HeadingTable; false where more than two are checked, and the window stays.
} // namespace frmDescLegend
