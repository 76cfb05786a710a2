// fencedata_test.cpp -- the definition of a fence as it is drawn: the renderer's reader of the .FEN file.
#include "fencepage.h"

#include "run/screenview.h"
#include "sections/fencerun.h"
#include "session/session.h"

using namespace VCROSS;

static Text Panel(int k)
{
    return std::to_string(FenceRun.sectionA[k]) + "," + std::to_string(FenceRun.sectionB[k]);
}

static void Read(const FenceText& fence)
{
    REQUIRE(ReadFence(fence));
    CHECK(Messages.empty());
}

TEST_CASE("a fence is read from its file into the run")
{
    FenceText fence;
    fence.Borings = {"300.5,150,A,12.5,b,B", "310,160,B.Dat,,T,w"};
    fence.Panels = {"A,B", "", "2,1"};
    fence.VStart = "620.5";
    fence.VEnd = "559.5";
    fence.Layers = "y";
    fence.Direction = "S,90";
    fence.Legend = {"CL;Clay", "SM;Sand"};
    fence.Tail = {"T", "SITE.GIS"};
    Read(fence);
    CHECK(CrossRun.boringCount == 2);
    CHECK(FenceRun.siteX[1] == 200.5f);
    CHECK(FenceRun.siteY[1] == 100);
    CHECK(CrossRun.boringFile[1] == "A.bor");
    CHECK(CrossRun.waterDepth[1] == 12.5f);
    CHECK(CrossRun.labelAtBottom[1] == 1);
    CHECK(CrossRun.labelBoringName[1] == 1);
    CHECK(CrossRun.boringFile[2] == "B.Dat");
    CHECK(CrossRun.waterDepth[2] == 0);
    CHECK(CrossRun.labelAtBottom[2] == 0);
    CHECK(CrossRun.labelBoringName[2] == 0);
    CHECK(FenceRun.sectionCount == 3);
    CHECK(Panel(1) == "1,2");
    CHECK(Panel(2) == "0,0");
    CHECK(Panel(3) == "2,1");
    CHECK(FenceRun.xStart == 100);
    CHECK(FenceRun.xEnd == 700);
    CHECK(FenceRun.xInc == 200);
    CHECK(FenceRun.xUnit == "Feet");
    CHECK(FenceRun.yStart == 50);
    CHECK(CrossRun.vStart == 620); // halves to even
    CHECK(CrossRun.vEnd == 560);
    CHECK(CrossRun.vInc == -10);
    CHECK(CrossRun.vUnit == "Feet MSL");
    CHECK(CrossRun.mainTitle == "Main");
    CHECK(CrossRun.title1 == "First");
    CHECK(CrossRun.title2 == "Second");
    CHECK(FenceRun.title3 == "Third");
    CHECK(CrossRun.drawLayers == 1);
    CHECK(CrossRun.individualColumns == 0);
    CHECK(FenceRun.rotation == 1);
    CHECK(FenceRun.facing == 2);
    CHECK(CrossRun.legendRows[2] == "SM;Sand");
    CHECK(CrossRun.legendRows[9].empty());
    CHECK(CrossRun.pageMode == "T");
    CHECK(CrossRun.pageWidth == 17);
    CHECK(CrossRun.pageHeight == 11);
    CHECK(FenceRun.baseWidth == 8);
    CHECK(FenceRun.baseRise == 6);
    CHECK(CrossRun.useGIS == 1);
    CHECK(CrossRun.gisPath == Scratch("SITE.GIS"));
}

TEST_CASE("every reading of a fence starts from cleared records, so that a page does not depend on those before it")
{
    FenceText fence;
    fence.Borings = {"300,150,A,12,B,B", "310,160,B,12,B,B"};
    fence.Panels = {"1,2", "2,1"};
    fence.Legend = {"CL;Clay"};
    fence.Tail = {"T", "SITE.GIS"};
    Read(fence);
    CrossRun.layerCount[1] = 3;
    CrossRun.gisRow[1] = 7;
    CrossRun.individualColumns = 1;
    CrossRun.legendRows[30] = "GW;Gravel";
    Read(FenceText());
    CHECK(CrossRun.boringCount == 0);
    CHECK(CrossRun.boringFile[2].empty());
    CHECK(CrossRun.waterDepth[1] == 0);
    CHECK(FenceRun.siteX[1] == -100);
    CHECK(FenceRun.siteX[15] == -100); // the start is taken off all slots, once
    CHECK(FenceRun.siteY[15] == -50);
    CHECK(FenceRun.sectionCount == 0);
    CHECK(Panel(2) == "0,0");
    CHECK(CrossRun.layerCount[1] == 0);
    CHECK(CrossRun.gisRow[1] == 0);
    CHECK(CrossRun.individualColumns == 0);
    CHECK(CrossRun.legendRows[1] == ";");
    CHECK(CrossRun.legendRows[30].empty());
    CHECK(CrossRun.pageMode == "L");
    CHECK(CrossRun.useGIS == 0);
}

