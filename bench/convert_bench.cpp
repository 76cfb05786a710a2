// convert_bench.cpp -- what a run of conversions costs: 500 foreign files, as many at a time as the batch dialog takes,
// with the progress window on a screen that is not there.
#include "convert/gtgsprt.h"
#include "convert/winlog.h"
#include "run/batchrun.h"
#include "session/deviceconfig.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/session.h"
#include "windows/showwindows.h"

#include <QApplication>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <filesystem>

static constexpr int fileCount = 500;

// Copies of one foreign file in a folder of their own, gone with the benchmark.
namespace
{
struct Copies {
    Copies(const Text& source, const Text& ending) : folder("bench-conversions")
    {
        std::filesystem::create_directory(folder);
        for (int i = 1; i <= fileCount; ++i) {
            names.push_back(JoinPath(FullPath(folder), "B-" + PlainNumber(i) + ending));
            std::filesystem::copy_file(source, names.back(), std::filesystem::copy_options::overwrite_existing);
        }
    }
    ~Copies()
    {
        std::filesystem::remove_all(folder);
    }
    Text folder;
    std::vector<Text> names;
};
} // namespace

static void ConvertAll(benchmark::State& state, void (*job)(), const Text& source, const Text& ending)
{
    const Copies copies(Text(SOURCE_DIR) + "/tests/convert/data/" + source, ending);
    for (auto _ : state) {
        state.PauseTiming();
        for (const Text& name : FilesIn(FullPath(copies.folder), ".bor"))
            std::filesystem::remove(JoinPath(copies.folder, name));
        state.ResumeTiming();
        for (size_t first = 0; first < copies.names.size(); first += MaxRunFiles) {
            runFileCount = 0;
            for (size_t i = first; i < copies.names.size() && runFileCount < MaxRunFiles; ++i)
                runFiles[++runFileCount] = copies.names[i];
            job();
        }
    }
    state.counters["borings"] = double(FilesIn(FullPath(copies.folder), ".bor").size());
}

static void PrintFiles(benchmark::State& state)
{
    ConvertAll(state, ConvertGTGS2BOR, "prt/ordinary.PRT", ".PRT");
}
BENCHMARK(PrintFiles)->Unit(benchmark::kMillisecond)->UseRealTime();

static void WinLogFiles(benchmark::State& state)
{
    WinLogTemplate = Text(SOURCE_DIR) + "/tests/convert/data/log/template.BOR";
    ConvertAll(state, ConvertWinLog, "log/ordinary.LOG", ".LOG");
}
BENCHMARK(WinLogFiles)->Unit(benchmark::kMillisecond)->UseRealTime();

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    UseDesktopPlatform();
    Platform.MsgBox = [](const Text& words, Buttons, Icon icon) {
        if (icon != Announcement)
            std::fprintf(stderr, "%s\n", words.c_str());
        return int(Ok);
    };
    WorkingFolder = RunFolder = BUILD_DIR;
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
