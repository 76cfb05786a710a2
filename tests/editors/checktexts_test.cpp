// checktexts_test.cpp -- markers and their layers, text that is not printed or has no room, letters.
#include "checkedboring.h"

#include "boring/boringdata.h"
#include "boring/textlines.h"
#include "editors/borinput.h"
#include "editors/fillform.h"
#include "session/session.h"

using namespace frmBorinput;

// The place in a text box of the only entry.
static int PlaceOf(const Text& words, const Text& box)
{
    const std::vector<CheckEntry> found = CheckBoring();
    REQUIRE(found.size() == 1);
    CHECK(found[0].Words == words);
    CHECK(found[0].Box == 9);
    CHECK(found[0].TextBox == box);
    return found[0].Place;
}

TEST_CASE("markers that are missing or name no contact stand in the list with their line")
{
    GoodBoring();
    MemoDes.text = "@1\r\nclay\r\n@3\r\n";
    CHECK(PlaceOf("In the description text box, the @2 marker is missing.  The @ markers used to place descriptions "
                  "must be entered in order starting with @1.  Enter a marker as a place holder, even if you have no "
                  "text for a contact box. ",
                  "MemoDes") == 8);
    MemoDes.text = "@1\r\n@2\r\n@3\r\n@4\r\n";
    const int place =
        PlaceOf("Warning: In your description text, you have entered a reference to a contact box, @4" +
                    Text(1, ParagraphMark) +
                    ", that does not exist.  Remember that ''@'' plus a number is used to place text at the top of a "
                    "contact box, and ''-'' plus a number is used to place text at a depth.",
                "MemoDes");
    CHECK(place == 9);
}

TEST_CASE("text of more lines than its box holds is flagged before a save refuses it")
{
    GoodBoring();
    for (int line = 1; line <= 61; ++line)
        MemoWcon.text += "x\r\n";
    CHECK(PlaceOf("Your notes exceed 60 lines, by 1.", "MemoWcon") == 183);
    MemoWcon.text = "";
    for (int line = 1; line <= 12; ++line)
        MemoBottNotes.text += "x\r\n";
    PlaceOf("Your general notes exceed 10 lines, by 2.", "MemoBottNotes");
}

TEST_CASE("text that has no room above the end of the log, where it is not printed, is flagged")
{
    GoodBoring();
    // 20 feet on 6.7 inches: the last unit of 7.5 feet is 2.51 inches high, room for 20 lines.
    for (int line = 1; line <= 20; ++line)
        MemoDes.text += "x\r\n";
    CHECK(CheckBoring().empty());
    MemoDes.text += "x\r\n";
    CHECK(PlaceOf("The text of contact 3 does not fit above the end of the log and is not printed.", "MemoDes") == 16);
    // A layout with a bottom row has less room.
    WriteScratch("short.lay", Lines({"0", "0", "0", "5", "0", "0", "0", "0", "0", "0", "0", "0", "0"}));
    cmbLayFile = "short";
    for (int line = 1; line <= 2; ++line)
        MemoDes.text.resize(MemoDes.text.size() - 3);
    CHECK(CheckBoring().size() == 1);
    MemoDes.text.resize(MemoDes.text.size() - 3);
    CHECK(CheckBoring().empty());
}

TEST_CASE("text that pushes its unit past the foot of a page is flagged")
{
    GoodBoring();
    SSScale.Cell(1, 1) = "25";
    Text text = "@1\r\n";
    for (int line = 1; line <= 57; ++line)
        text += "x\r\n";
    MemoDes.text = text;
    CHECK(PlaceOf("The descriptions run past the foot of page 1 with the text of contact 1.", "MemoDes") == 0);
}

TEST_CASE("a marker of no contact is flagged also where a save looks at its first digit only")
{
    GoodBoring();
    Type("@1\r\n@2\r\n@3\r\n@20\r\nlost");
    CHECK(CountOf("marker-none") == 1);
    const std::vector<CheckEntry> found = CheckBoring();
    REQUIRE(found.size() == 2); // a save warns that @4 is missing
    CHECK(found[0].Words == "Descriptions: there is no contact @20, and its text is not printed.");
    CHECK(found[0].Place == 9);
    Type("@1\r\n@2\r\n@3\r\n@x\r\nlost");
    CHECK(CountOf("marker-none") == 1);
    SSLith.Cell(20, 1) = "21"; // a contact 20 in row 20
    SSScale.Cell(1, 1) = "25";
    Type("@1\r\n@20\r\nthere");
    CHECK(CountOf("marker-none") == 0);
}

