// fillform_test.cpp -- the log tool's boxes filled, emptied and sized.
#include "editors/fillform.h"

#include "testing.h"

#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "boring/boringfile.h"
#include "boring/boringlines.h"
#include "report/layout.h"
#include "session/deviceconfig.h"
#include "session/session.h"

using namespace frmBorinput;

static void OpenText(const std::string& file)
{
    WriteScratch("B.BOR", file);
    ClearBoringForm();
    BoringFileName = Scratch("B.BOR");
    DialogMode = 2;
    OpenBoringFile2();
    FillBoringForm();
}

static std::string SavedAgain()
{
    BoringFileName = Scratch("C.BOR");
    SaveBoringFile();
    return ReadScratch("C.BOR");
}

TEST_CASE("a boring that is opened and saved is the same file")
{
    BoringLines lines;
    lines.name = "B-1";
    lines.mapFile = "site.bmp";
    lines.info[3] = "value";
    lines.scale = {"40", "5", "20", "Meters", "10", "8", "1,2"};
    lines.repParts = {"DEPTH SCALE", ".4", "DESCRIPTIONS", "2.6", "REMARKS", "1.2", "BLOW COUNT", "-"};
    lines.layoutFile = "a.LAY";
    lines.samples = BoringLines::Block(42);
    lines.samples[41] = "last";
    lines.lith = {"5", "CL", "D", "", "40", "SP", "", "RED"};
    lines.des = {"@1\xB6", "Stiff CLAY\xB6", "\xB6", "@2\xB6", "Sand"};
    lines.params = BoringLines::Block(21);
    lines.params[20] = "p";
    lines.sampleSetup[0] = "Moisture";
    lines.genSetup[0] = "RQD";
    lines.wellInfo = {"Driller", "X"};
    lines.wellNotes = {"a note\xB6"};
    lines.genWell[0] = "W1";
    lines.outer = {"0", "1", "SEAL", "", "3"};
    lines.inner = {"1", "2", "SCREEN", "", "2"};
    lines.remarks = {"remark\xB6"};
    lines.cuttings = {"1", "2", "3", "4"};
    lines.legend = {"CL", "Clay"};
    lines.formations = {"40", "Till, T"};
    lines.bottNotes[0] = "note one\xB6";
    lines.bottNotes[1] = "note two\xB6";
    lines.client = {"a", "b", "", "d", ""};
    lines.tail = {"1", " 1 "};
    OpenText(lines.File());
    CHECK(Messages.empty());
    CHECK(SavedAgain() == lines.File());
    CHECK(Messages.empty());
}

TEST_CASE("the title holds the file, and without a file the program's words alone")
{
    OpenText(BoringLines().File());
    CHECK(Title == Scratch("B.BOR") + " - VeskLog - Boring Log Diagram");
    ClearBoringForm();
    CHECK(Title == "VeskLog - Boring Log Diagram");
    CHECK(BoringFileName == "");
}

TEST_CASE("stored lines flow together, paragraphs at the mark; an empty line without one is dropped")
{
    BoringLines lines;
    lines.des = {"Stiff brown ", "CLAY\xB6", "", "\xB6", "end"};
    lines.bottNotes[0] = "one\xB6";
    OpenText(lines.File());
    CHECK(MemoDes.text == "Stiff brown CLAY\r\n\r\nend");
    CHECK(MemoBottNotes.text == "one\r\n");
}

TEST_CASE("names of parameters head their columns, and change with the set-up grids")
{
    BoringLines lines;
    lines.sampleSetup[0] = "Moisture";
    lines.sampleSetup[15 * 9] = "Lead";
    lines.genSetup[19 * 8] = "Probe";
    OpenText(lines.File());
    CHECK(SSSamp.headings[6] == "Moisture");
    CHECK(SSSamp.headings[21] == "Lead");
    CHECK(SSPar.headings[21] == "Probe");
    FileChanged = 0;
    SSP1Setup.Cell(2, 1) = "Density";
    SSP2Setup.Cell(1, 1) = "TCR";
    SetupGridChange();
    CHECK(SSSamp.headings[7] == "Density");
    CHECK(SSPar.headings[2] == "TCR");
    CHECK(BoringData.SampleParamSetup[2][1] == "Density");
    CHECK(FileChanged == 1);
}

