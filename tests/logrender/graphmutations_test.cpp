// graphmutations_test.cpp -- set-ups, values and data files that nobody would type: every graph column comes back, with
// a report or without.
#include "columnpage.h"

#include "logrender/vlog.h"

#include <cstdlib>
#include <random>

// A cell put together from what cells are made of, and from what they are not.
static Text Cell(std::mt19937& chance)
{
    static const char* const pieces[] = {
        "0", "1", "100", "20", "-999", "-5", "0.1", "3e38",  "1e-38", "99999",   ",",     ",",   ",",    ",",
        " ", "N", "LOG", "-",  ".",    "E",  "abc", "40000", "1e9",   "12,8,15", "-1e30", "\\N", "\xB6", "\t"};
    Text cell;
    for (auto count = chance() % 8; count > 0; --count)
        cell += pieces[chance() % std::size(pieces)];
    return cell;
}

// The axis of a cell, by its numbers alone.
static LogParamSetup CellSetup(std::mt19937& chance)
{
    const Text cell = Cell(chance);
    const std::string_view behindStart = Behind(cell, ',');
    LogParamSetup setup = Setup(TextNumber(cell), TextNumber(behindStart), TextNumber(Behind(behindStart, ',')));
    // Thousands of ticks are drawn and take their time; a few of a kind are enough.
    const double ticks = setup.Increment == 0 ? 0 : (double(setup.End) - setup.Start) / setup.Increment;
    if (ticks > 2000 && chance() % 50 != 0)
        setup.Increment = setup.End;
    setup.Name = Cell(chance);
    setup.Heading = Cell(chance);
    for (int line = 1; line <= 3; ++line)
        setup.Split[line] = Cell(chance);
    setup.NoLines = chance() % 4 == 0;
    return setup;
}

TEST_CASE("graph columns come back from absurd set-ups, values, widths and data files")
{
    static const char* const items[] = {"P1",
                                        "P2G",
                                        "P3G",
                                        "P12G",
                                        "P34G",
                                        "P1-4G",
                                        "GP1",
                                        "GP2",
                                        "GPG1",
                                        "GPG2",
                                        "MPG1",
                                        "MPG2-1-3",
                                        "MPG3-1",
                                        "BLOW COUNT GRAPH",
                                        "BLOW COUNT GRAPH-WIDE"};
    const int rounds = std::getenv("STRATAVUE_FUZZ") ? 20000 : 400;
    std::mt19937 chance(4711);
    int reports = 0;
    for (int round = 0; round < rounds; ++round) {
        CAPTURE(round);
        StartColumn();
        for (int n = 1; n <= 4; ++n) {
            LogBoring.SampleSetup[n] = CellSetup(chance);
            LogBoring.GenSetup[n] = CellSetup(chance);
        }
        for (int i = 0; i < 6; ++i) {
            AddSample(TextNumber(Cell(chance)), TextNumber(Cell(chance)));
            LogBoring.Samples[i + 1].Blows = Cell(chance);
            LogBoring.Params[++LogBoring.ParamCount][1] = Cell(chance);
            for (int n = 1; n <= 4; ++n) {
                LogBoring.Samples[i + 1].Param[n] = Cell(chance);
                LogBoring.Params[LogBoring.ParamCount][n + 1] = Cell(chance);
            }
        }
        std::string bytes; // a new file now and then: the disk is what takes the time
        for (auto lines = chance() % 12; lines > 0; --lines)
            bytes += Cell(chance) + "\r\n";
        if (round % 8 == 0)
            WriteScratch("data.txt", bytes);
        LogBoring.GenSetup[1].File = "data.txt";
        LogBoring.GenSetup[1].Field = chance() % 2 == 0 ? Text("1,1") : Cell(chance);
        LogBoring.RepParts[1] = {items[chance() % std::size(items)], chance() % 2 == 0 ? Text("1") : Cell(chance)};
        LogGeometry.ColumnNumber = 1;
        VLOG::processrepparts();
        CHECK(LogGeometry.ColumnNumber == 2);
        if (Messages.empty())
            CHECK(PageCanvasScales() == "1 1");
        for (const PlainMessage& message : Messages) {
            CHECK(message.words.starts_with("Error "));
            ++reports;
        }
        Messages.clear();
    }
    CHECK(reports > rounds / 20); // the cells are absurd enough
}
