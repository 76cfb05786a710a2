// editmenu_test.cpp -- the Edit menu by the box last entered, the text adjustment buttons, and Import, with no window.
#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "editors/borinput.h"
#include "editors/fillform.h"
#include "places.h"
#include "session/deviceconfig.h"
#include "session/session.h"
#include "testing.h"

using namespace frmBorinput;

static void Prepare()
{
    std::filesystem::copy_file(SOURCE_DIR "/data/prompt.txt", Scratch("prompt.txt"));
    Load();
    Messages.clear();
    FileChanged = DeviceChanged = 0;
}

TEST_CASE("each number is its box, and 9 and 0 are no grid")
{
    Grid* const grids[] = {&SSInfo, &SSScale, &SSRepParts, &SSP1Setup, &SSP2Setup, &SSPar, &SSSamp, &SSLith};
    for (int i = 1; i <= 8; ++i)
        CHECK(BoxGrid(i) == grids[i - 1]);
    Grid* const more[] = {&SSGenWellInfo, &SSOuterLay, &SSInnerLay, &SSW, &SSCuttings, &SSFormations, &SSLegend};
    for (int i = 10; i <= 16; ++i)
        CHECK(BoxGrid(i) == more[i - 10]);
    for (const int none : {-1, 0, 9, 17})
        CHECK(BoxGrid(none) == nullptr);
}

TEST_CASE("Cut, Copy and Paste act on the selected block of the active grid")
{
    Prepare();
    ActiveBox = 8;
    SSLith.Cell(1, 1) = "5";
    SSLith.selected = {1, 1, 1, 2};
    mnuCopy();
    CHECK(PlainClipboard == "5\t\r\n");
    CHECK(FileChanged == 0);
    mnuCut();
    CHECK(SSLith.Cell(1, 1) == "");
    CHECK(FileChanged == 1);
    ActiveBox = 16;
    SSLegend.selected = {3, 1, 3, 1};
    mnuPaste();
    CHECK(SSLegend.Cell(3, 1) == "5");
    CHECK(Messages.empty());
    mnuUndo();
    CHECK(SSLegend.Cell(3, 1) == "");
    mnuRedo();
    CHECK(SSLegend.Cell(3, 1) == "5");
}

TEST_CASE("for text boxes Cut, Copy and Paste name the keys, and rows do not apply")
{
    Prepare();
    ActiveBox = 9;
    PlainClipboard = "x";
    for (void (*command)() : {mnuCut, mnuCopy, mnuPaste, mnuInsertRow, mnuDeleteRow})
        command();
    REQUIRE(Messages.size() == 5);
    CHECK(Messages[0].words == "Please use the shortcut, CTRL-X or SHIFT-DEL, to CUT text from a text box.");
    CHECK(Messages[1].words == "Please use the shortcut, CTRL-C or CTRL-INS, to COPY text from a text box.");
    CHECK(Messages[2].words == "Please use the shortcut, CTRL-V or SHIFT-INS, to PASTE text to a text box.");
    CHECK(Messages[3].words == "This function does not apply to text boxes.");
    CHECK(Messages[4].words == "This function does not apply to text boxes.");
    for (const PlainMessage& message : Messages) {
        CHECK(message.buttons == OkOnly);
        CHECK(message.icon == (message.words.starts_with("Please") ? NoIcon : Exclamation));
    }
    CHECK(FileChanged == 0);
}

TEST_CASE("the scale and the well information keep their rows")
{
    Prepare();
    for (const int box : {2, 10}) {
        ActiveBox = int16_t(box);
        BoxGrid(box)->Cell(1, 1) = "7";
        BoxGrid(box)->row = 1;
        Messages.clear();
        mnuInsertRow();
        mnuDeleteRow();
        REQUIRE(Messages.size() == 2);
        CHECK(Messages[0].words == "It is not possible to insert or delete rows in this box.");
        CHECK(Messages[1].words == "It is not possible to insert or delete rows in this box.");
        for (const PlainMessage& message : Messages) {
            CHECK(message.buttons == OkOnly);
            CHECK(message.icon == Exclamation);
        }
        CHECK(BoxGrid(box)->Cell(1, 1) == "7");
    }
}

