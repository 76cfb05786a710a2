// main.cpp -- the desktop program: Qt, the seam, the jobs, and then the start.
#include "platform/qt/application.h"
#include "platform/qt/windows.h"
#include "session/startup.h"

int main(int argc, char** argv)
{
    Application application(argc, argv);
    UseDesktopPlatform();
    FillJobTable();
    Main();
    if (!StartDone)
        return 1;
    OfferRecovery();
    return Application::exec();
}
