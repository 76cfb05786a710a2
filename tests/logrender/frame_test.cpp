// frame_test.cpp -- the frame, the date line and the places of the title blocks.
#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "columnpage.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"
#include "session/deviceconfig.h"

static constexpr int32_t FrameX = 270, FrameY = 270; // the frame's upper left corner on the sheet

static void StartFrame(char kind)
{
    StartColumn();
    PageList = PageListRecord();
    canvasstart(Text(1, kind));
    LogGeometry.FrameKind = kind;
    LogBoring.Name = "B-1";
    LogPage.BoringFileName = "/p/new\\B-1.BOR";
    LogPage.PageCaption = "(Page 1 of 3)";
}

// What drawframe draws behind the first skip objects, its places counted from the frame's corner.
static Drawing Frame(size_t skip = 0)
{
    VLOG::drawframe();
    for (PageObject& object : PageList.Objects) {
        object.X1 += ColumnX - FrameX;
        object.X2 += ColumnX - FrameX;
        object.Y1 += ColumnY + 60 - FrameY;
        object.Y2 += ColumnY + 60 - FrameY;
    }
    return Drawn(skip);
}

static bool PenAt(float x, float y)
{
    return PageCanvas.penX == doctest::Approx(FrameX + 600 * x) && PageCanvas.penY == doctest::Approx(FrameY - 600 * y);
}

TEST_CASE("a frame with no title blocks is its box, the date line beside it and the line under the head")
{
    StartFrame('P');
    CHECK(Frame() == Drawing{"rectangle 0,0 4320,5760 wide", "text -42,5700 6pt 1/2/2026   /p/new\\B-1.BOR upward",
                             "line 0,900 4320,900"});
    CHECK(PageList.Objects[0].PenWidth == 8);
    CHECK(PageList.Objects[2].PenWidth == 4);
    CHECK(PageCanvas.textAngle == 0);
    CHECK(PenAt(0, -2.7f));
    CHECK(Messages.empty());
}

TEST_CASE("on a landscape page the date line stands below the frame")
{
    StartFrame('L');
    CHECK(Frame() == Drawing{"rectangle 0,0 5760,4260 wide", "text 60,4302 6pt 1/2/2026   /p/new\\B-1.BOR",
                             "line 0,900 5760,900"});
    CHECK(PenAt(0, -2.7f));
}

TEST_CASE("a wide page has the portrait's height")
{
    StartFrame('T');
    CHECK(Frame() == Drawing{"rectangle 0,0 9360,5760 wide", "text -42,5700 6pt 1/2/2026   /p/new\\B-1.BOR upward",
                             "line 0,900 9360,900"});
}

TEST_CASE("a bottom row has a line above it")
{
    StartFrame('P');
    LogGeometry.HasBottomRow = 1;
    CHECK(Frame(2) == Drawing{"line 0,900 4320,900", "line 0,5310 4320,5310"});
}

TEST_CASE("the sheet offsets of the set-up move the frame")
{
    StartFrame('P');
    DeviceConfig.MarginX = 0.5f;
    DeviceConfig.MarginY = -0.25f;
    CHECK(Frame()[0] == "rectangle 300,150 4620,5910 wide");
}

TEST_CASE("the page is in the font of the set-up, and in Arial without one")
{
    const auto font = [](const char* name) {
        StartFrame('P');
        DeviceConfig.FontName = name;
        VLOG::drawframe();
        return PageList.Objects[1].FontName;
    };
    CHECK(font("Courier") == "Courier");
    CHECK(font("") == "Arial");
}

TEST_CASE("each orientation has its own grid of title block positions")
{
    // The box of the narrow log title at each position by itself.
    const auto corners = [](char kind) {
        Text places;
        for (int position = 1; position <= 12; ++position) {
            StartFrame(kind);
            LogGeometry.TitleBlocks[position] = 12;
            const Text box = Frame(3)[0]; // "rectangle X,Y ..."
            places += box.substr(10, box.find(' ', 10) - 10) + " ";
        }
        return places;
    };
    CHECK(corners('P') == "0,0 0,450 0,5310 1440,0 1440,450 1440,5310 2880,0 2880,450 2880,5310 0,0 0,0 0,0 ");
    CHECK(corners('L') == "0,0 0,450 1440,0 1440,450 2880,0 2880,450 4320,0 4320,450 0,0 0,0 0,0 0,0 ");
    CHECK(corners('T') == "0,0 0,450 1560,0 1560,450 3120,0 3120,450 4680,0 4680,450 6240,0 6240,450 7800,0 7800,450 ");
}

TEST_CASE("the blocks are drawn in the order of their positions")
{
    StartFrame('P');
    LogGeometry.TitleBlocks[5] = 12;
    LogGeometry.TitleBlocks[4] = 11;
    const Drawing drawn = Frame(3);
    REQUIRE(drawn.size() == 9);
    CHECK(drawn[0] == "rectangle 1440,0 4320,450");
    CHECK(drawn[6] == "rectangle 1440,450 2880,900");
}

