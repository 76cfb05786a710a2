// crossparams_test.cpp -- parameters beside the columns of a section, worked out by hand in device units from the data
// origin. The boring stands at x 600, its ground at y 600, 60 units to a foot of depth, and it is 10 deep.
#include "crosspage.h"

#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "sections/crossrun.h"

using namespace VCROSS;

static SectionText OneBoring(const Text& parameter)
{
    SectionText section;
    section.Borings = {{"100", "B-1.BOR"}};
    section.Tail = {"L", "", parameter, ""};
    return section;
}

// The section up to its parameters, and what those have drawn.
static Drawing Parameters(const SectionText& section)
{
    REQUIRE(ReadSection(section));
    StartSection();
    drawcrossframe();
    const size_t first = Objects();
    drawcrossparams();
    return SectionDrawn(first);
}

// Samples of these values in parameter 3, each two feet long and a foot above the depth; the axis of parameter 3.
static void WriteSamples(const std::vector<std::pair<Text, Text>>& values, const Text& axis = "0,60,10")
{
    BoringText boring = SectionBoring("B-1");
    for (const auto& [depth, value] : values)
        boring.Samples.push_back({PlainNumber(TextNumber(depth) - 1), PlainNumber(TextNumber(depth) + 1), "1", "2-3-4",
                                  "L", "one", "two", value, "four"});
    boring.SampleSetup = {{}, {}, {"Name", "Heading", axis}};
    WriteBoring("B-1.BOR", boring);
}

// The same of general parameter 2, with a data file when there is one.
static void WriteGeneral(const std::vector<std::pair<Text, Text>>& values, const Text& file = "",
                         const Text& field = "", const Text& axis = "0,60,10", const Text& version = "5.0.12")
{
    BoringText boring = SectionBoring("B-1");
    boring.Version = version;
    boring.ParamCells = version == "5.0" ? 9 : 21;
    for (const auto& [depth, value] : values)
        boring.Params.push_back({depth, "one", value, "three"});
    boring.GenSetup = {{}, {"Name", "Heading", axis, "", "", "", file, field}};
    WriteBoring("B-1.BOR", boring);
}

static Text OnlyMessage()
{
    REQUIRE(Messages.size() == 1);
    return Messages[0].words;
}

static const Drawing Strip = {"polygon 540,600 420,600 420,1200 540,1200 white",
                              "polygon 540,600 420,600 420,1200 540,1200 F0.bmp",
                              "rectangle 540,600 420,1200",
                              "line 480,600 480,1200 dotted",
                              "line 540,600 540,576",
                              "text 540,552 6pt 0 centred",
                              "line 420,600 420,576",
                              "text 420,552 6pt 60 centred"};

static Drawing WithStrip(std::initializer_list<const char*> objects)
{
    Drawing drawing = Strip;
    drawing.insert(drawing.end(), objects.begin(), objects.end());
    return drawing;
}

TEST_CASE("sample values stand in boxes left of the column, at the middle of their samples")
{
    WriteSamples({{"2", "12"}, {"3", ""}, {"4", " "}, {"5", "1"}});
    CHECK(Parameters(OneBoring("P3")) ==
          Drawing{"polygon 465,756 540,756 540,684 465,684 white", "polygon 465,756 540,756 540,684 465,684 F0.bmp",
                  "rectangle 465,756 540,684", "text 502,717 6pt  12  centred",
                  "polygon 465,936 540,936 540,864 465,864 white", "polygon 465,936 540,936 540,864 465,864 F0.bmp",
                  "rectangle 465,936 540,864", "text 502,897 6pt  1  centred"});
    CHECK(PageCanvas.scaleY == 10);
}

