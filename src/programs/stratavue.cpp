// stratavue.cpp -- the desktop program: Qt, the seam, the jobs, the start, and then the file of the command line, which
// is how a desktop opens one.
#include "programs/jobtable.h"
#include "session/startup.h"
#include "windows/application.h"
#include "windows/showwindows.h"
#include "windows/uitext.h"

#include <QFileInfo>
#include <QTimer>

#include <cstdio>

int main(int argc, char** argv)
{
    // Before Qt, which needs a display.
    if (const std::string answer = ShellAnswer({argv + 1, argv + argc}); !answer.empty()) {
        std::fputs(answer.c_str(), stdout);
        return 0;
    }
    Application application(argc, argv);
    // Before the start, which leaves the folder that a relative name counts from. Qt has taken its own options out.
    const QString file = Application::arguments().value(1);
    if (file.startsWith("-")) {
        std::fprintf(stderr, "stratavue: unknown option %s (see stratavue --help)\n", qPrintable(file));
        return 2;
    }
    const Text name = file.isEmpty() ? Text() : FromUi(QFileInfo(file).absoluteFilePath());
    UseDesktopPlatform();
    FillJobTable();
    Main();
    if (!StartDone)
        return 1;
    QTimer::singleShot(0, [name] {
        OfferRecovery();
        if (!name.empty())
            OpenInLogWindow(name);
    });
    return Application::exec();
}
