// printing_test.cpp -- print runs where there is no printer, and the printer set-up.
#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "painter/pdfrun.h"
#include "run/batchrun.h"
#include "run/screenview.h"
#include "run/viewcommands.h"
#include "session/failure.h"
#include "session/files.h"
#include "windows/driver.h"
#include "windows/printers.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QPushButton>

static void Choose(QWidget* dialog, std::initializer_list<const char*> names)
{
    auto* files = Find<QListWidget>(dialog, "File1");
    files->clearSelection();
    for (const char* name : names)
        for (QListWidgetItem* item : files->findItems(name, Qt::MatchExactly))
            item->setSelected(true);
}

TEST_CASE("Batch Print of two borings is one PDF, named like the first page's source and told once at its end")
{
    QMainWindow* log = LogWindow();
    const Text name = Scratch("samples/TC-102.pdf");
    QElapsedTimer notice;
    Then("frmDrawPrint", [&](QWidget* window) {
        Choose(window, {"TC-102.BOR", "TC-103.BOR"});
        notice.start();
        ClickButton(window, "Command1");
    });
    Then("frmPrinting", [](QWidget* window) { CHECK(window->findChild<QLabel*>()->text() == "Printing..."); });
    ThenAnswer(("FILE CREATED:  " + name).c_str(), "OK");
    ClickMenu(log, "mnuFile", "mnuPrint");
    CheckAllDone();
    CHECK(notice.elapsed() >= 1500);
    CHECK(WrittenByUs(name));
    CHECK(ReadScratch("samples/TC-102.pdf").find("/Count 3") != std::string::npos);
    CHECK_FALSE(FileExists(Scratch("samples/TC-103.pdf")));
}

TEST_CASE("Print after Export to PDF leaves the exported PDF alone, and each replaces its own")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-101.BOR");
    const Text exported = Scratch("samples/TC-101.pdf"), printed = Scratch("samples/TC-101-2.pdf");
    for (int round = 1; round <= 2; ++round) {
        Then("DrawArea", [](QWidget* window) {
            ClickMenu(window, "mnuFile", "mnuPDF");
            const std::string whole = ReadScratch("samples/TC-101.pdf");
            CHECK(whole.find("/Count 3") != std::string::npos);
            ClickMenu(window, "mnuFile", "mnuPrint");
            CHECK(ReadScratch("samples/TC-101.pdf") == whole);
            CHECK(ReadScratch("samples/TC-101-2.pdf").find("/Count 1") != std::string::npos);
            ClickMenu(window, "mnuFile", "mnuExit");
        });
        ThenAnswer(("FILE CREATED:  " + exported).c_str(), "OK");
        Then("frmPrinting", [](QWidget*) {});
        ThenAnswer(("FILE CREATED:  " + printed).c_str(), "OK");
        ClickMenu(log, "mnuFile", "mnuPreview");
        CheckAllDone();
    }
    CHECK_FALSE(FileExists(Scratch("samples/TC-101-3.pdf")));
}

TEST_CASE("a PDF that another program wrote is left alone, and one of ours is replaced")
{
    QMainWindow* log = LogWindow();
    WriteScratch("samples/TC-103.pdf", "%PDF-1.4 somebody else's");
    const Text name = Scratch("samples/TC-103-2.pdf");
    OpenSample("TC-103.BOR");
    for (int i = 0; i < 2; ++i) {
        Then("DrawArea", [](QWidget* window) {
            ClickMenu(window, "mnuFile", "mnuPrint");
            CHECK(window->isVisible());
            ClickMenu(window, "mnuFile", "mnuExit");
        });
        Then("frmPrinting", [](QWidget*) {});
        ThenAnswer(("FILE CREATED:  " + name).c_str(), "OK");
        ClickMenu(log, "mnuFile", "mnuPreview");
        CheckAllDone();
    }
    CHECK(ReadScratch("samples/TC-103.pdf") == "%PDF-1.4 somebody else's");
    CHECK(WrittenByUs(name));
    CHECK_FALSE(FileExists(Scratch("samples/TC-103-3.pdf")));
}