TEST_CASE("boxes are as wide as the longest value needs, and overlap where values lie close")
{
    WriteGeneral({{"2", "12"}, {"2.5", "12.75"}});
    const Drawing drawing = Parameters(OneBoring("GP2"));
    // Five characters are 0.2375 inch, 142.5 units: from 397.5 to 540.
    REQUIRE(drawing.size() == 8);
    CHECK(drawing[2] == "rectangle 398,756 540,684");
    CHECK(drawing[6] == "rectangle 398,786 540,714");
    CHECK(drawing[7] == "text 469,747 6pt  12.75  centred");
}

TEST_CASE("boxes move with the width of the column")
{
    WriteSamples({{"2", "12"}});
    SectionText section = OneBoring("P3");
    section.Tail[3] = ".3";
    CHECK(Parameters(section)[2] == "rectangle 405,756 480,684");
}

TEST_CASE("a box off the sheet stands at the depth of the box before")
{
    WriteSamples({{"2", "12"}, {"500", "13"}});
    const Drawing drawing = Parameters(OneBoring("P3"));
    REQUIRE(drawing.size() == 8);
    CHECK(drawing[2] == "rectangle 465,756 540,684");
    CHECK(drawing[7] == "text 502,714 6pt  13  centred");
}

TEST_CASE("general values come from the cell of their number, in rows of either length")
{
    for (const char* version : {"5.0", "5.0.12"}) {
        WriteGeneral({{"2", "12"}, {"5", "1"}}, "", "", "", version);
        const Drawing drawing = Parameters(OneBoring("gp 2"));
        REQUIRE(drawing.size() == 8);
        CHECK(drawing[3] == "text 502,717 6pt  12  centred");
        CHECK(drawing[7] == "text 502,897 6pt  1  centred");
    }
}

TEST_CASE("a boring without values, or a parameter that no row has, draws nothing")
{
    WriteSamples({{"2", ""}, {"3", "  "}});
    CHECK(Parameters(OneBoring("P3")).empty());
    CHECK(Parameters(OneBoring("PG3")).empty());
    WriteSamples({{"2", "12"}});
    for (const char* cell : {"P0", "P17", "P-1", "PG17", "GP3", "GPG2"})
        CHECK(Parameters(OneBoring(cell)).empty());
    WriteGeneral({{"2", "12"}}, "", "", "", "5.0");
    CHECK(Parameters(OneBoring("GP9")).empty());
    CHECK(Messages.empty());
}

TEST_CASE("a graph has a bar for each value, joined from one to the next, growing leftward")
{
    WriteSamples({{"2", "30"}, {"3", ""}, {"4", "45 x"}});
    const Drawing bars = WithStrip({"line 540,720 480,720", "line 480,720 540,720", "circle 480,720 12",
                                    "line 480,720 450,840", "line 450,840 540,840", "circle 450,840 12"});
    CHECK(Parameters(OneBoring("PG3")) == bars);
    WriteGeneral({{"2", "30"}, {"4", "45"}});
    CHECK(Parameters(OneBoring("GPG2")) == bars);
}

TEST_CASE("values beyond the ends of the graph stand at its edges")
{
    WriteSamples({{"2", "90"}, {"4", "-5"}});
    CHECK(Parameters(OneBoring("PG3")) ==
          WithStrip({"line 540,720 420,720", "line 420,720 540,720", "circle 420,720 12", "line 420,720 540,840",
                     "line 540,840 540,840", "circle 540,840 12"}));
}

TEST_CASE("with an end below its start every value of a graph stands at the end")
{
    WriteSamples({{"2", "30"}, {"4", "10"}}, "60,0,10");
    const Drawing drawing = Parameters(OneBoring("PG3"));
    REQUIRE(drawing.size() == 14);
    CHECK(drawing[5] == "text 522,552 6pt 60 centred");
    CHECK(drawing[10] == "circle 420,720 12");
    CHECK(drawing[13] == "circle 420,840 12");
}

