// lithology_test.cpp -- the soil classification as patterns and as letters, and the formations.
#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "columnpage.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"

static constexpr size_t GraphicFront = 3, LettersFront = 4, FormationFront = 4; // objects of heading and box

// A column a quarter inch wide whose units end at 10, 20 ... feet, one for each pattern text.
static void StartUnits(bool graphic, std::initializer_list<const char*> patterns)
{
    StartColumn();
    SetPatterns({20, 21, 23, 26, 31, 32, 40});
    LogGeometry.GraphicFlag = graphic;
    LogGeometry.ColumnWidth = 0.25f;
    for (const char* pattern : patterns) {
        LogContact& contact = LogBoring.Contacts[++LogBoring.ContactCount];
        contact.Depth = static_cast<float>(10 * LogBoring.ContactCount);
        contact.Pattern = pattern;
    }
    LogGeometry.ContactFirst = 1;
    LogGeometry.ContactLast = static_cast<int16_t>(LogBoring.ContactCount);
}

static Drawing Graphic(std::initializer_list<const char*> patterns)
{
    StartUnits(true, patterns);
    VLOG::drawuscs();
    return Drawn(GraphicFront);
}

static Text Label(const char* pattern)
{
    StartUnits(false, {pattern});
    VLOG::drawuscs();
    const Drawing drawn = Drawn(LettersFront);
    CHECK(drawn[0] == "line 0,600 150,600");
    return drawn.size() == 1 ? "none" : drawn[1];
}

TEST_CASE("the graphic column has its heading and no box")
{
    StartUnits(true, {});
    VLOG::drawuscs();
    CHECK(Drawn() == Drawing{"text 75,-90 8pt W10 upward", "line 150,-60 150,-780", "line 150,-60 0,-60"});
    CHECK(Messages.empty());
}

TEST_CASE("the letters column has a heading and a box of its own")
{
    StartUnits(false, {});
    VLOG::drawuscs();
    CHECK(Drawn() == Drawing{"text 75,-90 8pt W11 upward", "line 150,-60 150,-780", "line 150,-60 0,-60",
                             "rectangle 0,0 150,3600"});
}

TEST_CASE("a classification column without a width is a quarter inch wide, for the step to the next column too")
{
    StartUnits(false, {});
    LogGeometry.ColumnWidth = 0;
    VLOG::drawuscs();
    CHECK(LogGeometry.ColumnWidth == 0.25f);
    CHECK(Drawn()[3] == "rectangle 0,0 150,3600");
}

TEST_CASE("each unit is filled from its contact upward to the one above")
{
    CHECK(Graphic({"GW", "sp"}) ==
          Drawing{"polygon 0,600 150,600 150,0 0,0 F21", "polygon 0,1200 150,1200 150,600 0,600 F26"});
    CHECK(Messages.empty());
}

TEST_CASE("on a later page the first unit starts at the depth line")
{
    StartUnits(true, {"GW", "GW", "SP"});
    LogPage.PageStartDepth = 15;
    LogGeometry.ContactFirst = 2;
    VLOG::drawuscs();
    CHECK(Drawn(GraphicFront) ==
          Drawing{"polygon 0,300 150,300 150,0 0,0 F21", "polygon 0,900 150,900 150,300 0,300 F26"});
}

TEST_CASE("a double code fills half the width each")
{
    CHECK(Graphic({"GW-GM"}) == Drawing{"polygon 0,600 75,600 75,0 0,0 F21", "polygon 75,600 150,600 150,0 75,0 F23"});
    CHECK(Graphic({"GW/GM,silty"}) ==
          Drawing{"polygon 0,600 75,600 75,0 0,0 F21", "polygon 75,600 150,600 150,0 75,0 F23"});
}

TEST_CASE("the second half starts on the whole unit that the first one left the pen on")
{
    StartUnits(true, {"GW-GM"});
    moveright(0.0007); // 0.42 units
    VLOG::drawuscs();
    CHECK(PageList.Objects[GraphicFront + 1].Vertices[0].X == 600 + 75);
    CHECK(PageCanvas.penX == 675);
}

TEST_CASE("a double code is printed in full at the unit's middle")
{
    CHECK(Label("GW-GM") == "text 75,300 7pt  GW-GM  centred");
    CHECK(Label("sm/ml") == "text 75,300 7pt  SM/ML  centred");
}

