// boringboxes.cpp -- the boxes of the log tool's window, as large as the record has room.
#include "boring/boringboxes.h"

#include "boring/boringdata.h"

#include <iterator>

namespace frmBorinput
{
Grid SSInfo(MaxInfo, 2), SSScale(MaxScale, 1), SSRepParts(MaxRepParts, 2), SSP1Setup(SampleParams, 9),
    SSP2Setup(GenParams, 8), SSPar(MaxParams, 21), SSSamp(MaxSamples, 21), SSLith(MaxLith, 4),
    SSGenWellInfo(MaxGenWell, 1), SSOuterLay(MaxLayers, 5), SSInnerLay(MaxLayers, 5), SSW(MaxWellInfo, 2),
    SSCuttings(MaxCuttings, 4), SSFormations(MaxFormations, 2), SSLegend(MaxLegend, 2);
Memo MemoDes{"", 4205, 1550}, MemoWcon{"", 3249, 1750}, MemoRemarks{"", 2223, 1750}, MemoBottNotes{"", 8010, 1750};
Text txtClient;
Text Text1, Text2;
Text cmbLayFile;
Text Text1Font, txtClientFont;
bool Check1 = false;
int Option = 0;
Text lblWidthtot;
bool NarrowNotes = false;
Text Title;
Text RecentFile;
Slots<std::vector<Text>, 4> List;
std::vector<Text> LayFiles;

Grid* BoxGrid(int activeBox)
{
    Grid* const grids[] = {nullptr,     &SSInfo, &SSScale,    &SSRepParts,   &SSP1Setup,     &SSP2Setup,
                           &SSPar,      &SSSamp, &SSLith,     nullptr,       &SSGenWellInfo, &SSOuterLay,
                           &SSInnerLay, &SSW,    &SSCuttings, &SSFormations, &SSLegend};
    return activeBox >= 0 && activeBox < int(std::size(grids)) ? grids[activeBox] : nullptr;
}
} // namespace frmBorinput

Memo frmSoil::MemoSoil{"", 6800, 1550};
