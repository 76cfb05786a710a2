// sectionfoot_test.cpp -- the sheet's frame, titles and legend of sections and fences, worked out by hand in device
// units from the corner of the sheet's frame.
#include "crosspage.h"

#include "canvas/metaugl.h"
#include "report/heading.h"
#include "run/screenview.h"
#include "sections/crossrun.h"
#include "sections/fencerun.h"
#include "session/deviceconfig.h"

#include <algorithm>

using namespace VCROSS;

// The foot of a section, without logo and date line unless they are asked for.
static Drawing Foot(const SectionText& section, char kind = 'C')
{
    REQUIRE(ReadSection(section));
    StartSection();
    drawlogolegend(kind);
    return SheetDrawn();
}

// Its legend: the objects behind the word for it.
static Drawing LegendOf(const SectionText& section, char kind = 'C')
{
    Drawing drawing = Foot(section, kind);
    REQUIRE(drawing.size() > 11);
    drawing.erase(drawing.begin(), drawing.begin() + 11);
    if (drawing.back().find("1/2/2026") != Text::npos)
        drawing.pop_back();
    return drawing;
}

static SectionText WithLegend(const std::vector<Text>& rows, const Text& layers, const Text& page = "L")
{
    SectionText section;
    section.Layers = layers;
    section.Tail = {page, "", "", ""};
    for (size_t row = 0; row < rows.size(); ++row)
        (row < 8 ? section.Legend : section.Tail).push_back(rows[row]);
    return section;
}

// So many rows with a code, the others empty.
static std::vector<Text> Rows(int first, int last)
{
    std::vector<Text> rows(30, ";");
    for (int row = first; row <= last; ++row)
        rows[size_t(row) - 1] = "C" + std::to_string(row) + ";t" + std::to_string(row);
    return rows;
}

TEST_CASE("the foot of a section on the letter page")
{
    CHECK(Foot({}) == Drawing{"rectangle 0,0 5760,4260", "line 0,3360 5760,3360", "rectangle 0,3810 1440,4260",
                              "text 720,4005 8pt    centred", "text 2160,3540 10pt  Main  centred",
                              "line 1440,3660 2880,3660", "text 2160,3780 9pt  W3  centred",
                              "text 2160,3900 9pt  W4 A-A'  centred", "text 2160,3990 9pt  First  centred",
                              "text 2160,4080 9pt  Second  centred", "line 2880,3360 2880,4260",
                              "text 4290,3420 13pt  W7  centred", "text 60,4290 6pt 1/2/2026    " + Scratch("A.CRO")});
    CHECK(PageCanvasScales() == "1 1");
}

TEST_CASE("the foot of a section on the large page has wider blocks")
{
    SectionText section;
    section.Tail = {"T"};
    CHECK(Foot(section) == Drawing{"rectangle 0,0 9360,5760", "line 0,4860 9360,4860", "rectangle 0,5310 1560,5760",
                                   "text 780,5505 8pt    centred", "text 2280,5040 10pt  Main  centred",
                                   "line 1560,5160 3000,5160", "text 2280,5280 9pt  W3  centred",
                                   "text 2280,5400 9pt  W4 A-A'  centred", "text 2280,5490 9pt  First  centred",
                                   "text 2280,5580 9pt  Second  centred", "line 3000,4860 3000,5760",
                                   "text 4410,4920 13pt  W7  centred",
                                   "text 60,5790 6pt 1/2/2026    " + Scratch("A.CRO")});
}

TEST_CASE("the foot moves with the sheet's offsets, and is set in the font of the set-up")
{
    DeviceConfig.MarginX = .5f;
    DeviceConfig.MarginY = -.25f;
    DeviceConfig.FontName = "Courier";
    const Drawing drawing = Foot({});
    CHECK(drawing[0] == "rectangle 300,150 6060,4410");
    CHECK(drawing.back() == "text 360,4440 6pt 1/2/2026    " + Scratch("A.CRO"));
    CHECK(PageCanvas.fontName == "Courier");
    DeviceConfig.FontName = "";
    Foot({});
    CHECK(PageCanvas.fontName == "Arial");
}

