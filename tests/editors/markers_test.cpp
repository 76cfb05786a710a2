// markers_test.cpp -- the "@" markers of a description go with the layers that they name.
#include "editors/markers.h"

#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "boring/boringfile.h"
#include "editors/borinput.h"
#include "editors/fillform.h"
#include "grid/gridedit.h"
#include "grid/rowmoves.h"
#include "places.h"
#include "session/session.h"
#include "testing.h"

using namespace frmBorinput;

// Lines with CR LF, written with "|" for short.
static Text Lines(Text words)
{
    for (size_t at = 0; (at = words.find('|', at)) != Text::npos; at += 2)
        words.replace(at, 1, "\r\n");
    return words;
}

static Text Short(Text text)
{
    for (size_t at = 0; (at = text.find("\r\n", at)) != Text::npos; ++at)
        text.replace(at, 2, "|");
    return text;
}

// Layers A, B, C ... and their description in the boxes, in the Lithology grid.
static void Prepare(int layers, const char* description)
{
    std::filesystem::copy_file(SOURCE_DIR "/data/prompt.txt", Scratch("prompt.txt"),
                               std::filesystem::copy_options::overwrite_existing);
    Load();
    ClearBoringForm();
    for (int row = 1; row <= layers; ++row) {
        SSLith.Cell(row, 1) = PlainNumber(row * 2);
        SSLith.Cell(row, 2) = Text(1, char('A' + row - 1));
    }
    MemoDes.text = Lines(description);
    ActiveBox = 8;
    FileChanged = 0;
    Messages.clear();
    Notices.clear();
}

static Text Description()
{
    return Short(MemoDes.text);
}

static Text Codes()
{
    Text codes;
    for (int row = 1; row <= SSLith.DataRowCount(); ++row)
        codes += SSLith.Cell(row, 2).empty() ? "_" : SSLith.Cell(row, 2);
    return codes;
}

static void SelectRows(int top, int bottom)
{
    SSLith.row = top;
    SSLith.column = 1;
    SSLith.selected = {top, 1, bottom, 4};
}

static Text OnlyNotice()
{
    REQUIRE(Notices.size() == 1);
    const Text words = Notices[0];
    Notices.clear();
    return words;
}

static Text Moved(const char* description, const RowMoves& moves, int layers)
{
    return Short(MoveMarkers(Lines(description), moves, LayerRows(size_t(layers) + 1, true)).text);
}

TEST_CASE("a row put in takes the markers below it along, with an empty one for the new layer, and it is said")
{
    Prepare(3, "@1|a|@2|b|b2|@3|c|");
    SSLith.row = 2;
    mnuInsertRow();
    CHECK(Codes() == "A_BC");
    CHECK(Description() == "@1|a|@2|@3|b|b2|@4|c|");
    CHECK(OnlyNotice() == "Markers @2 to @3 are now @3 to @4. @2 is new, and empty.");
    CHECK(FileChanged == 1);
}

TEST_CASE("one Undo takes a row and its markers back together, and one Redo does both again")
{
    Prepare(3, "@1|a|@2|b|@3|c");
    SSLith.row = 3;
    mnuInsertRow();
    Notices.clear();
    mnuUndo();
    CHECK(Codes() == "ABC");
    CHECK(Description() == "@1|a|@2|b|@3|c");
    CHECK(OnlyNotice() == "Taken back: Marker @3 is now @4. @3 is new, and empty.");
    CHECK(SSLith.done.empty());
    mnuRedo();
    CHECK(Codes() == "AB_C");
    CHECK(Description() == "@1|a|@2|b|@3|@4|c");
    CHECK(OnlyNotice() == "Marker @3 is now @4. @3 is new, and empty.");
}

TEST_CASE("the text of a deleted layer stays, in front of that of the layer below it, and it is said")
{
    Prepare(4, "@1|a|@2|b|@3|c|@4|d|");
    SSLith.row = 2;
    mnuDeleteRow();
    CHECK(Codes() == "ACD");
    CHECK(Description() == "@1|a|@2|b|c|@3|d|");
    CHECK(OnlyNotice() == "Markers @3 to @4 are now @2 to @3. The text of @2, whose layer has gone, stays: it is now "
                          "with the layer below, under @2.");
    mnuUndo();
    CHECK(Codes() == "ABCD");
    CHECK(Description() == "@1|a|@2|b|@3|c|@4|d|");
}