TEST_CASE("a blank coordinate is one below 0 before the start is taken off, a bad one is 0")
{
    FenceText fence;
    fence.Borings = {",,A,,,", "  ,.,B,,,"};
    Read(fence);
    CHECK(FenceRun.siteX[1] == -101);
    CHECK(FenceRun.siteY[1] == -51);
    CHECK(FenceRun.siteX[2] == -101);
    CHECK(FenceRun.siteY[2] == -50);
}

TEST_CASE("a gap in the rows is an empty slot, and a row without a file is no boring either")
{
    FenceText fence;
    fence.Borings = {"1,2,A,,,", ",,,,,", "no comma", "3,4,  ,5,B,B", "5,6,B,,,", "7,8"};
    fence.Panels = {"1,4", "4,5", "3,2", "6,5"};
    Read(fence);
    CHECK(CrossRun.boringCount == 6);
    CHECK(HasBoring(1));
    CHECK_FALSE(HasBoring(2));
    CHECK_FALSE(HasBoring(3));
    CHECK_FALSE(HasBoring(4));
    CHECK(HasBoring(5));
    CHECK_FALSE(HasBoring(6));
    CHECK(FenceRun.siteX[4] == -97);
    CHECK(FenceRun.siteX[6] == -93);
    CHECK(Panel(1) == "1,0");
    CHECK(Panel(2) == "0,5");
    CHECK(Panel(3) == "0,0");
    CHECK(Panel(4) == "0,5");
}

TEST_CASE("a short row of a fence is its file alone, or its file and its water depth")
{
    FenceText fence;
    fence.Borings = {"1,2,A", "1,2,B,7", "1,2,C,,,", "1,2,,,,"};
    Read(fence);
    CHECK(CrossRun.boringFile[1] == "A.bor");
    CHECK(CrossRun.waterDepth[1] == 0);
    CHECK(CrossRun.boringFile[2] == "B.bor");
    CHECK(CrossRun.waterDepth[2] == 7);
    CHECK(CrossRun.boringFile[3] == "C.bor");
    CHECK_FALSE(HasBoring(4));
    CHECK(CrossRun.boringCount == 4);
}

TEST_CASE("file names and flags of a fence are taken without the blanks around them")
{
    FenceText fence;
    fence.Borings = {"1,2, A.BOR ,7, b , B ", "1,2, sub.d\\B ,7,Bottom,B,W"};
    fence.Layers = " y ";
    fence.Direction = " e , 270 ";
    fence.Tail = {" l ", ""};
    Read(fence);
    CHECK(CrossRun.boringFile[1] == "A.BOR");
    CHECK(CrossRun.labelAtBottom[1] == 1);
    CHECK(CrossRun.labelBoringName[1] == 1);
    CHECK(CrossRun.boringFile[2] == "sub.d\\B.bor"); // the dot of a folder is no ending
    CHECK(CrossRun.labelAtBottom[2] == 0);
    CHECK(CrossRun.labelBoringName[2] == 0); // "B,W": all that is left of the row
    CHECK(CrossRun.drawLayers == 1);
    CHECK(FenceRun.rotation == 3);
    CHECK(FenceRun.facing == 3); // 2 - 3 + 4
    CHECK(CrossRun.pageMode == "L");
}

TEST_CASE("a section row that names borings by number joins these rows")
{
    FenceText fence;
    fence.Borings = {"1,1,A,,,", "1,1,B,,,", "1,1,C,,,", "1,1,D,,,", "1,1,E,,,", "1,1,F,,,", "1,1,G,,,"};
    fence.Panels = {"3,7", " 3.4 , 6.5 "};
    Read(fence);
    CHECK(Panel(1) == "3,7");
    CHECK(Panel(2) == "3,6"); // halves to even
}

TEST_CASE("a section row names borings by the front of their file in any case, the last of equals")
{
    FenceText fence;
    fence.Borings = {"1,1,Ch 1.BOR,,,", "1,1,sub\\B-2.x.bor,,,", "1,1,2,,,", "1,1,ch 1,,,", "1,1,E,,,"};
    fence.Panels = {"CH 1,SUB\\b-2", "2,3", "b-2,Ch 1.bor", "E,E"};
    Read(fence);
    CHECK(Panel(1) == "4,2");
    CHECK(Panel(2) == "3,3"); // the file "2" before the row 2
    CHECK(Panel(3) == "0,0"); // a folder belongs to the name, an ending does not
    CHECK(Panel(4) == "5,5"); // a panel of no width
}

TEST_CASE("a section row whose names match nothing and are no numbers of borings is skipped")
{
    FenceText fence;
    fence.Borings = {"1,1,A,,,", "1,1,B,,,"};
    fence.Panels = {"X,Y", "0,-1", "16,1E30", "3,2", ",1", "A"};
    Read(fence);
    CHECK(FenceRun.sectionCount == 5);
    CHECK(Panel(1) == "0,0");
    CHECK(Panel(2) == "0,0");
    CHECK(Panel(3) == "0,0");
    CHECK(Panel(4) == "0,2");
    CHECK(Panel(5) == "0,1");
    CHECK(Panel(6) == "0,0");
}

