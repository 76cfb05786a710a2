// crossborings_test.cpp -- the borings of a section as columns, worked out by hand in device units from the data
// origin.
//
// A unit of distance is 6 device units, one of elevation 60. The boring stands at distance 100, so at x 600; its
// reference level is at 90, so at y 600; it is 10 deep with its casing to 4, and its column 60 wide.
#include "crosspage.h"

#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "sections/crossrun.h"

using namespace VCROSS;

static SectionText OneBoring(const Text& water = "", const Text& bottom = "", const Text& offset = "",
                             const Text& label2 = "", const Text& layers = "N")
{
    SectionText section;
    section.Borings = {{"100", "B-1.BOR", water, "B", bottom, offset, label2}};
    section.Layers = layers;
    return section;
}

static void WriteOne(const BoringText::Rows& layers = {}, const BoringText::Rows& inner = {{"0", "4", "Casing"}},
                     const Text& stickUp = "0")
{
    BoringText boring = SectionBoring("B-1", layers);
    boring.GenWell[5] = stickUp;
    boring.InnerLayers = inner;
    WriteBoring("B-1.BOR", boring);
}

static Text OnlyMessage()
{
    REQUIRE(Messages.size() == 1);
    return Messages[0].words;
}

static Drawing From(const Drawing& drawing, size_t first)
{
    REQUIRE(drawing.size() >= first);
    return Drawing(drawing.begin() + std::ptrdiff_t(first), drawing.end());
}

// A polygon that blanks, as the two objects that it is.
static const Text WhiteBox = "polygon 570,600 630,600 630,1200 570,1200 white";
static const Text BlankBox = "polygon 570,600 630,600 630,1200 570,1200 F0.bmp";

TEST_CASE("a plain column is a blanked box, its cased part, and a line down the open hole")
{
    WriteOne();
    CHECK(DrawBorings(OneBoring()) == Drawing{"text 600,517 10pt  B-1  centred", WhiteBox, BlankBox,
                                              "rectangle 570,600 630,1200", "rectangle 570,600 630,840",
                                              "line 600,840 600,1200", "line 630,1200 570,1200",
                                              "line 630,600 660,600"});
    CHECK(CrossRun.penX[1] == 630 + 630);
    CHECK(Messages.empty());
}

TEST_CASE("the client block stands over the foot and is that of the first boring")
{
    BoringText boring = SectionBoring("B-1");
    boring.Tail = {"c1", "c2", "c3", "c4", "c5", "1", " 0 "};
    WriteBoring("B-1.BOR", boring);
    for (const char* page : {"L", "T"}) {
        SectionText section = OneBoring();
        section.Borings.push_back({"200", "B-2.BOR"});
        BoringText other = SectionBoring("B-2");
        other.Tail[0] = "other";
        WriteBoring("B-2.BOR", other);
        section.Tail = {page};
        REQUIRE(ReadSection(section));
        StartSection();
        drawcrossframe();
        const size_t first = Objects();
        drawcrossborings();
        Drawing drawing = SheetDrawn(first);
        drawing.resize(3);
        const bool wide = *page == 'T';
        // With the large page the block is 2.6 wide, as the logo below it.
        CHECK(drawing[0] == (wide ? "rectangle 0,4860 1560,5310" : "rectangle 0,3360 1440,3810"));
        CHECK(drawing[1] == (wide ? "text 780,4929 8pt  c1  centred" : "text 720,3429 8pt  c1  centred"));
    }
}

TEST_CASE("the label is the boring's name where the cell says B, else the name of its well")
{
    WriteOne();
    SectionText section = OneBoring();
    section.Borings[0][3] = "W";
    CHECK(DrawBorings(section)[0] == "text 600,517 10pt  MW-B-1  centred");
}

