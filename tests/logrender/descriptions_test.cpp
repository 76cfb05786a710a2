// descriptions_test.cpp -- the description column of "@" blocks: where boxes go when units are thin, what prints at
// the ends of a page, and the order of the lines.
#include "canvas/metaugl.h"
#include "columnpage.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"
#include "report/heading.h"
#include "run/batchrun.h"

#include <filesystem>

static constexpr size_t Box = 6; // objects of the heading and the box

// The next page of the boring: 67 to 134, with its contacts from first to last.
static void StartNextPage(int first, int last)
{
    const Text flag = BreakFile();
    const LogBoringRecord boring = LogBoring;
    StartColumn();
    LogBoring = boring;
    WriteBreak(flag);
    LogPage.PageStartDepth = 67;
    LogPage.PageEndDepth = 134;
    LogGeometry.ContactFirst = static_cast<int16_t>(first);
    LogGeometry.ContactLast = static_cast<int16_t>(last);
}

static Drawing Lines()
{
    Drawing lines;
    for (int i = 1; i <= LogBoring.DesCount; ++i)
        lines.push_back(LogBoring.Des[i]);
    return lines;
}

TEST_CASE("the description column has its heading in the middle, lines at the edges and no bottom line")
{
    StartColumn();
    VLOG::drawdes();
    CHECK(Drawn() == Drawing{"text 600,-240 10pt  W12  centred", "line 1200,-60 1200,-780", "line 1200,-60 0,-60",
                             "line 0,0 0,3600", "line 1200,3600 1200,0", "line 1200,0 0,0"});
    CHECK(EndsAtBaseline(2));
    CHECK(Messages.empty());
}

TEST_CASE("with a legend the heading word stands lower in its band")
{
    StartColumn();
    LegendInUse = 1;
    VLOG::drawdes();
    CHECK(Drawn()[0] == "text 600,-150 10pt  W12  centred");
    CHECK(Drawn()[3] == "line 0,-240 1200,-240");
    CHECK(Drawn()[4] == "line 0,0 0,3600");
}

TEST_CASE("the top line is dotted on a later page of a boring that has a page break")
{
    StartColumn();
    LogPage.PageStartDepth = 40;
    VLOG::drawdes();
    CHECK(Drawn().back() == "line 1200,0 0,0");
    StartColumn();
    LogPage.PageStartDepth = 40;
    LogBoring.PageBreakMarker = 1;
    VLOG::drawdes();
    CHECK(Drawn().back() == "line 1200,0 0,0 dotted");
    StartColumn();
    LogBoring.PageBreakMarker = 1;
    VLOG::drawdes();
    CHECK(Drawn().back() == "line 1200,0 0,0");
}

TEST_CASE("a thin unit's box is stretched downward and leaders tie it to its true depth")
{
    StartColumn();
    SetContacts({5, 6});
    SetLines({"@1", "a", "b", "c", "@2", "d", "e", "f"});
    VLOG::drawdes();
    CHECK(Drawn(Box) == Drawing{"line 0,300 1200,300", "line 0,360 30,540", "line 30,540 1170,540",
                                "line 1170,540 1200,360", "text 30,48 8pt a", "text 30,120 8pt b", "text 30,192 8pt c",
                                "text 30,348 8pt d", "text 30,420 8pt e", "text 30,492 8pt f"});
    CHECK(EndsAtBaseline(2));
}

TEST_CASE("the first box of a page is stretched to its text too")
{
    StartColumn();
    SetContacts({1});
    SetLines({"@1", "a", "b", "c"});
    VLOG::drawdes();
    CHECK(Drawn(Box)[0] == "line 0,60 30,240");
}

TEST_CASE("a unit thick enough after a displaced one takes the box back to its true depth")
{
    StartColumn();
    SetContacts({5, 6, 15});
    SetLines({"@1", "a", "b", "c", "@2", "d", "e", "f", "@3", "g", "h", "i"});
    VLOG::drawdes();
    CHECK(Drawn(Box)[2] == "line 30,540 1170,540");
    CHECK(Drawn(Box)[4] == "line 0,900 1200,900");
    CHECK(Drawn(Box).back() == "text 30,732 8pt i");
}

TEST_CASE("what one box was moved moves the thin units below it as well")
{
    StartColumn();
    SetContacts({5, 6, 7});
    SetLines({"@1", "a", "b", "c", "@2", "d", "e", "f", "@3", "g", "h", "i"});
    VLOG::drawdes();
    CHECK(Drawn(Box)[4] == "line 0,420 30,780");
    CHECK(Drawn(Box).back() == "text 30,732 8pt i");
}

TEST_CASE("a unit exactly as high as its text is not moved")
{
    StartColumn();
    SetContacts({4, 8});
    SetLines({"@1", "a", "b", "c", "@2"});
    VLOG::drawdes();
    CHECK(Drawn(Box)[0] == "line 0,240 1200,240");
}