TEST_CASE("the client lines are each closed, and the style switches its option on, 0 none")
{
    BoringLines lines;
    lines.client = {"a", "", "c", "", ""};
    lines.tail = {"3", "0"};
    OpenText(lines.File());
    CHECK(txtClient == "a\r\n\r\nc\r\n\r\n\r\n");
    CHECK(Option == 3);
    lines.tail = {"0", "0"};
    OpenText(lines.File());
    CHECK(Option == 0);
    CHECK(SavedAgain().ends_with("\r\n4\r\n 0 \r\n"));
}

TEST_CASE("any draft but 0 checks the box and is saved as 1")
{
    BoringLines lines;
    lines.tail = {"1", "-7"};
    OpenText(lines.File());
    CHECK(Check1);
    CHECK(SavedAgain().ends_with("\r\n1\r\n 1 \r\n"));
}

TEST_CASE("a boring that failed to be read fills the boxes with what was read, in one message")
{
    BoringLines lines;
    lines.name = "B-1";
    for (int i = 1; i <= 101; ++i)
        for (int column = 1; column <= 4; ++column)
            lines.lith.push_back(std::to_string(i));
    OpenText(lines.File());
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 9 in OpenBoringFile2.  Please contact Norvane");
    CHECK(Text1 == "B-1");
    CHECK(SSLith.Cell(100, 1) == "100");
}

TEST_CASE("a refused file leaves empty boxes under its name, and a save writes over it")
{
    OpenText("hello\r\n");
    CHECK(Messages.size() == 1);
    CHECK(Text1 == "");
    CHECK(BoringFileName == Scratch("B.BOR"));
    SaveBoringFile();
    CHECK(ReadScratch("B.BOR").starts_with("5.0.12\r\n"));
}

TEST_CASE("New empties every box and the record, and the flag")
{
    BoringLines lines;
    lines.name = "B-1";
    lines.mapFile = "m";
    lines.layoutFile = "a.lay";
    lines.info[59] = lines.scale[6] = lines.sampleSetup[143] = lines.genSetup[159] = lines.genWell[13] = "x";
    lines.sampleSetup[0] = "Moisture";
    lines.repParts = {"USCS", ".25"};
    lines.samples = lines.params = BoringLines::Block(21, "x");
    lines.lith = lines.cuttings = BoringLines::Block(4, "x");
    lines.outer = lines.inner = BoringLines::Block(5, "x");
    lines.wellInfo = lines.legend = lines.formations = BoringLines::Block(2, "x");
    lines.des = lines.wellNotes = lines.remarks = {"x"};
    lines.bottNotes[0] = lines.client[0] = "x";
    lines.tail = {"2", "1"};
    OpenText(lines.File());
    CHECK(FileChanged == 1);
    ClearBoringForm();
    for (const Grid* grid : {&SSInfo, &SSScale, &SSRepParts, &SSP1Setup, &SSP2Setup, &SSPar, &SSSamp, &SSLith,
                             &SSGenWellInfo, &SSOuterLay, &SSInnerLay, &SSW, &SSCuttings, &SSFormations, &SSLegend})
        CHECK(grid->DataRowCount() == 0);
    for (const Memo* box : {&MemoDes, &MemoWcon, &MemoRemarks, &MemoBottNotes})
        CHECK(box->text == "");
    CHECK(txtClient == "");
    CHECK(Text1 == "");
    CHECK(Text2 == "");
    CHECK(cmbLayFile == "");
    CHECK_FALSE(Check1);
    CHECK(Option == 0);
    CHECK(lblWidthtot == "       ");
    CHECK(SSSamp.headings[6] == "Param. 1");
    CHECK(SSSamp.headings[21] == "Param. 16");
    CHECK(SSPar.headings[2] == "Param. 1");
    CHECK(SSPar.headings[21] == "Param. 20");
    CHECK(BoringData.Name == "");
    CHECK(FileChanged == 0);
}

// The width cell of the first report part after the editor's pass.
static Text WidthAfter(const Text& item, const Text& width)
{
    SSRepParts.Clear();
    SSRepParts.Cell(1, 1) = item;
    SSRepParts.Cell(1, 2) = width;
    BorTextChange();
    return SSRepParts.Cell(1, 2);
}

