// boringboxes.h -- the boxes of the log tool's window as records: where the truth about a boring is while it is
// typed in. The window shows them, FillBoringForm fills them from BoringData, SaveBoringFile takes them from here.
#pragma once

#include "grid/controls.h"
#include "session/slots.h"

namespace frmBorinput
{
extern Grid SSInfo, SSScale, SSRepParts, SSP1Setup, SSP2Setup, SSPar, SSSamp, SSLith, SSGenWellInfo, SSOuterLay,
    SSInnerLay, SSW, SSCuttings, SSFormations, SSLegend;
extern Memo MemoDes, MemoWcon, MemoRemarks, MemoBottNotes;
extern Text txtClient;    // CR LF line ends
extern Text Text1, Text2; // boring name, map file
extern Text cmbLayFile;
extern Text Text1Font, txtClientFont;    // of boxes that are plain texts; "" as designed
extern bool Check1;                      // draft
extern int Option;                       // 1 to 4 as Option1 to Option4, 0 none
extern Text lblWidthtot;                 // total width of the report parts, as "6.35/6.8"
extern bool NarrowNotes;                 // the last layout that said so has the general notes in their narrow form
extern Text Title;                       // of the window
extern Text RecentFile;                  // last read whole or saved, for the list of recent files; "" for none
extern Slots<std::vector<Text>, 4> List; // List1 to List4: description items to click into the description
extern std::vector<Text> LayFiles;       // the list of cmbLayFile: layout files by their bare names, by getfilelist
Grid* BoxGrid(int activeBox);            // returns the grid of that number; null for the text boxes and for 0
} // namespace frmBorinput

namespace frmSoil
{
extern Memo MemoSoil; // the soil table's notes box
}

// Returns the number of pages of the log by the scale that is typed in, as a run would cut them.
int PagesOfLog();
