// dxf_test.cpp -- the page as a DXF drawing: where entities stand, what their words and colours are.
#include "dxf/dxf.h"

#include "testing.h"

#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "canvas/patterns.h"
#include "session/failure.h"
#include "session/files.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace
{
struct Entity {
    Text Type;
    std::vector<std::pair<int, Text>> Groups;
    std::vector<Text> All(int code) const
    {
        std::vector<Text> values;
        for (const auto& [own, value] : Groups)
            if (own == code)
                values.push_back(value);
        return values;
    }
    Text Value(int code) const
    {
        const std::vector<Text> values = All(code);
        return values.empty() ? Text("none") : values[0];
    }
    double Number(int code) const
    {
        return TextNumber(Value(code));
    }
};
} // namespace

// All records of the drawing: what begins with a group of code 0, in any section.
static std::vector<Entity> Records(const std::string& drawing)
{
    std::vector<Entity> records;
    size_t at = 0;
    const auto line = [&] {
        const size_t end = drawing.find("\r\n", at);
        REQUIRE(end != std::string::npos);
        const std::string text = drawing.substr(at, end - at);
        at = end + 2;
        return text;
    };
    while (at < drawing.size()) {
        const int code = static_cast<int>(TextNumber(line()));
        const Text value = line();
        if (code == 0)
            records.push_back({value, {}});
        else if (!records.empty())
            records.back().Groups.push_back({code, value});
    }
    return records;
}

// What stands in the model space.
static std::vector<Entity> Entities()
{
    std::vector<Entity> entities;
    for (const Entity& record : Records(PageDxf()))
        if (record.Value(100) == "AcDbEntity" && record.Value(330) == "30" && record.Type != "BLOCK" &&
            record.Type != "ENDBLK")
            entities.push_back(record);
    return entities;
}

// What stands in a block.
static std::vector<Entity> BlockEntities(const Text& name)
{
    std::vector<Entity> entities;
    bool inside = false;
    for (const Entity& record : Records(PageDxf()))
        if (record.Type == "BLOCK")
            inside = record.Value(2) == name;
        else if (record.Type == "ENDBLK")
            inside = false;
        else if (inside)
            entities.push_back(record);
    return entities;
}

static void StartPage(const char* mode = "P")
{
    float x = 0.25f, y = 0.25f;
    canvasstart(mode);
    setscalex(1);
    setscaley(1);
    setorigin(x, y);
    moveto(1, 1);
}

// A pattern of level lines in the fills folder of the test, selected.
static void LevelLines(const char* name = "F21.BMP")
{
    Bitmap tile;
    tile.Width = tile.Height = 150;
    tile.Pixels.assign(150 * 150, 0xFFFFFF);
    for (int x = 0; x < 150; ++x)
        for (int y = 10; y < 13; ++y)
            tile.At(x, y) = 0;
    std::filesystem::create_directories(NativePath(PageCanvas.fillsDir));
    WriteWholeFile(PageCanvas.fillsDir + name, EncodeBitmap(tile), Durability::Scratch);
    setfillfile(21);
}

TEST_CASE("a drawing's lines end with CR LF, as in every file of the program")
{
    StartPage();
    lineright(1);
    printtext("one\ntwo");
    const std::string drawing = PageDxf();
    size_t lines = 0;
    for (size_t i = 0; i < drawing.size(); ++i)
        if (drawing[i] == '\n') {
            ++lines;
            REQUIRE(i > 0);
            REQUIRE(drawing[i - 1] == '\r');
        }
    CHECK(lines > 100);
    CHECK(std::count(drawing.begin(), drawing.end(), '\r') == std::ptrdiff_t(lines));
}

TEST_CASE("one drawing unit is one device unit and y points up")
{
    StartPage();
    lineby(1, 2);
    const auto entities = Entities();
    REQUIRE(entities.size() == 1);
    CHECK(entities[0].Type == "LINE");
    CHECK(entities[0].Value(8) == "LINES");
    CHECK(entities[0].Value(10) == "600");
    CHECK(entities[0].Value(20) == "600");
    CHECK(entities[0].Value(11) == "1200");
    CHECK(entities[0].Value(21) == "1800");
}

