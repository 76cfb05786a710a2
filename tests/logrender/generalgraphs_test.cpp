// generalgraphs_test.cpp -- the graphs of general parameters, narrow and of several curves.
#include "columnpage.h"

#include "logrender/vlog.h"

static void AddRow(float depth, std::initializer_list<const char*> values)
{
    LogBoring.Params[++LogBoring.ParamCount][1] = std::to_string(depth);
    int column = 1;
    for (const char* value : values)
        LogBoring.Params[LogBoring.ParamCount][++column] = value;
}

TEST_CASE("a general graph has three heading lines, an axis of half an inch and a circle for each value")
{
    StartColumn();
    LogBoring.GenSetup[2] = Setup(0, 10, 5);
    LogBoring.GenSetup[2].Split[2] = "pH";
    LogGeometry.ParamNumber[1] = 2;
    AddRow(1, {"", "5"});
    AddRow(2, {"3", ""});
    AddRow(3, {"", "12"});
    AddRow(4, {"", "5,0,10"});
    AddRow(5, {"", "2"});
    AddRow(68, {"", "2"});
    VLOG::drawgpargraph();
    CHECK(Drawn() == Drawing{"text 180,-360 7pt    centred",
                             "text 180,-285 7pt  pH  centred",
                             "text 180,-210 7pt    centred",
                             "line 360,-60 360,-780",
                             "line 360,-60 0,-60",
                             "line 30,-60 30,-84",
                             "text 48,-126 6pt 0",
                             "line 30,0 30,3600 dotted",
                             "line 180,-60 180,-84",
                             "text 180,-126 6pt 5 centred",
                             "line 180,0 180,3600 dotted",
                             "line 330,-60 330,-84",
                             "text 312,-126 6pt 10 right",
                             "line 330,0 330,3600 dotted",
                             "rectangle 0,0 360,3600",
                             "circle 180,60 12",
                             "line 180,60 330,180",
                             "circle 330,180 12",
                             "dot 180,240 18",
                             "line 30,210 30,270",
                             "line 30,240 330,240",
                             "line 330,210 330,270",
                             "circle 90,300 12"});
    CHECK(EndsAtBaseline(0.6f));
}

static void SetFileGraph(std::string_view bytes)
{
    StartColumn();
    LogBoring.GenSetup[1] = Setup(0, 10, 10);
    LogBoring.GenSetup[1].File = "d.txt";
    LogBoring.GenSetup[1].Field = "1";
    LogGeometry.ParamNumber[1] = 1;
    if (!bytes.empty())
        WriteScratch("d.txt", bytes);
}

TEST_CASE("a general graph draws circles for the values of a data file too")
{
    SetFileGraph(Lines({"1 5", "2 10", "3"}));
    VLOG::drawgpargraph();
    CHECK(Drawn(12) == Drawing{"circle 180,60 12", "line 180,60 330,120", "circle 330,120 12"});
    CHECK(EndsAtBaseline(0.6f));
}

TEST_CASE("a general graph draws a value of a data file with its two ends as a dot with a bar")
{
    SetFileGraph(Lines({"1 5", "2 6", "4 5,0,10", "5 2", "6 4,9", "7 5"}));
    VLOG::drawgpargraph();
    CHECK(Drawn(12) == Drawing{"circle 180,60 12", "line 180,60 210,120", "circle 210,120 12", "dot 180,240 18",
                               "line 30,210 30,270", "line 30,240 330,240", "line 330,210 330,270", "circle 90,300 12",
                               "circle 150,360 12", "line 150,360 180,420", "circle 180,420 12"});
    CHECK(EndsAtBaseline(0.6f));
}

TEST_CASE("the graphs of a data file of commas join the points on both sides of a field of blanks")
{
    SetFileGraph(Lines({"1,5", "2, ", "3,10"}));
    VLOG::drawgpargraph();
    CHECK(Drawn(12) == Drawing{"circle 180,60 12", "line 180,60 330,180", "circle 330,180 12"});
}

TEST_CASE("a general graph without its data file has its heading, axis and box")
{
    SetFileGraph("");
    VLOG::drawgpargraph();
    CHECK(Drawn().size() == 12);
    CHECK(EndsAtBaseline(0.6f));
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Parameter File Not Found: " + Scratch("d.txt"));
    Messages.clear();
}

TEST_CASE("a general graph of a set-up without a length of axis is told as a division by zero")
{
    StartColumn();
    LogBoring.GenSetup[1] = Setup(5, 5, 1);
    LogGeometry.ParamNumber[1] = 1;
    VLOG::drawgpargraph();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 11 in drawgpargraph.  Please contact Norvane");
    Messages.clear();
}

// Three curves in a column 1.2 inches wide: axes of 1 inch from 60 to 660.
static void SetThree(const char* list)
{
    StartColumn();
    LogGeometry.ColumnWidth = 1.2f;
    LogGeometry.GraphList = list;
    LogBoring.GenSetup[1] = Setup(0, 100, 50);
    LogBoring.GenSetup[2] = Setup(0, 4, 1);
    LogBoring.GenSetup[3] = Setup(10, 20, 10);
    LogBoring.GenSetup[1].Heading = "Sand";
    LogBoring.GenSetup[2].Heading = "Fines";
    LogBoring.GenSetup[3].Heading = "Clay";
}

