"""addtool_test.py -- adds a tool as docs/tour.md tells, and uses it: New, Open, Save and Preview as a user gives them,
with no screen; its window is compiled against the window of all tools.

    python3 addtool_test.py SOURCE_DIR BUILD_DIR
"""
import os
import subprocess
import sys
import tempfile

from adding import changed, compiled, linked, objects_of, written

source, build = os.path.abspath(sys.argv[1]), os.path.abspath(sys.argv[2])

HEADER = """\
// welltool.h -- the tool of the test: the wells of a site and their depths.
#pragma once

#include "tools/toolcommands.h"

extern ToolRecord WellForm;
void wellstart(); // its job: a sheet with the names of the wells

namespace frmWells
{
extern Grid SS1; // name, depth
} // namespace frmWells
"""

TOOL = """\
// welltool.cpp -- the tool of the test: its file has a well's name and depth on two lines.
#include "sections/welltool.h"

#include "canvas/metaugl.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "sections/sheetrun.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/shared.h"

static constexpr int maxWells = 20;
static Text fileName, title;
static Slots<Text, maxWells> wells, depths;
static int wellCount;
Grid frmWells::SS1(maxWells, 2);

static void Clear()
{
    wells = depths = {};
    wellCount = 0;
}

static void Read(const Text& name)
{
    Clear();
    for (LineReader in(name); !in.AtEnd();) {
        wells[++wellCount] = in.Line();
        depths[wellCount] = in.Line();
    }
}

static void OpenFile()
try {
    Read(fileName);
} catch (...) {
    ReportFailure(__func__);
}

static void FillForm()
{
    for (int i = 1; i <= wellCount; ++i) {
        frmWells::SS1.Cell(i, 1) = wells[i];
        frmWells::SS1.Cell(i, 2) = depths[i];
    }
    title = fileName + " - Wells";
}

static void Write()
try {
    LineWriter out(fileName, Durability::Saved);
    for (int i = 1; i <= frmWells::SS1.DataRowCount(); ++i) {
        out.Line(frmWells::SS1.Cell(i, 1));
        out.Line(frmWells::SS1.Cell(i, 2));
    }
    out.Close();
} catch (...) {
    ReportFailure(__func__);
}

static void Label()
{
    LabelGrid(frmWells::SS1, 0, "Wells", 0, {"Name", "Depth"}, 0);
}

static Text State()
{
    return CountOf(frmWells::SS1.DataRowCount(), "well", "wells");
}

static bool ReadSheet()
{
    if (!VCROSS::DefinitionThere())
        return false;
    Read(RunPages.pageFile);
    return true;
}

static void DrawSheet()
{
    canvasstart("P");
    setfontname("Arial");
    setfontsize(10);
    float x = 1, y = 1;
    setorigin(x, y);
    setscalex(1);
    setscaley(1);
    for (int i = 1; i <= wellCount; ++i) {
        moveto(0, float(9 - i));
        printtext(wells[i]);
    }
}

void wellstart()
try {
    VCROSS::RunSheets(1, ReadSheet, DrawSheet);
} catch (...) {
    ReportFailure(__func__);
}

ToolRecord WellForm = {
    .tool = Tool::Soil,
    .window = "frmWells",
    .title = "Wells",
    .ending = ".WEL",
    .openMode = 7,
    .drawJob = MaxJobs,
    .FileName = fileName,
    .Title = title,
    .grids = {&frmWells::SS1},
    .rowsGoIn = {&frmWells::SS1},
    .OpenFile = OpenFile,
    .SaveFile = [] { return Saved(Write); },
    .ClearArrays = Clear,
    .FillForm = FillForm,
    .Label = Label,
    .State = State,
};

static const SharedRecord shared[] = {
    {"WellForm", Kind::Window, WellForm},       {"frmWells::SS1", Kind::Document, frmWells::SS1},
    {"fileName", Kind::Document, fileName},     {"title", Kind::Document, title},
    {"wells", Kind::Document, wells},           {"depths", Kind::Document, depths},
    {"wellCount", Kind::Document, wellCount},
};
"""

WINDOW = """\
// frmWells.cpp -- the window of the tool of the test.
#include "sections/welltool.h"
#include "windows/toolwindow.h"

void ShowWellWindow();

void ShowWellWindow()
{
    ToolWindow window(WellForm);
    window.Blocking(window.GridBox("SS1", frmWells::SS1));
}
"""

