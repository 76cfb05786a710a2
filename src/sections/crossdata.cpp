// crossdata.cpp -- the definition of a cross section as its drawing has it: read from the .CRO file.
//
// A second reader of that file besides OpenCrossFile, on purpose: a page shows what is on disk, never what the form
// holds.
#include "canvas/metaugl.h"
#include "run/screenview.h"
#include "sections/crossrun.h"
#include "sections/sectionboring.h"
#include "sections/sheetrun.h"
#include "session/deviceconfig.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/session.h"

#include <algorithm>
#include <cmath>

using namespace VCROSS;

static bool SaysBottom(const Text& cell)
{
    return UpperCase(cell) == "B";
}

// ---- Borings

// A row "distance,file,water,flag" of the older form. Kept: a row without a comma leaves its slot as it is.
static void ReadOldRow(const Text& line, int i)
{
    if (line == ",,," || !Holds(line, ','))
        return;
    CrossRunRecord& run = CrossRun;
    run.distance[i] = TextNumber(Before(line, ','));
    const std::string_view behindDistance = Behind(line, ',');
    run.boringFile[i] = BoringFileOf(Text(RTrim(Before(behindDistance, ','))));
    const std::string_view behindFile = Behind(behindDistance, ',');
    run.waterDepth[i] = TextNumber(Before(behindFile, ','));
    if (UpperCase(RTrim(Behind(behindFile, ','))) == "B")
        run.labelBoringName[i] = 1;
    run.boringCount = static_cast<int16_t>(i);
}

// "text|azimuth|inclination": without a bar the text alone, and the boring's inclination stays as it was; with one
// bar it is a vertical boring.
static void ReadSecondLabel(const Text& line, int i)
{
    CrossRunRecord& run = CrossRun;
    run.label2[i] = Before(line, '|');
    if (!Holds(line, '|'))
        return;
    const std::string_view behindLabel = Behind(line, '|');
    if (!Holds(behindLabel, '|')) {
        run.azimuth[i] = run.inclination[i] = run.apparentAngle[i] = 0;
        run.depthFactor[i] = 1;
        return;
    }
    constexpr double radians = 3.1415926536 / 180;
    run.azimuth[i] = TextNumber(behindLabel);
    run.inclination[i] = std::min(std::fabs(TextNumber(Behind(behindLabel, '|'))), 90.0);
    const double azimuth = run.azimuth[i], inclination = run.inclination[i];
    run.apparentAngle[i] =
        azimuth < 0 || azimuth > 180 ? (azimuth - 270) / 90 * inclination : (90 - azimuth) / 90 * inclination;
    run.depthFactor[i] = Over(std::cos(inclination * radians), std::cos(run.apparentAngle[i] * radians));
}

static void ReadRow(LineReader& in, int i)
{
    CrossRunRecord& run = CrossRun;
    run.distance[i] = TextNumber(in.Line());
    run.boringFile[i] = BoringFileOf(in.Line());
    run.waterDepth[i] = TextNumber(in.Line());
    run.labelBoringName[i] = SaysBottom(in.Line()) ? 1 : 0;
    run.labelAtBottom[i] = SaysBottom(in.Line()) ? 1 : 0;
    const Text offset = in.Line();
    run.labelOffsetX[i] = TextNumber(offset);
    if (Holds(offset, ','))
        run.labelOffsetY[i] = TextNumber(Behind(offset, ','));
    ReadSecondLabel(in.Line(), i);
}

static void ReadBorings(LineReader& in)
{
    constexpr int oldRows = 15;
    const Text first = in.Line();
    if (IsBlank(first)) {
        CrossRun.boringCount = 0;
        for (int i = 1; i <= oldRows; ++i)
            ReadOldRow(in.Line(), i);
        return;
    }
    CrossRun.boringCount = std::max<int16_t>(RoundInt16(TextNumber(first)), 0);
    for (int i = 1; i <= CrossRun.boringCount; ++i)
        ReadRow(in, i);
}

// ---- Scales and words

static void ReadScales(LineReader& in)
{
    CrossRunRecord& run = CrossRun;
    in.Skip(1);
    run.hStart = TextNumber(in.Line());
    for (int i = 1; i <= run.boringCount; ++i)
        run.distance[i] = run.distance[i] - run.hStart;
    run.hEnd = TextNumber(in.Line());
    run.hInc = TextNumber(in.Line());
    run.hUnit = in.Line();
    run.vStart = RoundInt32(TextNumber(in.Line()));
    run.vEnd = RoundInt32(TextNumber(in.Line()));
    run.vInc = RoundInt32(TextNumber(in.Line()));
    run.vUnit = in.Line();
    in.Skip(1);
}

