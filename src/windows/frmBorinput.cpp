// frmBorinput.cpp -- the log tool's window: its boxes, and which command each entry calls. The boxes are records
// (boring/boringboxes.h): what is typed goes into them at once, and they are shown anew after each command.
#include "editors/borinput.h"

#include "boring/boringboxes.h"
#include "editors/checklist.h"
#include "editors/fillform.h"
#include "report/prompts.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/recovery.h"
#include "session/session.h"
#include "tools/nextfile.h"
#include "tools/toolcommands.h"
#include "windows/application.h"
#include "windows/checkdock.h"
#include "windows/gridview.h"
#include "windows/itemlist.h"
#include "windows/livepane.h"
#include "windows/memoview.h"
#include "windows/showwindows.h"
#include "windows/typedtext.h"
#include "windows/uitext.h"
#include "windows/windowparts.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QDockWidget>
#include <QGridLayout>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPointer>
#include <QRadioButton>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>
#include <functional>
#include <memory>
#include <utility>

namespace
{
class BorinputWindow : public QMainWindow, public TakesFiles
{
public:
    BorinputWindow();
    void Refresh();
    void Run(const std::function<void()>& command);
    bool Takes(const Text& name) const override;
    void OpenSoon(const Text& name) override;
    bool ending = false; // the user has been asked; nothing holds the window any more

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* box, QEvent* event) override;

private:
    QAction* Action(QMenu* menu, const char* name, const char* caption, QKeySequence keys);
    QAction* Entry(QMenu* menu, const char* name, const char* caption, QKeySequence keys,
                   std::function<void()> command);
    QAction* TextEntry(QMenu* menu, const char* name, const char* caption, QKeySequence keys, TextCommand text,
                       void (*command)());
    void FillMenus();
    void Typed(); // a box has changed: what stands elsewhere is shown anew
    void ShowState();
    void Activates(QWidget* box, int number);
    void Labelled(int slot, const char* design, const std::function<void(const Text&)>& show);
    QWidget* Titled(QWidget* box, const std::function<Text()>& title);
    void Noted(QWidget* titled, int slot, const char* design);
    QWidget* GridBox(const char* name, int number);
    QWidget* MemoBox(const char* name, int slot, const char* title, Memo& memo, int lessButton);
    QLineEdit* Line(const char* name, Text& text);
    QComboBox* LayoutBox();
    QWidget* ClientBox();
    QWidget* Items();
    QWidget* Head();
    QWidget* Tabs();
    void MakeTabs();
    void AddPreview();
    void AddCheckList();
    void GoTo(const CheckEntry& entry);
    void OrderTabs();

    std::unique_ptr<RecentFiles> recent;
    QTabWidget* tabs = nullptr;
    LivePane* live = nullptr;
    CheckDock* checks = nullptr;
    QLabel* state;
    QLabel* project;
    std::vector<GridView*> grids;
    std::vector<std::pair<QObject*, int>> numbers; // the ActiveBox of each box
    std::vector<std::function<void()>> refreshers; // one for each box
    std::vector<std::function<void()>> unmade;     // what the tabs behind the first one will hold
    Text shownFile;                                // the boring that the boxes were last fitted to
};

// Words of an office on a label or button, where Qt takes a "&" for the sign of a key.
QString Caption(const Text& words)
{
    return ToUi(words).replace("&", "&&");
}

QWidget* Tab()
{
    auto* tab = new QWidget;
    auto* layout = new QVBoxLayout(tab);
    layout->setContentsMargins(12, 12, 12, 12);
    return tab;
}
} // namespace

