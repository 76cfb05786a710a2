// logdata.cpp -- the page entry and the boring of one log page: read from log.mas and the .BOR file, cut at the page.
//
// A second reader of the boring file besides OpenBoringFile2, on purpose: a page shows what is on disk, never what
// the editor holds, and it takes only what is drawn.
#include "logrender/logdata.h"

#include "boring/boringblocks.h"
#include "logrender/vlog.h"
#include "report/projectfiles.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "session/deviceconfig.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/platform.h"

#include <algorithm>

// ---- The entry list

// log.mas as fields: a line is cut at its commas, so a comma in a path or caption splits it.
static std::vector<Text> MasFields()
{
    std::vector<Text> fields;
    LineReader in(MasFile());
    while (!in.AtEnd()) {
        const Text line = in.Line();
        std::string_view rest = line;
        for (;;) {
            fields.emplace_back(LTrim(Before(rest, ',')));
            if (!Holds(rest, ','))
                break;
            rest = Behind(rest, ',');
        }
    }
    return fields;
}

static void ReadEntry(const std::vector<Text>& fields, size_t first)
{
    if (first + 4 > fields.size())
        throw RunTimeError{InputPastEnd};
    LogPage.BoringFileName = fields[first];
    LogPage.PageCaption = fields[first + 1];
    LogPage.PageStartDepth = TextNumber(fields[first + 2]);
    LogPage.PageEndDepth = TextNumber(fields[first + 3]);
    RunPages.pageFile = LogPage.BoringFileName;
}

void VLOG::getvlogfilecounter()
try {
    RunPages.pageIndex = 0;
    RunPages.pageCount = 0;
    const std::vector<Text> fields = MasFields();
    if (fields.empty())
        throw RunTimeError{InputPastEnd};
    RunPages.pageCount = RoundInt16(TextNumber(fields[0]));
    if (RunPages.pageCount > 0)
        ReadEntry(fields, 1);
} catch (...) {
    ReportFailure(__func__);
}

void VLOG::getvlogfiles()
try {
    ReadEntry(MasFields(), 1 + 4 * static_cast<size_t>(std::max<int>(RunPages.pageIndex, 0)));
} catch (...) {
    ReportFailure(__func__);
}

// ---- The boring

// The text before a line's first comma and the number behind it.
static double NumberBehind(const Text& line)
{
    return TextNumber(Behind(line, ','));
}

template <int Rows, int Columns>
static void ReadRows(LineReader& in, TextTable<Rows, Columns>& table, int32_t& count)
{
    count = in.Count();
    for (int row = 1; row <= count; ++row)
        for (int column = 1; column <= Columns; ++column)
            table[row][column] = in.Line();
}

// Stored lines: the mark at the end of a paragraph is not printed.
static Text StoredLine(LineReader& in)
{
    return Text(Before(in.Line(), ParagraphMark));
}

template <int Rows>
static void ReadStoredLines(LineReader& in, Slots<Text, Rows>& lines, int32_t& count)
{
    count = in.Count();
    for (int row = 1; row <= count; ++row)
        lines[row] = StoredLine(in);
}

static void ReadScale(LineReader& in)
{
    LogBoringRecord& b = LogBoring;
    in.Line(); // the end depth: the page's end comes from the entry
    const Text increment = in.Line();
    b.TickIncrement = TextNumber(Before(increment, ','));
    b.TicksPerIncrement = RoundInt16(NumberBehind(increment));
    const Text pageBreak = in.Line();
    b.PageBreakMarker = pageBreak.empty() ? 0 : 1;
    b.PageLength = NumberBehind(pageBreak);
    const Text unit = in.Line();
    b.UnitWord = Before(unit, ',');
    b.HeadingTurned = NumberBehind(unit) == 90;
    const Text surface = in.Line();
    b.SurfElevText = Before(surface, ',');
    b.SurfElev = TextNumber(b.SurfElevText);
    const Text start = in.Line();
    b.StartElev = RoundInt16(start.empty() ? WholePart(double(b.SurfElev)) : TextNumber(start));
    in.Line(); // the coordinates
}

static void ReadSamples(LineReader& in)
{
    LogBoring.SampleCount = in.Count();
    for (int i = 1; i <= LogBoring.SampleCount; ++i) {
        LogSample& sample = LogBoring.Samples[i];
        sample.Top = TextNumber(in.Line());
        sample.Bottom = TextNumber(in.Line());
        sample.Condition = in.Line();
        sample.Blows = in.Line();
        if (sample.Blows.empty())
            sample.Blows = "-1";
        sample.LabNumber = in.Line();
        for (int n = 1; n <= SampleParams; ++n)
            sample.Param[n] = Trim(in.Line());
    }
}

