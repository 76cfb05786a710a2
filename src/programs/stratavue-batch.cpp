// stratavue-batch.cpp -- stratavue-batch: the jobs of the program without its windows. The printer is replaced by
// files, and the boxes by lines on standard error.
#include "canvas/pagelisting.h"
#include "canvas/patterns.h"
#include "convert/gtgsgeneral.h"
#include "convert/gtgstext.h"
#include "convert/winlog.h"
#include "dxf/dxf.h"
#include "gis/gisfile.h"
#include "painter/headless.h"
#include "painter/pagepainter.h"
#include "painter/pdfrun.h"
#include "painter/pngpages.h"
#include "programs/checkjob.h"
#include "programs/commandline.h"
#include "programs/jobtable.h"
#include "programs/outputnames.h"
#include "run/batchrun.h"
#include "run/outputmark.h"
#include "run/screenview.h"
#include "session/deviceconfig.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/machine.h"
#include "session/platform.h"
#include "session/savename.h"
#include "session/session.h"
#include "session/stockfiles.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <set>
#include <system_error>

enum ExitStatus { AllDone = 0, MessageAppeared = 1, WrongCommandLine = 2 };

static CommandLine Asked;
static int MessageCount = 0; // but for announcements
static int AnnouncementCount = 0;
static int PageCount = 0;           // pages drawn in this run
static Text PageName;               // "B-1-2": names the files of the page in hand
static std::unique_ptr<PdfRun> Pdf; // from the first page on

// ---- Messages

// The file that the job is at: of a page, or of a table of the GIS; the conversions have no page, and step through the
// files of their run. "" before and behind a run.
static Text FileInHand()
{
    if (Asked.Job->Work != BatchWork::Converts && Asked.Job->Work != BatchWork::ConvertsTables)
        return RunPages.pageFile;
    return progressValue < runFileCount ? runFiles[progressValue + 1] : Text();
}

// One line on standard error. The same words for the same file come once: a bad heading file would be told at
// every page.
static void Say(const Text& words)
{
    static std::set<std::pair<Text, Text>> said;
    ++MessageCount;
    if (!said.insert({FileInHand(), words}).second)
        return;
    Text line;
    for (size_t i = 0; i < words.size(); ++i) {
        const char letter = words[i];
        if (letter == '\r' && i + 1 < words.size() && words[i + 1] == '\n')
            continue;
        line += letter == '\r' || letter == '\n' ? ' ' : letter;
    }
    std::fprintf(stderr, "%s\n", ToUtf8(line).c_str());
}

// Nobody answers: the answer that loses nothing. That all is done is told too, but does not count.
static int Box(const Text& words, Buttons buttons, Icon icon)
{
    Say(words);
    if (icon == Announcement) {
        --MessageCount;
        ++AnnouncementCount;
    }
    switch (buttons) {
    case OkOnly:
        return Ok;
    case YesNo:
        return No;
    case OkCancel:
    case YesNoCancel:
        break;
    }
    return Cancel;
}

// ---- The page

// The word of the job in the names of its pages. Those of a log have none, nor have those of the guide, which has no
// source.
static Text WordInNames()
{
    const Text job = Asked.Job->Name;
    return job == "log" || job == "guide" ? "" : job;
}

// The number of the page in hand in its boring, where one page of each is drawn; 0 where all are, or a file has one.
static int NumberInBoring()
{
    if (Asked.Page.empty() || Asked.Job->Name != Text("log"))
        return 0;
    const int last = BoringPages(RunPages.pageFile).Count;
    return static_cast<int>(std::clamp(std::nearbyint(TextNumber(Asked.Page)), 1.0, std::max(double(last), 1.0)));
}

static void NamePage()
{
    static OutputNames names(WordInNames());
    PageName = names.Next(RunPages.pageFile.empty() ? Text(Asked.Job->Name) : RunPages.pageFile, NumberInBoring());
}

static std::ofstream Listing;   // grows beside its place
static std::string ListingPart; // its name meanwhile; empty: none is asked for

