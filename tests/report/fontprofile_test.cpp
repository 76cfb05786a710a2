// fontprofile_test.cpp -- fonts, profiles, the set-up window without its widgets, and the copy of the system files.
#include "report/fontprofile.h"

#include "boring/boringboxes.h"
#include "boring/projectlist.h"
#include "session/deviceconfig.h"
#include "session/files.h"
#include "session/session.h"
#include "testing.h"

using frmPrinterSetup::Dialog;

static int resets, itemLoads;

static void OpenSetup()
{
    resets = itemLoads = 0;
    SetupChange.ResetTextBoxes = [] { ++resets; };
    SetupChange.loaddeslists = [] { ++itemLoads; };
    frmPrinterSetup::Load();
}

static void Adjust(std::initializer_list<int> values)
{
    int i = 0;
    for (const int value : values)
        DeviceConfig.TextAdjust[++i] = int16_t(value);
}

static std::vector<int> Adjustments()
{
    std::vector<int> values;
    for (int i = 1; i <= 5; ++i)
        values.push_back(DeviceConfig.TextAdjust[i]);
    return values;
}

static const std::vector<int> noAdjustments(5);

// ---- The font

TEST_CASE("the font of the set-up goes to every box whose text reaches the drawings, and an empty one is Arial")
{
    using namespace frmBorinput;
    for (const char* name : {"Courier", ""}) {
        DeviceConfig.FontName = name;
        AssignFont();
        const Text font = *name ? name : "Arial";
        CHECK(DeviceConfig.FontName == font);
        CHECK(Text1Font == font);
        CHECK(txtClientFont == font);
        for (const Memo* box : {&MemoDes, &MemoWcon, &MemoRemarks, &MemoBottNotes, &frmSoil::MemoSoil})
            CHECK(box->fontName == font);
        for (const Grid* grid : {&SSInfo, &SSScale, &SSRepParts, &SSP1Setup, &SSP2Setup, &SSPar, &SSSamp, &SSLith,
                                 &SSGenWellInfo, &SSOuterLay, &SSInnerLay, &SSW, &SSCuttings, &SSFormations, &SSLegend})
            CHECK(grid->fontName == font);
    }
}

TEST_CASE("a font breaks no line anew: the boxes wrap as the printed columns do")
{
    frmBorinput::MemoDes.text = "Sand, fine to medium, silty, light brown, moist, loose to medium dense, with roots";
    const std::vector<Text> lines = frmBorinput::MemoDes.DisplayLines();
    DeviceConfig.FontName = "Courier";
    AssignFont();
    CHECK(frmBorinput::MemoDes.DisplayLines() == lines);
}

// ---- Opening

TEST_CASE("the set-up window shows the font, the offsets, the system files and the adjustments in steps of 50")
{
    DeviceConfig.FontName = "Courier";
    DeviceConfig.MarginOffsets = "5,-7";
    Adjust({0, 50, -100, 0, 0});
    OpenSetup();
    CHECK(Dialog.fontText == "Courier");
    CHECK(Dialog.marginText == "5,-7");
    CHECK(Dialog.adjustText == " 0, 1,-2, 0, 0");
    CHECK(frmPrinterSetup::SSMainFilePath.rowHeadings ==
          std::vector<Text>{"", "Heading File", "Project List File", "Desc. Item File", "Path to Layout Files",
                            "Path to Logo Files", "Path to Profile Files", "Path to Fill Files"});
    for (int i = 1; i <= 7; ++i)
        CHECK(frmPrinterSetup::SSMainFilePath.Cell(i, 1) == DeviceConfig.SystemFiles[i]);
    Adjust({25, -75, 900, 1, 0});
    OpenSetup();
    CHECK(Dialog.adjustText == " .5,-1.5, 18, .02, 0");
}

// ---- OK

