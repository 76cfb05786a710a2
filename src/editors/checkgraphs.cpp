// checkgraphs.cpp -- the check list's view of graphs: axes that cannot be drawn, values beyond their ends, data files.
#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "editors/checkparts.h"
#include "logrender/generalvalues.h"
#include "logrender/graph.h"
#include "session/files.h"
#include "session/machine.h"
#include "session/session.h"
#include "session/shared.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <set>

using namespace BoringChecks;

// ---- The axes

static LogParamSetup SampleAxis(int n)
{
    LogParamSetup setup;
    setup.Name = Cell(SampleSetupBox, n, 1);
    setup.Axis = Cell(SampleSetupBox, n, 3);
    VLOG::readaxis(setup, true);
    return setup;
}

static LogParamSetup GeneralAxis(int n)
{
    LogParamSetup setup;
    setup.Name = Cell(GeneralSetupBox, n, 1);
    setup.Axis = Cell(GeneralSetupBox, n, 3);
    setup.File = Cell(GeneralSetupBox, n, 7);
    setup.Field = Cell(GeneralSetupBox, n, 8);
    VLOG::readaxis(setup, false);
    return setup;
}

static Text Told(int n, const LogParamSetup& setup)
{
    return "Parameter " + PlainNumber(n) + (setup.Name.empty() ? Text() : " (" + setup.Name + ")");
}

// The axis as its column draws it. False: the column ends in an error, which is told.
static bool AxisDrawn(const DrawnPart& part, int n, const LogParamSetup& setup, int box, bool logarithmic,
                      VLOG::GraphAxis& axis)
try {
    axis = logarithmic ? VLOG::GraphAxis::logarithmic(setup, 1) : VLOG::GraphAxis::linear(setup);
    if (logarithmic)
        return true;
    if (VLOG::axisscale(setup, 1) == 0)
        throw RunTimeError{DivisionByZero};
    VLOG::axisticks(setup);
    return true;
} catch (const RunTimeError&) {
    Flag("axis-fails",
         Told(n, setup) + ": the axis " + Quoted(setup.Axis) + " cannot be drawn, and " + part.Name +
             " ends in an error.",
         box, n, 3);
    return false;
}

// ---- Values against an axis

namespace
{
struct Outside {
    int Count = 0;
    Text First;
    int Row = 0;
};
} // namespace

static void Look(const Text& value, bool triples, VLOG::GraphAxis& axis, int row, Outside& outside)
{
    const std::string_view behind = Behind(value, ',');
    axis.Held = false;
    axis.place(TextNumber(value));
    if (triples && Holds(behind, ',')) {
        axis.place(TextNumber(behind));
        axis.place(TextNumber(Behind(behind, ',')));
    }
    if (!axis.Held)
        return;
    if (++outside.Count == 1) {
        outside.First = value;
        outside.Row = row;
    }
}

static Text EndsOf(const VLOG::GraphAxis& axis)
{
    if (axis.Logarithmic)
        return PlainNumber(double(axis.Low)) + " to " + PlainNumber(double(axis.High));
    return PlainNumber(double(axis.Start)) + " to " + PlainNumber(double(axis.Start) + double(axis.Span));
}

static void Tell(const DrawnPart& part, int n, const LogParamSetup& setup, const VLOG::GraphAxis& axis,
                 const Outside& outside, int box, int row, int column)
{
    if (outside.Count == 0)
        return;
    const Text values = outside.Count == 1 ? " lies" : " and " + PlainNumber(outside.Count - 1) + " more lie";
    Flag("axis",
         Told(n, setup) + ": " + outside.First + values + " beyond the axis of " + part.Name + ", which goes from " +
             EndsOf(axis) + ".",
         box, row, column);
}

// ---- Sample parameters

// The curve of parameter n on the axis of another, or on its own.
static void CheckSampleCurve(const DrawnPart& part, int n, VLOG::GraphAxis axis, bool triples)
{
    Outside outside;
    for (int row = 1; row <= Rows(SampleBox); ++row)
        if (!Empty(SampleBox, row, 5 + n))
            Look(Cell(SampleBox, row, 5 + n), triples, axis, row, outside);
    Tell(part, n, SampleAxis(n), axis, outside, SampleBox, outside.Row, 5 + n);
}

// Curves first to last on the axis of the one that reaches furthest; of equals the first of four, and the second of a
// pair.
static void CheckSampleGraph(const DrawnPart& part, int first, int last)
{
    int owner = first;
    for (int n = first + 1; n <= last; ++n) {
        const double end = SampleAxis(n).End, furthest = SampleAxis(owner).End;
        if (end > furthest || (end == furthest && last == first + 1))
            owner = n;
    }
    const LogParamSetup setup = SampleAxis(owner);
    VLOG::GraphAxis axis;
    if (!AxisDrawn(part, owner, setup, SampleSetupBox, first == last && setup.Start == -999, axis))
        return;
    for (int n = first; n <= last; ++n)
        CheckSampleCurve(part, n, axis, last - first < 2);
}

