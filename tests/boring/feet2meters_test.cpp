// feet2meters_test.cpp -- the conversion of a boring from feet to meters.
#include "boring/feet2meters.h"

#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "session/session.h"
#include "testing.h"

using namespace frmBorinput;

TEST_CASE("a depth in feet becomes meters with up to two decimals, no leading zero and no closing point")
{
    CHECK(cv2m("10") == "3.05");
    CHECK(cv2m("1000") == "304.8");
    CHECK(cv2m("1") == ".3");
    CHECK(cv2m("39.37") == "12");
    CHECK(cv2m("12.5 ft") == "3.81");
    CHECK(cv2m("1000000") == "304800.6");
}

TEST_CASE("a blank cell stays blank and a cell 0 stays 0")
{
    CHECK(cv2m("") == "");
    CHECK(cv2m("0") == "0");
    CHECK(cv2m(" 0 ") == "0");
}

TEST_CASE("a cell of text with no number is emptied, and so is a zero in another form")
{
    CHECK(cv2m("N/A") == "");
    CHECK(cv2m(" ") == "");
    CHECK(cv2m("0.0") == "");
}

TEST_CASE("negative depths keep their sign")
{
    CHECK(cv2m("-5") == "-1.52");
    SSSamp.Cell(1, 1) = "-5";
    convertfeet2meters();
    CHECK(SSSamp.Cell(1, 1) == "-1.52");
}

TEST_CASE("the scale is emptied but for the unit and the elevations, of which the surface alone is converted")
{
    const char* const scale[] = {"40", "5,4", "20", "Feet,90", "100", "98", "12,34"};
    for (int row = 1; row <= 7; ++row)
        SSScale.Cell(row, 1) = scale[row - 1];
    convertfeet2meters();
    const char* const converted[] = {"", "", "", "Meters", "30.48", "98", "12,34"};
    for (int row = 1; row <= 7; ++row) {
        CHECK(SSScale.Cell(row, 1) == converted[row - 1]);
        CHECK(BoringData.Scale[row] == converted[row - 1]);
    }
    CHECK(FileChanged == 1);
    CHECK(Messages.empty());
}

TEST_CASE("the depth columns of the grids are converted, in the grids and in the record, and nothing beside them")
{
    const auto fill = [](Grid& grid) {
        for (int column = 1; column <= grid.columns; ++column)
            grid.Cell(3, column) = "10";
    };
    for (Grid* grid : {&SSSamp, &SSLith, &SSPar, &SSOuterLay, &SSInnerLay, &SSFormations, &SSCuttings, &SSW, &SSLegend})
        fill(*grid);
    convertfeet2meters();
    const auto check = [](const Grid& grid, int converted) {
        for (int column = 1; column <= grid.columns; ++column)
            CHECK(grid.Cell(3, column) == (column <= converted ? "3.05" : "10"));
    };
    check(SSSamp, 2);
    check(SSLith, 1);
    check(SSPar, 1);
    check(SSOuterLay, 2);
    check(SSInnerLay, 2);
    check(SSFormations, 1);
    check(SSCuttings, 1);
    check(SSW, 0);
    check(SSLegend, 0);
    CHECK(BoringData.SampleCount == 3);
    CHECK(BoringData.Samples[3][2] == "3.05");
    CHECK(BoringData.Samples[3][3] == "10");
    CHECK(BoringData.Lith[3][1] == "3.05");
    CHECK(BoringData.Params[3][1] == "3.05");
    CHECK(BoringData.OuterLayers[3][2] == "3.05");
    CHECK(BoringData.InnerLayers[3][1] == "3.05");
    CHECK(BoringData.Formations[3][1] == "3.05");
    CHECK(BoringData.Cuttings[3][1] == "3.05");
    CHECK(BoringData.Samples[1][1] == "");
}

TEST_CASE("of the general well information the depths are converted, not the names, the fill and the cover")
{
    for (int row = 1; row <= 14; ++row)
        SSGenWellInfo.Cell(row, 1) = "10";
    convertfeet2meters();
    for (int row = 1; row <= 14; ++row) {
        const bool kept = row <= 4 || row == 10 || row == 13;
        CHECK(SSGenWellInfo.Cell(row, 1) == (kept ? "10" : "3.05"));
        CHECK(BoringData.GenWell[row] == (kept ? "10" : "3.05"));
    }
}

