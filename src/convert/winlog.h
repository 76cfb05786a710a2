// winlog.h -- WinLog files, each into a boring file beside it, on what a template boring gives.
#pragma once

#include "session/text.h"

extern Text WinLogTemplate; // the template boring of the run; "" for none

void ConvertWinLog(); // Converts runFiles 1 to runFileCount.

namespace frmBorinput
{
void mnuConvertWinLog(); // Asks for the template, then shows the batch dialog.
}
