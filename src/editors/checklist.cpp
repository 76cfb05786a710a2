// checklist.cpp -- what a reviewer of the boring would flag: the parts of the list in their order.
#include "editors/checklist.h"

#include "editors/checkparts.h"
#include "report/heading.h"
#include "session/failure.h"
#include "tools/hush.h"

#include <algorithm>

namespace
{
// The words and the logo that a run would draw with, as long as it lives.
struct WordsOfRun {
    WordsOfRun()
    {
        getclientlogo(1);
    }
    const Kept<Slots<Text, MaxHeadings>> words{HeadingWords};
    const Kept<int16_t> legend{LegendInUse};
    const Kept<Slots<int16_t, 4>> boxFill{LegendBoxFill};
    const Kept<LogoRecord> logo{LogoData};
    const Kept<int> failures{FailuresReported};
};
} // namespace

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
    const WordsOfRun words;
    const Kept target(list);
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
