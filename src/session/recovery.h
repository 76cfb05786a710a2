// recovery.h -- copies of what is not saved yet, so that a crash or a power loss costs a minute's work at most.
//
// While FileChanged is 1 the document of the tool in front is written once a minute by the tool's own save procedure,
// into a folder of the program's own, beside a small text file:
//     4711-27.lock       held as long as the run of the program lives
//     4711-27-1.txt      tool, the document's own name (may be empty), time, name of the copy, mark of the own file
//     4711-27-1-7.copy   the copy; a tool may put more beside it, under names that begin with the copy's
// A copy goes when a save has really written the file, when the user drops the changes, and at a clean end. It stays
// when a save was refused or failed, although the flag is 0 then. What a run without its lock has left is offered at
// the next start.
#pragma once

#include "session/slots.h"
#include "session/text.h"

enum RecoveryToolNumber { LogTool = 1, CrossTool, FenceTool, SoilTool, GisTool };
constexpr int MaxRecoveryTools = 5;

// What a tool has to do with its copies.
struct RecoveryTool {
    Text Name;                      // as in the title of its window
    const Text* FileName = nullptr; // the name of its open document; empty: it was never saved
    // Writes what Save would write into this file, with no check, message or change of any state.
    void (*Write)(const Text& copy) = nullptr;
    // Takes the copy into the boxes, with the document's own name and FileChanged 1.
    void (*Open)(const Text& copy, const Text& name) = nullptr;
};
extern Slots<RecoveryTool, MaxRecoveryTools> RecoveryTools; // filled by the start of the desktop program
extern int RecoveryInterval;                                // milliseconds between two copies

// Begins the copies of this run of the program: makes the folder if need be and takes its lock. Where that fails there
// are no copies.
void StartRecovery(const Text& folder);
// Says which tool is in front: FileChanged speaks of its document from now on.
void WatchTool(int tool);
// Writes the copy when it is time to, and takes it away when FileChanged has become 0 with no save that failed. To be
// called again and again, some ten times in an interval.
void KeepCopy();
// Performs a save of the tool in front. The copy goes if the file has been written, else it is made anew and stays.
void SaveDocument(void (*save)());
// Makes the copy anew, to stay as after a save that failed: the user wished to save, and it did not come to it.
void OweCopy();
// Returns whether the last save of the document in front has failed or was refused, and none has written it since.
bool SaveOwed();
// Takes the copy away: the user has dropped the changes, by the answer No.
void DropCopy();
// Ends the copies of the document in front, since another one comes into the tool's boxes or its window closes. The
// copy of a document whose save failed is left for the next start.
void LeaveDocument();
// Asks at the start about what other runs have left, newest first, until the user has opened one. No takes the copy
// away; Cancel, which is also Escape and the closing of the box, keeps it for the next start, and a tool that is not
// there keeps its copies.
void OfferCopies();
// Ends the run cleanly: its copies and its lock go, but for copies of documents whose save failed.
void EndRecovery();
