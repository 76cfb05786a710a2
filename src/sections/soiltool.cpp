// soiltool.cpp -- the soil tool's table.
#include "sections/soiltool.h"

#include "run/batchrun.h"
#include "sections/soilcheck.h"
#include "session/shared.h"

static Text State()
{
    return PlainNumber(int(frmSoil::MemoSoil.DisplayLines().size())) + " of " + PlainNumber(MaxSoilNotes) +
           " lines of notes";
}

ToolRecord SoilForm = {
    .tool = Tool::Soil,
    .window = "frmSoil",
    .title = "VeskSoil - Soil Analysis Table",
    .ending = ".SOI",
    .openMode = 7,
    .drawJob = DrawSoilJob,
    .FileName = frmSoil::FileName,
    .Title = frmSoil::Title,
    .grids = {&frmSoil::SS1},
    .memo = &frmSoil::MemoSoil,
    .OpenFile = OpenSoilFile,
    .SaveFile = SaveSoilFile,
    .ClearArrays = ClearSoilArrays,
    .FillForm = FillSoilForm,
    .Label =
        [] {
            frmSoil::LabelBoxes();
            frmSoil::SizeMemo();
        },
    .State = State,
    .Check = CheckSoilTable,
};

static const SharedRecord shared[] = {
    {"SoilForm", Kind::Window, SoilForm},
};
