// fencerecord.h -- FenceRun: the fence diagram in drawing, beside the fields that it shares with CrossRun.
//
// Filled by getfencedata, which reads the saved file and never what the editor holds; drawfenceframe puts in what a GIS
// file says instead and turns the coordinates, drawfenceborings adds what the borings say. Unlike a section's, both
// records are emptied before every file: slots without a boring would otherwise be those of the file before.
//
//          +-------------------+          The base plane is an oblique view: X runs along the page at true scale,
//      Y  /                   /           Y up and to the right at 45 degrees, both of its parts foreshortened by
//        /                   /            0.7071. Elevations stand on a scale of their own: 2 inches from vEnd,
//       +-------------------+             which is the plane, to vStart.
//                 X
//
// The number of the base plane's units to an inch is xRange / baseWidth. All numbers are 32-bit, the plan coordinates
// too.
#pragma once

#include "sections/crossrecord.h"

namespace VCROSS
{
constexpr int MaxFenceBorings = 15, MaxPanels = 20;
constexpr float Foreshortening = 0.7071f;

struct FenceRunRecord {
    Slots<float, MaxFenceBorings> siteX, siteY; // xStart and yStart taken off
    float xStart = 0, xEnd = 0, xInc = 0, yStart = 0;
    Text xUnit;
    float xRange = 0, yRange = 0; // site units
    int16_t sectionCount = 0;
    Slots<int16_t, MaxPanels> sectionA, sectionB; // numbers of the two borings of a panel; 0: the row is skipped
    int16_t facing = 0;                           // 1 north, 2 east, 3 south, 4 west, after the rotation
    int16_t rotation = 0;                         // quarter turns, 0 to 3
    float baseWidth = 0, baseRise = 0;            // inches
    Slots<float, MaxFenceBorings> planX, planY;   // the ground point on the page, inches
    Slots<bool, MaxFenceBorings> waterMark;       // the boring has a water mark on this page, at penX, penY
    Text title3;
};
extern FenceRunRecord FenceRun;
void ResetFenceRun(); // as at the start of the program

// Returns whether slot i has a boring. A row of the file without a boring's name is an empty slot: no stake, no panel
// and no word about it.
bool HasBoring(int i);
// Returns the units of the base plane to an inch.
float BaseScale();
} // namespace VCROSS