TEST_CASE("markers below other text are lines of text, and are told once")
{
    GoodBoring();
    Type("Brown\r\n@1\r\nclay\r\n@2\r\nsand\r\n");
    CHECK(CountOf("marker-none") == 1);
    CHECK(Has("Descriptions: they do not begin with @1, so that @1 is printed as a line of text and leads to no layer.",
              9, 1, 1));
    Type("MANUAL\r\n@1\r\nclay\r\n@2\r\nsand\r\n");
    CHECK(Clean());
    Type(".L=0\r\nclay @ 20 percent\r\n");
    CHECK(Clean());
}

TEST_CASE("words on a marker's own line are not printed, and are flagged")
{
    GoodBoring();
    Type("@1 CLAY, brown\r\nsoft\r\n@2\r\nsand\r\n@3");
    CHECK(Only() == "text-lost: Descriptions: \"@1 CLAY, brown\": what stands behind the number is not printed; text "
                    "begins on the next line.");
    CHECK(Cell() == "MemoDes at 0");
    Type("@1\r\nsoft\r\n-3 lost water\r\nall of it\r\n@2\r\nsand\r\n@3");
    CHECK(Only().starts_with("text-lost: Descriptions: \"-3 lost water\": what stands"));
    CHECK(Cell() == "MemoDes at 8");
    Type("@ 1\r\nsoft\r\n-3\r\nlost water\r\n@2 \r\nsand\r\n@3");
    CHECK(Clean());
    SSRepParts.Cell(2, 1) = "remarks"; // no descriptions are drawn
    Type("@1 CLAY\r\n@2\r\n@3");
    CHECK(Clean());
}

TEST_CASE("a line that begins with a stroke and no depth is flagged, but for text with dot commands")
{
    GoodBoring();
    Type("@1\r\nclay\r\n- with gravel\r\nsoft\r\n@2\r\n@3");
    CHECK(Only() == "text-lost: Descriptions: \"- with gravel\" begins with \"-\", the mark of a depth, and has none: "
                    "the line is not printed, and what follows stands at 0.");
    CHECK(Cell() == "MemoDes at 8");
    Type(".L=0\r\nclay\r\n- with gravel\r\nsoft");
    CHECK(Clean());
}

TEST_CASE("a mark of a depth as the last line of all, which ends the drawing in an error, is flagged")
{
    GoodBoring();
    Type("@1\r\n@2\r\n@3\r\n-5\r\n");
    CHECK(Only() == "text-lost: Descriptions: the last line begins with \"-\" and has no text below it, which ends the "
                    "drawing in an error.");
    CHECK(Cell() == "MemoDes at 9");
    Type("@1\r\n@2\r\n@3\r\n-5\r\nwater");
    CHECK(Clean());
    Type("@1\r\n@2\r\n@3\r\n-5\r\nwater\r\n-6\r\n"); // within text at a depth
    CHECK(Clean());
}

TEST_CASE("commands that a description does not know are flagged, dots of a text are not")
{
    GoodBoring();
    Type(".L=0\r\n.X 5\r\nclay\r\n");
    CHECK(Only() == "text-lost: Descriptions: \".X 5\" is no command, and is not printed.");
    Type(".T=1\r\n.l 0\r\nclay\r\n..and more\r\n.NF\r\n.D=3U4\r\nx\r\n.S 6\r\ny");
    CHECK(Clean());
}

TEST_CASE("remarks before their first depth are not printed, and are flagged where the log has remarks")
{
    GoodBoring();
    MemoRemarks.text = "\r\nLost water\r\n-5\r\nat once";
    CHECK(Clean());
    SSRepParts.Cell(4, 1) = "remarks";
    SSRepParts.Cell(4, 2) = "1";
    CHECK(Only() == "text-lost: Remarks: \"Lost water\" stands before the first mark, and is not printed.");
    CHECK(Cell() == "MemoRemarks at 1");
    MemoRemarks.text = "-5\r\nat once";
    CHECK(Clean());
    MemoRemarks.text = "-5 lost water\r\nat once";
    CHECK(Only().starts_with("text-lost: Remarks: \"-5 lost water\": what stands"));
}

