// columns.cpp -- the table of all columns of a log. Start here.
//
// A report part's name, in upper case, is tested against the table from the top; the first line that fits wins, so the
// order matters: "P12G" stands before "P". A new column is a file of its own, a line in vlog.h and a line here.
#include "canvas/metaugl.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"
#include "run/batchrun.h"
#include "session/failure.h"
#include "session/platform.h"

#include <cmath>

namespace
{
enum Test { Begins, Equals };

struct Column {
    Test Kind;
    const char* Words;
    void (*Draw)(const Text& name, float width);
};
} // namespace

static void Classification(bool graphic, float width)
{
    LogGeometry.GraphicFlag = graphic;
    LogGeometry.ColumnWidth = width;
    VLOG::drawuscs();
    setscaley(1);
    moveto(LogGeometry.ColumnWidth, 0.1);
}

// The first line of the descriptions chooses among their three forms.
static void Descriptions(float width)
{
    LogGeometry.ColumnWidth = width / 2.0;
    const Text first = UpperCase(LogBoring.Des[1]);
    if (first.starts_with("MANUAL"))
        VLOG::drawdesold();
    else if (first.starts_with("@"))
        VLOG::drawdes();
    else
        VLOG::drawdesdot();
}

static void Depth(const Text&, float width)
{
    LogGeometry.ColumnWidth = width;
    VLOG::drawscale();
}

static void Elevation(const Text&, float)
{
    VLOG::drawelev();
    moveto(0.4, 0);
}

static void Samples(const Text& name, float)
{
    LogGeometry.GraphicSampleFlag = name == "SAMPLE BOX-GRAPHIC";
    VLOG::drawsamp();
}

static void Cuttings(const Text& name, float)
{
    if (name == "CUTTINGS")
        VLOG::drawcuttings();
    else
        VLOG::drawcuttingsgraph();
}

static int16_t NumberBehind(const Text& name, size_t letters)
{
    return RoundInt16(TextNumber(std::string_view(name).substr(letters)));
}

static void SampleParameter(const Text& name, float width)
{
    const double number = std::nearbyint(TextNumber(std::string_view(name).substr(1)));
    if (number > SampleParams) {
        MsgBox("Report Part, 'P" + PlainNumber(number) + ",' refers to a parameter number greater than 16.  ", OkOnly,
               Exclamation);
        return;
    }
    LogGeometry.ParamNumber[1] = RoundInt16(number);
    VLOG::drawpar(width);
}

static void SampleGraph(const Text& name, float width)
{
    LogGeometry.ParamNumber[1] = NumberBehind(name, 1);
    VLOG::drawpargraph(width);
}

static void SamplePair(int16_t first)
{
    LogGeometry.ParamNumber[1] = first;
    LogGeometry.ParamNumber[2] = static_cast<int16_t>(first + 1);
    VLOG::draw2pargraph();
}

static void SampleFour(const Text&, float)
{
    for (int16_t n = 1; n <= 4; ++n)
        LogGeometry.ParamNumber[n] = n;
    VLOG::draw4pargraph();
}

static void GeneralParameter(const Text& name, float width)
{
    LogGeometry.ParamNumber[1] = NumberBehind(name, 2);
    VLOG::drawgpar(width);
}

static void GeneralGraph(const Text& name, float)
{
    LogGeometry.ParamNumber[1] = NumberBehind(name, 3);
    VLOG::drawgpargraph();
}

static void GeneralGraphs(const Text& name, float width)
{
    LogGeometry.ColumnWidth = width;
    LogGeometry.GraphList = name.substr(3);
    VLOG::drawmpgraph();
}

static void WellDiagram(float scale)
{
    LogGeometry.WellScale = scale;
    VLOG::drawgw();
}

static const Column columns[] = {
    {Begins, "DEP", Depth},
    {Begins, "ELEV", Elevation},
    {Begins, "FORM", [](const Text&, float) { VLOG::drawformation(); }},
    {Equals, "USCS", [](const Text&, float width) { Classification(false, width); }},
    {Equals, "GRAPHIC", [](const Text&, float width) { Classification(true, width); }},
    {Begins, "DES", [](const Text&, float width) { Descriptions(width); }},
    {Begins, "SAMP", Samples},
    {Equals, "BLOW COUNT", [](const Text&, float) { VLOG::drawblows(); }},
    {Equals, "BLOW COUNT GRAPH", [](const Text&, float) { VLOG::drawblowgraph(); }},
    {Equals, "BLOW COUNT GRAPH-WIDE", [](const Text&, float) { VLOG::drawblowgraph2(); }},
    {Begins, "LAB", [](const Text&, float) { VLOG::drawlabno(); }},
    {Equals, "P1G", SampleGraph},
    {Equals, "P2G", SampleGraph},
    {Equals, "P3G", SampleGraph},
    {Equals, "P4G", SampleGraph},
    {Equals, "P12G", [](const Text&, float) { SamplePair(1); }},
    {Equals, "P34G", [](const Text&, float) { SamplePair(3); }},
    {Equals, "P1-4G", SampleFour},
    {Begins, "P", SampleParameter},
    {Begins, "WELL C", [](const Text&, float width) { VLOG::drawwcon(width); }},
    {Begins, "WCON", [](const Text&, float width) { VLOG::drawwcon(width); }},
    {Begins, "GPG", GeneralGraph},
    {Begins, "GP", GeneralParameter},
    {Equals, "GW", [](const Text&, float) { WellDiagram(0.6); }},
    {Equals, "WELL DIAGRAM", [](const Text&, float) { WellDiagram(0.6); }},
    {Equals, "SGW", [](const Text&, float) { WellDiagram(0); }},
    {Equals, "WELL DIAGRAM-SMALL", [](const Text&, float) { WellDiagram(0); }},
    {Equals, "REMARKS", [](const Text&, float width) { VLOG::drawremarks(width); }},
    {Begins, "MPG", GeneralGraphs},
    {Begins, "CUTT", Cuttings},
    {Begins, "WATER", [](const Text&, float) { VLOG::drawwaterlevels(); }},
};

static bool Fits(const Column& column, const Text& name)
{
    return column.Kind == Equals ? name == column.Words : name.starts_with(column.Words);
}

static const Column* FindColumn(const Text& name)
{
    for (const Column& column : columns)
        if (Fits(column, name))
            return &column;
    return nullptr;
}

bool VLOG::knowncolumn(const Text& name)
{
    return FindColumn(name) != nullptr;
}

// Draws the report part at ColumnNumber and advances it and the progress bar. An unknown one is told; nothing is drawn
// for it and no width is taken up.
void VLOG::processrepparts()
try {
    // A column that failed on an axis of no length has left a scale of 0. Those after it are misplaced, but drawn.
    if (PageCanvas.scaleX == 0)
        setscalex(1);
    if (PageCanvas.scaleY == 0)
        setscaley(1);
    const ReportPart& part = LogBoring.RepParts[LogGeometry.ColumnNumber];
    const Text name = UpperCase(part.Item);
    if (const Column* found = FindColumn(name))
        found->Draw(name, static_cast<float>(TextNumber(part.Width)));
    else
        MsgBox("Report Part Unknown: " + part.Item, OkOnly, Exclamation);
    ++LogGeometry.ColumnNumber;
    incseg(2);
} catch (...) {
    ReportFailure(__func__);
    ++LogGeometry.ColumnNumber; // the run goes on with the next column
}
