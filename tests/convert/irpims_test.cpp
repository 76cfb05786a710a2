// irpims_test.cpp -- borings as the three IRPIMS tables.
#include "convert/irpims.h"

#include "convert/converted.h"

#include "logrender/boringtext.h"
#include "run/batchrun.h"
#include "session/files.h"
#include "session/platform.h"

static const Text done = "Created TIMBORE.TXT, TIMLITH.TXT, TIMCONS.TXT";

// The fields of a line of a table.
static std::vector<Text> Fields(const Text& table, int line)
{
    LineReader in(Scratch(table));
    in.Skip(line - 1);
    std::vector<Text> fields;
    Text rest = in.Line();
    for (size_t at = rest.find('|'); at != Text::npos; at = rest.find('|')) {
        fields.push_back(rest.substr(0, at));
        rest = rest.substr(at + 1);
    }
    fields.push_back(rest);
    return fields;
}

static void Export(std::initializer_list<std::string_view> files)
{
    CopyData("irpims");
    lastDir = ScratchFolder();
    Run(Export2IRPIMS, files);
}

TEST_CASE("borings become the three tables, byte for byte the kept ones, and older ones are replaced")
{
    WriteScratch("timlith.txt", "older");
    Export({"B-1.BOR", "B-2.BOR", "B-3.BOR"});
    CHECK(Told() == std::vector<Text>{done});
    for (const char* table : {"timbore.txt", "timlith.txt", "timcons.txt"}) {
        INFO(table);
        CHECK(ReadScratch(table) == ConvertData(Text("irpims/kept/") + table));
    }
}

TEST_CASE("each line has its fields in order: 15, 10 and 18 of them")
{
    Export({"B-1.BOR"});
    CHECK(Fields("timbore.txt", 1) == std::vector<Text>{"SITE8", "", "B-1", "LOC7", "con13", "el11", "el12", "KRLN",
                                                        "NA", "20", "GEO9", "6/1/99", "6/3/99", "met15", "NA"});
    CHECK(Fields("timlith.txt", 1) ==
          std::vector<Text>{"SITE8", "", "B-1", "1", "4.5", "FB", "", "", "Fill, sand and -3.5gravel,moist", ""});
    CHECK(Fields("timcons.txt", 1) == std::vector<Text>{"SITE8", "", "B-1", "B-1", "LOC7", "", "12.5", "103.2",
                                                        "6/1/99,6/3/99", "", "cas18", "", "", "", "20", "con13",
                                                        "met15", "GEO9"});
}

TEST_CASE("a date without a comma is both dates")
{
    Export({"B-2.BOR"});
    CHECK(Fields("timbore.txt", 1)[11] == "6/1/99");
    CHECK(Fields("timbore.txt", 1)[12] == "6/1/99");
}

TEST_CASE("the depth of a boring is that of its last contact, without the blanks before it")
{
    CopyData("irpims");
    lastDir = ScratchFolder();
    BoringText boring;
    boring.Lith = {{"1", "SM"}, {"  12.5", "CL"}};
    WriteBoring("B-9.BOR", boring);
    Run(Export2IRPIMS, {"B-9.BOR"});
    CHECK(Fields("timbore.txt", 1)[9] == "12.5");
}

TEST_CASE("a boring without contacts has an empty depth and no lines of lithology")
{
    Export({"B-3.BOR"});
    CHECK(Fields("timbore.txt", 1)[9] == "");
    CHECK(ReadScratch("timlith.txt") == "");
}

TEST_CASE("a description of 150 characters is cut to 140, and one of 70 is one field")
{
    Export({"B-1.BOR"});
    CHECK(Fields("timlith.txt", 2)[8] == Text(70, 'x'));
    CHECK(Fields("timlith.txt", 2)[9] == Text(70, 'x'));
    CHECK(Fields("timlith.txt", 3)[8] == Text(70, 'z'));
    CHECK(Fields("timlith.txt", 3)[9] == "");
    CHECK(Fields("timlith.txt", 4)[8] == "");
}

TEST_CASE("descriptions by depth are found by the number, and the first block that fits counts")
{
    Export({"B-2.BOR"});
    CHECK(Fields("timlith.txt", 1)[8] == "first");
    CHECK(Fields("timlith.txt", 2)[8] == Text(70, 'w'));
    CHECK(Fields("timlith.txt", 2)[9] == "w");
    CHECK(Fields("timlith.txt", 3)[8] == "");
}

