// patterns_test.cpp -- codes, names, screen forms and tints of fill patterns.
#include "canvas/patterns.h"

#include "testing.h"

#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "session/deviceconfig.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/session.h"

#include <unistd.h>

// A checked pattern of the print size.
static Bitmap Checks(int size = 150)
{
    Bitmap bitmap;
    bitmap.Width = bitmap.Height = size;
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x)
            bitmap.Pixels.push_back((x / 12 + y / 12) % 2 ? 0 : 0xFFFFFF);
    return bitmap;
}

static Text FillsName(const Text& base)
{
    return Scratch("fills/" + base);
}

static bool OnDisk(const Text& base)
{
    return std::filesystem::exists(FillsName(base));
}

// A page with these patterns in the fills folder.
static void StartPage(std::initializer_list<const char*> files)
{
    std::filesystem::create_directories(Scratch("fills"));
    for (const char* file : files)
        WriteScratch(Text("fills/") + file, EncodeBitmap(Checks()));
    float x = 0.25f, y = 0.25f;
    canvasstart("P");
    setscalex(1);
    setscaley(1);
    setorigin(x, y);
}

TEST_CASE("an empty fill cell, a blank one and F0 are blank")
{
    CHECK(getpch("F0") == 0);
    CHECK(getpch("") == 0);
    CHECK(getpch("   ") == 0);
    CHECK(Messages.empty());
}

TEST_CASE("FB is the first pattern behind the system's own")
{
    CHECK(getpch("FB") == 20);
}

TEST_CASE("a fill cell is a number with or without F, or a code in any case")
{
    CHECK(getpch("F1") == 21);
    CHECK(getpch("1") == 21);
    CHECK(getpch(" f12 ") == 32);
    CHECK(getpch("GW") == 21);
    CHECK(getpch("gw") == 21);
    CHECK(getpch("QU") == 51);
    CHECK(getpch("F2000") == 2020);
    CHECK(Messages.empty());
}

TEST_CASE("a fill number above 2000 is told and blank")
{
    CHECK(getpch("F2001") == 0);
    CHECK(getpch("-3") == 0);
    REQUIRE(Messages.size() == 2);
    CHECK(Messages[0].words == "Fill pattern number is out of range: 2001");
    CHECK(Messages[0].icon == Exclamation);
}

TEST_CASE("an unknown fill code is blank without a message")
{
    CHECK(getpch("XX") == 0);
    CHECK(Messages.empty());
}

TEST_CASE("the older reader of codes heeds case, drops the first character of a number and ends at 300")
{
    StartPage({"F21.BMP", "F22.BMP", "F32.BMP", "F300.BMP", "F0.BMP"});
    const auto file = [](const char* code) {
        setpatt(code);
        return BaseName(PageCanvas.fillFile);
    };
    CHECK(file("GW") == "F21_sc.BMP");
    CHECK(file("gw") == "F0_sc.BMP");
    CHECK(file("F12, BLUE") == "F32_sc.BMP");
    CHECK(file("F280") == "F300_sc.BMP");
    CHECK(file("F281") == "F0_sc.BMP");
    CHECK(file("F0") == "F0_sc.BMP");
    CHECK(file("12") == "F22_sc.BMP");
    CHECK(file("F1E30") == "F0_sc.BMP");
    CHECK(FailureOf([] { setpatt("F"); }) == InvalidCall);
    CHECK(FailureOf([] { setpatt(""); }) == InvalidCall);
    CHECK(Messages.empty());
}

TEST_CASE("pattern files below 10 have two digits, but for 0")
{
    StartPage({});
    const auto file = [](int number) {
        setfillfile(number);
        return BaseName(PageCanvas.fillFile);
    };
    CHECK(file(5) == "F05.BMP");
    CHECK(file(0) == "F0.BMP");
    CHECK(file(10) == "F10.BMP");
    CHECK(file(-7) == "F0.BMP");
    CHECK(file(2020) == "F2000.BMP");
}

TEST_CASE("the screen form of a pattern is made beside it on first use, 25 by 25 pixels")
{
    StartPage({"F21.BMP"});
    setfillfile(21);
    CHECK(PageCanvas.fillFile == FillsName("F21_sc.BMP"));
    REQUIRE(OnDisk("F21_sc.BMP"));
    const Bitmap screen = LoadBitmap(FillsName("F21_sc.BMP"));
    CHECK(screen.Width == 25);
    CHECK(screen.Height == 25);
    CHECK(screen.Pixels == Shrunk(Checks(), 25, 25).Pixels);
}