DRIVER = """\
// driver.cpp -- what a user does in the added tool.
#include "programs/jobtable.h"
#include "sections/welltool.h"
#include "session/deviceconfig.h"
#include "session/session.h"
#include "testing.h"

#include "grid/gridedit.h"

static Text chosen;

static void Start()
{
    FillJobTable();
    for (const char* name : {"us.hdg", "logo.txt"}) // the words and the logo of every sheet
        std::filesystem::copy(std::filesystem::path(STOCK) / name, ScratchFolder());
    WorkingFolder = ScratchFolder();
    DefaultSystemFiles();
    Platform.ShowChooser = [] { DialogResult = chosen; };
    LoadTool(WellForm);
}

TEST_CASE("what is typed in the added tool is saved, cleared by New and there again by Open")
{
    Start();
    CHECK(frmWells::SS1.headings[2] == "Depth");
    TypeCell(frmWells::SS1, 1, 1, "MW-1");
    TypeCell(frmWells::SS1, 1, 2, "12.5");
    CHECK(FileChanged == 1);
    CHECK(WellForm.State() == "1 well");
    chosen = Scratch("site");
    CHECK(ToolSave(WellForm));
    CHECK(FileChanged == 0);
    CHECK(ReadScratch("site.WEL") == Lines({"MW-1", "12.5"}));
    ToolNew(WellForm);
    CHECK(frmWells::SS1.Cell(1, 1) == "");
    CHECK(WellForm.FileName == "");
    chosen = Scratch("site.WEL");
    ToolOpen(WellForm);
    CHECK(frmWells::SS1.Cell(1, 2) == "12.5");
    CHECK(WellForm.Title == Scratch("site.WEL") + " - Wells");
    CHECK(Messages.empty());
}

TEST_CASE("Preview of the added tool saves what has been changed and shows its sheet")
{
    Start();
    WriteScratch("site.WEL", Lines({"MW-1", "12.5"}));
    ToolOpenNamed(WellForm, Scratch("site.WEL"));
    TypeCell(frmWells::SS1, 2, 1, "MW-2");
    ToolPreview(WellForm);
    for (const PlainMessage& message : Messages)
        FAIL_CHECK(message.words);
    REQUIRE(Listings.size() == 1);
    CHECK(Listings[0].find("\\"text\\": \\"MW-2\\"") != std::string::npos);
    CHECK(ReadScratch("site.WEL") == Lines({"MW-1", "12.5", "MW-2", ""}));
}
"""

with tempfile.TemporaryDirectory() as folder:
    include = os.path.join(folder, "src")
    # The tool, with its record, its file and its sheet; and its window.
    written(os.path.join(include, "sections/welltool.h"), HEADER)
    tool = written(os.path.join(include, "sections/welltool.cpp"), TOOL)
    window = written(os.path.join(include, "windows/frmWells.cpp"), WINDOW)
    # The number of its job: one more than there were.
    changed(source, folder, "run/batchrun.h", (r"\bMaxJobs = \w+", " + 1"))
    # The words of its dialog.
    dialog = changed(source, folder, "run/batchrun.cpp",
                     (r'^    \{"Select WinLog .*\n', '    {"Select Wells to Draw", "*.WEL", "Well Files:"},\n'))
    # What the job starts.
    table = changed(source, folder, "programs/jobtable.cpp",
                    (r'^#include "sections/soiltable.h"\n', '#include "sections/welltool.h"\n'),
                    (r"^ +JobTable\[.*ConvertWinLog;\n", "    JobTable[MaxJobs] = wellstart;\n"))
    driver = written(os.path.join(folder, "driver.cpp"), DRIVER)
    compiled(build, "src/windows/frmSoil.cpp", window, include)
    objects = [compiled(build, "src/sections/soiltool.cpp", tool, include),
               compiled(build, "src/run/batchrun.cpp", dialog, include),
               compiled(build, "src/programs/jobtable.cpp", table, include),
               compiled(build, "tests/pages/samples_test.cpp", driver, include,
                        ['-DSTOCK="%s"' % os.path.join(source, "data")])]
    built = [name for name in objects_of(build, "tests/CMakeFiles/pagetests.dir", but="pages")
             if not os.path.basename(name).endswith("_test.cpp.o")]
    program = linked(build, os.path.join(folder, "driver"), "tests/pages/samples_test.cpp",
                     [*objects, *built, os.path.join(build, "libstratavue_logic.a")])
    done = subprocess.run([program], capture_output=True, text=True)
    assert done.returncode == 0, done.stdout + done.stderr
    print(done.stdout, end="")