TEST_CASE("a label behind a comma is printed instead of the code, in upper case")
{
    CHECK(Label("SP,sand") == "text 75,300 7pt  SAND  centred");
    CHECK(Label("SM/ML,silty sand") == "text 75,300 7pt  SILTY SAND  centred");
    CHECK(Label("SP, sand") == "text 75,300 7pt   SAND  centred");
}

TEST_CASE("a pattern number has no label, and fills with the pattern 20 files on")
{
    CHECK(Label("F12") == "none");
    CHECK(Graphic({"F12"}) == Drawing{"polygon 0,600 150,600 150,0 0,0 F32"});
}

TEST_CASE("a single code's label that begins with F is not printed, whatever it says")
{
    CHECK(Label("SP,fill") == "none");
    CHECK(Label("FL") == "none");
}

TEST_CASE("a double code with a pattern number in it has no label but one behind a comma")
{
    CHECK(Label("F12/CL") == "none");
    CHECK(Label("CL-F12") == "none");
    CHECK(Label("FL/CL") == "text 75,300 7pt  FL/CL  centred");
    CHECK(Label("F12/CL,fill") == "text 75,300 7pt  FILL  centred");
}

TEST_CASE("a slash parts before a dash, and a dash parts behind a comma too")
{
    CHECK(Label("SP-SM/ML") == "text 75,300 7pt  SP-SM/ML  centred");
    CHECK(Graphic({"GW/SP-SM"})[0] == "polygon 0,600 75,600 75,0 0,0 F21");
    CHECK(Graphic({"SP,sand-silt"}).size() == 2);
    CHECK(Label("SP,sand-silt") == "text 75,300 7pt  SP,SAND-SILT  centred");
}

TEST_CASE("an empty code has a line and no label in letters, and nothing in the graphic column")
{
    CHECK(Label("") == "none");
    CHECK(Graphic({""}).empty());
}

TEST_CASE("the label of a unit that ends at the page's start is left out")
{
    StartUnits(false, {"GW", "SP"});
    LogPage.PageStartDepth = 10;
    VLOG::drawuscs();
    CHECK(Drawn(LettersFront) == Drawing{"line 0,0 150,0", "line 0,600 150,600", "text 75,300 7pt  SP  centred"});
}

TEST_CASE("a gradational contact is a wave over the fills on both its sides, for D and for N")
{
    for (const char* type : {"D", "n"}) {
        StartUnits(true, {"GW", "SP"});
        LogBoring.Contacts[1].LineType = type;
        VLOG::drawuscs();
        const Drawing drawn = Drawn(GraphicFront);
        REQUIRE(drawn.size() == 4);
        CHECK(drawn[0] == "polygon 0,600 150,600 150,0 0,0 F21");
        CHECK(drawn[1] == "polygon 0,1200 150,1200 150,600 0,600 F26");
        CHECK(drawn[2] == "arc 38,622 0,600 from 75,600 to 0,600");
        CHECK(drawn[3] == "arc 112,578 150,600 from 75,600 to 150,600");
    }
}

TEST_CASE("the waves of a graphic column lie on all its fills, contact by contact from the first")
{
    StartUnits(true, {"GW", "GW-GM", "", "SP"});
    LogBoring.Contacts[1].LineType = LogBoring.Contacts[2].LineType = "D";
    LogBoring.Contacts[2].Color = "red";
    LogBoring.Contacts[3].LineType = "N";
    VLOG::drawuscs();
    CHECK(Drawn(GraphicFront + 4) ==
          Drawing{"arc 38,622 0,600 from 75,600 to 0,600", "arc 112,578 150,600 from 75,600 to 150,600",
                  "arc 38,1222 0,1200 from 75,1200 to 0,1200", "arc 112,1178 150,1200 from 75,1200 to 150,1200",
                  "arc 38,1822 0,1800 from 75,1800 to 0,1800", "arc 112,1778 150,1800 from 75,1800 to 150,1800"});
    for (size_t i = 0; i < GraphicFront + 4; ++i)
        CHECK(PageList.Objects[i].Kind != ObjectKind::Arc);
    CHECK(Messages.empty());
}