static void OpenListing()
{
    if (Asked.List.empty())
        return;
    ListingPart = TemporaryFor(NativePath(Asked.List));
    Listing.open(ListingPart, std::ios::binary);
    if (!Listing)
        RaiseSystemError(errno, std::filesystem::is_directory(NativePath(FolderName(Asked.List))));
}

static void ListPage()
{
    const std::string lines = PageListing(PageCount, RunPages.pageFile);
    if (!Listing.write(lines.data(), std::streamsize(lines.size())).flush())
        throw RunTimeError{DiskFull};
}

// Whole or not at all.
static void CloseListing()
try {
    if (ListingPart.empty())
        return;
    Listing.close();
    if (!Listing || Machine::Replace(ListingPart, NativePath(Asked.List), false) != 0) {
        Machine::Remove(ListingPart);
        throw RunTimeError{DiskFull};
    }
} catch (...) {
    ReportFailure(__func__);
}

static void ClosePdf()
try {
    if (Pdf)
        Pdf->Close();
} catch (...) {
    ReportFailure(__func__);
}

static void PageDrawn()
{
    ++PageCount;
    NamePage();
    if (!Asked.List.empty())
        ListPage();
    if (!Asked.Dxf.empty())
        WriteWholeFile(JoinPath(Asked.Dxf, PageName + ".dxf"), PageDxf(DrawingMark()), Durability::Scratch);
}

// Also where nothing is painted: a listing and a drawing hold the pictures that a PDF shows.
static bool Loads(const Text& file)
{
    StartWithoutScreen();
    return PictureLoads(file);
}

static void PrintPage()
{
    if (Asked.Pdf.empty() && Asked.Png.empty())
        return;
    StartWithoutScreen();
    if (PageCount == 1 && !PageFontThere())
        Say("The font Liberation Sans is not installed: text is drawn in another font.");
    // A page whose pattern is damaged goes out without it everywhere, and is told once. A damaged logo or map is no
    // object of the page: the block that it belongs to has told of it.
    int failure = 0;
    const auto attempt = [&](auto output) {
        try {
            output();
        } catch (const RunTimeError& error) {
            failure = failure == 0 ? error.Number : failure;
        }
    };
    if (!Asked.Pdf.empty())
        attempt([] {
            if (!Pdf)
                Pdf = std::make_unique<PdfRun>(Asked.Pdf, PageCount == 1 ? BaseName(RunPages.pageFile) : "");
            Pdf->AddPage();
        });
    if (!Asked.Png.empty())
        attempt([] { SavePagePng(JoinPath(Asked.Png, PageName + ".png"), Asked.Dpi); });
    if (failure != 0)
        throw RunTimeError{failure};
}

// A job that would show its page prints it, and goes on.
static void ShowPage()
{
    printcanvas();
    NextPage();
}

static Text ExecutableFolder()
{
    return FromUtf8(Machine::ProgramFolder());
}

static void FillPlatform()
{
    Platform.MsgBox = Box;
    Platform.InputBox = [](const Text& prompt, const Text&, const Text&) {
        Say(prompt);
        return Text();
    };
    Platform.PrinterSheet = DefaultSheet;
    Platform.PageDrawn = PageDrawn;
    Platform.ShowPage = ShowPage;
    Platform.PrintPage = PrintPage;
    Platform.EndPrintRun = [] {};
    Platform.PictureLoads = Loads;
    Platform.DropChangedPictures = DropChangedPictures;
    Platform.ShowDrawPrint = [] {};
    Platform.ShowPrinting = [] {};
    Platform.ShowProgress = [](bool) {};
    Platform.StepProgress = [](const Text&, float) {};
    Platform.ShowRunMessages = [] {};
    Platform.ShowChooser = [] { DialogResult = ""; };
    Platform.ShowHelp = [] {};
    Platform.ClipboardText = [] { return Text(); };
    Platform.SetClipboardText = [](const Text&) {};
    Platform.Notice = Platform.Tell = Say;
    Platform.Breathe = [] {};
    Platform.ExecutableFolder = ExecutableFolder;
    Platform.DataFolder = UserDataFolder;
    Platform.ShortDate = [] { return Asked.DateGiven ? Asked.Date : ShortDateOfLocale(); };
    Platform.Unattended = true;
}

