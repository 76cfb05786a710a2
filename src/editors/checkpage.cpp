// checkpage.cpp -- the check list's view of the page: its depths, its columns and their room, the files it is made of.
#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "boring/boringfile.h"
#include "boring/reportparts.h"
#include "editors/checkparts.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"
#include "report/heading.h"
#include "report/projectfiles.h"
#include "session/deviceconfig.h"
#include "session/files.h"
#include "session/kept.h"
#include "session/platform.h"
#include "session/session.h"

#include <algorithm>
#include <cmath>

using namespace frmBorinput;

// ---- The scale

// The warning's row in the scale grid is the one that it begins with; the long one is about the last contact.
static int ScaleRow(const Text& words)
{
    static constexpr std::pair<std::string_view, int> rows[] = {
        {"Scale: Inc", 2}, {"Scale: Page", 3}, {"Scale: Start", 6}};
    for (const auto& [prompt, row] : rows)
        if (words.find(prompt) < 30)
            return row;
    return 1;
}

// Of the warnings of a save those that the page shows: a log that ends above its last contact, a scale without an
// increment, columns of no length.
static bool SpoilsPage(const Text& words)
{
    return words.starts_with("The 'Scale: End Depth'") || words.starts_with("A value is needed") ||
           (words.starts_with("The last contact depth") && BoringChecks::LastContact() == 0);
}

void BoringChecks::CheckScale()
{
    const auto silent = Platform.MsgBox;
    Platform.MsgBox = [](const Text& words, Buttons, Icon) {
        const char* kind = SpoilsPage(words) ? "scale" : "save";
        if (words.starts_with("The last contact depth"))
            Flag(kind, words, LithBox, std::max(Rows(LithBox), 1));
        else
            Flag(kind, words, ScaleBox, ScaleRow(words));
        return int(Ok);
    };
    boringcheck();
    Platform.MsgBox = silent;
}

std::vector<BoringChecks::PageDepths> BoringChecks::LogPages()
{
    const float endDepth = static_cast<float>(Number(ScaleBox, 1, 1));
    float pageBreak = static_cast<float>(Number(ScaleBox, 3, 1));
    double count = 1;
    if (pageBreak > 0)
        count = std::clamp(std::nearbyint(double(endDepth / pageBreak)), 0.0, 1000.0);
    else
        pageBreak = endDepth == 0 ? 40 : endDepth; // the depth scale takes 40 for a page without an end
    std::vector<PageDepths> pages;
    float start = 0;
    for (int page = 1; page <= int(count); ++page) {
        const float end = start + pageBreak;
        pages.push_back({start, end});
        start = static_cast<float>(std::nearbyint(double(end)));
    }
    return pages;
}

float BoringChecks::EndOfLog()
{
    const std::vector<PageDepths> pages = LogPages();
    return pages.empty() ? 0 : pages.back().End;
}

float BoringChecks::LastContact()
{
    double last = 0;
    for (int row = 1; row <= Rows(LithBox); ++row)
        last = std::max(last, Number(LithBox, row, 1));
    return static_cast<float>(last);
}

// A page begins at a whole number, so that a page break of 7.5 leaves half a metre out, and one of 7.4 shows a part
// twice.
void BoringChecks::CheckPages()
{
    const std::vector<PageDepths> pages = LogPages();
    for (size_t page = 1; page < pages.size(); ++page) {
        const double end = pages[page - 1].End, start = pages[page].Start;
        if (start > end) {
            Flag("page-gap",
                 "A page begins at a whole number: page " + PlainNumber(int(page)) + " ends at " + PlainNumber(end) +
                     " and page " + PlainNumber(int(page) + 1) + " begins at " + PlainNumber(start) +
                     ", so what lies between is on no page.",
                 ScaleBox, 3);
            return;
        }
    }
    for (size_t page = 1; page < pages.size(); ++page) {
        const double end = pages[page - 1].End, start = pages[page].Start;
        if (start < end) {
            Flag("page-overlap",
                 "A page begins at a whole number: page " + PlainNumber(int(page)) + " ends at " + PlainNumber(end) +
                     " and page " + PlainNumber(int(page) + 1) + " begins at " + PlainNumber(start) +
                     ", so what lies between is on both.",
                 ScaleBox, 3);
            return;
        }
    }
}

// ---- The layout

Text BoringChecks::LayoutFilePath()
{
    const bool ending = UpperCase(cmbLayFile).ends_with(".LAY");
    return LayoutPath(ending ? cmbLayFile : cmbLayFile + ".lay", BoringFileName);
}

bool BoringChecks::ReadLayout(LayoutRecord& layout)
try {
    const Text path = LayoutFilePath();
    if (!FileExists(path))
        return false;
    const Kept live(LayoutData);
    LayoutData = LayoutRecord();
    ReadLayoutFile(path);
    layout = LayoutData;
    return true;
} catch (const RunTimeError&) { // it breaks off
    return false;
}

