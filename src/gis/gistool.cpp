// gistool.cpp -- the workbench's table.
#include "gis/gistool.h"

ToolRecord GisTool = {
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
    .titleInFront = true,
    .InsertRow = frmGIS::mnuInsertRow,
    .DeleteRow = frmGIS::mnuDeleteRow,
};
