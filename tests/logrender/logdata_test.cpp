// logdata_test.cpp -- the page entry, the renderer's own reading of a boring and its layout, and the cuts at the ends
// of a page.
#include "logrender/logdata.h"

#include "boringtext.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "testing.h"

#include "session/deviceconfig.h"

// Writes the boring and reads it as a page from 0 to 40.
static void Read(const BoringText& boring)
{
    WriteBoring("B-1.BOR", boring);
    if (!std::filesystem::exists(Scratch("P.LAY")))
        WriteLayout("P.LAY", " 0 ", {});
    LogPage.BoringFileName = Scratch("B-1.BOR");
    LogPage.PageEndDepth = 40;
    VLOG::getvlogdata();
}

static Text OnlyMessage()
{
    REQUIRE(Messages.size() == 1);
    return Messages[0].words;
}

// ---- The entry list

TEST_CASE("the list of pages gives the count, and the entry of each page")
{
    WriteMas({{"/p/B-1.BOR", "(Page 1 of 2)", "0", "7.5"}, {"/p/B-1.BOR", "(Page 2 of 2)", "8", "15.5"}});
    RunPages.pageIndex = 5;
    VLOG::getvlogfilecounter();
    CHECK(RunPages.pageIndex == 0);
    CHECK(RunPages.pageCount == 2);
    CHECK(LogPage.PageCaption == "(Page 1 of 2)");
    RunPages.pageIndex = 1;
    VLOG::getvlogfiles();
    CHECK(LogPage.BoringFileName == "/p/B-1.BOR");
    CHECK(LogPage.PageCaption == "(Page 2 of 2)");
    CHECK(LogPage.PageStartDepth == 8);
    CHECK(LogPage.PageEndDepth == 15.5f);
    CHECK(RunPages.pageFile == "/p/B-1.BOR");
    CHECK(Messages.empty());
}

TEST_CASE("an empty caption line is an empty caption")
{
    WriteMas({{"/p/B-1.BOR", "", "0", "40"}});
    VLOG::getvlogfilecounter();
    CHECK(LogPage.PageCaption == "");
    CHECK(LogPage.PageEndDepth == 40);
}

TEST_CASE("a comma in a path splits it, and every field behind it is one place too far")
{
    WriteMas({{"/p/B, 1.BOR", "(Page 1 of 1)", "0", "40"}});
    VLOG::getvlogfilecounter();
    CHECK(LogPage.BoringFileName == "/p/B");
    CHECK(LogPage.PageCaption == "1.BOR");
    CHECK(LogPage.PageEndDepth == 0);
}

TEST_CASE("a list of no pages is no failure")
{
    WriteMas({});
    VLOG::getvlogfilecounter();
    CHECK(RunPages.pageCount == 0);
    CHECK(Messages.empty());
}

TEST_CASE("a missing list of pages is told")
{
    VLOG::getvlogfilecounter();
    CHECK(OnlyMessage() == "Error 53 in getvlogfilecounter.  Please contact Norvane");
}

TEST_CASE("a list of pages that ends too soon is told")
{
    WriteScratch("log.mas", "1\r\n/p/B-1.BOR\r\n");
    VLOG::getvlogfiles();
    CHECK(OnlyMessage() == "Error 62 in getvlogfiles.  Please contact Norvane");
}

// ---- The boring

