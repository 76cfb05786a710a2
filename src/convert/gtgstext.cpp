// gtgstext.cpp -- the text tables of a GTGS export, in the form that is fixed in the program.
//
//     headers.txt    a line for each boring
//     depths.txt     samples          depthr.txt   their depths and conditions
//     lith.txt       contacts         desc.txt     descriptions
//     well.txt       well layers      remarks.txt  remarks
//
// The tables hold the borings one after the other, with no number; each tells in its own way where a boring ends.
#include "convert/gtgstext.h"

#include "boring/boringdata.h"
#include "boring/boringfile.h"
#include "convert/convertedboring.h"
#include "convert/tablefile.h"
#include "run/batchrun.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/session.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <vector>

static constexpr char Quote = '"';

// ---------------------------------------------------------------------------------------------------- headers.txt

// The fields of a header line, which stand between an opening and a closing quote with "," among them.
static std::vector<Text> HeaderFields(const Text& line)
{
    std::string_view rest = line;
    rest.remove_prefix(std::min<size_t>(rest.size(), 1));
    std::vector<Text> fields;
    for (size_t at = rest.find("\",\""); at != std::string_view::npos; at = rest.find("\",\"")) {
        fields.emplace_back(rest.substr(0, at));
        rest.remove_prefix(at + 3);
    }
    fields.emplace_back(rest.substr(0, rest.rfind(Quote)));
    return fields;
}

// Every line is a boring, a blank one too.
static std::vector<std::vector<Text>> ReadHeaders(const Text& name)
{
    std::vector<std::vector<Text>> headers;
    runFileCount = 0;
    for (LineReader in(name); !in.AtEnd();) {
        headers.push_back(HeaderFields(in.Line()));
        runFiles[runFileCount + 1] = headers.back()[0] + ".bor";
        ++runFileCount;
    }
    return headers;
}

namespace
{
enum class Target { Client, Info, GenWell, WellInfo, WellNotes };
struct HeaderField {
    int first, last; // fields
    Target target;
    int row; // of the first
};
} // namespace

static constexpr HeaderField headerMap[] = {
    {2, 2, Target::Client, 4},      {3, 4, Target::Client, 1},    {7, 7, Target::Info, 3},
    {8, 8, Target::Client, 5},      {9, 10, Target::Info, 1},     {11, 14, Target::Info, 4},
    {15, 17, Target::Info, 11},     {18, 18, Target::Info, 8},    {19, 19, Target::GenWell, 6},
    {23, 24, Target::GenWell, 11},  {25, 25, Target::Info, 14},   {26, 26, Target::Info, 9},
    {27, 28, Target::Info, 15},     {31, 31, Target::GenWell, 1}, {32, 48, Target::WellInfo, 2},
    {49, 53, Target::WellNotes, 1}, {54, 54, Target::Info, 17},   {55, 55, Target::Info, 18},
};

static Text& HeaderCell(Target target, int row)
{
    switch (target) {
    case Target::Client:
        return BoringData.Client[row];
    case Target::Info:
        return BoringData.Info[row][2];
    case Target::GenWell:
        return BoringData.GenWell[row];
    case Target::WellInfo:
        return BoringData.WellInfo[row][2];
    case Target::WellNotes:
        break;
    }
    return BoringData.WellNotes[row];
}

static void TakeHeader(const std::vector<Text>& fields)
{
    const auto field = [&fields](int number) {
        return size_t(number) <= fields.size() ? fields[size_t(number - 1)] : Text();
    };
    BoringData.Name = field(1);
    for (const HeaderField& part : headerMap)
        for (int number = part.first; number <= part.last; ++number)
            HeaderCell(part.target, part.row + number - part.first) = field(number);
    BoringData.Scale[7] = field(5) + "," + field(6);
    // The reference elevation is the ground and the stick-up above it.
    const float ground = static_cast<float>(TextNumber(field(20)));
    const float stickUp = static_cast<float>(TextNumber(BoringData.GenWell[6]));
    BoringData.GenWell[5] = PlainNumber(double(ground + stickUp));
}

