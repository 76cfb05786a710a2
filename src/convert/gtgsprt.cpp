// gtgsprt.cpp -- GTGS print files. They are listings for a line printer, so they are read by columns and by marker
// lines, in two passes, and headings of pages are passed over:
//
//     ==                 heading: the name line, then fields at fixed distances
//     ****DEPTH RANGES   start and end of each sample, then the layers outside the casing, up to "--"
//     (from the front again)
//     [Dep               values of the samples, up to [EXT
//     [Dep               contacts, up to "--"
//     ****DES            descriptions, up to "--"
//     ****REMARKS        remarks, up to "--"
#include "convert/gtgsprt.h"

#include "boring/boringdata.h"
#include "convert/convertedboring.h"
#include "convert/tablefile.h"
#include "run/batchrun.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/platform.h"

#include <algorithm>

// What every boring of this conversion has.
static void SetDefaults()
{
    // Kept: "Elevaton", as on the logs made so far.
    static const char* const prompts[] = {"Date Drilled",
                                          "Northing",
                                          "Easting",
                                          "Elevation",
                                          "T.O.C. Elevaton",
                                          "Total Depth",
                                          "Operable Unit",
                                          "Job No.",
                                          "",
                                          "",
                                          "Logged By",
                                          "Checked By",
                                          "Drilling Contractor",
                                          "C-57 License Number",
                                          "Drilling Method",
                                          "Drilling Equipment",
                                          "Sampling Method",
                                          "Completion",
                                          "Drawn By",
                                          "Site No."};
    static constexpr FixedPart parts[] = {
        {"sample box-graphic", "-"}, {"blow count", "-"},  {"P1", ".5"}, {"P2", ".95"}, {"GP1", ".9"}, {"USCS", ".55"},
        {"graphic", ".4"},           {"descriptions", "3"}};
    // The client of the job that this conversion was made for.
    static const char* const client[] = {"Area Data Review", "Harlan Test Range", "Rivertown, ST", "Job # 00X-000-00",
                                         "OU No. A"};
    SetFixedForm(prompts, parts, "PWELL.LAY");
    auto& setup = BoringData.SampleParamSetup;
    setup[1][1] = "%Recov";
    setup[1][4] = "PERCENT RECOV.";
    setup[2][1] = "Samp#";
    setup[2][4] = "SAMPLE";
    setup[2][5] = "NUMBER";
    BoringData.GenParamSetup[1][1] = BoringData.GenParamSetup[1][4] = "PID/FID";
    int row = 0;
    for (const char* line : client)
        BoringData.Client[++row] = line;
}

// ---------------------------------------------------------------------------------------------------- lines

// Without the page margin of 6 columns; a shorter line has none.
static Text WithoutMargin(const Text& line)
{
    return line.size() >= 6 ? line.substr(6) : line;
}

static Text Columns(const Text& line, size_t first, size_t count)
{
    return first < line.size() ? Text(RTrim(std::string_view(line).substr(first, count))) : Text();
}

static bool Begins(const Text& line, std::string_view marker)
{
    return LTrim(line).starts_with(marker);
}

static Text AfterColon(const Text& line)
{
    return Text(LTrim(Behind(line, ':')));
}

// Reads on behind the first line that begins with the marker.
static void FindMarker(LineReader& in, std::string_view marker)
{
    while (!Begins(in.Line(), marker))
        ;
}

// ---------------------------------------------------------------------------------------------------- first pass

// The fields behind the name line, each so many lines below the one before.
static void ReadHeading(LineReader& in)
{
    Text line;
    do
        line = in.Line();
    while (!Begins(line, "1"));
    BoringData.Name = LTrim(Behind(line, '-'));
    const auto info = [&in](int row, int skipped = 0) {
        in.Skip(skipped);
        BoringData.Info[row][2] = AfterColon(in.Line());
    };
    const auto beforeComma = [](int row) { BoringData.Info[row][2] = Text(Before(BoringData.Info[row][2], ',')); };
    info(7, 2);
    info(8, 2);
    info(2, 2);
    info(3);
    info(4);
    info(16);
    info(15);
    beforeComma(15);
    info(17);
    beforeComma(17);
    info(1);
    info(13);
    info(11);
    info(12);
    BoringData.GenWell[11] = AfterColon(in.Line());
    BoringData.GenWell[12] = AfterColon(in.Line());
    info(6, 2);
    info(18, 1);
    info(5, 3);
    info(14);
}

// A page may end within the table: a blank line, the page's heading with "SAMP", and the rows go on.
static void ReadSampleRanges(LineReader& in)
{
    FindMarker(in, "****DEPTH RANGES");
    while (!UpperCase(LTrim(WithoutMargin(in.Line()))).starts_with("BLOCK"))
        ;
    for (;;) {
        Text line = WithoutMargin(in.Line());
        while (IsBlank(line)) {
            if (UpperCase(in.Line()).find("SAMP") == Text::npos)
                return;
            line = WithoutMargin(in.Line());
        }
        Slots<Text, 21>& sample = BoringData.Samples[BoringData.SampleCount + 1];
        sample[1] = Columns(line, 0, 13);
        sample[2] = Columns(line, 13, 12);
        ++BoringData.SampleCount;
    }
}