TEST_CASE("a boring is read block by block")
{
    BoringText text;
    text.Name = "MW-7";
    text.MapFile = "SITE.BMP";
    text.Info = {{"Driller", "Smith"}};
    text.RepParts = {{"depth scale", ".4"}, {"remarks", "1.4"}};
    text.Samples = {{"1", "2.5", "3", "6,8", "L-1", " a ", "b"}, {"4", "5"}};
    text.Lith = {{"10", "SP,sand", "D", "RED"}};
    text.Des = {"@1", "Sand"};
    text.WellInfo = {{"Casing", "PVC"}};
    text.WellNotes = {"note"};
    text.GenWell = {"W-1"};
    text.OuterLayers = {{"0", "5", "grout"}};
    text.InnerLayers = {{"0", "6", "screen"}, {"6", "7"}};
    text.Remarks = {"-3", "wet"};
    text.Cuttings = {{"5", "10", "20", "70"}};
    text.Legend = {{"SP", "sand"}};
    text.Formations = {{"12", "Chalk,C"}};
    text.BottNotes = {"n1"};
    text.Tail = {"c1", "", "", "", "c5", "2", " 1 "};
    Read(text);
    CHECK(Messages.empty());
    const LogBoringRecord& b = LogBoring;
    CHECK(b.Name == "MW-7");
    CHECK(b.MapFile == "SITE.BMP");
    CHECK(b.Info[1][2] == "Smith");
    CHECK(b.RepPartCount == 2);
    CHECK(b.RepParts[2].Width == "1.4");
    CHECK(b.RepParts[3].Item == "");
    CHECK(b.SampleCount == 2);
    CHECK(b.Samples[1].Bottom == 2.5f);
    CHECK(b.Samples[1].Condition == "3");
    CHECK(b.Samples[1].Blows == "6,8");
    CHECK(b.Samples[1].LabNumber == "L-1");
    CHECK(b.Samples[1].Param[1] == "a");
    CHECK(b.Samples[1].Param[2] == "b");
    CHECK(b.Contacts[1].Pattern == "SP,sand");
    CHECK(b.Contacts[1].LineType == "D");
    CHECK(b.Contacts[1].Color == "RED");
    CHECK(b.Des[2] == "Sand");
    CHECK(b.WellInfo[1][2] == "PVC");
    CHECK(b.WellNotes[1] == "note");
    CHECK(b.GenWell[1] == "W-1");
    CHECK(b.OuterLayers[1][3] == "grout");
    CHECK(b.InnerLayerCount == 2);
    CHECK(b.Remarks[2] == "wet");
    CHECK(b.Cuttings[1].Coarse == 70);
    CHECK(b.Legend[1][2] == "sand");
    CHECK(b.Formations[1].Description == "Chalk,C");
    CHECK(b.BottNotes[1] == "n1");
    CHECK(b.Client[5] == "c5");
    CHECK(b.Style == 2);
    CHECK(b.Draft == 1);
    CHECK(progressValue == 0);
    CHECK(progressTotal == 1 + 2 + 2 + 1 + 4);
}

TEST_CASE("nothing of the page before is left in the boring")
{
    BoringText full;
    full.Des = {"@1", "Sand"};
    full.Lith = {{"10", "SP"}};
    full.Tail = {"client", "", "", "", "", "2", " 1 "};
    Read(full);
    BoringText empty;
    empty.Tail = {};
    Read(empty);
    CHECK(LogBoring.Des[1] == "");
    CHECK(LogBoring.Contacts[1].Pattern == "");
    CHECK(LogBoring.Client[1] == "");
    CHECK(LogBoring.Style == 1);
    CHECK(LogBoring.Draft == 0);
}

TEST_CASE("a version word before 5 is refused: a message, and the run steps on")
{
    BoringText text;
    text.Version = "4.6";
    RunPages.pageIndex = 3;
    Read(text);
    CHECK(OnlyMessage() ==
          "This boring file has the format of a previous version and will be skipped: " + Scratch("B-1.BOR"));
    CHECK(RunPages.pageIndex == 4);
    CHECK(LogBoring.RepPartCount == -1);
}

TEST_CASE("a boring that fails to be read has a count of -1, and the run does not step on")
{
    WriteScratch("B-1.BOR", "5.0.12\r\nB-1\r\n");
    LogPage.BoringFileName = Scratch("B-1.BOR");
    RunPages.pageIndex = 3;
    VLOG::getvlogdata();
    CHECK(OnlyMessage() == "Error 62 in getvlogdata.  Please contact Norvane");
    CHECK(RunPages.pageIndex == 3);
    CHECK(LogBoring.RepPartCount == -1);
}

TEST_CASE("a count beyond its bound is error 9 in the reading of a page")
{
    BoringText text;
    text.RepParts.assign(31, {"lab number", ""});
    Read(text);
    CHECK(OnlyMessage() == "Error 9 in getvlogdata.  Please contact Norvane");
    CHECK(LogBoring.RepPartCount == -1);
}

