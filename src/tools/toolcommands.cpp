// toolcommands.cpp -- the commands that the tools beside the log tool have in common.
#include "tools/toolcommands.h"

#include "grid/gridedit.h"
#include "report/fontprofile.h"
#include "report/prompts.h"
#include "run/batchrun.h"
#include "session/deviceconfig.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/recovery.h"
#include "session/savename.h"
#include "session/session.h"
#include "session/shared.h"
#include "tools/hush.h"
#include "tools/nextfile.h"

#include <algorithm>

Tool NextTool = Tool::Log;

static ToolRecord* recovered; // a tool with a recovery copy in its boxes, whose window is to come
// The save under way, and whether it has written the file.
static ToolRecord* saving;
static bool written;

static const SharedRecord shared[] = {
    {"NextTool", Kind::Session, NextTool},
    {"recovered", Kind::Session, recovered},
    {"saving", Kind::Document, saving},
    {"written", Kind::Document, written},
};

bool Saved(void (*save)())
{
    const int before = FailuresReported;
    save();
    return FailuresReported == before;
}

Text CountOf(int count, const char* one, const char* more)
{
    return PlainNumber(count) + " " + (count == 1 ? one : more);
}

void ForgetSteps(ToolRecord& tool)
{
    for (Grid* grid : tool.grids)
        ForgetSteps(*grid);
}

// ---- Boxes

static std::vector<Text> Labels(int firstSlot, std::initializer_list<const char*> design, int slots)
{
    std::vector<Text> labels(1);
    for (const char* words : design) {
        const int i = int(labels.size()) - 1;
        labels.push_back(i < slots ? PromptLabel(firstSlot + i, words) : Text(words));
    }
    return labels;
}

void LabelGrid(Grid& grid, int titleSlot, const char* title, int firstSlot, std::initializer_list<const char*> columns,
               int slots)
{
    grid.title = PromptLabel(titleSlot, title);
    grid.headings = Labels(firstSlot, columns, slots);
    grid.headings.resize(size_t(grid.columns) + 1);
}

void LabelRows(Grid& grid, int titleSlot, const char* title, int firstSlot, std::initializer_list<const char*> rows)
{
    grid.title = PromptLabel(titleSlot, title);
    grid.rowHeadings = Labels(firstSlot, rows, int(rows.size()));
}

static void BlankBoxes(ToolRecord& tool)
{
    for (Grid* grid : tool.grids) {
        grid->Clear();
        if (grid->maxRows > 0)
            grid->Resize(grid->minRows, grid->columns);
        grid->row = grid->column = 1;
        grid->selected = {};
    }
    if (tool.memo)
        tool.memo->text = "";
}

// Boxes and record as for a file that is not there yet.
static void StartAnew(ToolRecord& tool)
{
    BlankBoxes(tool);
    tool.ClearArrays();
    tool.FileName = tool.RecentFile = "";
    FileChanged = 0;
    ForgetSteps(tool);
}

void LoadTool(ToolRecord& tool)
{
    if (recovered == &tool) {
        recovered = nullptr;
        return;
    }
    StartAnew(tool);
    tool.active = nullptr;
    tool.Label();
    for (Grid* grid : tool.grids)
        grid->changed = [] { FileChanged = 1; };
    tool.Title = tool.titleInFront ? Text(tool.title) : ProjectPath + " - " + tool.title;
}

int RecoveryNumber(Tool tool)
{
    return int(tool) + LogTool;
}

static const char* const besideCopy = ".memo";

void WriteToolCopy(ToolRecord& tool, const Text& copy)
{
    const Hushed quiet;
    tool.FileName = copy;
    if (!tool.memo) {
        tool.SaveFile();
        return;
    }
    // More lines than a file takes would not be saved, so the text has a file of its own.
    WriteWholeFile(copy + besideCopy, tool.memo->text);
    const Kept text(tool.memo->text);
    tool.memo->text = "";
    tool.SaveFile();
}

void OpenToolCopy(ToolRecord& tool, const Text& copy, const Text& name)
{
    LoadTool(tool);
    tool.FileName = copy;
    tool.OpenFile();
    tool.FileName = name;
    tool.FillForm();
    if (tool.memo && FileExists(copy + besideCopy))
        tool.memo->text = ReadWholeFile(copy + besideCopy);
    if (name.empty())
        tool.Title = tool.title;
    ForgetSteps(tool);
    FileChanged = 1;
    WatchTool(RecoveryNumber(tool.tool));
    recovered = &tool;
}

void ShowRecoveredTool()
{
    if (recovered)
        Platform.ShowTool(recovered->tool);
}

// ---- File

// The question before something that would drop unsaved work. False: the user has thought better of it, or wished to
// save and nothing was saved.
static bool SaveFirst(ToolRecord& tool, const char* question)
{
    if (FileChanged != 1)
        return true;
    switch (MsgBox(question, YesNoCancel, Question)) {
    case Yes:
        return ToolSave(tool);
    case No:
        DropCopy();
        return true;
    default:
        return false;
    }
}

static void Clear(ToolRecord& tool)
{
    LeaveDocument();
    StartAnew(tool);
    tool.Title = tool.title;
    if (DeviceConfig.FontName != "Arial")
        AssignFont();
}

void ToolNew(ToolRecord& tool)
{
    if (SaveFirst(tool, "Would you like to save the current file before starting a new file?"))
        Clear(tool);
}

static const char* const opening = "Would you like to save the current file before opening another file?";

