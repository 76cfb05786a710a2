// checkpage_test.cpp -- the check list's view of the page: its scale, its columns and their room, its files.
#include "checkedboring.h"

#include "boring/boringfile.h"
#include "editors/fillform.h"
#include "session/deviceconfig.h"
#include "session/session.h"

#include <filesystem>

using namespace frmBorinput;

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
    for (const PlainMessage& message : Messages)
        CHECK(std::any_of(found.begin(), found.end(),
                          [&](const CheckEntry& entry) { return entry.Words == message.words; }));
    frmBorinput::SSLith.Clear();
    const std::vector<CheckEntry> none = CheckBoring();
    CHECK(std::any_of(none.begin(), none.end(), [](const CheckEntry& entry) {
        return entry.Words.starts_with("The last contact depth, in the lithology section,") && entry.Box == 8 &&
               entry.Row == 1;
    }));
}

TEST_CASE("a log that ends above its last contact and a scale without an increment are errors, what only looks odd is "
          "not")
{
    GoodBoring();
    SSScale.Cell(1, 1) = "15";
    CHECK(CountOf("scale") == 1);
    SSScale.Cell(1, 1) = "20";
    SSScale.Cell(2, 1) = "";
    CHECK(CountOf("scale") == 1);
    SSScale.Cell(2, 1) = "3";
    CHECK(Only().starts_with("save: The 'Scale: Increment' value must divide evenly"));
    SSScale.Cell(2, 1) = "5";
    SSLith.Clear();
    CHECK(CountOf("scale") == 1);
}

TEST_CASE("a page break that is no whole number leaves depths on no page, or shows them on two")
{
    GoodBoring();
    Fill(SSScale, {{"30"}, {"2.5"}, {"7.5"}});
    CHECK(Has("A page begins at a whole number: page 1 ends at 7.5 and page 2 begins at 8, so what lies between is on "
              "no page.",
              2, 3, 1));
    CHECK(CountOf("page-gap") == 1);
    Fill(SSScale, {{"22.8"}, {"3.8"}, {"7.6"}});
    CHECK(CountOf("page-gap") == 1);
    Fill(SSScale, {{"22.2"}, {"3.7"}, {"7.4"}});
    CHECK(CountOf("page-overlap") == 1);
    CHECK(CountOf("page-gap") == 0);
    Fill(SSScale, {{"24"}, {"4"}, {"8"}});
    CHECK(CountOf("page-gap") + CountOf("page-overlap") == 0);
}

TEST_CASE("columns wider than the page of their layout are flagged, where a run looks for it")
{
    GoodBoring();
    Fill(SSRepParts, {{"depth scale", ".4"}, {"descriptions", "3.6"}, {"remarks", "3"}, {"graphic", ".2"}});
    BorTextChange();
    FileChanged = 0;
    CHECK(Clean()); // 6.8
    SSRepParts.Cell(4, 2) = ".25";
    CHECK(Only() == "width: The report parts are 6.85 inches wide, and the page has room for 6.8.");
    CHECK(Cell() == "3 1,2");
    std::filesystem::create_directory(Scratch("layouts"));
    WriteLayout("layouts/WIDE.LAY", 1);
    DeviceConfig.SystemFiles[LayoutFolder] = Scratch("layouts");
    cmbLayFile = "wide";
    CHECK(Clean());
    SSRepParts.Cell(5, 1) = "well construction info";
    SSRepParts.Cell(5, 2) = "2.5";
    CHECK(Only() == "width: The report parts are 9.35 inches wide, and the page has room for 9.2.");
    WriteLayout("layouts/WIDE.LAY", 2);
    CHECK(Clean());
}

TEST_CASE("a depth scale is counted as it is drawn: in front by what it has more than 0.4 inch, elsewhere whole")
{
    GoodBoring();
    Fill(SSRepParts, {{"depth scale", "0.6"}, {"remarks", "6.6"}, {"", ""}});
    CHECK(Clean());
    SSRepParts.Cell(1, 2) = "0.7";
    CHECK(Only().starts_with("width: The report parts are 6.9 "));
    Fill(SSRepParts, {{"remarks", "6.6"}, {"depth scale", "0.3"}});
    CHECK(Only().starts_with("width: The report parts are 6.9 "));
}

TEST_CASE("a well diagram is as wide as its last named well makes it")
{
    GoodBoring();
    Fill(SSRepParts, {{"depth scale", ".4"}, {"remarks", "5"}, {"well diagram", "-"}});
    CHECK(Clean()); // 6.6
    SSGenWellInfo.Cell(4, 1) = "MW-4";
    CHECK(Only().starts_with("width: The report parts are 6.96 "));
}