// ---- The run

namespace
{
// The private folder of the run files, gone with the run.
struct PrivateFolder {
    PrivateFolder()
    {
        int error = 0;
        path = Machine::MakePrivateFolder(error);
        if (error != 0)
            RaiseSystemError(error, true);
        RunFolder = FullPath(FromUtf8(path));
    }
    ~PrivateFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }
    PrivateFolder(const PrivateFolder&) = delete;
    PrivateFolder& operator=(const PrivateFolder&) = delete;
    std::string path;
};
} // namespace

// The folder of an option, made if it is not there.
static void OutputFolder(const Text& folder)
{
    if (folder.empty())
        return;
    std::error_code error;
    std::filesystem::create_directories(NativePath(folder), error);
    if (error)
        RaiseSystemError(error.value(), true);
}

// What the batch dialog would hold: the files, all marked, and the report choice. The files may lie in several
// folders, so the folder of the dialog is empty and its list has their full paths.
static void FillDialog(const std::vector<Text>& files)
{
    jobCode = Asked.Job->JobCode;
    singleFile = 1; // no folder is listed
    singleFileName = "";
    DrawPrintLoad();
    if (!files.empty())
        singleFile = 0;
    frmDrawPrint::Record& dialog = frmDrawPrint::Dialog;
    dialog.Dir1 = "";
    dialog.FileCount = int(files.size());
    for (int i = 1; i <= dialog.FileCount; ++i) {
        dialog.File1[i] = files[size_t(i - 1)];
        dialog.Selected[i] = true;
    }
    dialog.ReportOption = Asked.ReportOption;
    dialog.AllPages = Asked.Page.empty();
    dialog.Text1 = Asked.Page;
    if (!Asked.Out.empty())
        lastDir = Asked.Out;
}

// Where the set-up names no folder of its own, a home without fill patterns is drawn with those of the installation.
static void FindStockFiles()
{
    Text& fills = DeviceConfig.SystemFiles[FillFolder];
    if (fills == JoinPath(WorkingFolder, "fills/") && FilesIn(fills, ".bmp").empty())
        fills = JoinPath(StockFolder(), "fills/");
}

// The working folder where none is asked for: the desktop program's. A user of an installed program who has never
// started that one is served from the stock files themselves.
static Text Home()
{
    const Text home = HomeFolder();
    return FileExists(JoinPath(home, "stock.lst")) || !Installed() ? home : StockFolder();
}

// Without "." and ".." among its folders: a converted boring is named by what stands before the first dot of the path.
static Text WithoutDotFolders(const Text& file)
{
    const std::filesystem::path path = NativePath(file);
    std::error_code ignored;
    const std::filesystem::path folder = std::filesystem::canonical(path.parent_path(), ignored);
    const std::string text = path.string();
    if (folder.empty() || (text.find("/./") == std::string::npos && text.find("/../") == std::string::npos))
        return file;
    return FromUtf8((folder / path.filename()).string());
}

// The conversions that make a boring of each file take any number of files, as many at a time as the dialog does. One
// that ends without saying that all are converted has failed, and the run ends.
static void RunOnFiles()
{
    std::vector<Text> files = Asked.Files;
    const bool each = Asked.Job->Work == BatchWork::Converts && Asked.Out.empty();
    if (each)
        for (Text& file : files)
            file = WithoutDotFolders(file);
    while (each && files.size() > MaxRunFiles) {
        const int announced = AnnouncementCount;
        FillDialog({files.begin(), files.begin() + MaxRunFiles});
        DrawPrintOk();
        if (AnnouncementCount == announced)
            return;
        files.erase(files.begin(), files.begin() + MaxRunFiles);
    }
    FillDialog(files);
    DrawPrintOk();
}

