// toollabels_test.cpp -- which line of prompt.txt stands over which box, in each of the five tools.
#include "boring/boringboxes.h"
#include "editors/borinput.h"
#include "gis/gistool.h"
#include "places.h"
#include "report/prompts.h"
#include "sections/crosstool.h"
#include "sections/fencetool.h"
#include "sections/soiltool.h"
#include "session/files.h"
#include "testing.h"

// A prompt file whose new texts are the numbers of their lines, in force.
static void NumberedPrompts()
{
    std::string defaults, words;
    for (int slot = 1; slot <= MaxPrompts; ++slot) {
        defaults += "d\r\n";
        words += std::to_string(slot) + "\r\n";
    }
    WriteScratch("prompt.txt", defaults + words);
    LoadPrompts();
}

static std::vector<Text> Numbers(int first, int last)
{
    std::vector<Text> numbers{""};
    for (int slot = first; slot <= last; ++slot)
        numbers.push_back(std::to_string(slot));
    return numbers;
}

// The words over the first columns of a grid, or beside its rows: those from the first line on.
static void CheckGrid(const Grid& grid, int title, int first, int last, bool rows = false)
{
    CAPTURE(title);
    CHECK(grid.title == std::to_string(title));
    std::vector<Text> words = rows ? grid.rowHeadings : grid.headings;
    words.resize(size_t(last - first) + 2);
    CHECK(words == Numbers(first, last));
}

TEST_CASE("each label of the log tool's grids is its own line of the prompt file")
{
    using namespace frmBorinput;
    NumberedPrompts();
    CheckGrid(SSInfo, 8, 9, 10);
    CheckGrid(SSScale, 11, 12, 18, true);
    CheckGrid(SSRepParts, 22, 23, 24);
    CheckGrid(SSP1Setup, 32, 34, 42);
    CheckGrid(SSP2Setup, 43, 45, 52);
    CheckGrid(SSSamp, 58, 59, 63);
    CheckGrid(SSPar, 64, 65, 65);
    CheckGrid(SSLith, 67, 68, 71);
    CheckGrid(SSGenWellInfo, 76, 77, 90, true);
    CheckGrid(SSOuterLay, 96, 97, 101);
    CheckGrid(SSInnerLay, 102, 103, 107);
    CheckGrid(SSW, 109, 110, 111);
    CheckGrid(SSFormations, 115, 116, 117);
    CheckGrid(SSCuttings, 118, 119, 122);
    CheckGrid(SSLegend, 124, 125, 126);
}

TEST_CASE("each label of the section's, the fence's and the soil tool's grids is its own line of the prompt file")
{
    NumberedPrompts();
    frmCross::LabelBoxes();
    CheckGrid(frmCross::SS1, 131, 132, 135);
    CheckGrid(frmCross::SS3, 136, 137, 145, true);
    CheckGrid(frmCross::SS2, 146, 147, 150, true);
    CheckGrid(frmCross::SS4, 151, 152, 153);
    frmFence::LabelBoxes();
    CheckGrid(frmFence::SS1, 156, 157, 162);
    CheckGrid(frmFence::SS2, 163, 164, 168, true);
    CheckGrid(frmFence::SS3, 169, 170, 177, true);
    CheckGrid(frmFence::SS4, 178, 179, 180);
    CheckGrid(frmFence::SS5, 181, 182, 182);
    frmSoil::LabelBoxes();
    CheckGrid(frmSoil::SS1, 203, 204, 212, true);
}

TEST_CASE("each label of the workbench's grids is its own line of the prompt file")
{
    NumberedPrompts();
    frmGIS::LabelBoxes();
    CheckGrid(frmGIS::SSGISLayers, 186, 187, 188);
    CheckGrid(frmGIS::SSBoringData, 194, 195, 196);
    CheckGrid(frmGIS::SSGISInfo, 197, 198, 202);
    CHECK(PromptLabel(192, "View Data ->") == "192 ->");
}

TEST_CASE("by design the boxes of the four tools beside the log tool bear these words")
{
    frmCross::LabelBoxes();
    CHECK(frmCross::SS1.title == "Boring Information");
    CHECK(frmCross::SS1.headings ==
          std::vector<Text>{"", "Distance", "Boring File", "Water Dep.", "Label W/B", "Label T/B"});
    CHECK(frmCross::SS4.title == "Legend");
    CHECK(frmCross::SS4.headings == std::vector<Text>{"", "USCS/Color", "Text"});
    frmFence::LabelBoxes();
    CHECK(frmFence::SS1.title == "Boring Information");
    CHECK(frmFence::SS1.headings ==
          std::vector<Text>{"", "X", "Y", "Boring File", "Water Dep.", "Place T/B", "Label W/B"});
    CHECK(frmFence::SS4.headings == std::vector<Text>{"", "USCS/Color", "Text"});
    CHECK(frmFence::SS5.title == "Sections");
    frmGIS::LabelBoxes();
    std::vector<Text> words = frmGIS::SSGISInfo.headings;
    words.resize(6);
    CHECK(words == std::vector<Text>{"", "Boring", "X Coord.", "Y Coord.", "Surf. Elev.", "Filename"});
}

TEST_CASE("by design the grids of the log tool bear the words of the stock prompt file")
{
    using namespace frmBorinput;
    std::filesystem::copy_file(SOURCE_DIR "/data/prompt.txt", Scratch("prompt.txt"));
    for (Grid* grid : {&SSInfo, &SSScale, &SSRepParts, &SSP1Setup, &SSP2Setup, &SSSamp, &SSPar, &SSLith, &SSGenWellInfo,
                       &SSOuterLay, &SSInnerLay, &SSW, &SSFormations, &SSCuttings, &SSLegend}) {
        grid->title.clear();
        grid->headings.clear();
        grid->rowHeadings.clear();
    }
    frmBorinput::Load();
    const auto check = [](const Grid& grid, int title, int first, int last, bool rows = false) {
        CAPTURE(title);
        CHECK(grid.title == PromptTable[title][DefaultText]);
        const std::vector<Text>& words = rows ? grid.rowHeadings : grid.headings;
        REQUIRE(words.size() > size_t(last - first + 1));
        for (int slot = first; slot <= last; ++slot)
            CHECK(words[size_t(slot - first) + 1] == PromptTable[slot][DefaultText]);
    };
    check(SSInfo, 8, 9, 10);
    check(SSScale, 11, 12, 18, true);
    check(SSRepParts, 22, 23, 24);
    check(SSP1Setup, 32, 34, 42);
    check(SSP2Setup, 43, 45, 52);
    check(SSSamp, 58, 59, 63);
    check(SSPar, 64, 65, 65);
    check(SSLith, 67, 68, 71);
    check(SSGenWellInfo, 76, 77, 90, true);
    check(SSOuterLay, 96, 97, 101);
    check(SSInnerLay, 102, 103, 107);
    check(SSW, 109, 110, 111);
    check(SSFormations, 115, 116, 117);
    check(SSCuttings, 118, 119, 122);
    check(SSLegend, 124, 125, 126);
}
