// checkedboring.cpp -- a boring as it should be, and the office that it is drawn in.
#include "checkedboring.h"

#include "canvas/patterns.h"
#include "editors/fillform.h"
#include "places.h"
#include "session/deviceconfig.h"
#include "session/session.h"

#include <algorithm>
#include <filesystem>

void Fill(Grid& grid, std::initializer_list<std::initializer_list<const char*>> rows)
{
    int row = 0;
    for (const auto& cells : rows) {
        ++row;
        int column = 0;
        for (const char* cell : cells)
            grid.Cell(row, ++column) = cell;
    }
}

void WriteLayout(const Text& name, int orientation, std::initializer_list<int> blocks)
{
    Text file = PlainNumber(orientation) + "\r\n";
    for (const int block : blocks)
        file += PlainNumber(block) + "\r\n";
    for (size_t i = blocks.size(); i < 12; ++i)
        file += "0\r\n";
    WriteScratch(name, file);
}

// What every page is made of: a layout, words, a logo of text, and the patterns of the soil codes.
static void WriteOffice()
{
    DefaultSystemFiles();
    ProjectPath = ScratchFolder();
    WriteLayout("plain.lay", 0);
    std::filesystem::copy_file(SOURCE_DIR "/data/us.hdg", Scratch("us.hdg"),
                               std::filesystem::copy_options::overwrite_existing);
    WriteScratch("logo.txt", Lines({"Somebody", "", ""}));
    std::filesystem::create_directory(Scratch("fills"));
    for (int file = 1; file <= 85; ++file)
        WritePicture("fills/" + PatternName(file));
}

void GoodBoring()
{
    using namespace frmBorinput;
    WriteOffice();
    cmbLayFile = "plain.lay";
    Fill(SSScale, {{"20"}, {"5"}, {""}, {""}, {"100"}, {"80"}});
    Fill(SSLith, {{"5", "CL"}, {"12.5", "SM"}, {"20", "F0"}});
    Fill(SSSamp, {{"0", "2"}, {"2", "4"}, {"4", "6.5"}});
    Fill(SSRepParts, {{"DEPTH", ".4"}, {"descriptions", "3"}, {"graphic", ".3"}});
    MemoDes.text = "@1\r\nclay\r\n@2\r\nsand\r\n@3\r\n";
    BorTextChange();
    FileChanged = 0;
    Messages.clear();
}

bool Has(const Text& words, int box, int row, int column)
{
    const std::vector<CheckEntry> found = CheckBoring();
    const bool there = std::any_of(found.begin(), found.end(), [&](const CheckEntry& entry) {
        return entry.Words == words && entry.Box == box && entry.Row == row && entry.Column == column;
    });
    if (!there)
        for (const CheckEntry& entry : found)
            MESSAGE(entry.Words << " " << entry.Box << " " << entry.Row << " " << entry.Column);
    return there;
}

Text Only()
{
    const std::vector<CheckEntry> found = CheckBoring();
    if (found.size() == 1)
        return Text(found[0].Kind) + ": " + found[0].Words;
    for (const CheckEntry& entry : found)
        MESSAGE(entry.Words);
    return PlainNumber(int(found.size())) + " entries";
}

Text Cell()
{
    const std::vector<CheckEntry> found = CheckBoring();
    REQUIRE(found.size() == 1);
    const CheckEntry& entry = found[0];
    if (*entry.TextBox)
        return entry.TextBox + Text(" at ") + PlainNumber(entry.Place);
    return PlainNumber(entry.Box) + " " + PlainNumber(entry.Row) + "," + PlainNumber(entry.Column);
}

bool Clean()
{
    return Only() == "0 entries";
}

int CountOf(const char* kind)
{
    const std::vector<CheckEntry> found = CheckBoring();
    return int(
        std::count_if(found.begin(), found.end(), [&](const CheckEntry& entry) { return Text(entry.Kind) == kind; }));
}

void Type(Text words)
{
    frmBorinput::MemoDes.text = std::move(words);
}