// The working folder and its set-up, and the project folder: that of the command line, else the one that is given.
static void SetFolders(const Text& project)
{
    WorkingFolder = Asked.Home.empty() ? Home() : Asked.Home;
    LoadDevice();
    if (!Asked.Project.empty())
        ProjectPath = Asked.Project;
    else if (!project.empty())
        ProjectPath = project;
}

// Runs the job. The listing grows in a temporary file and takes its place when it is whole.
static void RunJob()
{
    const PrivateFolder privateFolder;
    TintsInMemory = true;
    SetFolders(Asked.Files.empty() ? Text() : FolderName(Asked.Files.front()));
    FindStockFiles();
    OutputFolder(Asked.Png);
    OutputFolder(Asked.Dxf);
    OutputFolder(Asked.Out);
    OpenListing();
    FillJobTable();
    WinLogTemplate = Asked.Template;
    RunOnFiles();
    ClosePdf();
    CloseListing();
}

static void ConvertTables()
{
    SetFolders(Asked.Files.front());
    lastDir = Asked.Files.front();
    ConvertGTGSText();
}

static void ConvertByMap()
{
    SetFolders(Asked.Files.empty() ? FolderName(Asked.Map) : Asked.Files.front());
    OpenGTGSConversionFile(Asked.Map);
    if (MessageCount != 0)
        return;
    if (!Asked.Files.empty())
        GtgsMapping.textPath = Asked.Files.front();
    ConvertGTGSGeneral(Asked.Name.empty() ? NameFromHeaders : NewBoringFile(Asked.Name));
}

// The table of a GIS file into the workbench's grids. False: it could not be read whole.
static bool OpenTable(const Text& file)
{
    RunPages.pageFile = file;
    OpenGISFile(file);
    FillGISForm();
    return MessageCount == 0;
}

// A table that cannot be read is left as it is; a boring that cannot be read has its row with its name alone.
static void AddToGis()
{
    SetFolders(FolderName(Asked.Files.front()));
    const Text table = WithEnding(Asked.Gis, ".GIS");
    ClearGISForm();
    if (FileExists(table) && !OpenTable(table))
        return;
    for (const Text& boring : Asked.Files) {
        RunPages.pageFile = boring;
        frmGIS::AddBoring(boring, BaseName(boring));
    }
    SaveGISFile(table);
}

static void ExportGis()
{
    SetFolders(FolderName(Asked.Files.front()));
    if (!OpenTable(Asked.Files.front()))
        return;
    if (!Asked.ArcView.empty())
        ExportGIS2ArcView(Asked.ArcView);
    else
        ExportGIS2EVS(Asked.Evs);
}

// The status counts errors of the lists alone, whatever was told on the way.
static void Check()
{
    const bool good = RunChecks(Asked, [](const Text& project) {
        SetFolders(project);
        FindStockFiles();
    });
    MessageCount = good ? 0 : 1;
}

int main(int argc, char** argv)
{
    Asked = ReadCommandLine({argv + 1, argv + argc});
    if (Asked.Help) {
        std::fputs(UsageText().c_str(), stdout);
        return AllDone;
    }
    if (!Asked.Wrong.empty()) {
        std::fprintf(stderr, "stratavue-batch: %s (see stratavue-batch --help)\n", Asked.Wrong.c_str());
        return WrongCommandLine;
    }
    FillPlatform();
    try {
        switch (Asked.Job->Work) {
        case BatchWork::Draws:
        case BatchWork::Converts:
            RunJob();
            break;
        case BatchWork::ConvertsTables:
            ConvertTables();
            break;
        case BatchWork::ConvertsByMap:
            ConvertByMap();
            break;
        case BatchWork::AddsToGis:
            AddToGis();
            break;
        case BatchWork::ExportsGis:
            ExportGis();
            break;
        case BatchWork::Checks:
            Check();
            break;
        }
    } catch (...) {
        Say("Run-time error" + NumberText(FailureInHand()));
    }
    Pdf.reset();
    std::fflush(stderr);
    return MessageCount == 0 ? AllDone : MessageAppeared;
}
