// fencestakes_test.cpp -- the stakes of a fence, worked out by hand in device units from the origin of the base plane:
// labels, layers, elevation scales and water marks.
#include "fencepage.h"

#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "gis/gisfile.h"
#include "report/heading.h"
#include "run/screenview.h"
#include "sections/fencerun.h"
#include "session/deviceconfig.h"
#include "session/platform.h"

#include <algorithm>

using namespace VCROSS;

// The objects of the stakes alone: the frame has set the ranges, and its objects are gone.
static Drawing Stakes(const FenceText& fence)
{
    StartFence(fence);
    PageList.Objects.clear();
    drawfenceborings();
    return FenceDrawn();
}

// Three borings of which the tests look at the middle one: it has neither client block nor scale.
static FenceText Three(const Text& row)
{
    for (const char* name : {"A", "C"})
        WriteBoring(Text(name) + ".BOR", FenceBoring(name));
    FenceText fence;
    fence.Borings = {"100,50,A,,,", row, "700,50,C,,,"};
    return fence;
}

// What the middle one draws: from its label to the label of the third.
static Drawing Middle(const FenceText& fence)
{
    const Drawing all = Stakes(fence);
    const auto from = [&all](const Text& name) {
        return std::find_if(all.begin(), all.end(), [&](const Text& object) {
            return object.starts_with("text") && object.ends_with("7pt  " + name + "  centred");
        });
    };
    const auto first = from("MW-B"), last = from("MW-C");
    REQUIRE(first < last);
    CHECK(Messages.empty());
    return Drawing(first, last);
}

// At X 200 and Y 100 behind the starts: x is 1200 + 424.26, the plane's y -424.26. The level of vStart is 1200 above
// the plane's origin, the reference level 20 units below it, the foot 40 units further down.
TEST_CASE("a stake stands from its reference level to the base plane, with a cross tick at its foot")
{
    WriteBoring("B.BOR", FenceBoring("B"));
    CHECK(Middle(Three("300,150,B,,,")) == Drawing{"text 1624,-1344 7pt  MW-B  centred", "line 1624,-1224 1624,-424",
                                                   "line 1624,-424 1636,-424", "line 1636,-424 1612,-424",
                                                   // The ground: 2 units below the reference level.
                                                   "line 1624,-1184 1642,-1184"});
}

TEST_CASE("a label in place B stands 0.15 inch under the foot of the stake")
{
    WriteBoring("B.BOR", FenceBoring("B"));
    const Drawing drawing = Middle(Three("300,150,B,,B,"));
    CHECK(drawing[0] == "text 1624,-334 7pt  MW-B  centred");
    CHECK(drawing[1] == "line 1624,-1224 1624,-424");
}

TEST_CASE("the label of a stake is the name of the boring or that of its well")
{
    WriteBoring("B.BOR", FenceBoring("MW-B"));
    CHECK(Middle(Three("300,150,B,,T,B"))[0] == "text 1624,-1344 7pt  MW-B  centred");
    BoringText nameless = FenceBoring("");
    nameless.GenWell[0] = "";
    WriteBoring("B.BOR", nameless);
    const Drawing drawing = Stakes(Three("300,150,B,,T,W"));
    CHECK(std::count(drawing.begin(), drawing.end(), "text 1624,-1344 7pt    centred") == 1);
}

TEST_CASE("a boring whose ground lies below the base plane draws its stake upward")
{
    BoringText deep = FenceBoring("B");
    deep.GenWell[4] = "550";
    WriteBoring("B.BOR", deep);
    // 70 units below vStart: 1400 down from -1624.26; the plane is 10 units above.
    CHECK(Middle(Three("300,150,B,,,")) == Drawing{"text 1624,-344 7pt  MW-B  centred", "line 1624,-224 1624,-424",
                                                   "line 1624,-424 1636,-424", "line 1636,-424 1612,-424",
                                                   "line 1624,-184 1642,-184"});
}

TEST_CASE("without panels the codes stand beside the stake, in the middle of their layers, with ticks between them")
{
    WriteBoring("B.BOR", FenceBoring("B", {{"10", "CL"}, {"16", "F12,Sand"}, {"20", "  "}}));
    const Drawing drawing = Middle(Three("300,150,B,,,"));
    CHECK(Drawing(drawing.begin() + 4, drawing.end()) ==
          Drawing{"line 1624,-1184 1642,-1184", // the ground
                  "text 1654,-1084 6pt CL", "line 1624,-984 1642,-984",
                  // The text behind the comma.
                  "text 1654,-924 6pt Sand", "line 1624,-864 1642,-864",
                  // A blank code is the blank pattern, which has no name.
                  "text 1654,-824 6pt ", "line 1624,-784 1642,-784"});
}

