// gtgsgeneral_test.cpp -- the general GTGS conversion: its map, its file, its editor and the conversion.
#include "convert/gtgsgeneral.h"

#include "convert/converted.h"
#include "convert/gtgsgeneditor.h"

#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/session.h"

static Text Created(const Text& name)
{
    return "New Boring File Created:  " + Scratch(name);
}

static void UseMap(const Text& name)
{
    CopyData("general");
    OpenGTGSConversionFile(Scratch(name));
    CHECK(Told() == std::vector<Text>());
}

// With a map of the test's own: fields 1, 2 are boring information 1 and 2, and the template is there.
static void OwnMap()
{
    CopyData("general");
    GtgsMapping = GtgsMappingRecord();
    GtgsMapping.templateFile = "template.BOR";
    GtgsMapping.fieldMap[1] = {BoringInfo, 1};
    GtgsMapping.fieldMap[2] = {BoringInfo, 2};
}

TEST_CASE("text tables by a map become one boring file, byte for byte the kept one")
{
    UseMap("comma.GCV");
    CHECK(ConvertGTGSGeneral(NameFromHeaders) == Scratch("GB-7.bor"));
    CHECK(Told() == std::vector<Text>{Created("GB-7.bor")});
    CHECK(Messages[0].icon == Announcement);
    CheckKept("GB-7.bor", "general/kept/GB-7.bor", " 0", " 0");
}

TEST_CASE("fields of fixed length by a map become the kept file")
{
    UseMap("fixed.GCV");
    ConvertGTGSGeneral(Scratch("fixed.bor"));
    CHECK(Told() == std::vector<Text>{Created("fixed.bor")});
    CheckKept("fixed.bor", "general/kept/fixed.bor", " 0", " 0");
}

TEST_CASE("fields go where the map says, trimmed, and the well information grows to the rows that it names")
{
    UseMap("comma.GCV");
    ConvertGTGSGeneral(NameFromHeaders);
    Open("GB-7.bor");
    CHECK(BoringData.Name == "GB-7");
    CHECK(BoringData.Client[1] == "Client A");
    CHECK(BoringData.Client[2] == "North");
    CHECK(BoringData.Info[3][1] == "Prompt 3");
    CHECK(BoringData.Info[3][2] == "K.Weber");
    CHECK(BoringData.Info[1][2] == "");
    CHECK(BoringData.GenWell[5] == "101.25");
    CHECK(BoringData.WellInfoCount == 7);
    CHECK(BoringData.WellInfo[3][2] == "Drilled");
    CHECK(BoringData.WellInfo[7][2] == "Developd");
    CHECK(BoringData.WellInfo[1][1] == "");
}

TEST_CASE("the well information grows to the highest row that a map names, in whatever order it names them")
{
    for (const auto& [first, second] : {std::pair<int, int>(7, 3), {3, 7}, {7, 7}}) {
        OwnMap();
        GtgsMapping.fixedFields = 0;
        GtgsMapping.fieldSpec = 1;
        GtgsMapping.fieldMap[1] = {WellConstInfo, int16_t(first)};
        GtgsMapping.fieldMap[2] = {WellConstInfo, int16_t(second)};
        WriteScratch("headers.txt", "one,two");
        ConvertGTGSGeneral(Scratch("x.bor"));
        Open("x.bor");
        CHECK(BoringData.WellInfoCount == 7);
        CHECK(BoringData.WellInfo[second][2] == "two");
        std::filesystem::remove_all(ScratchFolder());
        std::filesystem::create_directories(ScratchFolder());
    }
}

TEST_CASE("fill codes are translated by the first row that fits, and others stay; blank lines are skipped")
{
    UseMap("comma.GCV");
    ConvertGTGSGeneral(NameFromHeaders);
    Open("GB-7.bor");
    REQUIRE(BoringData.LithCount == 4);
    const char* const soils[] = {"FB", "CL", "SM", "99"};
    for (int row = 1; row <= 4; ++row)
        CHECK(BoringData.Lith[row][2] == soils[row - 1]);
    CHECK(BoringData.Lith[2][1] == "9.0");
}

TEST_CASE("a row of the fills without a code fits no contact, not even one that has none either")
{
    OwnMap();
    GtgsMapping.fillMap[1] = {"  ", "XX"};
    GtgsMapping.fillMap[2] = {"7", "YY"};
    WriteScratch("lith.txt", "5\r\n9 7\r\n");
    ConvertGTGSGeneral(Scratch("x.bor"));
    Open("x.bor");
    REQUIRE(BoringData.LithCount == 2);
    CHECK(BoringData.Lith[1][1] == "5");
    CHECK(BoringData.Lith[1][2] == "");
    CHECK(BoringData.Lith[2][2] == "YY");
}

