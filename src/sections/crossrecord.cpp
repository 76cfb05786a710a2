// crossrecord.cpp -- the record of the cross section in drawing.
#include "sections/crossrecord.h"

#include "session/shared.h"

VCROSS::CrossRunRecord VCROSS::CrossRun;

static const SharedRecord shared[] = {
    {"VCROSS::CrossRun", Kind::Run, VCROSS::CrossRun},
};

void VCROSS::ResetCrossRun()
{
    CrossRun = CrossRunRecord();
}