TEST_CASE("a blank width becomes the item's usual one, and others show that they have none of their own")
{
    const std::pair<const char*, const char*> usual[] = {{"descriptions", "3"}, {"Well construction info", "2"},
                                                         {"remarks", "1.4"},    {"P1", ".4"},
                                                         {"P12G", ".4"},        {"gp3", ".5"},
                                                         {"USCS", ".25"},       {"graphic", ".25"},
                                                         {"MPG1-2", "1.6"},     {"depth scale", ".4"}};
    for (const auto& [item, width] : usual) {
        CHECK(WidthAfter(item, "") == width);
        CHECK(WidthAfter(item, " - ") == width);
        CHECK(WidthAfter(item, "2.5") == "2.5");
    }
    for (const char* const item : {"GPG3", "blow count", "elevation scale", "xyz", "well diagram", "USCSx"})
        CHECK(WidthAfter(item, "1.5") == "-");
    CHECK(Messages.empty());
    CHECK(FileChanged == 1);
}

TEST_CASE("a blank row between two items gets a dash")
{
    SSRepParts.Cell(1, 1) = "USCS";
    SSRepParts.Cell(3, 1) = "graphic";
    BorTextChange();
    CHECK(SSRepParts.Cell(2, 2) == "-");
    CHECK(BoringData.RepPartCount == 3);
    CHECK(BoringData.RepParts[2].Width == "-");
}

TEST_CASE("widths out of their limits are told at each change, the box is sized within them, the cell stays")
{
    struct Case {
        const char* item;
        const char* width;
        const char* words;
        const Memo& box;
        int twips;
    };
    const Case cases[] = {
        {"descriptions", "5", "The width of the description box must not exceed 3.6 inches.", MemoDes, 5680},
        {"descriptions", "1.9", "The width of the description box must be at least 2 inches.", MemoDes, 3200},
        {"well const. info", "3.1", "The width of the WELL CONSTRUCTION column must not exceed 3 inches.", MemoWcon,
         5330},
        {"well construction", ".9", "The width of the WELL CONSTRUCTION column must be at least 1 inch.", MemoWcon,
         1830},
        {"remarks", "3.5", "The width of the REMARKS column must not exceed 3 inches.", MemoRemarks, 5330},
        {"remarks", ".4", "The width of the REMARKS column must be at least 0.5 inches.", MemoRemarks, 955},
    };
    for (const Case& one : cases) {
        for (int change = 0; change < 2; ++change) {
            Messages.clear();
            CHECK(WidthAfter(one.item, one.width) == one.width);
            REQUIRE(Messages.size() == 1);
            CHECK(Messages[0].words == one.words);
            CHECK(Messages[0].buttons == OkOnly);
            CHECK(Messages[0].icon == NoIcon);
            CHECK(one.box.widthTwips == one.twips);
        }
    }
}

TEST_CASE("widths at their limits are in them")
{
    for (const auto& [item, width] : {std::pair("descriptions", "2"),
                                      {"descriptions", "3.6"},
                                      {"well const. info", "1"},
                                      {"well const. info", "3"},
                                      {"remarks", "0.5"},
                                      {"remarks", "3"}})
        WidthAfter(item, width);
    CHECK(Messages.empty());
}

TEST_CASE("the text boxes are as wide as their columns less a margin, with the adjustments of the set-up")
{
    DeviceConfig.TextAdjust[1] = 50;
    DeviceConfig.TextAdjust[2] = -100;
    DeviceConfig.TextAdjust[3] = 150;
    SSRepParts.Cell(1, 1) = "descriptions";
    SSRepParts.Cell(1, 2) = "2.65";
    SSRepParts.Cell(2, 1) = "well construction info";
    SSRepParts.Cell(3, 1) = "REMARKS";
    BorTextChange();
    CHECK(MemoDes.widthTwips == 4258);     // 2.55 x 1550 + 50 + 255 = 4257.5
    CHECK(MemoWcon.widthTwips == 3480);    // 1.9 x 1750 - 100 + 255
    CHECK(MemoRemarks.widthTwips == 2680); // 1.3 x 1750 + 150 + 255
}

TEST_CASE("a stored line always fits the printed column")
{
    // 2.55 inches of 8 points, however the words fall.
    SSRepParts.Cell(1, 1) = "descriptions";
    SSRepParts.Cell(1, 2) = "2.6";
    BorTextChange();
    CHECK(MemoDes.widthTwips == 4130); // 2.5 x 1550 + 255
    CHECK(MemoDes.Room() == 46080);    // 2.5 inches of 1/2048 of 8 points
}

