// crossrun.h -- the run over the cross sections of log.mas, and the routines that draw one from CrossRun.
#pragma once

#include "sections/crossrecord.h"

namespace VCROSS
{
// crossrun.cpp
void vcrossstart(); // draws every file of log.mas
// crossdata.cpp
void startsheet();   // a letter sheet, which a file that breaks off before its page is drawn on
bool getcrossdata(); // the current file of the run into CrossRun; false: it is not there, and a box has told so
void dataorigin();   // origin of the data area; the scales stay
// crossdraw.cpp
void drawcrossframe();
void drawcrossborings();
void drawwaterlevels();
void toboring(int i); // the pen to the middle of the column at the reference level, in the section's scales
// crossparams.cpp
void drawcrossparams();
// sectionfoot.cpp: the title block and legend of a section, kind 'C', or a fence, 'F'
void drawlogolegend(char kind);
// crosslayers.cpp
void fillcrosslayers();
void fillcrossGIS();
} // namespace VCROSS
