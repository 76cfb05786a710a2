// fencepage.h -- the files of a fence run, composed from named pieces so that a test names only what it is about, and
// what was drawn from them.
//
// As it starts, X goes from 100 to 700, Y from 50, elevations from 620 down to 560. So with page "L" a unit of the base
// plane is 6 device units, with "T" 8, and a unit of elevation 20. Y goes to 496.25 or 687.5.
#pragma once

#include "logrender/boringtext.h"
#include "logrender/columnpage.h"

// A .FEN file. Rows and panels that are not named are empty.
struct FenceText {
    std::vector<Text> Borings, Panels;
    Text XStart = "100", XEnd = "700", XInc = "200", XUnit = "Feet", YStart = "50";
    Text VStart = "620", VEnd = "560", VInc = "-10", VUnit = "Feet MSL";
    Text MainTitle = "Main", Title1 = "First", Title2 = "Second", Title3 = "Third";
    Text Layers = "N", Direction = "N,0";
    std::vector<Text> Legend;
    std::vector<Text> Tail = {"L", ""}; // page size and GIS file, as far as they are there
    std::string Bytes() const;
};

void WriteFence(const Text& file, const FenceText& fence); // into the working folder of the test
// A file into the records, as a run does it; the working folder of the test is the project.
bool ReadFence(const FenceText& fence);
void StartFence(const FenceText& fence); // read too, heading words "W1" and so on, and the frame drawn on an empty page

// A boring of that name over its layers, depth and code; the reference level at 600, 2 above the ground.
BoringText FenceBoring(const Text& name, const BoringText::Rows& layers = {});

// The page in words (columnpage.h), in device units from the origin of the base plane, y down: its objects behind the
// foot of the sheet, which ends with the date line. With page "T" panels and stakes stand 60 further to the right.
Drawing FenceDrawn();
Text FencePen();
