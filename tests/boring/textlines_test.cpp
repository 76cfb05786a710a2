// textlines_test.cpp -- from text boxes to stored lines.
#include "boring/textlines.h"

#include "testing.h"

#include "boring/boringboxes.h"
#include "session/session.h"

static std::vector<Text> Buffer()
{
    std::vector<Text> lines;
    for (int i = 1; i <= LineCount; ++i)
        lines.push_back(LineBuffer[i]);
    return lines;
}
using TextLines = std::vector<Text>;

static Text Paragraphs(int count)
{
    Text text;
    for (int i = 1; i <= count; ++i)
        text += std::to_string(i) + CrLf;
    return text;
}

TEST_CASE("a line that ends a paragraph carries the mark, a wrapped one does not")
{
    frmBorinput::MemoDes = {"MMMM MMMM\r\nM", 255 + 800, 1550}; // 0.516 inches: five M's
    Text2Wrap32(1);
    CHECK(Buffer() == TextLines{"MMMM ", "MMMM\xB6", "M"});
}

TEST_CASE("a paragraph end at the end of the box: the last line carries the mark and no line follows it")
{
    frmBorinput::MemoDes.text = "a\r\n";
    Text2Wrap32(1);
    CHECK(Buffer() == TextLines{"a\xB6"});
}

TEST_CASE("an empty paragraph is stored as the mark alone, an empty box as no line")
{
    frmBorinput::MemoDes.text = "a\r\n\r\nb";
    Text2Wrap32(1);
    CHECK(Buffer() == TextLines{"a\xB6", "\xB6", "b"});
    frmBorinput::MemoDes.text = "";
    Text2Wrap32(1);
    CHECK(LineCount == 0);
    CHECK(LineBuffer[1] == "");
}

TEST_CASE("each kind is a text box of its own")
{
    frmBorinput::MemoDes.text = "description";
    frmBorinput::MemoWcon.text = "well";
    frmBorinput::MemoRemarks.text = "remark";
    frmSoil::MemoSoil.text = "soil";
    frmBorinput::MemoBottNotes.text = "general";
    const char* const expected[] = {"general", "description", "well", "remark", "soil", "general", "general"};
    for (int kind = 0; kind <= 6; ++kind) {
        Text2Wrap32(kind);
        CHECK(Buffer() == TextLines{expected[kind]});
    }
}

TEST_CASE("text beyond line 1000 is dropped without a word")
{
    for (int i = 0; i < 1200; ++i)
        frmBorinput::MemoDes.text += "M ";
    frmBorinput::MemoDes.widthTwips = 300;
    Text2Wrap32(1);
    CHECK(LineCount == 1000);
    CHECK(LineBuffer[1000] == "M ");
    CHECK(Messages.empty());
}

TEST_CASE("marks end with the 600th paragraph")
{
    frmBorinput::MemoDes.text = Paragraphs(605);
    Text2Wrap32(1);
    CHECK(LineCount == 605);
    CHECK(LineBuffer[600] == "600\xB6");
    CHECK(LineBuffer[601] == "601");
    CHECK(LineBuffer[605] == "605");
}

TEST_CASE("a text is cut at CR LF, and closed lines count like an open last one")
{
    Text2Array("a\r\n\r\nb");
    CHECK(Buffer() == TextLines{"a", "", "b"});
    Text2Array("a\r\n\r\nb\r\n");
    CHECK(Buffer() == TextLines{"a", "", "b"});
    Text2Array("a\rb\nc");
    CHECK(Buffer() == TextLines{"a\rb\nc"});
}

TEST_CASE("blank lines at the end are not counted, and nothing is left of an earlier text")
{
    Text2Array("1\r\n2\r\n3\r\n4");
    Text2Array("a\r\n  \r\n\r\n");
    CHECK(Buffer() == TextLines{"a"});
    CHECK(LineBuffer[3] == "");
    Text2Array("");
    CHECK(LineCount == 0);
    Text2Array("\t\r\n"); // a tab is text
    CHECK(LineCount == 1);
}

