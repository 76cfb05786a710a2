// crosstool_test.cpp -- the rows of a section's form with the cells that it does not show, and the live pages of the
// tools, with no window.
#include "sections/crosstool.h"

#include "canvas/metaugl.h"
#include "gis/gistool.h"
#include "grid/gridedit.h"
#include "report/prompts.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "sections/crossrun.h"
#include "sections/fencerun.h"
#include "sections/fencetool.h"
#include "sections/soiltable.h"
#include "sections/soiltool.h"
#include "session/files.h"
#include "session/session.h"
#include "testing.h"
#include "tools/livepreview.h"

// Three borings with an offset, a label, an azimuth and an inclination each.
static void OpenInclined()
{
    std::string file = " 3 \r\n";
    for (const char* n : {"1", "2", "3"})
        file += Lines(
            {Text(n) + "0", Text("B") + n, "", "B", "T", Text("0.") + n + ",0", Text("L") + n + "|9" + n + "|1" + n});
    file += Lines({"", "0", "100", "10", "ft", "0", "50", "10", "ft", "", "Title", "", "", "A", "A'", "Y"});
    for (int row = 0; row < 8; ++row)
        file += ";\r\n";
    file += Lines({"L", "", "", "0.2,8"});
    WriteScratch("I.CRO", file);
    LoadTool(CrossForm);
    ToolOpenNamed(CrossForm, Scratch("I.CRO"));
    REQUIRE(Messages.empty());
}

static Text HiddenOf(int row)
{
    const auto& cells = CrossData.boringCells[row];
    return cells[6] + "/" + cells[7] + "/" + cells[8] + "/" + cells[9];
}

TEST_CASE("offset, label and inclination of a boring stay with its row when rows come and go, and when that is undone")
{
    OpenInclined();
    frmCross::SS1.row = 2;
    frmCross::mnuInsertRow();
    CHECK(frmCross::SS1.rows == 16);
    CHECK(HiddenOf(1) == "0.1,0/L1/91/11");
    CHECK(HiddenOf(2) == "///");
    CHECK(HiddenOf(3) == "0.2,0/L2/92/12");
    frmCross::SS1.row = 1;
    frmCross::mnuDeleteRow();
    CHECK(frmCross::SS1.rows == 15);
    CHECK(HiddenOf(1) == "///");
    CHECK(HiddenOf(2) == "0.2,0/L2/92/12");
    CHECK(HiddenOf(3) == "0.3,0/L3/93/13");
    UndoGrid(frmCross::SS1);
    UndoGrid(frmCross::SS1);
    CHECK(HiddenOf(2) == "0.2,0/L2/92/12");
    CHECK(HiddenOf(3) == "0.3,0/L3/93/13");
    frmCross::SS1.row = 2;
    frmCross::mnuDeleteRow();
    CHECK(frmCross::mnuSave());
    LineReader saved(Scratch("I.CRO"));
    CHECK(saved.Line() == " 2 ");
    saved.Skip(7 + 5);
    CHECK(saved.Line() == "0.3,0");
    CHECK(saved.Line() == "L3|93|13");
}

TEST_CASE("a row that Delete Row brings up from below the grid has no offset or label of an earlier section")
{
    OpenInclined();
    for (int column = 6; column <= 9; ++column)
        CrossData.boringCells[16][column] = "old";
    frmCross::SS1.row = 3;
    frmCross::mnuDeleteRow();
    CHECK(HiddenOf(15) == "///");
    CHECK(HiddenOf(16) == "old/old/old/old");
    frmCross::SS1.row = 15;
    frmCross::mnuInsertRow();
    CHECK(frmCross::SS1.rows == 16);
    CHECK(HiddenOf(15) == "///");
    CHECK(HiddenOf(16) == "///");
}

TEST_CASE("a section's form takes 50 borings, and at 50 Insert Row does nothing")
{
    LoadTool(CrossForm);
    frmCross::SS1.Cell(1, 1) = "1";
    for (int row = 16; row <= 50; ++row)
        frmCross::mnuInsertRow();
    CHECK(frmCross::SS1.rows == 50);
    CHECK(frmCross::SS1.Cell(36, 1) == "1");
    CHECK(Notices.empty());
    FileChanged = 0;
    frmCross::mnuInsertRow();
    CHECK(frmCross::SS1.rows == 50);
    CHECK(Notices.size() == 1);
    CHECK(FileChanged == 0);
    for (int row = 50; row > 10; --row)
        frmCross::mnuDeleteRow();
    CHECK(frmCross::SS1.rows == 15);
    frmCross::mnuNew();
    CHECK(frmCross::SS1.rows == 15);
}

TEST_CASE("a last row that holds only what the form does not show is not written")
{
    OpenInclined();
    for (int column = 1; column <= 5; ++column)
        frmCross::SS1.Cell(3, column) = "";
    CHECK(frmCross::mnuSave());
    CHECK(LineReader(Scratch("I.CRO")).Line() == " 2 ");
}

// ---- The live page

static bool Shows(const LivePage& page, const Text& words)
{
    for (const PageObject& object : page.List.Objects)
        if (object.String.find(words) != Text::npos)
            return true;
    return false;
}

