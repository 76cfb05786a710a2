// dxfpages.cpp -- pages of every kind of object for checkdxf.py: each as NAME.dxf beside its listing NAME.jsonl.
//
//     dxfpages FILLSDIR OUTDIR
//
// Prints what the drawing of each costs in processor time: the median of five runs, from the objects to the bytes.
#include "canvas/metaugl.h"
#include "canvas/pagelisting.h"
#include "canvas/pageobjects.h"
#include "canvas/patterns.h"
#include "dxf/dxf.h"
#include "plain/plain.h"
#include "session/deviceconfig.h"
#include "session/files.h"
#include "session/session.h"

#include <algorithm>
#include <cstdio>
#include <ctime>

static Text fills, outFolder;

static void StartPage(const char* mode = "P")
{
    canvasstart(mode);
    float x = 0.25f, y = 0.25f;
    PageCanvas.scaleX = PageCanvas.scaleY = 1;
    setorigin(x, y);
    PageList.Default.PenStyle = 0;
    textleft();
    textboldoff();
    settextangle(0);
    setfontsize(8);
}

static void SavePage(const char* name)
{
    std::vector<double> times;
    std::string drawing;
    for (int run = 1; run <= 5; ++run) {
        const std::clock_t start = std::clock();
        drawing = PageDxf();
        times.push_back(1000.0 * double(std::clock() - start) / CLOCKS_PER_SEC);
    }
    std::sort(times.begin(), times.end());
    WriteWholeFile(outFolder + "/" + name + ".dxf", drawing, Durability::Scratch);
    WriteWholeFile(outFolder + "/" + name + ".jsonl", PageListing(1, "TEST.BOR"), Durability::Scratch);
    std::printf("%s: %zu objects, %zu bytes, %.1f ms\n", name, PageList.Objects.size(), drawing.size(), times[2]);
}

// One of each kind, with all pen styles and widths, alignments, angles and fills.
static void EveryKind()
{
    StartPage();
    for (int i = 1; i <= 5; ++i) {
        moveto(0.5, 10.3 - 0.1 * i);
        setlinewidth(i);
        setlinestyle(static_cast<int>(i));
        lineright(3);
    }
    moveto(4, 9.7);
    rectby(1, 0.6);
    setlinestyle(1);
    setlinewidth(1);
    moveto(5.5, 10);
    circle(0.3);
    moveto(6.3, 10);
    blackcircle(0.1);
    AddObject(ObjectKind::Ellipse, 4100, 250, 4700, 550).Brush = BrushStyle::Hollow;
    AddObject(ObjectKind::Ellipse, 4250, 600, 4350, 1000).BrushColor = ColorOf(200, 220, 255);
    moveto(0.5, 9.4);
    for (int i = 0; i < 8; ++i) {
        drawarc(0.4, i % 2 == 0 ? -1 : 1);
        moveright(0.4);
    }
    moveto(4, 9);
    triangleup(0.2);
    moveright(0.6);
    triangledown(0.2);
    moveright(0.6);
    triangleupsolid(0.2);
    moveright(0.6);
    triangledownsolid(0.2);
    setfontsize(12);
    for (int i = 0; i < 3; ++i) {
        moveto(1.5, 8.6 - 0.3 * i);
        if (i == 0)
            textleft();
        if (i == 1)
            textcenter();
        if (i == 2)
            textright();
        printtext("Aligned H");
        lineright(1);
        lineleft(2);
    }
    textleft();
    for (int angle = 0; angle < 360; angle += 30) {
        moveto(4, 7.5);
        settextangle(angle);
        printtext("   angle " + PlainNumber(angle));
    }
    settextangle(0);
    textboldon();
    moveto(0.5, 7.5);
    printtext("Bold heading");
    textboldoff();
    moveto(0.5, 7.2);
    printtext("\xB0 \xB1 \xB5 \xE9 \xFC \x80 \x93quoted\x94");
    for (int i = 0; i < 48; ++i) {
        moveto(0.4 + 0.9 * (i % 8), 5.6 - 0.9 * (i / 8));
        setfillfile(i < 10 ? i + 4 : i + 16);
        switch (i % 6) {
        case 0:
        case 3:
            rectfill(0.8, 0.8);
            break;
        case 1:
            rectfillwhite(0.8, 0.8);
            break;
        case 2:
            rectfillcolored(0.8, 0.8, "255 230 150");
            break;
        case 4:
            polyright(0.8);
            polyby(-0.2, 0.8);
            polyby(-0.5, -0.3);
            polyfill();
            break;
        default:
            rectfillrgb(0.8, 0.8, "180 220 180");
            rectfill(0.4, 0.4);
        }
    }
    moveto(7.3, 7);
    rectfillflag(0.5, 0.5, 1);
    moveto(7.3, 8);
    rectfillflag(0.5, 0.5, 0);
    moveto(6.5, 8);
    drawbitmap("PICTURE.BMP", 0.5, 0.5);
    drawbitmap("PICTURE.BMP", 1, 1);
    SavePage("everykind");
}