TEST_CASE("a screen form that is there is used as it is")
{
    StartPage({"F21.BMP"});
    WriteScratch("fills/F21_sc.BMP", EncodeBitmap(Checks(30)));
    setfillfile(21);
    CHECK(LoadBitmap(FillsName("F21_sc.BMP")).Width == 30);
    CHECK(PatternPicture(PageCanvas.fillFile).Width == 30);
}

TEST_CASE("pattern files are found in any case of their letters")
{
    StartPage({"f21.bmp"});
    setfillfile(21);
    CHECK(PageCanvas.fillFile == FillsName("F21_sc.BMP"));
    CHECK(PatternThere(PageCanvas.fillFile));
    CHECK(PatternPicture(FillsName("F21.bmp")).Width == 150);
    CHECK(PatternPicture(FillsName("F21_sc.BMP")).Width == 25);
}

TEST_CASE("a missing pattern leaves its print name, and its fill is the blank pattern")
{
    StartPage({"F0.BMP"});
    setfillfile(99);
    CHECK(PageCanvas.fillFile == FillsName("F99.BMP"));
    CHECK_FALSE(PatternThere(PageCanvas.fillFile));
    rectfill(1, 1);
    CHECK(BaseName(PageList.Objects.back().BrushPicture) == "f0_sc.bmp");
    CHECK(BaseName(PageList.Objects.back().Fill) == "f0.bmp");
    CHECK(BaseName(PageCanvas.fillFile) == "f0_sc.bmp");
    CHECK(Messages.empty());
}

TEST_CASE("a missing pattern is not taken for another one whose name begins its own")
{
    StartPage({"F0.BMP", "F1.bmp", "F21.BMP"});
    setfillfile(1020);
    CHECK(PageCanvas.fillFile == FillsName("F1020.BMP"));
    CHECK_FALSE(PatternThere(PageCanvas.fillFile));
    rectfill(1, 1);
    CHECK(BaseName(PageList.Objects.back().BrushPicture) == "f0_sc.bmp");
    // A screen form counts as there by its print form, in any letters.
    CHECK(PatternThere(FillsName("f21_SC.Bmp")));
    CHECK_FALSE(PatternThere(FillsName("F22_sc.BMP")));
}

TEST_CASE("the blank pattern is white, its file there or not")
{
    StartPage({});
    CHECK(PictureThere(FillsName("f0_sc.bmp")));
    CHECK(PatternPicture(FillsName("f0_sc.bmp")).Pixels == std::vector<uint32_t>(625, 0xFFFFFF));
    CHECK(PatternPicture(FillsName("F0.bmp")).Width == 150);
    CHECK_FALSE(PictureThere(FillsName("F21.bmp")));
    CHECK(FailureOf([] { PatternPicture(FillsName("F21.bmp")); }) == FileNotFound);
}

TEST_CASE("a pattern that appears or goes is seen from the next page on")
{
    StartPage({"F21.BMP"});
    setfillfile(22);
    CHECK(BaseName(PageCanvas.fillFile) == "F22.BMP");
    StartPage({"F22.BMP"});
    setfillfile(22);
    CHECK(BaseName(PageCanvas.fillFile) == "F22_sc.BMP");
    std::filesystem::remove(FillsName("F21.BMP"));
    canvasstart("P");
    setfillfile(21);
    CHECK(BaseName(PageCanvas.fillFile) == "F21.BMP");
    CHECK_FALSE(PatternThere(PageCanvas.fillFile));
}

TEST_CASE("a pattern that is no picture is failure 481")
{
    StartPage({});
    WriteScratch("fills/F21.BMP", "no picture");
    CHECK(FailureOf([] { setfillfile(21); }) == InvalidPicture);
}

TEST_CASE("a fills folder that cannot be written keeps screen forms and tints in memory")
{
    StartPage({"F21.BMP"});
    // A folder in the way of each file that would be written: this holds for root too.
    for (const char* name : {"F21_sc.BMP", "T1_sc.bmp", "T1.bmp"})
        std::filesystem::create_directories(FillsName(name));
    setfillfile(21);
    CHECK(PageCanvas.fillFile == FillsName("F21_sc.BMP"));
    CHECK(PatternPicture(PageCanvas.fillFile).Pixels == Shrunk(Checks(), 25, 25).Pixels);
    rectfill(1, 1);
    CHECK(BaseName(PageList.Objects.back().BrushPicture) == "F21_sc.BMP");
    rectfillcolored(1, 1, "0 0 255");
    CHECK(PictureThere(PageList.Objects.back().Fill));
    CHECK(PatternPicture(FillsName("T1.bmp")).At(0, 0) == 0x0000FF);
    CHECK(Messages.empty());
}

