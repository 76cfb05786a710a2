// patternguide_test.cpp -- the Fill Pattern Guide.
#include "testing.h"

#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "canvas/patterns.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "session/deviceconfig.h"
#include "session/files.h"

static const PageObject& At(size_t i)
{
    REQUIRE(i < PageList.Objects.size());
    return PageList.Objects[i];
}

TEST_CASE("the guide's frame and headings stand where the margin offsets put them")
{
    DeviceConfig.MarginX = 0.1f;
    DeviceConfig.MarginY = -0.1f;
    patternstart();
    CHECK(Messages.empty());
    CHECK(PageCanvas.mode == "P");
    // Origin at 0.4 + 0.1 - 0.25 from the left and 10.6 - 0.1 - 0.25 from the bottom of a sheet of 10.5.
    CHECK(At(0).Kind == ObjectKind::Rectangle);
    CHECK(At(0).X1 == 150);
    CHECK(At(0).Y1 == 150);
    CHECK(At(0).X2 == 150 + 4620);
    CHECK(At(0).Y2 == 150 + 6120);
    CHECK(At(1).String == " GEOLOGICAL FILL PATTERNS ");
    CHECK(At(1).X1 == 150 + 2310);
    CHECK(At(1).Y1 == 150 + 180 + 13);
    CHECK(At(2).String == " Fill Pattern Number & USCS Code or Geologic Code ");
    CHECK(At(2).Y1 == 150 + 330 + 9);
}

TEST_CASE("the guide's entry 0 has no fill and no label, but its box")
{
    patternstart();
    CHECK(At(3).String == "0");
    CHECK(At(4).Kind == ObjectKind::Rectangle);
    CHECK(At(5).Kind == ObjectKind::Text);
    CHECK(At(5).String == "");
    // Entry 1 has four objects: number, fill, box, name.
    CHECK(At(6).String == "1");
    CHECK(At(7).Kind == ObjectKind::Polygon);
    CHECK(At(8).Kind == ObjectKind::Rectangle);
    CHECK(At(9).String == "GW, well graded gravels");
    CHECK(PageList.Objects.size() == 3 + 3 + 65 * 4);
}

TEST_CASE("the guide's patterns run down three columns of 22")
{
    patternstart();
    const auto number = [](int pattern) -> const PageObject& {
        return At(size_t(pattern == 0 ? 3 : 6 + 4 * (pattern - 1)));
    };
    for (int pattern = 0; pattern <= 65; ++pattern) {
        CHECK(number(pattern).String == PlainNumber(pattern));
        CHECK(number(pattern).X1 == number(0).X1 + pattern / 22 * 1590);
        CHECK(number(pattern).Y1 == number(0).Y1 + pattern % 22 * 240);
    }
    CHECK(At(PageList.Objects.size() - 1).String == "micritic limestone");
    CHECK(patternNames[16] == "LC, crystaline limestone");
    CHECK(patternNames[34] == "shist");
    CHECK(patternNames[63] == "pelleiat limestone");
}

TEST_CASE("the guide fills each entry with its own pattern")
{
    Bitmap bitmap;
    bitmap.Width = bitmap.Height = 150;
    bitmap.Pixels.assign(150 * 150, 0);
    std::filesystem::create_directories(Scratch("fills"));
    WriteScratch("fills/F21.BMP", EncodeBitmap(bitmap));
    WriteScratch("fills/F85.BMP", EncodeBitmap(bitmap));
    patternstart();
    CHECK(BaseName(At(7).Fill) == "F21.bmp");
    CHECK(BaseName(At(11).Fill) == "f0.bmp");
    CHECK(BaseName(At(PageList.Objects.size() - 3).Fill) == "F85.bmp");
}

static std::vector<bool> progressShown;

TEST_CASE("the guide counts 66 steps and shows its page once, as the only page of its run")
{
    progressShown.clear();
    Platform.ShowProgress = [](bool shown) { progressShown.push_back(shown); };
    RunPages.pageCount = 9;
    RunPages.printing = 1;
    patternstart();
    CHECK(progressTotal == 66);
    CHECK(progressValue == 66);
    CHECK(progressShown == std::vector<bool>{true, false});
    CHECK(Listings.size() == 1);
    CHECK(PlainPrinted == 0);
    CHECK(RunPages.pageCount == 1);
    CHECK(DxfName() == Scratch("fillpatt.dxf"));
}

TEST_CASE("a guide that fails leaves no progress window behind")
{
    progressShown.clear();
    Platform.ShowProgress = [](bool shown) { progressShown.push_back(shown); };
    std::filesystem::create_directories(Scratch("fills"));
    WriteScratch("fills/F30.BMP", "no picture");
    patternstart();
    CHECK(progressShown == std::vector<bool>{true, false});
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 481 in patternstart.  Please contact Norvane");
    CHECK(Listings.empty());
}

TEST_CASE("Previous and GoTo from the guide find no other page")
{
    PlainShowPage = [] { CHECK_FALSE(PreviousPage()); };
    patternstart();
    RunPages.zeroBased = 1;
    patternstart();
    CHECK(Messages.size() == 2);
}

TEST_CASE("the guide runs as job 9 with no dialog")
{
    JobTable[9] = patternstart;
    jobCode = 9;
    singleFile = 1;
    DrawPrintOk();
    CHECK(Listings.size() == 1);
    CHECK(Messages.empty());
    CHECK(PlainRunsEnded == 0);
}

TEST_CASE("an entry of the guide is its number, a box of 0.4 by 0.3 lower right of it, and its name in 9 point")
{
    patternstart();
    // The frame's corner is at 0.15 inch from the left and from the top; the entries start 0.2 and 1.1 inside it.
    const int32_t x = 90 + 120, y = 90 + 660;
    CHECK(At(3).X1 == x);
    CHECK(At(3).Y1 == y + 8);
    CHECK(At(3).FontHeight == doctest::Approx(-75));
    CHECK(At(4).X1 == x + 150);
    CHECK(At(4).Y1 == y + 90);
    CHECK(At(4).X2 == x + 390);
    CHECK(At(4).Y2 == y - 90);
    CHECK(At(9).X1 == x + 450);
    CHECK(At(9).Y1 == y + 240 + 8);
    CHECK(At(9).HAlign == 0);
    const PageObject& fill = At(7);
    REQUIRE(fill.Vertices.size() == 4);
    CHECK(fill.Vertices[0].X == x + 150);
    CHECK(fill.Vertices[0].Y == y + 240 + 90);
    CHECK(fill.Vertices[2].X == x + 390);
    CHECK(fill.Vertices[2].Y == y + 240 - 90);
    CHECK(At(8).X2 == x + 390);
}
