// textlines_bench.cpp -- the line breaker in lines a second.
#include "boring/boringboxes.h"
#include "boring/textlines.h"
#include "session/session.h"

#include <benchmark/benchmark.h>

// Descriptions as they are typed: paragraphs of some sentences.
static Text Description(int paragraphs)
{
    Text text;
    for (int i = 0; i < paragraphs; ++i)
        text +=
            "Stiff brown and mottled orange slightly sandy CLAY with occasional gravel of flint and chalk, trace of "
            "roots in the upper two feet. Gravel is subangular to rounded, of quartzite; cobbles below 9 feet.\r\n";
    return text;
}

// Lines of 3 inches of 8 points, as in a description column of the usual width.
static void LineBreaker(benchmark::State& state)
{
    const Text text = Description(int(state.range(0)));
    const int64_t room = BoxRoom(4750, 1550, 8);
    int64_t lines = 0;
    for (auto _ : state) {
        const std::vector<Text> broken = BreakLines(text, room);
        benchmark::DoNotOptimize(broken.data());
        lines += int64_t(broken.size());
    }
    state.SetItemsProcessed(lines);
}
BENCHMARK(LineBreaker)->Arg(10)->Arg(100)->Arg(1000);

// One word without a blank, the worst that can be typed.
static void LineBreakerOneWord(benchmark::State& state)
{
    const Text text(1 << 20, 'i');
    int64_t lines = 0;
    for (auto _ : state) {
        const std::vector<Text> broken = BreakLines(text, BoxRoom(4750, 1550, 8));
        benchmark::DoNotOptimize(broken.data());
        lines += int64_t(broken.size());
    }
    state.SetItemsProcessed(lines);
}
BENCHMARK(LineBreakerOneWord);

// The description box into stored lines, with their marks.
static void StoredLines(benchmark::State& state)
{
    frmBorinput::MemoDes.text = Description(200);
    frmBorinput::MemoDes.widthTwips = 4750;
    int64_t lines = 0;
    for (auto _ : state) {
        Text2Wrap32(1);
        lines += LineCount;
    }
    state.SetItemsProcessed(lines);
}
BENCHMARK(StoredLines);
