// irpims.cpp -- borings as IRPIMS tables, fields separated by "|":
//
//     timbore.txt   a line for each boring
//     timlith.txt   a line for each contact, with its description
//     timcons.txt   a line for each boring: its well
//
// Which row of the boring information holds which field is fixed, so the office's prompts have to be in that order.
#include "convert/irpims.h"

#include "convert/convertedboring.h"
#include "convert/templateboring.h"
#include "run/batchrun.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/platform.h"

#include <algorithm>
#include <memory>
#include <vector>

static constexpr size_t descriptionWidth = 70; // of each of the two fields that hold it

namespace
{
struct IrpimsTables {
    explicit IrpimsTables(const Text& folder)
        : bore(JoinPath(folder, "timbore.txt")), lith(JoinPath(folder, "timlith.txt")),
          cons(JoinPath(folder, "timcons.txt"))
    {
    }
    void Close()
    {
        bore.Close();
        lith.Close();
        cons.Close();
    }
    LineWriter bore, lith, cons;
};
} // namespace

static void WriteFields(LineWriter& out, const std::vector<Text>& fields)
{
    Text line;
    for (size_t i = 0; i < fields.size(); ++i)
        line += (i == 0 ? "" : "|") + fields[i];
    out.Line(line);
}

// ---------------------------------------------------------------------------------------------------- descriptions

static bool IsContactLine(const Text& line)
{
    return line.starts_with('@');
}

static bool IsDepthLine(const Text& line)
{
    return UpperCase(line.substr(0, 3)) == ".L=";
}

// The lines of the first block whose opening line has the number, up to the next opening line, joined.
static Text Block(const BoringRecord& boring, bool (*opens)(const Text&), size_t markSize, double number)
{
    Text text;
    bool inside = false;
    for (int i = 1; i <= boring.DesCount; ++i) {
        const Text& line = boring.Des[i];
        if (opens(line)) {
            if (inside)
                break;
            inside = TextNumber(line.substr(markSize)) == number;
        } else if (inside) {
            text += line.ends_with(ParagraphMark) ? line.substr(0, line.size() - 1) : line;
        }
    }
    return text;
}

static Text DescriptionOf(const BoringRecord& boring, int contact)
{
    if (IsContactLine(boring.Des[1]))
        return Block(boring, IsContactLine, 1, contact);
    return Block(boring, IsDepthLine, 3, TextNumber(boring.Lith[contact][1]));
}

// ---------------------------------------------------------------------------------------------------- lines

static void WriteBoreLine(const BoringRecord& boring, LineWriter& out)
{
    const auto info = [&boring](int row) { return boring.Info[row][2]; };
    const Text depth = boring.LithCount > 0 ? Text(LTrim(boring.Lith[boring.LithCount][1])) : Text();
    const Text dates = info(1);
    const Text last(Holds(dates, ',') ? Behind(dates, ',') : std::string_view(dates));
    WriteFields(out, {info(8), "", boring.Name, info(7), info(13), info(11), info(12), "KRLN", "NA", depth, info(9),
                      Text(Before(dates, ',')), last, info(15), "NA"});
}

static void WriteLithLine(const BoringRecord& boring, int contact, LineWriter& out)
{
    const Text text = DescriptionOf(boring, contact);
    const Text more = text.size() > descriptionWidth ? text.substr(descriptionWidth, descriptionWidth) : Text();
    WriteFields(out, {boring.Info[8][2], "", boring.Name, PlainNumber(contact), boring.Lith[contact][1],
                      boring.Lith[contact][2], "", "", text.substr(0, descriptionWidth), more});
}

static void WriteConsLine(const BoringRecord& boring, LineWriter& out)
{
    const auto info = [&boring](int row) { return boring.Info[row][2]; };
    double deepest = 0;
    for (int row = 1; row <= boring.InnerLayerCount; ++row)
        deepest = std::max(deepest, TextNumber(boring.InnerLayers[row][2]));
    WriteFields(out, {info(8), "", boring.Name, boring.Name, info(7), "", boring.GenWell[11], boring.GenWell[5],
                      info(1), "", info(18), "", "", "", PlainNumber(deepest), info(13), info(15), info(9)});
}

// ---------------------------------------------------------------------------------------------------- the run

static void ExportBoring(const Text& name, IrpimsTables& tables)
{
    LineReader in(name);
    const Text version = in.AtEnd() ? Text() : in.Line();
    if (!version.starts_with("5.")) {
        MsgBox("Invalid Format for Boring File: " + name, OkOnly, Exclamation);
        return;
    }
    const auto boring = std::make_unique<BoringRecord>();
    ReadBoringBlocks(in, version, *boring, LastBlock::InnerLayers);
    WriteBoreLine(*boring, tables.bore);
    for (int contact = 1; contact <= boring->LithCount; ++contact)
        WriteLithLine(*boring, contact, tables.lith);
    WriteConsLine(*boring, tables.cons);
}

void Export2IRPIMS()
try {
    IrpimsTables tables(lastDir);
    try {
        const ConversionProgress progress(runFileCount);
        for (int i = 1; i <= runFileCount; ++i) {
            ExportBoring(runFiles[i], tables);
            incseg(1);
        }
    } catch (...) {
        tables.Close(); // the files keep what they have
        throw;
    }
    tables.Close();
    MsgBox("Created TIMBORE.TXT, TIMLITH.TXT, TIMCONS.TXT", OkOnly, Announcement);
} catch (...) {
    ReportFailure(__func__);
}

void frmBorinput::mnuExp2IRPIMS()
{
    jobCode = IrpimsJob;
    Platform.ShowDrawPrint();
}
