// gtgsgeneral.cpp -- the text tables of a GTGS export by a mapping.
//
// The .GCV file, a line for each value:
//
//     template, folder, fixed fields, field length or separator
//     25 times: kind, number          of the fields of headers.txt
//     25 times: GTGS code, USCS code
#include "convert/gtgsgeneral.h"

#include "boring/boringdata.h"
#include "boring/boringfile.h"
#include "convert/convertedboring.h"
#include "convert/tablefile.h"
#include "convert/templateboring.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/savename.h"
#include "session/session.h"
#include "session/shared.h"

#include <algorithm>

GtgsMappingRecord GtgsMapping;

static const SharedRecord shared[] = {
    {"GtgsMapping", Kind::Document, GtgsMapping},
};

const Text NameFromHeaders = "bname";

// ---------------------------------------------------------------------------------------------------- the .GCV file

void OpenGTGSConversionFile(const Text& name)
try {
    GtgsMapping = GtgsMappingRecord(); // also for a file that is not there, whose name the next save would use
    LineReader in(name);
    const auto integer = [&in] { return RoundInt16(TextNumber(in.Line())); };
    GtgsMapping.templateFile = in.Line();
    GtgsMapping.textPath = in.Line();
    GtgsMapping.fixedFields = integer();
    GtgsMapping.fieldSpec = integer();
    for (int row = 1; row <= MaxMapRows; ++row) {
        GtgsMapping.fieldMap[row].kind = integer();
        GtgsMapping.fieldMap[row].number = integer();
    }
    for (int row = 1; row <= MaxMapRows; ++row) {
        GtgsMapping.fillMap[row].gtgs = in.Line();
        GtgsMapping.fillMap[row].uscs = in.Line();
    }
} catch (...) {
    ReportFailure(__func__);
}

void SaveGTGSConversionFile(const Text& name)
try {
    LineWriter out(name);
    out.Line(GtgsMapping.templateFile);
    out.Line(GtgsMapping.textPath);
    out.Line(IntegerField(GtgsMapping.fixedFields));
    out.Line(IntegerField(GtgsMapping.fieldSpec));
    for (int row = 1; row <= MaxMapRows; ++row) {
        out.Line(IntegerField(GtgsMapping.fieldMap[row].kind));
        out.Line(IntegerField(GtgsMapping.fieldMap[row].number));
    }
    for (int row = 1; row <= MaxMapRows; ++row) {
        out.Line(GtgsMapping.fillMap[row].gtgs);
        out.Line(GtgsMapping.fillMap[row].uscs);
    }
    out.Close();
} catch (...) {
    ReportFailure(__func__);
}

// ---------------------------------------------------------------------------------------------------- names

// ".BOR" anywhere in the name counts as its ending.
static Text WithBor(const Text& name)
{
    return UpperCase(name).find(".BOR") == Text::npos ? name + ".bor" : name;
}

static const Text& TableFolder()
{
    return GtgsMapping.textPath.empty() ? ProjectPath : GtgsMapping.textPath;
}

Text NewBoringFile(const Text& name)
{
    return JoinPath(TableFolder(), WithBor(name));
}

// ---------------------------------------------------------------------------------------------------- the template

// False: it cannot be used, which has been told.
static bool ReadTemplate()
{
    static constexpr char invalid[] =
        "The Boring File to be used as a template has an invalid format, please use another.";
    if (GtgsMapping.templateFile.empty()) {
        MsgBox("Please specify a Boring File to be used as a template for the converted GTGS data.", OkOnly,
               Exclamation);
        return false;
    }
    Text name = WithBor(GtgsMapping.templateFile);
    if (BaseName(name) == name)
        name = JoinPath(ProjectPath, name);
    if (!FileExists(name)) {
        MsgBox("The Boring File to be used as a template was not found, please try again.", OkOnly, Exclamation);
        return false;
    }
    try {
        LineReader in(name);
        const Text version = in.Line();
        if (version.starts_with("5.")) {
            ClearForConversion();
            TakeTemplate(in, version, true);
            return true;
        }
    } catch (const RunTimeError&) {
        // It ends early, or has a count above a bound.
    }
    MsgBox(invalid, OkOnly, Exclamation);
    return false;
}

// ---------------------------------------------------------------------------------------------------- the tables

// The next field of the line, trimmed; what is behind it stays. At the end of the line fields are empty.
static Text TakeField(std::string_view& rest)
{
    if (GtgsMapping.fixedFields != 0) {
        if (GtgsMapping.fieldSpec < 0)
            throw RunTimeError{InvalidCall};
        const size_t width = std::min(rest.size(), size_t(GtgsMapping.fieldSpec));
        const Text field(Trim(rest.substr(0, width)));
        rest.remove_prefix(width);
        return field;
    }
    const char separator = GtgsMapping.fieldSpec == 1 ? ',' : GtgsMapping.fieldSpec == 0 ? '\t' : ' ';
    const std::string_view field = Before(rest, separator);
    rest = Behind(rest, separator);
    return Text(Trim(field));
}

