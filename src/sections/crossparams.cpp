// crossparams.cpp -- sample or general parameters beside the columns of a section, as boxes of text or small graphs.
//
// A graph is a strip 0.2 inch wide on the column's left side, its values growing leftward from the strip's right edge.
#include "boring/boringblocks.h"
#include "boring/boringdata.h"
#include "canvas/metaugl.h"
#include "run/batchrun.h"
#include "sections/crossrun.h"
#include "sections/sectionboring.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/session.h"

#include <algorithm>

using namespace VCROSS;

namespace
{
// The parameter of one boring.
struct Values {
    int32_t paramRowCount = 0;
    Slots<float, MaxParams> paramDepth;
    Slots<Text, MaxParams> paramValue; // as typed
    SectionWell well;
};

// The data file of a general parameter; an empty name: the table has the values. Kept: it stays from boring to boring
// where no set-up is read, but not from page to page.
struct DataFile {
    Text paramFile;
    int16_t paramFileColumn = 0, paramFileSkip = 0;
};
} // namespace

static bool GeneralTable()
{
    return CrossRun.paramKind == 1 || CrossRun.paramKind == 2;
}

static bool IsGraph()
{
    return CrossRun.paramKind == 2 || CrossRun.paramKind == 4;
}

// ---- Reading

// The parameter among so many lines; empty for a number that the row does not have.
static Text TakeLine(LineReader& in, int lines)
{
    Text taken;
    for (int line = 1; line <= lines; ++line) {
        Text text = in.Line();
        if (line == CrossRun.paramNumber)
            taken = std::move(text);
    }
    return taken;
}

// Samples stand at their middle.
static void ReadSamples(SectionBoringFile& boring, Values& values)
{
    if (GeneralTable())
        return boring.Pass(SampleCells);
    values.paramRowCount = boring.in.Count();
    for (int row = 1; row <= values.paramRowCount; ++row) {
        const double start = TextNumber(boring.in.Line());
        values.paramDepth[row] = (start + TextNumber(boring.in.Line())) / 2;
        boring.in.Skip(3);
        values.paramValue[row] = TakeLine(boring.in, SampleParams);
    }
}

static void ReadParams(SectionBoringFile& boring, Values& values)
{
    if (!GeneralTable())
        return boring.Pass(boring.ParamCells());
    values.paramRowCount = boring.in.Count();
    for (int row = 1; row <= values.paramRowCount; ++row) {
        values.paramDepth[row] = TextNumber(boring.in.Line());
        values.paramValue[row] = TakeLine(boring.in, boring.ParamCells() - 1);
    }
}

// The third line of a set-up, "start,end,increment".
static void TakeRange(const Text& line)
{
    const bool told = Holds(line, ',');
    CrossRun.graphStart = told ? TextNumber(Before(line, ',')) : 0;
    CrossRun.graphEnd = told ? TextNumber(Behind(line, ',')) : 100;
}

// The set-ups of both kinds. Without one of that number the graph's range stays as it was.
static void ReadSetups(LineReader& in, DataFile& file)
{
    for (int row = 1; row <= SampleParams; ++row) {
        in.Skip(2);
        const Text range = in.Line();
        in.Skip(6);
        if (CrossRun.paramKind == 4 && row == CrossRun.paramNumber)
            TakeRange(range);
    }
    for (int row = 1; row <= GenParams; ++row) {
        in.Skip(2);
        const Text range = in.Line();
        in.Skip(3);
        const Text name = in.Line(), field = in.Line();
        if (CrossRun.paramKind != 2 || row != CrossRun.paramNumber)
            continue;
        TakeRange(range);
        file.paramFile = Trim(name);
        if (!file.paramFile.empty()) {
            file.paramFileColumn = RoundInt16(TextNumber(field));
            file.paramFileSkip = RoundInt16(TextNumber(Behind(field, ',')));
        }
    }
}

static void ReadBoring(const Text& path, int i, Values& values, DataFile& file)
{
    SectionBoringFile boring(path);
    boring.ToSamples();
    ReadSamples(boring, values);
    boring.Pass(LithCells);
    boring.Pass(1); // descriptions
    ReadParams(boring, values);
    ReadSetups(boring.in, file);
    boring.Pass(2); // well construction
    boring.Pass(1); // its notes
    boring.GenWell(i, values.well);
    boring.OuterLayers(values.well);
}

// ---- Boxes

// The values in white boxes left of the column, one for each, 0.12 inch high however close they come.
static void DrawBoxes(const Values& values)
{
    size_t longest = 2;
    for (int row = 1; row <= values.paramRowCount; ++row)
        longest = std::max(longest, values.paramValue[row].size());
    const float b = double(longest) * 0.0375 + 0.05;
    setscalex(1);
    moveleft(double(CrossRun.columnWidth) / 2 + double(b) / 2 + 0.05);
    markorigin();
    setfontsize(6);
    textcenter();
    for (int row = 1; row <= values.paramRowCount; ++row) {
        if (IsBlank(values.paramValue[row]))
            continue;
        moveto(0, -values.paramDepth[row]);
        setscaley(1);
        moveleft(b / 2);
        movedown(0.06);
        rectfillflag(b, 0.12, 0);
        rectby(b, 0.12);
        moveright(b / 2);
        moveup(0.065);
        printtext(values.paramValue[row]);
        setscaley(CrossRun.scaleY);
    }
}

