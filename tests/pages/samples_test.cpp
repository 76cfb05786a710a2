// samples_test.cpp -- the golden pages of the sample borings.
#include "pages/pages.h"

#include "testing.h"

#include "boring/boringdata.h"
#include "boring/boringfile.h"
#include "places.h"
#include "session/files.h"
#include "session/session.h"

#include <set>

TEST_CASE("the sample borings draw the kept pages, object by object, and without a message")
{
    const std::string folder = std::string(BUILD_DIR) + "/samples";
    for (const Text& boring : FilesIn(folder, ".BOR")) {
        CAPTURE(boring);
        const std::string listing = DrawLogs(folder, {boring});
        CheckSilentListing("samples/" + boring.substr(0, boring.size() - 4), listing);
    }
}

// The catalogue: one boring under five lists of report parts, so that every column stands on a page.
static const std::string columns = std::string(SOURCE_DIR) + "/tests/pages/columns";

TEST_CASE("every column draws the kept pages, object by object, and without a message")
{
    for (const Text& boring : FilesIn(columns, ".BOR")) {
        CAPTURE(boring);
        const std::string listing = DrawLogs(columns, {boring});
        CheckSilentListing("columns/" + boring.substr(0, boring.size() - 4), listing);
    }
}

TEST_CASE("every item that the editor offers, and each parameter by its number, stands on a page of the catalogue")
{
    std::set<Text> drawn;
    for (const Text& boring : FilesIn(columns, ".BOR")) {
        BoringFileName = JoinPath(columns, boring);
        DialogMode = 2; // the current form
        ClearBoringArrays();
        OpenBoringFile2();
        for (int row = 1; row <= BoringData.RepPartCount; ++row)
            drawn.insert(UpperCase(BoringData.RepParts[row].Item));
    }
    std::vector<Text> wanted = {"BLOW COUNT",
                                "BLOW COUNT GRAPH",
                                "BLOW COUNT GRAPH-WIDE",
                                "CUTTINGS",
                                "CUTTINGS-GRAPH",
                                "DESCRIPTIONS",
                                "DEPTH SCALE",
                                "ELEVATION SCALE",
                                "FORMATIONS",
                                "GRAPHIC",
                                "LAB NUMBER",
                                "MPG1-2-3",
                                "P1G",
                                "P2G",
                                "P3G",
                                "P4G",
                                "P12G",
                                "P34G",
                                "P1-4G",
                                "REMARKS",
                                "SAMPLE BOX-NUMBERED",
                                "SAMPLE BOX-GRAPHIC",
                                "USCS",
                                "WATER LEVEL",
                                "WELL CONSTRUCTION INFO",
                                "WELL DIAGRAM",
                                "WELL DIAGRAM-SMALL",
                                "GPG1"};
    for (int n = 1; n <= 16; ++n)
        wanted.push_back("P" + PlainNumber(n));
    for (int n = 1; n <= 20; ++n)
        wanted.push_back("GP" + PlainNumber(n));
    for (const Text& item : wanted)
        CHECK_MESSAGE(drawn.contains(item), item);
}

TEST_CASE("the intro pages of a sample boring with map and legend are the kept ones, in both arrangements")
{
    const std::string folder = std::string(BUILD_DIR) + "/samples";
    for (const int arrangement : {1, 2}) {
        CAPTURE(arrangement);
        const std::string listing = DrawIntro(folder, {"MW-108.BOR"}, arrangement);
        CheckSilentListing("samples/MW-108-intro" + std::to_string(arrangement), listing);
    }
}

TEST_CASE("the sample soil tables draw the kept pages, one with values and one with bars")
{
    const std::string folder = std::string(BUILD_DIR) + "/samples";
    for (const Text& table : FilesIn(folder, ".SOI")) {
        CAPTURE(table);
        const std::string listing = DrawSheets(folder, 8, {table});
        CheckSilentListing("samples/" + table.substr(0, table.size() - 4) + "-soil", listing);
    }
}