// What every boring of this export has.
static void SetDefaults()
{
    static const char* const prompts[] = {"Begun",
                                          "Completed",
                                          "Logged By",
                                          "Drilling Contractor",
                                          "Drill Equipment",
                                          "Boring Diameter",
                                          "Total Depth",
                                          "Samples",
                                          "Sample Type",
                                          "",
                                          "Core Recovery Ft.",
                                          "Core Recovery %",
                                          "Core Boxes",
                                          "Dep. Top of Rock",
                                          "Case Diam./Len.",
                                          "Notes",
                                          "Prepared By",
                                          "Date Prepared"};
    static const char* const wellPrompts[] = {"WELL DATA",
                                              "Town/City",
                                              "County",
                                              "State",
                                              "Install Date(s)",
                                              "Drill Fluid",
                                              "",
                                              "Development",
                                              "",
                                              "",
                                              "Fluid Loss (gal)",
                                              "Water Removed",
                                              "Date Removed",
                                              "Static Wtr Date",
                                              "Static Wtr Dep.",
                                              "Well Purpose",
                                              "",
                                              ""};
    static constexpr FixedPart parts[] = {{"P1", "0.6"},         {"P2", "0.4"},      {"P3", "0.4"},
                                          {"depth scale", ".6"}, {"graphic", "0.4"}, {"descriptions", "2.5"},
                                          {"remarks", "1.9"}};
    SetFixedForm(prompts, parts, "Pbasic.lay");
    // Name, graph heading, graph range, then the three lines of the column's own heading.
    auto& setup = BoringData.SampleParamSetup;
    setup[1][1] = "Samp#";
    setup[1][4] = "Sample";
    setup[1][5] = "Number";
    setup[2][1] = "Recov.";
    setup[2][4] = "Length/";
    setup[2][5] = "Recovery";
    setup[2][6] = "(feet)";
    setup[3][1] = "PID";
    setup[3][4] = "PID";
    setup[3][5] = "(ppm)";
    int row = 0;
    for (const char* prompt : wellPrompts)
        BoringData.WellInfo[++row][1] = prompt;
    BoringData.WellInfo[1][2] = "heading";
    BoringData.WellInfoCount = row;
    BoringData.WellNoteCount = 6;
}

// ------------------------------------------------------------------------------------------------- the other tables

// In a table ordered by depth a boring ends at a depth below the one before.
namespace
{
class DepthOrder
{
public:
    bool Ends(double next)
    {
        if (before && next < *before)
            return true;
        before = next;
        return false;
    }

private:
    std::optional<double> before;
};
} // namespace

static Text QuotesBlanked(std::string_view text)
{
    Text blanked(text);
    std::replace(blanked.begin(), blanked.end(), Quote, ' ');
    return Text(Trim(blanked));
}

// The number, recovery, blow counts and reading of a sample from the quoted fields of its line.
//
//     5,"S-1","1.2","5-8/12","0.4"
static void TakeSampleFields(std::string_view rest, Slots<Text, 21>& sample)
{
    const size_t first = rest.find(Quote);
    if (first == std::string_view::npos)
        return;
    rest.remove_prefix(first + 1);
    Text* const fields[] = {&sample[6], &sample[7], &sample[4]};
    for (Text* field : fields) {
        *field = Before(rest, Quote);
        rest.remove_prefix(field->size());
        if (field == &sample[4])
            break;
        const size_t at = rest.find("\",\"");
        if (at == std::string_view::npos)
            return;
        rest.remove_prefix(at + 3);
    }
    for (char& letter : sample[4])
        if (letter == '-' || letter == '/')
            letter = ',';
    // Behind the closing quote: the comma, and the opening quote of the last field if it has one.
    if (rest.starts_with("\","))
        rest.remove_prefix(2);
    sample[8] = QuotesBlanked(rest);
}

