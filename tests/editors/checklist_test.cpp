// checklist_test.cpp -- what a reviewer would flag, and nothing else touched.
#include "editors/checklist.h"

#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "boring/boringfile.h"
#include "editors/borinput.h"
#include "editors/fillform.h"
#include "session/deviceconfig.h"
#include "session/session.h"
#include "testing.h"

#include <algorithm>
#include <filesystem>

// A boring of 20 feet on one portrait page, with nothing to flag.
static void GoodBoring()
{
    using namespace frmBorinput;
    const auto fill = [](Grid& grid, std::initializer_list<std::initializer_list<const char*>> rows) {
        int row = 0;
        for (const auto& cells : rows) {
            ++row;
            int column = 0;
            for (const char* cell : cells)
                grid.Cell(row, ++column) = cell;
        }
    };
    fill(SSScale, {{"20"}, {"5"}, {""}, {""}, {"100"}, {"80"}});
    fill(SSLith, {{"5", "CL"}, {"12.5", "SM"}, {"20", "F0"}});
    fill(SSSamp, {{"0", "2"}, {"2", "4"}, {"4", "6.5"}});
    fill(SSRepParts, {{"DEPTH", ".4"}, {"descriptions", "3"}});
    MemoDes.text = "@1\r\nclay\r\n@2\r\nsand\r\n@3\r\n";
    BorTextChange();
    FileChanged = 0;
    Messages.clear();
}

static bool Has(const Text& words, int box, int row, int column)
{
    const std::vector<CheckEntry> found = CheckBoring();
    const bool there = std::any_of(found.begin(), found.end(), [&](const CheckEntry& entry) {
        return entry.Words == words && entry.Box == box && entry.Row == row && entry.Column == column;
    });
    if (!there)
        for (const CheckEntry& entry : found)
            MESSAGE(entry.Words << " " << entry.Box << " " << entry.Row << " " << entry.Column);
    return there;
}

// The place in a text box of the only entry.
static int PlaceOf(const Text& words, const Text& box)
{
    const std::vector<CheckEntry> found = CheckBoring();
    REQUIRE(found.size() == 1);
    CHECK(found[0].Words == words);
    CHECK(found[0].Box == 9);
    CHECK(found[0].TextBox == box);
    return found[0].Place;
}

TEST_CASE("a boring with nothing to flag has an empty list")
{
    GoodBoring();
    CHECK(CheckBoring().empty());
}

TEST_CASE("the check list shows no box and leaves the session and the record as they were")
{
    GoodBoring();
    frmBorinput::SSScale.Cell(1, 1) = "3";
    LineCount = 2;
    LineBuffer[2] = "kept";
    BoringData.LithCount = 7;
    BoringData.Name = "kept";
    CHECK(CheckBoring().size() > 0);
    CHECK(Messages.empty());
    CHECK(FileChanged == 0);
    CHECK(LineCount == 2);
    CHECK(LineBuffer[2] == "kept");
    CHECK(BoringData.LithCount == 7);
    CHECK(BoringData.Name == "kept");
}

TEST_CASE("the warnings of a save stand in the list in their words, each with its cell")
{
    GoodBoring();
    using frmBorinput::SSScale;
    SSScale.Cell(1, 1) = "19";
    SSScale.Cell(3, 1) = "30";
    SSScale.Cell(6, 1) = "100.5";
    CHECK(Has("The 'Scale: End Depth' value must be greater or equal to the depth of the last contact.", 2, 1, 1));
    CHECK(Has("The 'Scale: Increment' value must divide evenly into the 'Scale: End Depth' value.", 2, 2, 1));
    CHECK(Has("The 'Scale: Page Brk Depth' value must be less than the 'Scale: End Depth' value.", 2, 3, 1));
    CHECK(Has("The 'Scale: Page Brk Depth' value must divide evenly into the 'Scale: End Depth' value.", 2, 3, 1));
    CHECK(
        Has("The 'Scale: Start Elev.' value must be less than or equal to the 'Scale: Surface Elev.' value.", 2, 6, 1));
    CHECK(Has("The 'Scale: Start Elev.' value must be an integer.", 2, 6, 1));
    SSScale.Cell(2, 1) = "";
    CHECK(Has("A value is needed for the 'Scale: Increment.'", 2, 2, 1));
    // All of them are those of a save.
    boringcheck();
    const std::vector<CheckEntry> found = CheckBoring();
    REQUIRE(found.size() >= Messages.size());
    for (size_t i = 0; i < Messages.size(); ++i)
        CHECK(found[i].Words == Messages[i].words);
    frmBorinput::SSLith.Clear();
    const std::vector<CheckEntry> none = CheckBoring();
    CHECK(std::any_of(none.begin(), none.end(), [](const CheckEntry& entry) {
        return entry.Words.starts_with("The last contact depth, in the lithology section,") && entry.Box == 8 &&
               entry.Row == 1;
    }));
}

