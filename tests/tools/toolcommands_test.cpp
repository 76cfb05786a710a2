// toolcommands_test.cpp -- the commands of the tools beside the log tool, each test for all four, with no window.
#include "tools/toolcommands.h"

#include "boring/boringdata.h"
#include "boring/opensave.h"
#include "editors/borinput.h"
#include "gis/gistool.h"
#include "grid/gridedit.h"
#include "places.h"
#include "report/heading.h"
#include "report/projectfiles.h"
#include "report/prompts.h"
#include "run/batchrun.h"
#include "sections/crossrun.h"
#include "sections/crosstool.h"
#include "sections/fencetool.h"
#include "sections/soiltool.h"
#include "session/deviceconfig.h"
#include "session/files.h"
#include "session/recovery.h"
#include "session/session.h"
#include "testing.h"
#include "tools/livepreview.h"

static ToolRecord* const tools[] = {&CrossForm, &FenceForm, &SoilForm, &GisForm};
static Text chosen; // what the user picks in the chooser
static int16_t modeAsked;
static int choosers, dialogs, jobs, ends;
static std::vector<Text> seen; // what happened, in order

static void Prepare(ToolRecord& tool)
{
    chosen = "";
    choosers = dialogs = jobs = ends = 0;
    seen.clear();
    Platform.ShowChooser = [] {
        ++choosers;
        modeAsked = DialogMode;
        DialogResult = chosen;
        DialogMode = -1;
    };
    Platform.ShowDrawPrint = [] { ++dialogs; };
    Platform.EndProcess = [] { ++ends; };
    for (int job = 3; job <= 8; ++job)
        JobTable[job] = [] { ++jobs; };
    JobTable[9] = [] { ++jobs; };
    std::filesystem::remove_all(Scratch("project"));
    std::filesystem::create_directories(Scratch("project"));
    ProjectPath = Scratch("project");
    LoadTool(tool);
    Messages.clear();
    Notices.clear();
}

static Text TitleOf(const ToolRecord& tool, const Text& name)
{
    return &tool == &GisForm ? "VeskGIS - " + name : name + " - " + tool.title;
}

// The user types a word into the first cell of the tool's first grid.
static void Type(ToolRecord& tool, const char* words)
{
    TypeCell(*tool.grids[0], 1, 1, words);
}

static Text Typed(ToolRecord& tool)
{
    return tool.grids[0]->Cell(1, 1);
}

static void SaveAs(ToolRecord& tool, const Text& name)
{
    chosen = name;
    CHECK(ToolSaveAs(tool));
}

static Text Folder(const Text& name)
{
    return Scratch("project/" + name);
}

// ---- Titles

TEST_CASE("at its opening a tool has the project folder in its title, no file, and nothing changed; the workbench has "
          "its name alone")
{
    for (ToolRecord* tool : tools) {
        CAPTURE(tool->window);
        tool->FileName = "old";
        FileChanged = 1;
        Prepare(*tool);
        CHECK(tool->FileName == "");
        CHECK(FileChanged == 0);
        CHECK(tool->Title == (tool == &GisForm ? Text("VeskGIS") : ProjectPath + " - " + tool->title));
    }
    CHECK(frmCross::Title.ends_with(" - VeskCross - Cross Section Diagram"));
    CHECK(frmFence::Title.ends_with(" - VeskFence - Fence Diagram"));
    CHECK(frmSoil::Title.ends_with(" - VeskSoil - Soil Analysis Table"));
}

TEST_CASE("what an earlier visit to a tool has left in its boxes is gone at the next one")
{
    for (ToolRecord* tool : tools) {
        CAPTURE(tool->window);
        Prepare(*tool);
        Type(*tool, "left over");
        if (tool->memo)
            tool->memo->text = "left over";
        LoadTool(*tool);
        for (const Grid* grid : tool->grids) {
            CHECK(grid->DataRowCount() == 0);
            CHECK(grid->done.empty());
        }
        CHECK((!tool->memo || tool->memo->text.empty()));
    }
}

