// boringtext.h -- the files of a log run, composed from named pieces so that a test names only what it is about.
#pragma once

#include "session/text.h"

#include <initializer_list>
#include <utility>
#include <vector>

// A boring file: valid as it starts, with nothing in its lists. Rows shorter than their block are filled up with empty
// cells.
struct BoringText {
    using Row = std::vector<Text>;
    using Rows = std::vector<Row>;
    Text Version = "5.0.12", Name = "B-1", MapFile;
    Rows Info; // prompt, text
    Text EndDepth = "40", Increment = "5", PageBreak, Unit = "feet", SurfElev, StartElev, Coordinates;
    Rows RepParts; // item, width
    Text LayoutFile = "P.LAY";
    Rows Samples; // start, end, condition, blow count, lab number, parameters 1 to 16
    Rows Lith;    // depth, code, line type, colour
    Row Des;
    Rows Params; // depth, parameters 1 to 20
    int ParamCells = 21;
    Rows SampleSetup; // name, heading, axis, three splits, two standards, units
    Rows GenSetup;    // name, heading, axis, three splits, file, field
    Rows WellInfo;
    Row WellNotes, GenWell;
    Rows OuterLayers, InnerLayers;
    Row Remarks;
    Rows Cuttings, Legend, Formations;
    Row BottNotes;
    Row Tail = {"", "", "", "", "", "4", " 0 "}; // client lines, style, draft
    std::string Bytes() const;
};

// Into the working folder of the test.
void WriteBoring(const Text& file, const BoringText& boring);
void WriteLayout(const Text& file, const Text& orientation, std::initializer_list<int> codes);
// us.hdg with "W1" in slot 1 and so on, and an empty logo.txt.
void WriteHeadings();

struct MasEntry {
    Text File, Caption, Start, End;
};
void WriteRunList(std::initializer_list<Text> files);   // log.mas in its list form: files of the working folder
void WriteMas(std::initializer_list<MasEntry> entries); // log.mas in its page form, and break.mas with "0"
