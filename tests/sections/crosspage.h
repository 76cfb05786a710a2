// crosspage.h -- the files of a cross section run, composed from named pieces so that a test names only what it is
// about, and what was drawn from them.
//
// As it starts, distances go from 0 to 840 and elevations from 100 down to 57. So with page "L" a unit of distance is 6
// device units and a unit of elevation 60. With page "T" a section of 0 to 1440 and 100 to 32 has the same scales.
#pragma once

#include "logrender/boringtext.h"
#include "logrender/columnpage.h"

// A .CRO file. Borings are rows of distance, file, water, label W/B, label T/B, offset, second label; what is not named
// is empty.
struct SectionText {
    std::vector<std::vector<Text>> Borings;
    Text HStart = "0", HEnd = "840", HInc = "420", HUnit = "Feet";
    Text VStart = "100", VEnd = "57", VInc = "-20", VUnit = "Feet MSL";
    Text MainTitle = "Main", Title1 = "First", Title2 = "Second", Left = "A", Right = "A'";
    Text Layers = "N";
    std::vector<Text> Legend;                   // 8 rows
    std::vector<Text> Tail = {"L", "", "", ""}; // page, GIS file, parameter, options; then legend rows 9 to 30
    std::string Bytes() const;
};

void WriteSection(const Text& file, const SectionText& section); // into the working folder of the test
// A file into CrossRun, as a run does it; the working folder of the test is the project.
bool ReadSection(const SectionText& section);

// A boring of that name 10 deep, its reference level at 90, with no stick-up; casing to 4. Layers are depth and code.
BoringText SectionBoring(const Text& name, const BoringText::Rows& layers = {});

// Heading words "W1" and so on, and the page of CrossRun, empty.
void StartSection();
// The page in words (columnpage.h), in device units from the data origin, y down. Objects() tells where a later
// drawing begins.
Drawing SectionDrawn(size_t skip = 0);
Drawing SheetDrawn(size_t skip = 0); // the same from the corner of the sheet's frame
size_t Objects();
// A section of these borings read and its frame drawn; then drawcrossborings, and what that has drawn. The client block
// in front is left out: it is 7 objects.
Drawing DrawBorings(const SectionText& section);