TEST_CASE("New leaves the tool's title alone, and empty boxes; Save As and Open show the whole path")
{
    for (ToolRecord* tool : tools) {
        CAPTURE(tool->window);
        Prepare(*tool);
        Type(*tool, "one");
        SaveAs(*tool, Folder("A" + Text(tool->ending)));
        CHECK(tool->Title == TitleOf(*tool, Folder("A" + Text(tool->ending))));
        CHECK(FileChanged == 0);
        ToolNew(*tool);
        CHECK(tool->Title == tool->title);
        CHECK(tool->FileName == "");
        CHECK(Typed(*tool) == "");
        ToolOpen(*tool);
        CHECK(tool->Title == TitleOf(*tool, Folder("A" + Text(tool->ending))));
        CHECK(Typed(*tool) == "one");
        CHECK(FileChanged == 0);
        CHECK(Messages.empty());
    }
}

TEST_CASE("a table of the workbench opened without its ending has the whole name, and is saved where it came from")
{
    const std::string table = Lines({" 1 ", "SM", "", " 1 ", "B-1", "", "", "", "B-1.BOR", "3", ""});
    for (const char* ending : {".GIS", ".gis"}) {
        for (const bool named : {false, true}) {
            CAPTURE(ending);
            CAPTURE(named);
            Prepare(GisForm);
            WriteScratch("project/SITE" + Text(ending), table);
            chosen = Folder("SITE");
            if (named)
                ToolOpenNamed(GisForm, chosen);
            else
                ToolOpen(GisForm);
            CHECK(Messages.empty());
            CHECK(frmGIS::FileName == Folder("SITE.gis"));
            CHECK(frmGIS::Title == "VeskGIS - " + Folder("SITE.gis"));
            Type(GisForm, "CL");
            CHECK(ToolSave(GisForm));
            CHECK(Messages.empty());
            CHECK(ReadScratch("project/SITE" + Text(ending)) ==
                  Lines({" 1 ", "CL", "", " 1 ", "B-1", "", "", "", "B-1.BOR", "3", ""}));
            CHECK(FilesIn(Folder(""), "").size() == 1);
        }
    }
}

TEST_CASE("a table of the workbench that is not there keeps its name as typed, and is told with its ending")
{
    Prepare(GisForm);
    chosen = Folder("NONE");
    ToolOpen(GisForm);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "GIS File Not Found: " + Folder("NONE.gis"));
    CHECK(Messages[0].icon == Exclamation);
    CHECK(frmGIS::FileName == Folder("NONE"));
    CHECK(frmGIS::Title == "VeskGIS - " + Folder("NONE"));
}

TEST_CASE("New gives the boxes the font of the set-up where that is not the usual one")
{
    for (ToolRecord* tool : tools) {
        Prepare(*tool);
        DeviceConfig.FontName = "Courier";
        frmSoil::MemoSoil.fontName = "Arial";
        ToolNew(*tool);
        CHECK(frmSoil::MemoSoil.fontName == "Courier");
        DeviceConfig.FontName = "Arial";
        frmSoil::MemoSoil.fontName = "Arial";
    }
}

TEST_CASE("the chooser is asked in the modes of the tool")
{
    const int16_t modes[] = {3, 5, 7, 17};
    for (int i = 0; i < 4; ++i) {
        CAPTURE(tools[i]->window);
        Prepare(*tools[i]);
        ToolOpen(*tools[i]);
        CHECK(modeAsked == modes[i]);
        CHECK_FALSE(ToolSave(*tools[i])); // no name: Save As
        CHECK(modeAsked == modes[i] + 1);
        CHECK(choosers == 2);
    }
}

// ---- Questions

static void CheckQuestion(const char* words)
{
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == words);
    CHECK(Messages[0].buttons == YesNoCancel);
    CHECK(Messages[0].icon == Question);
    Messages.clear();
}

TEST_CASE("New asks about a changed file: Cancel keeps it, Yes saves it, No drops the change")
{
    const char* const words = "Would you like to save the current file before starting a new file?";
    for (ToolRecord* tool : tools) {
        CAPTURE(tool->window);
        const Text name = Folder("A" + Text(tool->ending));
        Prepare(*tool);
        SaveAs(*tool, name);
        Type(*tool, "typed");
        Answers = {Cancel};
        ToolNew(*tool);
        CheckQuestion(words);
        CHECK(Typed(*tool) == "typed");
        CHECK(FileChanged == 1);
        CHECK(tool->FileName == name);
        Answers = {Yes};
        ToolNew(*tool);
        CheckQuestion(words);
        CHECK(ReadWholeFile(name).find("typed") != std::string::npos);
        CHECK(Typed(*tool) == "");
        CHECK(FileChanged == 0);
        Type(*tool, "dropped");
        Answers = {No};
        ToolNew(*tool);
        CheckQuestion(words);
        CHECK(Typed(*tool) == "");
        CHECK(FileChanged == 0);
        CHECK(choosers == 1);
    }
}