TEST_CASE("the header tells the version, the code page, the limits and how many units make an inch")
{
    StartPage("L");
    lineby(1, 1);
    const std::string drawing = PageDxf();
    CHECK(drawing.starts_with("999\r\nOne drawing unit is one device unit of the page: 600 units to the inch\r\n"));
    CHECK(drawing.find("$ACADVER\r\n1\r\nAC1018\r\n") != std::string::npos);
    CHECK(drawing.find("$DWGCODEPAGE\r\n3\r\nANSI_1252\r\n") != std::string::npos);
    CHECK(drawing.find("$INSUNITS\r\n70\r\n0\r\n") != std::string::npos);
    CHECK(drawing.find("$LIMMIN\r\n10\r\n0\r\n20\r\n0\r\n") != std::string::npos);
    CHECK(drawing.find("$LIMMAX\r\n10\r\n6300\r\n20\r\n4800\r\n") != std::string::npos);
    CHECK(drawing.find("$EXTMIN\r\n10\r\n600\r\n20\r\n600\r\n") != std::string::npos);
    CHECK(drawing.find("$EXTMAX\r\n10\r\n1200\r\n20\r\n1200\r\n") != std::string::npos);
    CHECK(drawing.ends_with("\r\n0\r\nEOF\r\n"));
}

TEST_CASE("a page without objects is a drawing without entities whose extents are the sheet")
{
    StartPage();
    CHECK(Entities().empty());
    CHECK(PageDxf().find("$EXTMAX\r\n10\r\n4800\r\n20\r\n6300\r\n") != std::string::npos);
}

TEST_CASE("a drawing before any page was started holds what the list holds")
{
    AddObject(ObjectKind::Line, 0, 0, 5, -5);
    const auto entities = Entities();
    REQUIRE(entities.size() == 1);
    CHECK(entities[0].Value(21) == "6");
}

TEST_CASE("no handle is given twice and the next free one is behind them all")
{
    StartPage();
    WritePicture("MAP.BMP");
    drawbitmap("MAP.BMP", 1, 1);
    drawbitmap("MAP.BMP", 1, 1);
    printtext("words");
    const std::string drawing = PageDxf();
    std::vector<long> handles;
    for (const Entity& record : Records(drawing)) {
        // A table's or an entity's own handle comes before its first subclass mark.
        for (const auto& [code, value] : record.Groups) {
            if (code == 100 || record.Type == "SECTION")
                break;
            if (code == 5 || code == 105)
                handles.push_back(std::stol(value, nullptr, 16));
        }
    }
    std::sort(handles.begin(), handles.end());
    CHECK(std::adjacent_find(handles.begin(), handles.end()) == handles.end());
    const size_t seed = drawing.find("$HANDSEED\r\n5\r\n");
    REQUIRE(seed != std::string::npos);
    CHECK(std::stol(drawing.substr(seed + 14), nullptr, 16) > handles.back());
}

TEST_CASE("dashes of the line types are lengths of the page")
{
    StartPage();
    for (int style = 1; style <= 5; ++style) {
        setlinestyle(static_cast<int>(style));
        lineright(1);
    }
    const auto entities = Entities();
    CHECK(entities[0].Value(6) == "none");
    CHECK(entities[1].Value(6) == "DASHED");
    CHECK(entities[2].Value(6) == "DASHDOT");
    CHECK(entities[3].Value(6) == "DIVIDE");
    CHECK(entities[4].Value(6) == "DOT");
    int found = 0;
    for (const Entity& record : Records(PageDxf()))
        if (record.Type == "LTYPE" && record.Value(2) == "DIVIDE") {
            CHECK(record.All(49) == std::vector<Text>{"36", "-18", "7.2", "-18", "7.2", "-18"});
            CHECK(record.Value(40) == "104.4");
            ++found;
        }
    CHECK(found == 1);
}

