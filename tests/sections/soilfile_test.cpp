// soilfile_test.cpp -- the .SOI file between its form and the disk.
#include "sections/soilfile.h"

#include "testing.h"

#include "places.h"
#include "session/deviceconfig.h"
#include "session/files.h"
#include "session/session.h"

using namespace frmSoil;

static const std::string cells = Lines({"B-1.BOR", "1,3,16", "Limit 1", "", "N", "Main", "First", "Second", ""});

static void Open(const std::string& bytes)
{
    WriteScratch("A.SOI", bytes);
    FileName = Scratch("A.SOI");
    OpenSoilFile();
    FillSoilForm();
}

// What a save writes of the form as it stands.
static std::string Saved()
{
    FileName = Scratch("OUT.SOI");
    REQUIRE(SaveSoilFile());
    return ReadScratch("OUT.SOI");
}

TEST_CASE("each line of a soil table's file has its cell, and the rest are notes")
{
    Open(cells + Lines({"one ", "two\xB6", "", "", "", "", "", "", "", "ten"}));
    CHECK(Messages.empty());
    CHECK(frmSoil::Title == Scratch("A.SOI") + " - VeskSoil - Soil Analysis Table");
    CHECK(SS1.Cell(SoilBoringFile, 1) == "B-1.BOR");
    CHECK(SS1.Cell(SoilParameters, 1) == "1,3,16");
    CHECK(SS1.Cell(SoilLabel1, 1) == "Limit 1");
    CHECK(SS1.Cell(SoilGraph, 1) == "N");
    CHECK(SS1.Cell(SoilTitle2, 1) == "Second");
    CHECK(SoilData.notes[1] == "one ");
    CHECK(SoilData.notes[10] == "ten");
    CHECK(FileChanged == 0);
}

TEST_CASE("a soil table opened and saved is the same, byte by byte, where its notes are lines of their own")
{
    for (const std::string& notes :
         {Lines({"", "", "", "", "", "", "", "", "", ""}),
          Lines({"one\xB6", "two\xB6", "three", "", "", "", "", "", "", ""}),
          Lines({"\xB6", "two", "", "", "", "", "", "", "", ""}),
          Lines({"1\xB6", "2\xB6", "3\xB6", "4\xB6", "5\xB6", "6\xB6", "7\xB6", "8\xB6", "9\xB6", "10"})}) {
        CAPTURE(notes);
        Open(cells + notes);
        CHECK(Messages.empty());
        CHECK(Saved() == cells + notes);
    }
}

// What the notes of a file are after they have been opened and saved.
static std::string SavedNotes(const std::string& notes)
{
    Open(cells + notes);
    return Saved().substr(cells.size());
}

TEST_CASE("a note with the closing mark ends a paragraph, and one without runs on into the next")
{
    Open(cells + Lines({"wrapped ", "here\xB6", "\xB6", "last\xB6", "\xB6", " ", "", "", "", ""}));
    CHECK(MemoSoil.text == "wrapped here\r\n\r\nlast\r\n\r\n");
    Open(cells + Lines({"one\xB6", "two", "", "", "", "", "", "", "", ""}));
    CHECK(MemoSoil.text == "one\r\ntwo");
    Open(cells + Lines({"one", "", "two\xB6", "", "", "", "", "", "", ""}));
    CHECK(MemoSoil.text == "one two\r\n");
}

TEST_CASE("notes that were wrapped get back the blank that their file has dropped")
{
    const Text first = "Limits: sulphate classes DS-1 and DS-2 of the 2:1 extract, lead for housing and";
    const std::string notes = Lines({first, "for commercial use.\xB6", "", "", "", "", "", "", "", ""});
    Open(cells + notes);
    CHECK(MemoSoil.text == first + " for commercial use.\r\n");
    CHECK(Saved() == cells + notes);
}

TEST_CASE("notes that were cut for another box stay so until they or the box are changed")
{
    const std::string notes = Lines({"short", "and longer", "end \xB6", "last", "", "", "", "", "", ""});
    Open(cells + notes);
    CHECK(MemoSoil.text == "short and longer end \r\nlast");
    SS1.Cell(SoilMainTitle, 1) = "Another";
    CHECK(Saved().ends_with(notes));
    CHECK(Saved().ends_with(notes));
    const std::string cut = Lines({"short and longer end \xB6", "last", "", "", "", "", "", "", "", ""});
    cmdAdj6();
    CHECK(Saved().ends_with(cut));
    Open(cells + notes);
    MemoSoil.text += "!";
    CHECK(Saved().ends_with(Lines({"short and longer end \xB6", "last!", "", "", "", "", "", "", "", ""})));
}

TEST_CASE("every soil table among the samples is saved as it was opened")
{
    int tables = 0;
    for (const auto& file : std::filesystem::directory_iterator(Text(SOURCE_DIR) + "/samples"))
        if (file.path().extension() == ".SOI") {
            CAPTURE(file.path());
            ++tables;
            const std::string bytes = ReadWholeFile(file.path().string());
            Open(bytes);
            CHECK(Saved() == bytes);
        }
    CHECK(tables > 0);
}

