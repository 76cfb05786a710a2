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
    {"frmBorinput::SSInfo", Kind::Boxes, frmBorinput::SSInfo},
    {"frmBorinput::SSScale", Kind::Boxes, frmBorinput::SSScale},
    {"frmBorinput::SSRepParts", Kind::Boxes, frmBorinput::SSRepParts},
    {"frmBorinput::SSP1Setup", Kind::Boxes, frmBorinput::SSP1Setup},
    {"frmBorinput::SSP2Setup", Kind::Boxes, frmBorinput::SSP2Setup},
    {"frmBorinput::SSPar", Kind::Boxes, frmBorinput::SSPar},
    {"frmBorinput::SSSamp", Kind::Boxes, frmBorinput::SSSamp},
    {"frmBorinput::SSLith", Kind::Boxes, frmBorinput::SSLith},
    {"frmBorinput::SSGenWellInfo", Kind::Boxes, frmBorinput::SSGenWellInfo},
    {"frmBorinput::SSOuterLay", Kind::Boxes, frmBorinput::SSOuterLay},
    {"frmBorinput::SSInnerLay", Kind::Boxes, frmBorinput::SSInnerLay},
    {"frmBorinput::SSW", Kind::Boxes, frmBorinput::SSW},
    {"frmBorinput::SSCuttings", Kind::Boxes, frmBorinput::SSCuttings},
    {"frmBorinput::SSFormations", Kind::Boxes, frmBorinput::SSFormations},
    {"frmBorinput::SSLegend", Kind::Boxes, frmBorinput::SSLegend},
    {"frmBorinput::MemoDes", Kind::Boxes, frmBorinput::MemoDes},
    {"frmBorinput::MemoWcon", Kind::Boxes, frmBorinput::MemoWcon},
    {"frmBorinput::MemoRemarks", Kind::Boxes, frmBorinput::MemoRemarks},
    {"frmBorinput::MemoBottNotes", Kind::Boxes, frmBorinput::MemoBottNotes},
    {"frmBorinput::txtClient", Kind::Boxes, frmBorinput::txtClient},
    {"frmBorinput::Text1", Kind::Boxes, frmBorinput::Text1},
    {"frmBorinput::Text2", Kind::Boxes, frmBorinput::Text2},
    {"frmBorinput::cmbLayFile", Kind::Boxes, frmBorinput::cmbLayFile},
    {"frmBorinput::Text1Font", Kind::Boxes, frmBorinput::Text1Font},
    {"frmBorinput::txtClientFont", Kind::Boxes, frmBorinput::txtClientFont},
    {"frmBorinput::Check1", Kind::Boxes, frmBorinput::Check1},
    {"frmBorinput::Option", Kind::Boxes, frmBorinput::Option},
    {"frmBorinput::lblWidthtot", Kind::Boxes, frmBorinput::lblWidthtot},
    {"frmBorinput::NarrowNotes", Kind::Boxes, frmBorinput::NarrowNotes},
    {"frmBorinput::Title", Kind::Boxes, frmBorinput::Title},
    {"frmBorinput::List", Kind::Session, frmBorinput::List},
    {"frmBorinput::LayFiles", Kind::Window, frmBorinput::LayFiles},
    {"frmSoil::MemoSoil", Kind::Boxes, frmSoil::MemoSoil},
};

int PagesOfLog()
{
    const float endDepth = static_cast<float>(TextNumber(frmBorinput::SSScale.Cell(1, 1)));
    const float pageBreak = static_cast<float>(TextNumber(frmBorinput::SSScale.Cell(3, 1)));
    if (!(pageBreak > 0))
        return 1;
    return int(std::clamp(std::nearbyint(double(endDepth / pageBreak)), 0.0, 32767.0));
}
