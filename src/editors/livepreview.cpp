// livepreview.cpp -- a page of what stands in the boxes of a tool.
#include "editors/livepreview.h"

#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "boring/boringfile.h"
#include "canvas/batch.h"
#include "canvas/metaugl.h"
#include "canvas/screenview.h"
#include "editors/fillform.h"
#include "editors/hush.h"
#include "editors/toolcommands.h"
#include "logrender/logdata.h"
#include "report/heading.h"
#include "report/projectfiles.h"
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
    ExitRun();
}

// A page of a log also tells where its depths are.
static void TakeLogPage()
{
    TakePage();
    drawn->Start = LogPage.PageStartDepth;
    drawn->End = LogPage.PageEndDepth;
    // The columns leave the pen on their baseline; the depths begin a tenth of an inch below it.
    drawn->Top = PageCanvas.penY + 0.1 * PageCanvas.unitsPerInch;
    drawn->UnitsPerDepth =
        LogGeometry.DepthPerInch > 0 ? double(PageCanvas.unitsPerInch) / LogGeometry.DepthPerInch : 0;
}

namespace
{
// A run that nobody is to notice: what a run writes is put back too.
struct QuietRun {
    QuietRun(const Text& folder, void (*takePage)(), LivePage& fresh)
    {
        Platform.ShowPage = takePage;
        RunFolder = folder;
        frmDrawPrint::CloseWindow = nullptr;
        drawn = &fresh;
    }
    ~QuietRun()
    {
        drawn = nullptr;
    }
    // The file that the boxes have been saved in, drawn as the job's only one.
    void Draw(int16_t job, const Text& file)
    {
        jobCode = job;
        singleFile = 1;
        singleFileName = file;
        DrawPrintOk();
    }

private:
    const Hushed quiet;
    const Kept<Text> runFolder{RunFolder};
    const Kept<PageListRecord> list{PageList};
    const Kept<CanvasRecord> canvas{PageCanvas};
    const Kept<RunPagesRecord> pages{RunPages};
    const Kept<LogGeometryRecord> geometry{LogGeometry};
    const Kept<int16_t> job{jobCode}, single{singleFile}, intro{introType}, count{runFileCount}, stop{stopRequested};
    const Kept<Text> singleName{singleFileName}, folderShown{lastDir}, firstFile{runFiles[1]};
    const Kept<bool> all{frmDrawPrint::Dialog.AllPages}, unloaded{frmDrawPrint::Dialog.Unloaded};
    const Kept<int> option{frmDrawPrint::Dialog.ReportOption};
    const Kept<Text> which{frmDrawPrint::Dialog.Text1};
    const Kept<void (*)()> close{frmDrawPrint::CloseWindow};
};
} // namespace

// The name of a file of that ending in the private folder, which is not there yet.
static Text FreshFile(const Text& folder, const Text& ending)
{
    const Text file = JoinPath(folder, "preview" + ending);
    std::error_code ignored;
    std::filesystem::remove(NativePath(file), ignored);
    return file;
}

bool DrawLivePage(int number, const Text& folder, LivePage& page)
{
    LivePage fresh;
    QuietRun run(folder, TakeLogPage, fresh);
    const Kept name(BoringFileName);
    const Kept record(BoringData);
    const Kept source(SourceFolder);
    SourceFolder = FolderName(BoringFileName);
    BoringFileName = FreshFile(folder, ".BOR");
    SaveBoringFile();
    if (!FileExists(BoringFileName)) // more lines than a boring holds
        return false;
    fresh.Pages = PagesOfLog();
    fresh.Page = std::clamp(number, 1, std::max(fresh.Pages, 1));
    frmDrawPrint::Dialog.AllPages = false;
    frmDrawPrint::Dialog.Text1 = PlainNumber(fresh.Page);
    frmDrawPrint::Dialog.ReportOption = 0;
    run.Draw(1, BoringFileName);
    if (fresh.List.Objects.empty())
        return false;
    page = std::move(fresh);
    return true;
}

bool DrawLiveTool(ToolRecord& tool, const Text& folder, LivePage& page)
{
    if (tool.drawJob == 0)
        return false;
    LivePage fresh;
    QuietRun run(folder, TakePage, fresh);
    const Kept name(tool.FileName);
    // A section reads the words and the client of the log's records, and the next log may find them so.
    const Kept words(HeadingWords);
    const Kept legend(LegendInUse);
    const Kept boxFill(LegendBoxFill);
    const Kept logo(LogoData);
    const Kept boring(LogBoring);
    tool.FileName = FreshFile(folder, tool.ending);
    tool.Undisturbed([&] {
        if (tool.SaveFile())
            run.Draw(tool.drawJob, tool.FileName);
    });
    if (fresh.List.Objects.empty())
        return false;
    fresh.Page = fresh.Pages = 1;
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