TEST_CASE("a label above stands a line over the reference level, two with a second label, and moves by its offset")
{
    WriteOne();
    // 10 point are 83.33 units.
    CHECK(DrawBorings(OneBoring("", "", ".1,.05"))[0] == "text 660,487 10pt  B-1  centred");
    const Drawing two = DrawBorings(OneBoring("", "T", ".1,.05", "Inside"));
    CHECK(two[0] == "text 660,403 10pt  B-1  centred");
    CHECK(two[1] == "text 660,487 10pt  Inside  centred");
    CHECK(two[4] == "rectangle 570,600 630,1200");
    SectionText large = OneBoring("", "", "0,0");
    large.Tail = {"L", "", "", ",18"};
    CHECK(DrawBorings(large)[0] == "text 600,450 18pt  B-1  centred");
}

TEST_CASE("a label below stands a line under the column, and its offset leaves the column where it is")
{
    WriteOne();
    const Drawing drawing = DrawBorings(OneBoring("", "B", ".1,.05", "Inside"));
    CHECK(drawing[0] == "text 660,1253 10pt  B-1  centred");
    CHECK(drawing[1] == "text 660,1337 10pt  Inside  centred");
    CHECK(drawing[4] == "rectangle 570,600 630,1200");
    CHECK(drawing[5] == "rectangle 570,600 630,840");
}

TEST_CASE("an empty label is printed")
{
    BoringText boring = SectionBoring("");
    WriteBoring("B-1.BOR", boring);
    CHECK(DrawBorings(OneBoring())[0] == "text 600,517 10pt    centred");
}

TEST_CASE("a stick-up lifts the column over the ground, which the tick marks")
{
    WriteOne({}, {{"0", "4", "Casing"}}, "2");
    const Drawing drawing = DrawBorings(OneBoring());
    CHECK(drawing[3] == "rectangle 570,600 630,1320");
    CHECK(drawing[4] == "rectangle 570,600 630,960");
    CHECK(drawing[5] == "line 600,960 600,1320");
    CHECK(drawing[7] == "line 630,720 660,720");
}

TEST_CASE("a well without outer rows is a box as high as its stick-up")
{
    BoringText boring = SectionBoring("B-1");
    boring.GenWell[5] = "2";
    boring.OuterLayers = boring.InnerLayers = {};
    WriteBoring("B-1.BOR", boring);
    CHECK(From(DrawBorings(OneBoring()), 3) == Drawing{"rectangle 570,600 630,720", "rectangle 570,600 630,720",
                                                       "line 600,720 600,720", "line 630,720 570,720",
                                                       "line 630,720 660,720"});
}

TEST_CASE("a casing deeper than the hole draws its middle line upward")
{
    WriteOne({}, {{"0", "12", "Casing"}});
    CHECK(DrawBorings(OneBoring())[5] == "line 600,1320 600,1200");
}

TEST_CASE("a column of no width is drawn as lines, without its blanking")
{
    WriteOne();
    SectionText section = OneBoring();
    section.Tail = {"L", "", "", "0"};
    const Drawing drawing = DrawBorings(section);
    CHECK(drawing[1] == "rectangle 600,600 600,1200");
    CHECK(drawing.back() == "line 600,600 630,600");
}

TEST_CASE("without layers a column has its codes beside it, a code with a comma the letters behind it")
{
    WriteOne({{"2", "SM"}, {"5", "F12,Sand"}, {"10", ""}});
    CHECK(From(DrawBorings(OneBoring()), 7) == Drawing{"line 630,600 660,600", "text 660,660 6pt SM",
                                                       "line 630,720 660,720", "text 660,810 6pt Sand",
                                                       "line 630,900 660,900", "text 660,1050 6pt "});
}

TEST_CASE("with layers a column has no codes beside it")
{
    WriteOne({{"2", "SM"}, {"10", "CL"}});
    CHECK(From(DrawBorings(OneBoring("", "", "", "", "Y")), 7) == Drawing{"line 630,600 660,600"});
}

TEST_CASE("a layer that ends at the ground or above is passed over, and the next is as thick as the two depths say")
{
    WriteOne({{"-2", "SM"}, {"0", "CL"}, {"4", "GW"}});
    CHECK(From(DrawBorings(OneBoring()), 8) == Drawing{"text 660,720 6pt GW", "line 630,840 660,840"});
    WriteOne({{"-2", "SM"}, {"4", "GW"}});
    CHECK(From(DrawBorings(OneBoring()), 8) == Drawing{"text 660,780 6pt GW", "line 630,960 660,960"});
}