TEST_CASE("the text of a deleted last layer stays with the layer above it")
{
    Prepare(3, "@1|a|@2|b|@3|c");
    SSLith.row = 3;
    mnuDeleteRow();
    CHECK(Description() == "@1|a|@2|b|c");
    CHECK(OnlyNotice() == "The text of @3, whose layer has gone, stays: it is now with the layer above, under @2.");
}

TEST_CASE("an empty marker goes with its deleted layer, and the only layer's text stays under its marker")
{
    Prepare(3, "@1|a|@2|@3|c");
    SSLith.row = 2;
    mnuDeleteRow();
    CHECK(Description() == "@1|a|@2|c");
    CHECK(OnlyNotice() == "Marker @3 is now @2. The empty @2 has gone.");
    Prepare(1, "@1|a");
    SSLith.row = 1;
    mnuDeleteRow();
    CHECK(Description() == "@1|a");
    CHECK(OnlyNotice() == "The text of @1, whose layer has gone, stays under its marker.");
}

TEST_CASE("text at a depth stays out of the text that a deleted layer leaves")
{
    Prepare(3, "@1|a|-1.5|placed|@2|b|-3|deep|@3|c");
    SSLith.row = 1;
    mnuDeleteRow();
    CHECK(Description() == "@1|a|b|-1.5|placed|-3|deep|@2|c");
}

TEST_CASE("rows among the blank ones below the layers move no marker, and say nothing")
{
    Prepare(2, "@1|a|@2|b|@3|c");
    SSLith.row = 9;
    mnuInsertRow();
    mnuDeleteRow();
    CHECK(Description() == "@1|a|@2|b|@3|c");
    CHECK(Notices.empty());
    CHECK(FileChanged == 0);
}

TEST_CASE("markers beyond the layers go along, so that the order has no gap")
{
    Prepare(2, "@1|a|@2|b|@3|c");
    SSLith.row = 2;
    mnuInsertRow();
    CHECK(Description() == "@1|a|@2|@3|b|@4|c");
    mnuUndo();
    mnuDeleteRow();
    CHECK(Description() == "@1|a|b|@2|c");
}

TEST_CASE("a description without markers for its layers keeps every letter")
{
    for (const char* words : {"", "Fill|@2 feet of it", "..@2|@3", " @1|@2", "-2|@2|x"}) {
        Prepare(3, words);
        SSLith.row = 1;
        mnuInsertRow();
        CHECK(Description() == words);
        CHECK(Notices.empty());
    }
}

TEST_CASE("a description that is placed by hand has markers too")
{
    CHECK(Moved("Manual|#8|@1|a|@2|b", RowInserted(5, 2), 3) == "Manual|#8|@1|a|@2|@3|b");
}

TEST_CASE("a marker's number changes alone: what stands around it is as typed")
{
    const RowMoves moves = RowInserted(100, 1);
    CHECK(Moved("@ 1 |a|@2. Clay|b|@09|c|@99|d", moves, 100) == "@1|@ 2 |a|@3. Clay|b|@10|c|@100|d");
    CHECK(Moved("@1|a @2|b@2|  @2", moves, 2) == "@1|@2|a @2|b@2|  @2");
    // No whole number, and so no row.
    CHECK(Moved("@1|@|@x|@2.5|@-3|@1E1|@0", moves, 2) == "@1|@2|@|@x|@2.5|@-3|@1E1|@0");
}

TEST_CASE("a gap in the order stays a gap, and markers out of order only change their numbers")
{
    CHECK(Moved("@1|a|@2|b|@6|c", RowInserted(9, 4), 7) == "@1|a|@2|b|@7|c");
    CHECK(Moved("@1|a|@2|b|@6|c", RowDeleted(9, 4), 5) == "@1|a|@2|b|@5|c");
    CHECK(Moved("@1|a|@3|b|@2|c", RowInserted(9, 2), 4) == "@1|a|@4|b|@3|c");
    CHECK(Moved("@1|a|@2|b|@2|c", RowInserted(9, 2), 3) == "@1|a|@2|@3|b|@3|c");
}

TEST_CASE("what stands behind the number of a marker that goes is kept as text")
{
    CHECK(Moved("@1|a|@2 see note|b", RowDeleted(9, 2), 1) == "@1|a|see note|b");
}

