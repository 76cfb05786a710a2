// toolwindow.cpp -- the window of a tool that opens on top of the log window.
#include "windows/toolwindow.h"

#include "editors/borinput.h"
#include "editors/fillform.h"
#include "grid/gridedit.h"
#include "session/recovery.h"
#include "session/session.h"
#include "tools/livepreview.h"
#include "tools/nextfile.h"
#include "windows/checkdock.h"
#include "windows/gridview.h"
#include "windows/livepane.h"
#include "windows/memoview.h"
#include "windows/showwindows.h"
#include "windows/uitext.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScreen>
#include <QStatusBar>
#include <QTableView>
#include <QTextCursor>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

// The one that is up; the tool's record calls it by these.
static QPointer<ToolWindow> front;

namespace
{
struct OtherTool {
    Tool tool;
    const char* name;
    const char* caption;
};
} // namespace

static const OtherTool otherTools[] = {{Tool::Log, "mnuVeskLog", "Vesk&Log"},
                                       {Tool::Cross, "mnuVeskCross", "Vesk&Cross"},
                                       {Tool::Fence, "mnuVeskFence", "Vesk&Fence"},
                                       {Tool::Soil, "mnuVeskSoil", "Vesk&Soil"},
                                       {Tool::GIS, "mnuVeskGIS", "Vesk&GIS"}};

ToolWindow::ToolWindow(ToolRecord& shown) : QMainWindow(QApplication::activeWindow(), Qt::Window), tool(shown)
{
    setObjectName(tool.window);
    setWindowModality(Qt::ApplicationModal);
    setAcceptDrops(true);
    setContextMenuPolicy(Qt::NoContextMenu);
    front = this;
    tool.Unload = [] { front->Leave(); };
    tool.ShowForm = [](bool visible) {
        if (!visible) {
            front->focus = front->focusWidget();
            front->hide();
            return;
        }
        front->show();
        front->activateWindow();
        if (front->focus)
            front->focus->setFocus();
    };
    FillMenus();
    AddStatusBar();
}

ToolWindow::~ToolWindow()
{
    tool.Unload = nullptr;
    tool.ShowForm = nullptr;
}

// ---- Menus

QMenu* ToolWindow::Menu(const char* name) const
{
    return findChild<QAction*>(name)->menu();
}

QAction* ToolWindow::Action(QMenu* menu, const char* name, const char* caption, QKeySequence keys)
{
    auto* action = new QAction(caption, this);
    action->setObjectName(name);
    action->setShortcut(keys);
    menu->addAction(action);
    return action;
}

QAction* ToolWindow::Entry(QMenu* menu, const char* name, const char* caption, QKeySequence keys,
                           std::function<void()> command)
{
    QAction* action = Action(menu, name, caption, keys);
    connect(action, &QAction::triggered, this, [this, command] { Run(command); });
    return action;
}

static QMenu* AddMenu(QMenuBar* bar, const char* name, const char* caption)
{
    QMenu* menu = bar->addMenu(caption);
    menu->menuAction()->setObjectName(name);
    return menu;
}

