// layoutedit_test.cpp -- the commands of the layout editor and the drops of its tiles.
#include "report/layoutedit.h"

#include "report/choosing.h"

#include "boring/boringboxes.h"
#include "report/layout.h"
#include "session/files.h"
#include "session/session.h"

using frmLayout::Tile;
using frmLayout::TilePoint;

static int BlocksInUse()
{
    int count = 0;
    for (int i = 1; i <= 12; ++i)
        count += LayoutData.Blocks[i] != 0;
    return count;
}

TEST_CASE("New is portrait, with no tile in the layout and no file")
{
    LayoutData.Orientation = 2;
    LayoutData.Blocks[3] = 4;
    DialogResult = "old";
    frmLayout::mnuNew();
    CHECK(LayoutData.Orientation == 0);
    CHECK(BlocksInUse() == 0);
    CHECK(DialogResult == "");
    for (int code = 1; code <= 12; ++code)
        CHECK_FALSE(frmLayout::InLayout(code));
}

TEST_CASE("tiles beside the page stand apart and near no column of any page")
{
    frmLayout::mnuNew();
    for (int orientation = 0; orientation <= 2; ++orientation) {
        frmLayout::ChooseOrientation(orientation);
        for (int code = 1; code <= 12; ++code) {
            const TilePoint at = Tile[code];
            CHECK(at.x + frmLayout::TileWidth <= frmLayout::ColumnsOf(orientation)[0]);
            CHECK(at.y + frmLayout::TileHeight <= (code < 12 ? Tile[code + 1].y : frmLayout::PictureHeight));
            frmLayout::DropTile(code, at.x, at.y);
            CHECK(Tile[code].x == at.x);
            frmLayout::TakeOutTile(code);
            CHECK(Tile[code] == at);
        }
        CHECK(BlocksInUse() == 0);
    }
}

TEST_CASE("a place's number runs down the columns of the page")
{
    frmLayout::mnuNew();
    frmLayout::DropTile(1, 5400, 1080);
    frmLayout::DropTile(2, 5400, 4530);
    frmLayout::DropTile(3, 7530, 1425);
    CHECK(LayoutData.Blocks[1] == 1);
    CHECK(LayoutData.Blocks[3] == 2);
    CHECK(LayoutData.Blocks[8] == 3);
    frmLayout::mnuNew();
    frmLayout::ChooseOrientation(1);
    frmLayout::DropTile(4, 7875, 2505);
    frmLayout::DropTile(5, 5745, 2160);
    CHECK(LayoutData.Blocks[8] == 4);
    CHECK(LayoutData.Blocks[3] == 5);
    frmLayout::mnuNew();
    frmLayout::ChooseOrientation(2);
    frmLayout::DropTile(6, 7845, 2745);
    frmLayout::DropTile(7, 2520, 2400);
    CHECK(LayoutData.Blocks[12] == 6);
    CHECK(LayoutData.Blocks[1] == 7);
}

TEST_CASE("a tile snaps within 500 to a column and within 200 to a row, and not at that distance")
{
    frmLayout::mnuNew();
    frmLayout::DropTile(1, 5400 - 499, 1080 - 199);
    CHECK(Tile[1] == TilePoint{5400, 1080});
    CHECK(LayoutData.Blocks[1] == 1);
    frmLayout::DropTile(1, 7530 + 499, 4530 + 199);
    CHECK(Tile[1] == TilePoint{7530, 4530});
    CHECK(LayoutData.Blocks[9] == 1);
    CHECK(BlocksInUse() == 1);
    frmLayout::DropTile(1, 5400 - 500, 1080);
    CHECK(Tile[1] == TilePoint{4900, 1080});
    CHECK(BlocksInUse() == 0);
    frmLayout::DropTile(1, 5400, 1080 - 200);
    CHECK(Tile[1] == TilePoint{5400, 880});
    CHECK(BlocksInUse() == 0);
}

