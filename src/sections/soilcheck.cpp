// soilcheck.cpp -- what a reviewer of a soil analysis table would flag.
#include "sections/soilcheck.h"

#include "sections/sectionboring.h"
#include "sections/sheetcheck.h"
#include "sections/soilfile.h"
#include "session/session.h"

#include <algorithm>
#include <cmath>

using namespace VCROSS;
using namespace frmSoil;

namespace
{
struct SoilCheck : SheetCheck {
    std::vector<int> Columns; // the parameters that are some, in order
    bool Graph = false;

    void Parameters();
    void Column(int n, const CheckedBoring& boring);
    void Depths(const CheckedBoring& boring);
    void Rows(const CheckedBoring& boring);
    void Codes(const CheckedBoring& boring);
    void Notes();
};
} // namespace

// "1,3,16": a column each.
void SoilCheck::Parameters()
{
    const Text& list = SS1.Cell(SoilParameters, 1);
    int columns = 0;
    std::set<int> twice;
    for (std::string_view rest = list; !rest.empty(); rest = Behind(rest, ',')) {
        const Text piece(Trim(Before(rest, ',')));
        if (piece.empty())
            continue;
        ++columns;
        const double number = std::nearbyint(TextNumber(piece));
        if (!ReadsAsNumber(piece) || number < 1 || number > SampleParams)
            Flag("soil-parameter", SS1, SoilParameters, 1,
                 "\"" + piece + "\" is no parameter: there are 1 to " + PlainNumber(SampleParams) + ".");
        else if (std::find(Columns.begin(), Columns.end(), int(number)) == Columns.end())
            Columns.push_back(int(number));
        else if (twice.insert(int(number)).second)
            Flag("soil-values", SS1, SoilParameters, 1,
                 "Parameter " + PlainNumber(int(number)) + " has more than one column.");
    }
    constexpr int room = 16; // of 0.475 inch, to the border of the page
    if (columns > room)
        Flag("soil-columns", SS1, SoilParameters, 1,
             PlainNumber(columns) + " columns are beyond the border of the page, which has room for " +
                 PlainNumber(room) + ".");
    if (columns == 0)
        Flag("soil-values", SS1, SoilParameters, 1, "No parameter is named, so the table has no column.");
}

void SoilCheck::Column(int n, const CheckedBoring& boring)
{
    constexpr int split1 = 4, split3 = 6; // cells of a set-up: the captions
    const Text name = "Parameter " + PlainNumber(n);
    const auto& setup = boring.SampleSetup[n];
    const bool any = std::any_of(boring.Samples.begin(), boring.Samples.end(),
                                 [n](const CheckedSample& sample) { return !IsBlank(sample.Param[size_t(n)]); });
    if (!any)
        Flag("soil-values", SS1, SoilParameters, 1, name + " has no value in any sample.");
    bool caption = false;
    for (int cell = split1; cell <= split3; ++cell)
        caption = caption || !IsBlank(setup[cell]);
    if (!caption)
        Flag("soil-values", SS1, SoilParameters, 1, name + " has no caption in the set-up of the boring.");
    if (Graph && any && TextNumber(setup[split1]) == 0)
        Flag("soil-scale", SS1, SoilParameters, 1,
             name + ": a bar is a part of its \"Split 1\", which is \"" + setup[split1] +
                 "\" and no number above 0: the drawing stops.");
}

// ---- The body: 4.4 inches for the depths to the end depth, 40 where the boring has none

static constexpr double logHeight = 4.4;

static double DepthToInch(const CheckedBoring& boring)
{
    return (boring.DepthMax == 0 ? 40 : boring.DepthMax) / logHeight;
}

static double Middle(const CheckedSample& sample)
{
    return (sample.Start + sample.End) / 2;
}

// A tenth of an inch lies between the end of the scale and the foot of the page.
void SoilCheck::Depths(const CheckedBoring& boring)
{
    const double perInch = DepthToInch(boring), most = (logHeight + 0.1) * perInch;
    const double end = logHeight * perInch;
    const auto below = std::count_if(boring.Samples.begin(), boring.Samples.end(),
                                     [most](const CheckedSample& sample) { return Middle(sample) > most; });
    const Text scale = "the depth scale, which ends at " + PlainNumber(end) + ".";
    if (below > 0)
        Flag("soil-depth", SS1, SoilBoringFile, 1,
             PlainNumber(int(below)) + (below == 1 ? " sample lies" : " samples lie") + " below " + scale);
    if (boring.Deepest > most)
        Flag("soil-depth", SS1, SoilBoringFile, 1,
             "The layers go down to " + PlainNumber(boring.Deepest) + ", below " + scale);
}

// Each sample has its row at its middle; the words are 0.06 inch high, and with bars each value has its line under its
// own bar.
void SoilCheck::Rows(const CheckedBoring& boring)
{
    constexpr double height = 0.06;
    std::vector<double> middles;
    for (const CheckedSample& sample : boring.Samples)
        middles.push_back(Middle(sample) / DepthToInch(boring));
    std::sort(middles.begin(), middles.end());
    int close = 0;
    for (size_t i = 1; i < middles.size(); ++i)
        close += middles[i] - middles[i - 1] < height;
    if (close > 0)
        Flag("soil-rows", SS1, SoilBoringFile, 1,
             PlainNumber(close) + " of " + PlainNumber(int(middles.size())) +
                 " samples stand so close below another that their rows are printed on one another.");
}

void SoilCheck::Codes(const CheckedBoring& boring)
{
    double top = 0;
    for (const CheckedLayer& layer : boring.Layers) {
        if (layer.Depth > top)
            Code(SS1, SoilBoringFile, 1, layer.Code, "Layer to " + PlainNumber(layer.Depth));
        top = layer.Depth;
    }
}

void SoilCheck::Notes()
{
    const int lines = int(MemoSoil.DisplayLines().size());
    if (lines <= MaxSoilNotes)
        return;
    CheckEntry entry;
    entry.Words = "The notes exceed " + PlainNumber(MaxSoilNotes) + " lines by " + PlainNumber(lines - MaxSoilNotes) +
                  ", and the table is not saved.";
    entry.TextBox = "MemoSoil";
    entry.Place = int(MemoSoil.text.size());
    entry.Kind = "soil-notes";
    Found.push_back(entry);
}

std::vector<CheckEntry> CheckSoilTable()
{
    if (SS1.DataRowCount() == 0 && IsBlank(MemoSoil.text))
        return {};
    SoilCheck check;
    check.HeadingThere(SS1, SoilMainTitle);
    for (int row = SoilMainTitle; row <= SoilTitle3; ++row)
        check.Title(SS1, row, row == SoilMainTitle ? 10 : 9, 2.5);
    check.Graph = SameText(Trim(SS1.Cell(SoilGraph, 1)), "Y");
    check.OneOf(SS1, SoilGraph, 1, "YN", true, "N");
    check.Parameters();
    const Text name(Trim(SS1.Cell(SoilBoringFile, 1)));
    if (name.empty())
        check.Flag("named-boring", SS1, SoilBoringFile, 1, "No boring is named, so the table is empty.");
    else if (const BoringLookedAt boring = check.Boring(SS1, SoilBoringFile, 1, name, "the table is empty")) {
        for (const int n : check.Columns)
            check.Column(n, *boring);
        check.Depths(*boring);
        check.Rows(*boring);
        check.Codes(*boring);
    }
    check.Notes();
    return check.Found;
}