TEST_CASE("Open asks once about a changed file; after No a cancelled chooser leaves form and flag as they were")
{
    const char* const words = "Would you like to save the current file before opening another file?";
    for (ToolRecord* tool : tools) {
        CAPTURE(tool->window);
        Prepare(*tool);
        Type(*tool, "one");
        SaveAs(*tool, Folder("A" + Text(tool->ending)));
        ToolNew(*tool);
        Type(*tool, "typed");
        chosen = Folder("A" + Text(tool->ending));
        choosers = 0;
        Answers = {Cancel};
        ToolOpen(*tool);
        CheckQuestion(words);
        CHECK(choosers == 0);
        CHECK(Typed(*tool) == "typed");
        Answers = {No};
        chosen = "";
        ToolOpen(*tool);
        CheckQuestion(words);
        CHECK(choosers == 1);
        CHECK(Typed(*tool) == "typed");
        CHECK(FileChanged == 1);
        CHECK(tool->Title == tool->title);
        Answers = {No};
        chosen = Folder("A" + Text(tool->ending));
        ToolOpen(*tool);
        CheckQuestion(words);
        CHECK(Typed(*tool) == "one");
        CHECK(FileChanged == 0);
    }
}

TEST_CASE("Yes to a question of a file without a name is Save As, and its Cancel stops the command that asked")
{
    for (ToolRecord* tool : tools) {
        CAPTURE(tool->window);
        Prepare(*tool);
        Type(*tool, "typed");
        Answers = {Yes, Yes, Yes, Yes, Yes};
        ToolNew(*tool);
        CHECK(choosers == 1);
        ToolOpen(*tool);
        CHECK(choosers == 2); // the chooser of Open did not come
        ToolBatchDraw(*tool);
        CHECK_FALSE(ToolHandOver(*tool, Tool::Log));
        CHECK_FALSE(ToolExit(*tool));
        CHECK(choosers == 5);
        CHECK(dialogs == 0);
        CHECK(ends == 0);
        CHECK(Typed(*tool) == "typed");
        CHECK(FileChanged == 1);
    }
}

TEST_CASE("Save As adds the ending, asks before it overwrites, and No leaves file, name and flag")
{
    for (ToolRecord* tool : tools) {
        CAPTURE(tool->window);
        Prepare(*tool);
        const Text name = Folder("COPY" + Text(tool->ending));
        WriteWholeFile(name, "old");
        Type(*tool, "typed");
        chosen = Folder("COPY");
        Answers = {No};
        CHECK_FALSE(ToolSaveAs(*tool));
        REQUIRE(Messages.size() == 1);
        CHECK(Messages[0].words == "The file, " + name + " already exists.  Do you wish to overwrite it?");
        CHECK(Messages[0].buttons == YesNo);
        CHECK(Messages[0].icon == Question);
        CHECK(ReadWholeFile(name) == "old");
        CHECK(tool->FileName == "");
        CHECK(FileChanged == 1);
        Answers = {Yes};
        CHECK(ToolSaveAs(*tool));
        CHECK(ReadWholeFile(name).find("typed") != std::string::npos);
        CHECK(tool->FileName == name);
        CHECK(FileChanged == 0);
        SaveAs(*tool, Folder("plain.x")); // a name that has an ending keeps it
        CHECK(FileExists(Folder("plain.x")));
        CHECK(BoringFileName == "");
    }
}

