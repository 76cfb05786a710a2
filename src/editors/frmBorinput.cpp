// frmBorinput.cpp -- the log tool's window: its boxes, and which command each entry calls. It shows the boring that is
// open; the boxes are records (boring/boringboxes.h), and it shows them anew after each command.
#include "editors/borinput.h"

#include "boring/boringboxes.h"
#include "platform/qt/application.h"
#include "platform/qt/gridview.h"
#include "platform/qt/uitext.h"
#include "platform/qt/windows.h"
#include "session/files.h"
#include "session/session.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolBar>
#include <QVBoxLayout>
#include <functional>

namespace
{
class BorinputWindow : public QMainWindow
{
public:
    BorinputWindow();
    void Refresh();
    bool ending = false; // the user has been asked; nothing holds the window any more

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QAction* Entry(QMenu* menu, const char* name, const char* caption, QKeySequence keys,
                   std::function<void()> command);
    QWidget* Titled(const Text& title, QWidget* box);
    QWidget* GridBox(const char* name, Grid& grid);
    QWidget* MemoBox(const char* name, const char* title, const Memo& memo);
    QLineEdit* Line(const char* name, const Text& text);
    QWidget* Head();
    QWidget* Tabs();
    QWidget* NothingOpen();

    QStackedWidget* pages;
    QAction* preview;
    QLabel* state;
    QLabel* project;
    std::vector<std::function<void()>> refreshers; // one for each box
};

// Boxes beside or above one another, with movable borders between them.
QSplitter* Split(Qt::Orientation orientation, std::initializer_list<QWidget*> boxes, std::initializer_list<int> shares)
{
    auto* splitter = new QSplitter(orientation);
    splitter->setChildrenCollapsible(false);
    splitter->setHandleWidth(10);
    for (QWidget* box : boxes)
        splitter->addWidget(box);
    int i = 0;
    QList<int> sizes;
    for (const int share : shares) {
        splitter->setStretchFactor(i++, share);
        sizes << share * 100;
    }
    splitter->setSizes(sizes);
    return splitter;
}

QWidget* Tab(QWidget* content)
{
    auto* tab = new QWidget;
    auto* layout = new QVBoxLayout(tab);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->addWidget(content);
    return tab;
}
} // namespace

