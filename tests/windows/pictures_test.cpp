// pictures_test.cpp -- every window as its user sees it, on a screen of 1280 by 720: it fits, and its picture in
// docs/gallery/windows is of that window still. With STRATAVUE_ACCEPT=gallery the pictures are taken anew
// (./check --gallery, on a virtual screen).
#include "boring/boringboxes.h"
#include "boring/projectlist.h"
#include "gis/gistool.h"
#include "places.h"
#include "session/session.h"
#include "session/startup.h"
#include "windows/driver.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QScreen>
#include <QTabWidget>
#include <algorithm>
#include <cstdlib>

static const std::string gallery = std::string(SOURCE_DIR) + "/docs/gallery/windows/";
static constexpr QSize screenSize(1280, 720);

static bool real()
{
    return QGuiApplication::platformName() == "xcb";
}

static QImage Taken(QWidget* window)
{
    const QPixmap picture = real() ? window->screen()->grabWindow(window->winId()) : window->grab();
    return picture.toImage().convertToFormat(QImage::Format_RGB888);
}

// The words of labels and buttons that do not fit their place.
static QStringList Clipped(QWidget* window)
{
    QStringList words;
    const auto check = [&words](QWidget* box, const QString& text) {
        const QSize wanted = box->minimumSizeHint();
        if (box->isVisible() && !text.isEmpty() && (box->width() < wanted.width() || box->height() < wanted.height()))
            words << text;
    };
    for (QLabel* label : window->findChildren<QLabel*>())
        if (!label->objectName().startsWith("Tile"))
            check(label, label->text());
        else if (!label->rect().contains(label->fontMetrics().boundingRect(
                     label->rect(), Qt::AlignCenter | Qt::TextWordWrap, label->text())))
            words << label->text(); // a tile of a layout, which breaks its words itself
    for (QAbstractButton* button : window->findChildren<QAbstractButton*>())
        check(button, button->text());
    return words;
}

static void Picture(QWidget* window, const Text& name)
{
    CAPTURE(name);
    window->raise();          // a virtual screen has no one to see to it
    Settle(real() ? 300 : 0); // what was asked for is on the screen
    CHECK(window->width() <= screenSize.width());
    CHECK(window->height() <= screenSize.height());
    CHECK(Clipped(window).join(", ").toStdString() == "");
    const QImage now = Taken(window);
    const QString kept = QString::fromStdString(gallery + name + ".png");
    if (const char* accept = std::getenv("STRATAVUE_ACCEPT"); accept && std::string(accept) == "gallery") {
        std::filesystem::create_directories(gallery);
        REQUIRE(now.save(kept, "PNG", 0));
        return;
    }
    if (window->devicePixelRatioF() != 1) // a look at a finer screen: QT_SCALE_FACTOR with STRATAVUE_SCREEN
        return;
    // Widths of letters differ from one machine to the next, and with them the sizes of windows.
    const QImage before(kept);
    REQUIRE_FALSE(before.isNull());
    CHECK(std::abs(now.width() - before.width()) <= std::max(before.width() / 8, 40));
    CHECK(std::abs(now.height() - before.height()) <= std::max(before.height() / 8, 40));
}

static void Escape(QWidget* window)
{
    Key(window, Qt::Key_Escape);
}

// The log window at the size of the screen, with a sample in it.
static QMainWindow* LogWith(const char* sample)
{
    QMainWindow* log = LogWindow();
    REQUIRE(log);
    Platform.ShortDate = [] { return Text("1/2/2026"); }; // the same page on every day
    log->setGeometry(QRect(QPoint(0, 0), screenSize));
    Settle();
    if (*sample)
        OpenSample(sample);
    return log;
}

// A window that a menu entry opens, seen and closed again.
static void WindowOf(QMainWindow* log, const char* menu, const char* entry, const char* window)
{
    Then(window, [name = Text(window)](QWidget* shown) {
        Picture(shown, name);
        Escape(shown);
        if (shown->isVisible())
            shown->close();
    });
    ClickMenu(log, menu, entry);
    CheckAllDone();
}