TEST_CASE("an individual column is its layers, each with its pattern, twice as wide")
{
    SetPatterns({27, 32});
    WriteOne({{"2", "SM"}, {"10", "F12,Sand"}}, {}, "1");
    CHECK(DrawBorings(OneBoring("", "", "", "", "I")) ==
          Drawing{"text 600,517 10pt  B-1  centred", "rectangle 540,600 660,660", "line 660,660 690,660",
                  "text 690,720 6pt SM", "polygon 660,780 540,780 540,660 660,660 F27", "rectangle 660,780 540,660",
                  "line 660,780 690,780", "text 690,1020 6pt Sand", "polygon 660,1260 540,1260 540,780 660,780 F32",
                  "rectangle 660,1260 540,780"});
}

TEST_CASE("boxes of an individual column begin on whole units where the fill has put the pen")
{
    WriteOne({{"2.0042", "SM"}, {"10", "CL"}}, {});
    const Drawing drawing = DrawBorings(OneBoring("", "", "", "", "I"));
    // 2.0042 are 120.252 units: the first box ends at 720, and the second, 479.748 tall, at 1199.748.
    CHECK(drawing[4] == "polygon 660,720 540,720 540,600 660,600 f0");
    CHECK(drawing[8] == "polygon 660,1200 540,1200 540,720 660,720 f0");
}

TEST_CASE("a code of one letter ends the borings as error 5, but only where its pattern is needed")
{
    WriteOne({{"2", "S"}, {"10", "CL"}});
    DrawBorings(OneBoring());
    CHECK(Messages.empty());
    const Drawing drawing = DrawBorings(OneBoring("", "", "", "", "I"));
    CHECK(OnlyMessage() == "Error 5 in drawcrossborings.  Please contact Norvane");
    CHECK(drawing.back() == "text 690,660 6pt S");
}

TEST_CASE("screens are boxes with their pattern across a plain column")
{
    SetPatterns({6});
    WriteOne({}, {{"0", "4", "Casing"}, {"4", "6", "Screen"}, {"7", "9", "0.1 SCREEN"}});
    CHECK(From(DrawBorings(OneBoring()), 8) ==
          Drawing{"polygon 570,840 630,840 630,960 570,960 F06", "rectangle 570,840 630,960",
                  "polygon 570,1020 630,1020 630,1140 570,1140 F06", "rectangle 570,1020 630,1140"});
}

TEST_CASE("six screens are five, the last of them in place of the fifth")
{
    WriteOne({}, {{"0", "1", "screen"},
                  {"1", "2", "screen"},
                  {"2", "3", "screen"},
                  {"3", "4", "screen"},
                  {"4", "5", "screen"},
                  {"8", "9", "screen"}});
    const Drawing drawing = From(DrawBorings(OneBoring()), 8);
    CHECK(drawing.size() == 10);
    CHECK(drawing.back() == "rectangle 570,1080 630,1140");
}

TEST_CASE("in an individual column a screen is a white slot")
{
    SetPatterns({6});
    WriteOne({{"10", "SM"}}, {{"4", "6", "Screen"}});
    const Drawing drawing = From(DrawBorings(OneBoring("", "", "", "", "I")), 6);
    CHECK(drawing ==
          Drawing{"polygon 585,840 615,840 615,960 585,960 white", "polygon 585,840 615,840 615,960 585,960 F06"});
}

TEST_CASE("the water level counts from the reference level, and its mark stands on the column")
{
    WriteOne({}, {}, "2");
    DrawBorings(OneBoring("5"));
    size_t first = Objects();
    drawwaterlevels();
    // The mark is 0.04 inch over the line: a triangle 42 wide, 36 tall.
    CHECK(SectionDrawn(first) == Drawing{"line 570,900 630,900", "polygon 579,864 621,864 600,900 black"});
    first = Objects();
    drawwaterlevels();
    CHECK(SectionDrawn(first)[0] == "line 570,900 630,900");
}

