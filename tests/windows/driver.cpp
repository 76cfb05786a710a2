// driver.cpp -- the user of the window tests.
#include "windows/driver.h"

#include "places.h"
#include "programs/jobtable.h"
#include "session/session.h"
#include "session/startup.h"
#include "windows/application.h"
#include "windows/printers.h"
#include "windows/showwindows.h"
#include "windows/uitext.h"

#include <QAbstractButton>
#include <QAction>
#include <QDragEnterEvent>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>
#include <QRadioButton>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <deque>
#include <filesystem>

namespace
{
struct Step {
    std::string window;
    std::function<void(QWidget*)> act;
};
} // namespace

static std::deque<Step> steps;
static std::vector<QWidget*> acting; // the windows of the steps under way, the innermost last
static QElapsedTimer waiting;
static constexpr int patienceMs = 20000;

// Looks whether the window of the next step is there. Each look sets the next one first, so that the looks go on while
// a step is inside a window that it has opened.
static void Look()
{
    if (steps.empty())
        return;
    QTimer::singleShot(5, Look);
    QWidget* front = QApplication::activeModalWidget();
    const bool ready = front && front->isVisible() && front->isEnabled() && front->isActiveWindow() &&
                       std::find(acting.begin(), acting.end(), front) == acting.end();
    if (ready && front->objectName().toStdString() == steps.front().window) {
        const Step step = steps.front();
        steps.pop_front();
        waiting.restart();
        acting.push_back(front);
        step.act(front);
        acting.pop_back();
        waiting.restart();
    } else if (waiting.elapsed() > patienceMs) {
        // Nothing more will come: what blocks is closed, so that the test ends, and fails.
        const std::string missing = steps.front().window;
        steps.clear();
        CHECK_MESSAGE(false, "waited in vain for " << missing << ", in front: "
                                                   << (front ? front->objectName().toStdString() : "nothing"));
        while (QWidget* open = QApplication::activeModalWidget()) {
            if (auto* dialog = qobject_cast<QDialog*>(open))
                dialog->reject();
            else
                open->close();
            if (QApplication::activeModalWidget() == open)
                break;
        }
    }
}

void Then(const char* window, std::function<void(QWidget*)> act)
{
    if (steps.empty()) {
        waiting.start();
        QTimer::singleShot(5, Look);
    }
    steps.push_back({window, std::move(act)});
}

void ThenAnswer(const char* words, const char* button)
{
    Then("MsgBox", [words = std::string(words), button = QString(button)](QWidget* window) {
        auto* box = qobject_cast<QMessageBox*>(window);
        REQUIRE(box);
        CHECK(box->text().toStdString() == words);
        for (QAbstractButton* choice : box->buttons())
            if (choice->text().remove('&') == button)
                return Click(choice);
        FAIL("no such button");
    });
}

void CheckAllDone()
{
    CHECK_MESSAGE(steps.empty(), "the next window was to be " << (steps.empty() ? "" : steps.front().window));
    steps.clear();
}

void Settle(int milliseconds)
{
    QTest::qWait(milliseconds);
    QApplication::processEvents();
}

void Click(QWidget* widget)
{
    // A radio button takes clicks on its sign and words only, not on the room behind them.
    const bool option = qobject_cast<QRadioButton*>(widget) != nullptr;
    QTest::mouseClick(widget, Qt::LeftButton, {}, option ? QPoint(8, widget->height() / 2) : QPoint());
}

void ClickButton(QWidget* window, const char* name)
{
    Click(Find<QAbstractButton>(window, name));
}

void ClickMenu(QWidget* window, const char* menu, const char* entry)
{
    auto* bar = window->findChild<QMenuBar*>();
    REQUIRE(bar);
    const auto at = [](auto* list, const char* name) {
        for (QAction* action : list->actions())
            if (action->objectName() == name)
                return list->actionGeometry(action).center();
        FAIL("no menu entry " << name);
        return QPoint();
    };
    if (*menu == 0) {
        QTest::mouseClick(bar, Qt::LeftButton, {}, at(bar, entry));
        return;
    }
    // On a busy machine a change of the active window comes late, and takes with it the menu that was just opened.
    QWidget* popup = nullptr;
    for (int tries = 0; !popup && tries < 5; ++tries) {
        if (tries > 0)
            Settle(50);
        // This screen has no window manager that makes the window behind a closed one active again.
        if (!window->isActiveWindow()) {
            window->activateWindow();
            Settle();
        }
        QTest::mouseClick(bar, Qt::LeftButton, {}, at(bar, menu));
        popup = QApplication::activePopupWidget();
    }
    REQUIRE(popup);
    auto* list = qobject_cast<QMenu*>(popup);
    QTest::mouseClick(popup, Qt::LeftButton, {}, at(list, entry));
}

