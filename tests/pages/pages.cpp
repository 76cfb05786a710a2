// pages.cpp -- golden pages: the working folder of a run, and the comparison.
#include "pages/pages.h"

#include "testing.h"

#include "canvas/patterns.h"
#include "places.h"
#include "programs/jobtable.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "session/deviceconfig.h"
#include "session/files.h"
#include "session/session.h"

#include <cstdlib>
#include <fstream>
#include <sstream>

void LayOutFolder(const std::string& folder)
{
    namespace fs = std::filesystem;
    fs::remove_all(ScratchFolder());
    fs::create_directories(ScratchFolder());
    WorkingFolder = RunFolder = ProjectPath = ScratchFolder();
    DeviceConfig = DeviceRecord();
    DefaultSystemFiles();
    const fs::path stock = BUILD_DIR;
    for (const char* name : {"us.hdg", "logo.txt", "LOGO.BMP", "fills"})
        fs::create_symlink(stock / name, Scratch(name));
    for (const auto& entry : fs::directory_iterator(stock))
        if (SameText(entry.path().extension().string(), ".lay"))
            fs::create_symlink(entry.path(), Scratch(entry.path().filename().string()));
    for (const auto& entry : fs::directory_iterator(folder))
        if (entry.is_regular_file()) {
            const Text to = Scratch(entry.path().filename().string());
            fs::remove(to);
            fs::copy_file(entry.path(), to);
        }
}

// The run that Preview makes of each file, with this report choice of the batch dialog.
static std::string DrawFiles(const std::string& folder, int16_t job, const std::vector<Text>& files, int reportOption)
{
    LayOutFolder(folder);
    TintsInMemory = true;
    FillJobTable();
    std::string listing;
    Listings.clear();
    for (const Text& file : files) {
        jobCode = job;
        singleFile = 1;
        singleFileName = file;
        frmDrawPrint::Dialog = frmDrawPrint::Record();
        DrawPrintLoad();
        frmDrawPrint::Dialog.ReportOption = reportOption;
        DrawPrintOk();
    }
    singleFile = 0;
    for (const std::string& page : Listings)
        listing += page;
    return listing;
}

std::string DrawLogs(const std::string& folder, const std::vector<Text>& borings)
{
    return DrawFiles(folder, 2, borings, 0);
}

std::string DrawIntro(const std::string& folder, const std::vector<Text>& borings, int arrangement)
{
    return DrawFiles(folder, 2, borings, arrangement);
}

std::string DrawSheets(const std::string& folder, int16_t job, const std::vector<Text>& files)
{
    return DrawFiles(folder, job, files, 0);
}

static std::vector<std::string> SplitLines(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

static bool Accepting(const std::string& name)
{
    const char* accept = std::getenv("STRATAVUE_ACCEPT");
    return accept && (std::string(accept) == "all" || name == accept || name.starts_with(std::string(accept) + "/"));
}

void CheckListing(const std::string& name, const std::string& listing)
{
    const std::string file = std::string(SOURCE_DIR) + "/tests/pages/" + name + ".jsonl";
    if (Accepting(name)) {
        std::filesystem::create_directories(std::filesystem::path(file).parent_path());
        std::ofstream(file, std::ios::binary) << listing;
        return;
    }
    std::ifstream in(file, std::ios::binary);
    const std::string kept(std::istreambuf_iterator<char>(in), {});
    REQUIRE_MESSAGE(!kept.empty(), "no kept listing " << file);
    const std::vector<std::string> expected = SplitLines(kept), drawn = SplitLines(listing);
    int told = 0;
    for (size_t i = 0; i < std::max(expected.size(), drawn.size()) && told < 10; ++i) {
        const std::string before = i < expected.size() ? expected[i] : "(nothing)";
        const std::string now = i < drawn.size() ? drawn[i] : "(nothing)";
        if (before != now) {
            ++told;
            FAIL_CHECK(name << ", line " << i + 1 << "\n  kept:  " << before << "\n  drawn: " << now);
        }
    }
}

void CheckSilentListing(const std::string& name, const std::string& listing)
{
    for (const PlainMessage& message : Messages)
        FAIL_CHECK(message.words);
    Messages.clear();
    CheckListing(name, listing);
}