TEST_CASE("the page's last contact gets no wave, nor does any in letters")
{
    StartUnits(true, {"GW"});
    LogBoring.Contacts[1].LineType = "D";
    VLOG::drawuscs();
    CHECK(Drawn(GraphicFront).size() == 1);
    StartUnits(false, {"GW", "SP"});
    LogBoring.Contacts[1].LineType = "D";
    VLOG::drawuscs();
    CHECK(Drawn(LettersFront).size() == 4);
}

TEST_CASE("a contact's colour tints its fill, on both halves of a double one")
{
    StartUnits(true, {"GW", "GW-GM", "SP"});
    LogBoring.Contacts[1].Color = " red ";
    LogBoring.Contacts[2].Color = "10 20 30";
    LogBoring.Contacts[3].Color = "  ";
    VLOG::drawuscs();
    CHECK(Drawn(GraphicFront) == Drawing{"polygon 0,600 150,600 150,0 0,0 F21 in 255 0 0",
                                         "polygon 0,1200 75,1200 75,600 0,600 F21 in 10 20 30",
                                         "polygon 75,1200 150,1200 150,600 75,600 F23 in 10 20 30",
                                         "polygon 0,1800 150,1800 150,1200 0,1200 F26"});
    CHECK(Messages.empty());
}

TEST_CASE("a unit with no height is not filled")
{
    StartUnits(true, {"GW", "SP"});
    LogBoring.Contacts[2].Depth = 10;
    VLOG::drawuscs();
    CHECK(Drawn(GraphicFront) == Drawing{"polygon 0,600 150,600 150,0 0,0 F21"});
    CHECK(Messages.empty());
}

TEST_CASE("a bad pattern number is told and blank, an unknown code is blank without a message")
{
    CHECK(Graphic({"F2001", "XX"}) ==
          Drawing{"polygon 0,600 150,600 150,0 0,0 f0", "polygon 0,1200 150,1200 150,600 0,600 f0"});
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Fill pattern number is out of range: 2001");
}

TEST_CASE("no contact on the page leaves the column empty")
{
    StartUnits(true, {"GW"});
    LogGeometry.ContactFirst = LogGeometry.ContactLast = 0;
    VLOG::drawuscs();
    CHECK(Drawn(GraphicFront).empty());
}

// ---- Formations

static void StartFormations(std::initializer_list<LogFormation> formations)
{
    StartColumn();
    for (const LogFormation& formation : formations)
        LogBoring.Formations[++LogBoring.FormationCount] = formation;
    LogGeometry.FormationFirst = LogBoring.FormationCount > 0 ? 1 : 0;
    LogGeometry.FormationLast = static_cast<int16_t>(LogBoring.FormationCount);
}

TEST_CASE("the formation column has its heading and a box")
{
    StartFormations({});
    VLOG::drawformation();
    CHECK(Drawn() == Drawing{"line 0,-60 150,-60", "line 150,-60 150,-780", "text 74,-90 8pt W26 upward",
                             "rectangle 0,0 150,3600"});
    CHECK(EndsAtBaseline(0.25f));
    CHECK(PageCanvas.textAngle == 0);
}

TEST_CASE("a formation's name reads upward in its middle, abbreviated where the unit is thin")
{
    StartFormations({{10, "Sand, S"}, {11, "Clay Till, CT"}, {12, "Abc,x"}, {14, "Gravel,G"}, {15.9f, "Chalk"}});
    VLOG::drawformation();
    CHECK(Drawn(FormationFront) == Drawing{"line 0,600 150,600", "text 72,300 7pt  Sand  centred upward",
                                           "line 0,660 150,660", "text 72,630 7pt   CT  centred upward",
                                           "line 0,720 150,720", "text 72,690 7pt  Abc  centred upward",
                                           "line 0,840 150,840", "text 72,780 7pt  Gravel  centred upward",
                                           "line 0,954 150,954", "text 72,897 7pt    centred upward"});
    CHECK(Messages.empty());
}

TEST_CASE("on a later page the first formation starts at the depth line")
{
    StartFormations({{10, "Sand,S"}, {30, "Clay,C"}});
    LogPage.PageStartDepth = 20;
    LogGeometry.FormationFirst = 2;
    VLOG::drawformation();
    CHECK(Drawn(FormationFront) == Drawing{"line 0,600 150,600", "text 72,300 7pt  Clay  centred upward"});
}