double BoringChecks::PageLength()
{
    const Text pageBreak = Cell(ScaleBox, 3, 1);
    LogBoring.PageLength = static_cast<float>(TextNumber(Behind(pageBreak, ',')));
    LogGeometry.FrameKind = 'P';
    LogGeometry.HasBottomRow = 0;
    LayoutRecord layout;
    if (ReadLayout(layout)) {
        LogGeometry.FrameKind = layout.Orientation == 0 ? 'P' : layout.Orientation == 1 ? 'L' : 'T';
        const auto& blocks = layout.Blocks;
        LogGeometry.HasBottomRow = LogGeometry.FrameKind == 'P' && (blocks[3] > 0 || blocks[6] > 0 || blocks[9] > 0);
    }
    return DrawingLength();
}

// ---- The columns

std::vector<BoringChecks::DrawnPart> BoringChecks::DrawnParts()
{
    std::vector<DrawnPart> parts;
    for (int row = 1; row <= Rows(PartsBox) && !Empty(PartsBox, row, 1); ++row)
        parts.push_back({UpperCase(Cell(PartsBox, row, 1)), Number(PartsBox, row, 2), row});
    return parts;
}

bool BoringChecks::Draws(const char* front)
{
    const std::vector<DrawnPart> parts = DrawnParts();
    return std::any_of(parts.begin(), parts.end(), [&](const DrawnPart& part) { return part.Name.starts_with(front); });
}

bool BoringChecks::DrawsGraphic()
{
    const std::vector<DrawnPart> parts = DrawnParts();
    return std::any_of(parts.begin(), parts.end(), [](const DrawnPart& part) { return part.Name == "GRAPHIC"; });
}

static bool IsWell(const Text& name)
{
    return name == "GW" || name == "SGW" || name == "WELL DIAGRAM" || name == "WELL DIAGRAM-SMALL";
}

bool BoringChecks::DrawsWell()
{
    const std::vector<DrawnPart> parts = DrawnParts();
    return std::any_of(parts.begin(), parts.end(), [](const DrawnPart& part) { return IsWell(part.Name); });
}

// A parameter's number behind the letters of a part.
static double NumberBehind(const BoringChecks::DrawnPart& part, size_t letters)
{
    return std::nearbyint(TextNumber(std::string_view(part.Name).substr(letters)));
}

// The parts that begin with "P" and print numbers; the others of that letter are graphs of their own.
static bool PrintsParameter(const Text& name)
{
    static constexpr std::string_view graphs[] = {"P1G", "P2G", "P3G", "P4G", "P12G", "P34G", "P1-4G"};
    return name.starts_with("P") && std::find(std::begin(graphs), std::end(graphs), name) == std::end(graphs);
}

static void CheckNumber(const BoringChecks::DrawnPart& part, double number, int most)
{
    using namespace BoringChecks;
    if (number < 1 || number > most)
        Flag("part",
             "The report part " + Quoted(Cell(PartsBox, part.Row, 1)) + " names no parameter from 1 to " +
                 PlainNumber(most) + ".",
             PartsBox, part.Row);
}

// The numbers of a part of several graphs. One that is left out, or 0, leaves its graph out.
static void CheckGraphNumbers(const BoringChecks::DrawnPart& part)
{
    double greatest = 0;
    std::string_view rest = std::string_view(part.Name).substr(3);
    for (int i = 1; i <= 3; ++i) {
        greatest = std::max(greatest, std::nearbyint(TextNumber(Before(rest, '-'))));
        rest = Behind(rest, '-');
    }
    CheckNumber(part, greatest, GenParams);
}

static void CheckPart(const BoringChecks::DrawnPart& part)
{
    using namespace BoringChecks;
    const Text told = "The report part " + Quoted(Cell(PartsBox, part.Row, 1));
    if (!VLOG::knowncolumn(part.Name))
        Flag("part", told + " is none that the log knows, and is not drawn.", PartsBox, part.Row);
    else if (part.Name.starts_with("MPG"))
        CheckGraphNumbers(part);
    else if (part.Name.starts_with("GPG"))
        CheckNumber(part, NumberBehind(part, 3), GenParams);
    else if (part.Name.starts_with("GP"))
        CheckNumber(part, NumberBehind(part, 2), GenParams);
    else if (PrintsParameter(part.Name)) {
        CheckNumber(part, NumberBehind(part, 1), SampleParams);
        if (part.Name.ends_with("G") && NumberBehind(part, 1) >= 1)
            Flag("part-kind", told + " prints numbers: a graph is there for parameters 1 to 4.", PartsBox, part.Row);
    }
}

