// toolcommands.h -- the commands that the tools beside the log tool have in common: cross sections, fences, soil
// tables and the GIS workbench. A tool is a table of what is its own; no widget is known here.
//
// Each tool has its own open file. FileChanged is the session's: one tool at a time is in front, and every way out of
// it asks first.
#pragma once

#include "grid/controls.h"
#include "session/platform.h"
#include "tools/checkentry.h"

#include <initializer_list>
#include <vector>

struct ToolRecord {
    Tool tool = Tool::Log;
    const char* window = "";          // its name
    const char* title = "";           // of a tool without a file
    const char* ending = "";          // of its files, with the point
    int16_t openMode = 0;             // of the chooser; the mode behind it saves
    int16_t drawJob = 0;              // a Job; the one behind it prints. 0: the tool draws nothing
    Text& FileName;                   // "" for a file that was never saved
    Text& Title;                      // of the window
    std::vector<Grid*> grids;         // the first one is the active one until another has been entered
    std::vector<Grid*> rowsGoIn = {}; // those in which rows can be inserted and deleted
    Memo* memo = nullptr;             // a text box; may be null
    void (*OpenFile)() = nullptr;     // FileName into the record
    bool (*SaveFile)() = nullptr;     // the boxes into FileName; false: it was refused or has failed, which was told
    void (*ClearArrays)() = nullptr;  // empties the record
    void (*FillForm)() = nullptr;     // the record into the boxes, and the title
    void (*Label)() = nullptr;        // the words of the boxes, as the office has them
    Text (*State)() = nullptr;        // a few words for the status bar: how much is there
    std::vector<CheckEntry> (*Check)() = nullptr; // what a reviewer would flag; may be null
    bool titleInFront = false; // the title stands in front of the file's name, and alone while there is none
    // The Edit menu's, where they do not go by the grid last entered; may be null.
    void (*InsertRow)() = nullptr;
    void (*DeleteRow)() = nullptr;
    // While the window is up.
    Grid* active = nullptr;           // the grid last entered
    Text RecentFile = "";             // last read whole or saved, for the list of recent files; "" for none
    void (*ShowForm)(bool) = nullptr; // hides the window during a run, and shows it again
    void (*Unload)() = nullptr;       // closes it
};

// The tool whose window comes once the one in front has closed; Tool::Log leads back to the log window.
extern Tool NextTool;

// "1 boring", "7 borings".
Text CountOf(int count, const char* one, const char* more);
// A saver without an answer of its own: true when it has reported no failure.
bool Saved(void (*save)());

void LoadTool(ToolRecord& tool); // at the opening of its window: no file, empty boxes, the flag clear
// File.
void ToolNew(ToolRecord& tool);
void ToolOpen(ToolRecord& tool);
// A recent file, or one from outside. One that is refused leaves no name behind that a save could write over.
void ToolOpenNamed(ToolRecord& tool, const Text& name);
void ToolOpenFromOutside(ToolRecord& tool, const Text& name); // by the tool of its ending, each after its own question
bool ToolSave(ToolRecord& tool);                              // false: nothing was saved
bool ToolSaveAs(ToolRecord& tool);
void ToolPreview(ToolRecord& tool);
void ToolBatchDraw(ToolRecord& tool);
void ToolPrint(ToolRecord& tool);
// To another tool, or by Tool::Log back to the log window. False: the user stays.
bool ToolHandOver(ToolRecord& tool, Tool next);
bool ToolExit(ToolRecord& tool); // out of the program; false: the user stays
// Edit, in the grid last entered.
Grid& ActiveGrid(ToolRecord& tool);
void ToolInsertRow(ToolRecord& tool);
void ToolDeleteRow(ToolRecord& tool);
void ForgetSteps(ToolRecord& tool); // of all its grids

// Recovery (session/recovery.h): what stands in the boxes as a file; and such a file into the boxes, whose window comes
// with ShowRecoveredTool.
void WriteToolCopy(ToolRecord& tool, const Text& copy);
void OpenToolCopy(ToolRecord& tool, const Text& copy, const Text& name);
void ShowRecoveredTool();
int RecoveryNumber(Tool tool);

// The same as procedures of a tool's own, for its namespace.
template <ToolRecord& tool, auto command>
auto OfTool()
{
    return command(tool);
}
template <ToolRecord& tool, Tool next>
bool FromTool()
{
    return ToolHandOver(tool, next);
}
template <ToolRecord& tool>
void CopyOfTool(const Text& copy)
{
    WriteToolCopy(tool, copy);
}
template <ToolRecord& tool>
void ToolOfCopy(const Text& copy, const Text& name)
{
    OpenToolCopy(tool, copy, name);
}

// The labels of a grid: by design, or what the prompts have set for the slots. The title's slot, then the first one of
// the columns or rows; a column behind those of the slots keeps its design.
void LabelGrid(Grid& grid, int titleSlot, const char* title, int firstSlot, std::initializer_list<const char*> columns,
               int slots = 99);
void LabelRows(Grid& grid, int titleSlot, const char* title, int firstSlot, std::initializer_list<const char*> rows);
