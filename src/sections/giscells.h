// giscells.h -- the layers of a GIS table between two borings: what a cell says, for sections and for fences.
//
//     "30"     the layer's bottom; its top is the first number of the cell above, 0 in the first layer
//     "10-30"  top and bottom
//     ""       no thickness
//     "X"      the layer ends half way to the other boring, at the height between the cells above; "X-25" at depth 25
#pragma once

#include "session/text.h"

namespace VCROSS
{
// Spells the file names of GisData as borings are looked up by them: ".BOR" behind a name with no ".", upper case.
void spellgisnames();
// Returns the first row with that name, letter for letter; 0 without one.
int gisrowof(const Text& boringFile);

// Builds the polygon of layer k between the pair in LayerFill. Returns false where neither side has a thickness.
bool setgispoints(int k);
// Fills all layers between the pair, each in its pattern or colour. Returns false when the user has stopped the fill.
bool fillgislayers();
} // namespace VCROSS