TEST_CASE("an inner layer's cell that begins with @ stays as it is")
{
    SSInnerLay.Cell(1, 1) = "@10";
    SSInnerLay.Cell(1, 2) = "10";
    SSOuterLay.Cell(1, 1) = "@10";
    convertfeet2meters();
    CHECK(SSInnerLay.Cell(1, 1) == "@10");
    CHECK(SSInnerLay.Cell(1, 2) == "3.05");
    CHECK(SSOuterLay.Cell(1, 1) == "");
}

TEST_CASE("a depth marker is converted and closes its paragraph, -0 too; the text around it stays")
{
    MemoDes.text = "-0\r\nTopsoil\r\n-10\r\nSand, loose\r\n-20";
    MemoRemarks.text = "lost water\r\n-10\r\nat depth";
    convertfeet2meters();
    CHECK(BoringData.Des[1] == Text("-0") + ParagraphMark);
    CHECK(BoringData.Des[3] == Text("-3.05") + ParagraphMark);
    CHECK(MemoDes.text == "-0\r\nTopsoil\r\n-3.05\r\nSand, loose\r\n-6.1\r\n");
    CHECK(MemoRemarks.text == "lost water\r\n-3.05\r\nat depth");
}

TEST_CASE("a text line that begins with - loses its words, also one that was only wrapped there")
{
    MemoDes.text = "- gravel\r\n-10 lost water\r\n-\r\n";
    convertfeet2meters();
    CHECK(MemoDes.text == "-\r\n-3.05\r\n-\r\n");

    MemoDes.widthTwips = 255 + 1550; // an inch
    MemoDes.text = "sand and gravel mix -10 to -20";
    const std::vector<Text> lines = MemoDes.DisplayLines();
    REQUIRE(lines.size() == 2);
    REQUIRE(lines[1].starts_with("-10"));
    convertfeet2meters();
    CHECK(MemoDes.text == lines[0] + "-3.05\r\n");
}

TEST_CASE("well notes and general notes are not converted")
{
    MemoWcon.text = MemoBottNotes.text = "-10\r\n";
    convertfeet2meters();
    CHECK(MemoWcon.text == "-10\r\n");
    CHECK(MemoBottNotes.text == "-10\r\n");
}

TEST_CASE("what is typed since the last save is converted, not what the record held")
{
    BoringData.Samples[1][1] = "100";
    BoringData.SampleCount = 1;
    SSSamp.Cell(1, 1) = "10";
    SSSamp.Cell(2, 1) = "20";
    MemoDes.text = "@2\r\n";
    convertfeet2meters();
    CHECK(SSSamp.Cell(1, 1) == "3.05");
    CHECK(SSSamp.Cell(2, 1) == "6.1");
    CHECK(BoringData.SampleCount == 2);
    CHECK(Messages.empty()); // the checks of a save are not made
}

TEST_CASE("a second conversion converts again, and what was rounded is lost")
{
    SSLith.Cell(1, 1) = "10";
    convertfeet2meters();
    convertfeet2meters();
    CHECK(SSLith.Cell(1, 1) == ".93");
}

TEST_CASE("texts of more lines than the record holds are not converted: nothing is, and nothing is lost")
{
    for (const auto& [box, lines] : {std::pair(&MemoDes, 1001), {&MemoWcon, 61}, {&MemoRemarks, 601}}) {
        Messages.clear();
        FileChanged = 0;
        SSSamp.Cell(1, 1) = "10";
        MemoDes.text = MemoWcon.text = MemoRemarks.text = "";
        for (int i = 0; i < lines; ++i)
            box->text += "x\r\n";
        convertfeet2meters();
        REQUIRE(Messages.size() == 1);
        CHECK(Messages[0].words == "Error 9 in convertfeet2meters.  Please contact Norvane");
        CHECK(SSSamp.Cell(1, 1) == "10");
        CHECK(box->text.size() == size_t(lines) * 3);
        CHECK(FileChanged == 0);
    }
}

TEST_CASE("texts of just as many lines as the record holds are converted")
{
    for (int i = 0; i < 999; ++i)
        MemoDes.text += "x\r\n";
    MemoDes.text += "-10\r\n";
    for (int i = 0; i < 599; ++i)
        MemoRemarks.text += "x\r\n";
    MemoRemarks.text += "-10\r\n";
    convertfeet2meters();
    CHECK(Messages.empty());
    CHECK(MemoDes.text.ends_with("x-3.05\r\n")); // only 600 paragraphs keep their ends
    CHECK(MemoRemarks.text.ends_with("x\r\n-3.05\r\n"));
}