// False: the file is not there, or was not read whole, which was told.
static bool Open(ToolRecord& tool, const Text& name)
{
    Clear(tool);
    tool.FileName = name;
    const bool whole = Saved(tool.OpenFile) && FileExists(tool.FileName);
    tool.FillForm();
    ForgetSteps(tool);
    FileChanged = 0;
    tool.RecentFile = whole ? tool.FileName : "";
    return whole;
}

void ToolOpen(ToolRecord& tool)
{
    if (!SaveFirst(tool, opening))
        return;
    DialogMode = tool.openMode;
    Platform.ShowChooser();
    if (!DialogResult.empty())
        Open(tool, DialogResult);
    KeepCopy(); // what was dropped by a No, where the user has chosen nothing then
}

void ToolOpenNamed(ToolRecord& tool, const Text& name)
{
    if (!SaveFirst(tool, opening) || Open(tool, name))
        return;
    tool.FileName = "";
    tool.Title = tool.title;
}

void ToolOpenFromOutside(ToolRecord& tool, const Text& name)
{
    const bool map = IsConversionMap(name); // its editor opens over the log window
    if (!map && ToolOfFile(name) == tool.tool)
        return ToolOpenNamed(tool, name);
    if (ToolHandOver(tool, map ? Tool::Log : ToolOfFile(name)))
        NextFile = name;
}

// The tool's save, with its recovery copy.
static bool Write(ToolRecord& tool)
{
    saving = &tool;
    SaveDocument([] { written = saving->SaveFile(); });
    return written;
}

bool ToolSave(ToolRecord& tool)
{
    if (tool.FileName.empty())
        return ToolSaveAs(tool);
    if (!Write(tool))
        return false;
    FileChanged = 0;
    tool.RecentFile = tool.FileName;
    return true;
}

bool ToolSaveAs(ToolRecord& tool)
{
    DialogMode = int16_t(tool.openMode + 1);
    Platform.ShowChooser();
    if (DialogResult.empty())
        return false;
    const Text name = WithEnding(DialogResult, tool.ending);
    if (!MayReplace(name))
        return false;
    const Text before = tool.FileName;
    tool.FileName = name;
    if (!Write(tool)) {
        tool.FileName = before;
        return false;
    }
    FileChanged = 0;
    tool.RecentFile = name;
    tool.Title = tool.titleInFront ? tool.title + (" - " + name) : name + " - " + tool.title;
    return true;
}

namespace
{
// The window is out of the way while something is drawn, and back however that ends.
struct OutOfTheWay {
    explicit OutOfTheWay(ToolRecord& hidden) : tool(hidden)
    {
        if (tool.ShowForm)
            tool.ShowForm(false);
    }
    ~OutOfTheWay()
    {
        if (tool.ShowForm)
            tool.ShowForm(true);
    }
    OutOfTheWay(const OutOfTheWay&) = delete;
    OutOfTheWay& operator=(const OutOfTheWay&) = delete;

    ToolRecord& tool;
};
} // namespace

void ToolPreview(ToolRecord& tool)
{
    const bool named = !tool.FileName.empty();
    if (named && FileChanged == 1 && !ToolSave(tool))
        return;
    const OutOfTheWay hidden(tool);
    jobCode = tool.drawJob;
    if (!named) {
        Platform.ShowDrawPrint();
        return;
    }
    singleFile = 1;
    singleFileName = tool.FileName;
    DrawPrintLoad();
    DrawPrintOk();
    singleFile = 0;
}

static void Batch(ToolRecord& tool, int job)
{
    if (!SaveFirst(tool, "Would you like to save the current file before drawing?"))
        return;
    const OutOfTheWay hidden(tool);
    jobCode = int16_t(job);
    Platform.ShowDrawPrint();
}

void ToolBatchDraw(ToolRecord& tool)
{
    Batch(tool, tool.drawJob);
}

void ToolPrint(ToolRecord& tool)
{
    Batch(tool, tool.drawJob + 1);
}

// ---- The way out

static bool Leave(ToolRecord& tool, Tool next)
{
    if (!SaveFirst(tool, "Would you like to save the current file before quitting?"))
        return false;
    LeaveDocument();
    FileChanged = 0;
    NextTool = next;
    if (tool.Unload)
        tool.Unload();
    return true;
}

bool ToolHandOver(ToolRecord& tool, Tool next)
{
    return Leave(tool, next);
}

bool ToolExit(ToolRecord& tool)
{
    if (!Leave(tool, Tool::Log))
        return false;
    if (DeviceChanged == 1)
        SaveDevice();
    Platform.EndProcess();
    return true;
}

// ---- Edit

Grid& ActiveGrid(ToolRecord& tool)
{
    return tool.active ? *tool.active : *tool.grids.front();
}

// True where rows may go in and out; else the user is told.
static bool TakesRows(const ToolRecord& tool, const Grid& grid)
{
    if (std::find(tool.rowsGoIn.begin(), tool.rowsGoIn.end(), &grid) != tool.rowsGoIn.end())
        return true;
    MsgBox("It is not possible to insert or delete rows in this box.", OkOnly, Exclamation);
    return false;
}

void ToolInsertRow(ToolRecord& tool)
{
    if (tool.InsertRow)
        return tool.InsertRow();
    Grid& grid = ActiveGrid(tool);
    if (TakesRows(tool, grid) && InsertRow(grid))
        FileChanged = 1;
}

void ToolDeleteRow(ToolRecord& tool)
{
    if (tool.DeleteRow)
        return tool.DeleteRow();
    Grid& grid = ActiveGrid(tool);
    if (!TakesRows(tool, grid))
        return;
    DeleteRow(grid);
    FileChanged = 1;
}
