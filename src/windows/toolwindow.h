// toolwindow.h -- the window of a tool that opens on top of the log window: its menus, boxes, live page and status bar.
// What a tool has of its own is in its ToolRecord, and in the frm*.cpp that lays out its boxes.
#pragma once

#include "tools/toolcommands.h"
#include "windows/windowparts.h"

#include <QEventLoop>
#include <QMainWindow>
#include <QPointer>
#include <functional>
#include <memory>

class CheckDock;
class GridView;
class LivePane;
class QLabel;
class QPlainTextEdit;

class ToolWindow : public QMainWindow, public TakesFiles
{
public:
    explicit ToolWindow(ToolRecord& shown);
    ~ToolWindow() override;

    // For the layout of the window: boxes under their titles, made in the order in which Tab goes through them.
    QWidget* GridBox(const char* name, Grid& grid);
    QWidget* MemoBox(const char* name, const Text& title, Memo& memo);
    // A widget of the tool's own that Tab goes to. shows: what a command may have changed in it; may be null.
    void Own(QWidget* widget, std::function<void()> shows = nullptr);
    QAction* Entry(QMenu* menu, const char* name, const char* caption, QKeySequence keys,
                   std::function<void()> command);
    QAction* Action(QMenu* menu, const char* name, const char* caption, QKeySequence keys);
    QMenu* Menu(const char* name) const;
    void Run(const std::function<void()>& command); // performs the command and shows what it has done
    void Blocking(QWidget* content);                // shown until it is left
    bool Takes(const Text& name) const override;
    void OpenSoon(const Text& name) override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* box, QEvent* event) override;

private:
    void FillMenus();
    void FillEditMenu();
    void FillToolsMenu();
    void AddPreview();
    void AddCheckList();
    void GoTo(const CheckEntry& entry);
    void AddStatusBar();
    void ShowState();
    void Refresh();
    void Typed();
    void Leave();

    ToolRecord& tool;
    QEventLoop loop;
    bool leaving = false; // the user has been asked; nothing holds the window any more
    std::unique_ptr<RecentFiles> recent;
    LivePane* live = nullptr;
    CheckDock* checks = nullptr;
    QLabel* state = nullptr;
    QLabel* project = nullptr;
    std::vector<GridView*> views;
    std::vector<std::pair<QObject*, Grid*>> gridOf;
    std::vector<std::function<void()>> refreshers;
    std::vector<QWidget*> order; // of the Tab key
    QPointer<QWidget> focus;     // while the window is hidden
    Text shownFile;              // the file that the boxes were last fitted to
    int fittedRows = 0;          // and the rows that they held then
};