TEST_CASE("the first comma cuts a section row")
{
    FenceText fence;
    fence.Borings = {"1,1,A,,,", "1,1,B,,,"};
    fence.Panels = {"A,2,1", "A,B,C"};
    Read(fence);
    CHECK(Panel(1) == "1,2"); // the number in front of the further comma
    CHECK(Panel(2) == "1,0");
}

TEST_CASE("the rotation is compared as text, and taken off the direction")
{
    const auto turned = [](const Text& direction) {
        FenceText fence;
        fence.Direction = direction;
        Read(fence);
        return std::to_string(FenceRun.rotation) + " facing " + std::to_string(FenceRun.facing);
    };
    CHECK(turned("N,90") == "1 facing 4");
    CHECK(turned("N,180") == "2 facing 3");
    CHECK(turned("N,270") == "3 facing 2");
    CHECK(turned("W,270") == "3 facing 1");
    CHECK(turned("E,180") == "2 facing 4");
    CHECK(turned("S,90.0") == "0 facing 3");
    CHECK(turned("S,90,") == "0 facing 3");
    CHECK(turned("w") == "0 facing 4");
    CHECK(turned("90") == "0 facing 4");
    CHECK(turned("") == "0 facing 4");
    CHECK(turned("X,90") == "1 facing 3");
    CHECK(turned(",270") == "3 facing 1");
}

TEST_CASE("a fence file without its last two lines is drawn on the letter page without GIS")
{
    FenceText fence;
    fence.Tail = {};
    Read(fence);
    CHECK(CrossRun.pageMode == "L");
    CHECK(CrossRun.pageWidth == 11);
    CHECK(CrossRun.pageHeight == 8.5f);
    CHECK(FenceRun.baseWidth == 6);
    CHECK(CrossRun.useGIS == 0);
    fence.Tail = {"T"};
    Read(fence);
    CHECK(CrossRun.pageMode == "T");
    CHECK(CrossRun.useGIS == 0);
}

TEST_CASE("a page cell that is neither blank nor L is the large page")
{
    const auto page = [](const Text& cell) {
        FenceText fence;
        fence.Tail = {cell, "  "};
        Read(fence);
        CHECK(CrossRun.useGIS == 0);
        return CrossRun.pageMode;
    };
    CHECK(page("") == "L");
    CHECK(page("  ") == "L");
    CHECK(page("l") == "L");
    CHECK(page("t") == "T");
    CHECK(page("A") == "T");
}

TEST_CASE("the GIS file stands in the project folder as its line says")
{
    FenceText fence;
    fence.Tail = {"L", " site"};
    Read(fence);
    CHECK(CrossRun.gisPath == Scratch(" site"));
    fence.Tail = {"L", "/else/site.gis"};
    Read(fence);
    CHECK(CrossRun.gisPath == Scratch("/else/site.gis"));
}

TEST_CASE("anything but Y leaves the panels of a fence out")
{
    for (const char* cell : {"N", "I", "", "Yes"}) {
        FenceText fence;
        fence.Layers = cell;
        Read(fence);
        CHECK(CrossRun.drawLayers == 0);
    }
}

TEST_CASE("a fence file that ends early is failure 62, and what was read stands")
{
    FenceText fence;
    fence.Borings = {"1,2,A,,,"};
    std::string bytes = fence.Bytes();
    bytes.resize(bytes.find("Main"));
    WriteScratch("A.FEN", bytes);
    RunPages.pageFile = Scratch("A.FEN");
    CHECK(getfencedata());
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 62 in getfencedata.  Please contact Norvane");
    CHECK(HasBoring(1));
    CHECK(CrossRun.vEnd == 560);
    CHECK(CrossRun.pageMode == "L");
    CHECK(CrossRun.pageWidth == 11);
    CHECK(FenceRun.baseWidth == 6);
    CHECK(FenceRun.facing == 0); // no direction was read: no arrow
}

TEST_CASE("an elevation beyond its field is failure 6 in the reader")
{
    FenceText fence;
    fence.VEnd = "3E9";
    CHECK(ReadFence(fence));
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 6 in getfencedata.  Please contact Norvane");
    CHECK(CrossRun.vStart == 620);
    CHECK(CrossRun.vEnd == 0);
}

TEST_CASE("a fence file that is not there is told with its whole path, and nothing is read")
{
    RunPages.pageFile = Scratch("NONE.FEN");
    CHECK_FALSE(getfencedata());
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words ==
          "File Not Found: " + Scratch("NONE.FEN") +
              ".  Possible solution: Use 'Project: Select Project' to select your project before opening files.");
}

TEST_CASE("the fifteenth boring of a fence is found by its number and by its name, as the first is")
{
    FenceText fence;
    for (char letter = 'A'; letter <= 'O'; ++letter)
        fence.Borings.push_back(Text("1,1,") + letter + ",,,");
    fence.Panels = {"1,15", "A,O", "16,15"};
    Read(fence);
    CHECK(Panel(1) == "1,15");
    CHECK(Panel(2) == "1,15");
    CHECK(Panel(3) == "0,15");
}