TEST_CASE("well lines begin with cap, case, seal or fseal, and the value takes the rest")
{
    UseMap("comma.GCV");
    ConvertGTGSGeneral(NameFromHeaders);
    Open("GB-7.bor");
    REQUIRE(BoringData.InnerLayerCount == 2);
    REQUIRE(BoringData.OuterLayerCount == 2);
    CHECK(BoringData.InnerLayers[1][3] == "Cap");
    CHECK(BoringData.InnerLayers[2][1] == "0");
    CHECK(BoringData.InnerLayers[2][2] == "5");
    CHECK(BoringData.InnerLayers[2][3] == "Case 2in. ID SCH.40");
    CHECK(BoringData.OuterLayers[1][3] == "Seal concrete");
    CHECK(BoringData.OuterLayers[2][3] == "Seal");
    CHECK(BoringData.DesCount == 6);
}

TEST_CASE("fields are separated by commas, tabs, or blanks for any other number")
{
    for (const auto& [separator, line] :
         {std::pair<int, const char*>(1, "a b,c"), {0, "a b\tc"}, {2, "a c"}, {3, "a c"}}) {
        OwnMap();
        GtgsMapping.fixedFields = 0;
        GtgsMapping.fieldSpec = int16_t(separator);
        WriteScratch("headers.txt", line);
        ConvertGTGSGeneral(Scratch("x.bor"));
        Open("x.bor");
        CHECK(BoringData.Info[1][2].starts_with("a"));
        CHECK(BoringData.Info[2][2] == "c");
        std::filesystem::remove_all(ScratchFolder());
        std::filesystem::create_directories(ScratchFolder());
    }
}

TEST_CASE("an unknown kind is passed over, number 0 is lost, and a number above its bound is a failure of headers.txt")
{
    OwnMap();
    GtgsMapping.fixedFields = 0;
    GtgsMapping.fieldMap[1] = {9, 99};
    GtgsMapping.fieldMap[2] = {WellConstInfo, 0};
    ConvertGTGSGeneral(Scratch("x.bor"));
    CHECK(Told() == std::vector<Text>{Created("x.bor")});
    for (const GtgsMappingRecord::Field field :
         {GtgsMappingRecord::Field{ClientInfo, 6}, {BoringInfo, 31}, {WellInfo, 15}, {WellConstInfo, 31}}) {
        GtgsMapping.fieldMap[1] = field;
        Messages.clear();
        CHECK(ConvertGTGSGeneral(Scratch("y.bor")) == "");
        CHECK(Told() == std::vector<Text>{"Error processing headers.txt file:"});
    }
    CHECK_FALSE(FileExists(Scratch("y.bor")));
}

TEST_CASE("a template that is not named, not there or not of the form ends the conversion")
{
    OwnMap();
    const auto told = [](const Text& name) {
        GtgsMapping.templateFile = name;
        Messages.clear();
        CHECK(ConvertGTGSGeneral(Scratch("x.bor")) == "");
        REQUIRE(Messages.size() == 1);
        CHECK(Messages[0].icon == Exclamation);
        return Messages[0].words;
    };
    CHECK(told("") == "Please specify a Boring File to be used as a template for the converted GTGS data.");
    CHECK(told("none") == "The Boring File to be used as a template was not found, please try again.");
    const Text invalid = "The Boring File to be used as a template has an invalid format, please use another.";
    WriteScratch("foreign.bor", "4.6\r\nx\r\n");
    CHECK(told("foreign") == invalid);
    WriteScratch("foreign.bor", "");
    CHECK(told("foreign") == invalid);
    const std::string bytes = ConvertData("general/template.BOR");
    WriteScratch("early.bor", bytes.substr(0, 500));
    CHECK(told("early.Bor") == invalid);
    CHECK_FALSE(FileExists(Scratch("x.bor")));
}

TEST_CASE("a template of an older form has no client lines")
{
    OwnMap();
    GtgsMapping.templateFile = Scratch("old.BOR");
    ConvertGTGSGeneral(Scratch("x.bor"));
    CHECK(Told() == std::vector<Text>{Created("x.bor")});
    Open("x.bor");
    CHECK(BoringData.Client[1] == "");
    CHECK(BoringData.Info[1][1] == "Prompt 1");
}

TEST_CASE("the client lines of a template go by its release as the editor reads it, whatever stands before the number")
{
    OwnMap();
    std::string bytes = ConvertData("general/template.BOR");
    const size_t versionEnd = bytes.find('\r');
    for (const auto& [version, client] : {std::pair<const char*, bool>("5.0.12", true),
                                          {"5.0-12", true},
                                          {"5.0 12", true},
                                          {"5.0112", true},
                                          {"5.0.11", false},
                                          {"5.012", false},
                                          {"5.1.12", false}}) {
        const Text told = version;
        INFO(told);
        WriteScratch("t.BOR", version + bytes.substr(versionEnd));
        Open("t.BOR");
        const Text read = BoringData.Client[1];
        GtgsMapping.templateFile = Scratch("t.BOR");
        ConvertGTGSGeneral(Scratch("x.bor"));
        CHECK(Told() == std::vector<Text>{Created("x.bor")});
        Open("x.bor");
        CHECK(BoringData.Client[1] == read);
        CHECK(read.empty() != client);
        std::filesystem::remove(Scratch("x.bor"));
    }
}

