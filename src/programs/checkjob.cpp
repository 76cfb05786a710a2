// checkjob.cpp -- the check lists of the tools, on standard output.
#include "programs/checkjob.h"

#include "editors/borinput.h"
#include "editors/checklist.h"
#include "gis/gistool.h"
#include "sections/crosstool.h"
#include "sections/fencetool.h"
#include "sections/soiltool.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/session.h"
#include "tools/checkview.h"
#include "tools/toolcommands.h"

#include <cstdio>

// What was told while a file was read; empty: it is in the boxes.
static std::vector<Text> told;

static int Tell(const Text& words, Buttons buttons, Icon)
{
    told.push_back(words);
    return buttons == OkOnly ? Ok : No;
}

static Text OneLine(Text words)
{
    for (char& letter : words)
        if (letter == '\r' || letter == '\n')
            letter = ' ';
    return words;
}

// The tool of a file by its ending; null for a boring and for a file of no tool.
static ToolRecord* ToolOf(const Text& file)
{
    for (ToolRecord* tool : {&CrossForm, &FenceForm, &SoilForm, &GisForm})
        if (UpperCase(file).ends_with(tool->ending))
            return tool;
    return nullptr;
}

static bool IsBoring(const Text& file)
{
    return UpperCase(file).ends_with(".BOR");
}

// The file into the boxes of its tool, as that tool opens it.
static void Open(const Text& file, ToolRecord* tool)
{
    FileChanged = 0;
    if (!tool)
        return frmBorinput::OpenNamed(file);
    LoadTool(*tool);
    ToolOpenNamed(*tool, file);
}

// What is wrong with the file as such; "" for nothing.
static Text Unreadable(const Text& file, ToolRecord* tool)
{
    if (!tool && !IsBoring(file))
        return "A check reads .BOR, .CRO, .FEN, .SOI and .GIS files.";
    if (!FileExists(file))
        return "The file is not found or cannot be read.";
    told.clear();
    Open(file, tool);
    return told.empty() ? "" : told.front();
}

// As the command line had it, where it had no folder from the root.
static Text AsGiven(const Text& file)
{
    const Text here = FullPath("") + "/";
    return file.starts_with(here) ? file.substr(here.size()) : file;
}

// The boxes of the log tool, and the words of all of them, by the set-up of the project. An office without words of its
// own has those by design.
static void EnterProject(const Text& project, void (*enter)(const Text& project))
{
    enter(project);
    try {
        frmBorinput::Load();
    } catch (const RunTimeError&) {
    }
    enter(project);
}

// One file, with the project it is in being the current one. False: it could not be read.
static bool CheckFile(CheckRun& run, const Text& file)
{
    const Text name = AsGiven(file);
    ToolRecord* const tool = ToolOf(file);
    if (const Text words = Unreadable(file, tool); !words.empty()) {
        run.Print(OneLine(name + ": Error: " + words));
        run.Good = false;
        return false;
    }
    const CheckList list = ListForProject(tool ? tool->Check() : CheckBoring(), run.Asked.All);
    for (const CheckEntry& entry : list.Entries) {
        const CheckWeight weight = WeightOf(entry);
        const Text place = PlaceInWords(entry);
        run.Print(
            OneLine(name + ": " + Text(WeightWord(weight)) + ": " + (place.empty() ? "" : place + ": ") + entry.Words));
        run.Good = run.Good && weight != CheckWeight::Error;
    }
    run.Hidden += list.Hidden;
    return true;
}

void RunChecks(CheckRun& run)
{
    Platform.MsgBox = Tell;
    bool entered = false;
    Text inFolder;
    for (const Text& file : run.Asked.Files) {
        const Text folder = FolderName(file);
        if (!entered || (run.Asked.Project.empty() && folder != inFolder))
            EnterProject(folder, run.Enter);
        entered = true;
        inFolder = folder;
        run.Done(run, CheckFile(run, file));
    }
}

void PrintHidden(int hidden)
{
    if (hidden > 0)
        std::printf("%s (--all shows them).\n", ToUtf8(HiddenInWords(hidden)).c_str());
}
