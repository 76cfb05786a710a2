// kills_test.cpp -- the program killed while it saves: what is on the disk is the old file or the new one, whole.
#include "testing.h"

#include "boring/boringdata.h"
#include "boring/boringfile.h"
#include "session/files.h"

#include <csignal>
#include <cstdlib>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

// A boring of some hundred lines, all of whose texts are the same number, so that a mixture of two saves shows.
static void FillBoring(int number)
{
    const Text text = "boring " + PlainNumber(number);
    BoringData = BoringRecord();
    BoringData.Name = text;
    BoringData.DesCount = MaxDes;
    for (int i = 1; i <= MaxDes; ++i)
        BoringData.Des[i] = text;
    BoringData.Client[MaxClient] = text;
}

static bool Whole(const std::string& bytes)
{
    FillBoring(int(TextNumber(bytes.size() > 15 ? bytes.substr(15, 12) : "")));
    WriteConvertedBoring("expected.BOR");
    return bytes == ReadScratch("expected.BOR");
}

TEST_CASE("killed at any moment of a save, the boring file is the old one or the new one")
{
    const int kills = std::getenv("STRATAVUE_SOAK") ? 2000 : 25;
    std::mt19937 random(20260101);
    FillBoring(0);
    WriteConvertedBoring("B.BOR");
    int changed = 0;
    std::string before = ReadScratch("B.BOR");
    for (int kill = 1; kill <= kills; ++kill) {
        const pid_t child = ::fork();
        REQUIRE(child >= 0);
        if (child == 0) {
            for (int save = 1;; ++save) {
                FillBoring(kill * 100000 + save);
                WriteConvertedBoring("B.BOR");
            }
        }
        ::usleep(unsigned(1000 + random() % 20000));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        const std::string after = ReadScratch("B.BOR");
        changed += after != before;
        before = after;
        CHECK(Whole(after));
    }
    CHECK(changed > 0); // else nothing was saved between two kills, and nothing was tried
}