TEST_CASE("without a water depth above 0 there is no mark")
{
    WriteOne();
    for (const char* water : {"", "0", "-3", "dry"}) {
        DrawBorings(OneBoring(water));
        const size_t first = Objects();
        drawwaterlevels();
        CHECK(SectionDrawn(first).empty());
    }
}

// ---- Inclined borings

TEST_CASE("an inclined boring has a small compass over its label, with its direction, as long as it is deep")
{
    WriteOne({{"20", "SM"}});
    const Drawing drawing = DrawBorings(OneBoring("", "", "", "|30|30", "Y"));
    // The centre is a line and a quarter inch over the reference level: 600 - 83.33 - 150. Deepest layer 20, hole 10:
    // 0.1 inch at 30 degrees.
    CHECK(drawing[0] == "text 600,517 10pt  B-1  centred");
    CHECK(Drawing(drawing.begin() + 1, drawing.begin() + 8) ==
          Drawing{"circle 600,306 5", "circle 660,366 5", "circle 600,426 5", "circle 540,366 5", "dot 600,367 6",
                  "line 600,367 652,337", "line 652,337 600,367"});
}

TEST_CASE("with a second label the compass stands a line higher")
{
    WriteOne({{"10", "SM"}});
    CHECK(DrawBorings(OneBoring("", "", "", "Inside|30|30", "Y"))[6] == "dot 600,283 6");
}

TEST_CASE("the direction of a hole without depth is a line of no length, drawn there and back")
{
    BoringText boring = SectionBoring("B-1", {{"10", "SM"}});
    boring.OuterLayers = boring.InnerLayers = {};
    WriteBoring("B-1.BOR", boring);
    const Drawing drawing = DrawBorings(OneBoring("", "", "", "|90|60", "Y"));
    CHECK(drawing[5] == "dot 600,367 6");
    CHECK(drawing[6] == "line 600,367 600,367");
    CHECK(drawing[7] == "line 600,367 600,367");
    CHECK(Messages.empty());
}

TEST_CASE("half a degree is vertical, an azimuth alone is not")
{
    WriteOne({{"10", "SM"}});
    CHECK(DrawBorings(OneBoring("", "", "", "|0|0.5", "Y")).size() == 8);
    CHECK(DrawBorings(OneBoring("", "", "", "|0|0.6", "Y")).size() > 12);
    CHECK(DrawBorings(OneBoring("", "", "", "|1|0", "Y")).size() > 12);
}

TEST_CASE("an inclined column is drawn along its axis, closed at the top")
{
    WriteOne({{"10", "SM"}});
    // At right angles to the section it looks vertical; cos 60 halves its depths: 300 units for 10.
    const Drawing drawing = From(DrawBorings(OneBoring("", "", "", "|90|60", "Y")), 8);
    CHECK(drawing ==
          Drawing{"polygon 630,600 630,900 570,900 570,600 white", "polygon 630,600 630,900 570,900 570,600 F0.bmp",
                  "line 630,600 630,900", "line 630,900 570,900", "line 570,900 570,600", "line 570,600 630,600",
                  "line 570,720 630,720", "line 600,720 600,900", "line 570,900 630,900", "line 630,600 660,600"});
}

TEST_CASE("an inclined column in the section's plane leans as it is bored")
{
    WriteOne({{"10", "SM"}});
    // Azimuth 0: the apparent angle is the inclination, 45, and depths are lengths: 600 units, 424.26 each way. Half
    // the width is 30, 21.21 each way. The blanking leaves the pen on whole units, where the outline begins.
    const Drawing drawing = From(DrawBorings(OneBoring("", "", "", "|0|45", "Y")), 8);
    CHECK(drawing == Drawing{"polygon 621,579 1045,1003 1003,1045 579,621 white",
                             "polygon 621,579 1045,1003 1003,1045 579,621 F0.bmp", "line 621,579 1045,1003",
                             "line 1045,1003 1003,1046", "line 1003,1046 579,621", "line 579,621 621,579",
                             "line 748,791 791,749", "line 769,770 1024,1024", "line 1003,1046 1045,1003",
                             "line 621,579 651,579"});
}