TEST_CASE("the live page of a tool shows what stands in its boxes, and leaves session, file and boxes as they were")
{
    JobTable[3] = VCROSS::vcrossstart;
    JobTable[5] = VCROSS::vfencestart;
    JobTable[7] = VCROSS::vsoilstart;
    std::filesystem::create_directory(Scratch("live"));
    struct Case {
        ToolRecord& tool;
        Grid& report;
        int titleRow;
    };
    for (const Case& one : {Case{CrossForm, frmCross::SS3, 1}, Case{FenceForm, frmFence::SS3, 1},
                            Case{SoilForm, frmSoil::SS1, SoilMainTitle}}) {
        CAPTURE(one.tool.window);
        LoadTool(one.tool);
        TypeCell(one.report, one.titleRow, 1, "A title being typed");
        if (&one.tool == &CrossForm)
            frmCross::SS2.Cell(1, 1) = frmCross::SS2.Cell(3, 1) = "0,100,10";
        CrossData.boringCells[1][7] = "joined at a save";
        CrossData.boringCells[1][8] = "45";
        const int16_t zeroBased = RunPages.zeroBased;
        const float start = VCROSS::CrossRun.hStart;
        const Text title = one.tool.Title;
        LivePage page;
        REQUIRE(DrawLiveTool(one.tool, Scratch("live"), page));
        CHECK(Shows(page, "A title being typed"));
        CHECK_FALSE(Shows(page, Scratch("live"))); // the name of the document, which has none yet
        CHECK(page.Pages == 1);
        CHECK(page.List.ExtentWidth > page.List.ExtentHeight);
        CHECK(Messages.empty());
        CHECK(Listings.empty());
        CHECK(PageList.Objects.empty());
        CHECK(one.tool.FileName == "");
        CHECK(one.tool.Title == title);
        CHECK(FileChanged == 1);
        CHECK(RunPages.zeroBased == zeroBased);
        CHECK(VCROSS::CrossRun.hStart == start);
        CHECK(CrossData.boringCells[1][7] == "joined at a save");
        CHECK(RunFolder == ScratchFolder());
        CHECK_FALSE(FileExists(Scratch("log.mas")));
        one.tool.FileName = Scratch("SITE" + Text(one.tool.ending));
        REQUIRE(DrawLiveTool(one.tool, Scratch("live"), page));
        CHECK(Shows(page, "   " + one.tool.FileName));
        FileChanged = 0;
    }
}

TEST_CASE("the live page of a section leaves the workbench's table alone")
{
    JobTable[3] = VCROSS::vcrossstart;
    std::filesystem::create_directory(Scratch("live"));
    GisData.layerCount = 1;
    GisData.layerName[1] = "SM";
    LoadTool(CrossForm);
    frmCross::SS2.Cell(1, 1) = frmCross::SS2.Cell(3, 1) = "0,100,10";
    frmCross::SS3.Cell(6, 1) = "Y";
    frmCross::SS3.Cell(8, 1) = "none.GIS";
    LivePage page;
    CHECK(DrawLiveTool(CrossForm, Scratch("live"), page));
    CHECK(GisData.layerName[1] == "SM");
    CHECK(Messages.empty());
}

TEST_CASE("the workbench draws nothing, and notes that a save refuses give no live page")
{
    std::filesystem::create_directory(Scratch("live"));
    LoadTool(GisForm);
    LivePage page;
    page.Page = 7;
    CHECK_FALSE(DrawLiveTool(GisForm, Scratch("live"), page));
    JobTable[7] = VCROSS::vsoilstart;
    LoadTool(SoilForm);
    frmSoil::MemoSoil.text = "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8\r\n9\r\n10\r\n11";
    CHECK_FALSE(DrawLiveTool(SoilForm, Scratch("live"), page));
    CHECK(page.Page == 7);
    CHECK(Messages.empty());
}

TEST_CASE(
    "the fifth column of a section's borings has its designed word whatever the prompts say, and the others theirs")
{
    for (int slot = 131; slot <= 137; ++slot)
        PromptSlot[slot] = "prompt " + std::to_string(slot);
    frmCross::LabelBoxes();
    CHECK(frmCross::SS1.headings ==
          std::vector<Text>{"", "prompt 132", "prompt 133", "prompt 134", "prompt 135", "Label T/B"});
    CHECK(frmCross::SS3.title == "prompt 136");
}

TEST_CASE(
    "each of the five columns of a section's borings goes from the file into the form and from there into the file")
{
    LoadTool(CrossForm);
    for (int row = 1; row <= 15; ++row)
        for (int column = 1; column <= 5; ++column)
            frmCross::SS1.Cell(row, column) = std::to_string(row) + "/" + std::to_string(column);
    frmCross::SS2.Cell(1, 1) = "0,100,10";
    frmCross::FileName = Scratch("F.CRO");
    CHECK(frmCross::mnuSave());
    LineReader in(Scratch("F.CRO"));
    in.Skip(1);
    for (int row = 1; row <= 15; ++row) {
        for (int column = 1; column <= 5; ++column)
            CHECK(in.Line() == std::to_string(row) + "/" + std::to_string(column));
        in.Skip(2);
    }
    ToolOpenNamed(CrossForm, Scratch("F.CRO"));
    for (int row = 1; row <= 15; ++row)
        for (int column = 1; column <= 5; ++column)
            CHECK(frmCross::SS1.Cell(row, column) == std::to_string(row) + "/" + std::to_string(column));
}