static void ReadDepths(TableFile& in)
{
    DepthOrder order;
    int row = 0;
    for (; !in.AtEnd(); in.Take()) {
        const Text& line = in.Next();
        if (line.starts_with(',')) {
            // The sample number of the row before goes on; slot 0 when there is none.
            std::string_view more = std::string_view(line).substr(1);
            if (more.starts_with(Quote))
                more.remove_prefix(1);
            if (row > 0)
                BoringData.Samples[row][6] += Before(more, Quote);
            continue;
        }
        if (order.Ends(TextNumber(line)))
            break;
        TakeSampleFields(line, BoringData.Samples[++row]);
    }
    BoringData.SampleCount = row;
}

static Text ConditionOf(double code)
{
    return code == 1 ? "4" : code == 3 ? "1" : code == 8 ? "3" : code == 15 ? "2" : "";
}

// The marks stand before each block, or between the blocks: the first line tells.
static bool IsBlockMark(const Text& line)
{
    return line.starts_with("\"BLOCK");
}

static void ReadSampleDepths(TableFile& in, bool firstBoring)
{
    if (firstBoring) {
        if (!in.AtEnd() && IsBlockMark(in.Next()))
            in.Take();
    } else {
        while (!in.AtEnd() && !IsBlockMark(in.Next()))
            in.Take();
        in.Take();
    }
    int row = 0;
    for (; !in.AtEnd() && !IsBlockMark(in.Next()); in.Take()) {
        const std::string_view line = in.Next();
        const std::string_view behindStart = Behind(line, ',');
        const Text condition = ConditionOf(TextNumber(Behind(behindStart, ',')));
        if (condition.empty())
            break;
        Slots<Text, 21>& sample = BoringData.Samples[++row];
        sample[1] = Before(line, ',');
        sample[2] = Before(behindStart, ',');
        sample[3] = condition;
    }
    BoringData.SampleCount = std::max(BoringData.SampleCount, row);
}

static Text SoilOf(const Text& code)
{
    static constexpr std::pair<std::string_view, const char*> soils[] = {
        {"65", "FB"}, {"15", "CL"}, {"49", "DO"},   {"31", "GP"}, {"2", "GW"},
        {"46", "LS"}, {"22", "SW"}, {"7=12", "SM"}, {"12", "ML"}, {"75", "FL"}};
    for (const auto& [number, soil] : soils)
        if (number == code)
            return soil;
    return code;
}

static void ReadContacts(TableFile& in)
{
    DepthOrder order;
    int row = 0;
    for (; !in.AtEnd(); in.Take()) {
        const Text& line = in.Next();
        if (order.Ends(TextNumber(line)))
            break;
        Slots<Text, 4>& contact = BoringData.Lith[++row];
        contact[1] = Before(line, ',');
        contact[2] = SoilOf(QuotesBlanked(Behind(line, ',')));
    }
    BoringData.LithCount = row;
}

// A new row of the layers with the first two values behind the first word; returns the number in the last one.
static double TakeLayer(TextTable<MaxLayers, 5>& layers, int row, std::string_view line)
{
    const std::string_view values = Behind(line, ',');
    layers[row][1] = Before(values, ',');
    layers[row][2] = Before(Behind(values, ','), ',');
    const size_t last = values.rfind(',');
    return TextNumber(last == std::string_view::npos ? values : values.substr(last + 1));
}