BorinputWindow::BorinputWindow()
{
    setObjectName("frmBorinput");
    setAcceptDrops(true);
    FillMenus();
    QToolBar* bar = addToolBar("Commands");
    bar->setObjectName("Commands");
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    for (const char* name : {"mnuNew", "mnuOpen", "mnuSave", "", "mnuPreview", "mnuBatchDraw", "mnuPrint"})
        if (*name)
            bar->addAction(findChild<QAction*>(name));
        else
            bar->addSeparator();
    setContextMenuPolicy(Qt::NoContextMenu); // the bar is not to be hidden by accident

    auto* boring = new QWidget(this);
    auto* layout = new QVBoxLayout(boring);
    layout->setContentsMargins(12, 10, 12, 4);
    layout->setSpacing(10);
    layout->addWidget(Head());
    layout->addWidget(Tabs(), 1);
    setCentralWidget(boring);
    AddPreview();
    AddCheckList();
    for (const int step : {1, -1}) {
        auto* keys = new QShortcut(QKeySequence(step > 0 ? "Ctrl+PgDown" : "Ctrl+PgUp"), this);
        connect(keys, &QShortcut::activated, this,
                [this, step] { tabs->setCurrentIndex((tabs->currentIndex() + step + tabs->count()) % tabs->count()); });
    }

    AddStatusWords(statusBar(), project, state);
    auto* copies = new QTimer(this);
    connect(copies, &QTimer::timeout, this, [] {
        // With what is being typed in a cell of the tool in front, whose window is no dialog; there is one such cell at
        // most.
        for (QWidget* at = QApplication::focusWidget(); at; at = at->parentWidget())
            if (auto* grid = dynamic_cast<GridView*>(at); grid && qobject_cast<QMainWindow*>(grid->window()))
                return grid->AsTyped(KeepCopy);
        KeepCopy();
    });
    copies->start(std::max(RecoveryInterval / 12, 1));
    resize(QSize(1180, 780).boundedTo(screen()->availableGeometry().size() * 0.95));
    CentreOnScreen(*this);
    Refresh();
}

// ---- Commands

void BorinputWindow::FillMenus()
{
    const auto part = [](auto* bar, const char* name, const char* caption) {
        QMenu* menu = bar->addMenu(caption);
        menu->menuAction()->setObjectName(name);
        return menu;
    };
    QMenu* file = part(menuBar(), "mnuFile", "&File");
    Entry(file, "mnuNew", "&New", QKeySequence::New, frmBorinput::mnuNew);
    Entry(file, "mnuOpen", "&Open...", QKeySequence::Open, frmBorinput::mnuOpen);
    recent = std::make_unique<RecentFiles>(part(file, "mnuRecent", "Open &Recent"), "recent", [this](const Text& name) {
        Run([&name] { frmBorinput::OpenNamed(name); });
    });
    Entry(file, "mnuSave", "&Save", QKeySequence::Save, frmBorinput::mnuSave);
    Entry(file, "mnuSaveAs", "Save &As...", QKeySequence("Ctrl+Shift+S"), frmBorinput::mnuSaveAs);
    Entry(file, "mnuImport", "&Import Description Text...", {}, frmBorinput::mnuImport);
    file->addSeparator();
    Entry(file, "mnuPreview", "Pre&view", QKeySequence("F5"), frmBorinput::mnuPreview);
    Entry(file, "mnuBatchDraw", "Batch &Draw...", {}, frmBorinput::mnuBatchDraw);
    Entry(file, "mnuPrint", "Batch &Print...", QKeySequence::Print, frmBorinput::mnuPrint);
    Entry(file, "mnuPrintSetup", "Print Set&up...", {}, frmBorinput::mnuPrintSetup);
    file->addSeparator();
    // The closing of the window asks and ends, whatever it is that closes it.
    Entry(file, "mnuExit", "E&xit", QKeySequence("Ctrl+Q"), [this] { close(); });

    using frmBorinput::Commands;
    QMenu* edit = part(menuBar(), "mnuEdit", "&Edit");
    TextEntry(edit, "mnuUndo", "&Undo", QKeySequence("Ctrl+Z"), TextCommand::Undo, frmBorinput::mnuUndo);
    TextEntry(edit, "mnuRedo", "&Redo", {}, TextCommand::Redo, frmBorinput::mnuRedo)
        ->setShortcuts({QKeySequence("Ctrl+Y"), QKeySequence("Ctrl+Shift+Z")});
    edit->addSeparator();
    TextEntry(edit, "mnuCut", "Cu&t", QKeySequence("Ctrl+X"), TextCommand::Cut, frmBorinput::mnuCut);
    TextEntry(edit, "mnuCopy", "&Copy", QKeySequence("Ctrl+C"), TextCommand::Copy, frmBorinput::mnuCopy);
    TextEntry(edit, "mnuPaste", "&Paste", QKeySequence("Ctrl+V"), TextCommand::Paste, frmBorinput::mnuPaste);
    Entry(edit, "mnuFillDown", "&Fill Down", QKeySequence("Ctrl+D"), frmBorinput::mnuFillDown);
    edit->addSeparator();
    Entry(edit, "mnuInsertRow", "&Insert Row", QKeySequence("Ctrl++"), frmBorinput::mnuInsertRow);
    Entry(edit, "mnuDeleteRow", "&Delete Row", QKeySequence("Ctrl+-"), frmBorinput::mnuDeleteRow);
    edit->addSeparator();
    Entry(edit, "mnuEditHeading", "Edit &Heading File...", {}, Commands.mnuEditHeading);
    Entry(edit, "mnuEditLayout", "Edit &Layout File...", {},
          Commands.mnuEditLayout ? [] { EditLayouts(Commands.mnuEditLayout); } : std::function<void()>());
    Entry(edit, "mnuEditDesItems", "Edit De&scription Items...", {}, Commands.mnuEditDesItems);
    Entry(edit, "mnuEditPromptFile", "Edit Pr&ompt File...", {}, Commands.mnuEditPromptFile);

    part(menuBar(), "mnuView", "&View");

    QMenu* utilities = part(menuBar(), "mnuUtilities", "&Utilities");
    Entry(utilities, "mnuGraphicSetup", "Graphics/System &Set-Up...", {}, Commands.mnuGraphicSetup);
    Entry(utilities, "mnuCreateLogo", "Create &Logo...", {}, Commands.mnuCreateLogo);
    Entry(utilities, "mnuFillPatt", "Fill Pattern &Guide", {}, frmBorinput::mnuFillPatt);
    utilities->addSeparator();
    Entry(utilities, "mnuConvertFeetMeters", "Convert &Feet to Meters...", {}, Commands.mnuConvertFeetMeters);
    Entry(utilities, "mnuConvertGTGStxt", "Convert GTGS .TXT Files - spe&cific format", {}, Commands.mnuConvertGTGStxt);
    Entry(utilities, "mnuConvertGTGSgeneral", "Convert GTGS .TXT Files - g&eneral format", {},
          Commands.mnuConvertGTGSgeneral);
    Entry(utilities, "mnuGTGS", "Convert GTGS &Print File...", {}, Commands.mnuGTGS);
    Entry(utilities, "mnuConvertWinLog", "Convert &WinLog...", {}, Commands.mnuConvertWinLog);
    Entry(utilities, "mnuExp2IRPIMS", "Export to &IRPIMS...", {}, Commands.mnuExp2IRPIMS);

    QMenu* tools = part(menuBar(), "mnuTools", "&Tools");
    Entry(tools, "mnuvcross", "Vesk&Cross", {}, Commands.mnuvcross);
    Entry(tools, "mnuvfence", "Vesk&Fence", {}, Commands.mnuvfence);
    Entry(tools, "mnuvsoil", "Vesk&Soil", {}, Commands.mnuvsoil);
    Entry(tools, "mnuvGIS", "Vesk&GIS", {}, Commands.mnuvGIS);

    QMenu* help = part(menuBar(), "mnuHelpMenu", "&Help");
    Entry(help, "mnuHelp", "&Help", QKeySequence::HelpContents, frmBorinput::mnuHelp);
}

