// intropage_test.cpp -- intro pages: the blocks of each arrangement, worked out by hand from the frame's upper left
// corner, and whole runs from log.mas.
#include "logrender/intropage.h"

#include "boringtext.h"
#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "columnpage.h"
#include "logrender/logdata.h"
#include "report/heading.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "session/deviceconfig.h"
#include "session/platform.h"
#include "session/session.h"

// The frame's upper left corner at 0,0 of what Drawn tells, on an otherwise empty page.
static void StartIntro()
{
    StartColumn();
    float x = 1.25f, y = 7.65f;
    setorigin(x, y);
    ProjectPath = ScratchFolder();
    LogoData = LogoRecord();
    LogBoring.Name = "B-1";
    introType = 1;
}

static void AddWellInfo(const char* label, const char* value)
{
    const int row = ++LogBoring.WellInfoCount;
    LogBoring.WellInfo[row][1] = label;
    LogBoring.WellInfo[row][2] = value;
}

static void AddNote(const char* words)
{
    LogBoring.WellNotes[++LogBoring.WellNoteCount] = words;
}

static void AddLegend(const Text& code, const Text& words)
{
    const int row = ++LogBoring.LegendCount;
    LogBoring.Legend[row][1] = code;
    LogBoring.Legend[row][2] = words;
}

static Drawing From(const Drawing& drawing, size_t first, size_t count)
{
    REQUIRE(drawing.size() >= first + count);
    return Drawing(drawing.begin() + long(first), drawing.begin() + long(first + count));
}

// The name of the pattern that a legend code draws, "" for the blank one.
static Text SwatchOf(const Text& code)
{
    StartIntro();
    AddLegend(code, "");
    VLOG::drawintromain();
    for (const PageObject& object : PageList.Objects)
        if (object.Kind == ObjectKind::Polygon)
            return object.Fill.substr(object.Fill.rfind('/') + 1);
    return "none";
}

// ---- The blocks

TEST_CASE("the well construction block of arrangement 1 is parted down its middle into lines and notes")
{
    StartIntro();
    AddWellInfo("WELL", "Heading");
    AddWellInfo("Casing", "2 in.");
    AddWellInfo("", "");
    AddWellInfo("Seal", "Chips");
    AddNote("One");
    AddNote("Two");
    VLOG::drawintrowcon();
    CHECK(Drawn() == Drawing{"rectangle 120,1260 2520,3660", "line 1320,1260 1320,3660", "text 180,1320 7pt WELL",
                             "text 180,1410 7pt Casing", "text 660,1410 7pt : 2 in.", "text 180,1470 7pt ",
                             "text 660,1470 7pt : ", "text 180,1530 7pt Seal", "text 660,1530 7pt : Chips",
                             "text 1380,1320 7pt W16", "text 1380,1410 7pt One", "text 1380,1470 7pt Two"});
}

TEST_CASE("the well construction block of arrangement 2 has its notes below a line, their title standing on it")
{
    StartIntro();
    AddWellInfo("Casing", "2 in.");
    AddNote("One");
    VLOG::drawintrowcon2();
    CHECK(Drawn() == Drawing{"rectangle 2640,240 4140,3660", "line 2640,2340 4140,2340", "text 2700,270 7pt Casing",
                             "text 3180,270 7pt : 2 in.", "text 2700,2340 7pt W16", "text 2700,2430 7pt One"});
}

TEST_CASE("without a map there is its title and an empty box, in both arrangements and with no message")
{
    StartIntro();
    VLOG::drawintromap();
    CHECK(Drawn() == Drawing{"text 3390,150 10pt  W18  centred", "rectangle 2670,270 4170,2070"});
    StartIntro();
    VLOG::drawintromap2();
    CHECK(Drawn() == Drawing{"text 1320,1170 10pt  W18  centred", "rectangle 120,1260 2520,3660"});
    CHECK(Messages.empty());
}

