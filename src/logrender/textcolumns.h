// textcolumns.h -- what the columns of text have in common: the pitch of their lines, the heading and box of a
// description column, text that stands at a depth.
//
// No column measures text. The lines were broken when the boring was saved, so one stored line is one printed line.
#pragma once

#include "session/text.h"

namespace VLOG
{
constexpr double LinePitch = 0.12;  // inches a printed line takes
constexpr double TextIndent = 0.05; // inches from the column's left edge to its text

// Draws a description column's heading, its legend if there is one, and its box; ColumnWidth is half the column. With
// continued a page that goes on from the one before has a dotted top line. The pen comes from the baseline at the left
// edge; the origin is left at the left edge on the depth line, the y scale at DepthPerInch, 8 point, left aligned.
void descriptionbox(bool continued);

// Ends a description column: line style 1, y scale 1, the pen at the right edge on the baseline.
void enddescriptions();

// Returns whether contact n, as an "@" line names it, is drawn on the page. The number is rounded and may be anything.
bool contactonpage(double n);

// Moves the pen to the column's left edge at a depth; leaves y scale 1. The origin is on the depth line.
void movetodepth(float depth);

// Draws the well construction lines of the boring at the pen, 0.1 apart, a value so far right of its label.
void wellrows(double offset);

// Returns whether the depth of a "-" line is on the page. If so the pen goes there, indented; leaves y scale 1.
bool depthplaced(const Text& line);
} // namespace VLOG
