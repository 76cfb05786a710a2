// boringsave_test.cpp -- saving a boring: what the boxes hold, the checks on the way, the file.
#include "boring/boringfile.h"

#include "testing.h"

#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "boring/boringlines.h"
#include "editors/fillform.h"
#include "session/session.h"

#include <csignal>
#include <sys/resource.h>

using namespace frmBorinput;

static std::string Saved()
{
    BoringFileName = Scratch("B.BOR");
    SaveBoringFile();
    return ReadScratch("B.BOR");
}

static void CheckWarnings(std::initializer_list<Text> words)
{
    REQUIRE(Messages.size() == words.size());
    size_t i = 0;
    for (const Text& expected : words) {
        CHECK(Messages[i].words == expected);
        CHECK(Messages[i].buttons == OkOnly);
        CHECK(Messages[i].icon == Exclamation);
        ++i;
    }
}

static Text Missing(const Text& number)
{
    return "In the description text box, the @" + number +
           " marker is missing.  The @ markers used to place descriptions must be entered in order starting with @1.  "
           "Enter a marker as a place holder, even if you have no text for a contact box. ";
}

static Text NoSuchContact(const Text& line)
{
    return "Warning: In your description text, you have entered a reference to a contact box, " + line +
           ", that does not exist.  Remember that ''@'' plus a number is used to place text at the top of a contact "
           "box, and ''-'' plus a number is used to place text at a depth.";
}

static Text Paragraphs(int count)
{
    Text text;
    for (int i = 0; i < count; ++i)
        text += "x\r\n";
    return text;
}

TEST_CASE("an empty boring is saved as a whole file of empty lines, with the last client style")
{
    BoringLines lines;
    lines.layoutFile = ".lay";
    CHECK(Saved() == lines.File());
    CHECK(Messages.empty());
}

TEST_CASE("every box comes to its place in the file")
{
    Text1 = " B-1 ";
    Text2 = "site.bmp ";
    cmbLayFile = "own.LAY";
    Check1 = true;
    SSInfo.Cell(1, 1) = " Date ";
    SSInfo.Cell(30, 2) = "end";
    SSScale.Cell(1, 1) = " 40 ";
    SSScale.Cell(7, 1) = "1,2";
    SSRepParts.Cell(1, 1) = " depth scale ";
    SSRepParts.Cell(1, 2) = " .4";
    SSP1Setup.Cell(16, 9) = " ppm ";
    SSP2Setup.Cell(20, 8) = " field ";
    SSPar.Cell(1, 21) = " 7 ";
    SSSamp.Cell(1, 2) = " 3 ";
    SSLith.Cell(1, 2) = " cl \xE4 ";
    SSGenWellInfo.Cell(14, 1) = " 9 ";
    SSOuterLay.Cell(1, 5) = " 2 ";
    SSInnerLay.Cell(1, 1) = " 0";
    SSW.Cell(1, 2) = " as typed ";
    SSCuttings.Cell(1, 4) = "4 ";
    SSFormations.Cell(1, 2) = " Sand, S ";
    SSLegend.Cell(1, 1) = "CL ";
    MemoDes.text = " first \r\nsecond";
    MemoWcon.text = "well";
    MemoRemarks.text = "remark\r\n";
    MemoBottNotes.text = "note\r\n";
    txtClient = "Client \r\n Project";
    Option = 2;
    BoringLines lines;
    lines.name = "B-1";
    lines.mapFile = "site.bmp";
    lines.layoutFile = "own.LAY";
    lines.info[0] = "Date";
    lines.info[59] = "end";
    lines.scale[0] = "40";
    lines.scale[6] = "1,2";
    lines.repParts = {"depth scale", ".4"};
    lines.sampleSetup[143] = "ppm";
    lines.genSetup[159] = "field";
    lines.params = BoringLines::Block(21);
    lines.params[20] = "7";
    lines.samples = BoringLines::Block(21);
    lines.samples[1] = "3";
    lines.lith = {"", "CL \xC4", "", ""};
    lines.genWell[13] = "9";
    lines.outer = {"", "", "", "", "2"};
    lines.inner = {"0", "", "", "", ""};
    lines.wellInfo = {"", " as typed "};
    lines.cuttings = {"", "", "", "4"};
    lines.formations = {"", "Sand, S"};
    lines.legend = {"CL", ""};
    lines.des = {" first \xB6", "second"};
    lines.wellNotes = {"well"};
    lines.remarks = {"remark\xB6"};
    lines.bottNotes[0] = "note\xB6";
    lines.client[0] = "Client ";
    lines.client[1] = " Project";
    lines.tail = {"2", " 1 "};
    CHECK(Saved() == lines.File());
    CHECK(Messages.empty());
    CHECK(BoringData.Name == " B-1 ");
    CHECK(BoringData.Lith[1][2] == " CL \xC4 ");
}

TEST_CASE("a layout without its ending gets it, in any case it has it")
{
    const auto layout = [](const Text& typed) {
        cmbLayFile = typed;
        Saved();
        return BoringData.LayoutFile;
    };
    CHECK(layout("") == ".lay");
    CHECK(layout("basic") == "basic.lay");
    CHECK(layout("basic.Lay") == "basic.Lay");
    CHECK(layout("basic.lay ") == "basic.lay .lay");
    CHECK(layout("lay") == "lay.lay");
}