TEST_CASE("the map is project.bmp of the project folder, in any letters, under its box")
{
    StartIntro();
    std::filesystem::create_directories(Scratch("project"));
    ProjectPath = Scratch("project");
    WritePicture("project/PROJECT.BMP");
    VLOG::drawintromap();
    CHECK(Drawn() == Drawing{"text 3390,150 10pt  W18  centred", "picture 2670,270 4170,2070 project.bmp",
                             "rectangle 2670,270 4170,2070"});
    StartIntro();
    ProjectPath = Scratch("project");
    VLOG::drawintromap2();
    CHECK(Drawn() == Drawing{"text 1320,1170 10pt  W18  centred", "picture 120,1260 2520,3660 project.bmp",
                             "rectangle 120,1260 2520,3660"});
    CHECK(Messages.empty());
}

TEST_CASE("a project map that is no picture ends its block, and the legend follows")
{
    StartIntro();
    WriteScratch("project.bmp", "a text");
    VLOG::drawintromain();
    introType = 2;
    VLOG::drawintromap2();
    REQUIRE(Messages.size() == 2);
    CHECK(Messages[0].words == "Error 481 in drawintromap.  Please contact Norvane");
    CHECK(Messages[1].words == "Error 481 in drawintromap2.  Please contact Norvane");
    CHECK(Drawn() == Drawing{"text 150,1140 12pt B-1", "rectangle 120,1260 2520,3660", "line 1320,1260 1320,3660",
                             "text 1380,1320 7pt W16", "text 3390,150 10pt  W18  centred",
                             "text 120,3810 10pt W19:", "text 1320,1170 10pt  W18  centred"});
}

TEST_CASE("arrangement 1 has the name over the well block, then the map, then the legend's title")
{
    StartIntro();
    VLOG::drawintromain();
    CHECK(Drawn() == Drawing{"text 150,1140 12pt B-1", "rectangle 120,1260 2520,3660", "line 1320,1260 1320,3660",
                             "text 1380,1320 7pt W16", "text 3390,150 10pt  W18  centred",
                             "rectangle 2670,270 4170,2070", "text 120,3810 10pt W19:"});
}

TEST_CASE("arrangement 2 has the name over the well block at the right")
{
    StartIntro();
    introType = 2;
    VLOG::drawintromain();
    CHECK(Drawn() == Drawing{"text 2700,150 12pt B-1", "rectangle 2640,240 4140,3660", "line 2640,2340 4140,2340",
                             "text 2700,2340 7pt W16", "text 1320,1170 10pt  W18  centred",
                             "rectangle 120,1260 2520,3660", "text 120,3810 10pt W19:"});
}

// ---- The legend

TEST_CASE("a legend row is a swatch in its pattern that hangs down from the pen, its outline, and its text")
{
    StartIntro();
    SetPatterns({21, 26});
    AddLegend("GW", "Gravel");
    AddLegend("sp ", "Sand");
    VLOG::drawintromain();
    CHECK(Drawn(7) == Drawing{"polygon 120,3900 360,3900 360,4020 120,4020 F21", "rectangle 120,3900 360,4020",
                              "text 420,3960 9pt Gravel", "polygon 120,4065 360,4065 360,4185 120,4185 F26",
                              "rectangle 120,4065 360,4185", "text 420,4125 9pt Sand"});
}

TEST_CASE("a legend of 21 rows has rows 11 to 20 in its second column and the last in its third")
{
    StartIntro();
    SetPatterns({21});
    for (int i = 1; i <= 21; ++i)
        AddLegend("GW", "L" + PlainNumber(i));
    VLOG::drawintromain();
    const Drawing rows = Drawn(7);
    REQUIRE(rows.size() == 63);
    CHECK(rows[3 * 9 + 2] == "text 420,5445 9pt L10");
    CHECK(From(rows, 3 * 10, 3) == Drawing{"polygon 1500,3900 1740,3900 1740,4020 1500,4020 F21",
                                           "rectangle 1500,3900 1740,4020", "text 1800,3960 9pt L11"});
    CHECK(rows[3 * 19 + 2] == "text 1800,5445 9pt L20");
    CHECK(From(rows, 3 * 20, 3) == Drawing{"polygon 2880,3900 3120,3900 3120,4020 2880,4020 F21",
                                           "rectangle 2880,3900 3120,4020", "text 3180,3960 9pt L21"});
}