TEST_CASE("a start of more than one character moves out of the column's way")
{
    WriteSamples({{"2", "30"}}, ".5,60,10");
    CHECK(Parameters(OneBoring("PG3"))[5] == "text 522,552 6pt .5 centred");
    CHECK(Parameters(OneBoring("PG3"))[7] == "text 420,552 6pt 60 centred");
    WriteSamples({{"2", "30"}}, "5,60,10");
    CHECK(Parameters(OneBoring("PG3"))[5] == "text 540,552 6pt 5 centred");
}

TEST_CASE("a graph without a range in its set-up goes from 0 to 100")
{
    WriteSamples({{"2", "30"}}, "60");
    const Drawing drawing = Parameters(OneBoring("PG3"));
    CHECK(drawing[5] == "text 540,552 6pt 0 centred");
    CHECK(drawing[7] == "text 420,552 6pt 100 centred");
}

TEST_CASE("a range of nothing ends the parameters as error 11")
{
    WriteSamples({{"2", "30"}}, "5,5");
    CHECK(Parameters(OneBoring("PG3")).size() == 8);
    CHECK(OnlyMessage() == "Error 11 in drawcrossparams.  Please contact Norvane");
}

TEST_CASE("a general parameter with a data file draws its curve and not the table")
{
    WriteGeneral({{"2", "30"}}, " cpt.txt ", "2,1");
    WriteScratch("cpt.txt", Lines({"Depth,A,B", "2,9, 30 ,x", "", "3,9", "4,9,45", "  6,9,90", "7,,", "20,1,-5"}));
    CHECK(Parameters(OneBoring("GPG2")) ==
          WithStrip({"line 480,720 450,840", "line 450,840 420,960", "line 420,960 540,1800"}));
    CHECK(Messages.empty());
}

TEST_CASE("fields are cut at commas where the first line has one, else at single blanks")
{
    WriteGeneral({}, "cpt.txt", "1");
    WriteScratch("cpt.txt", Lines({"2 30", "4  45", "6 60,5"}));
    CHECK(Parameters(OneBoring("GPG2")) == WithStrip({"line 480,720 420,960"}));
    WriteScratch("cpt.txt", Lines({"2,30", "4 45", "6,60 5"}));
    CHECK(Parameters(OneBoring("GPG2")) == WithStrip({"line 480,720 420,960"}));
}

TEST_CASE("a field of blanks in a data file of commas is a missing value beside a section's column too")
{
    WriteGeneral({}, "cpt.txt", "1");
    WriteScratch("cpt.txt", Lines({"2,30", "3, ,9", "4,   ", "5,45", "6,,9"}));
    CHECK(Parameters(OneBoring("GPG2")) == WithStrip({"line 480,720 450,900"}));
}

TEST_CASE("without a field number above 0 a data file has no values")
{
    for (const char* field : {"", "0", "-1"}) {
        WriteGeneral({{"2", "30"}}, "cpt.txt", field);
        WriteScratch("cpt.txt", Lines({"2,30", "4,45"}));
        CHECK(Parameters(OneBoring("GPG2")) == Strip);
    }
}

TEST_CASE("a missing data file is told with its path, its strip stays empty, and the next boring follows")
{
    WriteGeneral({}, "none.txt", "1");
    SectionText section = OneBoring("GPG2");
    section.Borings.push_back({"200", "B-2"});
    BoringText other = SectionBoring("B-2");
    other.GenSetup = {{}, {"Name", "Heading", "0,60", "", "", "", "", ""}};
    other.Params = {{"2", "", "30"}};
    WriteBoring("B-2.bor", other);
    const Drawing drawing = Parameters(section);
    CHECK(OnlyMessage() == "Parameter File Not Found: " + Scratch("none.txt"));
    REQUIRE(drawing.size() == 8 + 8 + 3);
    CHECK(drawing[7] == Strip[7]);
    CHECK(drawing.back() == "circle 1080,720 12");
    CHECK(progressValue == 2 + 2);
}

