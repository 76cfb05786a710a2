// showwindows.h -- the windows of the program, each shown through one procedure.
//
// Each frm*.cpp is one window and defines its own; windows/desktop.cpp puts them into the seam.
#pragma once

#include "session/text.h"

class QWidget;

void ShowAboutBox(bool blocking);       // frmAbout5
void ShowWelcomeWindow();               // frmWelcome
void ShowLogWindow();                   // frmBorinput
void EndProgram();                      // the same: it goes, and the event loop with it
void OfferRecovery();                   // the same: asks about the copies that a crash has left
void OpenInLogWindow(const Text& name); // a boring from outside, as soon as the events come to it
void ShowCrossWindow();                 // frmCross: blocking, as the tools below
void ShowFenceWindow();                 // frmFence
void ShowSoilWindow();                  // frmSoil
void ShowGisWindow();                   // frmGIS
void ShowOpenSave();                    // frmOpenSave: by DialogMode; the path in DialogResult, "" when cancelled
void ShowProjEdit();                    // frmProjEdit
void ShowGraphicsSetup();               // frmPrinterSetup
void ShowLogoWindow();                  // frmLogo
void ShowHeadingWindow();               // frmHeading
void ShowDescLegendWindow();            // frmDescLegend
void ShowLayoutWindow();                // frmLayout
void ShowPromptWindow();                // frmPrompt
void ShowDesItemsWindow();              // frmDesItems
void ShowGTGSGenEditor();               // frmGTGSGenEditor
void ShowDrawArea();                    // frmDrawArea
void ShowDrawPrintDialog();             // frmDrawPrint
void ShowPrintingNotice();              // frmPrinting
void ShowRunMessagesWindow();           // frmRunMessages
void ShowProgressWindow(bool shown);    // frmProgress
void StepProgressWindow(const Text& words, float percent);
void Breathe();     // gives the window system a turn
bool RunUnderWay(); // returns whether a page is being made: then the progress window is asked for
void RunPaused();   // tells that a box was up: what the user took to read it does not count as a slow page

// Fills in Platform for the desktop program.
void UseDesktopPlatform();
