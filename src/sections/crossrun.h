// crossrun.h -- the run over the cross sections of log.mas, and the routines that draw one from CrossRun.
#pragma once

#include "sections/crossrecord.h"

namespace VCROSS
{
// crossrun.cpp
void vcrossstart(); // draws every file of log.mas
// crossdata.cpp
// Starts a letter sheet, which a file that breaks off before its page is drawn on.
void startsheet();
// Reads the current file of the run into CrossRun. Returns false where it is not there, and a box has told so.
bool getcrossdata();
// Sets the origin to that of the data area; the scales stay.
void dataorigin();
// crossdraw.cpp
void drawcrossframe();
void drawcrossborings();
void drawwaterlevels();
// Moves the pen to the middle of boring i's column at the reference level, in the section's scales.
void toboring(int i);
// crossparams.cpp
void drawcrossparams();
// sectionfoot.cpp
// Draws the title block and the legend of a section, kind 'C', or of a fence, 'F'.
void drawlogolegend(char kind);
// crosslayers.cpp
void fillcrosslayers();
void fillcrossGIS();
} // namespace VCROSS
