// opensave.h -- what the file chooser does: the one window for the files of all kinds, with the project list beside
// them. No widget is known here.
//
// It is asked through Platform.ShowChooser with its mode in DialogMode, and answers in DialogResult, "" when cancelled.
#pragma once

#include "grid/controls.h"
#include "session/slots.h"
#include "session/text.h"

#include <vector>

namespace frmOpenSave
{
// Its boxes, filled by Load and by the commands.
struct Record {
    Text Title, Pattern;     // "*.BOR"
    Text Dir1;               // the folder shown: absolute, as this machine writes it
    std::vector<Text> File1; // the files there that fit the pattern, in name order
    Text fileText;           // the name box
    bool Projects = false;   // the tall window, with the project list
    int Version = -1;        // index in the version list; -1 where it is hidden
};
extern Record Dialog;
extern Grid SS; // the projects: ID and path

void Load();                         // Fills the boxes by DialogMode.
void ChangeFolder(const Text& name); // Shows another folder.
void ChangeVersion(int index);       // Marks another file version: 0 3.0, 1 4.0/4.0P, 2 4.6/5.0.
void Command1();                     // OK: answers in DialogResult, with the version in DialogMode.
void Command2();                     // Cancel: answers "" in DialogResult.
void Command4();                     // Edit Project List: opens its editor, and shows the project grid anew.
// Chooses the project of a row: its heading file and logo take effect, and its folder becomes the project folder of the
// session, unless it cannot be written.
void SelectProject(int row);

// The hidden boxes in which getfilelist looks for layouts; empty again once the chooser is unloaded.
extern Text HiddenFolder;
extern std::vector<Text> HiddenFiles;
} // namespace frmOpenSave

// The titles of the tools that open on top of the log tool. Set when a project is chosen.
namespace frmCross
{
extern Text Title;
}
namespace frmFence
{
extern Text Title;
}
namespace frmSoil
{
extern Text Title;
}

// Looks up the layout files of the layout folder, or of the working folder where that cannot be written, by their bare
// names. Mode 1 fills the layout list of the log tool with them and leaves the layout that is typed there; any other
// mode fills the chooser's hidden list alone. It does nothing while there is no project folder.
void getfilelist(int mode);
