// titleblocks_test.cpp -- the blocks at the head of a page, each drawn from its own upper left corner.
#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "columnpage.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"
#include "report/heading.h"
#include "session/deviceconfig.h"
#include "session/session.h"

// The pen on the block's corner: 0,0 of what Drawn tells.
static void StartBlock()
{
    StartColumn();
    movedown(0.1);
    LogoData = LogoRecord();
    for (int i = 1; i <= MaxClient; ++i)
        LogBoring.Client[i] = "C" + std::to_string(i);
    for (int i = 1; i <= MaxBottNotes; ++i)
        LogBoring.BottNotes[i] = "N" + std::to_string(i);
    for (int row = 1; row <= MaxInfo; ++row) {
        LogBoring.Info[row][1] = "I" + std::to_string(row);
        LogBoring.Info[row][2] = "V" + std::to_string(row);
    }
}

static void SetRow(int row, const char* label, const char* value)
{
    LogBoring.Info[row][1] = label;
    LogBoring.Info[row][2] = value;
}

static void PictureLogo(const char* file)
{
    LogoData.Flag = 1;
    LogoData.File = file;
}

TEST_CASE("a logo line is 11 point, or larger by the number behind its bar")
{
    StartBlock();
    LogoData.Line[1] = "ACME|5";
    LogoData.Line[2] = "Soils|-2";
    LogoData.Line[3] = "Engineers";
    VLOG::drawlogo(0);
    CHECK(Drawn() == Drawing{"rectangle 0,0 1440,450", "text 720,135 16pt  ACME  centred",
                             "text 720,225 9pt  Soils  centred", "text 720,345 8pt  Engineers  centred"});
}

TEST_CASE("without its second line the logo text stands lower")
{
    StartBlock();
    LogoData.Line[1] = "ACME";
    VLOG::drawlogo(0);
    CHECK(Drawn() ==
          Drawing{"rectangle 0,0 1440,450", "text 720,165 11pt  ACME  centred", "text 720,285 8pt    centred"});
}

TEST_CASE("on a wide page the logo text stands in the middle of the wider block")
{
    StartBlock();
    LogoData.Line[1] = "ACME";
    VLOG::drawlogo(0.1);
    CHECK(Drawn()[0] == "rectangle 0,0 1560,450");
    CHECK(Drawn()[1] == "text 780,165 11pt  ACME  centred");
}

TEST_CASE("a picture logo fills its block but for a small rim")
{
    StartBlock();
    WritePicture("OWN.bmp");
    PictureLogo("OWN.bmp");
    VLOG::drawlogo(0);
    CHECK(Drawn() == Drawing{"rectangle 0,0 1440,450", "picture 15,15 1425,435 OWN.bmp"});
    StartBlock();
    PictureLogo("OWN.bmp");
    VLOG::drawlogo(0.1);
    CHECK(Drawn() == Drawing{"rectangle 0,0 1560,450", "picture 75,15 1485,435 OWN.bmp"});
}

TEST_CASE("the logo is looked for in the logo folder, and in the working folder where none is set")
{
    std::filesystem::create_directories(Scratch("logos"));
    WritePicture("logos/A.BMP");
    WritePicture("B.BMP");
    StartBlock();
    DeviceConfig.SystemFiles[LogoFolder] = Scratch("logos");
    PictureLogo("A.BMP");
    VLOG::drawlogo(0);
    CHECK(PageList.Objects.back().String == Scratch("logos/A.BMP"));
    StartBlock();
    DeviceConfig.SystemFiles[LogoFolder] = " ";
    PictureLogo("B.BMP");
    VLOG::drawlogo(0);
    CHECK(PageList.Objects.back().String == Scratch("B.BMP"));
    CHECK(Messages.empty());
}

TEST_CASE("a logo picture of another kind is told, and the block stays empty")
{
    StartBlock();
    PictureLogo("LOGO.PCX");
    VLOG::drawlogo(0);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Unsupported Logo File Format: " + Scratch("LOGO.PCX"));
    CHECK(Drawn() == Drawing{"rectangle 0,0 1440,450"});
}

TEST_CASE("a missing logo picture is told")
{
    StartBlock();
    PictureLogo("NONE.BMP");
    VLOG::drawlogo(0);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "File Not Found: " + Scratch("NONE.BMP"));
}