TEST_CASE("a legend of 30 rows fills its third column")
{
    StartIntro();
    for (int i = 1; i <= 30; ++i)
        AddLegend("", "L" + PlainNumber(i));
    VLOG::drawintromain();
    CHECK(Drawn().back() == "text 3180,5445 9pt L30");
    CHECK(Messages.empty());
}

TEST_CASE("a legend code is a soil code, or a pattern number behind an F")
{
    SetPatterns({20, 21, 51, 69, 300});
    CHECK(SwatchOf("GW") == "F21.bmp");
    CHECK(SwatchOf(" qu ") == "F51.bmp");
    CHECK(SwatchOf("F49") == "F69.bmp");
    CHECK(SwatchOf("f 49") == "F69.bmp");
    CHECK(SwatchOf("F280") == "F300.bmp");
    CHECK(SwatchOf("F") == "F20.bmp");
    CHECK(SwatchOf("F0") == "F20.bmp");
    CHECK(Messages.empty());
}

TEST_CASE("an empty legend code matches the empty code in front of the table")
{
    SetPatterns({20});
    CHECK(SwatchOf("") == "F20.bmp");
    CHECK(SwatchOf("  ") == "F20.bmp");
}

TEST_CASE("an unknown legend code and a pattern above 300 are a blank swatch, without a message")
{
    SetPatterns({0, 20, 21});
    CHECK(SwatchOf("XX") == "F0.bmp");
    CHECK(SwatchOf("49") == "F0.bmp");
    CHECK(SwatchOf("F281") == "F0.bmp");
    CHECK(SwatchOf("F1E30") == "F0.bmp");
    CHECK(SwatchOf("F-1E30") == "F0.bmp");
    CHECK(Messages.empty());
}

// ---- The frame

TEST_CASE("the frame of an intro page is portrait: frame, date line, logo and client block in a wide block each")
{
    StartIntro();
    LogPage.BoringFileName = "B-1.BOR";
    LogBoring.Client[1] = "Client";
    LogoData.Line[1] = "ACME";
    LogGeometry.FrameKind = 'L';
    DeviceConfig.MarginX = 0.3f; // the corner at 0.75, 0.45 inch of the sheet, so that 0,0 is far from it
    DeviceConfig.FontName = "Courier";
    VLOG::drawframeintro();
    const Drawing drawn = Drawn();
    REQUIRE(drawn.size() == 11);
    CHECK(LogGeometry.FrameKind == 'P');
    CHECK(PageCanvas.mode == "P");
    CHECK(PageCanvas.originX == doctest::Approx(450));
    CHECK(PageCanvas.originY == doctest::Approx(270));
    // 0,0 of Drawn is at 600, 1860 of the sheet.
    CHECK(From(drawn, 0, 4) == Drawing{"rectangle -150,-1590 4170,4170 wide",
                                       "text -192,4110 6pt 1/2/2026   B-1.BOR upward", "rectangle -30,-1470 1530,-1020",
                                       "text 750,-1305 11pt  ACME  centred"});
    CHECK(drawn[5] == "rectangle -30,-1020 1530,-570");
    CHECK(drawn[6] == "text 750,-951 8pt  Client  centred");
    CHECK(PageCanvas.fontName == "Courier");
    CHECK(PageCanvas.scaleX == 1);
    CHECK(PageCanvas.scaleY == 1);
}

// ---- Runs

