// fillform.h -- from the boring record into the boxes of the log tool's window, and how the boxes are sized.
//
// No widget is known here: the window shows the records of boring/boringboxes.h and calls these at its changes.
#pragma once

#include "session/text.h"

// Puts BoringData into the boxes; called behind OpenBoringFile2. Leaves FileChanged 1.
void FillBoringForm();
// Clears the boring for New: no file name, empty boxes and record, options off; FileChanged 0. It neither asks nor sets
// fonts.
void ClearBoringForm();

// Takes the report parts after every change of them or of the well names: puts in default widths, warns of widths out
// of range, sizes the boxes of the limited ones and shows the total width. Sets FileChanged.
void BorTextChange();
// Takes a change of a parameter set-up grid into the record, and into the headings that show its names.
void SetupGridChange();
// Takes a change of the layout box: sizes the general notes box. Sets FileChanged.
void LayoutFileChange();

// Reads from the layout file of the layout box, as it is named, the page's orientation and whether the general notes
// are narrow. A file that is not there changes nothing.
void findbottnotewidth();
void changebottnotewidth(); // Sizes the general notes box by what was found.
void ResetTextBoxes();      // Sizes all text boxes, after a change of the font or of the text adjustments.
// Does the work of the layout editor, which looks at other layouts; behind it the page of the layout in use counts
// again.
void EditLayouts(void (*edit)());
// Opens the set-up window, over a document that is empty or not: a change of the font marks no empty one as changed.
void SetUpGraphics(bool documentEmpty);
bool BoringEmpty();     // Returns whether nothing stands in the boxes and no file is open.
void LabelParameters(); // Gives parameters without names their headings, as at the start.

// Does what a text adjustment button does: 1 and 2 make the description box narrower and wider by 50 twips, 3 and 4 the
// well notes, 5 and 6 the remarks, 7 and 8 the general notes. Only button 2 has a limit, and says so.
void AdjustTextBox(int button);

// Returns "2 pages", for example; a boring that was never saved has no page to be drawn.
Text PageWords();