TEST_CASE("a graph of several curves has a band for each in its heading: name, a sample of its line, its axis")
{
    SetThree("1-2-3");
    VLOG::drawmpgraph();
    CHECK(Drawn() == Drawing{"line 0,-300 720,-300",
                             "text 360,-240 6pt  Sand  centred",
                             "line 180,-180 540,-180",
                             "line 60,-60 60,-84",
                             "text 60,-126 6pt 0 centred",
                             "line 360,-60 360,-84",
                             "text 360,-126 6pt 50 centred",
                             "line 660,-60 660,-84",
                             "text 660,-126 6pt 100 centred",
                             "line 0,-540 720,-540",
                             "text 360,-480 6pt  Fines  centred",
                             "line 180,-420 540,-420 dash-dot-dot",
                             "line 60,-300 60,-324",
                             "text 60,-366 6pt 0 centred", // five ticks: the second and fourth have no number
                             "line 210,-300 210,-324",
                             "line 360,-300 360,-324",
                             "text 360,-366 6pt 2 centred",
                             "line 510,-300 510,-324",
                             "line 660,-300 660,-324",
                             "text 660,-366 6pt 4 centred",
                             "line 0,-780 720,-780",
                             "text 360,-720 6pt  Clay  centred",
                             "line 180,-660 540,-660 dashed",
                             "line 60,-540 60,-564",
                             "text 60,-606 6pt 10 centred",
                             "line 660,-540 660,-564",
                             "text 660,-606 6pt 20 centred",
                             "line 0,-60 720,-60",
                             "line 720,-60 720,-780",
                             "rectangle 0,0 720,3600",
                             "line 360,0 360,3600 dotted"});
    CHECK(EndsAtBaseline(1.2f));
}

TEST_CASE("of several curves each has its line style and solid circles, bars in the style of the curve")
{
    SetThree("1-2");
    AddRow(1, {"50", "1"});
    AddRow(2, {"", ""});
    AddRow(3, {"120", "2,1,3"});
    AddRow(4, {"0", "4"});
    AddRow(5, {"100,2", "0"});
    VLOG::drawmpgraph();
    CHECK(Drawn(24) == Drawing{"circle 360,60 12", "line 360,60 660,180", "circle 660,180 12", "line 660,180 60,240",
                               "circle 60,240 12", "circle 660,300 12", "circle 210,60 12",
                               "dot 360,180 18 dash-dot-dot", "line 210,150 210,210 dash-dot-dot",
                               "line 210,180 510,180 dash-dot-dot", "line 510,150 510,210 dash-dot-dot",
                               "circle 660,240 12", "line 660,240 60,300 dash-dot-dot", "circle 60,300 12"});
    CHECK(EndsAtBaseline(1.2f));
}

TEST_CASE("of several curves a missing number leaves out its curve and its band")
{
    SetThree("-3");
    VLOG::drawmpgraph();
    CHECK(Drawn().size() == 7 + 4);
    CHECK(Drawn()[0] == "line 0,-540 720,-540");
    CHECK(Drawn()[2] == "line 180,-420 540,-420 dash-dot-dot");
    SetThree("");
    VLOG::drawmpgraph();
    CHECK(Drawn() == Drawing{"line 0,-60 720,-60", "line 720,-60 720,-780", "rectangle 0,0 720,3600",
                             "line 360,0 360,3600 dotted"});
    CHECK(EndsAtBaseline(1.2f));
}

TEST_CASE("of several curves one from a data file has no circles")
{
    SetThree("3-1");
    LogBoring.GenSetup[3].File = "clay.txt";
    LogBoring.GenSetup[3].Field = "2,1";
    WriteScratch("clay.txt", Lines({"depth,silt,clay", "1,9,15", "2,9,", "3,9,30", "4,9,5,1"}));
    AddRow(1, {"50"});
    VLOG::drawmpgraph();
    CHECK(Drawn(7 + 9 + 4) == Drawing{"line 360,60 660,180", "line 660,180 60,240", "circle 360,60 12"});
}

TEST_CASE("a missing data file ends a graph of several curves at once, solid lines behind it")
{
    SetThree("1-2-3");
    LogBoring.GenSetup[2].File = "no.txt";
    AddRow(1, {"50", "1", "15"});
    VLOG::drawmpgraph();
    CHECK(Drawn(31) == Drawing{"circle 360,60 12"});
    CHECK(EndsAtBaseline(1.2f));
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Parameter File Not Found: " + Scratch("no.txt"));
    Messages.clear();
}

TEST_CASE("a graph of several curves beyond the twentieth parameter is told as failure 9")
{
    SetThree("1-21");
    VLOG::drawmpgraph();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 9 in drawmpgraph.  Please contact Norvane");
    Messages.clear();
}

TEST_CASE("a data file of 2,000 lines draws 1,999 lines")
{
    SetThree("1");
    LogBoring.GenSetup[1].File = "long.txt";
    LogBoring.GenSetup[1].Field = "1";
    std::string bytes;
    for (int i = 0; i < 2000; ++i)
        bytes += std::to_string(i * 0.03) + "," + std::to_string(i % 100) + "\r\n";
    WriteScratch("long.txt", bytes);
    VLOG::drawmpgraph();
    CHECK(Drawn(9 + 4).size() == 1999);
}
