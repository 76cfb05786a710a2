// fillform.h -- from the boring record into the boxes of the log tool's window, and how the boxes are sized.
//
// No widget is known here: the window shows the records of boring/boringboxes.h and calls these at its changes.
#pragma once

#include "session/text.h"

void FillBoringForm(); // BoringData into the boxes; called behind OpenBoringFile2. Leaves FileChanged 1
// The clearing of New: no file name, empty boxes and record, options off; FileChanged 0. Neither asks nor sets fonts.
void ClearBoringForm();

// After every change of the report parts or the well names: takes the report parts, puts in default widths, warns of
// widths out of range, sizes the boxes of the limited ones and shows the total width. Sets FileChanged.
void BorTextChange();
void SetupGridChange();  // a parameter set-up grid: taken into the record, and the headings that show its names
void LayoutFileChange(); // the layout box: sizes the general notes box. Sets FileChanged

// The layout file of the layout box, as it is named: the page's orientation and whether the general notes are narrow.
// A file that is not there changes nothing.
void findbottnotewidth();
void changebottnotewidth(); // sizes the general notes box by what was found
void ResetTextBoxes();      // all text boxes, after a change of the font or of the text adjustments
// The work of the layout editor, which looks at other layouts; behind it the page of the one in use counts again.
void EditLayouts(void (*edit)());
// The set-up window, over a document that is empty or not: a change of the font marks no empty one as changed.
void SetUpGraphics(bool documentEmpty);
bool BoringEmpty();     // nothing stands in the boxes, and no file is open
void LabelParameters(); // the headings of parameters without names, as at the start

// The text adjustment buttons: 1 and 2 make the description box narrower and wider by 50 twips, 3 and 4 the well notes,
// 5 and 6 the remarks, 7 and 8 the general notes. Only button 2 has a limit, and says so.
void AdjustTextBox(int button);

Text PageWords(); // "2 pages"; a boring that was never saved has no page to be drawn