TEST_CASE("a data file shorter than its heading is told as error 62")
{
    WriteGeneral({}, "cpt.txt", "1,5");
    WriteScratch("cpt.txt", Lines({"2,30"}));
    Parameters(OneBoring("GPG2"));
    CHECK(OnlyMessage() == "Error 62 in drawcrossparams.  Please contact Norvane");
}

TEST_CASE("values of samples are never those of the data file of a section before")
{
    WriteGeneral({}, "cpt.txt", "1");
    WriteScratch("cpt.txt", Lines({"2,30", "4,45"}));
    CHECK(Parameters(OneBoring("GPG2")) == WithStrip({"line 480,720 450,840"}));
    WriteSamples({{"2", "30"}});
    CHECK(Parameters(OneBoring("PG3")).size() == 8 + 3);
}

TEST_CASE("the strip is as tall as the hole, below the ground")
{
    BoringText boring = SectionBoring("B-1");
    boring.GenWell[5] = "2";
    boring.OuterLayers = {{"0", "5"}};
    boring.Samples = {{"2", "2", "", "", "", "30"}};
    boring.SampleSetup = {{"", "", "0,60"}};
    WriteBoring("B-1.BOR", boring);
    const Drawing drawing = Parameters(OneBoring("PG1"));
    CHECK(drawing[2] == "rectangle 540,720 420,1020");
    CHECK(drawing.back() == "circle 480,840 12");
}

TEST_CASE("parameter row 101 is error 9")
{
    WriteGeneral(std::vector<std::pair<Text, Text>>(101, {"1", "2"}));
    CHECK(Parameters(OneBoring("GP2")).empty());
    CHECK(OnlyMessage() == "Error 9 in drawcrossparams.  Please contact Norvane");
    Messages.clear();
    CHECK(Parameters(OneBoring("P2")).empty());
    CHECK(Messages.empty());
}

TEST_CASE("a missing boring ends the parameters, and the counter of the screen moves on")
{
    WriteSamples({{"2", "12"}});
    SectionText section = OneBoring("P3");
    section.Borings.push_back({"200", "NONE"});
    section.Borings.push_back({"300", "B-1"});
    RunPages.pageIndex = 1;
    CHECK(Parameters(section).size() == 4);
    CHECK(OnlyMessage() == "Boring File Not Found: " + Scratch("NONE.bor"));
    CHECK(RunPages.pageIndex == 2);
}

TEST_CASE("parameters are found in a boring that has something in every list")
{
    BoringText boring = SectionBoring("B-1", {{"4", "GW", "D", "RED"}, {"10", "CL"}});
    boring.RepParts = {{"DEP", ".4"}, {"GRAPHIC", ".3"}};
    boring.Samples = {{"1", "3", "1", "2-3-4", "L", "one", "two", "12"}, {"4", "6", "1", "", "", "", "", "7"}};
    boring.Des = {"@1", "Gravel", "@2", "Clay"};
    boring.Params = {{"2", "one", "30"}, {"5", "", "45"}};
    boring.SampleSetup = {{}, {}, {"Name", "Heading", "0,60,10"}};
    boring.GenSetup = {{}, {"Name", "Heading", "0,60,10"}};
    boring.WellInfo = {{"Driller", "X"}, {"Rig", "Y"}, {"Bit", "Z"}};
    boring.WellNotes = {"Note", "Another"};
    boring.OuterLayers = {{"0", "8"}, {"8", "10"}};
    WriteBoring("B-1.BOR", boring);
    Drawing drawing = Parameters(OneBoring("P3"));
    REQUIRE(drawing.size() == 8);
    CHECK(drawing[3] == "text 502,717 6pt  12  centred");
    CHECK(drawing[7] == "text 502,897 6pt  7  centred");
    drawing = Parameters(OneBoring("GP2"));
    REQUIRE(drawing.size() == 8);
    CHECK(drawing[3] == "text 502,717 6pt  30  centred");
    CHECK(drawing[7] == "text 502,897 6pt  45  centred");
    CHECK(Messages.empty());
}