TEST_CASE("report parts are shortened as long as the last item is blank; blank rows in the middle stay")
{
    SSRepParts.Cell(1, 1) = "USCS";
    SSRepParts.Cell(3, 1) = "descriptions";
    SSRepParts.Cell(4, 1) = "  ";
    SSRepParts.Cell(5, 2) = "-";
    BoringLines lines;
    lines.layoutFile = ".lay";
    lines.repParts = {"USCS", "", "", "", "descriptions", ""};
    CHECK(Saved() == lines.File());
    SSRepParts.Clear();
    SSRepParts.Cell(2, 2) = "-";
    lines.repParts = {};
    CHECK(Saved() == lines.File());
    CHECK(BoringData.RepPartCount == 0);
}

TEST_CASE("blank rows inside a list are kept, rows behind the last with data are not")
{
    SSLith.Cell(1, 1) = "1";
    SSLith.Cell(3, 1) = "3";
    BoringLines lines;
    lines.layoutFile = ".lay";
    lines.lith = {"1", "", "", "", "", "", "", "", "3", "", "", ""};
    CHECK(Saved() == lines.File());
}

TEST_CASE("each style is saved by its number, and none chosen as the last")
{
    for (const auto& [option, style] : {std::pair(0, "4"), {1, "1"}, {2, "2"}, {3, "3"}, {4, "4"}}) {
        Option = option;
        CHECK(Saved().ends_with(Text("\r\n") + style + "\r\n 0 \r\n"));
    }
}

TEST_CASE("of the client box five lines are saved, and missing ones are empty")
{
    txtClient = "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n";
    CHECK(Saved().ends_with("\r\n1\r\n2\r\n3\r\n4\r\n5\r\n4\r\n 0 \r\n"));
    txtClient = "1";
    CHECK(Saved().ends_with("\r\n1\r\n\r\n\r\n\r\n\r\n4\r\n 0 \r\n"));
}

TEST_CASE("a marker that is missing is told once, and the scan goes on from the one found")
{
    for (int row = 1; row <= 6; ++row)
        SSLith.Cell(row, 1) = PlainNumber(row);
    MemoDes.text = "@1\r\n@2\r\n@3\r\n@5\r\n@6\r\n";
    Saved();
    CheckWarnings({Missing("4")});
}

TEST_CASE("markers count from 1, and a fraction is asked about as it stands")
{
    for (int row = 1; row <= 6; ++row)
        SSLith.Cell(row, 1) = PlainNumber(row);
    MemoDes.text = "@2\r\ntext @9\r\n @9\r\n@\r\n";
    Saved();
    CheckWarnings({Missing("1"), Missing("3")});
    Messages.clear();
    MemoDes.text = "@1.5\r\n@2\r\n";
    Saved();
    CheckWarnings({Missing("1"), Missing("2.5")});
}

TEST_CASE("a marker behind the last contact is told with its line, and the save goes through")
{
    SSLith.Cell(1, 1) = "5";
    MemoDes.text = "@1\r\n@2 Gravel\r\n@3";
    BoringLines lines;
    lines.layoutFile = ".lay";
    lines.lith = {"5", "", "", ""};
    lines.des = {"@1\xB6", "@2 Gravel\xB6", "@3"};
    CHECK(Saved() == lines.File());
    CheckWarnings({NoSuchContact("@2 Gravel\xB6"), NoSuchContact("@3")});
}

TEST_CASE("of a marker only the first digit is held against the contacts")
{
    SSLith.Cell(2, 1) = "5";
    for (int i = 1; i <= 15; ++i)
        MemoDes.text += "@" + PlainNumber(i) + "\r\n";
    Saved();
    std::initializer_list<Text> expected = {NoSuchContact("@3\xB6"), NoSuchContact("@4\xB6"), NoSuchContact("@5\xB6"),
                                            NoSuchContact("@6\xB6"), NoSuchContact("@7\xB6"), NoSuchContact("@8\xB6"),
                                            NoSuchContact("@9\xB6")};
    CheckWarnings(expected); // none for @10 to @15
}

TEST_CASE("sixty well notes are saved, more are refused and the old file stays")
{
    MemoWcon.text = Paragraphs(60);
    const std::string before = Saved();
    CHECK(Messages.empty());
    CHECK(BoringData.WellNoteCount == 60);
    Text1 = "new name";
    MemoWcon.text = Paragraphs(65);
    CHECK(Saved() == before);
    CheckWarnings({"Your notes exceed 60 lines.  You must reduce the number of lines by  5."});
}

TEST_CASE("six hundred remarks are saved, more are refused and the old file stays")
{
    MemoRemarks.text = Paragraphs(600);
    const std::string before = Saved();
    CHECK(Messages.empty());
    MemoRemarks.text = Paragraphs(612);
    CHECK(Saved() == before);
    CheckWarnings({"Your remarks exceed 600 lines.  You must reduce the number of lines by  12."});
}