TEST_CASE("a save that cannot be written leaves flag, name and title, and counts as Cancel to the question before it")
{
    for (ToolRecord* tool : tools) {
        CAPTURE(tool->window);
        Prepare(*tool);
        SaveAs(*tool, Folder("A" + Text(tool->ending)));
        const Text title = tool->Title;
        Type(*tool, "typed");
        chosen = Scratch("nowhere/B") + tool->ending;
        CHECK_FALSE(ToolSaveAs(*tool));
        REQUIRE(Messages.size() == 1);
        CHECK(Messages[0].words.starts_with("Error 76 in Save"));
        CHECK(tool->FileName == Folder("A" + Text(tool->ending)));
        CHECK(tool->Title == title);
        CHECK(FileChanged == 1);
        // A folder in the place of the file cannot be replaced.
        std::filesystem::remove(Folder("A" + Text(tool->ending)));
        std::filesystem::create_directories(Folder("A" + Text(tool->ending)) + "/inside");
        CHECK_FALSE(ToolSave(*tool));
        CHECK(FileChanged == 1);
        Answers = {Yes, Ok, Yes, Ok, Yes, Ok};
        ToolNew(*tool);
        CHECK(Typed(*tool) == "typed");
        CHECK_FALSE(ToolHandOver(*tool, Tool::Log));
        CHECK_FALSE(ToolExit(*tool));
        ToolPreview(*tool);
        CHECK(jobs == 0);
        CHECK(ends == 0);
        CHECK(FileChanged == 1);
    }
}

TEST_CASE("eleven lines of notes are told, block the save, and leave the user in the soil tool")
{
    Prepare(SoilForm);
    SaveAs(SoilForm, Folder("S.SOI"));
    const std::string before = ReadWholeFile(Folder("S.SOI"));
    frmSoil::MemoSoil.text = "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8\r\n9\r\n10\r\n11";
    FileChanged = 1;
    Answers = {Yes};
    CHECK_FALSE(frmSoil::mnuVeskLog());
    REQUIRE(Messages.size() == 2);
    CHECK(Messages[1].words == "Your notes exceed 10 lines.  You must reduce the number of lines by  1.");
    CHECK(ReadWholeFile(Folder("S.SOI")) == before);
    CHECK(FileChanged == 1);
    CHECK(frmSoil::FileName == Folder("S.SOI"));
}

// ---- Files that are not as they should be

TEST_CASE("a name that cannot be opened leaves the cleared form with that name, and the report")
{
    const char* const words[] = {"Error 53 in OpenCrossFile.  Please contact Norvane",
                                 "Error 53 in OpenFenceFile.  Please contact Norvane",
                                 "Error 53 in OpenSoilFile.  Please contact Norvane", nullptr};
    for (int i = 0; i < 4; ++i) {
        ToolRecord& tool = *tools[i];
        CAPTURE(tool.window);
        Prepare(tool);
        Type(tool, "one");
        SaveAs(tool, Folder("A" + Text(tool.ending)));
        chosen = Folder("none" + Text(tool.ending));
        ToolOpen(tool);
        REQUIRE(Messages.size() == 1);
        CHECK(Messages[0].words == (words[i] ? Text(words[i]) : "GIS File Not Found: " + chosen));
        CHECK(tool.FileName == chosen);
        CHECK(tool.Title == TitleOf(tool, chosen));
        CHECK(Typed(tool) == "");
        CHECK(FileChanged == 0);
    }
}

TEST_CASE("a shorter file leaves no rows of the one before in the grids")
{
    Prepare(CrossForm);
    for (int row = 1; row <= 15; ++row)
        TypeCell(frmCross::SS1, row, 2, "B" + PlainNumber(row));
    SaveAs(CrossForm, Folder("LONG.CRO"));
    WriteWholeFile(Folder("SHORT.CRO"), Lines({" 1 ", "5", "A", "", "", "", "", ""}));
    Answers = {Ok};
    ToolOpenNamed(CrossForm, Folder("SHORT.CRO"));
    CHECK(frmCross::SS1.Cell(1, 2) == "A");
    CHECK(frmCross::SS1.DataRowCount() == 1);
}

// ---- Drawing

