// gisfile.h -- GisData: the borings of a site with their layers, the .GIS file, and the workbench on them.
//
// Filled by OpenGISFile, for the workbench as well as for a section or fence that names the file, and by the
// workbench's commands. Stale while the user types: then the grids hold the truth. Slots are numbered from 1, all cells
// are text as typed. No widget is known here.
#pragma once

#include "grid/controls.h"
#include "session/slots.h"
#include "session/text.h"

#include <vector>

constexpr int MaxGisBorings = 200, MaxGisLayers = 100;
enum GisColumn { GisBoringName = 1, GisX, GisY, GisElevation, GisFileName, GisColumns = GisFileName };

struct GisRecord {
    int32_t layerCount = 0;
    Slots<Text, MaxGisLayers> layerName, layerColor;
    int32_t boringCount = 0;
    GrowingSlots<Slots<Text, GisColumns>, MaxGisBorings> boringCells; // boring, X, Y, surface elevation, file name
    GrowingSlots<Slots<Text, MaxGisLayers>, MaxGisBorings> layerCells;
    Text trailerLine; // a last line kept as it stands
};
extern GisRecord GisData;

// What is known of the boring last read: name, X, Y, surface elevation, file, greatest ends of the outer and inner
// table, and the tops and the bottoms of the screens.
extern Slots<Text, 9> boringSummary;
// The lithology of the boring last read. The workbench has a table of its own for it: the log tool, which stays open
// below, shows another one.
struct GisLithology {
    int32_t count = 0;
    Slots<Text, MaxGisLayers> depth, code;
};
extern GisLithology boringLithology;

// Reads the file into GisData, which is emptied first, also when the file turns out to be missing: that is told in the
// box "GIS File Not Found: ". A name with no "." gets ".gis" behind it.
void OpenGISFile(const Text& path);
// Takes the list and the table as they stand, also layers that have no column yet, then writes the file. Returns false
// where nothing was written; the report has told why.
bool SaveGISFile(const Text& path);
// Reads the boring file into boringSummary, all but its file name, and boringLithology; both are emptied first.
void OpenBoringGIS(const Text& path);
void ClearGISArrays();
// Puts GisData into SSGISLayers and SSGISInfo, which gets a column for each layer, and sets the title by FileName.
// Leaves FileChanged as it is.
void FillGISForm();
// Clears the workbench for New and at the window's opening: no file name, empty grids and record, the title;
// FileChanged 0. It does not ask.
void ClearGISForm();

// Export to a file that is known, with a box at the end. They take the table as it stands in SSGISInfo, and the layers
// by GisData. They return false where the report has told of a failure.
bool ExportGIS2ArcView(const Text& path);
bool ExportGIS2EVS(const Text& path);

// The workbench.
namespace frmGIS
{
void LabelBoxes();              // the grids' labels: those by design, or those that the prompts have set
extern Grid SSGISLayers;        // layer, colour
extern Grid SSGISInfo;          // five columns, then one for each layer, headed with its name; its width changes
extern Grid SSBoringData;       // depth and code of the boring looked at
Text LayerCell(int row, int k); // of SSGISInfo; a layer without a column has none
extern Text Title;              // of the window
extern Text FileName;           // the open .GIS file; empty: it was never saved

// The list of boring files: the *.bor files of the project folder, by name, and which of them are marked.
struct FileList {
    std::vector<Text> names;
    std::vector<bool> selected; // as long as names
    bool SelectAll = false;     // Option1 is checked
};
extern FileList File1;
void RefreshFileList();                    // Reads the list anew; what was marked and is still there stays marked.
void SelectFile(int index, bool selected); // Marks a file or not, counted from 0; "Select All" is let go.
void Option1();                            // "Select All": marks every file.
void Command1();                           // "Add to GIS": adds a row for each marked file; nothing is marked then.
void Command2();                           // "Update Layers": makes the columns those of the layer list.
void Command3();                           // "View Data ->": shows the first marked file.
// Adds the boring to SSGISInfo in a row below the last with data, with its depths by the layer list. path is the file,
// name what stands in its "Filename" cell. Failures by number: 9 when the table is full.
void AddBoring(const Text& path, const Text& name);
// Work at the current cell of SSGISInfo. The column commands do nothing in the first five columns. All set FileChanged.
void mnuInsertRow();
void mnuDeleteRow();
void mnuInsertColumn();
void mnuDeleteColumn();
// Ask for a name, and whether a file that is there may be replaced.
void mnuExportArcView();
void mnuExp2EVS();
} // namespace frmGIS
