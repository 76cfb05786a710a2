// boringboxes.cpp -- the boxes of the log tool's window, as large as the record has room.
#include "boring/boringboxes.h"

#include "boring/boringdata.h"
#include "session/shared.h"

#include <algorithm>
#include <cmath>
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

static const SharedRecord shared[] = {
    {"frmBorinput::RecentFile", Kind::Document, frmBorinput::RecentFile},
    {"frmBorinput::SSInfo", Kind::Document, frmBorinput::SSInfo},
    {"frmBorinput::SSScale", Kind::Document, frmBorinput::SSScale},
    {"frmBorinput::SSRepParts", Kind::Document, frmBorinput::SSRepParts},
    {"frmBorinput::SSP1Setup", Kind::Document, frmBorinput::SSP1Setup},
    {"frmBorinput::SSP2Setup", Kind::Document, frmBorinput::SSP2Setup},
    {"frmBorinput::SSPar", Kind::Document, frmBorinput::SSPar},
    {"frmBorinput::SSSamp", Kind::Document, frmBorinput::SSSamp},
    {"frmBorinput::SSLith", Kind::Document, frmBorinput::SSLith},
    {"frmBorinput::SSGenWellInfo", Kind::Document, frmBorinput::SSGenWellInfo},
    {"frmBorinput::SSOuterLay", Kind::Document, frmBorinput::SSOuterLay},
    {"frmBorinput::SSInnerLay", Kind::Document, frmBorinput::SSInnerLay},
    {"frmBorinput::SSW", Kind::Document, frmBorinput::SSW},
    {"frmBorinput::SSCuttings", Kind::Document, frmBorinput::SSCuttings},
    {"frmBorinput::SSFormations", Kind::Document, frmBorinput::SSFormations},
    {"frmBorinput::SSLegend", Kind::Document, frmBorinput::SSLegend},
    {"frmBorinput::MemoDes", Kind::Document, frmBorinput::MemoDes},
    {"frmBorinput::MemoWcon", Kind::Document, frmBorinput::MemoWcon},
    {"frmBorinput::MemoRemarks", Kind::Document, frmBorinput::MemoRemarks},
    {"frmBorinput::MemoBottNotes", Kind::Document, frmBorinput::MemoBottNotes},
    {"frmBorinput::txtClient", Kind::Document, frmBorinput::txtClient},
    {"frmBorinput::Text1", Kind::Document, frmBorinput::Text1},
    {"frmBorinput::Text2", Kind::Document, frmBorinput::Text2},
    {"frmBorinput::cmbLayFile", Kind::Document, frmBorinput::cmbLayFile},
    {"frmBorinput::Text1Font", Kind::Document, frmBorinput::Text1Font},
    {"frmBorinput::txtClientFont", Kind::Document, frmBorinput::txtClientFont},
    {"frmBorinput::Check1", Kind::Document, frmBorinput::Check1},
    {"frmBorinput::Option", Kind::Document, frmBorinput::Option},
    {"frmBorinput::lblWidthtot", Kind::Document, frmBorinput::lblWidthtot},
    {"frmBorinput::NarrowNotes", Kind::Document, frmBorinput::NarrowNotes},
    {"frmBorinput::Title", Kind::Document, frmBorinput::Title},
    {"frmBorinput::List", Kind::Session, frmBorinput::List},
    {"frmBorinput::LayFiles", Kind::Window, frmBorinput::LayFiles},
    {"frmSoil::MemoSoil", Kind::Document, frmSoil::MemoSoil},
};

int PagesOfLog()
{
    const float endDepth = static_cast<float>(TextNumber(frmBorinput::SSScale.Cell(1, 1)));
    const float pageBreak = static_cast<float>(TextNumber(frmBorinput::SSScale.Cell(3, 1)));
    if (!(pageBreak > 0))
        return 1;
    return int(std::clamp(std::nearbyint(double(endDepth / pageBreak)), 0.0, 32767.0));
}
