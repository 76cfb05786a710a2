// manualdescriptions_test.cpp -- the description column whose boxes are placed by hand.
#include "columnpage.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"

static constexpr size_t Box = 6; // objects of the heading and the box

TEST_CASE("hand-placed text stands below the true top of its unit and the contacts follow all text")
{
    StartColumn();
    SetContacts({5, 12});
    LogBoring.Contacts[1].Offset = 2;
    SetLines({"MANUAL", "lost", "@ 1", "a", "@2", "b", "c"});
    VLOG::drawdesold();
    CHECK(Drawn(Box) == Drawing{"text 30,48 8pt a", "text 30,348 8pt b", "text 30,420 8pt c", "line 0,300 30,444",
                                "line 30,444 1170,444", "line 1170,444 1200,300", "line 0,720 1200,720"});
    CHECK(EndsAtBaseline(2));
}

TEST_CASE("a dashed hand-placed contact has dashed leaders, and line type N draws like any other")
{
    StartColumn();
    SetContacts({5, 10, 15});
    LogBoring.Contacts[1].Offset = 1;
    LogBoring.Contacts[1].LineType = "d";
    LogBoring.Contacts[2].LineType = "N";
    LogBoring.Contacts[3].Offset = -1;
    SetLines({"MANUAL"});
    VLOG::drawdesold();
    CHECK(Drawn(Box) == Drawing{"line 0,300 30,372 dashed", "line 30,372 1170,372 dashed",
                                "line 1170,372 1200,300 dashed", "line 0,600 1200,600", "line 0,900 30,828",
                                "line 30,828 1170,828", "line 1170,828 1200,900"});
    CHECK(EndsAtBaseline(2));
}

TEST_CASE("a hand-placed contact at the page's end is not displaced")
{
    StartColumn();
    SetContacts({67});
    LogBoring.Contacts[1].Offset = 3;
    SetLines({"MANUAL"});
    VLOG::drawdesold();
    CHECK(Drawn(Box) == Drawing{"line 0,4020 1200,4020"});
}

TEST_CASE("a size line sets the size of all text behind it, printed or not")
{
    StartColumn();
    SetContacts({20, 40});
    SetLines({"MANUAL", "#7", "@1", "a", "@9", "#10", "@2", "b", "-30", "<<c>>"});
    VLOG::drawdesold();
    CHECK(Drawn(Box) == Drawing{"text 30,48 7pt a", "text 30,1248 10pt b", "text 30,1800 10pt <<c>>",
                                "line 0,1200 1200,1200", "line 0,2400 1200,2400"});
}

TEST_CASE("hand-placed text prints only on the page where its unit begins")
{
    StartColumn();
    LogPage.PageStartDepth = 6;
    SetContacts({5, 12, 18});
    LogGeometry.ContactFirst = 2;
    SetLines({"MANUAL", "@1", "a", "@2", "b", "@3", "c", "-5", "d", "-6", "e"});
    VLOG::drawdesold();
    CHECK(Drawn(Box) == Drawing{"text 30,408 8pt c", "text 30,0 8pt e", "line 0,360 1200,360", "line 0,720 1200,720"});
}

TEST_CASE("a unit that begins exactly at the page's start prints there")
{
    StartColumn();
    LogPage.PageStartDepth = 5;
    SetContacts({5, 12});
    SetLines({"MANUAL", "@1", "a", "@2", "b"});
    VLOG::drawdesold();
    CHECK(Drawn(Box) == Drawing{"text 30,48 8pt b", "line 0,0 1200,0", "line 0,420 1200,420"});
}

TEST_CASE("hand-placed text on a page that no contact reaches does not print")
{
    StartColumn();
    SetLines({"MANUAL", "@0", "a"});
    VLOG::drawdesold();
    CHECK(Drawn().size() == Box);
    CHECK(EndsAtBaseline(2));
}

TEST_CASE("in the hand-placed form the top line of a later page is solid")
{
    StartColumn();
    LogPage.PageStartDepth = 40;
    LogBoring.PageBreakMarker = 1;
    VLOG::drawdesold();
    CHECK(Drawn().back() == "line 1200,0 0,0");
}
