// wild_test.cpp -- the windows under events that nobody planned: they must neither fail nor write what was not saved.
#include "windows/campaign.h"
#include "windows/driver.h"

#include "run/batchrun.h"
#include "session/files.h"
#include "session/recovery.h"
#include "session/session.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <map>
#include <memory>
#include <set>

static constexpr int sequencesPerRound = 25, eventsPerSequence = 30;

static unsigned seed;

static int Random(int below)
{
    seed = seed * 1664525u + 1013904223u;
    return int((seed >> 8) % unsigned(below));
}

namespace
{
// What the events of a sequence have done that may change a file.
struct Done {
    std::set<std::string> saved; // borings that a save was given for
    bool edited = false;         // a small editor was worked in, which writes its own file
    bool drawn = false;          // a run was started, which may leave a PDF or tables beside its source
    QStringList told;            // the words of all boxes
};
} // namespace

static std::string OpenBoring()
{
    return BaseName(BoringFileName);
}

static void RandomKey(QWidget* to)
{
    static constexpr Qt::Key keys[] = {Qt::Key_Return,    Qt::Key_Tab, Qt::Key_Delete, Qt::Key_F2,
                                       Qt::Key_Escape,    Qt::Key_Up,  Qt::Key_Down,   Qt::Key_Left,
                                       Qt::Key_Backspace, Qt::Key_End, Qt::Key_Home,   Qt::Key_F6};
    if (Random(2))
        QTest::keyClick(to, keys[Random(int(std::size(keys)))], Random(4) == 0 ? Qt::ShiftModifier : Qt::NoModifier);
    else
        QTest::keyClick(to, char(' ' + Random(95)));
}

static void RandomClick(QWidget* among)
{
    const QList<QWidget*> boxes = among->findChildren<QWidget*>();
    QWidget* box = boxes.isEmpty() ? nullptr : boxes[Random(int(boxes.size()))];
    if (!box || !box->isVisible())
        return;
    const QPoint at(Random(box->width() + 1), Random(box->height() + 1));
    if (Random(6) == 0)
        QTest::mouseDClick(box, Qt::LeftButton, {}, at);
    else
        QTest::mouseClick(box, Qt::LeftButton, {}, at);
}

// The chooser: a name of the sample project, never another folder, since these events write.
static void Choose(QDialog* chooser, Done& done)
{
    auto* name = chooser->findChild<QLineEdit*>("fileText");
    if (!name || Random(3) == 0)
        return chooser->reject();
    // A file that is not there would be a failure to open it, as is told.
    const bool saving = DialogMode == 2;
    const char* const names[] = {"TC-103.BOR", "MW-109.BOR", "wild"};
    const char* typed = names[Random(saving ? 3 : 2)];
    if (saving)
        done.saved.insert(HasEnding(typed) ? typed : std::string(typed) + ".BOR");
    name->setText(typed);
    QPointer<QDialog> open = chooser;
    QTest::keyClick(name, Qt::Key_Return);
    if (open && open->isVisible())
        open->reject();
}

static void Draw(QDialog* dialog, Done& done)
{
    auto* files = dialog->findChild<QListWidget*>("File1");
    if (!files || files->count() == 0 || Random(2) == 0 ||
        (jobCode == 2 && Random(8) != 0)) // each print has its notice
        return dialog->reject();
    files->item(Random(files->count()))->setSelected(true);
    done.drawn = true;
    QPointer<QDialog> open = dialog;
    ClickButton(dialog, "Command1");
    if (open && open->isVisible())
        open->reject();
}

