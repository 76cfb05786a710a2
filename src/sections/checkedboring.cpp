// checkedboring.cpp -- the borings and layer tables that a definition names, read once for each state of their files.
#include "sections/checkedboring.h"

#include "boring/boringblocks.h"
#include "sections/sectionboring.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/machine.h"
#include "session/savename.h"
#include "session/shared.h"
#include "tools/hush.h"

#include <algorithm>
#include <map>
#include <memory>

using namespace VCROSS;

// ---- Borings

static void ReadSamples(LineReader& in, CheckedBoring& boring)
{
    for (int rows = in.Count(); rows > 0; --rows) {
        CheckedSample sample;
        sample.Start = TextNumber(in.Line());
        sample.End = TextNumber(in.Line());
        in.Skip(3);
        for (int n = 1; n <= SampleParams; ++n)
            sample.Param[size_t(n)] = in.Line();
        boring.Samples.push_back(std::move(sample));
    }
}

static void ReadLayers(LineReader& in, CheckedBoring& boring)
{
    for (int rows = in.Count(); rows > 0; --rows) {
        const double depth = TextNumber(in.Line());
        boring.Layers.push_back({depth, LayerCode(in.Line())});
        boring.Deepest = std::max(boring.Deepest, depth);
        in.Skip(LithCells - 2);
    }
}

static void ReadParams(SectionBoringFile& blocks, CheckedBoring& boring)
{
    for (int rows = blocks.in.Count(); rows > 0; --rows) {
        blocks.in.Skip(1);
        for (int n = 1; n < blocks.ParamCells(); ++n)
            if (!IsBlank(blocks.in.Line()))
                boring.GenParamFilled[size_t(n)] = true;
    }
}

static void ReadBoring(const Text& path, CheckedBoring& boring)
{
    SectionBoringFile blocks(path);
    LineReader& in = blocks.in;
    boring.Name = in.Line();
    in.Skip(1 + 2 * MaxInfo);
    boring.DepthMax = TextNumber(in.Line());
    in.Skip(MaxScale - 1);
    blocks.Pass(2); // report parts
    in.Skip(1);     // the layout file
    ReadSamples(in, boring);
    ReadLayers(in, boring);
    blocks.Pass(1); // descriptions
    ReadParams(blocks, boring);
    for (int n = 1; n <= SampleParams; ++n)
        for (int cell = 1; cell <= 9; ++cell)
            boring.SampleSetup[n][cell] = in.Line();
    for (int n = 1; n <= GenParams; ++n)
        for (int cell = 1; cell <= 8; ++cell)
            boring.GenSetup[n][cell] = in.Line();
    blocks.Pass(2); // well construction
    blocks.Pass(1); // its notes
    boring.WellName = in.Line();
    in.Skip(3);
    boring.RefElevation = TextNumber(in.Line());
    boring.StickUp = TextNumber(in.Line());
    in.Skip(MaxGenWell - 6);
    SectionWell well;
    blocks.OuterLayers(well);
    boring.BoreDepth = double(well.boreDepth);
    blocks.Pass(LayerCells); // inner layers
}

static BoringLookedAt Look(const Text& path)
{
    auto boring = std::make_shared<CheckedBoring>();
    boring->There = FileExists(path);
    if (!boring->There)
        return boring;
    try {
        boring->Current = LineReader(path).Line().starts_with("5.");
        if (boring->Current)
            ReadBoring(path, *boring);
    } catch (...) {
        boring->Failure = FailureInHand();
    }
    return boring;
}

namespace
{
// As it was when it was read.
template <class What>
struct AsRead {
    FileState State;
    What Is;
};
template <class What>
using FilesRead = std::map<std::string, AsRead<What>>; // by their paths on this machine
} // namespace

static FilesRead<BoringLookedAt> boringsRead;
static FilesRead<TableLookedAt> tablesRead;

static const SharedRecord shared[] = {
    {"boringsRead", Kind::Machine, boringsRead},
    {"tablesRead", Kind::Machine, tablesRead},
};

// What the file is, looked at again only when it has changed.
template <class What>
static What Remembered(FilesRead<What>& known, const Text& path, What (*look)(const Text& path))
{
    constexpr size_t most = 300;
    const std::string native = NativePath(path);
    const FileState state = Machine::StateOf(native);
    const auto found = known.find(native);
    if (found != known.end() && found->second.State == state && state != FileState())
        return found->second.Is;
    if (known.size() > most)
        known.clear();
    AsRead<What>& fresh = known[native];
    fresh = {state, look(path)};
    return fresh.Is;
}

BoringLookedAt VCROSS::LookAtBoring(const Text& path)
{
    return Remembered(boringsRead, path, Look);
}

// ---- Layer tables

static TableLookedAt LookTable(const Text& path)
{
    if (!FileExists(path))
        return nullptr;
    const Hushed quiet;
    const int before = FailuresReported;
    OpenGISFile(path);
    if (FailuresReported != before)
        return nullptr;
    auto read = std::make_shared<GisRecord>(GisData);
    for (int row = 1; row <= read->boringCount; ++row) {
        Text& name = read->boringCells[row][GisFileName];
        name = UpperCase(WithEnding(name, ".BOR"));
    }
    return read;
}

TableLookedAt VCROSS::LookAtTable(const Text& path)
{
    return Remembered(tablesRead, WithEnding(path, ".gis"), LookTable);
}

int VCROSS::RowInTable(const GisRecord& table, const Text& boringFile)
{
    for (int row = 1; row <= table.boringCount; ++row)
        if (table.boringCells[row][GisFileName] == UpperCase(boringFile))
            return row;
    return 0;
}

bool VCROSS::HasThickness(const GisRecord& table, int row, int k)
{
    if (row == 0)
        return false;
    const auto& cells = table.layerCells[row].slot;
    const Text cell = UpperCase(Trim(cells[size_t(k)]));
    if (cell.empty() || cell.starts_with('X'))
        return false;
    if (Holds(cell, '-'))
        return TextNumber(Before(cell, '-')) != TextNumber(Behind(cell, '-'));
    return TextNumber(cell) != (k == 1 ? 0 : TextNumber(Before(cells[size_t(k) - 1], '-')));
}