TEST_CASE("a folder that is not there, and each table that is not, are told by their paths")
{
    OwnMap();
    GtgsMapping.textPath = "/none";
    CHECK(ConvertGTGSGeneral(Scratch("x.bor")) == "");
    CHECK(Told() == std::vector<Text>{"Path does not exist: /none"});
    GtgsMapping.textPath = "";
    for (const char* table : {"well.txt", "desc.txt", "lith.txt", "headers.txt"}) {
        std::filesystem::remove(Scratch(table));
        Messages.clear();
        CHECK(ConvertGTGSGeneral(Scratch("x.bor")) == "");
        CHECK(Told() == std::vector<Text>{"File Not Found: " + Scratch(table)});
    }
}

TEST_CASE("a table with too many rows is told by its name")
{
    OwnMap();
    std::string rows;
    for (int i = 1; i <= 1001; ++i)
        rows += "case 1 2 3\r\n";
    for (const char* table : {"well.txt", "desc.txt", "lith.txt"}) {
        WriteScratch(table, rows);
        Messages.clear();
        CHECK(ConvertGTGSGeneral(Scratch("x.bor")) == "");
        CHECK(Told() == std::vector<Text>{Text("Error processing ") + table + " file:"});
    }
    WriteScratch("headers.txt", "");
    Messages.clear();
    ConvertGTGSGeneral(Scratch("x.bor"));
    CHECK(Told() == std::vector<Text>{"Error processing headers.txt file:"});
}

TEST_CASE("without a name in headers.txt the new file is gtgs1.bor, and says so")
{
    OwnMap();
    CHECK(ConvertGTGSGeneral(NameFromHeaders) == Scratch("gtgs1.bor"));
    CHECK(Told() == std::vector<Text>{"Since no boring name was mapped in headers.txt, the new boring file will be "
                                      "saved as GTGS1.BOR",
                                      Created("gtgs1.bor")});
}

TEST_CASE("an existing file is asked about; at No nothing is written and another name is asked for")
{
    OwnMap();
    WriteScratch("x.bor", "older");
    const Text question = "The file, " + Scratch("x.bor") + " already exists.  Do you wish to overwrite it?";
    Answers = {No};
    CHECK(ConvertGTGSGeneral(Scratch("x.bor")) == "");
    CHECK(Told() == std::vector<Text>{question, "Please enter a different filename"});
    CHECK(ReadScratch("x.bor") == "older");
    Answers = {Yes};
    Messages.clear();
    CHECK(ConvertGTGSGeneral(Scratch("x.bor")) != "");
    CHECK(Told() == std::vector<Text>{question, Created("x.bor")});
    CHECK(ReadScratch("x.bor").starts_with("5.0.12"));
}

// ---------------------------------------------------------------------------------------------------- the editor

using namespace frmGTGSGenEditor;

static Text chosen;

static void Choose(const Text& name)
{
    chosen = name;
    Platform.ShowChooser = [] { DialogResult = chosen; };
}

TEST_CASE("a new map has fields of fixed length 0, and the boring's own name for the new file")
{
    frmGTGSGenEditor::Load();
    CHECK(Dialog.Title == "GTGS General Conversion Editor");
    CHECK(Dialog.Option2);
    CHECK(Dialog.Option3);
    Choose(Scratch("new"));
    frmGTGSGenEditor::mnuSaveGTGSConvFile();
    CHECK(Dialog.Title == "GTGS General Conversion Editor - " + Scratch("new.GCV"));
    std::string lines = "\r\n\r\n 2 \r\n 0 \r\n";
    for (int i = 0; i < 50; ++i)
        lines += " 0 \r\n";
    for (int i = 0; i < 50; ++i)
        lines += "\r\n";
    CHECK(ReadScratch("new.GCV") == lines);
}