TEST_CASE("pen widths are the nearest line weights, and width 0 is one unit")
{
    StartPage();
    for (int width = 0; width <= 5; ++width) {
        setlinewidth(width);
        lineright(1);
    }
    const auto entities = Entities();
    const char* weights[] = {"5", "18", "35", "50", "70", "80"};
    for (size_t i = 0; i < 6; ++i)
        CHECK(entities[i].Value(370) == weights[i]);
}

TEST_CASE("a black pen is the colour that turns with the screen and others are true colours")
{
    StartPage();
    lineright(1);
    CurrentObject().PenColor = ColorOf(1, 2, 3);
    lineright(1);
    lineright(1);
    CurrentObject().PenColor = White;
    const auto entities = Entities();
    CHECK(entities[0].Value(420) == "66051");
    CHECK(entities[1].Value(62) == "7");
    CHECK(entities[1].Value(420) == "none");
    CHECK(entities[2].Value(420) == "16711422");
}

TEST_CASE("a white area is a shade below white, which no program turns into black")
{
    StartPage();
    rectfillrgb(1, 1, "255 255 255");
    rectfillrgb(1, 1, "255 0 0");
    const auto entities = Entities();
    REQUIRE(entities.size() == 4);
    CHECK(entities[0].Type == "HATCH");
    CHECK(entities[0].Value(420) == "16711422");
    CHECK(entities[2].Value(420) == "16711680");
}

TEST_CASE("a solid polygon is a hatch in its colour under a closed polyline")
{
    StartPage();
    rectfillrgb(1, 2, "10 20 30");
    const auto entities = Entities();
    REQUIRE(entities.size() == 2);
    CHECK(entities[0].Type == "HATCH");
    CHECK(entities[0].Value(8) == "FILLS");
    CHECK(entities[0].Value(2) == "SOLID");
    CHECK(entities[0].Value(70) == "1");
    CHECK(entities[0].Value(420) == "660510");
    CHECK(entities[0].Value(93) == "4");
    CHECK(entities[1].Type == "LWPOLYLINE");
    CHECK(entities[1].Value(8) == "OUTLINES");
    CHECK(entities[1].All(10) == std::vector<Text>{"600", "1200", "1200", "600"});
    CHECK(entities[1].All(20) == std::vector<Text>{"600", "600", "1800", "1800"});
    CHECK((std::stoi(entities[1].Value(70)) & 1) == 1);
}

TEST_CASE("a patterned polygon is a hatch of lines anchored at the page's upper left corner")
{
    StartPage();
    LevelLines();
    rectfill(1, 1);
    const auto entities = Entities();
    REQUIRE(entities.size() == 3);
    CHECK(entities[0].Value(8) == "PATTERNS");
    CHECK(entities[0].Value(2) == "F21");
    CHECK(entities[0].Value(62) == "7");
    CHECK(entities[0].Value(78) == "1");
    CHECK(entities[0].Value(53) == "0");
    CHECK(entities[0].Value(79) == "0");
    CHECK(std::fabs(entities[0].Number(45)) == 0);
    CHECK(std::fabs(entities[0].Number(46)) == 150);
    // Row 10 to 13 of each tile, counted from the upper edge at 6300.
    CHECK(std::fmod(6300 - 11.5 - entities[0].Number(44) + 15000, 150) == 0);
    CHECK(entities[2].Type == "LWPOLYLINE");
}

TEST_CASE("behind the hatch of a patterned area its strokes are drawn out, for programs that pass over its lines")
{
    StartPage();
    LevelLines();
    rectfill(1, 1);
    const auto entities = Entities();
    REQUIRE(entities.size() == 3);
    CHECK(entities[1].Type == "INSERT");
    CHECK(entities[1].Value(8) == "STROKES");
    // The area's lower left corner; its upper edge at 1200 is that of a tile.
    CHECK(entities[1].Value(10) == "600");
    CHECK(entities[1].Value(20) == "600");
    const auto strokes = BlockEntities(entities[1].Value(2));
    REQUIRE(strokes.size() == 4);
    for (const Entity& stroke : strokes) {
        CHECK(stroke.Type == "LINE");
        CHECK(stroke.Value(10) == "0");
        CHECK(stroke.Value(11) == "600");
        CHECK(stroke.Value(20) == stroke.Value(21));
        // Row 10 to 13 of a tile, to the nearest unit.
        CHECK(std::fabs(std::fmod(600 - stroke.Number(20), 150) - 11.5) <= 0.5);
    }
}