TEST_CASE("a layer at depth 0 or above is passed over, and the next one is as thick as from there")
{
    WriteBoring("B.BOR", FenceBoring("B", {{"-4", "CL"}, {"0", "ML"}, {"10", "SM"}, {"6", "SP"}}));
    const Drawing drawing = Middle(Three("300,150,B,12,,"));
    // The second layer down is 10 thick, the last one goes 4 back up.
    CHECK(Drawing(drawing.begin() + 4, drawing.end() - 1) ==
          Drawing{"line 1624,-1184 1642,-1184", "text 1654,-1084 6pt SM", "line 1624,-984 1642,-984",
                  "text 1654,-1024 6pt SP", "line 1624,-1064 1642,-1064"});
    // Up by the depth of the last layer: the mark stands where it does without layers.
    CHECK(drawing.back() == "polygon 1598,-1029 1650,-1029 1624,-984 black");
}

TEST_CASE("with panels no code stands beside the stake, nor the ground tick")
{
    WriteBoring("B.BOR", FenceBoring("B", {{"10", "CL"}}));
    FenceText fence = Three("300,150,B,,,");
    fence.Layers = "Y";
    CHECK(Middle(fence).size() == 4);
}

TEST_CASE("with no layers only the ground tick appears")
{
    WriteBoring("B.BOR", FenceBoring("B"));
    CHECK(Middle(Three("300,150,B,,,")).size() == 5);
}

TEST_CASE("the first boring carries the elevation scale on its left, with its title turned upward")
{
    WriteBoring("A.BOR", FenceBoring("A"));
    FenceText fence;
    fence.Borings = {"300,150,A,,,"};
    const Drawing all = Stakes(fence);
    const auto foot = std::find(all.begin(), all.end(), "line 1636,-424 1612,-424");
    REQUIRE(foot != all.end());
    CHECK(Drawing(foot + 1, all.end()) ==
          Drawing{"line 1594,-1624 1594,-424", "line 1594,-1624 1564,-1624", "text 1534,-1624 6pt 620 right",
                  "line 1594,-1424 1564,-1424", "text 1534,-1424 6pt 610 right", "line 1594,-1224 1564,-1224",
                  "text 1534,-1224 6pt 600 right", "line 1594,-1024 1564,-1024", "text 1534,-1024 6pt 590 right",
                  "line 1594,-824 1564,-824", "text 1534,-824 6pt 580 right", "line 1594,-624 1564,-624",
                  "text 1534,-624 6pt 570 right", "line 1594,-424 1564,-424", "text 1534,-424 6pt 560 right",
                  "text 1294,-1024 8pt  W1 (Feet MSL)  centred upward",
                  // Back at the ground.
                  "line 1624,-1184 1642,-1184"});
    CHECK(CrossRun.vInc == 10);
}

TEST_CASE("with panels the last boring carries the scale on its right, without a title and level")
{
    WriteBoring("A.BOR", FenceBoring("A"));
    FenceText fence;
    fence.Borings = {"300,150,A,12,,"};
    fence.Layers = "Y";
    fence.VInc = "-20";
    const Drawing all = Stakes(fence);
    const auto title = std::find(all.begin(), all.end(), "text 1294,-1024 8pt  W1 (Feet MSL)  centred upward");
    REQUIRE(title != all.end());
    CHECK(Drawing(title + 1, all.end()) ==
          Drawing{"line 1654,-1624 1654,-424", "line 1654,-1624 1684,-1624", "text 1714,-1624 6pt 620",
                  "line 1654,-1224 1684,-1224", "text 1714,-1224 6pt 600", "line 1654,-824 1684,-824",
                  "text 1714,-824 6pt 580", "line 1654,-424 1684,-424", "text 1714,-424 6pt 560",
                  // The mark, from the ground up to the reference level and 12 down.
                  "polygon 1598,-1029 1650,-1029 1624,-984 black"});
}

TEST_CASE("without panels there is no scale at the last boring")
{
    WriteBoring("B.BOR", FenceBoring("B"));
    const Drawing drawing = Stakes(Three("300,150,B,,,"));
    CHECK(drawing.back() == "line 3600,-760 3618,-760");
    CHECK(std::none_of(drawing.begin(), drawing.end(),
                       [](const Text& object) { return object.ends_with("6pt 620") && object.starts_with("text"); }));
}