TEST_CASE("markers that are missing or name no contact stand in the list with their line")
{
    GoodBoring();
    frmBorinput::MemoDes.text = "@1\r\nclay\r\n@3\r\n";
    CHECK(PlaceOf("In the description text box, the @2 marker is missing.  The @ markers used to place descriptions "
                  "must be entered in order starting with @1.  Enter a marker as a place holder, even if you have no "
                  "text for a contact box. ",
                  "MemoDes") == 8);
    frmBorinput::MemoDes.text = "@1\r\n@2\r\n@3\r\n@4\r\n";
    const int place =
        PlaceOf("Warning: In your description text, you have entered a reference to a contact box, @4" +
                    Text(1, ParagraphMark) +
                    ", that does not exist.  Remember that ''@'' plus a number is used to place text at the top of a "
                    "contact box, and ''-'' plus a number is used to place text at a depth.",
                "MemoDes");
    CHECK(place == 9);
}

TEST_CASE("contacts out of order and without a depth are flagged, blank rows are not")
{
    GoodBoring();
    using frmBorinput::SSLith;
    SSLith.Cell(2, 1) = "4.5";
    CHECK(Has("Contact 2 at 4.5 does not lie below contact 1 at 5.", 8, 2, 1));
    CHECK(CheckBoring().size() == 1);
    SSLith.Cell(2, 1) = " ";
    CHECK(Has("Contact 2 has no depth.", 8, 2, 1));
    SSLith.Cell(2, 2) = "";
    CHECK(CheckBoring().empty());
}

TEST_CASE("gaps and overlaps of samples are flagged against the one that reaches deepest")
{
    GoodBoring();
    using frmBorinput::SSSamp;
    SSSamp.Cell(2, 1) = "1.5";
    CHECK(Has("Sample rows 1 and 2 overlap: 1.5 lies above 2.", 7, 2, 1));
    SSSamp.Cell(2, 1) = "3";
    CHECK(Has("Sample rows 1 and 2 leave a gap from 2 to 3.", 7, 2, 1));
    frmBorinput::SSLith.Cell(2, 1) = "4";
    REQUIRE(CheckBoring().size() == 2);
    CHECK(CheckBoring()[1].Box == 7); // gaps, often meant, stand behind the rest
    frmBorinput::SSLith.Cell(2, 1) = "12.5";
    SSSamp.Cell(2, 2) = "2.5";
    CHECK(Has("Sample row 2 ends at 2.5, above its start at 3.", 7, 2, 2));
    SSSamp.Cell(2, 2) = "";
    CHECK(Has("Sample row 2 has no end.", 7, 2, 2));
    SSSamp.Cell(2, 1) = "";
    SSSamp.Cell(2, 4) = "12";
    CHECK(Has("Sample row 2 has no start.", 7, 2, 1));
    SSSamp.Cell(2, 4) = "";
    CHECK(Has("Sample rows 1 and 3 leave a gap from 2 to 4.", 7, 3, 1));
    CHECK(CheckBoring().size() == 1);
}

TEST_CASE("depths below the last contact are flagged in every list and text that has depths")
{
    GoodBoring();
    using namespace frmBorinput;
    SSSamp.Cell(3, 2) = "20.5";
    SSPar.title = "General Parameter Data";
    SSPar.Cell(1, 1) = "21";
    SSOuterLay.Cell(1, 2) = "22";
    SSInnerLay.Cell(1, 1) = "23";
    SSCuttings.Cell(2, 1) = "24";
    SSFormations.Cell(1, 1) = "25";
    SSGenWellInfo.Cell(11, 1) = "26, after a day";
    MemoRemarks.text = "-27\r\nlost water";
    const std::pair<int, int> cells[] = {{7, 3}, {6, 1}, {11, 1}, {12, 1}, {14, 2}, {15, 1}, {10, 11}, {9, 1}};
    const std::vector<CheckEntry> found = CheckBoring();
    REQUIRE(found.size() == std::size(cells));
    for (const auto& [box, row] : cells)
        CHECK(std::any_of(found.begin(), found.end(), [box = box, row = row](const CheckEntry& entry) {
            return entry.Box == box && entry.Row == row && entry.Words.ends_with("lies below the last contact.");
        }));
    CHECK(Has("General Parameter Data, row 1: 21 lies below the last contact.", 6, 1, 1));
    MemoDes.text += "-30\r\ndeep";
    const std::vector<CheckEntry> more = CheckBoring();
    CHECK(std::any_of(more.begin(), more.end(), [](const CheckEntry& entry) {
        return entry.Words == "Descriptions, line 6: 30 lies below the last contact." && entry.Place == 19;
    }));
}