TEST_CASE("a tint is written in both forms, its ground coloured and its strokes black")
{
    StartPage({"F21.BMP"});
    setfillfile(21);
    rectfillcolored(1, 1, "255 128 0");
    REQUIRE(OnDisk("T1_sc.bmp"));
    REQUIRE(OnDisk("T1.bmp"));
    const Bitmap print = LoadBitmap(FillsName("T1.bmp"));
    CHECK(print.Width == 150);
    CHECK(print.At(0, 0) == 0xFF8000);
    CHECK(print.At(12, 0) == 0);
    const Bitmap screen = LoadBitmap(FillsName("T1_sc.bmp"));
    CHECK(screen.Width == 25);
    CHECK(screen.Pixels == Tinted(Shrunk(Checks(), 25, 25), 0xFF8000).Pixels);
}

TEST_CASE("two tints of a page have files of their own, numbered anew on the next page")
{
    StartPage({"F21.BMP", "F22.BMP"});
    setfillfile(21);
    rectfillcolored(1, 1, "255 0 0");
    rectfillcolored(1, 1, "0 0 255");
    CHECK(BaseName(PageList.Objects[0].BrushPicture) == "T1_sc.bmp");
    CHECK(BaseName(PageList.Objects[0].Fill) == "T1.bmp");
    CHECK(BaseName(PageList.Objects[1].BrushPicture) == "T2_sc.bmp");
    CHECK(LoadBitmap(FillsName("T2.bmp")).At(0, 0) == 0x0000FF);
    canvasstart("P");
    setfillfile(22);
    rectfillcolored(1, 1, "0 255 0");
    CHECK(BaseName(PageList.Objects[0].BrushPicture) == "T1_sc.bmp");
    CHECK(LoadBitmap(FillsName("T1.bmp")).At(0, 0) == 0x00FF00);
    CHECK(PatternPicture(FillsName("T1.bmp")).At(0, 0) == 0x00FF00);
}

// As a user who draws a pattern anew: another picture in the file's place.
static void Mend(const char* file, uint32_t color)
{
    Bitmap bitmap;
    bitmap.Width = bitmap.Height = 150;
    bitmap.Pixels.assign(150 * 150, color);
    WriteWholeFile(FillsName(file), EncodeBitmap(bitmap), Durability::Scratch);
}

TEST_CASE("a pattern that has been mended is seen from the next run on, in both its forms")
{
    StartPage({"F21.BMP", "F22.BMP"});
    setfillfile(21);
    const Text screen = PageCanvas.fillFile;
    CHECK(PatternPicture(screen).At(0, 0) == 0xFFFFFF);
    CHECK(PatternPicture(PrintForm(screen)).At(0, 0) == 0xFFFFFF);
    const Bitmap& other = PatternPicture(FillsName("F22.bmp"));
    CHECK(other.Width == 150);
    Mend("F21.BMP", 0);
    // Not within the run: all its pages have the same.
    canvasstart("P");
    setfillfile(21);
    CHECK(PatternPicture(PrintForm(screen)).At(0, 0) == 0xFFFFFF);
    const int before = PatternPicturesEmptied;
    ForgetChangedPictures();
    CHECK(PatternPicturesEmptied == before + 1);
    canvasstart("P");
    setfillfile(21);
    CHECK(PatternPicture(PrintForm(screen)).At(0, 0) == 0);
    CHECK(PatternPicture(screen).At(0, 0) == 0);
    CHECK(PatternPicture(screen).Width == 25);
    CHECK(LoadBitmap(FillsName("F21_sc.BMP")).At(0, 0) == 0);
    CHECK(PatternPicture(FillsName("F22.bmp")).At(0, 0) == 0xFFFFFF);
}

TEST_CASE("the screen form of a mended pattern stays if it was there before, or if the user has drawn it meanwhile")
{
    StartPage({"F21.BMP", "F22.BMP"});
    WriteScratch("fills/F21_sc.BMP", EncodeBitmap(Checks(30)));
    setfillfile(21);
    CHECK(PatternPicture(PageCanvas.fillFile).Width == 30);
    setfillfile(22);
    CHECK(PatternPicture(PageCanvas.fillFile).At(0, 0) == 0xFFFFFF);
    Mend("F21.BMP", 0);
    Mend("F22.BMP", 0);
    Mend("F22_sc.BMP", 0x123456);
    ForgetChangedPictures();
    canvasstart("P");
    setfillfile(21);
    CHECK(PatternPicture(PageCanvas.fillFile).Width == 30);
    CHECK(PatternPicture(PrintForm(PageCanvas.fillFile)).At(0, 0) == 0);
    setfillfile(22);
    CHECK(PatternPicture(PageCanvas.fillFile).At(0, 0) == 0x123456);
}

