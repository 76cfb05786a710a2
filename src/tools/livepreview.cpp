// livepreview.cpp -- a page of what stands in the boxes of a tool.
#include "tools/livepreview.h"

#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "boring/boringfile.h"
#include "boring/textlines.h"
#include "canvas/metaugl.h"
#include "logrender/logdata.h"
#include "report/heading.h"
#include "report/projectfiles.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/session.h"
#include "session/shared.h"
#include "tools/hush.h"
#include "tools/toolcommands.h"

#include <algorithm>
#include <filesystem>

static LivePage* drawn; // where the run leaves its page

static const SharedRecord shared[] = {
    {"drawn", Kind::Run, drawn},
};

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
// A run that nobody is to notice.
struct QuietRun {
    QuietRun(const Text& folder, const Text& name, void (*takePage)(), LivePage& fresh)
    {
        RunPages.printedName = name; // the pages shall be those that Preview shows
        Platform.ShowPage = takePage;
        RunFolder = folder;
        frmDrawPrint::CloseWindow = nullptr;
        drawn = &fresh;
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
    const KeepAll records{Kind::Run};
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

template <int Rows>
static void Flow(Slots<Text, Rows>& lines, int count)
{
    const Text text = FlowingText(lines, count);
    lines = {};
    lines[1] = text;
}

// What a boring file says, its texts as they flow in their boxes: files whose lines are cut at other places say the
// same. So do those with other widths of columns, which the boxes put in as a file is opened. "" for a file that is of
// another form or ends early. Uses the records of the log tool.
static std::string WordsOf(const Text& file, const Text& folder)
{
    const Text words = FreshFile(folder, ".words");
    const int failures = FailuresReported;
    BoringData = BoringRecord();
    BoringFileName = file;
    DialogMode = 2; // the current form
    if (!FileExists(file) || !LineReader(file).Line().starts_with("5."))
        return "";
    OpenBoringFile2();
    for (int row = 1; row <= BoringData.RepPartCount; ++row)
        BoringData.RepParts[row].Width.clear();
    Flow(BoringData.Des, BoringData.DesCount);
    Flow(BoringData.WellNotes, BoringData.WellNoteCount);
    Flow(BoringData.Remarks, BoringData.RemarkCount);
    Flow(BoringData.BottNotes, MaxBottNotes);
    BoringData.DesCount = BoringData.WellNoteCount = BoringData.RemarkCount = 1;
    WriteBoring(words, PlainNumber(int(BoringData.Style)), PlainNumber(int(BoringData.Draft)), Durability::Scratch);
    return FailuresReported == failures ? ReadWholeFile(words) : "";
}

// Where nothing has been changed Preview saves nothing, and shows the lines of the file as they were cut, maybe by
// another program: the live page then shows the same. saved: what the boxes have been saved in, which is replaced.
static void TakeOwnFile(const Text& own, const Text& saved, const Text& folder)
try {
    const std::string words = WordsOf(own, folder);
    if (!words.empty() && words == WordsOf(saved, folder))
        WriteWholeFile(saved, ReadWholeFile(own), Durability::Scratch);
} catch (const RunTimeError&) { // the file cannot be read: the boxes are what there is
}

bool DrawLivePage(int number, const Text& folder, LivePage& page)
{
    LivePage fresh;
    QuietRun run(folder, BoringFileName, TakeLogPage, fresh);
    const Text own = BoringFileName;
    SourceFolder = FolderName(own);
    BoringFileName = FreshFile(folder, ".BOR");
    SaveBoringFile();
    if (!FileExists(BoringFileName)) // more lines than a boring holds
        return false;
    const Text file = BoringFileName;
    if (FileChanged == 0)
        TakeOwnFile(own, file, folder);
    fresh.Pages = PagesOfLog();
    fresh.Page = std::clamp(number, 1, std::max(fresh.Pages, 1));
    frmDrawPrint::Dialog.AllPages = false;
    frmDrawPrint::Dialog.Text1 = PlainNumber(fresh.Page);
    frmDrawPrint::Dialog.ReportOption = 0;
    run.Draw(DrawLogsJob, file);
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
    QuietRun run(folder, tool.FileName, TakePage, fresh);
    tool.FileName = FreshFile(folder, tool.ending);
    if (tool.SaveFile())
        run.Draw(tool.drawJob, tool.FileName);
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
