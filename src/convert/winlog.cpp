// winlog.cpp -- WinLog files: sections of numbered "key=value" lines, read in their order.
//
//     [GENERAL]   the depth of the hole, elevation, depth of a page
//     [...]       Header n='text': name, client, boring information
//     [...]       a count, then more boring information
//     [...]       samples        [...]  contacts and descriptions
//     [...]       well           [Remarks
//
// A key is known by its first characters, and its number stands between them and the "=".
#include "convert/winlog.h"

#include "boring/boringdata.h"
#include "convert/convertedboring.h"
#include "convert/tablefile.h"
#include "convert/templateboring.h"
#include "run/batchrun.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/session.h"
#include "session/shared.h"

#include <algorithm>
#include <cmath>

Text WinLogTemplate;

static const SharedRecord shared[] = {
    {"WinLogTemplate", Kind::Run, WinLogTemplate},
};

static const Text MarkAlone(1, ParagraphMark);

// ---------------------------------------------------------------------------------------------------- lines

static bool IsSection(const Text& line)
{
    return line.starts_with('[');
}

// The text behind "=": between quotes if it has them, the last character of the line being the closing one.
static Text Value(const Text& line)
{
    const std::string_view text = Behind(line, '=');
    if (!LTrim(text).starts_with('\''))
        return Text(text);
    const size_t from = text.find('\'') + 1;
    return from < text.size() ? Text(text.substr(from, text.size() - 1 - from)) : Text();
}

static double NumberValue(const Text& line)
{
    return TextNumber(Value(line));
}

static int KeyNumber(const Text& line, std::string_view key)
{
    return RoundInt32(TextNumber(Before(std::string_view(line).substr(key.size()), '=')));
}

// A slot told by a key's number and its distance from it; a number of 0 is slot 0, which nothing reads.
static int SlotOf(int number, int distance)
{
    return number == 0 ? 0 : number + distance;
}

static double Sum(double a, double b)
{
    return static_cast<float>(a) + static_cast<float>(b);
}

// The lines up to the next section, whose line is returned.
template <class Take>
static Text ReadSection(LineReader& in, Take take)
{
    Text line = in.Line();
    for (; !IsSection(line); line = in.Line())
        take(line);
    return line;
}

static void SkipSection(LineReader& in)
{
    ReadSection(in, [](const Text&) {});
}

// A section's count, from its first line. One above the bound is told when the boring is written.
static int CountLine(LineReader& in)
{
    return std::max(RoundInt32(NumberValue(in.Line())), 0);
}

// ---------------------------------------------------------------------------------------------------- sections

// Behind the first line; leaves the reader behind the line of the next section. Returns the depth of the hole.
static int16_t ReadGeneral(LineReader& in)
{
    static constexpr std::string_view pageKey = "Depth Per Page=";
    in.Skip(1);
    const Text depthLine = in.Line();
    const int16_t maxDepth = RoundInt16(TextNumber(depthLine.substr(std::min<size_t>(depthLine.size(), 9))));
    Text line = in.Line();
    if (line.starts_with("Elev=")) {
        BoringData.Scale[5] = Behind(line, '=');
        line = in.Line();
    }
    while (!IsSection(line) && !line.starts_with(pageKey))
        line = in.Line();
    if (line.starts_with(pageKey)) {
        BoringData.Scale[3] = line.substr(pageKey.size());
        SkipSection(in);
    }
    return maxDepth;
}

// Returns the last row of Info that a header has filled.
static int ReadHeaders(LineReader& in)
{
    int lastInfoRow = 0;
    ReadSection(in, [&lastInfoRow](const Text& line) {
        if (!line.starts_with("Header"))
            return;
        const int number = KeyNumber(line, "Header");
        if (number == 1)
            BoringData.Name = Value(line);
        else if (number >= 2 && number <= 5)
            BoringData.Client[number - 1] = Value(line);
        else if (number >= 6) {
            BoringData.Info[number - 5][2] = Value(line);
            lastInfoRow = number - 5;
        }
    });
    return lastInfoRow;
}

static void ReadMoreInfo(LineReader& in, int lastInfoRow)
{
    const int count = CountLine(in);
    for (int i = 1; i <= count; ++i)
        BoringData.Info[lastInfoRow + i][2] = Value(in.Line());
    SkipSection(in);
}

