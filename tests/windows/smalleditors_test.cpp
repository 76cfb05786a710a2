// smalleditors_test.cpp -- the heading, legend, layout, prompt and description item editors, by real events.
#include "boring/boringboxes.h"
#include "report/heading.h"
#include "report/layout.h"
#include "report/layoutedit.h"
#include "report/prompts.h"
#include "session/files.h"
#include "session/session.h"
#include "session/startup.h"
#include "windows/application.h"
#include "windows/driver.h"

#include <QAbstractItemModel>
#include <QCheckBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTableView>
#include <QTest>

static Text chosen;

// The chooser is tested by itself; here it answers.
static void Choose(const Text& name)
{
    chosen = name;
    Platform.ShowChooser = [] { DialogResult = chosen; };
}

static void TypeInCell(QWidget* window, const char* grid, int row, int column, const char* text)
{
    auto* view = Find<QTableView>(window, grid);
    view->setFocus();
    view->setCurrentIndex(view->model()->index(row - 1, column - 1));
    // The first letter opens the cell's box, which takes the others.
    for (const char* letter = text; *letter; ++letter)
        QTest::keyClick(window->focusWidget(), *letter);
    QTest::keyClick(window->focusWidget(), Qt::Key_Return);
    Settle();
}

TEST_CASE("the heading editor by its menu: open, type, legends, save, exit")
{
    QMainWindow* log = LogWindow();
    Then("frmHeading", [](QWidget* window) {
        CHECK(window->windowTitle() == "Heading Editor");
        Choose(Scratch("us.hdg"));
        ClickMenu(window, "mnuFile", "mnuOpen");
        CHECK(window->windowTitle().toStdString() == "Heading Editor - " + Scratch("us.hdg"));
        const QAbstractItemModel* words = Find<QTableView>(window, "SSLog")->model();
        CHECK(words->headerData(0, Qt::Horizontal).toString() == "Default Text");
        CHECK(words->data(words->index(0, 1)).toString() == "LOG OF BORING");
        CHECK_FALSE(words->flags(words->index(0, 0)).testFlag(Qt::ItemIsEditable));
        LookAt(window, "frmHeading");
        TypeInCell(window, "SSLog", 1, 2, "BOHRPROFIL");
        TypeInCell(window, "SSLog", 39, 2, "pumpe");
        Then("frmDescLegend", [](QWidget* legend) {
            Find<QLineEdit>(legend, "txtFilledTriangle")->setText("Static");
            Find<QLineEdit>(legend, "txtDiamond")->setText("Artesian");
            for (int i = 1; i <= 3; ++i)
                Find<QCheckBox>(legend, QString("Check%1").arg(i).toLatin1())->setChecked(true);
            LookAt(legend, "frmDescLegend");
            Then("MsgBox", [](QWidget* box) { Key(box, Qt::Key_Return); });
            ClickButton(legend, "Command1");
            CHECK(legend->isVisible());
            Find<QCheckBox>(legend, "Check3")->setChecked(false);
            ClickButton(legend, "Command1");
            CHECK_FALSE(legend->isVisible());
        });
        ClickButton(window, "Command1");
        Key(window, Qt::Key_Escape);
        CHECK(window->isVisible());
        Choose(Scratch("office"));
        ClickMenu(window, "mnuFile", "mnuSaveAs");
        CHECK(window->windowTitle().toStdString() == "Heading Editor - " + Scratch("office.HDG"));
        ClickMenu(window, "mnuFile", "mnuExit");
        CHECK_FALSE(window->isVisible());
    });
    ClickMenu(log, "mnuEdit", "mnuEditHeading");
    CheckAllDone();
    LineReader file(Scratch("office.HDG"));
    file.Skip(1);
    CHECK(file.Line() == "BOHRPROFIL");
    file.Skip(37);
    CHECK(file.Line() == "PUMPE");
    file.Skip(7);
    CHECK(file.Line() == "Static|Artesian");
}

