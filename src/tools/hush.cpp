// hush.cpp -- the seam for a run that nobody is to notice.
#include "tools/hush.h"

#include "run/screenview.h"

Hushed::Hushed()
{
    Platform.MsgBox = [](const Text&, Buttons buttons, Icon) { return int(buttons == OkOnly ? Ok : No); };
    Platform.InputBox = [](const Text&, const Text&, const Text&) { return Text(); };
    Platform.PageDrawn = [] {};
    Platform.ShowPage = [] { ExitRun(); };
    Platform.ShowProgress = [](bool) {};
    Platform.StepProgress = [](const Text&, float) {};
    Platform.Breathe = [] {};
    Platform.Unattended = true;
}

Hushed::~Hushed()
{
    document.PutBack();
}
