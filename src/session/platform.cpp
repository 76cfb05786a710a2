// platform.cpp -- the seam to the machine, empty until the start of a program fills it in.
#include "session/platform.h"

PlatformRecord Platform = {};