QAction* BorinputWindow::Action(QMenu* menu, const char* name, const char* caption, QKeySequence keys)
{
    auto* action = new QAction(caption, this);
    action->setObjectName(name);
    action->setShortcut(keys);
    menu->addAction(action);
    return action;
}

QAction* BorinputWindow::Entry(QMenu* menu, const char* name, const char* caption, QKeySequence keys,
                               std::function<void()> command)
{
    QAction* action = Action(menu, name, caption, keys);
    action->setEnabled(bool(command));
    connect(action, &QAction::triggered, this, [this, command] { Run(command); });
    return action;
}

// In the text that has the focus; else by the box last entered.
QAction* BorinputWindow::TextEntry(QMenu* menu, const char* name, const char* caption, QKeySequence keys,
                                   TextCommand text, void (*command)())
{
    QAction* action = Action(menu, name, caption, keys);
    connect(action, &QAction::triggered, this, [this, text, command] {
        if (!DoInText(focusWidget(), text))
            Run(command);
    });
    return action;
}

// What is being typed is taken in first. However the command ends, what it has done is shown, and no progress window
// outlives it.
void BorinputWindow::Run(const std::function<void()>& command)
{
    MakeTabs();
    for (GridView* grid : grids)
        grid->FinishEdit();
    struct Afterwards {
        BorinputWindow& window;
        ~Afterwards()
        {
            ShowProgressWindow(false);
            if (window.ending)
                return;
            window.Refresh();
            if (!NextFile.empty()) // for which another window was left
                window.OpenSoon(TakeNextFile());
        }
    } afterwards{*this};
    command();
}

bool BorinputWindow::Takes(const Text& name) const
{
    return OpensFile(name);
}

void BorinputWindow::OpenSoon(const Text& name)
{
    QTimer::singleShot(0, this, [this, name] { Run([&name] { frmBorinput::OpenFromOutside(name); }); });
}

