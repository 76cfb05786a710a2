// gtgsgeneditor.h -- what the editor of the general GTGS conversion does. No widget is known here.
#pragma once

#include "grid/controls.h"

namespace frmGTGSGenEditor
{
// Its boxes.
struct Record {
    Text Title;
    Text Text1, Text2;   // the template, and the folder of the tables
    bool Option2 = true; // fields of fixed length; else Option1, a character between them
    int Combo1 = 2;      // the character: 0 comma, 1 blank, 2 tab
    Text Text3;          // the length of a field
    bool Option3 = true; // the new file is named by the boring; else Option4, by Text4
    Text Text4;
    Text File;                 // the .GCV file that is open; "" before the first one
    std::vector<Text> Settled; // what the boxes of the map held when it was last opened, saved or begun with
};
extern Record Dialog;
extern Grid SS1; // fields of headers.txt: where each goes, and the number of the row there
extern Grid SS2; // GTGS fill codes and what they are here

void Load(); // Begins a new mapping.
// The commands that would drop a map that has changed ask first.
void mnuOpenGTGSConvFile();
void OpenNamed(
    const Text& name);      // from outside; one that is refused leaves no name behind that a save could write over
bool mnuSaveGTGSConvFile(); // false: nothing was saved
bool mnuSaveAs();
bool mnuExit();  // false: the user stays
void Command1(); // Begin Conversion. A new boring that could be written is opened in the log tool, as by its Open
} // namespace frmGTGSGenEditor
