// soiltable.cpp -- the soil analysis table: one landscape page with the log of a boring and the results of its samples.
//
// The page hangs on two points: the border's upper left corner for the head and the foot, and the body's left end at
// depth 0, from which a depth of depthMax reaches 4.4 inches down.
#include "sections/soiltable.h"

#include "boring/boringblocks.h"
#include "canvas/metaugl.h"
#include "canvas/patterns.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"
#include "report/heading.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "sections/sectionboring.h"
#include "sections/sheetrun.h"
#include "session/deviceconfig.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/session.h"
#include "session/shared.h"

#include <algorithm>
#include <cmath>

VCROSS::SoilRunRecord VCROSS::SoilRun;

static const SharedRecord shared[] = {
    {"VCROSS::SoilRun", Kind::Run, VCROSS::SoilRun},
};

using namespace VCROSS;

// ---- The definition file and its boring

// "1,3,16": a column each. A number that no parameter can have is kept as one that is found out when it is drawn.
static void ReadColumns(std::string_view list)
{
    while (!list.empty()) {
        const std::string_view piece = Before(list, ',');
        list = Behind(list, ',');
        if (!IsBlank(piece))
            SoilRun.columnParam.push_back(int(std::clamp(std::nearbyint(TextNumber(piece)), -1.0, SampleParams + 1.0)));
    }
}

static void ReadDefinition(LineReader& in)
{
    SoilRun.boringFile = in.Line();
    ReadColumns(in.Line());
    SoilRun.label1 = in.Line();
    SoilRun.label2 = in.Line();
    SoilRun.graph = SameText(Trim(in.Line()), "Y");
    SoilRun.mainTitle = in.Line();
    SoilRun.title1 = in.Line();
    SoilRun.title2 = in.Line();
    SoilRun.title3 = in.Line();
    for (int row = 1; row <= MaxBottNotes; ++row)
        SoilRun.notes[row] = Before(in.Line(), ParagraphMark);
}

// The path of the boring. One without a name is nowhere.
static Text BoringPath()
{
    const Text name(Trim(SoilRun.boringFile));
    return SectionBoringPath(name.empty() ? name : BoringFileOf(name));
}

// A sample counts once it is whole.
static void ReadSamples(LineReader& in)
{
    const int rows = in.Count();
    for (int row = 1; row <= rows; ++row) {
        SoilRun.sampleStart[row] = TextNumber(in.Line());
        SoilRun.sampleEnd[row] = TextNumber(in.Line());
        in.Skip(2);
        SoilRun.sampleLab[row] = in.Line();
        for (int n = 1; n <= SampleParams; ++n)
            SoilRun.sampleParam[row][n] = in.Line();
        SoilRun.sampleCount = row;
    }
}

static void ReadLayers(LineReader& in)
{
    const int rows = in.Count();
    for (int row = 1; row <= rows; ++row) {
        SoilRun.layerDepth[row] = TextNumber(in.Line());
        SoilRun.layerCode[row] = LayerCode(in.Line());
        in.Skip(2);
        SoilRun.layerCount = row;
    }
}

static void ReadBoring(const Text& path)
{
    SectionBoringFile boring(path);
    LineReader& in = boring.in;
    SoilRun.boringName = in.Line();
    in.Skip(1 + 2 * MaxInfo); // the map file and the information
    SoilRun.depthMax = TextNumber(in.Line());
    SoilRun.depthInc = TextNumber(Before(in.Line(), ','));
    in.Skip(1);
    SoilRun.depthUnit = Before(in.Line(), ',');
    in.Skip(3);
    boring.Pass(2); // report parts
    in.Skip(1);
    ReadSamples(in);
    ReadLayers(in);
    boring.Pass(1); // description
    boring.Pass(boring.ParamCells());
    for (int n = 1; n <= SampleParams; ++n) {
        in.Skip(3);
        for (Slots<Text, SampleParams>* words : {&SoilRun.split1, &SoilRun.split2, &SoilRun.split3, &SoilRun.standard1,
                                                 &SoilRun.standard2, &SoilRun.units})
            (*words)[n] = in.Line();
    }
    in.Skip(8 * GenParams);
    boring.Pass(2); // well information
    boring.Pass(1); // well notes
    in.Skip(MaxGenWell);
    boring.Pass(LayerCells); // outer layers
    boring.Pass(LayerCells); // inner layers
    boring.ClientBlock();
}

bool VCROSS::getsoildata()
try {
    SoilRun = SoilRunRecord();
    LogBoring.Client = {};
    LogBoring.Style = 1;
    if (!DefinitionThere())
        return false;
    LineReader in(RunPages.pageFile);
    ReadDefinition(in);
    const Text boring = BoringPath();
    if (SectionBoringThere(boring))
        ReadBoring(boring);
    return true;
} catch (...) {
    ReportFailure(__func__);
    return true; // the page is drawn with what was read
}

