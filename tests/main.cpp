// main.cpp -- the test program of the logic: fresh records and an empty working folder before each test.
#define DOCTEST_CONFIG_IMPLEMENT
#include "testing.h"

#include "canvas/bitmap.h"
#include "canvas/patterns.h"
#include "places.h"
#include "session/deviceconfig.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/recovery.h"
#include "session/session.h"
#include "session/shared.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <unistd.h>

static Text scratch;
static std::filesystem::path started; // the working folder of the run

void (*CloseWindows)() = nullptr;

Text TestData(const Text& name)
{
    return Text(TEST_DATA) + "/" + name;
}

const Text& ScratchFolder()
{
    return scratch;
}

Text Scratch(const Text& name)
{
    return scratch + "/" + name;
}

void WriteScratch(const Text& name, std::string_view bytes)
{
    std::ofstream(Scratch(name), std::ios::binary) << bytes;
}

void WritePicture(const Text& name)
{
    Bitmap picture;
    picture.Width = 4;
    picture.Height = 3;
    picture.Pixels.assign(12, 0x808080);
    WriteScratch(name, EncodeBitmap(picture));
}

std::string ReadScratch(const Text& name)
{
    std::ifstream in(Scratch(name), std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

int FailureOf(void (*procedure)())
{
    try {
        procedure();
        return 0;
    } catch (...) {
        return FailureInHand();
    }
}

std::string Lines(std::initializer_list<std::string_view> lines)
{
    std::string text;
    for (const std::string_view line : lines)
        text.append(line).append("\r\n");
    return text;
}

// What the program itself starts with, taken before the first test.
static const KeptRecords& StartValues()
{
    static const KeptRecords values({Kind::Session, Kind::Document, Kind::Boxes, Kind::Run, Kind::Window});
    return values;
}

void StartAfresh()
{
    if (CloseWindows)
        CloseWindows();
    EndRecovery();
    StartValues().PutBack();
    ForgetPatterns();
    UsePlainPlatform();
    std::filesystem::current_path(started);
    std::filesystem::remove_all(scratch);
    std::filesystem::create_directories(scratch);
    WorkingFolder = RunFolder = ProjectPath = scratch;
    DefaultSystemFiles(); // which the start of a program fills in
}

namespace
{
// Each test starts afresh, and so does each part of one.
struct Fresh : doctest::IReporter {
    explicit Fresh(const doctest::ContextOptions&)
    {
    }
    void test_case_start(const doctest::TestCaseData&) override
    {
        StartAfresh();
    }
    void report_query(const doctest::QueryData&) override
    {
    }
    void test_run_start() override
    {
    }
    void test_run_end(const doctest::TestRunStats&) override
    {
        std::filesystem::remove_all(scratch);
    }
    void test_case_reenter(const doctest::TestCaseData&) override
    {
        StartAfresh();
    }
    void test_case_end(const doctest::CurrentTestCaseStats&) override
    {
    }
    void test_case_exception(const doctest::TestCaseException&) override
    {
    }
    void subcase_start(const doctest::SubcaseSignature&) override
    {
    }
    void subcase_end() override
    {
    }
    void log_assert(const doctest::AssertData&) override
    {
    }
    void log_message(const doctest::MessageData&) override
    {
    }
    void test_case_skipped(const doctest::TestCaseData&) override
    {
    }
};
} // namespace
REGISTER_LISTENER("fresh", 1, Fresh);

int main(int argc, char** argv)
{
    scratch = std::filesystem::temp_directory_path().string() + "/stratavue-test-" + std::to_string(::getpid());
    // Pictures of windows show it, and shall not change with the number of a process.
    if (const char* name = std::getenv("STRATAVUE_SCRATCH"))
        scratch = name;
    std::setvbuf(stdout, nullptr, _IOLBF, 0); // a crash takes nothing along that was told before it
    started = std::filesystem::current_path();
    StartValues();
    doctest::Context context(argc, argv);
    return context.run();
}