TEST_CASE("OK with nothing changed writes device.cfg, and touches neither boxes nor lists")
{
    Adjust({50, 0, 0, 0, 0});
    OpenSetup();
    frmPrinterSetup::Command1();
    CHECK(FileExists("device.cfg"));
    CHECK(Adjustments() == std::vector<int>{50, 0, 0, 0, 0});
    CHECK(resets == 0);
    CHECK(itemLoads == 0);
    CHECK(frmBorinput::Text1Font == "");
    CHECK(Messages.empty());
}

TEST_CASE("another font without a profile resets all adjustments to 0, and the boxes")
{
    Adjust({50, 100, 0, 0, -50});
    OpenSetup();
    Dialog.fontText = "Courier";
    frmPrinterSetup::Command1();
    CHECK(DeviceConfig.FontName == "Courier");
    CHECK(frmBorinput::MemoDes.fontName == "Courier");
    CHECK(Adjustments() == noAdjustments);
    CHECK(resets == 1);
    LineReader device("device.cfg");
    device.Skip(2);
    CHECK(device.Line() == "Courier");
    CHECK(device.Line() == " 0 ");
}

TEST_CASE("a font that the printer lacks is told, letter for letter, and the old font stays")
{
    Adjust({50, 0, 0, 0, 0});
    for (const char* name : {"Nonesuch", "arial", ""}) {
        Messages.clear();
        OpenSetup();
        Dialog.fontText = name;
        frmPrinterSetup::Command1();
        REQUIRE(Messages.size() == 1);
        CHECK(Messages[0].words ==
              "Font: " + Text(name) + " is not available for your printer.  Please select another.");
        CHECK(Messages[0].buttons == OkOnly);
        CHECK(Messages[0].icon == NoIcon);
        CHECK(DeviceConfig.FontName == "Arial");
        CHECK(Adjustments() == std::vector<int>{50, 0, 0, 0, 0});
        CHECK(resets == 0);
    }
}

TEST_CASE("margin offsets are clamped to 2 inches, and device.cfg keeps what was typed")
{
    OpenSetup();
    Dialog.marginText = "5,-7";
    frmPrinterSetup::Command1();
    CHECK(DeviceConfig.MarginX == 2);
    CHECK(DeviceConfig.MarginY == -2);
    LineReader device("device.cfg");
    device.Skip(1);
    CHECK(device.Line() == "5,-7");
    OpenSetup();
    Dialog.marginText = "1";
    frmPrinterSetup::Command1();
    CHECK(DeviceConfig.MarginX == 0);
    CHECK(DeviceConfig.MarginY == 0);
}

TEST_CASE("another project list is read at once, and one that does not exist is empty")
{
    WriteScratch("other.lst", Lines({" 1 ", "Harbour", "/srv"}));
    OpenSetup();
    frmPrinterSetup::SSMainFilePath.Cell(2, 1) = "other.lst";
    frmPrinterSetup::Command1();
    CHECK(ProjectCount == 1);
    CHECK(DeviceConfig.SystemFiles[ProjectListFile] == "other.lst");
    OpenSetup();
    frmPrinterSetup::SSMainFilePath.Cell(2, 1) = "none.lst";
    frmPrinterSetup::Command1();
    CHECK(ProjectCount == 0);
}

TEST_CASE("another description item file and another layout folder are read at once, each for itself")
{
    std::filesystem::create_directories(Scratch("layouts"));
    WriteScratch("layouts/well.lay", "");
    WriteScratch("svproj.lst", Lines({" 1 ", "Harbour", "/srv"}));
    OpenSetup();
    frmPrinterSetup::SSMainFilePath.Cell(3, 1) = "other.txt";
    frmPrinterSetup::Command1();
    CHECK(itemLoads == 1);
    CHECK(frmBorinput::LayFiles.empty());
    OpenSetup();
    frmPrinterSetup::SSMainFilePath.Cell(4, 1) = Scratch("layouts");
    frmPrinterSetup::Command1();
    CHECK(itemLoads == 0);
    CHECK(frmBorinput::LayFiles == std::vector<Text>{"well.lay"});
    CHECK(ProjectCount == 0); // the project list is the same as before, so it was not read
}

// ---- Font dialog and profiles