BorinputWindow::BorinputWindow()
{
    setObjectName("frmBorinput");
    const auto part = [](QMenuBar* bar, const char* name, const char* caption) {
        QMenu* menu = bar->addMenu(caption);
        menu->menuAction()->setObjectName(name);
        return menu;
    };
    QMenu* file = part(menuBar(), "mnuFile", "&File");
    QAction* create = Entry(file, "mnuNew", "&New", QKeySequence::New, frmBorinput::mnuNew);
    QAction* open = Entry(file, "mnuOpen", "&Open...", QKeySequence::Open, frmBorinput::mnuOpen);
    QAction* save = Entry(file, "mnuSave", "&Save", QKeySequence::Save, frmBorinput::mnuSave);
    Entry(file, "mnuSaveAs", "Save &As...", QKeySequence("Ctrl+Shift+S"), frmBorinput::mnuSaveAs);
    Entry(file, "mnuImport", "&Import Description Text...", {}, frmBorinput::mnuImport);
    file->addSeparator();
    preview = Entry(file, "mnuPreview", "Pre&view", QKeySequence("F5"), frmBorinput::mnuPreview);
    QAction* draw = Entry(file, "mnuBatchDraw", "Batch &Draw...", {}, frmBorinput::mnuBatchDraw);
    QAction* print = Entry(file, "mnuPrint", "Batch &Print...", QKeySequence::Print, frmBorinput::mnuPrint);
    Entry(file, "mnuPrintSetup", "Print Set&up...", {}, frmBorinput::mnuPrintSetup);
    file->addSeparator();
    // The closing of the window asks and ends, whatever it is that closes it.
    Entry(file, "mnuExit", "E&xit", QKeySequence("Ctrl+Q"), [this] { close(); });

    using frmBorinput::Commands;
    QMenu* edit = part(menuBar(), "mnuEdit", "&Edit");
    Entry(edit, "mnuUndo", "&Undo", QKeySequence("Ctrl+Z"), frmBorinput::mnuUndo);
    Entry(edit, "mnuRedo", "&Redo", QKeySequence("Ctrl+Y"), frmBorinput::mnuRedo);
    edit->addSeparator();
    Entry(edit, "mnuCut", "Cu&t", QKeySequence("Ctrl+X"), frmBorinput::mnuCut);
    Entry(edit, "mnuCopy", "&Copy", QKeySequence("Ctrl+C"), frmBorinput::mnuCopy);
    Entry(edit, "mnuPaste", "&Paste", QKeySequence("Ctrl+V"), frmBorinput::mnuPaste);
    Entry(edit, "mnuFillDown", "&Fill Down", QKeySequence("Ctrl+D"), frmBorinput::mnuFillDown);
    edit->addSeparator();
    Entry(edit, "mnuInsertRow", "&Insert Row", QKeySequence("Ctrl++"), frmBorinput::mnuInsertRow);
    Entry(edit, "mnuDeleteRow", "&Delete Row", QKeySequence("Ctrl+-"), frmBorinput::mnuDeleteRow);
    edit->addSeparator();
    Entry(edit, "mnuEditHeading", "Edit &Heading File...", {}, Commands.mnuEditHeading);
    Entry(edit, "mnuEditLayout", "Edit &Layout File...", {}, Commands.mnuEditLayout);
    Entry(edit, "mnuEditDesItems", "Edit De&scription Items...", {}, Commands.mnuEditDesItems);
    Entry(edit, "mnuEditPromptFile", "Edit Pr&ompt File...", {}, Commands.mnuEditPromptFile);

    QMenu* utilities = part(menuBar(), "mnuUtilities", "&Utilities");
    Entry(utilities, "mnuGraphicSetup", "Graphics/System &Set-Up...", {}, Commands.mnuGraphicSetup);
    Entry(utilities, "mnuCreateLogo", "Create &Logo...", {}, Commands.mnuCreateLogo);
    Entry(utilities, "mnuFillPatt", "Fill Pattern &Guide", {}, frmBorinput::mnuFillPatt);
    utilities->addSeparator();
    Entry(utilities, "mnuConvertFeetMeters", "Convert &Feet to Meters...", {}, Commands.mnuConvertFeetMeters);
    Entry(utilities, "mnuConvertGTGStxt", "Convert GTGS &Text...", {}, Commands.mnuConvertGTGStxt);
    Entry(utilities, "mnuConvertGTGSgeneral", "Convert GTGS, G&eneral...", {}, Commands.mnuConvertGTGSgeneral);
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

    QToolBar* bar = addToolBar("Commands");
    bar->setObjectName("Commands");
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    bar->addAction(create);
    bar->addAction(open);
    bar->addAction(save);
    bar->addSeparator();
    bar->addAction(preview);
    bar->addAction(draw);
    bar->addAction(print);
    setContextMenuPolicy(Qt::NoContextMenu); // the bar is not to be hidden by accident

    pages = new QStackedWidget(this);
    pages->addWidget(NothingOpen());
    auto* boring = new QWidget;
    auto* layout = new QVBoxLayout(boring);
    layout->setContentsMargins(12, 12, 12, 6);
    layout->setSpacing(12);
    layout->addWidget(Head());
    layout->addWidget(Tabs(), 1);
    pages->addWidget(boring);
    setCentralWidget(pages);

    project = new QLabel(this);
    project->setObjectName("lblProject");
    project->setContentsMargins(8, 0, 8, 0);
    state = new QLabel(this);
    state->setObjectName("lblState");
    state->setContentsMargins(8, 0, 8, 0);
    statusBar()->addWidget(project, 1);
    statusBar()->addPermanentWidget(state);
    resize(QSize(1120, 760).boundedTo(screen()->availableGeometry().size() * 0.9));
    CentreOnScreen(*this);
    Refresh();
}

QAction* BorinputWindow::Entry(QMenu* menu, const char* name, const char* caption, QKeySequence keys,
                               std::function<void()> command)
{
    auto* action = new QAction(caption, this);
    action->setObjectName(name);
    action->setShortcut(keys);
    action->setEnabled(bool(command));
    menu->addAction(action);
    connect(action, &QAction::triggered, this, [this, command] {
        // However the command ends, what it has done is shown, and no progress window outlives it.
        struct Afterwards {
            BorinputWindow& window;
            ~Afterwards()
            {
                ShowProgressWindow(false);
                if (!window.ending)
                    window.Refresh();
            }
        } afterwards{*this};
        command();
    });
    return action;
}