TEST_CASE("the first and the last boring are those of the first and the last row with a file")
{
    WriteBoring("A.BOR", FenceBoring("A"));
    WriteBoring("B.BOR", FenceBoring("B"));
    FenceText fence;
    fence.Borings = {"1,2,,,,", "", "300,150,A,,,", "", "300,150,B,,,", "400,150,,,,"};
    fence.Layers = "Y";
    const Drawing drawing = Stakes(fence);
    CHECK(Messages.empty());
    CHECK(std::count(drawing.begin(), drawing.end(), "text 1534,-1624 6pt 620 right") == 1);
    CHECK(std::count(drawing.begin(), drawing.end(), "text 1714,-1624 6pt 620") == 1);
}

TEST_CASE("a range that is no multiple of its increment leaves the first stake's codes and mark too high")
{
    BoringText boring = FenceBoring("A", {{"10", "CL"}});
    WriteBoring("A.BOR", boring);
    FenceText fence;
    fence.Borings = {"300,150,A,12,,"};
    fence.VInc = "-25"; // ticks at 620, 595, 570: 75 down, and 60 + 25 back up
    const Drawing all = Stakes(fence);
    const auto title = std::find(all.begin(), all.end(), "text 1294,-1224 8pt  W1 (Feet MSL)  centred upward");
    REQUIRE(title != all.end());
    CHECK(Drawing(title + 1, all.end()) == Drawing{"line 1624,-1384 1642,-1384", "text 1654,-1284 6pt CL",
                                                   "line 1624,-1184 1642,-1184",
                                                   "polygon 1598,-1229 1650,-1229 1624,-1184 black"});
}

TEST_CASE("an elevation increment of 0 fails at the first boring, behind the line of its scale")
{
    WriteBoring("B.BOR", FenceBoring("B"));
    FenceText fence = Three("300,150,B,,,");
    fence.VInc = "";
    const Drawing drawing = Stakes(fence);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 11 in drawfenceborings.  Please contact Norvane");
    CHECK(drawing.back() == "line -30,-1200 -30,0");
}

TEST_CASE("elevations without a range fail at the first boring")
{
    WriteBoring("B.BOR", FenceBoring("B"));
    FenceText fence = Three("300,150,B,,,");
    fence.VEnd = "620";
    Stakes(fence);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 11 in drawfenceborings.  Please contact Norvane");
}

TEST_CASE("elevations that rise downward have no ticks, and the stake and the scale stand")
{
    WriteBoring("A.BOR", FenceBoring("A"));
    FenceText fence;
    fence.Borings = {"300,150,A,,,"};
    fence.VStart = "560";
    fence.VEnd = "620";
    const Drawing drawing = Stakes(fence);
    CHECK(Messages.empty());
    CHECK(std::none_of(drawing.begin(), drawing.end(), [](const Text& object) { return object.ends_with(" right"); }));
}

TEST_CASE("the smallest elevation increment has no positive form: failure 6")
{
    WriteBoring("A.BOR", FenceBoring("A"));
    FenceText fence;
    fence.Borings = {"300,150,A,,,"};
    fence.VInc = "-2147483648";
    Stakes(fence);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 6 in drawfenceborings.  Please contact Norvane");
}

TEST_CASE("on the large page stakes stand 0.1 inch to the right of the frame, and the client block is wider")
{
    WriteBoring("A.BOR", FenceBoring("A"));
    FenceText fence;
    fence.Borings = {"300,150,A,,,"};
    fence.Tail = {"T"};
    Drawing drawing = Stakes(fence);
    // 8 units to the foot: x is 1600 + 565.68 + 60, y 1200 + 565.68 above; the client block is 2.6 inches wide.
    CHECK(drawing[0] == "rectangle -90,300 1470,750");
    CHECK(std::count(drawing.begin(), drawing.end(), "line 2226,-1366 2226,-566") == 1);
    fence.Tail = {"L"};
    drawing = Stakes(fence);
    CHECK(drawing[0] == "rectangle -90,300 1350,750");
}

TEST_CASE("the client block is that of the first boring, and drawn once")
{
    BoringText first = FenceBoring("A");
    first.Tail = {"Client 1", "Client 2", "", "", "", "1", " 0 "};
    WriteBoring("A.BOR", first);
    BoringText second = FenceBoring("B");
    second.Tail = {"Other", "", "", "", "", "1", " 0 "};
    WriteBoring("B.BOR", second);
    FenceText fence;
    fence.Borings = {"300,150,A,,,", "400,150,B,,,"};
    const Drawing drawing = Stakes(fence);
    CHECK(drawing[1] == "text 630,369 8pt  Client 1  centred");
    CHECK(drawing[2] == "text 630,447 8pt  Client 2  centred");
    CHECK(std::none_of(drawing.begin(), drawing.end(), [](const Text& o) { return o.ends_with("Other  centred"); }));
}