static void ReadWell(TableFile& in)
{
    int inner = 0, outer = 0;
    for (bool first = true; !in.AtEnd(); in.Take(), first = false) {
        const Text& line = in.Next();
        if (line.starts_with("\"cover")) {
            if (!first)
                break;
            TakeLayer(BoringData.InnerLayers, ++inner, line);
            BoringData.InnerLayers[inner][3] = "Cover";
        } else if (line.starts_with("\"case")) {
            const double number = TakeLayer(BoringData.InnerLayers, ++inner, line);
            // The two spellings are those of the drawings made so far.
            BoringData.InnerLayers[inner][3] = number == 24  ? "2in. ID SCH.40 Blank PVC"
                                               : number == 3 ? "2in. ID SCh.40 10-Slot PVC"
                                                             : "";
        } else if (line.starts_with("\"seal") || line.starts_with("\"fseal")) {
            const double number = TakeLayer(BoringData.OuterLayers, ++outer, line);
            BoringData.OuterLayers[outer][3] = number == 54   ? "Concrete Surface Seal"
                                               : number == 21 ? "Bentonite Chip Seal"
                                               : number == 22 ? "Sand Pack Filter"
                                                              : "";
        }
    }
    BoringData.InnerLayerCount = inner;
    BoringData.OuterLayerCount = outer;
}

static void ReadRemarks(TableFile& in)
{
    int row = 0;
    for (; !in.AtEnd(); in.Take()) {
        const Text& line = in.Next();
        if (line.starts_with("<END")) {
            in.Take();
            break;
        }
        Text& stored = BoringData.Remarks[row + 1];
        if (line.starts_with('.')) {
            MarkLine(BoringData.Remarks[row]); // slot 0 for the first line
            stored = (UpperCase(line.substr(0, 3)) == ".D=" ? "-" + line.substr(3) : line) + ParagraphMark;
        } else {
            stored = line + " ";
        }
        ++row;
    }
    BoringData.RemarkCount = row;
}

// ---------------------------------------------------------------------------------------------------- the run

namespace
{
// Opened when the first boring comes to it, and read on from there by the next ones.
struct ProjectTable {
    const char* Name;
    void (*Read)(TableFile& in, bool firstBoring);
    std::unique_ptr<TableFile> File = nullptr;
};
} // namespace

static bool FileThere(const Text& name)
{
    if (FileExists(name))
        return true;
    MsgBox("File Not Found: " + name, OkOnly, Exclamation);
    return false;
}

// False: a table is missing, which has been told.
static bool ConvertAll(const Text& folder, const std::vector<std::vector<Text>>& headers)
{
    ProjectTable tables[] = {
        {"depths.txt", [](TableFile& in, bool) { ReadDepths(in); }},
        {"depthr.txt", ReadSampleDepths},
        {"lith.txt", [](TableFile& in, bool) { ReadContacts(in); }},
        {"desc.txt", [](TableFile& in, bool) { ReadDescriptionText(in); }},
        {"well.txt", [](TableFile& in, bool) { ReadWell(in); }},
        {"remarks.txt", [](TableFile& in, bool) { ReadRemarks(in); }},
    };
    const ConversionProgress progress(runFileCount);
    for (int boring = 1; boring <= runFileCount; ++boring) {
        ClearForConversion();
        SetDefaults();
        TakeHeader(headers[size_t(boring - 1)]);
        for (ProjectTable& table : tables) {
            const Text name = JoinPath(folder, table.Name);
            if (!table.File) {
                if (!FileThere(name))
                    return false;
                table.File = std::make_unique<TableFile>(name);
            }
            table.Read(*table.File, boring == 1);
        }
        WriteConvertedBoring(JoinPath(folder, runFiles[boring]));
        incseg(1);
    }
    return true;
}

void ConvertGTGSText()
try {
    // Kept: wellcom.txt is named, and nothing reads it.
    MsgBox("This conversion utility will open and convert the following files: headers.txt, depths.txt, lith.txt, "
           "desc.txt, depthr.txt, well.txt, wellcom.txt, remarks.txt",
           OkOnly, Announcement);
    const Text folder = lastDir, headers = JoinPath(folder, "headers.txt");
    if (FileThere(headers) && ConvertAll(folder, ReadHeaders(headers)))
        MsgBox("All .TXT Files Converted", OkOnly, Announcement);
} catch (...) {
    ReportFailure(__func__);
}

void frmBorinput::mnuConvertGTGStxt()
{
    if (lastDir.empty())
        lastDir = ProjectPath.empty() ? WorkingFolder : ProjectPath;
    ConvertGTGSText();
}