void ToolWindow::FillMenus()
{
    QMenu* file = AddMenu(menuBar(), "mnuFile", "&File");
    Entry(file, "mnuNew", "&New", QKeySequence::New, [this] { ToolNew(tool); });
    Entry(file, "mnuOpen", "&Open...", QKeySequence::Open, [this] { ToolOpen(tool); });
    QMenu* lately = file->addMenu("Open &Recent");
    lately->menuAction()->setObjectName("mnuRecent");
    recent = std::make_unique<RecentFiles>(lately, tool.window,
                                           [this](const Text& name) { Run([&] { ToolOpenNamed(tool, name); }); });
    Entry(file, "mnuSave", "&Save", QKeySequence::Save, [this] { ToolSave(tool); });
    Entry(file, "mnuSaveAs", "Save &As...", QKeySequence("Ctrl+Shift+S"), [this] { ToolSaveAs(tool); });
    file->addSeparator();
    if (tool.drawJob != 0) {
        Entry(file, "mnuPreview", "Pre&view", QKeySequence("F5"), [this] { ToolPreview(tool); });
        Entry(file, "mnuBatchDraw", "Batch &Draw...", {}, [this] { ToolBatchDraw(tool); });
        Entry(file, "mnuPrint", "Batch &Print...", QKeySequence::Print, [this] { ToolPrint(tool); });
        Entry(file, "mnuPrintSetup", "Print Set&up...", {}, [] { Platform.ShowPrinterSetup(); });
        file->addSeparator();
    }
    Entry(file, "mnuExit", "E&xit", QKeySequence("Ctrl+Q"), [this] { ToolExit(tool); });
    FillEditMenu();
    if (tool.drawJob != 0 || tool.Check)
        AddMenu(menuBar(), "mnuView", "&View");
    QMenu* utilities = AddMenu(menuBar(), "mnuUtilities", "&Utilities");
    Entry(utilities, "mnuGraphicSetup", "Graphics/System &Set-Up...", {},
          [this] { SetUpGraphics(tool.FileName.empty() && FileChanged == 0); });
    Entry(utilities, "mnuCreateLogo", "&Logo Set-Up...", {}, [] { Platform.ShowLogo(); });
    Entry(utilities, "mnuFillPatt", "Fill Pattern &Guide", {}, frmBorinput::mnuFillPatt);
    FillToolsMenu();
    QMenu* help = AddMenu(menuBar(), "mnuHelpMenu", "&Help");
    Entry(help, "mnuHelp", "&Help", QKeySequence::HelpContents, [] { Platform.ShowHelp(); });
    Entry(help, "mnuAbout", "&About", {}, [] { Platform.ShowAbout(true); });

    QToolBar* bar = addToolBar("Commands");
    bar->setObjectName("Commands");
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    for (const char* name : {"mnuNew", "mnuOpen", "mnuSave", "", "mnuPreview", "mnuBatchDraw", "mnuPrint"}) {
        auto* action = findChild<QAction*>(name);
        if (*name && action)
            bar->addAction(action);
        else if (!*name && tool.drawJob != 0)
            bar->addSeparator();
    }
}

void ToolWindow::FillEditMenu()
{
    QMenu* edit = AddMenu(menuBar(), "mnuEdit", "&Edit");
    // In the text that has the focus; else in the grid last entered.
    const auto entry = [&](const char* name, const char* caption, QKeySequence keys, TextCommand text,
                           void (*command)(Grid&)) {
        QAction* action = Action(edit, name, caption, keys);
        connect(action, &QAction::triggered, this, [this, text, command] {
            if (!DoInText(focusWidget(), text))
                Run([&] { command(ActiveGrid(tool)); });
        });
        return action;
    };
    entry("mnuUndo", "&Undo", QKeySequence("Ctrl+Z"), TextCommand::Undo, [](Grid& grid) { UndoGrid(grid); });
    entry("mnuRedo", "&Redo", {}, TextCommand::Redo, [](Grid& grid) {
        RedoGrid(grid);
    })->setShortcuts({QKeySequence("Ctrl+Y"), QKeySequence("Ctrl+Shift+Z")});
    edit->addSeparator();
    entry("mnuCut", "Cu&t", QKeySequence("Ctrl+X"), TextCommand::Cut, CutSelected);
    entry("mnuCopy", "&Copy", QKeySequence("Ctrl+C"), TextCommand::Copy, [](Grid& grid) { CopySelected(grid); });
    entry("mnuPaste", "&Paste", QKeySequence("Ctrl+V"), TextCommand::Paste, PasteSelected);
    Entry(edit, "mnuFillDown", "&Fill Down", QKeySequence("Ctrl+D"), [this] {
        if (!qobject_cast<QPlainTextEdit*>(focusWidget()))
            FillDown(ActiveGrid(tool));
    });
    edit->addSeparator();
    Entry(edit, "mnuInsertRow", "&Insert Row", QKeySequence("Ctrl++"), [this] { ToolInsertRow(tool); });
    Entry(edit, "mnuDeleteRow", "&Delete Row", QKeySequence("Ctrl+-"), [this] { ToolDeleteRow(tool); });
    edit->addSeparator();
    Entry(edit, "mnuEditHeading", "Edit &Heading File...", {}, ShowHeadingWindow);
}