TEST_CASE("a marker with no text still wants the room of its gap, a contact with no marker none")
{
    StartColumn();
    SetContacts({0.1f, 0.2f});
    SetLines({"@1"});
    VLOG::drawdes();
    CHECK(Drawn(Box) == Drawing{"line 0,6 30,24", "line 30,24 1170,24", "line 1170,24 1200,6", "line 0,12 30,24",
                                "line 30,24 1170,24", "line 1170,24 1200,12"});
}

TEST_CASE("text that does not fit under a last contact cut at the page's end moves whole to the next page")
{
    StartColumn();
    SetContacts({60, 67});
    SetLines({"@1", "a", "@2", "b", "c", "d", "e", "f", "g", "@3", "h"});
    VLOG::drawdes();
    CHECK(Drawn(Box) == Drawing{"line 0,3600 1200,3600", "line 0,4020 1200,4020 dotted", "text 30,48 8pt a"});
    CHECK(BreakFile() == "N");

    LogBoring.Contacts[2].Depth = 80;
    LogBoring.Contacts[3].Depth = 100;
    StartNextPage(2, 3);
    VLOG::drawdes();
    CHECK(Drawn(Box) == Drawing{"line 0,780 1200,780", "line 0,1980 1200,1980", "text 30,48 8pt b", "text 30,120 8pt c",
                                "text 30,192 8pt d", "text 30,264 8pt e", "text 30,336 8pt f", "text 30,408 8pt g",
                                "text 30,828 8pt h"});
}

TEST_CASE("text that fits there prints, and on the next page its box prints nothing and wants no room")
{
    StartColumn();
    SetContacts({60, 67});
    SetLines({"@1", "a", "@2", "b", "c", "d", "e", "f", "@3", "h"});
    VLOG::drawdes();
    CHECK(DrawnTexts() == Drawing{" W12 ", "a", "b", "c", "d", "e", "f"});
    CHECK(BreakFile() == "Y");

    LogBoring.Contacts[2].Depth = 68;
    LogBoring.Contacts[3].Depth = 100;
    StartNextPage(2, 3);
    VLOG::drawdes();
    CHECK(Drawn(Box) == Drawing{"line 0,60 1200,60", "line 0,1980 1200,1980", "text 30,108 8pt h"});
}

TEST_CASE("carried text stays off a page that its unit fills, and is let out on the page after")
{
    StartColumn();
    SetContacts({60, 134});
    SetLines({"@1", "a", "@2", "b"});
    WriteBreak("Y");
    StartNextPage(2, 2);
    VLOG::drawdes();
    CHECK(DrawnTexts() == Drawing{" W12 "});
    CHECK(BreakFile() == "N");
}

TEST_CASE("a flag left by the boring before counts for nothing on the first page of the next")
{
    StartColumn();
    SetContacts({1, 30});
    SetLines({"@1", "a", "b", "c"});
    WriteBreak("Y");
    VLOG::drawdes();
    CHECK(Drawn(Box)[0] == "line 0,60 30,240");
    CHECK(DrawnTexts() == Drawing{" W12 ", "a", "b", "c"});
    CHECK(BreakFile() == "Y");
}

TEST_CASE("break.mas stays as it is when no marker names the page's last contact")
{
    StartColumn();
    SetContacts({60, 67});
    SetLines({"@1", "a"});
    VLOG::drawdes();
    CHECK(BreakFile() == "0");
}

TEST_CASE("the last contact at the page's end cannot move, however far its box was pushed")
{
    StartColumn();
    SetContacts({66, 66.5f, 67});
    SetLines({"@1", "@2", "a", "b", "c", "d", "e", "f", "@3", "g"});
    VLOG::drawdes();
    CHECK(Drawn(Box)[1] == "line 0,3990 30,4416");
    CHECK(Drawn(Box)[4] == "line 0,4020 1200,4020 dotted");
    CHECK(BreakFile() == "N");
}

TEST_CASE("a contact of line type N has no line but still takes room")
{
    StartColumn();
    SetContacts({5, 6, 7});
    LogBoring.Contacts[2].LineType = "n";
    SetLines({"@1", "@2", "d", "e", "f", "@3", "g"});
    VLOG::drawdes();
    CHECK(Drawn(Box) == Drawing{"line 0,300 1200,300", "line 0,420 30,636", "line 30,636 1170,636",
                                "line 1170,636 1200,420", "text 30,348 8pt d", "text 30,420 8pt e", "text 30,492 8pt f",
                                "text 30,588 8pt g"});
}

TEST_CASE("line type D dashes the line but not its leaders, and the page's end overrules it with dots")
{
    StartColumn();
    SetContacts({1, 67});
    LogBoring.Contacts[1].LineType = LogBoring.Contacts[2].LineType = "d";
    SetLines({"@1", "a", "b", "c"});
    VLOG::drawdes();
    CHECK(Drawn(Box)[0] == "line 0,60 30,240");
    CHECK(Drawn(Box)[1] == "line 30,240 1170,240 dashed");
    CHECK(Drawn(Box)[2] == "line 1170,240 1200,60");
    CHECK(Drawn(Box)[3] == "line 0,4020 1200,4020 dotted");
}