// Whatever blocks is answered somehow, the small editors after some work in them.
static void AnswerAnything(Done& done)
{
    if (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
    QWidget* front = QApplication::activeModalWidget();
    if (!front || !front->isVisible())
        return;
    const QString name = front->objectName();
    if (auto* box = qobject_cast<QMessageBox*>(front)) {
        done.told << box->text();
        const QList<QAbstractButton*> buttons = box->buttons();
        QAbstractButton* answer = buttons[Random(int(buttons.size()))];
        if (box->text().startsWith("Would you like to save") && answer->text().contains("Yes"))
            done.saved.insert(OpenBoring());
        answer->click();
        return;
    }
    auto* dialog = qobject_cast<QDialog*>(front);
    if (name == "frmOpenSave") {
        Choose(dialog, done);
    } else if (name == "frmDrawPrint") {
        Draw(dialog, done);
    } else if (name == "frmDesItems" || name == "frmPrompt" || name == "frmHeading" || name == "frmDescLegend" ||
               name == "frmLayout") {
        done.edited = true;
        const QPointer<QWidget> open = front;
        if (Random(2))
            RandomClick(front);
        else
            RandomKey(front->focusWidget() ? front->focusWidget() : front);
        if (open && open->isVisible() && Random(4) == 0)
            dialog->reject();
    } else if (dialog) {
        dialog->reject();
    } else {
        front->close();
    }
}

// Each look sets the next one first, for an answer may open a box of its own.
static void Look(QObject& answering, Done& done)
{
    QTimer::singleShot(1, &answering, [&answering, &done] {
        Look(answering, done);
        AnswerAnything(done);
    });
}

// All files that are a user's: not the ones of a run, nor what is kept of what is not saved.
static std::map<std::string, std::string> Files()
{
    std::map<std::string, std::string> files;
    for (const Text folder : {"", "samples/"})
        for (const auto& file : std::filesystem::directory_iterator(Scratch(folder))) {
            const std::string name = file.path().filename();
            if (file.is_regular_file() && name != "log.mas" && name != "break.mas" && name != "device.cfg" &&
                !name.ends_with(".tmp~"))
                files[folder + name] = ReadScratch(folder + name);
        }
    return files;
}

static void CheckFiles(const std::map<std::string, std::string>& before, const Done& done)
{
    std::map<std::string, std::string> after = Files();
    for (const auto& [name, bytes] : before)
        after.try_emplace(name, "is gone");
    for (const auto& [name, bytes] : after) {
        const auto was = before.find(name);
        if (was != before.end() && was->second == bytes)
            continue;
        const Text file = name;
        CAPTURE(file);
        const std::string base = name.substr(name.find('/') + 1);
        if (base.ends_with(".BOR"))
            CHECK(done.saved.count(base) == 1);
        else if (base.ends_with(".pdf") || (base.starts_with("tim") && base.ends_with(".txt"))) // IRPIMS tables
            CHECK(done.drawn);
        else
            CHECK(done.edited);
    }
}

// One event in the log tool's window.
static void RandomEvent(QMainWindow* log)
{
    switch (Random(8)) {
    case 0: {
        auto* tabs = Find<QTabWidget>(log, "SSTab1");
        tabs->setCurrentIndex(Random(tabs->count()));
        RandomClick(tabs->currentWidget());
        break;
    }
    case 1: {
        QList<QAction*> entries;
        for (QAction* entry : log->findChildren<QAction*>())
            if (entry->objectName().startsWith("mnu") && !entry->menu() && entry->isEnabled())
                entries << entry;
        QAction* entry = entries[Random(int(entries.size()))];
        const QString name = entry->objectName();
        if (name == "mnuExit" && Random(10) != 0)
            break;
        entry->trigger();
        break;
    }
    case 2:
        RandomClick(log);
        break;
    default:
        for (int n = Random(6); n >= 0 && QApplication::focusWidget(); --n)
            RandomKey(QApplication::focusWidget());
    }
    QApplication::processEvents();
}

// A window with a boring in it, and what looks after the boxes that its events open.
namespace
{
struct Disturbed {
    Disturbed(const char* sample, Done& done)
    {
        StartAfresh();
        RecoveryInterval = 200;
        log = LogWindow();
        OpenSample(sample);
        // From the menu, by key or by the bar.
        for (const char* name : {"mnuSave", "mnuPreview"})
            QObject::connect(log->findChild<QAction*>(name), &QAction::triggered, [&done] {
                done.saved.insert(OpenBoring());
                done.drawn = true;
            });
        Look(answering, done);
    }
    bool Open() const
    {
        return log && log->isVisible();
    }
    QPointer<QMainWindow> log;
    QObject answering; // the looks end with it
};
} // namespace

TEST_CASE("random clicks, keys, menu entries and answers end with no failure, and write no file that was not saved")
{
    const Campaign campaign("log", 3, 10000 / sequencesPerRound);
    for (const int round : campaign) {
        CAPTURE(round);
        seed = unsigned(round) * 7919u + 17u;
        Done done;
        std::unique_ptr<Disturbed> window;
        for (int sequence = 0; sequence < sequencesPerRound; ++sequence) {
            CAPTURE(sequence);
            if (!window || !window->Open()) { // the events may have left the program
                window.reset();
                window = std::make_unique<Disturbed>(round % 2 ? "TC-101.BOR" : "MW-108.BOR", done);
            }
            const auto before = Files();
            done = Done();
            for (int i = 0; i < eventsPerSequence && window->Open(); ++i)
                RandomEvent(window->log);
            CheckFiles(before, done);
            for (const QString& words : done.told) {
                // A description of more lines than a boring holds, after some imports, is refused so.
                if (words == "Error 9 in convertfeet2meters.  Please contact Norvane")
                    continue;
                CAPTURE(words.toStdString());
                CHECK_FALSE(words.startsWith("Error "));
                CHECK_FALSE(words.startsWith("Run-time error"));
            }
        }
    }
}
