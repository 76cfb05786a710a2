// oldboring_test.cpp -- boring files of the forms before 5.
#include "boring/oldboring.h"

#include "testing.h"

#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "boring/boringfile.h"
#include "boring/opensave.h"
#include "editors/fillform.h"
#include "session/session.h"

#include <vector>

namespace
{
using Block = std::vector<Text>;

Block Cells(int count, const Text& letter)
{
    Block cells;
    for (int i = 1; i <= count; ++i)
        cells.push_back(letter + std::to_string(i));
    return cells;
}

// The lines of an old file; the start values are those of 4.6, with every block filled.
struct OldLines {
    bool versionLine = true;
    Block scale = Cells(6, "s");
    Text list = "DEP,SDES,USCS,MAPsite.bmp";
    int lithCells = 3;
    Block lith = {"4", "SM", "1,red", "9", "CL", "2"};
    Block des = {"brown", "sand\xB6"};
    Block genWell = Cells(10, "e");
    int linesBehindGenWell = 1;

    std::string File() const
    {
        std::string file;
        const auto lines = [&](const Block& block) {
            for (const Text& text : block)
                file += text + "\r\n";
        };
        const auto counted = [&](const Block& block, int cells) {
            file += std::to_string(int(block.size()) / cells) + "\r\n";
            lines(block);
        };
        if (versionLine)
            lines({"4.6"});
        lines({"B-1"});
        lines(Cells(16, "i"));
        lines(scale);
        lines({list});
        counted(Cells(42, "m"), 21);
        counted(lith, lithCells);
        counted(des, 1);
        counted(Cells(18, "p"), 9);
        lines(Cells(144, "t"));
        lines(Cells(160, "g"));
        lines(Cells(39, "dropped"));
        counted(Cells(4, "w"), 2);
        counted(Cells(3, "n"), 1);
        lines(genWell);
        lines(Cells(linesBehindGenWell, "dropped"));
        counted(Cells(8, "o"), 4);
        counted(Cells(5, "u"), 5);
        counted(Cells(2, "k"), 1);
        counted(Cells(8, "c"), 4);
        counted(Cells(6, "y"), 2);
        counted(Cells(4, "f"), 2);
        return file;
    }
};

OldLines Lines4()
{
    OldLines lines;
    lines.versionLine = false;
    lines.lithCells = 4;
    lines.lith = {"4", "SM", "1,2", "red", "9", "CL", "2", "blue"};
    return lines;
}

OldLines Lines3()
{
    OldLines lines;
    lines.versionLine = false;
    lines.scale = {"30", "5", "20", "Feet,101.5,99"};
    lines.genWell = {"W-1", "W-2", "102", "1.5", "7,8,9", "12", "y"};
    lines.linesBehindGenWell = 2;
    return lines;
}

// As Open does with the version marked in the chooser: 0 for 3.0, 1 for 4.0, 2 for 4.6 and 5.0.
void Open(const std::string& file, int16_t version)
{
    FillOlderForms();
    WriteScratch("OLD.BOR", file);
    BoringFileName = Scratch("OLD.BOR");
    DialogMode = version;
    ClearBoringArrays();
    OpenBoringFile2();
}

// What stands behind the wells, alike in the three forms.
void CheckTail()
{
    CHECK(BoringData.OuterLayerCount == 2);
    CHECK(BoringData.OuterLayers[1][4] == "o4");
    CHECK(BoringData.OuterLayers[1][5] == "");
    CHECK(BoringData.OuterLayers[2][1] == "o5");
    CHECK(BoringData.InnerLayerCount == 1);
    CHECK(BoringData.InnerLayers[1][5] == "u5");
    CHECK(BoringData.RemarkCount == 2);
    CHECK(BoringData.Remarks[2] == "k2");
    CHECK(BoringData.CuttingCount == 2);
    CHECK(BoringData.Cuttings[2][4] == "c8");
    CHECK(BoringData.LegendCount == 3);
    CHECK(BoringData.Legend[3][2] == "y6");
    CHECK(BoringData.FormationCount == 2);
    CHECK(BoringData.Formations[2][2] == "f4");
    CHECK(BoringData.LayoutFile == "");
    CHECK(BoringData.BottNotes[1] == "");
    CHECK(BoringData.Client[1] == "");
    CHECK(BoringData.Style == 0);
    CHECK(BoringData.Draft == 0);
}

const char* const convertedNotice =
    "This boring file has version 4.6 format.  When saved, it will be converted to 5.0 format.";
} // namespace