// ---- Graphs

// The empty strip with a dotted middle line and the ends of its range. Leaves the origin at its upper right corner and
// x in units of the parameter.
static void DrawStrip(double boreDepth)
{
    setscalex(1);
    moveleft(double(CrossRun.columnWidth) / 2 + 0.05);
    markorigin();
    rectfillflag(-0.2, -boreDepth, 0);
    rectby(-0.2, -boreDepth);
    moveto(-0.1, 0);
    setlinestyle(5);
    linedown(boreDepth);
    setlinestyle(1);
    moveto(0, 0);
    setfontsize(6);
    textcenter();
    setscaley(1);
    // A start of two characters and more would run into the column.
    const double shift = PlainNumber(double(CrossRun.graphStart)).size() > 1 ? 0.03 : 0;
    lineup(0.04);
    moveup(0.04);
    moveleft(shift);
    printnum(CrossRun.graphStart);
    movedown(0.08);
    moveright(shift);
    moveleft(0.2);
    lineup(0.04);
    moveup(0.04);
    printnum(CrossRun.graphEnd);
    setscaley(CrossRun.scaleY);
    setscalex((double(CrossRun.graphEnd) - CrossRun.graphStart) / 0.2);
}

// A value's way from the strip's right edge, held within the strip.
static float Held(std::string_view value)
{
    const float range = CrossRun.graphEnd - CrossRun.graphStart;
    return std::min(std::max(static_cast<float>(TextNumber(value) - CrossRun.graphStart), 0.0f), range);
}

// A bar for each value of the table, joined from one to the next.
static void DrawBars(const Values& values)
{
    bool first = true;
    for (int row = 1; row <= values.paramRowCount; ++row) {
        if (IsBlank(values.paramValue[row]))
            continue;
        const float depth = values.paramDepth[row];
        if (first)
            moveto(0, -depth);
        first = false;
        const float v = Held(values.paramValue[row]);
        lineto(-v, -depth);
        lineto(0, -depth);
        moveto(-v, -depth);
        circle(0.02);
    }
}

// What is left of a line behind so many of its fields, each closed by a separator. False: it has fewer.
static bool DropFields(std::string_view& line, char separator, int fields)
{
    for (; fields > 0 && Holds(line, separator); --fields)
        line = Behind(line, separator);
    return fields <= 0;
}

// The curve of the data file: its lines with a depth and a value.
static void DrawCurve(const DataFile& file)
{
    const Text path = JoinPath(ProjectPath, file.paramFile);
    if (!FileExists(path)) {
        MsgBox("Parameter File Not Found: " + path, OkOnly, Exclamation);
        return;
    }
    LineReader in(path);
    in.Skip(file.paramFileSkip);
    char separator = 0;
    bool first = true;
    while (!in.AtEnd()) {
        Text line = in.Line();
        if (separator == 0)
            separator = Holds(line, ',') ? ',' : ' ';
        line = Text(LTrim(line)) + separator;
        std::string_view rest = line;
        if (file.paramFileColumn < 1 || !DropFields(rest, separator, file.paramFileColumn) || !Holds(rest, separator))
            continue;
        const std::string_view value = Trim(Before(rest, separator));
        if (value.empty())
            continue;
        const float depth = TextNumber(Before(line, separator));
        const float v = Held(value);
        if (first)
            moveto(-v, -depth);
        else
            lineto(-v, -depth);
        first = false;
    }
}

// ---- The borings

static void DrawValues(int i, const Values& values, const DataFile& file)
{
    toboring(i);
    movedown(CrossRun.stickUp[i]);
    bool any = !file.paramFile.empty();
    for (int row = 1; row <= values.paramRowCount; ++row)
        any = any || !IsBlank(values.paramValue[row]);
    if (!any)
        return;
    if (!IsGraph())
        return DrawBoxes(values);
    DrawStrip(values.well.boreDepth);
    if (file.paramFile.empty())
        DrawBars(values);
    else
        DrawCurve(file);
}

// Needs the section's scales as drawcrossframe leaves them. Reads the borings' files once more; one that is missing or
// old ends the routine.
void VCROSS::drawcrossparams()
try {
    DataFile file;
    for (int i = 1; i <= CrossRun.boringCount; ++i) {
        const Text path = BoringFileOf(SectionBoringPath(CrossRun.boringFile[i]));
        if (!SectionBoringThere(path))
            return StepOverEntry();
        Values values;
        ReadBoring(path, i, values, file);
        DrawValues(i, values, file);
        incseg(2);
    }
} catch (...) {
    ReportFailure(__func__);
}