TEST_CASE("a client text of more lines than a save keeps is flagged")
{
    GoodBoring();
    frmBorinput::txtClient = "1\r\n2\r\n3\r\n4\r\n5";
    CHECK(CheckBoring().empty());
    frmBorinput::txtClient += "\r\n6";
    REQUIRE(CheckBoring().size() == 1);
    CHECK(CheckBoring()[0].Words == "The client information exceeds 5 lines, by 1.");
    CHECK(Text(CheckBoring()[0].TextBox) == "txtClient");
}

TEST_CASE("columns are measured against the page of the layout where a run looks for it")
{
    GoodBoring();
    std::filesystem::create_directory(Scratch("layouts"));
    WriteScratch("layouts/WIDE.LAY", " 1 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n "
                                     "0 \r\n 0 \r\n");
    DeviceConfig.SystemFiles[LayoutFolder] = Scratch("layouts");
    frmBorinput::cmbLayFile = "WIDE.LAY";
    frmBorinput::lblWidthtot = "9.05/6.8";
    CHECK(CheckBoring().empty());
    frmBorinput::lblWidthtot = "9.25/15.2";
    REQUIRE(CheckBoring().size() == 1);
    CHECK(CheckBoring()[0].Words == "The report parts are 9.25 inches wide, and the page has room for 9.2.");
}

TEST_CASE("columns wider than the page are flagged")
{
    GoodBoring();
    frmBorinput::SSRepParts.Cell(3, 1) = "remarks";
    frmBorinput::SSRepParts.Cell(3, 2) = "3";
    frmBorinput::SSRepParts.Cell(4, 1) = "well construction info";
    frmBorinput::SSRepParts.Cell(4, 2) = "3";
    BorTextChange();
    CHECK(Has("The report parts are 9 inches wide, and the page has room for 6.8.", 3, 1, 2));
}

TEST_CASE("text of more lines than its box holds is flagged before a save refuses it")
{
    GoodBoring();
    for (int line = 1; line <= 61; ++line)
        frmBorinput::MemoWcon.text += "x\r\n";
    CHECK(PlaceOf("Your notes exceed 60 lines, by 1.", "MemoWcon") == 183);
    frmBorinput::MemoWcon.text = "";
    for (int line = 1; line <= 12; ++line)
        frmBorinput::MemoBottNotes.text += "x\r\n";
    PlaceOf("Your general notes exceed 10 lines, by 2.", "MemoBottNotes");
}

TEST_CASE("text that has no room above the end of the log, where it is not printed, is flagged")
{
    GoodBoring();
    // 20 feet on 6.7 inches: the last unit of 7.5 feet is 2.51 inches high, room for 20 lines.
    for (int line = 1; line <= 20; ++line)
        frmBorinput::MemoDes.text += "x\r\n";
    CHECK(CheckBoring().empty());
    frmBorinput::MemoDes.text += "x\r\n";
    CHECK(PlaceOf("The text of contact 3 does not fit above the end of the log and is not printed.", "MemoDes") == 16);
    // A layout with a bottom row has less room.
    WriteScratch("short.lay", Lines({"0", "0", "0", "5", "0", "0", "0", "0", "0", "0", "0", "0", "0"}));
    frmBorinput::cmbLayFile = "short";
    for (int line = 1; line <= 2; ++line)
        frmBorinput::MemoDes.text.resize(frmBorinput::MemoDes.text.size() - 3);
    CHECK(CheckBoring().size() == 1);
    frmBorinput::MemoDes.text.resize(frmBorinput::MemoDes.text.size() - 3);
    CHECK(CheckBoring().empty());
}

TEST_CASE("text that pushes its unit past the foot of a page is flagged")
{
    GoodBoring();
    frmBorinput::SSScale.Cell(1, 1) = "25";
    Text text = "@1\r\n";
    for (int line = 1; line <= 57; ++line)
        text += "x\r\n";
    frmBorinput::MemoDes.text = text;
    CHECK(PlaceOf("The descriptions run past the foot of page 1 with the text of contact 1.", "MemoDes") == 0);
}