// ---- The head and the foot

static constexpr double columnWidth = 0.475;

// The line at the right of column n, where the pen is, and what stands in the head of the column. Pen: to the right of
// the next column, at the same height.
static void ColumnHead(int n)
{
    linedown(0.98);
    moveleft(0.2375);
    moveup(0.84);
    printtext(SoilRun.split1[n]);
    movedown(0.12);
    printtext(SoilRun.split2[n]);
    movedown(0.12);
    printtext(SoilRun.split3[n]);
    movedown(0.2);
    if (!IsBlank(SoilRun.label1))
        printtext(SoilRun.standard1[n]);
    movedown(0.16);
    if (!IsBlank(SoilRun.label2))
        printtext(SoilRun.standard2[n]);
    movedown(0.16);
    printtext(SoilRun.units[n]);
    moveright(0.7125);
    moveup(0.9);
}

// The rules under the captions, from the sample columns to the last parameter, and the words at their left end.
static void HeadRules()
{
    moveto(0.95, -0.5);
    const double length = double(SoilRun.columnParam.size()) * columnWidth + 1.0;
    linedown(0.48);
    moveup(0.32);
    lineright(length);
    linedown(0.16);
    lineleft(length);
    linedown(0.16);
    lineright(length);
    moveto(1.45, -0.98);
    lineup(0.16);
    textleft();
    moveto(1.0, -0.58);
    printtext(SoilRun.label1);
    movedown(0.16);
    printtext(SoilRun.label2);
    movedown(0.16);
    moveright(0.2);
    textcenter();
    printtext(HeadingWords[7]);
    moveright(0.5);
    printtext(HeadingWords[8]);
}

// Client, logo, titles and notes, side by side along the foot.
static void Foot()
{
    setfontsize(8);
    textcenter();
    moveto(0, -5.6);
    markorigin();
    lineright(9.55);
    moveto(0, 0);
    VLOG::drawclient(0);
    moveto(0, -0.75);
    VLOG::drawlogo(0);
    moveto(2.4, 0);
    markorigin();
    movedown(0.5);
    lineright(2.5);
    textcenter();
    moveto(1.25, -0.25);
    setfontsize(10);
    printtext(SoilRun.mainTitle);
    setfontsize(9);
    movedown(0.45);
    printtext(HeadingWords[5]);
    movedown(0.2);
    printtext(SoilRun.title1);
    movedown(0.15);
    printtext(SoilRun.title2);
    movedown(0.15);
    printtext(SoilRun.title3);
    moveto(2.5, 0);
    linedown(1.5);
    moveto(2.6, -0.1);
    setfontsize(8);
    textleft();
    printtext(HeadingWords[4] + ":");
    movedown(0.145);
    for (int row = 1; row <= MaxBottNotes; ++row) {
        printtext(SoilRun.notes[row]);
        movedown(0.13);
    }
}

void VCROSS::drawsoilframe()
try {
    SetProgress(SoilRun.layerCount + SoilRun.sampleCount + 1);
    setcolor(0);
    float x = 0.7 + DeviceConfig.MarginX;
    float y = 7.8 + DeviceConfig.MarginY;
    setorigin(x, y);
    setscalex(1);
    setscaley(1);
    rectby(9.55, -7.1);
    movedown(0.5);
    lineright(9.55);
    setfontname(IsBlank(DeviceConfig.FontName) ? "Arial" : DeviceConfig.FontName);
    setfontsize(10);
    textleft();
    moveto(0.1, -0.25);
    printtext(HeadingWords[6] + ": " + SoilRun.boringName);
    moveto(1.95, 0);
    linedown(0.98);
    moveto(2.425, 0);
    textcenter();
    setfontsize(7);
    for (const int n : SoilRun.columnParam)
        ColumnHead(n);
    HeadRules();
    Foot();
} catch (...) {
    ReportFailure(__func__);
}

// ---- The body

static constexpr double logHeight = 4.4;

// The turned words over the depth scale and the two columns of the log.
static void BodyHeadings()
{
    moveup(0.1);
    settextangle(90);
    setfontsize(7);
    textleft();
    printtext(HeadingWords[1]);
    moveright(0.15);
    setfontsize(6);
    printtext("(" + SoilRun.depthUnit + ")");
    moveright(0.325);
    setfontsize(7);
    printtext(HeadingWords[2]);
    moveright(0.25);
    printtext(HeadingWords[3]);
    settextangle(0);
}

