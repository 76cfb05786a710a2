// pagepainter.h -- the kept list of a page drawn by a QPainter: on the screen, on a printer, into a PDF or a picture.
#pragma once

#include "canvas/pageobjects.h"

class QPainter;

enum class PatternForm {
    Screen, // the 25 by 25 form, a pixel of it a pixel of the device, anchored at the page's corner, whatever the zoom
    Print   // the full bitmap, a pixel of it 1/600 inch
};

// Draws the list with the painter's origin at the page's upper left corner, and leaves the painter as it was. scale is
// the units of the painter to a device unit of the page. A pattern's white is transparent. A picture that cannot be had
// is left out; when all else is drawn the first of these failures is raised, 53 or 481.
void PaintPage(QPainter& painter, double scale, PatternForm form);

// Loads all pictures that the page needs, so that none is missed when half of it is out. Raises failure 53 or 481 for
// the first one that cannot be had.
void LoadPagePictures(PatternForm form);
// Returns whether a logo or a map can be loaded; it stays loaded, for the painting.
bool PictureLoads(const Text& name);
// Forgets logos and maps whose files have changed.
void DropChangedPictures();

// Returns the sum of the advance widths of a text's characters in parts of the em: no kerning, no rounding.
double TextAdvance(const Text& words, const Text& fontName, bool bold);

// Returns whether the font that Arial is drawn with is on this machine. Without it a page comes out in another font.
bool PageFontThere();
