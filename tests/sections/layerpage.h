// layerpage.h -- a section and a fence of a few borings, and the polygons between them in words that a test can spell.
//
// The section: 100 feet an inch along, 10 feet an inch up, so 6 and 60 device units to the foot; vStart 100, the frame
// from 0 to 800 feet, 60 feet tall, a tolerance of 10 feet; columns 20 feet wide. The fence: 100 feet an inch along the
// base, 100 to 0 in elevation, so 12 device units to the foot of elevation.
#pragma once

#include "logrender/columnpage.h"

#include <vector>

struct Layer {
    float Depth;
    const char* Code;
};

std::vector<Layer> Varved(int count); // SM and CL by turns, half a foot each

struct Hole {
    float At;     // along the section, or X of the fence
    float Ground; // elevation
    std::vector<Layer> Layers;
};

// A page with CrossRun as drawcrossborings leaves it, and its data origin; columnRight and groundY are filled in as the
// fillers do, so that a pair can be started at once.
void SetSection(const std::vector<Hole>& holes);
// The same for a fence: FenceRun as drawfenceborings leaves it, all borings at Y 0.
void SetFence(const std::vector<Hole>& holes, const std::vector<std::pair<int, int>>& panels);

// GisData: layers as name and colour, and borings as X, Y, surface, file, then a cell for each layer.
void SetGis(const std::vector<std::pair<const char*, const char*>>& layers,
            const std::vector<std::vector<const char*>>& rows);

// The polygons on the page, in units of the current scales from the current origin, two decimals:
//     SM 110,0 110,-10 290,-10 290,-4 110,0           (the code of the pattern, "blank" for F0)
//     SM hiding 110,0 ...                             (the same over the same shape in white)
//     255,0,0 110,0 ...                               (a colour)
Drawing Polygons();
// Those of them between the columns of the first two borings: without the runs to the edges of the frame.
Drawing BetweenColumns();
// The polygon built last: "110,0 110,-10 290,-4 110,0 as 1.2 then 2,1", filled as layer 2 of boring 1, and the next
// layer of each side.
Text Built();