TEST_CASE("a client text that a save keeps whole is not flagged, with empty lines behind it or without")
{
    GoodBoring();
    txtClient = "1\r\n2\r\n3\r\n4\r\n5";
    CHECK(Clean());
    txtClient += "\r\n";
    CHECK(Clean());
    txtClient += " \r\n\r\n";
    CHECK(Clean());
    txtClient = "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n";
    CHECK(Only() == "lines: The client information exceeds 5 lines, by 1.");
    CHECK(Cell() == "txtClient at 18");
    txtClient = "1\r\n\r\n\r\n\r\n\r\n\r\n7";
    CHECK(Only() == "lines: The client information exceeds 5 lines, by 2.");
}

TEST_CASE("text that fits on the page before a page break is not looked for on the next one")
{
    GoodBoring();
    Fill(SSScale, {{"40"}, {"5"}, {"20"}});
    Fill(SSLith, {{"5", "CL"}, {"35", "SM"}, {"40", "F0"}});
    Text text = "@1\r\nclay\r\n@2\r\n";
    for (int line = 1; line <= 40; ++line) // 4.84 inches: there is room above the break, and none below it
        text += "x\r\n";
    Type(text + "@3\r\nend");
    CHECK(Clean());
    for (int line = 1; line <= 20; ++line)
        text += "x\r\n";
    Type(text + "@3\r\nend"); // 7.24 inches have none anywhere: the next page takes them, to its foot
    CHECK(CountOf("text-room") > 0);
}

TEST_CASE("an unchanged boring is looked at by the lines of its file, a changed one by those that a save will store")
{
    GoodBoring();
    // Wrapped elsewhere: a line begins with a stroke that the box has in the middle of a line.
    BoringData.Des[1] = "@1\xB6";
    BoringData.Des[2] = "joints dip 8 ";
    BoringData.Des[3] = "- 15 degrees\xB6";
    BoringData.Des[4] = "@2\xB6";
    BoringData.Des[5] = "@3\xB6";
    BoringData.DesCount = 5;
    MemoDes.text = FlowingText(BoringData.Des, BoringData.DesCount);
    CHECK(Only().starts_with("text-lost: Descriptions: \"- 15 degrees\" begins with"));
    CHECK(Cell() == "MemoDes at 16");
    FileChanged = 1;
    CHECK(Clean());
}

TEST_CASE("characters that are no letters of the code page are flagged with their place, in cells and in texts")
{
    for (const char letter : {'\x81', '\x8D', '\x8F', '\x90', '\x9D', '\x1A', '\x7F', '\n', '\t'}) {
        GoodBoring();
        SSInfo.title = "Boring/Title Information";
        SSInfo.Cell(3, 2) = Text("ab") + letter;
        CHECK(Only() == "letters: Boring/Title Information, row 3: the character of code " +
                            PlainNumber(int(static_cast<unsigned char>(letter))) + " is no letter of the code page.");
        CHECK(Cell() == "1 3,2");
    }
    GoodBoring();
    SSInfo.Cell(3, 2) = "\x80 \xB5 \xE4 \x9F \xB6 \xA0";
    Text1 = "B-\xD6";
    CHECK(Clean());
    Text1 = "B-\x81";
    CHECK(Only() == "letters: Boring Name: the character of code 129 is no letter of the code page.");
    Text1 = "B";
    MemoRemarks.text = "a\r\nb\r\nc\x8F";
    CHECK(Cell() == "MemoRemarks at 5");
    MemoRemarks.text = "a\r\nb";
    txtClient = "one\r\ntwo\x9D";
    CHECK(Cell() == "txtClient at 7");
}

TEST_CASE("the mark that ends a paragraph in the file is told where it stands in a text")
{
    GoodBoring();
    MemoBottNotes.text = "see\r\nthe \xB6 sign";
    CHECK(Only() == "text-lost: General notes: the character \xB6 ends a line when it is printed, and what stands "
                    "behind it is lost.");
    CHECK(Cell() == "MemoBottNotes at 8");
}
