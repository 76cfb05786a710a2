// prompts.h -- the labels of the input windows, which an office may reword in prompt.txt.
//
// prompt.txt has 430 lines: the labels by design, and then those in force, in the order of the slots 1 to 215. Slots
// that no window has a label for are kept and relabel nothing.
#pragma once

#include "grid/controls.h"
#include "session/slots.h"
#include "session/text.h"

#include <optional>

constexpr int MaxPrompts = 215;
enum PromptColumn { DefaultText = 1, NewText };
extern Slots<Slots<Text, 2>, MaxPrompts> PromptTable; // prompt.txt as LoadPrompts read it
extern int16_t PromptForce;                           // 1: the next LoadPrompts sets every label
// The labels that LoadPrompts has set. Titles and headings of the log tool's grids stand in their records too.
extern Slots<std::optional<Text>, MaxPrompts> PromptSlot;

// Returns the label that a window shows for a slot: its own one by design until LoadPrompts sets another.
Text PromptLabel(int slot, const Text& design);

// Reads prompt.txt of the working folder into PromptTable, and gives each label that differs from its default, or all
// of them where PromptForce is 1, to its window. Clears PromptForce. Failures by number: the file belongs to an
// installation, and without it there is no start.
void LoadPrompts();

// The editor of prompt.txt.
namespace frmPrompt
{
extern Grid SS1;     // default text, new text
extern bool Changed; // a cell has been typed in since the last reading or writing
void Load();         // Reads prompt.txt into the grid.
void mnuSave();      // Writes the grid into prompt.txt, and gives the labels to the windows.
void mnuRevert();    // Does the same with the defaults in the place of the new texts, for every label.
bool mnuExit();      // Asks if there are changes; returns false where the user stays.
} // namespace frmPrompt
