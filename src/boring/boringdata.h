// boringdata.h -- BoringData: everything typed about one boring.
//
// Filled by OpenBoringFile2, the converters and, at a save, from the editor's boxes. Stale while the user types:
// then the boxes hold the truth. No renderer reads it; they read the file. Cells are text as typed; only counts,
// Style and Draft are integers. A count may be above the rows in use after a failed reading, never above its bound.
#pragma once

#include "session/slots.h"
#include "session/text.h"

constexpr int MaxInfo = 30, MaxScale = 7, MaxRepParts = 30, MaxSamples = 80, MaxLith = 100, MaxDes = 1000;
constexpr int MaxParams = 100, SampleParams = 16, GenParams = 20, MaxWellInfo = 30, MaxWellNotes = 60;
constexpr int MaxGenWell = 14, MaxLayers = 30, MaxRemarks = 600, MaxCuttings = 100, MaxLegend = 30;
constexpr int MaxFormations = 80, MaxBottNotes = 10, MaxClient = 5;

template <int Rows, int Columns>
using TextTable = Slots<Slots<Text, Columns>, Rows>;

// One column of a log.
struct ReportPart {
    Text Item, Width;
};

struct BoringRecord {
    Text Name;
    Text MapFile;                // picture for the intro page map
    TextTable<MaxInfo, 2> Info;  // prompt, text
    Slots<Text, MaxScale> Scale; // End Depth; Inc,#Ticks; Page Brk,Len.; Meas. In,Rot.; Surf Elev.;
                                 // Start Elev.; X, Y Coord.
    Slots<ReportPart, MaxRepParts> RepParts;
    int32_t RepPartCount = 0;
    Text LayoutFile;
    TextTable<MaxSamples, 21> Samples; // start, end, condition, blow count, lab no., parameters 1 to 16
    int32_t SampleCount = 0;
    TextTable<MaxLith, 4> Lith; // depth of the layer's bottom, USCS, line type, colour
    int32_t LithCount = 0;
    Slots<Text, MaxDes> Des; // stored lines
    int32_t DesCount = 0;
    TextTable<MaxParams, 21> Params; // depth, then general parameters 1 to 20
    int32_t ParamCount = 0;
    TextTable<SampleParams, 9> SampleParamSetup;
    TextTable<GenParams, 8> GenParamSetup;
    TextTable<MaxWellInfo, 2> WellInfo; // prompt, text
    int32_t WellInfoCount = 0;
    Slots<Text, MaxWellNotes> WellNotes; // stored lines
    int32_t WellNoteCount = 0;
    Slots<Text, MaxGenWell> GenWell;     // 1 to 4 well names, ref. elevation, stick-up, casings, ... other depth
    TextTable<MaxLayers, 5> OuterLayers; // start, end, text, label/offset, fill and colour
    int32_t OuterLayerCount = 0;
    TextTable<MaxLayers, 5> InnerLayers; // start, end, text, label/offset, width
    int32_t InnerLayerCount = 0;
    Slots<Text, MaxRemarks> Remarks; // stored lines
    int32_t RemarkCount = 0;
    TextTable<MaxCuttings, 4> Cuttings; // depth, % fine, % medium, % coarse
    int32_t CuttingCount = 0;
    TextTable<MaxLegend, 2> Legend; // USCS, text: the intro page's
    int32_t LegendCount = 0;
    TextTable<MaxFormations, 2> Formations; // depth; description, abbreviation
    int32_t FormationCount = 0;
    Slots<Text, MaxBottNotes> BottNotes;
    Slots<Text, MaxClient> Client;
    int16_t Style = 0; // client block: 1 Open, 2 1 Line A, 3 2 Line, 4 1 Line B; 0 none chosen
    int16_t Draft = 0; // 1: drawn as a draft
};
extern BoringRecord BoringData; // one boring is open at a time

// Empties the record for New and for the converters, in file order; of the lists only the rows in use.
void ClearBoringArrays();