// Tick and number at the pen, which ends at the number: 0.07 to the right.
static void DepthTick(double depth)
{
    lineright(0.04);
    moveright(0.03);
    printtext(PlainNumber(depth));
}

// Leaves the y scale in units of depth.
static void DepthScale()
{
    moveto(0, 0);
    DepthTick(0);
    moveto(0, 0);
    if (SoilRun.depthMax == 0) {
        SoilRun.depthMax = 40;
        SoilRun.depthInc = 5;
    }
    setscaley(SoilRun.depthMax / logHeight);
    if (!(SoilRun.depthMax > 0 && SoilRun.depthInc > 0))
        return;
    const int32_t ticks = RoundInt32(WholePart(SoilRun.depthMax / SoilRun.depthInc));
    for (int32_t k = 1; k <= ticks; ++k) {
        linedown(SoilRun.depthInc);
        DepthTick(double(SoilRun.depthInc) * k);
        moveleft(0.07);
    }
}

// The graphic column, with a pattern for each layer, and the column of codes beside it.
static void Lithology()
{
    moveto(0.35, 0);
    markorigin();
    textcenter();
    moveright(0.25);
    rectby(0.25, -SoilRun.layerDepth[SoilRun.layerCount]);
    double top = 0;
    for (int k = 1; k <= SoilRun.layerCount; ++k) {
        const Text& code = SoilRun.layerCode[k];
        const double bottom = SoilRun.layerDepth[k];
        moveto(0.25, -bottom);
        lineright(0.25);
        moveto(0.375, -(top + bottom) / 2);
        printtext(Holds(code, ',') ? Text(Behind(code, ',')) : code);
        // The pattern stands in the column to the left, where it does not cover its code.
        moveto(0, -bottom);
        setpatt(code);
        rectfill(0.25, bottom - top);
        rectby(0.25, bottom - top);
        top = bottom;
        incseg(1);
    }
}

// The value of a sample as a part of the parameter's full scale, at the pen; under it the value as it stands. Pen: to
// the right by one column.
static void Bar(int sample, int n)
{
    const Text& value = SoilRun.sampleParam[sample][n];
    if (IsBlank(value)) {
        moveright(columnWidth);
        return;
    }
    const float v = TextNumber(value);
    const float fullScale = TextNumber(SoilRun.split1[n]);
    const double fullWidth = 0.425;
    const double width = std::min(Over(v, fullScale), 1.0) * fullWidth;
    const double height = double(SoilRun.sampleEnd[sample]) - SoilRun.sampleStart[sample];
    setfillfile(1);
    rectfill(width, -height);
    rectby(width, -height);
    rectby(fullWidth, -height);
    moveright(0.2125);
    movedown(height);
    setscaley(1);
    movedown(0.05);
    printtext(value);
    moveup(0.05);
    setscaley(SoilRun.depthMax / logHeight);
    moveup(height);
    moveright(0.2625);
}

static void Samples()
{
    moveto(0.75, 0);
    markorigin();
    for (int i = 1; i <= SoilRun.sampleCount; ++i) {
        moveto(0, -(double(SoilRun.sampleStart[i]) + SoilRun.sampleEnd[i]) / 2);
        printnum(float(i));
        moveright(0.5);
        printtext(SoilRun.sampleLab[i]);
        if (SoilRun.graph) {
            moveto(0.775, -SoilRun.sampleStart[i]);
            for (const int n : SoilRun.columnParam)
                Bar(i, n);
        } else {
            moveright(0.4875);
            for (const int n : SoilRun.columnParam) {
                printtext(SoilRun.sampleParam[i][n]);
                moveright(columnWidth);
            }
        }
        incseg(1);
    }
}

void VCROSS::drawsoilmain()
try {
    float x = 0.8 + DeviceConfig.MarginX;
    float y = 6.7 + DeviceConfig.MarginY;
    setorigin(x, y);
    BodyHeadings();
    DepthScale();
    Lithology();
    Samples();
    float footX = 0.8 + DeviceConfig.MarginX;
    float footY = 0.65 + DeviceConfig.MarginY;
    setorigin(footX, footY);
    setfontsize(6);
    textleft();
    printtextraw(Platform.ShortDate() + "   " + PrintedName(RunPages.pageFile));
} catch (...) {
    ReportFailure(__func__);
}

// ---- The run

static void DrawPage()
{
    canvasstart("L");
    VCROSS::drawsoilframe();
    VCROSS::drawsoilmain();
}

void VCROSS::vsoilstart()
try {
    RunSheets(3, getsoildata, DrawPage);
} catch (...) {
    Platform.ShowProgress(false);
    ReportFailure(__func__);
}
