// wellmutations_test.cpp -- wells that nobody would type: the diagram and the water column come back, with a report or
// without.
#include "wellpage.h"

#include <cstdlib>
#include <random>

static Text Cell(std::mt19937& chance)
{
    static const char* const pieces[] = {"0",    "1",  "10",  "35", "-5",   "0.1",  "3e38",   "1e-38", "99999",  ",",
                                         ",",    " ",  "N",   "@",  "CENT", "PACK", "SCREEN", "PUMP",  "PACKER", "F",
                                         "F480", "GW", "RED", "L",  "M",    "y",    "40000",  "\\N",   "\xB6",   "\t"};
    Text cell;
    for (auto count = chance() % 4; count > 0; --count)
        cell += pieces[chance() % std::size(pieces)];
    return cell;
}

TEST_CASE("the well diagram comes back from absurd layers, casings and depths")
{
    const int rounds = std::getenv("STRATAVUE_FUZZ") ? 20000 : 300;
    std::mt19937 chance(4712);
    int reports = 0;
    StartWell();
    for (int round = 0; round < rounds; ++round) {
        CAPTURE(round);
        if (round % 50 == 0)
            StartWell();
        LogBoring.OuterLayerCount = LogBoring.InnerLayerCount = 0;
        for (int i = 0; i < 4; ++i) {
            AddLayer(Cell(chance).c_str(), Cell(chance).c_str(), Cell(chance).c_str(), Cell(chance).c_str(),
                     Cell(chance).c_str());
            AddRing(Cell(chance).c_str(), Cell(chance).c_str(), Cell(chance).c_str(), Cell(chance).c_str(),
                    Cell(chance).c_str());
        }
        for (int row = 1; row <= MaxGenWell; ++row)
            LogBoring.GenWell[row] = Cell(chance);
        static const char* const items[] = {"GW", "SGW", "WATER LEVEL"};
        LogBoring.RepParts[1] = {items[chance() % 3], Cell(chance)};
        LogPage.PageStartDepth = chance() % 3 == 0 ? 0.0f : 20.0f;
        LogGeometry.ColumnNumber = 1;
        VLOG::processrepparts();
        CHECK(LogGeometry.ColumnNumber == 2);
        if (Messages.empty())
            CHECK(PageCanvasScales() == "1 1");
        for (const PlainMessage& message : Messages)
            reports += message.words.starts_with("Error ") ? 1 : 0;
        Messages.clear();
    }
    CHECK(reports > rounds / 50);
}
