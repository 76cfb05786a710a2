// checkdepths_test.cpp -- depths that are no number, contacts and samples out of order, what lies below the log.
#include "checkedboring.h"

#include "editors/fillform.h"

using namespace frmBorinput;

TEST_CASE("a depth that is no number is told in every list that has depths, with its cell")
{
    const std::tuple<Grid*, int, int, const char*> cells[] = {
        {&SSScale, 2, 1, ""},          {&SSLith, 8, 1, "row 1"},       {&SSSamp, 7, 2, "row 1"},
        {&SSPar, 6, 1, "row 1"},       {&SSOuterLay, 11, 2, "row 1"},  {&SSInnerLay, 12, 1, "row 1"},
        {&SSCuttings, 14, 1, "row 1"}, {&SSFormations, 15, 1, "row 1"}};
    for (const auto& [grid, box, column, where] : cells) {
        GoodBoring();
        Text& cell = grid->Cell(1, column);
        const Text before = cell;
        cell = "O.5";
        const std::vector<CheckEntry> found = CheckBoring();
        const bool there =
            std::any_of(found.begin(), found.end(), [box = box, column = column](const CheckEntry& entry) {
                return Text(entry.Kind) == "depth-number" && entry.Box == box && entry.Row == 1 &&
                       entry.Column == column && entry.Words.ends_with("\"O.5\" is no number, and is read as 0.");
            });
        const int number = box;
        CHECK_MESSAGE(there, number);
        cell = before;
    }
    GoodBoring();
    SSGenWellInfo.Cell(7, 1) = "none";
    CHECK(Only().ends_with(": \"none\" is no number, and is read as 0."));
    CHECK(Cell() == "10 7,1");
}

TEST_CASE("a depth of which only the front is read is told, words that stand apart from it are not")
{
    GoodBoring();
    SSPar.title = "General Parameter Data";
    for (const char* depth : {"1O.5", "12,5", "2-4", "2 - 4", "1.2.3", "1 2", "12/14", "3x"}) {
        SSPar.Cell(1, 1) = depth;
        CHECK(Only() == "depth-form: General Parameter Data, row 1: \"" + Text(depth) + "\" is read as " +
                            PlainNumber(TextNumber(depth)) + ".");
        CHECK(Cell() == "6 1,1");
    }
    for (const char* depth : {"12", " 12.5 ", "+3", "0", ".5", "12.", "1E1", "12m", "12 ft", "3.5 feet", "12 (est.)",
                              "12?", "12, estimated", "12'", "6 m bgl"}) {
        SSPar.Cell(1, 1) = depth;
        CHECK_MESSAGE(Clean(), depth);
    }
    for (const char* depth : {"<5", "~5", "-", "ca. 5", "x"}) {
        SSPar.Cell(1, 1) = depth;
        CHECK_MESSAGE(Only().starts_with("depth-number: "), depth);
    }
}

TEST_CASE("words may say that there is no water, no stick-up and no page break, and an elevation may be words where "
          "no column is made of it")
{
    GoodBoring();
    SSGenWellInfo.Cell(6, 1) = "flush";
    SSGenWellInfo.Cell(11, 1) = "dry";
    SSGenWellInfo.Cell(12, 1) = "not measured";
    SSScale.Cell(3, 1) = "none";
    CHECK(Clean());
    SSGenWellInfo.Cell(11, 1) = "<3";
    CHECK(Only().starts_with("depth-number: "));
    CHECK(Cell() == "10 11,1");
    SSGenWellInfo.Cell(11, 1) = "";
    SSScale.Cell(6, 1) = "";
    SSScale.Cell(5, 1) = "unknown";
    CHECK(Clean());
    SSRepParts.Cell(4, 1) = "elevation scale";
    CHECK(Only().starts_with("depth-number: "));
    CHECK(Cell() == "2 5,1");
}