TEST_CASE("a map that was saved shows the same boxes when it is opened, and is saved as it was")
{
    CopyData("general");
    frmGTGSGenEditor::Load();
    static int mode;
    for (const char* name : {"comma.GCV", "fixed.GCV"}) {
        chosen = Scratch(name);
        Platform.ShowChooser = [] {
            mode = DialogMode;
            DialogResult = chosen;
        };
        frmGTGSGenEditor::mnuOpenGTGSConvFile();
        CHECK(mode == 20);
        CHECK(Dialog.Title == "GTGS General Conversion Editor - " + Scratch(name));
        CHECK(SS1.Cell(1, 1) == "Boring Name");
        CHECK(SS1.Cell(6, 1) == "Well Const. Info");
        CHECK(SS1.Cell(6, 2) == "3");
        CHECK(SS1.Cell(25, 1) == "");
        CHECK(SS2.Cell(1, 2) == "FB");
        const std::vector<Text> fields = SS1.cells, fills = SS2.cells;
        Choose(Scratch("copy"));
        std::filesystem::remove(Scratch("copy.GCV"));
        frmGTGSGenEditor::mnuSaveAs();
        frmGTGSGenEditor::Load();
        Choose(Scratch("copy.GCV"));
        frmGTGSGenEditor::mnuOpenGTGSConvFile();
        CHECK(SS1.cells == fields);
        CHECK(SS2.cells == fills);
    }
    CHECK(Dialog.Option2);
    CHECK(Dialog.Text3 == "8");
    CHECK(ReadScratch("copy.GCV").starts_with("template.BOR\r\n\r\n 2 \r\n 8 \r\n 1 \r\n 0 \r\n 2 \r\n 2 \r\n 0 \r\n"));
}

TEST_CASE("the separator shown is comma for 1, space for 2, tab for others, and one that only looks like tab stays")
{
    CopyData("general");
    frmGTGSGenEditor::Load();
    for (const auto& [separator, shown] : {std::pair<int, int>(1, 0), {2, 1}, {0, 2}, {3, 2}}) {
        GtgsMapping.templateFile = "template";
        GtgsMapping.fixedFields = 0;
        GtgsMapping.fieldSpec = int16_t(separator);
        SaveGTGSConversionFile(Scratch("s.GCV"));
        Choose(Scratch("s.GCV"));
        frmGTGSGenEditor::mnuOpenGTGSConvFile();
        CHECK(Dialog.Combo1 == shown);
        frmGTGSGenEditor::mnuSaveGTGSConvFile();
        CHECK(GtgsMapping.fieldSpec == separator);
    }
    // Blanks separate in the conversion, though the box shows "Tab".
    SS1.Cell(1, 1) = "boring info";
    SS1.Cell(1, 2) = "1";
    WriteScratch("headers.txt", "first second\r\n");
    Dialog.Option3 = false;
    Dialog.Text4 = "s";
    frmGTGSGenEditor::Command1();
    CHECK(BoringData.Info[1][2] == "first");
    Dialog.Combo1 = 0;
    frmGTGSGenEditor::mnuSaveGTGSConvFile();
    CHECK(GtgsMapping.fieldSpec == 1);
}

TEST_CASE("a map's number for fixed fields stays as the file had it, and is 2 where it had none")
{
    CopyData("general");
    frmGTGSGenEditor::Load();
    for (const auto& [told, saved] : {std::pair<int, int>(1, 1), {2, 2}, {7, 7}, {0, 2}}) {
        GtgsMapping = GtgsMappingRecord();
        GtgsMapping.fixedFields = int16_t(told);
        SaveGTGSConversionFile(Scratch("m.GCV"));
        Choose(Scratch("m.GCV"));
        frmGTGSGenEditor::mnuOpenGTGSConvFile();
        Dialog.Option2 = true;
        CHECK(frmGTGSGenEditor::mnuSaveGTGSConvFile());
        CHECK(GtgsMapping.fixedFields == saved);
    }
}

TEST_CASE("a map that changes from fields of a fixed length to a separator takes the one that is shown")
{
    CopyData("general");
    frmGTGSGenEditor::Load();
    GtgsMapping.fixedFields = 2;
    GtgsMapping.fieldSpec = 3; // as a separator it would be a blank and look like a tab
    SaveGTGSConversionFile(Scratch("m.GCV"));
    Choose(Scratch("m.GCV"));
    frmGTGSGenEditor::mnuOpenGTGSConvFile();
    Dialog.Option2 = false;
    CHECK(Dialog.Combo1 == 2);
    CHECK(frmGTGSGenEditor::mnuSaveGTGSConvFile());
    CHECK(GtgsMapping.fixedFields == 0);
    CHECK(GtgsMapping.fieldSpec == 0);
}

TEST_CASE("Save As adds the ending, and asks before it replaces a map")
{
    frmGTGSGenEditor::Load();
    WriteScratch("m.GCV", "older");
    Choose(Scratch("m"));
    Answers = {No};
    frmGTGSGenEditor::mnuSaveAs();
    CHECK(Told() ==
          std::vector<Text>{"The file, " + Scratch("m.GCV") + " already exists.  Do you wish to overwrite it?"});
    CHECK(ReadScratch("m.GCV") == "older");
    CHECK(Dialog.Title == "GTGS General Conversion Editor");
    Answers = {Yes};
    frmGTGSGenEditor::mnuSaveAs();
    CHECK(ReadScratch("m.GCV") != "older");
    Dialog.Text1 = "t.BOR";
    frmGTGSGenEditor::mnuSaveGTGSConvFile();
    CHECK(ReadScratch("m.GCV").starts_with("t.BOR\r\n"));
}