TEST_CASE("Preview saves a changed file that has a name without asking, and draws it with no dialog")
{
    for (ToolRecord* tool : {&CrossForm, &FenceForm, &SoilForm}) {
        CAPTURE(tool->window);
        Prepare(*tool);
        SaveAs(*tool, Folder("A" + Text(tool->ending)));
        Type(*tool, "typed");
        static std::vector<bool> forms;
        forms.clear();
        tool->ShowForm = [](bool shown) { forms.push_back(shown); };
        ToolPreview(*tool);
        CHECK(jobs == 1);
        CHECK(jobCode == tool->drawJob);
        CHECK(dialogs == 0);
        CHECK(singleFile == 0);
        CHECK(FileChanged == 0);
        CHECK(forms == std::vector<bool>{false, true});
        LineReader list(MasFile());
        CHECK(list.Line() == "1");
        CHECK(list.Line() == Folder("A" + Text(tool->ending)));
        CHECK(ReadWholeFile(Folder("A" + Text(tool->ending))).find("typed") != std::string::npos);
        CHECK(Messages.empty());
    }
}

TEST_CASE("Preview without a name saves nothing and shows the dialog of the drawing job")
{
    const int16_t drawing[] = {3, 5, 7};
    for (int i = 0; i < 3; ++i) {
        ToolRecord& tool = *tools[i];
        CAPTURE(tool.window);
        Prepare(tool);
        Type(tool, "typed");
        ToolPreview(tool);
        CHECK(choosers == 0);
        CHECK(dialogs == 1);
        CHECK(jobs == 0);
        CHECK(jobCode == drawing[i]);
        CHECK(FileChanged == 1);
        CHECK(Messages.empty());
    }
}

TEST_CASE("Batch Draw and Batch Print ask about a changed file: Cancel ends them, No goes on without saving")
{
    for (ToolRecord* tool : {&CrossForm, &FenceForm, &SoilForm}) {
        CAPTURE(tool->window);
        Prepare(*tool);
        SaveAs(*tool, Folder("A" + Text(tool->ending)));
        ToolBatchDraw(*tool);
        CHECK(jobCode == tool->drawJob);
        ToolPrint(*tool);
        CHECK(jobCode == tool->drawJob + 1);
        CHECK(dialogs == 2);
        CHECK(Messages.empty());
        Type(*tool, "typed");
        Answers = {Cancel};
        ToolBatchDraw(*tool);
        CheckQuestion("Would you like to save the current file before drawing?");
        CHECK(dialogs == 2);
        Answers = {No};
        ToolPrint(*tool);
        CheckQuestion("Would you like to save the current file before drawing?");
        CHECK(dialogs == 3);
        CHECK(FileChanged == 1);
        CHECK(ReadWholeFile(Folder("A" + Text(tool->ending))).find("typed") == std::string::npos);
        Answers = {Yes};
        ToolBatchDraw(*tool);
        CHECK(dialogs == 4);
        CHECK(FileChanged == 0);
        CHECK(ReadWholeFile(Folder("A" + Text(tool->ending))).find("typed") != std::string::npos);
        Messages.clear();
    }
}

TEST_CASE("a window that has been hidden for a run comes back even when the run throws")
{
    Prepare(CrossForm);
    static int shown;
    shown = 0;
    CrossForm.ShowForm = [](bool visible) { shown += visible ? 1 : 0; };
    Platform.ShowDrawPrint = [] { throw RunTimeError{482}; };
    CHECK(FailureOf([] { ToolPreview(CrossForm); }) == 482);
    CHECK(shown == 1);
}

// ---- From tool to tool

TEST_CASE("the log tool asks before it hands over: Cancel changes nothing, No clears the flag though nothing was saved")
{
    static std::vector<Tool> shown;
    shown.clear();
    Platform.ShowTool = [](Tool tool) { shown.push_back(tool); };
    FileChanged = 1;
    Answers = {Cancel};
    frmBorinput::mnuvcross();
    CheckQuestion("Would you like to save the current file before quitting?");
    CHECK(shown.empty());
    CHECK(FileChanged == 1);
    Answers = {No};
    frmBorinput::mnuvcross();
    CHECK(FileChanged == 0);
    frmBorinput::mnuvfence();
    frmBorinput::mnuvsoil();
    frmBorinput::mnuvGIS();
    CHECK(shown == std::vector<Tool>{Tool::Cross, Tool::Fence, Tool::Soil, Tool::GIS});
}

