// markers.h -- the "@" markers of a description: a paragraph that begins with "@" and a number names the layer in that
// row of the Lithology grid, whose text follows. A description that does not begin with a marker or with "MANUAL" has
// none: there "@" is a letter as any other.
#pragma once

#include "grid/controls.h"

struct MovedMarkers {
    Text text;
    Text words; // what has been done; "" for nothing
};

// Which rows hold a layer, from index 1; those behind the list hold none.
using LayerRows = std::vector<bool>;

// Returns the description when the rows have moved, and these hold layers now. The text of a layer that has gone
// stays, with the layer that has its depths now: the one below it, else the one above. Markers that were in order
// without a gap are so again: an empty one holds the place of a layer that has come, and blocks of text change places
// as their layers do.
MovedMarkers MoveMarkers(const Text& description, const RowMoves& moves, const LayerRows& layers);

// The description box as the text that names the rows of the Lithology grid.
extern const RowNames LayerMarkers;