// "Other" m, a blank, n: parameter m + 4 of sample n.
static void TakeOther(const Text& line)
{
    const std::string_view numbers = LTrim(Before(std::string_view(line).substr(5), '='));
    const int parameter = RoundInt32(TextNumber(Before(numbers, ' ')));
    const int row = RoundInt32(TextNumber(Behind(numbers, ' ')));
    if (parameter >= 1 && parameter <= 12)
        BoringData.Samples[row][parameter + 9] = Value(line);
}

static void TakeSampleKey(const Text& line)
{
    struct Key {
        std::string_view name;
        int column;
    };
    static constexpr Key keys[] = {{"Depth", 1}, {"Sample", 6}, {"Type", 7}, {"NValue", 8}, {"Recovery", 9}};
    if (line.starts_with("Other Title") || line.starts_with("Code"))
        return;
    if (line.starts_with("Other"))
        return TakeOther(line);
    if (line.starts_with("Size")) {
        Slots<Text, 21>& sample = BoringData.Samples[KeyNumber(line, "Size")];
        sample[2] = PlainNumber(Sum(TextNumber(sample[1]), NumberValue(line)));
        return;
    }
    for (const Key& key : keys)
        if (line.starts_with(key.name))
            BoringData.Samples[KeyNumber(line, key.name)][key.column] = Value(line);
}

static int ReadSamples(LineReader& in)
{
    const int count = CountLine(in);
    in.Skip(1);
    ReadSection(in, TakeSampleKey);
    return count;
}

// Three stored lines for contact n, the last of them its description.
static void TakeTitle(const Text& line, int number)
{
    if (number == 0)
        return;
    BoringData.Des[3 * number - 2] = "@" + PlainNumber(number) + ParagraphMark;
    BoringData.Des[3 * number - 1] = Value(line) + ParagraphMark;
    BoringData.DesCount = 3 * number;
}

// The depth of a contact is where the layer above it ends, so it stands in the row before.
static void TakeContactKey(const Text& line)
{
    const auto number = [&line](std::string_view key) { return KeyNumber(line, key); };
    if (line.starts_with("TopDepth"))
        BoringData.Lith[SlotOf(number("TopDepth"), -1)][1] = Value(line);
    else if (line.starts_with("Line Style"))
        BoringData.Lith[SlotOf(number("Line Style"), -1)][3] = NumberValue(line) != 0 ? "D" : "";
    else if (line.starts_with("Description Title"))
        TakeTitle(line, std::clamp(number("Description Title"), -MaxDes, MaxDes));
    else if (line.starts_with("Description"))
        BoringData.Des[3 * std::clamp(number("Description"), -MaxDes, MaxDes)] = Value(line) + ParagraphMark;
}

static int ReadContacts(LineReader& in, int maxDepth)
{
    const int count = CountLine(in);
    ReadSection(in, TakeContactKey);
    BoringData.Lith[count][1] = PlainNumber(maxDepth);
    return count;
}

static Text FillOf(const Text& packing)
{
    static constexpr const char* fills[] = {"F7", "F11", "F13", "FB", "F6", "F2", "F41"}; // of codes 2 to 8
    const std::string_view code = Trim(packing);
    return code.size() == 1 && code[0] >= '2' && code[0] <= '8' ? fills[code[0] - '2'] : "";
}

// The layers outside and inside the casing go together, a row of each for each piece of the well.
// Returns the line of the section behind the well's.
static Text ReadWell(LineReader& in)
{
    int row = 0;
    double depth = 0;
    const Text section = ReadSection(in, [&](const Text& line) {
        if (line.starts_with("Water Depth"))
            BoringData.GenWell[SlotOf(KeyNumber(line, "Water Depth"), 10)] = Value(line);
        else if (line.starts_with("Top F"))
            return;
        else if (line.starts_with("Top")) {
            BoringData.OuterLayers[row + 1][1] = BoringData.InnerLayers[row + 1][1] = Value(line);
            depth = NumberValue(line);
            ++row;
        } else if (line.starts_with("Length")) {
            depth = Sum(depth, NumberValue(line)); // a second length goes on where the first has ended
            BoringData.OuterLayers[row][2] = BoringData.InnerLayers[row][2] = PlainNumber(depth);
        } else if (line.starts_with("Pipe Code")) {
            if (Trim(Value(line)) == "6")
                BoringData.InnerLayers[row][3] = "Screen";
        } else if (line.starts_with("Packing Code")) {
            if (const Text fill = FillOf(Value(line)); !fill.empty())
                BoringData.OuterLayers[row][5] = fill;
        }
    });
    BoringData.OuterLayerCount = BoringData.InnerLayerCount = row;
    return section;
}