TEST_CASE("a logo that is no picture is the failure of its block, which has its box alone")
{
    StartBlock();
    WriteScratch("TEXT.BMP", "not a picture");
    PictureLogo("TEXT.BMP");
    VLOG::drawlogo(0);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 481 in drawlogo.  Please contact Norvane");
    CHECK(Drawn() == Drawing{"rectangle 0,0 1440,450"});
}

TEST_CASE("the client block has five lines in the open style")
{
    StartBlock();
    LogBoring.Style = 1;
    VLOG::drawclient(0);
    CHECK(Drawn() == Drawing{"rectangle 0,0 1440,450", "text 720,69 8pt  C1  centred", "text 720,147 8pt  C2  centred",
                             "text 720,225 8pt  C3  centred", "text 720,303 8pt  C4  centred",
                             "text 720,381 8pt  C5  centred"});
}

TEST_CASE("the client block with one line has its last line below it")
{
    StartBlock();
    LogBoring.Style = 2;
    VLOG::drawclient(0);
    CHECK(Drawn() == Drawing{"rectangle 0,0 1440,450", "line 0,354 1440,354", "text 720,402 8pt  C5  centred",
                             "text 720,294 8pt  C4  centred", "text 720,216 8pt  C3  centred",
                             "text 720,138 8pt  C2  centred", "text 720,60 8pt  C1  centred"});
}

TEST_CASE("the client block with two lines has its last two lines below one each")
{
    StartBlock();
    LogBoring.Style = 3;
    VLOG::drawclient(0);
    CHECK(Drawn() == Drawing{"rectangle 0,0 1440,450", "line 0,258 1440,258", "text 720,306 8pt  C4  centred",
                             "line 0,354 1440,354", "text 720,402 8pt  C5  centred", "text 720,207 8pt  C3  centred",
                             "text 720,129 8pt  C2  centred", "text 720,51 8pt  C1  centred"});
}

TEST_CASE("the other client block with one line has its last two lines below it")
{
    StartBlock();
    LogBoring.Style = 4;
    VLOG::drawclient(0);
    CHECK(Drawn() == Drawing{"rectangle 0,0 1440,450", "line 0,270 1440,270", "text 720,207 8pt  C3  centred",
                             "text 720,129 8pt  C2  centred", "text 720,51 8pt  C1  centred",
                             "text 720,315 8pt  C4  centred", "text 720,393 8pt  C5  centred"});
}

TEST_CASE("on a wide page the client lines are centred in the wider block")
{
    StartBlock();
    LogBoring.Style = 3;
    VLOG::drawclient(0.1);
    CHECK(Drawn()[0] == "rectangle 0,0 1560,450");
    CHECK(Drawn()[2] == "text 780,306 8pt  C4  centred");
    CHECK(Drawn()[3] == "line 0,354 1560,354");
}

TEST_CASE("a client block with no style is its box alone")
{
    StartBlock();
    LogBoring.Style = 0;
    VLOG::drawclient(0);
    CHECK(Drawn() == Drawing{"rectangle 0,0 1440,450"});
}

TEST_CASE("a title row is its label and, an inch on, a colon and its value")
{
    StartBlock();
    VLOG::drawborinfo(0, 1, 1);
    const Drawing drawn = Drawn();
    REQUIRE(drawn.size() == 11);
    CHECK(Drawing(drawn.begin(), drawn.begin() + 4) ==
          Drawing{"rectangle 0,0 1440,450", "text 60,57 7pt I11", "text 660,57 7pt : V11", "text 60,141 7pt I12"});
    CHECK(drawn.back() == "text 660,393 7pt : V15");
}

TEST_CASE("a heading row prints its label alone, an empty row takes no line, a row without a value keeps its colon")
{
    StartBlock();
    SetRow(1, "Drilling", "Heading");
    SetRow(2, "", "");
    SetRow(3, "Driller", "");
    SetRow(4, "", "Rotary");
    SetRow(5, " ", "");
    VLOG::drawborinfo(0, 0, 1);
    CHECK(Drawn(1) == Drawing{"text 60,57 7pt Drilling", "text 60,141 7pt Driller",
                              "text 660,141 7pt : ", "text 60,225 7pt ", "text 660,225 7pt : Rotary",
                              "text 60,309 7pt  ", "text 660,309 7pt : "});
}

TEST_CASE("title information two positions high has ten rows in a box over the position below")
{
    StartBlock();
    VLOG::drawborinfo(0, 0, 0);
    const Drawing drawn = Drawn();
    REQUIRE(drawn.size() == 21);
    CHECK(drawn[0] == "rectangle 0,0 1440,900");
    CHECK(drawn[1] == "text 60,72 7pt I1");
    CHECK(drawn[20] == "text 660,828 7pt : V10");
}