TEST_CASE("strokes lie beneath what covers their area, and each area has a block of its own")
{
    StartPage();
    LevelLines();
    rectfill(1, 1);
    rectfillrgb(1, 1, "255 255 255");
    rectfill(1, 1);
    const auto entities = Entities();
    REQUIRE(entities.size() == 8);
    CHECK(entities[1].Type == "INSERT");
    CHECK(entities[3].Value(2) == "SOLID");
    CHECK(entities[6].Type == "INSERT");
    CHECK(entities[1].Value(2) != entities[6].Value(2));
    CHECK(BlockEntities(entities[1].Value(2)).size() == BlockEntities(entities[6].Value(2)).size());
}

TEST_CASE("strokes are drawn on the page alone, and an area without one has no block")
{
    StartPage();
    LevelLines();
    PageObject& wide = AddObject(ObjectKind::Polygon, 0, 0, 0, 0);
    wide.Vertices = {{-2147483647, 0}, {2147483647, 0}, {2147483647, 6300}, {-2147483647, 6300}};
    wide.Brush = BrushStyle::Picture;
    wide.BrushPicture = PageCanvas.fillFile;
    wide.Fill = PrintForm(PageCanvas.fillFile);
    PageObject low = wide; // between two lines
    low.Vertices = {{0, 20}, {600, 20}, {600, 100}, {0, 100}};
    PageList.Objects.push_back(low);
    const auto entities = Entities();
    REQUIRE(entities.size() == 5);
    CHECK(BlockEntities(entities[1].Value(2)).size() == 42);
    for (const Entity& stroke : BlockEntities(entities[1].Value(2)))
        CHECK(stroke.Number(11) - stroke.Number(10) == 4800);
    CHECK(entities[3].Type == "HATCH");
    CHECK(entities[4].Type == "LWPOLYLINE");
}

TEST_CASE("no layer is frozen, off or locked, and nothing on it is hidden")
{
    StartPage();
    LevelLines();
    rectfillwhite(1, 1);
    printtext("words");
    int layers = 0;
    for (const Entity& record : Records(PageDxf())) {
        CHECK(record.Value(60) != "1");
        if (record.Type != "LAYER" || record.Value(100) == "none")
            continue;
        ++layers;
        CHECK(record.Value(70) == "0");
        CHECK(record.Number(62) > 0);
        CHECK(record.Value(290) != "0"); // plotted
        CHECK(record.Value(370) == (record.Value(2) == "STROKES" ? "15" : "-3"));
    }
    CHECK(layers == 11);
}

TEST_CASE("a tinted pattern is its colour and its lines, black whatever the screen is")
{
    StartPage();
    LevelLines();
    TintsInMemory = true;
    rectfillcolored(1, 1, "0 0 255");
    TintsInMemory = false;
    const auto entities = Entities();
    REQUIRE(entities.size() == 4);
    CHECK(entities[0].Value(2) == "SOLID");
    CHECK(entities[0].Value(420) == "255");
    CHECK(entities[1].Value(2) == "F21");
    CHECK(entities[1].Value(420) == "0");
    for (const Entity& stroke : BlockEntities(entities[2].Value(2)))
        CHECK(stroke.Value(420) == "0");
    CHECK(entities[3].Type == "LWPOLYLINE");
}