TEST_CASE("a tool that is left asks, is closed, and names the one that comes next")
{
    const char* const words = "Would you like to save the current file before quitting?";
    for (ToolRecord* tool : tools)
        for (const Tool next : {Tool::Log, Tool::Cross, Tool::Fence, Tool::Soil, Tool::GIS}) {
            if (next == tool->tool)
                continue;
            CAPTURE(tool->window);
            Prepare(*tool);
            static int closed;
            closed = 0;
            tool->Unload = [] { ++closed; };
            SaveAs(*tool, Folder("A" + Text(tool->ending)));
            Messages.clear();
            Type(*tool, "typed");
            Answers = {Cancel};
            CHECK_FALSE(ToolHandOver(*tool, next));
            CheckQuestion(words);
            CHECK(closed == 0);
            CHECK(FileChanged == 1);
            Answers = {No};
            CHECK(ToolHandOver(*tool, next));
            CheckQuestion(words);
            CHECK(closed == 1);
            CHECK(FileChanged == 0);
            CHECK(NextTool == next);
            CHECK(ReadWholeFile(Folder("A" + Text(tool->ending))).find("typed") == std::string::npos);
            FileChanged = 1;
            Answers = {Yes};
            CHECK(ToolHandOver(*tool, next));
            CHECK(ReadWholeFile(Folder("A" + Text(tool->ending))).find("typed") != std::string::npos);
            CHECK(ends == 0);
            std::filesystem::remove(Folder("A" + Text(tool->ending)));
            Messages.clear();
        }
}

TEST_CASE("Exit of any tool closes it, writes a changed set-up and ends the program; Cancel keeps all of it")
{
    for (ToolRecord* tool : tools) {
        CAPTURE(tool->window);
        Prepare(*tool);
        tool->Unload = [] { seen.push_back(FileExists("device.cfg") ? "closed late" : "closed"); };
        Platform.EndProcess = [] { seen.push_back(FileExists("device.cfg") ? "ended" : "ended early"); };
        DeviceChanged = 1;
        Type(*tool, "typed");
        Answers = {Cancel};
        CHECK_FALSE(ToolExit(*tool));
        CheckQuestion("Would you like to save the current file before quitting?");
        CHECK(seen.empty());
        CHECK(DeviceChanged == 1);
        CHECK(FileChanged == 1);
        Answers = {No};
        CHECK(ToolExit(*tool));
        CHECK(seen == std::vector<Text>{"closed", "ended"});
        CHECK(DeviceChanged == 0);
        CHECK(FileChanged == 0);
        std::filesystem::remove(Scratch("device.cfg"));
        Messages.clear();
    }
}

// ---- Rows

TEST_CASE("rows go in and out where the tool allows it, else the user is told with an exclamation mark")
{
    struct Case {
        ToolRecord& tool;
        std::vector<Grid*> taking, refusing;
    };
    const Case cases[] = {
        {CrossForm, {&frmCross::SS1, &frmCross::SS4}, {&frmCross::SS2, &frmCross::SS3}},
        {FenceForm, {&frmFence::SS1, &frmFence::SS4, &frmFence::SS5}, {&frmFence::SS2, &frmFence::SS3}},
        {SoilForm, {}, {&frmSoil::SS1}},
    };
    for (const Case& one : cases) {
        CAPTURE(one.tool.window);
        Prepare(one.tool);
        for (Grid* grid : one.taking) {
            one.tool.active = grid;
            grid->Cell(1, 1) = "first";
            FileChanged = 0;
            ToolInsertRow(one.tool);
            CHECK(grid->Cell(1, 1) == "");
            CHECK(grid->Cell(2, 1) == "first");
            CHECK(FileChanged == 1);
            FileChanged = 0;
            ToolDeleteRow(one.tool);
            CHECK(grid->Cell(1, 1) == "first");
            CHECK(FileChanged == 1);
            CHECK(Messages.empty());
        }
        FileChanged = 0;
        for (Grid* grid : one.refusing) {
            one.tool.active = grid;
            grid->Cell(1, 1) = "first";
            for (void (*command)(ToolRecord&) : {ToolInsertRow, ToolDeleteRow}) {
                command(one.tool);
                REQUIRE(Messages.size() == 1);
                CHECK(Messages[0].words == "It is not possible to insert or delete rows in this box.");
                CHECK(Messages[0].icon == Exclamation);
                CHECK(Messages[0].buttons == OkOnly);
                Messages.clear();
            }
            CHECK(grid->Cell(1, 1) == "first");
        }
        CHECK(FileChanged == 0);
    }
}

