// main.cpp -- the benchmarks, in the working folder of the build with the fixed printer of a machine without one.
//
// Minimum and median of five runs:
//     build-bench/bench/output_bench --benchmark_repetitions=5 --benchmark_report_aggregates_only=true
#include "session/deviceconfig.h"
#include "session/platform.h"
#include "session/session.h"

#include <benchmark/benchmark.h>
#include <cstdio>

static void FillPlatform()
{
    Platform.MsgBox = [](const Text& words, Buttons, Icon) {
        std::fprintf(stderr, "%s\n", words.c_str());
        return int(Ok);
    };
    Platform.PrinterSheet = DefaultSheet;
    Platform.PageDrawn = [] {};
    Platform.ShowPage = [] {};
    Platform.PrintPage = [] {};
    Platform.EndPrintRun = [] {};
    Platform.PictureLoads = [](const Text&) { return true; };
    Platform.DropChangedPictures = [] {};
    Platform.ShowProgress = [](bool) {};
    Platform.StepProgress = [](const Text&, float) {};
    Platform.Breathe = [] {};
    Platform.ShortDate = [] { return Text("1/2/2026"); };
    Platform.Unattended = true;
}

int main(int argc, char** argv)
{
    FillPlatform();
    WorkingFolder = RunFolder = BUILD_DIR;
    LoadDevice();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
