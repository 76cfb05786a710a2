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

// Inside a catch block: the box "Run-time error" + number. The handler that failed is left where it was, the program
// and the work stay; while the log window is not up yet there is nothing to go on with, and the process ends with
// status 1.
void TellRunTimeError();

// The log window is up: from now on a failure in a handler does not end the program.
extern bool StartDone;
// How it ends then; a test looks on instead.
extern void (*EndAtOnce)(int status);
