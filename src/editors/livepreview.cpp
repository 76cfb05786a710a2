// livepreview.cpp -- a page of the boring as it stands in the boxes.
#include "editors/livepreview.h"

#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "boring/boringfile.h"
#include "canvas/batch.h"
#include "canvas/metaugl.h"
#include "canvas/screenview.h"
#include "editors/fillform.h"
#include "editors/hush.h"
#include "logrender/logdata.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/session.h"

#include <algorithm>
#include <filesystem>

static LivePage* drawn; // where the run leaves its page

// The page is complete: taken, and the run ended.
static void TakePage()
{
    drawn->List = PageList;
    drawn->Start = LogPage.PageStartDepth;
    drawn->End = LogPage.PageEndDepth;
    // The columns leave the pen on their baseline; the depths begin a tenth of an inch below it.
    drawn->Top = PageCanvas.penY + 0.1 * PageCanvas.unitsPerInch;
    drawn->UnitsPerDepth =
        LogGeometry.DepthPerInch > 0 ? double(PageCanvas.unitsPerInch) / LogGeometry.DepthPerInch : 0;
    ExitRun();
}

bool DrawLivePage(int number, const Text& folder, LivePage& page)
{
    const Hushed quiet;
    const Kept name(BoringFileName);
    const Kept runFolder(RunFolder);
    const Kept record(BoringData);
    const Kept list(PageList);
    const Kept canvas(PageCanvas);
    const Kept pages(RunPages);
    const Kept geometry(LogGeometry);
    const Kept job(jobCode), single(singleFile), intro(introType), count(runFileCount), stop(stopRequested);
    const Kept singleName(singleFileName), folderShown(lastDir), firstFile(runFiles[1]);
    const Kept all(frmDrawPrint::Dialog.AllPages), unloaded(frmDrawPrint::Dialog.Unloaded);
    const Kept option(frmDrawPrint::Dialog.ReportOption);
    const Kept which(frmDrawPrint::Dialog.Text1);
    const Kept close(frmDrawPrint::CloseWindow);
    Platform.ShowPage = TakePage;
    const Text file = JoinPath(folder, "preview.BOR");
    std::error_code ignored;
    std::filesystem::remove(NativePath(file), ignored);
    BoringFileName = file;
    RunFolder = folder;
    SaveBoringFile();
    if (!FileExists(file)) // more lines than a boring holds
        return false;
    LivePage fresh;
    fresh.Pages = PagesOfLog();
    fresh.Page = std::clamp(number, 1, std::max(fresh.Pages, 1));
    drawn = &fresh;
    frmDrawPrint::Dialog.AllPages = false;
    frmDrawPrint::Dialog.Text1 = PlainNumber(fresh.Page);
    frmDrawPrint::Dialog.ReportOption = 0;
    frmDrawPrint::CloseWindow = nullptr;
    jobCode = 1;
    singleFile = 1;
    singleFileName = file;
    DrawPrintOk();
    drawn = nullptr;
    if (fresh.List.Objects.empty())
        return false;
    page = std::move(fresh);
    return true;
}

int LayerAt(const LivePage& page, double y)
{
    if (page.UnitsPerDepth <= 0)
        return 0;
    const double depth = page.Start + (y - page.Top) / page.UnitsPerDepth;
    if (depth < page.Start || depth > page.End)
        return 0;
    const int rows = frmBorinput::SSLith.DataRowCount();
    for (int row = 1; row <= rows; ++row)
        if (depth <= TextNumber(frmBorinput::SSLith.Cell(row, 1)))
            return row;
    return 0;
}