// ---- Boxes

// A box that makes its number the active one when it is entered.
void BorinputWindow::Activates(QWidget* box, int number)
{
    numbers.push_back({box, number});
    box->installEventFilter(this);
}

bool BorinputWindow::eventFilter(QObject* box, QEvent* event)
{
    if (box == windowHandle() && event->type() == QEvent::Expose) // with this event the window is painted
        QTimer::singleShot(0, this, &BorinputWindow::MakeTabs);
    // A wheel that is turned over the layout box in passing is no choice.
    if (event->type() == QEvent::Wheel && qobject_cast<QComboBox*>(box))
        return true;
    if (event->type() == QEvent::FocusIn)
        for (const auto& [known, number] : numbers)
            if (known == box)
                ActiveBox = int16_t(number);
    return QMainWindow::eventFilter(box, event);
}

void BorinputWindow::Typed()
{
    for (const std::function<void()>& refresh : refreshers)
        refresh();
    ShowState();
}

// A label that prompt.txt may reword.
void BorinputWindow::Labelled(int slot, const char* design, const std::function<void(const Text&)>& show)
{
    refreshers.push_back([slot, design, show] { show(PromptLabel(slot, design)); });
}

// The title stands above the box, and is its name for who cannot see it.
QWidget* BorinputWindow::Titled(QWidget* box, const std::function<Text()>& title)
{
    auto* whole = new QWidget;
    auto* layout = new QVBoxLayout(whole);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(5);
    auto* label = new QLabel(whole);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    label->setBuddy(box);
    layout->addWidget(label);
    layout->addWidget(box, 1);
    refreshers.push_back([label, box, title] {
        const QString words = Caption(title());
        if (label->text() == words && !box->accessibleName().isEmpty())
            return;
        label->setText(words);
        box->setAccessibleName(ToUi(title().empty() ? FromUi(box->objectName()) : title()));
    });
    return whole;
}

// A note beneath the title.
void BorinputWindow::Noted(QWidget* titled, int slot, const char* design)
{
    auto* note = new QLabel(titled);
    note->setObjectName(QString("lblPrompt%1").arg(slot));
    static_cast<QVBoxLayout*>(titled->layout())->insertWidget(1, note);
    Labelled(slot, design, [note](const Text& words) { note->setText(ToUi(words)); });
}

QWidget* BorinputWindow::GridBox(const char* name, int number)
{
    Grid& grid = *frmBorinput::BoxGrid(number);
    auto* view = new GridView(name, grid, this);
    view->OnChange = [this] { Typed(); };
    grids.push_back(view);
    refreshers.push_back([view] { view->Refresh(); });
    Activates(view, number);
    return Titled(view, [&grid] { return grid.title; });
}

// A text box; beneath it the two buttons that adjust how much text a line takes.
QWidget* BorinputWindow::MemoBox(const char* name, int slot, const char* title, Memo& memo, int lessButton)
{
    auto* view = new MemoView(name, memo, this);
    view->OnChange = [this] {
        FileChanged = 1;
        ShowState();
    };
    refreshers.push_back([view] { view->Refresh(); });
    Activates(view, 9);
    QWidget* whole = Titled(view, [slot, title] { return PromptLabel(slot, title); });
    auto* buttons = new QHBoxLayout;
    buttons->setContentsMargins(0, 0, 0, 0);
    buttons->addWidget(new QLabel("Text on a line:", whole));
    for (const int n : {lessButton, lessButton + 1}) {
        auto* button = new QToolButton(whole);
        button->setObjectName(QString("cmdAdj%1").arg(n));
        button->setText(n == lessButton ? "\u25C2 less" : "more \u25B8");
        Labelled(slot, title, [button, less = n == lessButton](const Text& words) {
            button->setAccessibleName(ToUi(words) + (less ? ", less text on a line" : ", more text on a line"));
        });
        button->setFocusPolicy(Qt::StrongFocus);
        connect(button, &QToolButton::clicked, this, [this, n] { Run([n] { AdjustTextBox(n); }); });
        buttons->addWidget(button);
    }
    buttons->addStretch();
    static_cast<QVBoxLayout*>(whole->layout())->addLayout(buttons);
    return whole;
}

QLineEdit* BorinputWindow::Line(const char* name, Text& text)
{
    auto* line = new QLineEdit(this);
    line->setObjectName(name);
    connect(line, &QLineEdit::textEdited, this, [this, line, &text] {
        text = TypedLine(*line);
        FileChanged = 1;
        ShowState();
    });
    refreshers.push_back([line, &text] {
        if (line->text() == ToUi(text))
            return;
        line->setText(ToUi(text));
        line->setCursorPosition(0);
    });
    return line;
}

