// pagecanvas.h -- PageCanvas: the drawing state of the page, which the primitives of metaugl.h read and leave.
#pragma once

#include "session/slots.h"
#include "session/text.h"

constexpr int MaxPolyPoints = 60;

struct CanvasRecord {
    float unitsPerInch = 0;                          // 600 on a printer of 600 dots to the inch
    float pageWidthInches = 0, pageHeightInches = 0; // the printable sheet
    float pageWidthUnits = 0, pageHeightUnits = 0;
    float originX = 0, originY = 0;
    float penX = 0, penY = 0;
    float scaleX = 0, scaleY = 0; // divisors; 0 until setorigin repairs them
    int16_t textAlign = 0, textVAlign = 1;
    double lineSpacing = 0; // device units between the lines of a text
    double textAngle = 0;
    Text fontName;
    int32_t polyCount = 0;                    // slots of polyPoints in use; 0: no polygon under way
    Slots<int32_t, MaxPolyPoints> polyPoints; // x, y pairs, rounded; slot 0 is in use here
    Text fillFile;                            // current pattern: its screen form, or its missing print form
    Text fillsDir;                            // with a separator at its end
    int16_t tintCount = 0;                    // tinted patterns made on this page
    Text mode;                                // the argument of canvasstart
    char paper = 'T';                         // the sheet, as PrinterSheet takes it; mode "C" keeps it
};
extern CanvasRecord PageCanvas;