TEST_CASE("a boring of version 5.1 has 21 cells in each parameter row, one of version 5.0 has 9")
{
    const auto cells = [](const char* version, int count) {
        BoringText text;
        text.Version = version;
        text.ParamCells = count;
        text.Params = {{"1", "2", "3", "4", "5", "6", "7", "8", "9", "ten"}, {"11"}};
        text.Remarks = {"here"};
        Read(text);
        CHECK(LogBoring.Params[2][1] == "11");
        CHECK(LogBoring.Remarks[1] == "here");
        return LogBoring.Params[1][10];
    };
    CHECK(cells("5.1", 21) == "ten");
    CHECK(cells("5.0.12", 21) == "ten");
    CHECK(cells("5.0.1", 21) == "ten");
    CHECK(cells("5.0", 9) == "");
    CHECK(Messages.empty());
}

TEST_CASE("the scale cells hold two values each")
{
    BoringText text;
    text.Increment = "2.5,5";
    text.PageBreak = "20,6";
    text.Unit = "meters,90";
    text.SurfElev = "105.7,est.";
    Read(text);
    CHECK(LogBoring.TickIncrement == 2.5f);
    CHECK(LogBoring.TicksPerIncrement == 5);
    CHECK(LogBoring.PageBreakMarker == 1);
    CHECK(LogBoring.PageLength == 6);
    CHECK(LogBoring.UnitWord == "meters");
    CHECK(LogBoring.HeadingTurned);
    CHECK(LogBoring.SurfElevText == "105.7");
    CHECK(LogBoring.SurfElev == 105.7f);
    CHECK(LogBoring.StartElev == 105);
    CHECK(LogPage.PageEndDepth == 40); // of the entry, not of the boring
}

TEST_CASE("the scale cells without their second value")
{
    BoringText text;
    text.EndDepth = "90";
    text.Unit = "feet";
    Read(text);
    CHECK(LogBoring.TickIncrement == 5);
    CHECK(LogBoring.TicksPerIncrement == 0);
    CHECK(LogBoring.PageBreakMarker == 0);
    CHECK(LogBoring.PageLength == 0);
    CHECK_FALSE(LogBoring.HeadingTurned);
    CHECK(LogBoring.SurfElevText == "");
    CHECK(LogBoring.StartElev == 0);
    CHECK(LogPage.PageEndDepth == 40);
}

TEST_CASE("any page break cell with something in it marks a break, and only exactly 90 turns the heading")
{
    BoringText text;
    text.PageBreak = ",5";
    text.Unit = "feet,91";
    Read(text);
    CHECK(LogBoring.PageBreakMarker == 1);
    CHECK(LogBoring.PageLength == 5);
    CHECK_FALSE(LogBoring.HeadingTurned);
}

TEST_CASE("the start elevation is rounded as typed, and the next whole number below the surface if empty")
{
    const auto start = [](const char* surface, const char* typed) {
        BoringText text;
        text.SurfElev = surface;
        text.StartElev = typed;
        Read(text);
        return LogBoring.StartElev;
    };
    CHECK(start("105.7", "") == 105);
    CHECK(start("-3.2", "") == -4);
    CHECK(start("105.7", "100.5") == 100); // half to even
    CHECK(start("105.7", " ") == 0);
    CHECK(start("105.7", "102") == 102);
}

TEST_CASE("an empty blow count is -1, a blank one stays blank")
{
    BoringText text;
    text.Samples = {{"1", "2", "", "", ""}, {"3", "4", "", " ", ""}};
    Read(text);
    CHECK(LogBoring.Samples[1].Blows == "-1");
    CHECK(LogBoring.Samples[2].Blows == " ");
}

TEST_CASE("a bare pattern number gets its F in front")
{
    BoringText text;
    text.Lith = {{"1", "12"}, {"2", "F12"}, {"3", "SP"}, {"4", "0"}, {"5", " 7,peat"}};
    Read(text);
    CHECK(LogBoring.Contacts[1].Pattern == "F12");
    CHECK(LogBoring.Contacts[2].Pattern == "F12");
    CHECK(LogBoring.Contacts[3].Pattern == "SP");
    CHECK(LogBoring.Contacts[4].Pattern == "0");
    CHECK(LogBoring.Contacts[5].Pattern == "F 7,peat");
}