TEST_CASE("a map that ends early is error 62, and shows what was read of it")
{
    WriteScratch("m.GCV", "t.BOR\r\n/p\r\n 0 \r\n 1 \r\n 1 \r\n");
    frmGTGSGenEditor::Load();
    Choose(Scratch("m.GCV"));
    frmGTGSGenEditor::mnuOpenGTGSConvFile();
    CHECK(Told() == std::vector<Text>{"Error 62 in OpenGTGSConversionFile.  Please contact Norvane"});
    CHECK(Dialog.Text2 == "/p");
    CHECK(SS1.Cell(1, 1) == "Boring Name");
}

TEST_CASE("a map saved unchanged behind another one is as in a fresh program, also one that breaks off or is not there")
{
    CopyData("general");
    const std::string second = ReadScratch("fixed.GCV");
    const auto saved = [](const std::string& bytes) {
        if (bytes.empty())
            std::filesystem::remove(Scratch("b.GCV"));
        else
            WriteScratch("b.GCV", bytes);
        Choose(Scratch("b.GCV"));
        frmGTGSGenEditor::mnuOpenGTGSConvFile();
        CHECK(frmGTGSGenEditor::mnuSaveGTGSConvFile());
        return ReadScratch("b.GCV");
    };
    for (size_t end = 0; end != Text::npos && end <= second.size();) {
        const std::string bytes = second.substr(0, end);
        CAPTURE(bytes);
        frmGTGSGenEditor::Load();
        const std::string fresh = saved(bytes);
        frmGTGSGenEditor::Load();
        Choose(Scratch("comma.GCV"));
        frmGTGSGenEditor::mnuOpenGTGSConvFile();
        CHECK(saved(bytes) == fresh);
        end = end == second.size() ? Text::npos : second.find("\r\n", end) + 2;
    }
}

TEST_CASE("the new file is named by its box, with the ending, in the folder of the tables; GTGS1.BOR when it is blank")
{
    CopyData("general");
    std::filesystem::create_directory(Scratch("tables"));
    for (const char* table : {"headers.txt", "lith.txt", "desc.txt", "well.txt"})
        std::filesystem::rename(Scratch(table), Scratch(Text("tables/") + table));
    frmGTGSGenEditor::Load();
    Dialog.Text1 = "template";
    Dialog.Text2 = Scratch("tables");
    Dialog.Option3 = false;
    Dialog.Text4 = "mine";
    frmGTGSGenEditor::Command1();
    CHECK(FileExists(Scratch("tables/mine.bor")));
    Dialog.Text4 = "other.Bor";
    frmGTGSGenEditor::Command1();
    CHECK(FileExists(Scratch("tables/other.Bor")));
    Dialog.Text4 = "";
    Messages.clear();
    frmGTGSGenEditor::Command1();
    CHECK(Told() == std::vector<Text>{"Since you have left the New Boring File text box blank, the new boring file "
                                      "will be saved as GTGS1.BOR",
                                      Created("GTGS1.BOR")});
}

TEST_CASE("the new boring is opened in the log tool, and unsaved work there is asked about first")
{
    CopyData("general");
    frmGTGSGenEditor::Load();
    Choose(Scratch("comma.GCV"));
    frmGTGSGenEditor::mnuOpenGTGSConvFile();
    frmGTGSGenEditor::Command1();
    CHECK(BoringFileName == Scratch("GB-7.bor"));
    CHECK(frmBorinput::Text1 == "GB-7");
    CHECK(frmBorinput::SSLith.Cell(1, 2) == "FB");
    CHECK(FileChanged == 0);
    frmBorinput::Text1 = "typed";
    FileChanged = 1;
    Messages.clear();
    Answers = {Yes, Ok, Cancel}; // overwrite, created, save first
    frmGTGSGenEditor::Command1();
    CHECK(Told().back() == "Would you like to save the current file before opening another file?");
    CHECK(frmBorinput::Text1 == "typed");
    Messages.clear();
    Answers = {No};
    frmGTGSGenEditor::Command1(); // refused: the file is there
    CHECK(frmBorinput::Text1 == "typed");
}

TEST_CASE("a new boring that could not be written is not opened")
{
    CopyData("general");
    frmGTGSGenEditor::Load();
    Dialog.Text1 = "template";
    Dialog.Option3 = false;
    Dialog.Text4 = "none/x";
    BoringFileName = Scratch("open.BOR");
    frmBorinput::Text1 = "typed";
    frmGTGSGenEditor::Command1();
    CHECK(Told() ==
          std::vector<Text>{"Error 76 in WriteConvertedBoring.  Please contact Norvane", Created("none/x.bor")});
    CHECK(BoringFileName == Scratch("open.BOR"));
    CHECK(frmBorinput::Text1 == "typed");
}

