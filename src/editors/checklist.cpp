// checklist.cpp -- what a reviewer of the boring would flag: the parts of the list in their order.
#include "editors/checklist.h"

#include "editors/checkparts.h"
#include "report/heading.h"
#include "session/shared.h"
#include "tools/hush.h"

#include <algorithm>

std::vector<CheckEntry> CheckBoring()
{
    using namespace BoringChecks;
    static constexpr void (*parts[])() = {
        LookForPatterns, CheckScale,     CheckPages,  CheckMarkers,     CheckDepthCells, CheckContacts,
        CheckSamples,    CheckDepths,    CheckWater,  CheckNouns,       CheckLostText,   CheckCodes,
        CheckSampleKeys, CheckWellFills, CheckLegend, CheckReportParts, CheckWidth,      CheckGraphs,
        CheckFiles,      CheckLines,     CheckRoom,   CheckLetters};
    std::vector<CheckEntry> found;
    const Hushed quiet;
    const KeepAll records{Kind::Run};
    getclientlogo(1); // the words and the logo that a run would draw with
    list = &found;
    for (void (*part)() : parts)
        try {
            part();
        } catch (...) { // a file that breaks off is told of by the page
        }
    std::stable_sort(found.begin(), found.end(), [](const CheckEntry& a, const CheckEntry& b) {
        return WeightOf(a) < WeightOf(b); // the gravest in front
    });
    return found;
}
