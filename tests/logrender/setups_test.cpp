// setups_test.cpp -- the parameter set-ups of a boring file as its columns take them.
#include "testing.h"

#include "logrender/logdata.h"
#include "logrender/vlog.h"

// Reads a boring with these axes of sample parameter 1 and general parameter 1.
static void ReadSetups(const char* sample, const char* general)
{
    std::string bytes = Lines({"5.1", "B-1", ""});
    const auto blank = [&bytes](int lines) {
        for (int i = 0; i < lines; ++i)
            bytes += "\r\n";
    };
    blank(60);
    blank(7);
    bytes += Lines({"0", "none.lay", "0", "0", "0", "0"});
    bytes += Lines({"Moisture/L", "Large", sample, "a", "b", "c", "9", "9", "%"});
    blank(15 * 9);
    bytes += Lines({"pH", "Large pH", general, "d", "e", "f", "ph.txt", "2,1"});
    blank(19 * 8);
    bytes += Lines({"0", "0"});
    blank(14);
    bytes += Lines({"0", "0", "0", "0", "0", "0"});
    blank(10);
    WriteScratch("b.bor", bytes);
    LogPage.BoringFileName = Scratch("b.bor");
    VLOG::getvlogdata();
    CHECK(LogBoring.RepPartCount == 0); // read to its end
    Messages.clear();                   // of the layout file
}

static Text Axis(const LogParamSetup& setup)
{
    return PlainNumber(double(setup.Start)) + " " + PlainNumber(double(setup.End)) + " " +
           PlainNumber(double(setup.Increment)) + (setup.NoLines ? " N" : "");
}

static Text SampleAxis(const char* cell)
{
    ReadSetups(cell, "");
    return Axis(LogBoring.SampleSetup[1]);
}

static Text GeneralAxis(const char* cell)
{
    ReadSetups("", cell);
    return Axis(LogBoring.GenSetup[1]);
}

TEST_CASE("the set-up cells of both kinds of parameters stand in their places")
{
    ReadSetups("0,100,20", "4,10,2");
    const LogParamSetup& sample = LogBoring.SampleSetup[1];
    CHECK(sample.Name == "Moisture/L");
    CHECK(sample.Heading == "Large");
    CHECK(sample.Split[1] + sample.Split[2] + sample.Split[3] == "abc");
    CHECK(Axis(sample) == "0 100 20");
    const LogParamSetup& general = LogBoring.GenSetup[1];
    CHECK(general.Heading == "Large pH");
    CHECK(general.Split[1] + general.Split[2] + general.Split[3] == "def");
    CHECK(general.File == "ph.txt");
    CHECK(general.Field == "2,1");
    CHECK(Axis(general) == "4 10 2");
    CHECK(Axis(LogBoring.SampleSetup[16]) == "0 1 1");
    CHECK(Axis(LogBoring.GenSetup[20]) == "0 1 1");
}

TEST_CASE("a blank axis is 0 to 1 by 1, and for a sample parameter one that begins LOG")
{
    CHECK(SampleAxis("   ") == "0 1 1");
    CHECK(SampleAxis("Log scale,5,5") == "0 1 1");
    CHECK(SampleAxis(" LOG,5,5") == "0 5 5");
    CHECK(GeneralAxis("") == "0 1 1");
    CHECK(GeneralAxis("LOG,5,5") == "0 5 5");
}

TEST_CASE("an increment of 0 resets the axis, but not one that starts at -999")
{
    CHECK(SampleAxis("10,100") == "0 1 1");
    CHECK(SampleAxis("10,100,0") == "0 1 1");
    CHECK(SampleAxis("-999,-2,0") == "-999 -2 0");
    CHECK(SampleAxis("-999,0,3") == "-999 0 3");
    CHECK(GeneralAxis("-999,-2,0") == "0 1 1");
    CHECK(GeneralAxis("-999,-2,1") == "-999 -2 1");
}

TEST_CASE("a fourth piece N leaves out the lines, in any case and on a reset axis too")
{
    CHECK(SampleAxis("0,100,20,N") == "0 100 20 N");
    CHECK(SampleAxis("0,100,20, n ,x") == "0 100 20 N");
    CHECK(SampleAxis("0,100,20,No") == "0 100 20");
    CHECK(SampleAxis("0,100,N") == "0 1 1");
    CHECK(SampleAxis("5,5,0,N") == "0 1 1 N");
    CHECK(SampleAxis("-999,0,3,N") == "-999 0 3 N");
}