QWidget* BorinputWindow::Titled(const Text& title, QWidget* box)
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

QWidget* BorinputWindow::GridBox(const char* name, Grid& grid)
{
    auto* view = new GridView(name, grid, this);
    refreshers.push_back([view] { view->Refresh(); });
    return Titled(grid.title, view);
}

// A text box with the very lines that are stored and printed; they are not broken anew on the screen.
QWidget* BorinputWindow::MemoBox(const char* name, const char* title, const Memo& memo)
{
    auto* box = new QPlainTextEdit(this);
    box->setObjectName(name);
    box->setAccessibleName(title);
    box->setReadOnly(true);
    box->setTabChangesFocus(true);
    box->setLineWrapMode(QPlainTextEdit::NoWrap);
    box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    refreshers.push_back([box, &memo] {
        QStringList lines;
        for (const Text& line : memo.DisplayLines())
            lines << ToUi(line);
        box->setPlainText(lines.join('\n'));
    });
    return Titled(title, box);
}

QLineEdit* BorinputWindow::Line(const char* name, const Text& text)
{
    auto* line = new QLineEdit(this);
    line->setObjectName(name);
    line->setReadOnly(true);
    refreshers.push_back([line, &text] {
        line->setText(ToUi(text));
        line->setCursorPosition(0);
    });
    return line;
}

// What stands above the tabs: the single fields.
QWidget* BorinputWindow::Head()
{
    auto* head = new QWidget;
    auto* layout = new QGridLayout(head);
    layout->setContentsMargins(2, 0, 2, 0);
    layout->setHorizontalSpacing(10);
    const auto field = [&](int column, const char* caption, QLineEdit* line, int share) {
        auto* label = new QLabel(QString(caption) + ":", head);
        label->setBuddy(line);
        line->setAccessibleName(caption);
        layout->addWidget(label, 0, 2 * column);
        layout->addWidget(line, 0, 2 * column + 1);
        layout->setColumnStretch(2 * column + 1, share);
    };
    field(0, "Boring Name", Line("Text1", frmBorinput::Text1), 3);
    field(1, "Map File", Line("Text2", frmBorinput::Text2), 3);
    field(2, "Layout File", Line("cmbLayFile", frmBorinput::cmbLayFile), 2);
    auto* draft = new QCheckBox("Draft", head);
    draft->setObjectName("Check1");
    draft->setAttribute(Qt::WA_TransparentForMouseEvents);
    draft->setFocusPolicy(Qt::NoFocus);
    refreshers.push_back([draft] { draft->setChecked(frmBorinput::Check1); });
    layout->addWidget(draft, 0, 6);
    return head;
}