TEST_CASE("with no grid entered yet the row commands work on the first one, and each sets the flag")
{
    for (ToolRecord* tool : {&CrossForm, &FenceForm}) {
        Prepare(*tool);
        ToolDeleteRow(*tool); // of an empty grid: nothing moves
        CHECK(FileChanged == 1);
        FileChanged = 0;
        ToolInsertRow(*tool);
        CHECK(FileChanged == 1);
    }
}

TEST_CASE("a last row that holds text is not pushed out of a grid of fixed rows: a word in passing, and no change")
{
    Prepare(FenceForm);
    for (Grid* grid : {&frmFence::SS1, &frmFence::SS4, &frmFence::SS5}) {
        FenceForm.active = grid;
        grid->Cell(grid->rows, 1) = "last";
        ToolInsertRow(FenceForm);
        CHECK(grid->Cell(grid->rows, 1) == "last");
    }
    CHECK(Notices.size() == 3);
    CHECK(Notices[0] == "The last row holds text, so no row was inserted.");
    CHECK(FileChanged == 0);
    CHECK(Messages.empty());
}

TEST_CASE("the workbench's rows are those of its table, whatever grid was entered last")
{
    Prepare(GisForm);
    GisForm.active = &frmGIS::SSGISLayers;
    frmGIS::SSGISLayers.Cell(1, 1) = "SM";
    frmGIS::SSGISInfo.Cell(1, 1) = "B-1";
    ToolInsertRow(GisForm);
    CHECK(frmGIS::SSGISLayers.Cell(1, 1) == "SM");
    CHECK(frmGIS::SSGISInfo.Cell(2, 1) == "B-1");
    ToolDeleteRow(GisForm);
    CHECK(frmGIS::SSGISInfo.Cell(1, 1) == "B-1");
}

// ---- Labels

TEST_CASE("an office's own words stand over the boxes, and the fifth column of a section has none")
{
    std::filesystem::copy_file(SOURCE_DIR "/data/prompt.txt", Scratch("prompt.txt"));
    std::string words = ReadScratch("prompt.txt");
    // Slots 133 and 211 in force: behind the 215 defaults.
    size_t at = 0;
    for (int line = 1; line < 215 + 133; ++line)
        at = words.find("\r\n", at) + 2;
    words.replace(at, words.find("\r\n", at) - at, "Hole File");
    WriteScratch("prompt.txt", words);
    LoadPrompts();
    LoadTool(CrossForm);
    CHECK(frmCross::SS1.title == "Boring Information");
    CHECK(frmCross::SS1.headings ==
          std::vector<Text>{"", "Distance", "Hole File", "Water Dep.", "Label W/B", "Label T/B"});
    CHECK(frmCross::SS2.rowHeadings[3] == "Vert. Start, End, Inc. ");
    CHECK(frmCross::SS3.rowHeadings[9] == "Parameter (GPn/Pn)");
    LoadTool(FenceForm);
    CHECK(frmFence::SS5.headings[1] == "Bor. #1, Bor. #2");
    CHECK(frmFence::SS3.rowHeadings[5] == "Draw Layers (Y/N) ");
}

// ---- What is kept against a crash

static void UseRecovery()
{
    RecoveryTools[CrossTool] = {"VeskCross", &frmCross::FileName, CopyOfTool<CrossForm>, ToolOfCopy<CrossForm>};
    RecoveryTools[FenceTool] = {"VeskFence", &frmFence::FileName, CopyOfTool<FenceForm>, ToolOfCopy<FenceForm>};
    RecoveryTools[SoilTool] = {"VeskSoil", &frmSoil::FileName, CopyOfTool<SoilForm>, ToolOfCopy<SoilForm>};
    RecoveryTools[GisTool] = {"VeskGIS", &frmGIS::FileName, CopyOfTool<GisForm>, ToolOfCopy<GisForm>};
}

