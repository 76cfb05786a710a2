// pagecanvas.cpp -- the drawing state of the page.
#include "canvas/pagecanvas.h"

#include "session/shared.h"

CanvasRecord PageCanvas;

static const SharedRecord shared[] = {
    {"PageCanvas", Kind::Run, PageCanvas},
};
