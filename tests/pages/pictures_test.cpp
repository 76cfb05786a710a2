// pictures_test.cpp -- what the golden pages look like: pictures of the samples against the kept ones of docs/gallery.
//
// The object list says where everything is; only a picture shows a pattern upside down or a text in a wrong font. Fonts
// are rasterised a little differently from one machine to the next, so the pictures are compared shrunk and with room.
#include "pages/pages.h"

#include "testing.h"

#include "canvas/patterns.h"
#include "painter/headless.h"
#include "painter/pngpages.h"
#include "places.h"
#include "run/batchrun.h"
#include "session/files.h"

#include <QImage>
#include <cstdlib>

static const std::string gallery = std::string(SOURCE_DIR) + "/docs/gallery/";
static constexpr int dotsPerInch = 96;
static Text pageName; // of the page that is drawn next; the pages behind the first of a run are not kept

static void KeepFirstPage()
{
    if (!pageName.empty())
        SavePagePng(Scratch(pageName + ".png"), dotsPerInch);
    pageName.clear();
}

static QImage Grey(const std::string& file, int shrink)
{
    const QImage image(QString::fromStdString(file));
    return image
        .scaled(image.width() / shrink, image.height() / shrink, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_Grayscale8);
}

// The mean difference of two grey pictures and the greatest one of any spot, in 255ths.
static std::pair<double, int> Difference(const QImage& a, const QImage& b)
{
    double sum = 0;
    int worst = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const int difference = std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y)));
            sum += difference;
            worst = std::max(worst, difference);
        }
    return {sum / (double(a.width()) * a.height()), worst};
}

static void CheckPicture(const Text& name)
{
    const std::string kept = gallery + name + ".png", drawn = Scratch(name + ".png");
    REQUIRE(std::filesystem::exists(drawn));
    if (const char* accept = std::getenv("STRATAVUE_ACCEPT"); accept && std::string(accept) == "gallery") {
        std::filesystem::create_directories(gallery);
        std::filesystem::copy_file(drawn, kept, std::filesystem::copy_options::overwrite_existing);
        return;
    }
    const QImage before = Grey(kept, 6), now = Grey(drawn, 6);
    REQUIRE(before.size() == now.size());
    REQUIRE(before.width() > 100);
    const auto [mean, worst] = Difference(before, now);
    CHECK(mean < 1.5);
    CHECK(worst < 70);
}

static void StartPictures()
{
    StartWithoutScreen();
    Platform.PrintPage = KeepFirstPage;
}

TEST_CASE("the first pages of the sample borings look like the kept pictures")
{
    const std::string folder = std::string(BUILD_DIR) + "/samples";
    for (const Text name : {"TC-101", "TC-102", "TC-103", "TC-104", "TC-105", "TC-106", "TC-107", "MW-108", "MW-109",
                            "MW-110", "MW-112", "CP-111"}) {
        CAPTURE(name);
        StartPictures();
        pageName = name;
        DrawLogs(folder, {name + ".BOR"});
        CheckPicture(name);
    }
}

TEST_CASE("the pages with every column look like the kept pictures")
{
    const std::string folder = std::string(SOURCE_DIR) + "/tests/pages/columns";
    for (const Text name : {"PAGE-1", "PAGE-2", "PAGE-3"}) {
        CAPTURE(name);
        StartPictures();
        pageName = "columns-" + name.substr(5);
        const Text kept = pageName;
        DrawLogs(folder, {name + ".BOR"});
        CheckPicture(kept);
    }
}

TEST_CASE("the intro pages of a sample boring look like the kept pictures, in both arrangements")
{
    const std::string folder = std::string(BUILD_DIR) + "/samples";
    for (const int arrangement : {1, 2}) {
        CAPTURE(arrangement);
        StartPictures();
        const Text name = "MW-108-intro" + PlainNumber(arrangement);
        pageName = name;
        DrawIntro(folder, {"MW-108.BOR"}, arrangement);
        CheckPicture(name);
    }
}

TEST_CASE("the sample sections, fences and soil tables look like the kept pictures")
{
    const std::string folder = std::string(BUILD_DIR) + "/samples";
    const std::pair<Text, int16_t> sheets[] = {{"TC-S1.CRO", 4},  {"TC-S2.CRO", 4}, {"TC-S3.CRO", 4},
                                               {"TC-F1.FEN", 6},  {"TC-F2.FEN", 6}, {"TC-F3.FEN", 6},
                                               {"MW-108.SOI", 8}, {"SB-111.SOI", 8}};
    for (const auto& [file, job] : sheets) {
        const Text drawn = file;
        CAPTURE(drawn);
        StartPictures();
        const Text name = Text(Before(file, '.')) + (job == 8 ? "-soil" : "");
        pageName = name;
        DrawSheets(folder, job, {file});
        CheckPicture(name);
    }
}

TEST_CASE("the fill pattern guide looks like the kept picture")
{
    StartPictures();
    LayOutFolder(std::string(BUILD_DIR) + "/samples");
    Platform.ShowPage = [] { SavePagePng(Scratch("guide.png"), dotsPerInch); };
    TintsInMemory = true;
    patternstart();
    CheckPicture("guide");
}

TEST_CASE("a picture that lacks a pattern is not taken for the kept one")
{
    const QImage guide = Grey(gallery + "guide.png", 6);
    REQUIRE(guide.width() > 100);
    QImage blank = guide;
    for (int y = 150; y < 200; ++y)
        for (int x = 10; x < 40; ++x)
            blank.setPixel(x, y, 255);
    CHECK(Difference(guide, blank).second >= 70);
}
