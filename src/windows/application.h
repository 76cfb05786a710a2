// application.h -- the program as Qt sees it: where a failure that no procedure has reported is told, once.
#pragma once

#include <QApplication>

class Application : public QApplication
{
public:
    Application(int& argc, char** argv);
    static void ShowIcon(); // on all windows; the picture is read when the first one stands, which it held up
    bool notify(QObject* receiver, QEvent* event) override;
};

// Tells the failure that is being handled in the box "Run-time error" + number; call it inside a catch block. The
// handler that failed is left where it was, the program and the work stay; while the log window is not up yet there is
// nothing to go on with, and the process ends with status 1.
void TellRunTimeError();

// True once the log window is up: from then on a failure in a handler does not end the program.
extern bool StartDone;
// Ends the process before that; a test looks on instead.
extern void (*EndAtOnce)(int status);
