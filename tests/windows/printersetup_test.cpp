// printersetup_test.cpp -- the set-up window, by real events.
#include "boring/boringboxes.h"
#include "report/fontprofile.h"
#include "session/deviceconfig.h"
#include "session/files.h"
#include "session/session.h"
#include "windows/driver.h"

#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <filesystem>

static void Retype(QWidget* window, const char* box, const char* words)
{
    auto* line = Find<QLineEdit>(window, box);
    line->selectAll();
    QTest::keyClicks(line, words);
}

TEST_CASE("the set-up window shows the set-up, and OK writes what was typed")
{
    QMainWindow* log = LogWindow();
    Then("frmPrinterSetup", [](QWidget* window) {
        CHECK(window->windowTitle() == "Graphics/System Setup");
        CHECK(Find<QLineEdit>(window, "Text1")->text() == "Arial");
        CHECK(Find<QLineEdit>(window, "Text2")->text() == " 0, 0, 0, 0, 0");
        CHECK(Find<QLineEdit>(window, "Text3")->text() == "0,0");
        const QAbstractItemModel* files = Find<QTableView>(window, "SSMainFilePath")->model();
        CHECK(files->rowCount() == 7);
        CHECK(files->headerData(6, Qt::Vertical).toString() == "Path to Fill Files");
        CHECK(files->data(files->index(0, 0)).toString() == "us.hdg");
        Retype(window, "Text3", "5,-7");
        auto* grid = Find<QTableView>(window, "SSMainFilePath");
        grid->setFocus();
        TypeWords(window, "my.hdg");
        ClickButton(window, "Command1");
    });
    ClickMenu(log, "mnuUtilities", "mnuGraphicSetup");
    CheckAllDone();
    CHECK(DeviceConfig.MarginX == 2);
    CHECK(DeviceConfig.SystemFiles[HeadingFile] == "my.hdg");
    LineReader device("device.cfg");
    device.Skip(1);
    CHECK(device.Line() == "5,-7");
}

TEST_CASE("Cancel of the set-up window changes nothing")
{
    QMainWindow* log = LogWindow();
    const std::string before = ReadScratch("device.cfg");
    Then("frmPrinterSetup", [](QWidget* window) {
        Retype(window, "Text1", "Nonesuch");
        Retype(window, "Text3", "5,-7");
        Key(window, Qt::Key_Escape);
    });
    ClickMenu(log, "mnuUtilities", "mnuGraphicSetup");
    CheckAllDone();
    CHECK(DeviceConfig.FontName == "Arial");
    CHECK(DeviceConfig.MarginOffsets == "0,0");
    CHECK(ReadScratch("device.cfg") == before);
}

TEST_CASE("a font that is not there is told; one that is there is drawn in the boxes, with the same lines")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-101.BOR");
    const std::vector<Text> lines = frmBorinput::MemoDes.DisplayLines();
    Then("frmPrinterSetup", [](QWidget* window) {
        Retype(window, "Text1", "Nonesuch");
        ClickButton(window, "Command1");
    });
    ThenAnswer("Font: Nonesuch is not available for your printer.  Please select another.", "OK");
    ClickMenu(log, "mnuUtilities", "mnuGraphicSetup");
    CheckAllDone();
    Then("frmPrinterSetup", [](QWidget* window) {
        Retype(window, "Text1", "Liberation Mono");
        ClickButton(window, "Command1");
    });
    ClickMenu(log, "mnuUtilities", "mnuGraphicSetup");
    CheckAllDone();
    CHECK(DeviceConfig.FontName == "Liberation Mono");
    CHECK(Find<QPlainTextEdit>(log, "MemoDes")->font().family() == "Liberation Mono");
    CHECK(Find<QPlainTextEdit>(log, "txtClient")->font().family() == "Liberation Mono");
    CHECK(Find<QLineEdit>(log, "Text1")->font().family() == "Liberation Mono");
    const QAbstractItemModel* lith = Find<QTableView>(log, "SSLith")->model();
    CHECK(lith->data(lith->index(0, 0), Qt::FontRole).value<QFont>().family() == "Liberation Mono");
    CHECK(frmBorinput::MemoDes.DisplayLines() == lines);
    CHECK(FileChanged == 1); // the boxes were sized anew
}

TEST_CASE("the tab order of the set-up window, and its buttons")
{
    QMainWindow* log = LogWindow();
    Then("frmPrinterSetup", [](QWidget* window) {
        CHECK(window->focusWidget()->objectName() == "Text1");
        std::vector<std::string> order;
        for (const QWidget* box = window->focusWidget();;) {
            if (box->focusPolicy() & Qt::TabFocus && box->isVisibleTo(window))
                order.push_back(box->objectName().toStdString());
            box = box->nextInFocusChain();
            if (box == window->focusWidget())
                break;
        }
        std::erase(order, "");
        CHECK(order == std::vector<std::string>{"Text1", "Command4", "Text2", "Text3", "Command3", "SSMainFilePath",
                                                "Text4", "cmdBrowse", "Command5", "Command1", "Command2"});
        for (const char* name : {"Text1", "Text2", "Text3", "Text4", "SSMainFilePath"})
            CHECK_MESSAGE(!Find<QWidget>(window, name)->accessibleName().isEmpty(), name);
        CHECK(Find<QPushButton>(window, "Command1")->isDefault());
        CHECK(Find<QPushButton>(window, "Command3")->text().remove('&') == "Printer Set-Up");
        CHECK(Find<QPushButton>(window, "Command4")->text().remove('&') == "Choose Font");
        CHECK(Find<QPushButton>(window, "Command5")->text().remove('&') == "Copy System Files to Diskette");
        ClickButton(window, "Command3");
        Key(window, Qt::Key_Escape);
    });
    Then("PrintSetup", [](QWidget* window) { Key(window, Qt::Key_Escape); });
    ClickMenu(log, "mnuUtilities", "mnuGraphicSetup");
    CheckAllDone();
}