static void ReadContacts(LineReader& in)
{
    LogBoring.ContactCount = in.Count();
    for (int i = 1; i <= LogBoring.ContactCount; ++i) {
        LogContact& contact = LogBoring.Contacts[i];
        contact.Depth = TextNumber(in.Line());
        contact.Pattern = in.Line();
        if (TextNumber(contact.Pattern) > 0)
            contact.Pattern = "F" + contact.Pattern;
        contact.LineType = in.Line();
        contact.Color = in.Line();
        if (Holds(contact.Color, ',')) {
            contact.Offset = RoundInt16(TextNumber(Before(contact.Color, ',')));
            contact.Color = Text(Behind(contact.Color, ','));
        }
    }
}

// "Graph St.,End,Inc" as an axis. A blank line counts as "0,1,1", for sample parameters one that begins "LOG" too;
// an increment of 0 resets the axis, unless its start is -999, the mark of a logarithmic sample axis. A fourth piece
// "N" stands whatever becomes of the others.
void VLOG::readaxis(LogParamSetup& setup, bool sample)
{
    Text axis = setup.Axis;
    if (IsBlank(axis) || (sample && UpperCase(axis).starts_with("LOG")))
        axis = "0,1,1";
    const std::string_view behindStart = Behind(axis, ',');
    const std::string_view behindEnd = Behind(behindStart, ',');
    setup.Start = TextNumber(axis);
    setup.End = TextNumber(behindStart);
    setup.Increment = TextNumber(behindEnd);
    setup.NoLines = SameText(Trim(Before(Behind(behindEnd, ','), ',')), "N");
    if (setup.Increment == 0 && !(sample && setup.Start == -999)) {
        setup.Start = 0;
        setup.End = 1;
        setup.Increment = 1;
    }
}

static void ReadSetups(LineReader& in)
{
    for (int n = 1; n <= SampleParams; ++n) {
        LogParamSetup& setup = LogBoring.SampleSetup[n];
        setup.Name = in.Line();
        setup.Heading = in.Line();
        setup.Axis = in.Line();
        for (int k = 1; k <= 3; ++k)
            setup.Split[k] = in.Line();
        in.Skip(3); // two standards and the units: the log draws none
        VLOG::readaxis(setup, true);
    }
    for (int n = 1; n <= GenParams; ++n) {
        LogParamSetup& setup = LogBoring.GenSetup[n];
        setup.Name = in.Line();
        setup.Heading = in.Line();
        setup.Axis = in.Line();
        for (int k = 1; k <= 3; ++k)
            setup.Split[k] = in.Line();
        setup.File = in.Line();
        setup.Field = in.Line();
        VLOG::readaxis(setup, false);
    }
}

static void ReadCuttings(LineReader& in)
{
    LogBoring.CuttingCount = in.Count();
    for (int i = 1; i <= LogBoring.CuttingCount; ++i) {
        LogCuttings& row = LogBoring.Cuttings[i];
        row.Depth = TextNumber(in.Line());
        row.Fine = TextNumber(in.Line());
        row.Medium = TextNumber(in.Line());
        row.Coarse = TextNumber(in.Line());
    }
}

static void ReadFormations(LineReader& in)
{
    LogBoring.FormationCount = in.Count();
    for (int i = 1; i <= LogBoring.FormationCount; ++i) {
        LogBoring.Formations[i].Depth = TextNumber(in.Line());
        LogBoring.Formations[i].Description = in.Line();
    }
}

// The tail counts by what is left of the file, whatever its version word: older files end sooner.
static void ReadTail(LineReader& in)
{
    for (int i = 1; i <= MaxBottNotes; ++i)
        LogBoring.BottNotes[i] = StoredLine(in);
    for (int i = 1; i <= MaxClient && !in.AtEnd(); ++i)
        LogBoring.Client[i] = in.Line();
    if (!in.AtEnd())
        LogBoring.Style = RoundInt16(TextNumber(in.Line()));
    if (!in.AtEnd())
        LogBoring.Draft = RoundInt16(TextNumber(in.Line()));
}

