// helpwindow.h -- the help, where the system has no viewer for the help file.
#pragma once

void ShowHelpWindow();
