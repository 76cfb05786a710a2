// logrecord.cpp -- the records of a log page, and the lengths that follow from them.
#include "logrender/logrecord.h"

#include "session/shared.h"

LogPageRecord LogPage;
LogBoringRecord LogBoring;
LogGeometryRecord LogGeometry;

static const SharedRecord shared[] = {
    {"LogPage", Kind::Run, LogPage},
    {"LogBoring", Kind::Run, LogBoring},
    {"LogGeometry", Kind::Run, LogGeometry},
};

double DrawingLength()
{
    if (LogGeometry.FrameKind == 'L')
        return 4.2;
    if (LogGeometry.HasBottomRow == 1)
        return 5.95;
    return LogBoring.PageLength > 0 ? double(LogBoring.PageLength) : 6.7;
}

double ColumnHeight()
{
    return DrawingLength() + 1.4;
}