TEST_CASE("a row of values without a depth is told, layers and rows that begin the next pipe are not")
{
    GoodBoring();
    SSPar.Cell(2, 3) = "7";
    CHECK(Only() == "depth-number: " + SSPar.title + ", row 2 has no depth, and stands at 0.");
    CHECK(Cell() == "6 2,1");
    SSPar.Cell(2, 3) = "";
    Fill(SSInnerLay, {{"0", "5", "pipe"}, {"@", "", "@"}, {"", "", "@"}, {"", "4", "pipe"}});
    SSOuterLay.Cell(1, 2) = "5";
    CHECK(Clean());
}

TEST_CASE("contacts out of order and without a depth are flagged, blank rows are not")
{
    GoodBoring();
    SSLith.Cell(2, 1) = "4.5";
    CHECK(Only() == "contact-order: Contact 2 at 4.5 does not lie below contact 1 at 5.");
    CHECK(Cell() == "8 2,1");
    SSLith.Cell(2, 1) = "5";
    CHECK(Only().starts_with("contact-order: "));
    SSLith.Cell(2, 1) = " ";
    CHECK(Only() == "contact-order: Contact 2 has no depth.");
    SSLith.Cell(2, 2) = "";
    CHECK(Clean());
}

TEST_CASE("gaps between samples are nothing to tell of")
{
    GoodBoring();
    SSSamp.Cell(2, 1) = "3";
    CHECK(Clean());
    Fill(SSSamp, {{"10", "10.5"}, {"2", "4"}, {"15", "15.5"}});
    CHECK(Clean());
}

TEST_CASE("samples that overlap are flagged against the one that reaches deepest, in whatever order they stand")
{
    GoodBoring();
    SSSamp.Cell(2, 1) = "1.5";
    CHECK(Only() == "sample-overlap: Sample rows 1 and 2 overlap: 1.5 lies above 2.");
    CHECK(Cell() == "7 2,1");
    Fill(SSSamp, {{"0", "8"}, {"2", "4"}, {"3", "6"}});
    CHECK(Has("Sample rows 1 and 3 overlap: 3 lies above 8.", 7, 3, 1));
    // Tubes first, jars behind them.
    Fill(SSSamp, {{"5", "6"}, {"8", "9"}, {"6", "8"}});
    CHECK(Clean());
}

TEST_CASE("two samples of one depth are flagged, samples that touch are not")
{
    GoodBoring();
    Fill(SSSamp, {{"0", "2"}, {"2", "4"}, {"2.0", "4.00"}});
    CHECK(Only() ==
          "sample-same: Sample rows 2 and 3 have the same depth, 2.0 to 4.00, and are drawn over each other.");
    CHECK(Cell() == "7 3,1");
    Fill(SSSamp, {{"3", "3"}, {"4", "6"}, {"3", "3"}});
    CHECK(Only().starts_with("sample-same: Sample rows 1 and 3"));
    Fill(SSSamp, {{"3", "3"}, {"3", "6"}, {"6", "6"}});
    CHECK(Clean());
}

TEST_CASE("samples without a start or an end, and those upside down, are flagged")
{
    GoodBoring();
    SSSamp.Cell(2, 1) = "3";
    SSSamp.Cell(2, 2) = "2.5";
    CHECK(Only() == "sample-ends: Sample row 2 ends at 2.5, above its start at 3.");
    CHECK(Cell() == "7 2,2");
    SSSamp.Cell(2, 2) = "";
    CHECK(Only() == "sample-ends: Sample row 2 has no end.");
    SSSamp.Cell(2, 1) = "";
    SSSamp.Cell(2, 4) = "12";
    CHECK(Only() == "sample-ends: Sample row 2 has no start.");
    SSSamp.Cell(2, 4) = "";
    CHECK(Clean());
}