TEST_CASE("long title information has rows 1 to 5 and, further right, 6 to 10")
{
    StartBlock();
    VLOG::drawlongborinfo(0);
    const Drawing drawn = Drawn();
    REQUIRE(drawn.size() == 21);
    CHECK(drawn[0] == "rectangle 0,0 2880,450");
    CHECK(drawn[1] == "text 60,57 7pt I1");
    CHECK(drawn[11] == "text 1560,57 7pt I6");
    CHECK(drawn[20] == "text 2160,393 7pt : V10");
}

TEST_CASE("an empty row of the first column lifts the second one")
{
    StartBlock();
    SetRow(2, "", "");
    VLOG::drawlongborinfo(0.1);
    CHECK(Drawn()[0] == "rectangle 0,0 3120,450");
    CHECK(Drawn()[9] == "text 1680,-27 7pt I6");
}

TEST_CASE("the title over six rows is one block two positions high")
{
    StartBlock();
    LogBoring.Name = "B-1";
    LogPage.PageCaption = "(Page 1 of 3)";
    VLOG::drawlogplusinfo(0);
    const Drawing drawn = Drawn();
    REQUIRE(drawn.size() == 16);
    CHECK(Drawing(drawn.begin(), drawn.begin() + 6) ==
          Drawing{"rectangle 0,0 1440,900", "text 720,150 12pt  W1 B-1  centred",
                  "text 1080,270 8pt  (Page 1 of 3)  centred", "line 1440,330 0,330", "text 60,402 7pt I1",
                  "text 660,402 7pt : V1"});
    CHECK(drawn.back() == "text 660,822 7pt : V6");
}

TEST_CASE("the title over rows of a wide page rules its whole width")
{
    StartBlock();
    VLOG::drawlogplusinfo(0.1);
    CHECK(Drawn()[0] == "rectangle 0,0 1560,900");
    CHECK(Drawn()[2].starts_with("text 1200,270"));
    CHECK(Drawn()[3] == "line 1560,330 0,330");
}

TEST_CASE("wide notes are five lines in a box")
{
    StartBlock();
    LogBoring.BottNotes[2] = "";
    VLOG::drawbottnotes(0, 0);
    CHECK(Drawn() == Drawing{"rectangle 0,0 2880,450", "text 30,72 7pt N1", "text 30,150 7pt ", "text 30,228 7pt N3",
                             "text 30,306 7pt N4", "text 30,384 7pt N5"});
}

TEST_CASE("narrow notes are two columns with no box")
{
    StartBlock();
    VLOG::drawbottnotes(0, 1);
    const Drawing drawn = Drawn();
    REQUIRE(drawn.size() == 10);
    CHECK(drawn[0] == "text 45,72 7pt N1");
    CHECK(drawn[4] == "text 45,384 7pt N5");
    CHECK(drawn[5] == "text 2205,72 7pt N6");
    CHECK(drawn[9] == "text 2205,384 7pt N10");
}

TEST_CASE("the map is the boring's picture in the project folder, at its true size whatever the scales")
{
    StartBlock();
    std::filesystem::create_directories(Scratch("project"));
    ProjectPath = Scratch("project");
    WritePicture("project/SITE.BMP");
    LogBoring.MapFile = "  SITE.BMP ";
    VLOG::drawmap();
    CHECK(Drawn() == Drawing{"picture 30,30 1410,870 SITE.BMP"});
    CHECK(PageCanvas.scaleX == 1);
    CHECK(PageCanvas.scaleY == 1);
}

TEST_CASE("a map that is no picture is the failure of its block")
{
    StartBlock();
    WriteScratch("SITE.BMP", "not a picture");
    LogBoring.MapFile = "SITE.BMP";
    VLOG::drawmap();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 481 in drawmap.  Please contact Norvane");
    CHECK(Drawn().empty());
}

TEST_CASE("a boring without a map draws none, and a missing one is told")
{
    StartBlock();
    LogBoring.MapFile = "  ";
    VLOG::drawmap();
    CHECK(Messages.empty());
    LogBoring.MapFile = "NONE.BMP";
    VLOG::drawmap();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "File Not Found: " + Scratch("NONE.BMP"));
    CHECK(Drawn().empty());
}