TEST_CASE("between two rows the first that is near enough holds the tile")
{
    frmLayout::mnuNew();
    frmLayout::DropTile(1, 5400, 1270); // 190 from row 1, 155 from row 2
    CHECK(Tile[1].y == 1080);
    CHECK(LayoutData.Blocks[1] == 1);
}

TEST_CASE("a drop on an occupied place leaves two tiles on the picture and the last code in the file")
{
    frmLayout::mnuNew();
    frmLayout::DropTile(1, 5400, 1080);
    frmLayout::DropTile(2, 5400, 1080);
    CHECK(Tile[1] == Tile[2]);
    CHECK(LayoutData.Blocks[1] == 2);
    CHECK(BlocksInUse() == 1);
    CHECK(frmLayout::InLayout(2));
    CHECK_FALSE(frmLayout::InLayout(1));
}

TEST_CASE("a tile dropped away from every place is out of the layout, in all its places")
{
    frmLayout::mnuNew();
    LayoutData.Blocks[11] = 4;
    frmLayout::DropTile(4, 6465, 1080);
    CHECK(LayoutData.Blocks[4] == 4);
    CHECK(LayoutData.Blocks[11] == 0);
    frmLayout::DropTile(4, 3000, 3000);
    CHECK(BlocksInUse() == 0);
}

TEST_CASE("another orientation moves the tiles to the same positions and keeps codes beyond its places")
{
    frmLayout::mnuNew();
    frmLayout::ChooseOrientation(2);
    frmLayout::DropTile(1, 2520, 2745); // position 2
    frmLayout::DropTile(2, 7845, 2745); // position 12
    frmLayout::DropTile(3, 1500, 4800); // loose
    FileChanged = 0;
    frmLayout::ChooseOrientation(0);
    CHECK(FileChanged == 1);
    CHECK(LayoutData.Orientation == 0);
    CHECK(Tile[1] == TilePoint{5400, 1425});
    CHECK_FALSE(frmLayout::InLayout(2));
    CHECK(Tile[3] == TilePoint{1500, 4800});
    CHECK(LayoutData.Blocks[2] == 1);
    CHECK(LayoutData.Blocks[12] == 2);
    DialogResult = Scratch("a.lay");
    frmLayout::mnuSave();
    CHECK(ReadScratch("a.lay") ==
          Lines({" 0 ", " 0 ", " 1 ", " 0 ", " 0 ", " 0 ", " 0 ", " 0 ", " 0 ", " 0 ", " 0 ", " 0 ", " 2 "}));
    frmLayout::ChooseOrientation(2);
    CHECK(frmLayout::InLayout(2));
}

TEST_CASE("Open reads a layout that exists and names it in the title, and passes over one that does not")
{
    WriteScratch("a.lay", Lines({"1", "0", "7", "0", "0", "0", "0", "0", "3", "0", "0", "0", "5"}));
    frmLayout::Load();
    Choose(Scratch("a.lay"));
    frmLayout::mnuOpen();
    CHECK(modeAsked == 12);
    CHECK(frmLayout::Title == "Layout Editor: " + Scratch("a.lay"));
    CHECK(LayoutData.Orientation == 1);
    CHECK(Tile[7] == TilePoint{4680, 2505});
    CHECK(Tile[3] == TilePoint{7875, 2505});
    CHECK_FALSE(frmLayout::InLayout(5));
    Choose(Scratch("nothing.lay"));
    frmLayout::mnuOpen();
    CHECK(frmLayout::Title == "Layout Editor: " + Scratch("a.lay"));
    CHECK(Tile[7] == TilePoint{4680, 2505});
    CHECK(Messages.empty());
}