// As full as log pages are: 1500 objects, 60 patterned areas with 20 patterns.
static void FullPage()
{
    StartPage();
    for (int i = 0; i < 60; ++i) {
        moveto(0.2 + 1.2 * (i % 6), 0.2 + 1.0 * (i / 6));
        setfillfile(21 + i * 3 % 20);
        rectfill(1, 0.8);
    }
    for (int i = 0; i < 720; ++i) {
        moveto(0.3 + 0.013 * (i % 24), 0.3 + 0.33 * (i / 24));
        lineby(0.1, 0.07);
        moveright(3);
        setfontsize(7);
        printtext("Silty SAND, loose, number " + PlainNumber(i));
    }
    SavePage("fullpage");
}

// Patterns and nothing else, over the whole sheet.
static void Patterns()
{
    StartPage();
    for (int i = 0; i < 48; ++i) {
        moveto(0.1 + 1.3 * (i % 6), 0.1 + 1.3 * (i / 6));
        setfillfile(i < 10 ? i + 4 : i + 16);
        rectfill(1.3, 1.3);
    }
    SavePage("patterns");
}

static void OddTexts()
{
    StartPage();
    const char* words[] = {
        "100%% of it",     "%%d no degree",        "%%%", "50%", "a ^ b", "^I no tab", "tab\there", "\\U+00B0 as typed",
        "\\M+18182",       "back\\slash",          "",    "  ",  " lead", "trail ",    "no\xA0gap", "{\\fArial;x}",
        "line\rfeed\nend", "\x81 unassigned \x9D", "\x7F"};
    int row = 0;
    for (const char* text : words) {
        moveto(1, 10 - 0.2 * row++);
        printtextraw(text);
    }
    for (int code = 1; code < 256; ++code) {
        moveto(0.4 + 0.4 * (code % 16), 6 - 0.3 * (code / 16));
        printtextraw(Text(1, static_cast<char>(code)));
    }
    SavePage("oddtexts");
}

static void Degenerate()
{
    StartPage();
    moveto(1, 1);
    lineright(0);
    circle(0);
    drawarc(0, 1);
    drawarc(0.001, -1);
    AddObject(ObjectKind::Ellipse, 100, 100, 100, 500);
    AddObject(ObjectKind::Rectangle, 100, 100, 100, 500).Brush = BrushStyle::Hollow;
    polyright(1);
    polyfill();
    polyright(0);
    polyup(0);
    polyfillrgb("1 2 3");
    polyright(1);
    polyright(1);
    polyfillrgb("1 2 3");
    setfillfile(21);
    polyright(1);
    polyby(-1, 1);
    polyright(1);
    polyfill();
    AddObject(ObjectKind::Line, -2147483647 - 1, -2147483647 - 1, 2147483647, 2147483647);
    SavePage("degenerate");
}

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fputs("dxfpages FILLSDIR OUTDIR\n", stderr);
        return 2;
    }
    fills = FullPath(argv[1]);
    outFolder = FullPath(argv[2]);
    UsePlainPlatform();
    TintsInMemory = true;
    WorkingFolder = RunFolder = ProjectPath = outFolder;
    DefaultSystemFiles();
    DeviceConfig.SystemFiles[FillFolder] = fills;
    Bitmap picture;
    picture.Width = 40;
    picture.Height = 20;
    picture.Pixels.assign(800, 0x3366CC);
    WriteWholeFile(outFolder + "/PICTURE.BMP", EncodeBitmap(picture), Durability::Scratch);
    EveryKind();
    FullPage();
    Patterns();
    OddTexts();
    Degenerate();
    StartPage("L");
    SavePage("empty");
    return 0;
}
