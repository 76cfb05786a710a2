// patterns.h -- fill patterns: from the code in a cell to a bitmap in the fills folder.
//
// A pattern has a print form, "F12.BMP", and a screen form of 25 by 25 pixels, "F12_sc.BMP", made from it on first
// use and kept beside it. User pattern number p is file number p + 20. A fills folder that cannot be written is no
// hindrance: what could not be saved is kept in memory under its name.
#pragma once

#include "canvas/bitmap.h"
#include "session/slots.h"

constexpr int MaxUscsCodes = 31, MaxPatternNames = 65;
extern const Slots<Text, MaxUscsCodes> uscsCodes; // code in slot i is file number i + 20
extern Slots<Text, MaxPatternNames> patternNames; // filled at the start of the guide
extern const Slots<int16_t, 7> wellFillNumbers;   // 0 to 7: file numbers of the well materials

// A "Fill #" cell as a file number; 0 is blank. Box "Fill pattern number is out of range: " for a bad number, a
// code that is not in the table is silently 0.
int16_t getpch(const Text& cell);
// The older reader, of sections and soil tables, as a file number; 0 is blank. It drops the first character and heeds
// case. Failure 5 for a code of one character.
int getpatt(const Text& code);
// The same, ending in setfillfile.
void setpatt(const Text& code);
// Selects the current pattern of the canvas: PageCanvas.fillFile becomes its screen form, made if need be; a
// pattern whose print form is missing leaves the print name there.
void setfillfile(int number);
// Tinted copy k of the current pattern: "T" k "_sc.bmp" and "T" k ".bmp" in the fills folder.
void createcoloredFP(const Text& color, int k);

Text PatternName(int number);           // of a pattern's print form: "F05.BMP"
Text PrintForm(const Text& screenName); // of a screen form's name: without its last 7 characters, plus ".bmp"
// What setfillfile has left is in the fills folder: a print form, or a screen form or the print form it is made from.
bool PatternThere(const Text& fillFile);
// The picture behind a name of either form that setfillfile or createcoloredFP has made, from memory or the fills
// folder; loaded once, until a run finds its file changed, a tint until its number is used again. The blank pattern is
// white where its file is missing. Failure 53 for any other that is not there, 481 for one that is no picture.
const Bitmap& PatternPicture(const Text& name);
bool PictureThere(const Text& name); // it is in memory as a tint, or the fills folder has it

// Tinted copies are written as files unless this is set: several programs may draw with one fills folder at once.
extern bool TintsInMemory;

// At the start of a page, and before one is printed: the fills folder is looked at anew, if it has changed.
void ForgetPatternFiles();
// At the start of a run, of all its pages: a pattern, a logo or a map whose file has changed since it was loaded, or
// has gone, is loaded anew. Its screen form is made anew if this program has made it.
void ForgetChangedPictures();
void ForgetPatterns();             // all pictures too: as at the start of a program
extern int PatternPicturesEmptied; // so many times; what is kept of a pattern's picture elsewhere goes with it

void patternstart(); // the Fill Pattern Guide: draws the page and shows it
