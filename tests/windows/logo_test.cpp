// logo_test.cpp -- the logo window, by real events.
#include "windows/driver.h"

#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTest>
#include <filesystem>

TEST_CASE("the logo is typed and written at OK, and left alone at Cancel")
{
    QMainWindow* log = LogWindow();
    WriteScratch("logo.txt", Lines({"one", "two", "three", "1", "LOGO.BMP", "300"}));
    Then("frmLogo", [](QWidget* window) {
        CHECK(Find<QPlainTextEdit>(window, "Text1")->toPlainText() == "one\ntwo\nthree");
        CHECK(Find<QRadioButton>(window, "Option1")->isChecked());
        CHECK(Find<QRadioButton>(window, "Option1")->text().remove('&') == "Use Graphic Logo");
        CHECK(Find<QRadioButton>(window, "Option2")->text().remove('&') == "Use Text Logo");
        CHECK(Find<QLineEdit>(window, "Text2")->text() == "LOGO.BMP");
        CHECK(Find<QLineEdit>(window, "Text3")->text() == "300");
        QTest::keyClicks(Find<QPlainTextEdit>(window, "Text1"), "zero ");
        Click(Find<QRadioButton>(window, "Option2"));
        ClickButton(window, "Command1");
    });
    ClickMenu(log, "mnuUtilities", "mnuCreateLogo");
    CheckAllDone();
    CHECK(ReadScratch("logo.txt") == Lines({"zero one", "two", "three", "0", "LOGO.BMP", "300"}));
    Then("frmLogo", [](QWidget* window) {
        CHECK(Find<QRadioButton>(window, "Option2")->isChecked());
        QTest::keyClicks(Find<QPlainTextEdit>(window, "Text1"), "lost");
        Key(window, Qt::Key_Escape);
    });
    ClickMenu(log, "mnuUtilities", "mnuCreateLogo");
    CheckAllDone();
    CHECK(ReadScratch("logo.txt") == Lines({"zero one", "two", "three", "0", "LOGO.BMP", "300"}));
}

TEST_CASE("without logo.txt the logo window does not come, and the program goes on")
{
    QMainWindow* log = LogWindow();
    std::filesystem::remove(Scratch("logo.txt"));
    ThenAnswer("Run-time error 53", "OK");
    ClickMenu(log, "mnuUtilities", "mnuCreateLogo");
    CheckAllDone();
    CHECK(log->isVisible());
}
