// projedit_test.cpp -- the project list's editor, by real events.
#include "boring/projectlist.h"
#include "session/files.h"
#include "windows/driver.h"
#include "windows/showwindows.h"

#include <QPushButton>
#include <QTableView>
#include <QTest>

// Types into the cell in focus; Tab goes on to the next.
static void Type(QWidget* window, const Text& words, int then)
{
    TypeWords(window, words);
    Key(window, then);
    Settle();
}

TEST_CASE("a project is typed into the grid, and OK writes the list, with the cell that was still being typed")
{
    LogWindow();
    Then("frmProjEdit", [](QWidget* window) {
        auto* grid = Find<QTableView>(window, "SS");
        CHECK(grid->model()->rowCount() == 500);
        CHECK(grid->model()->columnCount() == 4);
        CHECK(grid->model()->headerData(0, Qt::Horizontal).toString() == "Project ID");
        CHECK(grid->model()->headerData(3, Qt::Horizontal).toString() == "Logo File");
        CHECK(window->focusWidget() == grid);
        Type(window, "Harbour", Qt::Key_Tab);
        Type(window, ScratchFolder(), Qt::Key_Tab);
        TypeWords(window, "my.hdg");
        CHECK(Find<QPushButton>(window, "Command1")->isDefault());
        ClickButton(window, "Command1");
    });
    ShowProjEdit();
    CheckAllDone();
    CHECK(ReadScratch("svproj.lst") == Lines({" 1 ", "Harbour,my.hdg,", ScratchFolder()}));
    CHECK(ProjectCount == 1);
}

TEST_CASE("OK on an empty project list leaves its editor open; Cancel closes it and changes nothing")
{
    LogWindow();
    ProjectCount = 1;
    ProjectList[1] = {"Harbour", ScratchFolder(), "", ""};
    Then("frmProjEdit", [](QWidget* window) {
        Key(window, Qt::Key_A, Qt::ControlModifier);
        Key(window, Qt::Key_Delete);
        ClickButton(window, "Command1");
        CHECK(window->isVisible());
        ClickButton(window, "Command2");
        CHECK_FALSE(window->isVisible());
    });
    ShowProjEdit();
    CheckAllDone();
    CHECK(ProjectCount == 1);
    CHECK_FALSE(FileExists("svproj.lst"));
    Then("frmProjEdit", [](QWidget* window) { Key(window, Qt::Key_Escape); });
    ShowProjEdit();
    CheckAllDone();
}

TEST_CASE("nothing of the grid of the time before can be taken back in the project list's editor")
{
    LogWindow();
    ProjectCount = 1;
    ProjectList[1] = {"Harbour", ScratchFolder(), "", ""};
    Then("frmProjEdit", [](QWidget* window) {
        Type(window, "Quay", Qt::Key_Return);
        CHECK(frmProjEdit::SS.Cell(1, 1) == "Quay");
        ClickButton(window, "Command2");
    });
    ShowProjEdit();
    Then("frmProjEdit", [](QWidget* window) {
        CHECK(frmProjEdit::SS.Cell(1, 1) == "Harbour");
        CHECK(frmProjEdit::SS.row == 1);
        Key(window, Qt::Key_Z, Qt::ControlModifier);
        CHECK(frmProjEdit::SS.Cell(1, 1) == "Harbour");
        ClickButton(window, "Command2");
    });
    ShowProjEdit();
    CheckAllDone();
}