static void ReadTitles(LineReader& in)
{
    CrossRunRecord& run = CrossRun;
    run.mainTitle = in.Line();
    run.title1 = in.Line();
    run.title2 = in.Line();
    run.leftCornerLabel = in.Line();
    run.rightCornerLabel = in.Line();
    const Text layers = UpperCase(in.Line());
    run.drawLayers = layers == "Y" ? 1 : 0;
    // Kept: any other word, and a blank, draws individual columns, not only "I".
    run.individualColumns = layers == "Y" || layers == "N" ? 0 : 1;
}

// ---- The lines that older files lack

static void SetPage(bool wide)
{
    CrossRun.pageMode = wide ? "T" : "L";
    CrossRun.pageWidth = wide ? 17 : 11;
    CrossRun.pageHeight = wide ? 11 : 8.5;
}

void VCROSS::startsheet()
{
    SetPage(false);
}

static void SetParameter(const Text& line)
{
    static constexpr struct {
        std::string_view front;
        int16_t kind;
    } fronts[] = {{"GPG", 2}, {"GP", 1}, {"PG", 4}, {"P", 3}};
    const Text upper = UpperCase(line);
    CrossRun.paramKind = CrossRun.paramNumber = 0;
    for (const auto& [front, kind] : fronts)
        if (upper.starts_with(front)) {
            CrossRun.paramKind = kind;
            CrossRun.paramNumber = RoundInt16(TextNumber(std::string_view(line).substr(front.size())));
            return;
        }
}

// "width,size". Kept: a width that is given is not doubled for individual columns, the usual one is.
static void SetOptions(const Text& line)
{
    CrossRunRecord& run = CrossRun;
    run.labelSize = Holds(line, ',') ? TextNumber(Behind(line, ',')) : 10;
    if (run.labelSize < 6 || run.labelSize > 20)
        run.labelSize = 10;
    const std::string_view width = Before(line, ',');
    if (IsBlank(width))
        run.columnWidth = run.individualColumns == 1 ? 0.2 : 0.1;
    else
        run.columnWidth = std::max(TextNumber(width), 0.0);
}

// Kept: each line is looked for only while the file lasts, but behind its end the line last read stands for the GIS
// file, for the parameter and for every further legend row. A file of the form's own has them all.
static void ReadTail(LineReader& in, Text line)
{
    const auto next = [&] {
        if (in.AtEnd())
            return false;
        line = in.Line();
        return true;
    };
    SetPage(next() && UpperCase(line) == "T");
    next();
    CrossRun.useGIS = IsBlank(line) ? 0 : 1;
    if (CrossRun.useGIS == 1)
        CrossRun.gisPath = JoinPath(ProjectPath, line);
    next();
    SetParameter(line);
    SetOptions(next() ? line : Text());
    for (int row = 9; row <= MaxLegendRows; ++row) {
        next();
        CrossRun.legendRows[row] = line;
    }
}

static void ReadSection(LineReader& in)
{
    ReadBorings(in);
    ReadScales(in);
    ReadTitles(in);
    for (int row = 1; row <= 8; ++row)
        CrossRun.legendRows[row] = in.Line();
    ReadTail(in, CrossRun.legendRows[8]);
}

static void ClearWords()
{
    CrossRun.labelBoringName = CrossRun.labelAtBottom = {};
    CrossRun.label2 = {};
    CrossRun.legendRows = {};
}

// RunPages.pageFile into CrossRun. A failure is reported and leaves the fields behind it as the file before has set
// them; the page is drawn all the same.
bool VCROSS::getcrossdata()
try {
    ClearWords();
    if (!DefinitionThere())
        return false;
    LineReader in(RunPages.pageFile);
    ReadSection(in);
    return true;
} catch (...) {
    ReportFailure(__func__);
    return true;
}

void VCROSS::dataorigin()
{
    float x = DeviceConfig.MarginX + 1.3;
    float y = CrossRun.pageHeight - 1.2 + DeviceConfig.MarginY;
    setorigin(x, y);
}