TEST_CASE("a fence has its own word and three titles")
{
    FenceRun.title3 = "Third";
    const Drawing drawing = Foot({}, 'F');
    CHECK(Drawing(drawing.begin() + 6, drawing.begin() + 10) ==
          Drawing{"text 2160,3780 9pt  W5  centred", "text 2160,3900 9pt  First  centred",
                  "text 2160,3990 9pt  Second  centred", "text 2160,4080 9pt  Third  centred"});
}

TEST_CASE("titles stand centred behind a picture logo too, and empty ones are printed")
{
    LogoData.Flag = 1;
    LogoData.File = "OWN.bmp";
    WritePicture("OWN.bmp");
    SectionText section;
    section.MainTitle = section.Title1 = "";
    const Drawing drawing = Foot(section);
    CHECK(drawing[4] == "text 2160,3540 10pt    centred");
    CHECK(drawing[8] == "text 2160,3990 9pt    centred");
}

TEST_CASE("behind a logo that is no picture the rest of the foot is drawn")
{
    LogoData.Flag = 1;
    LogoData.File = "OWN.bmp";
    WritePicture("OWN.bmp");
    const Drawing whole = Foot({});
    WriteScratch("OWN.bmp", "a text");
    const Drawing drawing = Foot({});
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 481 in drawlogo.  Please contact Norvane");
    REQUIRE(drawing.size() + 1 == whole.size());
    for (const Text& line : drawing)
        CHECK(std::find(whole.begin(), whole.end(), line) != whole.end());
}

TEST_CASE("where layers are drawn a legend row is a swatch of its pattern and its text")
{
    SetPatterns({27, 31});
    CHECK(LegendOf(WithLegend({"SM;  Silty sand", "CL,Lean;Clay", "no code", "SM,Sand"}, "Y")) ==
          Drawing{"text 4290,3420 13pt  W7  centred", "polygon 2940,3510 3180,3510 3180,3690 2940,3690 F27",
                  "rectangle 2940,3510 3180,3690", "text 3240,3600 8pt Silty sand",
                  "polygon 2940,3690 3180,3690 3180,3870 2940,3870 F31", "rectangle 2940,3690 3180,3870",
                  "text 3240,3780 8pt Clay", "polygon 2940,3870 3180,3870 3180,4050 2940,4050 F27",
                  "rectangle 2940,3870 3180,4050", "text 3240,3960 8pt Sand"});
}

TEST_CASE("without layers a legend row is the letters behind the comma and its text")
{
    CHECK(LegendOf(WithLegend({"SM;Silty sand", "F44,TS;Topsoil", "CL,;Clay", ",TS;Peat"}, "N")) ==
          Drawing{"text 4290,3420 13pt  W7  centred", "text 3060,3600 8pt SM", "text 3240,3600 8pt Silty sand",
                  "text 3060,3780 8pt TS", "text 3240,3780 8pt Topsoil", "text 3060,3960 8pt TS",
                  "text 3240,3960 8pt Peat"});
}

TEST_CASE("an empty legend row takes no room, with blanks in it neither")
{
    CHECK(LegendOf(WithLegend({" ; ", ",", "SM;Silty sand"}, "N"))[1] == "text 3060,3600 8pt SM");
}

TEST_CASE("of individual columns a legend row is the pattern, and letters and text behind it")
{
    SetPatterns({27, 64});
    CHECK(LegendOf(WithLegend({"SM;Silty sand", "F44,TS;Topsoil", ",TS;Peat"}, "I")) ==
          Drawing{"text 4290,3420 13pt  W7  centred", "polygon 2940,3510 3180,3510 3180,3690 2940,3690 F27",
                  "rectangle 2940,3510 3180,3690", "text 3240,3600 8pt SM: Silty sand",
                  "polygon 2940,3690 3180,3690 3180,3870 2940,3870 F64", "rectangle 2940,3690 3180,3870",
                  "text 3240,3780 8pt TS: Topsoil"});
}

