// gisexport.cpp -- the table of the workbench as text for other programs.
//
//     ArcView   name,X,Y,depth,layer                                    a line for each boring, layer after layer
//     EVS       heading; -1; rows and columns; X   Y   elevation   depths   name          a line for each boring
#include "boring/opensave.h"
#include "gis/gisfile.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/savename.h"
#include "session/session.h"

using frmGIS::SSGISInfo;

// Kept: the report of both exports names this one.
static constexpr char exportName[] = "ExportGIS2ArcView";

bool ExportGIS2ArcView(const Text& path)
try {
    const int rows = SSGISInfo.DataRowCount();
    LineWriter out(path);
    for (int k = 1; k <= GisData.layerCount; ++k)
        for (int row = 1; row <= rows; ++row)
            out.Line(SSGISInfo.Cell(row, GisBoringName) + "," + SSGISInfo.Cell(row, GisX) + "," +
                     SSGISInfo.Cell(row, GisY) + "," + frmGIS::LayerCell(row, k) + "," + GisData.layerName[k]);
    out.Close();
    MsgBox("Done Creating ArcView Export File.", OkOnly, Announcement);
    return true;
} catch (...) {
    ReportFailure(exportName);
    return false;
}

static constexpr char gap[] = "   "; // behind each field of an EVS line

bool ExportGIS2EVS(const Text& path)
try {
    const int rows = SSGISInfo.DataRowCount();
    LineWriter out(path);
    Text heading = "Easting/X   Northing/Y   Surf_Elev.   ";
    for (int k = 1; k <= GisData.layerCount; ++k)
        heading += "@@" + GisData.layerName[k] + gap;
    out.Line(heading + "Boring");
    out.Line("-1");
    out.Line(NumberText(rows) + "  " + NumberText(GisData.layerCount + 1));
    for (int row = 1; row <= rows; ++row) {
        Text line;
        for (const int column : {GisX, GisY, GisElevation})
            line += SSGISInfo.Cell(row, column) + gap;
        for (int k = 1; k <= GisData.layerCount; ++k)
            line += frmGIS::LayerCell(row, k) + gap;
        out.Line(line + SSGISInfo.Cell(row, GisBoringName));
    }
    out.Close();
    MsgBox("Done Creating EVS Export File.", OkOnly, Announcement);
    return true;
} catch (...) {
    ReportFailure(exportName);
    return false;
}

// A name for an export, by the chooser; not one that is taken, unless the user says so.
static void Export(bool (*write)(const Text& path))
{
    constexpr int16_t anyFile = 16;
    DialogMode = anyFile;
    Platform.ShowChooser();
    const Text name = DialogResult;
    if (!name.empty() && MayReplace(name))
        write(name);
}

void frmGIS::mnuExportArcView()
{
    Export(ExportGIS2ArcView);
}

void frmGIS::mnuExp2EVS()
{
    Export(ExportGIS2EVS);
}
