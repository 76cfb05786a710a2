// remarks_test.cpp -- the remarks column and the column of well construction information.
#include "columnpage.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"

static void SetRemarks(std::initializer_list<const char*> lines)
{
    for (const char* line : lines)
        LogBoring.Remarks[++LogBoring.RemarkCount] = line;
}

TEST_CASE("remarks stand at the depths of their depth lines, and text before the first of them never shows")
{
    StartColumn();
    SetRemarks({"lost", "-10", "a", "<<b>>", "@1", "-67.1", "c", "-20 m", "d"});
    VLOG::drawremarks(2);
    CHECK(Drawn() == Drawing{"text 600,-240 10pt  W17  centred", "line 1200,-60 1200,-780", "line 1200,-60 0,-60",
                             "rectangle 0,0 1200,3600", "text 30,600 7pt a", "text 30,672 7pt <<b>>",
                             "text 30,744 7pt @1", "text 30,1200 7pt d"});
    CHECK(EndsAtBaseline(2));
}

TEST_CASE("a remarks column without remarks is an empty box")
{
    StartColumn();
    VLOG::drawremarks(1.5);
    CHECK(Drawn().size() == 4);
    CHECK(EndsAtBaseline(1.5));
}

TEST_CASE("well construction has labels, values, headings, a line and the notes below it")
{
    StartColumn();
    SetContacts({5});
    LogBoring.WellInfoCount = 3;
    LogBoring.WellInfo[1][1] = "Driller";
    LogBoring.WellInfo[1][2] = "Smith";
    LogBoring.WellInfo[2][1] = "Casing";
    LogBoring.WellInfo[2][2] = "Heading";
    LogBoring.WellNoteCount = 2;
    LogBoring.WellNotes[1] = "one";
    LogBoring.WellNotes[2] = "two";
    VLOG::drawwcon(2);
    CHECK(Drawn() == Drawing{"text 600,-270 10pt  W14  centred", "text 600,-180 10pt  W15  centred",
                             "line 1200,-60 1200,-780", "line 1200,-60 0,-60", "rectangle 0,0 1200,4020",
                             "text 30,30 7pt Driller", "text 570,30 7pt : Smith", "text 30,120 7pt Casing",
                             "text 30,210 7pt ", "text 570,210 7pt : ", "line 0,390 1200,390", "text 30,450 7pt W16",
                             "text 30,540 7pt one", "text 30,612 7pt two"});
    CHECK(EndsAtBaseline(2));
}

TEST_CASE("the well construction box is as tall as the page has room, not as the boring is deep")
{
    StartColumn();
    LogGeometry.HasBottomRow = 1;
    VLOG::drawwcon(2);
    CHECK(Drawn()[4] == "rectangle 0,0 1200,3570");
    StartColumn();
    LogGeometry.FrameKind = 'L';
    VLOG::drawwcon(2);
    CHECK(Drawn()[4] == "rectangle 0,0 1200,2520");
}
