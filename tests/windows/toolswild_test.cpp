// toolswild_test.cpp -- the tools beside the log tool under events that nobody planned.
#include "windows/campaign.h"
#include "windows/driver.h"

#include "session/session.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QMainWindow>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <map>

static unsigned seed;

static int Random(int below)
{
    seed = seed * 1664525u + 1013904223u;
    return int((seed >> 8) % unsigned(below));
}

// Whatever blocks is answered somehow. A failure that a box tells of is kept.
static void AnswerAnything(QStringList& told)
{
    QWidget* front = QApplication::activeModalWidget();
    if (!front)
        return;
    if (auto* box = qobject_cast<QMessageBox*>(front)) {
        told << box->text();
        const QList<QAbstractButton*> buttons = box->buttons();
        buttons[Random(int(buttons.size()))]->click();
    } else if (auto* dialog = qobject_cast<QDialog*>(front)) {
        dialog->reject();
    } else {
        front->close();
    }
}

static std::map<std::string, std::string> FilesOf(const Text& folder)
{
    std::map<std::string, std::string> files;
    for (const auto& file : std::filesystem::directory_iterator(folder))
        if (file.is_regular_file())
            files[file.path().filename()] = ReadScratch("samples/" + file.path().filename().string());
    return files;
}

// The tool's window while the test is in it.
static QWidget* OpenTool()
{
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->windowModality() == Qt::ApplicationModal &&
            window->objectName().startsWith("frm") && qobject_cast<QMainWindow*>(window))
            return window;
    return nullptr;
}

// One event in the tool that is open.
static void DisturbTool(QWidget* tool)
{
    const char* const entries[] = {"mnuUndo",      "mnuRedo",      "mnuCut",       "mnuCopy",         "mnuPaste",
                                   "mnuInsertRow", "mnuDeleteRow", "mnuFillDown",  "mnuInsertColumn", "mnuDeleteColumn",
                                   "mnuNew",       "mnuOpen",      "mnuRecent1",   "mnuLivePreview",  "mnuSaveAs",
                                   "mnuExp2EVS",   "mnuVeskCross", "mnuVeskFence", "mnuVeskSoil",     "mnuVeskGIS"};
    const Qt::Key keys[] = {Qt::Key_Return, Qt::Key_Tab,       Qt::Key_Delete, Qt::Key_F2,
                            Qt::Key_Escape, Qt::Key_Up,        Qt::Key_Down,   Qt::Key_Left,
                            Qt::Key_End,    Qt::Key_Backspace, Qt::Key_Home,   Qt::Key_F6};
    QWidget* focus = QApplication::focusWidget();
    switch (Random(8)) {
    case 0: {
        QList<QWidget*> boxes = tool->findChildren<QWidget*>();
        QWidget* box = boxes[Random(int(boxes.size()))];
        if (box->isVisible() && box->window() == tool)
            QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(Random(box->width() + 1), Random(box->height() + 1)));
        break;
    }
    case 1:
        if (auto* action = tool->findChild<QAction*>(entries[Random(int(std::size(entries)))]))
            action->trigger();
        break;
    case 2:
    case 3:
        if (focus)
            QTest::keyClick(focus, keys[Random(int(std::size(keys)))],
                            Random(4) == 0 ? Qt::ShiftModifier : Qt::NoModifier);
        break;
    default:
        if (!focus)
            tool->activateWindow();
        for (int n = Random(6); n >= 0 && QApplication::focusWidget(); --n)
            QTest::keyClick(QApplication::focusWidget(), char(' ' + Random(95)));
    }
}

TEST_CASE("random events in the tools and from tool to tool end with no failure, and write no file that was not saved")
{
    const Campaign campaign("tools", 4, 200);
    for (const int round : campaign) {
        seed = unsigned(round) * 6131u + 29u;
        CAPTURE(round);
        StartAfresh();
        QMainWindow* log = LogWindow();
        const auto before = FilesOf(Scratch("samples"));
        QStringList told;
        int left = 300;
        // Events go on in the loop of whatever is open: each sets the next one first. A box or a dialog is answered, a
        // tool is disturbed.
        QObject events;
        bool busy = false;
        std::function<void()> next = [&] {
            QTimer::singleShot(1, &events, next);
            QWidget* front = QApplication::activeModalWidget();
            QWidget* tool = OpenTool();
            if (front && front != tool) {
                AnswerAnything(told);
                return;
            }
            if (!tool || busy)
                return;
            busy = true;
            if (--left > 0) {
                DisturbTool(tool);
            } else {
                FileChanged = 0;
                tool->close();
            }
            busy = false;
        };
        next();
        const char* const doors[] = {"mnuvcross", "mnuvfence", "mnuvsoil", "mnuvGIS"};
        while (left > 0)
            log->findChild<QAction*>(doors[(round + left) % 4])->trigger();
        CHECK(OpenTool() == nullptr);
        CHECK(log->isVisible());
        CHECK((FilesOf(Scratch("samples")) == before));
        for (const QString& words : told) {
            CAPTURE(words.toStdString());
            CHECK_FALSE(words.startsWith("Error "));
            CHECK_FALSE(words.startsWith("Run-time error"));
        }
    }
}