TEST_CASE("a pattern on a white ground is black, beside it the pen's colour")
{
    StartPage();
    LevelLines();
    rectfillwhite(1, 1);
    rectfill(0.5, 0.5);
    const auto entities = Entities();
    REQUIRE(entities.size() == 8);
    CHECK(entities[2].Value(420) == "0");
    CHECK(entities[5].Value(420) == "none");
    CHECK(BlockEntities(entities[3].Value(2)).at(0).Value(420) == "0");
    CHECK(BlockEntities(entities[6].Value(2)).at(0).Value(420) == "none");
}

TEST_CASE("a pattern without ink has its outline alone")
{
    StartPage();
    rectfillflag(1, 1, 1);
    const auto entities = Entities();
    REQUIRE(entities.size() == 3);
    CHECK(entities[0].Type == "HATCH");
    CHECK(entities[1].Type == "LWPOLYLINE");
    CHECK(entities[2].Type == "LWPOLYLINE");
}

TEST_CASE("circles are circles, other ellipses ellipses, and flat ones lines")
{
    StartPage();
    circle(0.5);
    blackcircle(0.25);
    AddObject(ObjectKind::Ellipse, 0, 0, 100, 400).Brush = BrushStyle::Hollow;
    AddObject(ObjectKind::Ellipse, 0, 0, 100, 0);
    circle(0);
    const auto entities = Entities();
    REQUIRE(entities.size() == 6);
    CHECK(entities[0].Type == "CIRCLE");
    CHECK(entities[0].Value(10) == "600");
    CHECK(entities[0].Value(20) == "600");
    CHECK(entities[0].Value(40) == "300");
    CHECK(entities[1].Type == "HATCH");
    CHECK(entities[2].Type == "CIRCLE");
    CHECK(entities[3].Type == "ELLIPSE");
    CHECK(entities[3].Value(11) == "0");
    CHECK(entities[3].Value(21) == "200");
    CHECK(entities[3].Value(40) == "0.25");
    CHECK(entities[4].Type == "LINE");
    CHECK(entities[5].Type == "LINE");
}

// Where an arc is highest or lowest, half way between its angles, and its two ends.
static std::array<double, 6> ArcPoints(const Entity& arc)
{
    const double from = arc.Number(50), to = arc.Number(51) < from ? arc.Number(51) + 360 : arc.Number(51);
    std::array<double, 6> points{};
    for (size_t i = 0; i < 3; ++i) {
        const double angle = (from + (to - from) * static_cast<double>(i) / 2) * 3.14159265358979 / 180;
        points[2 * i] = arc.Number(10) + arc.Number(40) * std::cos(angle);
        points[2 * i + 1] = arc.Number(20) + arc.Number(40) * std::sin(angle);
    }
    return points;
}

TEST_CASE("an arc rises 0.3 of its chord on the side of its first corner")
{
    StartPage();
    drawarc(1, -1);
    drawarc(1, 1);
    drawarc(-1, -1);
    const auto entities = Entities();
    REQUIRE(entities.size() == 3);
    const auto check = [](const Entity& arc, double x1, double x2, double middle) {
        CHECK(arc.Type == "ARC");
        const auto points = ArcPoints(arc);
        CHECK(points[0] == doctest::Approx(x1).epsilon(1e-5));
        CHECK(points[1] == doctest::Approx(600).epsilon(1e-5));
        CHECK(points[3] == doctest::Approx(middle).epsilon(1e-5));
        CHECK(points[4] == doctest::Approx(x2).epsilon(1e-5));
        CHECK(points[5] == doctest::Approx(600).epsilon(1e-5));
    };
    check(entities[0], 1200, 600, 780);
    check(entities[1], 600, 1200, 420);
    check(entities[2], 0, 600, 420);
}