TEST_CASE("every line of a 4.6 file comes to its place")
{
    Open(OldLines().File(), 2);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == convertedNotice);
    CHECK(BoringData.Name == "B-1");
    CHECK(BoringData.Info[1][1] == "i1");
    CHECK(BoringData.Info[8][2] == "i16");
    CHECK(BoringData.Info[9][1] == "");
    CHECK(BoringData.Scale[1] == "s1");
    CHECK(BoringData.Scale[6] == "s6");
    CHECK(BoringData.Scale[7] == "");
    CHECK(BoringData.SampleCount == 2);
    CHECK(BoringData.Samples[1][3] == "m3");
    CHECK(BoringData.Samples[2][21] == "m42");
    CHECK(BoringData.DesCount == 2);
    CHECK(BoringData.Des[1] == "brown"); // stored lines, wrapped where the box wrapped them
    CHECK(BoringData.Des[2] == "sand\xB6");
    CHECK(BoringData.ParamCount == 2);
    CHECK(BoringData.Params[2][9] == "p18");
    CHECK(BoringData.Params[2][10] == "");
    CHECK(BoringData.SampleParamSetup[16][9] == "t144");
    CHECK(BoringData.GenParamSetup[20][8] == "g160");
    CHECK(BoringData.WellInfoCount == 2);
    CHECK(BoringData.WellInfo[1][1] == "w1");
    CHECK(BoringData.WellNoteCount == 3);
    CHECK(BoringData.WellNotes[3] == "n3");
    const char* const wells[] = {"e1", "e2", "", "", "e3", "e4", "e5", "e6", "e7", "e8", "e9", "", "e10", ""};
    for (int row = 1; row <= 14; ++row)
        CHECK(BoringData.GenWell[row] == wells[row - 1]);
    CheckTail();
}

TEST_CASE("the columns of an old file are spelled anew, and its map becomes the map file")
{
    Open(OldLines().File(), 2);
    REQUIRE(BoringData.RepPartCount == 4);
    CHECK(BoringData.RepParts[1].Item == "depth scale");
    CHECK(BoringData.RepParts[2].Item == "descriptions");
    CHECK(BoringData.RepParts[2].Width == "2");
    CHECK(BoringData.RepParts[3].Item == "USCS");
    CHECK(BoringData.RepParts[4].Item == "graphic");
    CHECK(BoringData.MapFile == "SITE.BMP");
}

TEST_CASE("surface elevation and coordinates that shared a line are parted at its first comma")
{
    for (const int16_t version : {int16_t(2), int16_t(1)}) {
        OldLines lines = version == 2 ? OldLines() : Lines4();
        lines.scale[4] = "101.5,1200,3400";
        Open(lines.File(), version);
        CHECK(BoringData.Scale[5] == "101.5");
        CHECK(BoringData.Scale[7] == "1200,3400");
        CHECK(BoringData.Scale[6] == "s6");
    }
}

TEST_CASE("a 4.6 contact has its colour behind the line type; without a comma the colour is empty")
{
    Open(OldLines().File(), 2);
    REQUIRE(BoringData.LithCount == 2);
    CHECK(BoringData.Lith[1][3] == "1");
    CHECK(BoringData.Lith[1][4] == "red");
    CHECK(BoringData.Lith[2][3] == "2");
    CHECK(BoringData.Lith[2][4] == "");
}

TEST_CASE("a 4.0 file has no version line, a cell for each colour, and each description line is a paragraph")
{
    Open(Lines4().File(), 1);
    CHECK(Messages.empty());
    CHECK(BoringData.Name == "B-1");
    REQUIRE(BoringData.LithCount == 2);
    CHECK(BoringData.Lith[1][3] == "1,2");
    CHECK(BoringData.Lith[1][4] == "red");
    CHECK(BoringData.Lith[2][4] == "blue");
    CHECK(BoringData.Des[1] == "brown\xB6");
    CHECK(BoringData.Samples[1][3] == "m3");
    CHECK(BoringData.GenWell[13] == "e10");
    CheckTail();
}

TEST_CASE("a 3.0 file has four scale lines, seven of the wells, and no sample conditions")
{
    Open(Lines3().File(), 0);
    CHECK(Messages.empty());
    CHECK(BoringData.Name == "B-1");
    const char* const scale[] = {"30", "5", "20", "Feet", "101.5", "99", ""};
    for (int row = 1; row <= 7; ++row)
        CHECK(BoringData.Scale[row] == scale[row - 1]);
    CHECK(BoringData.RepPartCount == 4);
    CHECK(BoringData.Samples[1][2] == "m2");
    CHECK(BoringData.Samples[1][3] == "");
    CHECK(BoringData.Samples[2][3] == "");
    CHECK(BoringData.Samples[2][4] == "m25");
    CHECK(BoringData.Lith[1][3] == "1");
    CHECK(BoringData.Lith[1][4] == "red");
    CHECK(BoringData.Des[1] == "brown\xB6");
    const char* const wells[] = {"W-1", "W-2", "", "", "102", "1.5", "7", "8,9", "", "", "12", "", "y", ""};
    for (int row = 1; row <= 14; ++row)
        CHECK(BoringData.GenWell[row] == wells[row - 1]);
    CheckTail();
}

