// stratavue-batch.cpp -- stratavue-batch: the jobs of the program without its windows. The printer is replaced by
// files, and the boxes by lines on standard error.
#include "canvas/pagelisting.h"
#include "canvas/patterns.h"
#include "convert/convertedboring.h"
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
#include "programs/shares.h"
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
static std::vector<std::string> Words; // of the command line, behind the program's name
static int MessageCount = 0;           // but for announcements
static int AnnouncementCount = 0;
static int HiddenEntries = 0;       // of check lists
static int PageCount = 0;           // pages drawn in this run
static Text PageName;               // "B-1-2": names the files of the page in hand
static std::unique_ptr<PdfRun> Pdf; // from the first page on

// In a process that does a share of a run: the report, and what is done before the share begins, which nobody sees.
static std::unique_ptr<ShareReport> Report;
static bool Unseen = false;
static int UnseenMessages = 0; // of the files in front of the share

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
static void TellOnce(const Text& file, const Text& words)
{
    static std::set<std::pair<Text, Text>> said;
    if (!said.insert({file, words}).second)
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

// Of a file that comes before the share nothing is told. What the start of its run tells is not of the file.
static void Say(const Text& words)
{
    const Text file = FileInHand();
    if (Unseen) {
        UnseenMessages += file.empty() ? 0 : 1;
        return;
    }
    ++MessageCount;
    if (Report)
        Report->Tell({ShareEvent::Message, 0, file, words});
    else
        TellOnce(file, words);
}

// That all is done is told too, but does not count.
static void Announce(const Text& words)
{
    ++AnnouncementCount;
    if (Unseen)
        return;
    if (Report)
        Report->Tell({ShareEvent::Announcement, 0, FileInHand(), words});
    else
        TellOnce(FileInHand(), words);
}

// Nobody answers: the answer that loses nothing.
static int Box(const Text& words, Buttons buttons, Icon icon)
{
    icon == Announcement ? Announce(words) : Say(words);
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

static void NamePage(int numberInBoring)
{
    static OutputNames names(WordInNames());
    if (PageCount == 1) // also of a run that begins once more
        names = OutputNames(WordInNames());
    PageName = names.Next(RunPages.pageFile.empty() ? Text(Asked.Job->Name) : RunPages.pageFile, numberInBoring);
}

static std::ofstream Listing;   // grows beside its place
static std::string ListingPart; // its name meanwhile; empty: none is asked for

static void OpenListing()
{
    if (Asked.List.empty())
        return;
    ListingPart = Report ? NativePath(JoinPath(Asked.ShareFolder, "listing")) : TemporaryFor(NativePath(Asked.List));
    Listing.open(ListingPart, std::ios::binary);
    if (!Listing)
        RaiseSystemError(errno, std::filesystem::is_directory(NativePath(FolderName(Asked.List))));
}

static void AddToListing(const std::string& lines)
{
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

// ---- A page of a share
//
// It is left in the folder of the share under its number there. The folder is the system's for files of passing use:
// where it has no room for them, one process does the run.

[[noreturn]] static void LeaveUnsettled()
{
    Report->Tell({ShareEvent::Unsettled, 0, "", ""});
    std::_Exit(ShareProcesses::UnsettledStatus);
}

// Ends the process where the one that has started it is gone, and nobody is left to take what it makes.
static void EndWithStarter()
{
    static const int starter = Machine::StartedBy();
    if (Machine::StartedBy() != starter)
        std::_Exit(MessageAppeared);
}

static Text PageOfShare(const Text& folder, int page, const char* ending)
{
    return JoinPath(folder, "page-" + PlainNumber(page) + ending);
}

static void LeavePage()
{
    EndWithStarter();
    try {
        if (!Asked.List.empty())
            AddToListing(PageListing(PageCount, RunPages.pageFile));
        if (!Asked.Dxf.empty())
            WriteWholeFile(PageOfShare(Asked.ShareFolder, PageCount, ".dxf"), PageDxf(DrawingMark()),
                           Durability::Scratch);
    } catch (const RunTimeError&) {
        LeaveUnsettled();
    }
    Report->Tell({ShareEvent::Page, NumberInBoring(), RunPages.pageFile, ""});
}

// A page whose pattern is damaged fails, and is there.
static void LeavePicture()
{
    const Text file = PageOfShare(Asked.ShareFolder, PageCount, ".png");
    const auto told = [&] {
        if (!FileExists(file))
            LeaveUnsettled();
        Report->Tell({ShareEvent::Picture, 0, "", ""});
    };
    try {
        SavePagePng(file, Asked.Dpi);
    } catch (const RunTimeError&) {
        told();
        throw;
    }
    told();
}

static void PageDrawn()
{
    if (Unseen)
        return;
    ++PageCount;
    if (Report)
        return LeavePage();
    NamePage(NumberInBoring());
    if (!Asked.List.empty())
        AddToListing(PageListing(PageCount, RunPages.pageFile));
    if (!Asked.Dxf.empty())
        WriteWholeFile(JoinPath(Asked.Dxf, PageName + ".dxf"), PageDxf(DrawingMark()), Durability::Scratch);
}

// Also where nothing is painted: a listing and a drawing hold the pictures that a PDF shows.
static bool Loads(const Text& file)
{
    StartWithoutScreen();
    return PictureLoads(file);
}

static const char FontWords[] = "The font Liberation Sans is not installed: text is drawn in another font.";

static void PrintPage()
{
    if (Unseen || (Asked.Pdf.empty() && Asked.Png.empty()))
        return;
    StartWithoutScreen();
    if (PageCount == 1 && !PageFontThere()) {
        if (Report)
            Report->Tell({ShareEvent::FontMissing, 0, RunPages.pageFile, ""});
        else
            Say(FontWords);
    }
    if (Report)
        return LeavePicture();
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
        if (Report) { // the folder of the run has it
            RunFolder = Asked.ShareFolder;
            return;
        }
        int error = 0;
        path = Machine::MakePrivateFolder(error);
        if (error != 0)
            RaiseSystemError(error, true);
        RunFolder = FullPath(FromUtf8(path));
    }
    ~PrivateFolder()
    {
        std::error_code ignored;
        if (!path.empty())
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

static bool ConvertsEach()
{
    return Asked.Job->Work == BatchWork::Converts && Asked.Out.empty();
}

static std::vector<Text> FilesOfRun()
{
    std::vector<Text> files = Asked.Files;
    if (ConvertsEach())
        for (Text& file : files)
            file = WithoutDotFolders(file);
    return files;
}

// The conversions that make a boring of each file take any number of files, as many at a time as the dialog does. One
// that ends without saying that all are converted has failed, and the run ends: false.
static bool RunOnFiles(std::vector<Text> files)
{
    while (ConvertsEach() && files.size() > MaxRunFiles) {
        const int announced = AnnouncementCount;
        FillDialog({files.begin(), files.begin() + MaxRunFiles});
        DrawPrintOk();
        if (AnnouncementCount == announced)
            return false;
        files.erase(files.begin(), files.begin() + MaxRunFiles);
    }
    const int announced = AnnouncementCount;
    FillDialog(files);
    DrawPrintOk();
    return AnnouncementCount != announced;
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

// ---- A share of a run, in a process of its own
//
// Some of a file's failures leave values of the file before it in force, as a layout that is missing does with the
// title blocks. So what comes before the share is done first, unseen: the next file in front of it, and as many more as
// it takes to begin with one that has nothing to tell. It sets all that it draws from, and what follows has what it
// would have in one process.

static constexpr size_t MostBefore = 5;

static void RunUnseen(const Text& file)
{
    Unseen = true;
    RunPages.pageFile = "";
    RunOnFiles({file});
    Unseen = false;
}

// False: none of the files that are looked at is without a message.
static bool RunBefore(const std::vector<Text>& files, size_t first)
{
    for (size_t at = first; at > 0 && first - at < MostBefore;) {
        UnseenMessages = 0;
        RunUnseen(files[--at]);
        if (UnseenMessages > 0)
            continue;
        while (++at < first)
            RunUnseen(files[at]);
        return true;
    }
    return first == 0;
}

// The boring that is written and not told of yet, and its number in the share.
static Text WrittenFrom;
static int BoringsWritten = 0;

static Text BoringOfShare(const Text& folder, int boring)
{
    return JoinPath(folder, "boring-" + PlainNumber(boring) + ".bor");
}

static Text NameInShare(const Text& source)
{
    if (Unseen)
        return JoinPath(Asked.ShareFolder, "unseen.bor");
    WrittenFrom = source;
    return BoringOfShare(Asked.ShareFolder, ++BoringsWritten);
}

// A conversion steps from file to file.
static void StepDone(const Text&, float)
{
    if (!Report || Unseen || Asked.Job->Work != BatchWork::Converts)
        return;
    EndWithStarter();
    if (!WrittenFrom.empty())
        Report->Tell({ShareEvent::Boring, BoringsWritten, WrittenFrom, ""});
    WrittenFrom = "";
    Report->Tell({ShareEvent::FileDone, 0, "", ""});
}

// Whether the run over pages has come behind its last one. That of logs counts them from 0.
static bool BehindLastPage()
{
    return RunPages.pageIndex >= RunPages.pageCount + (Asked.Job->Name == Text("log") ? 0 : 1);
}

static void DoShare(const std::vector<Text>& files)
{
    const ShareOfFiles share = FilesOfShare(files.size(), Asked.Share, Asked.Of);
    ConvertedName = NameInShare;
    Platform.StepProgress = StepDone;
    if (!RunBefore(files, share.First))
        LeaveUnsettled();
    RunPages.pageFile = "";
    RunPages.pageIndex = 0;
    RunPages.pageCount = 1; // for a run that breaks off before its first page
    const bool announced =
        RunOnFiles({files.begin() + std::ptrdiff_t(share.First), files.begin() + std::ptrdiff_t(share.Last)});
    const bool ended = Asked.Job->Work == BatchWork::Converts ? announced : BehindLastPage();
    Report->Tell({ended ? ShareEvent::Ended : ShareEvent::BrokenOff, 0, "", ""});
}

// ---- A run of many files, in several processes

// A process costs its start and the file before its share, so each has at least so many files.
static constexpr size_t LeastFiles = 2;

// In how many processes the files are done.
static int ProcessesFor(const std::vector<Text>& files)
{
    // Sections, fences and soil tables take words and numbers of the file before where their own has none, without a
    // message: they are drawn by one process. A PDF grows page by page.
    const bool shares = Asked.Job->Work == BatchWork::Checks || ConvertsEach() || Asked.Job->JobCode == 2;
    if (Report || !shares || !Asked.Pdf.empty() || files.size() > frmDrawPrint::MostFiles)
        return 1;
    return int(std::max<size_t>(std::min(size_t(std::max(Asked.Jobs, 1)), files.size() / LeastFiles), 1));
}

// What a run in one process would do with the list of the files as such.
struct RunList {
    bool Whole = true;    // it goes through file by file; else it fails as a list
    bool InParts = false; // the run files do not hold all at once: what a part begins or ends with comes several times
};

static RunList ListOfRun(const std::vector<Text>& files)
try {
    RunList list;
    int pages = 0;
    if (Asked.Job->Name == Text("log"))
        for (const Text& file : files) {
            const int count = BoringPages(file).Count;
            list.Whole = list.Whole && count <= MaxPageRecords;
            pages += Asked.Page.empty() ? std::max(count, 0) : 1;
        }
    std::set<Text> borings; // a conversion reads or replaces what another one has written
    if (ConvertsEach()) {
        for (const Text& file : files)
            list.Whole =
                borings.insert(UpperCase(FromUtf8(Machine::BehindLinks(NativePath(BesideSource(file)))))).second &&
                list.Whole;
        std::vector<Text> read = files;
        read.push_back(Asked.Template);
        for (const Text& file : read)
            list.Whole = list.Whole && !borings.contains(UpperCase(FromUtf8(Machine::BehindLinks(NativePath(file)))));
    }
    list.InParts = files.size() > MaxRunFiles || pages > MaxPageRecords;
    return list;
} catch (const RunTimeError&) {
    return {false, false};
}

using ShareReports = std::vector<std::vector<ShareEvent>>;

// Whether what the shares tell, one behind another, is what one process would tell. It is not where a run in parts
// tells something as a part begins, or goes on with the next part.
static bool Joinable(const ShareReports& reports, bool inParts)
{
    for (const std::vector<ShareEvent>& events : reports)
        for (const ShareEvent& event : events) {
            const bool message = event.What == ShareEvent::Message && (event.File.empty() || ConvertsEach());
            if (event.What == ShareEvent::Unsettled || (inParts && (message || event.What == ShareEvent::BrokenOff)))
                return false;
        }
    return true;
}

// Goes through a share's report and puts what it has made into its place, under the name that it has in the whole run.
// Failures by number.
static void TakeEvents(const Text& folder, const std::vector<ShareEvent>& events, bool lastShare)
{
    int page = 0; // of the share
    for (const ShareEvent& event : events) {
        if (Machine::Interrupted())
            throw Interrupt{};
        switch (event.What) {
        case ShareEvent::Page:
            ++page;
            ++PageCount;
            RunPages.pageFile = event.File;
            NamePage(event.Number);
            if (!Asked.Dxf.empty())
                WriteWholeFile(JoinPath(Asked.Dxf, PageName + ".dxf"), ReadWholeFile(PageOfShare(folder, page, ".dxf")),
                               Durability::Scratch);
            break;
        case ShareEvent::Picture:
            WriteWholeFile(JoinPath(Asked.Png, PageName + ".png"), ReadWholeFile(PageOfShare(folder, page, ".png")),
                           Durability::Scratch);
            break;
        case ShareEvent::Boring:
            PlaceConverted(event.File, ReadWholeFile(BoringOfShare(folder, event.Number)));
            break;
        case ShareEvent::Message:
            MessageCount += Asked.Job->Work == BatchWork::Checks ? 0 : 1;
            TellOnce(event.File, event.Words);
            break;
        case ShareEvent::Announcement: // of the whole run
            if (lastShare)
                TellOnce(event.File, event.Words);
            break;
        case ShareEvent::FontMissing:
            if (PageCount == 1) {
                ++MessageCount;
                TellOnce(event.File, FontWords);
            }
            break;
        case ShareEvent::Line:
            std::printf("%s\n", ToUtf8(event.Words).c_str());
            break;
        case ShareEvent::Hidden:
            HiddenEntries += event.Number;
            break;
        case ShareEvent::NotGood:
            ++MessageCount;
            break;
        default:
            break;
        }
    }
}

// How many files of a share are done for certain.
static size_t FilesDone(const std::vector<ShareEvent>& events, const std::vector<Text>& files, ShareOfFiles share)
{
    size_t done = 0, at = share.First;
    for (const ShareEvent& event : events) {
        done += event.What == ShareEvent::FileDone ? 1 : 0;
        if (event.What == ShareEvent::Page)
            while (at < share.Last && files[at] != event.File)
                ++at;
    }
    return std::max(done, at - share.First); // of a boring that has pages, more may be missing
}

static bool Has(const std::vector<ShareEvent>& events, ShareEvent::Kind what)
{
    return std::any_of(events.begin(), events.end(), [&](const ShareEvent& event) { return event.What == what; });
}

static void TakeShare(const Text& folder, const std::vector<ShareEvent>& events, const std::vector<Text>& files,
                      ShareOfFiles share)
{
    const int drawn = PageCount;
    TakeEvents(folder, events, share.Last == files.size());
    if (!Asked.List.empty() && FileExists(JoinPath(folder, "listing")))
        AddToListing(Renumbered(ReadWholeFile(JoinPath(folder, "listing")), PageCount - drawn, drawn));
    if (Has(events, ShareEvent::Ended) || Has(events, ShareEvent::BrokenOff))
        return;
    for (size_t at = share.First + FilesDone(events, files, share); at < share.Last; ++at) {
        ++MessageCount;
        TellOnce(files[at], "The process of this file has died, and the file is not done: " + files[at]);
    }
}

namespace
{
struct NotedInterrupts {
    NotedInterrupts()
    {
        Machine::NoteInterrupts(true);
    }
    ~NotedInterrupts()
    {
        Machine::NoteInterrupts(false);
    }
    NotedInterrupts(const NotedInterrupts&) = delete;
    NotedInterrupts& operator=(const NotedInterrupts&) = delete;
};
} // namespace

// The run in several processes. False where one process has to do it, from its beginning: nothing of it is done yet, or
// what is will be done the same way again.
static bool RunInShares(const std::vector<Text>& files, const Text& folder)
try {
    const int shares = ProcessesFor(files);
    if (shares < 2)
        return false;
    const RunList list = ListOfRun(files);
    if (!list.Whole)
        return false;
    const NotedInterrupts noted;
    if (!ShareProcesses(Words, shares, folder).Await())
        return false;
    ShareReports reports;
    for (int share = 1; share <= shares; ++share)
        reports.push_back(ReadShareReport(ShareProcesses::Folder(folder, share)));
    if (!Joinable(reports, list.InParts))
        return false;
    for (int share = 1; share <= shares; ++share) {
        const std::vector<ShareEvent>& events = reports[size_t(share - 1)];
        TakeShare(ShareProcesses::Folder(folder, share), events, files, FilesOfShare(files.size(), share, shares));
        if (Has(events, ShareEvent::BrokenOff))
            break;
    }
    return true;
} catch (const RunTimeError&) {
    return false;
} catch (const Interrupt&) {
    if (!ListingPart.empty())
        Machine::Remove(ListingPart);
    throw;
}

static void RunInOneProcess(const std::vector<Text>& files)
{
    if (PageCount > 0) { // the run has been tried in several
        PageCount = 0;
        Listing.close();
        Machine::Remove(ListingPart);
        OpenListing();
    }
    RunPages.pageFile = "";
    RunOnFiles(files);
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
    const std::vector<Text> files = FilesOfRun();
    if (Report)
        return DoShare(files);
    if (!RunInShares(files, RunFolder))
        RunInOneProcess(files);
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

// ---- Checks

// As for pages, files in front of a share are checked first; one of them has to be read.
static constexpr size_t FilesBeforeCheck = 3;
static size_t UncheckedBefore = 0; // files of them that are still to come
static bool ReadBefore = true;     // one of them has been read, or there are none

static void PrintLine(const Text& line)
{
    if (!Report)
        std::printf("%s\n", ToUtf8(line).c_str());
    else if (UncheckedBefore == 0)
        Report->Tell({ShareEvent::Line, 0, "", line});
}

static void EnterProject(const Text& project)
{
    SetFolders(project);
    FindStockFiles();
}

static void FileChecked(CheckRun& run, bool read)
{
    if (!Report)
        return;
    EndWithStarter();
    if (UncheckedBefore == 0)
        return Report->Tell({ShareEvent::FileDone, 0, "", ""});
    ReadBefore = ReadBefore || read;
    if (--UncheckedBefore == 0 && !ReadBefore)
        LeaveUnsettled();
    Unseen = UncheckedBefore > 0;
    run.Hidden = 0;
    run.Good = true;
}

static void CheckShare()
{
    const ShareOfFiles share = FilesOfShare(Asked.Files.size(), Asked.Share, Asked.Of);
    UncheckedBefore = std::min(share.First, FilesBeforeCheck);
    ReadBefore = UncheckedBefore == share.First; // all of them
    Unseen = UncheckedBefore > 0;
    Asked.Files.erase(Asked.Files.begin() + std::ptrdiff_t(share.Last), Asked.Files.end());
    Asked.Files.erase(Asked.Files.begin(), Asked.Files.begin() + std::ptrdiff_t(share.First - UncheckedBefore));
    RunFolder = Asked.ShareFolder;
    CheckRun run{Asked, EnterProject, PrintLine, FileChecked};
    RunChecks(run);
    Report->Tell({ShareEvent::Hidden, run.Hidden, "", ""});
    if (!run.Good)
        Report->Tell({ShareEvent::NotGood, 0, "", ""});
    Report->Tell({ShareEvent::Ended, 0, "", ""});
}

static bool CheckInShares()
{
    if (ProcessesFor(Asked.Files) < 2)
        return false;
    const PrivateFolder privateFolder;
    return RunInShares(Asked.Files, RunFolder);
}

// The status counts errors of the lists alone, whatever was told on the way, and a process that has died.
static void Check()
{
    if (Report)
        return CheckShare();
    if (!CheckInShares()) {
        CheckRun run{Asked, EnterProject, PrintLine, FileChecked};
        RunChecks(run);
        HiddenEntries = run.Hidden;
        MessageCount = run.Good ? 0 : 1;
    }
    PrintHidden(HiddenEntries);
}

int main(int argc, char** argv)
{
    Words.assign(argv + 1, argv + argc);
    Asked = ReadCommandLine(Words);
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
        if (Asked.Share > 0)
            Report = std::make_unique<ShareReport>(Asked.ShareFolder);
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
    } catch (const Interrupt&) {
        Machine::EndAsInterrupted();
    } catch (...) {
        if (Report)
            LeaveUnsettled();
        Say("Run-time error" + NumberText(FailureInHand()));
    }
    Pdf.reset();
    std::fflush(stderr);
    return MessageCount == 0 ? AllDone : MessageAppeared;
}
