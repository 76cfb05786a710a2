// logrecord.h -- LogPage, LogBoring, LogGeometry: what the columns of one log page draw from.
//
// LogBoring is the renderer's own copy of the boring, read afresh from its file for each page by getvlogdata, since
// process_sam_con_form cuts its depths at the page's ends. All of it starts empty at each reading but the title block
// codes and HasBottomRow, which stay in force when a layout file is missing. Depths are 32-bit.
#pragma once

#include "boring/boringdata.h"

struct LogPageRecord {
    Text BoringFileName;
    Text PageCaption;
    float PageStartDepth = 0, PageEndDepth = 0;
};
extern LogPageRecord LogPage;

struct LogContact {
    float Depth = 0;
    Text Pattern; // with "F" in front of a bare number
    Text LineType;
    Text Color;
    int16_t Offset = 0; // lines, used by drawdesold
};

struct LogSample {
    float Top = 0, Bottom = 0;
    Text Condition, Blows, LabNumber; // Blows "-1" when the line is empty
    Slots<Text, SampleParams> Param;  // trimmed
};

struct LogFormation {
    float Depth = 0;  // of its bottom
    Text Description; // name, comma, abbreviation as typed
};

struct LogCuttings {
    float Depth = 0, Fine = 0, Medium = 0, Coarse = 0;
};

// One row of a parameter set-up, its axis normalised.
struct LogParamSetup {
    Text Name, Heading, Axis; // Axis: "Graph St.,End,Inc" as typed
    Slots<Text, 3> Split;
    Text File, Field; // general parameters only
    float Start = 0, End = 0, Increment = 0;
    bool NoLines = false; // ",N" behind the axis
};

struct LogBoringRecord {
    Text Version, Name, MapFile;
    TextTable<MaxInfo, 2> Info;
    float TickIncrement = 0;
    int16_t TicksPerIncrement = 0;
    int16_t PageBreakMarker = 0; // 1: the page break line is not empty
    float PageLength = 0;        // inches, 0 for the frame's own
    Text UnitWord;
    bool HeadingTurned = false;
    Text SurfElevText;
    float SurfElev = 0;
    int16_t StartElev = 0;
    Slots<ReportPart, MaxRepParts> RepParts;
    int32_t RepPartCount = 0; // -1: refused or failed
    Text LayoutFile;
    Slots<LogSample, MaxSamples> Samples;
    int32_t SampleCount = 0;
    Slots<LogContact, MaxLith> Contacts;
    int32_t ContactCount = 0;
    Slots<Text, MaxDes> Des; // cut at the paragraph mark, depth-placed blocks behind the others
    int32_t DesCount = 0;
    TextTable<MaxParams, 21> Params;
    int32_t ParamCount = 0;
    Slots<LogParamSetup, SampleParams> SampleSetup;
    Slots<LogParamSetup, GenParams> GenSetup;
    TextTable<MaxWellInfo, 2> WellInfo;
    int32_t WellInfoCount = 0;
    Slots<Text, MaxWellNotes> WellNotes;
    int32_t WellNoteCount = 0;
    Slots<Text, MaxGenWell> GenWell;
    TextTable<MaxLayers, 5> OuterLayers, InnerLayers;
    int32_t OuterLayerCount = 0, InnerLayerCount = 0;
    Slots<Text, MaxRemarks> Remarks;
    int32_t RemarkCount = 0;
    Slots<LogCuttings, MaxCuttings> Cuttings;
    int32_t CuttingCount = 0;
    TextTable<MaxLegend, 2> Legend;
    int32_t LegendCount = 0;
    Slots<LogFormation, MaxFormations> Formations;
    int32_t FormationCount = 0;
    Slots<Text, MaxBottNotes> BottNotes;
    Slots<Text, MaxClient> Client;
    int16_t Style = 1;
    int16_t Draft = 0;
};
extern LogBoringRecord LogBoring;

struct LogGeometryRecord {
    char FrameKind = 'P';     // P portrait, L landscape, T wide
    int16_t HasBottomRow = 0; // 1: portrait with title blocks in its bottom row
    Slots<int16_t, 12> TitleBlocks;
    float DepthPerInch = 0; // set by drawscale
    float BottomDepth = 0;  // depth of the last contact, set by drawscale
    float BottomSpan = 0;   // depth span that columns draw, set by drawscale
    float ColumnWidth = 0;  // inches
    int16_t ContactFirst = 0, ContactLast = 0;
    int16_t SampleFirst = 0, SampleLast = 0;
    float SampleTopHeld = 0, SampleBottomHeld = 0; // before the cut at the page's ends
    int16_t FormationFirst = 0, FormationLast = 0;
    int16_t ColumnNumber = 0;       // the report part in progress
    bool GraphicFlag = false;       // drawuscs: patterns, not letters
    bool GraphicSampleFlag = false; // drawsamp: condition boxes, not numbers
    float WellScale = 0; // of drawgw: 0.6 for the large form, 0 for the small one; it adds to it for the third well on
    Slots<int16_t, 4> ParamNumber; // parameters of a graph column
    Text GraphList;                // drawmpgraph: what stands behind "MPG"
};
extern LogGeometryRecord LogGeometry;

// Return the length of the depth range on the page, and the height of the column lines from the top of the heading
// band, both in inches.
double DrawingLength();
double ColumnHeight();
