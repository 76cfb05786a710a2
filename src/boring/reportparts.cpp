// reportparts.cpp -- the vocabulary of report parts: the width of each, and how old lists spelled them.
#include "boring/reportparts.h"

#include "boring/boringboxes.h"
#include "boring/boringdata.h"

const std::vector<Text> OfferedItems = {"blow count",
                                        "blow count graph",
                                        "blow count graph-wide",
                                        "cuttings",
                                        "cuttings-graph",
                                        "descriptions",
                                        "depth scale",
                                        "elevation scale",
                                        "formations",
                                        "GPn",
                                        "GPGn",
                                        "graphic",
                                        "lab number",
                                        "MPGn-n2-n3",
                                        "Pn",
                                        "PnG",
                                        "P12G",
                                        "P34G",
                                        "P1-4G",
                                        "remarks",
                                        "sample box-numbered",
                                        "sample box-graphic",
                                        "USCS",
                                        "water level",
                                        "well construction info",
                                        "well diagram",
                                        "well diagram-small"};

namespace
{
enum Test { Begins, Equals };

// How wide a report part is: as typed, by the number of wells, or always the same.
enum Rule { Fixed, Typed, ByWells };

struct PartWidth {
    Test test;
    std::string_view words;
    Rule rule;
    double inches;
};
} // namespace

// The first line that fits wins, so "P12G" stands before "P".
static constexpr PartWidth partWidths[] = {
    {Begins, "DEP", Typed, 0},
    {Begins, "ELEV", Fixed, 0.4},
    {Begins, "FORM", Fixed, 0.25},
    {Equals, "USCS", Typed, 0},
    {Equals, "GRAPHIC", Typed, 0},
    {Begins, "DES", Typed, 0},
    {Begins, "SAMP", Fixed, 0.3},
    {Equals, "BLOW COUNT", Fixed, 0.2},
    {Equals, "BLOW COUNT GRAPH", Fixed, 0.6},
    {Equals, "BLOW COUNT GRAPH-WIDE", Fixed, 1.0},
    {Begins, "LAB", Fixed, 0.6},
    {Equals, "P12G", Fixed, 1.0},
    {Equals, "P34G", Fixed, 1.0},
    {Equals, "P1-4G", Fixed, 2.0},
    {Begins, "P", Typed, 0},
    {Begins, "WELL C", Typed, 0},
    {Begins, "WCON", Typed, 0},
    {Begins, "GPG", Fixed, 0.6},
    {Begins, "GP", Typed, 0},
    {Equals, "GW", ByWells, 1.6},
    {Equals, "WELL DIAGRAM", ByWells, 1.6},
    {Equals, "SGW", Fixed, 1.0},
    {Equals, "WELL DIAGRAM-SMALL", Fixed, 1.0},
    {Equals, "REMARKS", Typed, 0},
    {Begins, "MPG", Typed, 0},
    {Begins, "CUTT", Fixed, 0.9},
    {Begins, "WATER", Fixed, 0.2},
};

// Wells named in the general well grid: each one beyond the second widens the diagram.
static int WellCount()
{
    int count = 0;
    for (int row = 1; row <= 4; ++row)
        count += !IsBlank(frmBorinput::SSGenWellInfo.Cell(row, 1));
    return count;
}

float findpartwidth(const Text& item, const Text& width)
try {
    const Text upper = UpperCase(item);
    for (const PartWidth& part : partWidths) {
        if (part.test == Equals ? upper != part.words : !upper.starts_with(part.words))
            continue;
        if (part.rule == Typed)
            return float(TextNumber(width));
        const int wells = part.rule == ByWells ? WellCount() : 0;
        return wells <= 2 ? float(part.inches) : float(part.inches + 0.18 * (wells - 2));
    }
    return 0;
} catch (...) {
    ReportFailure(__func__);
    return 0;
}

namespace
{
struct Renamed {
    std::string_view old, current;
};
} // namespace

// "well const. info" is not the list's own "well construction info"; every test of the item takes both.
static constexpr Renamed renamedItems[] = {
    {"DEP", "depth scale"},           {"ELEV", "elevation scale"},
    {"FORM", "formations"},           {"BLOWS", "blow count"},
    {"BLOWG", "blow count graph"},    {"LAB#", "lab number"},
    {"GW", "well diagram"},           {"SGW", "well diagram-small"},
    {"WCON", "well const. info"},     {"CUTT", "cuttings"},
    {"GRAPHIC", "graphic"},           {"SAMP", "sample box-numbered"},
    {"SAMP2", "sample box-numbered"}, {"SAMP3", "sample box-numbered"},
    {"SAMP4", "sample box-graphic"},  {"SAMP5", "sample box-graphic"},
};

static void CutList(std::string_view list)
{
    int32_t count = 0;
    for (bool more = true; more;) {
        BoringData.RepParts[count + 1] = {Text(Trim(Before(list, ','))), ""};
        ++count;
        more = Holds(list, ',');
        list = Behind(list, ',');
    }
    if (count < MaxRepParts)
        BoringData.RepParts[count + 1] = ReportPart();
    BoringData.RepPartCount = count;
}

// Widths that older items told within their names.
static void WidthsFromNames()
{
    for (int row = 1; row <= BoringData.RepPartCount; ++row) {
        ReportPart& part = BoringData.RepParts[row];
        // Kept: the first "-W", also within a word.
        if (const size_t at = part.Item.find("-W"); at != Text::npos) {
            part.Width = part.Item.substr(at + 2);
            part.Item.resize(at);
        }
        if (part.Item.find("DES") != Text::npos) {
            part.Width = part.Item.starts_with('S') ? "2" : part.Item.starts_with('M') ? "2.5" : "3";
            part.Item = "descriptions";
        }
        if (part.Item.find("MPG") != Text::npos && part.Item.starts_with('S')) {
            part.Item.erase(0, 1);
            part.Width = ".8";
        }
    }
}

// The map was an item of its own; only the first one is taken.
static void TakeMapItem()
{
    for (int row = 1; row <= BoringData.RepPartCount; ++row) {
        if (!BoringData.RepParts[row].Item.starts_with("MAP"))
            continue;
        BoringData.MapFile = Text(LTrim(std::string_view(BoringData.RepParts[row].Item).substr(3)));
        for (int i = row; i < BoringData.RepPartCount; ++i)
            BoringData.RepParts[i] = BoringData.RepParts[i + 1];
        BoringData.RepParts[BoringData.RepPartCount--] = ReportPart();
        return;
    }
}

// The old "USCS" column drew the code and the pattern; they are two columns now.
static void SplitUscs()
{
    for (int row = 1; row <= BoringData.RepPartCount; ++row) {
        if (BoringData.RepParts[row].Item != "USCS")
            continue;
        for (int i = BoringData.RepPartCount; i > row; --i)
            BoringData.RepParts[i + 1] = BoringData.RepParts[i];
        BoringData.RepParts[row + 1] = {"graphic", ""};
        ++BoringData.RepPartCount;
        return;
    }
}

void convertrepparts(const Text& list)
try {
    CutList(UpperCase(list));
    WidthsFromNames();
    TakeMapItem();
    SplitUscs();
    for (int row = 1; row <= BoringData.RepPartCount; ++row)
        for (const Renamed& renamed : renamedItems)
            if (BoringData.RepParts[row].Item == renamed.old) {
                BoringData.RepParts[row].Item = renamed.current;
                break;
            }
} catch (...) {
    ReportFailure(__func__);
}