TEST_CASE("the total width is the sum of the columns, a first depth scale less 0.4, against the page")
{
    SSRepParts.Cell(1, 1) = "depth scale";
    SSRepParts.Cell(1, 2) = ".4";
    SSRepParts.Cell(2, 1) = "descriptions";
    SSRepParts.Cell(2, 2) = "3";
    SSRepParts.Cell(3, 1) = "depth scale";
    SSRepParts.Cell(3, 2) = ".4";
    SSRepParts.Cell(4, 1) = "blow count";
    SSRepParts.Cell(5, 1) = "graphic";
    SSRepParts.Cell(6, 1) = "P1";
    SSRepParts.Cell(6, 2) = "2.5";
    BorTextChange();
    CHECK(lblWidthtot == "6.35/6.8");
    LayoutData.Orientation = 1;
    BorTextChange();
    CHECK(lblWidthtot == "6.35/9.2");
    LayoutData.Orientation = 2;
    SSRepParts.Clear();
    BorTextChange();
    CHECK(lblWidthtot == "0/15.2");
}

TEST_CASE("well names widen the well diagram in the total")
{
    SSRepParts.Cell(1, 1) = "well diagram";
    BorTextChange();
    CHECK(lblWidthtot == "1.6/6.8");
    for (int row = 1; row <= 4; ++row)
        SSGenWellInfo.Cell(row, 1) = "W";
    BorTextChange();
    CHECK(lblWidthtot == "1.96/6.8");
}

static std::string Layout(int orientation, int code)
{
    std::string file = IntegerField(orientation) + "\r\n";
    for (int i = 1; i <= 12; ++i)
        file += IntegerField(i == 7 ? code : 0) + "\r\n";
    return file;
}

TEST_CASE("the general notes box is narrow or wide by the layout, and stays where the layout has no notes")
{
    WriteScratch("narrow.lay", Layout(0, 10));
    WriteScratch("wide.lay", Layout(1, 11));
    WriteScratch("none.lay", Layout(2, 0));
    const auto width = [](const Text& layout) {
        cmbLayFile = layout;
        LayoutFileChange();
        return MemoBottNotes.widthTwips;
    };
    CHECK(width("narrow.lay") == 6200);
    CHECK(FileChanged == 1);
    CHECK(LayoutData.Orientation == 0);
    CHECK(width("none.lay") == 6200);
    CHECK(LayoutData.Orientation == 2);
    CHECK(width("wide.lay") == 8010);
    CHECK(LayoutData.Orientation == 1);
    CHECK(width("none.lay") == 8010);
    CHECK(Messages.empty());
}

TEST_CASE("a layout that stands only in the layout folder is not found, and the notes box keeps its width")
{
    std::filesystem::create_directory(Scratch("layouts"));
    WriteScratch("layouts/narrow.lay", Layout(1, 10));
    DeviceConfig.SystemFiles[LayoutFolder] = Scratch("layouts");
    cmbLayFile = "narrow.lay";
    LayoutFileChange();
    CHECK(MemoBottNotes.widthTwips == 8010);
    CHECK(LayoutData.Orientation == 0);
    CHECK(Messages.empty());
}

TEST_CASE("of two kinds of notes in a layout the later one counts, and a short layout is told")
{
    WriteScratch("both.lay", Lines({"0", "11", "0", "10", "0", "0", "0", "0", "0", "0", "0", "0", "0"}));
    cmbLayFile = "both.lay";
    LayoutFileChange();
    CHECK(NarrowNotes);
    WriteScratch("short.lay", Lines({"0", "11"}));
    cmbLayFile = "short.lay";
    LayoutFileChange();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 62 in findbottnotewidth.  Please contact Norvane");
    CHECK_FALSE(NarrowNotes);
}

TEST_CASE("the codes of a layout are rounded when the notes box asks for them, and one beyond 16 bits is told")
{
    const auto layout = [](const Text& code) {
        WriteScratch("a.lay", Lines({"0", "0", code, "0", "0", "0", "0", "0", "0", "0", "0", "0", "0"}));
        cmbLayFile = "a.lay";
        LayoutFileChange();
        return MemoBottNotes.widthTwips;
    };
    CHECK(layout("10.4") == 6200);
    CHECK(layout("10.6") == 8010);
    CHECK(layout("9.5") == 6200); // a half goes to the even number
    CHECK(layout("11.4") == 8010);
    CHECK(layout("9.4") == 8010);
    CHECK(Messages.empty());
    layout("40000");
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 6 in findbottnotewidth.  Please contact Norvane");
}