TEST_CASE("a contact's last cell is its line offset and its colour")
{
    BoringText text;
    text.Lith = {{"1", "SP", "", "3,BLUE"}, {"2", "SP", "", "GREEN"}, {"3", "SP", "", "-2,"}};
    Read(text);
    CHECK(LogBoring.Contacts[1].Offset == 3);
    CHECK(LogBoring.Contacts[1].Color == "BLUE");
    CHECK(LogBoring.Contacts[2].Offset == 0);
    CHECK(LogBoring.Contacts[2].Color == "GREEN");
    CHECK(LogBoring.Contacts[3].Offset == -2);
    CHECK(LogBoring.Contacts[3].Color == "");
}

TEST_CASE("stored lines end at their paragraph mark, client lines do not")
{
    BoringText text;
    text.Des = {"Sand\xB6", "a\xB6z"};
    text.WellNotes = {"note\xB6"};
    text.Remarks = {"wet\xB6"};
    text.BottNotes = {"n\xB6"};
    text.Tail = {"c\xB6"};
    Read(text);
    CHECK(LogBoring.Des[1] == "Sand");
    CHECK(LogBoring.Des[2] == "a");
    CHECK(LogBoring.WellNotes[1] == "note");
    CHECK(LogBoring.Remarks[1] == "wet");
    CHECK(LogBoring.BottNotes[1] == "n");
    CHECK(LogBoring.Client[1] == "c\xB6");
}

TEST_CASE("depth-placed blocks go behind the others, unless the first line is MANUAL alone")
{
    const auto lines = [](const char* first) {
        BoringText text;
        text.Des = {first, "-5", "side", "@2", "main"};
        Read(text);
        return LogBoring.Des[2] + "/" + LogBoring.Des[5];
    };
    CHECK(lines("@1") == "@2/side");
    CHECK(lines("manual") == "-5/main");
    CHECK(lines("manual text") == "@2/side");
}

TEST_CASE("the lines behind the notes are client lines, style and draft, as far as the file goes")
{
    BoringText text;
    SUBCASE("none of them")
    {
        text.Tail = {};
        Read(text);
        CHECK(LogBoring.Style == 1);
        CHECK(LogBoring.Draft == 0);
    }
    SUBCASE("an older file's draft line counts as the first client line")
    {
        text.Version = "5.0.5";
        text.Tail = {" 1 "};
        Read(text);
        CHECK(LogBoring.Client[1] == " 1 ");
        CHECK(LogBoring.Style == 1);
        CHECK(LogBoring.Draft == 0);
    }
    SUBCASE("no draft line")
    {
        text.Tail = {"1", "2", "3", "4", "5", "3"};
        Read(text);
        CHECK(LogBoring.Style == 3);
        CHECK(LogBoring.Draft == 0);
    }
    CHECK(Messages.empty());
}

TEST_CASE("a file that ends within its notes is a failure")
{
    BoringText text;
    text.Tail = {};
    std::string bytes = text.Bytes();
    bytes.resize(bytes.size() - 2);
    WriteScratch("B-1.BOR", bytes);
    LogPage.BoringFileName = Scratch("B-1.BOR");
    VLOG::getvlogdata();
    CHECK(OnlyMessage() == "Error 62 in getvlogdata.  Please contact Norvane");
}

// ---- The layout

TEST_CASE("the layout gives the orientation and the codes of the title blocks")
{
    const auto kind = [](const char* orientation) {
        WriteLayout("P.LAY", orientation, {1, 2, 0, 4, 5, 6, 7, 8, 9, 10, 11, 12});
        Read(BoringText());
        CHECK(LogGeometry.TitleBlocks[1] == 1);
        CHECK(LogGeometry.TitleBlocks[12] == 12);
        return Text(1, LogGeometry.FrameKind) + PlainNumber(int(LogGeometry.HasBottomRow));
    };
    CHECK(kind(" 0 ") == "P1");
    CHECK(kind(" 1 ") == "L0");
    CHECK(kind(" 2 ") == "T0");
    CHECK(kind("9") == "T0");
    CHECK(kind("") == "P1");
}

