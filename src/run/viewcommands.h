// viewcommands.h -- the screen view's File menu: what prints or writes the page, or the run it belongs to.
#pragma once

#include "session/text.h"

// Prints the page that is shown, behind the notice. It stays on the screen, unchanged.
void PrintShownPage();

// Exports every page of the run that is on the screen, drawn anew from its file, to one PDF beside the source file. The
// page on the screen, the place in the run and what one page leaves behind for the next stay as they are.
void ExportPdf();

// Return where the page on the screen stands, "Page 2 of 5", and the file that it comes from. The guide has neither.
Text ShownPlace();
Text ShownFile();
