// fencetool.cpp -- the fence tool's table and the words of its boxes.
#include "sections/fencetool.h"

#include "boring/opensave.h"
#include "gis/gisfile.h"
#include "run/batchrun.h"
#include "sections/fencecheck.h"
#include "sections/fencerun.h"
#include "session/shared.h"

void frmFence::LabelBoxes()
{
    LabelGrid(SS1, 156, "Boring Information", 157, {"X", "Y", "Boring File", "Water Dep.", "Place T/B", "Label W/B"});
    LabelRows(SS2, 163, "Scale Information", 164,
              {"X Start, End, Inc.", "X Unit", "Y Start", "Elev. Start, End, Inc.", "Elev. Unit"});
    LabelRows(SS3, 169, "Report Information", 170,
              {"Main Title", "Title 1", "Title 2", "Title 3", "Draw Layers (Y/N) ", "Dir. Facing/Rotation",
               "Page Size (L/T)", "GIS File"});
    LabelGrid(SS4, 178, "Legend", 179, {"USCS/Color", "Text"});
    LabelGrid(SS5, 181, "Sections", 182, {"Bor. #1, Bor. #2"});
}

static Text State()
{
    return CountOf(frmFence::SS1.DataRowCount(), "boring", "borings") + ", " +
           CountOf(frmFence::SS5.DataRowCount(), "panel", "panels");
}

ToolRecord FenceForm = {
    .tool = Tool::Fence,
    .window = "frmFence",
    .title = "VeskFence - Fence Diagram",
    .ending = ".FEN",
    .openMode = 5,
    .drawJob = DrawFencesJob,
    .FileName = frmFence::FileName,
    .Title = frmFence::Title,
    .grids = {&frmFence::SS1, &frmFence::SS5, &frmFence::SS2, &frmFence::SS3, &frmFence::SS4},
    .rowsGoIn = {&frmFence::SS1, &frmFence::SS4, &frmFence::SS5},
    .OpenFile = OpenFenceFile,
    .SaveFile = [] { return Saved(SaveFenceFile); },
    .ClearArrays = ClearFenceArrays,
    .FillForm = FillFenceForm,
    .Label = frmFence::LabelBoxes,
    .State = State,
    .Check = CheckFence,
};

static const SharedRecord shared[] = {
    {"FenceForm", Kind::Window, FenceForm},
};