// The layout file: a list with free typing.
QComboBox* BorinputWindow::LayoutBox()
{
    using namespace frmBorinput;
    auto* box = new QComboBox(this);
    box->setObjectName("cmbLayFile");
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setCompleter(nullptr);
    box->installEventFilter(this);
    connect(box->lineEdit(), &QLineEdit::textEdited, this, [this, box] {
        cmbLayFile = TypedLine(*box->lineEdit());
        LayoutFileChange();
        Typed();
    });
    connect(box, &QComboBox::textActivated, this, [this](const QString& chosen) {
        cmbLayFile = FromUi(chosen);
        LayoutFileChange();
        BorTextChange();
        Typed();
    });
    refreshers.push_back([box] {
        QStringList names;
        for (const Text& name : LayFiles)
            names << ToUi(name);
        QStringList shown;
        for (int i = 0; i < box->count(); ++i)
            shown << box->itemText(i);
        if (shown != names) {
            box->clear();
            box->addItems(names);
        }
        // With the place in the list, or leaving the box would count as a choice from the list.
        const QString chosen = ToUi(cmbLayFile);
        const bool other = box->currentText() != chosen;
        // A name that is not in it has none, and the arrows begin at its first one.
        const int caret = box->lineEdit()->cursorPosition(), place = box->findText(chosen);
        if (!other && place == box->currentIndex())
            return;
        box->setCurrentIndex(place);
        if (box->currentText() != chosen)
            box->setEditText(chosen);
        box->lineEdit()->setCursorPosition(caret);
        if (other)
            box->lineEdit()->setCursorPosition(0);
    });
    return box;
}

// What stands above the tabs: the single fields.
QWidget* BorinputWindow::Head()
{
    auto* head = new QWidget;
    auto* layout = new QGridLayout(head);
    layout->setContentsMargins(2, 0, 2, 0);
    layout->setHorizontalSpacing(10);
    const auto field = [&](int column, int slot, const char* caption, QWidget* line, int share) {
        auto* label = new QLabel(head);
        label->setBuddy(line);
        Labelled(slot, caption, [label, line](const Text& words) {
            label->setText(Caption(words));
            line->setAccessibleName(ToUi(words));
        });
        layout->addWidget(label, 0, 2 * column);
        layout->addWidget(line, 0, 2 * column + 1);
        layout->setColumnStretch(2 * column + 1, share);
    };
    field(0, 19, "Boring Name", Line("Text1", frmBorinput::Text1), 3);
    field(1, 20, "Map File", Line("Text2", frmBorinput::Text2), 3);
    field(2, 21, "Layout File", LayoutBox(), 2);
    auto* draft = new QCheckBox("Draft", head);
    draft->setObjectName("Check1");
    connect(draft, &QCheckBox::clicked, this, [this](bool checked) {
        frmBorinput::Check1 = checked;
        FileChanged = 1;
        ShowState();
    });
    refreshers.push_back([draft] { draft->setChecked(frmBorinput::Check1); });
    layout->addWidget(draft, 0, 6);
    return head;
}

// The client text and the four forms in which it is printed.
QWidget* BorinputWindow::ClientBox()
{
    using frmBorinput::Option;
    using frmBorinput::txtClient;
    auto* client = new TypedTextEdit(this);
    client->setObjectName("txtClient");
    client->setTabChangesFocus(true);
    Activates(client, 9);
    connect(client, &QPlainTextEdit::textChanged, this, [this, client] {
        const Text typed = TextOf(*client);
        if (typed == txtClient)
            return;
        txtClient = typed;
        FileChanged = 1;
        ShowState();
    });
    refreshers.push_back([client] {
        if (TextOf(*client) == txtClient)
            return;
        const QSignalBlocker shownAndNotTyped(client);
        client->setPlainText(ToUi(txtClient).remove('\r'));
    });
    QWidget* whole = Titled(client, [] { return PromptLabel(2, "Client/Project Information"); });
    auto* styles = new QHBoxLayout;
    auto* style = new QLabel(whole);
    style->setObjectName("lblStyle");
    Labelled(3, "Style:", [style](const Text& words) { style->setText(ToUi(words)); });
    styles->addWidget(style);
    const std::pair<int, const char*> names[] = {{4, "Open"}, {5, "1 Line A"}, {7, "2 Line"}, {6, "1 Line B"}};
    for (int i = 1; i <= 4; ++i) {
        auto* option = new QRadioButton(whole);
        Labelled(names[i - 1].first, names[i - 1].second,
                 [option](const Text& words) { option->setText(Caption(words)); });
        option->setObjectName(QString("Option%1").arg(i));
        option->setAutoExclusive(false); // none may be chosen
        connect(option, &QRadioButton::clicked, this, [this, i] {
            Option = i;
            FileChanged = 1;
            Typed();
        });
        refreshers.push_back([option, i] { option->setChecked(Option == i); });
        styles->addWidget(option);
    }
    styles->addStretch();
    static_cast<QVBoxLayout*>(whole->layout())->addLayout(styles);
    return whole;
}

