// samples_test.cpp -- the golden pages of the sample borings.
#include "pages/pages.h"

#include "testing.h"

#include "session/files.h"

TEST_CASE("the sample borings draw the kept pages, object by object, and without a message")
{
    const std::string folder = std::string(BUILD_DIR) + "/samples";
    for (const Text& boring : FilesIn(folder, ".BOR")) {
        CAPTURE(boring);
        std::filesystem::remove_all(ScratchFolder());
        std::filesystem::create_directories(ScratchFolder());
        const std::string listing = DrawLogs(folder, {boring});
        for (const PlainMessage& message : Messages)
            FAIL_CHECK(message.words);
        Messages.clear();
        CheckListing("samples/" + boring.substr(0, boring.size() - 4), listing);
    }
}

TEST_CASE("the intro pages of a sample boring with map and legend are the kept ones, in both arrangements")
{
    const std::string folder = std::string(BUILD_DIR) + "/samples";
    for (const int arrangement : {1, 2}) {
        CAPTURE(arrangement);
        std::filesystem::remove_all(ScratchFolder());
        std::filesystem::create_directories(ScratchFolder());
        const std::string listing = DrawIntro(folder, {"MW-108.BOR"}, arrangement);
        for (const PlainMessage& message : Messages)
            FAIL_CHECK(message.words);
        Messages.clear();
        CheckListing("samples/MW-108-intro" + std::to_string(arrangement), listing);
    }
}

TEST_CASE("the sample soil tables draw the kept pages, one with values and one with bars")
{
    const std::string folder = std::string(BUILD_DIR) + "/samples";
    for (const Text& table : FilesIn(folder, ".SOI")) {
        CAPTURE(table);
        std::filesystem::remove_all(ScratchFolder());
        std::filesystem::create_directories(ScratchFolder());
        const std::string listing = DrawSheets(folder, 8, {table});
        for (const PlainMessage& message : Messages)
            FAIL_CHECK(message.words);
        Messages.clear();
        CheckListing("samples/" + table.substr(0, table.size() - 4) + "-soil", listing);
    }
}