TEST_CASE("before any box was entered the Edit menu does nothing")
{
    Prepare();
    for (void (*command)() : {mnuUndo, mnuRedo, mnuCut, mnuCopy, mnuPaste, mnuFillDown, mnuInsertRow, mnuDeleteRow})
        command();
    CHECK(Messages.empty());
    CHECK(FileChanged == 0);
}

TEST_CASE("a row in or out of the report parts counts the width anew")
{
    Prepare();
    ActiveBox = 3;
    SSRepParts.Cell(1, 1) = "remarks";
    SSRepParts.Cell(2, 1) = "descriptions";
    SSRepParts.row = 1;
    mnuInsertRow();
    CHECK(SSRepParts.Cell(2, 2) == "1.4");
    CHECK(SSRepParts.Cell(3, 2) == "3");
    CHECK(BoringData.RepPartCount == 3);
    CHECK(lblWidthtot == "4.4/6.8");
    mnuDeleteRow();
    CHECK(SSRepParts.Cell(1, 1) == "remarks");
    CHECK(BoringData.RepPartCount == 2);
}

TEST_CASE("a row command in the report parts takes them anew once, whether or not it moves a cell")
{
    Prepare();
    ActiveBox = 3;
    SSRepParts.Cell(1, 1) = "remarks";
    SSRepParts.Cell(1, 2) = "9"; // told each time that the parts are taken
    SSRepParts.Cell(2, 1) = "USCS";
    const auto taken = [](void (*command)(), int row) {
        Messages.clear();
        FileChanged = 0;
        BoringData.RepPartCount = -1;
        SSRepParts.row = row;
        command();
        CHECK(FileChanged == 1);
        CHECK(BoringData.RepPartCount == SSRepParts.DataRowCount());
        CHECK(Messages.size() == 1);
        for (const PlainMessage& message : Messages)
            CHECK(message.words == "The width of the REMARKS column must not exceed 3 inches.");
        return SSRepParts.DataRowCount();
    };
    CHECK(taken(mnuInsertRow, 2) == 3);
    CHECK(taken(mnuDeleteRow, 2) == 2);
    CHECK(taken(mnuInsertRow, 7) == 2); // blank rows move
    CHECK(taken(mnuDeleteRow, 7) == 2);
    SSRepParts.Cell(30, 1) = "USCS";
    SSRepParts.Cell(30, 2) = ".25";
    CHECK(taken(mnuInsertRow, 1) == 30); // the last row is not pushed out
    CHECK(SSRepParts.Cell(1, 1) == "remarks");
    CHECK(Notices.size() == 1);
}

TEST_CASE("a row command that moves no cell leaves the other boxes unchanged")
{
    Prepare();
    for (const int box : {1, 4, 5, 6, 7, 8, 11, 12, 13, 14, 15, 16}) {
        CAPTURE(box);
        ActiveBox = int16_t(box);
        BoxGrid(box)->row = 2;
        mnuInsertRow();
        mnuDeleteRow();
        CHECK(FileChanged == 0);
    }
}

TEST_CASE("each pair of adjustment buttons changes its own box and its adjustment by 50 twips")
{
    Prepare();
    const Memo* boxes[] = {&MemoDes, &MemoWcon, &MemoRemarks, &MemoBottNotes};
    for (int box = 1; box <= 4; ++box) {
        const int width = boxes[box - 1]->widthTwips;
        DeviceChanged = FileChanged = 0;
        AdjustTextBox(2 * box);
        CHECK(boxes[box - 1]->widthTwips == width + 50);
        CHECK(DeviceConfig.TextAdjust[box] == 50);
        CHECK(DeviceChanged == 1);
        CHECK(FileChanged == 1);
        AdjustTextBox(2 * box - 1);
        AdjustTextBox(2 * box - 1);
        CHECK(boxes[box - 1]->widthTwips == width - 50);
        CHECK(DeviceConfig.TextAdjust[box] == -50);
    }
    CHECK(DeviceConfig.TextAdjust[5] == 0);
}