static void TakeHeaderField(const GtgsMappingRecord::Field& target, const Text& field)
{
    switch (target.kind) {
    case BoringName:
        BoringData.Name = field;
        break;
    case ClientInfo:
        BoringData.Client[target.number] = field;
        break;
    case BoringInfo:
        BoringData.Info[target.number][2] = field;
        break;
    case WellInfo:
        BoringData.GenWell[target.number] = field;
        break;
    case WellConstInfo:
        BoringData.WellInfo[target.number][2] = field;
        BoringData.WellInfoCount = std::max<int32_t>(BoringData.WellInfoCount, target.number);
        break;
    default:
        break; // the field is not used
    }
}

// One boring, on the first line.
static void ReadHeaders(const Text& name)
{
    LineReader in(name);
    const Text line = in.Line();
    std::string_view rest = line;
    for (int row = 1; row <= MaxMapRows; ++row)
        TakeHeaderField(GtgsMapping.fieldMap[row], TakeField(rest));
}

static Text SoilOf(const Text& code)
{
    for (int row = 1; row <= MaxMapRows; ++row) {
        const GtgsMappingRecord::Fill& fill = GtgsMapping.fillMap[row];
        if (!IsBlank(fill.gtgs) && Trim(fill.gtgs) == Trim(code))
            return fill.uscs;
    }
    return code;
}

// A depth, a blank, a code in each line.
static void ReadContacts(const Text& name)
{
    LineReader in(name);
    while (!in.AtEnd()) {
        const Text line(Trim(in.Line()));
        if (line.empty())
            continue;
        Slots<Text, 4>& contact = BoringData.Lith[BoringData.LithCount + 1];
        contact[1] = Before(line, ' ');
        contact[2] = SoilOf(Text(Trim(Behind(line, ' '))));
        ++BoringData.LithCount;
    }
}

static void ReadDescriptions(const Text& name)
{
    TableFile in(name);
    ReadDescriptionText(in);
}

// A word, start and end of a layer, its value, with blanks between them; the value may hold blanks.
static void AddLayer(TextTable<MaxLayers, 5>& layers, int32_t& count, const Text& line, const char* words, bool valued)
{
    std::string_view rest = line;
    const auto piece = [&rest] {
        rest = LTrim(rest);
        const std::string_view found = Before(rest, ' ');
        rest.remove_prefix(found.size());
        return Text(found);
    };
    piece();
    Slots<Text, 5>& layer = layers[count + 1];
    layer[1] = piece();
    layer[2] = piece();
    layer[3] = words + (valued ? Text(Trim(rest)) : Text());
    ++count;
}

static void ReadWell(const Text& name)
{
    LineReader in(name);
    while (!in.AtEnd()) {
        const Text line = in.Line();
        if (line.starts_with("cap"))
            AddLayer(BoringData.InnerLayers, BoringData.InnerLayerCount, line, "Cap", false);
        else if (line.starts_with("case"))
            AddLayer(BoringData.InnerLayers, BoringData.InnerLayerCount, line, "Case ", true);
        else if (line.starts_with("seal") || line.starts_with("fseal"))
            AddLayer(BoringData.OuterLayers, BoringData.OuterLayerCount, line, "Seal ", true);
    }
}

// The four tables in their order. False: one is missing or cannot be read, which has been told.
static bool ReadTables(const Text& folder)
{
    struct Table {
        const char* name;
        void (*Read)(const Text& name);
    };
    static constexpr Table tables[] = {{"headers.txt", ReadHeaders},
                                       {"lith.txt", ReadContacts},
                                       {"desc.txt", ReadDescriptions},
                                       {"well.txt", ReadWell}};
    for (const Table& table : tables) {
        const Text name = JoinPath(folder, table.name);
        if (!FileExists(name)) {
            MsgBox("File Not Found: " + name, OkOnly, Exclamation);
            return false;
        }
        try {
            table.Read(name);
        } catch (const RunTimeError&) {
            MsgBox(Text("Error processing ") + table.name + " file:", OkOnly, Exclamation);
            return false;
        }
    }
    return true;
}

// ---------------------------------------------------------------------------------------------------- the run

static Text FileByHeaders()
{
    if (!IsBlank(BoringData.Name))
        return JoinPath(ProjectPath, BoringData.Name + ".bor");
    MsgBox("Since no boring name was mapped in headers.txt, the new boring file will be saved as GTGS1.BOR", OkOnly,
           Exclamation);
    return JoinPath(ProjectPath, "gtgs1.bor");
}

Text ConvertGTGSGeneral(const Text& newFile)
try {
    if (!ReadTemplate())
        return "";
    const Text& folder = TableFolder();
    if (!FolderWritable(folder)) {
        MsgBox("Path does not exist: " + folder, OkOnly, Exclamation);
        return "";
    }
    if (!ReadTables(folder))
        return "";
    const Text name = newFile == NameFromHeaders ? FileByHeaders() : newFile;
    if (!MayReplace(name)) {
        MsgBox("Please enter a different filename", OkOnly, Exclamation);
        return "";
    }
    WriteConvertedBoring(name);
    MsgBox("New Boring File Created:  " + name, OkOnly, Announcement);
    return name;
} catch (...) {
    ReportFailure(__func__);
    return "";
}