TEST_CASE("a copy of the boxes disturbs nothing, and comes back as the changed file of its name")
{
    UseRecovery();
    static int shown;
    for (ToolRecord* tool : tools) {
        CAPTURE(tool->window);
        Prepare(*tool);
        Type(*tool, "typed");
        tool->FileName = Folder("A" + Text(tool->ending));
        const Text title = tool->Title;
        WriteToolCopy(*tool, Scratch("a.copy"));
        CHECK(tool->FileName == Folder("A" + Text(tool->ending)));
        CHECK(tool->Title == title);
        CHECK(FileChanged == 1);
        CHECK_FALSE(FileExists(tool->FileName));
        FileChanged = 0;
        LoadTool(*tool);
        shown = 0;
        Platform.ShowTool = [](Tool) { ++shown; };
        OpenToolCopy(*tool, Scratch("a.copy"), Folder("A" + Text(tool->ending)));
        CHECK(Typed(*tool) == "typed");
        CHECK(FileChanged == 1);
        CHECK(tool->FileName == Folder("A" + Text(tool->ending)));
        CHECK(tool->Title == TitleOf(*tool, Folder("A" + Text(tool->ending))));
        ShowRecoveredTool();
        CHECK(shown == 1);
        LoadTool(*tool); // the opening of the window leaves what was recovered
        CHECK(Typed(*tool) == "typed");
        ShowRecoveredTool();
        CHECK(shown == 1);
        LoadTool(*tool);
        CHECK(Typed(*tool) == "");
        FileChanged = 0;
    }
}

// A word in the record of every tool, and the session's variables of a save.
static void MarkRecords()
{
    BoringFileName = BoringData.Name = CrossData.reportCells[1] = FenceData.boringCells[1][1] = "marked";
    SoilData.notes[1] = GisData.boringCells[150][GisX] = GisData.layerCells[150][90] = "marked";
    LineBuffer[3] = DialogResult = HeadingWords[7] = VCROSS::CrossRun.layerCode[2][3] = "marked";
    SourceFolder = singleFileName = "marked";
    LineCount = 3;
    DialogMode = 2;
    FailuresReported = 5;
}

static void RecordsAreMarked()
{
    CHECK(BoringFileName == "marked");
    CHECK(BoringData.Name == "marked");
    CHECK(CrossData.reportCells[1] == "marked");
    CHECK(FenceData.boringCells[1][1] == "marked");
    CHECK(SoilData.notes[1] == "marked");
    CHECK(GisData.boringCells[150][GisX] == "marked");
    CHECK(GisData.layerCells[150][90] == "marked");
    CHECK(LineBuffer[3] == "marked");
    CHECK(DialogResult == "marked");
    CHECK(LineCount == 3);
    CHECK(DialogMode == 2);
    CHECK(FailuresReported == 5);
}

TEST_CASE("a copy and a live page of a tool leave the records of all tools as they were, and those of the run")
{
    for (ToolRecord* tool : tools) {
        CAPTURE(tool->window);
        Prepare(*tool);
        Type(*tool, "typed");
        MarkRecords();
        WriteToolCopy(*tool, Scratch("a.copy"));
        RecordsAreMarked();
        JobTable[tool->drawJob] = [] { // as greedy as a run can be
            OpenGISFile("nowhere");
            ++FailuresReported;
            HeadingWords = {};
            VCROSS::ResetCrossRun();
            SourceFolder = BoringFileName = "run";
        };
        LivePage page;
        CHECK_FALSE(DrawLiveTool(*tool, Scratch("project"), page));
        RecordsAreMarked();
        CHECK(HeadingWords[7] == "marked");
        CHECK(VCROSS::CrossRun.layerCode[2][3] == "marked");
        CHECK(SourceFolder == "marked");
        CHECK(singleFileName == "marked");
        CHECK(Messages.empty());
    }
}

TEST_CASE("notes that are too many for a save are in the copy all the same")
{
    Prepare(SoilForm);
    Text notes;
    for (int line = 1; line <= 14; ++line)
        notes += "line " + PlainNumber(line) + "\r\n";
    frmSoil::MemoSoil.text = notes;
    WriteToolCopy(SoilForm, Scratch("a.copy"));
    CHECK(Messages.empty());
    CHECK(frmSoil::MemoSoil.text == notes);
    OpenToolCopy(SoilForm, Scratch("a.copy"), "");
    CHECK(frmSoil::MemoSoil.text == notes);
    CHECK(frmSoil::Title == "VeskSoil - Soil Analysis Table");
    LoadTool(SoilForm);
}