TEST_CASE("at an adjustment of 900 the description's wider button only tells its limit; the others have none")
{
    Prepare();
    DeviceConfig.TextAdjust[1] = 900;
    DeviceConfig.TextAdjust[2] = 900;
    const int width = MemoDes.widthTwips;
    AdjustTextBox(2);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words ==
          "Maximum text adjustment reached.  Note: clicking these arrows does not change the width of the description "
          "box on the printed diagram.  These arrows adjust the amount of text placed on each line in the description "
          "box.  After printing a test diagram, examine the text in the description box.  If the text falls short of "
          "the right side of the box, increase this text box size.  Decrease this text box if the text runs over the "
          "right side of the box.  To change the width of the actual description box, edit the width of the "
          "'descriptions' item under report parts.");
    CHECK(Messages[0].buttons == OkOnly);
    CHECK(Messages[0].icon == NoIcon);
    CHECK(MemoDes.widthTwips == width);
    CHECK(DeviceConfig.TextAdjust[1] == 900);
    CHECK(DeviceChanged == 0);
    AdjustTextBox(4);
    CHECK(DeviceConfig.TextAdjust[2] == 950);
    DeviceConfig.TextAdjust[1] = -5000;
    AdjustTextBox(1);
    CHECK(DeviceConfig.TextAdjust[1] == -5050);
}

TEST_CASE("the log has as many pages as its end depth has page breaks, and one without a break")
{
    Prepare();
    SSScale.Cell(1, 1) = "90";
    CHECK(PagesOfLog() == 1);
    SSScale.Cell(3, 1) = "30";
    CHECK(PagesOfLog() == 3);
    SSScale.Cell(3, 1) = "40";
    CHECK(PagesOfLog() == 2);
    SSScale.Cell(3, 1) = "1E-30";
    CHECK(PagesOfLog() == 32767);
}

TEST_CASE("Import asks the chooser for a text, appends it to the description and touches nothing else")
{
    Prepare();
    static int mode;
    Platform.ShowChooser = [] {
        mode = DialogMode;
        DialogResult = Scratch("notes.txt");
    };
    WriteScratch("notes.txt", "one\r\ntwo\r\n");
    MemoDes.text = "zero";
    mnuImport();
    CHECK(mode == 11);
    CHECK(MemoDes.text == "zeroone\r\ntwo\r\n");
    CHECK(FileChanged == 1);
    FileChanged = 0;
    Platform.ShowChooser = [] { DialogResult = ""; };
    mnuImport();
    CHECK(MemoDes.text == "zeroone\r\ntwo\r\n");
    CHECK(FileChanged == 0);
}

TEST_CASE(
    "an Import of a file that is missing or empty leaves the boring unchanged, and takes back no change before it")
{
    Prepare();
    MemoDes.text = "zero";
    Platform.ShowChooser = [] { DialogResult = Scratch("empty.txt"); };
    mnuImport();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 53 in ImportDesc.  Please contact Norvane");
    CHECK(FileChanged == 0);
    WriteScratch("empty.txt", "");
    mnuImport();
    CHECK(Messages.size() == 1);
    CHECK(MemoDes.text == "zero");
    CHECK(FileChanged == 0);
    FileChanged = 1;
    mnuImport();
    CHECK(FileChanged == 1);
}

TEST_CASE("a file that is dropped is opened with the questions of Open and without the chooser")
{
    Prepare();
    Platform.ShowChooser = [] { FAIL("the chooser"); };
    FileChanged = 1;
    Answers = {Cancel};
    OpenNamed(Text(SOURCE_DIR) + "/samples/TC-101.BOR");
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Would you like to save the current file before opening another file?");
    CHECK(BoringFileName == "");
    FileChanged = 0;
    OpenNamed(Text(SOURCE_DIR) + "/samples/TC-101.BOR");
    CHECK(Text1 == "TC-101");
    CHECK(FileChanged == 0);
}

TEST_CASE("after New nothing of the boring before can be taken back")
{
    Prepare();
    ActiveBox = 8;
    SSLith.Cell(1, 1) = "x";
    mnuCut();
    FileChanged = 0;
    mnuNew();
    mnuUndo();
    CHECK(SSLith.Cell(1, 1) == "");
}