TEST_CASE("an arc too small for its corner to tell the side bulges left of the way between its ends")
{
    StartPage();
    PageObject& object = AddObject(ObjectKind::Arc, 600, 5700, 601, 5700);
    object.Vertices = {{600, 5700}, {601, 5700}};
    AddObject(ObjectKind::Arc, 600, 5700, 600, 5700).Vertices = {{601, 5700}, {600, 5700}};
    AddObject(ObjectKind::Arc, 600, 5700, 600, 5700).Vertices = {{600, 5700}, {600, 5700}};
    const auto entities = Entities();
    REQUIRE(entities.size() == 3);
    CHECK(ArcPoints(entities[0])[3] == doctest::Approx(600.3).epsilon(1e-5));
    CHECK(ArcPoints(entities[1])[3] == doctest::Approx(599.7).epsilon(1e-5));
    CHECK(entities[2].Type == "LINE");
}

TEST_CASE("a text stands on its baseline below its point, turned with it, as high as its capitals")
{
    StartPage();
    setfontsize(12);
    printtext("A");
    settextangle(90);
    textright();
    textboldon();
    printtext("B");
    textboldoff();
    const auto entities = Entities();
    REQUIRE(entities.size() == 2);
    CHECK(entities[0].Value(8) == "TEXTS");
    CHECK(entities[0].Value(1) == "A");
    CHECK(entities[0].Value(40) == "71.6");
    CHECK(entities[0].Value(10) == "600");
    CHECK(entities[0].Number(20) == doctest::Approx(600 - 11 - 24.8));
    CHECK(entities[0].Value(50) == "0");
    CHECK(entities[0].Value(7) == "ARIAL");
    CHECK(entities[0].Value(72) == "none");
    CHECK(entities[1].Value(50) == "90");
    CHECK(entities[1].Value(7) == "ARIAL_BOLD");
    CHECK(entities[1].Value(72) == "2");
    CHECK(entities[1].Number(11) == doctest::Approx(600 + 11 + 24.8));
    CHECK(entities[1].Number(21) == doctest::Approx(600));
}

TEST_CASE("each font has a text style, with its family and weight")
{
    StartPage();
    setfontname("Courier New");
    printtext("a");
    setfontname("courier new");
    printtext("b");
    setfontname("A/B*");
    printtext("c");
    std::vector<Text> names;
    for (const Entity& record : Records(PageDxf()))
        if (record.Type == "STYLE")
            names.push_back(record.Value(2) + " " + record.Value(1000) + " " + record.Value(1071));
    CHECK(names == std::vector<Text>{"STANDARD Arial 34", "COURIER NEW Courier New 34", "A_B_ A/B* 34"});
}

TEST_CASE("words stay what they are: code page letters as bytes, control characters, carets and percent signs escaped")
{
    StartPage();
    const std::pair<const char*, const char*> words[] = {
        {"Gr\xF6\xDF"
         "e 5\xB0",
         "Gr\xF6\xDF"
         "e 5\xB0"},
        {"tab\there\n", "tab^Ihere^J"},
        {"a^b", "a^ b"},
        {"50%", "50%"},
        {"%%d", "%%%%%%d"},
        {"5%%%", "5%%%%%%%%%"},
        {"\\U+00B0", "\\U+005CU+00B0"},
        {"\\m+1", "\\U+005Cm+1"},
        {"c:\\up", "c:\\up"},
        {"\x81", "\\U+FFFD"},
        {"", ""},
        {"  ", "  "},
    };
    for (const auto& [text, value] : words)
        printtextraw(text);
    const auto entities = Entities();
    REQUIRE(entities.size() == std::size(words));
    for (size_t i = 0; i < entities.size(); ++i)
        CHECK(entities[i].Value(1) == words[i].second);
}

