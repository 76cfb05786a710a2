// fencecheck_test.cpp -- what a reviewer of a fence diagram would flag, and that nothing else is.
#include "sections/fencecheck.h"

#include "checked.h"
#include "fencepage.h"
#include "gis/gisfile.h"
#include "sections/fencefile.h"
#include "sections/fencerun.h"
#include "sections/fencetool.h"
#include "session/session.h"
#include "testing.h"

using Words = std::vector<Text>;

// Three borings on the plane and two panels, with nothing to flag.
static FenceText GoodFence()
{
    WriteHeadings();
    ProjectPath = ScratchFolder();
    for (const char* name : {"A", "B", "C"})
        WriteBoring(Text(name) + ".BOR", FenceBoring(name, {{"4", "SM"}, {"10", "CL"}}));
    FenceText fence;
    fence.Borings = {"200,100,A,5,T,B", "400,150,B.BOR,,B,W", "500,200,C"};
    fence.Panels = {"A,B", "2, c"};
    fence.Layers = "Y";
    fence.Legend = {"SM;Silty sand", "CL;Clay"};
    return fence;
}

static void Open(const FenceText& fence)
{
    WriteFence("A.FEN", fence);
    frmFence::FileName = Scratch("A.FEN");
    frmFence::LabelBoxes();
    OpenFenceFile();
    FillFenceForm();
}

static std::vector<CheckEntry> Check(const FenceText& fence)
{
    Open(fence);
    return CheckFence();
}

static Words Kind(const FenceText& fence, const char* kind)
{
    return WordsOf(Check(fence), kind);
}

TEST_CASE("a fence with nothing to flag, and one with nothing in it, have an empty list")
{
    FenceText fence = GoodFence();
    CHECK(AllWords(Check(fence)) == "");
    fence.Layers = "N";
    CHECK(AllWords(Check(fence)) == "");
    for (Grid* grid : FenceForm.grids)
        grid->Clear();
    CHECK(CheckFence().empty());
}

TEST_CASE("the check of a fence shows no box and leaves every record of a drawing as it was")
{
    FenceText fence = GoodFence();
    fence.Borings.push_back("300,100,NONE");
    VCROSS::CrossRun.boringCount = 7;
    VCROSS::CrossRun.layerCode[1][1] = "kept";
    VCROSS::FenceRun.sectionCount = 5;
    CHECK_FALSE(Check(fence).empty());
    CHECK(Messages.empty());
    CHECK(VCROSS::CrossRun.boringCount == 7);
    CHECK(VCROSS::CrossRun.layerCode[1][1] == "kept");
    CHECK(VCROSS::FenceRun.sectionCount == 5);
}

TEST_CASE("a boring of a fence that is not found is an error, a row without a boring a warning")
{
    FenceText fence = GoodFence();
    fence.Borings[1] = "400,150,NONE";
    fence.Borings.push_back("300,100,,,,");
    fence.Panels = {"A,C"};
    const std::vector<CheckEntry> found = Check(fence);
    CHECK(AllWords(found) ==
          "named-boring: The boring file NONE.bor is not found: no stake is drawn from this row on.\n"
          "fence-row: Row 4 names no boring, and is left out.\n");
    CHECK(found[0].InGrid == &frmFence::SS1);
    CHECK(found[0].Row == 2);
    CHECK(found[0].Column == 3);
    fence.Borings.clear();
    CHECK(Kind(fence, "named-boring") == Words{"The fence has no boring."});
}

TEST_CASE("panels that name no boring of the list, one boring alone or the same twice are errors")
{
    FenceText fence = GoodFence();
    fence.Panels = {"A,TC-9", "A", "B,", "1,A", "3,4", "12X,A", "2,C.BOR"};
    CHECK(Kind(fence, "fence-panel") == Words{"Panel 1 names TC-9, which is no boring of the list: it is not drawn.",
                                              "Panel 2: \"A\" has no comma between two borings: it is not drawn.",
                                              "Panel 3 names one boring only: it is not drawn.",
                                              "Panel 4 joins row 1 to itself: it has no width.",
                                              "Panel 5 names 4, which is no boring of the list: it is not drawn.",
                                              "Panel 6 names 12X, which is no boring of the list: it is not drawn.",
                                              "Panel 7 names C.BOR, which is no boring of the list: it is not drawn."});
    fence.Panels = {"3X,A"};
    CHECK(Kind(fence, "fence-panel") ==
          Words{"Panel 1 names 3X, which is no boring of the list and is taken as row 3."});
    fence.Panels = {};
    CHECK(Kind(fence, "fence-panel") == Words{"The fence has no panel, so no layers are drawn."});
    fence.Layers = "N";
    CHECK(AllWords(Check(fence)) == "");
}

TEST_CASE("a stake beyond the base plane, beyond the sheet, above the scale or below the plane is flagged")
{
    FenceText fence = GoodFence();
    fence.Borings[0] = "90,100,A";
    CHECK(AllWords(Check(fence)) == "");
    fence.Borings[0] = "80,100,A";
    CHECK(Kind(fence, "sheet-frame") == Words{"Row 1, A, stands beyond the base plane of the scales."});
    fence.Borings[0] = "200,520,A";
    CHECK(Kind(fence, "sheet-frame") == Words{"Row 1, A, stands beyond the base plane of the scales."});
    fence.Borings[0] = "900,400,A";
    CHECK(Kind(fence, "sheet-frame") == Words{"Row 1, A, stands beyond the frame of the sheet."});
    fence = GoodFence();
    fence.VStart = "597";
    fence.VEnd = "587";
    CHECK(Kind(fence, "sheet-frame").size() == 3); // the ground is at 598
    fence.VStart = "600";
    fence.VEnd = "589";
    CHECK(Kind(fence, "sheet-frame")[0] == "Row 1, A: the layers reach down to 588, below the base plane at 589.");
}