void ToolWindow::FillToolsMenu()
{
    QMenu* tools = AddMenu(menuBar(), "mnuTools", "&Tools");
    for (const OtherTool& other : otherTools)
        if (other.tool != tool.tool)
            Entry(tools, other.name, other.caption, {}, [this, &other] { ToolHandOver(tool, other.tool); });
}

// What is being typed is taken in first. However the command ends, what it has done is shown, and no progress window
// outlives it.
void ToolWindow::Run(const std::function<void()>& command)
{
    for (GridView* view : views)
        view->FinishEdit();
    struct Afterwards {
        ToolWindow& window;
        ~Afterwards()
        {
            ShowProgressWindow(false);
            if (window.leaving)
                return;
            window.Refresh();
            if (!NextFile.empty()) // for which another window was left
                window.OpenSoon(TakeNextFile());
        }
    } afterwards{*this};
    command();
}

bool ToolWindow::Takes(const Text& name) const
{
    return OpensFile(name);
}

void ToolWindow::OpenSoon(const Text& name)
{
    QTimer::singleShot(0, this, [this, name] { Run([&] { ToolOpenFromOutside(tool, name); }); });
}

// ---- Boxes

static QWidget* Titled(const Text& title, QWidget* box)
{
    auto* whole = new QWidget;
    auto* layout = new QVBoxLayout(whole);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(5);
    auto* label = new QLabel(ToUi(title), whole);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    label->setBuddy(box);
    layout->addWidget(label);
    layout->addWidget(box, 1);
    return whole;
}

void ToolWindow::Own(QWidget* widget, std::function<void()> shows)
{
    order.push_back(widget);
    if (shows)
        refreshers.push_back(std::move(shows));
}

QWidget* ToolWindow::GridBox(const char* name, Grid& grid)
{
    auto* view = new GridView(name, grid, this, QString("%1.%2").arg(tool.window, name));
    view->OnChange = [this] { Typed(); };
    view->setMinimumWidth(grid.rowHeadings.size() > 1 ? 240 : 150); // with the page beside it cells stay in sight
    views.push_back(view);
    gridOf.push_back({view, &grid});
    view->installEventFilter(this);
    Own(view, [view] { view->Refresh(); });
    return Titled(grid.title, view);
}

QWidget* ToolWindow::MemoBox(const char* name, const Text& title, Memo& memo)
{
    auto* view = new MemoView(name, memo, this);
    view->setAccessibleName(ToUi(title));
    view->OnChange = [this] {
        FileChanged = 1;
        ShowState();
    };
    Own(view, [view] { view->Refresh(); });
    return Titled(title, view);
}

// A grid that is entered becomes the one that the Edit menu works on.
bool ToolWindow::eventFilter(QObject* box, QEvent* event)
{
    if (event->type() == QEvent::FocusIn)
        for (const auto& [view, grid] : gridOf)
            if (view == box)
                tool.active = grid;
    return QMainWindow::eventFilter(box, event);
}

// The page as it stands in the boxes, beside them when the user wishes.
void ToolWindow::AddPreview()
{
    auto* dock = new QDockWidget("Page", this);
    dock->setObjectName("dckPreview");
    dock->setFeatures(QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable);
    live = new LivePane(dock);
    live->Draws = [this](int, const Text& folder, LivePage& page) { return DrawLiveTool(tool, folder, page); };
    dock->setWidget(live);
    addDockWidget(Qt::RightDockWidgetArea, dock);
    dock->hide();
    QAction* toggle = dock->toggleViewAction();
    toggle->setObjectName("mnuLivePreview");
    toggle->setText("&Page beside the Boxes");
    toggle->setShortcut(QKeySequence("Ctrl+F5"));
    Menu("mnuView")->addAction(toggle);
}

