// main.cpp -- the desktop program: Qt, the seam, the table of jobs, and then the start.
#include "canvas/batch.h"
#include "canvas/patterns.h"
#include "logrender/vlog.h"
#include "platform/qt/application.h"
#include "platform/qt/windows.h"
#include "session/startup.h"

int main(int argc, char** argv)
{
    Application application(argc, argv);
    UseDesktopPlatform();
    JobTable[1] = JobTable[2] = VLOG::vlogstart;
    JobTable[9] = patternstart;
    Main();
    if (!StartDone)
        return 1;
    return Application::exec();
}
