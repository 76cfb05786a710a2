// crossrecord.cpp -- the record of the cross section in drawing.
#include "sections/crossrecord.h"

VCROSS::CrossRunRecord VCROSS::CrossRun;

void VCROSS::ResetCrossRun()
{
    CrossRun = CrossRunRecord();
}
