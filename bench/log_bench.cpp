// log_bench.cpp -- reading a boring, and the object list of a page from its file.
#include "boring/boringdata.h"
#include "boring/boringfile.h"
#include "canvas/pageobjects.h"
#include "canvas/patterns.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "session/files.h"
#include "session/session.h"

#include <benchmark/benchmark.h>

static const Text ordinary = "samples/TC-101.BOR"; // three pages, every usual column

// OpenBoringFile2 into the record.
static void ReadBoring(benchmark::State& state)
{
    DialogMode = -1;
    for (auto _ : state) {
        BoringFileName = ordinary;
        OpenBoringFile2();
    }
    state.counters["lines"] = double(LineReader(ordinary).AtEnd() ? 0 : BoringData.DesCount);
}
BENCHMARK(ReadBoring)->Unit(benchmark::kMicrosecond);

// A run over the pages of one file as Preview starts it; the object lists are built and nothing is painted. The time
// is that of a page: its share of the run, reading of log.mas, boring, layout and words included.
static void DrawPages(benchmark::State& state, const Text& boring)
{
    TintsInMemory = true;
    JobTable[2] = VLOG::vlogstart;
    int pages = 0;
    size_t objects = 0;
    for (auto _ : state) {
        jobCode = 2;
        singleFile = 1;
        singleFileName = boring;
        DrawPrintLoad();
        DrawPrintOk();
        pages += RunPages.pageCount;
        objects = PageList.Objects.size();
    }
    state.counters["pages/s"] = benchmark::Counter(pages, benchmark::Counter::kIsRate);
    state.counters["ms/page"] =
        benchmark::Counter(pages / 1000.0, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    state.counters["objects on the last page"] = double(objects);
}

static void PagesOfOrdinaryBoring(benchmark::State& state)
{
    DrawPages(state, ordinary);
}
BENCHMARK(PagesOfOrdinaryBoring)->Unit(benchmark::kMillisecond);

// The same columns with so many contacts, samples and lines of text each: the time has to grow with the count.
static void PageOfContacts(benchmark::State& state)
{
    const int contacts = int(state.range(0));
    BoringData = BoringRecord();
    DialogMode = -1;
    BoringFileName = ordinary;
    OpenBoringFile2();
    BoringData.Scale[1] = PlainNumber(contacts);
    BoringData.Scale[2] = PlainNumber(std::max(contacts / 10, 1));
    BoringData.Scale[3] = "";
    BoringData.LithCount = contacts;
    BoringData.SampleCount = std::min(contacts, MaxSamples);
    BoringData.DesCount = 2 * contacts;
    for (int i = 1; i <= contacts; ++i) {
        BoringData.Lith[i][1] = PlainNumber(i);
        BoringData.Lith[i][2] = i % 2 ? "SM" : "CL/ML";
        BoringData.Des[2 * i - 1] = "@" + PlainNumber(i);
        BoringData.Des[2 * i] = "Silty SAND, fine, gray, wet, loose";
    }
    for (int i = 1; i <= BoringData.SampleCount; ++i) {
        BoringData.Samples[i][1] = PlainNumber(i - 0.8);
        BoringData.Samples[i][2] = PlainNumber(i - 0.3);
        BoringData.Samples[i][3] = "1";
        BoringData.Samples[i][4] = "6,8,11";
    }
    const Text file = "bench-contacts.BOR";
    WriteConvertedBoring(file);
    DrawPages(state, file);
    state.SetComplexityN(contacts);
}
BENCHMARK(PageOfContacts)->Arg(10)->Arg(20)->Arg(40)->Arg(80)->Unit(benchmark::kMillisecond)->Complexity();

// One page with a column of every kind, well diagram and data files included. Not a page that anybody would print: it
// runs off the sheet.
static void PageOfEveryColumn(benchmark::State& state)
{
    const Text catalogue = SOURCE_DIR "/tests/pages/columns";
    WriteWholeFile("CONE.DAT", ReadWholeFile(JoinPath(catalogue, "CONE.DAT")), Durability::Scratch);
    BoringData = BoringRecord();
    DialogMode = -1;
    BoringFileName = JoinPath(catalogue, "PAGE-1.BOR");
    OpenBoringFile2();
    static constexpr const char* Items[] = {"depth scale",
                                            "elevation scale",
                                            "formations",
                                            "sample box-numbered",
                                            "sample box-graphic",
                                            "blow count",
                                            "blow count graph",
                                            "blow count graph-wide",
                                            "lab number",
                                            "graphic",
                                            "USCS",
                                            "descriptions",
                                            "cuttings",
                                            "cuttings-graph",
                                            "remarks",
                                            "well construction info",
                                            "well diagram",
                                            "well diagram-small",
                                            "water level",
                                            "P1",
                                            "P1G",
                                            "P12G",
                                            "P34G",
                                            "P1-4G",
                                            "GP1",
                                            "GP4",
                                            "GPG1",
                                            "GPG4",
                                            "MPG1-2-3",
                                            "MPG4-5"};
    static_assert(std::size(Items) == MaxRepParts);
    BoringData.RepPartCount = 0;
    for (const char* item : Items) {
        BoringData.RepParts[++BoringData.RepPartCount].Item = item;
        BoringData.RepParts[BoringData.RepPartCount].Width = "1";
    }
    const Text boring = "bench-columns.BOR";
    WriteConvertedBoring(boring);
    DrawPages(state, boring);
}
BENCHMARK(PageOfEveryColumn)->Unit(benchmark::kMillisecond);