TEST_CASE("rows cut out and pasted elsewhere take their texts along, in one step")
{
    Prepare(4, "@1|a|@2|b|@3|c|@4|d");
    SelectRows(2, 3);
    mnuCut();
    CHECK(Codes() == "A__D");
    CHECK(Description() == "@1|a|@2|b|@3|c|@4|d");
    CHECK(OnlyNotice() == "The texts under @2 to @3 stay for now; they go along when their rows are pasted.");
    SelectRows(5, 5);
    mnuPaste();
    CHECK(Codes() == "A__DBC");
    CHECK(Description() == "@1|a|@2|@3|@4|d|@5|b|@6|c");
    CHECK(OnlyNotice() == "Markers @2 to @3 are now @5 to @6. @2 to @3 are new, and empty.");
    mnuUndo();
    CHECK(Codes() == "A__D");
    CHECK(Description() == "@1|a|@2|b|@3|c|@4|d");
    mnuRedo();
    CHECK(Description() == "@1|a|@2|@3|@4|d|@5|b|@6|c");
    mnuUndo();
    mnuUndo();
    CHECK(Codes() == "ABCD");
    CHECK(Description() == "@1|a|@2|b|@3|c|@4|d");
}

TEST_CASE("rows cut out and pasted one row lower make room for a layer")
{
    Prepare(4, "@1|a|@2|b|@3|c|@4|d");
    SelectRows(2, 4);
    mnuCut();
    SelectRows(3, 3);
    Notices.clear();
    mnuPaste();
    CHECK(Codes() == "A_BCD");
    CHECK(Description() == "@1|a|@2|@3|b|@4|c|@5|d");
    CHECK(OnlyNotice() == "Markers @2 to @4 are now @3 to @5. @2 is new, and empty.");
}

TEST_CASE("a row that is cut out, put elsewhere by a new row, and whose place is closed has gone there with its text")
{
    Prepare(4, "@1|a|@2|b|@3|c|@4|d");
    SelectRows(4, 4);
    mnuCut();
    SSLith.row = 2;
    mnuInsertRow();
    CHECK(Codes() == "A_BC");
    CHECK(Description() == "@1|a|@2|@3|b|@4|c|@5|d");
    SelectRows(2, 2);
    mnuPaste();
    CHECK(Codes() == "ADBC");
    CHECK(Description() == "@1|a|@2|d|@3|b|@4|c");
}

TEST_CASE("rows that were cut out go once: pasted again they are copies")
{
    Prepare(3, "@1|a|@2|b|@3|c");
    SelectRows(3, 3);
    mnuCut();
    SelectRows(4, 4);
    mnuPaste();
    const Text once = Description();
    SelectRows(6, 6);
    mnuPaste();
    CHECK(Codes() == "AB_C_C");
    CHECK(Description() == once);
    // After the Undo of the first paste they wait again.
    mnuUndo();
    mnuUndo();
    SelectRows(5, 5);
    mnuPaste();
    CHECK(Codes() == "AB__C");
    CHECK(Description() == "@1|a|@2|b|@3|@5|c"); // no layer has come to row 4
}

TEST_CASE("whole rows pasted over others keep the markers, and the table back from a spreadsheet moves them")
{
    Prepare(4, "@1|a|@2|b|@3|c|@4|d");
    PlainClipboard = "4\tX\t\t\r\n";
    SelectRows(2, 2);
    mnuPaste();
    CHECK(Description() == "@1|a|@2|b|@3|c|@4|d");
    CHECK(Notices.empty());
    PlainClipboard = "2\tA\t\t\r\n3\tNEW\t\t\r\n4\tX\t\t\r\n6\tC\t\t\r\n8\tD\t\t\r\n";
    SelectRows(1, 1);
    mnuPaste();
    CHECK(Description() == "@1|a|@2|@3|b|@4|c|@5|d");
    CHECK(OnlyNotice() == "Markers @2 to @4 are now @3 to @5. @2 is new, and empty.");
    mnuUndo();
    CHECK(Description() == "@1|a|@2|b|@3|c|@4|d");
}

TEST_CASE("a block that is not whole rows moves no marker")
{
    Prepare(3, "@1|a|@2|b|@3|c");
    SSLith.selected = {1, 1, 3, 3};
    mnuCut();
    SSLith.selected = {2, 1, 2, 1};
    mnuPaste();
    CHECK(Codes() == "_ABC");
    CHECK(Description() == "@1|a|@2|b|@3|c");
    CHECK(Notices.empty());
}

TEST_CASE("what was typed into the description after a row was put in stays when the row is taken back")
{
    Prepare(3, "@1|a|@2|b|@3|c");
    SSLith.row = 2;
    mnuInsertRow();
    MemoDes.text = Lines("@1|a and more|@2|new|@3|b|@4|c");
    Notices.clear();
    mnuUndo();
    CHECK(Description() == "@1|a and more|@2|new|b|@3|c");
    CHECK(Notices.size() == 1);
    mnuRedo();
    CHECK(Description() == "@1|a and more|@2|@3|new|b|@4|c");
}