TEST_CASE("pictures of the start: the title box and the welcome")
{
    UseDesktop();
    WriteScratch("device.cfg", Lines({Scratch("samples"), "0,0", "Arial"}));
    Then("frmAbout5", [](QWidget* window) {
        Picture(window, "frmAbout5");
        Click(window);
    });
    Then("frmWelcome", [](QWidget* window) {
        Picture(window, "frmWelcome");
        ClickButton(window, "Command1");
    });
    Main();
    CheckAllDone();
}

TEST_CASE("pictures of the log window, a tab each")
{
    QMainWindow* log = LogWith("MW-109.BOR");
    auto* tabs = Find<QTabWidget>(log, "SSTab1");
    REQUIRE(tabs->count() == 7);
    const char* const names[] = {"general", "lithology", "samples", "parameters", "well", "remarks", "cuttings"};
    for (int i = 0; i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        Picture(log, Text("frmBorinput-") + names[i]);
    }
}

TEST_CASE("pictures of the log window with the page beside the boxes")
{
    QMainWindow* log = LogWith("TC-101.BOR");
    Find<QTabWidget>(log, "SSTab1")->setCurrentIndex(1);
    log->findChild<QAction*>("mnuLivePreview")->trigger();
    Settle(600); // the page is drawn when the typing pauses
    Picture(log, "frmBorinput-page");
}

TEST_CASE("pictures of the log window with the check list beside the boxes")
{
    QMainWindow* log = LogWith("TC-101.BOR");
    // A contact above the one before it, and a sample that begins in the one before it.
    frmBorinput::SSLith.Cell(3, 1) = "2.5";
    frmBorinput::SSSamp.Cell(2, 1) = frmBorinput::SSSamp.Cell(1, 1);
    Find<QTabWidget>(log, "SSTab1")->setCurrentIndex(1);
    ClickMenu(log, "mnuView", "mnuCheckList");
    Settle(300);
    auto* list = Find<QListWidget>(log, "lstCheck");
    CHECK(list->count() >= 2);
    Picture(log, "frmBorinput-check");
    FileChanged = 0;
}

// A tool with a definition of the samples in it, seen as it comes and after act.
static void PictureOfTool(QMainWindow* log, const char* entry, const char* window, const char* sample,
                          std::function<void(QWidget*)> act)
{
    Then(window, [&](QWidget* tool) {
        tool->setGeometry(QRect(QPoint(0, 0), screenSize));
        Settle();
        static Text name;
        name = Scratch(Text("samples/") + sample);
        Platform.ShowChooser = [] { DialogResult = name; };
        try {
            ClickMenu(tool, "mnuFile", "mnuOpen");
            Settle(); // behind the menu the window is in front again
            Picture(tool, tool->objectName().toStdString());
            act(tool);
        } catch (...) { // a check that had to hold has not, which is recorded: the window goes, so that the test ends
        }
        FileChanged = 0;
        tool->close();
    });
    ClickMenu(log, "mnuTools", entry);
    CheckAllDone();
}

static void WithPage(QWidget* tool)
{
    tool->findChild<QAction*>("mnuLivePreview")->trigger();
    Settle(800); // the page is drawn when the typing pauses
    Picture(tool, tool->objectName().toStdString() + "-page");
}

TEST_CASE("pictures of the cross section, fence and soil tools, alone and with the page beside the boxes")
{
    QMainWindow* log = LogWith("");
    PictureOfTool(log, "mnuvcross", "frmCross", "TC-S1.CRO", WithPage);
    PictureOfTool(log, "mnuvfence", "frmFence", "TC-F1.FEN", WithPage);
    PictureOfTool(log, "mnuvsoil", "frmSoil", "MW-108.SOI", WithPage);
}

TEST_CASE("a picture of the workbench, with the layers of a boring in sight")
{
    QMainWindow* log = LogWith("");
    PictureOfTool(log, "mnuvGIS", "frmGIS", "WIREWICK.GIS", [](QWidget* tool) {
        auto* files = Find<QListWidget>(tool, "File1");
        files->item(1)->setSelected(true);
        ClickButton(tool, "Command3");
        CHECK(frmGIS::SSBoringData.DataRowCount() > 0);
        Picture(tool, "frmGIS");
    });
}