// The four lists of description items.
QWidget* BorinputWindow::Items()
{
    auto* whole = new QWidget;
    auto* layout = new QHBoxLayout(whole);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    for (int i = 1; i <= 4; ++i) {
        auto* list = new ItemList(whole);
        list->setObjectName(QString("List%1").arg(i));
        list->setAccessibleName(QString("Description items %1").arg(i));
        list->setMinimumWidth(60);
        list->OnChoice = [this](const QListWidgetItem& item) {
            auto* box = static_cast<MemoView*>(findChild<QPlainTextEdit*>("MemoDes"));
            box->Insert(FromUi(item.text()));
            box->setFocus();
        };
        refreshers.push_back([list, i] {
            QStringList words;
            for (const Text& item : frmBorinput::List[i])
                words << ToUi(item);
            QStringList shown;
            for (int row = 0; row < list->count(); ++row)
                shown << list->item(row)->text();
            if (shown != words) {
                list->clear();
                list->addItems(words);
            }
        });
        layout->addWidget(list);
    }
    return whole;
}

QWidget* BorinputWindow::Tabs()
{
    using namespace frmBorinput;
    tabs = new QTabWidget;
    tabs->setObjectName("SSTab1");
    tabs->tabBar()->setAccessibleName("Parts of the boring");
    // The bar takes the focus by itself; by way of the whole, Tab would go round without what stands above.
    tabs->setFocusProxy(nullptr);
    tabs->setFocusPolicy(Qt::NoFocus);
    tabs->setDocumentMode(false);

    QWidget* client = ClientBox();
    QWidget* info = GridBox("SSInfo", 1);
    QWidget* scale = GridBox("SSScale", 2);
    QWidget* parts = GridBox("SSRepParts", 3);
    auto* total = new QLabel(parts);
    total->setObjectName("lblWidthtot");
    Labelled(25, "Total Width:", [total](const Text& words) { total->setText(ToUi(words + " " + lblWidthtot)); });
    parts->layout()->addWidget(total);
    QWidget* general = Tab();
    general->layout()->addWidget(
        Split(Qt::Horizontal,
              {Split(Qt::Vertical, {client, info}, {2, 3}), Split(Qt::Vertical, {scale, parts}, {2, 3})}, {3, 2}));
    tabs->addTab(general, "");
    Labelled(1, "General", [this](const Text& words) { tabs->setTabText(0, Caption(words)); });

    const auto add = [this](const char* title, const std::function<QWidget*()>& content) {
        QWidget* tab = Tab();
        tabs->addTab(tab, title);
        unmade.push_back([tab, content] { tab->layout()->addWidget(content()); });
    };
    add("Lithology", [this] {
        QWidget* lith = GridBox("SSLith", 8);
        QWidget* des = MemoBox("MemoDes", 72, "Descriptions", MemoDes, 1);
        QWidget* items = Items();
        QWidget* formations = GridBox("SSFormations", 15);
        return Split(Qt::Horizontal,
                     {Split(Qt::Vertical, {lith, formations}, {3, 2}), Split(Qt::Vertical, {des, items}, {4, 1})},
                     {2, 3});
    });
    add("Samples", [this] {
        QWidget* samples = GridBox("SSSamp", 7);
        QWidget* setup = GridBox("SSP1Setup", 4);
        Noted(setup, 33, "[Text/Sm. Graph Column Headings]");
        return Split(Qt::Vertical, {samples, setup}, {3, 2});
    });
    add("Parameters", [this] {
        QWidget* params = GridBox("SSPar", 6);
        QWidget* setup = GridBox("SSP2Setup", 5);
        Noted(setup, 44, "[Text/Sm. Graph Column Headings]");
        return Split(Qt::Vertical, {params, setup}, {3, 2});
    });
    add("Well", [this] {
        QWidget* well = GridBox("SSGenWellInfo", 10);
        QWidget* outer = GridBox("SSOuterLay", 11);
        QWidget* inner = GridBox("SSInnerLay", 12);
        QWidget* construction = GridBox("SSW", 13);
        QWidget* notes = MemoBox("MemoWcon", 112, "Well Construction Notes", MemoWcon, 3);
        return Split(
            Qt::Horizontal,
            {well, Split(Qt::Vertical, {outer, inner}, {1, 1}), Split(Qt::Vertical, {construction, notes}, {1, 1})},
            {3, 5, 4});
    });
    add("Remarks and Notes", [this] {
        QWidget* remarks = MemoBox("MemoRemarks", 127, "Remarks", MemoRemarks, 5);
        QWidget* notes = MemoBox("MemoBottNotes", 113, "General Notes:", MemoBottNotes, 7);
        return Split(Qt::Horizontal, {remarks, notes}, {2, 3});
    });
    add("Cuttings and Legend", [this] {
        QWidget* cuttings = GridBox("SSCuttings", 14);
        QWidget* legend = GridBox("SSLegend", 16);
        return Split(Qt::Horizontal, {cuttings, legend}, {1, 1});
    });
    connect(tabs, &QTabWidget::currentChanged, this, &BorinputWindow::MakeTabs);
    return tabs;
}

