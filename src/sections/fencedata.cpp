// fencedata.cpp -- the definition of a fence diagram as it is drawn: the renderer's own reader of the .FEN file.
#include "run/screenview.h"
#include "sections/fencerun.h"
#include "sections/sectionboring.h"
#include "sections/sheetrun.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/session.h"

#include <cmath>

using namespace VCROSS;

constexpr int fenceLegendRows = 8;

// A piece of a row, trimmed, and the row cut behind it.
static std::string_view TakePiece(std::string_view& row)
{
    const std::string_view piece = Before(row, ',');
    row = Behind(row, ',');
    return Trim(piece);
}

// "X,Y,file,water,place,label". A row without a comma, or with nothing in it, is no boring.
static void ReadBoring(const Text& line, int i)
{
    if (line == ",,,,," || !Holds(line, ','))
        return;
    CrossRun.boringCount = static_cast<int16_t>(i);
    std::string_view row = line;
    const auto coordinate = [&row] {
        const std::string_view piece = TakePiece(row);
        return IsBlank(piece) ? -1.0 : TextNumber(piece);
    };
    FenceRun.siteX[i] = coordinate();
    FenceRun.siteY[i] = coordinate();
    const Text file(TakePiece(row));
    CrossRun.boringFile[i] = file.empty() ? file : BoringFileOf(file);
    CrossRun.waterDepth[i] = TextNumber(TakePiece(row));
    CrossRun.labelAtBottom[i] = SameText(TakePiece(row), "B");
    CrossRun.labelBoringName[i] = SameText(Trim(row), "B");
}

// The boring that one half of a section row names: by the front of its file's name, the last of equals, or by its row.
static int16_t PanelEnd(std::string_view half)
{
    const Text name = UpperCase(Trim(half));
    int16_t boring = 0;
    for (int i = 1; i <= MaxFenceBorings && !name.empty(); ++i)
        if (Before(UpperCase(CrossRun.boringFile[i]), '.') == name)
            boring = static_cast<int16_t>(i);
    if (boring != 0)
        return boring;
    const double row = std::nearbyint(TextNumber(name));
    return row >= 1 && row <= MaxFenceBorings && HasBoring(static_cast<int>(row)) ? static_cast<int16_t>(row)
                                                                                  : int16_t(0);
}

static void ReadPanel(const Text& line, int k)
{
    if (!Holds(line, ','))
        return;
    FenceRun.sectionCount = static_cast<int16_t>(k);
    FenceRun.sectionA[k] = PanelEnd(Before(line, ','));
    FenceRun.sectionB[k] = PanelEnd(Behind(line, ','));
}

static float ReadNumber(LineReader& in)
{
    return static_cast<float>(TextNumber(in.Line()));
}

static void ReadScales(LineReader& in)
{
    // Taken off the 32-bit coordinates, so that those of a national grid lose their decimals here and nowhere else.
    FenceRun.xStart = ReadNumber(in);
    for (int i = 1; i <= MaxFenceBorings; ++i)
        FenceRun.siteX[i] = double(FenceRun.siteX[i]) - FenceRun.xStart;
    FenceRun.xEnd = ReadNumber(in);
    FenceRun.xInc = ReadNumber(in);
    FenceRun.xUnit = in.Line();
    FenceRun.yStart = ReadNumber(in);
    for (int i = 1; i <= MaxFenceBorings; ++i)
        FenceRun.siteY[i] = double(FenceRun.siteY[i]) - FenceRun.yStart;
    CrossRun.vStart = RoundInt32(TextNumber(in.Line()));
    CrossRun.vEnd = RoundInt32(TextNumber(in.Line()));
    CrossRun.vInc = RoundInt32(TextNumber(in.Line()));
    CrossRun.vUnit = in.Line();
}

// "d,r": the side of the compass that the viewer looks to, and how far the site is turned.
static void ReadDirection(const Text& line)
{
    const Text letter = UpperCase(Trim(Before(line, ',')));
    const std::string_view turn = Trim(Behind(line, ','));
    FenceRun.rotation = turn == "90" ? 1 : turn == "180" ? 2 : turn == "270" ? 3 : 0;
    const int direction = letter == "N" ? 1 : letter == "E" ? 2 : letter == "S" ? 3 : letter == "W" ? 4 : 0;
    // Kept: an unknown letter takes part as 0, so there is always an arrow on the page.
    const int facing = direction - FenceRun.rotation;
    FenceRun.facing = static_cast<int16_t>(facing < 1 ? facing + 4 : facing);
}

static void SetPage(const Text& mode)
{
    const bool large = mode == "T";
    CrossRun.pageMode = mode;
    CrossRun.pageWidth = large ? 17.0f : 11.0f;
    CrossRun.pageHeight = large ? 11.0f : 8.5f;
    FenceRun.baseWidth = large ? 8.0f : 6.0f;
    FenceRun.baseRise = large ? 6.0f : 3.0f;
}

static Text LineOrBlank(LineReader& in)
{
    return in.AtEnd() ? "" : in.Line();
}

static void ReadDefinition(LineReader& in)
{
    in.Skip(1);
    for (int i = 1; i <= MaxFenceBorings; ++i)
        ReadBoring(in.Line(), i);
    in.Skip(1);
    for (int k = 1; k <= MaxPanels; ++k)
        ReadPanel(in.Line(), k);
    in.Skip(1);
    ReadScales(in);
    in.Skip(1);
    CrossRun.mainTitle = in.Line();
    CrossRun.title1 = in.Line();
    CrossRun.title2 = in.Line();
    FenceRun.title3 = in.Line();
    CrossRun.drawLayers = SameText(Trim(in.Line()), "Y");
    ReadDirection(in.Line());
    for (int row = 1; row <= fenceLegendRows; ++row)
        CrossRun.legendRows[row] = in.Line();
    const Text page(Trim(LineOrBlank(in)));
    SetPage(page.empty() || SameText(page, "L") ? "L" : "T");
    const Text gis = LineOrBlank(in);
    if (IsBlank(gis))
        return;
    CrossRun.useGIS = 1;
    CrossRun.gisPath = JoinPath(ProjectPath, gis);
}

bool VCROSS::getfencedata()
try {
    ResetCrossRun();
    ResetFenceRun();
    SetPage("L");
    if (!DefinitionThere())
        return false;
    LineReader in(RunPages.pageFile);
    ReadDefinition(in);
    return true;
} catch (...) {
    // What was read is drawn.
    ReportFailure(__func__);
    return true;
}
