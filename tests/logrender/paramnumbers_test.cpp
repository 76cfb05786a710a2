// paramnumbers_test.cpp -- the columns that print numbers of sample and general parameters.
#include "columnpage.h"

#include "logrender/vlog.h"

static void SetSamples(std::initializer_list<const char*> values)
{
    StartColumn();
    LogGeometry.ParamNumber[1] = 2;
    float top = 0;
    for (const char* value : values) {
        AddSample(top, top + 2);
        LogBoring.Samples[LogBoring.SampleCount].Param[2] = value;
        top += 10;
    }
}

TEST_CASE("a parameter's column prints the value text of every sample at its middle, empty ones too")
{
    SetSamples({"12.50", "", "n.d."});
    LogBoring.SampleSetup[2].Split[1] = "Water";
    LogBoring.SampleSetup[2].Split[2] = "Cont.";
    VLOG::drawpar(0.5f);
    CHECK(Drawn() == Drawing{"text 150,-278 7pt  Water  centred", "text 150,-203 7pt  Cont.  centred",
                             "text 150,-128 7pt    centred", "line 300,-60 300,-780", "line 300,-60 0,-60",
                             "rectangle 0,0 300,3600", "text 150,60 7pt  12.50  centred", "text 150,660 7pt    centred",
                             "text 150,1260 7pt  n.d.  centred"});
    CHECK(EndsAtBaseline(0.5f));
}

TEST_CASE("a first heading line of 7 characters stands straight, one of 8 is turned upward")
{
    SetSamples({});
    LogBoring.SampleSetup[2].Split[1] = "1234567";
    VLOG::drawpar(0.6f);
    CHECK(Drawn()[0] == "text 180,-278 7pt  1234567  centred");
    SetSamples({});
    LogBoring.SampleSetup[2].Split[1] = "12345678";
    LogBoring.SampleSetup[2].Split[3] = "not shown";
    VLOG::drawpar(0.6f);
    CHECK(Drawn() == Drawing{"text 180,-90 8pt 12345678 upward", "line 360,-60 360,-780", "line 360,-60 0,-60",
                             "rectangle 0,0 360,3600"});
    CHECK(EndsAtBaseline(0.6f));
}

TEST_CASE("a turned heading of two lines has them at the thirds of the column")
{
    SetSamples({"5"});
    LogBoring.SampleSetup[2].Split[1] = "Dry Density";
    LogBoring.SampleSetup[2].Split[2] = "pcf";
    VLOG::drawpar(0.6f);
    CHECK(Drawn() == Drawing{"text 120,-90 8pt Dry Density upward", "text 240,-90 8pt pcf upward",
                             "line 360,-60 360,-780", "line 360,-60 0,-60", "rectangle 0,0 360,3600",
                             "text 180,60 7pt  5  centred"});
}

TEST_CASE("a parameter whose name ends in /L has lines over the column at each sample's top and bottom")
{
    SetSamples({"5"});
    LogBoring.SampleSetup[2].Name = "Recovery/l";
    VLOG::drawpar(0.5f);
    CHECK(Drawn(6) == Drawing{"text 150,60 7pt  5  centred", "line 0,0 300,0", "line 0,120 300,120"});
    CHECK(EndsAtBaseline(0.5f));
    SetSamples({"5"});
    LogBoring.SampleSetup[2].Name = "N/Lab";
    VLOG::drawpar(0.5f);
    CHECK(Drawn(6).size() == 1);
}

TEST_CASE("parameter 0 is an empty column, and a negative one a failure")
{
    SetSamples({"5"});
    LogGeometry.ParamNumber[1] = 0;
    VLOG::drawpar(0.5f);
    CHECK(Drawn(6) == Drawing{"text 150,60 7pt    centred"});
    CHECK(Messages.empty());
    SetSamples({"5"});
    LogGeometry.ParamNumber[1] = -3;
    VLOG::drawpar(0.5f);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 9 in drawpar.  Please contact Norvane");
    Messages.clear();
}

static void AddRow(const char* depth, int column, const char* value)
{
    LogBoring.Params[++LogBoring.ParamCount][1] = depth;
    LogBoring.Params[LogBoring.ParamCount][column] = value;
}

static Drawing GeneralNumbers(int16_t n)
{
    LogGeometry.ParamNumber[1] = n;
    VLOG::drawgpar(0.5f);
    CHECK(EndsAtBaseline(0.5f));
    return Drawn(6);
}

