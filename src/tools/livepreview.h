// livepreview.h -- a page as it stands in the boxes of a tool, drawn by the tool's renderer from a file that nobody
// else sees. The tool's own file, the run under way and the boxes stay as they are, and no box is shown.
#pragma once

#include "canvas/pageobjects.h"

struct ToolRecord;

struct LivePage {
    PageListRecord List;      // the page; no objects where there is none
    int Page = 0, Pages = 0;  // which of how many
    float Start = 0, End = 0; // of a log: its depths
    double Top = 0;           // where its first depth stands, in device units from the top of the sheet
    double UnitsPerDepth = 0; // device units to a unit of depth
};

// Draws a page of the log, counted from 1 and at most the last one. folder is private to the caller. Returns false
// where the boring cannot be drawn as it stands; page is as it was then.
bool DrawLivePage(int number, const Text& folder, LivePage& page);
// Draws the one page of another tool's file. Returns false where it cannot be drawn, and for a tool that draws nothing;
// page is as it was then.
bool DrawLiveTool(ToolRecord& tool, const Text& folder, LivePage& page);
// Returns the row of the lithology whose layer lies at so many device units from the top of the sheet; 0 for none.
int LayerAt(const LivePage& page, double y);