TEST_CASE("a picture is an image of its file's size in pixels, whose definition is shared")
{
    StartPage();
    Bitmap picture;
    picture.Width = 40;
    picture.Height = 20;
    picture.Pixels.assign(800, 0);
    WriteScratch("Map.bmp", EncodeBitmap(picture));
    drawbitmap("MAP.BMP", 2, 1);
    drawbitmap("MAP.BMP", -1, -1);
    const auto entities = Entities();
    REQUIRE(entities.size() == 2);
    CHECK(entities[0].Type == "IMAGE");
    CHECK(entities[0].Value(10) == "600");
    CHECK(entities[0].Value(20) == "600");
    CHECK(entities[0].Value(11) == "30");
    CHECK(entities[0].Value(22) == "30");
    CHECK(entities[0].Value(13) == "40");
    CHECK(entities[0].Value(23) == "20");
    CHECK(entities[1].Value(10) == "0");
    CHECK(entities[1].Value(20) == "0");
    CHECK(entities[0].Value(340) == entities[1].Value(340));
    CHECK(entities[0].Value(360) != entities[1].Value(360));
    int definitions = 0, reactors = 0;
    for (const Entity& record : Records(PageDxf())) {
        if (record.Type == "IMAGEDEF") {
            ++definitions;
            CHECK(record.Value(1) == Scratch("Map.bmp"));
            CHECK(record.Value(5) == entities[0].Value(340));
        }
        reactors += record.Type == "IMAGEDEF_REACTOR";
    }
    CHECK(definitions == 1);
    CHECK(reactors == 2);
}

TEST_CASE("the size of a picture is read from the head of each kind of file, and is 1 by 1 for what is none")
{
    StartPage();
    using namespace std::string_literals;
    const std::pair<std::string, const char*> files[] = {
        {"\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\1\2\0\0\0\x30"s, "258 48"},
        {"GIF89a\x10\1\x20\0"s, "272 32"},
        {"\xFF\xD8\xFF\xE0\0\4ab\xFF\xC2\0\x11\x08\0\x64\1\0\3"s, "256 100"},
        {"\xFF\xD8\xFF\xE0\0\0"s, "1 1"},
        {"BM"s, "1 1"},
        {"words"s, "1 1"},
        {""s, "1 1"},
    };
    int number = 0;
    for (const auto& [bytes, size] : files) {
        const Text name = "P" + PlainNumber(++number);
        WriteScratch(name, bytes);
        drawbitmap(name, 1, 1);
    }
    const auto entities = Entities();
    REQUIRE(entities.size() == std::size(files));
    for (size_t i = 0; i < entities.size(); ++i)
        CHECK(entities[i].Value(13) + " " + entities[i].Value(23) == files[i].second);
}

TEST_CASE("a picture that went away since it was drawn is still an image")
{
    StartPage();
    WritePicture("gone.bmp");
    drawbitmap("gone.bmp", 1, 1);
    std::filesystem::remove(Scratch("gone.bmp"));
    REQUIRE(Entities().size() == 1);
}

TEST_CASE("polygons without an area have an outline and no fill, and those without a vertex nothing")
{
    StartPage();
    polyright(1);
    polyright(1);
    polyfillrgb("1 2 3");
    polyright(0);
    polyup(0);
    polyfillrgb("1 2 3");
    AddObject(ObjectKind::Polygon, 0, 0, 0, 0);
    const auto entities = Entities();
    REQUIRE(entities.size() == 2);
    CHECK(entities[0].Type == "LWPOLYLINE");
    CHECK(entities[0].Value(90) == "3");
    CHECK(entities[1].Type == "LWPOLYLINE");
    CHECK(entities[1].Value(90) == "2");
}

TEST_CASE("coordinates at the ends of the number range are written as they are")
{
    StartPage();
    AddObject(ObjectKind::Line, INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX);
    AddObject(ObjectKind::Rectangle, INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX);
    const auto entities = Entities();
    REQUIRE(entities.size() == 3);
    CHECK(entities[0].Value(10) == "-2147483648");
    CHECK(entities[0].Value(20) == "2147489948");
    CHECK(entities[0].Value(21) == "-2147477347");
}

TEST_CASE("a pattern that went away fails as a file that is not there")
{
    StartPage();
    AddObject(ObjectKind::Polygon, 0, 0, 0, 0).Vertices = {{0, 0}, {9, 0}, {9, 9}};
    CurrentObject().Brush = BrushStyle::Picture;
    CurrentObject().Fill = PageCanvas.fillsDir + "F77.bmp";
    CHECK(FailureOf([] { PageDxf(); }) == FileNotFound);
}
