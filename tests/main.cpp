// main.cpp -- the test program of the logic: fresh records and an empty working folder before each test.
#define DOCTEST_CONFIG_IMPLEMENT
#include "testing.h"

#include "boring/boringboxes.h"
#include "boring/boringdata.h"
#include "boring/boringfile.h"
#include "boring/opensave.h"
#include "boring/projectlist.h"
#include "canvas/batch.h"
#include "canvas/bitmap.h"
#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "canvas/patterns.h"
#include "canvas/screenview.h"
#include "convert/gtgsgeneditor.h"
#include "convert/gtgsgeneral.h"
#include "convert/winlog.h"
#include "editors/borinput.h"
#include "gis/gisfile.h"
#include "gis/gistool.h"
#include "logrender/logdata.h"
#include "places.h"
#include "report/desitems.h"
#include "report/fontprofile.h"
#include "report/heading.h"
#include "report/headingedit.h"
#include "report/layout.h"
#include "report/layoutedit.h"
#include "report/logo.h"
#include "report/projectfiles.h"
#include "report/prompts.h"
#include "sections/crossfile.h"
#include "sections/crossrun.h"
#include "sections/crosstool.h"
#include "sections/fencefile.h"
#include "sections/fencetool.h"
#include "sections/layershapes.h"
#include "sections/soilfile.h"
#include "sections/soiltable.h"
#include "sections/soiltool.h"
#include "session/deviceconfig.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/recovery.h"
#include "session/session.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <unistd.h>

static Text scratch;

Text TestData(const Text& name)
{
    return Text(TEST_DATA) + "/" + name;
}

const Text& ScratchFolder()
{
    return scratch;
}

Text Scratch(const Text& name)
{
    return scratch + "/" + name;
}

void WriteScratch(const Text& name, std::string_view bytes)
{
    std::ofstream(Scratch(name), std::ios::binary) << bytes;
}

void WritePicture(const Text& name)
{
    Bitmap picture;
    picture.Width = 4;
    picture.Height = 3;
    picture.Pixels.assign(12, 0x808080);
    WriteScratch(name, EncodeBitmap(picture));
}

