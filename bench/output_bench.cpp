// output_bench.cpp -- what a page costs on its way out: one PDF of one page, a run of 500 pages, a picture, a drawing,
// and the whole program without windows.
#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "canvas/patterns.h"
#include "dxf/dxf.h"
#include "painter/headless.h"
#include "painter/pdfrun.h"
#include "painter/pngpages.h"

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

static constexpr int PageObjects = 1500;

static Text ScratchFile(const char* name)
{
    return std::filesystem::temp_directory_path().string() + "/stratavue-bench-" + std::to_string(::getpid()) + name;
}

// A full log page of 1,500 objects, no two pages alike: frame lines and ticks, columns of fills in twenty patterns,
// some of them tinted, sample boxes, contacts with waves, and lines of description.
static void DrawPage(int number)
{
    static const char* const words[] = {"Silty SAND with gravel, fine to",
                                        "medium grained, brown, moist, dense;",
                                        "occasional cobbles below 12 feet",
                                        "CL",
                                        "N = 24",
                                        "moist",
                                        "12.5"};
    static const char* const colors[] = {"250 180 110", "166 26 26", "210 180 150"};
    float x = 0.5f, y = 0.5f;
    setscalex(1);
    setscaley(1);
    canvasstart("P");
    setorigin(x, y);
    TintsInMemory = true;
    setcolor(0);
    int row = 0;
    while (int(PageList.Objects.size()) < PageObjects) {
        const int depth = row % 100;
        moveto(static_cast<float>(0.1 + 0.01 * (number % 7)), static_cast<float>(0.2 + depth * 0.098));
        setlinewidth(depth % 10 == 0 ? 2 : 1);
        lineright(0.15);
        lineup(0.05);
        lineleft(0.1);
        setlinewidth(1);
        setfontsize(8);
        textleft();
        moveright(0.3);
        printnum(static_cast<float>(number + depth * 0.5));
        moveright(0.4);
        rectby(0.3, 0.09);
        if (depth % 3 == 0) {
            setfillfile(21 + (row + number) % 20);
            if (depth % 12 == 0)
                rectfillcolored(0.5, 0.09, colors[row % 3]);
            else
                rectfill(0.5, 0.09);
        }
        if (depth % 5 == 0) {
            drawarc(0.25, -1);
            moveright(0.25);
            drawarc(0.25, 1);
        }
        moveright(0.8);
        setlinestyle(1 + depth % 5);
        lineright(1);
        setlinestyle(1);
        for (int i = 0; i < 4; ++i) {
            moveright(0.6);
            setfontsize(7);
            printtextraw(Text(words[(row + i) % 7]) + " " + PlainNumber(number + row));
        }
        circle(0.02f);
        ++row;
    }
    PageList.Objects.resize(PageObjects);
}

// The peak memory of the process since the last call, in MB.
static double PeakMemory(bool reset)
{
    if (reset) {
        std::ofstream("/proc/self/clear_refs") << "5";
        return 0;
    }
    std::ifstream in("/proc/self/status");
    for (std::string line; std::getline(in, line);)
        if (line.starts_with("VmHWM:"))
            return std::atof(line.c_str() + 6) / 1024;
    return 0;
}

static void OnePagePdf(benchmark::State& state)
{
    StartWithoutScreen();
    DrawPage(1);
    const Text file = ScratchFile(".pdf");
    for (auto _ : state) {
        PdfRun run(file, "");
        run.AddPage();
        run.Close();
    }
    state.counters["KB"] = double(std::filesystem::file_size(file)) / 1024;
    std::filesystem::remove(file);
}
BENCHMARK(OnePagePdf)->Unit(benchmark::kMillisecond);

// Drawing the objects is part of it, as in a run.
static void RunOf500Pages(benchmark::State& state)
{
    StartWithoutScreen();
    const Text file = ScratchFile(".pdf");
    PeakMemory(true);
    for (auto _ : state) {
        PdfRun run(file, "");
        for (int page = 1; page <= 500; ++page) {
            DrawPage(page);
            run.AddPage();
        }
        run.Close();
    }
    state.counters["pages/s"] = benchmark::Counter(500.0 * double(state.iterations()), benchmark::Counter::kIsRate);
    state.counters["KB/page"] = double(std::filesystem::file_size(file)) / 1024 / 500;
    state.counters["peak MB"] = PeakMemory(false);
    std::filesystem::remove(file);
}
BENCHMARK(RunOf500Pages)->Unit(benchmark::kSecond)->Iterations(1)->UseRealTime();

static void OnePagePng(benchmark::State& state)
{
    StartWithoutScreen();
    DrawPage(1);
    const Text file = ScratchFile(".png");
    for (auto _ : state)
        SavePagePng(file, 150);
    std::filesystem::remove(file);
}
BENCHMARK(OnePagePng)->Unit(benchmark::kMillisecond);

static void OnePageDxf(benchmark::State& state)
{
    DrawPage(1);
    size_t size = 0;
    for (auto _ : state)
        size = PageDxf().size();
    state.counters["KB"] = double(size) / 1024;
}
BENCHMARK(OnePageDxf)->Unit(benchmark::kMillisecond);

// A sample boring to a PDF of one page, the start of the process included.
static void ProgramOnePage(benchmark::State& state)
{
    const Text file = ScratchFile(".pdf");
    const Text command = Text(BUILD_DIR) + "/stratavue-batch log --page 1 --pdf " + file + " " + BUILD_DIR +
                         "/samples/TC-104.BOR 2>/dev/null";
    for (auto _ : state)
        if (std::system(command.c_str()) < 0)
            state.SkipWithError("the program does not start");
    std::filesystem::remove(file);
}
BENCHMARK(ProgramOnePage)->Unit(benchmark::kMillisecond)->UseRealTime();