TEST_CASE("a word between double angle brackets prints in bold, and with those in front alone as well")
{
    StartColumn();
    SetContacts({50});
    SetLines({"@1", "<<Clay>>", "<<Clay", "<<Clay>", "Clay>>"});
    VLOG::drawdes();
    CHECK(Drawn(Box + 1) == Drawing{"text 30,48 8pt Clay bold", "text 30,120 8pt Clay bold",
                                    "text 30,192 8pt Clay> bold", "text 30,264 8pt Clay>>"});
}

TEST_CASE("text of a marker beyond the contacts of the page vanishes without a word")
{
    StartColumn();
    SetContacts({20, 50});
    SetLines({"@1", "a", "@3", "b", "@999999999999", "c", "@ 1.6 or so", "d", "@-1", "e"});
    VLOG::drawdes();
    CHECK(DrawnTexts() == Drawing{" W12 ", "a", "d"});
    CHECK(Drawn().back() == "text 30,1248 8pt d");
    CHECK(Messages.empty());
}

TEST_CASE("a page that no contact reaches has an empty box, whatever the markers say")
{
    StartColumn();
    SetLines({"@", "a", "@0", "b"});
    VLOG::drawdes();
    CHECK(Drawn().size() == Box);
    CHECK(EndsAtBaseline(2));
    CHECK(BreakFile() == "0");
}

TEST_CASE("more markers than contacts are no failure")
{
    StartColumn();
    SetContacts({20});
    LogBoring.DesCount = 300;
    for (int i = 1; i <= 300; ++i)
        LogBoring.Des[i] = "@" + std::to_string(i);
    VLOG::drawdes();
    CHECK(Messages.empty());
    CHECK(EndsAtBaseline(2));
}

TEST_CASE("text at a depth prints there on its page, may overprint, and may be bold")
{
    StartColumn();
    SetContacts({60});
    SetLines({"@1", "a", "-10", "x", "<<y>>", "-67.1", "z", "-0", "v", "-67", "w"});
    VLOG::drawdes();
    CHECK(Drawn(Box + 1) == Drawing{"text 30,48 8pt a", "text 30,600 8pt x", "text 30,672 8pt y bold",
                                    "text 30,0 8pt v", "text 30,4020 8pt w"});
    CHECK(EndsAtBaseline(2));
}

TEST_CASE("text at a depth counts from the page's start")
{
    StartColumn();
    SetContacts({60});
    LogPage.PageStartDepth = 20;
    SetLines({"@1", "-19.9", "x", "-20", "y", "-30", "z"});
    VLOG::drawdes();
    CHECK(Drawn(Box + 1) == Drawing{"text 30,0 8pt y", "text 30,600 8pt z"});
}

TEST_CASE("without break.mas the description column ends in failure 53 behind its box")
{
    StartColumn();
    SetContacts({60});
    std::filesystem::remove(Scratch("break.mas"));
    VLOG::drawdes();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 53 in drawdes.  Please contact Norvane");
    CHECK(Drawn().size() == Box);
}

TEST_CASE("blocks at a depth are put behind all blocks of markers")
{
    StartColumn();
    SetLines({"@1", "a", "-3", "x", "y", "@2", "b", "-5", "-7", "z", "@3"});
    VLOG::ArrangeDescs();
    CHECK(Lines() == Drawing{"@1", "a", "@2", "b", "@3", "-3", "x", "y", "-5", "-7", "z"});
    CHECK(Messages.empty());
}

TEST_CASE("a depth line inside such a block belongs to it and may be the last line")
{
    StartColumn();
    SetLines({"-3", "x", "@1", "-4", "-5"});
    VLOG::ArrangeDescs();
    CHECK(Lines() == Drawing{"@1", "-3", "x", "-4", "-5"});
    CHECK(Messages.empty());
}

TEST_CASE("a depth line that opens a block as the very last line is a failure, and the lines stay in their order")
{
    StartColumn();
    SetLines({"-3", "x", "@1", "a", "-5"});
    VLOG::ArrangeDescs();
    CHECK(Lines() == Drawing{"-3", "x", "@1", "a", "-5"});
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 9 in ArrangeDescs.  Please contact Norvane");
}

TEST_CASE("text just as high as the room above the page's end is printed there")
{
    StartColumn();
    LogPage.PageEndDepth = 4;
    SetContacts({4});
    SetLines({"@1", "a", "b", "c"});
    VLOG::drawdes();
    CHECK(DrawnTexts() == Drawing{" W12 ", "a", "b", "c"});
    CHECK(BreakFile() == "Y");
}