TEST_CASE("a general parameter's column prints the table's texts at their depths, page ends included")
{
    StartColumn();
    LogPage.PageStartDepth = 10;
    AddRow("9.9", 21, "above");
    AddRow("10", 21, "top");
    AddRow("20", 21, "");
    AddRow("30", 21, "12,8,15");
    AddRow("67", 21, "end");
    AddRow("68", 21, "below");
    LogBoring.GenSetup[20].Split[1] = "pH";
    CHECK(GeneralNumbers(20) == Drawing{"text 150,0 7pt  top  centred", "text 150,1200 7pt  12,8,15  centred",
                                        "text 150,3420 7pt  end  centred"});
    CHECK(DrawnTexts()[0] == " pH ");
}

TEST_CASE("a general parameter beyond the twentieth is told as failure 9")
{
    StartColumn();
    LogGeometry.ParamNumber[1] = 21;
    VLOG::drawgpar(0.5f);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 9 in drawgpar.  Please contact Norvane");
    Messages.clear();
}

static void SetFile(const char* name, const char* field, std::string_view bytes)
{
    StartColumn();
    LogBoring.GenSetup[1].File = name;
    LogBoring.GenSetup[1].Field = field;
    WriteScratch(name, bytes);
}

TEST_CASE("a data file of commas gives the depth first, then field 1 and on, behind its header lines")
{
    SetFile("ph.txt", "2,2", Lines({"Site 12", "depth, a, b", "1,x, 7.10 ", "2.5,y,8", "68,z,9", "3", "4,w,"}));
    AddRow("1", 2, "table");
    CHECK(GeneralNumbers(1) == Drawing{"text 150,60 7pt   7.10   centred", "text 150,150 7pt  8  centred"});
}

TEST_CASE("a data file of blanks has an empty field between two blanks")
{
    SetFile("ph.txt", "1", Lines({"1 5", "2  6", "3 7,8"}));
    CHECK(GeneralNumbers(1) == Drawing{"text 150,60 7pt  5  centred", "text 150,180 7pt  7,8  centred"});
}

TEST_CASE("a field of blanks in a data file of commas is a missing value")
{
    SetFile("ph.txt", "1", Lines({"1, ,x", "2,   ,x", "3, 8 ,x", "4,0,x", "5, "}));
    CHECK(GeneralNumbers(1) == Drawing{"text 150,180 7pt   8   centred", "text 150,240 7pt  0  centred"});
}

TEST_CASE("the first data line alone chooses the separator of a data file")
{
    SetFile("a.txt", "1", Lines({"1 5", "2,6 4"}));
    CHECK(GeneralNumbers(1) == Drawing{"text 150,60 7pt  5  centred", "text 150,120 7pt  4  centred"});
    SetFile("b.txt", "1,1", Lines({"a,b", "", "2 6"}));
    CHECK(GeneralNumbers(1) == Drawing{"text 150,120 7pt  6  centred"});
}

TEST_CASE("a blank line of a data file counts as depth -1")
{
    SetFile("a.txt", "0", Lines({"", "  ", "5 1"}));
    LogPage.PageStartDepth = -1;
    CHECK(GeneralNumbers(1) == Drawing{"text 150,360 7pt  5  centred"});
}

TEST_CASE("field 0 of a data file is the depth, and a negative field is missing")
{
    SetFile("a.txt", "", Lines({"5,1"}));
    CHECK(GeneralNumbers(1) == Drawing{"text 150,300 7pt  5  centred"});
    SetFile("a.txt", "-1", Lines({"5,1"}));
    CHECK(GeneralNumbers(1) == Drawing{});
}

TEST_CASE("a data file is found in any case of its letters, and a missing one is told with its path")
{
    SetFile("PH.TXT", "1", Lines({"5,1"}));
    LogBoring.GenSetup[1].File = "ph.txt";
    CHECK(GeneralNumbers(1).size() == 1);
    StartColumn();
    LogBoring.GenSetup[1].File = "nowhere.txt";
    CHECK(GeneralNumbers(1) == Drawing{});
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Parameter File Not Found: " + Scratch("nowhere.txt"));
    Messages.clear();
}

TEST_CASE("a data file shorter than its header is told as a read past its end")
{
    SetFile("a.txt", "1,3", Lines({"5,1"}));
    LogGeometry.ParamNumber[1] = 1;
    VLOG::drawgpar(0.5f);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 62 in drawgpar.  Please contact Norvane");
    Messages.clear();
}

TEST_CASE("a field number beyond 16 bits is told as an overflow")
{
    SetFile("a.txt", "70000", Lines({"5,1"}));
    LogGeometry.ParamNumber[1] = 1;
    VLOG::drawgpar(0.5f);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 6 in drawgpar.  Please contact Norvane");
    Messages.clear();
}