static void ReadOuterLayers(LineReader& in)
{
    for (Text line = WithoutMargin(in.Line()); !line.starts_with("--"); line = WithoutMargin(in.Line())) {
        if (IsBlank(line)) {
            in.Skip(1); // a page end; what follows two lines on is a line as any other
            continue;
        }
        Slots<Text, 5>& layer = BoringData.OuterLayers[BoringData.OuterLayerCount + 1];
        layer[1] = Columns(line, 0, 13);
        layer[2] = Columns(line, 13, 12);
        const Text words = Columns(line, 25, Text::npos);
        layer[3] = LTrim(Holds(words, ',') ? Behind(words, ',') : std::string_view(words));
        ++BoringData.OuterLayerCount;
    }
}

// ---------------------------------------------------------------------------------------------------- second pass

// The first sample that starts at this depth; 0, a row that nothing reads, for none.
static int SampleAt(double depth)
{
    for (int row = 1; row <= BoringData.SampleCount; ++row)
        if (TextNumber(BoringData.Samples[row][1]) == depth)
            return row;
    return 0;
}

static void ReadSampleValues(LineReader& in)
{
    FindMarker(in, "[Dep");
    for (Text line = in.Line(); !Begins(line, "[EXT"); line = in.Line()) {
        line = WithoutMargin(line);
        const Text key = Columns(line, 0, 8);
        if (key.empty())
            continue;
        Slots<Text, 21>& sample = BoringData.Samples[SampleAt(TextNumber(key))];
        const Text values = line.size() > 8 ? line.substr(8) : Text();
        sample[4] = Columns(values, 0, 13);
        sample[3] = "1";
        if (values.size() >= 13)
            sample[6] = Columns(values, 13, 13);
        if (values.size() >= 26)
            sample[7] = Columns(values, 26, Text::npos);
    }
}

static void ReadContacts(LineReader& in)
{
    FindMarker(in, "[Dep");
    for (Text line = in.Line(); !Begins(line, "--"); line = in.Line()) {
        if (!Holds(line, ')'))
            continue;
        line = WithoutMargin(line);
        // Kept: the rows behind the last one that there is room for take its place, one after the other.
        BoringData.LithCount = std::min(BoringData.LithCount + 1, MaxLith);
        Slots<Text, 4>& contact = BoringData.Lith[BoringData.LithCount];
        contact[1] = Columns(line, 0, 9);
        if (line.size() < 35)
            continue; // it ends before its code, and a row that is replaced keeps the one it has
        contact[2] = Columns(line, 35, 14);
        if (contact[2].size() > 2)
            contact[2].insert(2, "-");
    }
}

// Lines flow on, but for those that begin with "." and all from the first one on that begins with "Note".
static void ReadDescriptions(LineReader& in)
{
    FindMarker(in, "****DES");
    in.Skip(1);
    bool notes = false;
    for (Text line = in.Line(); !Begins(line, "--"); line = in.Line()) {
        line = RTrim(WithoutMargin(line));
        notes = notes || line.starts_with("Note");
        Text& stored = BoringData.Des[BoringData.DesCount + 1];
        if (notes) {
            stored = line + ParagraphMark;
        } else if (line.starts_with('.')) {
            stored = line + ParagraphMark;
            Text& before = BoringData.Des[BoringData.DesCount]; // slot 0 for the first line
            if (before.ends_with(' '))
                before.pop_back();
            MarkLine(before);
        } else {
            stored = line + " ";
        }
        ++BoringData.DesCount;
    }
}

// A line with "." begins a remark; its depth stands behind three characters. What is behind it becomes one text.
static void ReadRemarks(LineReader& in)
{
    FindMarker(in, "****REMARKS");
    in.Skip(1);
    Text remark;
    while (!in.AtEnd()) {
        const Text line(RTrim(WithoutMargin(in.Line())));
        if (line.starts_with("--"))
            break;
        if (line.starts_with('.')) {
            BoringData.Params[BoringData.ParamCount][2] = remark; // row 0 for what stands before the first
            BoringData.Params[BoringData.ParamCount + 1][1] = line.size() > 3 ? line.substr(3) : Text();
            ++BoringData.ParamCount;
            remark.clear();
        } else {
            remark += line;
        }
    }
    BoringData.Params[BoringData.ParamCount][2] = remark;
}

// ---------------------------------------------------------------------------------------------------- the run

static void ReadPrintFile(const Text& name)
{
    {
        LineReader in(name);
        if (in.AtEnd() || !in.Line().starts_with("==")) {
            MsgBox("Invalid Format for GTGS File: " + name, OkOnly, Exclamation);
            return;
        }
        ReadHeading(in);
        ReadSampleRanges(in);
        ReadOuterLayers(in);
    }
    LineReader in(name);
    ReadSampleValues(in);
    ReadContacts(in);
    ReadDescriptions(in);
    ReadRemarks(in);
}

static void ConvertPrintFile(const Text& name)
{
    ClearForConversion();
    SetDefaults();
    try {
        ReadPrintFile(name);
    } catch (const RunTimeError& error) {
        // A listing that stops early is one with less in it.
        if (error.Number != InputPastEnd)
            throw;
    }
    WriteBesideSource(name, "3", IntegerField(BoringData.Draft));
}

void ConvertGTGS2BOR()
try {
    ConvertRunFiles(ConvertPrintFile);
    MsgBox("All .PRT Files Converted", OkOnly, Announcement);
} catch (...) {
    ReportFailure(__func__);
}

void frmBorinput::mnuGTGS()
{
    jobCode = PrtJob;
    Platform.ShowDrawPrint();
}
