// gisfile.cpp -- the .GIS file, and the workbench on it.
//
//     L, L x (name, colour), B, B x (boring, X, Y, elevation, file, L depths), trailer      one line each
#include "gis/gisfile.h"

#include "boring/boringblocks.h"
#include "grid/gridedit.h"
#include "report/prompts.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/savename.h"
#include "session/session.h"
#include "session/shared.h"

#include <algorithm>
#include <cstddef>

GisRecord GisData;
Slots<Text, 9> boringSummary;
GisLithology boringLithology;

namespace frmGIS
{
Grid SSGISLayers(MaxGisLayers, 2), SSGISInfo(MaxGisBorings, GisColumns), SSBoringData(MaxLith, 2);
Text Title, FileName;
FileList File1;
} // namespace frmGIS

static const SharedRecord shared[] = {
    {"GisData", Kind::Document, GisData},
    {"boringSummary", Kind::Run, boringSummary},
    {"boringLithology", Kind::Run, boringLithology},
    {"frmGIS::SSGISLayers", Kind::Boxes, frmGIS::SSGISLayers},
    {"frmGIS::SSGISInfo", Kind::Boxes, frmGIS::SSGISInfo},
    {"frmGIS::SSBoringData", Kind::Boxes, frmGIS::SSBoringData},
    {"frmGIS::Title", Kind::Boxes, frmGIS::Title},
    {"frmGIS::FileName", Kind::Document, frmGIS::FileName},
    {"frmGIS::File1", Kind::Boxes, frmGIS::File1},
};

using namespace frmGIS;

// ----------------------------------------------------------------------------------------------------- the table

// A column for each layer and no more; what stood in the others is lost. Steps taken with another width are forgotten.
static void SetLayerColumns(int layers)
{
    const int columns = GisColumns + layers;
    if (SSGISInfo.columns == columns)
        return;
    SSGISInfo.Resize(SSGISInfo.rows, columns);
    SSGISInfo.column = std::min(SSGISInfo.column, columns);
    SSGISInfo.selected.left = std::min(SSGISInfo.selected.left, columns);
    SSGISInfo.selected.right = std::min(SSGISInfo.selected.right, columns);
    ForgetSteps(SSGISInfo);
}

// Columns for layers that have none, since one was deleted or the list has grown; they bear the layers' names.
static void GiveLayersColumns()
{
    const int before = SSGISInfo.columns - GisColumns;
    if (before >= GisData.layerCount)
        return;
    SetLayerColumns(GisData.layerCount);
    for (int k = before + 1; k <= GisData.layerCount; ++k)
        SSGISInfo.headings[size_t(GisColumns) + k] = GisData.layerName[k];
}

Text frmGIS::LayerCell(int row, int k)
{
    return GisColumns + k > SSGISInfo.columns ? Text() : SSGISInfo.Cell(row, GisColumns + k);
}

void frmGIS::LabelBoxes()
{
    SSGISLayers.title = PromptLabel(186, "Layer List");
    SSGISLayers.headings = {"", PromptLabel(187, "Layer"), PromptLabel(188, "Color")};
    SSBoringData.title = PromptLabel(194, "Boring Data");
    SSBoringData.headings = {"", PromptLabel(195, "Depth"), PromptLabel(196, "USCS")};
    SSGISInfo.title = PromptLabel(197, "GIS Information");
    const char* const headings[] = {"Boring", "X Coord.", "Y Coord.", "Surf. Elev.", "Filename"};
    for (int column = 1; column <= GisColumns; ++column)
        SSGISInfo.headings[column] = PromptLabel(197 + column, headings[column - 1]);
}

// ------------------------------------------------------------------------------------------------------ the file

template <int Rows>
static void Empty(Slots<Text, Rows>& cells)
{
    for (Text& cell : cells.slot)
        cell.clear();
}

void ClearGISArrays()
{
    GisData.layerCount = GisData.boringCount = 0;
    Empty(GisData.layerName);
    Empty(GisData.layerColor);
    GisData.boringCells.Clear();
    GisData.layerCells.Clear();
    GisData.trailerLine.clear();
}

void OpenGISFile(const Text& path)
try {
    // Emptied also for a file that is not there: a section must not be filled from the table of another one.
    ClearGISArrays();
    const Text name = WithEnding(path, ".gis");
    if (!FileExists(name)) {
        MsgBox("GIS File Not Found: " + name, OkOnly, Exclamation);
        return;
    }
    LineReader in(name);
    const int layers = in.Count();
    GisData.layerCount = std::min(layers, MaxGisLayers);
    for (int k = 1; k <= layers; ++k) {
        GisData.layerName[k] = in.Line();
        GisData.layerColor[k] = in.Line();
    }
    const int borings = in.Count();
    GisData.boringCount = std::min(borings, MaxGisBorings);
    for (int row = 1; row <= borings; ++row) {
        for (int column = 1; column <= GisColumns; ++column)
            GisData.boringCells[row][column] = in.Line();
        for (int k = 1; k <= layers; ++k)
            GisData.layerCells[row][k] = in.Line();
    }
    if (!in.AtEnd())
        GisData.trailerLine = in.Line();
} catch (...) {
    ReportFailure(__func__);
}