TEST_CASE("a pattern whose bytes are what they were keeps the screen form that was drawn for it")
{
    StartPage({"F21.BMP"});
    WriteScratch("fills/F21_sc.BMP", EncodeBitmap(Checks(30)));
    setfillfile(21);
    CHECK(PatternPicture(PageCanvas.fillFile).Width == 30);
    CHECK(PatternPicture(FillsName("F21.bmp")).Width == 150);
    const int before = PatternPicturesEmptied;
    std::filesystem::permissions(FillsName("F21.BMP"), std::filesystem::perms::owner_all);
    ForgetChangedPictures();
    CHECK(PatternPicturesEmptied == before);
    CHECK(OnDisk("F21_sc.BMP"));
}

TEST_CASE("a tint follows the pattern that it is made of, and is written anew")
{
    StartPage({"F21.BMP"});
    setfillfile(21);
    rectfillcolored(1, 1, "255 0 0");
    CHECK(LoadBitmap(FillsName("T1.bmp")).At(0, 0) == 0xFF0000);
    Mend("F21.BMP", 0);
    ForgetChangedPictures();
    canvasstart("P");
    setfillfile(21);
    rectfillcolored(1, 1, "255 0 0");
    CHECK(PatternPicture(FillsName("T1.bmp")).At(0, 0) == 0);
    CHECK(LoadBitmap(FillsName("T1.bmp")).At(0, 0) == 0);
}

TEST_CASE("runs that find every pattern as it was keep their pictures")
{
    StartPage({"F0.BMP", "F21.BMP"});
    setfillfile(21);
    rectfillcolored(1, 1, "255 0 0");
    PatternPicture(FillsName("T1.bmp"));
    PatternPicture(FillsName("f0_sc.bmp"));
    const int before = PatternPicturesEmptied;
    ForgetChangedPictures();
    ForgetChangedPictures();
    CHECK(PatternPicturesEmptied == before);
    // A pattern that goes is forgotten.
    std::filesystem::remove(FillsName("F21.BMP"));
    ForgetChangedPictures();
    CHECK(PatternPicturesEmptied == before + 1);
    CHECK(FailureOf([] { PatternPicture(FillsName("F21.bmp")); }) == FileNotFound);
}

TEST_CASE("a tint that stands there already is not written again")
{
    StartPage({"F21.BMP"});
    setfillfile(21);
    rectfillcolored(1, 1, "255 0 0");
    WriteScratch("fills/T1.bmp", "mark");
    canvasstart("P");
    setfillfile(21);
    rectfillcolored(1, 1, "255 0 0");
    CHECK(ReadScratch("fills/T1.bmp") == "mark");
    canvasstart("P");
    setfillfile(21);
    rectfillcolored(1, 1, "255 0 1");
    CHECK(ReadScratch("fills/T1.bmp") != "mark");
}

TEST_CASE("tints stay in memory where several programs share the fills folder")
{
    StartPage({"F21.BMP"});
    TintsInMemory = true;
    setfillfile(21);
    rectfillcolored(1, 1, "1 2 3");
    CHECK_FALSE(OnDisk("T1.bmp"));
    CHECK(PatternPicture(FillsName("T1.bmp")).At(0, 0) == 0x010203);
    CHECK(PatternPicture(FillsName("T1_sc.bmp")).Width == 25);
}

TEST_CASE("a tint colour with fewer than two blanks is white")
{
    StartPage({"F21.BMP"});
    setfillfile(21);
    rectfillcolored(1, 1, "10 20");
    CHECK(LoadBitmap(FillsName("T1.bmp")).At(0, 0) == 0xFFFFFF);
}

TEST_CASE("hundreds of fills on a page cost little")
{
    StartPage({"F21.BMP", "F22.BMP"});
    setfillfile(21);
    setfillfile(22);
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < 1000; ++i) {
        setfillfile(21 + i % 2);
        rectfill(1, 1);
    }
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    // Two microseconds each; asking the disk takes more than ten times as long. Wide, for a busy machine.
    CHECK(taken.count() < 0.1);
    CHECK(PageList.Objects.size() == 1000);
}
