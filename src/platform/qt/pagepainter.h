// pagepainter.h -- the kept list of a page drawn by a QPainter: on the screen, on a printer, into a PDF or a picture.
#pragma once

#include "canvas/pageobjects.h"

class QPainter;
class QSizeF;
class QRectF;

enum class PatternForm {
    Screen, // the 25 by 25 form, a pixel of it a pixel of the device, anchored at the page's corner, whatever the zoom
    Print   // the full bitmap, a pixel of it 1/600 inch
};

// Draws the list with the painter's origin at the page's upper left corner. scale: device pixels to a device unit of
// the page. A pattern's white is transparent. Failure 53 or 481 for a picture that cannot be had.
void PaintPage(QPainter& painter, double scale, PatternForm form);