TEST_CASE("report parts that the log does not know, or behind an empty row, are flagged")
{
    GoodBoring();
    SSRepParts.Cell(3, 1) = "smaples";
    CHECK(Only() == "part: The report part \"smaples\" is none that the log knows, and is not drawn.");
    CHECK(Cell() == "3 3,1");
    for (const char* part : {"P17", "P0", "PID", "GP21", "GPG", "MPG", "MPG21", "GP"}) {
        SSRepParts.Cell(3, 1) = part;
        CHECK_MESSAGE(Only().starts_with("part: The report part \"" + Text(part) + "\" names no parameter"), part);
    }
    for (const char* part : {"P1", "P16", "P1G", "P4G", "P12G", "P34G", "P1-4G", "GP20", "GPG1", "MPG1", "MPG1-2-20",
                             "MPG1--3", "GW", "water level", "cuttings-graph", "Formations"}) {
        SSRepParts.Cell(3, 1) = part;
        CHECK_MESSAGE(Clean(), part);
    }
    SSRepParts.Cell(3, 1) = "P5G";
    CHECK(Only() == "part-kind: The report part \"P5G\" prints numbers: a graph is there for parameters 1 to 4.");
    Fill(SSRepParts,
         {{"DEPTH", ".4"}, {"descriptions", "3"}, {"", "-"}, {"", "-"}, {"remarks", "1"}, {"graphic", ".3"}});
    CHECK(Only() == "part: The columns end at the empty row 3 of the report parts: \"remarks\" in row 5 is not drawn.");
    CHECK(Cell() == "3 5,1");
}

TEST_CASE("a layout that is not found, is not named or breaks off is flagged")
{
    GoodBoring();
    cmbLayFile = "lost";
    CHECK(Only() == "file: The layout file is not found: " + Scratch("lost.lay"));
    CHECK(Cell() == "cmbLayFile at 0");
    cmbLayFile = "LOST.LAY";
    CHECK(Only() == "file: The layout file is not found: " + Scratch("LOST.LAY"));
    WriteScratch("lost.lay", "0\r\n0\r\n");
    CHECK(Only() == "file: The layout file breaks off: " + Scratch("LOST.LAY"));
    cmbLayFile = " ";
    CHECK(Only() == "layout-none: No layout file is named: the page has no title blocks.");
    cmbLayFile = "PLAIN";
    CHECK(Clean());
    std::filesystem::create_directory(Scratch("project"));
    WriteLayout("project/OWN.LAY", 0);
    cmbLayFile = "own";
    CHECK_FALSE(Clean());
    BoringFileName = Scratch("project/B-1.BOR");
    CHECK(Clean());
}

TEST_CASE("a map that is not found is an error where the layout shows it, and a remark elsewhere")
{
    GoodBoring();
    Text2 = "site.bmp ";
    CHECK(Only() == "file-unused: The map file is not found: " + Scratch("site.bmp"));
    CHECK(Cell() == "Text2 at 0");
    WriteLayout("plain.lay", 0, {0, 0, 0, 8});
    CHECK(Only() == "file: The map file is not found: " + Scratch("site.bmp"));
    std::filesystem::create_directory(Scratch("project"));
    WritePicture("project/SITE.BMP");
    CHECK_FALSE(Clean());
    ProjectPath = Scratch("project");
    CHECK(Clean());
    ProjectPath = ScratchFolder();
    CHECK_FALSE(Clean());
    BoringFileName = Scratch("project/B-1.BOR"); // a run looks beside the boring too
    CHECK(Clean());
}

TEST_CASE("a picture logo that is not found or is no bitmap is flagged where the layout shows it")
{
    GoodBoring();
    WriteScratch("logo.txt", Lines({"a", "b", "c", "1", "ours.bmp", ""}));
    CHECK(Clean());
    WriteLayout("plain.lay", 0, {1});
    CHECK(Only() == "file: The logo is not found: " + Scratch("ours.bmp"));
    WritePicture("ours.bmp");
    CHECK(Clean());
    WriteScratch("logo.txt", Lines({"a", "b", "c", "1", "ours.png", ""}));
    CHECK(Only() == "file: The logo is no bitmap, and is not drawn: " + Scratch("ours.png"));
    WriteScratch("logo.txt", Lines({"a", "b", "c", "0", "lost.bmp", ""}));
    CHECK(Clean());
}

TEST_CASE("a heading file or a logo file that a run would tell of is told in the run's words")
{
    GoodBoring();
    DeviceConfig.SystemFiles[HeadingFile] = "lost";
    CHECK(Only() == "file: Heading File Not Found:  lost.hdg");
    DeviceConfig.SystemFiles[HeadingFile] = "us.hdg";
    CHECK(Clean());
    std::filesystem::remove(Scratch("logo.txt"));
    CHECK(Only().starts_with("file: Error 53 in getclientlogo"));
    CHECK(Messages.empty());
}
