// crossrecord.h -- CrossRun: the cross section in drawing.
//
// Filled by getcrossdata, which reads the saved file and never what the editor holds, and by the two passes of
// drawcrossborings; read by every routine that draws the section. A fence is drawn from the same record, which its own
// reader overwrites. Kept: nothing is cleared between two files but what getcrossdata says, so a field that a file does
// not set is that of the file before. Borings and layers are numbered from 1. Lengths are the user's feet or metres
// where no other unit is told; all fields told as numbers with a point are 32-bit.
#pragma once

#include "session/slots.h"
#include "session/text.h"

namespace VCROSS
{
constexpr int MaxSectionBorings = 50, MaxSectionLayers = 100, MaxLegendRows = 30, MaxScreens = 5;

struct CrossRunRecord {
    CrossRunRecord()
    {
        depthFactor.slot.fill(1);
    }
    // Each boring, from the definition file.
    Slots<float, MaxSectionBorings> distance; // hStart taken off: 0 is the left edge of the frame
    Slots<Text, MaxSectionBorings> boringFile;
    Slots<float, MaxSectionBorings> waterDepth; // 0 or less: no mark
    Slots<int16_t, MaxSectionBorings> labelBoringName, labelAtBottom;
    Slots<float, MaxSectionBorings> labelOffsetX, labelOffsetY; // inches, right and up
    Slots<Text, MaxSectionBorings> label2;
    Slots<float, MaxSectionBorings> azimuth, inclination, apparentAngle; // degrees
    Slots<float, MaxSectionBorings> depthFactor;                         // length along the column to a vertical depth
    // Each boring, from its own file.
    Slots<float, MaxSectionBorings> refElevation, stickUp;
    Slots<int16_t, MaxSectionBorings> layerCount;
    Slots<Slots<float, MaxSectionLayers>, MaxSectionBorings> layerDepth; // of the bottom
    Slots<Slots<Text, MaxSectionLayers>, MaxSectionBorings> layerCode;
    Slots<float, MaxSectionBorings> deepestLayer;
    // Each boring, from the drawing.
    Slots<float, MaxSectionBorings> columnRight, groundY; // frame units
    Slots<float, MaxSectionBorings> penX, penY;           // device units
    Slots<int16_t, MaxSectionBorings> gisRow;             // row of GisData; stays from section to section
    // The drawing.
    int16_t boringCount = 0;
    float hStart = 0, hEnd = 0, hInc = 0;
    Text hUnit;
    int32_t vStart = 0, vEnd = 0, vInc = 0; // elevations of the top and the bottom of the scale, and its step
    Text vUnit;
    Text mainTitle, title1, title2, leftCornerLabel, rightCornerLabel;
    int16_t drawLayers = 0, individualColumns = 0;
    float pageWidth = 11, pageHeight = 8.5; // inches
    Text pageMode = "L";                    // or "T"
    int16_t useGIS = 0;
    Text gisPath;
    int16_t paramKind = 0, paramNumber = 0; // 1 general values, 2 their graph, 3 sample values, 4 their graph
    float columnWidth = 0.1f;               // inches
    float labelSize = 10;                   // points
    Slots<Text, MaxLegendRows> legendRows;  // code;text
    float hRange = 0, vRange = 0, scaleX = 0, scaleY = 0; // units, and units an inch
    int16_t inclinedColumn = 0;                           // of the boring last labelled above its column
    float graphStart = 0, graphEnd = 0;                   // values at the ends of a parameter's graph, as last read
};
extern CrossRunRecord CrossRun;
void ResetCrossRun(); // as at the start of the program
} // namespace VCROSS
