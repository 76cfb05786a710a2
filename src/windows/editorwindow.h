// editorwindow.h -- what the small editors with a menu have in common: a blocking window that goes by Exit and by its
// closing, and not by Escape, which would drop what was typed.
#pragma once

#include "windows/windowparts.h"

#include <QDialog>
#include <QKeySequence>
#include <functional>

class QMenu;
class QMenuBar;
class QVBoxLayout;

class EditorWindow : public QDialog, public TakesFiles
{
public:
    explicit EditorWindow(const char* name);
    QMenu* Part(const char* name, const char* caption);
    void Entry(QMenu* menu, const char* name, const char* caption, QKeySequence keys, std::function<void()> command);
    QVBoxLayout* content;                   // below the menu
    std::function<void()> before;           // takes in what is being typed
    std::function<void()> refresh;          // shows what a command has done
    std::function<bool()> mayClose;         // asks; false: the user stays
    std::function<bool(const Text&)> opens; // opens a file from outside that is its own; false: of another window
    void reject() override;
    // Returns true also for a window that asks before it closes: it makes room for the one that opens the file.
    bool Takes(const Text& name) const override;
    void OpenSoon(const Text& name) override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QMenuBar* bar;
};
