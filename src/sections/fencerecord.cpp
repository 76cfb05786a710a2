// fencerecord.cpp -- the record of the fence diagram in drawing.
#include "sections/fencerecord.h"

#include "session/shared.h"

VCROSS::FenceRunRecord VCROSS::FenceRun;

static const SharedRecord shared[] = {
    {"VCROSS::FenceRun", Kind::Run, VCROSS::FenceRun},
};

void VCROSS::ResetFenceRun()
{
    FenceRun = FenceRunRecord();
}

bool VCROSS::HasBoring(int i)
{
    return !CrossRun.boringFile[i].empty();
}

float VCROSS::BaseScale()
{
    return static_cast<float>(Over(double(FenceRun.xRange), double(FenceRun.baseWidth)));
}
