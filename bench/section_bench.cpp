// section_bench.cpp -- the object list of a cross section and of a fence, from their files. The time has to grow with
// borings x layers; a section of 50 borings with 100 layers each, and a fence of 15 borings with 100 layers each and 20
// panels, have to be there within a quarter of a second.
#include "boring/boringdata.h"
#include "boring/boringfile.h"
#include "canvas/pageobjects.h"
#include "canvas/patterns.h"
#include "gis/gisfile.h"
#include "run/batchrun.h"
#include "sections/fencerun.h"
#include "session/files.h"
#include "session/session.h"

#include <benchmark/benchmark.h>
#include <filesystem>

using namespace VCROSS;

static Text BoringName(int i)
{
    return "S" + PlainNumber(i) + ".BOR";
}

// A site in a folder of its own: borings of so many layers. Codes come again at other depths, so that plain joins,
// wedges and lenses are all there, and no two borings are alike. The lowest quarter has no like in the next borings:
// with a hundred layers to match, a look ahead would leave the tables.
static void WriteBorings(int borings, int layers)
{
    static const char* const codes[] = {"SM", "CL", "GW", "ML", "SP"};
    static const char* const lowest[] = {"CH", "MH", "GM"};
    ProjectPath = JoinPath(BUILD_DIR, "bench-site");
    std::filesystem::create_directories(NativePath(ProjectPath));
    unsigned seed = 1;
    for (int i = 1; i <= borings; ++i) {
        BoringData = BoringRecord();
        BoringData.Name = "S-" + PlainNumber(i);
        BoringData.GenWell[5] = PlainNumber(480 - i % 7);
        BoringData.LithCount = static_cast<int16_t>(layers);
        for (int k = 1; k <= layers; ++k) {
            seed = seed * 1103515245 + 12345;
            BoringData.Lith[k][1] = PlainNumber(300.0 * k / layers);
            BoringData.Lith[k][2] = 4 * k > 3 * layers ? lowest[i % 3] : codes[(seed >> 16) % 5];
        }
        WriteConvertedBoring(JoinPath(ProjectPath, BoringName(i)));
    }
}

// The lines behind the scales: titles, "Y", direction where there is one, legend, page.
static void WriteFoot(LineWriter& out, bool fence, const Text& gis)
{
    for (const char* title : {"Bench", "Title", "Second title", "A", "A'"})
        if (!fence || title != Text("A'"))
            out.Line(title);
    out.Line("Y");
    if (fence)
        out.Line("N,0");
    for (int row = 1; row <= 8; ++row)
        out.Line(row <= 3 ? "SM;Silty sand" : ";");
    out.Line("T");
    out.Line(gis);
}

static void WriteSection(const Text& file, int borings, const Text& gis)
{
    LineWriter out(file);
    out.Line(IntegerField(borings));
    for (int i = 1; i <= borings; ++i)
        for (const Text& line : {PlainNumber(20 * i), BoringName(i), Text("5"), Text("B"), Text("T"), Text(), Text()})
            out.Line(line);
    for (const char* line : {"", "0", "1040", "100", "Feet", "500", "100", "-50", "Feet", ""})
        out.Line(line);
    WriteFoot(out, false, gis);
    out.Line("");
    out.Line("");
    for (int row = 9; row <= 30; ++row)
        out.Line(";");
    out.Close();
}

// Fifteen borings on a grid, joined along and across.
static void WriteFence(const Text& file, int borings, int panels, const Text& gis)
{
    LineWriter out(file);
    out.Line("");
    for (int i = 1; i <= 15; ++i)
        out.Line(i > borings ? Text(",,,,,")
                             : PlainNumber(60 + 200 * (i % 5)) + "," + PlainNumber(50 + 150 * (i / 5)) + "," +
                                   BoringName(i) + ",5,T,B");
    out.Line("");
    for (int k = 1; k <= 20; ++k)
        out.Line(k > panels ? Text() : PlainNumber(1 + k % borings) + "," + PlainNumber(1 + (k + 4) % borings));
    for (const char* line : {"", "0", "1000", "100", "Feet", "0", "500", "100", "-50", "Feet", ""})
        out.Line(line);
    WriteFoot(out, true, gis);
    out.Close();
}

static void WriteTable(const Text& file, int borings, int layers)
{
    LineWriter out(file);
    out.Line(IntegerField(layers));
    for (int k = 1; k <= layers; ++k) {
        out.Line(k % 2 ? "SM" : "CL");
        out.Line(k % 3 ? "" : "RED");
    }
    out.Line(IntegerField(borings));
    for (int i = 1; i <= borings; ++i) {
        for (const Text& cell : {Text("S"), PlainNumber(100 * i), Text("0"), Text("480"), BoringName(i)})
            out.Line(cell);
        for (int k = 1; k <= layers; ++k)
            out.Line((i + k) % 9 == 0 ? Text("X") : PlainNumber(300.0 * k / layers));
    }
    out.Line("");
    out.Close();
}

// A print run of one page as it is started from its editor; nothing is painted.
static void Run(benchmark::State& state, int job, const Text& file)
{
    TintsInMemory = true;
    JobTable[4] = vcrossstart;
    JobTable[6] = vfencestart;
    jobCode = static_cast<int16_t>(job);
    for (auto _ : state) {
        singleFile = 1;
        singleFileName = file;
        DrawPrintLoad();
        DrawPrintOk();
    }
    state.counters["objects"] = double(PageList.Objects.size());
    state.SetComplexityN(state.range(0) * state.range(1));
}

static Text Prepare(benchmark::State& state, const char* name, bool table)
{
    const int borings = int(state.range(0)), layers = int(state.range(1));
    WriteBorings(borings, layers);
    if (table)
        WriteTable(JoinPath(ProjectPath, "BENCH.GIS"), borings, layers);
    return JoinPath(ProjectPath, name);
}

static void SectionByCodes(benchmark::State& state)
{
    const Text file = Prepare(state, "BENCH.CRO", false);
    WriteSection(file, int(state.range(0)), "");
    Run(state, 4, file);
}

static void SectionByTable(benchmark::State& state)
{
    const Text file = Prepare(state, "BENCH.CRO", true);
    WriteSection(file, int(state.range(0)), "BENCH.GIS");
    Run(state, 4, file);
}

static void FenceByCodes(benchmark::State& state)
{
    const Text file = Prepare(state, "BENCH.FEN", false);
    WriteFence(file, int(state.range(0)), 20, "");
    Run(state, 6, file);
}

static void FenceByTable(benchmark::State& state)
{
    const Text file = Prepare(state, "BENCH.FEN", true);
    WriteFence(file, int(state.range(0)), 20, "BENCH.GIS");
    Run(state, 6, file);
}

static void Sizes(benchmark::internal::Benchmark* bench)
{
    bench->Args({50, 12})->Args({50, 25})->Args({50, 50})->Args({12, 100})->Args({25, 100})->Args({50, 100});
}
BENCHMARK(SectionByCodes)->Apply(Sizes)->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);
BENCHMARK(SectionByTable)->Apply(Sizes)->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);
BENCHMARK(FenceByCodes)->Args({15, 25})->Args({15, 50})->Args({15, 100})->Unit(benchmark::kMillisecond);
BENCHMARK(FenceByTable)->Args({15, 25})->Args({15, 50})->Args({15, 100})->Unit(benchmark::kMillisecond);