TEST_CASE("depths below the last contact are flagged in every list and text that has depths")
{
    GoodBoring();
    SSScale.Cell(1, 1) = "30";
    SSSamp.Cell(3, 2) = "20.5";
    SSPar.title = "General Parameter Data";
    SSPar.Cell(1, 1) = "21";
    SSOuterLay.Cell(1, 2) = "22";
    SSInnerLay.Cell(1, 1) = "23";
    SSCuttings.Cell(2, 1) = "24";
    SSFormations.Cell(1, 1) = "25";
    SSGenWellInfo.Cell(8, 1) = "26, driven";
    MemoRemarks.text = "-27\r\nlost water";
    const std::pair<int, int> cells[] = {{7, 3}, {6, 1}, {11, 1}, {12, 1}, {14, 2}, {15, 1}, {10, 8}, {9, 1}};
    const std::vector<CheckEntry> found = CheckBoring();
    REQUIRE(found.size() == std::size(cells));
    for (const auto& [box, row] : cells)
        CHECK(std::any_of(found.begin(), found.end(), [box = box, row = row](const CheckEntry& entry) {
            return entry.Box == box && entry.Row == row && Text(entry.Kind) == "below-contact" &&
                   entry.Words.ends_with("lies below the last contact.");
        }));
    CHECK(Has("General Parameter Data, row 1: 21 lies below the last contact.", 6, 1, 1));
    MemoDes.text += "-30\r\ndeep";
    const std::vector<CheckEntry> more = CheckBoring();
    CHECK(std::any_of(more.begin(), more.end(), [](const CheckEntry& entry) {
        return entry.Words == "Descriptions, line 6: 30 lies below the last contact." && entry.Place == 19;
    }));
}

TEST_CASE("what lies below the last page is graver than what lies below the last contact")
{
    GoodBoring();
    SSSamp.Cell(3, 2) = "20";
    CHECK(Clean());
    SSSamp.Cell(3, 2) = "20.01";
    CHECK(Only() == "below-log: " + SSSamp.title + ", row 3: 20.01 lies below the end of the log.");
    CHECK(Cell() == "7 3,2");
    SSSamp.Cell(3, 1) = "20.005"; // one line for a row
    CHECK(Cell() == "7 3,1");
    SSSamp.Cell(3, 1) = "4";
    // The pages that a page break cuts end where they end: 20 feet are one page of 15.
    SSSamp.Cell(3, 2) = "6.5";
    SSScale.Cell(3, 1) = "15";
    CHECK(Has(SSLith.title + ", row 3: 20 lies below the end of the log.", 8, 3, 1));
    // Text of dot commands.
    SSScale.Cell(3, 1) = "";
    Type(".L=0\r\nclay\r\n.L=21\r\nsand\r\n");
    CHECK(Only() == "below-log: Descriptions, line 3: 21 lies below the end of the log.");
    Type(".L=0\r\nclay\r\n-21\r\nsand\r\n"); // no mark there
    CHECK(Clean());
}

TEST_CASE("water deeper than the hole is flagged, measured from the top of the pipe")
{
    GoodBoring();
    SSGenWellInfo.Cell(11, 1) = "20";
    CHECK(Clean());
    SSGenWellInfo.Cell(11, 1) = "21.5, after a day";
    CHECK(Only().starts_with("water: "));
    CHECK(Only().ends_with(": 21.5 is deeper than the hole, which ends at 20."));
    CHECK(Cell() == "10 11,1");
    SSGenWellInfo.Cell(6, 1) = "1.5"; // the stick-up
    CHECK(Clean());
    SSGenWellInfo.Cell(14, 1) = "22";
    CHECK(Only().starts_with("water: "));
    CHECK(Cell() == "10 14,1");
    SSLith.Clear(); // no contact: the hole is as deep as what is in it
    SSGenWellInfo.Cell(14, 1) = "7";
    SSGenWellInfo.Cell(11, 1) = "";
    CHECK(CountOf("water") == 0);
    SSGenWellInfo.Cell(14, 1) = "9";
    CHECK(CountOf("water") == 1);
}
