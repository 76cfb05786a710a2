// gistool.cpp -- the workbench's table.
#include "gis/gistool.h"

#include "gis/gischeck.h"
#include "session/files.h"
#include "session/savename.h"
#include "session/shared.h"

// A name may be typed without its ending; it is complete from then on, or a save would write a second file that no
// reader of tables finds.
static void Open()
{
    using frmGIS::FileName;
    if (const Text whole = WithEnding(FileName, ".gis"); FileExists(whole))
        FileName = whole;
    OpenGISFile(FileName);
}

static Text State()
{
    return CountOf(frmGIS::SSGISInfo.DataRowCount(), "boring", "borings") + ", " +
           CountOf(frmGIS::SSGISLayers.DataRowCount(), "layer", "layers");
}

ToolRecord GisForm = {
    .tool = Tool::GIS,
    .window = "frmGIS",
    .title = "VeskGIS",
    .ending = ".GIS",
    .openMode = 17,
    .FileName = frmGIS::FileName,
    .Title = frmGIS::Title,
    .grids = {&frmGIS::SSGISLayers, &frmGIS::SSBoringData, &frmGIS::SSGISInfo},
    .OpenFile = Open,
    .SaveFile = [] { return SaveGISFile(frmGIS::FileName); },
    .ClearArrays = ClearGISForm, // the columns of the table go with the layers
    .FillForm = FillGISForm,
    .Label = frmGIS::LabelBoxes,
    .State = State,
    .Check = CheckGisTable,
    .titleInFront = true,
    .InsertRow = frmGIS::mnuInsertRow,
    .DeleteRow = frmGIS::mnuDeleteRow,
};

static const SharedRecord shared[] = {
    {"GisForm", Kind::Window, GisForm},
};
