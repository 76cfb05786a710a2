// boringdata_test.cpp -- the boring record and what its clearing leaves.
#include "boring/boringdata.h"

#include "testing.h"

template <int Rows, int Columns>
static void Fill(TextTable<Rows, Columns>& table)
{
    for (int row = 1; row <= Rows; ++row)
        for (int column = 1; column <= Columns; ++column)
            table[row][column] = "x";
}

template <int Rows>
static void Fill(Slots<Text, Rows>& lines)
{
    for (int row = 1; row <= Rows; ++row)
        lines[row] = "x";
}

// Every cell of the record "x", every list with two rows in use.
static void FillRecord()
{
    BoringData.Name = BoringData.MapFile = BoringData.LayoutFile = "x";
    Fill(BoringData.Info);
    Fill(BoringData.Scale);
    for (int row = 1; row <= MaxRepParts; ++row)
        BoringData.RepParts[row] = {"x", "x"};
    Fill(BoringData.Samples);
    Fill(BoringData.Lith);
    Fill(BoringData.Des);
    Fill(BoringData.Params);
    Fill(BoringData.SampleParamSetup);
    Fill(BoringData.GenParamSetup);
    Fill(BoringData.WellInfo);
    Fill(BoringData.WellNotes);
    Fill(BoringData.GenWell);
    Fill(BoringData.OuterLayers);
    Fill(BoringData.InnerLayers);
    Fill(BoringData.Remarks);
    Fill(BoringData.Cuttings);
    Fill(BoringData.Legend);
    Fill(BoringData.Formations);
    Fill(BoringData.BottNotes);
    Fill(BoringData.Client);
    for (int32_t* count :
         {&BoringData.RepPartCount, &BoringData.SampleCount, &BoringData.LithCount, &BoringData.DesCount,
          &BoringData.ParamCount, &BoringData.WellInfoCount, &BoringData.WellNoteCount, &BoringData.OuterLayerCount,
          &BoringData.InnerLayerCount, &BoringData.RemarkCount, &BoringData.CuttingCount, &BoringData.LegendCount,
          &BoringData.FormationCount})
        *count = 2;
    BoringData.Style = 2;
    BoringData.Draft = 1;
}

TEST_CASE("clearing empties the single fields and the fixed tables wholly")
{
    FillRecord();
    ClearBoringArrays();
    CHECK(BoringData.Name == "");
    CHECK(BoringData.MapFile == "");
    CHECK(BoringData.LayoutFile == "");
    CHECK(BoringData.Info[30][2] == "");
    CHECK(BoringData.Scale[7] == "");
    CHECK(BoringData.SampleParamSetup[16][9] == "");
    CHECK(BoringData.GenParamSetup[20][8] == "");
    CHECK(BoringData.WellInfo[30][2] == "");
    CHECK(BoringData.GenWell[14] == "");
    CHECK(BoringData.BottNotes[10] == "");
    CHECK(BoringData.Client[5] == "");
    CHECK(BoringData.Style == 0);
    CHECK(BoringData.Draft == 0);
}

TEST_CASE("clearing empties of the lists the rows in use, and their counts")
{
    FillRecord();
    ClearBoringArrays();
    CHECK(BoringData.RepParts[2].Item == "");
    CHECK(BoringData.RepParts[2].Width == "");
    CHECK(BoringData.RepParts[3].Item == "x");
    CHECK(BoringData.Samples[2][21] == "");
    CHECK(BoringData.Samples[3][1] == "x");
    CHECK(BoringData.Lith[2][4] == "");
    CHECK(BoringData.Des[2] == "");
    CHECK(BoringData.Des[3] == "x");
    CHECK(BoringData.WellNotes[2] == "");
    CHECK(BoringData.OuterLayers[2][5] == "");
    CHECK(BoringData.InnerLayers[2][5] == "");
    CHECK(BoringData.Remarks[2] == "");
    CHECK(BoringData.RepPartCount == 0);
    CHECK(BoringData.SampleCount == 0);
    CHECK(BoringData.LithCount == 0);
    CHECK(BoringData.DesCount == 0);
    CHECK(BoringData.ParamCount == 0);
    CHECK(BoringData.WellNoteCount == 0);
    CHECK(BoringData.OuterLayerCount == 0);
    CHECK(BoringData.InnerLayerCount == 0);
    CHECK(BoringData.RemarkCount == 0);
}

TEST_CASE("clearing leaves columns 10 to 21 of the general parameters")
{
    FillRecord();
    ClearBoringArrays();
    CHECK(BoringData.Params[1][1] == "");
    CHECK(BoringData.Params[2][9] == "");
    CHECK(BoringData.Params[2][10] == "x");
    CHECK(BoringData.Params[1][21] == "x");
}

TEST_CASE("clearing leaves the counts of cuttings, legend, formations and well information")
{
    FillRecord();
    ClearBoringArrays();
    CHECK(BoringData.Cuttings[2][4] == "");
    CHECK(BoringData.Legend[2][2] == "");
    CHECK(BoringData.Formations[2][2] == "");
    CHECK(BoringData.CuttingCount == 2);
    CHECK(BoringData.LegendCount == 2);
    CHECK(BoringData.FormationCount == 2);
    CHECK(BoringData.WellInfoCount == 2);
}

TEST_CASE("the record is as large as the program's limits, and its arrays are checked")
{
    CHECK_THROWS_AS(BoringData.Samples[81], RunTimeError);
    CHECK_THROWS_AS(BoringData.Lith[101], RunTimeError);
    CHECK_THROWS_AS(BoringData.Des[1001], RunTimeError);
    CHECK_THROWS_AS(BoringData.Params[101], RunTimeError);
    CHECK_THROWS_AS(BoringData.RepParts[31], RunTimeError);
    CHECK_THROWS_AS(BoringData.Remarks[601], RunTimeError);
    CHECK_THROWS_AS(BoringData.WellNotes[61], RunTimeError);
    CHECK_THROWS_AS(BoringData.Formations[81], RunTimeError);
    CHECK_THROWS_AS(BoringData.Client[6], RunTimeError);
}