TEST_CASE("codes stand along an inclined column, and the contact ticks are level")
{
    WriteOne({{"4", "SM"}, {"10", "CL"}});
    const Drawing drawing = From(DrawBorings(OneBoring("", "", "", "|90|60")), 17);
    CHECK(drawing ==
          Drawing{"line 630,600 660,600", "text 660,660 6pt SM", "line 630,720 660,720", "text 660,810 6pt CL"});
}

TEST_CASE("screens of an inclined column are hatched across it, a line each 0.05 inch")
{
    WriteOne({{"10", "SM"}}, {{"4", "8", "Screen"}, {"9", "8", "Screen"}});
    // 4 are 120 units, 0.2 inch: 5 lines. The second screen is upside down and has none.
    const Drawing drawing = From(DrawBorings(OneBoring("", "", "", "|90|60", "Y")), 18);
    CHECK(drawing == Drawing{"line 630,720 570,720", "line 630,750 570,750", "line 630,780 570,780",
                             "line 630,810 570,810", "line 630,840 570,840"});
}

TEST_CASE("a screen of more lines than a 16-bit number holds ends the borings as error 6")
{
    WriteOne({{"10", "SM"}}, {{"0", "40000", "Screen"}});
    DrawBorings(OneBoring("", "", "", "|90|60", "Y"));
    CHECK(OnlyMessage() == "Error 6 in drawcrossborings.  Please contact Norvane");
}

TEST_CASE("the water mark of an inclined column stands beside its right edge")
{
    WriteOne({{"10", "SM"}}, {}, "2");
    DrawBorings(OneBoring("6", "", "", "|90|60", "Y"));
    const size_t first = Objects();
    drawwaterlevels();
    CHECK(SectionDrawn(first)[0] == "line 630,780 690,780");
}

TEST_CASE("an individual column is vertical, with the compass alone to tell that its boring is not")
{
    WriteOne({{"10", "SM"}}, {{"4", "6", "Screen"}});
    const Drawing drawing = From(DrawBorings(OneBoring("", "", "", "|90|60", "I")), 8);
    CHECK(drawing[0] == "rectangle 540,600 660,600");
    CHECK(drawing[1] == "line 660,600 690,600");
    CHECK(drawing[4] == "rectangle 660,1200 540,600");
}

TEST_CASE("a boring labelled below has no compass and is drawn as the boring before it")
{
    WriteOne({{"10", "SM"}});
    SectionText section = OneBoring("", "B", "", "|90|60", "Y");
    CHECK(DrawBorings(section)[3] == "rectangle 570,600 630,1200");
    section.Borings.insert(section.Borings.begin(), {"10", "B-1.BOR", "", "B", "", "", "|90|60"});
    const Drawing drawing = DrawBorings(section);
    // 18 objects of the first; then the label and the leaning box of the second.
    CHECK(drawing[18] == "text 600,1283 10pt  B-1  centred");
    CHECK(drawing[19] == "polygon 630,600 630,900 570,900 570,600 white");
    // The flag outlives the file.
    CHECK(DrawBorings(OneBoring("", "B", "", "|90|60", "Y"))[1] == "polygon 630,600 630,900 570,900 570,600 white");
}

TEST_CASE("borings without layers make an inclined one fail as a division by zero")
{
    WriteOne();
    const Drawing drawing = DrawBorings(OneBoring("", "", "", "|90|60"));
    CHECK(OnlyMessage() == "Error 11 in drawcrossborings.  Please contact Norvane");
    CHECK(drawing.back() == "dot 600,367 6");
}

// ---- What is not there

