// boringdata.cpp -- the boring record and how it is emptied.
#include "boring/boringdata.h"

#include "session/shared.h"

BoringRecord BoringData;

static const SharedRecord shared[] = {
    {"BoringData", Kind::Document, BoringData},
};

template <int Rows, int Columns>
static void ClearRows(TextTable<Rows, Columns>& table, int count, int columns = Columns)
{
    for (int row = 1; row <= count; ++row)
        for (int column = 1; column <= columns; ++column)
            table[row][column].clear();
}

template <int Rows>
static void ClearLines(Slots<Text, Rows>& lines, int count)
{
    for (int row = 1; row <= count; ++row)
        lines[row].clear();
}

void ClearBoringArrays()
try {
    BoringData.Name.clear();
    BoringData.MapFile.clear();
    ClearRows(BoringData.Info, MaxInfo);
    ClearLines(BoringData.Scale, MaxScale);
    for (int row = 1; row <= BoringData.RepPartCount; ++row)
        BoringData.RepParts[row] = ReportPart();
    BoringData.RepPartCount = 0;
    BoringData.LayoutFile.clear();
    ClearRows(BoringData.Samples, BoringData.SampleCount);
    BoringData.SampleCount = 0;
    ClearRows(BoringData.Lith, BoringData.LithCount);
    BoringData.LithCount = 0;
    ClearLines(BoringData.Des, BoringData.DesCount);
    BoringData.DesCount = 0;
    // Kept: columns 10 to 21 stay, so a file of the 9-column form opened next still shows them.
    ClearRows(BoringData.Params, BoringData.ParamCount, 9);
    BoringData.ParamCount = 0;
    ClearRows(BoringData.SampleParamSetup, SampleParams);
    ClearRows(BoringData.GenParamSetup, GenParams);
    // Kept: the counts of WellInfo, Cuttings, Legend and Formations stay, for the next open or save to overwrite;
    // a converted boring carries that many blank rows.
    ClearRows(BoringData.WellInfo, MaxWellInfo);
    ClearLines(BoringData.WellNotes, BoringData.WellNoteCount);
    BoringData.WellNoteCount = 0;
    ClearLines(BoringData.GenWell, MaxGenWell);
    ClearRows(BoringData.OuterLayers, BoringData.OuterLayerCount);
    BoringData.OuterLayerCount = 0;
    ClearRows(BoringData.InnerLayers, BoringData.InnerLayerCount);
    BoringData.InnerLayerCount = 0;
    ClearLines(BoringData.Remarks, BoringData.RemarkCount);
    BoringData.RemarkCount = 0;
    ClearRows(BoringData.Cuttings, BoringData.CuttingCount);
    ClearRows(BoringData.Legend, BoringData.LegendCount);
    ClearRows(BoringData.Formations, BoringData.FormationCount);
    ClearLines(BoringData.BottNotes, MaxBottNotes);
    ClearLines(BoringData.Client, MaxClient);
    BoringData.Style = 0;
    BoringData.Draft = 0;
} catch (...) {
    ReportFailure(__func__);
}
