// plain.cpp -- the seam with no screen.
#include "plain/plain.h"

#include "canvas/bitmap.h"
#include "canvas/pagelisting.h"
#include "run/screenview.h"
#include "session/failure.h"
#include "session/session.h"

std::vector<PlainMessage> Messages;
std::deque<int> Answers;
std::deque<Text> InputAnswers;
std::vector<std::string> Listings;
Text PlainClipboard;
std::vector<Text> Notices;
void (*PlainShowPage)() = nullptr;
int PlainPrinted = 0;
int PlainRunsEnded = 0;

static int Box(const Text& words, Buttons buttons, Icon icon)
{
    Messages.push_back({words, buttons, icon});
    if (Answers.empty())
        return buttons == OkOnly || buttons == OkCancel ? Ok : No;
    const int answer = Answers.front();
    Answers.pop_front();
    return answer;
}

static Text Input(const Text& prompt, const Text& title, const Text&)
{
    Messages.push_back({title + ": " + prompt, OkCancel, NoIcon});
    if (InputAnswers.empty())
        return "";
    const Text answer = InputAnswers.front();
    InputAnswers.pop_front();
    return answer;
}

static void Drawn()
{
    Listings.push_back(PageListing(int(Listings.size()) + 1, RunPages.pageFile));
}

static void Show()
{
    if (PlainShowPage)
        PlainShowPage();
    else
        NextPage();
}

// Windows bitmaps only are read here; any other picture is taken for a good one.
static bool Loads(const Text& file)
{
    if (!UpperCase(file).ends_with(".BMP"))
        return true;
    try {
        LoadBitmap(file);
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

void UsePlainPlatform()
{
    Messages.clear();
    Answers.clear();
    InputAnswers.clear();
    Listings.clear();
    Notices.clear();
    PlainClipboard.clear();
    PlainShowPage = nullptr;
    PlainPrinted = 0;
    PlainRunsEnded = 0;
    Platform.MsgBox = Box;
    Platform.InputBox = Input;
    Platform.PrinterSheet = DefaultSheet;
    Platform.PageDrawn = Drawn;
    Platform.ShowPage = Show;
    Platform.PrintPage = [] { ++PlainPrinted; };
    Platform.EndPrintRun = [] { ++PlainRunsEnded; };
    Platform.PictureLoads = Loads;
    Platform.DropChangedPictures = [] {};
    Platform.ShowDrawPrint = [] {};
    Platform.ShowPrinting = [] {};
    Platform.ShowProgress = [](bool) {};
    Platform.StepProgress = [](const Text&, float) {};
    Platform.ShowRunMessages = [] {};
    Platform.ShowChooser = [] {};
    Platform.ShowHelp = [] {};
    Platform.ShowProjEdit = [] {};
    Platform.ShowGraphicsSetup = [] {};
    Platform.ShowLogo = [] {};
    Platform.ShowPrinterSetup = [] {};
    Platform.PrinterHasFont = [](const Text& name) { return name == "Arial" || name == "Courier"; };
    Platform.ChooseFont = [](const Text&) { return Text(); };
    Platform.PrintToPdf = [](bool) {};
    Platform.ExecutableFolder = [] { return WorkingFolder; };
    Platform.DataFolder = [] { return WorkingFolder + "/userdata"; };
    Platform.ShowAbout = [](bool) {};
    Platform.ShowLogWindow = [] {};
    Platform.ShowWelcome = [] {};
    Platform.EndProcess = [] {};
    Platform.ShowTool = [](Tool) {};
    Platform.ClipboardText = [] { return PlainClipboard; };
    Platform.SetClipboardText = [](const Text& text) { PlainClipboard = text; };
    Platform.Notice = Platform.Tell = [](const Text& words) { Notices.push_back(words); };
    Platform.Breathe = [] {};
    Platform.ShortDate = [] { return Text("1/2/2026"); };
    Platform.Unattended = false;
}
