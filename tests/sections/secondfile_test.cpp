// secondfile_test.cpp -- a tool's document behind another one: nothing of the first goes into the second, whether the
// form shows it or not.
#include "testing.h"

#include "gis/gistool.h"
#include "sections/crosstool.h"
#include "sections/fencetool.h"
#include "sections/soiltool.h"
#include "session/files.h"
#include "session/session.h"

// A file of so many lines, each with a text of its own.
static std::string NumberedLines(int count, const Text& word)
{
    std::string lines;
    for (int line = 1; line <= count; ++line)
        lines += word + std::to_string(line) + "\r\n";
    return lines;
}

static std::string FirstLines(const std::string& bytes, int count)
{
    size_t end = 0;
    for (; count > 0 && end < bytes.size(); --count)
        end = bytes.find("\r\n", end) + 2;
    return bytes.substr(0, end);
}

static int LinesOf(const std::string& bytes)
{
    int count = 0;
    for (size_t at = bytes.find("\r\n"); at != Text::npos; at = bytes.find("\r\n", at + 2))
        ++count;
    return count;
}

// What a save writes of a document that was opened and not touched.
static std::string OpenedAndSaved(ToolRecord& tool, const std::string& bytes)
{
    WriteScratch("SECOND", bytes);
    ToolOpenNamed(tool, Scratch("SECOND"));
    tool.FileName = Scratch("OUT");
    Messages.clear();
    REQUIRE(ToolSave(tool));
    return ReadScratch("OUT");
}

// Every beginning of a file is saved behind the full one as in a program that has opened nothing else.
static void CheckBehind(ToolRecord& tool, const std::string& full, const std::string& second)
{
    std::vector<std::string> fresh;
    std::vector<Grid> boxes;
    for (const Grid* grid : tool.grids)
        boxes.push_back(*grid);
    const int lines = LinesOf(second);
    for (int count = 0; count <= lines; ++count) {
        CrossData = {};
        FenceData = {};
        SoilData = {};
        ClearGISForm();
        for (size_t i = 0; i < boxes.size(); ++i)
            *tool.grids.at(i) = boxes[i];
        LoadTool(tool);
        fresh.push_back(OpenedAndSaved(tool, FirstLines(second, count)));
    }
    WriteScratch("FULL", full);
    for (int count = 0; count <= lines; ++count) {
        CAPTURE(count);
        LoadTool(tool);
        ToolOpenNamed(tool, Scratch("FULL"));
        CHECK(OpenedAndSaved(tool, FirstLines(second, count)) == fresh.at(size_t(count)));
    }
    // And New leaves no more of it than a start.
    LoadTool(tool);
    tool.FileName = Scratch("EMPTY");
    REQUIRE(ToolSave(tool));
    ToolOpenNamed(tool, Scratch("FULL"));
    ToolNew(tool);
    tool.FileName = Scratch("NEW");
    REQUIRE(ToolSave(tool));
    CHECK(ReadScratch("NEW") == ReadScratch("EMPTY"));
}

static std::string FullSection()
{
    std::string file = " 50 \r\n";
    for (int row = 1; row <= 50; ++row) {
        const Text n = std::to_string(row);
        file += Lines({n, "B" + n, "5", "B", "T", ".1," + n, "label " + n + "|9" + n + "|1" + n});
    }
    file += Lines({"", "0", "100", "10", "ft", "0", "50", "10", "ft", "", "r1", "r2", "r3", "r4", "r5", "r6"});
    for (int row = 1; row <= 8; ++row)
        file += "c" + std::to_string(row) + ";legend\r\n";
    file += Lines({"r7", "r8", "r9", ".3,9"});
    for (int row = 9; row <= 30; ++row)
        file += "c" + std::to_string(row) + ";legend\r\n";
    return file;
}

TEST_CASE("a section saved unchanged behind another one is as in a fresh program")
{
    std::string second = " 17 \r\n";
    for (int row = 1; row <= 17; ++row)
        second += Lines({std::to_string(row), "S-1", "", "", "", "", row % 2 ? "" : "one|2|3"});
    second += Lines({"", "0", "90", "10", "m", "0", "40", "10", "m", "", "Main", "", "", "A", "A'", "Y"});
    for (int row = 1; row <= 8; ++row)
        second += "SM;\r\n";
    second += Lines({"L", "", "", ""});
    for (int row = 9; row <= 30; ++row)
        second += ";\r\n";
    CheckBehind(CrossForm, FullSection(), second);
}

TEST_CASE("a section of the older form saved unchanged behind another one is as in a fresh program")
{
    std::string second = "\r\n10,S-1,,\r\n20,S-2,,\r\n";
    for (int row = 3; row <= 15; ++row)
        second += ",,,\r\n";
    second += Lines({"", "0", "90", "10", "m", "0", "40", "10", "m", "", "Main", "", "", "A", "A'", "Y"});
    for (int row = 1; row <= 8; ++row)
        second += "SM,Sand\r\n";
    CheckBehind(CrossForm, FullSection(), second);
}

TEST_CASE("a fence saved unchanged behind another one is as in a fresh program")
{
    std::string full = "\r\n";
    for (int row = 1; row <= 15; ++row)
        full += "1,2,B" + std::to_string(row) + ",4,T,W\r\n";
    full += "\r\n";
    for (int row = 1; row <= 20; ++row)
        full += "1," + std::to_string(row) + "\r\n";
    full += Lines({"", "0", "90", "10", "m", "0", "1", "40", "10", "m", "", "r1", "r2", "r3", "r4", "r5", "r6"});
    for (int row = 1; row <= 8; ++row)
        full += "c" + std::to_string(row) + ";legend\r\n";
    full += Lines({"T", "SITE.GIS"});
    std::string second = "\r\n";
    for (int row = 1; row <= 15; ++row)
        second += row < 3 ? "5,6,S-1\r\n" : ",,,,,\r\n";
    second += "\r\n1,2\r\n";
    for (int row = 2; row <= 20; ++row)
        second += "\r\n";
    second += Lines({"", "0", "80", "10", "ft", "0", "2", "30", "10", "ft", "", "Main", "", "", "", "Y", ""});
    for (int row = 1; row <= 8; ++row)
        second += row == 1 ? "no separator\r\n" : ";\r\n";
    second += Lines({"L", ""});
    CheckBehind(FenceForm, full, second);
}

TEST_CASE("a soil table saved unchanged behind another one is as in a fresh program")
{
    CheckBehind(SoilForm, NumberedLines(9, "cell ") + NumberedLines(10, "note "),
                Lines({"B-1", "1", "", "", "", "Main", "", "", "", "one \xB6", "two", "", "", "", "", "", "", "", ""}));
}

TEST_CASE("a table of the workbench saved unchanged behind another one is as in a fresh program")
{
    std::string full = " 100 \r\n" + NumberedLines(200, "layer ") + " 200 \r\n";
    for (int row = 1; row <= 200; ++row)
        full += NumberedLines(105, std::to_string(row) + "-");
    full += "the end\r\n";
    CheckBehind(GisForm, full, Lines({" 2 ", "SM", "",    "CL", "RED", " 2 ", "B-1", "1", "2", "3",   "B-1.BOR",
                                      "4",   "",   "B-2", "",   "",    "",    "",    "",  "6", "last"}));
}
