// batchrun.h -- how every drawing run starts: the batch dialog's state, the job switch, log.mas and break.mas, and the
// progress of a page.
#pragma once

#include "session/slots.h"
#include "session/text.h"

// The jobs of the batch dialog. Those that draw pages come in pairs, the job behind prints what the one before it
// shows; the jobs from the guide on have no pages of files.
enum Job {
    NoJob,       // work outside the dialog
    DrawLogsJob, // boring logs, or the intro pages of borings
    PrintLogsJob,
    DrawSectionsJob,
    PrintSectionsJob,
    DrawFencesJob,
    PrintFencesJob,
    DrawSoilJob, // soil analysis tables
    PrintSoilJob,
    GuideJob,  // the Fill Pattern Guide, which has no dialog
    IrpimsJob, // borings to the tables of IRPIMS
    PrtJob,    // GTGS print files to borings
    WinLogJob, // WinLog files to borings
};

constexpr int MaxRunFiles = 200, MaxPageRecords = 500, MaxJobs = WinLogJob;

extern int16_t jobCode;                   // the Job of the dialog
extern Slots<Text, MaxRunFiles> runFiles; // the chosen files with their full paths
extern int16_t runFileCount;
extern int16_t singleFile; // 1: singleFileName runs with no dialog
extern Text singleFileName;
extern int16_t introType;     // 0 boring diagram, 1 and 2 the two intro pages
extern int16_t dialogBusy;    // -1 while OK runs
extern int16_t stopRequested; // -1 after Escape or Cancel
extern Text lastDir;          // the folder shown in the dialog
extern int16_t progressValue, progressTotal;

// What each job starts once log.mas is written, filled in by the start of a program: this folder is below the
// renderers. In a test a job may have no entry.
extern Slots<void (*)(), MaxJobs> JobTable;
// The renderer of intro pages, which the jobs of logs start when introType is not 0.
extern void (*IntroPages)();

// The dialog's boxes. File1 holds the names of the folder Dir1; Selected those that are marked.
namespace frmDrawPrint
{
constexpr int MostFiles = 10000;
struct Record {
    Text Title, Filter, Label, Dir1;
    Slots<Text, MostFiles> File1;
    Slots<bool, MostFiles> Selected;
    int FileCount = 0;
    bool SelectAll = false;   // Option1 is checked
    bool ReportChoice = true; // Frame2 and Frame3 are there
    int HeightTwips = 0;      // 0: as tall as its boxes need
    int ReportOption = 0;     // 0 OptionBor, 1 OptionIntro, 2 OptionIntro2
    bool AllPages = true;     // OptionAll, else OptionPage with Text1
    Text Text1;
    bool Unloaded = true; // the dialog is closed
};
extern Record Dialog;
// Set by the window while it is up: it closes here, before the job's own windows come. May be null.
extern void (*CloseWindow)();
bool Command1(); // OK; true when the dialog has closed
bool Command2(); // Cancel; false while busy
void Option1();  // Select All
void ChangeFolder(const Text& folder);
} // namespace frmDrawPrint

// The pages that a boring is cut into, one after another. Reads the boring only as far as its end depth and its page
// break, lines 64 and 66; failures by number.
//     for (BoringPages page(file); page.Next();)
struct BoringPages {
    explicit BoringPages(const Text& file);
    bool Next();    // false behind the last page
    int Number = 0; // of the page, from 1
    int16_t Count = 1;
    int16_t Start = 0;
    float End = 0;

private:
    float pageBreak = 0;
};

void DrawPrintLoad();                    // prepares the dialog for jobCode
void DrawPrintOk();                      // performs the job on the selection, or on singleFileName
void getpage(Text& first, Text& second); // the two page words of the heading file; an old value stays on failure
void getsvfiles();                       // log.mas in list form into runFiles
void incseg(int step);                   // one progress step; the argument is ignored
void SetProgress(int total);             // the counter to 0 of total; a total below 0 is 0
void WriteBreak(const Text& flag);       // break.mas
Text ReadBreak();                        // its line; failures by number
Text MasFile();                          // path of log.mas
