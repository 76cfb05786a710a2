// menus_test.cpp -- every entry of the log tool's menus, one after the other.
#include "windows/driver.h"

#include "session/session.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTimer>

// The entries below a menu, those of menus in menus too; separators have no name.
static void EntriesOf(QMenu* menu, std::vector<QAction*>& entries)
{
    for (QAction* entry : menu->actions())
        if (entry->menu())
            EntriesOf(entry->menu(), entries);
        else if (!entry->isSeparator())
            entries.push_back(entry);
}

static std::vector<QAction*> Entries(QMainWindow* log)
{
    std::vector<QAction*> entries;
    for (QAction* part : log->menuBar()->actions())
        EntriesOf(part->menu(), entries);
    return entries;
}

TEST_CASE("every entry has a name, words and, where it has keys, keys of its own")
{
    QMainWindow* log = LogWindow();
    std::vector<QKeySequence> keys;
    std::vector<QString> names;
    for (QAction* entry : Entries(log)) {
        CAPTURE(entry->text().toStdString());
        CHECK(entry->objectName().startsWith("mnu"));
        CHECK(std::find(names.begin(), names.end(), entry->objectName()) == names.end());
        names.push_back(entry->objectName());
        CHECK_FALSE(entry->text().isEmpty());
        for (const QKeySequence& sequence : entry->shortcuts()) {
            CHECK(std::find(keys.begin(), keys.end(), sequence) == keys.end());
            keys.push_back(sequence);
        }
    }
    // Each menu opens by a key of its own.
    std::vector<QString> letters;
    for (QAction* part : log->menuBar()->actions()) {
        const QString letter = part->text().mid(part->text().indexOf('&') + 1, 1).toUpper();
        CHECK(part->text().contains('&'));
        CHECK(std::find(letters.begin(), letters.end(), letter) == letters.end());
        letters.push_back(letter);
    }
    for (const char* name : {"mnuNew",
                             "mnuOpen",
                             "mnuSave",
                             "mnuSaveAs",
                             "mnuImport",
                             "mnuPreview",
                             "mnuBatchDraw",
                             "mnuPrint",
                             "mnuExit",
                             "mnuCut",
                             "mnuCopy",
                             "mnuPaste",
                             "mnuInsertRow",
                             "mnuDeleteRow",
                             "mnuEditDesItems",
                             "mnuEditHeading",
                             "mnuEditLayout",
                             "mnuEditPromptFile",
                             "mnuGraphicSetup",
                             "mnuCreateLogo",
                             "mnuFillPatt",
                             "mnuConvertFeetMeters",
                             "mnuExp2IRPIMS",
                             "mnuGTGS",
                             "mnuConvertGTGStxt",
                             "mnuConvertGTGSgeneral",
                             "mnuConvertWinLog",
                             "mnuvcross",
                             "mnuvfence",
                             "mnuvsoil",
                             "mnuvGIS",
                             "mnuHelp"})
        CHECK_MESSAGE(std::find(names.begin(), names.end(), QString(name)) != names.end(), name);
}

// Closes what an entry has opened, and keeps the words of boxes.
static void CloseWhatIsOpen(QStringList& told, QStringList& opened)
{
    QWidget* front = QApplication::activeModalWidget();
    if (QWidget* popup = QApplication::activePopupWidget(); popup && !front)
        popup->close();
    if (!front)
        return;
    opened << front->objectName();
    if (auto* box = qobject_cast<QMessageBox*>(front)) {
        told << box->text();
        box->reject();
        if (box->isVisible())
            box->accept();
    } else if (auto* dialog = qobject_cast<QDialog*>(front)) {
        dialog->reject();
    } else {
        front->close();
    }
}

TEST_CASE("each entry that is enabled works or opens its window, and none fails")
{
    QMainWindow* log = LogWindow();
    OpenSample("MW-108.BOR");
    QStringList told, opened;
    QTimer closing;
    QObject::connect(&closing, &QTimer::timeout, [&] { CloseWhatIsOpen(told, opened); });
    closing.start(20);
    int walked = 0, disabled = 0;
    // mnuExit ends the program: it comes last, in a test of its own.
    std::vector<QString> names;
    for (QAction* entry : Entries(log))
        names.push_back(entry->objectName());
    for (const QString& name : names) {
        auto* entry = log->findChild<QAction*>(name);
        if (!entry || name == "mnuExit")
            continue;
        CAPTURE(name.toStdString());
        if (!entry->isEnabled()) {
            ++disabled;
            continue;
        }
        const qsizetype before = opened.size();
        const bool opens = entry->text().contains("...");
        entry->trigger(); // the list of recent files is made anew by it
        Settle(30);
        ++walked;
        CHECK(log->isVisible());
        CHECK((!opens || opened.size() > before));
        FileChanged = 0;
    }
    CHECK(walked >= 25);
    CHECK(walked + disabled + 1 == int(names.size()));
    for (const QString& words : told) {
        CAPTURE(words.toStdString());
        CHECK_FALSE(words.startsWith("Error "));
        CHECK_FALSE(words.startsWith("Run-time error"));
    }
    closing.stop();
    log->findChild<QAction*>("mnuExit")->trigger();
    CHECK_FALSE(log->isVisible());
}
