// crossframe_test.cpp -- the frame of a section with its scales, worked out by hand in device units from the data
// origin.
#include "crosspage.h"

#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "report/heading.h"
#include "run/batchrun.h"
#include "sections/crossrun.h"
#include "session/deviceconfig.h"

using namespace VCROSS;

// The frame behind the foot.
static Drawing FrameOfRun()
{
    StartSection();
    drawlogolegend('C');
    const size_t foot = Objects();
    StartSection();
    drawcrossframe();
    return SectionDrawn(foot);
}

static Drawing Frame(const SectionText& section)
{
    REQUIRE(ReadSection(section));
    return FrameOfRun();
}

static Text OnlyMessage()
{
    REQUIRE(Messages.size() == 1);
    return Messages[0].words;
}

TEST_CASE("the frame of a letter page is open at the top, with elevations on both sides and distances below")
{
    CHECK(Frame({}) == Drawing{"text -240,-210 10pt A",
                               "line 0,-120 0,2760",
                               "line 0,2760 5040,2760",
                               "line 5040,2760 5040,-120",
                               "text 5280,-210 10pt A' right",
                               "line 0,0 -60,0",
                               "text -90,0 8pt 100 right",
                               "line 5040,0 5100,0",
                               "text 5130,0 8pt 100",
                               "line 0,1200 -60,1200",
                               "text -90,1200 8pt 80 right",
                               "line 5040,1200 5100,1200",
                               "text 5130,1200 8pt 80",
                               "line 0,2400 -60,2400",
                               "text -90,2400 8pt 60 right",
                               "line 5040,2400 5100,2400",
                               "text 5130,2400 8pt 60",
                               "line 0,2760 0,2790",
                               "text 0,2820 8pt  0  centred",
                               "line 2520,2760 2520,2790",
                               "text 2520,2820 8pt  420  centred",
                               "line 5040,2760 5040,2790",
                               "text 5040,2820 8pt  840  centred",
                               "text -300,1380 8pt  W1 (Feet MSL)  centred upward",
                               "text 2520,2970 8pt  W2 (Feet)  centred"});
    CHECK(CrossRun.vInc == 20);
    CHECK(CrossRun.scaleX == 100);
    CHECK(CrossRun.scaleY == 10);
    CHECK(PageCanvas.textAngle == 0);
    CHECK(Messages.empty());
}

TEST_CASE("the frame of a large page is 14.4 by 7.3 inches")
{
    SectionText section;
    section.Tail = {"T"};
    section.HEnd = "1440";
    section.HInc = "1440";
    section.VEnd = "32";
    section.VInc = "60";
    CHECK(Frame(section) ==
          Drawing{"text -240,-210 10pt A", "line 0,-120 0,4260", "line 0,4260 8640,4260", "line 8640,4260 8640,-120",
                  "text 8880,-210 10pt A' right", "line 0,0 -60,0", "text -90,0 8pt 100 right", "line 8640,0 8700,0",
                  "text 8730,0 8pt 100", "line 0,3600 -60,3600", "text -90,3600 8pt 40 right",
                  "line 8640,3600 8700,3600", "text 8730,3600 8pt 40", "line 0,4260 0,4290",
                  "text 0,4320 8pt  0  centred", "line 8640,4260 8640,4290", "text 8640,4320 8pt  1440  centred",
                  "text -300,2130 8pt  W1 (Feet MSL)  centred upward", "text 4320,4470 8pt  W2 (Feet)  centred"});
}

TEST_CASE("without elevations the scale goes from 500 to 100 by 50, without distances from 0 to 500 by 100")
{
    SectionText section;
    section.VStart = section.VEnd = section.HStart = section.HEnd = "0";
    section.VInc = "7";
    const Drawing drawing = Frame(section);
    CHECK(CrossRun.vStart == 500);
    CHECK(CrossRun.vEnd == 100);
    CHECK(CrossRun.vInc == 50);
    CHECK(CrossRun.hEnd == 500);
    CHECK(CrossRun.hInc == 100);
    // 9 elevations of 4 objects, 6 distances of 2.
    REQUIRE(drawing.size() == 5 + 36 + 12 + 2);
    CHECK(drawing[6] == "text -90,0 8pt 500 right");
    CHECK(drawing[38] == "text -90,2580 8pt 100 right");
    CHECK(drawing[52] == "text 5040,2820 8pt  500  centred");
}