TEST_CASE("the unit line of a 3.0 file may hold the elevations, one of them, or none")
{
    OldLines lines = Lines3();
    lines.scale[3] = "Feet,101.5";
    Open(lines.File(), 0);
    CHECK(BoringData.Scale[4] == "Feet");
    CHECK(BoringData.Scale[5] == "101.5");
    CHECK(BoringData.Scale[6] == "");
    lines.scale[3] = "Feet";
    lines.genWell[4] = "7";
    Open(lines.File(), 0);
    CHECK(BoringData.Scale[4] == "Feet");
    CHECK(BoringData.Scale[5] == "");
    CHECK(BoringData.Scale[6] == "");
    CHECK(BoringData.GenWell[7] == "7");
    CHECK(BoringData.GenWell[8] == "");
    lines.scale[3] = "Feet,101.5,99,5";
    Open(lines.File(), 0);
    CHECK(BoringData.Scale[6] == "99,5");
    CHECK(BoringData.Scale[7] == "");
}

TEST_CASE("a 4.6 file saved is of the newest form, with no notes and no client, and its layout is .lay")
{
    Open(OldLines().File(), 2);
    FillBoringForm();
    Messages.clear();
    BoringFileName = Scratch("NEW.BOR");
    SaveBoringFile();
    CHECK(Messages.empty());
    ClearBoringArrays();
    DialogMode = -1;
    OpenBoringFile2();
    CHECK(Messages.empty());
    CHECK(ReadScratch("NEW.BOR").starts_with("5.0.12\r\nB-1\r\nSITE.BMP\r\n"));
    CHECK(BoringData.LayoutFile == ".lay");
    for (int i = 1; i <= MaxBottNotes; ++i)
        CHECK(BoringData.BottNotes[i] == "");
    for (int i = 1; i <= MaxClient; ++i)
        CHECK(BoringData.Client[i] == "");
    CHECK(BoringData.OuterLayers[2][4] == "o8");
    CHECK(BoringData.OuterLayers[2][5] == "");
    CHECK(BoringData.RepParts[4].Item == "graphic");
}

TEST_CASE("the version marked in the chooser wins: a 4.6 file opened as 3.0 is called 4.6")
{
    Open(OldLines().File(), 0);
    CHECK(BoringData.Name == "4.6");
    CHECK(BoringData.Info[1][1] == "B-1");
    for (const PlainMessage& message : Messages)
        CHECK(message.words == "Error 62 in OpenSV3.  Please contact Norvane");
}

TEST_CASE("the reader of 4.6 looks at the version once more and refuses any other")
{
    WriteScratch("OLD.BOR", Lines({"4.5", "B-1"}));
    BoringFileName = Scratch("OLD.BOR");
    OpenSV46();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "This boring file has an format prior to version 4.6.  Use the Conversion Utility to "
                               "convert it to version 4.6 format.");
    CHECK(Messages[0].buttons == OkOnly);
    CHECK(Messages[0].icon == Exclamation);
    CHECK(BoringData.Name == "");
}

TEST_CASE("an old file that ends early, is missing or counts too high is told by its reader's name, once")
{
    const std::string file = OldLines().File();
    Open(file.substr(0, file.find("i9")), 2);
    REQUIRE(Messages.size() == 2);
    CHECK(Messages[1].words == "Error 62 in OpenSV46.  Please contact Norvane");
    CHECK(BoringData.Info[4][2] == "i8");

    Messages.clear();
    OpenSV4(Scratch("nothing.SV4"));
    OpenSV3(Scratch("nothing.SV3"));
    REQUIRE(Messages.size() == 2);
    CHECK(Messages[0].words == "Error 53 in OpenSV4.  Please contact Norvane");
    CHECK(Messages[1].words == "Error 53 in OpenSV3.  Please contact Norvane");

    Messages.clear();
    OldLines lines = Lines4();
    lines.des = Cells(1001, "d");
    Open(lines.File(), 1);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 9 in OpenSV4.  Please contact Norvane");
    CHECK(BoringData.DesCount == 1000);
    CHECK(BoringData.Des[1000] == "d1000\xB6");
}

TEST_CASE("a list of columns that is too long is told by its own name, and the reading goes on")
{
    OldLines lines;
    lines.list = "P1";
    for (int i = 2; i <= 31; ++i)
        lines.list += ",P1";
    Open(lines.File(), 2);
    REQUIRE(Messages.size() == 2);
    CHECK(Messages[1].words == "Error 9 in convertrepparts.  Please contact Norvane");
    CHECK(BoringData.Formations[2][2] == "f4");
}

TEST_CASE("a name typed without its ending for an older form is a file that is not there")
{
    WriteScratch("old.SV3", OldLines().File());
    DialogMode = 1;
    frmOpenSave::Load();
    frmOpenSave::ChangeVersion(0);
    frmOpenSave::Dialog.fileText = "old";
    frmOpenSave::Command1();
    BoringFileName = DialogResult;
    FillOlderForms();
    OpenBoringFile2();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 53 in OpenSV3.  Please contact Norvane");
    CHECK(BoringData.Name == "");
}

TEST_CASE("the last contact of a 4.6 file has its colour behind the comma as the others have")
{
    OldLines lines;
    lines.lith = {"4", "SM", "1,red", "9", "CL", "2,10 20 30"};
    Open(lines.File(), 2);
    CHECK(BoringData.Lith[2][3] == "2");
    CHECK(BoringData.Lith[2][4] == "10 20 30");
}