// The lines behind the version word, in file order.
static void ReadBoring(LineReader& in)
{
    LogBoringRecord& b = LogBoring;
    b.Name = in.Line();
    b.MapFile = in.Line();
    for (int row = 1; row <= MaxInfo; ++row)
        for (int column = 1; column <= 2; ++column)
            b.Info[row][column] = in.Line();
    ReadScale(in);
    b.RepPartCount = in.Count();
    for (int i = 1; i <= b.RepPartCount; ++i) {
        b.RepParts[i].Item = in.Line();
        b.RepParts[i].Width = in.Line();
    }
    b.LayoutFile = in.Line();
    ReadSamples(in);
    ReadContacts(in);
    ReadStoredLines(in, b.Des, b.DesCount);
    if (UpperCase(b.Des[1]) != "MANUAL")
        VLOG::ArrangeDescs();
    const int cells = ParamCells(b.Version);
    b.ParamCount = in.Count();
    for (int row = 1; row <= b.ParamCount; ++row)
        for (int column = 1; column <= cells; ++column)
            b.Params[row][column] = in.Line();
    ReadSetups(in);
    ReadRows(in, b.WellInfo, b.WellInfoCount);
    ReadStoredLines(in, b.WellNotes, b.WellNoteCount);
    for (int row = 1; row <= MaxGenWell; ++row)
        b.GenWell[row] = in.Line();
    ReadRows(in, b.OuterLayers, b.OuterLayerCount);
    ReadRows(in, b.InnerLayers, b.InnerLayerCount);
    ReadStoredLines(in, b.Remarks, b.RemarkCount);
    ReadCuttings(in);
    ReadRows(in, b.Legend, b.LegendCount);
    ReadFormations(in);
    ReadTail(in);
}

static void ReadLayout()
{
    LogGeometryRecord& g = LogGeometry;
    const Text path = LayoutPath(LogBoring.LayoutFile, LogPage.BoringFileName);
    if (!FileExists(path)) {
        // Kept: the title blocks and the bottom row of the page before stay in force.
        MsgBox("Layout File Not Found: " + path, OkOnly, Exclamation);
        g.FrameKind = 'P';
        return;
    }
    LineReader in(path);
    const double orientation = TextNumber(in.Line());
    g.FrameKind = orientation == 0 ? 'P' : orientation == 1 ? 'L' : 'T';
    for (int i = 1; i <= 12; ++i)
        g.TitleBlocks[i] = RoundInt16(TextNumber(in.Line()));
    const bool bottom = g.TitleBlocks[3] > 0 || g.TitleBlocks[6] > 0 || g.TitleBlocks[9] > 0;
    g.HasBottomRow = g.FrameKind == 'P' && bottom ? 1 : 0;
}

// The version word. A file of an earlier form is told, and the run goes on behind it.
static bool Accepted(LineReader& in)
{
    LogBoring.Version = in.Line();
    if (LogBoring.Version.starts_with("5."))
        return true;
    MsgBox("This boring file has the format of a previous version and will be skipped: " + LogPage.BoringFileName,
           OkOnly, Exclamation);
    ++RunPages.pageIndex;
    LogBoring.RepPartCount = -1;
    return false;
}

void VLOG::getvlogdata()
try {
    LogBoring = LogBoringRecord();
    LineReader in(LogPage.BoringFileName);
    if (!Accepted(in))
        return;
    ReadBoring(in);
    ReadLayout();
    SetProgress(LogBoring.ContactCount + LogBoring.RepPartCount + LogBoring.InnerLayerCount +
                LogBoring.OuterLayerCount + 4);
} catch (...) {
    ReportFailure(__func__);
    LogBoring.RepPartCount = -1;
}

// ---- The boring of an intro page

void VLOG::getintrodata()
try {
    LogBoringRecord& b = LogBoring;
    b = LogBoringRecord();
    LineReader in(LogPage.BoringFileName);
    if (!Accepted(in))
        return;
    b.Name = in.Line();
    in.Skip(1 + 2 * MaxInfo + MaxScale); // the map of the title blocks, their rows, the scale
    SkipBlock(in, 2);                    // report parts
    in.Skip(1);                          // layout file
    SkipBlock(in, SampleCells);
    SkipBlock(in, LithCells);
    SkipBlock(in, 1); // descriptions
    SkipBlock(in, ParamCells(b.Version));
    in.Skip(SetupLines);
    ReadRows(in, b.WellInfo, b.WellInfoCount);
    ReadStoredLines(in, b.WellNotes, b.WellNoteCount);
    in.Skip(MaxGenWell);
    SkipBlock(in, LayerCells); // outer layers
    SkipBlock(in, LayerCells); // inner layers
    SkipBlock(in, 1);          // remarks
    SkipBlock(in, CuttingCells);
    ReadRows(in, b.Legend, b.LegendCount);
    SkipBlock(in, 2); // formations
    ReadTail(in);
    SetProgress(b.LegendCount + 2);
} catch (...) {
    ReportFailure(__func__);
    // What was read is drawn all the same: of a list too long, the rows that have a place.
    LogBoring.WellInfoCount = std::min(LogBoring.WellInfoCount, MaxWellInfo);
    LogBoring.WellNoteCount = std::min(LogBoring.WellNoteCount, MaxWellNotes);
    LogBoring.LegendCount = std::min(LogBoring.LegendCount, MaxLegend);
}