QWidget* BorinputWindow::Tabs()
{
    using namespace frmBorinput;
    auto* tabs = new QTabWidget;
    tabs->setObjectName("SSTab1");
    tabs->setDocumentMode(false);

    auto* client = new QPlainTextEdit(this);
    client->setObjectName("txtClient");
    client->setAccessibleName("Client/Project Information");
    client->setReadOnly(true);
    client->setTabChangesFocus(true);
    refreshers.push_back([client] { client->setPlainText(ToUi(txtClient).remove('\r')); });
    auto* style = new QWidget;
    auto* styles = new QHBoxLayout(style);
    styles->setContentsMargins(0, 4, 0, 0);
    styles->addWidget(new QLabel("Style:", style));
    const char* const names[] = {"Open", "1 Line A", "2 Line", "1 Line B"};
    for (int i = 1; i <= 4; ++i) {
        auto* option = new QRadioButton(names[i - 1], style);
        option->setObjectName(QString("Option%1").arg(i));
        option->setAutoExclusive(false);
        option->setAttribute(Qt::WA_TransparentForMouseEvents);
        option->setFocusPolicy(Qt::NoFocus);
        refreshers.push_back([option, i] { option->setChecked(Option == i); });
        styles->addWidget(option);
    }
    styles->addStretch();
    auto* clientBox = Titled("Client/Project Information", client);
    clientBox->layout()->addWidget(style);

    auto* parts = GridBox("SSRepParts", SSRepParts);
    auto* total = new QLabel(parts);
    total->setObjectName("lblWidthtot");
    refreshers.push_back([total] { total->setText("Total Width: " + ToUi(lblWidthtot)); });
    parts->layout()->addWidget(total);

    tabs->addTab(Tab(Split(Qt::Horizontal,
                           {Split(Qt::Vertical, {clientBox, GridBox("SSInfo", SSInfo)}, {2, 3}),
                            Split(Qt::Vertical, {GridBox("SSScale", SSScale), parts}, {2, 3})},
                           {3, 2})),
                 "General");
    tabs->addTab(Tab(Split(Qt::Horizontal,
                           {GridBox("SSLith", SSLith), MemoBox("MemoDes", "Descriptions", MemoDes),
                            GridBox("SSFormations", SSFormations)},
                           {4, 6, 3})),
                 "Lithology");
    tabs->addTab(Tab(Split(Qt::Vertical, {GridBox("SSSamp", SSSamp), GridBox("SSP1Setup", SSP1Setup)}, {3, 2})),
                 "Samples");
    tabs->addTab(Tab(Split(Qt::Vertical, {GridBox("SSPar", SSPar), GridBox("SSP2Setup", SSP2Setup)}, {3, 2})),
                 "Parameters");
    tabs->addTab(
        Tab(Split(Qt::Horizontal,
                  {GridBox("SSGenWellInfo", SSGenWellInfo),
                   Split(Qt::Vertical, {GridBox("SSOuterLay", SSOuterLay), GridBox("SSInnerLay", SSInnerLay)}, {1, 1}),
                   Split(Qt::Vertical, {GridBox("SSW", SSW), MemoBox("MemoWcon", "Well Construction Notes", MemoWcon)},
                         {1, 1})},
                  {3, 5, 4})),
        "Well");
    tabs->addTab(Tab(Split(Qt::Horizontal,
                           {MemoBox("MemoRemarks", "Remarks", MemoRemarks),
                            MemoBox("MemoBottNotes", "General Notes:", MemoBottNotes)},
                           {2, 3})),
                 "Remarks and Notes");
    tabs->addTab(Tab(Split(Qt::Horizontal, {GridBox("SSCuttings", SSCuttings), GridBox("SSLegend", SSLegend)}, {1, 1})),
                 "Cuttings and Legend");
    return tabs;
}

// Before a boring is open: what to do first.
QWidget* BorinputWindow::NothingOpen()
{
    auto* page = new QWidget;
    auto* words = new QLabel("No boring is open", page);
    QFont large = words->font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    words->setFont(large);
    auto* more = new QLabel("Open a boring file to see its data, and Preview to see its log.\n"
                            "Batch Draw and Batch Print take many borings at once.",
                            page);
    more->setAlignment(Qt::AlignCenter);
    auto* open = new QPushButton("Open a Boring...", page);
    open->setObjectName("cmdOpen");
    open->setMinimumSize(180, 36);
    connect(open, &QPushButton::clicked, this, [this] { findChild<QAction*>("mnuOpen")->trigger(); });
    auto* layout = new QVBoxLayout(page);
    layout->setSpacing(16);
    layout->addStretch(2);
    layout->addWidget(words, 0, Qt::AlignHCenter);
    layout->addWidget(more, 0, Qt::AlignHCenter);
    layout->addWidget(open, 0, Qt::AlignHCenter);
    layout->addStretch(3);
    return page;
}

void BorinputWindow::Refresh()
{
    setWindowTitle(ToUi(frmBorinput::Title));
    for (const std::function<void()>& refresh : refreshers)
        refresh();
    pages->setCurrentIndex(BoringFileName.empty() ? 0 : 1);
    project->setText("Project folder: " + ToUi(ProjectPath));
    state->setText(BoringFileName.empty() ? QString() : "Read-only view of " + ToUi(BaseName(BoringFileName)));
}

void BorinputWindow::closeEvent(QCloseEvent* event)
{
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
        StartDone = true;
    } catch (...) {
        TellRunTimeError();
    }
}

void EndProgram()
{
    if (window)
        window->ending = true;
    QApplication::quit();
}