TEST_CASE("the log title is two blocks wide, with the page's caption lower and to the right")
{
    StartFrame('P');
    LogGeometry.TitleBlocks[1] = 3;
    CHECK(Frame(3) == Drawing{"rectangle 0,0 2880,450", "text 1440,180 13pt  W1 B-1  centred",
                              "text 2280,360 9pt  (Page 1 of 3)  centred"});
}

TEST_CASE("the log title of a wide page is widened by twice the extra of a block")
{
    StartFrame('T');
    LogGeometry.TitleBlocks[3] = 3;
    CHECK(Frame(3) == Drawing{"rectangle 1560,0 4680,450", "text 3120,180 13pt  W1 B-1  centred",
                              "text 4020,360 9pt  (Page 1 of 3)  centred"});
}

TEST_CASE("the narrow log title fits one block")
{
    StartFrame('P');
    LogGeometry.TitleBlocks[8] = 12;
    CHECK(Frame(3) == Drawing{"rectangle 2880,450 4320,900", "text 3600,630 12pt  W1 B-1  centred",
                              "text 3960,810 8pt  (Page 1 of 3)  centred"});
}

TEST_CASE("the narrow log title of a wide page is widened too")
{
    StartFrame('T');
    LogGeometry.TitleBlocks[12] = 12;
    CHECK(Frame(3) == Drawing{"rectangle 7800,450 9360,900", "text 8580,630 12pt  W1 B-1  centred",
                              "text 9000,810 8pt  (Page 1 of 3)  centred"});
}

TEST_CASE("title information is one position high in the second row of the head, and two elsewhere")
{
    const auto heights = [](char kind) {
        Text text;
        for (int position = 1; position <= 12; ++position) {
            StartFrame(kind);
            LogGeometry.TitleBlocks[position] = 5;
            VLOG::drawframe();
            const PageObject& box = PageList.Objects[3];
            text += box.Y2 - box.Y1 == 450 ? '1' : box.Y2 - box.Y1 == 900 ? '2' : '?';
        }
        return text;
    };
    CHECK(heights('P') == "212212212222"); // 10 to 12 are no positions of a portrait page
    CHECK(heights('L') == "212121212121");
    CHECK(heights('T') == "212121212121");
}

TEST_CASE("each code of a layout has its block")
{
    const auto block = [](int16_t code) {
        StartFrame('P');
        for (int row = 1; row <= 30; ++row)
            LogBoring.Info[row][1] = "I" + std::to_string(row);
        for (int i = 1; i <= 10; ++i)
            LogBoring.BottNotes[i] = "N" + std::to_string(i);
        LogBoring.Client[1] = "C1";
        WritePicture("MAP.BMP");
        LogBoring.MapFile = "MAP.BMP";
        LogGeometry.TitleBlocks[1] = code;
        Frame();
        Text words;
        for (size_t i = 3; i < PageList.Objects.size() && words.empty(); ++i)
            words = PageList.Objects[i].String;
        return words + "/" + std::to_string(PageList.Objects.size() - 3);
    };
    CHECK(block(-1) == "/0");
    CHECK(block(0) == "/0");
    CHECK(block(1) == "  /2");                    // logo: box and the last line
    CHECK(block(2) == " C1 /6");                  // client
    CHECK(block(3) == " W1 B-1 /3");              // log title
    CHECK(block(4) == "I1/21");                   // title rows 1 to 10, two texts each
    CHECK(block(5) == "I1/21");                   // rows 1 to 10
    CHECK(block(6) == "I11/21");                  // rows 11 to 20
    CHECK(block(7) == "I21/21");                  // rows 21 to 30
    CHECK(block(8) == Scratch("MAP.BMP") + "/1"); // map
    CHECK(block(9) == " W1 B-1 /16");             // title and rows 1 to 6
    CHECK(block(10) == "N1/10");                  // notes in two columns
    CHECK(block(11) == "N1/6");                   // notes in a box
    CHECK(block(12) == " W1 B-1 /3");             // narrow title
    CHECK(block(13) == "/0");
    CHECK(Messages.empty());
}

TEST_CASE("a draft is stamped across its page")
{
    StartFrame('P');
    LogBoring.Draft = 1;
    CHECK(Frame(3) == Drawing{"text 1800,1500 32pt CHECK PRINT at 45"});
    CHECK(PageCanvas.textAngle == 0);
    CHECK(PenAt(0, -2.7f));
}

TEST_CASE("only a draft mark of 1 stamps the page")
{
    StartFrame('P');
    LogBoring.Draft = 2;
    CHECK(Frame(3).empty());
}

TEST_CASE("the stamp of a draft is left aligned behind a block that centres its words")
{
    StartFrame('P');
    LogBoring.Draft = 1;
    LogGeometry.TitleBlocks[1] = 3;
    CHECK(Frame().back() == "text 1800,1500 32pt CHECK PRINT at 45");
}
