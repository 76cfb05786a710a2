// sheetrun.cpp -- the loop over the files of log.mas, from the saved files alone.
#include "sections/sheetrun.h"

#include "canvas/metaugl.h"
#include "report/heading.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "session/files.h"
#include "session/platform.h"

void VCROSS::RunSheets(int words, bool (*read)(), void (*draw)())
{
    RunPages.pageCount = 0; // a list that cannot be read is an empty one, not the run before
    getsvfiles();
    getclientlogo(words);
    stopRequested = 0; // a Cancel of the dialog stops no fill of this run
    RunPages.pageIndex = 1;
    while (RunPages.pageIndex <= RunPages.pageCount) {
        Platform.ShowProgress(true);
        RunPages.pageFile = runFiles[RunPages.pageIndex];
        if (!read()) {
            ++RunPages.pageIndex;
            continue;
        }
        PageCanvas.polyCount = 0; // a polygon that failed half-way is of its own page
        draw();
        Platform.ShowProgress(false);
        ShowOrPrint();
    }
    Platform.ShowProgress(false);
}

bool VCROSS::DefinitionThere()
{
    if (FileExists(RunPages.pageFile))
        return true;
    MsgBox("File Not Found: " + RunPages.pageFile +
               ".  Possible solution: Use 'Project: Select Project' to select your project before opening files.",
           OkOnly, Exclamation);
    return false;
}
