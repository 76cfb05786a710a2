// jobtable.cpp -- which procedure each job of the batch dialog starts.
#include "programs/jobtable.h"

#include "canvas/patterns.h"
#include "convert/gtgsprt.h"
#include "convert/gtgstext.h"
#include "convert/irpims.h"
#include "convert/winlog.h"
#include "logrender/intropage.h"
#include "logrender/vlog.h"
#include "run/batchrun.h"
#include "sections/crossrun.h"
#include "sections/fencerun.h"
#include "sections/soiltable.h"

// Where there are two numbers, the first shows the pages and the second prints them.
void FillJobTable()
{
    JobTable[1] = JobTable[2] = VLOG::vlogstart;
    JobTable[3] = JobTable[4] = VCROSS::vcrossstart;
    JobTable[5] = JobTable[6] = VCROSS::vfencestart;
    JobTable[7] = JobTable[8] = VCROSS::vsoilstart;
    JobTable[9] = patternstart;
    JobTable[10] = Export2IRPIMS;
    JobTable[11] = ConvertGTGS2BOR;
    JobTable[12] = ConvertWinLog;
    IntroPages = VLOG::vlogintrostart;
}