TEST_CASE("a portrait page has a bottom row when one of its three positions holds a block")
{
    const auto bottomRow = [](std::initializer_list<int> codes) {
        WriteLayout("P.LAY", " 0 ", codes);
        Read(BoringText());
        return LogGeometry.HasBottomRow;
    };
    CHECK(bottomRow({1, 2, 0, 4, 5, 0, 7, 8, 0, 1, 1, 1}) == 0);
    CHECK(bottomRow({0, 0, 10, 0, 0, 0, 0, 0, 0}) == 1);
    CHECK(bottomRow({0, 0, 0, 0, 0, 10, 0, 0, 0}) == 1);
    CHECK(bottomRow({0, 0, -1, 0, 0, -1, 0, 0, 10}) == 1);
    CHECK(bottomRow({0, 0, -1, 0, 0, -1, 0, 0, -1}) == 0);
    CHECK(bottomRow({0, 0, 1}) == 1);
    CHECK(bottomRow({0, 0, 0, 0, 0, 1}) == 1);
    CHECK(bottomRow({0, 0, 0, 0, 0, 0, 0, 0, 1}) == 1);
}

TEST_CASE("the layout is looked for in the layout folder, in any case of its letters")
{
    std::filesystem::create_directories(Scratch("lay"));
    WriteLayout("lay/wide.lay", " 2 ", {});
    DeviceConfig.SystemFiles[LayoutFolder] = Scratch("lay");
    BoringText text;
    text.LayoutFile = "WIDE.LAY";
    Read(text);
    CHECK(Messages.empty());
    CHECK(LogGeometry.FrameKind == 'T');
}

TEST_CASE("a missing layout is told and drawn as portrait, with the title blocks of the page before")
{
    WriteLayout("P.LAY", " 0 ", {3, 0, 11});
    Read(BoringText());
    BoringText text;
    text.LayoutFile = "NONE.LAY";
    Read(text);
    CHECK(OnlyMessage() == "Layout File Not Found: " + Scratch("NONE.LAY"));
    CHECK(LogGeometry.FrameKind == 'P');
    CHECK(LogGeometry.TitleBlocks[1] == 3);
    CHECK(LogGeometry.HasBottomRow == 1);
    CHECK(LogBoring.RepPartCount == 0);
}

TEST_CASE("a layout that ends too soon fails the whole reading")
{
    WriteScratch("P.LAY", " 0 \r\n 1 \r\n");
    Read(BoringText());
    CHECK(OnlyMessage() == "Error 62 in getvlogdata.  Please contact Norvane");
    CHECK(LogBoring.RepPartCount == -1);
}

// ---- The cuts at the ends of a page

static void StartPage(float start, float end)
{
    LogBoring = LogBoringRecord();
    LogGeometry = LogGeometryRecord();
    LogPage.PageStartDepth = start;
    LogPage.PageEndDepth = end;
}

static void AddSample(float top, float bottom)
{
    LogSample& sample = LogBoring.Samples[++LogBoring.SampleCount];
    sample.Top = top;
    sample.Bottom = bottom;
}

static Text Sample(int i)
{
    return PlainNumber(double(LogBoring.Samples[i].Top)) + "-" + PlainNumber(double(LogBoring.Samples[i].Bottom));
}

// Sets the contacts, or the formations, cuts them at the page, and tells "first-last: depths".
static Text Contacts(std::initializer_list<float> depths)
{
    for (const float depth : depths)
        LogBoring.Contacts[++LogBoring.ContactCount].Depth = depth;
    VLOG::process_sam_con_form();
    Text text = PlainNumber(int(LogGeometry.ContactFirst)) + "-" + PlainNumber(int(LogGeometry.ContactLast)) + ":";
    for (int i = 1; i <= LogBoring.ContactCount; ++i)
        text += " " + PlainNumber(double(LogBoring.Contacts[i].Depth));
    return text;
}