TEST_CASE("an end alone is no scale by default")
{
    SectionText section;
    section.VStart = "0";
    section.VEnd = "-43";
    Frame(section);
    CHECK(CrossRun.vStart == 0);
    CHECK(CrossRun.vEnd == -43);
}

TEST_CASE("distances are worked out from the start and printed as they are, elevations by their whole steps")
{
    SectionText section;
    section.HStart = "-10.125";
    section.HEnd = "73.875";
    section.HInc = "42";
    const Drawing drawing = Frame(section);
    CHECK(drawing[18] == "text 0,2820 8pt  -10.125  centred");
    CHECK(drawing[20] == "text 2520,2820 8pt  31.875  centred");
    CHECK(drawing[22] == "text 5040,2820 8pt  73.875  centred");
}

TEST_CASE("the number of distances is that of the 32-bit quotient")
{
    SectionText section;
    section.HEnd = "40";
    section.HInc = "0.1";
    CHECK(Frame(section).size() == 5 + 12 + 2 * 401 + 2);
}

TEST_CASE("equal ends that are not 0 have no scale: the frame ends as error 11 behind its first distance")
{
    SectionText section;
    section.HStart = section.HEnd = "100";
    const Drawing drawing = Frame(section);
    CHECK(drawing.back() == "text 0,2820 8pt  100  centred");
    CHECK(OnlyMessage() == "Error 11 in drawcrossframe.  Please contact Norvane");
    CHECK(CrossRun.scaleX == 0);
}

TEST_CASE("an increment of 0 ends the frame as error 11, without what comes behind")
{
    SectionText section;
    section.VInc = "0";
    CHECK(Frame(section).size() == 5);
    CHECK(OnlyMessage() == "Error 11 in drawcrossframe.  Please contact Norvane");
    Messages.clear();
    section.VInc = "20";
    section.HInc = "0";
    CHECK(Frame(section).size() == 17);
    CHECK(OnlyMessage() == "Error 11 in drawcrossframe.  Please contact Norvane");
}

TEST_CASE("more steps than a 16-bit number holds are error 6")
{
    SectionText section;
    section.VStart = "40000";
    section.VEnd = "0";
    section.VInc = "1";
    CHECK(Frame(section).size() == 5);
    CHECK(OnlyMessage() == "Error 6 in drawcrossframe.  Please contact Norvane");
}

TEST_CASE("a scale whose increment runs the other way has no numbers")
{
    SectionText section;
    section.HInc = "-420";
    section.VStart = "57";
    section.VEnd = "100";
    CHECK(Frame(section).size() == 5 + 2);
    CHECK(Messages.empty());
}

TEST_CASE("the frame keeps its places where the foot has failed")
{
    SectionText section;
    section.Layers = "Y";
    section.Legend = {"S;Sand"};
    REQUIRE(ReadSection(section));
    StartSection();
    drawcrossframe();
    CHECK(OnlyMessage() == "Error 5 in drawlogolegend.  Please contact Norvane");
    CHECK(SectionDrawn().back() == "text 2520,2970 8pt  W2 (Feet)  centred");
}

TEST_CASE("the frame moves with the sheet's offsets")
{
    DeviceConfig.MarginX = .5f;
    DeviceConfig.MarginY = .1f;
    const Drawing drawing = Frame({});
    CHECK(drawing[1] == "line 300,-180 300,2700");
    CHECK(drawing[5] == "line 300,-60 240,-60");
    CHECK(drawing[17] == "line 300,2700 300,2730");
    CHECK(drawing.back() == "text 2820,2910 8pt  W2 (Feet)  centred");
}

TEST_CASE("units that are empty leave their brackets")
{
    SectionText section;
    section.HUnit = section.VUnit = "";
    CHECK(Frame(section).back() == "text 2520,2970 8pt  W2 ()  centred");
}

TEST_CASE("the progress is planned by what will be drawn")
{
    SectionText section;
    section.Borings = {{"1", "B"}, {"2", "B"}, {"3", "B"}};
    const auto total = [&](const Text& layers, const Text& gis, const Text& parameter) {
        section.Layers = layers;
        section.Tail = {"L", gis, parameter, ""};
        Frame(section);
        CHECK(progressValue == 2);
        return progressTotal;
    };
    CHECK(total("N", "", "") == 5);
    CHECK(total("Y", "", "") == 9);
    CHECK(total("Y", "S", "") == 7);
    CHECK(total("N", "S", "P1") == 8);
}