// ---- The page

// Samples that reach into the page are cut at its ends; the depths before the cut are held for the blow counts.
static void CutSamples()
{
    LogGeometryRecord& g = LogGeometry;
    const float start = LogPage.PageStartDepth, end = LogPage.PageEndDepth;
    g.SampleFirst = g.SampleLast = 0;
    g.SampleTopHeld = g.SampleBottomHeld = 0;
    for (int16_t i = 1; i <= LogBoring.SampleCount; ++i) {
        LogSample& sample = LogBoring.Samples[i];
        if (!(sample.Bottom > start && sample.Top < end))
            continue;
        if (sample.Bottom > end) {
            g.SampleBottomHeld = sample.Bottom;
            sample.Bottom = end;
        }
        if (sample.Top < start) {
            g.SampleTopHeld = sample.Top;
            sample.Top = start;
        }
        if (g.SampleFirst == 0)
            g.SampleFirst = i;
        g.SampleLast = i;
    }
    // Kept: a true top of 0 on a later page cannot be told from one that was never held, and is lost.
    if (g.SampleTopHeld == 0)
        g.SampleTopHeld = LogBoring.Samples[g.SampleFirst].Top;
    if (g.SampleBottomHeld == 0)
        g.SampleBottomHeld = LogBoring.Samples[g.SampleLast].Bottom;
}

// The unit that runs past the page's end is cut there. With nothing on the page both indices are 0 and nothing is cut.
template <class Rows>
static void CutUnits(Rows& rows, int32_t count, int16_t& first, int16_t& last)
{
    const float end = LogPage.PageEndDepth;
    if (first == 0) {
        last = 0;
        return;
    }
    if (rows[1].Depth >= end) {
        last = 1;
        rows[1].Depth = end;
    } else if (last < count) {
        ++last;
        rows[last].Depth = end;
    }
}

static void CutContacts()
{
    LogGeometryRecord& g = LogGeometry;
    g.ContactFirst = g.ContactLast = 0;
    for (int16_t i = 1; i <= LogBoring.ContactCount; ++i) {
        const float depth = LogBoring.Contacts[i].Depth;
        if (depth >= LogPage.PageStartDepth && g.ContactFirst == 0)
            g.ContactFirst = i;
        if (depth >= LogPage.PageEndDepth && g.ContactLast == 0)
            g.ContactLast = static_cast<int16_t>(i - 1);
    }
    if (g.ContactLast == 0)
        g.ContactLast = static_cast<int16_t>(LogBoring.ContactCount);
    CutUnits(LogBoring.Contacts, LogBoring.ContactCount, g.ContactFirst, g.ContactLast);
}

static void CutFormations()
{
    LogGeometryRecord& g = LogGeometry;
    const int32_t count = LogBoring.FormationCount;
    g.FormationFirst = g.FormationLast = 0;
    for (int16_t i = 1; i <= count; ++i) {
        const float depth = LogBoring.Formations[i].Depth;
        if (depth > LogPage.PageStartDepth && g.FormationFirst == 0)
            g.FormationFirst = i;
        if (depth >= LogPage.PageEndDepth && g.FormationLast == 0)
            g.FormationLast = static_cast<int16_t>(i - 1);
    }
    if (g.FormationLast == 0 && LogBoring.Formations[count].Depth > LogPage.PageStartDepth)
        g.FormationLast = static_cast<int16_t>(count);
    CutUnits(LogBoring.Formations, count, g.FormationFirst, g.FormationLast);
}

void VLOG::process_sam_con_form()
try {
    CutSamples();
    CutContacts();
    CutFormations();
} catch (...) {
    ReportFailure(__func__);
}
