// recovery_test.cpp -- the desktop program killed while a boring is typed in its window, by real keys. The program is a
// run of this test program that plays the typist until it is killed.
#include "windows/driver.h"

#include "boring/boringboxes.h"
#include "places.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/recovery.h"
#include "session/session.h"
#include "windows/hands.h"
#include "windows/showwindows.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <deque>
#include <fcntl.h>
#include <random>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
// What the typist tells, in a file that both map.
struct Told {
    std::atomic<int> safe;  // letters that must not be lost any more
    std::atomic<int> found; // letters at the start; -1 before it
    std::atomic<int> offered;
};
} // namespace

static constexpr int intervalMs = 300;

static Told* Map(const char* file)
{
    const int handle = ::open(file, O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (handle < 0 || ::ftruncate(handle, sizeof(Told)) != 0)
        return nullptr;
    void* const told = ::mmap(nullptr, sizeof(Told), PROT_READ | PROT_WRITE, MAP_SHARED, handle, 0);
    ::close(handle);
    return told == MAP_FAILED ? nullptr : static_cast<Told*>(told);
}

static int Letters()
{
    return int(frmBorinput::MemoDes.text.size());
}

TEST_CASE("the typist" * doctest::skip())
{
    using Clock = std::chrono::steady_clock;
    const char* const home = std::getenv("STRATAVUE_TYPIST");
    REQUIRE(home);
    Told* const told = Map((std::string(home) + "/told").c_str());
    REQUIRE(told);
    RecoveryInterval = intervalMs;
    QMainWindow* log = LogWindow();
    EndRecovery();
    StartRecovery(Text(home) + "/recovery");
    WatchTool(LogTool);
    QTimer::singleShot(0, [told] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            // The program was killed at the very end of a save: the file is as new as the copy.
            const bool saved = box->text().contains("has been written since");
            told->offered += !saved;
            for (QAbstractButton* button : box->buttons())
                if (button->text().remove('&') == (saved ? "No" : "Yes"))
                    button->click();
        }
    });
    OfferRecovery();
    if (BoringFileName.empty()) {
        Then("frmOpenSave", [home](QWidget* window) {
            auto* box = Find<QLineEdit>(window, "fileText");
            box->setText(QString(home) + "/B.BOR");
            QTest::keyClick(box, Qt::Key_Return);
        });
        ClickMenu(log, "mnuFile", "mnuOpen");
        CheckAllDone();
    }
    told->found = Letters();
    told->safe = Letters();
    auto* const box = Find<QPlainTextEdit>(log, "MemoDes");
    Find<QTabWidget>(log, "SSTab1")->setCurrentIndex(1);
    Click(box);
    box->moveCursor(QTextCursor::End);
    // Warnings of a save are clicked away.
    QTimer answers;
    QObject::connect(&answers, &QTimer::timeout, [] {
        if (auto* warning = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            warning->accept();
    });
    answers.start(1);
    std::mt19937 random{unsigned(::getpid())};
    std::deque<std::pair<Clock::time_point, int>> typed;
    for (;;) {
        QTest::keyClick(box, 'a');
        typed.push_back({Clock::now(), Letters()});
        const auto now = Clock::now();
        QTest::qWait(1); // in here the timers are heard that are due by now
        while (!typed.empty() && typed.front().first <= now - std::chrono::milliseconds(intervalMs * 21 / 20)) {
            told->safe = typed.front().second;
            typed.pop_front();
        }
        if (random() % 150 == 0) {
            const int letters = Letters();
            log->findChild<QAction*>("mnuSave")->trigger();
            told->safe = letters;
        }
    }
}

TEST_CASE(
    "the window killed in the middle of typing and of saving loses nothing older than the time between two copies")
{
    const int kills = std::getenv("STRATAVUE_SOAK") ? 200 : 4;
    const Text home = Scratch("home");
    std::filesystem::create_directories(home);
    std::filesystem::copy_file(SOURCE_DIR "/samples/MW-108.BOR", home + "/B.BOR");
    Told* const told = Map((home + "/told").c_str());
    REQUIRE(told);
    std::mt19937 random(7);
    int typed = 0;
    for (int kill = 0; kill <= kills; ++kill) {
        CAPTURE(kill);
        const int safe = told->safe;
        told->found = -1;
        const pid_t child = ::fork();
        REQUIRE(child >= 0);
        if (child == 0) {
            ::setenv("STRATAVUE_TYPIST", home.c_str(), 1);
            const int silence = ::open("/dev/null", O_RDWR);
            ::dup2(silence, 1);
            ::dup2(silence, 2);
            ::execl("/proc/self/exe", "windowtests", "--no-skip", "-tc=the typist", nullptr);
            ::_exit(127);
        }
        int status = 0;
        for (int wait = 0; wait < 30000 && told->found < 0 && ::waitpid(child, &status, WNOHANG) == 0; ++wait)
            ::usleep(1000);
        REQUIRE(told->found >= 0);
        CHECK(told->found >= safe);
        ::usleep(unsigned(200000 + random() % 900000));
        typed += told->safe > told->found;
        ::kill(child, SIGKILL);
        ::waitpid(child, &status, 0);
        CHECK(WIFSIGNALED(status)); // it has typed to the last
        std::filesystem::remove_all(std::filesystem::temp_directory_path() /
                                    ("stratavue-test-" + std::to_string(child)));
    }
    CHECK(typed > 0);
    CHECK(told->offered > 0);
    ::munmap(told, sizeof(Told));
}

