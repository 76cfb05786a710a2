// feet2meters.cpp -- the depths of the boring that is open, from feet to meters.
#include "boring/feet2meters.h"

#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "boring/boringfile.h"
#include "boring/textlines.h"
#include "session/failure.h"
#include "session/session.h"

using namespace frmBorinput;

Text cv2m(const Text& text)
try {
    if (text.empty())
        return "";
    if (Trim(text) == "0")
        return "0";
    const float meters = float(TextNumber(text) * (12 / 39.37));
    Text converted = Picture(meters, 2);
    if (converted.ends_with('.'))
        converted.pop_back();
    return converted;
} catch (...) {
    ReportFailure(__func__);
    return "";
}

template <int Rows, int Columns>
static void ConvertColumn(TextTable<Rows, Columns>& table, int count, Grid& grid, int column)
{
    for (int row = 1; row <= count; ++row)
        grid.Cell(row, column) = table[row][column] = cv2m(table[row][column]);
}

// End depth, increment and page break are typed anew, so that they are round numbers again.
static void ConvertScale()
{
    for (int row = 1; row <= 3; ++row)
        BoringData.Scale[row] = "";
    BoringData.Scale[4] = "Meters";
    BoringData.Scale[5] = cv2m(BoringData.Scale[5]);
    for (int row = 1; row <= 5; ++row)
        SSScale.Cell(row, 1) = BoringData.Scale[row];
}

// The depth markers among stored lines; each closes its paragraph. Kept: any line that begins with "-" is one, so a
// text such as "- gravel" is lost, also where a line happens to be wrapped before a "-".
template <int Rows>
static void ConvertMarkers(Slots<Text, Rows>& lines, int count, Memo& box)
{
    for (int i = 1; i <= count; ++i) {
        Text& line = lines[i];
        if (!line.starts_with('-'))
            continue;
        Text depth = line.substr(1);
        if (depth.ends_with(ParagraphMark))
            depth.pop_back();
        line = "-" + cv2m(depth) + ParagraphMark;
    }
    box.text = FlowingText(lines, count);
}

// Cells that begin with "@" are not depths.
static void ConvertInnerLayers()
{
    for (int row = 1; row <= BoringData.InnerLayerCount; ++row)
        for (int column = 1; column <= 2; ++column) {
            Text& cell = BoringData.InnerLayers[row][column];
            if (!cell.starts_with('@'))
                SSInnerLay.Cell(row, column) = cell = cv2m(cell);
        }
}

void convertfeet2meters()
try {
    if (MemoDes.DisplayLines().size() > MaxDes)
        throw RunTimeError{SubscriptOutOfRange}; // the box is rebuilt from the record: what is not in it would be lost
    TakeBoringBoxes();
    FileChanged = 1;
    ConvertScale();
    ConvertColumn(BoringData.Samples, BoringData.SampleCount, SSSamp, 1);
    ConvertColumn(BoringData.Samples, BoringData.SampleCount, SSSamp, 2);
    ConvertMarkers(BoringData.Des, BoringData.DesCount, MemoDes);
    ConvertColumn(BoringData.Lith, BoringData.LithCount, SSLith, 1);
    ConvertColumn(BoringData.Params, BoringData.ParamCount, SSPar, 1);
    for (const int row : {5, 6, 7, 8, 9, 11, 12, 14})
        SSGenWellInfo.Cell(row, 1) = BoringData.GenWell[row] = cv2m(BoringData.GenWell[row]);
    ConvertColumn(BoringData.OuterLayers, BoringData.OuterLayerCount, SSOuterLay, 1);
    ConvertColumn(BoringData.OuterLayers, BoringData.OuterLayerCount, SSOuterLay, 2);
    ConvertMarkers(BoringData.Remarks, BoringData.RemarkCount, MemoRemarks);
    ConvertInnerLayers();
    ConvertColumn(BoringData.Formations, BoringData.FormationCount, SSFormations, 1);
    ConvertColumn(BoringData.Cuttings, BoringData.CuttingCount, SSCuttings, 1);
} catch (...) {
    ReportFailure(__func__);
}