// The tabs behind the first are filled when the window has been painted, or sooner where a command needs them: their
// twelve tables took a fifth of the start, and nobody sees them yet.
void BorinputWindow::MakeTabs()
{
    if (unmade.empty())
        return;
    for (const std::function<void()>& make : std::exchange(unmade, {}))
        make();
    for (const std::function<void()>& refresh : refreshers)
        refresh();
    OrderTabs();
    Application::ShowIcon();
}

void BorinputWindow::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    windowHandle()->installEventFilter(this);
}

// The page as it stands in the boxes, beside them when the user wishes. A click on a layer leads to its row.
void BorinputWindow::AddPreview()
{
    auto* dock = new QDockWidget("Page", this);
    dock->setObjectName("dckPreview");
    dock->setFeatures(QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable);
    auto* content = new QWidget(dock);
    live = new LivePane(content);
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(live, 1);
    auto* buttons = new QHBoxLayout;
    auto* place = new QLabel(content);
    place->setObjectName("lblLivePage");
    for (const int step : {-1, 1}) {
        auto* button = new QToolButton(content);
        button->setObjectName(step < 0 ? "cmdLivePrevious" : "cmdLiveNext");
        button->setText(step < 0 ? "\u25C2 Previous" : "Next \u25B8");
        button->setFocusPolicy(Qt::StrongFocus);
        connect(button, &QToolButton::clicked, this, [this, step] { live->Turn(step); });
        if (step > 0)
            buttons->addWidget(place, 1, Qt::AlignCenter);
        buttons->addWidget(button);
    }
    layout->addLayout(buttons);
    live->OnDrawn = [this, place] {
        const LivePage& page = live->Shown();
        place->setText(page.Page == 0 ? QString() : QString("Page %1 of %2").arg(page.Page).arg(page.Pages));
    };
    live->OnLayer = [this](int row) {
        MakeTabs();
        auto* grid = findChild<QTableView*>("SSLith");
        tabs->setCurrentIndex(1);
        grid->setCurrentIndex(grid->model()->index(row - 1, 0));
        grid->setFocus();
    };
    dock->setWidget(content);
    addDockWidget(Qt::RightDockWidgetArea, dock);
    dock->hide();
    QAction* toggle = dock->toggleViewAction();
    toggle->setObjectName("mnuLivePreview");
    toggle->setText("&Page beside the Boxes");
    toggle->setShortcut(QKeySequence("Ctrl+F5"));
    findChild<QAction*>("mnuView")->menu()->addAction(toggle);
}

void BorinputWindow::AddCheckList()
{
    checks = new CheckDock(this, findChild<QAction*>("mnuView")->menu());
    checks->Check = CheckBoring;
    checks->GoTo = [this](const CheckEntry& entry) { GoTo(entry); };
}

