// uitext.h -- texts at the edge to the windows: Windows-1252 inside, Unicode outside. What is shown and taken back is
// the same bytes.
#pragma once

#include "session/text.h"

#include <QString>

class QPlainTextEdit;

// Returns the text for a window, one character for each letter. The codes that Windows-1252 leaves free have no
// character: a sign of the private area, which fonts show as a box, stands for each.
QString ToUi(std::string_view text);
// Returns the text from a window. What the code page lacks becomes "?". The sign that ends a file (26) is left out: it
// would end the reading of it.
Text FromUi(const QString& text);
// Returns the text from a box of one line, with blanks for line ends, which such a box takes from the clipboard and
// shows as blanks. A line of a file cannot hold them.
Text LineFromUi(const QString& text);
// What the user types, pastes or drops: for a character that the code page lacks the nearest stands, and the words say
// which became what; they are empty where nothing was replaced.
struct TypedText {
    Text text;
    QString words;
};
TypedText FromTyped(const QString& text);
// Returns the text of a box, its paragraphs ended by CR LF. The box's own way to ask for its text makes blanks of the
// blanks that do not break.
Text TextOf(const QPlainTextEdit& box);