TEST_CASE("of too many general notes the first ten are saved with a warning")
{
    MemoBottNotes.text = Paragraphs(10);
    Saved();
    CHECK(Messages.empty());
    MemoBottNotes.text = "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8\r\n9\r\n10\r\n11\r\n";
    const std::string file = Saved();
    CheckWarnings({"Your general notes exceed 10 lines.  Only the first 10 lines will be saved."});
    CHECK(file.find("\r\n10\xB6\r\n\r\n\r\n\r\n\r\n\r\n4\r\n") != Text::npos);
}

TEST_CASE("descriptions beyond line 1000 are dropped without a word")
{
    MemoDes.text = Paragraphs(1005);
    Saved();
    CHECK(Messages.empty());
    CHECK(BoringData.DesCount == 1000);
}

TEST_CASE("a file that cannot be written is told by name, and the old one stays whole")
{
    BoringFileName = Scratch("nowhere/B.BOR");
    SaveBoringFile();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 76 in SaveBoringFile.  Please contact Norvane");
    CHECK(Messages[0].icon == NoIcon);
}

TEST_CASE("a boring is saved under a name as long as the system lets it be, and read back")
{
    for (const size_t letters : {241, 251}) {
        Text1 = "B-" + std::to_string(letters);
        BoringFileName = Scratch(Text(letters, 'n') + ".BOR");
        SaveBoringFile();
        SaveBoringFile(); // over the one that is there
        CHECK(Messages.empty());
        BoringData.Name = "";
        DialogMode = 2;
        OpenBoringFile2();
        CHECK(Messages.empty());
        CHECK(BoringData.Name == Text1);
    }
    int files = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(ScratchFolder()))
        ++files;
    CHECK(files == 2); // and nothing beside them
}

TEST_CASE("a save on a full disk is told by name, and the old file stays whole")
{
    // A limit on the size of files stands for the full disk: the write comes back short in the same way.
    WriteScratch("B.BOR", "old");
    rlimit limit;
    REQUIRE(::getrlimit(RLIMIT_FSIZE, &limit) == 0);
    const rlim_t before = limit.rlim_cur;
    ::signal(SIGXFSZ, SIG_IGN);
    limit.rlim_cur = 100;
    REQUIRE(::setrlimit(RLIMIT_FSIZE, &limit) == 0);
    const std::string file = Saved();
    limit.rlim_cur = before;
    REQUIRE(::setrlimit(RLIMIT_FSIZE, &limit) == 0);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 61 in SaveBoringFile.  Please contact Norvane");
    CHECK(file == "old");
}

TEST_CASE("a 5.0 file that was read is saved with 21 parameter cells a row")
{
    BoringLines lines;
    lines.version = "5.0";
    lines.layoutFile = "a.lay";
    lines.paramCells = 9;
    lines.params = {"1", "2", "3", "4", "5", "6", "7", "8", "9", "", "", "", "", "", "", "", "", "18"};
    lines.client = {};
    lines.tail = {" 1 "};
    WriteScratch("B.BOR", lines.File());
    BoringFileName = Scratch("B.BOR");
    DialogMode = 2;
    OpenBoringFile2();
    FillBoringForm();
    const std::string saved = Saved();
    CHECK(Messages.empty());
    lines.version = "5.0.12";
    lines.paramCells = 21;
    lines.params.insert(lines.params.begin() + 9, 12, "");
    lines.params.resize(42);
    lines.client = BoringLines::Block(5);
    lines.tail = {"4", " 1 "};
    CHECK(saved == lines.File());
}

TEST_CASE("a row of parameters is saved with all its 21 cells, blank ones too")
{
    SSPar.Cell(1, 1) = "2";
    SSPar.Cell(1, 15) = "left there";
    BoringLines lines;
    lines.layoutFile = ".lay";
    lines.params = BoringLines::Block(21);
    lines.params[0] = "2";
    lines.params[14] = "left there";
    CHECK(Saved() == lines.File());
}

TEST_CASE("a boring without contacts is told of at each save, and saved")
{
    Text1 = "B-1";
    boringcheck();
    CHECK(Messages.size() == 1);
    const std::string saved = Saved();
    CHECK(saved.starts_with("5.0.12\r\nB-1\r\n"));
    CHECK(saved.ends_with("\r\n4\r\n 0 \r\n"));
    CHECK(Messages.size() == 1);
}

TEST_CASE("only a marker's number is held against the contacts, the first line's too, and no other line's figure")
{
    SSLith.Cell(1, 1) = "5";
    MemoDes.text = "@2\r\nx9 is no marker\r\n-9\r\n";
    Saved();
    CheckWarnings({Missing("1"), NoSuchContact("@2\xB6")});
}

TEST_CASE("all four cells of a contact are saved in upper case")
{
    const char* const typed[] = {"5 ft", "sp,sand", "d", "tan"};
    for (int column = 1; column <= 4; ++column)
        SSLith.Cell(1, column) = typed[column - 1];
    BoringLines lines;
    lines.layoutFile = ".lay";
    lines.lith = {"5 FT", "SP,SAND", "D", "TAN"};
    CHECK(Saved() == lines.File());
}
