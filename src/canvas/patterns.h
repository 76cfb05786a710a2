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

// Returns the file number of a "Fill #" cell; 0 is blank. A bad number is told in the box "Fill pattern number is out
// of range: ", a code that is not in the table is silently 0.
int16_t getpch(const Text& cell);
// Returns the file number of a layer's code in sections and soil tables; 0 is blank. This older reader drops the first
// character and heeds case. A code of one character is failure 5.
int getpatt(const Text& code);
// Selects the pattern of such a code, by setfillfile.
void setpatt(const Text& code);
// Selects the current pattern of the canvas: PageCanvas.fillFile becomes its screen form, made if need be; a
// pattern whose print form is missing leaves the print name there.
void setfillfile(int number);
// Makes tinted copy k of the current pattern: "T" k "_sc.bmp" and "T" k ".bmp" in the fills folder.
void createcoloredFP(const Text& color, int k);

// Returns the file name of a pattern's print form: "F05.BMP".
Text PatternName(int number);
// Returns the name of the print form that belongs to a screen form's: without its last 7 characters, plus ".bmp".
Text PrintForm(const Text& screenName);
// Returns whether what setfillfile has left is in the fills folder: a print form, or a screen form, or the print form
// that this one is made from.
bool PatternThere(const Text& fillFile);
// Returns the picture behind a name of either form that setfillfile or createcoloredFP has made, from memory or the
// fills folder. It is loaded once, until a run finds its file changed; a tint until its number is used again. The blank
// pattern is white where its file is missing; any other that is not there is failure 53, one that is no picture 481.
const Bitmap& PatternPicture(const Text& name);
// Returns whether the picture is in memory as a tint, or in the fills folder.
bool PictureThere(const Text& name);

// Tinted copies are written as files unless this is set: several programs may draw with one fills folder at once.
extern bool TintsInMemory;

// Has the fills folder looked at anew, if it has changed: at the start of a page, and before one is printed.
void ForgetPatternFiles();
// Has each pattern, logo or map loaded anew whose file has changed since it was loaded, or has gone: at the start of a
// run of pages. A pattern's screen form is made anew if this program has made it.
void ForgetChangedPictures();
// Forgets all pictures too, as at the start of a program.
void ForgetPatterns();
// Counts how often pictures were forgotten; what is kept of a pattern's picture elsewhere goes with it.
extern int PatternPicturesEmptied;

// Draws the page of the Fill Pattern Guide and shows it.
void patternstart();
