// editor_bench.cpp -- what the log tool costs its user: the start to a usable window against an empty main window of
// the same library, opening a boring of 100 layers, 80 samples and 1000 lines, a keystroke in it, the page and the
// check list beside it. On a screen that is not there; in a folder of its own, with the stock files.
#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "boring/boringfile.h"
#include "editors/borinput.h"
#include "editors/checklist.h"
#include "programs/jobtable.h"
#include "session/platform.h"
#include "session/recovery.h"
#include "session/session.h"
#include "session/startup.h"
#include "tools/livepreview.h"
#include "windows/application.h"
#include "windows/showwindows.h"

#include <QAction>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QSettings>
#include <QStatusBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QWindow>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <filesystem>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

static Text home;

static QMainWindow* LogWindow()
{
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == "frmBorinput")
            return qobject_cast<QMainWindow*>(window);
    return nullptr;
}

static void Settle(QWidget* window)
{
    window->repaint();
    QApplication::processEvents();
}

// Until the window stands painted on its screen and events are answered.
static void AwaitShown(const QWidget* window)
{
    while (!window->windowHandle()->isExposed())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

// A boring as full as one gets.
static void WriteFullBoring()
{
    BoringData = BoringRecord();
    BoringData.Name = "FULL";
    BoringData.Scale[1] = "200";
    BoringData.Scale[2] = "5,5";
    BoringData.Scale[3] = "20";
    const ReportPart parts[] = {{"DEPTH", ".4"}, {"USCS", ".25"}, {"DESCRIPTIONS", "3"}, {"SAMP COND", "-"}};
    BoringData.RepPartCount = 0;
    for (const ReportPart& part : parts)
        BoringData.RepParts[++BoringData.RepPartCount] = part;
    BoringData.LayoutFile = "PORTRAIT.LAY";
    BoringData.LithCount = MaxLith;
    for (int i = 1; i <= MaxLith; ++i) {
        BoringData.Lith[i][1] = PlainNumber(2 * i);
        BoringData.Lith[i][2] = i % 2 ? "CL" : "SM";
    }
    BoringData.SampleCount = MaxSamples;
    for (int i = 1; i <= MaxSamples; ++i) {
        BoringData.Samples[i][1] = PlainNumber(2 * i);
        BoringData.Samples[i][2] = PlainNumber(2 * i + 1.5);
        BoringData.Samples[i][4] = "3-4-5";
    }
    BoringData.DesCount = MaxDes;
    for (int i = 1; i <= MaxDes; ++i)
        BoringData.Des[i] =
            (i % 10 == 1 ? "@" + PlainNumber(i / 10 + 1) : Text("silty sand, brown, fine to medium")) + '\xB6';
    WriteConvertedBoring(home + "/FULL.BOR");
}

// A program of its own from its start to a window that can be used: this one, called to show an empty main window or
// the log tool's. The one with words has a menu and a status line and nothing else: the first word on a window brings
// in the fonts of the system, which an empty one never asks for.
static void Start(benchmark::State& state, const char* what)
{
    for (auto _ : state) {
        const pid_t child = ::fork();
        if (child == 0) {
            ::execl("/proc/self/exe", "editor_bench", what, home.c_str(), nullptr);
            ::_exit(127);
        }
        int status = 0;
        rusage used{};
        ::wait4(child, &status, 0, &used);
        if (status != 0)
            state.SkipWithError("no window");
        state.counters["cpu_ms"] += double(used.ru_utime.tv_usec + used.ru_stime.tv_usec) / 1e3 +
                                    double(used.ru_utime.tv_sec + used.ru_stime.tv_sec) * 1e3;
    }
    state.counters["cpu_ms"] /= double(state.iterations());
}
BENCHMARK_CAPTURE(Start, EmptyMainWindow, "--empty")->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(20);
BENCHMARK_CAPTURE(Start, MainWindowWithWords, "--words")->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(20);
BENCHMARK_CAPTURE(Start, LogTool, "--log")->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(20);
BENCHMARK_CAPTURE(Start, LogToolWithAllTabs, "--whole")->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(20);

static void OpenFull(benchmark::State& state)
{
    for (auto _ : state) {
        frmBorinput::OpenNamed(home + "/FULL.BOR");
        LogWindow()->findChild<QAction*>("mnuHelp")->trigger(); // here: the window shows what was opened
    }
}
BENCHMARK(OpenFull)->Unit(benchmark::kMillisecond);

static void Keystroke(benchmark::State& state)
{
    LogWindow()->findChild<QTabWidget*>("SSTab1")->setCurrentIndex(1);
    auto* box = LogWindow()->findChild<QPlainTextEdit*>("MemoDes");
    box->setFocus();
    QTextCursor caret = box->textCursor();
    caret.setPosition(int(box->toPlainText().size()) / 2);
    box->setTextCursor(caret);
    for (auto _ : state) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
        QApplication::sendEvent(box, &press);
        box->repaint();
        state.PauseTiming();
        QKeyEvent back(QEvent::KeyPress, Qt::Key_Backspace, Qt::NoModifier);
        QApplication::sendEvent(box, &back);
        state.ResumeTiming();
    }
}
BENCHMARK(Keystroke)->Unit(benchmark::kMillisecond);

static void LivePageOfFull(benchmark::State& state)
{
    LivePage page;
    for (auto _ : state)
        if (!DrawLivePage(3, home, page))
            state.SkipWithError("no page");
}
BENCHMARK(LivePageOfFull)->Unit(benchmark::kMillisecond);

static void CheckListOfFull(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(CheckBoring());
}
BENCHMARK(CheckListOfFull)->Unit(benchmark::kMillisecond);

static void RecoveryCopyOfFull(benchmark::State& state)
{
    for (auto _ : state)
        frmBorinput::WriteCopy(home + "/copy");
}
BENCHMARK(RecoveryCopyOfFull)->Unit(benchmark::kMillisecond);

static void UseFolder()
{
    UseDesktopPlatform();
    FillJobTable();
    Platform.MsgBox = [](const Text&, Buttons buttons, Icon) { return int(buttons == OkOnly ? Ok : No); };
    Platform.ExecutableFolder = [] { return home; };
    Platform.DataFolder = [] { return home; };
    Platform.ShowHelp = [] { Settle(LogWindow()); };
}

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("STRATAVUE_SCREEN")) // a real one is measured on wish
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const std::string what = argc == 3 ? argv[1] : "";
    if (what == "--empty" || what == "--words") {
        QApplication application(argc, argv);
        QMainWindow window;
        if (what == "--words") {
            window.menuBar()->addMenu("File");
            window.statusBar()->showMessage("Project folder");
        }
        window.resize(1180, 780);
        window.show();
        AwaitShown(&window);
        std::_Exit(0);
    }
    Application application(argc, argv);
    if (what == "--log" || what == "--whole") {
        home = argv[2];
        UseFolder();
        LoadTitleBox();
        Platform.ShowAbout(false);
        ShowLogWindow();
        AwaitShown(LogWindow());
        if (what == "--whole")
            QApplication::processEvents(); // the tabs behind the first one
        EndRecovery();
        std::_Exit(LogWindow() ? 0 : 1);
    }
    const QTemporaryDir folder;
    home = folder.path().toStdString();
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
    std::filesystem::copy(SOURCE_DIR "/data", home);
    std::filesystem::create_directory_symlink(BUILD_DIR "/fills", home + "/fills");
    UseFolder();
    LoadTitleBox();
    WriteFullBoring();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    ShowLogWindow();
    benchmark::RunSpecifiedBenchmarks();
    EndRecovery();
    return 0;
}
