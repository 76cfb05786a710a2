// gisfile.h -- GisData: the borings of a site with their layers, and the .GIS file.
//
// Filled by OpenGISFile, for the workbench as well as for a section or fence that names the file, and by the
// workbench's commands. Slots are numbered from 1, all cells are text as typed.
#pragma once

#include "session/controls.h"
#include "session/slots.h"
#include "session/text.h"

constexpr int MaxGisBorings = 200, MaxGisLayers = 100;

struct GisRecord {
    int32_t layerCount = 0;
    Slots<Text, MaxGisLayers> layerName, layerColor;
    int32_t boringCount = 0;
    Slots<Slots<Text, 5>, MaxGisBorings> boringCells; // boring, X, Y, surface elevation, file name
    Slots<Slots<Text, MaxGisLayers>, MaxGisBorings> layerCells;
    Text trailerLine; // a last line kept as it stands
};
extern GisRecord GisData;
// Of the boring last read: name, X, Y, surface elevation, file, greatest ends of the outer and inner table, screens.
extern Slots<Text, 9> boringSummary;

void OpenGISFile(const Text& path); // ".gis" behind a name with no "."; box "GIS File Not Found: ", then no rows
void SaveGISFile(const Text& path); // takes the workbench's grids first
void OpenBoringGIS(const Text& path);
void ClearGISArrays();
void FillGISForm();
// The two exports, to a file that is known; both end in their box. False: nothing was written.
bool ExportGIS2ArcView(const Text& path);
bool ExportGIS2EVS(const Text& path);

// The boxes of the workbench.
namespace frmGIS
{
extern Grid SSGISLayers;  // layer, colour
extern Grid SSGISInfo;    // five columns, then one for each layer, headed with its name
extern Grid SSBoringData; // depth and code of the boring looked at
} // namespace frmGIS
