// dotdescriptions_test.cpp -- the description column of dot commands. At 10 feet to the inch a foot is 60 units; text
// lines stand 1 foot apart, and a line across pushes the text 0.8 feet down.
#include "columnpage.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"

static constexpr size_t Box = 6; // objects of the heading and the box

static Drawing DrawnFor(std::initializer_list<const char*> lines)
{
    StartColumn();
    SetLines(lines);
    VLOG::drawdesdot();
    CHECK(EndsAtBaseline(2));
    return Drawn(Box);
}

TEST_CASE("text with dot commands stands 0.10 inch apart below the line that a command asks for")
{
    CHECK(DrawnFor({".L=0", "a", "b", "c"}) ==
          Drawing{"line 0,0 1200,0", "text 30,48 8pt a", "text 30,108 8pt b", "text 30,168 8pt c"});
    CHECK(DrawnFor({".l 10", "a"}) == Drawing{"line 0,600 1200,600", "text 30,648 8pt a"});
}

TEST_CASE("a line that begins with two dots is text and keeps both")
{
    CHECK(DrawnFor({".L0", "..and so on"}).back() == "text 30,48 8pt ..and so on");
}

TEST_CASE("at and below depth 0 no text prints before a command has moved it")
{
    CHECK(DrawnFor({"a", "b", ".L1", "c"}) == Drawing{"line 0,60 1200,60", "text 30,108 8pt c"});
}

TEST_CASE("a line across at a depth that the text has passed is slanted down to the text")
{
    CHECK(DrawnFor({".L0", "a", "b", ".L1", "c"}) == Drawing{"line 0,0 1200,0", "text 30,48 8pt a", "text 30,108 8pt b",
                                                             "line 0,60 30,156", "line 30,156 1170,156",
                                                             "line 1170,156 1200,60", "text 30,204 8pt c"});
}

TEST_CASE("a line across with a second depth is slanted down to it between the edges")
{
    CHECK(DrawnFor({".L 5 U 6", "a"}) ==
          Drawing{"line 0,300 30,360", "line 30,360 1170,360", "line 1170,360 1200,300", "text 30,408 8pt a"});
}

TEST_CASE("a second depth that the text has passed is taken where the text is")
{
    // After the line at 6.8 the text stands at 7.6.
    CHECK(DrawnFor({".L6.8", ".L=8U7", "a"}) == Drawing{"line 0,408 1200,408", "line 0,480 30,456",
                                                        "line 30,456 1170,456", "line 1170,456 1200,480",
                                                        "text 30,504 8pt a"});
}

TEST_CASE("a line across off the page is not drawn and takes its text along")
{
    CHECK(DrawnFor({".L=67.1", "a"}).empty());
    StartColumn();
    LogPage.PageStartDepth = 20;
    SetLines({".L 10", "a", ".L 20", "b"});
    VLOG::drawdesdot();
    CHECK(Drawn(Box) == Drawing{"line 0,0 1200,0", "text 30,48 8pt b"});
}

TEST_CASE("running text prints on below the page's end")
{
    CHECK(DrawnFor({".L=66", "a", "b"}) ==
          Drawing{"line 0,3960 1200,3960", "text 30,4008 8pt a", "text 30,4068 8pt b"});
}

TEST_CASE("the line type command dashes the lines to come, and its number is rounded")
{
    CHECK(DrawnFor({".T=2", ".L1", ".t1.4", ".L2", ".T 1.6", ".L3U4", ".T=0", ".L5"}) ==
          Drawing{"line 0,60 1200,60 dashed", "line 0,120 1200,120", "line 0,180 30,240 dashed",
                  "line 30,240 1170,240 dashed", "line 1170,240 1200,180 dashed", "line 0,300 1200,300"});
}

TEST_CASE("a tick from a depth that the text has passed leads to the indented text")
{
    for (const char* command : {".D 1", ".s=1"})
        CHECK(DrawnFor({".L0", "a", command, "b", "c"}) == Drawing{"line 0,0 1200,0", "text 30,48 8pt a",
                                                                   "line 0,60 36,132", "line 36,132 54,132",
                                                                   "text 60,132 8pt b", "text 30,192 8pt c"});
}

TEST_CASE("a tick with a second depth leads to it, or below the text if that is lower")
{
    CHECK(DrawnFor({".D 5U6", "a"}) == Drawing{"line 0,300 36,360", "line 36,360 54,360", "text 60,360 8pt a"});
    CHECK(DrawnFor({".L4", ".D 5U5", "a"}) ==
          Drawing{"line 0,240 1200,240", "line 0,300 36,324", "line 36,324 54,324", "text 60,324 8pt a"});
}

TEST_CASE("a tick that has nothing to lead past only moves the text to its depth")
{
    CHECK(DrawnFor({".D 5", "a"}) == Drawing{"text 30,300 8pt a"});
    CHECK(DrawnFor({".L 66.9", ".D 67", "a"}) == Drawing{"line 0,4014 1200,4014", "text 30,4020 8pt a"});
    CHECK(DrawnFor({".D 68U69", "a"}).empty());
}

TEST_CASE("a command ends a run of text, so the next text is not set lower by the gap between lines")
{
    CHECK(DrawnFor({".L0", "a", ".NF", "b"}).back() == "text 30,96 8pt b");
    CHECK(Messages.empty());
}

TEST_CASE("an unknown command is told and skipped")
{
    CHECK(DrawnFor({".L0", ".x1", ".", ".n", "a"}) == Drawing{"line 0,0 1200,0", "text 30,48 8pt a"});
    REQUIRE(Messages.size() == 3);
    CHECK(Messages[0].words == "Unrecognized Command: .x1");
    CHECK(Messages[1].words == "Unrecognized Command: .");
    CHECK(Messages[2].words == "Unrecognized Command: .n");
}

TEST_CASE("with dot commands no contact draws itself, and the marks of other forms are text")
{
    StartColumn();
    SetContacts({5, 67});
    SetLines({".L1", "<<Clay>>", "@1", "-7"});
    VLOG::drawdesdot();
    CHECK(Drawn(Box) ==
          Drawing{"line 0,60 1200,60", "text 30,108 8pt <<Clay>>", "text 30,168 8pt @1", "text 30,228 8pt -7"});
}

TEST_CASE("with dot commands the top line of a later page is solid")
{
    StartColumn();
    LogPage.PageStartDepth = 40;
    LogBoring.PageBreakMarker = 1;
    VLOG::drawdesdot();
    CHECK(Drawn().back() == "line 1200,0 0,0");
}

TEST_CASE("a line across at the page's end is on the page")
{
    CHECK(DrawnFor({".L=67"}) == Drawing{"line 0,4020 1200,4020"});
    CHECK(DrawnFor({".L=5U67"}) == Drawing{"line 0,300 30,4020", "line 30,4020 1170,4020", "line 1170,4020 1200,300"});
}

TEST_CASE("a tick just where the text stands has nothing to lead past")
{
    // After the line at 4.2 the text stands at 5.
    CHECK(DrawnFor({".L4.2", ".D 5", "a"}) == Drawing{"line 0,252 1200,252", "text 30,300 8pt a"});
}
