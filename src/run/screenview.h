// screenview.h -- RunPages, the steering of a run from the screen view, zoom sums, and printing a page.
#pragma once

#include "session/text.h"

#include <functional>
#include <optional>

struct RunPagesRecord {
    int16_t pageCount = 0; // pages of the run
    int16_t pageIndex = 0; // the page now on screen; a log run counts from 0, every other run from 1
    int16_t zeroBased = 0; // Kept: set to 1 by the first log run and never cleared; only Previous reads it
    Text pageFile;         // path of the file that the current page comes from
    int16_t printing = 0;  // 1: a print run
    // What pages print as the name of their file: of one that is drawn from a copy that nobody knows. Else its own.
    std::optional<Text> printedName;
    bool exited = false; // the user has ended it
};
extern RunPagesRecord RunPages;
Text PrintedName(const Text& file); // what the pages of that file print as its name

// Ends a page, which the platform is told of: prints it and steps to the next one on a print run, else shows it,
// blocking.
void ShowOrPrint();
// The page to the printer: the objects hold the print forms of their patterns meanwhile. Failures by number; a
// pattern that has gone from the fills folder is 53.
void printcanvas();
// Prints by that procedure and ends the print run, also when it fails: what has gone out stays, and the next print
// does not come behind it. Failures by number, of the printing first.
void PrintRun(const std::function<void()>& print);

// The page as DXF beside its source, and the box that says so; the name is pageFile with its last 4 characters
// replaced by ".dxf", with the job's word before the ending where another file's or job's drawing has that name.
void ExportDxf();
Text DxfName(); // failure 5 for a pageFile too short to have an ending

// The commands of the screen view. True: the view is to be hidden, and the run goes on at pageIndex.
bool NextPage();
bool PreviousPage(); // on the first page a box, and the view stays
bool GoToPage();     // asks; an empty answer changes nothing
bool ExitRun();

// The view: the size of the page's image and its offset in the window, in screen units.
struct ViewRecord {
    double ImageWidth = 0, ImageHeight = 0, Left = 0, Top = 0;
};
ViewRecord ZoomScreenWidth(ViewRecord view, double clientWidth); // left offset stays
ViewRecord ZoomPage(double clientWidth, double clientHeight, double drawWidth, double drawHeight);
// Corners in page units; pixelX, pixelY the size of a screen pixel in units of the control. Failure 11 for a drag
// without width or height.
ViewRecord ZoomWindow(double x1, double y1, double x2, double y2, double drawWidth, double drawHeight, double pixelX,
                      double pixelY);