TEST_CASE("the first line of a description alone decides whether it goes by contacts or by depths")
{
    CopyData("irpims");
    lastDir = ScratchFolder();
    BoringText boring;
    boring.Lith = {{"1", "SM"}, {"2", "CL"}};
    const auto descriptions = [&boring](std::vector<Text> lines) {
        boring.Des = lines;
        WriteBoring("B-9.BOR", boring);
        Run(Export2IRPIMS, {"B-9.BOR"});
        return std::vector<Text>{Fields("timlith.txt", 1)[8], Fields("timlith.txt", 2)[8]};
    };
    const std::vector<Text> contacts{"@1\xB6", "sand\xB6", "@2\xB6", "clay\xB6"};
    const std::vector<Text> depths{".L=2\xB6", "depth two\xB6", ".l=1\xB6", "depth one\xB6"};
    const auto joined = [](std::vector<Text> first, const std::vector<Text>& rest) {
        first.insert(first.end(), rest.begin(), rest.end());
        return first;
    };
    CHECK(descriptions(contacts) == std::vector<Text>{"sand", "clay"});
    CHECK(descriptions(depths) == std::vector<Text>{"depth one", "depth two"});
    // Both kinds in one text: what stands first counts, and the lines of the other kind are text.
    CHECK(descriptions(joined(depths, contacts)) == std::vector<Text>{"depth one@1sand@2clay", "depth two"});
    CHECK(descriptions(joined(contacts, depths)) == std::vector<Text>{"sand", "clay.L=2depth two.l=1depth one"});
    // A line of neither kind in front: by depths, although the next one is a contact's.
    CHECK(descriptions(joined({"remark\xB6"}, contacts)) == std::vector<Text>{"", ""});
    CHECK(descriptions(joined({"", "@1\xB6", "sand\xB6"}, depths)) == std::vector<Text>{"depth one", "depth two"});
}

TEST_CASE("the greatest end of the inner layers counts as a number, 0 without layers")
{
    Export({"B-1.BOR", "B-2.BOR", "B-3.BOR"});
    CHECK(Fields("timcons.txt", 1)[14] == "20");
    CHECK(Fields("timcons.txt", 2)[14] == "0");
    CHECK(Fields("timcons.txt", 3)[14] == "3.25");
}

TEST_CASE("a boring of a wrong format is told and skipped")
{
    Export({"B-4.BOR", "B-3.BOR"});
    CHECK(Told() == std::vector<Text>{"Invalid Format for Boring File: " + Scratch("B-4.BOR"), done});
    CHECK(Fields("timbore.txt", 1)[2] == "B-3");
}

TEST_CASE("a boring that ends early is error 62, and the tables keep what they have")
{
    WriteScratch("short.BOR", ConvertData("irpims/B-1.BOR").substr(0, 400));
    Export({"B-3.BOR", "short.BOR", "B-2.BOR"});
    CHECK(Told() == std::vector<Text>{"Error 62 in Export2IRPIMS.  Please contact Norvane"});
    CHECK(Fields("timbore.txt", 1)[2] == "B-3");
    CHECK(ReadScratch("timcons.txt").find("B-2") == std::string::npos);
}

TEST_CASE("a folder that is not there is told by number")
{
    CopyData("irpims");
    lastDir = Scratch("none");
    Run(Export2IRPIMS, {"B-1.BOR"});
    CHECK(Told() == std::vector<Text>{"Error 76 in Export2IRPIMS.  Please contact Norvane"});
}

TEST_CASE("the menu shows the batch dialog for the export")
{
    static int dialogs;
    dialogs = 0;
    Platform.ShowDrawPrint = [] { ++dialogs; };
    frmBorinput::mnuExp2IRPIMS();
    CHECK(jobCode == 10);
    CHECK(dialogs == 1);
}

TEST_CASE("the deepest inner layer is found in the first row as in any other")
{
    CopyData("irpims");
    BoringText boring;
    boring.InnerLayers = {{"0", "20"}, {"20", "5"}, {"5", "12"}};
    WriteBoring("B-9.BOR", boring);
    lastDir = ScratchFolder();
    Run(Export2IRPIMS, {"B-9.BOR"});
    CHECK(Fields("timcons.txt", 1)[14] == "20");
}