TEST_CASE("Save without a file is Save As; it adds the ending and asks before it replaces")
{
    frmLayout::Load();
    frmLayout::DropTile(1, 5400, 1080);
    Choose("");
    frmLayout::mnuSave();
    CHECK(modeAsked == 13);
    CHECK(frmLayout::Title == "Layout Editor");
    std::filesystem::create_directory(Scratch("v1.2"));
    Choose(Scratch("v1.2/a"));
    frmLayout::mnuSave();
    CHECK(DialogResult == Scratch("v1.2/a.LAY"));
    CHECK(frmLayout::Title == "Layout Editor: " + Scratch("v1.2/a.LAY"));
    CHECK(ReadScratch("v1.2/a.LAY").starts_with(" 0 \r\n 1 \r\n"));
    CHECK(Messages.empty());
    modeAsked = 0;
    frmLayout::DropTile(2, 5400, 1425);
    frmLayout::mnuSave();
    CHECK(modeAsked == 0);
    CHECK(ReadScratch("v1.2/a.LAY").starts_with(" 0 \r\n 1 \r\n 2 \r\n"));
}

TEST_CASE("at No nothing is written, yet the title changes to the new name")
{
    WriteScratch("b.lay", "x");
    frmLayout::Load();
    Choose(Scratch("b.lay"));
    Answers = {No};
    frmLayout::mnuSaveAs();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "The file, " + Scratch("b.lay") + " already exists.  Do you wish to overwrite it?");
    CHECK(Messages[0].buttons == YesNo);
    CHECK(Messages[0].icon == Question);
    CHECK(ReadScratch("b.lay") == "x");
    CHECK(frmLayout::Title == "Layout Editor: " + Scratch("b.lay"));
    Answers = {Yes};
    frmLayout::mnuSaveAs();
    CHECK(ReadScratch("b.lay").starts_with(" 0 \r\n"));
}

TEST_CASE("by the keyboard a tile goes from place to place, enters from beside the page and leaves to it")
{
    frmLayout::mnuNew();
    const TilePoint beside = Tile[12];
    frmLayout::StepTile(12, -1, 0);
    frmLayout::StepTile(12, 0, 1);
    CHECK(Tile[12] == beside);
    frmLayout::StepTile(12, 1, 0);
    CHECK(LayoutData.Blocks[3] == 12); // the nearest row is the bottom one
    frmLayout::StepTile(12, 0, 1);
    CHECK(LayoutData.Blocks[3] == 12);
    frmLayout::StepTile(12, 0, -1);
    CHECK(LayoutData.Blocks[2] == 12);
    frmLayout::StepTile(12, 1, 0);
    frmLayout::StepTile(12, 1, 0);
    frmLayout::StepTile(12, 1, 0);
    CHECK(LayoutData.Blocks[8] == 12);
    CHECK(BlocksInUse() == 1);
    frmLayout::StepTile(12, -1, 0);
    frmLayout::StepTile(12, -1, 0);
    frmLayout::StepTile(12, -1, 0);
    CHECK(Tile[12] == beside);
    CHECK(BlocksInUse() == 0);
}

TEST_CASE("by the keyboard a tile goes over the places of others, and stays where there is none behind them")
{
    frmLayout::mnuNew();
    frmLayout::DropTile(1, 6465, 1425);
    frmLayout::DropTile(12, 5400, 1425);
    frmLayout::StepTile(12, 1, 0);
    CHECK(LayoutData.Blocks[5] == 1);
    CHECK(LayoutData.Blocks[8] == 12);
    CHECK(LayoutData.Blocks[2] == 0);
    frmLayout::StepTile(1, 1, 0);
    CHECK(LayoutData.Blocks[5] == 1);
    frmLayout::StepTile(12, -1, 0);
    CHECK(LayoutData.Blocks[2] == 12);
    CHECK(BlocksInUse() == 2);
}

TEST_CASE("every place of every page holds the tile that is dropped there")
{
    const std::vector<std::vector<int>> columns{
        {5400, 6465, 7530}, {4680, 5745, 6810, 7875}, {2520, 3585, 4650, 5715, 6780, 7845}};
    const std::vector<std::vector<int>> rows{{1080, 1425, 4530}, {2160, 2505}, {2400, 2745}};
    for (int orientation = 0; orientation <= 2; ++orientation) {
        frmLayout::mnuNew();
        frmLayout::ChooseOrientation(orientation);
        int place = 0;
        for (const int x : columns[size_t(orientation)])
            for (const int y : rows[size_t(orientation)]) {
                frmLayout::DropTile(12, x, y);
                CHECK(LayoutData.Blocks[++place] == 12);
                CHECK(BlocksInUse() == 1);
            }
    }
}