void BoringChecks::CheckReportParts()
{
    const std::vector<DrawnPart> parts = DrawnParts();
    for (const DrawnPart& part : parts)
        CheckPart(part);
    for (int row = int(parts.size()) + 2; row <= Rows(PartsBox); ++row)
        if (!Empty(PartsBox, row, 1)) {
            Flag("part",
                 "The columns end at the empty row " + PlainNumber(int(parts.size()) + 1) + " of the report parts: " +
                     Quoted(Cell(PartsBox, row, 1)) + " in row " + PlainNumber(row) + " is not drawn.",
                 PartsBox, row);
            return;
        }
}

// What a part takes of the page. A well diagram widens by its last named well, not by their count, and a
// classification without a width has one of its own.
static double PartWidth(const BoringChecks::DrawnPart& part)
{
    if (!VLOG::knowncolumn(part.Name))
        return 0;
    if ((part.Name == "USCS" || part.Name == "GRAPHIC") && part.Width == 0)
        return 0.25;
    if (PrintsParameter(part.Name) && NumberBehind(part, 1) > SampleParams)
        return 0;
    if (IsWell(part.Name)) {
        int last = 1;
        for (int well = 2; well <= 4; ++well)
            if (!BoringChecks::Empty(BoringChecks::WellBox, well, 1))
                last = well;
        const bool large = part.Name == "GW" || part.Name == "WELL DIAGRAM";
        return (large ? 1.6 : 1.0) + 0.18 * std::max(last - 2, 0);
    }
    return findpartwidth(part.Name, PlainNumber(part.Width));
}

// A depth scale in front is counted by what it takes beyond 0.4 inch; where there is none, one of 0.4 inch is drawn.
void BoringChecks::CheckWidth()
{
    const std::vector<DrawnPart> parts = DrawnParts();
    double total = 0;
    for (const DrawnPart& part : parts)
        total += part.Row == 1 && part.Name.starts_with("DEP") ? part.Width - 0.4 : PartWidth(part);
    LayoutRecord layout;
    ReadLayout(layout);
    const double room = layout.Orientation == 0 ? 6.8 : layout.Orientation == 1 ? 9.2 : 15.2;
    if (total > room + 0.0001)
        Flag("width",
             "The report parts are " + PlainNumber(total) + " inches wide, and the page has room for " +
                 PlainNumber(room) + ".",
             PartsBox, 1, 2);
}

// ---- The files

static bool HasBlock(const LayoutRecord& layout, int code)
{
    return std::any_of(layout.Blocks.slot.begin() + 1, layout.Blocks.slot.end(),
                       [code](int16_t block) { return block == code; });
}

// A map that the page shows is an error, one that this layout has no place for a remark.
static void CheckMap(const LayoutRecord& layout)
{
    const Text name(Trim(Text2));
    const Text path = MapPath(name, BoringFileName);
    const bool shown = HasBlock(layout, 8);
    if (!name.empty() && !FileExists(path))
        BoringChecks::FlagText(shown ? "file" : "file-unused", "The map file is not found: " + path, "Text2");
}

static void CheckLogo(const LayoutRecord& layout)
{
    if (LogoData.Flag != 1 || !HasBlock(layout, 1))
        return;
    const Text& folder = DeviceConfig.SystemFiles[LogoFolder];
    const Text path = JoinPath(IsBlank(folder) ? WorkingFolder : folder, LogoData.File);
    if (!UpperCase(LogoData.File).ends_with("BMP"))
        BoringChecks::FlagText("file", "The logo is no bitmap, and is not drawn: " + path, "cmbLayFile");
    else if (!FileExists(path))
        BoringChecks::FlagText("file", "The logo is not found: " + path, "cmbLayFile");
}

// What a run is told of the heading file and the logo file, at each of its pages.
static void CheckHeading()
{
    const auto silent = Platform.MsgBox;
    Platform.MsgBox = [](const Text& words, Buttons, Icon) {
        BoringChecks::FlagText("file", words, "cmbLayFile");
        return int(Ok);
    };
    getclientlogo(1);
    Platform.MsgBox = silent;
}

void BoringChecks::CheckFiles()
{
    LayoutRecord layout;
    if (!ReadLayout(layout)) {
        if (IsBlank(cmbLayFile))
            FlagText("layout-none", "No layout file is named: the page has no title blocks.", "cmbLayFile");
        else if (FileExists(LayoutFilePath()))
            FlagText("file", "The layout file breaks off: " + LayoutFilePath(), "cmbLayFile");
        else
            FlagText("file", "The layout file is not found: " + LayoutFilePath(), "cmbLayFile");
    }
    CheckMap(layout);
    CheckHeading();
    CheckLogo(layout);
}