TEST_CASE("stakes are judged where the rotation puts them")
{
    FenceText fence = GoodFence();
    fence.Direction = "N,90"; // Y from 50 goes 4.2 inches along the page, 420 units
    fence.Borings[0] = "200,460,A";
    CHECK(AllWords(Check(fence)) == "");
    fence.Borings[0] = "200,490,A";
    CHECK(Kind(fence, "sheet-frame").size() == 1);
    fence.Direction = "N,0";
    fence.Borings[0] = "200,460,A";
    CHECK(AllWords(Check(fence)) == "");
}

TEST_CASE("scales of a fence that run backward, upside down or have no increment are errors")
{
    FenceText fence = GoodFence();
    fence.XEnd = "50";
    CHECK(Kind(fence, "sheet-scale").size() == 1);
    fence = GoodFence();
    fence.XInc = "0";
    CHECK(Kind(fence, "sheet-scale") ==
          Words{"X Start, End, Inc.: the increment is 0, and the drawing of the scale stops."});
    fence = GoodFence();
    fence.VStart = "500";
    CHECK(
        Kind(fence, "sheet-scale") ==
        Words{"Elev. Start, End, Inc.: the scale runs from 500 to 560, upside down: the first number is the elevation "
              "of its top."});
}

TEST_CASE("a boring of a fence without coordinates is an error, but where the GIS file has them")
{
    FenceText fence = GoodFence();
    fence.XStart = fence.YStart = "0";
    fence.Borings[2] = ",,C";
    CHECK(Kind(fence, "fence-place") ==
          Words{"Row 3, C has no X, and stands at -1.", "Row 3, C has no Y, and stands at -1."});
    fence.Tail[1] = "T";
    WriteScratch("T.GIS", Lines({" 1 ", "SM", "", " 1 ", "C", "500", "200", "600", "C", "5"}));
    CHECK(Kind(fence, "fence-place").empty());
    CHECK(Kind(fence, "table-row") == Words{"Row 1, A has no row in the GIS file: its layers there have no thickness.",
                                            "Row 2, B.BOR has no row in the GIS file: its layers there have no "
                                            "thickness."});
    fence.Tail[1] = "NONE";
    CHECK(Kind(fence, "named-file") == Words{"The GIS file NONE.gis is not found or cannot be read whole."});
}

TEST_CASE("a comma within a cell of a fence is an error, since a file has no other mark between cells")
{
    Open(GoodFence());
    frmFence::SS1.Cell(1, 1) = "301,165";
    CHECK(WordsOf(CheckFence(), "sheet-number") ==
          Words{"Row 1, A: the comma in \"301,165\" parts the cell, and moves those behind it."});
}

TEST_CASE("letters and numbers of a fence that are not read as they look are flagged")
{
    FenceText fence = GoodFence();
    fence.Borings[0] = "200,100,A,dry,x,y";
    fence.Layers = "I";
    fence.Direction = "Q,45";
    fence.Tail[0] = "B";
    CHECK(Kind(fence, "sheet-number") == Words{"Row 1, A: \"dry\" is no number, and is taken as 0."});
    CHECK(Kind(fence, "sheet-choice") ==
          Words{"\"I\" is none of the letters told, and is taken as N.",
                "\"B\" is none of the letters told, and is taken as T.",
                "\"Q,45\" does not begin with N, E, S or W, so the north arrow points anywhere.",
                "\"Q,45\" is no rotation by 90, 180 or 270, and is taken as none.",
                "\"x\" is none of the letters told, and is taken as T.",
                "\"y\" is none of the letters told, and is taken as W."});
    fence.Layers = " y ";
    fence.Direction = "e, 90";
    fence.Borings[0] = "200,100,A";
    fence.Tail[0] = " l ";
    CHECK(Kind(fence, "sheet-choice").empty());
}

TEST_CASE("the legend of a fence is judged by the layers that its panels draw")
{
    FenceText fence = GoodFence();
    // What the right boring has left over at the end of the left one is not drawn.
    WriteBoring("B.BOR", FenceBoring("B", {{"3", "SM"}, {"9", "CL"}, {"12", "GW"}}));
    fence.Panels = {"A,B"};
    CHECK(AllWords(Check(fence)) == "");
    fence.Panels = {"B,A"};
    CHECK(AllWords(Check(fence)) == "sheet-legend: The legend has no row for what is drawn: GW.\n");
    fence.Panels = {"A,C"};
    CHECK(AllWords(Check(fence)) == ""); // B is in no panel
    WriteBoring("C.BOR", FenceBoring("C", {{"1", "GW-GM"}, {"3", "SM"}, {"9", "CL"}}));
    CHECK(AllWords(Check(fence)) == "sheet-blank: Row 3, C, layer to 1: GW-GM draws blank, since it is neither F and a "
                                    "number nor a code that has a pattern.\n");
    fence.Legend = {};
    CHECK(Kind(fence, "sheet-legend") == Words{"The legend is empty, and the page has 2 fills."});
}

TEST_CASE("a stake without the name that is to label it, and water below the boring, are flagged")
{
    FenceText fence = GoodFence();
    BoringText boring = FenceBoring("", {{"4", "SM"}, {"10", "CL"}});
    WriteBoring("A.BOR", boring);
    fence.Borings[0] = "200,100,A,12.5,T,B"; // 2 of stick-up and 10 of layers
    CHECK(AllWords(Check(fence)) ==
          "sheet-label: Row 1, A, has no boring name, so no name stands at its stake.\n"
          "sheet-water: Row 1, A: water at 12.5 is deeper than the boring, which ends at 10.\n");
}
