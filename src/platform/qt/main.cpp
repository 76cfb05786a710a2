// main.cpp -- the desktop program: Qt, the seam, the jobs, the start, and then the boring of the command line, which is
// how a desktop opens one.
#include "batch/jobtable.h"
#include "platform/qt/application.h"
#include "platform/qt/uitext.h"
#include "platform/qt/windows.h"
#include "session/startup.h"

#include <QFileInfo>

int main(int argc, char** argv)
{
    Application application(argc, argv);
    // Before the start, which leaves the folder that a relative name counts from.
    const QString file = Application::arguments().value(1);
    const Text boring = file.isEmpty() ? Text() : FromUi(QFileInfo(file).absoluteFilePath());
    UseDesktopPlatform();
    FillJobTable();
    Main();
    if (!StartDone)
        return 1;
    OfferRecovery();
    if (!boring.empty())
        OpenInLogWindow(boring);
    return Application::exec();
}
