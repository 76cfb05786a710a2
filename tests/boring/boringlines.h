// boringlines.h -- the lines of a boring file as tests build them: an empty boring whose blocks can be filled.
#pragma once

#include "session/text.h"

#include <vector>

struct BoringLines {
    using Block = std::vector<Text>;
    Text version = "5.0.12";
    Text name, mapFile;
    Block info = Block(60), scale = Block(7);
    Block repParts;
    Text layoutFile;
    Block samples, lith, des, params; // cells or lines; their counts are worked out, or told in "told"
    Block sampleSetup = Block(144), genSetup = Block(160);
    Block wellInfo, wellNotes;
    Block genWell = Block(14);
    Block outer, inner, remarks, cuttings, legend, formations;
    Block bottNotes = Block(10), client = Block(5);
    Block tail = {"4", " 0 "}; // style, draft
    int paramCells = 21;

    std::string File() const
    {
        std::string file;
        const auto line = [&](const Text& text) { file += text + "\r\n"; };
        const auto lines = [&](const Block& block) {
            for (const Text& text : block)
                line(text);
        };
        const auto counted = [&](const Block& block, int cells) {
            line(std::to_string(block.size() / size_t(cells)));
            lines(block);
        };
        line(version);
        line(name);
        line(mapFile);
        lines(info);
        lines(scale);
        counted(repParts, 2);
        line(layoutFile);
        counted(samples, 21);
        counted(lith, 4);
        counted(des, 1);
        counted(params, paramCells);
        lines(sampleSetup);
        lines(genSetup);
        counted(wellInfo, 2);
        counted(wellNotes, 1);
        lines(genWell);
        counted(outer, 5);
        counted(inner, 5);
        counted(remarks, 1);
        counted(cuttings, 4);
        counted(legend, 2);
        counted(formations, 2);
        lines(bottNotes);
        lines(client);
        lines(tail);
        return file;
    }
};