static BoringText StartRun()
{
    WriteHeadings();
    BoringText boring;
    boring.Name = "First";
    boring.Tail = {"C1", "C2", "C3", "C4", "C5", "1", " 0 "};
    WriteBoring("B-1.BOR", boring);
    ProjectPath = ScratchFolder();
    introType = 1;
    return boring;
}

static void WriteList(const std::vector<std::string>& files)
{
    std::string text = std::to_string(files.size()) + "\r\n";
    for (const std::string& file : files)
        text += file + "\r\n";
    WriteScratch("log.mas", text);
}

static bool Holds(const std::string& listing, const std::string& piece)
{
    return listing.find(piece) != std::string::npos;
}

TEST_CASE("an intro page run draws a page for each boring of the list, with what its file holds")
{
    BoringText boring = StartRun();
    boring.Name = "Second";
    boring.RepParts = {{"DEP", ".4"}};
    boring.Samples = {{"1", "2", "X"}};
    boring.Lith = {{"5", "GW"}};
    boring.Des = {"@1", "Gravel"};
    boring.Params = {{"1", "2"}, {"2", "3"}};
    boring.WellInfo = {{"Casing", "2 in."}};
    boring.WellNotes = {"Note one\xB6", "Note two"};
    boring.OuterLayers = {{"0", "2", "Plug"}};
    boring.InnerLayers = {{"0", "9", "Pipe"}};
    boring.Remarks = {"-1", "Remark"};
    boring.Cuttings = {{"1", "2", "3", "4"}};
    boring.Legend = {{"GW", "Gravel, grey"}};
    boring.Formations = {{"5", "Till, T"}};
    WriteBoring("B-2.BOR", boring);
    WriteList({"B-1.BOR", "B-2.BOR"});
    VLOG::vlogintrostart();
    REQUIRE(Listings.size() == 2);
    CHECK(Messages.empty());
    CHECK(Holds(Listings[0], "\"source\": \"B-1.BOR\""));
    CHECK(Holds(Listings[0], "\"text\": \"First\""));
    CHECK(Holds(Listings[0], "   B-1.BOR\""));
    CHECK(Holds(Listings[1], "\"text\": \"Second\""));
    CHECK(Holds(Listings[1], "   B-2.BOR\""));
    CHECK(Holds(Listings[1], "\"text\": \": 2 in.\""));
    CHECK(Holds(Listings[1], "\"text\": \"Note one\""));
    CHECK(Holds(Listings[1], "\"text\": \"Gravel, grey\""));
    CHECK(Holds(Listings[1], "\"text\": \" C5 \""));
    CHECK(RunPages.pageIndex == 3);
}

TEST_CASE("an intro page steps over 9 values a row in a file of the first form, and over 21 in any later one")
{
    for (const auto& [version, cells] : {std::pair<const char*, int>{"5.0", 9}, {"5.0.5", 21}, {"5.1", 21}}) {
        const Text told = version;
        CAPTURE(told);
        Listings.clear();
        BoringText boring = StartRun();
        boring.Version = version;
        boring.ParamCells = cells;
        boring.Params = {{"1", "2"}, {"2", "3"}};
        boring.WellNotes = {"A note"};
        WriteBoring("B-1.BOR", boring);
        WriteList({"B-1.BOR"});
        VLOG::vlogintrostart();
        REQUIRE(Listings.size() == 1);
        CHECK(Holds(Listings[0], "\"text\": \"A note\""));
        CHECK(Messages.empty());
    }
}

TEST_CASE("an intro page steps over lists that are longer than a log can draw")
{
    BoringText boring = StartRun();
    boring.Samples = BoringText::Rows(90);
    boring.WellNotes = {"A note"};
    WriteBoring("B-1.BOR", boring);
    WriteList({"B-1.BOR"});
    VLOG::vlogintrostart();
    REQUIRE(Listings.size() == 1);
    CHECK(Holds(Listings[0], "\"text\": \"A note\""));
    CHECK(Messages.empty());
}