TEST_CASE("with a GIS file a code that is the name of a colour is a swatch of it")
{
    SetPatterns({27});
    SectionText section = WithLegend({"red ;Waste", "WHITE;Air", "SM;Sand", "1 2 3;Numbers"}, "Y");
    section.Tail[1] = "NONE.GIS";
    const Drawing drawing = LegendOf(section);
    REQUIRE(drawing.size() == 13);
    CHECK(drawing[1] == "polygon 2940,3510 3180,3510 3180,3690 2940,3690 solid");
    CHECK(drawing[2] == "rectangle 2940,3510 3180,3690");
    CHECK(drawing[4] == "polygon 2940,3690 3180,3690 3180,3870 2940,3870 white");
    CHECK(drawing[7] == "polygon 2940,3870 3180,3870 3180,4050 2940,4050 F27");
    CHECK(drawing[10].ends_with(" f0"));
    // Without one the same word is a code that no pattern has.
    CHECK(LegendOf(WithLegend({"red ;Waste"}, "Y"))[1].ends_with(" f0"));
}

TEST_CASE("five and six rows to a column stand closer")
{
    CHECK(LegendOf(WithLegend(Rows(1, 4), "N"))[3] == "text 3060,3780 8pt C2");
    // 0.24 and 0.2 of an inch from row to row: 144 and 120 units, the first text half of that below 3510.
    CHECK(LegendOf(WithLegend(Rows(1, 5), "N"))[1] == "text 3060,3582 8pt C1");
    CHECK(LegendOf(WithLegend(Rows(1, 5), "N"))[3] == "text 3060,3726 8pt C2");
    CHECK(LegendOf(WithLegend(Rows(1, 6), "N"))[1] == "text 3060,3570 8pt C1");
    CHECK(LegendOf(WithLegend(Rows(1, 6), "N"))[3] == "text 3060,3690 8pt C2");
    // Rows of columns that are not drawn count too, and rows without a code.
    std::vector<Text> rows = Rows(1, 2);
    rows[28] = "no code";
    CHECK(LegendOf(WithLegend(rows, "N"))[3] == "text 3060,3726 8pt C2");
    rows[29] = "x;y";
    CHECK(LegendOf(WithLegend(rows, "N"))[3] == "text 3060,3690 8pt C2");
    // These are empty.
    rows[28] = ",";
    rows[29] = " ; ";
    CHECK(LegendOf(WithLegend(rows, "N"))[3] == "text 3060,3780 8pt C2");
}

TEST_CASE("the letter page has room for two columns of the legend, the large one for four")
{
    const Drawing letter = LegendOf(WithLegend(Rows(1, 30), "N"));
    CHECK(letter.size() == 1 + 24);
    CHECK(letter[13] == "text 4500,3570 8pt C7");
    CHECK(letter.back() == "text 4680,4170 8pt t12");
    const Drawing large = LegendOf(WithLegend(Rows(1, 30), "N", "T"));
    CHECK(large.size() == 1 + 48);
    CHECK(large.back() == "text 7680,5670 8pt t24");
}

TEST_CASE("a fence has eight legend rows, whatever a section has left behind them")
{
    CHECK(LegendOf(WithLegend(Rows(1, 30), "N"), 'F').size() == 1 + 16);
    CHECK(LegendOf(WithLegend(Rows(7, 30), "N"), 'F')[1] == "text 4500,3600 8pt C7");
}

TEST_CASE("a code of one letter ends the foot there, without its date line")
{
    const Drawing drawing = Foot(WithLegend({"S;Sand", "SM;Sand"}, "Y"));
    CHECK(drawing.back() == "text 4290,3420 13pt  W7  centred");
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 5 in drawlogolegend.  Please contact Norvane");
}

TEST_CASE("a code of one letter is no matter where letters are printed")
{
    CHECK(LegendOf(WithLegend({"S;Sand"}, "N"))[1] == "text 3060,3600 8pt S");
    CHECK(Messages.empty());
}