void BorinputWindow::GoTo(const CheckEntry& entry)
{
    MakeTabs();
    QWidget* box = entry.TextBox[0] ? findChild<QWidget*>(entry.TextBox) : nullptr;
    for (const auto& [known, number] : numbers)
        if (!box && number == entry.Box)
            box = qobject_cast<QWidget*>(known);
    if (!box)
        return;
    for (int tab = 0; tab < tabs->count(); ++tab)
        if (tabs->widget(tab)->isAncestorOf(box))
            tabs->setCurrentIndex(tab);
    if (auto* grid = qobject_cast<QTableView*>(box)) {
        const QModelIndex cell = grid->model()->index(entry.Row - 1, entry.Column - 1);
        grid->setCurrentIndex(cell);
        grid->scrollTo(cell);
    } else if (auto* text = qobject_cast<QPlainTextEdit*>(box)) {
        QTextCursor caret = text->textCursor();
        caret.setPosition(std::min(entry.Place, int(text->toPlainText().size())));
        text->setTextCursor(caret);
        text->ensureCursorVisible();
    }
    activateWindow(); // the list may float in a window of its own
    box->setFocus();
}

// The way of the Tab key: from field to field as a boring is typed in.
void BorinputWindow::OrderTabs()
{
    const char* const order[] = {
        "Text1",        "Text2",         "cmbLayFile",   "Check1",  "SSTab1",     "txtClient",     "Option1",
        "Option2",      "Option3",       "Option4",      "SSInfo",  "SSScale",    "SSRepParts",    "SSLith",
        "MemoDes",      "cmdAdj1",       "cmdAdj2",      "List1",   "List2",      "List3",         "List4",
        "SSFormations", "SSSamp",        "SSP1Setup",    "SSPar",   "SSP2Setup",  "SSGenWellInfo", "SSOuterLay",
        "SSInnerLay",   "SSW",           "MemoWcon",     "cmdAdj3", "cmdAdj4",    "MemoRemarks",   "cmdAdj5",
        "cmdAdj6",      "MemoBottNotes", "cmdAdj7",      "cmdAdj8", "SSCuttings", "SSLegend",      "cmdLivePrevious",
        "cmdLiveNext",  "lstCheck",      "cmdCheckKinds"};
    QHash<QString, QWidget*> boxes; // one look through the window, not one for each box
    for (QWidget* box : findChildren<QWidget*>())
        if (!box->objectName().isEmpty())
            boxes.insert(box->objectName(), box);
    QWidget* before = nullptr;
    for (const char* name : order) {
        QWidget* next = boxes.value(name);
        if (next == tabs)
            next = tabs->tabBar(); // with the tabs themselves all that stands on them would move
        if (before)
            setTabOrder(before, next);
        before = next;
    }
}

// ---- What is shown

// The title's mark of unsaved changes is the platform's; the rest stands still while the user types.
void BorinputWindow::ShowState()
{
    setWindowModified(FileChanged == 1 || SaveOwed());
    live->Soon();
    checks->Soon();
    state->setText(ToUi(PageWords()));
}

void BorinputWindow::Refresh()
{
    setWindowTitle(MarkedTitle(frmBorinput::Title));
    Typed();
    if (shownFile != BoringFileName) {
        shownFile = BoringFileName;
        for (GridView* grid : grids) {
            grid->Fit();
            grid->Home();
        }
    }
    recent->Show(frmBorinput::RecentFile);
    const auto dress = [this](const char* name, const Text& family) {
        auto* box = findChild<QWidget*>(name);
        if (family.empty() || box->font().family() == ToUi(family))
            return;
        QFont font = box->font();
        font.setFamily(ToUi(family));
        box->setFont(font);
    };
    dress("Text1", frmBorinput::Text1Font);
    dress("txtClient", frmBorinput::txtClientFont);
    project->setText("Project folder: " + ToUi(ProjectPath));
}

void BorinputWindow::closeEvent(QCloseEvent* event)
{
    if (!ending)
        for (GridView* grid : grids)
            grid->FinishEdit();
    if (ending || frmBorinput::mnuExit())
        event->accept();
    else
        event->ignore();
}

static QPointer<BorinputWindow> window;

// A failure of the loading ends the start: there is no window to go back to.
void ShowLogWindow()
{
    try {
        frmBorinput::Load();
        window = new BorinputWindow;
        window->show();
        StartRecovery(JoinPath(Platform.DataFolder(), "Stratavue/recovery"));
        WatchTool(LogTool);
        StartDone = true;
    } catch (...) {
        TellRunTimeError();
    }
}

void OfferRecovery()
{
    if (window)
        window->Run([] {
            OfferCopies();
            ShowRecoveredTool();
        });
}

void OpenInLogWindow(const Text& name)
{
    if (window)
        window->OpenSoon(name);
}

void EndProgram()
{
    EndRecovery();
    if (window) {
        window->ending = true;
        window->close(); // from another tool's Exit it is still there
    }
    QApplication::quit();
}