// From the line of the section behind the well's on; other sections are passed over.
static void ReadRemarks(LineReader& in, Text section)
{
    while (!section.starts_with("[Remarks"))
        section = in.Line();
    int row = 0;
    while (!in.AtEnd()) {
        const Text line = in.Line();
        if (IsSection(line))
            break;
        if (line.starts_with("Depth"))
            BoringData.Remarks[++row] = "-" + Value(line) + ParagraphMark;
        else if (line.starts_with("Text"))
            BoringData.Remarks[++row] = Value(line) + ParagraphMark;
    }
    BoringData.RemarkCount = row;
}

// ---------------------------------------------------------------------------------------------------- the boring

// The end depth in whole pages, and the increment by the end depth's size and last character: 1 up to 20, 5 where it
// ends in 5 or 0, else 2, whether or not that divides it. A page break at the end depth is none.
static void SetScale(int maxDepth)
{
    const float page = static_cast<float>(TextNumber(BoringData.Scale[3]));
    if (page == 0)
        BoringData.Scale[3].clear();
    if (page <= 0)
        return;
    const auto pages = [page](double count) { return static_cast<float>(count * page); };
    double count = std::max(std::floor(double(maxDepth) / page) - 1, 1.0);
    while (pages(count) < static_cast<float>(maxDepth))
        ++count;
    const float endDepth = pages(count);
    const Text end = PlainNumber(double(endDepth));
    BoringData.Scale[1] = end;
    if (endDepth == page)
        BoringData.Scale[3].clear();
    BoringData.Scale[2] = endDepth <= 20 ? "1" : end.back() == '5' || end.back() == '0' ? "5" : "2";
}

static void DropEmptyDescriptions()
{
    int kept = 0;
    for (int row = 1; row <= BoringData.DesCount; ++row)
        if (BoringData.Des[row] != MarkAlone)
            BoringData.Des[++kept] = BoringData.Des[row];
    BoringData.DesCount = kept;
}

static void ReadLogFile(const Text& name)
{
    LineReader in(name);
    if (in.AtEnd() || !UpperCase(in.Line()).starts_with("[GENERAL]")) {
        MsgBox("Invalid Format for WinLog File: " + name, OkOnly, Exclamation);
        return;
    }
    const int maxDepth = ReadGeneral(in);
    ReadMoreInfo(in, ReadHeaders(in));
    const int samples = ReadSamples(in), contacts = ReadContacts(in, maxDepth);
    ReadRemarks(in, ReadWell(in));
    if (samples > MaxSamples || contacts > MaxLith)
        throw RunTimeError{SubscriptOutOfRange};
    BoringData.SampleCount = samples;
    BoringData.LithCount = contacts;
    SetScale(maxDepth);
    DropEmptyDescriptions();
}

static void ReadTemplate()
{
    if (WinLogTemplate.empty())
        return;
    LineReader in(WinLogTemplate);
    const Text version = in.AtEnd() ? Text() : in.Line();
    if (version.starts_with("5."))
        TakeTemplate(in, version, false);
    else
        MsgBox("This boring file has an invalid format.", OkOnly, Exclamation);
}

static void ConvertLogFile(const Text& name)
{
    ClearForConversion();
    ReadTemplate();
    ReadLogFile(name);
    WriteBesideSource(name, "2", "0");
}

void ConvertWinLog()
try {
    ConvertRunFiles(ConvertLogFile);
    MsgBox("All .LOG Files Converted", OkOnly, Announcement);
} catch (...) {
    ReportFailure(__func__);
}

void frmBorinput::mnuConvertWinLog()
{
    DialogMode = 19;
    Platform.ShowChooser();
    WinLogTemplate = DialogResult;
    jobCode = WinLogJob;
    Platform.ShowDrawPrint();
}
