// fencerun.h -- the run over the fence diagrams of log.mas, and the routines that draw one from FenceRun.
#pragma once

#include "sections/crossrun.h"
#include "sections/fencerecord.h"

namespace VCROSS
{
// fencerun.cpp
void vfencestart(); // draws every file of log.mas
// fencedata.cpp
// Reads the current file of the run into FenceRun and CrossRun. Returns false where it is not there, and a box has told
// so.
bool getfencedata();
// fencedraw.cpp
void drawfenceframe();
void drawfenceborings();
void drawwaterlevelfence();
// fencelayers.cpp
// Sets the origin of stakes and panels: both scales 1, the pen at the level of vStart above the base's origin.
void fenceorigin();
void fillfencelayers();
void fillfenceGIS();
} // namespace VCROSS