TEST_CASE("a font that is chosen is shown and resets the adjustments at once; the font itself changes with OK")
{
    Adjust({50, 0, 0, 0, 0});
    OpenSetup();
    Platform.ChooseFont = [](const Text& font) { return font == "Arial" ? Text("Courier") : Text(); };
    frmPrinterSetup::Command4();
    CHECK(Dialog.fontText == "Courier");
    CHECK(Dialog.adjustText == "0, 0, 0, 0, 0");
    CHECK(Adjustments() == noAdjustments);
    CHECK(resets == 1);
    CHECK(DeviceConfig.FontName == "Arial");
    frmPrinterSetup::Command1();
    CHECK(DeviceConfig.FontName == "Courier");
}

TEST_CASE("a font dialog that is cancelled changes nothing")
{
    Adjust({50, 0, 0, 0, 0});
    OpenSetup();
    frmPrinterSetup::Command4();
    CHECK(Dialog.fontText == "Arial");
    CHECK(Dialog.adjustText == " 1, 0, 0, 0, 0");
    CHECK(Adjustments() == std::vector<int>{50, 0, 0, 0, 0});
    CHECK(resets == 0);
}

static void Answer(const char* name)
{
    static Text answer;
    answer = *name ? Scratch(name) : "";
    Platform.ShowChooser = [] { DialogResult = answer; };
}

TEST_CASE("after a profile is opened its adjustments stay when its font becomes the font of the set-up")
{
    WriteScratch("laser.prf", Lines({"Courier", " 100 ", " 0 ", "-50 ", " 0 ", " 0 "}));
    Adjust({50, 50, 50, 50, 50});
    OpenSetup();
    Answer("laser.prf");
    frmPrinterSetup::mnuOpen();
    CHECK(DialogMode == 14);
    CHECK(Dialog.fontText == "Courier");
    CHECK(Dialog.adjustText == " 2, 0,-1, 0, 0");
    CHECK(Adjustments() == std::vector<int>{100, 0, -50, 0, 0});
    CHECK(DeviceConfig.FontName == "Arial");
    frmPrinterSetup::Command1();
    CHECK(DeviceConfig.FontName == "Courier");
    CHECK(Adjustments() == std::vector<int>{100, 0, -50, 0, 0});
    CHECK(resets == 1);
}

TEST_CASE("a profile of the font in use sizes the boxes by its adjustments too")
{
    WriteScratch("laser.prf", Lines({"Arial", " 100 ", " 0 ", "-50 ", " 0 ", " 0 "}));
    OpenSetup();
    Answer("laser.prf");
    frmPrinterSetup::mnuOpen();
    frmPrinterSetup::Command1();
    CHECK(Adjustments() == std::vector<int>{100, 0, -50, 0, 0});
    CHECK(resets == 1);
}

TEST_CASE("a profile that is too short or missing is a failure, and the adjustments stay")
{
    WriteScratch("short.prf", Lines({"Courier", " 100 "}));
    Adjust({50, 0, 0, 0, 0});
    OpenSetup();
    Answer("short.prf");
    CHECK(FailureOf(frmPrinterSetup::mnuOpen) == 62);
    Answer("missing.prf");
    CHECK(FailureOf(frmPrinterSetup::mnuOpen) == 53);
    CHECK(Adjustments() == std::vector<int>{50, 0, 0, 0, 0});
    CHECK(Dialog.fontText == "Arial");
    CHECK_FALSE(Dialog.profileLoaded);
}

TEST_CASE("a profile holds the font and five integers; its name gets the ending that it lacks, and replaces a file")
{
    std::filesystem::create_directories(Scratch("v1.2"));
    Adjust({0, 50, -100, 0, 0});
    OpenSetup();
    Answer("v1.2/laser");
    frmPrinterSetup::mnuSave();
    CHECK(DialogMode == 15);
    CHECK(ReadScratch("v1.2/laser.PRF") == Lines({"Arial", " 0 ", " 50 ", "-100 ", " 0 ", " 0 "}));
    WriteScratch("old.prf", "old");
    Answer("old.prf");
    frmPrinterSetup::mnuSave();
    CHECK(ReadScratch("old.prf") == ReadScratch("v1.2/laser.PRF"));
    CHECK(Messages.empty());
}

