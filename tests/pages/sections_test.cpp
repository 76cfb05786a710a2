// sections_test.cpp -- the golden pages of the sample cross sections: one by codes, one by a GIS table, one of
// individual columns with graphs.
#include "pages/pages.h"

#include "testing.h"

#include "places.h"
#include "session/files.h"

TEST_CASE("the sample cross sections draw the kept pages, object by object, and without a message")
{
    const std::string folder = std::string(BUILD_DIR) + "/samples";
    const std::vector<Text> sections = FilesIn(folder, ".CRO");
    CHECK(sections.size() == 3);
    for (const Text& section : sections) {
        CAPTURE(section);
        const std::string listing = DrawSheets(folder, 4, {section});
        CheckSilentListing("samples/" + section.substr(0, section.size() - 4), listing);
    }
}