TEST_CASE("a template without a folder is one of the project folder, and one with a folder is taken as it is")
{
    OwnMap();
    std::filesystem::create_directories(Scratch("job"));
    std::filesystem::rename(Scratch("template.BOR"), Scratch("job/template.BOR"));
    CHECK(ConvertGTGSGeneral(Scratch("x.bor")) == "");
    Messages.clear();
    ProjectPath = Scratch("job");
    GtgsMapping.textPath = ScratchFolder();
    CHECK(ConvertGTGSGeneral(Scratch("x.bor")) == Scratch("x.bor"));
    CHECK(Told() == std::vector<Text>{Created("x.bor")});
    ProjectPath = ScratchFolder();
    GtgsMapping.templateFile = Scratch("job/template");
    CHECK(ConvertGTGSGeneral(Scratch("y.bor")) == Scratch("y.bor"));
}

TEST_CASE(
    "the separator that is chosen is saved as 1 for comma, 2 for space and 0 for tab, fixed fields with their length")
{
    frmGTGSGenEditor::Load();
    Choose(Scratch("m.GCV"));
    static int mode;
    Platform.ShowChooser = [] {
        mode = DialogMode;
        DialogResult = chosen;
    };
    frmGTGSGenEditor::mnuSaveAs();
    CHECK(mode == 21);
    Dialog.Option2 = false;
    for (const auto& [index, separator] : {std::pair<int, int>(0, 1), {1, 2}, {2, 0}, {1, 2}}) {
        Dialog.Combo1 = index;
        frmGTGSGenEditor::mnuSaveGTGSConvFile();
        OpenGTGSConversionFile(Scratch("m.GCV"));
        CHECK(GtgsMapping.fixedFields == 0);
        CHECK(GtgsMapping.fieldSpec == separator);
    }
    Dialog.Option2 = true;
    Dialog.Text3 = "12";
    frmGTGSGenEditor::mnuSaveGTGSConvFile();
    OpenGTGSConversionFile(Scratch("m.GCV"));
    CHECK(GtgsMapping.fixedFields == 2);
    CHECK(GtgsMapping.fieldSpec == 12);
}

TEST_CASE("a chooser that is cancelled opens and saves no map")
{
    frmGTGSGenEditor::Load();
    Choose("");
    frmGTGSGenEditor::mnuOpenGTGSConvFile();
    Dialog.Text1 = "typed";
    CHECK_FALSE(frmGTGSGenEditor::mnuSaveGTGSConvFile());
    CHECK(Dialog.Text1 == "typed");
    CHECK(Dialog.File == "");
    CHECK(Dialog.Title == "GTGS General Conversion Editor");
    CHECK(Told() == std::vector<Text>());
}

TEST_CASE("the last rows of a map's grids are saved as the first are")
{
    frmGTGSGenEditor::Load();
    Choose(Scratch("m.GCV"));
    for (const int row : {1, 25}) {
        SS1.Cell(row, 1) = "Well Info";
        SS1.Cell(row, 2) = "14";
        SS2.Cell(row, 1) = "99";
        SS2.Cell(row, 2) = "GW";
    }
    frmGTGSGenEditor::mnuSaveAs();
    frmGTGSGenEditor::Load();
    frmGTGSGenEditor::mnuOpenGTGSConvFile();
    for (const int row : {1, 25}) {
        CHECK(SS1.Cell(row, 1) == "Well Info");
        CHECK(SS1.Cell(row, 2) == "14");
        CHECK(SS2.Cell(row, 1) == "99");
        CHECK(SS2.Cell(row, 2) == "GW");
        CHECK(GtgsMapping.fieldMap[row].kind == 4);
        CHECK(GtgsMapping.fieldMap[row].number == 14);
    }
}

TEST_CASE("a number beyond 16 bits is failure 6, and neither the map nor its file nor a boring takes anything")
{
    CopyData("general");
    frmGTGSGenEditor::Load();
    Choose(Scratch("comma.GCV"));
    frmGTGSGenEditor::mnuOpenGTGSConvFile();
    const std::string bytes = ReadScratch("comma.GCV");
    const auto nothingTaken = [&bytes] {
        CHECK(FailureOf([] { frmGTGSGenEditor::mnuSaveGTGSConvFile(); }) == Overflow);
        CHECK(FailureOf([] { frmGTGSGenEditor::mnuSaveAs(); }) == Overflow);
        CHECK(FailureOf(frmGTGSGenEditor::Command1) == Overflow);
        CHECK(GtgsMapping.templateFile == "template");
        CHECK(GtgsMapping.fixedFields == 0);
        CHECK(GtgsMapping.fieldSpec == 1);
        CHECK(GtgsMapping.fieldMap[25].number == 0);
        CHECK(GtgsMapping.fillMap[1].uscs == "FB");
        CHECK(Dialog.File == Scratch("comma.GCV"));
        CHECK(ReadScratch("comma.GCV") == bytes);
        CHECK_FALSE(FileExists(Scratch("new.GCV")));
        CHECK_FALSE(FileExists(Scratch("GB-7.bor")));
    };
    Choose(Scratch("new"));
    Dialog.Text1 = "typed";
    SS2.Cell(1, 2) = "GW";
    SS1.Cell(25, 2) = "40000";
    nothingTaken();
    SS1.Cell(25, 2) = "-32769";
    nothingTaken();
    SS1.Cell(25, 2) = "";
    Dialog.Option2 = true;
    Dialog.Text3 = "32768";
    nothingTaken();
    Dialog.Text3 = "32767";
    frmGTGSGenEditor::mnuSaveGTGSConvFile();
    CHECK(GtgsMapping.fieldSpec == 32767);
    CHECK(Told() == std::vector<Text>());
}