TEST_CASE("adjustments widen the notes boxes up to their limits")
{
    DeviceConfig.TextAdjust[4] = 450;
    DeviceConfig.TextAdjust[5] = 250;
    ResetTextBoxes();
    CHECK(MemoBottNotes.widthTwips == 8460);
    CHECK(frmSoil::MemoSoil.widthTwips == 7050);
    NarrowNotes = true;
    DeviceConfig.TextAdjust[4] = 550;
    DeviceConfig.TextAdjust[5] = 4000;
    ResetTextBoxes();
    CHECK(MemoBottNotes.widthTwips == 6700);
    CHECK(frmSoil::MemoSoil.widthTwips == 10000);
    NarrowNotes = false;
    DeviceConfig.TextAdjust[4] = 1000;
    ResetTextBoxes();
    CHECK(MemoBottNotes.widthTwips == 9000);
}

TEST_CASE("notes in the first or the last place of a layout size the notes box too")
{
    for (const int place : {1, 12}) {
        std::string layout = " 0 \r\n";
        for (int i = 1; i <= 12; ++i)
            layout += i == place ? " 11 \r\n" : " 0 \r\n";
        WriteScratch("P.LAY", layout);
        MemoBottNotes.widthTwips = 1;
        cmbLayFile = "P.LAY";
        LayoutFileChange();
        CHECK(MemoBottNotes.widthTwips > 1);
    }
}

TEST_CASE("a style beyond the four switches no option on")
{
    for (const auto& [style, option] : {std::pair(0, 0), {1, 1}, {4, 4}, {5, 0}, {-1, 0}}) {
        BoringData = BoringRecord();
        BoringData.Style = int16_t(style);
        FillBoringForm();
        CHECK(Option == option);
    }
}

TEST_CASE("a boring that was never saved has no page; another one has those of its scale")
{
    ClearBoringForm();
    CHECK(PageWords() == "no page");
    SSScale.Cell(1, 1) = "40";
    SSScale.Cell(3, 1) = "20";
    CHECK(PageWords() == "no page");
    BoringFileName = "B.BOR";
    CHECK(PageWords() == "2 pages");
    SSScale.Cell(3, 1) = "";
    CHECK(PageWords() == "1 page");
}

TEST_CASE("behind the layout editor the page of the layout in use counts again, as it is by then")
{
    WriteScratch("mine.lay", "1\n10\n");
    ClearBoringForm();
    cmbLayFile = Scratch("mine.lay");
    LayoutFileChange();
    WidthAfter("REMARKS", "2");
    CHECK(lblWidthtot == "2/9.2");
    CHECK(MemoBottNotes.widthTwips == 6200);
    FileChanged = 0;
    EditLayouts([] { LayoutData.Orientation = 2; }); // another one was looked at
    CHECK(lblWidthtot == "2/9.2");
    EditLayouts([] {
        LayoutData.Orientation = 2;
        WriteScratch("mine.lay", "0\n11\n");
    });
    CHECK(lblWidthtot == "2/6.8");
    CHECK(MemoBottNotes.widthTwips == 8010);
    CHECK(FileChanged == 0);
}

TEST_CASE("behind the layout editor a boring without a layout file has the page that it had")
{
    ClearBoringForm();
    LayoutData.Orientation = 0;
    WidthAfter("REMARKS", "2");
    EditLayouts([] { LayoutData.Orientation = 1; });
    CHECK(lblWidthtot == "2/6.8");
    ClearBoringForm();
    EditLayouts([] { LayoutData.Orientation = 1; });
    CHECK(lblWidthtot == "       ");
}

TEST_CASE("a change of the font marks a boring as changed, but not an empty one")
{
    Platform.ShowGraphicsSetup = ResetTextBoxes;
    ClearBoringForm();
    CHECK(BoringEmpty());
    SetUpGraphics(BoringEmpty());
    CHECK(FileChanged == 0);
    MemoRemarks.text = "x";
    CHECK_FALSE(BoringEmpty());
    SetUpGraphics(BoringEmpty());
    CHECK(FileChanged == 1);
    MemoRemarks.text = "";
    SSLegend.Cell(30, 2) = "x";
    CHECK_FALSE(BoringEmpty());
}
