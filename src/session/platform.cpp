// platform.cpp -- the seam to the machine, empty until the start of a program fills it in.
#include "session/platform.h"

#include "session/shared.h"

PlatformRecord Platform = {};

static const SharedRecord shared[] = {
    {"Platform", Kind::Machine, Platform},
};

Sheet DefaultSheet(char mode)
{
    if (mode == 'P')
        return {8.0f, 10.5f, 4800, 6300};
    if (mode == 'L')
        return {10.5f, 8.0f, 6300, 4800};
    return {16.5f, 10.5f, 9900, 6300};
}
