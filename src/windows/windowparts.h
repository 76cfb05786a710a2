// windowparts.h -- what the windows of the tools are made of: menus, boxes with movable borders, status bars, recent
// files.
#pragma once

#include "session/text.h"

#include <QString>
#include <functional>
#include <initializer_list>

class QAction;
class QLabel;
class QMenu;
class QSplitter;
class QStatusBar;
class QWidget;

// Returns the boxes beside or above one another, with movable borders between them; shares tells how they part the
// room.
QSplitter* Split(Qt::Orientation orientation, std::initializer_list<QWidget*> boxes, std::initializer_list<int> shares);

// Returns whether a program may say where its windows stand. On Wayland the desktop alone does.
bool PlacesWindows(const QString& platform);

// Puts the window into the middle of its screen; where the desktop places it, a dialog is told to belong to the window
// in front, over which it then stands.
void CentreOnScreen(QWidget& window);

// A window that opens files from outside, by the command line or dropped on it.
struct TakesFiles {
    virtual ~TakesFiles() = default;
    virtual bool Takes(const Text& name) const = 0; // returns whether it opens this one
    // Opens the file at the next turn of the event loop, as a command of the window: the program that the file comes
    // from waits for the end of a drop, and not for the user's answers.
    virtual void OpenSoon(const Text& name) = 0;
};

// Adds the two labels of a status bar: the project folder on the left, what is on hand on the right.
void AddStatusWords(QStatusBar* bar, QLabel*& project, QLabel*& state);

// Performs an entry of the Edit menu in the text that has the focus: a text box, a field of one line, the box of a cell
// that is being typed in. Returns false where none has it.
enum class TextCommand { Undo, Redo, Cut, Copy, Paste };
bool DoInText(QWidget* focus, TextCommand command);

// Returns the title of a window with the place of the mark of unsaved changes, and the same signs in the name spelled
// so that they stay signs.
QString MarkedTitle(const Text& title);

// The files opened or saved lately, as entries of a menu.
class RecentFiles
{
public:
    // key: what they are kept under; opens: what an entry does.
    RecentFiles(QMenu* menu, const char* key, std::function<void(const Text&)> opens);
    void Show(const Text& current); // makes the file on hand the most recent one, if it is there; "" for none

private:
    QMenu* menu;
    QString key;
    std::function<void(const Text&)> opens;
};
