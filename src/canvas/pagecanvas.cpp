// pagecanvas.cpp -- the drawing state of the page.
#include "canvas/pagecanvas.h"

CanvasRecord PageCanvas;
