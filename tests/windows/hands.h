// hands.h -- typing into the boxes of the log tool's window.
#pragma once

#include <Qt>

class QMainWindow;
class QWidget;

QWidget* Bring(QMainWindow* log, const char* name); // the tab that a box stands on is brought to the front
void ClickCell(QMainWindow* log, const char* name, int row, int column);
QWidget* Focus();                // where keys go
void TypeText(const char* text); // to where the focus is at each letter; tab and line end are the keys
void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