TEST_CASE("a chooser that is cancelled opens and saves no profile")
{
    OpenSetup();
    Answer("");
    frmPrinterSetup::mnuOpen();
    frmPrinterSetup::mnuSave();
    CHECK_FALSE(Dialog.profileLoaded);
    CHECK(std::filesystem::is_empty(ScratchFolder()));
}

// ---- The copy

TEST_CASE(
    "the system files are copied: logo, lists, headings, layouts, logo pictures and profiles, by their bare names")
{
    for (const char* folder : {"to", "lists", "layouts", "logos", "profiles"})
        std::filesystem::create_directories(Scratch(folder));
    for (const char* name :
         {"logo.txt", "us.hdg", "MY.HDG", "here.lay", "here.bmp", "device.cfg", "lists/office.lst", "items.txt",
          "layouts/well.LAY", "layouts/note.txt", "logos/LOGO.bmp", "profiles/laser.prf"})
        WriteScratch(name, name);
    DeviceConfig.SystemFiles[ProjectListFile] = Scratch("lists/office.lst");
    DeviceConfig.SystemFiles[DescItemFile] = "items.txt";
    DeviceConfig.SystemFiles[LayoutFolder] = Scratch("layouts/"); // with and without a separator
    DeviceConfig.SystemFiles[LogoFolder] = Scratch("logos");
    DeviceConfig.SystemFiles[ProfileFolder] = Scratch("profiles");
    CopyDestination = Scratch("to");
    frmPrinterSetup::Command5();
    REQUIRE(Messages.size() == 2);
    CHECK(Messages[0].words ==
          "This utility copies files for your logo, project list, description item text, layouts, headings, and font "
          "profiles to a floppy drive so that they can be transfered to a new computer.  Please insert a diskette into "
          "the A: drive and click 'OK' when ready.");
    CHECK(Messages[0].buttons == OkCancel);
    CHECK(Messages[1].words == "All Files Copied.");
    CHECK(FilesIn(Scratch("to"), "") == std::vector<Text>{"items.txt", "laser.prf", "LOGO.bmp", "logo.txt", "MY.HDG",
                                                          "office.lst", "us.hdg", "well.LAY"});
    CHECK(ReadScratch("to/office.lst") == "lists/office.lst");
}

TEST_CASE("a copy that is cancelled copies nothing; lists that do not exist are passed over")
{
    std::filesystem::create_directories(Scratch("to"));
    WriteScratch("us.hdg", "heading");
    CopyDestination = Scratch("to/");
    Answers = {Cancel};
    CopyMainFiles();
    CHECK(Messages.size() == 1);
    CHECK(std::filesystem::is_empty(Scratch("to")));
    CopyMainFiles();
    CHECK(FilesIn(Scratch("to"), "") == std::vector<Text>{"us.hdg"});
    CHECK(Messages.back().words == "All Files Copied.");
}

TEST_CASE("a copy to a drive that is not there is reported under its own name")
{
    WriteScratch("logo.txt", "logo");
    CHECK(CopyDestination == "a:\\");
    CopyMainFiles();
    CHECK(Messages.back().words == "Error 76 in CopyMainFiles.  Please contact Norvane");
}

TEST_CASE("the first and the last of the system files are taken from the set-up window too")
{
    OpenSetup();
    frmPrinterSetup::SSMainFilePath.Cell(1, 1) = "office.hdg";
    frmPrinterSetup::SSMainFilePath.Cell(7, 1) = "office fills";
    frmPrinterSetup::Command1();
    CHECK(DeviceConfig.SystemFiles[HeadingFile] == "office.hdg");
    CHECK(DeviceConfig.SystemFiles[FillFolder] == "office fills");
    LineReader in("device.cfg");
    in.Skip(8);
    CHECK(in.Line() == "office.hdg");
    in.Skip(5);
    CHECK(in.Line() == "office fills");
}
