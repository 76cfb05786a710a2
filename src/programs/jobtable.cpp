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
    JobTable[DrawLogsJob] = JobTable[PrintLogsJob] = VLOG::vlogstart;
    JobTable[DrawSectionsJob] = JobTable[PrintSectionsJob] = VCROSS::vcrossstart;
    JobTable[DrawFencesJob] = JobTable[PrintFencesJob] = VCROSS::vfencestart;
    JobTable[DrawSoilJob] = JobTable[PrintSoilJob] = VCROSS::vsoilstart;
    JobTable[GuideJob] = patternstart;
    JobTable[IrpimsJob] = Export2IRPIMS;
    JobTable[PrtJob] = ConvertGTGS2BOR;
    JobTable[WinLogJob] = ConvertWinLog;
    IntroPages = VLOG::vlogintrostart;
}
