// wellpage.cpp -- a page with a well diagram under test.
#include "wellpage.h"

#include "report/heading.h"

void StartWell(bool large)
{
    StartColumn();
    SetPatterns({1, 2, 3, 4, 5, 6, 19, 21, 22, 23});
    HeadingWords[5] = "Elev.";
    HeadingWords[13] = "Well";
    const char* const words[] = {"PACKER", "FILL", "GROUT", "SEAL", "FILTER", "PACK", "CENT", "SCREEN", "PUMP"};
    for (int i = 0; i < 9; ++i)
        HeadingWords[31 + i] = words[i];
    LogGeometry.ColumnNumber = 1;
    LogGeometry.WellScale = large ? 0.6f : 0.0f;
}

void AddLayer(const char* start, const char* end, const char* text, const char* label, const char* fill)
{
    auto& row = LogBoring.OuterLayers[++LogBoring.OuterLayerCount];
    row[1] = start;
    row[2] = end;
    row[3] = text;
    row[4] = label;
    row[5] = fill;
}

void AddRing(const char* start, const char* end, const char* text, const char* label, const char* width)
{
    auto& row = LogBoring.InnerLayers[++LogBoring.InnerLayerCount];
    row[1] = start;
    row[2] = end;
    row[3] = text;
    row[4] = label;
    row[5] = width;
}

Drawing Diagram()
{
    VLOG::drawgw();
    CHECK(Messages.empty());
    return Drawn(2);
}