// A page with a line, and a picture that cannot be had; printed as the screen view's Print does, without its notice.
static void PrintTestPage(const Text& source, const char* picture)
{
    RunPages.pageFile = source;
    canvasstart("P");
    setscalex(1);
    setscaley(1);
    lineright(1);
    if (*picture)
        AddObject(ObjectKind::Picture, 0, 600, 600, 0).String = Scratch(picture);
    PrintShownPage();
}

TEST_CASE("a page that cannot be printed leaves no PDF, is told by its own failure, and the next print stands alone")
{
    UseDesktop();
    static std::vector<Text> boxes;
    boxes.clear();
    Platform.MsgBox = [](const Text& words, Buttons, Icon icon) {
        boxes.push_back(words);
        CHECK(icon == Announcement);
        return int(Ok);
    };
    Platform.ShowPrinting = [] {};
    CHECK(FailureOf([] { PrintTestPage(Scratch("FIRST.BOR"), "gone.bmp"); }) == FileNotFound);
    CHECK(boxes.empty());
    CHECK_FALSE(FileExists(Scratch("FIRST.pdf")));
    PrintTestPage(Scratch("SECOND.BOR"), "");
    CHECK(boxes == std::vector<Text>{"FILE CREATED:  " + Scratch("SECOND.pdf")});
    CHECK(ReadScratch("SECOND.pdf").find("/Count 1\n") != std::string::npos);
    CHECK(FailureOf([] { PrintTestPage(Scratch("none/THIRD.BOR"), ""); }) == PathNotFound);
    PrintTestPage(Scratch("FOURTH.BOR"), "");
    CHECK(boxes.back() == "FILE CREATED:  " + Scratch("FOURTH.pdf"));
    CHECK(FilesIn(ScratchFolder(), ".tmp~").empty());
}

// A print run whose second page cannot be printed, as a renderer makes it.
static void TwoPages()
{
    for (int page = 1; page <= 2; ++page) {
        RunPages.pageFile = Scratch("RUN.BOR");
        canvasstart("P");
        setscalex(1);
        lineright(1);
        if (page == 2)
            AddObject(ObjectKind::Picture, 0, 600, 600, 0).String = Scratch("gone.bmp");
        ShowOrPrint();
    }
}

TEST_CASE("of a print run that fails on its second page the first one is kept, whole")
{
    UseDesktop();
    static std::vector<Text> boxes;
    boxes.clear();
    Platform.MsgBox = [](const Text& words, Buttons, Icon) {
        boxes.push_back(words);
        return int(Ok);
    };
    JobTable[6] = TwoPages;
    jobCode = 6;
    singleFile = 1;
    singleFileName = Scratch("RUN.BOR");
    DrawPrintOk();
    CHECK(boxes == std::vector<Text>{"FILE CREATED:  " + Scratch("RUN.pdf"),
                                     "Error 53 in DrawPrintOk.  Please contact Norvane"});
    CHECK(ReadScratch("RUN.pdf").find("/Count 1\n") != std::string::npos);
}

TEST_CASE("the printer set-up offers Print to PDF, which is the choice of a system without printers")
{
    QMainWindow* log = LogWindow();
    Then("PrintSetup", [](QWidget* window) {
        auto* names = Find<QComboBox>(window, "cmbPrinter");
        CHECK(names->itemText(0) == "Print to PDF");
        CHECK(names->currentText() == "Print to PDF");
        CHECK(Find<QLabel>(window, "lblSheet")->text().startsWith("Letter: 8.00 x 10.50 inches"));
        CHECK_FALSE(Find<QPushButton>(window, "cmdProperties")->isEnabled());
        Click(window->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok));
    });
    ClickMenu(log, "mnuFile", "mnuPrintSetup");
    CheckAllDone();
    CHECK(ChosenPrinter() == "Print to PDF");
}

TEST_CASE("without a printer the page is the one of the files: 600 dots to the inch, a quarter inch off each side")
{
    UseDesktop();
    CHECK(SheetOf('P').WidthUnits == 4800);
    CHECK(SheetOf('L').HeightInches == 8.0f);
    CHECK(SheetOf('T').WidthUnits == 9900);
}