// The list and the table as they stand, whether or not the columns have been brought up to the list.
static void TakeGrids()
{
    GisData.layerCount = SSGISLayers.DataRowCount();
    for (int k = 1; k <= GisData.layerCount; ++k) {
        GisData.layerName[k] = SSGISLayers.Cell(k, 1);
        GisData.layerColor[k] = SSGISLayers.Cell(k, 2);
    }
    GisData.boringCount = SSGISInfo.DataRowCount();
    for (int row = 1; row <= GisData.boringCount; ++row) {
        for (int column = 1; column <= GisColumns; ++column)
            GisData.boringCells[row][column] = SSGISInfo.Cell(row, column);
        for (int k = 1; k <= GisData.layerCount; ++k)
            GisData.layerCells[row][k] = LayerCell(row, k);
    }
}

bool SaveGISFile(const Text& path)
try {
    TakeGrids();
    LineWriter out(path);
    out.Line(IntegerField(GisData.layerCount));
    for (int k = 1; k <= GisData.layerCount; ++k) {
        out.Line(GisData.layerName[k]);
        out.Line(GisData.layerColor[k]);
    }
    out.Line(IntegerField(GisData.boringCount));
    for (int row = 1; row <= GisData.boringCount; ++row) {
        for (int column = 1; column <= GisColumns; ++column)
            out.Line(GisData.boringCells[row][column]);
        for (int k = 1; k <= GisData.layerCount; ++k)
            out.Line(GisData.layerCells[row][k]);
    }
    out.Line(GisData.trailerLine);
    out.Close();
    return true;
} catch (...) {
    ReportFailure(__func__);
    return false;
}

void FillGISForm()
try {
    Title = "VeskGIS - " + FileName;
    SSGISLayers.Clear();
    SSGISInfo.Clear();
    SetLayerColumns(GisData.layerCount);
    for (int k = 1; k <= GisData.layerCount; ++k) {
        SSGISLayers.Cell(k, 1) = SSGISInfo.headings[size_t(GisColumns) + k] = GisData.layerName[k];
        SSGISLayers.Cell(k, 2) = GisData.layerColor[k];
    }
    for (int row = 1; row <= GisData.boringCount; ++row) {
        for (int column = 1; column <= GisColumns; ++column)
            SSGISInfo.Cell(row, column) = GisData.boringCells[row][column];
        for (int k = 1; k <= GisData.layerCount; ++k)
            SSGISInfo.Cell(row, GisColumns + k) = GisData.layerCells[row][k];
    }
    ForgetSteps(SSGISLayers);
    ForgetSteps(SSGISInfo);
} catch (...) {
    ReportFailure(__func__);
}

void ClearGISForm()
{
    FileName.clear();
    ClearGISArrays();
    FillGISForm();
    SSBoringData.Clear();
    ForgetSteps(SSBoringData);
    FileChanged = 0;
    Title = "VeskGIS";
}

// ----------------------------------------------------------------------------------------------------- a boring

static void ReadLithology(LineReader& in)
{
    const int rows = in.Count();
    for (int row = 1; row <= rows; ++row) {
        boringLithology.depth[row] = in.Line();
        boringLithology.code[row] = in.Line();
        in.Skip(2);
        boringLithology.count = row;
    }
}

// A well table. In slot what stands in "End" where it is deepest; withScreens: also the screens in slots 8 and 9.
static void ReadWellTable(LineReader& in, int slot, bool withScreens)
{
    const int rows = in.Count();
    double deepest = 0;
    int screens = 0;
    for (int row = 1; row <= rows; ++row) {
        const Text start = in.Line(), end = in.Line(), words = in.Line();
        in.Skip(2);
        if (row == 1 || TextNumber(end) > deepest) {
            deepest = TextNumber(end);
            boringSummary[slot] = Trim(end);
        }
        if (!withScreens || UpperCase(words).find("SCREEN") == Text::npos)
            continue;
        const char* const comma = screens++ == 0 ? "" : ",";
        boringSummary[8] += comma + start;
        boringSummary[9] += comma + end;
    }
}