TEST_CASE("lines beyond number 400 are dropped but counted, and then blank ones at the end count too")
{
    Text2Array(Paragraphs(400) + "\r\n");
    CHECK(LineCount == 401);
    CHECK(LineBuffer[400] == "400");
    CHECK(LineBuffer[401] == "");
    Text2Array(Paragraphs(399) + "\r\n");
    CHECK(LineCount == 399);
}

TEST_CASE(
    "more lines than a 16-bit count holds is failure 6 in Text2Array; the first 400 are there, and the count is full")
{
    Text2Array(Paragraphs(32767));
    CHECK(Messages.empty());
    CHECK(LineCount == 32767);
    for (const int lines : {32768, 40000}) {
        Messages.clear();
        Text2Array(Paragraphs(lines));
        REQUIRE(Messages.size() == 1);
        CHECK(Messages[0].words == "Error 6 in Text2Array.  Please contact Norvane");
        CHECK(LineCount == 32767);
        CHECK(LineBuffer[1] == "1");
        CHECK(LineBuffer[400] == "400");
        CHECK(LineBuffer[401] == "");
    }
}

TEST_CASE("an imported file is appended to the description, each line closed, and nothing else is touched")
{
    frmBorinput::MemoDes.text = "as typed";
    WriteScratch("import.txt", "one\n\ntwo");
    DialogResult = Scratch("import.txt");
    ImportDesc();
    CHECK(frmBorinput::MemoDes.text == "as typedone\r\n\r\ntwo\r\n");
    CHECK(FileChanged == 0);
    CHECK(Messages.empty());
}

TEST_CASE("an import of a file that is not there is reported and leaves the description")
{
    frmBorinput::MemoDes.text = "as typed";
    DialogResult = Scratch("nothing.txt");
    ImportDesc();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 53 in ImportDesc.  Please contact Norvane");
    CHECK(frmBorinput::MemoDes.text == "as typed");
}

// A word whose width is above the first number and not above the second.
static Text WordOfWidth(int64_t above, int64_t most)
{
    // Widths of letters are near multiples of one another, and those of these two signs are not.
    for (int quotes = 0; quotes < 20; ++quotes)
        for (int bars = 0; bars < 20; ++bars)
            for (int64_t a = 0; a < 100; ++a) {
                const int64_t width = quotes * AdvanceWidth('"') + bars * AdvanceWidth('|') + a * AdvanceWidth('a');
                if (width > above && width <= most)
                    return Text(size_t(quotes), '"') + Text(size_t(bars), '|') + Text(size_t(a), 'a');
            }
    return "";
}

TEST_CASE("before any boring or layout has set a width, each text box breaks its lines where its designed width does")
{
    struct Designed {
        Memo& box;
        int kind, twips, twipsPerInch, points;
    };
    const Designed boxes[] = {{frmBorinput::MemoDes, 1, 4205, 1550, 8},
                              {frmBorinput::MemoWcon, 2, 3249, 1750, 7},
                              {frmBorinput::MemoRemarks, 3, 2223, 1750, 7},
                              {frmSoil::MemoSoil, 4, 6800, 1550, 8},
                              {frmBorinput::MemoBottNotes, 5, 8010, 1750, 7}};
    for (const Designed& one : boxes) {
        CAPTURE(one.kind);
        const auto room = [&one](int more) { return BoxRoom(one.twips + more, one.twipsPerInch, one.points); };
        const auto lines = [&one](const Text& word) {
            one.box.text = word;
            Text2Wrap32(one.kind);
            return int(LineCount);
        };
        // What a box of two twips less would not hold, and what only a box of two twips more would.
        const Text fits = WordOfWidth(room(-2), room(0)), tooWide = WordOfWidth(room(0), room(2));
        REQUIRE_FALSE(fits.empty());
        REQUIRE_FALSE(tooWide.empty());
        CHECK(lines(fits) == 1);
        CHECK(lines(tooWide) == 2);
    }
}