TEST_CASE("notes that were cut for one width of their box are cut anew for each other one, back again too")
{
    Open(cells + Lines({"", "", "", "", "", "", "", "", "", ""}));
    const int designed = MemoSoil.widthTwips;
    MemoSoil.text = "several words that go into one line of the box as it is designed\r\n";
    MemoSoil.widthTwips = 2000;
    const std::string narrow = Saved();
    CHECK(SoilData.notes[2] != "");
    CHECK(Saved() == narrow);
    MemoSoil.widthTwips = designed;
    CHECK(Saved() != narrow);
    CHECK(SoilData.notes[2] == "");
}

TEST_CASE("a note without a mark that is wider than its box is cut by the next save, as what is typed is")
{
    const Text word(100, 'w');
    Open(cells + Lines({word, "", "", "", "", "", "", "", "", ""}));
    Saved();
    CHECK(SoilData.notes[1].size() < 100);
    CHECK(SoilData.notes[1] + SoilData.notes[2] == word);
}

TEST_CASE("notes are written without the blanks at which they were cut")
{
    Open(cells + Lines({"", "", "", "", "", "", "", "", "", ""}));
    MemoSoil.widthTwips = 2000;
    MemoSoil.text = "several words that do not fit in one line of so narrow a box";
    CHECK(Saved().find(" \r\n") == Text::npos);
    CHECK(SoilData.notes[1].ends_with(' '));
}

TEST_CASE("a word of the notes that is wider than their box is cut without a blank, and joined without one")
{
    const std::string none = Lines({"", "", "", "", "", "", "", "", "", ""});
    Open(cells + none);
    const Text word(200, 'w');
    MemoSoil.text = "a line\r\n" + word + " end\r\n";
    const std::string saved = Saved();
    CHECK(SoilData.notes[2].size() < 200);
    Open(saved);
    CHECK(MemoSoil.text == "a line\r\n" + word + " end\r\n");
    CHECK(Saved() == saved);
}

TEST_CASE("notes none of which has a mark are lines of their own, but for empty ones at the end")
{
    Open(cells + Lines({"one", "", "two", "last", "", " ", "", "", "", ""}));
    CHECK(MemoSoil.text == "one\r\n\r\ntwo\r\nlast");
    // Saved, every line but the last ends a paragraph, and a second save changes no more.
    const std::string saved = Saved();
    CHECK(saved == cells + Lines({"one\xB6", "\xB6", "two\xB6", "last", "", "", "", "", "", ""}));
    Open(saved);
    CHECK(Saved() == saved);
    // A mark within a line closes nothing.
    Open(cells + Lines({"1\xB6 2", "3", "", "", "", "", "", "", "", ""}));
    CHECK(MemoSoil.text == "1\xB6 2\r\n3");
}

TEST_CASE("a mark behind the last note stays there")
{
    for (const std::string& notes :
         {Lines({"one\xB6", "", "", "", "", "", "", "", "", ""}),
          Lines({"one\xB6", "two\xB6", "\xB6", "", "", "", "", "", "", ""}),
          Lines({"1\xB6", "2", "", "", "", "", "", "", "", ""}), Lines({"1", "", "", "", "", "", "", "", "", ""}),
          Lines({"1\xB6", "2\xB6", "3\xB6", "4\xB6", "5\xB6", "6\xB6", "7\xB6", "8\xB6", "9\xB6", "10\xB6"})}) {
        CAPTURE(notes);
        CHECK(SavedNotes(notes) == notes);
    }
}

TEST_CASE("empty paragraphs at the end of the notes are there again with the next opening")
{
    Open(cells + Lines({"", "", "", "", "", "", "", "", "", ""}));
    MemoSoil.text = "one\r\n\r\ntwo\r\n\r\n\r\n";
    const std::string saved = Saved();
    Open(saved);
    CHECK(MemoSoil.text == "one\r\n\r\ntwo\r\n\r\n\r\n");
    CHECK(Saved() == saved);
}

TEST_CASE("a mark within a line of the notes stays")
{
    Open(cells + Lines({"1\xB6 2", "", "", "", "", "", "", "", "", ""}));
    CHECK(MemoSoil.text == "1\xB6 2");
}

TEST_CASE("cells and notes are saved right-trimmed, short notes are padded with empty lines")
{
    Open(cells + Lines({"", "", "", "", "", "", "", "", "", ""}));
    SS1.Cell(SoilMainTitle, 1) = "  Main  ";
    MemoSoil.text = "first \r\nsecond";
    CHECK(Saved() == Lines({"B-1.BOR", "1,3,16", "Limit 1", "", "N", "  Main", "First", "Second", "", "first \xB6",
                            "second", "", "", "", "", "", "", "", ""}));
}

TEST_CASE("a long note is cut where its box wraps it")
{
    Open(cells + Lines({"", "", "", "", "", "", "", "", "", ""}));
    MemoSoil.widthTwips = 2000;
    MemoSoil.text = "several words that do not fit in one line of a box as narrow as that\r\nend";
    const std::vector<Text> lines = MemoSoil.DisplayLines();
    REQUIRE(lines.size() > 2);
    const std::string saved = Saved();
    CHECK(saved.find("several words") != Text::npos);
    CHECK(SoilData.notes[1] == lines[0]);
    CHECK(SoilData.notes[int(lines.size()) - 1] == lines[lines.size() - 2] + "\xB6");
}