void OpenBoringGIS(const Text& path)
try {
    boringSummary = {};
    boringLithology = {};
    LineReader in(path);
    const Text version = in.Line();
    if (!version.starts_with("5.0")) {
        MsgBox("This boring file has an invalid format.", OkOnly, Exclamation);
        return;
    }
    boringSummary[1] = in.Line();
    in.Skip(1 + 2 * MaxInfo + 4); // the map file, the information, and the scale as far as its fifth line
    boringSummary[4] = in.Line();
    in.Skip(1);
    const Text place = in.Line();
    if (Holds(place, ',')) {
        boringSummary[2] = Before(place, ',');
        boringSummary[3] = Behind(place, ',');
    }
    SkipBlock(in, 2); // report parts
    in.Skip(1);       // layout file
    SkipBlock(in, SampleCells);
    ReadLithology(in);
    SkipBlock(in, 1); // descriptions
    SkipBlock(in, ParamCells(version));
    in.Skip(SetupLines);
    SkipBlock(in, 2); // well construction
    SkipBlock(in, 1); // its notes
    in.Skip(MaxGenWell);
    ReadWellTable(in, 6, false);
    ReadWellTable(in, 7, true);
} catch (...) {
    ReportFailure(__func__);
}

// --------------------------------------------------------------------------------------------------- the commands

void frmGIS::RefreshFileList()
{
    FileList list;
    list.names = FilesIn(ProjectPath, ".bor");
    for (const Text& name : list.names) {
        const auto before = std::find(File1.names.begin(), File1.names.end(), name);
        list.selected.push_back(before != File1.names.end() && File1.selected[size_t(before - File1.names.begin())]);
    }
    list.SelectAll =
        File1.SelectAll && std::find(list.selected.begin(), list.selected.end(), false) == list.selected.end();
    File1 = list;
}

void frmGIS::SelectFile(int index, bool selected)
{
    File1.selected.at(size_t(index)) = selected;
    File1.SelectAll = false;
}

void frmGIS::Option1()
{
    File1.selected.assign(File1.names.size(), true);
    File1.SelectAll = true;
}

void frmGIS::AddBoring(const Text& path, const Text& name)
{
    OpenBoringGIS(path);
    boringSummary[GisFileName] = name;
    const int row = SSGISInfo.DataRowCount() + 1;
    if (row > MaxGisBorings)
        throw RunTimeError{SubscriptOutOfRange};
    for (int column = 1; column <= GisColumns; ++column)
        SSGISInfo.Cell(row, column) = boringSummary[column];
    // Down the list and down the boring at once. A layer that the boring does not have at this place ends where the
    // one above it ends, so it has no thickness here.
    GiveLayersColumns();
    Text bottom = "0";
    int next = 1;
    for (int k = 1; k <= GisData.layerCount; ++k) {
        if (next <= boringLithology.count && GisData.layerName[k] == boringLithology.code[next])
            bottom = boringLithology.depth[next++];
        SSGISInfo.Cell(row, GisColumns + k) = bottom;
    }
    ForgetSteps(SSGISInfo);
}

void frmGIS::Command1()
{
    if (std::find(File1.selected.begin(), File1.selected.end(), true) == File1.selected.end())
        return;
    FileChanged = 1;
    for (size_t i = 0; i < File1.names.size(); ++i)
        if (File1.selected[i])
            AddBoring(JoinPath(ProjectPath, File1.names[i]), File1.names[i]);
    File1.selected.assign(File1.names.size(), false);
    File1.SelectAll = false;
}

void frmGIS::Command2()
{
    FileChanged = 1;
    GisData.layerCount = SSGISLayers.DataRowCount();
    // What stood in the columns of a longer list goes with them.
    SetLayerColumns(GisData.layerCount);
    for (int k = 1; k <= GisData.layerCount; ++k)
        SSGISInfo.headings[size_t(GisColumns) + k] = GisData.layerName[k] = SSGISLayers.Cell(k, 1);
    ForgetSteps(SSGISInfo); // columns put in before belong to the list as it was
}

void frmGIS::Command3()
{
    const auto first = std::find(File1.selected.begin(), File1.selected.end(), true);
    if (first == File1.selected.end())
        return;
    OpenBoringGIS(JoinPath(ProjectPath, File1.names[size_t(first - File1.selected.begin())]));
    SSBoringData.Clear();
    for (int row = 1; row <= boringLithology.count; ++row) {
        SSBoringData.Cell(row, 1) = boringLithology.depth[row];
        SSBoringData.Cell(row, 2) = boringLithology.code[row];
    }
    ForgetSteps(SSBoringData);
}

void frmGIS::mnuInsertRow()
{
    if (InsertRow(SSGISInfo))
        FileChanged = 1;
}

void frmGIS::mnuDeleteRow()
{
    DeleteRow(SSGISInfo);
    FileChanged = 1;
}

void frmGIS::mnuInsertColumn()
{
    if (SSGISInfo.column > GisColumns && InsertColumn(SSGISInfo, GisColumns + MaxGisLayers))
        FileChanged = 1;
}

void frmGIS::mnuDeleteColumn()
{
    if (SSGISInfo.column <= GisColumns)
        return;
    DeleteColumn(SSGISInfo);
    FileChanged = 1;
}