TEST_CASE("blanks are a template's name and a new file's name as any other: only a box without a character is empty")
{
    OwnMap();
    GtgsMapping.templateFile = " ";
    CHECK(ConvertGTGSGeneral(Scratch("x.bor")) == "");
    CHECK(Told() == std::vector<Text>{"The Boring File to be used as a template was not found, please try again."});
    std::filesystem::copy(Scratch("template.BOR"), Scratch(" .bor"));
    Messages.clear();
    CHECK(ConvertGTGSGeneral(Scratch("x.bor")) == Scratch("x.bor"));
    frmGTGSGenEditor::Load();
    Dialog.Text1 = "template";
    Dialog.Option3 = false;
    Dialog.Text4 = "  ";
    Messages.clear();
    frmGTGSGenEditor::Command1();
    CHECK(Told() == std::vector<Text>{Created("  .bor")});
    CHECK(FileExists(Scratch("  .bor")));
}

static const Text quitting = "Would you like to save the current file before quitting?";
static const Text opening = "Would you like to save the current file before opening another file?";

// The editor with a map of the scratch folder open.
static void OpenMap(const Text& name)
{
    frmGTGSGenEditor::Load();
    Choose(Scratch(name));
    frmGTGSGenEditor::mnuOpenGTGSConvFile();
}

TEST_CASE("the map's editor is left without a question while its boxes are as begun with, opened or saved")
{
    CopyData("general");
    frmGTGSGenEditor::Load();
    CHECK(frmGTGSGenEditor::mnuExit());
    Choose(Scratch("comma.GCV"));
    frmGTGSGenEditor::mnuOpenGTGSConvFile();
    CHECK(frmGTGSGenEditor::mnuExit());
    Dialog.Text1 = "typed";
    frmGTGSGenEditor::mnuSaveGTGSConvFile();
    CHECK(frmGTGSGenEditor::mnuExit());
    SS1.Cell(1, 2) = "7";
    Choose(Scratch("new"));
    frmGTGSGenEditor::mnuSaveAs();
    CHECK(frmGTGSGenEditor::mnuExit());
    SS1.Cell(1, 2) = "8";
    SS1.Cell(1, 2) = "7"; // as it was
    CHECK(frmGTGSGenEditor::mnuExit());
    // The name of the new boring is for one run and in no file.
    Dialog.Option3 = false;
    Dialog.Text4 = "mine";
    CHECK(frmGTGSGenEditor::mnuExit());
    Choose(Scratch("comma.GCV"));
    frmGTGSGenEditor::mnuOpenGTGSConvFile();
    CHECK(Told() == std::vector<Text>());
}

TEST_CASE("a change in any box of the map is asked about before the editor is left")
{
    CopyData("general");
    static void (*const changes[])() = {
        [] { Dialog.Text1 = "typed"; }, [] { Dialog.Text2 = "/typed"; }, [] { Dialog.Option2 = true; },
        [] { Dialog.Combo1 = 2; },      [] { Dialog.Text3 = "5"; },      [] { SS1.Cell(25, 1) = "Well Info"; },
        [] { SS1.Cell(25, 2) = "1"; },  [] { SS2.Cell(25, 1) = "1"; },   [] { SS2.Cell(25, 2) = "GW"; }};
    for (void (*change)() : changes) {
        OpenMap("comma.GCV");
        change();
        Messages.clear();
        Answers = {Cancel};
        CHECK_FALSE(frmGTGSGenEditor::mnuExit());
        CHECK(Told() == std::vector<Text>{quitting});
        CHECK(Messages[0].buttons == YesNoCancel);
        CHECK(Messages[0].icon == Question);
    }
}