void Key(QWidget* window, int key, Qt::KeyboardModifiers modifiers)
{
    QWidget* to = window->focusWidget() ? window->focusWidget() : window;
    QTest::keyClick(to, Qt::Key(key), modifiers);
}

void TypeWords(QWidget* window, const Text& words)
{
    for (const QChar letter : QString::fromStdString(ToUtf8(words)))
        QTest::keyClicks(window->focusWidget() ? window->focusWidget() : window, QString(letter));
}

// Menus, lists of boxes and the like go with the windows that they belong to: a box does not learn that its list is
// gone, and windows come in no order here. What a window writes when it goes is written before the next test begins.
static void TakeDownWindows()
{
    std::vector<QPointer<QWidget>> old;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (!window->parentWidget())
            old.push_back(window);
    for (const QPointer<QWidget>& window : old)
        delete window;
}

void UseDesktop()
{
    // One application for the run of the tests; it is never taken down, since Qt's statics go in no order.
    static int argc = 1;
    static char name[] = "windowtests";
    static char* argv[] = {name, nullptr};
    if (!qApp) {
        // On a real screen only when its pictures are taken.
        if (!qEnvironmentVariableIsSet("STRATAVUE_SCREEN"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
        new Application(argc, argv);
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        // What the program remembers of its user goes with the scratch folder.
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QString::fromStdString(ScratchFolder()));
    }
    TakeDownWindows();
    CloseWindows = TakeDownWindows;
    UseDesktopPlatform();
    FillJobTable();
    Platform.ExecutableFolder = [] { return ScratchFolder(); };
    Platform.DataFolder = [] { return Scratch("userdata"); };
    ChoosePrinter(PrintToPdfName);
    StartDone = false;
    steps.clear();
    acting.clear();
    namespace fs = std::filesystem;
    for (const fs::directory_entry& file : fs::directory_iterator(SOURCE_DIR "/data"))
        if (file.is_regular_file())
            fs::copy_file(file, fs::path(ScratchFolder()) / file.path().filename());
    fs::copy_file(BUILD_DIR "/LOGO.BMP", Scratch("LOGO.BMP"));
    fs::create_directory_symlink(BUILD_DIR "/fills", Scratch("fills"));
    fs::copy(SOURCE_DIR "/samples", Scratch("samples"));
}

void LookAt(QWidget* window, const Text& name)
{
    const QString folder = qEnvironmentVariable("STRATAVUE_PICTURES");
    if (folder.isEmpty())
        return;
    Settle(50);
    window->grab().save(folder + "/" + ToUi(name) + ".png");
}

bool Drop(QWidget* on, const Text& file)
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(ToUi(file))});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(on, &enter);
    if (!enter.isAccepted())
        return false;
    QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(on, &event);
    Settle(20);
    return true;
}

static int endedWith;

int StatusOfStart(const char* words)
{
    endedWith = 0;
    void (*const before)(int) = EndAtOnce;
    EndAtOnce = [](int status) { endedWith = status; };
    ThenAnswer(words, "OK");
    Then("frmAbout5", Click);
    Main();
    CheckAllDone();
    EndAtOnce = before;
    CHECK_FALSE(StartDone);
    return endedWith;
}

QMainWindow* LogWindow()
{
    UseDesktop();
    WriteScratch("device.cfg", Lines({Scratch("samples"), "0,0", "Arial"}));
    WriteScratch("first.txt", "yes");
    Then("frmAbout5", Click);
    Main();
    CheckAllDone();
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == "frmBorinput") {
            window->activateWindow(); // this screen's window manager does not do it when the title box goes
            QApplication::processEvents();
            return qobject_cast<QMainWindow*>(window);
        }
    return nullptr;
}

void OpenSample(const char* name)
{
    QMainWindow* log = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == "frmBorinput")
            log = qobject_cast<QMainWindow*>(window);
    REQUIRE(log);
    Then("frmOpenSave", [name](QWidget* window) {
        auto* box = window->findChild<QLineEdit*>("fileText");
        REQUIRE(box);
        QTest::keyClicks(box, name);
        QTest::keyClick(box, Qt::Key_Return);
    });
    ClickMenu(log, "mnuFile", "mnuOpen");
    CheckAllDone();
}