std::string ReadScratch(const Text& name)
{
    std::ifstream in(Scratch(name), std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

int FailureOf(void (*procedure)())
{
    try {
        procedure();
        return 0;
    } catch (...) {
        return FailureInHand();
    }
}

std::string Lines(std::initializer_list<std::string_view> lines)
{
    std::string text;
    for (const std::string_view line : lines)
        text.append(line).append("\r\n");
    return text;
}

// The log tool's boxes as they are before anything is typed.
static void EmptyBoxes()
{
    using namespace frmBorinput;
    for (Grid* grid : {&SSInfo, &SSScale, &SSRepParts, &SSP1Setup, &SSP2Setup, &SSPar, &SSSamp, &SSLith, &SSGenWellInfo,
                       &SSOuterLay, &SSInnerLay, &SSW, &SSCuttings, &SSFormations, &SSLegend, &frmHeading::SSLog,
                       &frmHeading::SSSections, &frmHeading::SSGraphics}) {
        grid->Clear();
        grid->fontName.clear();
        grid->headings.assign(grid->headings.size(), "");
        grid->row = grid->column = 1;
        grid->selected = {};
        grid->changed = nullptr;
        grid->done.clear();
        grid->undone.clear();
    }
    MemoDes = {"", 4205, 1550};
    MemoWcon = {"", 3249, 1750};
    MemoRemarks = {"", 2223, 1750};
    MemoBottNotes = {"", 8010, 1750};
    frmSoil::MemoSoil = {"", 6800, 1550};
    txtClient = Text1 = Text2 = cmbLayFile = lblWidthtot = Title = "";
    List = {};
    LayFiles.clear();
    Commands = {};
    Text1Font = txtClientFont = "";
    Check1 = NarrowNotes = false;
    Option = 0;
}

// The other tools as they are before one is opened.
static void EmptyTools()
{
    SoilData = SoilRecord();
    ClearGISForm();
    frmGIS::File1 = {};
    boringSummary = {};
    boringLithology = {};
    for (ToolRecord* tool : {&CrossForm, &FenceForm, &SoilForm, &GisForm}) {
        tool->FileName = tool->Title = "";
        tool->active = nullptr;
        tool->ShowForm = nullptr;
        tool->Unload = nullptr;
        for (Grid* grid : tool->grids) {
            *grid = Grid(grid->maxRows > 0 ? grid->minRows : grid->rows, grid->columns);
            grid->title.clear();
        }
    }
    NextTool = Tool::Log;
}

namespace
{
// Between two tests: nothing of the one before is left in the records or on the disk.
struct Fresh : doctest::IReporter {
    explicit Fresh(const doctest::ContextOptions&)
    {
    }
    void test_case_start(const doctest::TestCaseData&) override
    {
        EndRecovery();
        RecoveryTools = {};
        RecoveryInterval = 60000;
        std::filesystem::remove_all(scratch);
        std::filesystem::create_directories(scratch);
        UsePlainPlatform();
        WorkingFolder = RunFolder = ProjectPath = scratch;
        BoringFileName = DialogResult = "";
        FileChanged = DeviceChanged = ActiveBox = DialogMode = LineCount = 0;
        DeviceConfig = DeviceRecord();
        DefaultSystemFiles();
        LineBuffer = {};
        BoringData = BoringRecord();
        EmptyBoxes();
        ProjectList = {};
        ProjectCount = 0;
        frmProjEdit::SS.Clear();
        frmOpenSave::Dialog = frmOpenSave::Record();
        frmOpenSave::SS.Clear();
        frmOpenSave::HiddenFolder = "";
        frmOpenSave::HiddenFiles.clear();
        CrossData = CrossRecord();
        frmCross::FileName = "";
        frmCross::SS1 = Grid(CrossRecord::FormBorings, 5);
        for (Grid* grid : {&frmCross::SS2, &frmCross::SS3, &frmCross::SS4})
            *grid = Grid(grid->rows, grid->columns);
        VCROSS::ResetCrossRun();
        EmptyTools();
        FenceData = FenceRecord();
        frmFence::FileName = "";
        for (Grid* grid : {&frmFence::SS1, &frmFence::SS2, &frmFence::SS3, &frmFence::SS4, &frmFence::SS5})
            *grid = Grid(grid->rows, grid->columns);
        frmCross::Title = frmFence::Title = frmSoil::Title = "";
        frmPrinterSetup::Dialog = frmPrinterSetup::Record();
        frmPrinterSetup::SSMainFilePath.Clear();
        SetupChange = SetupChangeRecord();
        CopyDestination = "a:\\";
        frmLogo::Dialog = frmLogo::Record();
        std::fill(std::begin(OlderForms), std::end(OlderForms), nullptr);
        HeadingTable = {};
        HeadingWords = {};
        LegendInUse = 0;
        LegendBoxFill = {};
        LogoData = LogoRecord();
        LayoutData = LayoutRecord();
        SourceFolder = "";
        frmDescLegend::Dialog = frmDescLegend::Record();
        frmBorinput::List = {};
        frmDesItems::Box = {};
        PromptTable = {};
        PromptSlot = {};
        PromptForce = 0;
        frmPrompt::SS1 = Grid(MaxPrompts, 2);
        frmPrompt::Changed = false;
        PageCanvas = CanvasRecord();
        PageList = PageListRecord();
        RunPages = RunPagesRecord();
        LogPage = LogPageRecord();
        LogBoring = LogBoringRecord();
        LogGeometry = LogGeometryRecord();
        VCROSS::LayerFill = VCROSS::LayerFillRecord();
        VCROSS::SoilRun = VCROSS::SoilRunRecord();
        SoilData = SoilRecord();
        frmSoil::FileName = "";
        frmSoil::SS1 = Grid(MaxSoilCells, 1);
        ClearGISArrays();
        boringSummary = {};
        boringLithology = {};
        frmGIS::SSGISLayers = Grid(MaxGisLayers, 2);
        frmGIS::SSGISInfo = Grid(MaxGisBorings, GisColumns);
        frmGIS::SSBoringData = Grid(MaxLith, 2);
        frmGIS::Title = frmGIS::FileName = "";
        frmGIS::File1 = {};
        ForgetPatterns();
        TintsInMemory = false;
        WinLogTemplate = "";
        GtgsMapping = GtgsMappingRecord();
        frmGTGSGenEditor::Dialog = frmGTGSGenEditor::Record();
        frmGTGSGenEditor::SS1.Clear();
        frmGTGSGenEditor::SS2.Clear();
        jobCode = runFileCount = singleFile = introType = dialogBusy = stopRequested = 0;
        progressValue = progressTotal = 0;
        runFiles = {};
        singleFileName = lastDir = "";
        JobTable = {};
        IntroPages = nullptr;
        frmDrawPrint::Dialog = frmDrawPrint::Record();
        frmDrawPrint::CloseWindow = nullptr;
    }
    void report_query(const doctest::QueryData&) override
    {
    }
    void test_run_start() override
    {
    }
    void test_run_end(const doctest::TestRunStats&) override
    {
        std::filesystem::remove_all(scratch);
    }
    void test_case_reenter(const doctest::TestCaseData&) override
    {
    }
    void test_case_end(const doctest::CurrentTestCaseStats&) override
    {
    }
    void test_case_exception(const doctest::TestCaseException&) override
    {
    }
    void subcase_start(const doctest::SubcaseSignature&) override
    {
    }
    void subcase_end() override
    {
    }
    void log_assert(const doctest::AssertData&) override
    {
    }
    void log_message(const doctest::MessageData&) override
    {
    }
    void test_case_skipped(const doctest::TestCaseData&) override
    {
    }
};
} // namespace
REGISTER_LISTENER("fresh", 1, Fresh);

int main(int argc, char** argv)
{
    scratch = std::filesystem::temp_directory_path().string() + "/stratavue-test-" + std::to_string(::getpid());
    // Pictures of windows show it, and shall not change with the number of a process.
    if (const char* name = std::getenv("STRATAVUE_SCRATCH"))
        scratch = name;
    doctest::Context context(argc, argv);
    return context.run();
}