TEST_CASE("a picture of the general conversion's editor")
{
    QMainWindow* log = LogWith("");
    Then("frmGTGSGenEditor", [](QWidget* window) {
        Platform.ShowChooser = [] { DialogResult = Text(SOURCE_DIR) + "/tests/convert/data/general/comma.GCV"; };
        ClickMenu(window, "mnuFile", "mnuOpenGTGSConvFile");
        Settle();
        window->setWindowTitle("GTGS General Conversion Editor - comma.GCV"); // the same picture in every folder
        Picture(window, "frmGTGSGenEditor");
        ClickMenu(window, "mnuFile", "mnuExit");
    });
    ClickMenu(log, "mnuUtilities", "mnuConvertGTGSgeneral");
    CheckAllDone();
}

TEST_CASE("pictures of the chooser with its projects, and of the editor of their list")
{
    LogWith("");
    WriteScratch("svproj.lst", Lines({"2", "Harbour wall,us.hdg,logo.txt", Scratch("samples"),
                                      "Quarry road,us.hdg,logo.txt", ScratchFolder()}));
    LoadProjectList();
    DialogMode = 1;
    Then("frmOpenSave", [](QWidget* window) {
        Picture(window, "frmOpenSave");
        ClickButton(window, "Command4");
        Escape(window);
    });
    Then("frmProjEdit", [](QWidget* window) {
        Picture(window, "frmProjEdit");
        Escape(window);
    });
    Platform.ShowChooser();
    CheckAllDone();
}

TEST_CASE("pictures of the set-up, the logo and the print set-up")
{
    QMainWindow* log = LogWith("");
    WindowOf(log, "mnuUtilities", "mnuGraphicSetup", "frmPrinterSetup");
    WindowOf(log, "mnuUtilities", "mnuCreateLogo", "frmLogo");
    WindowOf(log, "mnuFile", "mnuPrintSetup", "PrintSetup");
    WindowOf(log, "mnuHelpMenu", "mnuHelp", "Help");
}

TEST_CASE("pictures of the heading editor and its legend")
{
    QMainWindow* log = LogWith("");
    Then("frmHeading", [](QWidget* window) {
        Platform.ShowChooser = [] { DialogResult = "us.hdg"; };
        ClickMenu(window, "mnuFile", "mnuOpen");
        Picture(window, "frmHeading");
        Then("frmDescLegend", [](QWidget* legend) {
            Picture(legend, "frmDescLegend");
            legend->close();
        });
        ClickButton(window, "Command1");
        window->close();
    });
    ClickMenu(log, "mnuEdit", "mnuEditHeading");
    CheckAllDone();
}

TEST_CASE("pictures of the layout, prompt and description item editors")
{
    QMainWindow* log = LogWith("");
    Platform.ShowChooser = [] { DialogResult = "PORTRAIT.LAY"; };
    Then("frmLayout", [](QWidget* window) {
        ClickMenu(window, "mnuFile", "mnuOpen");
        Picture(window, "frmLayout");
        window->close();
    });
    ClickMenu(log, "mnuEdit", "mnuEditLayout");
    CheckAllDone();
    WindowOf(log, "mnuEdit", "mnuEditPromptFile", "frmPrompt");
    WindowOf(log, "mnuEdit", "mnuEditDesItems", "frmDesItems");
}

TEST_CASE("pictures of the batch dialog, the screen view and the printing notice")
{
    QMainWindow* log = LogWith("MW-109.BOR");
    WindowOf(log, "mnuFile", "mnuBatchDraw", "frmDrawPrint");
    Then("DrawArea", [](QWidget* window) {
        window->setGeometry(QRect(QPoint(0, 0), screenSize));
        Settle();
        Picture(window, "frmDrawArea");
        ClickMenu(window, "mnuFile", "mnuPrint");
        ClickMenu(window, "mnuFile", "mnuExit");
    });
    Then("frmPrinting", [](QWidget* window) { Picture(window, "frmPrinting"); });
    Then("MsgBox", [](QWidget* window) { Key(window, Qt::Key_Return); });
    ClickMenu(log, "mnuFile", "mnuPreview");
    CheckAllDone();
}
