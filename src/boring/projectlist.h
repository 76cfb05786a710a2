// projectlist.h -- the projects of an office: folders of boring files, each with a heading file and a logo of its own.
//
// The list lives in a small text file that the set-up names. It is filled by LoadProjectList at the start and by the
// project list's editor, and read by the chooser.
#pragma once

#include "grid/controls.h"
#include "session/slots.h"
#include "session/text.h"

constexpr int MaxProjects = 500;

struct ProjectRecord {
    Text ProjectId;     // the name that the user sees; holds no comma once it has been through the file
    Text ProjectFolder; // its folder
    Text HeadingFile;   // "": choosing the project leaves the heading file of the set-up
    Text LogoFile;      // "": choosing the project leaves the logo
};
extern Slots<ProjectRecord, MaxProjects> ProjectList;
extern int16_t ProjectCount;

// Reads the file of the set-up into ProjectList; one that does not exist gives an empty list. Failures by number: the
// rows before a failure stay.
void LoadProjectList();
// Writes ProjectList into the file of the set-up; with none named there a box tells so, and nothing is written.
void SaveProjectList();

// The editor of the list.
namespace frmProjEdit
{
extern Grid SS;  // project ID, path, heading file, logo file
void Load();     // Puts the list into the grid.
bool Command1(); // OK: takes the grid into the list and its file; returns true when the window closes.
} // namespace frmProjEdit
