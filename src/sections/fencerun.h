// fencerun.h -- the run over the fence diagrams of log.mas, and the routines that draw one from FenceRun.
#pragma once

#include "sections/crossrun.h"
#include "sections/fencerecord.h"

namespace VCROSS
{
// fencerun.cpp
void vfencestart(); // draws every file of log.mas
// fencedata.cpp
bool getfencedata(); // the current file of the run into both records; false: it is not there, and a box has told so
// fencedraw.cpp
void drawfenceframe();
void drawfenceborings();
void drawwaterlevelfence();
// fencelayers.cpp
void fenceorigin(); // of stakes and panels: both scales 1, the pen at the level of vStart above the base's origin
void fillfencelayers();
void fillfenceGIS();
} // namespace VCROSS
