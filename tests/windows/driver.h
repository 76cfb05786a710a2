// driver.h -- the user of the window tests: real mouse and key events, and answers to windows that block.
#pragma once

#include "testing.h"

#include <QString>
#include <functional>

class QAction;
class QMainWindow;
class QWidget;

// The desktop program's own seam, on a screen that is not there; the working folder is the test's, with the stock
// files and the fills of the build.
void UseDesktop();

// What the user does when a window blocks: each step waits for the window of its name to be the one in front, in the
// order of the calls. A step may open the next window; it does not begin in a window where another is still at work.
void Then(const char* window, std::function<void(QWidget*)> act);
// A step for a message box: its words are checked, and its button of this caption is clicked.
void ThenAnswer(const char* words, const char* button);
// All steps have been taken. Call it at the end of a test; it fails the test otherwise.
void CheckAllDone();

void Click(QWidget* widget); // in its middle
void ClickButton(QWidget* window, const char* name);
void ClickMenu(QWidget* window, const char* menu, const char* entry); // "" for an entry of the bar itself
void Key(QWidget* window, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void TypeWords(QWidget* window, const Text& words); // each letter goes where the focus is by then
bool Drop(QWidget* on, const Text& file);           // dragged there and let go; false: it was not taken
template <class T>
T* Find(QWidget* window, const char* name);
void Settle(int milliseconds = 0); // turns of the event loop
// For the developer's eye: a picture of the window in the folder that STRATAVUE_PICTURES names; without it nothing.
void LookAt(QWidget* window, const Text& name);

// Starts the program with a start that fails: the box with these words, then the title box is clicked away. The status
// it ended with.
int StatusOfStart(const char* words);
QMainWindow* LogWindow(); // started with a device.cfg and first.txt, title box clicked away; nullptr if it did not come
void OpenSample(const char* name); // in the log window, by its menu and the file dialog

#include <QWidget>
template <class T>
T* Find(QWidget* window, const char* name)
{
    T* found = window ? window->findChild<T*>(name) : nullptr;
    REQUIRE_MESSAGE(found != nullptr, name);
    return found;
}