// ---- General parameters

namespace
{
// What a data file holds for a set-up, as long as neither has changed.
struct FileValues {
    FileState State;
    VLOG::GeneralValues Values;
    bool BreaksOff = false;
};
} // namespace

static constexpr size_t mostKept = 40;
static std::map<std::pair<Text, float>, FileValues> dataRead; // by file and field, and the depth read to

static const SharedRecord shared[] = {
    {"dataRead", Kind::Machine, dataRead},
};

// The values of a data file down to a depth, by the run's own reader, which finds the file where a run does.
static const FileValues& ValuesOf(int n, const LogParamSetup& setup, float end)
{
    const Text path = JoinPath(ProjectPath, setup.File);
    const FileState state = Machine::StateOf(NativePath(path));
    if (dataRead.size() > mostKept)
        dataRead.clear();
    FileValues& file = dataRead[{path + "|" + setup.Field, end}];
    if (file.State.Size >= 0 && file.State == state)
        return file;
    file = {state, {}, false};
    LogBoring.GenSetup[n] = setup;
    LogPage.BoringFileName = BoringFileName;
    LogPage.PageStartDepth = 0;
    LogPage.PageEndDepth = end;
    try {
        VLOG::findgeneralvalues(n, file.Values);
    } catch (const RunTimeError&) {
        file.BreaksOff = true;
    }
    return file;
}

static void CheckFileValues(const DrawnPart& part, int n, const LogParamSetup& setup, const VLOG::GraphAxis* axis)
{
    const FileValues& file = ValuesOf(n, setup, EndOfLog());
    const Text path = JoinPath(ProjectPath, setup.File);
    if (file.Values.FileMissing)
        Flag("file", Told(n, setup) + ": the data file is not found: " + path, GeneralSetupBox, n, 7);
    else if (file.BreaksOff)
        Flag("file", Told(n, setup) + ": the data file is shorter than its header: " + path, GeneralSetupBox, n, 8);
    else if (axis) {
        VLOG::GraphAxis on = *axis;
        Outside outside;
        for (const VLOG::GeneralValue& value : file.Values.Rows)
            Look(value.Value, true, on, n, outside);
        Tell(part, n, setup, on, outside, GeneralSetupBox, n, 3);
    }
}

static void CheckGeneral(const DrawnPart& part, int n, bool graph)
{
    if (n < 1 || n > GenParams)
        return;
    const LogParamSetup setup = GeneralAxis(n);
    VLOG::GraphAxis axis;
    if (graph && !AxisDrawn(part, n, setup, GeneralSetupBox, false, axis))
        return;
    if (!setup.File.empty())
        return CheckFileValues(part, n, setup, graph ? &axis : nullptr);
    Outside outside;
    for (int row = 1; graph && row <= Rows(ParamBox); ++row)
        if (!Empty(ParamBox, row, n + 1))
            Look(Cell(ParamBox, row, n + 1), true, axis, row, outside);
    Tell(part, n, setup, axis, outside, ParamBox, outside.Row, n + 1);
}

// ---- The columns

static void CheckGraph(const DrawnPart& part)
{
    const Text& name = part.Name;
    if (name == "P12G")
        return CheckSampleGraph(part, 1, 2);
    if (name == "P34G")
        return CheckSampleGraph(part, 3, 4);
    if (name == "P1-4G")
        return CheckSampleGraph(part, 1, 4);
    if (name.size() == 3 && name[0] == 'P' && name[1] >= '1' && name[1] <= '4' && name[2] == 'G')
        return CheckSampleGraph(part, name[1] - '0', name[1] - '0');
    const auto number = [](std::string_view text) {
        return int(std::clamp(std::nearbyint(TextNumber(text)), -1.0, 1000.0));
    };
    if (name.starts_with("GPG"))
        return CheckGeneral(part, number(name.substr(3)), true);
    if (name.starts_with("GP"))
        return CheckGeneral(part, number(name.substr(2)), false);
    if (!name.starts_with("MPG"))
        return;
    std::string_view rest = std::string_view(name).substr(3);
    for (int i = 1; i <= 3; ++i) {
        CheckGeneral(part, number(Before(rest, '-')), true);
        rest = Behind(rest, '-');
    }
}

void BoringChecks::CheckGraphs()
{
    for (const DrawnPart& part : DrawnParts())
        CheckGraph(part);
}