TEST_CASE("leaving the map's editor: Yes saves, No drops, Cancel stays")
{
    CopyData("general");
    const std::string bytes = ReadScratch("comma.GCV");
    OpenMap("comma.GCV");
    Dialog.Text1 = "typed";
    Answers = {Cancel, No, Yes};
    CHECK_FALSE(frmGTGSGenEditor::mnuExit());
    CHECK(Dialog.Text1 == "typed");
    CHECK(frmGTGSGenEditor::mnuExit());
    CHECK(ReadScratch("comma.GCV") == bytes);
    CHECK(frmGTGSGenEditor::mnuExit());
    CHECK(ReadScratch("comma.GCV").starts_with("typed\r\n"));
    CHECK(Told() == std::vector<Text>{quitting, quitting, quitting});
    CHECK(frmGTGSGenEditor::mnuExit());
    CHECK(Messages.size() == 3);
}

TEST_CASE("a map without a name is saved through Save As, and one that was not saved is not left")
{
    frmGTGSGenEditor::Load();
    Dialog.Text1 = "typed";
    Choose("");
    Answers = {Yes};
    CHECK_FALSE(frmGTGSGenEditor::mnuExit()); // the chooser was cancelled
    WriteScratch("m.GCV", "older");
    Choose(Scratch("m"));
    Answers = {Yes, No};
    CHECK_FALSE(frmGTGSGenEditor::mnuExit()); // the older file stays
    CHECK(ReadScratch("m.GCV") == "older");
    Choose(Scratch("none/m"));
    Answers = {Yes, Ok};
    Messages.clear();
    CHECK_FALSE(frmGTGSGenEditor::mnuExit()); // it could not be written
    CHECK(Told() == std::vector<Text>{quitting, "Error 76 in SaveGTGSConversionFile.  Please contact Norvane"});
    CHECK(Dialog.File == "");
    CHECK(Dialog.Title == "GTGS General Conversion Editor");
    Choose(Scratch("n"));
    Answers = {Yes};
    CHECK(frmGTGSGenEditor::mnuExit());
    CHECK(ReadScratch("n.GCV").starts_with("typed\r\n"));
    SS1.Cell(1, 2) = "40000";
    Answers = {Yes};
    CHECK(FailureOf([] { frmGTGSGenEditor::mnuExit(); }) == Overflow);
}

TEST_CASE("another map is opened once the one in the boxes has been asked about: Yes saves, No drops, Cancel stays")
{
    CopyData("general");
    const std::string bytes = ReadScratch("comma.GCV");
    OpenMap("comma.GCV");
    static int choosers;
    choosers = 0;
    Platform.ShowChooser = [] {
        ++choosers;
        DialogResult = chosen;
    };
    chosen = Scratch("fixed.GCV");
    Dialog.Text1 = "typed";
    Answers = {Cancel};
    frmGTGSGenEditor::mnuOpenGTGSConvFile();
    CHECK(Told() == std::vector<Text>{opening});
    CHECK(choosers == 0);
    CHECK(Dialog.Text1 == "typed");
    // At No nothing is dropped before a file is chosen.
    chosen = "";
    Answers = {No};
    frmGTGSGenEditor::mnuOpenGTGSConvFile();
    CHECK(Dialog.Text1 == "typed");
    chosen = Scratch("fixed.GCV");
    Answers = {No};
    frmGTGSGenEditor::mnuOpenGTGSConvFile();
    CHECK(Dialog.File == Scratch("fixed.GCV"));
    CHECK(ReadScratch("comma.GCV") == bytes);
    CHECK(Told() == std::vector<Text>{opening, opening, opening});
    Dialog.Text1 = "typed";
    chosen = Scratch("comma.GCV");
    Answers = {Yes};
    frmGTGSGenEditor::mnuOpenGTGSConvFile();
    CHECK(ReadScratch("fixed.GCV").starts_with("typed\r\n"));
    CHECK(Dialog.File == Scratch("comma.GCV"));
    CHECK(Dialog.Text1 == "template");
}

TEST_CASE("a map from outside is opened after the same question, and one that is refused leaves no name to save under")
{
    CopyData("general");
    OpenMap("comma.GCV");
    Dialog.Text1 = "typed";
    Answers = {Cancel};
    frmGTGSGenEditor::OpenNamed(Scratch("fixed.GCV"));
    CHECK(Told() == std::vector<Text>{opening});
    CHECK(Dialog.Text1 == "typed");
    Answers = {No};
    frmGTGSGenEditor::OpenNamed(Scratch("fixed.GCV"));
    CHECK(Dialog.File == Scratch("fixed.GCV"));
    CHECK(Dialog.Title == "GTGS General Conversion Editor - " + Scratch("fixed.GCV"));
    WriteScratch("cut.GCV", "one line\r\n");
    frmGTGSGenEditor::OpenNamed(Scratch("cut.GCV"));
    CHECK(Messages.back().words == "Error 62 in OpenGTGSConversionFile.  Please contact Norvane");
    CHECK(Dialog.File == "");
    CHECK(Dialog.Title == "GTGS General Conversion Editor");
    CHECK(frmGTGSGenEditor::mnuExit()); // nothing has been typed
    CHECK(ReadScratch("cut.GCV") == "one line\r\n");
}