TEST_CASE("eleven note lines block the save, and the file stays")
{
    Open(cells + Lines({"", "", "", "", "", "", "", "", "", ""}));
    FileChanged = 1;
    MemoSoil.text = "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8\r\n9\r\n10\r\n11";
    const std::string before = ReadScratch("A.SOI");
    CHECK_FALSE(SaveSoilFile());
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Your notes exceed 10 lines.  You must reduce the number of lines by  1.");
    CHECK(Messages[0].icon == Exclamation);
    CHECK(ReadScratch("A.SOI") == before);
    CHECK(FileChanged == 1);
    MemoSoil.text += "\r\n12\r\n13";
    CHECK_FALSE(SaveSoilFile());
    CHECK(Messages[1].words == "Your notes exceed 10 lines.  You must reduce the number of lines by  3.");
}

TEST_CASE("a soil table's file that ends early is error 62, and shows what was read and nothing of the one before")
{
    Open(cells + Lines({"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}));
    Open(Lines({"B-2.BOR", "2"}));
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 62 in OpenSoilFile.  Please contact Norvane");
    CHECK(SS1.Cell(SoilBoringFile, 1) == "B-2.BOR");
    CHECK(SS1.Cell(SoilLabel1, 1) == "");
    CHECK(MemoSoil.text == "");
}

TEST_CASE("a soil table that is not there, or cannot be written, is told")
{
    FileName = Scratch("NONE.SOI");
    OpenSoilFile();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 53 in OpenSoilFile.  Please contact Norvane");
    FileName = Scratch("nowhere/A.SOI");
    CHECK_FALSE(SaveSoilFile());
    REQUIRE(Messages.size() == 2);
    CHECK(Messages[1].words == "Error 76 in SaveSoilFile.  Please contact Norvane");
}

TEST_CASE("clearing empties the nine cells and the ten notes")
{
    Open(cells + Lines({"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}));
    ClearSoilArrays();
    FillSoilForm();
    for (int row = 1; row <= MaxSoilCells; ++row)
        CHECK(SS1.Cell(row, 1) == "");
    CHECK(MemoSoil.text == "");
    CHECK(SoilData.notes[10] == "");
}

TEST_CASE("the rows of the soil form bear their labels")
{
    frmSoil::LabelBoxes();
    CHECK(SS1.title == "Report Information");
    CHECK(SS1.rowHeadings == std::vector<Text>{"", "Boring File", "Parameter #'s", "Standard Label 1",
                                               "Standard Label 2", "Print Graph (Y/N)", "Main Title", "Title 1",
                                               "Title 2", "Title 3"});
}

TEST_CASE("the notes box opens at 6800 twips and its adjustment, at most 10000")
{
    DeviceConfig.TextAdjust[5] = -150;
    SizeMemo();
    CHECK(MemoSoil.widthTwips == 6650);
    DeviceConfig.TextAdjust[5] = 4000;
    SizeMemo();
    CHECK(MemoSoil.widthTwips == 10000);
}

TEST_CASE("the buttons of the notes box change width and adjustment by 50, without a limit")
{
    DeviceConfig.TextAdjust[5] = 3200;
    SizeMemo();
    cmdAdj6();
    CHECK(MemoSoil.widthTwips == 10050);
    CHECK(DeviceConfig.TextAdjust[5] == 3250);
    CHECK(DeviceChanged == 1);
    CHECK(FileChanged == 1);
    DeviceChanged = FileChanged = 0;
    cmdAdj5();
    cmdAdj5();
    CHECK(MemoSoil.widthTwips == 9950);
    CHECK(DeviceConfig.TextAdjust[5] == 3150);
    CHECK(DeviceChanged == 1);
    CHECK(FileChanged == 1);
    CHECK(Messages.empty());
}

TEST_CASE("each of the nine cells and ten notes goes from the file into the form and from there into the file")
{
    const std::string typed = Lines({"a", "b", "c", "d", "e", "f", "g", "h", "i"});
    Open(typed + Lines({"1\xB6", "2\xB6", "3\xB6", "4\xB6", "5\xB6", "6\xB6", "7\xB6", "8\xB6", "9\xB6", "10"}));
    for (int row = 1; row <= 9; ++row) {
        CHECK(SS1.Cell(row, 1) == Text(1, char('a' + row - 1)));
        SS1.Cell(row, 1) = "new " + std::to_string(row);
    }
    MemoSoil.text = "A\r\nB\r\nC\r\nD\r\nE\r\nF\r\nG\r\nH\r\nI\r\nJ";
    CHECK(Saved() == Lines({"new 1", "new 2", "new 3", "new 4", "new 5", "new 6", "new 7", "new 8", "new 9", "A\xB6",
                            "B\xB6", "C\xB6", "D\xB6", "E\xB6", "F\xB6", "G\xB6", "H\xB6", "I\xB6", "J"}));
}
