// crosstool.cpp -- the cross section tool's table and the words of its boxes.
#include "sections/crosstool.h"

#include "boring/opensave.h"
#include "gis/gisfile.h"
#include "run/batchrun.h"
#include "sections/crosscheck.h"
#include "sections/crossrun.h"
#include "session/shared.h"

// Cells of a boring that no column shows: label offset, second label, azimuth, inclination.
static constexpr int firstHidden = 6, lastHidden = 9, hiddenCells = lastHidden - firstHidden + 1;

static std::vector<Text> HiddenCells()
{
    std::vector<Text> cells;
    for (int row = 1; row <= CrossRecord::Borings; ++row)
        for (int column = firstHidden; column <= lastHidden; ++column)
            cells.push_back(CrossData.boringCells[row][column]);
    return cells;
}

static void PutHiddenCells(const std::vector<Text>& cells)
{
    size_t i = 0;
    for (int row = 1; row <= CrossRecord::Borings; ++row)
        for (int column = firstHidden; column <= lastHidden; ++column)
            CrossData.boringCells[row][column] = cells.at(i++);
}

void frmCross::LabelBoxes()
{
    constexpr int slotsOfBorings = 4; // the fifth column came later than the list of labels
    LabelGrid(SS1, 131, "Boring Information", 132, {"Distance", "Boring File", "Water Dep.", "Label W/B", "Label T/B"},
              slotsOfBorings);
    LabelRows(SS3, 136, "Report Information", 137,
              {"Main Title", "Title 1", "Title 2", "Left Cor. Label", "Right Cor. Label", "Draw Layers (Y/N/I)",
               "Page Size (L/T)", "GIS File", "Parameter (GPn/Pn)"});
    LabelRows(SS2, 146, "Scale Information", 147,
              {"Horiz. Start, End, Inc.", "Horizontal Unit", "Vert. Start, End, Inc. ", "Vertical Unit"});
    LabelGrid(SS4, 151, "Legend", 152, {"USCS/Color", "Text"});
    SS1.minRows = CrossRecord::FormBorings;
    SS1.maxRows = CrossRecord::Borings;
    SS1.besideWidth = hiddenCells;
    SS1.beside = HiddenCells;
    SS1.putBeside = PutHiddenCells;
}

static Text State()
{
    return CountOf(frmCross::SS1.DataRowCount(), "boring", "borings");
}

ToolRecord CrossForm = {
    .tool = Tool::Cross,
    .window = "frmCross",
    .title = "VeskCross - Cross Section Diagram",
    .ending = ".CRO",
    .openMode = 3,
    .drawJob = DrawSectionsJob,
    .FileName = frmCross::FileName,
    .Title = frmCross::Title,
    .grids = {&frmCross::SS1, &frmCross::SS4, &frmCross::SS2, &frmCross::SS3},
    .rowsGoIn = {&frmCross::SS1, &frmCross::SS4},
    .OpenFile = OpenCrossFile,
    .SaveFile = SaveCrossFile,
    .ClearArrays = ClearCrossArrays,
    .FillForm = FillCrossForm,
    .Label = frmCross::LabelBoxes,
    .State = State,
    .Check = CheckSection,
};

static const SharedRecord shared[] = {
    {"CrossForm", Kind::Window, CrossForm},
};
