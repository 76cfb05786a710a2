// checkview_test.cpp -- a check list in order and in words, and without what the project does not wish to see.
#include "tools/checkview.h"

#include "boring/boringboxes.h"
#include "session/projectconfig.h"
#include "session/session.h"
#include "testing.h"

#include <set>

static CheckEntry Entry(const char* kind, const Text& words, const Grid* grid = nullptr, int row = 1, int column = 1)
{
    CheckEntry entry;
    entry.Kind = kind;
    entry.Words = words;
    entry.InGrid = grid;
    entry.Row = row;
    entry.Column = column;
    return entry;
}

static Text InOrder(const std::vector<CheckEntry>& entries)
{
    Text words;
    for (const CheckEntry& entry : entries)
        words += entry.Words;
    return words;
}

TEST_CASE("every kind has a key of its own, in small letters, and words for the menu")
{
    std::set<Text> keys;
    for (const CheckKind& kind : CheckKinds()) {
        CHECK_MESSAGE(keys.insert(kind.key).second, kind.key);
        CHECK_MESSAGE(Text(kind.key).find_first_not_of("abcdefghijklmnopqrstuvwxyz-") == Text::npos, kind.key);
        CHECK_MESSAGE(Text(kind.words).size() > 5, kind.key);
    }
}

TEST_CASE("the gravest entries come first, and those of one weight by their place")
{
    const Grid one(9, 9), other(9, 9);
    const std::vector<CheckEntry> found = {Entry("soil-rows", "f", &one),         Entry("sheet-legend", "d", &one, 5),
                                           Entry("sheet-legend", "e", &other, 1), Entry("sheet-order", "c", &one, 2, 3),
                                           Entry("sheet-frame", "b", &one, 2, 1), Entry("sheet-code", "a", &other, 9)};
    CHECK(InOrder(ListForProject(found).Entries) == "abcdef");
    // What is found at one place keeps its order.
    CHECK(InOrder(ListForProject({Entry("sheet-order", "x"), Entry("sheet-frame", "y"), Entry("sheet-order", "z")})
                      .Entries) == "xyz");
}

TEST_CASE("kinds that the project has switched off are counted and not shown, unless all is asked for")
{
    ProjectPath = ScratchFolder();
    const std::vector<CheckEntry> found = {Entry("sheet-order", "a"), Entry("soil-rows", "b"),
                                           Entry("sheet-order", "c")};
    CHECK(ListForProject(found).Hidden == 0);
    CHECK(SwitchKind("sheet-order", true));
    CHECK(KindIsOff("sheet-order"));
    CHECK_FALSE(KindIsOff("soil-rows"));
    CheckList list = ListForProject(found);
    CHECK(InOrder(list.Entries) == "b");
    CHECK(list.Hidden == 2);
    list = ListForProject(found, true);
    CHECK(list.Entries.size() == 3);
    CHECK(list.Hidden == 0);
}

TEST_CASE("switching a kind off and on again writes one line of project.cfg, and keeps keys of other programs in it")
{
    ProjectPath = ScratchFolder();
    WriteScratch("project.cfg", "style = plain\r\ncheck.off = Later-Kind,SAVE\r\n");
    CHECK(KindIsOff("save"));
    CHECK(SwitchKind("save", true));
    CHECK(ReadScratch("project.cfg") == "style = plain\r\ncheck.off = Later-Kind,SAVE\r\n");
    CHECK(SwitchKind("sheet-order", true));
    CHECK(ReadScratch("project.cfg") == "style = plain\r\ncheck.off = Later-Kind, SAVE, sheet-order\r\n");
    CHECK(SwitchKind("save", false));
    CHECK(SwitchKind("save", false));
    CHECK(ReadScratch("project.cfg") == "style = plain\r\ncheck.off = Later-Kind, sheet-order\r\n");
    CHECK_FALSE(KindIsOff("save"));
    ProjectPath = Scratch("nowhere");
    CHECK_FALSE(SwitchKind("gis-order", true));
    CHECK(Messages.size() == 1);
}

TEST_CASE("counts and hidden entries are told in words")
{
    std::vector<CheckEntry> entries;
    CHECK(CountsInWords(entries) == "");
    entries = {Entry("sheet-code", ""), Entry("sheet-code", ""), Entry("soil-rows", "")};
    CHECK(CountsInWords(entries) == "2 errors, 1 remark");
    entries.push_back(Entry("sheet-order", ""));
    CHECK(CountsInWords(entries) == "2 errors, 1 warning, 1 remark");
    CHECK(HiddenInWords(0) == "");
    CHECK(HiddenInWords(1) == "1 more is not shown, by the project's choice");
    CHECK(HiddenInWords(3) == "3 more are not shown, by the project's choice");
    CHECK(EntryInWords(Entry("soil-rows", "words")) == "Remark: words");
    CHECK(EntryInWords(Entry("no such kind", "words")) == "Warning: words");
    CHECK(KindInWords(Entry("gis-place", "")) == "Borings of a layer table without coordinates or elevation");
    CHECK(KindInWords(Entry("no such kind", "")) == "");
}

TEST_CASE("a place is told by the labels of its box")
{
    Grid grid(3, 2);
    grid.title = "Table";
    grid.headings = {"", "First", "Second "};
    CHECK(PlaceInWords(Entry("", "", &grid, 3, 2)) == "Table, row 3, Second");
    grid.rowHeadings = {"", "Top", " Middle"};
    grid.headings.clear();
    CHECK(PlaceInWords(Entry("", "", &grid, 2, 1)) == "Table, Middle");
    CHECK(PlaceInWords(Entry("", "", &grid, 3, 1)) == "Table, row 3");
    CheckEntry entry;
    CHECK(PlaceInWords(entry) == "");
    entry.Box = 8;
    frmBorinput::SSLith.title = "Lithology";
    CHECK(PlaceInWords(entry).starts_with("Lithology, row 1"));
    frmBorinput::MemoDes.text = "@1\r\nclay\r\n@2";
    entry.Box = 9;
    entry.TextBox = "MemoDes";
    CHECK(PlaceInWords(entry) == "Descriptions, line 1");
    entry.Place = 8; // behind "@1" and "clay", a line end each
    CHECK(PlaceInWords(entry) == "Descriptions, line 3");
    entry.TextBox = "Text1";
    CHECK(PlaceInWords(entry) == "Boring Name");
    entry.TextBox = "MemoBottNotes";
    CHECK(PlaceInWords(entry) == "General Notes");
}