TEST_CASE("markers that the text box's own Undo has taken back are not moved twice by the grid's")
{
    Prepare(2, "@1|a|@2|b");
    SSLith.row = 1;
    mnuInsertRow();
    MemoDes.text = Lines("@1|a|@2|b");
    mnuUndo();
    CHECK(Codes() == "AB");
    CHECK(Description() == "@1|a|@2|b");
}

TEST_CASE("after a row was put in the boring is saved without a warning of a missing marker")
{
    Prepare(3, "@1|a|@2|b|@3|c");
    SSLith.row = 2;
    mnuInsertRow();
    SSLith.Cell(2, 1) = "3";
    BoringFileName = Scratch("x.BOR");
    Messages.clear();
    SaveBoringFile();
    CHECK(Messages.empty());
    CHECK(BoringData.Des[3] == "@2\xB6");
}

TEST_CASE("only the Lithology grid moves markers")
{
    Prepare(3, "@1|a|@2|b|@3|c");
    for (const int box : {1, 3, 4, 5, 6, 7, 11, 12, 13, 14, 15, 16}) {
        ActiveBox = int16_t(box);
        BoxGrid(box)->Cell(1, 1) = "1";
        BoxGrid(box)->row = 1;
        mnuInsertRow();
        mnuDeleteRow();
    }
    CHECK(Description() == "@1|a|@2|b|@3|c");
    CHECK(Notices.empty());
}

TEST_CASE("a row pasted far below leaves no markers for the blank rows between, and comes back without a trace")
{
    Prepare(3, "@1|a|@2|b|@3|c");
    SelectRows(2, 2);
    mnuCut();
    CHECK(OnlyNotice() == "The text under @2 stays for now; it goes along when its row is pasted.");
    SelectRows(90, 90);
    mnuPaste();
    CHECK(Description() == "@1|a|@2|@3|c|@90|b");
    CHECK(OnlyNotice() == "Marker @2 is now @90. @2 is new, and empty.");
    SelectRows(90, 90);
    mnuCut();
    SelectRows(2, 2);
    mnuPaste();
    CHECK(Codes() == "ABC");
    CHECK(Description() == "@1|a|@2|b|@3|c");
}

// What stands under each marker, by the code of its layer.
static Text TextsByLayer()
{
    Text texts;
    bool placed = false;
    for (size_t at = 0; at < MemoDes.text.size();) {
        const size_t end = std::min(MemoDes.text.find("\r\n", at), MemoDes.text.size());
        const Text line = MemoDes.text.substr(at, end - at);
        at = end + 2;
        if (line.starts_with('@')) {
            const int row = int(TextNumber(line.substr(1)));
            const Text layer = row >= 1 && row <= SSLith.rows ? SSLith.Cell(row, 1) + SSLith.Cell(row, 2) : "";
            texts += layer.empty() ? "" : layer + ":";
            placed = false;
        } else if (line.starts_with('-')) {
            placed = true;
        } else if (!placed) {
            texts += line + "/";
        }
    }
    return texts;
}

TEST_CASE("in each sample a row put in anywhere leaves every text with its layer, and Undo leaves nothing behind")
{
    int moved = 0;
    for (const auto& file : std::filesystem::directory_iterator(SOURCE_DIR "/samples")) {
        if (file.path().extension() != ".BOR")
            continue;
        CAPTURE(file.path().filename().string());
        Prepare(0, "");
        BoringFileName = file.path().string();
        DialogMode = 2;
        OpenBoringFile2();
        FillBoringForm();
        ActiveBox = 8;
        const Text before = MemoDes.text, texts = TextsByLayer();
        const std::vector<Text> cells = SSLith.cells;
        const int rows = SSLith.DataRowCount();
        for (int row = 1; row <= rows; ++row) {
            CAPTURE(row);
            SSLith.row = row;
            mnuInsertRow();
            CHECK(TextsByLayer() == texts);
            moved += MemoDes.text != before;
            mnuUndo();
            CHECK(MemoDes.text == before);
            SSLith.row = row;
            mnuDeleteRow();
            mnuUndo();
            CHECK(MemoDes.text == before);
            CHECK(SSLith.cells == cells);
        }
    }
    CHECK(moved > 50);
}
