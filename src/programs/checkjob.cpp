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

static void Print(const Text& file, const Text& words)
{
    std::printf("%s\n", ToUtf8(OneLine(file + ": " + words)).c_str());
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

bool RunChecks(const CommandLine& asked, void (*enter)(const Text& project))
{
    Platform.MsgBox = Tell;
    bool good = true, entered = false;
    int hidden = 0;
    Text inFolder;
    for (const Text& file : asked.Files) {
        const Text folder = FolderName(file), name = AsGiven(file);
        if (!entered || (asked.Project.empty() && folder != inFolder))
            EnterProject(folder, enter);
        entered = true;
        inFolder = folder;
        ToolRecord* const tool = ToolOf(file);
        if (const Text words = Unreadable(file, tool); !words.empty()) {
            Print(name, "Error: " + words);
            good = false;
            continue;
        }
        const CheckList list = ListForProject(tool ? tool->Check() : CheckBoring(), asked.All);
        for (const CheckEntry& entry : list.Entries) {
            const CheckWeight weight = WeightOf(entry);
            const Text place = PlaceInWords(entry);
            Print(name, Text(WeightWord(weight)) + ": " + (place.empty() ? "" : place + ": ") + entry.Words);
            good = good && weight != CheckWeight::Error;
        }
        hidden += list.Hidden;
    }
    if (hidden > 0)
        std::printf("%s (--all shows them).\n", ToUtf8(HiddenInWords(hidden)).c_str());
    return good;
}