static Text Formations(std::initializer_list<float> depths)
{
    for (const float depth : depths)
        LogBoring.Formations[++LogBoring.FormationCount].Depth = depth;
    VLOG::process_sam_con_form();
    Text text = PlainNumber(int(LogGeometry.FormationFirst)) + "-" + PlainNumber(int(LogGeometry.FormationLast)) + ":";
    for (int i = 1; i <= LogBoring.FormationCount; ++i)
        text += " " + PlainNumber(double(LogBoring.Formations[i].Depth));
    return text;
}

TEST_CASE("a sample across the page's start is cut there, its true top held")
{
    StartPage(20, 40);
    AddSample(10, 12);
    AddSample(18, 22);
    AddSample(25, 26);
    AddSample(38, 44);
    AddSample(50, 51);
    VLOG::process_sam_con_form();
    CHECK(LogGeometry.SampleFirst == 2);
    CHECK(LogGeometry.SampleLast == 4);
    CHECK(Sample(2) == "20-22");
    CHECK(Sample(4) == "38-40");
    CHECK(LogGeometry.SampleTopHeld == 18);
    CHECK(LogGeometry.SampleBottomHeld == 44);
}

TEST_CASE("samples within the page are held as they are")
{
    StartPage(20, 40);
    AddSample(20, 22);
    AddSample(38, 40);
    VLOG::process_sam_con_form();
    CHECK(LogGeometry.SampleTopHeld == 20);
    CHECK(LogGeometry.SampleBottomHeld == 40);
}

TEST_CASE("samples that only touch the page are not on it")
{
    StartPage(20, 40);
    AddSample(18, 20);
    AddSample(40, 42);
    VLOG::process_sam_con_form();
    CHECK(LogGeometry.SampleFirst == 0);
    CHECK(LogGeometry.SampleLast == 0);
    CHECK(LogGeometry.SampleTopHeld == 0);
    CHECK(LogGeometry.SampleBottomHeld == 0);
}

TEST_CASE("a true top of 0 on a later page is lost")
{
    StartPage(20, 40);
    AddSample(0, 30);
    VLOG::process_sam_con_form();
    CHECK(LogGeometry.SampleTopHeld == 20);
}

TEST_CASE("the unit that runs past the page's end is cut there")
{
    StartPage(20, 40);
    CHECK(Contacts({10, 35, 60, 80}) == "2-3: 10 35 40 80");
    StartPage(40, 60);
    CHECK(Contacts({10, 35, 60, 80}) == "3-3: 10 35 60 80");
}

TEST_CASE("the page that holds the boring's end cuts nothing")
{
    StartPage(40, 100);
    CHECK(Contacts({10, 35, 60, 80}) == "3-4: 10 35 60 80");
}

TEST_CASE("a contact at the page's start or at its end is on the page")
{
    StartPage(35, 60);
    CHECK(Contacts({10, 35, 60, 80}) == "2-3: 10 35 60 80");
}

TEST_CASE("a first unit deeper than the page fills it")
{
    StartPage(0, 40);
    CHECK(Contacts({90, 95}) == "1-1: 40 95");
    StartPage(0, 40);
    CHECK(Contacts({40, 95}) == "1-1: 40 95");
}

TEST_CASE("a page below the boring's end has no units")
{
    StartPage(100, 140);
    CHECK(Contacts({10, 80}) == "0-0: 10 80");
    StartPage(0, 40);
    CHECK(Contacts({}) == "0-0:");
}

TEST_CASE("a page that ends at 0 cuts its first contact to 0")
{
    StartPage(0, 0);
    CHECK(Contacts({10, 80}) == "1-1: 0 80");
}

TEST_CASE("formations are cut like units")
{
    StartPage(20, 40);
    CHECK(Formations({10, 35, 60, 80}) == "2-3: 10 35 40 80");
    StartPage(40, 100);
    CHECK(Formations({10, 35, 60, 80}) == "3-4: 10 35 60 80");
    StartPage(0, 40);
    CHECK(Formations({90}) == "1-1: 40");
}

TEST_CASE("a formation that ends at the page's start is not on the page")
{
    StartPage(35, 60);
    CHECK(Formations({10, 35, 60, 80}) == "3-3: 10 35 60 80");
    StartPage(80, 100);
    CHECK(Formations({10, 80}) == "0-0: 10 80");
}