TEST_CASE("a boring that is missing draws none of the columns, and the counter of the screen moves on")
{
    WriteOne();
    SectionText section = OneBoring();
    section.Borings.push_back({"200", "NONE"});
    RunPages.pageIndex = 1;
    CHECK(DrawBorings(section).empty());
    CHECK(OnlyMessage() == "Boring File Not Found: " + Scratch("NONE.bor"));
    CHECK(RunPages.pageIndex == 2);
    CHECK(CrossRun.layerCount[1] == 0);
}

TEST_CASE("behind a missing boring the water marks stand where the drawing before has left them")
{
    WriteOne();
    DrawBorings(OneBoring("5"));
    SectionText section = OneBoring("5");
    section.Borings.push_back({"200", "NONE"});
    DrawBorings(section);
    const size_t first = Objects();
    drawwaterlevels();
    CHECK(SectionDrawn(first)[0] == "line 570,900 630,900");
}

TEST_CASE("a boring whose distance is off the sheet is drawn there all the same")
{
    WriteOne();
    SectionText section = OneBoring();
    section.Borings[0][0] = "2000";
    CHECK(DrawBorings(section)[3] == "rectangle 11970,600 12030,1200");
}

TEST_CASE("a boring of an earlier form draws none of the columns")
{
    WriteScratch("B-1.BOR", "4.6\r\n");
    CHECK(DrawBorings(OneBoring()).empty());
    CHECK(OnlyMessage() == "This boring file has the format of a previous version: " + Scratch("B-1.BOR"));
}

TEST_CASE("a slot that no row has filled is a boring without a name")
{
    WriteOne();
    std::string bytes = "\r\n,,,\r\n100,B-1\r\n";
    for (int row = 3; row <= 15; ++row)
        bytes += ",,,\r\n";
    const std::string rest = SectionText().Bytes();
    WriteScratch("A.CRO", bytes + rest.substr(rest.find("\r\n") + 2));
    RunPages.pageFile = Scratch("A.CRO");
    REQUIRE(getcrossdata());
    drawcrossborings();
    CHECK(OnlyMessage() == "Boring File Not Found: " + ScratchFolder() + "/");
}

TEST_CASE("layers of an earlier section are gone, also those of borings that this one has not")
{
    WriteOne({{"2", "SM"}, {"10", "CL"}});
    DrawBorings(OneBoring());
    CHECK(CrossRun.layerCount[1] == 2);
    CrossRun.layerDepth[50][100] = 7;
    WriteOne({{"2", "SM"}});
    DrawBorings(OneBoring());
    CHECK(CrossRun.layerCount[1] == 1);
    CHECK(CrossRun.layerDepth[1][2] == 0);
    CHECK(CrossRun.layerCode[1][2] == "");
    CHECK(CrossRun.layerDepth[50][100] == 0);
    CHECK(CrossRun.refElevation[1] == 90);
}

TEST_CASE("a section without borings draws nothing")
{
    CHECK(DrawBorings({}).empty());
    CHECK(Messages.empty());
}

TEST_CASE("a boring count out of bounds is told again where the borings are drawn")
{
    WriteOne();
    SectionText section;
    section.Borings.assign(51, {"100", "B-1.BOR"});
    REQUIRE(ReadSection(section));
    StartSection();
    Messages.clear();
    drawcrossborings();
    CHECK(OnlyMessage() == "Error 9 in drawcrossborings.  Please contact Norvane");
}

TEST_CASE("a boring that ends early is told as error 62, and its column is left out")
{
    WriteOne({{"2", "SM"}});
    const std::string bytes = ReadScratch("B-1.BOR");
    WriteScratch("B-1.BOR", bytes.substr(0, bytes.find("Casing")));
    CHECK(DrawBorings(OneBoring()).empty());
    CHECK(OnlyMessage() == "Error 62 in drawcrossborings.  Please contact Norvane");
}

TEST_CASE("each boring drawn is a step of the progress")
{
    WriteOne();
    SectionText section = OneBoring();
    section.Borings.push_back(section.Borings[0]);
    DrawBorings(section);
    CHECK(progressValue == 4);
    CHECK(progressTotal == 4);
}
