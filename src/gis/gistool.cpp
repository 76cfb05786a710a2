// gistool.cpp -- the workbench's table.
#include "gis/gistool.h"

#include "editors/hush.h"
#include "gis/gischeck.h"

// A save gives each layer of the list its column.
static void Undisturbed(const std::function<void()>& work)
{
    const Kept form(GisData);
    const Kept table(frmGIS::SSGISInfo);
    work();
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
    .OpenFile = [] { OpenGISFile(frmGIS::FileName); },
    .SaveFile = [] { return SaveGISFile(frmGIS::FileName); },
    .ClearArrays = ClearGISForm, // the columns of the table go with the layers
    .FillForm = FillGISForm,
    .Label = frmGIS::LabelBoxes,
    .Undisturbed = Undisturbed,
    .State = State,
    .Check = CheckGisTable,
    .titleInFront = true,
    .InsertRow = frmGIS::mnuInsertRow,
    .DeleteRow = frmGIS::mnuDeleteRow,
};
