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
    // What pages print as the name of their file, when it is a copy that nobody knows; without it the file's own name.
    std::optional<Text> printedName;
    bool exited = false; // the user has ended it
};
extern RunPagesRecord RunPages;
Text PrintedName(const Text& file); // Returns what the pages of that file print as its name.

// Ends a page, which the platform is told of: prints it and steps to the next one on a print run, else shows it,
// blocking.
void ShowOrPrint();
// Prints the page; its objects hold the print forms of their patterns meanwhile. Failures by number; a pattern that has
// gone from the fills folder is 53.
void printcanvas();
// Prints by that procedure and ends the print run, also when it fails: what has gone out stays, and the next print
// does not come behind it. Failures by number, of the printing first.
void PrintRun(const std::function<void()>& print);

// Writes the page as DXF beside its source, and says so in a box. The name is pageFile with its last 4 characters
// replaced by ".dxf", with the job's word before the ending where another file's or job's drawing has that name.
void ExportDxf();
Text DxfName(); // Returns that name; a pageFile too short to have an ending is failure 5.

// The commands of the screen view. They return true where the view is to be hidden, and the run goes on at pageIndex.
bool NextPage();
bool PreviousPage(); // On the first page it shows a box, and the view stays.
bool GoToPage();     // Asks for the page; an empty answer changes nothing.
bool ExitRun();

// The view: the size of the page's image and its offset in the window, in screen units.
struct ViewRecord {
    double ImageWidth = 0, ImageHeight = 0, Left = 0, Top = 0;
};
// Returns the view with the image as wide as the control; its left offset stays.
ViewRecord ZoomScreenWidth(ViewRecord view, double clientWidth);
// Returns the view that shows the whole page.
ViewRecord ZoomPage(double clientWidth, double clientHeight, double drawWidth, double drawHeight);
// Returns the view that shows the part between two corners, in page units; pixelX and pixelY are the size of a screen
// pixel in units of the control. A drag without width or height is failure 11.
ViewRecord ZoomWindow(double x1, double y1, double x2, double y2, double drawWidth, double drawHeight, double pixelX,
                      double pixelY);
