// platform.h -- all that the logic asks of the window system. What it asks of the machine's own system, files and the
// process, stands in session/machine.h.
//
// The record of procedures is filled in once, at the start of a program: by windows/desktop.cpp and
// programs/stratavue-batch.cpp for the two programs, by plain/plain.cpp for the tests. Every procedure is always there.
#pragma once

#include "session/text.h"

enum Buttons { OkOnly, OkCancel, YesNo, YesNoCancel };
// Announcement has no icon: it tells that what was asked for begins or is done, and nothing is wrong.
enum Icon { NoIcon, Question, Exclamation, Announcement };
enum Answer { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

// The tools of the program. The log tool stays open under the others, of which one at a time is open.
enum class Tool { Log, Cross, Fence, Soil, GIS };

// What a printer says of its sheet: the printable size, in inches and in device units.
struct Sheet {
    float WidthInches = 0, HeightInches = 0, WidthUnits = 0, HeightUnits = 0;
};

// Returns the page of a machine with no printer: letter, or 11 by 17 inches landscape, less a quarter inch on each
// side, at 600 units to the inch. mode is as for PrinterSheet.
Sheet DefaultSheet(char mode);

struct PlatformRecord {
    // Boxes.
    int (*MsgBox)(const Text& words, Buttons buttons, Icon icon);
    Text (*InputBox)(const Text& prompt, const Text& title, const Text& answer); // "" when cancelled
    // The page. PrinterSheet: mode 'P' letter portrait, 'L' letter landscape, any other 11 by 17 landscape.
    Sheet (*PrinterSheet)(char mode);
    void (*PageDrawn)();   // the object list of a page is complete, and is neither shown nor printed yet
    void (*ShowPage)();    // the screen view, blocking; its commands move RunPages.pageIndex
    void (*PrintPage)();   // the object list to the printer: one page, brush pictures as the objects hold them
    void (*EndPrintRun)(); // the last page of a print run has gone out
    // Logos and maps: whether that file can be decoded; and, as a run begins, those that have changed on the disk since
    // they were loaded are forgotten.
    bool (*PictureLoads)(const Text& file);
    void (*DropChangedPictures)();
    // Windows. The blocking ones return when the window is closed.
    void (*ShowDrawPrint)(); // the batch dialog, blocking
    void (*ShowPrinting)();  // the notice "Printing...", blocking for a second and a half
    void (*ShowProgress)(bool shown);
    void (*StepProgress)(const Text& words, float percent);
    void (*ShowRunMessages)(); // what a run of several files has told, blocking
    void (*ShowChooser)();     // by DialogMode; answers in DialogResult
    void (*ShowHelp)();
    void (*ShowProjEdit)();                   // the editor of the project list, blocking
    void (*ShowGraphicsSetup)();              // the set-up window, blocking
    void (*ShowLogo)();                       // the logo window, blocking
    void (*ShowPrinterSetup)();               // which printer, blocking
    bool (*PrinterHasFont)(const Text& name); // exactly so
    Text (*ChooseFont)(const Text& font);     // the system's font dialog; "" when cancelled
    void (*PrintToPdf)(bool on);              // while on, print runs go to a PDF whatever printer is chosen
    // The start and the end of the desktop program.
    Text (*ExecutableFolder)();
    Text (*DataFolder)();             // where the user's programs keep their data; need not be there yet
    void (*ShowAbout)(bool blocking); // the title box; blocking: until it is clicked
    void (*ShowLogWindow)();          // the log window, loaded and shown when this returns
    void (*ShowWelcome)();            // blocking
    void (*EndProcess)();             // the log window goes, and with it the program
    void (*ShowTool)(Tool tool);      // blocking: until the user is back in the log tool, or leaves the program
    // The clipboard, lines ended by CR LF; and a word in passing: a beep, and the words where they hold up nobody.
    Text (*ClipboardText)();
    void (*SetClipboardText)(const Text& text);
    void (*Notice)(const Text& words);
    void (*Tell)(const Text& words); // the same without the beep: what was asked for is done, and more with it
    void (*Breathe)();               // a turn for the window system, so that Escape is seen
    Text (*ShortDate)();             // today, in the short form of the user's locale
    // True where nobody sits in front: a question takes the answer that loses nothing, and a run that cannot go
    // on ends instead of waiting for a key.
    bool Unattended;
};
extern PlatformRecord Platform;

inline int MsgBox(const Text& words, Buttons buttons = OkOnly, Icon icon = NoIcon)
{
    return Platform.MsgBox(words, buttons, icon);
}