TEST_CASE("a tile that stands on a place of the page before and has none on this one goes beside the page")
{
    frmLayout::mnuNew();
    for (const int code : {1, 12}) {
        frmLayout::ChooseOrientation(2);
        const TilePoint beside = Tile[code];
        frmLayout::DropTile(code, 7845, 2745); // place 12, which only the large page has
        frmLayout::ChooseOrientation(1);
        CHECK(Tile[code] == beside);
        CHECK(LayoutData.Blocks[12] == code);
        frmLayout::ChooseOrientation(2);
        CHECK(Tile[code] == TilePoint{7845, 2745});
        frmLayout::TakeOutTile(code);
    }
}

TEST_CASE("a layout that is opened puts no tile of the layout before into the picture")
{
    frmLayout::mnuNew();
    const TilePoint beside = Tile[7];
    frmLayout::DropTile(7, 5400, 1080);
    WriteScratch("a.lay", [&] {
        std::string text = " 0 \r\n";
        for (int place = 1; place <= 12; ++place)
            text += place == 2 ? " 3 \r\n" : " 0 \r\n";
        return text;
    }());
    Choose(Scratch("a.lay"));
    frmLayout::mnuOpen();
    CHECK(Tile[7] == beside);
    CHECK(Tile[3] == TilePoint{5400, 1425});
}

TEST_CASE("a layout saved unchanged behind another one is as in a fresh program, also one that breaks off")
{
    std::string full, second;
    for (int line = 0; line <= 12; ++line) {
        full += line == 0 ? " 2 \r\n" : IntegerField(13 - line) + "\r\n";
        second += line == 0 ? " 1 \r\n" : line < 4 ? IntegerField(line) + "\r\n" : " 0 \r\n";
    }
    WriteScratch("full.lay", full);
    const auto saved = [](const std::string& bytes) {
        WriteScratch("b.lay", bytes);
        Choose(Scratch("b.lay"));
        try {
            frmLayout::mnuOpen();
        } catch (const RunTimeError& failure) {
            CHECK(failure.Number == InputPastEnd);
        }
        CHECK(frmLayout::Title == "Layout Editor: " + Scratch("b.lay"));
        for (int code = 1; code <= 12; ++code) {
            bool placed = false;
            for (const int16_t block : LayoutData.Blocks.slot)
                placed = placed || block == code;
            CHECK(frmLayout::InLayout(code) == placed);
        }
        frmLayout::mnuSave();
        return ReadScratch("b.lay");
    };
    for (size_t end = 0; end <= second.size(); end = second.find("\r\n", end) + 2) {
        const std::string bytes = second.substr(0, end);
        CAPTURE(bytes);
        frmLayout::mnuNew();
        const std::string fresh = saved(bytes);
        Choose(Scratch("full.lay"));
        frmLayout::mnuOpen();
        CHECK(saved(bytes) == fresh);
        if (end == second.size())
            break;
    }
}

TEST_CASE("the orientation that a layout has already changes nothing when it is chosen")
{
    frmLayout::mnuNew();
    frmLayout::DropTile(1, 5400, 1080);
    frmLayout::DropTile(2, 5400, 1080); // over the first one
    FileChanged = 0;
    const auto tiles = Tile.slot;
    frmLayout::ChooseOrientation(0);
    CHECK(FileChanged == 0);
    CHECK(Tile.slot == tiles);
}

TEST_CASE("the layouts are listed anew when the layout editor is left")
{
    frmLayout::mnuNew();
    WriteScratch("new.lay", "");
    frmLayout::mnuExit();
    CHECK(frmBorinput::LayFiles == std::vector<Text>{"new.lay"});
}