TEST_CASE("the layout editor: a tile dragged by the mouse snaps into its place, arrow keys move it, Save writes it")
{
    QMainWindow* log = LogWindow();
    Then("frmLayout", [](QWidget* window) {
        auto* tile = Find<QWidget>(window, "Tile1");
        const QPoint grip(20, 10);
        QTest::mousePress(tile, Qt::LeftButton, {}, grip);
        // 5400, 1080 is the first place; let go 30 twips by 20 beside it.
        const QPoint target(543, 110);
        QTest::mouseMove(tile, tile->mapFromParent(target + grip) / 2);
        QTest::mouseMove(tile, tile->mapFromParent(target + grip));
        Settle();
        QTest::mouseRelease(tile, Qt::LeftButton, {}, tile->mapFromParent(target + grip));
        CHECK(LayoutData.Blocks[1] == 1);
        CHECK(tile->pos() == QPoint(540, 108));
        tile->setFocus();
        Key(window, Qt::Key_Down);
        Key(window, Qt::Key_Right);
        CHECK(LayoutData.Blocks[5] == 1);
        Find<QWidget>(window, "Tile3")->setFocus();
        Key(window, Qt::Key_Right);
        CHECK(frmLayout::InLayout(3));
        LookAt(window, "frmLayout");
        ClickButton(window, "Option3");
        CHECK(LayoutData.Orientation == 2);
        CHECK(FileChanged == 1);
        LookAt(window, "frmLayoutTabloid");
        Find<QWidget>(window, "Tile3")->setFocus();
        Key(window, Qt::Key_Delete);
        CHECK_FALSE(frmLayout::InLayout(3));
        Choose(Scratch("mine"));
        ClickMenu(window, "mnuFile", "mnuSave");
        CHECK(window->windowTitle().toStdString() == "Layout Editor: " + Scratch("mine.LAY"));
        ClickMenu(window, "mnuFile", "mnuExit");
    });
    ClickMenu(log, "mnuEdit", "mnuEditLayout");
    CheckAllDone();
    CHECK(ReadScratch("mine.LAY").starts_with(" 2 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 1 \r\n 0 \r\n"));
    FileChanged = 0;
}

TEST_CASE("the prompt editor: a new text is saved, and the closing of the window asks about one that is not")
{
    QMainWindow* log = LogWindow();
    Then("frmPrompt", [](QWidget* window) {
        CHECK(window->windowTitle() == "Prompt Editor");
        LookAt(window, "frmPrompt");
        TypeInCell(window, "SS1", 67, 2, "Strata");
        ClickMenu(window, "mnuFile", "mnuSave");
        CHECK(frmBorinput::SSLith.title == "Strata");
        TypeInCell(window, "SS1", 68, 2, "Tiefe");
        ThenAnswer("Would you like to save changes before quitting?", "Cancel");
        window->close();
        CHECK(window->isVisible());
        ThenAnswer("Would you like to save changes before quitting?", "No");
        ClickMenu(window, "mnuFile", "mnuExit");
        CHECK_FALSE(window->isVisible());
    });
    ClickMenu(log, "mnuEdit", "mnuEditPromptFile");
    CheckAllDone();
    CHECK(frmBorinput::SSLith.headings[1] == "Depth");
}

TEST_CASE("the description item editor shows the lists, and OK writes and shows what was typed")
{
    QMainWindow* log = LogWindow();
    Then("frmDesItems", [](QWidget* window) {
        auto* box = Find<QPlainTextEdit>(window, "Text1");
        CHECK(box->toPlainText().startsWith("Well graded GRAVEL (GW), \n"));
        LookAt(window, "frmDesItems");
        box->selectAll();
        QTest::keyClicks(box, "Till");
        ClickButton(window, "Command1");
    });
    ClickMenu(log, "mnuEdit", "mnuEditDesItems");
    CheckAllDone();
    CHECK(frmBorinput::List[1] == std::vector<Text>{"Till"});
    CHECK(ReadScratch("desitem.txt").starts_with(" 1 \r\nTill\r\n"));
}

TEST_CASE("a start without prompt.txt ends with the number of the failure and status 1")
{
    UseDesktop();
    std::filesystem::remove(Scratch("prompt.txt"));
    WriteScratch("device.cfg", Lines({Scratch("samples"), "0,0", "Arial"}));
    WriteScratch("first.txt", "yes");
    CHECK(StatusOfStart("Run-time error 53") == 1);
}