TEST_CASE("Escape and the closing of the box at the question about a copy keep it for the next start; No takes it away")
{
    QMainWindow* log = LogWindow();
    OpenSample("MW-108.BOR");
    Find<QLineEdit>(log, "Text1")->setFocus();
    QTest::keyClicks(Find<QLineEdit>(log, "Text1"), "!");
    KeepCopy();
    const Text folder = Scratch("userdata/Stratavue/recovery");
    std::filesystem::copy(folder, Scratch("left"));
    FileChanged = 0;
    EndRecovery();
    std::filesystem::remove_all(folder);
    std::filesystem::copy(Scratch("left"), folder);
    const std::function<void(QWidget*)> ways[] = {[](QWidget* box) {
                                                      LookAt(box, "copy-question");
                                                      Key(box, Qt::Key_Escape);
                                                  },
                                                  [](QWidget* box) { box->close(); },
                                                  [](QWidget* box) {
                                                      for (QAbstractButton* button :
                                                           box->findChildren<QAbstractButton*>())
                                                          if (button->text().remove('&') == "No")
                                                              button->click();
                                                  }};
    for (const auto& way : ways) {
        StartRecovery(folder);
        WatchTool(LogTool);
        CHECK(FilesIn(folder, ".copy").size() == 1);
        Then("MsgBox", way);
        OfferRecovery();
        CheckAllDone();
        EndRecovery();
    }
    CHECK(FilesIn(folder, "").empty());
}

// A copy of what stands in the boxes is made within an interval, while a cell is being typed in.
static Text CopyWhileTyping(const char* window)
{
    Text copy;
    const Text folder = Scratch("userdata/Stratavue/recovery");
    for (int wait = 0; wait < 40 && copy.find("4711.25") == Text::npos; ++wait) {
        Settle(50);
        for (const Text& name : FilesIn(folder, ".copy"))
            copy = ReadWholeFile(JoinPath(folder, name));
    }
    CHECK_MESSAGE((Focus() && Focus()->inherits("QLineEdit")), window); // it is typed in still
    return copy;
}

TEST_CASE(
    "a copy holds what is being typed in a cell, which goes on being typed and is no change before it is taken in")
{
    const int interval = RecoveryInterval;
    RecoveryInterval = 600;
    QMainWindow* log = LogWindow();
    OpenSample("TC-101.BOR");
    ClickCell(log, "SSLith", 1, 1);
    TypeText("4711.25");
    CHECK(CopyWhileTyping("frmBorinput").find("\r\n4711.25\r\n") != Text::npos);
    CHECK(FileChanged == 0);
    CHECK(frmBorinput::SSLith.Cell(1, 1) != "4711.25");
    Press(Qt::Key_Escape);
    CHECK(frmBorinput::SSLith.Cell(1, 1) != "4711.25");
    Then("frmCross", [](QWidget* cross) {
        cross->activateWindow();
        Settle();
        auto* view = Find<QTableView>(cross, "SS1");
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(view->model()->index(0, 0)).center());
        TypeText("4711.25");
        CHECK(CopyWhileTyping("frmCross").find("\r\n4711.25\r\n") != Text::npos);
        CHECK(FileChanged == 0);
        Press(Qt::Key_Escape);
        cross->close();
    });
    ClickMenu(log, "mnuTools", "mnuvcross");
    CheckAllDone();
    RecoveryInterval = interval;
}

TEST_CASE("after a crash the copy is offered in a box, Yes shows it in the window, and a clean end leaves none")
{
    QMainWindow* log = LogWindow();
    OpenSample("MW-108.BOR");
    Find<QLineEdit>(log, "Text1")->setFocus();
    QTest::keyClicks(Find<QLineEdit>(log, "Text1"), "!");
    REQUIRE(FileChanged == 1);
    KeepCopy();
    const Text folder = Scratch("userdata/Stratavue/recovery");
    REQUIRE(FilesIn(folder, ".copy").size() == 1);
    // What a crash leaves, from a run that no longer is.
    std::filesystem::copy(folder, Scratch("left"));
    FileChanged = 0;
    EndRecovery();
    CHECK(FilesIn(folder, "").empty());
    std::filesystem::remove_all(folder);
    std::filesystem::copy(Scratch("left"), folder);
    const Text text = ReadScratch("userdata/Stratavue/recovery/" + FilesIn(folder, ".txt")[0]);

    Find<QLineEdit>(log, "Text1")->setText("another");
    StartRecovery(folder);
    WatchTool(LogTool);
    const Text time = Text(text.substr(text.find(".BOR") + 6, 16));
    const Text name = Scratch("samples/MW-108.BOR");
    ThenAnswer(("The program ended before " + name + " was saved.  A copy of " + time +
                " was kept.  Would you like to open it?")
                   .c_str(),
               "Yes");
    OfferRecovery();
    CheckAllDone();
    CHECK(FileChanged == 1);
    CHECK(log->isWindowModified());
    CHECK(Find<QLineEdit>(log, "Text1")->text().contains("!"));
    CHECK(BoringFileName == name);
    ThenAnswer("Would you like to save the current file before quitting?", "Cancel");
    CHECK_FALSE(log->close());
    CheckAllDone();
    KeepCopy();
    CHECK(FilesIn(folder, ".copy").size() == 1);
    ThenAnswer("Would you like to save the current file before quitting?", "No");
    CHECK(log->close());
    CheckAllDone();
    CHECK(FilesIn(folder, "").empty());
}
