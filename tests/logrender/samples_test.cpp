// samples_test.cpp -- the sample boxes, the blow counts and the laboratory numbers.
#include "canvas/metaugl.h"
#include "columnpage.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"
#include "report/heading.h"

static constexpr size_t Front = 4; // objects of heading and box

static LogSample& SetSample(float top, float bottom)
{
    LogSample& sample = LogBoring.Samples[++LogBoring.SampleCount];
    sample.Top = top;
    sample.Bottom = bottom;
    LogGeometryRecord& g = LogGeometry;
    if (LogBoring.SampleCount == 1) {
        g.SampleFirst = 1;
        g.SampleTopHeld = top;
    }
    g.SampleLast = static_cast<int16_t>(LogBoring.SampleCount);
    g.SampleBottomHeld = bottom;
    return sample;
}

static void StartSamples()
{
    StartColumn();
    SetPatterns({0, 1, 7, 9, 20, 32});
    LegendBoxFill.slot = {0, 1, 7, 20, 9};
}

// The box of a sample from 5 to 10 feet in this condition.
static Drawing ConditionBox(const char* condition)
{
    SetSample(5, 10).Condition = condition;
    LogGeometry.GraphicSampleFlag = true;
    VLOG::drawsamp();
    return Drawn(Front);
}

static const Text fullBox = "rectangle 30,300 150,600";

static Text Filled(const char* pattern)
{
    return Text("polygon 30,300 150,300 150,600 30,600 ") + pattern;
}

TEST_CASE("numbered samples are boxes with the number that they have in the boring")
{
    StartSamples();
    SetSample(1, 2);
    SetSample(5, 10);
    SetSample(20, 30);
    LogGeometry.SampleFirst = 2;
    VLOG::drawsamp();
    CHECK(Drawn() == Drawing{"text 90,-90 8pt W6 upward", "line 180,-60 180,-780", "line 180,-60 0,-60",
                             "rectangle 0,0 180,3600", "rectangle 30,300 150,600", "text 90,450 7pt  2  centred",
                             "rectangle 30,1200 150,1800", "text 90,1500 7pt  3  centred"});
    CHECK(EndsAtBaseline(0.3f));
}

TEST_CASE("sample boxes count from the page's start")
{
    StartSamples();
    LogPage.PageStartDepth = 4;
    SetSample(5, 10);
    VLOG::drawsamp();
    CHECK(Drawn()[Front] == "rectangle 30,60 150,360");
}

TEST_CASE("a page without samples has an empty column")
{
    StartSamples();
    VLOG::drawsamp();
    CHECK(Drawn().size() == Front);
    CHECK(EndsAtBaseline(0.3f));
}

TEST_CASE("condition 1 with its own pattern is an X in a box")
{
    StartSamples();
    CHECK(ConditionBox("1") == Drawing{"line 30,300 150,600", "line 30,600 150,300", fullBox});
}

TEST_CASE("condition 1 with a pattern from the heading file is filled with it")
{
    StartSamples();
    LegendBoxFill[1] = 32;
    CHECK(ConditionBox("1") == Drawing{Filled("F32"), fullBox});
}

TEST_CASE("the other conditions are filled with their key patterns")
{
    const auto pattern = [](const char* condition) {
        StartSamples();
        const Drawing drawn = ConditionBox(condition);
        REQUIRE(drawn.size() == 2);
        CHECK(drawn[1] == fullBox);
        return drawn[0];
    };
    CHECK(pattern("0") == Filled("F0"));
    CHECK(pattern("2") == Filled("F07"));
    CHECK(pattern("3") == Filled("F20"));
    CHECK(pattern("4") == Filled("F09"));
    CHECK(pattern("2.6 ring") == Filled("F20"));
}

TEST_CASE("a condition outside 0 to 4 is drawn as condition 0")
{
    for (const char* condition : {"7", "5", "-1", "", "jar", "99999", "-1E30"}) {
        CAPTURE(condition);
        StartSamples();
        CHECK(ConditionBox(condition) == Drawing{Filled("F0"), fullBox});
        CHECK(Messages.empty());
    }
}

// ---- Blow counts

static Drawing Blows()
{
    VLOG::drawblows();
    CHECK(EndsAtBaseline(0.2f));
    return Drawn(Front);
}

TEST_CASE("blow counts stand in the middle of the parts of their sample")
{
    StartSamples();
    SetSample(0, 6).Blows = "6, 8,11";
    SetSample(10, 12).Blows = "20";
    VLOG::drawblows();
    CHECK(Drawn() == Drawing{"text 60,-90 8pt W7 upward", "line 120,-60 120,-780", "line 120,-60 0,-60",
                             "rectangle 0,0 120,3600", "text 60,60 7pt  6  centred", "text 60,180 7pt  8  centred",
                             "text 60,300 7pt  11  centred", "text 60,660 7pt  20  centred"});
}

TEST_CASE("a sample cut by the page's top shows just the counts that fall on the page, at their true places")
{
    StartSamples();
    LogPage.PageStartDepth = 10;
    SetSample(10, 14).Blows = "6,8,11";
    LogGeometry.SampleTopHeld = 8;
    CHECK(Blows() == Drawing{"text 60,60 7pt  8  centred", "text 60,180 7pt  11  centred"});
}

TEST_CASE("a sample cut by the page's end shows just the counts above it, the end itself included")
{
    StartSamples();
    LogPage.PageEndDepth = 13;
    SetSample(0, 2).Blows = "1";
    SetSample(10, 13).Blows = "6,8,11";
    LogGeometry.SampleBottomHeld = 16;
    CHECK(Blows() ==
          Drawing{"text 60,60 7pt  1  centred", "text 60,660 7pt  6  centred", "text 60,780 7pt  8  centred"});
}

TEST_CASE("a sample with no blow count leaves the column empty there")
{
    StartSamples();
    SetSample(0, 6).Blows = "-1"; // as an empty line is read
    SetSample(10, 16).Blows = "-5,3";
    CHECK(Blows().empty());
}

TEST_CASE("blow counts that are no numbers are printed, an empty one as blanks")
{
    StartSamples();
    SetSample(0, 6).Blows = "WOH,,50/3\"";
    CHECK(Blows() ==
          Drawing{"text 60,60 7pt  WOH  centred", "text 60,180 7pt    centred", "text 60,300 7pt  50/3\"  centred"});
}

TEST_CASE("of more than ten blow counts the last stands in the tenth place")
{
    StartSamples();
    SetSample(0, 10).Blows = "1,2,3,4,5,6,7,8,9,10,11,12";
    const Drawing drawn = Blows();
    REQUIRE(drawn.size() == 10);
    CHECK(drawn[8] == "text 60,510 7pt  9  centred");
    CHECK(drawn[9] == "text 60,570 7pt  12  centred");
}

// ---- Laboratory numbers

TEST_CASE("laboratory numbers stand in the middle of their samples, an empty one as blanks")
{
    StartSamples();
    SetSample(5, 10).LabNumber = "L-7";
    SetSample(20, 30);
    VLOG::drawlabno();
    CHECK(Drawn() == Drawing{"text 180,-129 8pt  W9  centred", "line 360,-60 360,-780", "line 360,-60 0,-60",
                             "rectangle 0,0 360,3600", "text 180,450 7pt  L-7  centred",
                             "text 180,1500 7pt    centred"});
    CHECK(EndsAtBaseline(0.6f));
}