TEST_CASE("a file of an old form among three is told and has no intro page")
{
    BoringText boring = StartRun();
    boring.Version = "4.6";
    WriteBoring("OLD.BOR", boring);
    WriteList({"B-1.BOR", "OLD.BOR", "B-1.BOR"});
    VLOG::vlogintrostart();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "This boring file has the format of a previous version and will be skipped: OLD.BOR");
    CHECK(Listings.size() == 2);
    CHECK(RunPages.pageIndex == 4);
}

TEST_CASE("a boring that fails to be read is told once and has a page with what was read of it")
{
    BoringText boring = StartRun();
    boring.Name = "Cut";
    const std::string bytes = boring.Bytes();
    WriteScratch("CUT.BOR", bytes.substr(0, 60));
    WriteList({"CUT.BOR", "B-1.BOR"});
    VLOG::vlogintrostart();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 62 in getintrodata.  Please contact Norvane");
    REQUIRE(Listings.size() == 2);
    CHECK(Holds(Listings[0], "\"text\": \"Cut\""));
    CHECK(Holds(Listings[1], "\"text\": \"First\""));
}

TEST_CASE("a legend with more rows than it has places for is told, and the rows that have one are drawn")
{
    BoringText boring = StartRun();
    boring.Legend = BoringText::Rows(31, {"GW", "Gravel"});
    WriteBoring("B-1.BOR", boring);
    WriteList({"B-1.BOR"});
    VLOG::vlogintrostart();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 9 in getintrodata.  Please contact Norvane");
    REQUIRE(Listings.size() == 1);
    size_t rows = 0;
    for (size_t at = 0; (at = Listings[0].find("\"Gravel\"", at)) != std::string::npos; ++at)
        ++rows;
    CHECK(rows == 30);
}

TEST_CASE("a list that is not there is told, and no page of the run before is drawn")
{
    StartRun();
    WriteList({"B-1.BOR"});
    VLOG::vlogintrostart();
    std::filesystem::remove(Scratch("log.mas"));
    VLOG::vlogintrostart();
    CHECK(Listings.size() == 1);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 53 in getsvfiles.  Please contact Norvane");
}

TEST_CASE("intro pages are printed on a print run, and the progress window is gone before each page")
{
    static Text steps;
    steps = "";
    StartRun();
    Platform.ShowProgress = [](bool shown) { steps += shown ? "show " : "hide "; };
    PlainShowPage = [] { FAIL("shown"); };
    RunPages.printing = 1;
    WriteList({"B-1.BOR", "B-1.BOR"});
    VLOG::vlogintrostart();
    CHECK(PlainPrinted == 2);
    CHECK(steps == "show hide show hide hide ");
}

TEST_CASE("the screen view moves through the intro pages, and Exit ends the run")
{
    static Text shown;
    shown = "";
    BoringText boring = StartRun();
    boring.Name = "Second";
    WriteBoring("B-2.BOR", boring);
    WriteList({"B-1.BOR", "B-2.BOR", "B-1.BOR"});
    PlainShowPage = [] {
        shown += LogBoring.Name + " ";
        if (shown == "First Second ")
            PreviousPage();
        else if (shown == "First Second First ")
            ExitRun();
        else
            NextPage();
    };
    VLOG::vlogintrostart();
    CHECK(shown == "First Second First ");
}

TEST_CASE("the progress of an intro page is a step for the frame, one for the blocks and one for each legend row")
{
    static int steps;
    static float last;
    steps = 0;
    BoringText boring = StartRun();
    boring.Legend = {{"GW", "a"}, {"GP", "b"}, {"SP", "c"}};
    WriteBoring("B-1.BOR", boring);
    Platform.StepProgress = [](const Text&, float percent) {
        ++steps;
        last = percent;
    };
    WriteList({"B-1.BOR"});
    VLOG::vlogintrostart();
    CHECK(steps == 5);
    CHECK(last == 100);
}
