// recoverykills_test.cpp -- the log tool killed while a boring is typed and saved: at the next start nothing is missing
// that was typed before the last interval between two copies.
#include "testing.h"

#include "boring/boringboxes.h"
#include "boring/boringfile.h"
#include "editors/borinput.h"
#include "places.h"
#include "session/files.h"
#include "session/recovery.h"
#include "session/session.h"

#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <deque>
#include <random>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

using Clock = std::chrono::steady_clock;

static constexpr int refusedEvery = 5; // of the saves

// A boring all of whose boxes tell the same number.
static void Type(int number)
{
    const Text words = "typed " + PlainNumber(number);
    frmBorinput::Text1 = words;
    frmBorinput::SSLith.Cell(100, 4) = PlainNumber(number);
    frmBorinput::SSLegend.Cell(30, 2) = words;
    frmBorinput::MemoDes.text = words + CrLf + words;
    frmBorinput::MemoWcon.text = words;
    FileChanged = 1;
}

static int Typed()
{
    const Text words = frmBorinput::Text1;
    CHECK(frmBorinput::SSLegend.Cell(30, 2) == words);
    CHECK(frmBorinput::MemoDes.text == words + CrLf + words);
    if (frmBorinput::MemoWcon.text != words) // more lines than a boring holds
        CHECK(frmBorinput::MemoWcon.text.starts_with(words + CrLf));
    CHECK("typed " + frmBorinput::SSLith.Cell(100, 4) == words);
    return int(TextNumber(words.substr(words.find(' ') + 1)));
}

static void StartLogTool()
{
    UsePlainPlatform();
    std::filesystem::copy_file(SOURCE_DIR "/data/prompt.txt", Scratch("prompt.txt"),
                               std::filesystem::copy_options::overwrite_existing);
    RecoveryTools[LogTool] = {"VeskLog", &BoringFileName, frmBorinput::WriteCopy, frmBorinput::OpenCopy};
    frmBorinput::Load();
    StartRecovery(Scratch("recovery"));
    WatchTool(LogTool);
    frmBorinput::OpenNamed(Scratch("B.BOR"));
    Messages.clear();
}

// Types and saves until it is killed. safe is the number that must not be lost any more.
[[noreturn]] static void TypeForEver(std::atomic<int>& safe, unsigned seed)
{
    std::mt19937 random(seed);
    StartLogTool();
    std::deque<std::pair<Clock::time_point, int>> typed;
    int number = safe;
    for (int saves = 0;;) {
        Type(++number);
        typed.push_back({Clock::now(), number});
        const auto now = Clock::now();
        KeepCopy();
        while (!typed.empty() && typed.front().first <= now - std::chrono::milliseconds(RecoveryInterval)) {
            safe = typed.front().second;
            typed.pop_front();
        }
        if (random() % 20 == 0) {
            if (++saves % refusedEvery == 0)
                for (int line = 1; line <= 60; ++line)
                    frmBorinput::MemoWcon.text += CrLf;
            Messages.clear();
            frmBorinput::mnuSave();
            safe = number;
        }
        ::usleep(unsigned(random() % 500));
    }
}

TEST_CASE("killed while a boring is typed and saved, nothing is lost that is older than the time between two copies")
{
    const int kills = std::getenv("STRATAVUE_SOAK") ? 200 : 20;
    RecoveryInterval = 12;
    auto* const safe = static_cast<std::atomic<int>*>(
        ::mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    REQUIRE(safe != MAP_FAILED);
    StartLogTool();
    BoringFileName = Scratch("B.BOR");
    Type(0);
    SaveBoringFile();
    FileChanged = 0;
    EndRecovery();
    int offered = 0, progress = 0;
    for (int kill = 1; kill <= kills; ++kill) {
        CAPTURE(kill);
        const int before = *safe;
        const pid_t child = ::fork();
        REQUIRE(child >= 0);
        if (child == 0)
            TypeForEver(*safe, unsigned(kill));
        ::usleep(unsigned(20000 + 997 * (kill * 7 % 60)));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        progress += *safe > before;
        StartLogTool();
        const int saved = Typed();
        Platform.MsgBox = [](const Text& words, Buttons, Icon) {
            return int(words.find("has been written since") == Text::npos ? Yes : No);
        };
        OfferCopies();
        offered += FileChanged;
        const int found = Typed();
        CHECK(found >= *safe);
        CHECK(found >= saved);
        // What was recovered is saved, as the user would.
        frmBorinput::MemoWcon.text = frmBorinput::Text1;
        frmBorinput::mnuSave();
        *safe = found;
        EndRecovery();
        CHECK(FilesIn(Scratch("recovery"), "").empty());
    }
    CHECK(offered > 0);
    CHECK(progress > 0);
    ::munmap(safe, sizeof(std::atomic<int>));
}
