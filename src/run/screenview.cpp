// screenview.cpp -- the steering of a run from the screen view, zoom sums, and printing a page.
#include "run/screenview.h"

#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "canvas/patterns.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/shared.h"

#include <algorithm>
#include <cmath>

RunPagesRecord RunPages;

static const SharedRecord shared[] = {
    {"RunPages", Kind::Run, RunPages},
};

// ---- Pages

Text PrintedName(const Text& file)
{
    return RunPages.printedName.value_or(file);
}

void ShowOrPrint()
{
    Platform.PageDrawn();
    if (RunPages.printing == 1) {
        printcanvas();
        ++RunPages.pageIndex;
    } else {
        Platform.ShowPage();
    }
}

namespace
{
// The page as it goes to the printer; put back on every way out, so that a failed print leaves the screen's page.
struct PrintForms {
    PrintForms();
    ~PrintForms();
    PrintForms(const PrintForms&) = delete;
    PrintForms& operator=(const PrintForms&) = delete;
};
} // namespace

static int32_t ColorAttribute(const PageObject& object)
{
    return object.Color.empty() ? 0
                                : static_cast<int32_t>(std::clamp(TextNumber(object.Color), 0.0, double(INT32_MAX)));
}

PrintForms::PrintForms()
{
    for (PageObject& object : PageList.Objects) {
        if (!object.Fill.empty())
            object.BrushPicture = object.Fill;
        // Kept: no routine sets the attribute, so this never fires.
        if (ColorAttribute(object) > 0)
            object.PenColor = 0;
    }
}

PrintForms::~PrintForms()
{
    for (PageObject& object : PageList.Objects) {
        // Kept: the screen form comes back as "_sc.bmp", whatever letters it was first named with.
        if (!object.Fill.empty())
            object.BrushPicture =
                object.Fill.substr(0, object.Fill.size() - std::min<size_t>(object.Fill.size(), 4)) + "_sc.bmp";
        if (ColorAttribute(object) > 0)
            object.PenColor = ColorAttribute(object);
    }
}

void printcanvas()
{
    // All of them before anything is changed or sent, in the fills folder as it is now. Neighbouring objects mostly
    // share a pattern.
    ForgetPatternFiles();
    Text there;
    for (const PageObject& object : PageList.Objects)
        if (!object.Fill.empty() && object.Fill != there) {
            if (!PictureThere(object.Fill))
                throw RunTimeError{FileNotFound};
            there = object.Fill;
        }
    const PrintForms forms;
    Platform.PrintPage();
}

void PrintRun(const std::function<void()>& print)
{
    try {
        print();
    } catch (...) {
        try {
            Platform.EndPrintRun();
        } catch (...) { // the first failure is the one to tell
        }
        throw;
    }
    Platform.EndPrintRun();
}

Text DxfName()
{
    const Text& file = RunPages.pageFile;
    if (file.size() < 4)
        throw RunTimeError{InvalidCall};
    return file.substr(0, file.size() - 4) + ".dxf";
}

// ---- Commands

bool NextPage()
{
    ++RunPages.pageIndex;
    return true;
}

bool PreviousPage()
{
    // Kept: zeroBased stays set after the first log run, so from page 1 of another kind of run this goes to index 0.
    const int16_t first = RunPages.zeroBased != 0 ? 0 : 1;
    if (RunPages.pageIndex - 1 >= first) {
        --RunPages.pageIndex;
        return true;
    }
    RunPages.pageIndex = first;
    MsgBox("This is the first drawing.", OkOnly, Exclamation);
    return false;
}

bool GoToPage()
{
    const Text answer =
        Platform.InputBox("Enter a Page Number between 1 and" + NumberText(int(RunPages.pageCount)), "Go To Page", "1");
    if (answer.empty())
        return false;
    const double page = std::min(std::max(TextNumber(answer), 1.0), double(RunPages.pageCount));
    // Kept: less 1 in every run; in one that counts from 1 the page shown is one lower than the answer.
    RunPages.pageIndex = RoundInt16(page - 1);
    return true;
}

bool ExitRun()
{
    RunPages.pageIndex = RoundInt16(RunPages.pageCount + 1);
    RunPages.exited = true;
    return true;
}

// ---- The view

static double Aspect()
{
    return Over(PageList.ExtentWidth, PageList.ExtentHeight);
}

ViewRecord ZoomScreenWidth(ViewRecord view, double clientWidth)
{
    view.ImageWidth = clientWidth;
    view.ImageHeight = Over(clientWidth, Aspect());
    view.Top = 0;
    return view;
}

ViewRecord ZoomPage(double clientWidth, double clientHeight, double drawWidth, double drawHeight)
{
    const double aspect = Aspect();
    ViewRecord view;
    if (clientHeight * aspect < clientWidth) {
        view.ImageHeight = clientHeight;
        view.ImageWidth = std::nearbyint(clientHeight * aspect);
    } else {
        view.ImageWidth = clientWidth;
        view.ImageHeight = std::nearbyint(Over(clientWidth, aspect));
    }
    view.Left = (view.ImageWidth - drawWidth) / 2;
    view.Top = (view.ImageHeight - drawHeight) / 2;
    return view;
}

ViewRecord ZoomWindow(double x1, double y1, double x2, double y2, double drawWidth, double drawHeight, double pixelX,
                      double pixelY)
{
    ViewRecord view;
    view.ImageWidth = Over((drawWidth - 2 * pixelX) * PageList.ExtentWidth, std::fabs(x2 - x1));
    view.ImageHeight = Over((drawHeight - 2 * pixelY) * PageList.ExtentHeight, std::fabs(y2 - y1));
    view.Left = Over(x1 * view.ImageWidth, PageList.ExtentWidth);
    view.Top = Over(y1 * view.ImageHeight, PageList.ExtentHeight);
    return view;
}