TEST_CASE("the font dialog that is cancelled leaves the adjustments; its OK sets them to 0")
{
    QMainWindow* log = LogWindow();
    DeviceConfig.TextAdjust[1] = 50;
    Then("frmPrinterSetup", [](QWidget* window) {
        ClickButton(window, "Command4");
        CHECK(Find<QLineEdit>(window, "Text2")->text() == " 1, 0, 0, 0, 0");
        ClickButton(window, "Command4");
        CHECK(Find<QLineEdit>(window, "Text2")->text() == "0, 0, 0, 0, 0");
        Key(window, Qt::Key_Escape);
    });
    Then("FontDialog", [](QWidget* window) { Key(window, Qt::Key_Escape); });
    Then("FontDialog", [](QWidget* window) { Key(window, Qt::Key_Return); });
    ClickMenu(log, "mnuUtilities", "mnuGraphicSetup");
    CheckAllDone();
    CHECK(DeviceConfig.TextAdjust[1] == 0);
}

TEST_CASE("a profile is saved and opened by the window's own menu, through the chooser")
{
    QMainWindow* log = LogWindow();
    DeviceConfig.TextAdjust[2] = 100;
    Then("frmPrinterSetup", [](QWidget* window) {
        ClickMenu(window, "mnuFile", "mnuSave");
        DeviceConfig.TextAdjust[2] = 0;
        ClickMenu(window, "mnuFile", "mnuOpen");
        CHECK(Find<QLineEdit>(window, "Text2")->text() == " 0, 2, 0, 0, 0");
        Key(window, Qt::Key_Escape);
    });
    Then("frmOpenSave", [](QWidget* window) {
        CHECK(window->windowTitle() == "Save Font/Text Profile");
        QTest::keyClicks(Find<QLineEdit>(window, "fileText"), "laser");
        ClickButton(window, "Command1");
    });
    Then("frmOpenSave", [](QWidget* window) {
        CHECK(window->windowTitle() == "Open Font/Text Profile");
        QTest::keyClicks(Find<QLineEdit>(window, "fileText"), "laser.PRF");
        ClickButton(window, "Command1");
    });
    ClickMenu(log, "mnuUtilities", "mnuGraphicSetup");
    CheckAllDone();
    CHECK(ReadScratch("laser.PRF") == Lines({"Arial", " 0 ", " 100 ", " 0 ", " 0 ", " 0 "}));
    CHECK(DeviceConfig.TextAdjust[2] == 100);
}

TEST_CASE("a profile that is too short is told, and the set-up window stays")
{
    QMainWindow* log = LogWindow();
    WriteScratch("short.prf", "Arial\r\n");
    Then("frmPrinterSetup", [](QWidget* window) {
        ClickMenu(window, "mnuFile", "mnuOpen");
        CHECK(window->isVisible());
        Key(window, Qt::Key_Escape);
    });
    Then("frmOpenSave", [](QWidget* window) {
        QTest::keyClicks(Find<QLineEdit>(window, "fileText"), "short.prf");
        ClickButton(window, "Command1");
    });
    ThenAnswer("Run-time error 62", "OK");
    ClickMenu(log, "mnuUtilities", "mnuGraphicSetup");
    CheckAllDone();
}

TEST_CASE("the system files are copied to the folder typed in the set-up window")
{
    QMainWindow* log = LogWindow();
    std::filesystem::create_directories(Scratch("stick"));
    Then("frmPrinterSetup", [](QWidget* window) {
        Retype(window, "Text4", Scratch("stick").c_str());
        ClickButton(window, "Command5");
        Key(window, Qt::Key_Escape);
    });
    ThenAnswer("This utility copies files for your logo, project list, description item text, layouts, headings, and "
               "font profiles to a floppy drive so that they can be transfered to a new computer.  Please insert a "
               "diskette into the A: drive and click 'OK' when ready.",
               "OK");
    ThenAnswer("All Files Copied.", "OK");
    ClickMenu(log, "mnuUtilities", "mnuGraphicSetup");
    CheckAllDone();
    CHECK(FileExists("stick/logo.txt"));
    CHECK(FileExists("stick/LOGO.BMP"));
    CHECK(FileExists("stick/us.hdg"));
}

TEST_CASE("feet to meters asks, and the boxes show the meters")
{
    QMainWindow* log = LogWindow();
    OpenSample("TC-101.BOR");
    const QAbstractItemModel* lith = Find<QTableView>(log, "SSLith")->model();
    const Text before = frmBorinput::SSLith.Cell(1, 1);
    ThenAnswer("This utility converts all depths from feet to meters.  Afterward, you may want to save the file under "
               "a different name.  Do you wish to proceed?",
               "No");
    ClickMenu(log, "mnuUtilities", "mnuConvertFeetMeters");
    CHECK(frmBorinput::SSLith.Cell(1, 1) == before);
    ThenAnswer("This utility converts all depths from feet to meters.  Afterward, you may want to save the file under "
               "a different name.  Do you wish to proceed?",
               "Yes");
    ClickMenu(log, "mnuUtilities", "mnuConvertFeetMeters");
    CheckAllDone();
    CHECK(frmBorinput::SSLith.Cell(1, 1) != before);
    CHECK(FromUtf8(lith->data(lith->index(0, 0)).toString().toStdString()) == frmBorinput::SSLith.Cell(1, 1));
    CHECK(frmBorinput::SSScale.Cell(4, 1) == "Meters");
    CHECK(FileChanged == 1);
}