void ToolWindow::AddCheckList()
{
    checks = new CheckDock(this, Menu("mnuView"));
    checks->Check = tool.Check;
    checks->GoTo = [this](const CheckEntry& entry) { GoTo(entry); };
    Own(checks->List());
    Own(checks->Kinds());
}

void ToolWindow::GoTo(const CheckEntry& entry)
{
    QWidget* box = entry.TextBox[0] ? findChild<QWidget*>(entry.TextBox) : nullptr;
    for (const auto& [known, grid] : gridOf)
        if (!box && grid == entry.InGrid)
            box = qobject_cast<QWidget*>(known);
    if (!box)
        return;
    if (auto* view = qobject_cast<QTableView*>(box)) {
        const QModelIndex cell = view->model()->index(entry.Row - 1, entry.Column - 1);
        view->setCurrentIndex(cell);
        view->scrollTo(cell);
    } else if (auto* text = qobject_cast<QPlainTextEdit*>(box)) {
        QTextCursor caret = text->textCursor();
        caret.setPosition(std::min(entry.Place, int(text->toPlainText().size())));
        text->setTextCursor(caret);
        text->ensureCursorVisible();
    }
    activateWindow(); // the list may float in a window of its own
    box->setFocus();
}

void ToolWindow::AddStatusBar()
{
    AddStatusWords(statusBar(), project, state);
}

// ---- What is shown

void ToolWindow::ShowState()
{
    setWindowModified(FileChanged == 1 || SaveOwed());
    if (live)
        live->Soon();
    if (checks)
        checks->Soon();
    state->setText(ToUi(tool.State()));
}

void ToolWindow::Typed()
{
    for (const std::function<void()>& refresh : refreshers)
        refresh();
    ShowState();
}

void ToolWindow::Refresh()
{
    setWindowTitle(MarkedTitle(tool.Title));
    Typed();
    int rows = 0;
    for (const Grid* grid : tool.grids)
        rows += grid->DataRowCount();
    if (shownFile != tool.FileName || rows > fittedRows) { // another file, or rows that a command has added
        for (GridView* view : views) {
            view->Fit();
            if (shownFile != tool.FileName)
                view->Home();
        }
        shownFile = tool.FileName;
    }
    fittedRows = rows;
    recent->Show(tool.RecentFile);
    project->setText("Project folder: " + ToUi(ProjectPath));
}

void ToolWindow::Blocking(QWidget* content)
{
    auto* whole = new QWidget(this);
    auto* layout = new QVBoxLayout(whole);
    layout->setContentsMargins(12, 12, 12, 6);
    layout->addWidget(content);
    setCentralWidget(whole);
    if (tool.drawJob != 0)
        AddPreview();
    if (tool.Check)
        AddCheckList();
    for (size_t i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
    resize(QSize(1180, 760).boundedTo(screen()->availableGeometry().size() * 0.94));
    CentreOnScreen(*this);
    Refresh();
    show();
    activateWindow();
    if (!order.empty())
        order.front()->setFocus();
    tool.active = nullptr; // no grid has been entered by the user yet
    if (!NextFile.empty())
        OpenSoon(TakeNextFile());
    loop.exec();
}

// What may have changed while another window was in front.
void ToolWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && centralWidget() && !leaving)
        Refresh();
}

void ToolWindow::Leave()
{
    leaving = true;
    hide();
    loop.quit();
}

// The closing of the window leads back to the log window, as the entry of the log tool does.
void ToolWindow::closeEvent(QCloseEvent* event)
{
    if (!leaving)
        for (GridView* view : views)
            view->FinishEdit();
    if (leaving || ToolHandOver(tool, Tool::Log))
        event->accept();
    else
        event->ignore();
}