TEST_CASE("the stakes stand by the offsets of the printer")
{
    DeviceConfig.MarginX = 0.5f;
    DeviceConfig.MarginY = 0.25f;
    WriteBoring("B.BOR", FenceBoring("B"));
    CHECK(Middle(Three("300,150,B,,,"))[1] == "line 1924,-1374 1924,-574");
}

TEST_CASE("a boring that is not there ends the stakes, and those drawn so far stay")
{
    WriteBoring("A.BOR", FenceBoring("A"));
    FenceText fence;
    fence.Borings = {"300,150,A,12,,", "400,150,GONE,12,,", "500,150,A,12,,"};
    fence.Layers = "Y";
    RunPages.pageIndex = 1;
    const Drawing drawing = Stakes(fence);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Boring File Not Found: " + Scratch("GONE.bor"));
    CHECK(drawing.back() == "polygon 1598,-1029 1650,-1029 1624,-984 black");
    CHECK(RunPages.pageIndex == 2); // on the screen, Next steps past the file
    PageList.Objects.clear();
    drawwaterlevelfence();
    CHECK(FenceDrawn().size() == 1);
}

TEST_CASE("in a print run a boring that is not there leaves the file counter alone")
{
    FenceText fence;
    fence.Borings = {"400,150,GONE,12,,"};
    RunPages.pageIndex = 1;
    RunPages.printing = 1;
    Stakes(fence);
    CHECK(Messages.size() == 1);
    CHECK(RunPages.pageIndex == 1);
}

TEST_CASE("a boring of an old format ends the stakes with its box")
{
    BoringText old = FenceBoring("B");
    old.Version = "4.6";
    WriteBoring("B.BOR", old);
    const Drawing drawing = Stakes(Three("300,150,B,,,"));
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "This boring file has the format of a previous version: " + Scratch("B.bor"));
    CHECK(std::none_of(drawing.begin(), drawing.end(), [](const Text& o) { return o.ends_with("MW-C  centred"); }));
}

TEST_CASE("a boring that ends within what a fence reads is failure 62, a layer above 100 failure 9")
{
    std::string bytes = FenceBoring("B").Bytes();
    bytes.resize(bytes.find("MW-B"));
    WriteScratch("B.BOR", bytes);
    Stakes(Three("300,150,B,,,"));
    WriteBoring("B.BOR", FenceBoring("B", BoringText::Rows(101, {"1", "CL"})));
    Stakes(Three("300,150,B,,,"));
    REQUIRE(Messages.size() == 2);
    CHECK(Messages[0].words == "Error 62 in drawfenceborings.  Please contact Norvane");
    CHECK(Messages[1].words == "Error 9 in drawfenceborings.  Please contact Norvane");
}

// ---- Elevations from a GIS file

TEST_CASE("the ground of a boring in the GIS file is the surface there, with the stick-up of its own file above it")
{
    WriteBoring("B.BOR", FenceBoring("B"));
    GisData.boringCount = 1;
    GisData.boringCells[1][GisX] = "300";
    GisData.boringCells[1][GisY] = "150";
    GisData.boringCells[1][GisElevation] = "590";
    GisData.boringCells[1][GisFileName] = "B.BOR";
    FenceText fence = Three("1,1,B,,,");
    fence.Tail = {"L", "SITE.GIS"};
    const Drawing drawing = Middle(fence);
    CHECK(CrossRun.refElevation[2] == 592);
    CHECK(drawing[1] == "line 1624,-1064 1624,-424"); // 28 units below vStart
    CHECK(drawing[4] == "line 1624,-1024 1642,-1024");
    CHECK(CrossRun.refElevation[1] == 600); // in no row: its own
}

// ---- Water marks

TEST_CASE("the water marks are drawn once more in their places, over what was drawn meanwhile")
{
    WriteBoring("B.BOR", FenceBoring("B"));
    Stakes(Three("300,150,B,12,,"));
    PageList.Objects.clear();
    drawwaterlevelfence();
    CHECK(FenceDrawn() == Drawing{"polygon 1598,-1029 1650,-1029 1624,-984 black"});
}

TEST_CASE("a water depth of 0 or less has no mark")
{
    WriteBoring("B.BOR", FenceBoring("B"));
    CHECK(Middle(Three("300,150,B,-3,,")).size() == 5);
    drawwaterlevelfence();
    CHECK(Middle(Three("300,150,B,0,,")).size() == 5);
}
