// fences_test.cpp -- the golden pages of the sample fences.
#include "pages/pages.h"

#include "testing.h"

#include "places.h"
#include "session/files.h"

TEST_CASE("the sample fences draw the kept pages, object by object, and without a message")
{
    const std::string folder = std::string(BUILD_DIR) + "/samples";
    const std::vector<Text> fences = FilesIn(folder, ".FEN");
    CHECK(fences.size() == 3);
    for (const Text& fence : fences) {
        CAPTURE(fence);
        const std::string listing = DrawSheets(folder, 6, {fence});
        CheckSilentListing("samples/" + fence.substr(0, fence.size() - 4), listing);
    }
}
