// wellfills.cpp -- what fills the annulus of a well: a pattern, or the symbol of a packer or a centralizer.
#include "canvas/patterns.h"
#include "logrender/logdata.h"
#include "logrender/welldiagram.h"
#include "report/heading.h"
#include "session/failure.h"

#include <cmath>

// The material words are those of the heading file, slots 31 to 37.
int VLOG::materialof(const Text& text)
{
    const Text upper = UpperCase(text);
    for (int slot = 31; slot <= 37; ++slot)
        if (!HeadingWords[slot].empty() && upper.find(HeadingWords[slot]) != Text::npos)
            return slot - 30;
    return 0;
}

int16_t VLOG::selectfill(int layer)
try {
    const Text& text = LogBoring.OuterLayers[layer][3];
    const Text cell(Before(LogBoring.OuterLayers[layer][5], ','));
    if (!IsBlank(cell))
        return getpch(cell);
    const int material = materialof(text);
    // A centralizer. The number behind its comma is its offset, a whole number before it is added: half to even, so
    // that 1.5 and 2.5 are the same symbol.
    if (material == 7)
        return RoundInt16(wellFillNumbers[7] + std::nearbyint(TextNumber(Behind(text, ','))));
    return wellFillNumbers[material];
} catch (...) {
    ReportFailure(__func__);
    return 0;
}

double VLOG::findcenttype(Text& layer)
{
    if (!Holds(layer, ',') || UpperCase(layer).find("CENT") == Text::npos)
        return 0;
    const double offset = TextNumber(Behind(layer, ','));
    layer = Text(Before(layer, ','));
    return offset;
}
